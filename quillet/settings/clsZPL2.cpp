#include "quillet/settings/clsZPL2.h"

#include "quillet/persistence/internal/Record.h"

namespace quillet {

namespace {

using persistence_internal::field;
using persistence_internal::Record;
using Z = clsZPL2;

// The fields in saved order: tag, getter, setter, fresh value, reader's
// default. The print orientation reads as top first when absent, although a
// new object is bottom first: older documents without the tag were printed
// top first.
const auto& record() {
    static const Record r(
        u"AdvancedPrinterSettingsZPL2",
        field(u"ZPL2PrintMode", &Z::getPrintMode, &Z::setPrintMode, QLT_THERMAL_PRINT_MODE_DIRECT_THERMAL, 0),
        field(u"ZPL2PageMode", &Z::getPageMode, &Z::setPageMode, QLT_ZPL2_PAGE_MODE_WEB_SENSING, 0),
        field(u"ZPL2PrintSpeed", &Z::getPrintSpeed, &Z::setPrintSpeed, QLT_PRINT_SPEED_MEDIUM, 1),
        field(u"ZPL2SlewSpeed", &Z::getSlewSpeed, &Z::setSlewSpeed, QLT_PRINT_SPEED_MEDIUM, 1),
        field(u"ZPL2BackfeedSpeed", &Z::getBackfeedSpeed, &Z::setBackfeedSpeed, QLT_PRINT_SPEED_MEDIUM, 1),
        field(u"ZPL2PrintDarkness", &Z::getPrintDarkness, &Z::setPrintDarkness, QLT_PRINT_DARKNESS_MEDIUM, 1),
        field(u"ZPL2PrintOrientation", &Z::getPrintOrientation, &Z::setPrintOrientation,
              QLT_PRINT_ORIENTATION_BOTTOM_FIRST, QLT_PRINT_ORIENTATION_TOP_FIRST),
        field(u"ZPL2FeedMode", &Z::getFeedMode, &Z::setFeedMode, QLT_ZPL2_FEED_MODE_TEAR_OFF, 0),
        field(u"ZPL2PauseAfterCut", &Z::getPauseAfterCut, &Z::setPauseAfterCut, False, False),
        field(u"ZPL2PauseMode", &Z::getPauseMode, &Z::setPauseMode, QLT_ZPL2_NO_PAUSE, 0),
        field(u"ZPL2PauseInterval", &Z::getPauseInterval, &Z::setPauseInterval, 0, 0),
        field(u"ZPL2CutterMode", &Z::getCutterMode, &Z::setCutterMode, QLT_THERMAL_CUTTER_AFTER_EACH_LABEL, 1),
        field(u"ZPL2CutterInterval", &Z::getCutterInterval, &Z::setCutterInterval, 1, 1),
        field(u"ZPL2BackfeedMode", &Z::getBackfeedMode, &Z::setBackfeedMode, QLT_ZPL2_BACKFEED_NORMAL, 0),
        field(u"ZPL2BackfeedPercentage", &Z::getBackfeedPercentage, &Z::setBackfeedPercentage, 0, 0),
        field(u"ZPL2TopAdjustment", &Z::getTopAdjustment, &Z::setTopAdjustment, 0, 0),
        field(u"ZPL2TearOffAdjustment", &Z::getTearOffAdjustment, &Z::setTearOffAdjustment, 0, 0));
    return r;
}

}  // namespace

clsZPL2::clsZPL2() { setDefaults(); }

void clsZPL2::setDefaults() { record().setDefaults(*this); }

qltThermalPrintMode clsZPL2::getPrintMode() const { return m_printMode; }
void clsZPL2::setPrintMode(qltThermalPrintMode print_mode_) { m_printMode = print_mode_; }
qltZPL2PageMode clsZPL2::getPageMode() const { return m_pageMode; }
void clsZPL2::setPageMode(qltZPL2PageMode page_mode_) { m_pageMode = page_mode_; }
qltThermalPrintSpeed clsZPL2::getPrintSpeed() const { return m_printSpeed; }
void clsZPL2::setPrintSpeed(qltThermalPrintSpeed print_speed_) { m_printSpeed = print_speed_; }
qltThermalPrintSpeed clsZPL2::getSlewSpeed() const { return m_slewSpeed; }
void clsZPL2::setSlewSpeed(qltThermalPrintSpeed slew_speed_) { m_slewSpeed = slew_speed_; }
qltThermalPrintSpeed clsZPL2::getBackfeedSpeed() const { return m_backfeedSpeed; }
void clsZPL2::setBackfeedSpeed(qltThermalPrintSpeed backfeed_speed_) { m_backfeedSpeed = backfeed_speed_; }
qltThermalPrintDarkness clsZPL2::getPrintDarkness() const { return m_printDarkness; }
void clsZPL2::setPrintDarkness(qltThermalPrintDarkness print_darkness_) { m_printDarkness = print_darkness_; }
qltThermalPrintOrientation clsZPL2::getPrintOrientation() const { return m_printOrientation; }
void clsZPL2::setPrintOrientation(qltThermalPrintOrientation print_orientation_) {
    m_printOrientation = print_orientation_;
}
qltZPL2FeedMode clsZPL2::getFeedMode() const { return m_feedMode; }
void clsZPL2::setFeedMode(qltZPL2FeedMode feed_mode_) { m_feedMode = feed_mode_; }
qltZPL2PauseMode clsZPL2::getPauseMode() const { return m_pauseMode; }
void clsZPL2::setPauseMode(qltZPL2PauseMode pause_mode_) { m_pauseMode = pause_mode_; }
Long clsZPL2::getPauseInterval() const { return m_pauseInterval; }
void clsZPL2::setPauseInterval(Long pause_interval_) { m_pauseInterval = pause_interval_; }
Boolean clsZPL2::getPauseAfterCut() const { return m_pauseAfterCut; }
void clsZPL2::setPauseAfterCut(Boolean pause_after_cut_) { m_pauseAfterCut = pause_after_cut_; }
qltThermalCutterMode clsZPL2::getCutterMode() const { return m_cutterMode; }
void clsZPL2::setCutterMode(qltThermalCutterMode cutter_mode_) { m_cutterMode = cutter_mode_; }
Long clsZPL2::getCutterInterval() const { return m_cutterInterval; }
void clsZPL2::setCutterInterval(Long cutter_interval_) { m_cutterInterval = cutter_interval_; }
qltZPL2BackfeedMode clsZPL2::getBackfeedMode() const { return m_backfeedMode; }
void clsZPL2::setBackfeedMode(qltZPL2BackfeedMode backfeed_mode_) { m_backfeedMode = backfeed_mode_; }
Long clsZPL2::getBackfeedPercentage() const { return m_backfeedPercentage; }
void clsZPL2::setBackfeedPercentage(Long backfeed_percentage_) { m_backfeedPercentage = backfeed_percentage_; }
Long clsZPL2::getTopAdjustment() const { return m_topAdjustment; }
void clsZPL2::setTopAdjustment(Long top_adjustment_) { m_topAdjustment = top_adjustment_; }
Long clsZPL2::getTearOffAdjustment() const { return m_tearOffAdjustment; }
void clsZPL2::setTearOffAdjustment(Long tear_off_adjustment_) { m_tearOffAdjustment = tear_off_adjustment_; }

// No guard for Nothing: each copy fails on its own and is skipped.
void clsZPL2::assignObject(std::shared_ptr<clsZPL2>& settings_) { record().assign(*this, settings_); }

void clsZPL2::readObject(const Variant& buffer) { record().read(*this, buffer); }

Variant clsZPL2::writeObject() const { return record().write(*this); }

String clsZPL2::getSaveTag() const { return record().saveTag(); }

}  // namespace quillet
