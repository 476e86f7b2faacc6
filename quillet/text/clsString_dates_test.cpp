#include <gtest/gtest.h>

#include "quillet/frame/Calendar.h"
#include "quillet/frame/RegionalSettings.h"
#include "quillet/frame/utf8.h"
#include "quillet/text/clsString.h"

namespace quillet {
namespace {

RegionalSettings dayFirstWithPoints() {
    RegionalSettings rs = RegionalSettings::usEnglish();
    rs.dateSeparator = u".";
    rs.shortDatePattern = u"dd.MM.yyyy";
    rs.longTimePattern = u"HH:mm:ss";
    rs.dateOrder = DateOrder::DayMonthYear;
    return rs;
}

TEST(clsStringDates, FixedFormWithRegionalSeparators) {
    const clsString s;
    const Date d = calendar::fromParts({2015, 1, 2, 18, 5, 9});
    {
        RegionalScope us(RegionalSettings::usEnglish());
        EXPECT_EQ(s.dateToString(d), u"01/02/2015 18:05:09");
        EXPECT_EQ(s.dateToString(Date(0.0)), u"12/30/1899 00:00:00");
        EXPECT_EQ(s.dateToString(Date(-1.25)), u"12/29/1899 06:00:00");
        EXPECT_EQ(s.stringToDate(u" 1/2/2015 6:05:09 PM "), d);
    }
    RegionalScope df(dayFirstWithPoints());
    // Month first even here; only the separators follow the profile.
    EXPECT_EQ(s.dateToString(d), u"01.02.2015 18:05:09");
}

TEST(clsStringDates, RoundTripsUnderBothOrders) {
    const clsString s;
    for (const RegionalSettings& profile : {RegionalSettings::usEnglish(), dayFirstWithPoints()}) {
        RegionalScope scope(profile);
        for (double serial = -36522.0; serial < 402133.0; serial += 1234.56789) {
            const Date d(serial);
            const String text = s.dateToString(d);
            EXPECT_EQ(calendar::totalSeconds(s.stringToDate(text)), calendar::totalSeconds(d)) << toUtf8(text);
        }
    }
}

TEST(clsStringDates, NoDateGivesDateZeroAndDayFirstTextsSwap) {
    const clsString s;
    RegionalScope us(RegionalSettings::usEnglish());
    EXPECT_EQ(s.stringToDate(u""), Date(0.0));
    EXPECT_EQ(s.stringToDate(u"abc"), Date(0.0));
    EXPECT_EQ(s.stringToDate(u"2/30/2015"), Date(0.0));
    EXPECT_EQ(s.stringToDate(u"42006"), Date(42006.0));
    EXPECT_EQ(s.stringToDate(u"1/2/2015" + String(100000, u'/')), Date(0.0));  // far too many parts
    RegionalScope df(dayFirstWithPoints());
    // A text typed day first is rewritten month first and read day first
    // again, so 1 February comes back as 2 January: the two members are no
    // inverses of a typed text.
    EXPECT_EQ(s.stringToDate(u"1.2.2015"), Date(42006.0));
    EXPECT_EQ(s.stringToDate(u"13.1.2015"), Date(42017.0));
}

}  // namespace
}  // namespace quillet
