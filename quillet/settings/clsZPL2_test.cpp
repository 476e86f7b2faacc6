#include "quillet/settings/clsZPL2.h"

#include <gtest/gtest.h>

#include "quillet_test.h"

namespace quillet {
namespace {

// The golden text, the round trip and the reader's defaults of every record
// are in Persistable_test.cpp; here the reading of whole numbers and
// Booleans that every table-driven record shares.
TEST(clsZPL2, HostileValuesRoundOrKeepTheField) {
    clsZPL2 z;
    z.setPauseInterval(7);
    z.setTopAdjustment(7);
    z.readObject(
        Variant(u"<ZPL2PauseInterval>99999999999</ZPL2PauseInterval>"  // beyond a Long: field kept
                u"<ZPL2TopAdjustment>-1e308</ZPL2TopAdjustment>"       // likewise
                u"<ZPL2CutterInterval>2.5</ZPL2CutterInterval>"        // half-to-even
                u"<ZPL2TearOffAdjustment>3.5</ZPL2TearOffAdjustment>"
                u"<ZPL2PageMode>&H10</ZPL2PageMode>"  // the numeric prefix reads hex
                u"<ZPL2PrintMode>abc</ZPL2PrintMode>"
                u"<ZPL2BackfeedPercentage>250</ZPL2BackfeedPercentage>"  // no limit to 0..100
                u"<ZPL2PauseAfterCut> yes </ZPL2PauseAfterCut>"));
    EXPECT_EQ(z.getPauseInterval(), 7);
    EXPECT_EQ(z.getTopAdjustment(), 7);
    EXPECT_EQ(z.getCutterInterval(), 2);
    EXPECT_EQ(z.getTearOffAdjustment(), 4);
    EXPECT_EQ(z.getPageMode(), 16);
    EXPECT_EQ(z.getPrintMode(), 0);
    EXPECT_EQ(z.getBackfeedPercentage(), 250);
    EXPECT_EQ(z.getPauseAfterCut(), True);
    z.readObject(Variant(u"<ZPL2PauseAfterCut>1</ZPL2PauseAfterCut>"));  // no Boolean word: the default
    EXPECT_EQ(z.getPauseAfterCut(), False);

    // The extremes of a Long come back.
    z.setTopAdjustment(-2147483647 - 1);
    z.setTearOffAdjustment(2147483647);
    clsZPL2 back;
    back.readObject(z.writeObject());
    EXPECT_EQ(back.getTopAdjustment(), -2147483647 - 1);
    EXPECT_EQ(back.getTearOffAdjustment(), 2147483647);
}

}  // namespace
}  // namespace quillet
