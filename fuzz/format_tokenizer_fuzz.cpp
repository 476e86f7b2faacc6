// Long date formats: runs of one letter, quoted texts and backslashes, up to a
// few hundred kilobytes made from a small input. Checks that rendering is
// deterministic, that its length grows at most linearly with the format's,
// and that the format's text quoted, or each character escaped with a
// backslash, renders as that text itself. A tokenizer that measures a run
// again at every step exceeds the fuzzer's -timeout on these sizes.
//
// Input: byte 0 the shape, byte 1 the repeat count as a power of two, bytes
// 2-4 the date, the rest the pattern. Shape bit 0: the pattern as it is, or
// pairs (character, length) expanded into runs; the result is repeated, up
// to 256 times unless shape bits 1 and 2 are both set, then up to the longest
// format (so most runs stay quick and a quarter are long).
#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "quillet/frame/Calendar.h"
#include "quillet/frame/DateText.h"
#include "quillet/frame/RegionalSettings.h"

using namespace quillet;

namespace {

constexpr std::size_t LONGEST_FORMAT = 262144;
// The longest text one format character renders as under the US profile
// ("c", the general date, writes about 22), with room to spare.
constexpr std::size_t MOST_PER_CHARACTER = 32;

String patternOf(const std::uint8_t* data, std::size_t size, bool runs) {
    String pattern;
    if (!runs) {
        for (std::size_t i = 0; i < size; ++i) pattern.push_back(static_cast<char16_t>(data[i]));
        return pattern;
    }
    for (std::size_t i = 0; i + 1 < size && pattern.size() < LONGEST_FORMAT; i += 2)
        pattern.append(std::min<std::size_t>(data[i + 1] * 16u + 1u, LONGEST_FORMAT - pattern.size()),
                       static_cast<char16_t>(data[i]));
    return pattern;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 6) return 0;
    const bool runs = data[0] & 1;
    const bool longFormat = (data[0] & 6) == 6;
    const std::size_t repeat = std::size_t{1} << (data[1] % (longFormat ? 19 : 9));
    const double serial = calendar::FIRST_SERIAL + static_cast<double>(data[2] | data[3] << 8 | data[4] << 16) *
                                                       (calendar::LAST_SERIAL - calendar::FIRST_SERIAL) / 16777215.0;
    const String pattern = patternOf(data + 5, size - 5, runs);
    if (pattern.empty()) return 0;
    String format;
    for (std::size_t k = 0; k < repeat && format.size() < LONGEST_FORMAT; ++k) format += pattern;
    if (format.size() > LONGEST_FORMAT) format.resize(LONGEST_FORMAT);

    static const RegionalSettings us = RegionalSettings::usEnglish();
    RegionalScope scope(us);
    const Date d(serial);
    const String once = formatDate(d, format);
    if (formatDate(d, format) != once) std::abort();
    if (once.size() > MOST_PER_CHARACTER * format.size() + MOST_PER_CHARACTER) std::abort();

    String text;  // the format without its quotes, quoted
    text.reserve(format.size());
    String escaped;
    escaped.reserve(format.size() * 2);
    for (char16_t c : format) {
        if (c != u'"') text.push_back(c);
        escaped.push_back(u'\\');
        escaped.push_back(c);
    }
    if (formatDate(d, u"\"" + text + u"\"") != text) std::abort();
    if (formatDate(d, escaped) != format) std::abort();
    return 0;
}
