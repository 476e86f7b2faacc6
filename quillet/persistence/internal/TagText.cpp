#include "quillet/persistence/internal/TagText.h"

#include <algorithm>
#include <limits>

#include "quillet/frame/Failure.h"
#include "quillet/frame/NumberScan.h"
#include "quillet/frame/TextCompare.h"
#include "quillet/frame/convert.h"
#include "quillet/text/clsString.h"

namespace quillet::persistence_internal {

BufferText::BufferText(const Variant& buffer) noexcept {
    if (const String* s = buffer.getIf<String>()) {
        m_view = *s;
        return;
    }
    try {
        m_owned = toText(buffer);
        m_hasText = true;
    } catch (...) {
        m_hasText = false;
    }
    m_view = m_owned;
}

TagPair::TagPair(StringView tag) : m_size(tag.size()) {
    m_text.reserve(2 * tag.size() + 5);
    m_text += u'<';
    m_text += tag;
    m_text += u"></";
    m_text += tag;
    m_text += u'>';
}

namespace {

// find - the host language's InStr over a buffer that may exceed a Long.
std::size_t find(StringView hay, std::size_t start, StringView needle) {
    if (start > static_cast<std::size_t>(std::numeric_limits<Long>::max())) return NONE;
    return static_cast<std::size_t>(inStr(static_cast<Long>(start), hay, needle));
}

// mid - the text from 1-based `start` for `length` units, clipped to the end.
StringView mid(StringView text, std::size_t start, std::size_t length) noexcept {
    if (start > text.size()) return StringView();
    return text.substr(start - 1, length);
}

}  // namespace

bool scan(StringView buffer, Long start_pos, StringView beg_tag, StringView end_tag, std::size_t& beg_pos,
          std::size_t& end_pos) {
    if (start_pos < 1) throw Failure(errInvalidCall);
    const auto start = static_cast<std::size_t>(start_pos);
    beg_pos = find(buffer, start, beg_tag);
    end_pos = NONE;
    if (beg_tag.empty()) {
        end_pos = find(buffer, start, end_tag);
    } else if (end_tag.empty()) {
        end_pos = buffer.size();
    } else if (beg_pos != NONE) {
        std::size_t b = beg_pos;
        std::size_t e = beg_pos;
        do {
            e = find(buffer, e + 1, end_tag);
            // Only a begin tag that opens before e keeps the loop going; one
            // at or after e ends it just as none does, so search no further.
            const std::size_t horizon = std::min(buffer.size(), e + beg_tag.size() - 2);
            b = e == NONE ? NONE : find(buffer.substr(0, horizon), b + 1, beg_tag);
        } while (e > b && b != NONE && e != NONE);
        end_pos = e;
    }
    return beg_pos != NONE && end_pos != NONE;
}

std::optional<StringView> section(StringView buffer, Long start_pos, StringView beg_tag, StringView end_tag,
                                  bool include_tags) noexcept {
    std::size_t beg = NONE;
    std::size_t end = NONE;
    try {
        if (!scan(buffer, start_pos, beg_tag, end_tag, beg, end)) return std::nullopt;
    } catch (...) {
        return std::nullopt;
    }
    if (include_tags) {
        if (end + end_tag.size() < beg) return std::nullopt;
        return mid(buffer, beg, end - beg + end_tag.size());
    }
    const std::size_t from = beg + beg_tag.size();
    if (end < from) return std::nullopt;  // a negative length: the cut fails
    return mid(buffer, from, end - from);
}

std::optional<StringView> element(StringView buffer, const TagPair& tag, bool include_tags) {
    return section(buffer, 1, tag.begin(), tag.end(), include_tags);
}

StringView elementText(StringView buffer, const TagPair& tag) { return element(buffer, tag).value_or(StringView()); }

void appendEncoded(String& out, StringView text) {
    for (const char16_t c : text) {
        switch (c) {
            case u'&': out += u"&amp;"; break;
            case u'<': out += u"&lt;"; break;
            case u'>': out += u"&gt;"; break;
            case u'"': out += u"&quot;"; break;
            case u'\'': out += u"&apos;"; break;
            default: out += c;
        }
    }
}

String encodeEntities(StringView text) {
    String out;
    out.reserve(text.size());
    appendEncoded(out, text);
    return out;
}

String decodeEntities(StringView text) {
    // Every entity starts with "&", whose case cannot change: without one
    // there is nothing to replace.
    if (text.find(u'&') == StringView::npos) return String(text);
    String out = replaceText(text, u"&lt;", u"<", vbTextCompare);
    out = replaceText(out, u"&gt;", u">", vbTextCompare);
    out = replaceText(out, u"&quot;", u"\"", vbTextCompare);
    out = replaceText(out, u"&apos;", u"'", vbTextCompare);
    return replaceText(out, u"&amp;", u"&", vbTextCompare);
}

void appendElement(String& out, const TagPair& tag, StringView value) {
    out += tag.begin();
    out += value;
    out += tag.end();
    out += CRLF;
}

void appendElement(String& out, StringView tag, StringView value) {
    out.reserve(out.size() + 2 * tag.size() + value.size() + 7);
    out += u'<';
    out += tag;
    out += u'>';
    out += value;
    out += u"</";
    out += tag;
    out += u'>';
    out += CRLF;
}

void appendTextElement(String& out, const TagPair& tag, StringView value) {
    out += tag.begin();
    appendEncoded(out, value);
    out += tag.end();
    out += CRLF;
}

String readString(StringView buffer, const TagPair& tag, const String& default_value) {
    String decoded = decodeEntities(elementText(buffer, tag));
    if (decoded.empty()) return default_value;
    return decoded;
}

Double readNumber(StringView buffer, const TagPair& tag) {
    const Variant v = clsString().stringToNumber(elementText(buffer, tag));
    const Double* d = v.getIf<Double>();
    return d ? *d : 0.0;
}

namespace {

// itemNumber - the n of an item tag whose digits start at `i`: the number
// text of a Long (optional minus, no leading zero, no "-0"), closed by ">".
// Sets `close` to the position of the ">".
std::optional<long long> itemNumber(StringView text, std::size_t i, std::size_t& close) noexcept {
    bool negative = false;
    if (i < text.size() && text[i] == u'-') {
        negative = true;
        ++i;
    }
    const std::size_t first = i;
    // A Long has at most ten digits: a longer run names no item.
    const DigitRun run = scanDigits(text, i, 10);
    if (run.digits == 0 || run.tooLong || run.end >= text.size() || text[run.end] != u'>') return std::nullopt;
    if (text[first] == u'0' && (run.digits > 1 || negative)) return std::nullopt;
    i = run.end;
    auto value = static_cast<long long>(run.value);
    if (negative) value = -value;
    if (value < std::numeric_limits<Long>::min() || value > std::numeric_limits<Long>::max()) return std::nullopt;
    close = i;
    return value;
}

}  // namespace

ItemIndex::ItemIndex(StringView text, StringView prefix) : m_text(text) {
    // Every "<" is looked at once. An item tag holds no other "<", so the
    // tags of one number never overlap, and skipping past a tag found loses
    // no other tag.
    for (std::size_t p = text.find(u'<'); p != StringView::npos; p = text.find(u'<', p + 1)) {
        std::size_t i = p + 1;
        const bool isEnd = i < text.size() && text[i] == u'/';
        if (isEnd) ++i;
        if (text.substr(i, prefix.size()) != prefix) continue;
        std::size_t close = 0;
        if (const auto n = itemNumber(text, i + prefix.size(), close)) {
            m_tags.push_back(Tag{*n, isEnd, p, close + 1 - p});
            p = close;
        }
    }
    std::sort(m_tags.begin(), m_tags.end(), [](const Tag& a, const Tag& b) {
        if (a.number != b.number) return a.number < b.number;
        if (a.isEnd != b.isEnd) return !a.isEnd;
        return a.pos < b.pos;
    });
}

std::optional<StringView> ItemIndex::item(long long n) const {
    const auto first = std::lower_bound(m_tags.begin(), m_tags.end(), n,
                                        [](const Tag& t, long long number) { return t.number < number; });
    auto last = first;
    while (last != m_tags.end() && last->number == n && !last->isEnd) ++last;
    if (first == last) return std::nullopt;  // no begin tag
    const auto ends = last;
    auto endsLast = ends;
    while (endsLast != m_tags.end() && endsLast->number == n) ++endsLast;

    // The scan of this one tag, replayed on its own positions: begins
    // [first, last) and ends [ends, endsLast), both in text order. Each round
    // takes the next end tag after the previous one and the next begin tag
    // after the previous one, and goes on while that begin tag opens first.
    const std::size_t open = first->pos;
    auto e = std::upper_bound(ends, endsLast, open, [](std::size_t pos, const Tag& t) { return pos < t.pos; });
    auto b = first;
    for (;;) {
        if (e == endsLast) return std::nullopt;  // the end tags ran out
        ++b;
        if (b == last || b->pos > e->pos) break;
        ++e;
    }
    const std::size_t from = open + first->size;
    if (e->pos < from) return std::nullopt;
    return m_text.substr(from, e->pos - from);
}

}  // namespace quillet::persistence_internal
