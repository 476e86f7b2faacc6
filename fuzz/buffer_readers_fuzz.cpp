// Fuzzes the tag buffer readers and the block reader with hostile buffers
// and tags. Properties: no failure escapes any member; a text without "<" or
// ">" written with WriteStringBetween reads back unchanged; every collection
// item is what a search of the element for that item's own tag gives.
//
// Input: byte 0 holds the tag's length (low 4 bits, modulo 12) and how often
// a part of the text is repeated (bits 4 and 5: 1, 16, 256 or 4096 times),
// byte 1 the start position of the scans, then the tag, then the text. The
// repeated part lies between the first and the last byte 0xEE of the text (the
// whole text without two of them); in each copy the byte 0xEF becomes the
// copy's number from 1, so "<Item\xEF>" makes one item per copy. Repetition
// lets a small input reach buffers of megabytes with thousands of distinct
// items, where a reader that searches again per item exceeds the time limit.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "quillet/frame/Collection.h"
#include "quillet/frame/NumberText.h"
#include "quillet/frame/Variant.h"
#include "quillet/frame/convert.h"
#include "quillet/persistence/clsBlockReader.h"
#include "quillet/persistence/clsBufferIO.h"

using namespace quillet;

namespace {

// Bytes become code units one for one; 0xF0 to 0xFF map to a few characters
// whose case folding is unusual, so the entity decoder meets them too.
String textOf(const std::uint8_t* data, std::size_t size) {
    static constexpr char16_t SPECIAL[16] = {u'\u017F',
                                             u'\u212A',
                                             u'\u0130',
                                             u'\u00DF',
                                             u'\u03A3',
                                             u'\uFFFD',
                                             char16_t(0xD800),
                                             char16_t(0xDC00),
                                             u'\0',
                                             u'&',
                                             u'<',
                                             u'>',
                                             u'/',
                                             u';',
                                             u'\r',
                                             u'\n'};
    String s;
    s.reserve(size);
    for (std::size_t i = 0; i < size; ++i) s += data[i] >= 0xF0 ? SPECIAL[data[i] - 0xF0] : char16_t(data[i]);
    return s;
}

constexpr std::size_t MAX_REPEATED = std::size_t{1} << 21;
constexpr char16_t REPEAT_MARK = 0xEE;
constexpr char16_t COPY_MARK = 0xEF;

bool hasAngle(const String& s) { return s.find_first_of(u"<>") != String::npos; }

// The collection reader against the search of each item on its own.
void checkItems(const clsBufferIO& io, const Variant& buffer, const String& tag) {
    const auto items = io.ReadCollectionBetween(buffer, tag);
    const Variant outer = io.ReadVariantBetween(buffer, tag);
    const String* outerText = outer.getIf<String>();
    const Variant inner = io.ReadVariantBetween(outer, u"XmlCollection");
    const String* innerText = inner.getIf<String>();
    const String prefix = innerText && !innerText->empty() ? u"Item" : u"";
    for (Long i = 1; i <= items->Count() && i <= 4096; ++i) {
        const String expected = outerText ? io.ReadStringBetween(outer, prefix + numberText(i)) : String();
        if (toText(items->Item(i)) != expected) std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return 0;
    const std::size_t tagLength = (data[0] & 0x0F) % 12;
    std::size_t repeat = std::size_t{1} << (4 * ((data[0] >> 4) & 0x03));
    const Long startPos = static_cast<Long>(static_cast<std::int8_t>(data[1]));
    data += 2;
    size -= 2;
    const std::size_t cut = tagLength < size ? tagLength : size;
    const String tag = textOf(data, cut);
    const String raw = textOf(data + cut, size - cut);
    std::size_t first = raw.find(REPEAT_MARK);
    std::size_t last = raw.rfind(REPEAT_MARK);
    if (first == last) {
        first = 0;
        last = raw.size();
    } else {
        ++first;
    }
    const StringView once = StringView(raw).substr(first, last - first);
    // Two million code units are enough to tell linear from quadratic.
    if (once.size() * repeat > MAX_REPEATED) repeat = std::max<std::size_t>(1, MAX_REPEATED / once.size());
    String text(raw.substr(0, first == 0 ? 0 : first - 1));
    for (std::size_t k = 1; k <= repeat; ++k) {
        const String number = numberText(static_cast<Long>(k));
        for (const char16_t c : once) {
            if (c == COPY_MARK) {
                text += number;
            } else {
                text += c;
            }
        }
    }
    if (last < raw.size()) text += StringView(raw).substr(last + 1);
    const Variant buffer(text);
    const clsBufferIO io;

    // Every reader of the tag buffer is linear in the buffer.
    (void)io.isTagPresent(buffer, tag);
    Long beg = 0, end = 0;
    (void)io.locateMatchingTags(buffer, startPos, io.getBeginTag(tag), io.getEndTag(tag), beg, end);
    (void)io.locateMatchingTags(buffer, startPos, tag, String(), beg, end);
    (void)io.locateMatchingTags(buffer, 1, String(), tag, beg, end);
    (void)io.getSectionBetween(buffer, startPos, tag, tag, True);
    (void)io.ReadNumberBetween(buffer, tag);
    (void)io.ReadStringBetween(buffer, tag, u"d");
    (void)io.ReadBooleanBetween(buffer, tag, True);
    (void)io.ReadVariantBetween(buffer, tag, True);
    (void)io.ReadCollectionBetween(buffer, tag);
    (void)io.ReadArrayBetween(buffer, tag);
    if (text.size() < 4096) checkItems(io, buffer, tag);
    if (repeat > 1) return 0;

    (void)io.ReadNumberBetween(buffer, tag, Variant(text));
    (void)io.ReadBase64StringBetween(buffer, tag);
    (void)io.ReadVariantBetween(buffer, tag, False);
    (void)io.ReadDateBetween(buffer, tag);
    (void)io.ReadDateBetween(buffer, tag, Variant(tag));

    clsBlockReader reader;
    reader.setBuffer(buffer);
    const Long blocks = reader.getNumberOfBlocks();
    for (Long i = -1; i <= blocks; ++i) {
        const auto info = reader.getBlockInformation(i);
        if ((i >= 0 && i < blocks) != (info != nullptr)) std::abort();
    }

    if (!text.empty() && !hasAngle(text) && !hasAngle(tag)) {
        const String element = io.WriteStringBetween(tag, text);
        if (io.ReadStringBetween(Variant(element), tag, u"default") != text) std::abort();
    }
    return 0;
}
