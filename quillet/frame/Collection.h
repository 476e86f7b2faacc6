// quillet/frame/Collection.h - the ordered, 1-based, optionally keyed container
// of Variants. Shared by reference: pass std::shared_ptr<Collection>.
//
//   auto c = std::make_shared<Collection>();
//   c->Add(u"red", u"R");
//   c->Add(u"blue", u"b", Variant::missing(), 1);   // after position 1
//   c->Add(u"first", Variant::missing(), u"r");     // before the item keyed "R"
//   c->Count();                    // 3
//   c->Item(u"B");                 // "blue": keys ignore case
//   c->Add(u"again", u"r");        // throws Failure(errDuplicateKey), adds nothing
//   c->Item(4);                    // throws Failure(errSubscript)
//   c->Item(u"zz");                // throws Failure(errInvalidCall)
//
// Keys cannot be read back, as in the original. Keys are equal when their
// foldCase texts are equal, the rule of text comparison.
//
// Cost: Item and Remove by key, and Add with a key, find the key in constant
// time on average. Item by position is constant time. Add and Remove at either
// end are constant time (amortized); in the middle they move the items
// between that place and the nearer end.
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <vector>

#include "quillet/frame/Variant.h"
#include "quillet/frame/types.h"

namespace quillet {

class Collection {
public:
    Collection() = default;
    // A Collection is shared, never copied: the host language has no copy.
    Collection(const Collection&) = delete;
    Collection& operator=(const Collection&) = delete;

    // Add - appends `item`, or puts it before or after the item named by
    // position or key. `key` must be a text when given. A key already in use
    // fails with errDuplicateKey; both `before` and `after` given, or a
    // position or key that does not exist, fail with errInvalidCall (errSubscript
    // for a position out of range); in every case nothing is added.
    void Add(Variant item, const Variant& key = Variant::missing(), const Variant& before = Variant::missing(),
             const Variant& after = Variant::missing());
    // Item - the item at a 1-based position (any number, rounded half-to-even)
    // or with a key (a text). A position outside 1 to Count fails with
    // errSubscript, an absent key with errInvalidCall.
    [[nodiscard]] Variant Item(const Variant& index) const;
    // Remove - as Item, removing the item.
    void Remove(const Variant& index);
    [[nodiscard]] Long Count() const noexcept { return static_cast<Long>(m_nodes.size()); }

    // Implementation details follow.
private:
    // Nodes stay where they are allocated, so the key index can point at them
    // and at their keys. `ordinal` minus m_base is the node's 0-based position;
    // an insertion or removal renumbers only the nodes it moves.
    struct Node {
        Variant item;
        String foldedKey;  // meaningful when hasKey
        bool hasKey = false;
        long long ordinal = 0;
    };

    // KeyIndex - folded key to node, by open addressing with linear probing.
    // Each slot keeps the key's hash, so probing and growing rarely touch a
    // node; a removal shifts the following slots back instead of leaving a
    // marker, so lookups never slow down as keys come and go.
    class KeyIndex {
    public:
        [[nodiscard]] Node* find(StringView folded) const noexcept;
        void insert(Node* node);  // the key must be absent
        void erase(const Node* node) noexcept;

    private:
        struct Slot {
            std::size_t hash = 0;
            Node* node = nullptr;
        };
        [[nodiscard]] static std::size_t hashOf(StringView folded) noexcept;
        void grow();

        std::vector<Slot> m_slots;  // a power of two in size, at most half full
        std::size_t m_used = 0;
    };

    [[nodiscard]] std::size_t find(const Variant& index) const;  // 0-based, or throws
    [[nodiscard]] std::size_t positionOf(const Node& node) const noexcept {
        return static_cast<std::size_t>(node.ordinal - m_base);
    }

    std::deque<std::unique_ptr<Node>> m_nodes;
    KeyIndex m_keys;
    long long m_base = 0;
};

}  // namespace quillet
