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
// Keys cannot be read back, as in the original.
#pragma once

#include <vector>

#include "quillet/frame/Variant.h"
#include "quillet/frame/types.h"

namespace quillet {

class Collection {
public:
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
    [[nodiscard]] Long Count() const noexcept { return static_cast<Long>(entries_.size()); }

    // Implementation details follow.
private:
    struct Entry {
        Variant item;
        String foldedKey;  // key after case folding; meaningful when hasKey
        bool hasKey = false;
    };
    [[nodiscard]] std::size_t find(const Variant& index) const;  // 0-based, or throws

    std::vector<Entry> entries_;
};

}  // namespace quillet
