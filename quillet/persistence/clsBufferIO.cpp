#include "quillet/persistence/clsBufferIO.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <unordered_set>
#include <utility>

#include "quillet/frame/Failure.h"
#include "quillet/frame/NumberText.h"
#include "quillet/frame/TextCompare.h"
#include "quillet/frame/checked.h"
#include "quillet/frame/convert.h"
#include "quillet/persistence/modMisc.h"
#include "quillet/platform/Base64.h"
#include "quillet/text/clsNumericHandling.h"
#include "quillet/text/clsString.h"

namespace quillet {

namespace {

constexpr StringView CRLF = u"\r\n";
constexpr std::size_t NONE = 0;  // a 1-based position that was not found

// The most items a collection or array is read with. A Count or a bound
// range above it is taken as an allocation that failed: the collection
// stays empty, the array unallocated. No saved document comes near it, and
// a hostile count cannot exhaust the host's memory.
constexpr long long MAX_READ_ITEMS = 1 << 20;

// BufferText - the text of a buffer Variant without copying it: a view of
// the held String, or the text form of another kind kept here. Null,
// objects and arrays hold no text and read as the empty text.
class BufferText {
public:
    explicit BufferText(const Variant& buffer) noexcept {
        if (const String* s = buffer.getIf<String>()) {
            view_ = *s;
            return;
        }
        try {
            owned_ = toText(buffer);
            hasText_ = true;
        } catch (...) {
            hasText_ = false;
        }
        view_ = owned_;
    }
    BufferText(const BufferText&) = delete;
    BufferText& operator=(const BufferText&) = delete;

