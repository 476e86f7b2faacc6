#include "quillet/text/clsNumericHandling.h"

#include <gtest/gtest.h>

#include <memory>

#include "quillet/frame/Array.h"

namespace quillet {
namespace {

struct Something {
    int x = 0;
};

TEST(clsNumericHandling, IsArrayEmpty) {
    clsNumericHandling n;
    struct Row {
        const char* shows;
        Variant value;
        Boolean expected;
    };
    const Row rows[] = {
        {"unallocated", Variant(Array<Long>()), True},
        {"upper bound below lower", Variant(Array<Long>(0, -1)), True},
        {"one element", Variant(Array<Long>(0, 0)), False},
        {"any bounds", Variant(Array<String>(-5, -4)), False},
        {"byte array", Variant(Array<Byte>::from(1, {7})), False},
        {"empty variant array", Variant(Array<Variant>(1, 0)), True},
        {"no array: a number", Variant(Long{5}), True},
        {"no array: Null", Variant::null(), True},
        {"no array: an object", Variant(std::make_shared<Something>()), True},
    };
    for (const Row& r : rows) EXPECT_EQ(n.isArrayEmpty(r.value), r.expected) << r.shows;
}

TEST(clsNumericHandling, IsVariantValueEmpty) {
    clsNumericHandling n;
    struct Row {
        const char* shows;
        Variant value;
        Boolean expected;
    };
    const Row rows[] = {
        {"Empty", Variant(), True},
        {"Null", Variant::null(), True},
        {"empty text", Variant(u""), True},
        {"a blank is text", Variant(u" "), False},
        {"zero is a value", Variant(Long{0}), False},
        {"False is a value", Variant(False), False},
        {"Date 0 is a value", Variant(Date{0.0}), False},
        {"empty array", Variant(Array<Long>()), True},
        {"array with an element", Variant(Array<Long>(0, 0)), False},
        {"Nothing", Variant(nullptr), True},
        {"an object", Variant(std::make_shared<Something>()), False},
        {"the missing value is an error value, not empty", Variant::missing(), False},
    };
    for (const Row& r : rows) EXPECT_EQ(n.isVariantValueEmpty(r.value), r.expected) << r.shows;
}

}  // namespace
}  // namespace quillet
