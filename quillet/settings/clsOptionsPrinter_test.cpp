#include "quillet/settings/clsOptionsPrinter.h"

#include <gtest/gtest.h>

#include "quillet/frame/utf8.h"

namespace quillet {
namespace {

std::string saved(const clsOptionsPrinter& p) {
    const Variant buffer = p.writeObject();
    const String* text = buffer.getIf<String>();
    return text ? toUtf8(*text) : std::string("<not a String>");
}

// Every field away from its default, so a reader that skips one shows it.
std::shared_ptr<clsOptionsPrinter> changed() {
    auto p = std::make_shared<clsOptionsPrinter>();
    p->setPrinterName(u"Lab <2> & \"Co\"");
    p->setPrintAsGraphics(True);
    p->setSpoolEachPage(True);
    p->setGridLineOption(RGL_BOTH);
    p->setPrintColumnCaptions(False);
    p->setReprintFirstCol(False);
    p->setNumberOfCopies(3);
    p->setPrinterFontSize(12);
    return p;
}

const std::string FRESH_TEXT =
    "<Options><PrinterName></PrinterName>\r\n"
    "<PrintAsGraphics>False</PrintAsGraphics>\r\n"
    "<SpoolEachPage>False</SpoolEachPage>\r\n"
    "<GridLineOption>0</GridLineOption>\r\n"
    "<PrintColumnCaptions>True</PrintColumnCaptions>\r\n"
    "<ReprintFirstCol>True</ReprintFirstCol>\r\n"
    "<PrinterFontSize>9</PrinterFontSize>\r\n"
    "<NumberOfCopies>1</NumberOfCopies>\r\n"
    "</Options>\r\n";

TEST(clsOptionsPrinter, FreshObjectSavesTheGoldenTextAndReadsItBack) {
    clsOptionsPrinter fresh;
    EXPECT_EQ(fresh.getSaveTag(), u"Options");
    EXPECT_EQ(fresh.getNumberOfCopies(), 1);
    EXPECT_EQ(fresh.getPrintColumnCaptions(), True);
    EXPECT_EQ(saved(fresh), FRESH_TEXT);

    auto other = changed();
    other->readObject(fresh.writeObject());
    EXPECT_EQ(saved(*other), FRESH_TEXT);

    clsOptionsPrinter copy;
    copy.readObject(changed()->writeObject());
    EXPECT_EQ(saved(copy), saved(*changed()));
    EXPECT_EQ(copy.getPrinterName(), u"Lab <2> & \"Co\"");
    EXPECT_EQ(copy.getGridLineOption(), RGL_BOTH);
}

TEST(clsOptionsPrinter, FontSizeBelowOneReadsAndSavesAsNine) {
    clsOptionsPrinter p;
    for (Long size : {0, -1, -2147483647 - 1}) {
        p.setPrinterFontSize(size);
        EXPECT_EQ(p.getPrinterFontSize(), 9) << size;
    }
    EXPECT_NE(saved(p).find("<PrinterFontSize>9</PrinterFontSize>"), std::string::npos);
    p.setPrinterFontSize(1);
    EXPECT_EQ(p.getPrinterFontSize(), 1);
    p.readObject(Variant(u"<PrinterFontSize>-4</PrinterFontSize>"));
    EXPECT_EQ(p.getPrinterFontSize(), 9);
}

TEST(clsOptionsPrinter, EmptyBufferKeepsEverythingAnyOtherResetsToReaderDefaults) {
    auto p = changed();
    for (const Variant& empty : {Variant(), Variant(u""), Variant::null(), Variant(Nothing)}) {
        p->readObject(empty);
        EXPECT_EQ(saved(*p), saved(*changed()));
    }
    p->readObject(Variant(u"<Unrelated>1</Unrelated>"));
    EXPECT_EQ(saved(*p), FRESH_TEXT);

    // Nothing is clamped on the way in.
    p->readObject(Variant(u"<NumberOfCopies>0</NumberOfCopies><GridLineOption>7</GridLineOption>"));
    EXPECT_EQ(p->getNumberOfCopies(), 0);
    EXPECT_EQ(p->getGridLineOption(), 7);
}

TEST(clsOptionsPrinter, AssignObjectCopiesAndNothingChangesNothing) {
    auto source = changed();
    source->setPrinterFontSize(0);
    clsOptionsPrinter target;
    target.assignObject(source);
    EXPECT_EQ(saved(target), saved(*source));
    EXPECT_EQ(target.getPrinterFontSize(), 9);

    auto kept = changed();
    EXPECT_NO_THROW(kept->assignObject(nullptr));
    EXPECT_EQ(saved(*kept), saved(*changed()));
}

TEST(clsOptionsPrinter, NumbersRoundHalfEvenAndTooLargeKeepsTheField) {
    struct Row {
        const char16_t* text;
        Long copies;  // from 3
    } rows[] = {
        {u"2.5", 2},
        {u"3.5", 4},
        {u"-0.5", 0},
        {u"7kg", 7},
        {u"abc", 0},
        {u"1,5", 1},
        {u"2147483647", 2147483647},
        {u"2147483647.5", 3},
        {u"1e300", 3},
        {u"-1e300", 3},
    };
    for (const Row& r : rows) {
        auto p = changed();
        EXPECT_NO_THROW(p->readObject(Variant(u"<NumberOfCopies>" + String(r.text) + u"</NumberOfCopies>")));
        EXPECT_EQ(p->getNumberOfCopies(), r.copies) << toUtf8(r.text);
    }
    auto p = changed();
    EXPECT_NO_THROW(p->readObject(Variant(12.5)));
    EXPECT_NO_THROW(p->readObject(Variant(std::make_shared<clsOptionsPrinter>())));
    EXPECT_NO_THROW(p->readObject(Variant(u"<Options><Options>")));
}

}  // namespace
}  // namespace quillet
