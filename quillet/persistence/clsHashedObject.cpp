#include "quillet/persistence/clsHashedObject.h"

#include "quillet/frame/Failure.h"

namespace quillet {

void clsHashedObject::setDefaults() {
    m_hashKey.clear();
    m_object = Variant(Nothing);
}

void clsHashedObject::assignObject(std::shared_ptr<clsHashedObject>& hashed_obj_) {
    attempt([&] {
        if (!hashed_obj_) hashed_obj_ = std::make_shared<clsHashedObject>();
    });
    attempt([&] { setHashKey(deref(hashed_obj_).getHashKey()); });
    attempt([&] { setObject(deref(hashed_obj_).getObject()); });
}

void clsHashedObject::setHashKey(const String& hash_key_) { m_hashKey = hash_key_; }
String clsHashedObject::getHashKey() const { return m_hashKey; }

void clsHashedObject::setObject(const Variant& obj_) {
    attempt([&] {
        if (!obj_.isObject()) throw Failure(errTypeMismatch);  // only a reference can be kept
        m_object = obj_;
    });
}

Variant clsHashedObject::getObject() const { return m_object; }

}  // namespace quillet
