// Numeric prefix and strict conversion on arbitrary UTF-16 text, and number
// text read back on arbitrary doubles. Properties checked:
//  - numericPrefix never fails and gives a finite value;
//  - tryParseNumber and parseNumber agree, and parseNumber fails only with
//    errTypeMismatch or errOverflow;
//  - a double's number text reads back, under US and German profiles, to a
//    value with the same number text (15 digits survive), and under US the
//    numeric prefix reads it the same way as strict conversion;
//  - under US, whatever strict conversion reads, the numeric prefix reads too;
//  - the numeric prefix reads the same from the text cut where it stopped;
//  - a digit run agrees with a plain reading of the digits, and never reads
//    past one digit beyond its cap.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "quillet/frame/Failure.h"
#include "quillet/frame/NumberScan.h"
#include "quillet/frame/NumberText.h"
#include "quillet/frame/RegionalSettings.h"

using namespace quillet;

namespace {

void check(bool condition) {
    if (!condition) std::abort();
}

void roundTrip(double v) {
    const String text = numberText(v);
    double back = 0;
    try {
        back = parseNumber(text);
    } catch (const Failure& f) {
        // Only the largest values, which round up past the range, may overflow.
        check(f.number() == errOverflow && std::fabs(v) > 1.79769313486231e308);
        return;
    }
    check(numberText(back) == text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    RegionalSettings::setCurrent(RegionalSettings::usEnglish());
    String text(size / 2, u'\0');
    if (!text.empty()) std::memcpy(text.data(), data, text.size() * 2);

    const double prefix = numericPrefix(text);
    check(std::isfinite(prefix));

    const auto maybe = tryParseNumber(text);
    try {
        const double strict = parseNumber(text);
        check(maybe.has_value() && *maybe == strict && std::isfinite(strict));
    } catch (const Failure& f) {
        check(!maybe.has_value());
        check(f.number() == errTypeMismatch || f.number() == errOverflow);
    }

    if (maybe) check(prefix == *maybe);
    const NumberScan scan = scanNumber(text, PREFIX_SCAN);
    check(scan.value == prefix && scan.end <= text.size());
    check(numericPrefix(StringView(text).substr(0, scan.end)) == prefix);

    const int cap = size > 0 ? data[0] % 24 : 0;
    const DigitRun run = scanDigits(text, 1, cap);
    std::uint64_t plain = 0;
    int digits = 0;
    std::size_t i = 1;
    while (i < text.size() && text[i] >= u'0' && text[i] <= u'9' && digits <= std::min(cap, MAX_DIGIT_RUN)) {
        if (digits < std::min(cap, MAX_DIGIT_RUN)) plain = plain * 10 + static_cast<std::uint64_t>(text[i] - u'0');
        ++digits;
        ++i;
    }
    check(run.tooLong == (digits > std::min(cap, MAX_DIGIT_RUN)));
    check(run.end == i);
    if (!run.tooLong) check(run.value == plain && run.digits == digits);

    if (size >= 8) {
        double v;
        std::memcpy(&v, data, 8);
        if (std::isfinite(v)) {
            roundTrip(v);
            const String us = numberText(v);
            try {
                check(numericPrefix(us) == parseNumber(us));
            } catch (const Failure&) {}
            static const RegionalSettings german = RegionalSettings::fromLocale("de_DE");
            RegionalScope de(german);
            roundTrip(v);
        }
    }
    return 0;
}
