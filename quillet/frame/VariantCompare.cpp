#include "quillet/frame/VariantCompare.h"

#include <type_traits>

#include "quillet/frame/Failure.h"
#include "quillet/frame/TextCompare.h"

namespace quillet {

namespace {

// What a Variant is when it is compared: nothing yet, a number, or a text.
struct Operand {
    enum Kind { Empty, Number, Text } kind = Empty;
    Double number = 0;
    StringView text;
};

Operand operandOf(const Variant& v) {
    return v.visit([](const auto& x) -> Operand {
        using T = std::decay_t<decltype(x)>;
        if constexpr (std::is_same_v<T, Variant::EmptyValue>) return {};
        else if constexpr (std::is_same_v<T, Integer> || std::is_same_v<T, Long> || std::is_same_v<T, Single> ||
                           std::is_same_v<T, Double> || std::is_same_v<T, Byte>)
            return {Operand::Number, static_cast<Double>(x), {}};
        else if constexpr (std::is_same_v<T, Boolean>) return {Operand::Number, x ? -1.0 : 0.0, {}};
        else if constexpr (std::is_same_v<T, Date>) return {Operand::Number, x.serial, {}};
        else if constexpr (std::is_same_v<T, String>) return {Operand::Text, 0, x};
        else throw Failure(errTypeMismatch);  // objects, arrays, error values
    });
}

VariantOrder orderOf(int sign) noexcept {
    return sign < 0 ? VariantOrder::Less : (sign > 0 ? VariantOrder::Greater : VariantOrder::Equal);
}

}  // namespace

VariantOrder compareVariants(const Variant& a, const Variant& b, VbCompareMethod mode) {
    if (a.isNull() || b.isNull()) return VariantOrder::Null;
    Operand x = operandOf(a);
    Operand y = operandOf(b);
    // Empty takes the kind of the other side: 0 or "".
    if (x.kind == Operand::Empty) x.kind = y.kind == Operand::Text ? Operand::Text : Operand::Number;
    if (y.kind == Operand::Empty) y.kind = x.kind;
    if (x.kind != y.kind) return x.kind == Operand::Number ? VariantOrder::Less : VariantOrder::Greater;
    if (x.kind == Operand::Text) return orderOf(compareTexts(x.text, y.text, mode));
    return orderOf(x.number < y.number ? -1 : (x.number > y.number ? 1 : 0));
}

}  // namespace quillet
