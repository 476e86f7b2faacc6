#include "quillet/persistence/clsSelectionRange.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillet {
namespace {

TEST(clsSelectionRange, ReadingAndAssigningDoNotCheckTheRange) {
    auto r = std::make_shared<clsSelectionRange>();
    r->readObject(Variant(u""));  // not the 1 and 1 of a new range
    EXPECT_EQ(r->getLength(), 1);
    r->readObject(Variant(u"<Start>9</Start><End>-3</End>"));
    EXPECT_EQ(r->getStart(), 9);
    EXPECT_EQ(r->getEnd(), -3);
    EXPECT_EQ(r->getLength(), 0);
    auto copy = std::make_shared<clsSelectionRange>();
    copy->assignObject(r);
    EXPECT_EQ(copy->getStart(), 9);
    EXPECT_EQ(copy->getEnd(), -3);
}

TEST(clsSelectionRange, SelectRangeChecksAndGetLengthFollows) {
    struct Row {
        const char* name;
        Long start, end;
        Long expected_start, expected_end, expected_length;
    };
    const Row rows[] = {
        {"valid", 3, 7, 3, 7, 5},
        {"start above end", 5, 3, 1, 1, 1},
        {"negative start", -1, 3, 1, 1, 1},
        {"zero is accepted", 0, 0, 0, 0, 1},
        {"length beyond Long", 0, std::numeric_limits<Long>::max(), 0, std::numeric_limits<Long>::max(), 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        auto r = std::make_shared<clsSelectionRange>();
        r->selectRange(row.start, row.end);
        EXPECT_EQ(r->getStart(), row.expected_start);
        EXPECT_EQ(r->getEnd(), row.expected_end);
        EXPECT_EQ(r->getLength(), row.expected_length);
    }
}

}  // namespace
}  // namespace quillet
