#include "quillet/settings/clsSystemData.h"

#include <gtest/gtest.h>

#include "quillet/frame/Clock.h"

namespace quillet {
namespace {

TEST(clsSystemData, DateAndTimeAreTakenOnceAtCreation) {
    ClockScope fixed(Date{42006.75});  // 2 January 2015 18:00
    clsSystemData s;
    const Variant dateValue = s.getDate();
    const Variant timeValue = s.getTime();
    const Date* day = dateValue.getIf<Date>();
    const Date* time = timeValue.getIf<Date>();
    ASSERT_NE(day, nullptr);
    ASSERT_NE(time, nullptr);
    EXPECT_EQ(day->serial, 42006.0);  // the day alone
    EXPECT_EQ(time->serial, 0.75);    // the time of day alone
}

TEST(clsSystemData, SettersTakeAnyVariantAndAssignCopies) {
    auto a = std::make_shared<clsSystemData>();
    auto b = std::make_shared<clsSystemData>();
    a->setDate(Variant(u"not a date"));
    a->setTime(Variant::null());
    b->assignObject(a);
    EXPECT_EQ(b->getDate(), Variant(u"not a date"));
    EXPECT_TRUE(b->getTime().isNull());
    a->setDate(Variant(5));  // a copy, not a shared value
    EXPECT_EQ(b->getDate(), Variant(u"not a date"));

    EXPECT_NO_THROW(b->assignObject(nullptr));
    EXPECT_EQ(b->getDate(), Variant(u"not a date"));
}

}  // namespace
}  // namespace quillet
