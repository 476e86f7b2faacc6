// quillet/persistence/clsHashedObject.h - a text key paired with any object.
// A creatable class; it has assignObject but no saved form.
//
// The object travels as a Variant holding an object reference, so any host
// object fits; ask it back with Variant::object<T>():
//
//   auto entry = std::make_shared<clsHashedObject>();
//   auto point = std::make_shared<clsPoint>();
//   entry->setHashKey(u"origin");
//   entry->setObject(point);
//   entry->getObject().object<clsPoint>() == point;   // true: the same reference
//   entry->getObject().isNothing();                   // false; true for a new entry
//   entry->setObject(5);                              // not an object: nothing changes
//
//   std::shared_ptr<clsHashedObject> none;
//   entry->assignObject(none);            // none now holds a new entry; key "", object Nothing
//
// Every member is continue-on-failure: no failure reaches the caller.
#pragma once

#include <memory>

#include "quillet/frame/Variant.h"
#include "quillet/frame/types.h"

namespace quillet {

class clsHashedObject {
public:
    clsHashedObject() { setDefaults(); }

    // assignObject - copies the key and the object reference. Given Nothing,
    // it first puts a new entry into hashed_obj_, then copies from it.
    void assignObject(std::shared_ptr<clsHashedObject>& hashed_obj_);
    void setHashKey(const String& hash_key_);
    [[nodiscard]] String getHashKey() const;
    // setObject - keeps the reference (Nothing included); a value that is no
    // object reference changes nothing.
    void setObject(const Variant& obj_);
    // getObject - the same reference, as an object Variant.
    [[nodiscard]] Variant getObject() const;

    // Implementation details follow.
private:
    void setDefaults();

    String m_hashKey;
    Variant m_object;
};

}  // namespace quillet
