#include "quillet/settings/clsEPL2.h"

#include "quillet/persistence/internal/Record.h"

namespace quillet {

namespace {

using persistence_internal::field;
using persistence_internal::Record;
using E = clsEPL2;

// The fields in saved order: tag, getter, setter, fresh value, reader's default.
const auto& record() {
    static const Record r(
        u"AdvancedPrinterSettingsEPL2",
        field(u"EPL2PrintMode", &E::getPrintMode, &E::setPrintMode, QLT_THERMAL_PRINT_MODE_DIRECT_THERMAL, 0),
        field(u"EPL2PageMode", &E::getPageMode, &E::setPageMode, QLT_EPL2_PAGE_MODE_GAP_SENSING, 0),
        field(u"EPL2GapHeight", &E::getGapHeight, &E::setGapHeight, 125, 125),
        field(u"EPL2PrintSpeed", &E::getPrintSpeed, &E::setPrintSpeed, QLT_PRINT_SPEED_MEDIUM, 1),
        field(u"EPL2PrintDarkness", &E::getPrintDarkness, &E::setPrintDarkness, QLT_PRINT_DARKNESS_MEDIUM, 1),
        field(u"EPL2PrintOrientation", &E::getPrintOrientation, &E::setPrintOrientation,
              QLT_PRINT_ORIENTATION_TOP_FIRST, 0),
        field(u"EPL2CutterMode", &E::getCutterMode, &E::setCutterMode, QLT_THERMAL_CUTTER_DISABLED, 0),
        field(u"EPL2TapToPrint", &E::getTapToPrint, &E::setTapToPrint, False, False),
        field(u"EPL2TopOfFormBackup", &E::getTopOfFormBackup, &E::setTopOfFormBackup, True, True),
        field(u"EPL2GapOffset", &E::getGapOffset, &E::setGapOffset, 0, 0),
        field(u"EPL2MarkHeight", &E::getMarkHeight, &E::setMarkHeight, 125, 125),
        field(u"EPL2MarkOffset", &E::getMarkOffset, &E::setMarkOffset, 125, 125),
        field(u"EPL2CutterInterval", &E::getCutterInterval, &E::setCutterInterval, 1, 1),
        field(u"EPL2CutPosition", &E::getCutPosition, &E::setCutPosition, 500, 500),
        field(u"EPL2ExtraFeed", &E::getExtraFeed, &E::setExtraFeed, 0, 0));
    return r;
}

}  // namespace

clsEPL2::clsEPL2() { setDefaults(); }

void clsEPL2::setDefaults() { record().setDefaults(*this); }

Long clsEPL2::getGapOffset() const { return m_gapOffset; }
void clsEPL2::setGapOffset(Long gap_offset_) { m_gapOffset = gap_offset_; }
Long clsEPL2::getMarkHeight() const { return m_markHeight; }
void clsEPL2::setMarkHeight(Long mark_height_) { m_markHeight = mark_height_; }
Long clsEPL2::getMarkOffset() const { return m_markOffset; }
void clsEPL2::setMarkOffset(Long mark_offset_) { m_markOffset = mark_offset_; }
Long clsEPL2::getCutterInterval() const { return m_cutterInterval; }
void clsEPL2::setCutterInterval(Long cutter_interval_) { m_cutterInterval = cutter_interval_; }
Long clsEPL2::getCutPosition() const { return m_cutPosition; }
void clsEPL2::setCutPosition(Long cut_position_) { m_cutPosition = cut_position_; }
Long clsEPL2::getExtraFeed() const { return m_extraFeed; }
void clsEPL2::setExtraFeed(Long extra_feed_) { m_extraFeed = extra_feed_; }
qltThermalPrintMode clsEPL2::getPrintMode() const { return m_printMode; }
void clsEPL2::setPrintMode(qltThermalPrintMode print_mode_) { m_printMode = print_mode_; }
qltEPL2PageMode clsEPL2::getPageMode() const { return m_pageMode; }
void clsEPL2::setPageMode(qltEPL2PageMode page_mode_) { m_pageMode = page_mode_; }
qltThermalPrintSpeed clsEPL2::getPrintSpeed() const { return m_printSpeed; }
void clsEPL2::setPrintSpeed(qltThermalPrintSpeed print_speed_) { m_printSpeed = print_speed_; }
qltThermalPrintDarkness clsEPL2::getPrintDarkness() const { return m_printDarkness; }
void clsEPL2::setPrintDarkness(qltThermalPrintDarkness print_darkness_) { m_printDarkness = print_darkness_; }
qltThermalPrintOrientation clsEPL2::getPrintOrientation() const { return m_printOrientation; }
void clsEPL2::setPrintOrientation(qltThermalPrintOrientation print_orientation_) {
    m_printOrientation = print_orientation_;
}
qltThermalCutterMode clsEPL2::getCutterMode() const { return m_cutterMode; }
void clsEPL2::setCutterMode(qltThermalCutterMode cutter_mode_) { m_cutterMode = cutter_mode_; }
Boolean clsEPL2::getTapToPrint() const { return m_tapToPrint; }
void clsEPL2::setTapToPrint(Boolean tap_to_print_) { m_tapToPrint = tap_to_print_; }
Boolean clsEPL2::getTopOfFormBackup() const { return m_topOfFormBackup; }
void clsEPL2::setTopOfFormBackup(Boolean top_of_form_backup_) { m_topOfFormBackup = top_of_form_backup_; }
Long clsEPL2::getGapHeight() const { return m_gapHeight; }
void clsEPL2::setGapHeight(Long gap_height_) { m_gapHeight = gap_height_; }

// No guard for Nothing: each copy fails on its own and is skipped.
void clsEPL2::assignObject(std::shared_ptr<clsEPL2>& settings_) { record().assign(*this, settings_); }

// Each reader carries the field's default, so an absent tag resets it.
void clsEPL2::readObject(const Variant& buffer) { record().read(*this, buffer); }

Variant clsEPL2::writeObject() const { return record().write(*this); }

String clsEPL2::getSaveTag() const { return record().saveTag(); }

}  // namespace quillet
