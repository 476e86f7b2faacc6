#include "quillet/frame/Calendar.h"

#include <gtest/gtest.h>

#include "quillet_test.h"

#include "quillet/frame/Failure.h"

namespace quillet::calendar {
namespace {

struct SplitRow {
    const char* name;
    double serial;
    DateParts parts;
};

TEST(Calendar, SplitAndBackAcrossTheRange) {
    const SplitRow rows[] = {
        {"zero is 1899-12-30 midnight", 0.0, {1899, 12, 30, 0, 0, 0}},
        {"header example", 42006.75, {2015, 1, 2, 18, 0, 0}},
        {"negative whole part, fraction counts forward", -1.25, {1899, 12, 29, 6, 0, 0}},
        {"small negative is the zero day", -0.5, {1899, 12, 30, 12, 0, 0}},
        {"1 January 1900", 2.0, {1900, 1, 1, 0, 0, 0}},
        {"leap day 2016", 42429.0, {2016, 2, 29, 0, 0, 0}},
        {"1800 is not a leap year", -36522.0, {1800, 1, 1, 0, 0, 0}},
        {"first date", -657434.0, {100, 1, 1, 0, 0, 0}},
        {"last date", 2958465.0, {9999, 12, 31, 0, 0, 0}},
        {"last second", 2958465.0 + 86399.0 / 86400.0, {9999, 12, 31, 23, 59, 59}},
        {"rounds to the nearest second", 42006.0 + 1.4 / 86400.0, {2015, 1, 2, 0, 0, 1}},
        {"23:59:59.6 carries into the next day", 42006.0 + 86399.6 / 86400.0, {2015, 1, 3, 0, 0, 0}},
        {"carry before the zero day", -1.0 - 86399.7 / 86400.0, {1899, 12, 30, 0, 0, 0}},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.name);
        EXPECT_EQ(split(Date(r.serial)), r.parts);
        EXPECT_EQ(split(fromParts(r.parts)), r.parts);
    }
    for (double bad : {-657435.0, 2958466.0, 1e300, -1e300}) {
        SCOPED_TRACE(bad);
        EXPECT_FAILURE((void)split(Date(bad)), errOverflow);
    }
    // Every day of four centuries comes back to the same serial.
    for (double s = -36600.0; s < 110000.0; s += 1.0) {
        const DateParts p = split(Date(s));
        ASSERT_EQ(dateSerial(p.year, p.month, p.day).serial, s);
    }
}

TEST(Calendar, DateSerialNormalisesAndTimeSerial) {
    EXPECT_EQ(dateSerial(2015, 13, 1).serial, 42370.0);  // month 13 is next January
    EXPECT_EQ(dateSerial(2015, 3, 0).serial, 42063.0);   // day 0 is the last of February
    EXPECT_EQ(dateSerial(2016, 0, 1).serial, 42339.0);   // month 0 is last December
    EXPECT_EQ(dateSerial(2015, 1, 366).serial, 42370.0);
    EXPECT_FAILURE((void)dateSerial(15, 1, 1), errOverflow);  // year 15 as it is: before the first date
    EXPECT_FAILURE((void)dateSerial(10000, 1, 1), errOverflow);
    EXPECT_FAILURE((void)dateSerial(9223372036854775807LL, 1, 1), errOverflow);
    EXPECT_DOUBLE_EQ(timeSerial(18, 0, 0).serial, 0.75);
    EXPECT_DOUBLE_EQ(timeSerial(0, 90, 0).serial, 1.5 / 24.0);
    EXPECT_DOUBLE_EQ(timeSerial(25, 0, 0).serial, 1.0 + 1.0 / 24.0);
    EXPECT_DOUBLE_EQ(timeSerial(-6, 0, 0).serial, -1.75);  // 1899-12-29 18:00
}

TEST(Calendar, WeekdaysAndWeeks) {
    EXPECT_EQ(weekday(Date(0.0)), 7);      // a Saturday
    EXPECT_EQ(weekday(Date(42006.9)), 6);  // Friday, whatever the time
    EXPECT_EQ(weekday(Date(-1.25)), 6);    // 1899-12-29 was a Friday
    EXPECT_EQ(weekday(Date(1.0), vbMonday), 7);
    EXPECT_EQ(weekday(Date(2.0), vbMonday), 1);
    EXPECT_EQ(dayOfYear(Date(42369.0)), 365);
    EXPECT_EQ(dayOfYear(Date(42735.0)), 366);  // 2016-12-31
    EXPECT_EQ(weekOfYear(Date(42005.0)), 1);   // Thursday 1 January 2015
    EXPECT_EQ(weekOfYear(Date(42008.0)), 2);   // the Sunday after
    EXPECT_EQ(weekOfYear(Date(42008.0), vbMonday), 1);
    // The first-week rules: days before week 1 belong to the last week of the year before.
    EXPECT_EQ(weekOfYear(Date(42008.0), vbMonday, vbFirstFourDays), 1);   // 2015 starts on a Thursday
    EXPECT_EQ(weekOfYear(Date(42370.0), vbMonday, vbFirstFourDays), 53);  // Friday 1 January 2016
    EXPECT_EQ(weekOfYear(Date(42373.0), vbMonday, vbFirstFourDays), 1);   // the Monday after
    EXPECT_EQ(weekOfYear(Date(42005.0), vbSunday, vbFirstFullWeek), 52);  // Thursday 1 January 2015
    EXPECT_EQ(weekOfYear(Date(42008.0), vbSunday, vbFirstFullWeek), 1);
    EXPECT_EQ(weekOfYear(Date(-657434.0), vbSunday, vbFirstFullWeek), 52);  // no year before the first
    EXPECT_EQ(weekOfYear(Date(42007.0 + 86399.6 / 86400.0)), 2);            // Saturday night rounds into Sunday, week 2
    EXPECT_FAILURE((void)weekday(Date(1.0), static_cast<VbDayOfWeek>(8)), errInvalidCall);
}

TEST(Calendar, DateAddClampsMonthsAndKeepsTime) {
    EXPECT_EQ(dateAdd(u"m", 1, Date(42035.0)).serial, 42063.0);     // 31 Jan + 1 month = 28 Feb
    EXPECT_EQ(dateAdd(u"M", 1, Date(42400.0)).serial, 42429.0);     // 31 Jan 2016 -> 29 Feb
    EXPECT_EQ(dateAdd(u"yyyy", 1, Date(42429.0)).serial, 42794.0);  // 29 Feb 2016 -> 28 Feb 2017
    EXPECT_EQ(dateAdd(u"m", -1, Date(42005.0)).serial, 41974.0);    // into last year
    EXPECT_DOUBLE_EQ(dateAdd(u"d", -2, Date(1.25)).serial, -1.25);  // the time still counts forward
    EXPECT_DOUBLE_EQ(dateAdd(u"ww", 1, Date(-1.25)).serial, 6.25);
    EXPECT_DOUBLE_EQ(dateAdd(u"h", 30, Date(0.0)).serial, 1.25);
    EXPECT_FAILURE((void)dateAdd(u"m", 1, Date(2958465.0)), errOverflow);
    EXPECT_FAILURE((void)dateAdd(u"x", 1, Date(0.0)), errInvalidCall);
}

}  // namespace
}  // namespace quillet::calendar
