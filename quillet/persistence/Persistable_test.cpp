// Every persistable class: its golden saved text, a round trip of changed
// values, the reader's defaults for absent tags, what an empty buffer and an
// assignObject from Nothing do; then hostile buffers: no exception leaves
// readObject, writeObject or assignObject, and write -> read -> write gives
// the same text. The hostile buffers are each class's own saved text with
// every value replaced, so every field's reader meets every bad value.
#include <gtest/gtest.h>

#include "quillet_test.h"

#include <functional>
#include <memory>
#include <string>

#include "quillet/quillet.h"

namespace quillet {
namespace {

// Replaces the text of every innermost element ("<T>value</T>") by what
// `change` makes of it.
String withEveryValue(StringView saved, const std::function<String(StringView)>& change) {
    String out;
    std::size_t i = 0;
    while (i < saved.size()) {
        const std::size_t open = saved.find(u'>', i);
        if (open == StringView::npos) break;
        const std::size_t close = saved.find(u'<', open + 1);
        if (close == StringView::npos) break;
        out.append(saved.substr(i, open + 1 - i));
        const StringView value = saved.substr(open + 1, close - open - 1);
        out.append(close + 1 < saved.size() && saved[close + 1] == u'/' ? change(value) : String(value));
        i = close;
    }
    out.append(saved.substr(i));
    return out;
}

String withEveryValue(StringView saved, StringView value) {
    return withEveryValue(saved, [&](StringView) { return String(value); });
}

// Every Boolean flipped, every other value 7.
String changedValue(StringView v) { return v == u"True" ? u"False" : v == u"False" ? u"True" : u"7"; }

enum EmptyBuffer { EMPTY_READS, EMPTY_KEEPS };
enum GivenNothing { KEEPS, DEFAULTS, DEFAULTS_INTO_CALLER };

struct Shape {
    std::string name;
    std::function<void()> check;
};

template <class T>
Shape row(EmptyBuffer empty, GivenNothing nothing, std::string fresh, std::string absent = {}) {
    return {toUtf8(T().getSaveTag()), [=] {
                const std::string absentText = absent.empty() ? fresh : absent;
                const auto changed = [] {
                    auto object = std::make_shared<T>();
                    object->readObject(Variant(withEveryValue(toText(T().writeObject()), changedValue)));
                    return object;
                };
                EXPECT_EQ(savedText(T().writeObject()), fresh);
                const std::string changedText = savedText(changed()->writeObject());
                EXPECT_NE(changedText, fresh);
                auto copy = std::make_shared<T>();
                copy->readObject(Variant(fromUtf8(changedText)));
                EXPECT_EQ(savedText(copy->writeObject()), changedText) << "round trip";
                auto target = std::make_shared<T>();
                target->assignObject(copy);
                EXPECT_EQ(savedText(target->writeObject()), changedText) << "assignObject";

                auto object = changed();
                object->readObject(Variant(u"no tags"));
                EXPECT_EQ(savedText(object->writeObject()), absentText) << "absent tags";
                object = changed();
                object->readObject(Variant());
                EXPECT_EQ(savedText(object->writeObject()), empty == EMPTY_KEEPS ? changedText : absentText)
                    << "empty buffer";
                object = changed();
                std::shared_ptr<T> none;
                object->assignObject(none);
                EXPECT_EQ(savedText(object->writeObject()), nothing == KEEPS ? changedText : fresh) << "Nothing";
                EXPECT_EQ(none != nullptr, nothing == DEFAULTS_INTO_CALLER) << "the caller's variable";
            }};
}

TEST(Persistable, GoldenTextsRoundTripsReaderDefaultsAndNothing) {
    const std::string zpl2 =
        "<AdvancedPrinterSettingsZPL2><ZPL2PrintMode>0</ZPL2PrintMode>\r\n<ZPL2PageMode>0</ZPL2PageMode>\r\n"
        "<ZPL2PrintSpeed>1</ZPL2PrintSpeed>\r\n<ZPL2SlewSpeed>1</ZPL2SlewSpeed>\r\n"
        "<ZPL2BackfeedSpeed>1</ZPL2BackfeedSpeed>\r\n<ZPL2PrintDarkness>1</ZPL2PrintDarkness>\r\n"
        "<ZPL2PrintOrientation>1</ZPL2PrintOrientation>\r\n<ZPL2FeedMode>0</ZPL2FeedMode>\r\n"
        "<ZPL2PauseAfterCut>False</ZPL2PauseAfterCut>\r\n<ZPL2PauseMode>0</ZPL2PauseMode>\r\n"
        "<ZPL2PauseInterval>0</ZPL2PauseInterval>\r\n<ZPL2CutterMode>1</ZPL2CutterMode>\r\n"
        "<ZPL2CutterInterval>1</ZPL2CutterInterval>\r\n<ZPL2BackfeedMode>0</ZPL2BackfeedMode>\r\n"
        "<ZPL2BackfeedPercentage>0</ZPL2BackfeedPercentage>\r\n<ZPL2TopAdjustment>0</ZPL2TopAdjustment>\r\n"
        "<ZPL2TearOffAdjustment>0</ZPL2TearOffAdjustment>\r\n</AdvancedPrinterSettingsZPL2>\r\n";
    // Absent tags read 0 for the orientation, whose default is 1.
    std::string zpl2Absent = zpl2;
    zpl2Absent.replace(zpl2Absent.find("Orientation>1<"), 14, "Orientation>0<");
    const Shape shapes[] = {
        row<clsPoint>(EMPTY_READS, DEFAULTS, "<Point><X>0</X>\r\n<Y>0</Y>\r\n</Point>\r\n"),
        row<clsSelectionRange>(EMPTY_READS, KEEPS,
                               "<SelectionRange><Start>1</Start>\r\n<End>1</End>\r\n</SelectionRange>\r\n",
                               "<SelectionRange><Start>0</Start>\r\n<End>0</End>\r\n</SelectionRange>\r\n"),
        row<clsTokenValuePair>(EMPTY_KEEPS, DEFAULTS_INTO_CALLER,
                               "<TokenValuePair><Token></Token>\r\n<Value></Value>\r\n</TokenValuePair>\r\n"),
        row<clsFontSymbol>(EMPTY_READS, KEEPS,
                           "<FontSymbol><FontName>Arial</FontName>\r\n<FontChar>A</FontChar>\r\n</FontSymbol>\r\n",
                           "<FontSymbol><FontName></FontName>\r\n<FontChar></FontChar>\r\n</FontSymbol>\r\n"),
        row<clsRulerSettings>(EMPTY_READS, KEEPS,
                              "<RulerSettings><RulerVisibility>True</RulerVisibility>\r\n</RulerSettings>\r\n"),
        row<clsOptionsBarcode>(
            EMPTY_KEEPS, KEEPS,
            "<OptionsBarcode><Symbology>5</Symbology>\r\n<Ean13Ext>0</Ean13Ext>\r\n"
            "<FontName>Arial</FontName>\r\n<FontSize>8</FontSize>\r\n<Code128CodeSet>0</Code128CodeSet>\r\n"
            "<BarRatio>3</BarRatio>\r\n<BarWidth>10</BarWidth>\r\n<BarWidthOption>0</BarWidthOption>\r\n"
            "<BarReduction>0</BarReduction>\r\n<AI>00</AI>\r\n</OptionsBarcode>\r\n",
            "<OptionsBarcode><Symbology>0</Symbology>\r\n<Ean13Ext>0</Ean13Ext>\r\n<FontName></FontName>\r\n"
            "<FontSize>0</FontSize>\r\n<Code128CodeSet>0</Code128CodeSet>\r\n<BarRatio>0</BarRatio>\r\n"
            "<BarWidth>0</BarWidth>\r\n<BarWidthOption>0</BarWidthOption>\r\n<BarReduction>0</BarReduction>\r\n"
            "<AI></AI>\r\n</OptionsBarcode>\r\n"),
        row<clsEPL2>(
            EMPTY_READS, KEEPS,
            "<AdvancedPrinterSettingsEPL2><EPL2PrintMode>0</EPL2PrintMode>\r\n<EPL2PageMode>0</EPL2PageMode>\r\n"
            "<EPL2GapHeight>125</EPL2GapHeight>\r\n<EPL2PrintSpeed>1</EPL2PrintSpeed>\r\n"
            "<EPL2PrintDarkness>1</EPL2PrintDarkness>\r\n<EPL2PrintOrientation>0</EPL2PrintOrientation>\r\n"
            "<EPL2CutterMode>0</EPL2CutterMode>\r\n<EPL2TapToPrint>False</EPL2TapToPrint>\r\n"
            "<EPL2TopOfFormBackup>True</EPL2TopOfFormBackup>\r\n<EPL2GapOffset>0</EPL2GapOffset>\r\n"
            "<EPL2MarkHeight>125</EPL2MarkHeight>\r\n<EPL2MarkOffset>125</EPL2MarkOffset>\r\n"
            "<EPL2CutterInterval>1</EPL2CutterInterval>\r\n<EPL2CutPosition>500</EPL2CutPosition>\r\n"
            "<EPL2ExtraFeed>0</EPL2ExtraFeed>\r\n</AdvancedPrinterSettingsEPL2>\r\n"),
        row<clsZPL2>(EMPTY_READS, KEEPS, zpl2, zpl2Absent),
        row<clsOptionsPrinter>(
            EMPTY_KEEPS, KEEPS,
            "<Options><PrinterName></PrinterName>\r\n<PrintAsGraphics>False</PrintAsGraphics>\r\n"
            "<SpoolEachPage>False</SpoolEachPage>\r\n<GridLineOption>0</GridLineOption>\r\n"
            "<PrintColumnCaptions>True</PrintColumnCaptions>\r\n<ReprintFirstCol>True</ReprintFirstCol>\r\n"
            "<PrinterFontSize>9</PrinterFontSize>\r\n<NumberOfCopies>1</NumberOfCopies>\r\n</Options>\r\n"),
        row<clsMaskProperties>(
            EMPTY_READS, KEEPS,
            "<MaskProperties><ApplyMaskColor>False</ApplyMaskColor>\r\n<MaskColorOption>0</MaskColorOption>\r\n"
            "<MaskColor>0</MaskColor>\r\n<MaskTolerance>0</MaskTolerance>\r\n</MaskProperties>\r\n"),
        row<clsLogManagementSettings>(EMPTY_KEEPS, DEFAULTS_INTO_CALLER,
                                      "<LogManagementSettings><RemoveLogsByAge>False</RemoveLogsByAge>\r\n"
                                      "<RemoveLogsByCount>False</RemoveLogsByCount>\r\n<MaxLogAge>1000</MaxLogAge>\r\n"
                                      "<MaxLogCount>1000</MaxLogCount>\r\n</LogManagementSettings>\r\n"),
        row<clsOptionsLayers>(EMPTY_KEEPS, DEFAULTS_INTO_CALLER,
                              "<LayersOptions><Point><X>690</X>\r\n<Y>1005</Y>\r\n</Point>\r\n<Width>0</Width>\r\n"
                              "<Height>0</Height>\r\n</LayersOptions>\r\n",
                              "<LayersOptions><Point><X>0</X>\r\n<Y>0</Y>\r\n</Point>\r\n<Width>0</Width>\r\n"
                              "<Height>0</Height>\r\n</LayersOptions>\r\n"),
        row<clsOptionsSignaturePad>(
            EMPTY_KEEPS, KEEPS,
            "<OptionsSignaturePad><ForeColor>0</ForeColor>\r\n<BackColor>16777215</BackColor>\r\n"
            "<LineThickness>2</LineThickness>\r\n<ImageSize>0</ImageSize>\r\n<ImageQuality>2</ImageQuality>\r\n"
            "<ButtonOption>3</ButtonOption>\r\n<ShowNdaOnPad>False</ShowNdaOnPad>\r\n"
            "<DisplayStandbyMessage>False</DisplayStandbyMessage>\r\n<StandbyMessage></StandbyMessage>\r\n"
            "<LinesPerRefresh>25</LinesPerRefresh>\r\n</OptionsSignaturePad>\r\n",
            "<OptionsSignaturePad><ForeColor>0</ForeColor>\r\n<BackColor>0</BackColor>\r\n"
            "<LineThickness>7</LineThickness>\r\n<ImageSize>0</ImageSize>\r\n<ImageQuality>0</ImageQuality>\r\n"
            "<ButtonOption>0</ButtonOption>\r\n<ShowNdaOnPad>False</ShowNdaOnPad>\r\n"
            "<DisplayStandbyMessage>False</DisplayStandbyMessage>\r\n<StandbyMessage></StandbyMessage>\r\n"
            "<LinesPerRefresh>25</LinesPerRefresh>\r\n</OptionsSignaturePad>\r\n"),
    };
    for (const Shape& shape : shapes) {
        SCOPED_TRACE(shape.name);
        shape.check();
    }
}

template <class T>
class Persistable : public ::testing::Test {};

using PersistableClasses =
    ::testing::Types<clsPoint, clsSelectionRange, clsTokenValuePair, clsFontSymbol, clsRulerSettings, clsOptionsBarcode,
                     clsEPL2, clsZPL2, clsOptionsPrinter, clsMaskProperties, clsLogManagementSettings, clsOptionsLayers,
                     clsOptionsSignaturePad>;
TYPED_TEST_SUITE(Persistable, PersistableClasses);

TYPED_TEST(Persistable, HostileBuffersNeverThrowAndWritingIsStable) {
    const auto fresh = std::make_shared<TypeParam>();
    const String saved = toText(fresh->writeObject());
    ASSERT_FALSE(saved.empty());
    const String tag = fresh->getSaveTag();

    // write -> read -> write gives the same text, under two profiles.
    for (const auto& profile : {RegionalSettings::usEnglish(), RegionalSettings::fromLocale("de_DE")}) {
        RegionalScope scope(profile);
        const String text = toText(fresh->writeObject());
        auto copy = std::make_shared<TypeParam>();
        copy->readObject(Variant(text));
        EXPECT_EQ(toText(copy->writeObject()), text) << toUtf8(profile.localeName);
    }

    const StringView hostileValues[] = {
        u"1e400",          u"-1e400", u"99999999999", u"-2147483649", u"2147483647.5",      u"abc", u"", u"   ",
        u"&lt;&AMP;&quot", u"<",      u"&HFFFFFFFFF", u"NaN",         StringView(u"\0x", 2)};
    std::vector<Variant> buffers;
    buffers.emplace_back();
    buffers.push_back(Variant::null());
    buffers.emplace_back(Nothing);
    buffers.emplace_back(std::make_shared<int>(1));
    buffers.emplace_back(Array<String>(0, 1));
    buffers.push_back(Variant::missing());
    buffers.emplace_back(1e300);
    buffers.emplace_back(u"<" + tag + u">");
    buffers.emplace_back(saved.substr(0, saved.size() / 2));
    for (StringView v : hostileValues) buffers.emplace_back(withEveryValue(saved, v));

    for (const Variant& buffer : buffers) {
        auto object = std::make_shared<TypeParam>();
        EXPECT_NO_THROW(object->readObject(buffer)) << ::testing::PrintToString(buffer);
        EXPECT_NO_THROW((void)object->writeObject()) << ::testing::PrintToString(buffer);
    }

    auto target = std::make_shared<TypeParam>();
    std::shared_ptr<TypeParam> none;
    EXPECT_NO_THROW(target->assignObject(none));
    EXPECT_NO_THROW((void)target->writeObject());
}

}  // namespace
}  // namespace quillet
