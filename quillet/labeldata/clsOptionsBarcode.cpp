#include "quillet/labeldata/clsOptionsBarcode.h"

#include "quillet/frame/Failure.h"
#include "quillet/frame/convert.h"
#include "quillet/labeldata/internal/modConstants.h"
#include "quillet/persistence/clsBufferIO.h"
#include "quillet/text/clsNumericHandling.h"

namespace quillet {

namespace modConstants = labeldata_internal::modConstants;

clsOptionsBarcode::clsOptionsBarcode() { setDefaults(); }

void clsOptionsBarcode::setDefaults() {
    setSymbology(modConstants::DEFAULT_BARCODE_SYMBOLOGY);
    setEan13Ext(modConstants::DEFAULT_EAN13_EXT);
    setFontName(modConstants::DEFAULT_FONT_NAME);
    setFontSize(modConstants::DEFAULT_FONT_SIZE);
    setCode128CodeSet(modConstants::DEFAULT_CODE_128_CODE_SET);
    setBarRatio(modConstants::DEFAULT_BAR_RATIO);
    setBarWidth(modConstants::DEFAULT_BAR_WIDTH);
    setBarWidthOption(modConstants::DEFAULT_BAR_WIDTH_OPTION);
    setBarReduction(modConstants::DEFAULT_BAR_REDUCTION);
    setAI(modConstants::DEFAULT_UCC128_APPLICATION_CODE);
}

BarcodeSymbology clsOptionsBarcode::getSymbology() const { return symbology; }
void clsOptionsBarcode::setSymbology(BarcodeSymbology symbology_) { symbology = symbology_; }
QltEan13Extension clsOptionsBarcode::getEan13Ext() const { return ean13Ext; }
void clsOptionsBarcode::setEan13Ext(QltEan13Extension ean13_ext_) { ean13Ext = ean13_ext_; }
String clsOptionsBarcode::getFontName() const { return fontName; }
void clsOptionsBarcode::setFontName(const String& font_name_) { fontName = font_name_; }
Long clsOptionsBarcode::getFontSize() const { return fontSize; }
void clsOptionsBarcode::setFontSize(Long font_size_) { fontSize = font_size_; }
qltCode128CodeSet clsOptionsBarcode::getCode128CodeSet() const { return code128CodeSet; }
void clsOptionsBarcode::setCode128CodeSet(qltCode128CodeSet code_128_code_set_) { code128CodeSet = code_128_code_set_; }
Double clsOptionsBarcode::getBarRatio() const { return barRatio; }
void clsOptionsBarcode::setBarRatio(Double bar_ratio_) { barRatio = bar_ratio_; }
Double clsOptionsBarcode::getBarWidth() const { return barWidth; }
void clsOptionsBarcode::setBarWidth(Double bar_width_) { barWidth = bar_width_; }
BarWidthOption clsOptionsBarcode::getBarWidthOption() const { return barWidthOption; }
void clsOptionsBarcode::setBarWidthOption(BarWidthOption bar_width_option_) { barWidthOption = bar_width_option_; }
Double clsOptionsBarcode::getBarReduction() const { return barReduction; }

void clsOptionsBarcode::setBarReduction(Double bar_reduction_) {
    if (bar_reduction_ < modConstants::MIN_BAR_REDUCTION) {
        barReduction = modConstants::MIN_BAR_REDUCTION;
    } else if (bar_reduction_ > modConstants::MAX_BAR_REDUCTION) {
        barReduction = modConstants::MAX_BAR_REDUCTION;
    } else {
        barReduction = bar_reduction_;
    }
}

String clsOptionsBarcode::getAI() const { return ai; }
void clsOptionsBarcode::setAI(const String& ai_) { ai = ai_; }

void clsOptionsBarcode::assignObject(std::shared_ptr<clsOptionsBarcode>& options_barcode_) {
    if (!options_barcode_) return;
    const clsOptionsBarcode& other = *options_barcode_;
    setSymbology(other.getSymbology());
    setEan13Ext(other.getEan13Ext());
    setFontName(other.getFontName());
    setFontSize(other.getFontSize());
    setCode128CodeSet(other.getCode128CodeSet());
    setBarRatio(other.getBarRatio());
    setBarWidth(other.getBarWidth());
    setBarWidthOption(other.getBarWidthOption());
    setBarReduction(other.getBarReduction());
    setAI(other.getAI());
}

Variant clsOptionsBarcode::writeObject() const {
    const clsBufferIO io;
    String fields;
    attempt([&] { fields += io.WriteNumberBetween(u"Symbology", Variant(Long{getSymbology()})); });
    attempt([&] { fields += io.WriteNumberBetween(u"Ean13Ext", Variant(Long{getEan13Ext()})); });
    attempt([&] { fields += io.WriteStringBetween(u"FontName", getFontName()); });
    attempt([&] { fields += io.WriteNumberBetween(u"FontSize", Variant(getFontSize())); });
    attempt([&] { fields += io.WriteNumberBetween(u"Code128CodeSet", Variant(Long{getCode128CodeSet()})); });
    attempt([&] { fields += io.WriteNumberBetween(u"BarRatio", Variant(getBarRatio())); });
    attempt([&] { fields += io.WriteNumberBetween(u"BarWidth", Variant(getBarWidth())); });
    attempt([&] { fields += io.WriteNumberBetween(u"BarWidthOption", Variant(Long{getBarWidthOption()})); });
    attempt([&] { fields += io.WriteNumberBetween(u"BarReduction", Variant(getBarReduction())); });
    attempt([&] { fields += io.WriteStringBetween(u"AI", getAI()); });
    Variant result;
    attempt([&] { result = io.WriteVariantBetween(getSaveTag(), Variant(std::move(fields))); });
    return result;
}

void clsOptionsBarcode::readObject(const Variant& buffer_) {
    if (clsNumericHandling{}.isVariantValueEmpty(buffer_)) return;
    const clsBufferIO io;
    // No reader defaults: an absent tag reads as 0 or "".
    const auto whole = [&](const char16_t* tag) { return toLong(io.ReadNumberBetween(buffer_, tag)); };
    const auto real = [&](const char16_t* tag) { return toDouble(io.ReadNumberBetween(buffer_, tag)); };
    attempt([&] { setSymbology(static_cast<BarcodeSymbology>(whole(u"Symbology"))); });
    attempt([&] { setEan13Ext(static_cast<QltEan13Extension>(whole(u"Ean13Ext"))); });
    attempt([&] { setFontName(io.ReadStringBetween(buffer_, u"FontName")); });
    attempt([&] { setFontSize(whole(u"FontSize")); });
    attempt([&] { setCode128CodeSet(static_cast<qltCode128CodeSet>(whole(u"Code128CodeSet"))); });
    attempt([&] { setBarRatio(real(u"BarRatio")); });
    attempt([&] { setBarWidth(real(u"BarWidth")); });
    attempt([&] { setBarWidthOption(static_cast<BarWidthOption>(whole(u"BarWidthOption"))); });
    attempt([&] { setBarReduction(real(u"BarReduction")); });
    attempt([&] { setAI(io.ReadStringBetween(buffer_, u"AI")); });
}

String clsOptionsBarcode::getSaveTag() const { return u"OptionsBarcode"; }

}  // namespace quillet
