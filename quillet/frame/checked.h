// quillet/frame/checked.h - whole-number arithmetic that fails instead of
// wrapping, floating results that never hold infinity or not-a-number, and
// the half-to-even conversion of floating values to whole numbers.
//
//   checked::add(Long{2147483647}, Long{1});   // throws Failure(errOverflow)
//   checked::div(Long{-2147483647 - 1}, Long{-1});  // throws Failure(errOverflow)
//   checked::div(Long{7}, Long{0});            // throws Failure(errDivisionByZero)
//   checked::div(Long{-7}, Long{2});           // -3: truncates toward zero
//   roundHalfEven(2.5);                        // 2.0
//   toLong(-1.5);                              // -2
//   toInteger(32767.5);                        // throws Failure(errOverflow): rounds to 32768
//   checked::divide(1.0, 0.0);                 // throws Failure(errDivisionByZero)
#pragma once

#include <cmath>
#include <concepts>
#include <limits>

#include "quillet/frame/Failure.h"
#include "quillet/frame/types.h"

namespace quillet {

template <class T>
concept WholeNumber = std::same_as<T, Long> || std::same_as<T, Integer> || std::same_as<T, Byte>;

namespace checked {

// add, sub, mul, neg - exact or errOverflow.
template <WholeNumber T>
[[nodiscard]] inline T add(T a, T b) {
    T r;
    if (__builtin_add_overflow(a, b, &r)) throw Failure(errOverflow);
    return r;
}
template <WholeNumber T>
[[nodiscard]] inline T sub(T a, T b) {
    T r;
    if (__builtin_sub_overflow(a, b, &r)) throw Failure(errOverflow);
    return r;
}
template <WholeNumber T>
[[nodiscard]] inline T mul(T a, T b) {
    T r;
    if (__builtin_mul_overflow(a, b, &r)) throw Failure(errOverflow);
    return r;
}
template <WholeNumber T>
[[nodiscard]] inline T neg(T a) {
    return sub(T{0}, a);
}

// div - whole-number division, truncating toward zero. A zero divisor fails
// with errDivisionByZero; the smallest value divided by -1 with errOverflow.
template <WholeNumber T>
[[nodiscard]] inline T div(T a, T b) {
    if (b == 0) throw Failure(errDivisionByZero);
    if constexpr (std::numeric_limits<T>::is_signed) {
        if (a == std::numeric_limits<T>::min() && b == T(-1)) throw Failure(errOverflow);
    }
    return static_cast<T>(a / b);
}

// mod - remainder with the sign of the dividend; a zero divisor fails.
template <WholeNumber T>
[[nodiscard]] inline T mod(T a, T b) {
    if (b == 0) throw Failure(errDivisionByZero);
    if constexpr (std::numeric_limits<T>::is_signed) {
        if (b == T(-1)) return 0;  // also covers min % -1, which C++ leaves undefined
    }
    return static_cast<T>(a % b);
}

// real - a floating result as the library may keep it: infinity fails with
// errOverflow, not-a-number with errInvalidCall.
[[nodiscard]] inline double real(double value) {
    if (std::isfinite(value)) [[likely]]
        return value;
    throw Failure(std::isnan(value) ? errInvalidCall : errOverflow);
}

// divide - floating division: x / 0 fails with errDivisionByZero, 0 / 0 with
// errOverflow (the classic answer), an infinite quotient with errOverflow.
[[nodiscard]] inline double divide(double a, double b) {
    if (b == 0.0) throw Failure(a == 0.0 ? errOverflow : errDivisionByZero);
    return real(a / b);
}

}  // namespace checked

// roundHalfEven - the nearest whole number; a value exactly half-way goes to
// the even neighbour (0.5 -> 0, 1.5 -> 2, 2.5 -> 2, -1.5 -> -2). Infinity and
// not-a-number are returned as they are.
[[nodiscard]] inline double roundHalfEven(double value) noexcept {
    double r = std::round(value);  // half away from zero
    if (std::fabs(value - std::trunc(value)) == 0.5) r = 2.0 * std::round(value / 2.0);
    return r;
}

// roundHalfEven with a number of decimals, rounding the same way. Negative
// `decimals` fail with errInvalidCall.
[[nodiscard]] double roundHalfEven(double value, Long decimals);

namespace detail {
template <WholeNumber T>
[[nodiscard]] inline T toWhole(double value) {
    const double r = roundHalfEven(value);
    // Bounds compared as doubles: every bound of these types is exact in a double.
    if (!(r >= static_cast<double>(std::numeric_limits<T>::min()) &&
          r <= static_cast<double>(std::numeric_limits<T>::max())))
        throw Failure(errOverflow);  // also catches not-a-number
    return static_cast<T>(r);
}
}  // namespace detail

// toLong, toInteger, toByte - half-to-even rounding, then errOverflow when the
// rounded value does not fit (not-a-number and infinity included).
[[nodiscard]] inline Long toLong(double value) { return detail::toWhole<Long>(value); }
[[nodiscard]] inline Integer toInteger(double value) { return detail::toWhole<Integer>(value); }
[[nodiscard]] inline Byte toByte(double value) { return detail::toWhole<Byte>(value); }

// toSingle - a Double narrowed to Single; a value beyond Single's range fails
// with errOverflow.
[[nodiscard]] inline Single toSingle(double value) {
    const auto s = static_cast<Single>(checked::real(value));
    if (std::isinf(s)) throw Failure(errOverflow);
    return s;
}

}  // namespace quillet
