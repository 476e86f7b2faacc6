#include "quillet/settings/clsOptionsPrinter.h"

#include <gtest/gtest.h>

#include "quillet_test.h"

namespace quillet {
namespace {

TEST(clsOptionsPrinter, FontSizeBelowOneReadsAndSavesAsNine) {
    clsOptionsPrinter p;
    for (Long size : {0, -1, -2147483647 - 1}) {
        p.setPrinterFontSize(size);
        EXPECT_EQ(p.getPrinterFontSize(), 9) << size;
    }
    EXPECT_NE(savedText(p.writeObject()).find("<PrinterFontSize>9</PrinterFontSize>"), std::string::npos);
    p.setPrinterFontSize(1);
    EXPECT_EQ(p.getPrinterFontSize(), 1);
    p.readObject(Variant(u"<PrinterFontSize>-4</PrinterFontSize>"));
    EXPECT_EQ(p.getPrinterFontSize(), 9);
}

}  // namespace
}  // namespace quillet
