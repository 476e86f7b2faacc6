#include "quillet/settings/clsPrintCounter.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

TEST(clsPrintCounter, InitializeStartsPrintingAtTheStartWithoutComparing) {
    clsPrintCounter c;
    c.initialize(5, 9, 20);
    EXPECT_EQ(c.getNowPrinting(), 5);

    c.initialize(2147483647, -2147483647 - 1, -1);
    EXPECT_EQ(c.getNowPrinting(), 2147483647);
    EXPECT_EQ(c.getStopAt(), -2147483647 - 1);
    EXPECT_EQ(c.getFullCount(), -1);
}

TEST(clsPrintCounter, AssignObjectCopiesAllFourAndNothingChangesNothing) {
    auto source = std::make_shared<clsPrintCounter>();
    source->initialize(3, 8, 10);
    source->setNowPrinting(6);
    clsPrintCounter target;
    target.assignObject(source);
    EXPECT_EQ(target.getStartAt(), 3);
    EXPECT_EQ(target.getNowPrinting(), 6);
    EXPECT_EQ(target.getStopAt(), 8);
    EXPECT_EQ(target.getFullCount(), 10);

    EXPECT_NO_THROW(target.assignObject(nullptr));
    EXPECT_EQ(target.getNowPrinting(), 6);
    EXPECT_EQ(target.getFullCount(), 10);
}

}  // namespace
}  // namespace quillet
