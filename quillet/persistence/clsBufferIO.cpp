#include "quillet/persistence/clsBufferIO.h"

#include <limits>
#include <optional>
#include <utility>

#include "quillet/frame/Failure.h"
#include "quillet/frame/NumberText.h"
#include "quillet/frame/convert.h"
#include "quillet/persistence/internal/TagText.h"
#include "quillet/persistence/internal/modMisc.h"
#include "quillet/platform/Base64.h"
#include "quillet/text/clsNumericHandling.h"
#include "quillet/text/clsString.h"

namespace quillet {

namespace pi = persistence_internal;
using pi::BufferText;
using pi::NONE;
using pi::TagPair;

namespace {

// The most items a collection or array is read with. A Count or a bound
// range above it is taken as an allocation that failed: the collection
// stays empty, the array unallocated. No saved document comes near it, and
// a hostile count cannot exhaust the host's memory.
constexpr long long MAX_READ_ITEMS = 1 << 20;

// The most text the items of one collection or array are read with, in code
// units. Items may nest, so their texts together can grow with the square
// of the buffer; past this bound the read is taken as an allocation that
// failed too.
constexpr std::size_t MAX_READ_TEXT = std::size_t{1} << 26;

// The tags of the collection and array forms, made once.
struct FormTags {
    TagPair xmlCollection{u"XmlCollection"};
    TagPair collection{u"Collection"};
    TagPair xmlArray{u"XmlArray"};
    TagPair array{u"Array"};
    TagPair count{u"Count"};
    TagPair lbound{u"LBound"};
    TagPair ubound{u"UBound"};
};

const FormTags& formTags() {
    static const FormTags tags;
    return tags;
}

String wrap(StringView tag, StringView value) {
    String s;
    pi::appendElement(s, tag, value);
    return s;
}

void appendItem(String& out, long long subscript, StringView text) {
    String tag(u"Item");
    tag += numberText(static_cast<Long>(subscript));
    out += u'<';
    out += tag;
    out += u'>';
    pi::appendEncoded(out, text);
    out += u"</";
    out += tag;
    out += u'>';
    out += pi::CRLF;
}

// readWithDefault - the element's text through `read`, or the default's text
// when the element is absent or empty and a default was given. A present
// element of blanks is not empty: it is read, not replaced by the default.
template <class Read>
auto readWithDefault(const Variant& search_str, const String& xml_tag, const Variant& default_value, Read read) {
    const BufferText buffer(search_str);
    const StringView text = pi::elementText(buffer.view(), TagPair(xml_tag));
    if (!text.empty() || default_value.isMissing()) return read(text, true);
    return read(toText(default_value), false);
}

}  // namespace

Boolean clsBufferIO::isTagPresent(const Variant& search_str_, const String& xml_tag_) const {
    Long beg_pos = 0;
    Long end_pos = 0;
    const TagPair tag(xml_tag_);
    return locateMatchingTags(search_str_, 1, String(tag.begin()), String(tag.end()), beg_pos, end_pos);
}

Boolean clsBufferIO::locateMatchingTags(const Variant& buffer, Long start_pos, const String& beg_tag,
                                        const String& end_tag, Long& beg_pos, Long& end_pos) const {
    return stopOnFailure(False, [&]() -> Boolean {
        const BufferText text(buffer);
        if (!text.hasText()) throw Failure(errTypeMismatch);
        std::size_t beg = NONE;
        std::size_t end = NONE;
        const bool found = pi::scan(text.view(), start_pos, beg_tag, end_tag, beg, end);
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
        result = readWithDefault(search_str_, xml_tag_, default_value_,
                                 [](StringView text, bool) { return clsString().stringToNumber(text); });
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
        result = pi::readString(buffer.view(), TagPair(xml_tag_), default_value_);
    });
    return result;
}

String clsBufferIO::WriteStringBetween(const String& xml_tag_, const String& value_) const {
    String result;
    attempt([&] {
        String s;
        pi::appendTextElement(s, TagPair(xml_tag_), value_);
        result = std::move(s);
    });
    return result;
}

Boolean clsBufferIO::ReadBooleanBetween(const Variant& search_str, const String& xml_tag_,
                                        Boolean default_value_) const {
    Boolean result;
    attempt([&] {
        const BufferText buffer(search_str);
        result = pi::modMisc::readBooleanText(pi::elementText(buffer.view(), TagPair(xml_tag_)), default_value_);
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
        const Array<Byte> bytes = base64::decode(pi::readString(buffer.view(), TagPair(xml_tag_), String()));
        result = toText(clsString().bytesToString(bytes));
    });
    return result;
}

Variant clsBufferIO::WriteBase64StringBetween(const String& xml_tag_, const String& value_) const {
    Variant result;
    attempt([&] {
        const String encoded = base64::encode(clsString().stringToBytes(Variant(value_)));
        result = Variant(wrap(xml_tag_, pi::encodeEntities(encoded)));
    });
    return result;
}

Variant clsBufferIO::ReadVariantBetween(const Variant& search_str, const String& xml_tag_,
                                        Boolean include_tags_) const {
    Variant result;
    attempt([&] {
        const BufferText text(search_str);
        if (auto s = pi::element(text.view(), TagPair(xml_tag_), static_cast<bool>(include_tags_)))
            result = Variant(String(*s));
    });
    return result;
}

Variant clsBufferIO::WriteVariantBetween(const String& xml_tag_, const Variant& value_) const {
    Variant result;
    attempt([&] {
        // Joined as Variants: Null and Empty join as nothing, an error value
        // cannot be joined.
        if (value_.getIf<ErrorValue>()) throw Failure(errTypeMismatch);
        if (value_.isNull() || value_.isEmpty()) {
            result = Variant(wrap(xml_tag_, StringView()));
        } else if (const String* text = value_.getIf<String>()) {
            result = Variant(wrap(xml_tag_, *text));  // a finished buffer, copied once
        } else {
            result = Variant(wrap(xml_tag_, toText(value_)));
        }
    });
    return result;
}

Variant clsBufferIO::getSectionBetween(const Variant& buffer, Long start_pos, const String& beg_tag,
                                       const String& end_tag, Boolean include_tags_) const {
    Variant result;
    attempt([&] {
        const BufferText text(buffer);
        if (auto s = pi::section(text.view(), start_pos, beg_tag, end_tag, static_cast<bool>(include_tags_)))
            result = Variant(String(*s));
    });
    return result;
}

String clsBufferIO::getBeginTag(const String& tag_) const {
    String result;
    attempt([&] { result = String(TagPair(tag_).begin()); });
    return result;
}

String clsBufferIO::getEndTag(const String& tag_) const {
    String result;
    attempt([&] { result = String(TagPair(tag_).end()); });
    return result;
}

Date clsBufferIO::ReadDateBetween(const Variant& search_str, const String& xml_tag_,
                                  const Variant& default_value_) const {
    Date result;
    attempt([&] {
        // Only the element's own text is decoded; the default is taken as it stands.
        result = readWithDefault(search_str, xml_tag_, default_value_, [](StringView text, bool fromElement) {
            return clsString().stringToDate(fromElement ? pi::decodeEntities(text) : String(text));
        });
    });
    return result;
}

String clsBufferIO::WriteDateBetween(const String& xml_tag_, Date value_) const {
    String result;
    attempt([&] { result = wrap(xml_tag_, pi::encodeEntities(clsString().dateToString(value_))); });
    return result;
}

std::shared_ptr<Collection> clsBufferIO::ReadCollectionBetween(const Variant& search_str,
                                                               const String& xml_tag_) const {
    std::shared_ptr<Collection> result;
    attempt([&] { result = std::make_shared<Collection>(); });
    attempt([&] {
        const FormTags& tags = formTags();
        const BufferText buffer(search_str);
        const StringView outer = pi::elementText(buffer.view(), TagPair(xml_tag_));
        StringView prefix = u"Item";
        StringView inner = pi::elementText(outer, tags.xmlCollection);
        if (inner.empty()) {
            inner = pi::elementText(outer, tags.collection);  // the older form: bare positions
            prefix = StringView();
        }
        Long count = 0;
        attempt([&] { count = toLong(pi::readNumber(inner, tags.count)); });
        if (count <= 0 || count > MAX_READ_ITEMS) return;
        // Items are read from the caller's element, not from the inner one.
        const pi::ItemIndex index(outer, prefix);
        auto items = std::make_shared<Collection>();
        std::size_t total = 0;
        for (Long i = 1; i <= count; ++i) {
            String item;
            if (const auto text = index.item(i)) {
                total += text->size();
                if (total > MAX_READ_TEXT) return;
                item = pi::decodeEntities(*text);
            }
            attempt([&] { items->Add(Variant(std::move(item))); });
        }
        result = std::move(items);
    });
    return result;
}

Variant clsBufferIO::WriteCollectionBetween(const String& xml_tag_, const std::shared_ptr<Collection>& coll_) const {
    Variant result;
    attempt([&] {
        Long count = 0;
        if (coll_) count = coll_->Count();
        String items;
        pi::appendElement(items, formTags().count, numberText(count));
        for (Long i = 1; i <= count; ++i) {
            // An item with no text (an object) is left out; Count still counts it.
            attempt([&] { appendItem(items, i, toText(coll_->Item(Variant(i)))); });
        }
        result = Variant(wrap(xml_tag_, wrap(u"XmlCollection", items)));
    });
    return result;
}

Array<String> clsBufferIO::ReadArrayBetween(const Variant& search_str, const String& xml_tag_) const {
    Array<String> result;
    attempt([&] {
        const FormTags& tags = formTags();
        const BufferText buffer(search_str);
        const StringView outer = pi::elementText(buffer.view(), TagPair(xml_tag_));
        StringView prefix = u"Item";
        StringView inner = pi::elementText(outer, tags.xmlArray);
        if (inner.empty()) {
            inner = pi::elementText(outer, tags.array);  // the older form: bare subscripts
            prefix = StringView();
        }
        Long lower = 0;
        Long upper = 0;
        attempt([&] { lower = toLong(pi::readNumber(inner, tags.lbound)); });
        attempt([&] { upper = toLong(pi::readNumber(inner, tags.ubound)); });
        if (upper < lower) return;
        if (static_cast<long long>(upper) - lower + 1 > MAX_READ_ITEMS) return;
        Array<String> items(lower, upper);
        const pi::ItemIndex index(inner, prefix);
        std::size_t total = 0;
        for (long long i = lower; i <= upper; ++i) {
            if (const auto text = index.item(i)) {
                total += text->size();
                if (total > MAX_READ_TEXT) return;
                items[static_cast<Long>(i)] = pi::decodeEntities(*text);
            }
        }
        result = std::move(items);
    });
    return result;
}

Variant clsBufferIO::WriteArrayBetween(const String& xml_tag_, const Array<String>& arr_) const {
    Variant result;
    attempt([&] {
        const FormTags& tags = formTags();
        String items;
        if (clsNumericHandling().isArrayEmpty(Variant(arr_))) {
            pi::appendElement(items, tags.lbound, u"0");
            pi::appendElement(items, tags.ubound, u"-1");
        } else {
            const Long lower = arr_.lbound();
            const Long upper = arr_.ubound();
            pi::appendElement(items, tags.lbound, numberText(lower));
            pi::appendElement(items, tags.ubound, numberText(upper));
            for (long long i = lower; i <= upper; ++i) appendItem(items, i, arr_[static_cast<Long>(i)]);
        }
        result = Variant(wrap(xml_tag_, wrap(u"XmlArray", items)));
    });
    return result;
}

}  // namespace quillet
