#include "quillet/frame/Collection.h"

#include <gtest/gtest.h>

#include "quillet_test.h"

#include <optional>
#include <random>
#include <vector>

#include "quillet/frame/Array.h"
#include "quillet/frame/NumberText.h"
#include "quillet/frame/TextCompare.h"
#include "quillet/frame/convert.h"

namespace quillet {
namespace {

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

    // A failed Add adds nothing and leaves every key where it was.
    EXPECT_FAILURE(c.Add(u"x", u"KEYa"), errDuplicateKey);
    EXPECT_FAILURE(c.Add(u"x", u"new", 9), errSubscript);
    EXPECT_FAILURE(c.Add(u"x", u"new", u"nokey"), errInvalidCall);
    EXPECT_FAILURE(c.Add(u"x", u"new2", Variant::missing(), u"nokey"), errInvalidCall);
    EXPECT_FAILURE(c.Add(u"x", 5), errTypeMismatch);  // a key is a text
    EXPECT_FAILURE(c.Add(u"x", Variant::missing(), 1, 1), errInvalidCall);
    EXPECT_EQ(order(c), u"0abcd");
    EXPECT_FAILURE((void)c.Item(u"new"), errInvalidCall);
    c.Add(u"n", u"new");  // the key the failed Adds named is still free
    EXPECT_EQ(toText(c.Item(u"keyc")), u"c");
    EXPECT_EQ(toText(c.Item(u"NEW")), u"n");

    // Folding is the rule of text comparison: one unit stays one unit.
    c.Add(u"sz", u"Straße");
    EXPECT_FAILURE((void)c.Item(u"STRASSE"), errInvalidCall);
    EXPECT_EQ(toText(c.Item(u"STRAßE")), u"sz");

