#include "quillet/settings/clsOptionsPrinter.h"

#include "quillet/persistence/internal/Record.h"
#include "quillet/text/clsNumericHandling.h"

namespace quillet {

namespace {

using persistence_internal::field;
using persistence_internal::Record;
using P = clsOptionsPrinter;

constexpr Long DEFAULT_FONT_SIZE = 9;

// The fields in saved order: tag, getter, setter, fresh value, reader's
// default.
const auto& record() {
    static const Record r(
        u"Options", field(u"PrinterName", &P::getPrinterName, &P::setPrinterName, u"", u""),
        field(u"PrintAsGraphics", &P::getPrintAsGraphics, &P::setPrintAsGraphics, False, False),
        field(u"SpoolEachPage", &P::getSpoolEachPage, &P::setSpoolEachPage, False, False),
        field(u"GridLineOption", &P::getGridLineOption, &P::setGridLineOption, RGL_NONE, 0),
        field(u"PrintColumnCaptions", &P::getPrintColumnCaptions, &P::setPrintColumnCaptions, True, True),
        field(u"ReprintFirstCol", &P::getReprintFirstCol, &P::setReprintFirstCol, True, True),
        field(u"PrinterFontSize", &P::getPrinterFontSize, &P::setPrinterFontSize, DEFAULT_FONT_SIZE, DEFAULT_FONT_SIZE),
        field(u"NumberOfCopies", &P::getNumberOfCopies, &P::setNumberOfCopies, 1, 1));
    return r;
}

}  // namespace

void clsOptionsPrinter::setDefaults() { record().setDefaults(*this); }

// No guard against Nothing: each copy fails on its own and nothing changes.
void clsOptionsPrinter::assignObject(std::shared_ptr<clsOptionsPrinter> printer_options_) {
    record().assign(*this, printer_options_);
}

void clsOptionsPrinter::readObject(const Variant& buffer_) {
    if (clsNumericHandling{}.isVariantValueEmpty(buffer_)) return;
    record().read(*this, buffer_);
}

Variant clsOptionsPrinter::writeObject() const { return record().write(*this); }

String clsOptionsPrinter::getSaveTag() const { return record().saveTag(); }

void clsOptionsPrinter::setPrinterName(const String& printer_name_) { m_printerName = printer_name_; }
String clsOptionsPrinter::getPrinterName() const { return m_printerName; }
void clsOptionsPrinter::setPrintAsGraphics(Boolean print_as_graphics_) { m_printAsGraphics = print_as_graphics_; }
Boolean clsOptionsPrinter::getPrintAsGraphics() const { return m_printAsGraphics; }
void clsOptionsPrinter::setSpoolEachPage(Boolean spool_each_page_) { m_spoolEachPage = spool_each_page_; }
Boolean clsOptionsPrinter::getSpoolEachPage() const { return m_spoolEachPage; }
void clsOptionsPrinter::setGridLineOption(QLTReportGridLines grid_line_option_) {
    m_gridLineOption = grid_line_option_;
}
QLTReportGridLines clsOptionsPrinter::getGridLineOption() const { return m_gridLineOption; }
void clsOptionsPrinter::setPrintColumnCaptions(Boolean print_column_captions_) {
    m_printColumnCaptions = print_column_captions_;
}
Boolean clsOptionsPrinter::getPrintColumnCaptions() const { return m_printColumnCaptions; }
void clsOptionsPrinter::setReprintFirstCol(Boolean reprint_first_col_) { m_reprintFirstCol = reprint_first_col_; }
Boolean clsOptionsPrinter::getReprintFirstCol() const { return m_reprintFirstCol; }
void clsOptionsPrinter::setNumberOfCopies(Long number_of_copies_) { m_numberOfCopies = number_of_copies_; }
Long clsOptionsPrinter::getNumberOfCopies() const { return m_numberOfCopies; }
void clsOptionsPrinter::setPrinterFontSize(Long printer_font_size_) { m_printerFontSize = printer_font_size_; }
Long clsOptionsPrinter::getPrinterFontSize() const {
    return m_printerFontSize < 1 ? DEFAULT_FONT_SIZE : m_printerFontSize;
}

}  // namespace quillet
