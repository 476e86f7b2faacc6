// quillet/persistence/internal/TagText.h - the machinery under clsBufferIO:
// the matching scan, sections, entities, element writers and the one-pass
// index of collection and array items. Not installed; hosts call clsBufferIO.
//
// Positions are 1-based like the host language's, NONE (0) when not found.
//
//   scan(u"<A><A></A></A>", 1, u"<A>", u"</A>", b, e)   true, b 1, e 11
//   section(u"<A>x</A>", 1, u"<A>", u"</A>", false)     u"x"
//   decodeEntities(u"a&amp;lt;b")                        u"a&lt;b"
//   TagPair t(u"N"); appendElement(out, t, u"v")         out += u"<N>v</N>\r\n"
//   ItemIndex(u"<I2>b</I2><I1>a</I1>", u"I").item(1)     u"a"
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "quillet/frame/Variant.h"
#include "quillet/frame/types.h"

namespace quillet::persistence_internal {

inline constexpr StringView CRLF = u"\r\n";
inline constexpr std::size_t NONE = 0;

// BufferText - the text of a buffer Variant without copying it: a view of
// the held String, or the text form of another kind kept here. Null,
// objects and arrays hold no text and read as the empty text. The view dies
// with this object and with the Variant it was made from.
class BufferText {
public:
    explicit BufferText(const Variant& buffer) noexcept;
    BufferText(const BufferText&) = delete;
    BufferText& operator=(const BufferText&) = delete;

    [[nodiscard]] StringView view() const noexcept { return m_view; }
    // hasText - false for Null, objects and arrays: a search in them fails.
    [[nodiscard]] bool hasText() const noexcept { return m_hasText; }

private:
    String m_owned;
    StringView m_view;
    bool m_hasText = true;
};

// TagPair - "<tag>" and "</tag>" of one tag name, built once in one string.
class TagPair {
public:
    explicit TagPair(StringView tag);
    [[nodiscard]] StringView name() const noexcept { return StringView(m_text).substr(1, m_size); }
    [[nodiscard]] StringView begin() const noexcept { return StringView(m_text).substr(0, m_size + 2); }
    [[nodiscard]] StringView end() const noexcept { return StringView(m_text).substr(m_size + 2); }

private:
    String m_text;  // "<tag></tag>"
    std::size_t m_size;
};

// scan - the matching scan: the first `beg_tag` at or after `start_pos` and
// the end tag that pairs with it, the k-th end tag after the opening going
// with the k-th begin tag after it. Fails (errInvalidCall) for a start below 1.
bool scan(StringView buffer, Long start_pos, StringView beg_tag, StringView end_tag, std::size_t& beg_pos,
          std::size_t& end_pos);

// section - the text between the matching tags (or with them), as a view
// into `buffer`; nothing when the scan fails or the tags overlap.
[[nodiscard]] std::optional<StringView> section(StringView buffer, Long start_pos, StringView beg_tag,
                                                StringView end_tag, bool include_tags) noexcept;

// element - the value text of the first element at any depth; elementText
// gives the empty text when it is absent.
[[nodiscard]] std::optional<StringView> element(StringView buffer, const TagPair& tag, bool include_tags = false);
[[nodiscard]] StringView elementText(StringView buffer, const TagPair& tag);

// The five characters of the format and their entities, "&" first on the way
// out and last on the way back, found by text comparison on the way back.
[[nodiscard]] String encodeEntities(StringView text);
void appendEncoded(String& out, StringView text);
[[nodiscard]] String decodeEntities(StringView text);

// appendElement - begin tag, value as it stands, end tag, CR LF.
void appendElement(String& out, const TagPair& tag, StringView value);
void appendElement(String& out, StringView tag, StringView value);
// appendTextElement - as appendElement with the value's entities encoded.
void appendTextElement(String& out, const TagPair& tag, StringView value);

// readString - the decoded text of the element; the default when empty.
[[nodiscard]] String readString(StringView buffer, const TagPair& tag, const String& default_value);
// readNumber - the numeric prefix of the element's trimmed text, 0 when absent.
[[nodiscard]] Double readNumber(StringView buffer, const TagPair& tag);

// ItemIndex - the raw text of every item element "<" prefix n ">" of a
// collection or array, found in one forward pass. item(n) is exactly what
// the matching scan from position 1 gives for that tag, searched alone: the
// first begin tag in the text at any depth, same-named elements nesting,
// the k-th end tag after the opening pairing with the k-th begin tag after
// it; nothing when the scan fails. n is the number text of a Long, so
// "<Item01>" and "<Item-0>" are items of no number.
class ItemIndex {
public:
    ItemIndex(StringView text, StringView prefix);
    [[nodiscard]] std::optional<StringView> item(long long n) const;

private:
    struct Tag {
        long long number;
        bool isEnd;
        std::size_t pos;  // 0-based start of the tag
        std::size_t size;
    };
    StringView m_text;
    std::vector<Tag> m_tags;  // by number, begin tags first, then by position
};

}  // namespace quillet::persistence_internal
