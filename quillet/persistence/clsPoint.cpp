#include "quillet/persistence/clsPoint.h"

#include <cmath>

#include "quillet/frame/Failure.h"
#include "quillet/frame/checked.h"
#include "quillet/frame/convert.h"
#include "quillet/persistence/internal/Record.h"

namespace quillet {

namespace {

using persistence_internal::field;
using persistence_internal::Record;

// The fields in saved order: tag, getter, setter, fresh value, reader's default.
const auto& record() {
    static const Record r(u"Point", field(u"X", &clsPoint::getX, &clsPoint::setX, 0, 0),
                          field(u"Y", &clsPoint::getY, &clsPoint::setY, 0, 0));
    return r;
}

}  // namespace

void clsPoint::setDefaults() { record().setDefaults(*this); }

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
    record().assign(*this, point_);
}

Variant clsPoint::writeObject() const { return record().write(*this); }

void clsPoint::readObject(const Variant& buffer) { record().read(*this, buffer); }

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

String clsPoint::getSaveTag() const { return record().saveTag(); }

}  // namespace quillet
