#include "quillet/frame/NumberScan.h"

#include <gtest/gtest.h>

#include "quillet/frame/RegionalSettings.h"
#include "quillet/frame/utf8.h"

namespace quillet {
namespace {

using enum NumberScanStatus;

// The header's examples, with where reading stopped: the date reader and the
// tag buffer go on from there.
TEST(NumberScan, HeaderExamplesWithTheirEnds) {
    RegionalScope us(RegionalSettings::usEnglish());
    struct Row {
        const char16_t* text;
        const NumberScanOptions* options;
        NumberScanStatus status;
        double value;
        std::size_t end;
    };
    const Row rows[] = {
        {u"12.5kg", &PREFIX_SCAN, Number, 12.5, 4},
        {u"1 000", &PREFIX_SCAN, Number, 1000, 5},
        {u"1e", &PREFIX_SCAN, Number, 1, 1},
        {u"1e-x", &PREFIX_SCAN, Number, 1, 1},
        {u"1 e 3x", &PREFIX_SCAN, Number, 1000, 5},
        {u"1e - 3", &PREFIX_SCAN, Number, 0.001, 6},
        {u"abc", &PREFIX_SCAN, NoNumber, 0, 0},
        {u"&HFFFF", &PREFIX_SCAN, Number, -1, 6},
        {u"&O19", &PREFIX_SCAN, Number, 1, 3},
        {u"1e400", &PREFIX_SCAN, OutOfRange, 0, 5},
        {u"1e-400", &PREFIX_SCAN, Number, 0, 6},
        {u" 2.5 ", &STRICT_SCAN, Number, 2.5, 5},
        {u"2.5kg", &STRICT_SCAN, NoNumber, 0, 3},
        {u"1 000", &STRICT_SCAN, NoNumber, 0, 1},
        {u"&H123456789", &STRICT_SCAN, OutOfRange, 0, 11},
        {u"&H12345678x", &STRICT_SCAN, NoNumber, 0, 10},
        {u"-&H5", &PREFIX_SCAN, NoNumber, 0, 1},
    };
    for (const Row& r : rows) {
        const NumberScan scan = scanNumber(r.text, *r.options);
        EXPECT_EQ(scan.status, r.status) << toUtf8(r.text);
        EXPECT_EQ(scan.value, r.value) << toUtf8(r.text);
        EXPECT_EQ(scan.end, r.end) << toUtf8(r.text);
    }
    RegionalScope de(RegionalSettings::fromLocale("de_DE"));
    EXPECT_EQ(scanNumber(u"2,5", STRICT_SCAN).value, 2.5);
    EXPECT_EQ(scanNumber(u"2,5", PREFIX_SCAN).value, 2.0);  // the prefix keeps the point
}

// Each option on its own changes what is read.
TEST(NumberScan, OptionsTurnFormsOff) {
    NumberScanOptions plain = PREFIX_SCAN;
    plain.exponent = false;
    plain.radix = false;
    EXPECT_EQ(scanNumber(u"1e3", plain).value, 1);
    EXPECT_EQ(scanNumber(u"&HFF", plain).status, NoNumber);
    plain.blank = nullptr;
    EXPECT_EQ(scanNumber(u"1 000", plain).value, 1);
    EXPECT_EQ(scanNumber(u" 1", plain).status, NoNumber);
    plain.blank = chars::isDateBlank;  // a no-break space is a date blank, not a number blank
    EXPECT_EQ(scanNumber(u"\u00A01\u00A02", plain).value, 12);
    plain.wholeText = true;
    EXPECT_EQ(scanNumber(u"12\u00A0", plain).value, 12);
    EXPECT_EQ(scanNumber(u"12/", plain).status, NoNumber);
}

TEST(NumberScan, DigitRunsStopOnePastTheCap) {
    DigitRun run = scanDigits(u"2015/1/2", 0, 9);
    EXPECT_EQ(run.value, 2015u);
    EXPECT_EQ(run.digits, 4);
    EXPECT_EQ(run.end, 4u);
    run = scanDigits(u"x12", 1, 9);
    EXPECT_EQ(run.value, 12u);
    EXPECT_EQ(run.end, 3u);
    run = scanDigits(u"abc", 0, 9);
    EXPECT_EQ(run.digits, 0);
    EXPECT_EQ(run.end, 0u);
    EXPECT_FALSE(run.tooLong);

    run = scanDigits(u"2147483647>", 0, 10);  // exactly the cap
    EXPECT_FALSE(run.tooLong);
    EXPECT_EQ(run.value, 2147483647u);
    run = scanDigits(u"12345678901>", 0, 10);
    EXPECT_TRUE(run.tooLong);
    EXPECT_EQ(run.end, 11u);

    // A cap above what 64 bits hold is lowered, so the value never wraps.
    const String many(1'000'000, u'9');
    run = scanDigits(many, 0, 1000);
    EXPECT_TRUE(run.tooLong);
    EXPECT_EQ(run.end, static_cast<std::size_t>(MAX_DIGIT_RUN) + 1);
    run = scanDigits(String(MAX_DIGIT_RUN, u'9'), 0, 1000);
    EXPECT_EQ(run.value, 9999999999999999999u);
}

}  // namespace
}  // namespace quillet
