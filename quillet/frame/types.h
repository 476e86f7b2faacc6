// quillet/frame/types.h - the plain value types every class shares.
//
// The library keeps the numbers and texts of its original interface:
//
//   quillet::Long    n = 2147483647;       // 32-bit signed
//   quillet::Boolean b = true;              // held as -1
//   b.raw();                                // -1
//   quillet::Boolean one = quillet::Boolean::fromRaw(1);   // truthy, but not == True
//   quillet::Date    d{1.5};                // 1899-12-31 12:00
//   quillet::String  s = u"text";           // UTF-16 code units, may hold NUL
//
// Arithmetic on these types is plain C++; the checked forms that fail instead
// of wrapping are in checked.h.
#pragma once

#include <compare>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace quillet {

using String = std::u16string;
using StringView = std::u16string_view;

using Byte = std::uint8_t;
using Integer = std::int16_t;
using Long = std::int32_t;
using Single = float;
using Double = double;

// Boolean - a 16-bit truth value: True is -1, False is 0, and any other raw
// value is truthy. Equality compares the raw values, so Boolean::fromRaw(1)
// tests true in a condition but is not equal to True; some members depend on
// telling the two apart.
class Boolean {
public:
    constexpr Boolean() noexcept = default;
    constexpr Boolean(bool value) noexcept : raw_(value ? -1 : 0) {}  // NOLINT: implicit on purpose
    Boolean(int) = delete;                                            // a raw number must be explicit: use fromRaw

    [[nodiscard]] static constexpr Boolean fromRaw(std::int16_t raw) noexcept {
        Boolean b;
        b.raw_ = raw;
        return b;
    }
    [[nodiscard]] constexpr std::int16_t raw() const noexcept { return raw_; }
    constexpr explicit operator bool() const noexcept { return raw_ != 0; }

    friend constexpr bool operator==(Boolean, Boolean) noexcept = default;

private:
    std::int16_t raw_ = 0;
};

inline constexpr Boolean True{true};
inline constexpr Boolean False{false};

// Date - days since midnight at the start of 1899-12-30. The whole part is the
// day, the fraction the time of day; before that day the whole part is
// negative and the fraction still counts forward (-1.25 is 1899-12-29 06:00).
// A distinct type so that a Variant can tell a Date from a Double.
struct Date {
    double serial = 0.0;

    constexpr Date() noexcept = default;
    constexpr explicit Date(double value) noexcept : serial(value) {}

    friend constexpr auto operator<=>(const Date&, const Date&) noexcept = default;
};

// Nothing - the empty object reference. Objects are std::shared_ptr<clsX>.
inline constexpr std::nullptr_t Nothing = nullptr;

}  // namespace quillet
