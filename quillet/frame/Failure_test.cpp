#include "quillet/frame/Failure.h"

#include <gtest/gtest.h>

#include <memory>

#include "quillet/frame/checked.h"

namespace quillet {
namespace {

// A continue-on-failure member written with the helpers: each statement that
// can fail is wrapped; a failing statement leaves its target unchanged and
// the member goes on with the next one.
struct Accumulator {
    Long total = 0;
    Long steps = 0;
    void addTwice(Long value) {
        attempt([&] { total = checked::add(total, value); });
        attempt([&] { total = checked::add(total, value); });
        ++steps;  // cannot fail: no wrapping
    }
};

// A stop-on-failure member: the first failure ends it with its failure result
// (-1 here); statements after the failure do not run.
Long parseAndCount(Long a, Long b, Long& sideEffects) {
    return stopOnFailure(Long{-1}, [&] {
        ++sideEffects;
        const Long q = checked::div(a, b);
        ++sideEffects;
        return q;
    });
}

// A conditional under continue-on-failure: a test that fails runs the first branch.
String classify(const std::shared_ptr<Long>& value) {
    String result;
    if (attemptTest([&] { return deref(value) > 10; })) {
        result = u"big";
    } else {
        result = u"small";
    }
    return result;
}

TEST(FailureRule, ContinueOnFailureSkipsOnlyTheFailingStatement) {
    Accumulator a;
    a.total = 2147483600;
    a.addTwice(40);  // first add fits (2147483640), second overflows and is skipped
    EXPECT_EQ(a.total, 2147483640);
    EXPECT_EQ(a.steps, 1);
    a.addTwice(-40);
    EXPECT_EQ(a.total, 2147483560);
}

TEST(FailureRule, StopOnFailureEndsWithTheFailureResult) {
    Long effects = 0;
    EXPECT_EQ(parseAndCount(7, 2, effects), 3);
    EXPECT_EQ(effects, 2);
    effects = 0;
    EXPECT_EQ(parseAndCount(7, 0, effects), -1);
    EXPECT_EQ(effects, 1);  // the statement after the failure never ran
    // Any exception counts as a failure, as a host object's own would.
    EXPECT_EQ(stopOnFailure(5, []() -> int { throw std::runtime_error("host"); }), 5);
}

TEST(FailureRule, FailingTestOfAConditionalRunsTheFirstBranch) {
    EXPECT_EQ(classify(std::make_shared<Long>(11)), u"big");
    EXPECT_EQ(classify(std::make_shared<Long>(3)), u"small");
    EXPECT_EQ(classify(nullptr), u"big");  // call on Nothing fails: first branch
}

TEST(FailureRule, FailureCarriesTheClassicNumbers) {
    try {
        (void)deref(std::shared_ptr<int>());
        FAIL();
    } catch (const Failure& e) {
        EXPECT_EQ(e.number(), 91);
        EXPECT_STREQ(e.what(), "Object variable or With block variable not set");
    }
    EXPECT_EQ(Failure(errDuplicateKey).number(), 457);
    EXPECT_STREQ(Failure(errOverflow).what(), "Overflow");
}

}  // namespace
}  // namespace quillet