    [[nodiscard]] StringView view() const noexcept { return view_; }
    // hasText - false for Null, objects and arrays: a search in them fails.
    [[nodiscard]] bool hasText() const noexcept { return hasText_; }

private:
    String owned_;
    StringView view_;
    bool hasText_ = true;
};

// inStr - the 1-based position of `needle` in `hay` at or after `start`
// (1-based, at least 1), or NONE. An empty needle is found at `start`.
std::size_t inStr(StringView hay, std::size_t start, StringView needle) noexcept {
    if (start > hay.size()) return NONE;
    if (needle.empty()) return start;
    const std::size_t p = hay.find(needle, start - 1);
    return p == StringView::npos ? NONE : p + 1;
}

// scan - the matching scan. Fails (errInvalidCall) for a start below 1.
// Positions are 1-based; the result is whether both were found.
bool scan(StringView buffer, Long start_pos, StringView beg_tag, StringView end_tag, std::size_t& beg_pos,
          std::size_t& end_pos) {
    if (start_pos < 1) throw Failure(errInvalidCall);
    const auto start = static_cast<std::size_t>(start_pos);
    beg_pos = inStr(buffer, start, beg_tag);
    end_pos = NONE;
    if (beg_tag.empty()) {
        end_pos = inStr(buffer, start, end_tag);
    } else if (end_tag.empty()) {
        end_pos = buffer.size();
    } else if (beg_pos != NONE) {
        // Pair the k-th end tag after the opening with the k-th begin tag
        // after it: same-named elements nest.
        std::size_t b = beg_pos;
        std::size_t e = beg_pos;
        do {
            e = inStr(buffer, e + 1, end_tag);
            // Only a begin tag that opens before e keeps the loop going; one
            // at or after e ends it just as none does, so search no further.
            const std::size_t horizon = std::min(buffer.size(), e + beg_tag.size() - 2);
            b = e == NONE ? NONE : inStr(buffer.substr(0, horizon), b + 1, beg_tag);
        } while (e > b && b != NONE && e != NONE);
        end_pos = e;
    }
    return beg_pos != NONE && end_pos != NONE;
}

// mid - the text from 1-based `start` for `length` units, clipped to the end.
StringView mid(StringView text, std::size_t start, std::size_t length) noexcept {
    if (start > text.size()) return StringView();
    return text.substr(start - 1, length);
}

// section - the text between the matching tags (or with them), as a view
// into `buffer`; nothing when the scan fails or the tags overlap.
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

String beginTag(StringView tag) {
    String s;
    s.reserve(tag.size() + 2);
    s += u'<';
    s += tag;
    s += u'>';
    return s;
}

String endTag(StringView tag) {
    String s;
    s.reserve(tag.size() + 3);
    s += u"</";
    s += tag;
    s += u'>';
    return s;
}

// element - the value text of the first element `tag` at any depth.
std::optional<StringView> element(StringView buffer, StringView tag, bool include_tags = false) {
    return section(buffer, 1, beginTag(tag), endTag(tag), include_tags);
}

// elementText - as element; the empty text when absent.
StringView elementText(StringView buffer, StringView tag) { return element(buffer, tag).value_or(StringView()); }

// wrap - begin, value, end, CR LF.
String wrap(StringView tag, StringView value) {
    String s;
    s.reserve(2 * tag.size() + value.size() + 7);
    s += u'<';
    s += tag;
    s += u'>';
    s += value;
    s += u"</";
    s += tag;
    s += u'>';
    s += CRLF;
    return s;
}

String encodeEntities(StringView text) {
    // "&" first, so the ampersands of the other entities stay as they are.
    String out;
    out.reserve(text.size());
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
    return out;
}

String decodeEntities(StringView text) {
    if (text.find(u'&') == StringView::npos) return String(text);
    // Each entity is replaced in its own pass over the whole text, found by
    // text comparison, "&amp;" last: so "&amp;lt;" gives "&lt;", and "&LT;"
    // gives "<". The search runs in the case-folded copy (same length), and
    // the folded copy is kept in step with the text across the passes.
    struct Entity {
        StringView folded;
        char16_t character;
    };
    static constexpr Entity ENTITIES[] = {
        {u"&lt;", u'<'}, {u"&gt;", u'>'}, {u"&quot;", u'"'}, {u"&apos;", u'\''}, {u"&amp;", u'&'}};
    String text1(text);
    String folded = foldCase(text);
    for (const Entity& entity : ENTITIES) {
        std::size_t p = folded.find(entity.folded);
        if (p == String::npos) continue;
        String out;
        String outFolded;
        out.reserve(text1.size());
        outFolded.reserve(text1.size());
        std::size_t from = 0;
        while (p != String::npos) {
            out.append(text1, from, p - from);
            outFolded.append(folded, from, p - from);
            out += entity.character;
            outFolded += entity.character;
            from = p + entity.folded.size();
            p = folded.find(entity.folded, from);
        }
        out.append(text1, from);
        outFolded.append(folded, from);
        text1.swap(out);
        folded.swap(outFolded);
    }
    return text1;
}

String readString(StringView buffer, StringView tag, const String& default_value) {
    String decoded = decodeEntities(elementText(buffer, tag));
    if (decoded.empty()) return default_value;
    return decoded;
}

Double readNumber(StringView buffer, StringView tag) {
    const Variant v = clsString().stringToNumber(elementText(buffer, tag));
    const Double* d = v.getIf<Double>();
    return d ? *d : 0.0;
}

String itemTag(StringView prefix, long long subscript) {
    String tag(prefix);
    tag += numberText(static_cast<Long>(subscript));
    return tag;
}

// presentItems - every whole number n for which "<" prefix n ">" occurs in
// the text, n written as number text writes it. An item not in this set
// reads as the empty text, so a large count costs no search per item.
std::unordered_set<long long> presentItems(StringView text, StringView prefix) {
    std::unordered_set<long long> found;
    String opening = u"<";
    opening += prefix;
    for (std::size_t p = text.find(opening); p != StringView::npos; p = text.find(opening, p + 1)) {
        std::size_t i = p + opening.size();
        bool negative = false;
        if (i < text.size() && text[i] == u'-') {
            negative = true;
            ++i;
        }
        const std::size_t first = i;
        long long value = 0;
        while (i < text.size() && text[i] >= u'0' && text[i] <= u'9' && i - first < 11) {
            value = value * 10 + (text[i] - u'0');
            ++i;
        }
        const std::size_t digits = i - first;
        if (digits == 0 || i >= text.size() || text[i] != u'>') continue;
        if (text[first] == u'0' && (digits > 1 || negative)) continue;  // not how a number is written
        if (negative) value = -value;
        if (value < std::numeric_limits<Long>::min() || value > std::numeric_limits<Long>::max()) continue;
        found.insert(value);
    }
    return found;
}

}  // namespace

Boolean clsBufferIO::isTagPresent(const Variant& search_str_, const String& xml_tag_) const {
    Long beg_pos = 0;
    Long end_pos = 0;
    return locateMatchingTags(search_str_, 1, beginTag(xml_tag_), endTag(xml_tag_), beg_pos, end_pos);
}

Boolean clsBufferIO::locateMatchingTags(const Variant& buffer, Long start_pos, const String& beg_tag,
                                        const String& end_tag, Long& beg_pos, Long& end_pos) const {
    return stopOnFailure(False, [&]() -> Boolean {
        const BufferText text(buffer);
        if (!text.hasText()) throw Failure(errTypeMismatch);
        std::size_t beg = NONE;
        std::size_t end = NONE;
        const bool found = scan(text.view(), start_pos, beg_tag, end_tag, beg, end);
        constexpr auto LONG_MAX_POS = static_cast<std::size_t>(std::numeric_limits<Long>::max());
        if (beg > LONG_MAX_POS || end > LONG_MAX_POS) throw Failure(errOverflow);
        beg_pos = static_cast<Long>(beg);
        end_pos = static_cast<Long>(end);
        return found;
    });
}

Variant clsBufferIO::ReadNumberBetween(const Variant& search_str_, const String& xml_tag_,
                                       const Variant& default_value_) const {
    Variant result;
    attempt([&] {
        const BufferText buffer(search_str_);
        const StringView text = elementText(buffer.view(), xml_tag_);
        const clsString str;
        // A present element of blanks is not empty: it reads as 0, not as the default.
        if (!text.empty() || default_value_.isMissing()) {
            result = str.stringToNumber(text);
        } else {
            result = str.stringToNumber(toText(default_value_));
        }
    });
    return result;
}

String clsBufferIO::WriteNumberBetween(const String& xml_tag_, const Variant& value_) const {
    String result;
    attempt([&] { result = wrap(xml_tag_, toText(value_)); });
    return result;
}

String clsBufferIO::ReadStringBetween(const Variant& search_str, const String& xml_tag_,
                                      const String& default_value_) const {
    String result;
    attempt([&] {
        const BufferText buffer(search_str);
        result = readString(buffer.view(), xml_tag_, default_value_);
    });
    return result;
}

String clsBufferIO::WriteStringBetween(const String& xml_tag_, const String& value_) const {
    String result;
    attempt([&] { result = wrap(xml_tag_, encodeEntities(value_)); });
    return result;
}

Boolean clsBufferIO::ReadBooleanBetween(const Variant& search_str, const String& xml_tag_,
                                        Boolean default_value_) const {
    Boolean result;
    attempt([&] {
        const BufferText buffer(search_str);
        result = modMisc::readBooleanText(String(elementText(buffer.view(), xml_tag_)), default_value_);
    });
    return result;
}

String clsBufferIO::WriteBooleanBetween(const String& xml_tag_, Boolean value_) const {
    String result;
    attempt([&] { result = wrap(xml_tag_, clsString().booleanToString(value_)); });
    return result;
}

String clsBufferIO::ReadBase64StringBetween(const Variant& buffer_, const String& xml_tag_) const {
    String result;
    attempt([&] {
        const BufferText buffer(buffer_);
        const Array<Byte> bytes = base64::decode(readString(buffer.view(), xml_tag_, String()));
        result = toText(clsString().bytesToString(bytes));
    });
    return result;
}

Variant clsBufferIO::WriteBase64StringBetween(const String& xml_tag_, const String& value_) const {
    Variant result;
    attempt([&] {
        const String encoded = base64::encode(clsString().stringToBytes(Variant(value_)));
        result = Variant(wrap(xml_tag_, encodeEntities(encoded)));
    });
    return result;
}

Variant clsBufferIO::ReadVariantBetween(const Variant& search_str, const String& xml_tag_,
                                        Boolean include_tags_) const {
    return getSectionBetween(search_str, 1, beginTag(xml_tag_), endTag(xml_tag_), include_tags_);
}

Variant clsBufferIO::WriteVariantBetween(const String& xml_tag_, const Variant& value_) const {
    Variant result;
    attempt([&] {
        // Joined as Variants: Null and Empty join as nothing, an error value
        // cannot be joined.
        if (value_.getIf<ErrorValue>()) throw Failure(errTypeMismatch);
        const String text = (value_.isNull() || value_.isEmpty()) ? String() : toText(value_);
        result = Variant(wrap(xml_tag_, text));
    });
    return result;
}

Variant clsBufferIO::getSectionBetween(const Variant& buffer, Long start_pos, const String& beg_tag,
                                       const String& end_tag, Boolean include_tags_) const {
    Variant result;
    attempt([&] {
        const BufferText text(buffer);
        if (auto s = section(text.view(), start_pos, beg_tag, end_tag, static_cast<bool>(include_tags_)))
            result = Variant(String(*s));
    });
    return result;
}

String clsBufferIO::getBeginTag(const String& tag_) const {
    String result;
    attempt([&] { result = beginTag(tag_); });
    return result;
}

String clsBufferIO::getEndTag(const String& tag_) const {
    String result;
    attempt([&] { result = endTag(tag_); });
    return result;
}

Date clsBufferIO::ReadDateBetween(const Variant& search_str, const String& xml_tag_,
                                  const Variant& default_value_) const {
    Date result;
    attempt([&] {
        const BufferText buffer(search_str);
        const StringView text = elementText(buffer.view(), xml_tag_);
        const clsString str;
        if (!text.empty() || default_value_.isMissing()) {
            result = str.stringToDate(decodeEntities(text));
        } else {
            result = str.stringToDate(toText(default_value_));
        }
    });
    return result;
}

String clsBufferIO::WriteDateBetween(const String& xml_tag_, Date value_) const {
    String result;
    attempt([&] { result = wrap(xml_tag_, encodeEntities(clsString().dateToString(value_))); });
    return result;
}

std::shared_ptr<Collection> clsBufferIO::ReadCollectionBetween(const Variant& search_str,
                                                               const String& xml_tag_) const {
    std::shared_ptr<Collection> result;
    attempt([&] { result = std::make_shared<Collection>(); });
    attempt([&] {
        const BufferText buffer(search_str);
        const StringView outer = elementText(buffer.view(), xml_tag_);
        StringView prefix = u"Item";
        StringView inner = elementText(outer, u"XmlCollection");
        if (inner.empty()) {
            inner = elementText(outer, u"Collection");  // the older form: bare positions
            prefix = StringView();
        }
        Long count = 0;
        attempt([&] { count = toLong(readNumber(inner, u"Count")); });
        if (count <= 0 || count > MAX_READ_ITEMS) return;
        // Items are read from the caller's element, not from the inner one.
        const std::unordered_set<long long> present = presentItems(outer, prefix);
        Collection& items = deref(result);
        for (long long i = 1; i <= count; ++i) {
            attempt([&] {
                String item;
                if (present.count(i) != 0) item = readString(outer, itemTag(prefix, i), String());
                items.Add(Variant(std::move(item)));
            });
        }
    });
    return result;
}

Variant clsBufferIO::WriteCollectionBetween(const String& xml_tag_, const std::shared_ptr<Collection>& coll_) const {
    Variant result;
    attempt([&] {
        Long count = 0;
        if (coll_) count = coll_->Count();
        String items = wrap(u"Count", numberText(count));
        for (Long i = 1; i <= count; ++i) {
            // An item with no text (an object) is left out; Count still counts it.
            attempt([&] { items += wrap(itemTag(u"Item", i), encodeEntities(toText(coll_->Item(Variant(i))))); });
        }
        result = Variant(wrap(xml_tag_, wrap(u"XmlCollection", items)));
    });
    return result;
}

Array<String> clsBufferIO::ReadArrayBetween(const Variant& search_str, const String& xml_tag_) const {
    Array<String> result;
    attempt([&] {
        const BufferText buffer(search_str);
        const StringView outer = elementText(buffer.view(), xml_tag_);
        StringView prefix = u"Item";
        StringView inner = elementText(outer, u"XmlArray");
        if (inner.empty()) {
            inner = elementText(outer, u"Array");  // the older form: bare subscripts
            prefix = StringView();
        }
        Long lower = 0;
        Long upper = 0;
        attempt([&] { lower = toLong(readNumber(inner, u"LBound")); });
        attempt([&] { upper = toLong(readNumber(inner, u"UBound")); });
        if (upper < lower) return;
        if (static_cast<long long>(upper) - lower + 1 > MAX_READ_ITEMS) return;
        Array<String> items(lower, upper);
        const std::unordered_set<long long> present = presentItems(inner, prefix);
        for (long long i = lower; i <= upper; ++i) {
            if (present.count(i) != 0)
                attempt([&] { items[static_cast<Long>(i)] = readString(inner, itemTag(prefix, i), String()); });
        }
        result = std::move(items);
    });
    return result;
}

Variant clsBufferIO::WriteArrayBetween(const String& xml_tag_, const Array<String>& arr_) const {
    Variant result;
    attempt([&] {
        String items;
        if (clsNumericHandling().isArrayEmpty(Variant(arr_))) {
            items = wrap(u"LBound", u"0") + wrap(u"UBound", u"-1");
        } else {
            const Long lower = arr_.lbound();
            const Long upper = arr_.ubound();
            items = wrap(u"LBound", numberText(lower)) + wrap(u"UBound", numberText(upper));
            for (long long i = lower; i <= upper; ++i)
                items += wrap(itemTag(u"Item", i), encodeEntities(arr_[static_cast<Long>(i)]));
        }
        result = Variant(wrap(xml_tag_, wrap(u"XmlArray", items)));
    });
    return result;
}

}  // namespace quillet
