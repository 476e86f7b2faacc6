#include "quillet/settings/clsSystemData.h"

#include <cmath>

#include "quillet/frame/Clock.h"
#include "quillet/frame/Failure.h"

namespace quillet {

void clsSystemData::setDefaults() {
    attempt([&] {
        // One reading of the clock, so that date and time belong to the same second.
        const Date now = Clock::now();
        const double day = std::floor(now.serial);
        m_date = Variant(Date{day});
        m_time = Variant(Date{now.serial - day});
    });
}

void clsSystemData::assignObject(const std::shared_ptr<clsSystemData>& system_data_) {
    // No guard against Nothing: each copy fails on its own and nothing changes.
    attempt([&] { setDate(deref(system_data_).getDate()); });
    attempt([&] { setTime(deref(system_data_).getTime()); });
}

void clsSystemData::setDate(const Variant& sys_date_) { m_date = sys_date_; }
Variant clsSystemData::getDate() const { return m_date; }
void clsSystemData::setTime(const Variant& sys_time_) { m_time = sys_time_; }
Variant clsSystemData::getTime() const { return m_time; }

}  // namespace quillet
