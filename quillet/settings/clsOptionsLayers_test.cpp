#include "quillet/settings/clsOptionsLayers.h"

#include <gtest/gtest.h>

#include "quillet/frame/utf8.h"

namespace quillet {
namespace {

std::shared_ptr<clsOptionsLayers> changed() {
    auto l = std::make_shared<clsOptionsLayers>();
    l->setX(-3);
    l->setY(44);
    l->setWidth(300);
    l->setHeight(200);
    return l;
}

void expectValues(const clsOptionsLayers& l, Long x, Long y, Long width, Long height, const char* where) {
    EXPECT_EQ(l.getX(), x) << where;
    EXPECT_EQ(l.getY(), y) << where;
    EXPECT_EQ(l.getWidth(), width) << where;
    EXPECT_EQ(l.getHeight(), height) << where;
}

TEST(clsOptionsLayers, ThePointReadsOnlyItsOwnSection) {
    auto l = changed();
    l->readObject(Variant(u"<Width>77</Width>\r\n"));
    expectValues(*l, 0, 0, 77, 0, "width only");

    // The point reads only inside its own element: an X outside it is not its.
    l = changed();
    l->readObject(Variant(u"<X>5</X><Height>9</Height><Point><Y>8</Y></Point>"));
    expectValues(*l, 0, 8, 0, 9, "X outside the point");

    l = changed();
    EXPECT_NO_THROW(l->readObject(Variant(u"<Point><X>1e99</X><Y>abc</Y></Point><Width>-2147483649</Width>")));
    EXPECT_EQ(l->getY(), 0);
    EXPECT_EQ(l->getWidth(), 300);  // beyond a Long: kept
}

TEST(clsOptionsLayers, PositionIsHeldNotShared) {
    clsOptionsLayers l;
    auto point = l.getPosition();
    point->setX(10);  // the held point itself
    EXPECT_EQ(l.getX(), 10);

    auto mine = std::make_shared<clsPoint>();
    mine->setX(1);
    mine->setY(2);
    l.setPosition(mine);  // values copied, no reference kept
    mine->setX(99);
    EXPECT_EQ(l.getX(), 1);
    EXPECT_EQ(l.getY(), 2);
    EXPECT_NE(l.getPosition(), mine);

    std::shared_ptr<clsPoint> none;
    l.setPosition(none);
    ASSERT_NE(none, nullptr);
    EXPECT_EQ(l.getX(), 0);
    EXPECT_EQ(l.getY(), 0);
}

}  // namespace
}  // namespace quillet