    EXPECT_FAILURE((void)c.Item(0), errSubscript);
    EXPECT_FAILURE((void)c.Item(8), errSubscript);
    EXPECT_FAILURE((void)c.Item(Variant()), errTypeMismatch);
    EXPECT_FAILURE(c.Remove(0), errSubscript);
}

// A long run of mixed operations against a plain list of (folded key, item):
// every answer and every failure must agree.
TEST(Collection, AgreesWithAPlainListOverManyOperations) {
    struct Entry {
        std::optional<String> key;
        Long item;
    };
    std::vector<Entry> model;
    Collection c;
    std::mt19937 rng(7);
    const auto keyText = [&](unsigned k) {
        String s = u"key" + numberText(static_cast<Long>(k % 40));
        if (k & 64) s = u"KEY" + s.substr(3);
        return s;
    };
    const auto modelFind = [&](const String& key) -> long {
        const String f = foldCase(key);
        for (std::size_t i = 0; i < model.size(); ++i)
            if (model[i].key == f) return static_cast<long>(i);
        return -1;
    };
    for (Long step = 0; step < 4000; ++step) {
        const unsigned op = rng() % 6;
        const String key = keyText(rng());
        const Long pos = static_cast<Long>(rng() % (model.size() + 2));
        if (op <= 2) {  // Add with a key, before or after a position or key, or at the end
            const bool useKey = rng() % 2 == 0;
            const long exists = modelFind(key);
            long at = static_cast<long>(model.size());
            Variant before = Variant::missing();
            Variant after = Variant::missing();
            Long expectedError = exists >= 0 ? errDuplicateKey : 0;
            if (op == 1 || op == 2) {
                const String other = keyText(rng());
                const long place = useKey ? modelFind(other) : (pos >= 1 && pos <= Long(model.size()) ? pos - 1 : -1);
                (op == 1 ? before : after) = useKey ? Variant(other) : Variant(pos);
                if (!expectedError && place < 0) expectedError = useKey ? errInvalidCall : errSubscript;
                at = op == 1 ? place : place + 1;
            }
            if (expectedError) {
                EXPECT_FAILURE(c.Add(step, key, before, after), expectedError);
            } else {
                c.Add(step, key, before, after);
                model.insert(model.begin() + at, Entry{foldCase(key), step});
            }
        } else if (op == 3) {  // Remove by key or position
            const long at = rng() % 2 ? modelFind(key) : (pos >= 1 && pos <= Long(model.size()) ? pos - 1 : -1);
            if (at < 0) continue;
            if (model[at].key && rng() % 2) c.Remove(*model[at].key);
            else c.Remove(static_cast<Long>(at + 1));
            model.erase(model.begin() + at);
        } else if (op == 4) {  // an item without a key in the middle
            const Long at = static_cast<Long>(rng() % (model.size() + 1));
            if (model.empty()) c.Add(step);
            else if (at == 0) c.Add(step, Variant::missing(), 1);
            else c.Add(step, Variant::missing(), Variant::missing(), at);
            model.insert(model.begin() + at, Entry{std::nullopt, step});
        } else {  // Item by key
            const long at = modelFind(key);
            if (at < 0) EXPECT_FAILURE((void)c.Item(key), errInvalidCall);
            else EXPECT_EQ(c.Item(key), Variant(model[at].item));
        }
        ASSERT_EQ(c.Count(), static_cast<Long>(model.size())) << step;
        if (step % 100 != 99) continue;
        for (std::size_t i = 0; i < model.size(); ++i) {
            ASSERT_EQ(c.Item(static_cast<Long>(i + 1)), Variant(model[i].item)) << step;
            if (model[i].key) {
                ASSERT_EQ(c.Item(*model[i].key), Variant(model[i].item)) << step;
            }
        }
    }
}

// Many small collections, each with its index half full, as full as it gets,
// emptied in a scrambled order: some runs of the index wrap around its end,
// and every key left must still be found after each removal.
TEST(Collection, KeysStayFoundWhileOthersAreRemoved) {
    constexpr Long n = 64;
    for (Long round = 0; round < 300; ++round) {
        // Appended, not u"R" + ...: g++ 12 at -O3 takes that insert for an overlapping copy (-Wrestrict).
        String prefix = u"R";
        prefix += numberText(round);
        prefix += u'-';
        Collection c;
        for (Long i = 0; i < n; ++i) c.Add(i, prefix + numberText(i));
        std::vector<bool> gone(n, false);
        for (Long r = 0; r < n; ++r) {
            const Long k = r * (2 * round + 1) % n;  // an odd step visits every key once
            c.Remove(prefix + numberText(k));
            gone[static_cast<std::size_t>(k)] = true;
            for (Long i = 0; i < n; ++i) {
                if (gone[static_cast<std::size_t>(i)]) continue;
                ASSERT_EQ(c.Item(prefix + numberText(i)), Variant(i)) << toUtf8(prefix) << " after " << r + 1;
            }
        }
        EXPECT_EQ(c.Count(), 0);
    }
}

TEST(Array, BoundsAnyLowerAndUnallocated) {
    Array<String> unallocated;
    EXPECT_FALSE(unallocated.isAllocated());
    EXPECT_FAILURE((void)unallocated.lbound(), errSubscript);
    EXPECT_FAILURE((void)unallocated.ubound(), errSubscript);
    EXPECT_FAILURE((void)unallocated[0], errSubscript);

    Array<Long> one(1, 3);
    one[1] = 10;
    one[3] = 30;
    EXPECT_FAILURE(one[0] = 1, errSubscript);
    EXPECT_FAILURE(one[4] = 1, errSubscript);

    Array<Long> neg(-5, -3);
    neg[-5] = 1;
    neg[-3] = 3;
    EXPECT_FAILURE((void)neg[-6], errSubscript);
    EXPECT_FAILURE((void)neg[-2], errSubscript);

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
    EXPECT_FAILURE(empty.redim(0, -2), errSubscript);
    EXPECT_EQ(empty.ubound(), -1);  // the failed redim changed nothing

    Array<Long> copy = one;  // copied on assignment
    copy[1] = 99;
    EXPECT_EQ(one[1], 10);
    one.erase();
    EXPECT_FALSE(one.isAllocated());
}

}  // namespace
}  // namespace quillet
