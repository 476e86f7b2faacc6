#include "quillet/labeldata/clsOptionsBarcode.h"

#include "quillet/labeldata/internal/modConstants.h"
#include "quillet/persistence/internal/Record.h"
#include "quillet/text/clsNumericHandling.h"

namespace quillet {

namespace {

namespace mc = labeldata_internal::modConstants;
using persistence_internal::field;
using persistence_internal::Record;
using B = clsOptionsBarcode;

// The fields in saved order: tag, getter, setter, fresh value, reader's
// default. The readers carry no default: an absent tag reads as 0 or "".
const auto& record() {
    static const Record r(
        u"OptionsBarcode", field(u"Symbology", &B::getSymbology, &B::setSymbology, mc::DEFAULT_BARCODE_SYMBOLOGY, 0),
        field(u"Ean13Ext", &B::getEan13Ext, &B::setEan13Ext, mc::DEFAULT_EAN13_EXT, 0),
        field(u"FontName", &B::getFontName, &B::setFontName, mc::DEFAULT_FONT_NAME, u""),
        field(u"FontSize", &B::getFontSize, &B::setFontSize, mc::DEFAULT_FONT_SIZE, 0),
        field(u"Code128CodeSet", &B::getCode128CodeSet, &B::setCode128CodeSet, mc::DEFAULT_CODE_128_CODE_SET, 0),
        field(u"BarRatio", &B::getBarRatio, &B::setBarRatio, mc::DEFAULT_BAR_RATIO, 0),
        field(u"BarWidth", &B::getBarWidth, &B::setBarWidth, mc::DEFAULT_BAR_WIDTH, 0),
        field(u"BarWidthOption", &B::getBarWidthOption, &B::setBarWidthOption, mc::DEFAULT_BAR_WIDTH_OPTION, 0),
        field(u"BarReduction", &B::getBarReduction, &B::setBarReduction, mc::DEFAULT_BAR_REDUCTION, 0),
        field(u"AI", &B::getAI, &B::setAI, mc::DEFAULT_UCC128_APPLICATION_CODE, u""));
    return r;
}

}  // namespace

clsOptionsBarcode::clsOptionsBarcode() { setDefaults(); }

// The setters run, so the bar reduction is clamped on every road in.
void clsOptionsBarcode::setDefaults() { record().setDefaults(*this); }

BarcodeSymbology clsOptionsBarcode::getSymbology() const { return m_symbology; }
void clsOptionsBarcode::setSymbology(BarcodeSymbology symbology_) { m_symbology = symbology_; }
QltEan13Extension clsOptionsBarcode::getEan13Ext() const { return m_ean13Ext; }
void clsOptionsBarcode::setEan13Ext(QltEan13Extension ean13_ext_) { m_ean13Ext = ean13_ext_; }
String clsOptionsBarcode::getFontName() const { return m_fontName; }
void clsOptionsBarcode::setFontName(const String& font_name_) { m_fontName = font_name_; }
Long clsOptionsBarcode::getFontSize() const { return m_fontSize; }
void clsOptionsBarcode::setFontSize(Long font_size_) { m_fontSize = font_size_; }
qltCode128CodeSet clsOptionsBarcode::getCode128CodeSet() const { return m_code128CodeSet; }
void clsOptionsBarcode::setCode128CodeSet(qltCode128CodeSet code_128_code_set_) {
    m_code128CodeSet = code_128_code_set_;
}
Double clsOptionsBarcode::getBarRatio() const { return m_barRatio; }
void clsOptionsBarcode::setBarRatio(Double bar_ratio_) { m_barRatio = bar_ratio_; }
Double clsOptionsBarcode::getBarWidth() const { return m_barWidth; }
void clsOptionsBarcode::setBarWidth(Double bar_width_) { m_barWidth = bar_width_; }
BarWidthOption clsOptionsBarcode::getBarWidthOption() const { return m_barWidthOption; }
void clsOptionsBarcode::setBarWidthOption(BarWidthOption bar_width_option_) { m_barWidthOption = bar_width_option_; }
Double clsOptionsBarcode::getBarReduction() const { return m_barReduction; }

void clsOptionsBarcode::setBarReduction(Double bar_reduction_) {
    if (bar_reduction_ < mc::MIN_BAR_REDUCTION) {
        m_barReduction = mc::MIN_BAR_REDUCTION;
    } else if (bar_reduction_ > mc::MAX_BAR_REDUCTION) {
        m_barReduction = mc::MAX_BAR_REDUCTION;
    } else {
        m_barReduction = bar_reduction_;
    }
}

String clsOptionsBarcode::getAI() const { return m_ai; }
void clsOptionsBarcode::setAI(const String& ai_) { m_ai = ai_; }

void clsOptionsBarcode::assignObject(std::shared_ptr<clsOptionsBarcode>& options_barcode_) {
    record().assign(*this, options_barcode_);
}

Variant clsOptionsBarcode::writeObject() const { return record().write(*this); }

void clsOptionsBarcode::readObject(const Variant& buffer_) {
    if (clsNumericHandling{}.isVariantValueEmpty(buffer_)) return;
    record().read(*this, buffer_);
}

String clsOptionsBarcode::getSaveTag() const { return record().saveTag(); }

}  // namespace quillet
