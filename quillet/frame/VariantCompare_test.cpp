#include "quillet/frame/VariantCompare.h"

#include <gtest/gtest.h>

#include "quillet_test.h"

#include <memory>

namespace quillet {
namespace {

using enum VariantOrder;

// Each row is checked both ways round: swapping the sides must mirror the answer.
TEST(VariantCompare, KindsMeetAsTheHostLanguageHasThem) {
    struct Row {
        const char* shows;
        Variant a;
        Variant b;
        VbCompareMethod mode;
        VariantOrder expected;
    };
    const Row rows[] = {
        {"Long and Double by value", Variant(2), Variant(2.0), vbBinaryCompare, Equal},
        {"Integer below Single", Variant(Integer{1}), Variant(1.5f), vbBinaryCompare, Less},
        {"a Single widens exactly: 0.1f lies above 0.1", Variant(0.1f), Variant(0.1), vbBinaryCompare, Greater},
        {"True is -1", Variant(True), Variant(-1), vbBinaryCompare, Equal},
        {"True below Empty", Variant(True), Variant(), vbBinaryCompare, Less},
        {"False equals Empty", Variant(False), Variant(), vbBinaryCompare, Equal},
        {"a Date is its serial", Variant(Date{1.5}), Variant(1.5), vbBinaryCompare, Equal},
        {"Empty is 0 against a number", Variant(), Variant(-0.5), vbBinaryCompare, Greater},
        {"Empty is \"\" against a text", Variant(), Variant(u""), vbBinaryCompare, Equal},
        {"Empty below any other text", Variant(), Variant(u"a"), vbBinaryCompare, Less},
        {"binary: lower case above upper", Variant(u"abc"), Variant(u"ABC"), vbBinaryCompare, Greater},
        {"text: case ignored", Variant(u"abc"), Variant(u"ABC"), vbTextCompare, Equal},
        {"text: order of folded letters", Variant(u"apple"), Variant(u"BANANA"), vbTextCompare, Less},
        {"a number below a text, whatever it says", Variant(9), Variant(u"1"), vbBinaryCompare, Less},
        {"a Date below a text", Variant(Date{40000.0}), Variant(u""), vbTextCompare, Less},
        {"a Boolean below a text", Variant(False), Variant(u"False"), vbBinaryCompare, Less},
        {"Null against Null", Variant::null(), Variant::null(), vbBinaryCompare, Null},
        {"Null against Empty", Variant::null(), Variant(), vbBinaryCompare, Null},
        {"Null against a text", Variant::null(), Variant(u"a"), vbTextCompare, Null},
        {"Null against an object too", Variant::null(), Variant(std::make_shared<int>(1)), vbBinaryCompare, Null},
    };
    const auto mirror = [](VariantOrder o) { return o == Less ? Greater : (o == Greater ? Less : o); };
    for (const Row& r : rows) {
        EXPECT_EQ(compareVariants(r.a, r.b, r.mode), r.expected) << r.shows;
        EXPECT_EQ(compareVariants(r.b, r.a, r.mode), mirror(r.expected)) << r.shows << " (swapped)";
    }
}

TEST(VariantCompare, ObjectsArraysAndErrorValuesFail) {
    const Variant failing[] = {Variant(std::make_shared<int>(1)), Variant(nullptr), Variant(Array<Long>(0, 0)),
                               Variant::missing(), Variant::error(5)};
    for (const Variant& v : failing) {
        EXPECT_FAILURE((void)compareVariants(v, Variant(1)), errTypeMismatch);
        EXPECT_FAILURE((void)compareVariants(Variant(u"a"), v), errTypeMismatch);
        EXPECT_FAILURE((void)compareVariants(Variant(), v), errTypeMismatch);
        EXPECT_FAILURE((void)compareVariants(v, v), errTypeMismatch);
    }
}

}  // namespace
}  // namespace quillet
