#include "quillet/persistence/clsPoint.h"

#include <cmath>

#include "quillet/frame/Failure.h"
#include "quillet/frame/checked.h"
#include "quillet/frame/convert.h"
#include "quillet/persistence/clsBufferIO.h"

namespace quillet {

void clsPoint::setDefaults() {
    m_x = 0;
    m_y = 0;
}

void clsPoint::setX(Long x_) { m_x = x_; }
Long clsPoint::getX() const { return m_x; }
void clsPoint::setY(Long y_) { m_y = y_; }
Long clsPoint::getY() const { return m_y; }

void clsPoint::setPoint(Long x_, Long y_) {
    m_x = x_;
    m_y = y_;
}

void clsPoint::scalePoint(ScaleMethod scale_method, Long scale_ratio) {
    // Both coordinates in one statement: if either fails, neither changes.
    if (scale_method == ENLARGE) {
        attempt([&] { setPoint(checked::mul(m_x, scale_ratio), checked::mul(m_y, scale_ratio)); });
    } else if (scale_method == SHRINK) {
        attempt([&] { setPoint(checked::div(m_x, scale_ratio), checked::div(m_y, scale_ratio)); });
    }
}

void clsPoint::assignObject(const std::shared_ptr<clsPoint>& point_) {
    if (!point_) {
        setDefaults();
        return;
    }
    setX(point_->getX());
    setY(point_->getY());
}

Variant clsPoint::writeObject() const {
    const clsBufferIO io;
    String fields;
    fields += io.WriteNumberBetween(u"X", getX());
    fields += io.WriteNumberBetween(u"Y", getY());
    return io.WriteVariantBetween(getSaveTag(), Variant(std::move(fields)));
}

void clsPoint::readObject(const Variant& buffer) {
    const clsBufferIO io;
    attempt([&] { setX(toLong(io.ReadNumberBetween(buffer, u"X"))); });
    attempt([&] { setY(toLong(io.ReadNumberBetween(buffer, u"Y"))); });
}

Long clsPoint::distanceFromPoint(const std::shared_ptr<clsPoint>& pt) const {
    Long result = 0;
    attempt([&] {
        const Long dx = checked::sub(deref(pt).getX(), m_x);
        const Long dy = checked::sub(deref(pt).getY(), m_y);
        const double sum = checked::real(std::pow(double(dx), 2.0) + std::pow(double(dy), 2.0));
        result = toLong(checked::real(std::pow(sum, 1.0 / 2.0)));
    });
    return result;
}

String clsPoint::getSaveTag() const { return u"Point"; }

}  // namespace quillet
