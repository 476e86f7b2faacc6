#include "quillet/frame/NumberText.h"

#include <gtest/gtest.h>

#include "quillet_test.h"

#include <cmath>
#include <limits>

#include "quillet/frame/Failure.h"
#include "quillet/frame/RegionalSettings.h"
#include "quillet/frame/utf8.h"

namespace quillet {
namespace {

TEST(NumberText, HeaderExamples) {
    RegionalScope us(RegionalSettings::usEnglish());
    EXPECT_EQ(numberText(2345.0), u"2345");
    EXPECT_EQ(numberText(0.1 + 0.2), u"0.3");
    EXPECT_EQ(numberText(-2.5e-300), u"-2.5E-300");
    EXPECT_EQ(numberText(Single{0.1f}), u"0.1");
    EXPECT_EQ(numberText(Long{-7}), u"-7");
    EXPECT_EQ(numberText(Integer{-32768}), u"-32768");
    EXPECT_EQ(numberText(Byte{255}), u"255");
    EXPECT_EQ(numberText(Long{-2147483647 - 1}), u"-2147483648");
}

// Texts the original platform writes for these values.
TEST(NumberText, DoubleAndSingleRowsFromTheOriginalPlatform) {
    RegionalScope us(RegionalSettings::usEnglish());
    struct Row {
        const char* shows;
        double value;
        const char16_t* expected;
    };
    const Row rows[] = {
        {"15 digits stay plain", 123456789012345.0, u"123456789012345"},
        {"1e15 switches to exponent form", 1e15, u"1E+15"},
        {"16 digits round to 15", 1234567890123456.0, u"1.23456789012346E+15"},
        {"rounding up carries into the exponent", 999999999999999.9, u"1E+15"},
        {"1e-4 stays plain", 0.0001, u"0.0001"},
        {"1e-5 uses the exponent", 0.00001, u"1E-05"},
        {"one third", 1.0 / 3.0, u"0.333333333333333"},
        {"two thirds rounds the last digit", 2.0 / 3.0, u"0.666666666666667"},
        {"small with a fraction", 1.5e-10, u"1.5E-10"},
        {"three-digit exponent", 1.7976931348623157e308, u"1.79769313486232E+308"},
        {"smallest normal", 2.2250738585072014e-308, u"2.2250738585072E-308"},
        {"smallest denormal", std::numeric_limits<double>::denorm_min(), u"4.94065645841247E-324"},
        {"negative zero", -0.0, u"0"},
        {"many fraction digits", 0.000123456789012345, u"0.000123456789012345"},
    };
    for (const Row& r : rows) EXPECT_EQ(numberText(r.value), r.expected) << r.shows;

    EXPECT_EQ(numberText(Single{1.0f / 3.0f}), u"0.3333333");
    EXPECT_EQ(numberText(Single{16777216.0f}), u"1.677722E+07");
    EXPECT_EQ(numberText(Single{-1.5e-6f}), u"-1.5E-06");
}

TEST(NumberText, NumericPrefixRows) {
    struct Row {
        const char16_t* text;
        double expected;
    };
    const Row rows[] = {
        {u"1,5", 1},
        {u"\t1\n2 3", 123},
        {u"-  5", -5},
        {u"+7", 7},
        {u"-.5x", -0.5},
        {u"5.", 5},
        {u"1e3", 1000},
        {u"1D2", 100},
        {u"1d-2", 0.01},
        {u"1.2.3", 1.2},
        {u"", 0},
        {u"-", 0},
        {u".", 0},
        {u"+-5", 0},
        {u"&HFF", 255},
        {u"&H8000", -32768},
        {u"&H10000", 65536},
        {u"&HFFFFFFFF", -1},
        {u"&H7FFFFFFF", 2147483647},
        {u"&H123456789", 0},
        {u"&O17", 15},
        {u"&H", 0},
        {u"&", 0},
        {u"  &H F", 15},
        {u"1e0000000000000000000005", 1e5},
        {u"\r5", 0},
        {u"\x0665", 0},
        {u"1234567890123456789", 1234567890123456789.0},
        {u"1e99999999999999999999", 0},
    };
    for (const Row& r : rows) EXPECT_EQ(numericPrefix(r.text), r.expected) << toUtf8(r.text);

    // A long text of digits neither crashes nor takes long; beyond the range
    // of Double it reads as 0.
    const String digits(1 << 20, u'7');
    EXPECT_EQ(numericPrefix(digits), 0.0);
    const String tiny = u"0." + String(1 << 20, u'0') + u"1";
    EXPECT_EQ(numericPrefix(tiny), 0.0);
    const String third = u"0." + String(1 << 20, u'3');
    EXPECT_DOUBLE_EQ(numericPrefix(third), 1.0 / 3.0);
}

TEST(NumberText, StrictConversion) {
    RegionalScope us(RegionalSettings::usEnglish());
    EXPECT_EQ(parseNumber(u"\t-1e3"), -1000);
    EXPECT_EQ(parseNumber(u"&HFFFF"), -1);
    EXPECT_EQ(parseNumber(u"1e-400"), 0.0);  // too small is zero, not a failure
    EXPECT_EQ(parseNumber(u"0." + String(400, u'0') + u"1"), 0.0);
    EXPECT_EQ(parseNumber(u"1e0000000000000000000000000000000000000000000000000000000000000000000005"), 1e5);

    for (const char16_t* bad :
         {u"", u"  ", u"2.5kg", u"1 000", u"1,5", u"1e", u"e5", u"-", u"&H", u"&HG", u"1.2.3", u"&", u"12 "}) {
        if (StringView(bad) == u"12 ") {
            EXPECT_EQ(parseNumber(bad), 12);  // trailing blanks are allowed
            continue;
        }
        EXPECT_FALSE(tryParseNumber(bad).has_value()) << toUtf8(bad);
        EXPECT_FAILURE((void)parseNumber(bad), errTypeMismatch) << toUtf8(bad);
    }
    for (const char16_t* huge : {u"1e400", u"&H123456789"}) EXPECT_FAILURE((void)parseNumber(huge), errOverflow);
}

// Numbers are written with the regional separator and read back by the
// numeric prefix with the point only; strict conversion reads the regional form.
TEST(NumberText, DecimalCommaProfileIsAsymmetric) {
    RegionalScope de(RegionalSettings::fromLocale("de_DE"));
    EXPECT_EQ(numberText(1.5), u"1,5");
    EXPECT_EQ(numberText(-1.5e-10), u"-1,5E-10");
    EXPECT_EQ(numberText(Single{0.25f}), u"0,25");
    EXPECT_EQ(numericPrefix(numberText(1.5)), 1.0);
    EXPECT_EQ(numericPrefix(u"1.5"), 1.5);
    EXPECT_EQ(parseNumber(u"1,5"), 1.5);
    EXPECT_FALSE(tryParseNumber(u"2.5").has_value());
}

TEST(NumberText, RoundTripsUnderEachProfile) {
    const double values[] = {0.1,
                             -123.456,
                             1.0 / 7.0,
                             6.02214076e23,
                             1.602176634e-19,
                             9007199254740993.0,
                             1.7976931348623e308,
                             std::numeric_limits<double>::denorm_min()};
    for (const char* locale : {"en_US", "de_DE", "fr_FR"}) {
        RegionalScope scope(RegionalSettings::fromLocale(locale));
        for (double v : values) {
            const String text = numberText(v);
            const double back = parseNumber(text);
            // 15 significant digits survive the trip.
            EXPECT_EQ(numberText(back), text) << locale << " " << toUtf8(text);
            EXPECT_NEAR(back, v, std::fabs(v) * 1e-14) << locale << " " << toUtf8(text);
        }
    }
    // The largest Double rounds up to 15 digits, past the range, so its own
    // text does not read back.
    RegionalScope us(RegionalSettings::usEnglish());
    EXPECT_FAILURE((void)parseNumber(numberText(std::numeric_limits<double>::max())), errOverflow);
}

}  // namespace
}  // namespace quillet
