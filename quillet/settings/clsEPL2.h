// quillet/settings/clsEPL2.h - the advanced settings of a thermal label
// printer that speaks EPL2: media sensing, speed, darkness, cutter. A pure
// settings record: it emits no printer commands; a host reads the fields and
// builds its own. Creatable and persistable, with the save tag
// "AdvancedPrinterSettingsEPL2".
//
//   auto epl = std::make_shared<clsEPL2>();
//   epl->getGapHeight();               // 125
//   epl->getCutterMode();              // 0, QLT_THERMAL_CUTTER_DISABLED
//   epl->setPrintSpeed(qltThermalPrintSpeed(7));   // stored as it stands: no check
//   Variant saved = epl->writeObject();
//   // u"<AdvancedPrinterSettingsEPL2><EPL2PrintMode>0</EPL2PrintMode>\r\n"
//   // u"<EPL2PageMode>0</EPL2PageMode>\r\n<EPL2GapHeight>125</EPL2GapHeight>\r\n"
//   // u"<EPL2PrintSpeed>7</EPL2PrintSpeed>\r\n..." and so on for fifteen fields
//   epl->readObject(Variant());        // an empty buffer: every field back to its default
//
// Numbers carry no unit here; what a gap height of 125 means is a matter
// between the host and its printer driver.
#pragma once

#include <memory>

#include "quillet/frame/Variant.h"
#include "quillet/frame/enums.h"
#include "quillet/frame/types.h"

namespace quillet {

class clsEPL2 {
public:
    clsEPL2();

    // fields; every setter stores its argument without any check
    [[nodiscard]] Long getGapOffset() const;
    void setGapOffset(Long gap_offset_);
    [[nodiscard]] Long getMarkHeight() const;
    void setMarkHeight(Long mark_height_);
    [[nodiscard]] Long getMarkOffset() const;
    void setMarkOffset(Long mark_offset_);
    [[nodiscard]] Long getCutterInterval() const;
    void setCutterInterval(Long cutter_interval_);
    [[nodiscard]] Long getCutPosition() const;
    void setCutPosition(Long cut_position_);
    [[nodiscard]] Long getExtraFeed() const;
    void setExtraFeed(Long extra_feed_);
    [[nodiscard]] qltThermalPrintMode getPrintMode() const;
    void setPrintMode(qltThermalPrintMode print_mode_);
    [[nodiscard]] qltEPL2PageMode getPageMode() const;
    void setPageMode(qltEPL2PageMode page_mode_);
    [[nodiscard]] qltThermalPrintSpeed getPrintSpeed() const;
    void setPrintSpeed(qltThermalPrintSpeed print_speed_);
    [[nodiscard]] qltThermalPrintDarkness getPrintDarkness() const;
    void setPrintDarkness(qltThermalPrintDarkness print_darkness_);
    [[nodiscard]] qltThermalPrintOrientation getPrintOrientation() const;
    void setPrintOrientation(qltThermalPrintOrientation print_orientation_);
    [[nodiscard]] qltThermalCutterMode getCutterMode() const;
    void setCutterMode(qltThermalCutterMode cutter_mode_);
    [[nodiscard]] Boolean getTapToPrint() const;
    void setTapToPrint(Boolean tap_to_print_);
    [[nodiscard]] Boolean getTopOfFormBackup() const;
    void setTopOfFormBackup(Boolean top_of_form_backup_);
    [[nodiscard]] Long getGapHeight() const;
    void setGapHeight(Long gap_height_);

    // persistence
    // assignObject - copies the fifteen fields. Given Nothing every copy
    // fails and the object stays as it was.
    void assignObject(std::shared_ptr<clsEPL2>& settings_);
    // readObject - reads every field; an absent tag gives the field its
    // default, so an empty buffer resets the whole object. Whole numbers are
    // rounded half-to-even; one that does not fit a Long leaves its field.
    void readObject(const Variant& buffer);
    // writeObject - the fifteen fields as tagged elements inside
    // "AdvancedPrinterSettingsEPL2".
    [[nodiscard]] Variant writeObject() const;
    [[nodiscard]] String getSaveTag() const;

private:
    void setDefaults();

    qltThermalPrintMode m_printMode{};
    qltEPL2PageMode m_pageMode{};
    Long m_gapHeight{};
    qltThermalPrintSpeed m_printSpeed{};
    qltThermalPrintDarkness m_printDarkness{};
    qltThermalPrintOrientation m_printOrientation{};
    qltThermalCutterMode m_cutterMode{};
    Boolean m_tapToPrint{};
    Boolean m_topOfFormBackup{};
    Long m_gapOffset{};
    Long m_markHeight{};
    Long m_markOffset{};
    Long m_cutterInterval{};
    Long m_cutPosition{};
    Long m_extraFeed{};
};

}  // namespace quillet
