#include "quillet/frame/Clock.h"

#include <algorithm>
#include <ctime>

#include "quillet/frame/Calendar.h"

namespace quillet {

namespace {

struct FixedClock {
    bool active = false;
    Date value;
};

FixedClock& fixedClock() noexcept {
    thread_local FixedClock clock;
    return clock;
}

}  // namespace

Date Clock::now() {
    if (fixedClock().active) return fixedClock().value;
    const std::time_t t = std::time(nullptr);
    std::tm local{};
    localtime_r(&t, &local);
    const double day = calendar::dateSerial(local.tm_year + 1900LL, local.tm_mon + 1LL, local.tm_mday).serial;
    const int second = std::min(local.tm_sec, 59);  // a leap second counts as the last one
    return Date(day + calendar::timeFraction(local.tm_hour, local.tm_min, second));
}

Date Clock::today() {
    const Date n = now();
    return calendar::fromDayAndTime(calendar::dayIndex(n), 0.0);
}

ClockScope::ClockScope(Date fixed) : m_hadPrevious(fixedClock().active), m_previous(fixedClock().value) {
    fixedClock() = {true, fixed};
}

ClockScope::~ClockScope() { fixedClock() = {m_hadPrevious, m_previous}; }

}  // namespace quillet
