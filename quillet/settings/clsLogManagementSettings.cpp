#include "quillet/settings/clsLogManagementSettings.h"

#include "quillet/frame/Failure.h"
#include "quillet/frame/convert.h"
#include "quillet/persistence/clsBufferIO.h"
#include "quillet/text/clsNumericHandling.h"

namespace quillet {

namespace {
constexpr Long DEFAULT_LIMIT = 1000;
}  // namespace

void clsLogManagementSettings::setDefaults() {
    m_removeLogsByAge = False;
    m_removeLogsByCount = False;
    m_maxLogAge = DEFAULT_LIMIT;
    m_maxLogCount = DEFAULT_LIMIT;
}

void clsLogManagementSettings::assignObject(std::shared_ptr<clsLogManagementSettings>& log_management_settings_) {
    // Given Nothing, the caller's variable receives a fresh object, whose
    // defaults are then copied.
    if (!log_management_settings_) {
        attempt([&] { log_management_settings_ = std::make_shared<clsLogManagementSettings>(); });
    }
    attempt([&] { setRemoveLogsByAge(deref(log_management_settings_).getRemoveLogsByAge()); });
    attempt([&] { setRemoveLogsByCount(deref(log_management_settings_).getRemoveLogsByCount()); });
    attempt([&] { setMaxLogAge(deref(log_management_settings_).getMaxLogAge()); });
    attempt([&] { setMaxLogCount(deref(log_management_settings_).getMaxLogCount()); });
}

void clsLogManagementSettings::readObject(Variant buffer_) {
    if (clsNumericHandling{}.isVariantValueEmpty(buffer_)) return;
    const clsBufferIO io;
    attempt([&] { setRemoveLogsByAge(io.ReadBooleanBetween(buffer_, u"RemoveLogsByAge", False)); });
    attempt([&] { setRemoveLogsByCount(io.ReadBooleanBetween(buffer_, u"RemoveLogsByCount", False)); });
    attempt([&] { setMaxLogAge(toLong(io.ReadNumberBetween(buffer_, u"MaxLogAge", DEFAULT_LIMIT))); });
    attempt([&] { setMaxLogCount(toLong(io.ReadNumberBetween(buffer_, u"MaxLogCount", DEFAULT_LIMIT))); });
}

Variant clsLogManagementSettings::writeObject() const {
    const clsBufferIO io;
    String fields;
    fields += io.WriteBooleanBetween(u"RemoveLogsByAge", getRemoveLogsByAge());
    fields += io.WriteBooleanBetween(u"RemoveLogsByCount", getRemoveLogsByCount());
    fields += io.WriteNumberBetween(u"MaxLogAge", getMaxLogAge());
    fields += io.WriteNumberBetween(u"MaxLogCount", getMaxLogCount());
    Variant result;
    attempt([&] { result = io.WriteVariantBetween(getSaveTag(), Variant(std::move(fields))); });
    return result;
}

String clsLogManagementSettings::getSaveTag() const { return u"LogManagementSettings"; }

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
