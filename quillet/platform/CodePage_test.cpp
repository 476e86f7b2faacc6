#include "quillet/platform/CodePage.h"

#include <gtest/gtest.h>

#include "quillet_test.h"

#include "quillet/frame/Failure.h"
#include "quillet/frame/RegionalSettings.h"
#include "quillet/text/clsString.h"

namespace quillet {
namespace {

TEST(CodePage, Windows1252RoundTripAndSubstitution) {
    EXPECT_EQ(toCodePage(u"Grüße €", 1252), std::string("Gr\xFC\xDF"
                                                        "e \x80"));
    EXPECT_EQ(fromCodePage(std::string("\x80"), 1252), u"€");
    // Every byte that 1252 defines comes back as itself.
    std::string all;
    for (int b = 1; b < 256; ++b)
        if (b != 0x81 && b != 0x8D && b != 0x8F && b != 0x90 && b != 0x9D) all += static_cast<char>(b);
    EXPECT_EQ(toCodePage(fromCodePage(all, 1252), 1252), all);
    // What the page cannot hold becomes one "?" per character, a pair of units included.
    EXPECT_EQ(toCodePage(u"aΩ\U0001F600b", 1252), "a??b");
    EXPECT_EQ(toCodePage(u"", 1252), "");
    EXPECT_EQ(toCodePage(String(u"a\0b", 3), 1252), std::string("a\0b", 3));
    EXPECT_FAILURE((void)toCodePage(u"a", 12345), errInvalidCall);
}

TEST(CodePage, CyrillicPageFollowsTheProfile) {
    EXPECT_EQ(toCodePage(u"Привет", 1251), "\xCF\xF0\xE8\xE2\xE5\xF2");
    EXPECT_EQ(fromCodePage("\xCF\xF0\xE8\xE2\xE5\xF2", 1251), u"Привет");
    EXPECT_EQ(toCodePage(u"Привет", 1252), "??????");

    clsString s;
    RegionalScope ru(RegionalSettings::fromLocale("ru_RU"));
    const Array<Byte> bytes = s.stringToBytes(Variant(u"Ёж"));
    ASSERT_EQ(bytes.size(), 2u);
    EXPECT_EQ(bytes[0], 0xA8);
    EXPECT_EQ(bytes[1], 0xE6);
    const Variant back = s.bytesToString(bytes);
    ASSERT_NE(back.getIf<String>(), nullptr);
    EXPECT_EQ(*back.getIf<String>(), u"Ёж");
}

}  // namespace
}  // namespace quillet
