// quillet/frame/Clock.h - the system clock as dates see it: the local date
// and time, and a way for tests to fix it.
//
//   Clock::now();      // e.g. Date 46349.4791666667 (23 November 2026 11:30)
//   Clock::today();    // Date 46349, the same day at midnight
//   {
//       ClockScope fixed(Date{42006.5});   // tests fix "now" for one scope
//       Clock::today();                    // Date 42006
//   }
#pragma once

#include "quillet/frame/types.h"

namespace quillet {

class Clock {
public:
    // now - the local date and time of the system clock, to the second; the
    // fixed value of the innermost ClockScope of this thread if there is one.
    [[nodiscard]] static Date now();
    // today - now() without its time of day.
    [[nodiscard]] static Date today();
};

// ClockScope - fixes what Clock answers on this thread until the end of the
// scope; scopes nest.
class ClockScope {
public:
    explicit ClockScope(Date fixed);
    ~ClockScope();
    ClockScope(const ClockScope&) = delete;
    ClockScope& operator=(const ClockScope&) = delete;

private:
    bool m_hadPrevious;
    Date m_previous;
};

}  // namespace quillet
