// quillet/settings/clsLogManagementSettings.h - the limits by which a host
// removes old logs: by age, by count, or both. A creatable, persistable
// class; it removes nothing itself.
//
//   auto logs = std::make_shared<clsLogManagementSettings>();
//   logs->getMaxLogAge();                   // 1000
//   logs->setRemoveLogsByAge(True);
//   logs->readObject(Variant(u""));         // an empty buffer changes nothing
//   logs->getRemoveLogsByAge();             // True
//   std::shared_ptr<clsLogManagementSettings> none;
//   logs->assignObject(none);               // none now holds a fresh object,
//   logs->getRemoveLogsByAge();             // False: and its defaults were copied
//
// Every member is continue-on-failure: no failure reaches the caller.
#pragma once

#include <memory>

#include "quillet/frame/Variant.h"
#include "quillet/frame/types.h"

namespace quillet {

class clsLogManagementSettings {
public:
    clsLogManagementSettings() { setDefaults(); }

    // assignObject - copies the four fields. Given Nothing, a new object is
    // put into the caller's variable first, so this one takes the defaults.
    void assignObject(std::shared_ptr<clsLogManagementSettings>& log_management_settings_);
    // readObject - an empty buffer (Empty, Null, "") is not read at all; any
    // other buffer sets every field, absent tags giving False and 1000. A
    // number that does not fit a Long leaves its field as it was.
    void readObject(Variant buffer_);
    [[nodiscard]] Variant writeObject() const;
    [[nodiscard]] String getSaveTag() const;  // "LogManagementSettings"

    void setRemoveLogsByAge(Boolean remove_logs_by_age_);
    [[nodiscard]] Boolean getRemoveLogsByAge() const;
    void setRemoveLogsByCount(Boolean remove_logs_by_count_);
    [[nodiscard]] Boolean getRemoveLogsByCount() const;
    void setMaxLogAge(Long max_log_age_);
    [[nodiscard]] Long getMaxLogAge() const;
    void setMaxLogCount(Long max_log_count_);
    [[nodiscard]] Long getMaxLogCount() const;

    // Implementation details follow.
private:
    void setDefaults();

    Boolean m_removeLogsByAge;
    Boolean m_removeLogsByCount;
    Long m_maxLogAge = 0;
    Long m_maxLogCount = 0;
};

}  // namespace quillet
