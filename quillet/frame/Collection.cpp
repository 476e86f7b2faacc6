#include "quillet/frame/Collection.h"

#include "quillet/frame/Failure.h"
#include "quillet/frame/TextCompare.h"
#include "quillet/frame/convert.h"

namespace quillet {

std::size_t Collection::find(const Variant& index) const {
    if (const auto* key = index.getIf<String>()) {
        const String folded = foldCase(*key);
        for (std::size_t i = 0; i < entries_.size(); ++i)
            if (entries_[i].hasKey && entries_[i].foldedKey == folded) return i;
        throw Failure(errInvalidCall);
    }
    if (index.isMissing() || index.isEmpty() || index.isNull() || index.isObject() || index.isArray())
        throw Failure(errTypeMismatch);
    const Long position = toLong(index);
    if (position < 1 || position > Count()) throw Failure(errSubscript);
    return static_cast<std::size_t>(position - 1);
}

void Collection::Add(Variant item, const Variant& key, const Variant& before, const Variant& after) {
    Entry entry{std::move(item), String(), false};
    if (!key.isMissing()) {
        const auto* text = key.getIf<String>();
        if (text == nullptr) throw Failure(errTypeMismatch);
        entry.foldedKey = foldCase(*text);
        entry.hasKey = true;
        for (const Entry& e : entries_)
            if (e.hasKey && e.foldedKey == entry.foldedKey) throw Failure(errDuplicateKey);
    }
    std::size_t at = entries_.size();
    if (!before.isMissing() && !after.isMissing()) throw Failure(errInvalidCall);
    if (!before.isMissing()) at = find(before);
    if (!after.isMissing()) at = find(after) + 1;
    entries_.insert(entries_.begin() + static_cast<std::ptrdiff_t>(at), std::move(entry));
}

Variant Collection::Item(const Variant& index) const { return entries_[find(index)].item; }

void Collection::Remove(const Variant& index) {
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(find(index)));
}

}  // namespace quillet
