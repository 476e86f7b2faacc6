#include "quillet/frame/checked.h"

#include <gtest/gtest.h>

#include "quillet_test.h"

#include <limits>

namespace quillet {
namespace {

TEST(Checked, WholeNumberArithmeticFailsAtBothEndsOfLongAndInteger) {
    constexpr Long lmax = std::numeric_limits<Long>::max();
    constexpr Long lmin = std::numeric_limits<Long>::min();
    EXPECT_EQ(checked::add(lmax - 1, Long{1}), lmax);
    EXPECT_FAILURE((void)checked::add(lmax, Long{1}), errOverflow);
    EXPECT_FAILURE((void)checked::sub(lmin, Long{1}), errOverflow);
    EXPECT_EQ(checked::sub(lmin + 1, Long{1}), lmin);
    EXPECT_FAILURE((void)checked::mul(Long{65536}, Long{32768}), errOverflow);
    EXPECT_EQ(checked::mul(Long{-65536}, Long{32768}), lmin);
    EXPECT_FAILURE((void)checked::neg(lmin), errOverflow);

    constexpr Integer imax = 32767, imin = -32768;
    EXPECT_FAILURE((void)checked::add(imax, Integer{1}), errOverflow);
    EXPECT_FAILURE((void)checked::sub(imin, Integer{1}), errOverflow);
    EXPECT_FAILURE((void)checked::mul(Integer{256}, Integer{128}), errOverflow);
    EXPECT_EQ(checked::mul(Integer{-256}, Integer{128}), imin);
    EXPECT_FAILURE((void)checked::sub(Byte{0}, Byte{1}), errOverflow);
}

TEST(Checked, DivisionTruncatesAndFailsOnZeroAndSmallestByMinusOne) {
    EXPECT_EQ(checked::div(Long{7}, Long{2}), 3);
    EXPECT_EQ(checked::div(Long{-7}, Long{2}), -3);
    EXPECT_FAILURE((void)checked::div(Long{7}, Long{0}), errDivisionByZero);
    EXPECT_FAILURE((void)checked::div(std::numeric_limits<Long>::min(), Long{-1}), errOverflow);
    EXPECT_FAILURE((void)checked::div(Integer{-32768}, Integer{-1}), errOverflow);
    EXPECT_EQ(checked::mod(std::numeric_limits<Long>::min(), Long{-1}), 0);
    EXPECT_EQ(checked::mod(Long{-7}, Long{2}), -1);
    EXPECT_FAILURE((void)checked::mod(Long{1}, Long{0}), errDivisionByZero);

    EXPECT_EQ(checked::divide(1.0, 4.0), 0.25);
    EXPECT_FAILURE((void)checked::divide(1.0, 0.0), errDivisionByZero);
    EXPECT_FAILURE((void)checked::divide(0.0, 0.0), errOverflow);
    EXPECT_FAILURE((void)checked::divide(1e308, 1e-308), errOverflow);
    EXPECT_FAILURE((void)checked::real(std::numeric_limits<double>::quiet_NaN()), errInvalidCall);
}

TEST(Checked, HalfToEvenAtTiesAndAtTheRangeLimits) {
    struct Row {
        double in;
        double out;
    } rows[] = {
        {0.5, 0},   {1.5, 2},      {2.5, 2}, {-0.5, -0}, {-2.5, -2}, {0.49999999999999994, 0}, {2.5000000000000004, 3},
        {-2.6, -3}, {1e300, 1e300}};
    for (const Row& r : rows) EXPECT_EQ(roundHalfEven(r.in), r.out) << "input " << r.in;

    EXPECT_EQ(toLong(2147483647.4), 2147483647);
    EXPECT_EQ(toLong(2147483646.5), 2147483646);              // tie to even stays inside
    EXPECT_FAILURE((void)toLong(2147483647.5), errOverflow);  // rounds to 2^31
    EXPECT_EQ(toLong(-2147483648.5), -2147483648);            // tie to even, inside
    EXPECT_FAILURE((void)toLong(-2147483649.0), errOverflow);
    EXPECT_EQ(toInteger(32766.5), 32766);
    EXPECT_FAILURE((void)toInteger(32767.5), errOverflow);
    EXPECT_EQ(toInteger(-32768.5), -32768);
    EXPECT_EQ(toByte(255.4), 255);
    EXPECT_EQ(toByte(-0.5), 0);  // rounds to 0, which fits
    EXPECT_FAILURE((void)toByte(-0.6), errOverflow);
    EXPECT_FAILURE((void)toByte(255.5), errOverflow);
    EXPECT_FAILURE((void)toLong(std::numeric_limits<double>::quiet_NaN()), errOverflow);
    EXPECT_FAILURE((void)toSingle(1e39), errOverflow);

    // 0.125 and 0.375 are exact in binary, so these are true ties.
    EXPECT_DOUBLE_EQ(roundHalfEven(0.125, 2), 0.12);
    EXPECT_DOUBLE_EQ(roundHalfEven(0.375, 2), 0.38);
    EXPECT_DOUBLE_EQ(roundHalfEven(-2.25, 1), -2.2);
    EXPECT_FAILURE((void)roundHalfEven(1.0, -1), errInvalidCall);
}

}  // namespace
}  // namespace quillet
