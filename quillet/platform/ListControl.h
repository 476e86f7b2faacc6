// quillet/platform/ListControl.h - the host's list control as the library
// sees it, and an in-memory one for hosts without controls and for tests.
//
//   auto box = std::make_shared<MemoryListControl>();
//   box->AddItem(u"Monday");
//   box->setItemData(box->NewIndex(), 2);
//   box->ItemData(0);          // 2
//   box->item(0);              // u"Monday"
//   box->ItemData(5);          // throws Failure(errInvalidCall)
#pragma once

#include <vector>

#include "quillet/frame/types.h"

namespace quillet {

// ListControl - a list box: items with one Long of data each, 0-based.
class ListControl {
public:
    virtual ~ListControl() = default;
    virtual void Clear() = 0;
    virtual void AddItem(const String& item) = 0;
    // NewIndex - the index of the item added last; -1 when there is none.
    [[nodiscard]] virtual Long NewIndex() const = 0;
    [[nodiscard]] virtual Long ItemData(Long index) const = 0;
    virtual void setItemData(Long index, Long value) = 0;
};

// MemoryListControl - a ListControl that keeps its items in memory. An index
// outside the items fails with errInvalidCall.
class MemoryListControl : public ListControl {
public:
    void Clear() override;
    void AddItem(const String& item) override;
    [[nodiscard]] Long NewIndex() const override { return m_newIndex; }
    [[nodiscard]] Long ItemData(Long index) const override;
    void setItemData(Long index, Long value) override;

    // Queries for the host (and tests).
    [[nodiscard]] Long ListCount() const noexcept { return static_cast<Long>(m_items.size()); }
    [[nodiscard]] const String& item(Long index) const;

private:
    struct Entry {
        String text;
        Long data = 0;
    };
    [[nodiscard]] std::size_t checkedIndex(Long index) const;

    std::vector<Entry> m_items;
    Long m_newIndex = -1;
};

}  // namespace quillet
