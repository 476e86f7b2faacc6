#include "quillet/labeldata/clsConstants.h"

#include <gtest/gtest.h>

#include "quillet/labeldata/clsOptionsBarcode.h"
#include "quillet/labeldata/clsUccAISpec.h"

namespace quillet {
namespace {

TEST(clsConstants, UnsignedAndByteLimitsAreDoublesInAVariant) {
    const clsConstants c;
    for (const Variant& v : {c.MAX_UNSIGNED_INTEGER_DATA_TYPE_VALUE(), c.MAX_UNSIGNED_LONG_DATA_TYPE_VALUE(),
                             c.MAX_BYTE_DATA_TYPE_VALUE(), c.MIN_BYTE_DATA_TYPE_VALUE()})
        EXPECT_EQ(v.kind(), vbDouble);
    EXPECT_EQ(c.MAX_UNSIGNED_LONG_DATA_TYPE_VALUE(), Variant(4294967295.0));
    EXPECT_EQ(c.MIN_LONG_DATA_TYPE_VALUE(), -2147483647 - 1);
    EXPECT_EQ(c.MIN_INTEGER_DATA_TYPE_VALUE(), -32768);
}

// The classes write their defaults out again; they must agree with the constants.
TEST(clsConstants, DefaultsAgreeWithNewObjects) {
    const clsConstants c;
    const clsOptionsBarcode bc;
    EXPECT_EQ(bc.getSymbology(), c.DEFAULT_BARCODE_SYMBOLOGY());
    EXPECT_EQ(bc.getFontName(), c.DEFAULT_FONT_NAME());
    EXPECT_EQ(bc.getFontSize(), c.DEFAULT_FONT_SIZE());
    EXPECT_EQ(bc.getBarRatio(), c.DEFAULT_BAR_RATIO());
    EXPECT_EQ(bc.getBarWidth(), c.DEFAULT_BAR_WIDTH());
    EXPECT_EQ(bc.getBarReduction(), c.DEFAULT_BAR_REDUCTION());
    EXPECT_EQ(bc.getAI(), c.DEFAULT_UCC128_APPLICATION_CODE());
    const clsUccAISpec ai;
    EXPECT_EQ(ai.getDescription(), c.DEFAULT_UCC128_APPLICATION_DESCRIPTION());
    EXPECT_EQ(ai.getMinLen(), c.DEFAULT_UCC128_DATA_FORMAT_MIN_LENGTH());
    EXPECT_EQ(ai.getMaxLen(), c.DEFAULT_UCC128_DATA_FORMAT_MAX_LENGTH());
    EXPECT_EQ(ai.getHasPredefinedLength(), c.DEFAULT_UCC128_HAS_PREDEFINED_LENGTH());
}

}  // namespace
}  // namespace quillet
