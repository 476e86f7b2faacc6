#include "quillet/text/clsNumericHandling.h"

#include <type_traits>

namespace quillet {

namespace {
template <class T>
struct IsArray : std::false_type {};
template <class T>
struct IsArray<Array<T>> : std::true_type {};
}  // namespace

Boolean clsNumericHandling::isArrayEmpty(const Variant& array_) const noexcept {
    return array_.visit([](const auto& v) -> Boolean {
        if constexpr (IsArray<std::decay_t<decltype(v)>>::value) return v.size() == 0;
        else return True;
    });
}

Boolean clsNumericHandling::isVariantValueEmpty(const Variant& value_) const noexcept {
    if (value_.isEmpty() || value_.isNull()) return True;
    if (const auto* s = value_.getIf<String>()) return s->empty();
    if (value_.isArray()) return isArrayEmpty(value_);
    if (value_.isObject()) return value_.isNothing();
    return False;
}

}  // namespace quillet
