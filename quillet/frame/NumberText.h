// quillet/frame/NumberText.h - numbers to text and text to numbers. Every
// class of the library goes through these; none parses or prints on its own.
//
// Number text: the shortest form with up to 15 significant digits for a
// Double and 7 for a Single, the regional decimal separator, no grouping, and
// exponent form (capital E, sign, at least two digits) when the decimal
// exponent is below -4 or at least the digit count:
//
//   numberText(2345.0)             u"2345"
//   numberText(0.1 + 0.2)          u"0.3"
//   numberText(123456789012345.0)  u"123456789012345"
//   numberText(1e15)               u"1E+15"
//   numberText(0.0001)             u"0.0001"
//   numberText(0.00001)            u"1E-05"
//   numberText(-2.5e-300)          u"-2.5E-300"
//   numberText(Single{0.1f})       u"0.1"
//   numberText(Long{-7})           u"-7"
//   under a German profile numberText(1.5) is u"1,5"
//
// Numeric prefix: blanks, tabs and line feeds are skipped anywhere; the point
// is the only decimal separator in every locale; E or D opens an exponent;
// "&H" and "&O" read hexadecimal and octal; reading stops at the first
// character that cannot continue the number; never fails.
//
//   numericPrefix(u"12.5kg")  12.5      numericPrefix(u"1 000")   1000
//   numericPrefix(u"abc")     0         numericPrefix(u"1,5")     1
//   numericPrefix(u"1D2")     100       numericPrefix(u"&HFF")    255
//   numericPrefix(u"&HFFFF")  -1        (four hex digits or fewer are an Integer)
//
// Strict conversion: the whole text but surrounding blanks must be a number
// in the regional form (sign, digits, the regional decimal separator, an
// exponent), or "&H"/"&O" digits; otherwise Failure(errTypeMismatch).
//
//   parseNumber(u" 2.5 ")     2.5       parseNumber(u"2.5kg")     throws
//   under a German profile parseNumber(u"2,5") is 2.5 and parseNumber(u"2.5") throws
//
// Both readings are scanNumber of NumberScan.h with the options PREFIX_SCAN
// and STRICT_SCAN; a reader that needs another mix of them calls it there.
#pragma once

#include <optional>

#include "quillet/frame/types.h"

namespace quillet {

// numberText - the text of a number under the current regional settings.
[[nodiscard]] String numberText(Double value);
[[nodiscard]] String numberText(Single value);
[[nodiscard]] String numberText(Long value);
[[nodiscard]] String numberText(Integer value);
[[nodiscard]] String numberText(Byte value);

// numericPrefix - the number at the start of a text; 0 when there is none. A
// value beyond the range of Double reads as 0. Never fails.
[[nodiscard]] Double numericPrefix(StringView text) noexcept;

// tryParseNumber - strict conversion; no value when the text is no number.
[[nodiscard]] std::optional<Double> tryParseNumber(StringView text) noexcept;
// parseNumber - strict conversion; Failure(errTypeMismatch) when the text is
// no number, Failure(errOverflow) when it is beyond the range of Double.
[[nodiscard]] Double parseNumber(StringView text);

// Largest number of characters numberText writes for a Double.
inline constexpr int MAX_NUMBER_TEXT_LENGTH = 25;

}  // namespace quillet
