#include "quillet/settings/clsZPL2.h"

#include "quillet/frame/Failure.h"
#include "quillet/frame/convert.h"
#include "quillet/persistence/clsBufferIO.h"

namespace quillet {

namespace {

// The tags in file order, made once: the buffer readers and writers take
// Strings, and building seventeen of them on every call was a third of the
// cost of writeObject.
struct Tags {
    String printMode = u"ZPL2PrintMode";
    String pageMode = u"ZPL2PageMode";
    String printSpeed = u"ZPL2PrintSpeed";
    String slewSpeed = u"ZPL2SlewSpeed";
    String backfeedSpeed = u"ZPL2BackfeedSpeed";
    String printDarkness = u"ZPL2PrintDarkness";
    String printOrientation = u"ZPL2PrintOrientation";
    String feedMode = u"ZPL2FeedMode";
    String pauseAfterCut = u"ZPL2PauseAfterCut";
    String pauseMode = u"ZPL2PauseMode";
    String pauseInterval = u"ZPL2PauseInterval";
    String cutterMode = u"ZPL2CutterMode";
    String cutterInterval = u"ZPL2CutterInterval";
    String backfeedMode = u"ZPL2BackfeedMode";
    String backfeedPercentage = u"ZPL2BackfeedPercentage";
    String topAdjustment = u"ZPL2TopAdjustment";
    String tearOffAdjustment = u"ZPL2TearOffAdjustment";
};

const Tags& tags() {
    static const Tags t;
    return t;
}

}  // namespace

clsZPL2::clsZPL2() { setDefaults(); }

void clsZPL2::setDefaults() {
    setPrintMode(QLT_THERMAL_PRINT_MODE_DIRECT_THERMAL);
    setPageMode(QLT_ZPL2_PAGE_MODE_WEB_SENSING);
    setPrintSpeed(QLT_PRINT_SPEED_MEDIUM);
    setSlewSpeed(QLT_PRINT_SPEED_MEDIUM);
    setBackfeedSpeed(QLT_PRINT_SPEED_MEDIUM);
    setPrintDarkness(QLT_PRINT_DARKNESS_MEDIUM);
    setPrintOrientation(QLT_PRINT_ORIENTATION_BOTTOM_FIRST);
    setFeedMode(QLT_ZPL2_FEED_MODE_TEAR_OFF);
    setPauseAfterCut(False);
    setPauseMode(QLT_ZPL2_NO_PAUSE);
    setPauseInterval(0);
    setCutterMode(QLT_THERMAL_CUTTER_AFTER_EACH_LABEL);
    setCutterInterval(1);
    setBackfeedMode(QLT_ZPL2_BACKFEED_NORMAL);
    setBackfeedPercentage(0);
    setTopAdjustment(0);
    setTearOffAdjustment(0);
}

qltThermalPrintMode clsZPL2::getPrintMode() const { return printMode; }
void clsZPL2::setPrintMode(qltThermalPrintMode print_mode_) { printMode = print_mode_; }
qltZPL2PageMode clsZPL2::getPageMode() const { return pageMode; }
void clsZPL2::setPageMode(qltZPL2PageMode page_mode_) { pageMode = page_mode_; }
qltThermalPrintSpeed clsZPL2::getPrintSpeed() const { return printSpeed; }
void clsZPL2::setPrintSpeed(qltThermalPrintSpeed print_speed_) { printSpeed = print_speed_; }
qltThermalPrintSpeed clsZPL2::getSlewSpeed() const { return slewSpeed; }
void clsZPL2::setSlewSpeed(qltThermalPrintSpeed slew_speed_) { slewSpeed = slew_speed_; }
qltThermalPrintSpeed clsZPL2::getBackfeedSpeed() const { return backfeedSpeed; }
void clsZPL2::setBackfeedSpeed(qltThermalPrintSpeed backfeed_speed_) { backfeedSpeed = backfeed_speed_; }
qltThermalPrintDarkness clsZPL2::getPrintDarkness() const { return printDarkness; }
void clsZPL2::setPrintDarkness(qltThermalPrintDarkness print_darkness_) { printDarkness = print_darkness_; }
qltThermalPrintOrientation clsZPL2::getPrintOrientation() const { return printOrientation; }
void clsZPL2::setPrintOrientation(qltThermalPrintOrientation print_orientation_) {
    printOrientation = print_orientation_;
}
qltZPL2FeedMode clsZPL2::getFeedMode() const { return feedMode; }
void clsZPL2::setFeedMode(qltZPL2FeedMode feed_mode_) { feedMode = feed_mode_; }
qltZPL2PauseMode clsZPL2::getPauseMode() const { return pauseMode; }
void clsZPL2::setPauseMode(qltZPL2PauseMode pause_mode_) { pauseMode = pause_mode_; }
Long clsZPL2::getPauseInterval() const { return pauseInterval; }
void clsZPL2::setPauseInterval(Long pause_interval_) { pauseInterval = pause_interval_; }
Boolean clsZPL2::getPauseAfterCut() const { return pauseAfterCut; }
void clsZPL2::setPauseAfterCut(Boolean pause_after_cut_) { pauseAfterCut = pause_after_cut_; }
qltThermalCutterMode clsZPL2::getCutterMode() const { return cutterMode; }
void clsZPL2::setCutterMode(qltThermalCutterMode cutter_mode_) { cutterMode = cutter_mode_; }
Long clsZPL2::getCutterInterval() const { return cutterInterval; }
void clsZPL2::setCutterInterval(Long cutter_interval_) { cutterInterval = cutter_interval_; }
qltZPL2BackfeedMode clsZPL2::getBackfeedMode() const { return backfeedMode; }
void clsZPL2::setBackfeedMode(qltZPL2BackfeedMode backfeed_mode_) { backfeedMode = backfeed_mode_; }
Long clsZPL2::getBackfeedPercentage() const { return backfeedPercentage; }
void clsZPL2::setBackfeedPercentage(Long backfeed_percentage_) { backfeedPercentage = backfeed_percentage_; }
Long clsZPL2::getTopAdjustment() const { return topAdjustment; }
void clsZPL2::setTopAdjustment(Long top_adjustment_) { topAdjustment = top_adjustment_; }
Long clsZPL2::getTearOffAdjustment() const { return tearOffAdjustment; }
void clsZPL2::setTearOffAdjustment(Long tear_off_adjustment_) { tearOffAdjustment = tear_off_adjustment_; }

void clsZPL2::assignObject(std::shared_ptr<clsZPL2>& settings_) {
    // No guard for Nothing: each copy fails on its own and is skipped.
    attempt([&] { setPrintMode(deref(settings_).getPrintMode()); });
    attempt([&] { setPageMode(deref(settings_).getPageMode()); });
    attempt([&] { setPrintSpeed(deref(settings_).getPrintSpeed()); });
    attempt([&] { setSlewSpeed(deref(settings_).getSlewSpeed()); });
    attempt([&] { setBackfeedSpeed(deref(settings_).getBackfeedSpeed()); });
    attempt([&] { setPrintDarkness(deref(settings_).getPrintDarkness()); });
    attempt([&] { setPrintOrientation(deref(settings_).getPrintOrientation()); });
    attempt([&] { setFeedMode(deref(settings_).getFeedMode()); });
    attempt([&] { setPauseAfterCut(deref(settings_).getPauseAfterCut()); });
    attempt([&] { setPauseMode(deref(settings_).getPauseMode()); });
    attempt([&] { setPauseInterval(deref(settings_).getPauseInterval()); });
    attempt([&] { setCutterMode(deref(settings_).getCutterMode()); });
    attempt([&] { setCutterInterval(deref(settings_).getCutterInterval()); });
    attempt([&] { setBackfeedMode(deref(settings_).getBackfeedMode()); });
    attempt([&] { setBackfeedPercentage(deref(settings_).getBackfeedPercentage()); });
    attempt([&] { setTopAdjustment(deref(settings_).getTopAdjustment()); });
    attempt([&] { setTearOffAdjustment(deref(settings_).getTearOffAdjustment()); });
}

void clsZPL2::readObject(const Variant& buffer) {
    const clsBufferIO io;
    const Tags& T = tags();
    const auto whole = [&](const String& tag, Long default_value) {
        return toLong(io.ReadNumberBetween(buffer, tag, Variant(default_value)));
    };
    attempt([&] { setPrintMode(static_cast<qltThermalPrintMode>(whole(T.printMode, 0))); });
    attempt([&] { setPageMode(static_cast<qltZPL2PageMode>(whole(T.pageMode, 0))); });
    attempt([&] { setPrintSpeed(static_cast<qltThermalPrintSpeed>(whole(T.printSpeed, 1))); });
    attempt([&] { setSlewSpeed(static_cast<qltThermalPrintSpeed>(whole(T.slewSpeed, 1))); });
    attempt([&] { setBackfeedSpeed(static_cast<qltThermalPrintSpeed>(whole(T.backfeedSpeed, 1))); });
    attempt([&] { setPrintDarkness(static_cast<qltThermalPrintDarkness>(whole(T.printDarkness, 1))); });
    // Top first when absent, although a new object is bottom first: older
    // documents without the tag were printed top first.
    attempt([&] { setPrintOrientation(static_cast<qltThermalPrintOrientation>(whole(T.printOrientation, 0))); });
    attempt([&] { setFeedMode(static_cast<qltZPL2FeedMode>(whole(T.feedMode, 0))); });
    attempt([&] { setPauseAfterCut(io.ReadBooleanBetween(buffer, T.pauseAfterCut, False)); });
    attempt([&] { setPauseMode(static_cast<qltZPL2PauseMode>(whole(T.pauseMode, 0))); });
    attempt([&] { setPauseInterval(whole(T.pauseInterval, 0)); });
    attempt([&] { setCutterMode(static_cast<qltThermalCutterMode>(whole(T.cutterMode, 1))); });
    attempt([&] { setCutterInterval(whole(T.cutterInterval, 1)); });
    attempt([&] { setBackfeedMode(static_cast<qltZPL2BackfeedMode>(whole(T.backfeedMode, 0))); });
    attempt([&] { setBackfeedPercentage(whole(T.backfeedPercentage, 0)); });
    attempt([&] { setTopAdjustment(whole(T.topAdjustment, 0)); });
    attempt([&] { setTearOffAdjustment(whole(T.tearOffAdjustment, 0)); });
}

Variant clsZPL2::writeObject() const {
    const clsBufferIO io;
    const Tags& T = tags();
    String fields;
    fields.reserve(768);  // the seventeen elements of a usual object fit: one allocation
    const auto number = [&](const String& tag, Long value) { fields += io.WriteNumberBetween(tag, Variant(value)); };
    attempt([&] { number(T.printMode, getPrintMode()); });
    attempt([&] { number(T.pageMode, getPageMode()); });
    attempt([&] { number(T.printSpeed, getPrintSpeed()); });
    attempt([&] { number(T.slewSpeed, getSlewSpeed()); });
    attempt([&] { number(T.backfeedSpeed, getBackfeedSpeed()); });
    attempt([&] { number(T.printDarkness, getPrintDarkness()); });
    attempt([&] { number(T.printOrientation, getPrintOrientation()); });
    attempt([&] { number(T.feedMode, getFeedMode()); });
    attempt([&] { fields += io.WriteBooleanBetween(T.pauseAfterCut, getPauseAfterCut()); });
    attempt([&] { number(T.pauseMode, getPauseMode()); });
    attempt([&] { number(T.pauseInterval, getPauseInterval()); });
    attempt([&] { number(T.cutterMode, getCutterMode()); });
    attempt([&] { number(T.cutterInterval, getCutterInterval()); });
    attempt([&] { number(T.backfeedMode, getBackfeedMode()); });
    attempt([&] { number(T.backfeedPercentage, getBackfeedPercentage()); });
    attempt([&] { number(T.topAdjustment, getTopAdjustment()); });
    attempt([&] { number(T.tearOffAdjustment, getTearOffAdjustment()); });
    Variant result;
    attempt([&] { result = io.WriteVariantBetween(getSaveTag(), Variant(std::move(fields))); });
    return result;
}

String clsZPL2::getSaveTag() const { return u"AdvancedPrinterSettingsZPL2"; }

}  // namespace quillet
