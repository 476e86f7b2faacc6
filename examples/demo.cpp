// A host using quillet: values, failures, regional settings.
#include <iostream>

#include "quillet/quillet.h"

using namespace quillet;

namespace {

void show(const char* label, StringView text) { std::cout << "  " << label << ": " << toUtf8(text) << '\n'; }

// A continue-on-failure routine in a host's style: each statement that can
// fail is wrapped, a failing one is skipped, the routine goes on.
Long sumOfSquares(const Array<Long>& values) {
    Long total = 0;
    for (Long v : values) attempt([&] { total = checked::add(total, checked::mul(v, v)); });
    return total;
}

}  // namespace

int main() {
    std::cout << "quillet demonstration\n\nValues and their kinds\n";
    const Variant values[] = {Variant(), Variant::null(), Variant(Integer{2}), Variant(2), Variant(2.5f),
                              Variant(2.5), Variant(True), Variant(u"text")};
    for (const Variant& v : values) {
        const String text = stopOnFailure(String(u"(no text)"), [&] { return toText(v); });
        std::cout << "  kind " << v.kind() << " -> " << toUtf8(text) << '\n';
    }

    std::cout << "\nNumbers as text and text as numbers\n";
    show("1E15", numberText(1e15));
    show("123456789012345", numberText(123456789012345.0));
    show("numeric prefix of \"12.5kg\"", numberText(numericPrefix(u"12.5kg")));
    show("numeric prefix of \"1 000\"", numberText(numericPrefix(u"1 000")));

    std::cout << "\nThe failure rule\n";
    const auto squares = Array<Long>::from(1, {3, 4, 50000});  // 50000 squared overflows a Long
    show("sum of squares of 3, 4, 50000 (the overflow is skipped)", numberText(sumOfSquares(squares)));
    const Long parsed = stopOnFailure(Long{-1}, [] { return toLong(Variant(u"abc")); });
    show("\"abc\" as a Long, failure result -1", numberText(parsed));

    std::cout << "\nA keyed collection\n";
    auto colors = std::make_shared<Collection>();
    colors->Add(u"red", u"R");
    colors->Add(u"blue", u"B");
    attempt([&] { colors->Add(u"again", u"r"); });  // duplicate key: skipped
    show("count", numberText(colors->Count()));
    show("item \"b\"", toText(colors->Item(u"b")));
    return 0;
}
