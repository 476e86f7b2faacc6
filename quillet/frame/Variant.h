// quillet/frame/Variant.h - a value that carries its own kind.
//
//   Variant v;                      v.kind() == vbEmpty
//   Variant::null().kind()          == vbNull
//   Variant(Integer{2}).kind()      == vbInteger
//   Variant(2).kind()               == vbLong      (an int literal is a Long)
//   Variant(2.5f).kind()            == vbSingle
//   Variant(2.5).kind()             == vbDouble
//   Variant(Date{1.0}).kind()       == vbDate
//   Variant(u"a").kind()            == vbString
//   Variant(std::make_shared<clsPoint>()).kind() == vbObject
//   Variant::missing().isMissing()  == true        (error kind, -2147352572)
//   Variant(True).kind()            == vbBoolean
//   Variant(Byte{7}).kind()         == vbByte
//   Variant(Array<String>(0, 1)).kind() == vbArray + vbString
//
// A Variant owns its value; copies are deep, except for an object, which is a
// shared reference. Conversions to numbers and text, which follow the regional
// settings, are in convert.h; comparison of values as the host language does
// it (<, =, > with Null and Empty) is compareVariants in VariantCompare.h.
// operator== here is plain structural equality (same kind, same value), meant
// for tests and containers.
#pragma once

#include <iosfwd>
#include <memory>
#include <typeindex>
#include <typeinfo>
#include <variant>

#include "quillet/frame/Array.h"
#include "quillet/frame/hostenums.h"
#include "quillet/frame/types.h"

namespace quillet {

class Variant;

// ObjectRef - a shared reference to any object, with the type it was made
// from so it can be asked back. A null `pointer` is Nothing.
struct ObjectRef {
    std::shared_ptr<void> pointer;
    std::type_index type = typeid(void);

    friend bool operator==(const ObjectRef& a, const ObjectRef& b) noexcept { return a.pointer == b.pointer; }
};

// ErrorValue - the error kind's code. The missing value is one of these.
struct ErrorValue {
    Long code = 0;
    friend bool operator==(ErrorValue, ErrorValue) = default;
};

inline constexpr Long MISSING_VALUE_CODE = -2147352572;  // an omitted optional argument

class Variant {
public:
    // construction
    Variant() noexcept = default;  // Empty
    Variant(Integer v) : m_value(v) {}
    Variant(Long v) : m_value(v) {}
    Variant(Single v) : m_value(v) {}
    Variant(Double v) : m_value(v) {}
    Variant(Date v) : m_value(v) {}
    // Out of line: inlined, g++ 12 warns of an uninitialized string in the move.
    Variant(String v);
    Variant(StringView v);
    Variant(const char16_t* v);
    Variant(Boolean v) : m_value(v) {}
    Variant(bool v) : m_value(Boolean(v)) {}
    Variant(Byte v) : m_value(v) {}
    Variant(std::nullptr_t) : m_value(ObjectRef{}) {}  // an object kind holding Nothing
    template <class T>
    Variant(std::shared_ptr<T> object) : m_value(ObjectRef{std::move(object), typeid(T)}) {}
    Variant(Array<Integer> v);
    Variant(Array<Long> v);
    Variant(Array<Single> v);
    Variant(Array<Double> v);
    Variant(Array<Date> v);
    Variant(Array<String> v);
    Variant(Array<Boolean> v);
    Variant(Array<Byte> v);
    Variant(Array<Variant> v);

    [[nodiscard]] static Variant null() noexcept;
    [[nodiscard]] static Variant missing() noexcept { return error(MISSING_VALUE_CODE); }
    [[nodiscard]] static Variant error(Long code) noexcept;

    // queries
    // kind - the kind code; vbArray plus the element's code for an array.
    [[nodiscard]] Integer kind() const noexcept;
    [[nodiscard]] bool isEmpty() const noexcept { return m_value.index() == 0; }
    [[nodiscard]] bool isNull() const noexcept { return m_value.index() == 1; }
    [[nodiscard]] bool isMissing() const noexcept;
    [[nodiscard]] bool isArray() const noexcept { return kind() >= vbArray; }
    [[nodiscard]] bool isObject() const noexcept { return std::holds_alternative<ObjectRef>(m_value); }
    [[nodiscard]] bool isString() const noexcept { return std::holds_alternative<String>(m_value); }
    // isNothing - an object kind that holds no object.
    [[nodiscard]] bool isNothing() const noexcept;

    // getIf - the held value if it is exactly a T, else nullptr. T is one of
    // the value types above, ObjectRef, ErrorValue or an Array<...>.
    template <class T>
    [[nodiscard]] const T* getIf() const noexcept {
        return std::get_if<T>(&m_value);
    }
    template <class T>
    [[nodiscard]] T* getIf() noexcept {
        return std::get_if<T>(&m_value);
    }

    // object - the held object as a T; Nothing when it holds another type or
    // Nothing. A Variant that holds no object kind fails with errTypeMismatch.
    template <class T>
    [[nodiscard]] std::shared_ptr<T> object() const {
        const ObjectRef& ref = objectRef();
        if (ref.type != typeid(T)) return nullptr;
        return std::static_pointer_cast<T>(ref.pointer);
    }
    [[nodiscard]] const ObjectRef& objectRef() const;  // errTypeMismatch when no object kind

    // visit - calls f with the held alternative (see Storage).
    template <class F>
    decltype(auto) visit(F&& f) const {
        return std::visit(std::forward<F>(f), m_value);
    }

    friend bool operator==(const Variant& a, const Variant& b);

    // Implementation details follow.
    struct EmptyValue {
        friend bool operator==(EmptyValue, EmptyValue) = default;
    };
    struct NullValue {
        friend bool operator==(NullValue, NullValue) = default;
    };
    using Storage = std::variant<EmptyValue, NullValue, Integer, Long, Single, Double, Date, String, ObjectRef,
                                 ErrorValue, Boolean, Byte, Array<Integer>, Array<Long>, Array<Single>, Array<Double>,
                                 Array<Date>, Array<String>, Array<Boolean>, Array<Byte>, Array<Variant>>;

private:
    Storage m_value;
};

// The value and its kind, texts quoted with CR, LF, tab and NUL escaped, for hosts' logs and
// test failure messages (see print.h). Declared beside the type so that every file that sees
// Variant sees the same printer: GoogleTest would dump the bytes in a file that does not
// include print.h, and one program would hold two printers for one type.
std::ostream& operator<<(std::ostream& out, const Variant& value);
void PrintTo(const Variant& value, std::ostream* out);

}  // namespace quillet
