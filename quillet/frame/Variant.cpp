#include "quillet/frame/Variant.h"

namespace quillet {

Variant::Variant(String v) : value_(std::move(v)) {}
Variant::Variant(StringView v) : value_(String(v)) {}
Variant::Variant(const char16_t* v) : value_(String(v)) {}
Variant::Variant(Array<Integer> v) : value_(std::move(v)) {}
Variant::Variant(Array<Long> v) : value_(std::move(v)) {}
Variant::Variant(Array<Single> v) : value_(std::move(v)) {}
Variant::Variant(Array<Double> v) : value_(std::move(v)) {}
Variant::Variant(Array<Date> v) : value_(std::move(v)) {}
Variant::Variant(Array<String> v) : value_(std::move(v)) {}
Variant::Variant(Array<Boolean> v) : value_(std::move(v)) {}
Variant::Variant(Array<Byte> v) : value_(std::move(v)) {}
Variant::Variant(Array<Variant> v) : value_(std::move(v)) {}

Variant Variant::null() noexcept {
    Variant v;
    v.value_.emplace<NullValue>();
    return v;
}

Variant Variant::error(Long code) noexcept {
    Variant v;
    v.value_.emplace<ErrorValue>(ErrorValue{code});
    return v;
}

bool Variant::isMissing() const noexcept {
    const auto* e = std::get_if<ErrorValue>(&value_);
    return e != nullptr && e->code == MISSING_VALUE_CODE;
}

bool Variant::isNothing() const noexcept {
    const auto* o = std::get_if<ObjectRef>(&value_);
    return o != nullptr && !o->pointer;
}

const ObjectRef& Variant::objectRef() const {
    const auto* o = std::get_if<ObjectRef>(&value_);
    if (o == nullptr) throw Failure(errTypeMismatch);
    return *o;
}

Integer Variant::kind() const noexcept {
    // Indexed by the position of each alternative in Storage.
    static constexpr Integer codes[] = {
        vbEmpty,
        vbNull,
        vbInteger,
        vbLong,
        vbSingle,
        vbDouble,
        vbDate,
        vbString,
        vbObject,
        vbError,
        vbBoolean,
        vbByte,
        vbArray + vbInteger,
        vbArray + vbLong,
        vbArray + vbSingle,
        vbArray + vbDouble,
        vbArray + vbDate,
        vbArray + vbString,
        vbArray + vbBoolean,
        vbArray + vbByte,
        vbArray + vbVariant,
    };
    static_assert(std::size(codes) == std::variant_size_v<Storage>);
    return codes[value_.index()];
}

bool operator==(const Variant& a, const Variant& b) { return a.value_ == b.value_; }

}  // namespace quillet
