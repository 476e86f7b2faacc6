// quillet/persistence/internal/Record.h - a persistable record described
// once, as a table of its fields in saved order: tag, getter, setter, the
// value of a fresh object and the reader's default for an absent tag. The
// table drives the defaults, assignObject, readObject and writeObject, which
// give exactly what the field-by-field calls of clsBufferIO give. Not
// installed.
//
//   const auto& point() {
//       static const Record r(u"Point", field(u"X", &clsPoint::getX, &clsPoint::setX, 0, 0),
//                                       field(u"Y", &clsPoint::getY, &clsPoint::setY, 0, 0));
//       return r;
//   }
//   point().write(p)        // u"<Point><X>1</X>\r\n<Y>2</Y>\r\n</Point>\r\n"
//   point().read(p, text)   // every field set, absent ones to their reader's default
//
// Whole numbers (Long and the enumerations) are read as the numeric prefix
// and rounded half-to-even, Doubles as the numeric prefix, Booleans as
// readBooleanText, texts decoded with an empty one giving the default. A
// field whose reading has a special case is read by its class, not here.
#pragma once

#include <cstddef>
#include <memory>
#include <tuple>
#include <type_traits>
#include <utility>

#include "quillet/frame/Failure.h"
#include "quillet/frame/NumberText.h"
#include "quillet/frame/Variant.h"
#include "quillet/frame/convert.h"
#include "quillet/frame/types.h"
#include "quillet/persistence/internal/TagText.h"
#include "quillet/persistence/internal/modMisc.h"

namespace quillet::persistence_internal {

// Field - one row of the table. T is the getter's type; a text field keeps
// its two defaults as views of literals.
template <class C, class T, class Setter>
struct Field {
    using Class = C;
    using Value = std::conditional_t<std::is_same_v<T, String>, StringView, T>;
    StringView tag;
    T (C::*get)() const;
    Setter set;
    Value fresh;
    Value absent;
};

template <class C, class T, class Arg, class Fresh, class Absent>
constexpr auto field(StringView tag, T (C::*get)() const, void (C::*set)(Arg), Fresh fresh, Absent absent) {
    using F = Field<C, T, void (C::*)(Arg)>;
    return F{tag, get, set, static_cast<typename F::Value>(fresh), static_cast<typename F::Value>(absent)};
}

// The reading and writing of one value by its type.
Double readWhole(StringView buffer, const TagPair& tag, Long absent);
Double readReal(StringView buffer, const TagPair& tag, Double absent);
void appendWhole(String& out, const TagPair& tag, Long value);
void appendReal(String& out, const TagPair& tag, Double value);
void appendBoolean(String& out, const TagPair& tag, Boolean value);

template <class T>
auto readValue(StringView buffer, const TagPair& tag, const T& absent) {
    if constexpr (std::is_same_v<T, Boolean>) {
        return modMisc::readBooleanText(elementText(buffer, tag), absent);  // not decoded
    } else if constexpr (std::is_same_v<T, StringView>) {
        return readString(buffer, tag, String(absent));
    } else if constexpr (std::is_same_v<T, Double>) {
        return readReal(buffer, tag, absent);
    } else {
        return static_cast<T>(toLong(Variant(readWhole(buffer, tag, static_cast<Long>(absent)))));
    }
}

template <class T>
void appendValue(String& out, const TagPair& tag, const T& value) {
    if constexpr (std::is_same_v<T, Boolean>) {
        appendBoolean(out, tag, value);
    } else if constexpr (std::is_same_v<T, String>) {
        appendTextElement(out, tag, value);
    } else if constexpr (std::is_same_v<T, Double>) {
        appendReal(out, tag, value);
    } else {
        appendWhole(out, tag, static_cast<Long>(value));
    }
}

// Record - the table of one class with its save tag; every tag is built
// once, when the record is made.
template <class... Fields>
class Record {
public:
    using C = typename std::tuple_element_t<0, std::tuple<Fields...>>::Class;

    explicit Record(StringView save_tag, Fields... fields)
        : m_saveTag(save_tag),
          m_fields(fields...),
          m_tags{TagPair(fields.tag)...},
          // Room for every element with a value of a few characters: a usual
          // object is written in one allocation.
          m_reserve(2 * save_tag.size() + 7 + ((2 * fields.tag.size() + 7 + 16) + ...)) {}

    [[nodiscard]] String saveTag() const { return String(m_saveTag.name()); }

    // setDefaults - every field to the value of a fresh object, by its setter.
    void setDefaults(C& object) const {
        each([&](const auto& f, const TagPair&) { (object.*f.set)(fresh(f)); });
    }

    // assign - copies field by field; given Nothing every copy fails and is skipped.
    void assign(C& object, const std::shared_ptr<C>& other) const {
        each([&](const auto& f, const TagPair&) { attempt([&] { (object.*f.set)((deref(other).*f.get)()); }); });
    }

    // read - every field from the buffer, or its reader's default.
    void read(C& object, const Variant& buffer) const {
        const BufferText text(buffer);
        each([&](const auto& f, const TagPair& tag) {
            attempt([&] { (object.*f.set)(readValue(text.view(), tag, f.absent)); });
        });
    }

    // write - the fields in table order, wrapped in the save tag.
    [[nodiscard]] Variant write(const C& object) const {
        String out;
        out.reserve(m_reserve);
        out += m_saveTag.begin();
        each([&](const auto& f, const TagPair& tag) { attempt([&] { appendValue(out, tag, (object.*f.get)()); }); });
        out += m_saveTag.end();
        out += CRLF;
        return Variant(std::move(out));
    }

private:
    template <class Visit>
    void each(Visit&& visit) const {
        eachIn(visit, std::index_sequence_for<Fields...>());
    }
    template <class Visit, std::size_t... I>
    void eachIn(Visit& visit, std::index_sequence<I...>) const {
        (visit(std::get<I>(m_fields), m_tags[I]), ...);
    }
    template <class F>
    static auto fresh(const F& f) {
        if constexpr (std::is_same_v<typename F::Value, StringView>) {
            return String(f.fresh);
        } else {
            return f.fresh;
        }
    }

    TagPair m_saveTag;
    std::tuple<Fields...> m_fields;
    TagPair m_tags[sizeof...(Fields)];
    std::size_t m_reserve;
};

}  // namespace quillet::persistence_internal
