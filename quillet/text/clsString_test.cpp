#include "quillet/text/clsString.h"

#include <gtest/gtest.h>

#include <memory>

#include "quillet/frame/RegionalSettings.h"
#include "quillet/frame/hostenums.h"
#include "quillet/frame/utf8.h"
#include "quillet/text/clsNumericHandling.h"

namespace quillet {
namespace {

struct Unrelated {
    int x = 0;
};

TEST(clsString, HeaderExamplesAndConstant) {
    clsString s;
    EXPECT_EQ(s.US_DATE_TIME_FORMAT(), u"mm/dd/yyyy hh:mm:ss");
    const Variant n = s.stringToNumber(u" 12.5kg ");
    EXPECT_EQ(n.kind(), vbDouble);
    EXPECT_EQ(*n.getIf<Double>(), 12.5);
    EXPECT_EQ(s.booleanToString(True), u"True");
    EXPECT_EQ(s.booleanToString(Boolean::fromRaw(1)), u"False");
    EXPECT_EQ(s.booleanToString(False), u"False");
}

TEST(clsString, StringToNumberIsAlwaysADouble) {
    clsString s;
    struct Row {
        const char16_t* text;
        double expected;
    };
    const Row rows[] = {{u"", 0}, {u"abc", 0}, {u"  -3  ", -3}, {u"1e400", 0}};
    for (const Row& r : rows) {
        const Variant v = s.stringToNumber(r.text);
        EXPECT_EQ(v.kind(), vbDouble) << toUtf8(r.text);
        ASSERT_NE(v.getIf<Double>(), nullptr) << toUtf8(r.text);
        EXPECT_EQ(*v.getIf<Double>(), r.expected) << toUtf8(r.text);
    }
    // The point is the separator under a decimal-comma profile too.
    RegionalScope de(RegionalSettings::fromLocale("de_DE"));
    EXPECT_EQ(*s.stringToNumber(u"2,5").getIf<Double>(), 2.0);
    EXPECT_EQ(*s.stringToNumber(u"2.5").getIf<Double>(), 2.5);
}

TEST(clsString, BytesAndTextRoundTrip) {
    clsString s;
    clsNumericHandling nh;

    const Array<Byte> bytes = s.stringToBytes(Variant(u"Aé€"));
    ASSERT_TRUE(bytes.isAllocated());
    EXPECT_EQ(bytes.lbound(), 0);
    EXPECT_EQ(bytes.ubound(), 2);
    EXPECT_EQ(bytes[0], 0x41);
    EXPECT_EQ(bytes[1], 0xE9);
    EXPECT_EQ(bytes[2], 0x80);
    const Variant text = s.bytesToString(bytes);
    EXPECT_EQ(text.kind(), vbString);
    EXPECT_EQ(*text.getIf<String>(), u"Aé€");

    // A number held by the Variant is taken as its number text.
    const Array<Byte> number = s.stringToBytes(Variant(1.5));
    EXPECT_EQ(number.size(), 3u);

    // Nothing to convert gives an empty array with no bounds.
    for (const Variant& empty : {Variant(u""), Variant(), Variant::null(), Variant(std::make_shared<Unrelated>()),
                                 Variant(nullptr), Variant(Array<Long>::from(0, {1, 2}))}) {
        const Array<Byte> none = s.stringToBytes(empty);
        EXPECT_FALSE(none.isAllocated()) << empty.kind();
        EXPECT_EQ(none.size(), 0u);
    }

    // Empty arrays give an Empty Variant, which the emptiness test agrees with.
    for (const Array<Byte>& empty : {Array<Byte>(), Array<Byte>(0, -1), Array<Byte>(5, 4)}) {
        const Variant v = s.bytesToString(empty);
        EXPECT_TRUE(v.isEmpty());
        EXPECT_EQ(nh.isVariantValueEmpty(v), True);
    }
    // Any lower bound works; bytes the page leaves undefined still give text.
    const Variant odd = s.bytesToString(Array<Byte>::from(-3, {0x61, 0x81, 0x62}));
    ASSERT_NE(odd.getIf<String>(), nullptr);
    EXPECT_EQ(odd.getIf<String>()->size(), 3u);
}

}  // namespace
}  // namespace quillet
