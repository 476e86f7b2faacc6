// Long date formats: runs of one letter, quoted texts and backslashes, up to a
// few hundred kilobytes made from a small input. Checks that rendering is
// deterministic, that its length grows at most linearly with the format's,
// and that the format's text quoted, or each character escaped with a
// backslash, renders as that text itself. A tokenizer that measures a run
// again at every step exceeds the fuzzer's -timeout on these sizes.
//
// Input: byte 0 the shape, byte 1 the repeat count as a power of two, bytes
// 2-4 the date, the rest the pattern. Shape bit 0: the pattern as it is, or
// pairs (character, length) expanded into runs; the result is repeated. A
// format stays within SHORT_FORMAT characters unless shape bits 1 to 3 are
// all set, so that most runs are quick and an eighth are long.
#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "quillet/frame/Calendar.h"
#include "quillet/frame/DateText.h"
#include "quillet/frame/RegionalSettings.h"

using namespace quillet;

namespace {

constexpr std::size_t LONGEST_FORMAT = 262144;
constexpr std::size_t SHORT_FORMAT = 4096;
// The longest text one format character renders as under the US profile
// ("c", the general date, writes about 22), with room to spare.
constexpr std::size_t MOST_PER_CHARACTER = 32;

String patternOf(const std::uint8_t* data, std::size_t size, bool runs, std::size_t longest) {
    String pattern;
    if (!runs) {
        for (std::size_t i = 0; i < size; ++i) pattern.push_back(static_cast<char16_t>(data[i]));
        return pattern;
    }
    for (std::size_t i = 0; i + 1 < size && pattern.size() < longest; i += 2)
        pattern.append(std::min<std::size_t>(data[i + 1] * 16u + 1u, longest - pattern.size()),
                       static_cast<char16_t>(data[i]));
    return pattern;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 6) return 0;
    const bool runs = data[0] & 1;
    const std::size_t longest = (data[0] & 14) == 14 ? LONGEST_FORMAT : SHORT_FORMAT;
    const std::size_t repeat = std::size_t{1} << (data[1] % 19);
    const double serial = calendar::FIRST_SERIAL + static_cast<double>(data[2] | data[3] << 8 | data[4] << 16) *
                                                       (calendar::LAST_SERIAL - calendar::FIRST_SERIAL) / 16777215.0;
    const String pattern = patternOf(data + 5, size - 5, runs, longest);
    if (pattern.empty()) return 0;
    String format;
    for (std::size_t k = 0; k < repeat && format.size() < longest; ++k) format += pattern;
    if (format.size() > longest) format.resize(longest);

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
