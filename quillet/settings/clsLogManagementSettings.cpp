#include "quillet/settings/clsLogManagementSettings.h"

#include "quillet/persistence/internal/Record.h"
#include "quillet/text/clsNumericHandling.h"

namespace quillet {

namespace {

using persistence_internal::field;
using persistence_internal::Record;

constexpr Long DEFAULT_LIMIT = 1000;

using L = clsLogManagementSettings;

// The fields in saved order: tag, getter, setter, fresh value, reader's default.
const auto& record() {
    static const Record r(u"LogManagementSettings",
                          field(u"RemoveLogsByAge", &L::getRemoveLogsByAge, &L::setRemoveLogsByAge, False, False),
                          field(u"RemoveLogsByCount", &L::getRemoveLogsByCount, &L::setRemoveLogsByCount, False, False),
                          field(u"MaxLogAge", &L::getMaxLogAge, &L::setMaxLogAge, DEFAULT_LIMIT, DEFAULT_LIMIT),
                          field(u"MaxLogCount", &L::getMaxLogCount, &L::setMaxLogCount, DEFAULT_LIMIT, DEFAULT_LIMIT));
    return r;
}

}  // namespace

void clsLogManagementSettings::setDefaults() { record().setDefaults(*this); }

void clsLogManagementSettings::assignObject(std::shared_ptr<clsLogManagementSettings>& log_management_settings_) {
    // Given Nothing, the caller's variable receives a fresh object, whose
    // defaults are then copied.
    if (!log_management_settings_) {
        attempt([&] { log_management_settings_ = std::make_shared<clsLogManagementSettings>(); });
    }
    record().assign(*this, log_management_settings_);
}

void clsLogManagementSettings::readObject(Variant buffer_) {
    if (clsNumericHandling{}.isVariantValueEmpty(buffer_)) return;
    record().read(*this, buffer_);
}

Variant clsLogManagementSettings::writeObject() const { return record().write(*this); }

String clsLogManagementSettings::getSaveTag() const { return record().saveTag(); }

void clsLogManagementSettings::setRemoveLogsByAge(Boolean remove_logs_by_age_) {
    m_removeLogsByAge = remove_logs_by_age_;
}
Boolean clsLogManagementSettings::getRemoveLogsByAge() const { return m_removeLogsByAge; }
void clsLogManagementSettings::setRemoveLogsByCount(Boolean remove_logs_by_count_) {
    m_removeLogsByCount = remove_logs_by_count_;
}
Boolean clsLogManagementSettings::getRemoveLogsByCount() const { return m_removeLogsByCount; }
void clsLogManagementSettings::setMaxLogAge(Long max_log_age_) { m_maxLogAge = max_log_age_; }
Long clsLogManagementSettings::getMaxLogAge() const { return m_maxLogAge; }
void clsLogManagementSettings::setMaxLogCount(Long max_log_count_) { m_maxLogCount = max_log_count_; }
Long clsLogManagementSettings::getMaxLogCount() const { return m_maxLogCount; }

}  // namespace quillet
