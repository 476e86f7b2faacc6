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
    const Variant values[] = {Variant(),     Variant::null(), Variant(Integer{2}), Variant(2),
                              Variant(2.5f), Variant(2.5),    Variant(True),       Variant(u"text")};
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

    std::cout << "\nDates under two regional profiles\n";
    const Date day{42006.75};  // 2 January 2015, 18:00
    clsDate dates;
    show("US English, long format",
         dates.getDatePreview(formatDate(day, vbGeneralDate), u"dddd, mmmm d, yyyy hh:nn AM/PM", False));
    show("US English, dateToString", clsString{}.dateToString(day));
    {
        RegionalScope german(RegionalSettings::fromLocale("de_DE"));
        show("German, general date", formatDate(day, vbGeneralDate));
        show("German, number text of 1.5", numberText(1.5));
        show("German, numeric prefix of \"1,5\" (the point is the only separator)", numberText(numericPrefix(u"1,5")));
    }

    std::cout << "\nThe road of one settings value\n";
    auto barcode = std::make_shared<clsOptionsBarcode>();
    barcode->setBarReduction(150);  // the one setter with a check: clamped to 0..100
    show("getBarReduction after setBarReduction(150)", numberText(barcode->getBarReduction()));
    const Variant saved = barcode->writeObject();  // each field an element ending in CR LF, inside "OptionsBarcode"
    std::cout << toUtf8(toText(saved));
    auto reopened = std::make_shared<clsOptionsBarcode>();
    reopened->readObject(saved);  // each tag found by plain text search, passed to its setter
    show("read back into a new object", numberText(reopened->getBarReduction()));
    auto older = std::make_shared<clsOptionsBarcode>();
    older->readObject(Variant(u"<OptionsBarcode><BarReduction>250</BarReduction>\r\n</OptionsBarcode>\r\n"));
    show("a hand-edited 250 reads back clamped", numberText(older->getBarReduction()));
    show("and the absent \"AI\" reads as", String(u"\"") + older->getAI() + u"\" (not \"00\")");
    return 0;
}
