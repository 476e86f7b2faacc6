#include "quillet/frame/NumberScan.h"

#include <charconv>
#include <cstring>
#include <string>

#include "quillet/frame/RegionalSettings.h"

namespace quillet {

namespace {

constexpr auto isDigit = chars::isAsciiDigit;

int digitValue(char16_t c) noexcept {
    if (c >= u'0' && c <= u'9') return c - u'0';
    if (c >= u'a' && c <= u'f') return c - u'a' + 10;
    if (c >= u'A' && c <= u'F') return c - u'A' + 10;
    return 99;
}

int radixOf(char16_t letter) noexcept {
    if (letter == u'H' || letter == u'h') return 16;
    if (letter == u'O' || letter == u'o') return 8;
    return 0;
}

bool isExponentLetter(char16_t c) noexcept { return c == u'E' || c == u'e' || c == u'D' || c == u'd'; }

// The ASCII copy of a number for from_chars: on the stack while it is short,
// as nearly every number is, on the heap when a text holds a long run of digits.
class AsciiNumber {
public:
    void push(char c) {
        if (m_size < sizeof m_small) {
            m_small[m_size++] = c;
            return;
        }
        if (m_large.empty()) m_large.assign(m_small, m_size);
        m_large += c;
        ++m_size;
    }
    void truncate(std::size_t size) {
        m_size = size;
        if (!m_large.empty()) m_large.resize(size);
    }
    // Replaces the last `count` characters by `text` of the same length.
    void overwriteTail(const char* text, std::size_t count) noexcept {
        std::memcpy(data() + m_size - count, text, count);
    }
    [[nodiscard]] char* data() noexcept { return m_large.empty() ? m_small : m_large.data(); }
    [[nodiscard]] const char* data() const noexcept { return m_large.empty() ? m_small : m_large.data(); }
    [[nodiscard]] std::size_t size() const noexcept { return m_size; }

private:
    char m_small[64];
    std::size_t m_size = 0;
    std::string m_large;
};

// True when the validated number text `ascii` ([-]digits[.digits][e[-]digits])
// lies below 1 in magnitude: from_chars reports both ends of the range as out
// of range, and the small end is a number, zero.
bool belowOne(const char* ascii, std::size_t size) noexcept {
    long magnitude = 0;  // decimal exponent of the first significant digit, roughly
    std::size_t i = (size > 0 && ascii[0] == '-') ? 1 : 0;
    bool seenPoint = false;
    bool significant = false;
    for (; i < size && ascii[i] != 'e'; ++i) {
        if (ascii[i] == '.') {
            seenPoint = true;
        } else if (!significant && ascii[i] == '0') {
            if (seenPoint) --magnitude;
        } else {
            significant = true;
            if (!seenPoint) ++magnitude;
        }
    }
    if (i < size) {
        long e = 0;
        const char* first = ascii + i + 1;
        const bool minus = *first == '-';
        if (minus || *first == '+') ++first;
        std::from_chars(first, ascii + size, e);  // at most nine digits
        magnitude += minus ? -e : e;
    }
    return magnitude <= 0;
}

NumberScan converted(const AsciiNumber& ascii, std::size_t end) noexcept {
    NumberScan scan{NumberScanStatus::Number, 0.0, end};
    const auto res = std::from_chars(ascii.data(), ascii.data() + ascii.size(), scan.value);
    if (res.ec == std::errc::result_out_of_range) {
        scan.value = 0;
        if (!belowOne(ascii.data(), ascii.size())) scan.status = NumberScanStatus::OutOfRange;
    } else if (res.ec != std::errc()) {
        scan.value = 0;
    }
    return scan;
}

// Reads hexadecimal or octal digits from `pos` (just past "&H" or "&O") as
// the host language does: up to 16 bits the number is an Integer, so &HFFFF
// is -1; up to 32 bits a Long; beyond that it is out of range.
NumberScan radixNumber(StringView text, std::size_t pos, int radix, const NumberScanOptions& options) noexcept {
    const auto blank = options.blanksInside ? options.blank : nullptr;
    std::uint64_t value = 0;
    bool any = false;
    bool tooLarge = false;
    for (; pos < text.size(); ++pos) {
        const char16_t c = text[pos];
        if (blank != nullptr && blank(c)) continue;
        const int d = digitValue(c);
        if (d >= radix) break;
        value = value * static_cast<unsigned>(radix) + static_cast<unsigned>(d);
        if (value > 0xFFFFFFFFull) {
            tooLarge = true;
            value = 0xFFFFFFFFull + 1;  // keeps reading without overflowing
        }
        any = true;
    }
    NumberScan scan{NumberScanStatus::NoNumber, 0.0, pos};
    if (!any) return scan;
    if (tooLarge) {
        scan.status = NumberScanStatus::OutOfRange;
    } else {
        scan.status = NumberScanStatus::Number;
        scan.value = value <= 0xFFFF
                         ? static_cast<Double>(static_cast<std::int16_t>(value))
                         : static_cast<Double>(static_cast<std::int32_t>(static_cast<std::uint32_t>(value)));
    }
    return scan;
}

// The number at `i`, which is past any leading blanks. The exponent keeps at
// most nine digits without leading zeros: beyond that it is out of range
// either way, and saturating keeps from_chars' work bounded.
NumberScan decimalNumber(StringView text, std::size_t i, const NumberScanOptions& options) {
    const std::size_t n = text.size();
    const auto blank = options.blanksInside ? options.blank : nullptr;
    const auto skipped = [blank](char16_t c) { return blank != nullptr && blank(c); };
    StringView separator = u".";
    if (options.regionalSeparator) separator = RegionalSettings::current().decimalSeparator;

    AsciiNumber ascii;
    if (i < n && (text[i] == u'-' || text[i] == u'+')) {
        if (text[i] == u'-') ascii.push('-');
        ++i;
    }
    bool anyDigit = false;
    bool point = false;
    while (i < n) {
        const char16_t c = text[i];
        if (skipped(c)) {
            ++i;
        } else if (isDigit(c)) {
            ascii.push(static_cast<char>(c));
            anyDigit = true;
            ++i;
        } else if (!point && !separator.empty() && text.substr(i, separator.size()) == separator) {
            ascii.push('.');
            point = true;
            i += separator.size();
        } else {
            break;
        }
    }
    if (!anyDigit) return {NumberScanStatus::NoNumber, 0.0, i};
    const std::size_t mantissaEnd = i;

    if (options.exponent && i < n && isExponentLetter(text[i])) {
        std::size_t j = i + 1;
        while (j < n && skipped(text[j])) ++j;
        const std::size_t before = ascii.size();
        ascii.push('e');
        if (j < n && (text[j] == u'-' || text[j] == u'+')) {
            if (text[j] == u'-') ascii.push('-');
            ++j;
        }
        bool any = false;
        int kept = 0;
        for (; j < n; ++j) {
            if (skipped(text[j])) continue;
            if (!isDigit(text[j])) break;
            any = true;
            if (kept == 0 && text[j] == u'0') continue;
            if (kept < 9) ascii.push(static_cast<char>(text[j]));
            ++kept;
        }
        if (any) {
            if (kept == 0) ascii.push('0');
            if (kept > 9) ascii.overwriteTail("999999999", 9);
            return converted(ascii, j);
        }
        ascii.truncate(before);  // an exponent letter without digits is not part of the number
    }
    return converted(ascii, mantissaEnd);
}

// The end of `text` without its trailing blanks.
std::size_t trimmedEnd(StringView text, const NumberScanOptions& options) noexcept {
    std::size_t n = text.size();
    if (options.blank != nullptr)
        while (n > 0 && options.blank(text[n - 1])) --n;
    return n;
}

}  // namespace

NumberScan scanNumber(StringView text, const NumberScanOptions& options) noexcept {
    const std::size_t n = text.size();
    std::size_t i = 0;
    if (options.blank != nullptr)
        while (i < n && options.blank(text[i])) ++i;

    NumberScan scan;
    try {
        if (options.radix && i + 1 < n && text[i] == u'&' && radixOf(text[i + 1]) != 0) {
            scan = radixNumber(text, i + 2, radixOf(text[i + 1]), options);
        } else if (options.wholeText && options.radix && i < n && text[i] == u'&' &&
                   trimmedEnd(text, options) - i > 2) {
            // An ampersand that opens no radix form is no number, whatever the
            // decimal separator is.
            return {NumberScanStatus::NoNumber, 0.0, i};
        } else {
            scan = decimalNumber(text, i, options);
        }
    } catch (...) {  // only memory can run out here
        return {NumberScanStatus::NoNumber, 0.0, i};
    }
    if (options.wholeText && scan.status != NumberScanStatus::NoNumber) {
        std::size_t j = scan.end;
        if (options.blank != nullptr)
            while (j < n && options.blank(text[j])) ++j;
        if (j != n) return {NumberScanStatus::NoNumber, 0.0, scan.end};
        scan.end = n;
    }
    return scan;
}

DigitRun scanDigits(StringView text, std::size_t pos, int maxDigits) noexcept {
    if (maxDigits > MAX_DIGIT_RUN) maxDigits = MAX_DIGIT_RUN;
    DigitRun run;
    run.end = pos;
    while (run.end < text.size() && isDigit(text[run.end])) {
        if (run.digits == maxDigits) {
            run.tooLong = true;
            ++run.end;
            return run;
        }
        run.value = run.value * 10 + static_cast<std::uint64_t>(text[run.end] - u'0');
        ++run.digits;
        ++run.end;
    }
    return run;
}

}  // namespace quillet
