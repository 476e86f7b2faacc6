#include "quillet/frame/RegionalSettings.h"

#include <utility>

namespace quillet {

namespace {
RegionalSettings& threadSettings() noexcept {
    thread_local RegionalSettings settings;
    return settings;
}
}  // namespace

RegionalSettings RegionalSettings::usEnglish() { return RegionalSettings{}; }

const RegionalSettings& RegionalSettings::current() noexcept { return threadSettings(); }

void RegionalSettings::setCurrent(RegionalSettings settings) { threadSettings() = std::move(settings); }

RegionalScope::RegionalScope(RegionalSettings settings) : m_previous(std::move(threadSettings())) {
    threadSettings() = std::move(settings);
}

RegionalScope::~RegionalScope() { threadSettings() = std::move(m_previous); }

}  // namespace quillet
