#include "quillet/settings/clsOptionsSignaturePad.h"

#include "quillet/frame/Failure.h"
#include "quillet/frame/convert.h"
#include "quillet/persistence/clsBufferIO.h"
#include "quillet/text/clsNumericHandling.h"

namespace quillet {

void clsOptionsSignaturePad::setDefaults() {
    m_foreColor = 0;
    m_backColor = 16777215;  // white
    m_lineThickness = 2;
    m_imageSize = SIGNATURE_PAD_IMAGE_SIZE_SMALL;
    m_imageQuality = SIGNATURE_PAD_IMAGE_QUALITY_HIGH;
    m_buttonOption = SIGNATURE_PAD_BT_OK_CLEAR_CANCEL;
    m_showNdaOnPad = False;
    m_displayStandbyMessage = False;
    m_standbyMessage.clear();
    m_linesPerRefresh = 25;
}

void clsOptionsSignaturePad::setForeColor(Long fore_color_) { m_foreColor = fore_color_; }
Long clsOptionsSignaturePad::getForeColor() const { return m_foreColor; }
void clsOptionsSignaturePad::setBackColor(Long back_color_) { m_backColor = back_color_; }
Long clsOptionsSignaturePad::getBackColor() const { return m_backColor; }
void clsOptionsSignaturePad::setLineThickness(Long line_thickness_) { m_lineThickness = line_thickness_; }
Long clsOptionsSignaturePad::getLineThickness() const { return m_lineThickness; }
void clsOptionsSignaturePad::setImageSize(qltSignaturePadImageSizes image_size_) { m_imageSize = image_size_; }
qltSignaturePadImageSizes clsOptionsSignaturePad::getImageSize() const { return m_imageSize; }
void clsOptionsSignaturePad::setImageQuality(qltSignaturePadImageQualities image_quality_) {
    m_imageQuality = image_quality_;
}
qltSignaturePadImageQualities clsOptionsSignaturePad::getImageQuality() const { return m_imageQuality; }
void clsOptionsSignaturePad::setButtonOption(qltSignaturePadButtonOptions button_option_) {
    m_buttonOption = button_option_;
}
qltSignaturePadButtonOptions clsOptionsSignaturePad::getButtonOption() const { return m_buttonOption; }
void clsOptionsSignaturePad::SetShowNdaOnPad(Boolean show_nda_on_pad_) { m_showNdaOnPad = show_nda_on_pad_; }
Boolean clsOptionsSignaturePad::GetShowNdaOnPad() const { return m_showNdaOnPad; }
void clsOptionsSignaturePad::SetDisplayStandbyMessage(Boolean display_standby_message_) {
    m_displayStandbyMessage = display_standby_message_;
}
Boolean clsOptionsSignaturePad::GetDisplayStandbyMessage() const { return m_displayStandbyMessage; }
void clsOptionsSignaturePad::SetStandbyMessage(const String& standby_message_) { m_standbyMessage = standby_message_; }
String clsOptionsSignaturePad::GetStandbyMessage() const { return m_standbyMessage; }
void clsOptionsSignaturePad::SetLinesPerRefresh(Long linesPerRefresh_) { m_linesPerRefresh = linesPerRefresh_; }
Long clsOptionsSignaturePad::GetLinesPerRefresh() const { return m_linesPerRefresh; }

void clsOptionsSignaturePad::assignObject(const std::shared_ptr<clsOptionsSignaturePad>& options_sig_pad_) {
    if (!options_sig_pad_) return;
    const clsOptionsSignaturePad& other = *options_sig_pad_;
    setForeColor(other.getForeColor());
    setBackColor(other.getBackColor());
    setLineThickness(other.getLineThickness());
    setImageSize(other.getImageSize());
    setImageQuality(other.getImageQuality());
    setButtonOption(other.getButtonOption());
    SetShowNdaOnPad(other.GetShowNdaOnPad());
    SetDisplayStandbyMessage(other.GetDisplayStandbyMessage());
    SetStandbyMessage(other.GetStandbyMessage());
    SetLinesPerRefresh(other.GetLinesPerRefresh());
}

Variant clsOptionsSignaturePad::writeObject() const {
    const clsBufferIO io;
    String fields;
    fields += io.WriteNumberBetween(u"ForeColor", getForeColor());
    fields += io.WriteNumberBetween(u"BackColor", getBackColor());
    fields += io.WriteNumberBetween(u"LineThickness", getLineThickness());
    fields += io.WriteNumberBetween(u"ImageSize", Long{getImageSize()});
    fields += io.WriteNumberBetween(u"ImageQuality", Long{getImageQuality()});
    fields += io.WriteNumberBetween(u"ButtonOption", Long{getButtonOption()});
    fields += io.WriteBooleanBetween(u"ShowNdaOnPad", GetShowNdaOnPad());
    fields += io.WriteBooleanBetween(u"DisplayStandbyMessage", GetDisplayStandbyMessage());
    fields += io.WriteStringBetween(u"StandbyMessage", GetStandbyMessage());
    fields += io.WriteNumberBetween(u"LinesPerRefresh", GetLinesPerRefresh());
    Variant result;
    attempt([&] { result = io.WriteVariantBetween(getSaveTag(), Variant(std::move(fields))); });
    return result;
}

void clsOptionsSignaturePad::readObject(const Variant& buffer_) {
    if (clsNumericHandling{}.isVariantValueEmpty(buffer_)) return;
    const clsBufferIO io;
    attempt([&] { setForeColor(toLong(io.ReadNumberBetween(buffer_, u"ForeColor"))); });
    attempt([&] { setBackColor(toLong(io.ReadNumberBetween(buffer_, u"BackColor"))); });
    // Strict conversion on purpose: a text that is no number (the empty text
    // of an absent tag included) fails here and the thickness is kept.
    attempt([&] { setLineThickness(toLong(Variant(io.ReadStringBetween(buffer_, u"LineThickness")))); });
    attempt([&] {
        setImageSize(static_cast<qltSignaturePadImageSizes>(toLong(io.ReadNumberBetween(buffer_, u"ImageSize"))));
    });
    attempt([&] {
        setImageQuality(
            static_cast<qltSignaturePadImageQualities>(toLong(io.ReadNumberBetween(buffer_, u"ImageQuality"))));
    });
    attempt([&] {
        setButtonOption(
            static_cast<qltSignaturePadButtonOptions>(toLong(io.ReadNumberBetween(buffer_, u"ButtonOption"))));
    });
    attempt([&] { SetShowNdaOnPad(io.ReadBooleanBetween(buffer_, u"ShowNdaOnPad", False)); });
    attempt([&] { SetDisplayStandbyMessage(io.ReadBooleanBetween(buffer_, u"DisplayStandbyMessage", False)); });
    attempt([&] { SetStandbyMessage(io.ReadStringBetween(buffer_, u"StandbyMessage", u"")); });
    // Strict as well, but an absent tag reads as "25".
    attempt([&] { SetLinesPerRefresh(toLong(Variant(io.ReadStringBetween(buffer_, u"LinesPerRefresh", u"25")))); });
}

String clsOptionsSignaturePad::getSaveTag() const { return u"OptionsSignaturePad"; }

}  // namespace quillet
