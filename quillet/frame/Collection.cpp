#include "quillet/frame/Collection.h"

#include "quillet/frame/Failure.h"
#include "quillet/frame/TextCompare.h"
#include "quillet/frame/convert.h"

namespace quillet {

std::size_t Collection::KeyIndex::hashOf(StringView folded) noexcept { return std::hash<StringView>{}(folded); }

Collection::Node* Collection::KeyIndex::find(StringView folded) const noexcept {
    if (m_used == 0) return nullptr;
    const std::size_t mask = m_slots.size() - 1;
    const std::size_t hash = hashOf(folded);
    for (std::size_t i = hash & mask;; i = (i + 1) & mask) {
        const Slot& slot = m_slots[i];
        if (slot.node == nullptr) return nullptr;
        if (slot.hash == hash && slot.node->foldedKey == folded) return slot.node;
    }
}

void Collection::KeyIndex::insert(Node* node) {
    if ((m_used + 1) * 2 > m_slots.size()) grow();
    const std::size_t mask = m_slots.size() - 1;
    const std::size_t hash = hashOf(node->foldedKey);
    std::size_t i = hash & mask;
    while (m_slots[i].node != nullptr) i = (i + 1) & mask;
    m_slots[i] = Slot{hash, node};
    ++m_used;
}

void Collection::KeyIndex::grow() {
    std::vector<Slot> old(m_slots.empty() ? 16 : m_slots.size() * 2);
    old.swap(m_slots);
    const std::size_t mask = m_slots.size() - 1;
    for (const Slot& slot : old) {
        if (slot.node == nullptr) continue;
        std::size_t i = slot.hash & mask;
        while (m_slots[i].node != nullptr) i = (i + 1) & mask;
        m_slots[i] = slot;
    }
}

void Collection::KeyIndex::erase(const Node* node) noexcept {
    const std::size_t mask = m_slots.size() - 1;
    std::size_t hole = hashOf(node->foldedKey) & mask;
    while (m_slots[hole].node != node) hole = (hole + 1) & mask;
    // Move back every following slot of the run that may not stay behind
    // the hole: one whose home lies cyclically outside (hole, i].
    for (std::size_t i = (hole + 1) & mask; m_slots[i].node != nullptr; i = (i + 1) & mask) {
        const std::size_t home = m_slots[i].hash & mask;
        const bool staysBehind = hole <= i ? (hole < home && home <= i) : (hole < home || home <= i);
        if (staysBehind) continue;
        m_slots[hole] = m_slots[i];
        hole = i;
    }
    m_slots[hole] = Slot{};
    --m_used;
}

std::size_t Collection::find(const Variant& index) const {
    if (const auto* key = index.getIf<String>()) {
        const String folded = foldCase(*key);
        const Node* node = m_keys.find(folded);
        if (node == nullptr) throw Failure(errInvalidCall);
        return positionOf(*node);
    }
    if (index.isMissing() || index.isEmpty() || index.isNull() || index.isObject() || index.isArray())
        throw Failure(errTypeMismatch);
    const Long position = toLong(index);
    if (position < 1 || position > Count()) throw Failure(errSubscript);
    return static_cast<std::size_t>(position - 1);
}

void Collection::Add(Variant item, const Variant& key, const Variant& before, const Variant& after) {
    auto node = std::make_unique<Node>();
    node->item = std::move(item);
    if (!key.isMissing()) {
        const auto* text = key.getIf<String>();
        if (text == nullptr) throw Failure(errTypeMismatch);
        node->foldedKey = foldCase(*text);
        node->hasKey = true;
        if (m_keys.find(node->foldedKey) != nullptr) throw Failure(errDuplicateKey);
    }
    std::size_t at = m_nodes.size();
    if (!before.isMissing() && !after.isMissing()) throw Failure(errInvalidCall);
    if (!before.isMissing()) at = find(before);
    if (!after.isMissing()) at = find(after) + 1;

    // Every check has passed; from here a failure can only be memory running
    // out, and it leaves the collection as it was.
    Node* const added = node.get();
    if (added->hasKey) m_keys.insert(added);
    try {
        m_nodes.insert(m_nodes.begin() + static_cast<std::ptrdiff_t>(at), std::move(node));
    } catch (...) {
        if (added->hasKey) m_keys.erase(added);
        throw;
    }
    // Renumber the side that moved: the items before `at` when it is nearer
    // the front, else the items after it.
    const std::size_t n = m_nodes.size();
    if (at < n / 2) {
        --m_base;
        for (std::size_t i = 0; i < at; ++i) --m_nodes[i]->ordinal;
    } else {
        for (std::size_t i = at + 1; i < n; ++i) ++m_nodes[i]->ordinal;
    }
    added->ordinal = m_base + static_cast<long long>(at);
}

Variant Collection::Item(const Variant& index) const {
    if (const auto* key = index.getIf<String>()) {  // straight to the node, the common case of a keyed lookup
        const Node* node = m_keys.find(foldCase(*key));
        if (node == nullptr) throw Failure(errInvalidCall);
        return node->item;
    }
    return m_nodes[find(index)]->item;
}

void Collection::Remove(const Variant& index) {
    const std::size_t at = find(index);
    const Node& node = *m_nodes[at];
    if (node.hasKey) m_keys.erase(&node);
    const std::size_t n = m_nodes.size();
    if (at < n / 2) {
        ++m_base;
        for (std::size_t i = 0; i < at; ++i) ++m_nodes[i]->ordinal;
    } else {
        for (std::size_t i = at + 1; i < n; ++i) --m_nodes[i]->ordinal;
    }
    m_nodes.erase(m_nodes.begin() + static_cast<std::ptrdiff_t>(at));
}

}  // namespace quillet
