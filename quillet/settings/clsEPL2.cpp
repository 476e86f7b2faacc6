#include "quillet/settings/clsEPL2.h"

#include "quillet/frame/Failure.h"
#include "quillet/frame/convert.h"
#include "quillet/persistence/clsBufferIO.h"

namespace quillet {

namespace {

// The tags in file order, made once: the buffer readers and writers take
// Strings, and building fifteen of them on every call is a good part of the
// cost of writeObject.
struct Tags {
    String printMode = u"EPL2PrintMode";
    String pageMode = u"EPL2PageMode";
    String gapHeight = u"EPL2GapHeight";
    String printSpeed = u"EPL2PrintSpeed";
    String printDarkness = u"EPL2PrintDarkness";
    String printOrientation = u"EPL2PrintOrientation";
    String cutterMode = u"EPL2CutterMode";
    String tapToPrint = u"EPL2TapToPrint";
    String topOfFormBackup = u"EPL2TopOfFormBackup";
    String gapOffset = u"EPL2GapOffset";
    String markHeight = u"EPL2MarkHeight";
    String markOffset = u"EPL2MarkOffset";
    String cutterInterval = u"EPL2CutterInterval";
    String cutPosition = u"EPL2CutPosition";
    String extraFeed = u"EPL2ExtraFeed";
};

const Tags& tags() {
    static const Tags t;
    return t;
}

}  // namespace

clsEPL2::clsEPL2() { setDefaults(); }

void clsEPL2::setDefaults() {
    setPrintMode(QLT_THERMAL_PRINT_MODE_DIRECT_THERMAL);
    setPageMode(QLT_EPL2_PAGE_MODE_GAP_SENSING);
    setGapHeight(125);
    setPrintSpeed(QLT_PRINT_SPEED_MEDIUM);
    setPrintDarkness(QLT_PRINT_DARKNESS_MEDIUM);
    setPrintOrientation(QLT_PRINT_ORIENTATION_TOP_FIRST);
    setCutterMode(QLT_THERMAL_CUTTER_DISABLED);
    setTapToPrint(False);
    setTopOfFormBackup(True);
    setGapOffset(0);
    setMarkHeight(125);
    setMarkOffset(125);
    setCutterInterval(1);
    setCutPosition(500);
    setExtraFeed(0);
}

Long clsEPL2::getGapOffset() const { return gapOffset; }
void clsEPL2::setGapOffset(Long gap_offset_) { gapOffset = gap_offset_; }
Long clsEPL2::getMarkHeight() const { return markHeight; }
void clsEPL2::setMarkHeight(Long mark_height_) { markHeight = mark_height_; }
Long clsEPL2::getMarkOffset() const { return markOffset; }
void clsEPL2::setMarkOffset(Long mark_offset_) { markOffset = mark_offset_; }
Long clsEPL2::getCutterInterval() const { return cutterInterval; }
void clsEPL2::setCutterInterval(Long cutter_interval_) { cutterInterval = cutter_interval_; }
Long clsEPL2::getCutPosition() const { return cutPosition; }
void clsEPL2::setCutPosition(Long cut_position_) { cutPosition = cut_position_; }
Long clsEPL2::getExtraFeed() const { return extraFeed; }
void clsEPL2::setExtraFeed(Long extra_feed_) { extraFeed = extra_feed_; }
qltThermalPrintMode clsEPL2::getPrintMode() const { return printMode; }
void clsEPL2::setPrintMode(qltThermalPrintMode print_mode_) { printMode = print_mode_; }
qltEPL2PageMode clsEPL2::getPageMode() const { return pageMode; }
void clsEPL2::setPageMode(qltEPL2PageMode page_mode_) { pageMode = page_mode_; }
qltThermalPrintSpeed clsEPL2::getPrintSpeed() const { return printSpeed; }
void clsEPL2::setPrintSpeed(qltThermalPrintSpeed print_speed_) { printSpeed = print_speed_; }
qltThermalPrintDarkness clsEPL2::getPrintDarkness() const { return printDarkness; }
void clsEPL2::setPrintDarkness(qltThermalPrintDarkness print_darkness_) { printDarkness = print_darkness_; }
qltThermalPrintOrientation clsEPL2::getPrintOrientation() const { return printOrientation; }
void clsEPL2::setPrintOrientation(qltThermalPrintOrientation print_orientation_) {
    printOrientation = print_orientation_;
}
qltThermalCutterMode clsEPL2::getCutterMode() const { return cutterMode; }
void clsEPL2::setCutterMode(qltThermalCutterMode cutter_mode_) { cutterMode = cutter_mode_; }
Boolean clsEPL2::getTapToPrint() const { return tapToPrint; }
void clsEPL2::setTapToPrint(Boolean tap_to_print_) { tapToPrint = tap_to_print_; }
Boolean clsEPL2::getTopOfFormBackup() const { return topOfFormBackup; }
void clsEPL2::setTopOfFormBackup(Boolean top_of_form_backup_) { topOfFormBackup = top_of_form_backup_; }
Long clsEPL2::getGapHeight() const { return gapHeight; }
void clsEPL2::setGapHeight(Long gap_height_) { gapHeight = gap_height_; }

void clsEPL2::assignObject(std::shared_ptr<clsEPL2>& settings_) {
    // No guard for Nothing: each copy fails on its own and is skipped.
    attempt([&] { setPrintMode(deref(settings_).getPrintMode()); });
    attempt([&] { setPageMode(deref(settings_).getPageMode()); });
    attempt([&] { setGapHeight(deref(settings_).getGapHeight()); });
    attempt([&] { setPrintSpeed(deref(settings_).getPrintSpeed()); });
    attempt([&] { setPrintDarkness(deref(settings_).getPrintDarkness()); });
    attempt([&] { setPrintOrientation(deref(settings_).getPrintOrientation()); });
    attempt([&] { setCutterMode(deref(settings_).getCutterMode()); });
    attempt([&] { setTapToPrint(deref(settings_).getTapToPrint()); });
    attempt([&] { setTopOfFormBackup(deref(settings_).getTopOfFormBackup()); });
    attempt([&] { setGapOffset(deref(settings_).getGapOffset()); });
    attempt([&] { setMarkHeight(deref(settings_).getMarkHeight()); });
    attempt([&] { setMarkOffset(deref(settings_).getMarkOffset()); });
    attempt([&] { setCutterInterval(deref(settings_).getCutterInterval()); });
    attempt([&] { setCutPosition(deref(settings_).getCutPosition()); });
    attempt([&] { setExtraFeed(deref(settings_).getExtraFeed()); });
}

void clsEPL2::readObject(const Variant& buffer) {
    const clsBufferIO io;
    const Tags& T = tags();
    // Each reader carries the field's default, so an absent tag resets it.
    const auto whole = [&](const String& tag, Long default_value) {
        return toLong(io.ReadNumberBetween(buffer, tag, Variant(default_value)));
    };
    attempt([&] { setPrintMode(static_cast<qltThermalPrintMode>(whole(T.printMode, 0))); });
    attempt([&] { setPageMode(static_cast<qltEPL2PageMode>(whole(T.pageMode, 0))); });
    attempt([&] { setGapHeight(whole(T.gapHeight, 125)); });
    attempt([&] { setPrintSpeed(static_cast<qltThermalPrintSpeed>(whole(T.printSpeed, 1))); });
    attempt([&] { setPrintDarkness(static_cast<qltThermalPrintDarkness>(whole(T.printDarkness, 1))); });
    attempt([&] { setPrintOrientation(static_cast<qltThermalPrintOrientation>(whole(T.printOrientation, 0))); });
    attempt([&] { setCutterMode(static_cast<qltThermalCutterMode>(whole(T.cutterMode, 0))); });
    attempt([&] { setTapToPrint(io.ReadBooleanBetween(buffer, T.tapToPrint, False)); });
    attempt([&] { setTopOfFormBackup(io.ReadBooleanBetween(buffer, T.topOfFormBackup, True)); });
    attempt([&] { setGapOffset(whole(T.gapOffset, 0)); });
    attempt([&] { setMarkHeight(whole(T.markHeight, 125)); });
    attempt([&] { setMarkOffset(whole(T.markOffset, 125)); });
    attempt([&] { setCutterInterval(whole(T.cutterInterval, 1)); });
    attempt([&] { setCutPosition(whole(T.cutPosition, 500)); });
    attempt([&] { setExtraFeed(whole(T.extraFeed, 0)); });
}

Variant clsEPL2::writeObject() const {
    const clsBufferIO io;
    const Tags& T = tags();
    String fields;
    fields.reserve(640);  // the fifteen elements of a usual object fit: one allocation
    const auto number = [&](const String& tag, Long value) { fields += io.WriteNumberBetween(tag, Variant(value)); };
    attempt([&] { number(T.printMode, getPrintMode()); });
    attempt([&] { number(T.pageMode, getPageMode()); });
    attempt([&] { number(T.gapHeight, getGapHeight()); });
    attempt([&] { number(T.printSpeed, getPrintSpeed()); });
    attempt([&] { number(T.printDarkness, getPrintDarkness()); });
    attempt([&] { number(T.printOrientation, getPrintOrientation()); });
    attempt([&] { number(T.cutterMode, getCutterMode()); });
    attempt([&] { fields += io.WriteBooleanBetween(T.tapToPrint, getTapToPrint()); });
    attempt([&] { fields += io.WriteBooleanBetween(T.topOfFormBackup, getTopOfFormBackup()); });
    attempt([&] { number(T.gapOffset, getGapOffset()); });
    attempt([&] { number(T.markHeight, getMarkHeight()); });
    attempt([&] { number(T.markOffset, getMarkOffset()); });
    attempt([&] { number(T.cutterInterval, getCutterInterval()); });
    attempt([&] { number(T.cutPosition, getCutPosition()); });
    attempt([&] { number(T.extraFeed, getExtraFeed()); });
    Variant result;
    attempt([&] { result = io.WriteVariantBetween(getSaveTag(), Variant(std::move(fields))); });
    return result;
}

String clsEPL2::getSaveTag() const { return u"AdvancedPrinterSettingsEPL2"; }

}  // namespace quillet
