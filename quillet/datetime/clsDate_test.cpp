#include "quillet/datetime/clsDate.h"

#include <gtest/gtest.h>

#include "quillet_test.h"

#include "quillet/frame/Calendar.h"
#include "quillet/frame/Clock.h"
#include "quillet/frame/Failure.h"
#include "quillet/frame/NumberText.h"
#include "quillet/frame/RegionalSettings.h"
#include "quillet/frame/utf8.h"

namespace quillet {
namespace {

Date day(int y, int m, int d) { return calendar::dateSerial(y, m, d); }

RegionalSettings mondayFirst() {
    RegionalSettings rs = RegionalSettings::usEnglish();
    rs.firstDayOfWeek = vbMonday;
    rs.shortDatePattern = u"dd/MM/yyyy";
    rs.dateOrder = DateOrder::DayMonthYear;
    return rs;
}

std::shared_ptr<Collection> days(std::initializer_list<Variant> items) {
    auto c = std::make_shared<Collection>();
    for (const Variant& v : items) c->Add(v);
    return c;
}

TEST(clsDate, HeaderExamplesAndConstants) {
    RegionalScope us(RegionalSettings::usEnglish());
    const clsDate d;
    EXPECT_EQ(d.getDatePreview(u"1/2/2015", u"dddd, mmmm d", False), u"Friday, January 2");
    EXPECT_EQ(d.getDateFormatEnumToString(QLT_dd_MMM_yy), u"dd-MMM-yy");
    EXPECT_EQ(d.validateDateFormat(u"DD/mm/YYYY"), u"dd/MM/yyyy");
    EXPECT_EQ(d.dateComp(Variant(u"1/1/2015"), Variant(u"1/2/2015")), 1);
    EXPECT_EQ(d.timeDiff(Variant(u"23:00:00"), Variant(u"01:00:00")), -79200);
    EXPECT_EQ(d.removeSecondsIfZero(u"11:30:00 PM"), u"11:30 PM");
    // The constants are what they say, and the earliest date survives the text round trip.
    EXPECT_LT(d.EARLIEST_DATE(), Date(0.0));
    EXPECT_EQ(d.getDatePreview(numberText(d.EARLIEST_DATE().serial), u"yyyy-mm-dd", False), u"1800-01-01");
    EXPECT_EQ(d.getDatePreview(numberText(d.LATEST_DATE().serial), u"yyyy-mm-dd", False), u"3000-12-31");
    EXPECT_EQ(d.dateComp(Variant(d.LATEST_DATE()), Variant(d.EARLIEST_DATE())), -1);
    EXPECT_EQ(d.getDatePreview(u"1/2/2015 6:05:09 PM", d.FORMAT_FUNCTION_TIME_FORMAT(), False), u"06:05:09 PM");
    EXPECT_EQ(d.getDatePreview(u"1/2/2015", d.FORMAT_FUNCTION_DATE_FORMAT(), False), u"02/01/2015");
}

TEST(clsDate, FormatTablesFallBackDifferently) {
    const clsDate d;
    // The date table falls back to its first row, the time table to nothing.
    EXPECT_EQ(d.getDateFormatEnumToString(QLT_STD_DATE_COUNT), u"M/d/yy");
    EXPECT_EQ(d.getDateFormatEnumToString(static_cast<QltStandardDateFormats>(-1)), u"M/d/yy");
    EXPECT_EQ(d.getTimeFormatEnumToString(static_cast<QltStandardTimeFormats>(4)), u"");
    // The general member is the short form for dates and the long form for times.
    EXPECT_EQ(d.getVBDateFromDateFormat(QLT_DF_GENERAL), vbShortDate);
    EXPECT_EQ(d.getVBTimeFromTimeFormat(QLT_TF_GENERAL), vbLongTime);
    EXPECT_EQ(d.getVBDateFromDateFormat(static_cast<QltDateFormat>(3)), vbGeneralDate);
    EXPECT_EQ(d.getVBTimeFromTimeFormat(static_cast<QltTimeFormat>(-1)), vbGeneralDate);
}

TEST(clsDate, FormatCleanUp) {
    RegionalScope us(RegionalSettings::usEnglish());
    const clsDate d;
    EXPECT_EQ(d.validateDateFormat(u"dd \"Day mm\" yyyy hh:mm"), u"dd \"Day mm\" yyyy hh:MM");
    EXPECT_EQ(d.validateDateFormat(u"Dd \"open"), u"dd \"open");
    EXPECT_EQ(d.getDateVBFormatFromSystemformat(u"d 'de' MMMM"), u"d \"de\" MMMM");
    EXPECT_EQ(d.getDateSystemFormatFromVBFormat(u"d \"de\" MMMM"), u"d 'de' MMMM");
    EXPECT_EQ(d.getDateSystemFormatFromVBFormat(d.getDateVBFormatFromSystemformat(u"it's")), u"it's");
    EXPECT_NE(d.getDateSystemFormatFromVBFormat(d.getDateVBFormatFromSystemformat(u"say \"x\"")), u"say \"x\"");
    EXPECT_EQ(d.removeWeekdayFromLongDateFormat(u" Monday, January 05, 2015 "), u"  January 05  2015");
    EXPECT_EQ(d.removeWeekdayFromLongDateFormat(u"Sat, SATURDAY"), u"  ");
    EXPECT_EQ(d.removeWeekdayFromLongDateFormat(u"Monument"), u"ument");  // accepted
    EXPECT_EQ(d.getDatePreview(u"not a date", u"yyyy", True), u"NOT A DATE");
    EXPECT_EQ(d.getDatePreview(u"42006", u"yyyy", False), u"2015");
}

TEST(clsDate, ComparisonsRunFromFirstToSecond) {
    RegionalScope us(RegionalSettings::usEnglish());
    const clsDate d;
    EXPECT_EQ(d.dateComp(Variant(u"1/2/2015 11:00 PM"), Variant(Date(42006.01))), 0);
    EXPECT_EQ(d.dateComp(Variant(), Variant(u"1/2/2015")), 1);                          // Empty is 30 December 1899
    EXPECT_EQ(d.dateComp(Variant(u"abc"), Variant(u"1/2/2015")), 1);                    // no date: counted as zero
    EXPECT_EQ(d.dateComp(Variant(0.5), Variant(Date(-1.0))), -1);                       // a time alone has no date
    EXPECT_EQ(d.dateComp(Variant(std::make_shared<int>(1)), Variant(u"1/2/2015")), 0);  // conversion failed
    EXPECT_EQ(d.timeComp(Variant(u"1/2/2015 1:00 AM"), Variant(u"01:00:00")), 0);
    EXPECT_EQ(d.timeDiff(Variant(u"1/2/2015"), Variant(u"01:00:00")), 3600);  // date only: midnight
    EXPECT_EQ(d.timeDiff(Variant(u"abc"), Variant(u"01:00:00")), 3600);       // no time: counted as zero
    EXPECT_EQ(d.timeToNumber(Variant(u"13:45:07")), 134507);
    EXPECT_EQ(d.timeToNumber(Variant(Date(42006.0))), 0);
    EXPECT_EQ(d.timeToNumber(Variant(u"abc")), 0);
}

TEST(clsDate, ValueTestsAndStandardConversions) {
    RegionalScope us(RegionalSettings::usEnglish());
    const clsDate d;
    EXPECT_FALSE(d.containsDateValue(Variant(0.5)));
    EXPECT_TRUE(d.containsDateValue(Variant(u"1/2/2015")));
    EXPECT_TRUE(d.containsTimeValue(Variant(0.0)));
    EXPECT_FALSE(d.containsTimeValue(Variant(Date(42006.0))));
    EXPECT_TRUE(d.containsTimeValue(Variant(Date(42006.0)), True));
    EXPECT_FALSE(d.containsTimeValue(Variant(u"abc"), True));

    EXPECT_EQ(d.variantToDateStd(Variant(Date(42006.75))), Variant(u"1/2/2015"));  // a text, not a Date
    EXPECT_TRUE(d.variantToDateStd(Variant(u"   ")).isEmpty());
    EXPECT_TRUE(d.variantToDateStd(Variant(0.5)).isEmpty());
    EXPECT_EQ(d.variantToDateStd(Variant(std::make_shared<int>(1))), Variant(u""));
    EXPECT_TRUE(d.variantToTimeStd(Variant(Date(42006.0))).isEmpty());
    EXPECT_EQ(d.variantToTimeStd(Variant(Date(42006.0)), True), Variant(Date(0.0)));
    EXPECT_EQ(d.variantToTimeStd(Variant(u"1/2/2015 6:00 PM")), Variant(Date(0.75)));
    EXPECT_EQ(d.variantToTimeStd(Variant::null()), Variant());
    EXPECT_EQ(d.variantToDateTimeStd(Variant(u"1/2/2015")), Variant(Date(42006.0)));
    EXPECT_EQ(d.variantToDateTimeStd(Variant(u"abc")), Variant(u""));
    EXPECT_EQ(d.variantToISODateTime(Variant(Date(42006.75))), Variant(u"2015-01-02 18:00:00"));
    EXPECT_EQ(d.variantToISODateTime(Variant(u"abc")), Variant(u"abc"));
    EXPECT_EQ(d.variantToISODateTime(Variant(1e10)), Variant(u""));
    EXPECT_EQ(d.dateToStringStd(Variant(Date(42006.75))), u"1/2/2015 6:00:00 PM");
    EXPECT_EQ(d.timeToStringStd(Variant(0.5)), u"0.5");
    EXPECT_EQ(d.dateToStringStd(Variant::null()), u"");
    EXPECT_EQ(d.dateToStringStd(Variant(u"  ")), u"  ");
    EXPECT_EQ(d.variantToDateTimeOptionStd(Variant(u"1/2/2015"), QLT_DTO_NONE), Variant(Date(42006.0)));

    // QLT_DTO_NONE does not survive validation, yet counts as offering both.
    EXPECT_EQ(d.getValidatedDateTimeOption(QLT_DTO_NONE), QLT_DTO_DATE_TIME);
    EXPECT_EQ(d.getValidatedDateTimeOption(static_cast<QltDateTimeOption>(3)), QLT_DTO_DATE_TIME);
    EXPECT_TRUE(d.isDateOptionAvailable(QLT_DTO_NONE) && d.isTimeOptionAvailable(QLT_DTO_NONE));

    EXPECT_EQ(d.removeSecondsIfZero(u"1/1/2015 12:00"), u"1/1/2015 12:00");
    EXPECT_EQ(d.removeNullDateFromString(u"1/1/1900 10:30:00 AM"), u"10:30:00 AM");
    EXPECT_EQ(d.removeNullDateFromString(u"1/1/1900 garbage"), u"");
}

TEST(clsDate, WeekdaySets) {
    RegionalScope us(RegionalSettings::usEnglish());
    const clsDate d;
    EXPECT_TRUE(d.isDayPresentInDays(u"Mon Tue", u"mon"));
    EXPECT_FALSE(d.isDayPresentInDays(u"Mon Tue", u"Mo"));
    EXPECT_FALSE(d.isDayPresentInDays(u"Mo", u"Mon"));
    const auto set = days({Variant(2), Variant(u"abc"), Variant(4), Variant(2), Variant(9)});
    EXPECT_TRUE(d.isDaySelected(4, set));
    EXPECT_FALSE(d.isDaySelected(3, set));
    EXPECT_FALSE(d.isDaySelected(2, nullptr));
    EXPECT_EQ(d.getDaysStringFromCollection(set), u"Mon Wed Mon");  // order kept, bad items skipped
    EXPECT_EQ(d.getDaysStringFromCollection(nullptr), u"");

    auto box = std::make_shared<MemoryListControl>();
    d.fillBoxWithDays(box);
    ASSERT_EQ(box->ListCount(), 7);
    for (Long i = 0; i < 7; ++i) {
        EXPECT_EQ(box->item(i), RegionalSettings::current().dayNames[i]);
        EXPECT_EQ(box->ItemData(i), i + 1);
    }
    d.fillBoxWithDays(nullptr);
    RegionalScope monday(mondayFirst());
    d.fillBoxWithDays(box);  // cleared first, then filled in the local order
    ASSERT_EQ(box->ListCount(), 7);
    const Long expected[] = {2, 3, 4, 5, 6, 7, 1};
    for (Long i = 0; i < 7; ++i) EXPECT_EQ(box->ItemData(i), expected[i]) << toUtf8(box->item(i));
    EXPECT_EQ(box->item(0), u"Monday");
    EXPECT_EQ(box->item(6), u"Sunday");
    EXPECT_FAILURE((void)box->ItemData(7), errInvalidCall);
}

TEST(clsDate, FirstAndLastDays) {
    RegionalScope us(RegionalSettings::usEnglish());
    ClockScope fixed(Date(42018.4));  // Wednesday 14 January 2015, 09:36
    const clsDate d;
    EXPECT_DOUBLE_EQ(d.getFirstDayOfMonth(Date(42017.75)).serial, 42005.75);  // the time is kept
    EXPECT_EQ(d.getLastDayOfMonth(Date(42035.0)).serial, 42035.0);            // by way of 28 February
    EXPECT_EQ(d.getLastDayOfMonth(day(2016, 2, 10)).serial, day(2016, 2, 29).serial);
    EXPECT_EQ(d.getLastDayOfWeek(Date(42021.0)).serial, 42021.0);                 // a Saturday stays
    EXPECT_EQ(d.getLastDayOfWeek(Date(42022.0)).serial, 42028.0);                 // a Sunday: six days on
    EXPECT_EQ(d.getFirstDayOfYear(Date(1000.0)).serial, day(2015, 1, 1).serial);  // the argument is ignored
    EXPECT_EQ(d.getLastDayOfYear(Date(1000.0)).serial, day(2015, 12, 31).serial);
    EXPECT_EQ(d.getFirstDayOfWeekEnum(), vbSunday);
    EXPECT_DOUBLE_EQ(d.getFirstDayOfWeek(Date(-1.25)).serial, -6.25);  // Sunday 24 December 1899
    RegionalScope monday(mondayFirst());
    EXPECT_EQ(d.getFirstDayOfWeekEnum(), vbMonday);
    EXPECT_EQ(d.getFirstDayOfWeek(Date(42022.0)).serial, 42016.0);
    EXPECT_EQ(d.getLastDayOfWeek(Date(42022.0)).serial, 42028.0);  // still Sunday-based
}

struct RangeRow {
    AdmLogChoiceDate option;
    Date start;
    Date end;
};

void checkRanges(const std::vector<RangeRow>& rows) {
    const clsDate d;
    for (const RangeRow& r : rows) {
        EXPECT_EQ(d.getRangeStartDate(r.option), r.start) << "start of option " << r.option;
        EXPECT_EQ(d.getRangeEndDate(r.option), r.end) << "end of option " << r.option;
    }
}

TEST(clsDate, RangesOnAFixedToday) {
    {
        RegionalScope us(RegionalSettings::usEnglish());
        ClockScope fixed(Date(42018.4));  // Wednesday 14 January 2015
        checkRanges({
            {ADM_LCD_CUSTOM, Date(0.0), Date(0.0)},
            {ADM_LCD_ALL, Date(-36522.0), Date(402133.0)},
            {ADM_LCD_CURRENT_DAY, Date(42018.0), Date(42018.0)},
            {ADM_LCD_YESTERDAY, Date(42017.0), Date(42017.0)},
            {ADM_LCD_CURRENT_WEEK, Date(42015.0), Date(42021.0)},
            {ADM_LCD_PREVIOUS_WEEK, Date(42008.0), Date(42014.0)},
            {ADM_LCD_CURRENT_MONTH, day(2015, 1, 1), day(2015, 1, 31)},
            {ADM_LCD_PREVIOUS_MONTH, day(2014, 12, 1), day(2014, 12, 31)},
            {ADM_LCD_CURRENT_YEAR, day(2015, 1, 1), day(2015, 12, 31)},
            {ADM_LCD_PREVIOUS_YEAR, day(2014, 1, 1), day(2014, 12, 31)},
            {static_cast<AdmLogChoiceDate>(42), Date(0.0), Date(0.0)},
        });
    }
    RegionalScope monday(mondayFirst());
    ClockScope fixed(Date(42022.9));  // Sunday 18 January 2015
    // The first day is Monday-based, the last day Sunday-based: thirteen days.
    checkRanges({
        {ADM_LCD_CURRENT_WEEK, Date(42016.0), Date(42028.0)},
        {ADM_LCD_PREVIOUS_WEEK, Date(42009.0), Date(42021.0)},
    });
}

}  // namespace
}  // namespace quillet
