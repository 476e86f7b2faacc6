// quillet/labeldata/clsOptionsBarcode.h - the settings of one barcode on a
// label: symbology, human-readable text font, bar widths, application
// identifier. It draws and encodes nothing; hosts read the values. A
// creatable, persistable object with the save tag "OptionsBarcode".
//
//   auto bc = std::make_shared<clsOptionsBarcode>();
//   bc->setBarReduction(150);          // clamped
//   bc->getBarReduction();             // 100.0
//   Variant saved = bc->writeObject();
//   // u"<OptionsBarcode><Symbology>5</Symbology>\r\n<Ean13Ext>0</Ean13Ext>\r\n"
//   // u"<FontName>Arial</FontName>\r\n<FontSize>8</FontSize>\r\n"
//   // u"<Code128CodeSet>0</Code128CodeSet>\r\n<BarRatio>3</BarRatio>\r\n"
//   // u"<BarWidth>10</BarWidth>\r\n<BarWidthOption>0</BarWidthOption>\r\n"
//   // u"<BarReduction>100</BarReduction>\r\n<AI>00</AI>\r\n</OptionsBarcode>\r\n"
//   auto copy = std::make_shared<clsOptionsBarcode>();
//   copy->readObject(saved);           // the same ten values
//   copy->readObject(Variant(u"<FontSize>12</FontSize>"));
//   copy->getFontName();               // u"": an absent tag reads as 0 or "", not as the default
//   copy->readObject(Variant());       // an empty buffer reads nothing: all fields stay
//
// Only setBarReduction checks its value; every other setter stores what it is
// given, and no member relates the symbology to the other fields.
#pragma once

#include <memory>

#include "quillet/frame/Variant.h"
#include "quillet/frame/enums.h"
#include "quillet/frame/types.h"

namespace quillet {

class clsOptionsBarcode {
public:
    clsOptionsBarcode();

    // fields, in the order they are saved
    [[nodiscard]] BarcodeSymbology getSymbology() const;
    void setSymbology(BarcodeSymbology symbology_);
    [[nodiscard]] QltEan13Extension getEan13Ext() const;
    void setEan13Ext(QltEan13Extension ean13_ext_);
    [[nodiscard]] String getFontName() const;
    void setFontName(const String& font_name_);
    [[nodiscard]] Long getFontSize() const;
    void setFontSize(Long font_size_);
    [[nodiscard]] qltCode128CodeSet getCode128CodeSet() const;
    void setCode128CodeSet(qltCode128CodeSet code_128_code_set_);
    // getBarRatio - the ratio of wide to narrow bars.
    [[nodiscard]] Double getBarRatio() const;
    void setBarRatio(Double bar_ratio_);
    [[nodiscard]] Double getBarWidth() const;
    void setBarWidth(Double bar_width_);
    [[nodiscard]] BarWidthOption getBarWidthOption() const;
    void setBarWidthOption(BarWidthOption bar_width_option_);
    // getBarReduction - the bar width reduction in per cent, 0 to 100.
    [[nodiscard]] Double getBarReduction() const;
    // setBarReduction - stores the value clamped to 0..100: -1 gives 0, 100.5
    // gives 100. assignObject and readObject go through it, so they clamp too.
    void setBarReduction(Double bar_reduction_);
    // getAI - the application identifier code as plain text; no reference to
    // a clsUccAISpec is kept.
    [[nodiscard]] String getAI() const;
    void setAI(const String& ai_);

    // persistence
    // assignObject - copies the ten fields through the setters. Given Nothing
    // it changes nothing.
    void assignObject(std::shared_ptr<clsOptionsBarcode>& options_barcode_);
    // writeObject - the ten fields as tagged elements inside "OptionsBarcode".
    [[nodiscard]] Variant writeObject() const;
    // readObject - an empty buffer (Empty, Null, "") reads nothing. Otherwise
    // every field is read, and a tag that is absent gives 0 or "" - not the
    // fresh default, so a buffer without "AI" leaves an empty code. Whole
    // numbers are rounded half-to-even; one that does not fit a Long leaves
    // its field unchanged.
    void readObject(const Variant& buffer_);
    [[nodiscard]] String getSaveTag() const;

private:
    void setDefaults();

    BarcodeSymbology m_symbology{};
    QltEan13Extension m_ean13Ext{};
    String m_fontName{};
    Long m_fontSize{};
    qltCode128CodeSet m_code128CodeSet{};
    Double m_barRatio{};
    Double m_barWidth{};
    BarWidthOption m_barWidthOption{};
    Double m_barReduction{};
    String m_ai{};
};

}  // namespace quillet
