#include "quillet/settings/clsOptionsSignaturePad.h"

#include <gtest/gtest.h>

#include "quillet/frame/RegionalSettings.h"
#include "quillet/frame/utf8.h"

namespace quillet {
namespace {

std::shared_ptr<clsOptionsSignaturePad> changed() {
    auto p = std::make_shared<clsOptionsSignaturePad>();
    p->setForeColor(255);
    p->setLineThickness(7);
    p->SetLinesPerRefresh(40);
    return p;
}

TEST(clsOptionsSignaturePad, StrictFieldsKeepTheirValueOnNonNumbers) {
    struct Row {
        const char16_t* text;
        Long thickness;  // from 7
        Long lines;      // from 40
        Long foreColor;  // the numeric-prefix reading of the same text, from 255
    } rows[] = {
        {u"3", 3, 3, 3},
        {u" 4 ", 4, 4, 4},
        {u"2.5", 2, 2, 2},
        {u"3.5", 4, 4, 4},
        {u"3x", 7, 40, 3},
        {u"abc", 7, 40, 0},
        {u"", 7, 25, 0},  // present but empty: each reader's
                          // default
        {u"1e300", 7, 40, 255},
        {u"2147483648", 7, 40, 255},
    };
    for (const Row& r : rows) {
        auto p = changed();
        const String text(r.text);
        EXPECT_NO_THROW(p->readObject(Variant(u"<LineThickness>" + text + u"</LineThickness><LinesPerRefresh>" + text +
                                              u"</LinesPerRefresh><ForeColor>" + text + u"</ForeColor>")));
        EXPECT_EQ(p->getLineThickness(), r.thickness) << "\"" << toUtf8(text) << "\"";
        EXPECT_EQ(p->GetLinesPerRefresh(), r.lines) << "\"" << toUtf8(text) << "\"";
        EXPECT_EQ(p->getForeColor(), r.foreColor) << "\"" << toUtf8(text) << "\"";
    }
}

TEST(clsOptionsSignaturePad, StrictFieldsReadTheRegionalDecimalSeparator) {
    RegionalScope german(RegionalSettings::fromLocale("de_DE"));
    auto p = changed();
    p->readObject(Variant(u"<LineThickness>4,5</LineThickness><ForeColor>4,5</ForeColor>"));
    EXPECT_EQ(p->getLineThickness(), 4);  // 4.5 rounds half-to-even
    EXPECT_EQ(p->getForeColor(), 4);      // numeric prefix stops at the comma
    p->readObject(Variant(u"<LineThickness>5.5</LineThickness><ForeColor>5.5</ForeColor>"));
    EXPECT_EQ(p->getLineThickness(), 4);  // not a German number: kept
    EXPECT_EQ(p->getForeColor(), 6);
}

}  // namespace
}  // namespace quillet
