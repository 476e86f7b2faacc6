#include "quillet/persistence/clsBlockReader.h"

#include <unordered_set>

#include "quillet/frame/Failure.h"
#include "quillet/frame/NumberText.h"
#include "quillet/frame/TextCompare.h"
#include "quillet/frame/checked.h"
#include "quillet/frame/convert.h"

namespace quillet {

namespace {

constexpr StringView HEADER_START = u"<BLOCK ";
constexpr StringView HEADER_END = u">";

// keyValue - the text after `opening` up to `closing` in a header. An absent
// opening mark counts as position 0, so the search starts at its length; an
// absent closing mark gives the empty text.
String keyValue(StringView header, StringView opening, StringView closing) {
    return stopOnFailure(String(), [&] {
        const Long at = inStr(1, header, opening);
        const Long from = checked::add(at, static_cast<Long>(opening.size()));
        const Long to = inStr(from, header, closing);
        if (to == 0) return String();
        return String(header.substr(static_cast<std::size_t>(from - 1), static_cast<std::size_t>(to - from)));
    });
}

}  // namespace

void clsBlockReader::setDefaults() {
    m_buffer = Variant(String());
    m_blocks.redim(0, 0);
}

void clsBlockReader::setBuffer(const Variant& buffer) {
    attempt([&] { m_buffer = buffer; });
    // The length of Null is Null, which tests as false; a value with no text
    // fails the test, which lets the scan run (and find nothing).
    if (buffer.isNull()) return;
    if (attemptTest([&] { return !toText(buffer).empty(); })) scanBuffer();
}

Variant clsBlockReader::getBuffer() const { return m_buffer; }

Long clsBlockReader::getNumberOfBlocks() const {
    return stopOnFailure(Long{0}, [&] {
        if (!m_blocks[0]) return Long{0};
        return checked::add(checked::sub(m_blocks.ubound(), m_blocks.lbound()), Long{1});
    });
}

std::shared_ptr<clsBlockInfo> clsBlockReader::getBlockInformation(const Long& Index) const {
    return stopOnFailure(std::shared_ptr<clsBlockInfo>(), [&] { return m_blocks[Index]; });
}

void clsBlockReader::scanBuffer() {
    m_blocks.redim(0, 0);
    stopOnFailure([&] {
        const String text = toText(m_buffer);
        const StringView buffer = text;
        const auto length = static_cast<long long>(buffer.size());
        // The scan only ever moves by the sizes it reads, so a header that
        // comes round again would be indexed forever; it ends the scan.
        std::unordered_set<Long> seen;
        Long count = 0;
        Long p = 1;
        while (p <= length) {
            const Long at = inStr(p, buffer, HEADER_START);
            if (at == 0) break;
            const Long close = inStr(at, buffer, HEADER_END);
            if (close < at) break;
            if (!seen.insert(at).second) break;
            const StringView header =
                buffer.substr(static_cast<std::size_t>(at - 1), static_cast<std::size_t>(close - at + 1));
            m_blocks.redimPreserve(0, count);
            auto info = std::make_shared<clsBlockInfo>();
            m_blocks[count] = info;
            info->setBlockName(keyValue(header, u"ID=", u" "));
            info->setBlockSize(toLong(numericPrefix(keyValue(header, u"SIZE=", u">"))));
            const Long position =
                checked::add(checked::add(at, static_cast<Long>(header.size())), Long{2});  // after CR LF
            info->setBlockPosition(position);
            p = checked::add(position, info->getBlockSize());
            count = checked::add(count, Long{1});
        }
    });
}

}  // namespace quillet
