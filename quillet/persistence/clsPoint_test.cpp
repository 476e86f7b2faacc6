#include "quillet/persistence/clsPoint.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillet {
namespace {

constexpr Long LONG_MAX_ = std::numeric_limits<Long>::max();
constexpr Long LONG_MIN_ = std::numeric_limits<Long>::min();

std::shared_ptr<clsPoint> pointAt(Long x, Long y) {
    auto p = std::make_shared<clsPoint>();
    p->setPoint(x, y);
    return p;
}

TEST(clsPoint, ReadsTheFirstPointOfABuffer) {
    auto p = pointAt(5, 6);
    p->readObject(Variant(u"<Point><X>1</X>\r\n<Y>2</Y>\r\n</Point>\r\n<Point><X>8</X>\r\n<Y>9</Y>\r\n</Point>\r\n"));
    EXPECT_EQ(p->getX(), 1);
    EXPECT_EQ(p->getY(), 2);
    // A number that does not fit a Long leaves its field; the other is read.
    p->readObject(Variant(u"<X>99999999999</X><Y>2.5</Y>"));
    EXPECT_EQ(p->getX(), 1);
    EXPECT_EQ(p->getY(), 2);  // half-to-even
}

TEST(clsPoint, ScalePointChangesBothOrNeither) {
    struct Row {
        const char* name;
        Long x, y;
        ScaleMethod method;
        Long ratio;
        Long expected_x, expected_y;
    };
    const Row rows[] = {
        {"enlarge", 3, -4, ENLARGE, 2, 6, -8},
        {"enlarge overflow in x", 1073741824, 1, ENLARGE, 2, 1073741824, 1},
        {"enlarge overflow in y", 1, LONG_MIN_, ENLARGE, -1, 1, LONG_MIN_},
        {"shrink truncates toward zero", 7, -7, SHRINK, 2, 3, -3},
        {"shrink by 0", 7, 8, SHRINK, 0, 7, 8},
        {"shrink the smallest by -1", LONG_MIN_, 4, SHRINK, -1, LONG_MIN_, 4},
        {"none", 7, 8, None_, 2, 7, 8},
        {"unknown method", 7, 8, ScaleMethod(9), 2, 7, 8},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        auto p = pointAt(r.x, r.y);
        p->scalePoint(r.method, r.ratio);
        EXPECT_EQ(p->getX(), r.expected_x);
        EXPECT_EQ(p->getY(), r.expected_y);
    }
}

TEST(clsPoint, DistanceRoundsHalfToEvenAndIsZeroOnFailure) {
    const auto origin = pointAt(0, 0);
    EXPECT_EQ(origin->distanceFromPoint(pointAt(1, 1)), 1);
    EXPECT_EQ(origin->distanceFromPoint(pointAt(3, 4)), 5);
    EXPECT_EQ(origin->distanceFromPoint(pointAt(1, 2)), 2);
    EXPECT_EQ(origin->distanceFromPoint(nullptr), 0);
    EXPECT_EQ(pointAt(LONG_MIN_, 0)->distanceFromPoint(pointAt(LONG_MAX_, 0)), 0);  // the difference overflows
    EXPECT_EQ(origin->distanceFromPoint(pointAt(LONG_MAX_, LONG_MAX_)), 0);         // the distance does not fit
    EXPECT_EQ(origin->distanceFromPoint(pointAt(LONG_MAX_, 0)), LONG_MAX_);
}

}  // namespace
}  // namespace quillet
