#include "quillet/platform/ListControl.h"

#include "quillet/frame/Failure.h"

namespace quillet {

void MemoryListControl::Clear() {
    m_items.clear();
    m_newIndex = -1;
}

void MemoryListControl::AddItem(const String& item) {
    m_items.push_back({item, 0});
    m_newIndex = static_cast<Long>(m_items.size()) - 1;
}

std::size_t MemoryListControl::checkedIndex(Long index) const {
    if (index < 0 || static_cast<std::size_t>(index) >= m_items.size()) throw Failure(errInvalidCall);
    return static_cast<std::size_t>(index);
}

Long MemoryListControl::ItemData(Long index) const { return m_items[checkedIndex(index)].data; }

void MemoryListControl::setItemData(Long index, Long value) { m_items[checkedIndex(index)].data = value; }

const String& MemoryListControl::item(Long index) const { return m_items[checkedIndex(index)].text; }

}  // namespace quillet
