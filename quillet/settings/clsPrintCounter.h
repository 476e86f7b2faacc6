// quillet/settings/clsPrintCounter.h - how far a print run has come: where
// it started, which item is printing now, where it stops and how many items
// the whole run has. A creatable class; it does not save itself.
//
//   auto counter = std::make_shared<clsPrintCounter>();
//   counter->initialize(5, 9, 20);
//   counter->getNowPrinting();              // 5: printing starts where it starts
//   counter->setNowPrinting(6);
//   counter->getStopAt();                   // 9
//   counter->initialize(9, 5, -1);          // stored as given: nothing is compared
//
// Every member is continue-on-failure: no failure reaches the caller.
#pragma once

#include <memory>

#include "quillet/frame/types.h"

namespace quillet {

class clsPrintCounter {
public:
    clsPrintCounter() { setDefaults(); }

    // assignObject - copies start at, now printing, stop at and full count.
    // Nothing changes nothing.
    void assignObject(const std::shared_ptr<clsPrintCounter>& print_counter_);

    [[nodiscard]] Long getStartAt() const;
    void setStartAt(Long start_at_);
    [[nodiscard]] Long getStopAt() const;
    void setStopAt(Long stop_at_);
    [[nodiscard]] Long getFullCount() const;
    void setFullCount(Long full_count_);
    [[nodiscard]] Long getNowPrinting() const;
    void setNowPrinting(Long now_printing_);

    // initialize - start at and now printing both take start_at_; the three
    // values are stored without being compared.
    void initialize(Long start_at_, Long stop_at_, Long full_count_);

    // Implementation details follow.
private:
    void setDefaults();

    Long m_startAt = 0;
    Long m_nowPrinting = 0;
    Long m_stopAt = 0;
    Long m_fullCount = 0;
};

}  // namespace quillet
