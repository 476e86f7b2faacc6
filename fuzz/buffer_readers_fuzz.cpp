// Fuzzes the tag buffer readers and the block reader with hostile buffers
// and tags. Properties: no failure escapes any member, and a text without
// "<" or ">" written with WriteStringBetween reads back unchanged.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "quillet/frame/Variant.h"
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

bool hasAngle(const String& s) { return s.find_first_of(u"<>") != String::npos; }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return 0;
    const std::size_t tagLength = data[0] % 12;
    const Long startPos = static_cast<Long>(static_cast<std::int8_t>(data[1]));
    data += 2;
    size -= 2;
    const std::size_t cut = tagLength < size ? tagLength : size;
    const String tag = textOf(data, cut);
    const String text = textOf(data + cut, size - cut);
    const Variant buffer(text);

    const clsBufferIO io;
    (void)io.isTagPresent(buffer, tag);
    Long beg = 0, end = 0;
    (void)io.locateMatchingTags(buffer, startPos, io.getBeginTag(tag), io.getEndTag(tag), beg, end);
    (void)io.locateMatchingTags(buffer, startPos, tag, String(), beg, end);
    (void)io.locateMatchingTags(buffer, 1, String(), tag, beg, end);
    (void)io.getSectionBetween(buffer, startPos, tag, tag, True);
    (void)io.ReadNumberBetween(buffer, tag);
    (void)io.ReadNumberBetween(buffer, tag, Variant(text));
    (void)io.ReadStringBetween(buffer, tag, u"d");
    (void)io.ReadBooleanBetween(buffer, tag, True);
    (void)io.ReadBase64StringBetween(buffer, tag);
    (void)io.ReadVariantBetween(buffer, tag, False);
    (void)io.ReadVariantBetween(buffer, tag, True);
    (void)io.ReadDateBetween(buffer, tag);
    (void)io.ReadDateBetween(buffer, tag, Variant(tag));
    (void)io.ReadCollectionBetween(buffer, tag);
    (void)io.ReadArrayBetween(buffer, tag);

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
