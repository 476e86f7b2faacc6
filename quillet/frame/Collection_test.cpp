#include "quillet/frame/Collection.h"

#include <gtest/gtest.h>

#include "quillet/frame/Array.h"
#include "quillet/frame/convert.h"

namespace quillet {
namespace {

Long failureNumber(const std::function<void()>& f) {
    try {
        f();
    } catch (const Failure& e) {
        return e.number();
    }
    return 0;
}

String order(const Collection& c) {
    String s;
    for (Long i = 1; i <= c.Count(); ++i) s += toText(c.Item(i));
    return s;
}

TEST(Collection, KeysIgnoreCaseAreUniqueAndPositionsAreOneBased) {
    Collection c;
    c.Add(u"a", u"KeyA");
    c.Add(u"c", u"keyC");
    c.Add(u"b", Variant::missing(), u"KEYC");                // before by key
    c.Add(u"d", Variant::missing(), Variant::missing(), 3);  // after by position
    c.Add(u"0", Variant::missing(), 1);                      // before the first
    EXPECT_EQ(order(c), u"0abcd");
    EXPECT_EQ(toText(c.Item(u"keya")), u"a");
    EXPECT_EQ(toText(c.Item(2.5)), u"a");  // positions round half-to-even

    EXPECT_EQ(failureNumber([&] { c.Add(u"x", u"KEYa"); }), errDuplicateKey);
    EXPECT_EQ(c.Count(), 5);  // the failed Add added nothing
    EXPECT_EQ(failureNumber([&] { (void)c.Item(0); }), errSubscript);
    EXPECT_EQ(failureNumber([&] { (void)c.Item(6); }), errSubscript);
    EXPECT_EQ(failureNumber([&] { (void)c.Item(u"absent"); }), errInvalidCall);
    EXPECT_EQ(failureNumber([&] { c.Add(u"x", 5); }), errTypeMismatch);  // a key is a text
    EXPECT_EQ(failureNumber([&] { c.Add(u"x", Variant::missing(), 1, 1); }), errInvalidCall);
    EXPECT_EQ(failureNumber([&] { c.Add(u"x", u"new", 9); }), errSubscript);
    EXPECT_EQ(failureNumber([&] { c.Add(u"x", u"new", u"nokey"); }), errInvalidCall);
    EXPECT_EQ(c.Count(), 5);

    c.Remove(u"KEYC");
    c.Remove(1);
    EXPECT_EQ(order(c), u"abd");
    EXPECT_EQ(failureNumber([&] { c.Remove(u"keyc"); }), errInvalidCall);
    c.Add(u"c2", u"keyc");  // a removed key is free again
    EXPECT_EQ(toText(c.Item(u"KeyC")), u"c2");
    EXPECT_EQ(failureNumber([&] { c.Remove(0); }), errSubscript);
}

TEST(Array, BoundsAnyLowerAndUnallocated) {
    Array<String> unallocated;
    EXPECT_FALSE(unallocated.isAllocated());
    EXPECT_EQ(failureNumber([&] { (void)unallocated.lbound(); }), errSubscript);
    EXPECT_EQ(failureNumber([&] { (void)unallocated.ubound(); }), errSubscript);
    EXPECT_EQ(failureNumber([&] { (void)unallocated[0]; }), errSubscript);

    Array<Long> one(1, 3);
    one[1] = 10;
    one[3] = 30;
    EXPECT_EQ(failureNumber([&] { one[0] = 1; }), errSubscript);
    EXPECT_EQ(failureNumber([&] { one[4] = 1; }), errSubscript);

    Array<Long> neg(-5, -3);
    neg[-5] = 1;
    neg[-3] = 3;
    EXPECT_EQ(neg.lbound(), -5);
    EXPECT_EQ(neg.ubound(), -3);
    EXPECT_EQ(failureNumber([&] { (void)neg[-6]; }), errSubscript);
    EXPECT_EQ(failureNumber([&] { (void)neg[-2]; }), errSubscript);

    neg.redimPreserve(-5, -1);  // grows, keeps the first three
    EXPECT_EQ(neg[-5], 1);
    EXPECT_EQ(neg[-3], 3);
    EXPECT_EQ(neg[-1], 0);
    neg.redimPreserve(0, 1);  // elements keep their order from the first
    EXPECT_EQ(neg[0], 1);
    EXPECT_EQ(neg[1], 0);
    neg.redim(0, 1);  // without preserving: zero values
    EXPECT_EQ(neg[0], 0);

    Array<Byte> empty(0, -1);  // allocated, no element
    EXPECT_TRUE(empty.isAllocated());
    EXPECT_EQ(empty.ubound(), -1);
    EXPECT_EQ(failureNumber([&] { empty.redim(0, -2); }), errSubscript);
    EXPECT_EQ(empty.ubound(), -1);  // the failed redim changed nothing

    Array<Long> copy = one;  // copied on assignment
    copy[1] = 99;
    EXPECT_EQ(one[1], 10);
    one.erase();
    EXPECT_FALSE(one.isAllocated());
}

}  // namespace
}  // namespace quillet
