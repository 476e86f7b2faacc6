#include "quillet/frame/Variant.h"

namespace quillet {

Variant::Variant(String v) : m_value(std::move(v)) {}
Variant::Variant(StringView v) : m_value(String(v)) {}
Variant::Variant(const char16_t* v) : m_value(String(v)) {}
Variant::Variant(Array<Integer> v) : m_value(std::move(v)) {}
Variant::Variant(Array<Long> v) : m_value(std::move(v)) {}
Variant::Variant(Array<Single> v) : m_value(std::move(v)) {}
Variant::Variant(Array<Double> v) : m_value(std::move(v)) {}
Variant::Variant(Array<Date> v) : m_value(std::move(v)) {}
Variant::Variant(Array<String> v) : m_value(std::move(v)) {}
Variant::Variant(Array<Boolean> v) : m_value(std::move(v)) {}
Variant::Variant(Array<Byte> v) : m_value(std::move(v)) {}
Variant::Variant(Array<Variant> v) : m_value(std::move(v)) {}

Variant Variant::null() noexcept {
    Variant v;
    v.m_value.emplace<NullValue>();
    return v;
}

Variant Variant::error(Long code) noexcept {
    Variant v;
    v.m_value.emplace<ErrorValue>(ErrorValue{code});
    return v;
}

bool Variant::isMissing() const noexcept {
    const auto* e = std::get_if<ErrorValue>(&m_value);
    return e != nullptr && e->code == MISSING_VALUE_CODE;
}

bool Variant::isNothing() const noexcept {
    const auto* o = std::get_if<ObjectRef>(&m_value);
    return o != nullptr && !o->pointer;
}

const ObjectRef& Variant::objectRef() const {
    const auto* o = std::get_if<ObjectRef>(&m_value);
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
    return codes[m_value.index()];
}

bool operator==(const Variant& a, const Variant& b) { return a.m_value == b.m_value; }

}  // namespace quillet
