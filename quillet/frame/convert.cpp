#include "quillet/frame/convert.h"

#include <type_traits>

#include "quillet/frame/DateText.h"
#include "quillet/frame/Failure.h"
#include "quillet/frame/NumberText.h"
#include "quillet/frame/TextCompare.h"
#include "quillet/frame/checked.h"

namespace quillet {

namespace {
template <class T>
inline constexpr bool isPlainNumber = std::is_same_v<T, Integer> || std::is_same_v<T, Long> ||
                                      std::is_same_v<T, Single> || std::is_same_v<T, Double> || std::is_same_v<T, Byte>;
}  // namespace

String toText(const Variant& value) {
    return value.visit([](const auto& v) -> String {
        using T = std::decay_t<decltype(v)>;
        if constexpr (isPlainNumber<T>) return numberText(v);
        else if constexpr (std::is_same_v<T, String>) return v;
        else if constexpr (std::is_same_v<T, Boolean>) return v ? u"True" : u"False";
        else if constexpr (std::is_same_v<T, Date>) return formatDate(v, vbGeneralDate);
        else if constexpr (std::is_same_v<T, Variant::EmptyValue>) return String();
        else if constexpr (std::is_same_v<T, Variant::NullValue>) throw Failure(errInvalidNull);
        else if constexpr (std::is_same_v<T, ErrorValue>) return u"Error " + numberText(v.code);
        else throw Failure(errTypeMismatch);
    });
}

Double toDouble(const Variant& value) {
    return value.visit([](const auto& v) -> Double {
        using T = std::decay_t<decltype(v)>;
        if constexpr (isPlainNumber<T>) return static_cast<Double>(v);
        else if constexpr (std::is_same_v<T, String>) return parseNumber(v);
        else if constexpr (std::is_same_v<T, Boolean>) return v ? -1.0 : 0.0;
        else if constexpr (std::is_same_v<T, Date>) return v.serial;
        else if constexpr (std::is_same_v<T, Variant::EmptyValue>) return 0.0;
        else if constexpr (std::is_same_v<T, Variant::NullValue>) throw Failure(errInvalidNull);
        else throw Failure(errTypeMismatch);
    });
}

Single toSingle(const Variant& value) { return toSingle(toDouble(value)); }
Long toLong(const Variant& value) {
    if (const auto* l = value.getIf<Long>()) return *l;  // the common case, without a round trip
    return toLong(toDouble(value));
}
Integer toInteger(const Variant& value) { return toInteger(toDouble(value)); }
Byte toByte(const Variant& value) { return toByte(toDouble(value)); }

Boolean toBoolean(const Variant& value) {
    if (const auto* b = value.getIf<Boolean>()) return *b;
    if (const auto* s = value.getIf<String>()) {
        if (equalsText(*s, u"True")) return True;
        if (equalsText(*s, u"False")) return False;
    }
    return Boolean(toDouble(value) != 0.0);
}

Date toDate(const Variant& value) {
    if (const auto* d = value.getIf<Date>()) return *d;
    if (const auto* s = value.getIf<String>()) return readDate(*s);
    const double serial = toDouble(value);
    if (serial < MIN_DATE_SERIAL || serial >= MAX_DATE_SERIAL + 1.0 / 86400.0) throw Failure(errOverflow);
    return Date(serial);
}

bool isNumeric(const Variant& value) noexcept {
    return value.visit([](const auto& v) -> bool {
        using T = std::decay_t<decltype(v)>;
        if constexpr (isPlainNumber<T> || std::is_same_v<T, Boolean> || std::is_same_v<T, Variant::EmptyValue>)
            return true;
        else if constexpr (std::is_same_v<T, String>) return tryParseNumber(v).has_value();
        else return false;
    });
}

}  // namespace quillet
