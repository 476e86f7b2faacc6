// quillet/persistence/clsSelectionRange.h - a range of positions, start to
// end inclusive. A creatable, persistable class with the save tag
// "SelectionRange".
//
//   auto r = std::make_shared<clsSelectionRange>();
//   r->getLength();                    // 1: a new range is 1 to 1
//   r->selectRange(5, 3);              // refused without a word: still 1 to 1
//   r->selectRange(0, 0);              // accepted: start 0, length 1
//   r->writeObject();                  // u"<SelectionRange><Start>0</Start>\r\n<End>0</End>\r\n</SelectionRange>\r\n"
//   r->readObject(Variant(u""));       // start 0 and end 0, not 1 and 1
//
// Every member is continue-on-failure: no failure reaches the caller.
#pragma once

#include <memory>

#include "quillet/frame/Variant.h"
#include "quillet/frame/types.h"

namespace quillet {

class clsSelectionRange {
public:
    clsSelectionRange() { setDefaults(); }

    // assignObject - copies start and end without the range check; Nothing
    // changes nothing.
    void assignObject(const std::shared_ptr<clsSelectionRange>& range_);
    // readObject - reads "Start" and "End" unchecked; an absent tag reads as 0.
    void readObject(const Variant& buffer);
    [[nodiscard]] Variant writeObject() const;
    // selectRange - stored only when 0 <= range_start_ <= range_end_.
    void selectRange(Long range_start_, Long range_end_);
    [[nodiscard]] Long getStart() const;
    [[nodiscard]] Long getEnd() const;
    // getLength - end - start + 1 for a valid range, else 0 (also when the
    // length does not fit a Long).
    [[nodiscard]] Long getLength() const;
    [[nodiscard]] String getSaveTag() const;  // "SelectionRange"

    // Implementation details follow.
private:
    void setDefaults();
    void setStart(Long start_);
    void setEnd(Long end_);

    Long m_start = 1;
    Long m_end = 1;
};

}  // namespace quillet
