// quillet/settings/clsZPL2.h - the advanced settings of a thermal label
// printer that speaks ZPL2: media sensing, the three speeds, darkness, feed,
// pause, cutter and backfeed. A pure settings record: it emits no printer
// commands; a host reads the fields and builds its own. Creatable and
// persistable, with the save tag "AdvancedPrinterSettingsZPL2".
//
//   auto zpl = std::make_shared<clsZPL2>();
//   zpl->getPrintOrientation();        // 1, bottom first
//   zpl->getCutterMode();              // 1, after each label (a new clsEPL2 has 0)
//   zpl->setBackfeedPercentage(250);   // stored as it stands: no check
//   auto copy = std::make_shared<clsZPL2>();
//   copy->readObject(zpl->writeObject());
//   copy->getPrintOrientation();       // 1: the tag is present
//   copy->readObject(Variant());
//   copy->getPrintOrientation();       // 0: an absent tag reads as top first,
//                                      // unlike a new object
//
// The pause-after-cut flag is saved after the feed mode and before the pause
// mode, although its getter and setter stand after the pause interval.
#pragma once

#include <memory>

#include "quillet/frame/Variant.h"
#include "quillet/frame/enums.h"
#include "quillet/frame/types.h"

namespace quillet {

class clsZPL2 {
public:
    clsZPL2();

    // fields; every setter stores its argument without any check
    [[nodiscard]] qltThermalPrintMode getPrintMode() const;
    void setPrintMode(qltThermalPrintMode print_mode_);
    [[nodiscard]] qltZPL2PageMode getPageMode() const;
    void setPageMode(qltZPL2PageMode page_mode_);
    [[nodiscard]] qltThermalPrintSpeed getPrintSpeed() const;
    void setPrintSpeed(qltThermalPrintSpeed print_speed_);
    [[nodiscard]] qltThermalPrintSpeed getSlewSpeed() const;
    void setSlewSpeed(qltThermalPrintSpeed slew_speed_);
    [[nodiscard]] qltThermalPrintSpeed getBackfeedSpeed() const;
    void setBackfeedSpeed(qltThermalPrintSpeed backfeed_speed_);
    [[nodiscard]] qltThermalPrintDarkness getPrintDarkness() const;
    void setPrintDarkness(qltThermalPrintDarkness print_darkness_);
    [[nodiscard]] qltThermalPrintOrientation getPrintOrientation() const;
    void setPrintOrientation(qltThermalPrintOrientation print_orientation_);
    [[nodiscard]] qltZPL2FeedMode getFeedMode() const;
    void setFeedMode(qltZPL2FeedMode feed_mode_);
    [[nodiscard]] qltZPL2PauseMode getPauseMode() const;
    void setPauseMode(qltZPL2PauseMode pause_mode_);
    [[nodiscard]] Long getPauseInterval() const;
    void setPauseInterval(Long pause_interval_);
    [[nodiscard]] Boolean getPauseAfterCut() const;
    void setPauseAfterCut(Boolean pause_after_cut_);
    [[nodiscard]] qltThermalCutterMode getCutterMode() const;
    void setCutterMode(qltThermalCutterMode cutter_mode_);
    [[nodiscard]] Long getCutterInterval() const;
    void setCutterInterval(Long cutter_interval_);
    [[nodiscard]] qltZPL2BackfeedMode getBackfeedMode() const;
    void setBackfeedMode(qltZPL2BackfeedMode backfeed_mode_);
    // getBackfeedPercentage - not limited to 0..100.
    [[nodiscard]] Long getBackfeedPercentage() const;
    void setBackfeedPercentage(Long backfeed_percentage_);
    [[nodiscard]] Long getTopAdjustment() const;
    void setTopAdjustment(Long top_adjustment_);
    [[nodiscard]] Long getTearOffAdjustment() const;
    void setTearOffAdjustment(Long tear_off_adjustment_);

    // persistence
    // assignObject - copies the seventeen fields. Given Nothing every copy
    // fails and the object stays as it was.
    void assignObject(std::shared_ptr<clsZPL2>& settings_);
    // readObject - reads every field; an absent tag gives the reader's
    // default, which is the fresh default for every field but the print
    // orientation (0, top first). Whole numbers are rounded half-to-even; one
    // that does not fit a Long leaves its field unchanged.
    void readObject(const Variant& buffer);
    // writeObject - the seventeen fields as tagged elements inside
    // "AdvancedPrinterSettingsZPL2".
    [[nodiscard]] Variant writeObject() const;
    [[nodiscard]] String getSaveTag() const;

private:
    void setDefaults();

    qltThermalPrintMode m_printMode{};
    qltZPL2PageMode m_pageMode{};
    qltThermalPrintSpeed m_printSpeed{};
    qltThermalPrintSpeed m_slewSpeed{};
    qltThermalPrintSpeed m_backfeedSpeed{};
    qltThermalPrintDarkness m_printDarkness{};
    qltThermalPrintOrientation m_printOrientation{};
    qltZPL2FeedMode m_feedMode{};
    Boolean m_pauseAfterCut;
    qltZPL2PauseMode m_pauseMode{};
    Long m_pauseInterval{};
    qltThermalCutterMode m_cutterMode{};
    Long m_cutterInterval{};
    qltZPL2BackfeedMode m_backfeedMode{};
    Long m_backfeedPercentage{};
    Long m_topAdjustment{};
    Long m_tearOffAdjustment{};
};

}  // namespace quillet
