#include "quillet/settings/clsZPL2.h"

#include <gtest/gtest.h>

#include "quillet_test.h"

#include <memory>

#include "quillet/frame/utf8.h"

namespace quillet {
namespace {

// A fresh object's text, with its print orientation (bottom first, 1).
std::string freshText(const char* orientation = "1") {
    return std::string(
               "<AdvancedPrinterSettingsZPL2><ZPL2PrintMode>0</ZPL2PrintMode>\r\n"
               "<ZPL2PageMode>0</ZPL2PageMode>\r\n"
               "<ZPL2PrintSpeed>1</ZPL2PrintSpeed>\r\n"
               "<ZPL2SlewSpeed>1</ZPL2SlewSpeed>\r\n"
               "<ZPL2BackfeedSpeed>1</ZPL2BackfeedSpeed>\r\n"
               "<ZPL2PrintDarkness>1</ZPL2PrintDarkness>\r\n"
               "<ZPL2PrintOrientation>") +
           orientation +
           "</ZPL2PrintOrientation>\r\n"
           "<ZPL2FeedMode>0</ZPL2FeedMode>\r\n"
           "<ZPL2PauseAfterCut>False</ZPL2PauseAfterCut>\r\n"
           "<ZPL2PauseMode>0</ZPL2PauseMode>\r\n"
           "<ZPL2PauseInterval>0</ZPL2PauseInterval>\r\n"
           "<ZPL2CutterMode>1</ZPL2CutterMode>\r\n"
           "<ZPL2CutterInterval>1</ZPL2CutterInterval>\r\n"
           "<ZPL2BackfeedMode>0</ZPL2BackfeedMode>\r\n"
           "<ZPL2BackfeedPercentage>0</ZPL2BackfeedPercentage>\r\n"
           "<ZPL2TopAdjustment>0</ZPL2TopAdjustment>\r\n"
           "<ZPL2TearOffAdjustment>0</ZPL2TearOffAdjustment>\r\n"
           "</AdvancedPrinterSettingsZPL2>\r\n";
}

std::shared_ptr<clsZPL2> changedObject() {
    auto z = std::make_shared<clsZPL2>();
    z->setPrintMode(QLT_THERMAL_PRINT_MODE_THERMAL_TRANSFER);
    z->setPageMode(QLT_ZPL2_PAGE_MODE_CONTINUOUS);
    z->setPrintSpeed(QLT_PRINT_SPEED_FAST);
    z->setSlewSpeed(QLT_PRINT_SPEED_SLOW);
    z->setBackfeedSpeed(QLT_PRINT_SPEED_FAST);
    z->setPrintDarkness(QLT_PRINT_DARKNESS_DARK);
    z->setPrintOrientation(QLT_PRINT_ORIENTATION_TOP_FIRST);
    z->setFeedMode(QLT_ZPL2_FEED_MODE_REWIND);
    z->setPauseAfterCut(True);
    z->setPauseMode(QLT_ZPL2_PAUSE_AFTER_SPECIFIED_INTERVAL);
    z->setPauseInterval(25);
    z->setCutterMode(QLT_THERMAL_CUTTER_AFTER_BATCH);
    z->setCutterInterval(3);
    z->setBackfeedMode(QLT_ZPL2_BACKFEED_PERCENTAGE);
    z->setBackfeedPercentage(250);  // no limit to 0..100
    z->setTopAdjustment(-2147483647 - 1);
    z->setTearOffAdjustment(2147483647);
    return z;
}

TEST(clsZPL2, FreshAndChangedObjectsRoundTrip) {
    clsZPL2 fresh;
    EXPECT_EQ(fresh.getSaveTag(), u"AdvancedPrinterSettingsZPL2");
    EXPECT_EQ(fresh.getPrintOrientation(), QLT_PRINT_ORIENTATION_BOTTOM_FIRST);
    EXPECT_EQ(savedText(fresh.writeObject()), freshText());

    const Variant saved = changedObject()->writeObject();
    // The file order puts pause after cut before the pause mode.
    EXPECT_NE(savedText(saved).find("<ZPL2PauseAfterCut>True</ZPL2PauseAfterCut>\r\n<ZPL2PauseMode>3</ZPL2PauseMode>"),
              std::string::npos);
    clsZPL2 back;
    back.readObject(saved);
    EXPECT_EQ(savedText(back.writeObject()), savedText(saved));
    EXPECT_EQ(back.getBackfeedPercentage(), 250);

    // Every tag present: the orientation comes back as 1 too.
    back.readObject(fresh.writeObject());
    EXPECT_EQ(savedText(back.writeObject()), freshText());
}

TEST(clsZPL2, AbsentTagsGiveTheReadersDefaultsWhereOrientationIsTopFirst) {
    for (const Variant& empty : {Variant(), Variant(u""), Variant::null(), Variant(u"garbage <ZPL2PrintMode>")}) {
        const auto z = changedObject();
        z->readObject(empty);
        EXPECT_EQ(savedText(z->writeObject()), freshText("0"));
    }
    // A short buffer: tags present are read, the rest get their reader's
    // default, not the value they held.
    const auto z = changedObject();
    z->readObject(
        Variant(u"<AdvancedPrinterSettingsZPL2><ZPL2PrintSpeed>2</ZPL2PrintSpeed>\r\n"
                u"<ZPL2PauseAfterCut> yes </ZPL2PauseAfterCut>\r\n</AdvancedPrinterSettingsZPL2>\r\n"));
    EXPECT_EQ(z->getPrintSpeed(), QLT_PRINT_SPEED_FAST);
    EXPECT_EQ(z->getPauseAfterCut(), True);
    EXPECT_EQ(z->getPrintOrientation(), QLT_PRINT_ORIENTATION_TOP_FIRST);
    EXPECT_EQ(z->getCutterMode(), QLT_THERMAL_CUTTER_AFTER_EACH_LABEL);
    EXPECT_EQ(z->getBackfeedPercentage(), 0);
}

TEST(clsZPL2, HostileValuesNeverThrow) {
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
                u"<ZPL2PauseAfterCut>1</ZPL2PauseAfterCut>"));  // no Boolean word: default
    EXPECT_EQ(z.getPauseInterval(), 7);
    EXPECT_EQ(z.getTopAdjustment(), 7);
    EXPECT_EQ(z.getCutterInterval(), 2);
    EXPECT_EQ(z.getTearOffAdjustment(), 4);
    EXPECT_EQ(z.getPageMode(), 16);
    EXPECT_EQ(z.getPrintMode(), 0);
    EXPECT_EQ(z.getPauseAfterCut(), False);
}

TEST(clsZPL2, AssignObjectCopiesAndNothingChangesNothing) {
    auto source = changedObject();
    clsZPL2 target;
    target.assignObject(source);
    EXPECT_EQ(savedText(target.writeObject()), savedText(source->writeObject()));
    std::shared_ptr<clsZPL2> nothing;
    clsZPL2 fresh;
    fresh.assignObject(nothing);
    EXPECT_EQ(savedText(fresh.writeObject()), freshText());
}

}  // namespace
}  // namespace quillet
