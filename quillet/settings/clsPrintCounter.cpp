#include "quillet/settings/clsPrintCounter.h"

#include "quillet/frame/Failure.h"

namespace quillet {

void clsPrintCounter::setDefaults() {
    m_startAt = 0;
    m_nowPrinting = 0;
    m_stopAt = 0;
    m_fullCount = 0;
}

void clsPrintCounter::assignObject(const std::shared_ptr<clsPrintCounter>& print_counter_) {
    // No guard against Nothing: each copy fails on its own and nothing changes.
    attempt([&] { setStartAt(deref(print_counter_).getStartAt()); });
    attempt([&] { setNowPrinting(deref(print_counter_).getNowPrinting()); });
    attempt([&] { setStopAt(deref(print_counter_).getStopAt()); });
    attempt([&] { setFullCount(deref(print_counter_).getFullCount()); });
}

Long clsPrintCounter::getStartAt() const { return m_startAt; }
void clsPrintCounter::setStartAt(Long start_at_) { m_startAt = start_at_; }
Long clsPrintCounter::getStopAt() const { return m_stopAt; }
void clsPrintCounter::setStopAt(Long stop_at_) { m_stopAt = stop_at_; }
Long clsPrintCounter::getFullCount() const { return m_fullCount; }
void clsPrintCounter::setFullCount(Long full_count_) { m_fullCount = full_count_; }
Long clsPrintCounter::getNowPrinting() const { return m_nowPrinting; }
void clsPrintCounter::setNowPrinting(Long now_printing_) { m_nowPrinting = now_printing_; }

void clsPrintCounter::initialize(Long start_at_, Long stop_at_, Long full_count_) {
    m_startAt = start_at_;
    m_nowPrinting = start_at_;
    m_stopAt = stop_at_;
    m_fullCount = full_count_;
}

}  // namespace quillet
