// quillet/settings/clsSystemData.h - a date and a time of day fixed when the
// object is made, so that every piece of one print run stamps the same
// moment. A creatable class; it does not save itself.
//
//   auto stamp = std::make_shared<clsSystemData>();   // made 2026-11-23 11:25:36
//   stamp->getDate();                       // Variant(Date{46349.0}): the day, no time
//   stamp->getTime();                       // Variant(Date{0.4760...}): the time of day
//   stamp->setDate(Variant(u"any text"));   // any Variant is stored
//
// The clock is read once, at creation; the values never run on. Every member
// is continue-on-failure: no failure reaches the caller.
#pragma once

#include <memory>

#include "quillet/frame/Variant.h"
#include "quillet/frame/types.h"

namespace quillet {

class clsSystemData {
public:
    clsSystemData() { setDefaults(); }

    // assignObject - copies date and time. Nothing changes nothing.
    void assignObject(const std::shared_ptr<clsSystemData>& system_data_);

    void setDate(const Variant& sys_date_);
    [[nodiscard]] Variant getDate() const;
    void setTime(const Variant& sys_time_);
    [[nodiscard]] Variant getTime() const;

    // Implementation details follow.
private:
    void setDefaults();

    Variant m_date;
    Variant m_time;
};

}  // namespace quillet
