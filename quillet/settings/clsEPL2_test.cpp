#include "quillet/settings/clsEPL2.h"

#include <gtest/gtest.h>

#include "quillet_test.h"

#include <memory>

#include "quillet/frame/utf8.h"

namespace quillet {
namespace {

constexpr const char* FRESH_TEXT =
    "<AdvancedPrinterSettingsEPL2><EPL2PrintMode>0</EPL2PrintMode>\r\n"
    "<EPL2PageMode>0</EPL2PageMode>\r\n"
    "<EPL2GapHeight>125</EPL2GapHeight>\r\n"
    "<EPL2PrintSpeed>1</EPL2PrintSpeed>\r\n"
    "<EPL2PrintDarkness>1</EPL2PrintDarkness>\r\n"
    "<EPL2PrintOrientation>0</EPL2PrintOrientation>\r\n"
    "<EPL2CutterMode>0</EPL2CutterMode>\r\n"
    "<EPL2TapToPrint>False</EPL2TapToPrint>\r\n"
    "<EPL2TopOfFormBackup>True</EPL2TopOfFormBackup>\r\n"
    "<EPL2GapOffset>0</EPL2GapOffset>\r\n"
    "<EPL2MarkHeight>125</EPL2MarkHeight>\r\n"
    "<EPL2MarkOffset>125</EPL2MarkOffset>\r\n"
    "<EPL2CutterInterval>1</EPL2CutterInterval>\r\n"
    "<EPL2CutPosition>500</EPL2CutPosition>\r\n"
    "<EPL2ExtraFeed>0</EPL2ExtraFeed>\r\n"
    "</AdvancedPrinterSettingsEPL2>\r\n";

std::shared_ptr<clsEPL2> changedObject() {
    auto e = std::make_shared<clsEPL2>();
    e->setGapOffset(3);
    e->setMarkHeight(90);
    e->setMarkOffset(-5);
    e->setCutterInterval(10);
    e->setCutPosition(480);
    e->setExtraFeed(24);
    e->setPrintMode(QLT_THERMAL_PRINT_MODE_THERMAL_TRANSFER);
    e->setPageMode(QLT_EPL2_PAGE_MODE_MARK_SENSING);
    e->setPrintSpeed(qltThermalPrintSpeed(7));  // no check: kept as it stands
    e->setPrintDarkness(QLT_PRINT_DARKNESS_DARK);
    e->setPrintOrientation(QLT_PRINT_ORIENTATION_BOTTOM_FIRST);
    e->setCutterMode(QLT_THERMAL_CUTTER_AFTER_SPECIFIED_INTERVAL);
    e->setTapToPrint(True);
    e->setTopOfFormBackup(False);
    e->setGapHeight(200);
    return e;
}

TEST(clsEPL2, FreshAndChangedObjectsRoundTrip) {
    clsEPL2 fresh;
    EXPECT_EQ(fresh.getSaveTag(), u"AdvancedPrinterSettingsEPL2");
    EXPECT_EQ(fresh.getCutterMode(), QLT_THERMAL_CUTTER_DISABLED);
    EXPECT_EQ(savedText(fresh.writeObject()), FRESH_TEXT);

    const Variant saved = changedObject()->writeObject();
    EXPECT_NE(savedText(saved).find("<EPL2PrintSpeed>7</EPL2PrintSpeed>\r\n"), std::string::npos);
    clsEPL2 back;
    back.readObject(saved);
    EXPECT_EQ(back.getPrintSpeed(), 7);
    EXPECT_EQ(savedText(back.writeObject()), savedText(saved));
    back.readObject(fresh.writeObject());
    EXPECT_EQ(savedText(back.writeObject()), FRESH_TEXT);
}

TEST(clsEPL2, EmptyOrShortBufferResetsToTheDefaults) {
    // Every reader default is the fresh default here: an empty buffer gives a fresh object.
    for (const Variant& empty : {Variant(), Variant(u""), Variant::null(), Variant(u"no tags")}) {
        const auto e = changedObject();
        e->readObject(empty);
        EXPECT_EQ(savedText(e->writeObject()), FRESH_TEXT);
    }
    const auto e = changedObject();
    e->readObject(Variant(u"<EPL2CutPosition>480.5</EPL2CutPosition>\r\n<EPL2TapToPrint>YES</EPL2TapToPrint>\r\n"));
    EXPECT_EQ(e->getCutPosition(), 480);  // half-to-even
    EXPECT_EQ(e->getTapToPrint(), True);
    EXPECT_EQ(e->getGapHeight(), 125);
    EXPECT_EQ(e->getTopOfFormBackup(), True);
}

TEST(clsEPL2, HostileValuesAndNothingNeverThrow) {
    clsEPL2 e;
    e.setExtraFeed(9);
    e.readObject(
        Variant(u"<EPL2ExtraFeed>3e10</EPL2ExtraFeed><EPL2GapOffset>-12abc</EPL2GapOffset>"
                u"<EPL2TopOfFormBackup>maybe</EPL2TopOfFormBackup>"));
    EXPECT_EQ(e.getExtraFeed(), 9);  // beyond a Long: the field keeps its value
    EXPECT_EQ(e.getGapOffset(), -12);
    EXPECT_EQ(e.getTopOfFormBackup(), True);

    auto source = changedObject();
    clsEPL2 target;
    target.assignObject(source);
    EXPECT_EQ(savedText(target.writeObject()), savedText(source->writeObject()));
    std::shared_ptr<clsEPL2> nothing;
    target.assignObject(nothing);
    EXPECT_EQ(savedText(target.writeObject()), savedText(source->writeObject()));
}

}  // namespace
}  // namespace quillet
