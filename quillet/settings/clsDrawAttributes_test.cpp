#include "quillet/settings/clsDrawAttributes.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

TEST(clsDrawAttributes, DefaultsAndUncheckedSetters) {
    clsDrawAttributes a;
    EXPECT_EQ(a.getOpacity(), 255);
    EXPECT_EQ(a.getPrintPanel(), QLT_PRINT_ALL_PANELS);
    EXPECT_EQ(a.getForceToPanel(), False);
    EXPECT_EQ(a.getIgnoreVisibility(), False);

    a.setOpacity(300);  // not clamped to a byte
    EXPECT_EQ(a.getOpacity(), 300);
    a.setPrintPanel(qltPrintPanel(42));
    EXPECT_EQ(a.getPrintPanel(), 42);
    a.setForceToPanel(Boolean::fromRaw(1));  // stored as given, not made True
    EXPECT_EQ(a.getForceToPanel(), Boolean::fromRaw(1));
}

TEST(clsDrawAttributes, AssignObjectCopiesAndNothingChangesNothing) {
    auto source = std::make_shared<clsDrawAttributes>();
    source->setOpacity(-1);
    source->setPrintPanel(QLT_PRINT_UV_PANEL);
    source->setForceToPanel(True);
    source->setIgnoreVisibility(True);
    clsDrawAttributes target;
    target.assignObject(source);
    EXPECT_EQ(target.getOpacity(), -1);
    EXPECT_EQ(target.getPrintPanel(), QLT_PRINT_UV_PANEL);
    EXPECT_EQ(target.getForceToPanel(), True);
    EXPECT_EQ(target.getIgnoreVisibility(), True);

    EXPECT_NO_THROW(target.assignObject(nullptr));
    EXPECT_EQ(target.getOpacity(), -1);
    EXPECT_EQ(target.getIgnoreVisibility(), True);
}

}  // namespace
}  // namespace quillet
