// quillet/settings/clsOptionsSignaturePad.h - the settings of a signature
// capture pad: ink and paper colours, line thickness, image size and
// quality, buttons, the NDA and standby texts, and how often the pad
// refreshes. A creatable, persistable class.
//
//   auto pad = std::make_shared<clsOptionsSignaturePad>();
//   pad->getBackColor();                    // 16777215 (white)
//   pad->readObject(Variant(u"<Other>1</Other>"));
//   pad->getBackColor();                    // 0: absent colours read as 0, not white
//   pad->getLineThickness();                // 2: an absent thickness keeps its value
//   pad->GetLinesPerRefresh();              // 25
//   pad->readObject(Variant(u"<LineThickness>3x</LineThickness>"));
//   pad->getLineThickness();                // 2: "3x" is no number, so it is not taken
//
// Line thickness and lines per refresh are read as texts that must be whole
// numbers in the regional form; every other number is read by its numeric
// prefix. Every member is continue-on-failure: no failure reaches the caller.
#pragma once

#include <memory>

#include "quillet/frame/Variant.h"
#include "quillet/frame/enums.h"
#include "quillet/frame/types.h"

namespace quillet {

class clsOptionsSignaturePad {
public:
    clsOptionsSignaturePad() { setDefaults(); }

    // Colours are long colours; any value is stored.
    void setForeColor(Long fore_color_);
    [[nodiscard]] Long getForeColor() const;
    void setBackColor(Long back_color_);
    [[nodiscard]] Long getBackColor() const;
    void setLineThickness(Long line_thickness_);
    [[nodiscard]] Long getLineThickness() const;
    void setImageSize(qltSignaturePadImageSizes image_size_);
    [[nodiscard]] qltSignaturePadImageSizes getImageSize() const;
    void setImageQuality(qltSignaturePadImageQualities image_quality_);
    [[nodiscard]] qltSignaturePadImageQualities getImageQuality() const;
    void setButtonOption(qltSignaturePadButtonOptions button_option_);
    [[nodiscard]] qltSignaturePadButtonOptions getButtonOption() const;
    void SetShowNdaOnPad(Boolean show_nda_on_pad_);
    [[nodiscard]] Boolean GetShowNdaOnPad() const;
    void SetDisplayStandbyMessage(Boolean display_standby_message_);
    [[nodiscard]] Boolean GetDisplayStandbyMessage() const;
    void SetStandbyMessage(const String& standby_message_);
    [[nodiscard]] String GetStandbyMessage() const;
    void SetLinesPerRefresh(Long linesPerRefresh_);
    [[nodiscard]] Long GetLinesPerRefresh() const;

    // assignObject - copies all ten fields; Nothing changes nothing.
    void assignObject(const std::shared_ptr<clsOptionsSignaturePad>& options_sig_pad_);
    [[nodiscard]] Variant writeObject() const;
    // readObject - an empty buffer (Empty, Null, "") is not read at all. Of
    // any other buffer, absent colours, image size, image quality and button
    // option read as 0, absent switches as False, an absent standby message
    // as "" and absent lines per refresh as 25. Line thickness and lines per
    // refresh keep their value when their text is no number (an absent line
    // thickness too); a number that does not fit a Long leaves its field.
    void readObject(const Variant& buffer_);
    [[nodiscard]] String getSaveTag() const;  // "OptionsSignaturePad"

    // Implementation details follow.
private:
    void setDefaults();

    Long m_foreColor = 0;
    Long m_backColor = 0;
    Long m_lineThickness = 0;
    qltSignaturePadImageSizes m_imageSize = SIGNATURE_PAD_IMAGE_SIZE_SMALL;
    qltSignaturePadImageQualities m_imageQuality = SIGNATURE_PAD_IMAGE_QUALITY_LOW;
    qltSignaturePadButtonOptions m_buttonOption = SIGNATURE_PAD_BT_OK;
    Boolean m_showNdaOnPad;
    Boolean m_displayStandbyMessage;
    String m_standbyMessage;
    Long m_linesPerRefresh = 0;
};

}  // namespace quillet
