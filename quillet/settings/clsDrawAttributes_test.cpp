#include "quillet/settings/clsDrawAttributes.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

TEST(clsDrawAttributes, DefaultsUncheckedValuesAssignAndNothing) {
    clsDrawAttributes target;
    EXPECT_EQ(target.getOpacity(), 255);
    EXPECT_EQ(target.getPrintPanel(), QLT_PRINT_ALL_PANELS);
    auto source = std::make_shared<clsDrawAttributes>();
    source->setOpacity(300);                       // not clamped to a byte
    source->setForceToPanel(Boolean::fromRaw(1));  // stored as given, not made True
    source->setIgnoreVisibility(True);
    target.assignObject(source);
    EXPECT_EQ(target.getOpacity(), 300);
    EXPECT_EQ(target.getForceToPanel(), Boolean::fromRaw(1));
    EXPECT_EQ(target.getIgnoreVisibility(), True);
    EXPECT_NO_THROW(target.assignObject(nullptr));
    EXPECT_EQ(target.getOpacity(), 300);
}

}  // namespace
}  // namespace quillet
