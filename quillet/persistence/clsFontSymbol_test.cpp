#include "quillet/persistence/clsFontSymbol.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

TEST(clsFontSymbol, SavedFormRoundTripsButAbsentTagsReadEmpty) {
    const Variant fresh = std::make_shared<clsFontSymbol>()->writeObject();
    EXPECT_EQ(fresh, Variant(u"<FontSymbol><FontName>Arial</FontName>\r\n<FontChar>A</FontChar>\r\n</FontSymbol>\r\n"));
    auto symbol = std::make_shared<clsFontSymbol>();
    symbol->setFontName(u"Wingdings & Co");
    symbol->setFontChar(u"<");
    symbol->readObject(symbol->writeObject());
    EXPECT_EQ(symbol->getFontName(), u"Wingdings & Co");
    EXPECT_EQ(symbol->getFontChar(), u"<");
    symbol->readObject(fresh);
    EXPECT_EQ(symbol->getFontName(), u"Arial");
    EXPECT_EQ(symbol->getFontChar(), u"A");

    symbol->readObject(Variant(u"no tags"));  // not "Arial" and "A"
    EXPECT_EQ(symbol->getFontName(), u"");
    EXPECT_EQ(symbol->getFontChar(), u"");
}

TEST(clsFontSymbol, AssignObjectCopiesAndIgnoresNothing) {
    auto source = std::make_shared<clsFontSymbol>();
    source->setFontName(u"Symbol");
    source->setFontChar(u"b");
    auto symbol = std::make_shared<clsFontSymbol>();
    symbol->assignObject(source);
    EXPECT_EQ(symbol->getFontName(), u"Symbol");
    EXPECT_EQ(symbol->getFontChar(), u"b");
    symbol->assignObject(nullptr);
    EXPECT_EQ(symbol->getFontName(), u"Symbol");
    EXPECT_EQ(symbol->getFontChar(), u"b");
}

}  // namespace
}  // namespace quillet
