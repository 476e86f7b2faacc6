#include "quillet/frame/DateText.h"

#include <gtest/gtest.h>

#include "quillet_test.h"

#include "quillet/frame/Calendar.h"
#include "quillet/frame/Clock.h"
#include "quillet/frame/Failure.h"
#include "quillet/frame/RegionalSettings.h"
#include "quillet/frame/utf8.h"

namespace quillet {
namespace {

Date at(int y, int mo, int d, int h = 0, int mi = 0, int s = 0) { return calendar::fromParts({y, mo, d, h, mi, s}); }

// A day-first profile with a point as date separator and a decimal comma.
RegionalSettings dayFirst() {
    RegionalSettings rs = RegionalSettings::usEnglish();
    rs.localeName = u"xx_DAYFIRST";
    rs.decimalSeparator = u",";
    rs.dateSeparator = u".";
    rs.shortDatePattern = u"dd.MM.yyyy";
    rs.longDatePattern = u"dddd, d. MMMM yyyy";
    rs.longTimePattern = u"HH:mm:ss";
    rs.shortTimePattern = u"HH:mm";
    rs.firstDayOfWeek = vbMonday;
    rs.dateOrder = DateOrder::DayMonthYear;
    return rs;
}

struct FormatRow {
    const char* name;
    Date value;
    const char16_t* format;
    const char16_t* expected;
};

void checkRows(const FormatRow* begin, const FormatRow* end) {
    for (const FormatRow* r = begin; r != end; ++r)
        EXPECT_EQ(toUtf8(formatDate(r->value, r->format)), toUtf8(r->expected))
            << r->name << ": format \"" << toUtf8(r->format) << "\" on " << r->value.serial;
}

TEST(DateText, HeaderExamples) {
    RegionalScope us(RegionalSettings::usEnglish());
    EXPECT_EQ(formatDate(Date(42006.75), u"dddd, mmmm d, yyyy hh:nn"), u"Friday, January 2, 2015 18:00");
    EXPECT_EQ(formatDate(Date(42006.75), u"mm/dd/yy h:mm AM/PM"), u"01/02/15 6:00 PM");
    EXPECT_EQ(formatDate(Date(42006.75), u"\"Day\" y"), u"Day 2");
    EXPECT_EQ(formatDate(Date(42006.75), vbGeneralDate), u"1/2/2015 6:00:00 PM");
    EXPECT_EQ(formatDate(Date(0.0), vbGeneralDate), u"12:00:00 AM");
    EXPECT_EQ(readDate(u"Jan 2, 2015 6 PM").serial, 42006.75);
    EXPECT_EQ(readDate(u"13/1/2015").serial, 42017.0);
    EXPECT_EQ(readDate(u"2015-01-02").serial, 42006.0);
    EXPECT_EQ(readDate(u"42006.5").serial, 42006.5);
    EXPECT_FAILURE((void)readDate(u"abc"), errTypeMismatch);
}

TEST(DateText, FormatItemsUnderUsEnglish) {
    RegionalScope us(RegionalSettings::usEnglish());
    const Date d = at(2015, 1, 2, 18, 5, 9);
    const FormatRow rows[] = {
        {"short items", d, u"d ddd m mmm y yy", u"2 Fri 1 Jan 2 15"},
        {"24-hour clock without a mark, no leading zeros", d, u"h:n:s", u"18:5:9"},
        {"mm after hh:", d, u"hh:mm", u"18:05"},
        {"m after h", d, u"hm", u"185"},
        {"mm before hh is the month", d, u"mm hh", u"01 18"},
        {"a blank breaks the adjacency", d, u"hh mm", u"18 01"},
        {"fixed host form", d, u"mm/dd/yyyy hh:mm:ss", u"01/02/2015 18:05:09"},
        {"letters in any case", d, u"DDDD, MMMM dd, YYYY", u"Friday, January 02, 2015"},
        {"mixed-case constant", d, u"Hh:Nn:Ss AM/PM", u"06:05:09 PM"},
        {"AM/PM upper", d, u"h:nn AM/PM", u"6:05 PM"},
        {"mark case as written", d, u"h Am/pM", u"6 pM"},
        {"A/P", d, u"h A/P", u"6 P"},
        {"profile marks", d, u"hh:nn ampm", u"06:05 PM"},
        {"midnight on the 12-hour clock", at(2015, 1, 2), u"h:nn AM/PM", u"12:00 AM"},
        {"noon on the 12-hour clock", at(2015, 1, 2, 12), u"h:nn AM/PM", u"12:00 PM"},
        {"quoted literal", d, u"\"Day\" d \"of\" mmmm", u"Day 2 of January"},
        {"unterminated quote", d, u"d \"mmmm", u"2 mmmm"},
        {"backslash escapes", d, u"\\d\\a\\y d\\", u"day 2"},
        {"other characters literal", d, u"dd.mm.yyyy x", u"02.01.2015 x"},
        {"quarter weekday week", d, u"q w ww", u"1 6 1"},
        {"named items", d, u"ddddd|dddddd|ttttt", u"1/2/2015|Friday, January 2, 2015|6:05:09 PM"},
        {"general item", d, u"c", u"1/2/2015 6:05:09 PM"},
        {"empty format is general", d, u"", u"1/2/2015 6:05:09 PM"},
        {"before the zero day", Date(-1.25), u"yyyy-mm-dd hh:nn", u"1899-12-29 06:00"},
        {"1800", Date(-36522.0), u"dddd d mmmm yyyy", u"Wednesday 1 January 1800"},
        {"first date", Date(-657434.0), u"yyyy yy", u"100 00"},
        {"last second", Date(2958465.0 + 86399.0 / 86400.0), u"yyyy-mm-dd hh:nn:ss", u"9999-12-31 23:59:59"},
        // A run of one letter is taken apart into items, the longest first.
        {"seven d", d, u"ddddddd", u"Friday, January 2, 20152"},
        {"seven y", d, u"yyyyyyy", u"2015152"},
        {"five m are a name and a month", d, u"mmmmm", u"January1"},
        {"mmm after h is no minute", d, u"hmmm", u"18Jan"},
        {"m after h and a name is the month", d, u"h:mmmmm", u"18:January1"},
        {"two colons between h and m", d, u"h::m", u"18::5"},
        {"six t", d, u"tttttt", u"6:05:09 PMt"},
        {"twelve-hour clock for every hour", d, u"hhhh AM/PM", u"0606 PM"},
        {"marks twice", d, u"AM/PMa/p", u"PMp"},
    };
    checkRows(std::begin(rows), std::end(rows));
    EXPECT_EQ(formatDate(d, String(1000, u'h')), [] {
        String expected;
        for (int k = 0; k < 500; ++k) expected += u"18";
        return expected;
    }());
    EXPECT_EQ(formatDate(d, u"\"" + String(100000, u'x') + u"\""), String(100000, u'x'));
    EXPECT_FAILURE((void)formatDate(Date(2958466.0), u"yyyy"), errOverflow);
    EXPECT_FAILURE((void)formatDate(Date(-657435.0), u"yyyy"), errOverflow);
}

TEST(DateText, NamedFormatsAndGeneralDate) {
    {
        RegionalScope us(RegionalSettings::usEnglish());
        EXPECT_EQ(formatDate(Date(42006.0), vbGeneralDate), u"1/2/2015");
        EXPECT_EQ(formatDate(Date(0.75), vbGeneralDate), u"6:00:00 PM");
        EXPECT_EQ(formatDate(Date(-0.75), vbGeneralDate), u"6:00:00 PM");  // still the zero day
        EXPECT_EQ(formatDate(Date(-1.0), vbGeneralDate), u"12/29/1899");
        EXPECT_EQ(formatDate(Date(42006.0 + 0.2 / 86400.0), vbGeneralDate), u"1/2/2015");  // rounds to midnight
        EXPECT_EQ(formatDate(at(2015, 1, 2, 18, 5, 9), vbLongDate), u"Friday, January 2, 2015");
        EXPECT_EQ(formatDate(at(2015, 1, 2, 18, 5, 9), vbShortTime), u"6:05 PM");
    }
    RegionalScope df(dayFirst());
    const Date d = at(2015, 1, 2, 18, 5, 9);
    const FormatRow rows[] = {
        {"slash is the profile's separator", d, u"dd/mm/yyyy", u"02.01.2015"},
        {"colon is the profile's separator", d, u"hh:nn", u"18:05"},
        {"short date item", d, u"ddddd", u"02.01.2015"},
        {"long date item", d, u"dddddd", u"Friday, 2. January 2015"},
        {"general", d, u"c", u"02.01.2015 18:05:09"},
        {"general of zero", Date(0.0), u"c", u"00:00:00"},
        {"week counts from Sunday unless told", at(2015, 1, 4), u"w ww", u"1 2"},
    };
    checkRows(std::begin(rows), std::end(rows));
    EXPECT_EQ(formatDate(at(2015, 1, 4), u"w ww", vbMonday), u"7 1");
    EXPECT_EQ(formatDate(at(2016, 1, 1), u"ww", vbMonday, vbFirstFourDays), u"53");
    EXPECT_EQ(formatDate(d, vbLongTime), u"18:05:09");
}

TEST(DateText, LocaleProfilesFromIcu) {
    RegionalScope de(RegionalSettings::fromLocale("de_DE"));
    const Date d = at(2015, 1, 13, 18, 5, 9);
    const String shortText = formatDate(d, vbShortDate);
    EXPECT_EQ(shortText, u"13.01.2015");
    EXPECT_EQ(formatDate(d, u"dddd, d. mmmm yyyy"), u"Dienstag, 13. Januar 2015");
    EXPECT_EQ(formatDate(d, vbLongTime), u"18:05:09");
    EXPECT_EQ(readDate(shortText).serial, 42017.0);
    EXPECT_EQ(readDate(u"13. Januar 2015").serial, 42017.0);
    EXPECT_EQ(readDate(formatDate(d, vbLongDate)).serial, 42017.0);
    EXPECT_EQ(readDate(formatDate(d, vbGeneralDate)), d);
    RegionalScope gb(RegionalSettings::fromLocale("en_GB"));
    EXPECT_EQ(formatDate(d, vbShortDate), u"13/01/2015");
    EXPECT_EQ(readDate(u"1/2/2015").serial, 42036.0);  // 1 February
}

struct ReadRow {
    const char* name;
    const char16_t* text;
    double expected;
};

void checkReads(const ReadRow* begin, const ReadRow* end) {
    for (const ReadRow* r = begin; r != end; ++r) {
        const auto d = tryReadDate(r->text);
        ASSERT_TRUE(d.has_value()) << r->name << ": \"" << toUtf8(r->text) << "\"";
        EXPECT_NEAR(d->serial, r->expected, 1e-9) << r->name << ": \"" << toUtf8(r->text) << "\"";
    }
}

TEST(DateText, ReaderUnderUsEnglish) {
    RegionalScope us(RegionalSettings::usEnglish());
    ClockScope fixed(at(2026, 11, 23, 10, 0, 0));
    const double thisYear13Jan = at(2026, 1, 13).serial;
    const ReadRow rows[] = {
        {"month first", u"1/2/2015", 42006.0},
        {"year first with slashes", u"2015/1/13", 42017.0},
        {"ISO with T", u"2015-01-13T18:00:00", 42017.75},
        {"abbreviated name", u"Jan 13, 2015", 42017.0},
        {"full name, day first", u"13 January 2015", 42017.0},
        {"any case, weekday ignored", u"tuesday, JANUARY 13, 2015", 42017.0},
        {"name and two-digit year", u"january 13 15", 42017.0},
        {"name and year only", u"Jan 2015", 42005.0},
        {"two-digit year 29 is 2029", u"1/13/29", at(2029, 1, 13).serial},
        {"two-digit year 30 is 1930", u"1/13/30", at(1930, 1, 13).serial},
        {"dashes and points", u"1-13-2015", 42017.0},
        {"no year is this year", u"1/13", thisYear13Jan},
        {"name without year", u"13 Jan", thisYear13Jan},
        {"date and time", u"1/2/2015 6:05 PM", at(2015, 1, 2, 18, 5).serial},
        {"time first", u"18:05:09 1/2/2015", at(2015, 1, 2, 18, 5, 9).serial},
        {"time only", u"18:05:09", at(1899, 12, 30, 18, 5, 9).serial},
        {"hour and mark", u"6 PM", 0.75},
        {"12 AM is midnight", u"12:00 AM", 0.0},
        {"12:30 pm", u"12:30 pm", 0.5 + 30.0 / 1440.0},
        {"a negative serial", u" -1.25 ", -1.25},
    };
    checkReads(std::begin(rows), std::end(rows));
    for (const char16_t* bad : {u"", u"   ", u"abc", u"1/2/3/4", u"13/13/2015", u"2/30/2015", u"25:00", u"1:60",
                                u"1/2/2015 xyz", u"3e10", u"Jan Feb 2015", u":", u"1:", u"9999999999/1/1", u"1/1/10000",
                                u"1/2/2015 13:00 AM", u"PM", u"January", u"1/2/2015 #"}) {
        EXPECT_FALSE(tryReadDate(bad).has_value()) << toUtf8(bad);
        EXPECT_FAILURE((void)readDate(bad), errTypeMismatch) << toUtf8(bad);
    }
}

// The reader stops early on texts that can be no date; these are the
// boundaries where stopping early could go wrong.
TEST(DateText, ReaderLimits) {
    RegionalScope us(RegionalSettings::usEnglish());
    ClockScope fixed(at(2026, 11, 23));
    // "1/2/2015" is five parts; trailing separators are read over up to the limit.
    const String date = u"1/2/2015";
    const String atLimit = date + String(MAX_DATE_TEXT_PARTS - 5, u'/');
    EXPECT_EQ(readDate(atLimit).serial, 42006.0);
    EXPECT_FALSE(tryReadDate(atLimit + u"/").has_value());
    EXPECT_FALSE(tryReadDate(date + String(100000, u'/')).has_value());
    String ones;
    for (int k = 0; k < 50000; ++k) ones += u"1 ";
    EXPECT_FALSE(tryReadDate(ones).has_value());
    const ReadRow rows[] = {
        {"the longest names", u"Wednesday, September 30, 2015 11:59:59 PM", at(2015, 9, 30, 23, 59, 59).serial},
        {"weekday names are read over", u"Mon Tue 1/2/2015", 42006.0},
        {"mark straight after the hour", u"1/2/2015 6PM", 42006.75},
        {"nine digits", u"1/2/000002015", 42006.0},
    };
    checkReads(std::begin(rows), std::end(rows));
    for (const char16_t* bad : {u"Septembers 30, 2015", u"1/2/0000002015", u"1/2/2015 6  PM", u"1/2/2015 AM PM 6",
                                u"Jan 2 2015 Feb", u"1/2/2015 6:05 T", u"1/2/2015 x 6 PM", u"1/2/2015 6 :05"})
        EXPECT_FALSE(tryReadDate(bad).has_value()) << toUtf8(bad);
}

TEST(DateText, ReaderUnderDayFirst) {
    RegionalScope df(dayFirst());
    ClockScope fixed(at(2026, 11, 23));
    const ReadRow rows[] = {
        {"day first", u"1.2.2015", 42036.0},
        {"impossible order is swapped", u"1/13/2015", 42017.0},
        {"ISO is year first everywhere", u"2015-01-13", 42017.0},
        {"decimal comma number is a serial", u"2,5", 2.5},
        {"a point is a date separator here", u"2.5", at(2026, 5, 2).serial},
        {"long date text", u"Tuesday, 13. January 2015", 42017.0},
    };
    checkReads(std::begin(rows), std::end(rows));
}

TEST(DateText, RoundTripsFormatThenRead) {
    for (const RegionalSettings& profile : {RegionalSettings::usEnglish(), dayFirst()}) {
        RegionalScope scope(profile);
        const char16_t* format =
            profile.dateOrder == DateOrder::DayMonthYear ? u"dd/mm/yyyy hh:nn:ss" : u"mm/dd/yyyy hh:nn:ss";
        for (double s = -657434.0; s < 2958465.0; s += 7919.123) {
            const Date d(s);
            const String text = formatDate(d, format);
            EXPECT_EQ(calendar::totalSeconds(readDate(text)), calendar::totalSeconds(d)) << toUtf8(text);
            for (VbDateTimeFormat named : {vbGeneralDate, vbLongDate, vbShortDate}) {
                const String namedText = formatDate(d, named);
                EXPECT_EQ(formatDate(readDate(namedText), named), namedText);
            }
        }
    }
}

TEST(DateText, FormatValuePassesNonDatesThrough) {
    RegionalScope us(RegionalSettings::usEnglish());
    EXPECT_EQ(formatValue(Variant(u"not a date"), u"yyyy"), u"not a date");
    EXPECT_EQ(formatValue(Variant(u"1/2/2015"), u"yyyy-mm-dd"), u"2015-01-02");
    EXPECT_EQ(formatValue(Variant(42006.0), u"yyyy"), u"2015");
    EXPECT_EQ(formatValue(Variant(), u"yyyy"), u"");
    EXPECT_EQ(formatValue(Variant(), vbShortDate), u"12/30/1899");
    EXPECT_FAILURE((void)formatValue(Variant(u"not a date"), vbShortDate), errTypeMismatch);
    EXPECT_FAILURE((void)formatValue(Variant(1e10), u"yyyy"), errOverflow);
}

}  // namespace
}  // namespace quillet
