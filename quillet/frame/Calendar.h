// quillet/frame/Calendar.h - the calendar arithmetic behind Date: a serial to
// year, month, day and time of day and back, as the host language counts.
//
//   calendar::split(Date{42006.75})      {2015, 1, 2, 18, 0, 0}
//   calendar::split(Date{-1.25})         {1899, 12, 29, 6, 0, 0}  (the fraction counts forward)
//   calendar::dateSerial(2015, 13, 1)    Date 42370 (1 January 2016)
//   calendar::dateSerial(2015, 3, 0)     Date 42063 (28 February 2015)
//   calendar::weekday(Date{1.0}, vbSunday)   1 (31 December 1899 was a Sunday)
//   calendar::dateAdd(u"m", 1, Date{42035})  Date 42063 (31 Jan 2015 + 1 month = 28 Feb)
//
// Dates run from 1 January 100 (serial -657434) to 31 December 9999 (serial
// 2958465); whatever would leave that range fails with errOverflow. Times are
// rounded to the nearest second; 23:59:59.6 rounds into the next day. Years 0
// to 99 are taken as they are: the two-digit-year window belongs to the
// reading of texts, not to this arithmetic.
#pragma once

#include <cmath>

#include <cstdint>

#include "quillet/frame/hostenums.h"
#include "quillet/frame/types.h"

namespace quillet::calendar {

// DateParts - a date and time of day, the time rounded to the second.
struct DateParts {
    int year = 1899;
    int month = 12;
    int day = 30;
    int hour = 0;
    int minute = 0;
    int second = 0;
    friend bool operator==(const DateParts&, const DateParts&) = default;
};

// The range of dates, the one home of it: 1 January 100 to 31 December 9999.
inline constexpr double FIRST_SERIAL = -657434.0;  // 1 January 100
inline constexpr double LAST_SERIAL = 2958465.0;   // 31 December 9999

// timeFraction - a time of day as the fraction of a day, hours, minutes and
// seconds as they are (25:00:00 is 1.0416..).
[[nodiscard]] constexpr double timeFraction(double hour, double minute, double second) noexcept {
    return (hour * 3600.0 + minute * 60.0 + second) / 86400.0;
}

// DaySecond - a calendar day and the second of that day, 0 .. 86399.
struct DaySecond {
    std::int64_t day;
    int second;
};
// daySecond - the day and second of a serial, a time that rounds to the next
// midnight carried into the next day; Failure(errOverflow) outside the range.
[[nodiscard]] DaySecond daySecond(Date value);
// split - the parts of a serial; Failure(errOverflow) outside the range (or
// for a value that is no number).
[[nodiscard]] DateParts split(Date value);
// split - the parts of a day and second that daySecond gave.
[[nodiscard]] DateParts split(DaySecond value) noexcept;
// dayIndex - the calendar day of a serial, as days after 30 December 1899
// (negative before it), without rounding the time.
// Inline: every date written or read goes through these two.
[[nodiscard]] inline std::int64_t dayIndex(Date value) noexcept {
    if (!std::isfinite(value.serial) || std::fabs(value.serial) > 1e15) return 0;
    return static_cast<std::int64_t>(std::trunc(value.serial));
}
// secondOfDay - the time of day rounded to the second, 0 .. 86400 (86400
// when it rounds into the next day).
[[nodiscard]] inline int secondOfDay(Date value) noexcept {
    if (!std::isfinite(value.serial) || std::fabs(value.serial) > 1e15) return 0;
    const double fraction = std::fabs(value.serial - std::trunc(value.serial));
    return static_cast<int>(std::floor(fraction * 86400.0 + 0.5));
}
// totalSeconds - seconds since 30 December 1899 00:00, after rounding.
[[nodiscard]] std::int64_t totalSeconds(Date value);

// fromDayAndTime - the serial of a calendar day and a fraction of a day
// (0 <= fraction < 1) counting forward from midnight.
[[nodiscard]] Date fromDayAndTime(std::int64_t day, double fraction);
// fromParts - the serial of a date and time; errOverflow when out of range.
[[nodiscard]] Date fromParts(const DateParts& parts);

// daysInMonth - 28 to 31 (proleptic Gregorian).
[[nodiscard]] int daysInMonth(int year, int month) noexcept;
// dateSerial - a date from numbers that may overflow: month 13 is January
// of the next year, day 0 the last day of the month before.
[[nodiscard]] Date dateSerial(long long year, long long month, long long day);
// timeSerial - a time of day as a fraction; hours, minutes and seconds may
// overflow into each other (and beyond a day: 25:00:00 is 1.0416..).
[[nodiscard]] Date timeSerial(long long hour, long long minute, long long second);

// weekday - 1 .. 7 counted from `firstDay` (vbUseSystemDayOfWeek: the
// regional first day of the week).
[[nodiscard]] int weekday(Date value, VbDayOfWeek firstDay = vbSunday);
// dayOfYear - 1 .. 366.
[[nodiscard]] int dayOfYear(Date value);
// weekOfYear - the week of the year, weeks starting on `firstDay`. Week 1 is
// the week of 1 January; with vbFirstFourDays the first week with four days
// of the year, with vbFirstFullWeek the first whole week, and the days before
// it belong to the last week of the year before (52 in the year 100).
[[nodiscard]] int weekOfYear(Date value, VbDayOfWeek firstDay = vbSunday, VbFirstWeekOfYear firstWeek = vbFirstJan1);

// dateAdd - interval "yyyy", "q", "m" (the day clamped to the month's end),
// "d", "y", "w" (days), "ww" (weeks), "h", "n", "s"; any case. The time of
// day is kept. An unknown interval fails with errInvalidCall, a result out of
// range with errOverflow.
[[nodiscard]] Date dateAdd(StringView interval, long long number, Date value);

}  // namespace quillet::calendar
