#include "quillet/labeldata/clsOptionsBarcode.h"

#include <gtest/gtest.h>

#include "quillet_test.h"

#include <memory>

#include "quillet/frame/RegionalSettings.h"
#include "quillet/frame/utf8.h"

namespace quillet {
namespace {

constexpr const char* FRESH_TEXT =
    "<OptionsBarcode><Symbology>5</Symbology>\r\n"
    "<Ean13Ext>0</Ean13Ext>\r\n"
    "<FontName>Arial</FontName>\r\n"
    "<FontSize>8</FontSize>\r\n"
    "<Code128CodeSet>0</Code128CodeSet>\r\n"
    "<BarRatio>3</BarRatio>\r\n"
    "<BarWidth>10</BarWidth>\r\n"
    "<BarWidthOption>0</BarWidthOption>\r\n"
    "<BarReduction>0</BarReduction>\r\n"
    "<AI>00</AI>\r\n"
    "</OptionsBarcode>\r\n";

std::shared_ptr<clsOptionsBarcode> changedObject() {
    auto bc = std::make_shared<clsOptionsBarcode>();
    bc->setSymbology(BARCODE_CODE_128);
    bc->setEan13Ext(QLT_EAN13_EXT_5_DIGIT);
    bc->setFontName(u"Courier & <Co>");
    bc->setFontSize(14);
    bc->setCode128CodeSet(CODE_128_CODE_SET_C);
    bc->setBarRatio(2.5);
    bc->setBarWidth(12.25);
    bc->setBarWidthOption(BAR_WIDTH_FIXED);
    bc->setBarReduction(33.5);
    bc->setAI(u"310y");
    return bc;
}

TEST(clsOptionsBarcode, FreshAndChangedObjectsRoundTrip) {
    clsOptionsBarcode fresh;
    EXPECT_EQ(fresh.getSaveTag(), u"OptionsBarcode");
    EXPECT_EQ(savedText(fresh.writeObject()), FRESH_TEXT);
    EXPECT_EQ(fresh.getFontName(), u"Arial");
    EXPECT_EQ(fresh.getBarWidth(), 10.0);

    const auto changed = changedObject();
    const Variant saved = changed->writeObject();
    EXPECT_NE(savedText(saved).find("<FontName>Courier &amp; &lt;Co&gt;</FontName>\r\n"), std::string::npos);
    clsOptionsBarcode back;
    back.readObject(saved);
    EXPECT_EQ(savedText(back.writeObject()), savedText(saved));
    EXPECT_EQ(back.getFontName(), u"Courier & <Co>");

    back.readObject(fresh.writeObject());  // a changed object read from a fresh one's text
    EXPECT_EQ(savedText(back.writeObject()), FRESH_TEXT);
}

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

TEST(clsOptionsBarcode, EmptyBufferReadsNothingButAShortOneReadsZerosAndEmptyTexts) {
    for (const Variant& empty : {Variant(), Variant::null(), Variant(u"")}) {
        const auto bc = changedObject();
        bc->readObject(empty);
        EXPECT_EQ(savedText(bc->writeObject()), savedText(changedObject()->writeObject()));
    }
    // A document of an older host without "AI": absent tags neither keep the
    // field nor bring back its default.
    clsOptionsBarcode bc;
    bc.readObject(
        Variant(u"<OptionsBarcode><Symbology>8</Symbology>\r\n<FontSize>12</FontSize>\r\n</OptionsBarcode>\r\n"));
    EXPECT_EQ(savedText(bc.writeObject()),
              "<OptionsBarcode><Symbology>8</Symbology>\r\n<Ean13Ext>0</Ean13Ext>\r\n<FontName></FontName>\r\n"
              "<FontSize>12</FontSize>\r\n<Code128CodeSet>0</Code128CodeSet>\r\n<BarRatio>0</BarRatio>\r\n"
              "<BarWidth>0</BarWidth>\r\n<BarWidthOption>0</BarWidthOption>\r\n"
              "<BarReduction>0</BarReduction>\r\n<AI></AI>\r\n</OptionsBarcode>\r\n");
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

TEST(clsOptionsBarcode, AssignObjectCopiesAndIgnoresNothing) {
    auto source = changedObject();
    clsOptionsBarcode target;
    target.assignObject(source);
    EXPECT_EQ(savedText(target.writeObject()), savedText(source->writeObject()));
    std::shared_ptr<clsOptionsBarcode> nothing;
    clsOptionsBarcode fresh;
    fresh.assignObject(nothing);
    EXPECT_EQ(savedText(fresh.writeObject()), FRESH_TEXT);
    EXPECT_EQ(nothing, nullptr);
}

}  // namespace
}  // namespace quillet
