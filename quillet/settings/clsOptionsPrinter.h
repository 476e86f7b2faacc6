// quillet/settings/clsOptionsPrinter.h - how a report is printed: the
// printer, graphics or text output, spooling, grid lines, captions, copies
// and font size. A creatable, persistable class.
//
//   auto options = std::make_shared<clsOptionsPrinter>();
//   options->setPrinterName(u"Office");
//   options->setPrinterFontSize(0);
//   options->getPrinterFontSize();          // 9: a size below 1 reads as 9
//   options->writeObject();                 // u"<Options><PrinterName>Office</PrinterName>\r\n..."
//                                           //   "<PrinterFontSize>9</PrinterFontSize>\r\n..."
//   options->readObject(Variant(u""));      // an empty buffer changes nothing
//   options->readObject(Variant(u"<X>1</X>"));
//   options->getNumberOfCopies();           // 1: absent tags take the reader's defaults
//
// Setters store what they are given; nothing is clamped, not even on reading.
// Every member is continue-on-failure: no failure reaches the caller.
#pragma once

#include <memory>

#include "quillet/frame/Variant.h"
#include "quillet/frame/enums.h"
#include "quillet/frame/types.h"

namespace quillet {

class clsOptionsPrinter {
public:
    clsOptionsPrinter() { setDefaults(); }

    // assignObject - copies every field of printer_options_, the font size
    // through its getter (so a size below 1 arrives as 9). Nothing changes
    // nothing.
    void assignObject(std::shared_ptr<clsOptionsPrinter> printer_options_);
    // readObject - an empty buffer (Empty, Null, "") is not read at all; any
    // other buffer sets every field, absent tags giving the reader's defaults
    // (which are the fresh defaults). A number that does not fit a Long
    // leaves its field as it was.
    void readObject(const Variant& buffer_);
    [[nodiscard]] Variant writeObject() const;
    [[nodiscard]] String getSaveTag() const;  // "Options"

    void setPrinterName(const String& printer_name_);
    [[nodiscard]] String getPrinterName() const;
    void setPrintAsGraphics(Boolean print_as_graphics_);
    [[nodiscard]] Boolean getPrintAsGraphics() const;
    void setSpoolEachPage(Boolean spool_each_page_);
    [[nodiscard]] Boolean getSpoolEachPage() const;
    void setGridLineOption(QLTReportGridLines grid_line_option_);
    [[nodiscard]] QLTReportGridLines getGridLineOption() const;
    void setPrintColumnCaptions(Boolean print_column_captions_);
    [[nodiscard]] Boolean getPrintColumnCaptions() const;
    void setReprintFirstCol(Boolean reprint_first_col_);
    [[nodiscard]] Boolean getReprintFirstCol() const;
    void setNumberOfCopies(Long number_of_copies_);
    [[nodiscard]] Long getNumberOfCopies() const;
    // setPrinterFontSize - stores any value, 0 and negatives included.
    void setPrinterFontSize(Long printer_font_size_);
    // getPrinterFontSize - the stored size, or 9 when it is below 1.
    [[nodiscard]] Long getPrinterFontSize() const;

    // Implementation details follow.
private:
    void setDefaults();

    String m_printerName;
    Boolean m_printAsGraphics;
    Boolean m_spoolEachPage;
    QLTReportGridLines m_gridLineOption = RGL_NONE;
    Boolean m_printColumnCaptions;
    Boolean m_reprintFirstCol;
    Long m_numberOfCopies = 0;
    Long m_printerFontSize = 0;
};

}  // namespace quillet
