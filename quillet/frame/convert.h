// quillet/frame/convert.h - a Variant converted to a plain type, as the host
// language converts it. Every conversion fails rather than guess:
//
//   toText(Variant(1.5))           u"1.5"   (number text, regional separator)
//   toText(Variant(True))          u"True"
//   toText(Variant())              u""      (Empty is the empty text)
//   toText(Variant::null())        throws Failure(errInvalidNull)
//   toDouble(Variant(u" 2.5 "))    2.5      (strict conversion)
//   toDouble(Variant(u"2.5kg"))    throws Failure(errTypeMismatch)
//   toLong(Variant(2.5))           2        (half-to-even)
//   toLong(Variant(3e9))           throws Failure(errOverflow)
//   toBoolean(Variant(u"true"))    True
//   toDate(Variant(u"1/2/2015"))   Date 42006 under a month-first profile
//   toText(Variant(std::make_shared<clsPoint>()))  throws Failure(errTypeMismatch)
#pragma once

#include "quillet/frame/Calendar.h"
#include "quillet/frame/Variant.h"
#include "quillet/frame/types.h"

namespace quillet {

// toText - number text for numbers, "True"/"False", the general date format
// for a Date, "" for Empty, "Error n" for the error kind. Null fails with
// errInvalidNull, objects and arrays with errTypeMismatch.
[[nodiscard]] String toText(const Variant& value);

// toDouble - Empty is 0, True is -1, a Date its serial, a text by strict
// conversion. Null fails with errInvalidNull, the rest with errTypeMismatch.
[[nodiscard]] Double toDouble(const Variant& value);
// toSingle, toLong, toInteger, toByte - toDouble, then narrowed; whole numbers
// are rounded half-to-even; a value that does not fit fails with errOverflow.
[[nodiscard]] Single toSingle(const Variant& value);
[[nodiscard]] Long toLong(const Variant& value);
[[nodiscard]] Integer toInteger(const Variant& value);
[[nodiscard]] Byte toByte(const Variant& value);

// toBoolean - numbers are True unless 0; a text is "True" or "False" in any
// case, or a number by strict conversion.
[[nodiscard]] Boolean toBoolean(const Variant& value);

// toDate - a Date as it is; a number as a serial (errOverflow outside the
// years 100 to 9999); a text read under the regional settings.
[[nodiscard]] Date toDate(const Variant& value);

// isNumeric - the host language's test: Empty, Boolean and every number
// kind, and a text that converts strictly. Dates are not numeric.
[[nodiscard]] bool isNumeric(const Variant& value) noexcept;

// The range of serials that are dates: 1 January 100 to 31 December 9999.
inline constexpr double MIN_DATE_SERIAL = calendar::FIRST_SERIAL;
inline constexpr double MAX_DATE_SERIAL = calendar::LAST_SERIAL + calendar::timeFraction(23, 59, 59);

}  // namespace quillet
