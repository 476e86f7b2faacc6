#include "quillet/frame/Variant.h"

#include <gtest/gtest.h>

#include "quillet_test.h"

#include "quillet/frame/RegionalSettings.h"
#include "quillet/frame/convert.h"
#include "quillet/frame/print.h"

namespace quillet {
namespace {

struct Thing {
    int n = 0;
};
struct Other {};

TEST(Variant, EveryKindHasItsCode) {
    struct Row {
        const char* name;
        Variant value;
        Integer code;
    } rows[] = {
        {"Empty", Variant(), 0},
        {"Null", Variant::null(), 1},
        {"Integer", Variant(Integer{2}), 2},
        {"Long", Variant(Long{2}), 3},
        {"int literal", Variant(2), 3},
        {"Single", Variant(2.5f), 4},
        {"Double", Variant(2.5), 5},
        {"Date", Variant(Date{1.0}), 7},
        {"String", Variant(u"a"), 8},
        {"object", Variant(std::make_shared<Thing>()), 9},
        {"Nothing", Variant(Nothing), 9},
        {"missing", Variant::missing(), 10},
        {"Boolean", Variant(True), 11},
        {"bool", Variant(false), 11},
        {"Byte", Variant(Byte{7}), 17},
        {"Integer()", Variant(Array<Integer>()), 8194},
        {"Long()", Variant(Array<Long>(0, 0)), 8195},
        {"String()", Variant(Array<String>(1, 2)), 8200},
        {"Variant()", Variant(Array<Variant>()), 8204},
        {"Byte()", Variant(Array<Byte>()), 8209},
    };
    for (const Row& r : rows) {
        EXPECT_EQ(r.value.kind(), r.code) << r.name;
        EXPECT_EQ(r.value.isArray(), r.code >= 8192) << r.name;
    }
    EXPECT_TRUE(Variant::missing().isMissing());
    EXPECT_EQ(Variant::missing().getIf<ErrorValue>()->code, -2147352572);
    EXPECT_FALSE(Variant::error(5).isMissing());
    EXPECT_TRUE(Variant(Nothing).isNothing());
    EXPECT_FALSE(Variant().isNothing());
}

TEST(Variant, CopiesAreDeepButObjectsAreShared) {
    Array<String> a(0, 1);
    a[0] = u"x";
    Variant v(a);
    Variant copy = v;
    (*copy.getIf<Array<String>>())[0] = u"y";
    EXPECT_EQ((*v.getIf<Array<String>>())[0], u"x");

    auto thing = std::make_shared<Thing>();
    Variant o(thing);
    Variant o2 = o;
    o2.object<Thing>()->n = 5;
    EXPECT_EQ(thing->n, 5);
    EXPECT_EQ(o.object<Other>(), nullptr);  // asked as the wrong type: Nothing
    EXPECT_FAILURE((void)Variant(1).object<Thing>(), errTypeMismatch);
}

TEST(Variant, ConversionsFollowTheHostLanguage) {
    RegionalScope us(RegionalSettings::usEnglish());
    EXPECT_EQ(toText(Variant()), u"");
    EXPECT_EQ(toText(Variant(True)), u"True");
    EXPECT_EQ(toText(Variant(Boolean::fromRaw(1))), u"True");
    EXPECT_FAILURE((void)toText(Variant::null()), errInvalidNull);
    EXPECT_FAILURE((void)toText(Variant(std::make_shared<Thing>())), errTypeMismatch);
    EXPECT_FAILURE((void)toText(Variant(Array<Long>())), errTypeMismatch);

    EXPECT_EQ(toDouble(Variant(True)), -1.0);
    EXPECT_EQ(toDouble(Variant(u" 2.5 ")), 2.5);
    EXPECT_FAILURE((void)toDouble(Variant(u"2.5kg")), errTypeMismatch);
    EXPECT_FAILURE((void)toDouble(Variant::null()), errInvalidNull);
    EXPECT_FAILURE((void)toDouble(Variant(u"1e999")), errOverflow);
    EXPECT_EQ(toLong(Variant(u"2.5")), 2);
    EXPECT_EQ(toLong(Variant(u"3.5")), 4);
    EXPECT_FAILURE((void)toInteger(Variant(40000)), errOverflow);
    EXPECT_EQ(toBoolean(Variant(u"tRUE")), True);
    EXPECT_EQ(toBoolean(Variant(u"0")), False);
    EXPECT_EQ(toBoolean(Variant(0.5)), True);
    EXPECT_FAILURE((void)toBoolean(Variant(u"yes")), errTypeMismatch);
    EXPECT_EQ(toDate(Variant(2.25)).serial, 2.25);
    EXPECT_FAILURE((void)toDate(Variant(3e6)), errOverflow);

    EXPECT_TRUE(isNumeric(Variant()));
    EXPECT_TRUE(isNumeric(Variant(u"-1.5E3")));
    EXPECT_FALSE(isNumeric(Variant(u"1.5x")));
    EXPECT_FALSE(isNumeric(Variant(Date{1.0})));
    EXPECT_FALSE(isNumeric(Variant::null()));
}

TEST(Boolean, TrueIsMinusOneAndARawOneIsDistinct) {
    static_assert(sizeof(Boolean) == 2);
    static_assert(!std::is_convertible_v<int, Boolean>, "a raw number must be made explicitly");
    EXPECT_EQ(True.raw(), -1);
    EXPECT_EQ(Boolean(true), True);
    const Boolean one = Boolean::fromRaw(1);
    EXPECT_TRUE(static_cast<bool>(one));
    EXPECT_NE(one, True);
    EXPECT_FALSE(!one);
}

TEST(Variant, PrintsItsValueAndKindForFailureMessages) {
    auto printed = [](const Variant& v) { return ::testing::PrintToString(v); };
    EXPECT_EQ(printed(Variant()), "Empty");
    EXPECT_EQ(printed(Variant::null()), "Null");
    EXPECT_EQ(printed(Variant(2.5)), "2.5 (Double)");
    EXPECT_EQ(printed(Variant(u"<A>\"x\"</A>\r\n")), "\"<A>\\\"x\\\"</A>\\r\\n\" (String)");
    EXPECT_EQ(printed(Variant::missing()), "Missing");
    EXPECT_EQ(printed(Variant::error(5)), "Error 5");
    EXPECT_EQ(printed(Variant(Nothing)), "Nothing");
    EXPECT_EQ(printed(Variant(Array<String>())), "String()");
}

}  // namespace
}  // namespace quillet
