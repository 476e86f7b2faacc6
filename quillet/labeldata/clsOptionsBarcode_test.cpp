#include "quillet/labeldata/clsOptionsBarcode.h"

#include <gtest/gtest.h>

#include "quillet_test.h"

#include <memory>

#include "quillet/frame/RegionalSettings.h"
#include "quillet/frame/utf8.h"

namespace quillet {
namespace {

TEST(clsOptionsBarcode, BarReductionIsClampedBySetterReaderAndAssign) {
    const std::pair<Double, Double> rows[] = {{-1.0, 0.0},    {0.0, 0.0},     {42.75, 42.75},
                                              {100.0, 100.0}, {100.5, 100.0}, {1e308, 100.0}};
    for (const auto& [given, stored] : rows) {
        clsOptionsBarcode bc;
        bc.setBarReduction(given);
        EXPECT_EQ(bc.getBarReduction(), stored) << given;
    }
    clsOptionsBarcode bc;
    bc.readObject(Variant(u"<BarReduction>250</BarReduction>\r\n"));
    EXPECT_EQ(bc.getBarReduction(), 100.0);
}

TEST(clsOptionsBarcode, HostileNumbersNeverThrow) {
    clsOptionsBarcode bc;
    bc.readObject(Variant(u"<FontSize>8.5</FontSize><Symbology>9.5</Symbology><BarRatio>2.5</BarRatio>"));
    EXPECT_EQ(bc.getFontSize(), 8);  // whole numbers half-to-even, Doubles as they are
    EXPECT_EQ(bc.getSymbology(), 10);
    EXPECT_EQ(bc.getBarRatio(), 2.5);
    // A whole number beyond a Long leaves its field; a Double takes it;
    // garbage reads as its numeric prefix; an unterminated tag is no element.
    bc.readObject(
        Variant(u"<FontSize>1e300</FontSize><BarWidth>1e300</BarWidth><BarRatio>x7</BarRatio>"
                u"<Ean13Ext>2kg</Ean13Ext><FontName>Arial<AI>01</AI>"));
    EXPECT_EQ(bc.getFontSize(), 8);
    EXPECT_EQ(bc.getBarWidth(), 1e300);
    EXPECT_EQ(bc.getBarRatio(), 0.0);
    EXPECT_EQ(bc.getEan13Ext(), 2);
    EXPECT_EQ(bc.getFontName(), u"");
    EXPECT_EQ(bc.getAI(), u"01");
}

TEST(clsOptionsBarcode, DecimalCommaIsWrittenButReadBackOnlyToTheComma) {
    RegionalSettings comma = RegionalSettings::usEnglish();
    comma.decimalSeparator = String(1, u',');  // a move: g++ 12 warns falsely on assigning a literal
    RegionalScope scope(comma);
    clsOptionsBarcode bc;
    bc.setBarRatio(2.5);
    EXPECT_NE(savedText(bc.writeObject()).find("<BarRatio>2,5</BarRatio>"), std::string::npos);
    clsOptionsBarcode back;
    back.readObject(bc.writeObject());
    EXPECT_EQ(back.getBarRatio(), 2.0);
}

}  // namespace
}  // namespace quillet
