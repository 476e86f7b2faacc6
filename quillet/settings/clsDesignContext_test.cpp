#include "quillet/settings/clsDesignContext.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

TEST(clsDesignContext, DefaultsAssignAndNothing) {
    clsDesignContext c;
    EXPECT_EQ(c.getDesignSide(), QLT_DESIGN_FRONT_SIDE);
    EXPECT_EQ(c.getDrawBackground(), True);

    auto source = std::make_shared<clsDesignContext>();
    source->setDesignSide(QLT_DESIGN_BACK_SIDE);
    source->setDrawBackground(False);
    c.assignObject(source);
    EXPECT_EQ(c.getDesignSide(), QLT_DESIGN_BACK_SIDE);
    EXPECT_EQ(c.getDrawBackground(), False);

    c.setDesignSide(QltDesignSide(-7));  // any number is stored
    EXPECT_NO_THROW(c.assignObject(nullptr));
    EXPECT_EQ(c.getDesignSide(), -7);
    EXPECT_EQ(c.getDrawBackground(), False);
}

}  // namespace
}  // namespace quillet
