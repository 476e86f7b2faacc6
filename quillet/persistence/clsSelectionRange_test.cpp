#include "quillet/persistence/clsSelectionRange.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillet {
namespace {

TEST(clsSelectionRange, SavedFormRoundTripsButAnEmptyBufferReadsZero) {
    const Variant fresh = std::make_shared<clsSelectionRange>()->writeObject();
    EXPECT_EQ(fresh, Variant(u"<SelectionRange><Start>1</Start>\r\n<End>1</End>\r\n</SelectionRange>\r\n"));
    auto r = std::make_shared<clsSelectionRange>();
    r->selectRange(4, 9);
    r->readObject(fresh);
    EXPECT_EQ(r->getStart(), 1);
    EXPECT_EQ(r->getEnd(), 1);

    r->readObject(Variant(u""));  // not the 1 and 1 of a new range
    EXPECT_EQ(r->getStart(), 0);
    EXPECT_EQ(r->getEnd(), 0);
    EXPECT_EQ(r->getLength(), 1);

    // Reading does not check the range.
    r->readObject(Variant(u"<Start>9</Start><End>-3</End>"));
    EXPECT_EQ(r->getStart(), 9);
    EXPECT_EQ(r->getEnd(), -3);
    EXPECT_EQ(r->getLength(), 0);
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

TEST(clsSelectionRange, AssignObjectCopiesUncheckedAndIgnoresNothing) {
    auto source = std::make_shared<clsSelectionRange>();
    source->readObject(Variant(u"<Start>8</Start><End>2</End>"));
    auto r = std::make_shared<clsSelectionRange>();
    r->assignObject(source);
    EXPECT_EQ(r->getStart(), 8);
    EXPECT_EQ(r->getEnd(), 2);
    r->assignObject(nullptr);
    EXPECT_EQ(r->getStart(), 8);
    EXPECT_EQ(r->getEnd(), 2);
}

}  // namespace
}  // namespace quillet
