#include "quillet/platform/ListControl.h"

#include "quillet/frame/Failure.h"

namespace quillet {

void MemoryListControl::Clear() {
    items_.clear();
    newIndex_ = -1;
}

void MemoryListControl::AddItem(const String& item) {
    items_.push_back({item, 0});
    newIndex_ = static_cast<Long>(items_.size()) - 1;
}

std::size_t MemoryListControl::checkedIndex(Long index) const {
    if (index < 0 || static_cast<std::size_t>(index) >= items_.size()) throw Failure(errInvalidCall);
    return static_cast<std::size_t>(index);
}

Long MemoryListControl::ItemData(Long index) const { return items_[checkedIndex(index)].data; }

void MemoryListControl::setItemData(Long index, Long value) { items_[checkedIndex(index)].data = value; }

const String& MemoryListControl::item(Long index) const { return items_[checkedIndex(index)].text; }

}  // namespace quillet
