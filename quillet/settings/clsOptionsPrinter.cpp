#include "quillet/settings/clsOptionsPrinter.h"

#include "quillet/frame/Failure.h"
#include "quillet/frame/convert.h"
#include "quillet/persistence/clsBufferIO.h"
#include "quillet/text/clsNumericHandling.h"

namespace quillet {

namespace {
constexpr Long DEFAULT_FONT_SIZE = 9;
}  // namespace

void clsOptionsPrinter::setDefaults() {
    m_printerName.clear();
    m_printAsGraphics = False;
    m_spoolEachPage = False;
    m_gridLineOption = RGL_NONE;
    m_printColumnCaptions = True;
    m_reprintFirstCol = True;
    m_numberOfCopies = 1;
    m_printerFontSize = DEFAULT_FONT_SIZE;
}

void clsOptionsPrinter::assignObject(std::shared_ptr<clsOptionsPrinter> printer_options_) {
    // No guard against Nothing: each copy fails on its own and nothing changes.
    attempt([&] { setPrinterName(deref(printer_options_).getPrinterName()); });
    attempt([&] { setPrintAsGraphics(deref(printer_options_).getPrintAsGraphics()); });
    attempt([&] { setSpoolEachPage(deref(printer_options_).getSpoolEachPage()); });
    attempt([&] { setGridLineOption(deref(printer_options_).getGridLineOption()); });
    attempt([&] { setPrintColumnCaptions(deref(printer_options_).getPrintColumnCaptions()); });
    attempt([&] { setReprintFirstCol(deref(printer_options_).getReprintFirstCol()); });
    attempt([&] { setNumberOfCopies(deref(printer_options_).getNumberOfCopies()); });
    attempt([&] { setPrinterFontSize(deref(printer_options_).getPrinterFontSize()); });
}

void clsOptionsPrinter::readObject(const Variant& buffer_) {
    if (clsNumericHandling{}.isVariantValueEmpty(buffer_)) return;
    const clsBufferIO io;
    attempt([&] { setPrinterName(io.ReadStringBetween(buffer_, u"PrinterName", u"")); });
    attempt([&] { setPrintAsGraphics(io.ReadBooleanBetween(buffer_, u"PrintAsGraphics", False)); });
    attempt([&] { setSpoolEachPage(io.ReadBooleanBetween(buffer_, u"SpoolEachPage", False)); });
    attempt([&] {
        setGridLineOption(
            static_cast<QLTReportGridLines>(toLong(io.ReadNumberBetween(buffer_, u"GridLineOption", Long{0}))));
    });
    attempt([&] { setPrintColumnCaptions(io.ReadBooleanBetween(buffer_, u"PrintColumnCaptions", True)); });
    attempt([&] { setReprintFirstCol(io.ReadBooleanBetween(buffer_, u"ReprintFirstCol", True)); });
    attempt([&] { setPrinterFontSize(toLong(io.ReadNumberBetween(buffer_, u"PrinterFontSize", DEFAULT_FONT_SIZE))); });
    attempt([&] { setNumberOfCopies(toLong(io.ReadNumberBetween(buffer_, u"NumberOfCopies", Long{1}))); });
}

Variant clsOptionsPrinter::writeObject() const {
    const clsBufferIO io;
    String fields;
    fields += io.WriteStringBetween(u"PrinterName", getPrinterName());
    fields += io.WriteBooleanBetween(u"PrintAsGraphics", getPrintAsGraphics());
    fields += io.WriteBooleanBetween(u"SpoolEachPage", getSpoolEachPage());
    fields += io.WriteNumberBetween(u"GridLineOption", Long{getGridLineOption()});
    fields += io.WriteBooleanBetween(u"PrintColumnCaptions", getPrintColumnCaptions());
    fields += io.WriteBooleanBetween(u"ReprintFirstCol", getReprintFirstCol());
    fields += io.WriteNumberBetween(u"PrinterFontSize", getPrinterFontSize());
    fields += io.WriteNumberBetween(u"NumberOfCopies", getNumberOfCopies());
    Variant result;
    attempt([&] { result = io.WriteVariantBetween(getSaveTag(), Variant(std::move(fields))); });
    return result;
}

String clsOptionsPrinter::getSaveTag() const { return u"Options"; }

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
