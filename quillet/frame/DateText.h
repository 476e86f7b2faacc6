// quillet/frame/DateText.h - dates to text and text to dates under the
// current regional settings: the host date formatter and the date reader.
//
// Under the US English profile:
//   formatDate(Date{42006.75}, u"dddd, mmmm d, yyyy hh:nn")   u"Friday, January 2, 2015 18:00"
//   formatDate(Date{42006.75}, u"mm/dd/yy h:mm AM/PM")        u"01/02/15 6:00 PM"  (mm after h is minutes)
//   formatDate(Date{42006.75}, u"\"Day\" y")                 u"Day 2"  (y is the day of the year)
//   formatDate(Date{42006.75}, vbGeneralDate)                u"1/2/2015 6:00:00 PM"
//   formatDate(Date{0.0}, vbGeneralDate)                     u"12:00:00 AM"
//   readDate(u"Jan 2, 2015 6 PM")                            Date 42006.75
//   readDate(u"13/1/2015")                                   Date 42017 (impossible as M/D, so D/M)
//   readDate(u"2015-01-02")                                  Date 42006 (year first in any profile)
//   readDate(u"42006.5")                                     Date 42006.5 (a number is a serial)
//   readDate(u"abc")                                         throws Failure(errTypeMismatch)
//   readDate(u"1/2/2015" + 100 slashes)                     throws (more than MAX_DATE_TEXT_PARTS parts)
//
// Format items, letters in any case: d dd ddd dddd ddddd (short date) dddddd
// (long date), m mm mmm mmmm (m and mm are minutes straight after h or hh,
// a colon between them allowed), y (day of the year) yy yyyy, h hh, n nn,
// s ss, w (weekday) ww (week) q (quarter), c (general date), ttttt (long
// time), AM/PM am/pm A/P a/p (as written), ampm (the profile's marks; any of
// these selects the 12-hour clock), / and : (the profile's separators),
// "quoted text", \x (x itself); anything else is itself.
#pragma once

#include <cstddef>
#include <optional>

#include "quillet/frame/Variant.h"
#include "quillet/frame/hostenums.h"
#include "quillet/frame/types.h"

namespace quillet {

// formatDate - `value` written with a host date format; an empty format is
// the general date. Failure(errOverflow) for a serial outside the years 100
// to 9999; no format fails. Time and memory grow in proportion to the
// format's length, also for formats of one letter repeated many times.
[[nodiscard]] String formatDate(Date value, StringView format, VbDayOfWeek firstDayOfWeek = vbSunday,
                                VbFirstWeekOfYear firstWeekOfYear = vbFirstJan1);
// formatDate - `value` written in a named format of the regional settings;
// vbGeneralDate shows only the date and time parts that are not zero.
[[nodiscard]] String formatDate(Date value, VbDateTimeFormat named);

// The most parts a text read as a date may have: each number, each word and
// each separator character is one part ("Tuesday, January 13, 2015 6:05 PM"
// has 15). A text with more reads as no date, and the reader stops there
// without looking at the rest of it.
inline constexpr std::size_t MAX_DATE_TEXT_PARTS = 64;

// tryReadDate - a text read as a date under the regional settings; no value
// when it reads as no date. Time and memory stay within a few passes over
// the text, whatever the text.
[[nodiscard]] std::optional<Date> tryReadDate(StringView text);
// readDate - as tryReadDate; Failure(errTypeMismatch) when it reads as no date.
[[nodiscard]] Date readDate(StringView text);

// formatValue - a Variant written with a host date format as the host's
// Format does: a Date, a number or a Boolean as a date, a text that reads as
// a date likewise, and any other text unchanged; Empty and Null give "".
// Failure(errOverflow) for a number outside the dates, errTypeMismatch for
// an object or array.
[[nodiscard]] String formatValue(const Variant& value, StringView format);
// formatValue - a Variant in a named format; here a text that reads as no
// date fails with errTypeMismatch and Null with errInvalidNull; Empty is
// Date 0.
[[nodiscard]] String formatValue(const Variant& value, VbDateTimeFormat named);

}  // namespace quillet
