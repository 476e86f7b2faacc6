// quillet/persistence/clsPoint.h - a point in whole units. A creatable,
// persistable class with the save tag "Point".
//
//   auto p = std::make_shared<clsPoint>();
//   p->setPoint(3, 4);
//   p->distanceFromPoint(std::make_shared<clsPoint>());   // 5
//   p->scalePoint(SHRINK, 2);                             // (1, 2): truncated toward zero
//   p->writeObject();                                     // u"<Point><X>1</X>\r\n<Y>2</Y>\r\n</Point>\r\n"
//   p->scalePoint(ENLARGE, 1073741824);                   // overflow: still (1, 2)
//   p->readObject(Variant(u""));                          // (0, 0): absent tags read as 0
//
// Every member is continue-on-failure: no failure reaches the caller.
#pragma once

#include <memory>

#include "quillet/frame/Variant.h"
#include "quillet/frame/enums.h"
#include "quillet/frame/types.h"

namespace quillet {

class clsPoint {
public:
    clsPoint() { setDefaults(); }

    void setX(Long x_);
    [[nodiscard]] Long getX() const;
    void setY(Long y_);
    [[nodiscard]] Long getY() const;
    void setPoint(Long x_, Long y_);
    // scalePoint - ENLARGE multiplies, SHRINK divides (truncating toward
    // zero) both coordinates by scale_ratio; any other method does nothing.
    // An overflow or a ratio of 0 leaves the point as it was.
    void scalePoint(ScaleMethod scale_method, Long scale_ratio);
    // assignObject - copies x and y; Nothing resets the point to (0, 0).
    void assignObject(const std::shared_ptr<clsPoint>& point_);
    [[nodiscard]] Variant writeObject() const;
    // readObject - reads "X" and "Y"; an absent tag reads as 0, a number that
    // does not fit a Long leaves its field as it was.
    void readObject(const Variant& buffer);
    // distanceFromPoint - the distance to pt, rounded half-to-even; 0 when pt
    // is Nothing or the distance does not fit a Long.
    [[nodiscard]] Long distanceFromPoint(const std::shared_ptr<clsPoint>& pt) const;
    [[nodiscard]] String getSaveTag() const;  // "Point"

    // Implementation details follow.
private:
    void setDefaults();

    Long m_x = 0;
    Long m_y = 0;
};

}  // namespace quillet
