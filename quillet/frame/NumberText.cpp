#include "quillet/frame/NumberText.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <string>

#include "quillet/frame/Failure.h"
#include "quillet/frame/RegionalSettings.h"
#include "quillet/frame/chars.h"

namespace quillet {

namespace {

// Lays out `digits` significant digits of `value` the way %.<digits>G does,
// with the regional decimal separator and a capital E. The text is built in a
// buffer on the stack and becomes a String once: number text is on the path
// of every saved field.
String floatingText(double value, int digits) {
    if (value == 0.0) return u"0";  // also turns -0 into 0
    if (!std::isfinite(value)) return std::isnan(value) ? u"NaN" : (value < 0 ? u"-Infinity" : u"Infinity");

    char buf[40];
    const auto res = std::to_chars(buf, buf + sizeof buf, value, std::chars_format::scientific, digits - 1);
    // buf holds [-]d[.ddd]e(+|-)XX[X]
    const char* p = buf;
    const bool negative = *p == '-';
    if (negative) ++p;
    char mantissa[20];
    int n = 0;
    for (; *p != 'e'; ++p)
        if (*p != '.') mantissa[n++] = *p;
    ++p;  // 'e'
    int exponent = 0;
    std::from_chars(*p == '+' ? p + 1 : p, res.ptr, exponent);
    while (n > 1 && mantissa[n - 1] == '0') --n;

    const String& sep = RegionalSettings::current().decimalSeparator;
    // Longest text: sign, 15 digits, a separator, "E-308"; a separator of
    // any length fits because the buffer grows with it.
    constexpr std::size_t fixedRoom = 48;
    char16_t small[fixedRoom + 8];
    String large;
    char16_t* out = small;
    if (sep.size() > 8) {
        large.resize(fixedRoom + sep.size());
        out = large.data();
    }
    char16_t* const begin = out;
    const auto putSep = [&] {
        for (char16_t c : sep) *out++ = c;
    };

    if (negative) *out++ = u'-';
    if (exponent < -4 || exponent >= digits) {
        *out++ = static_cast<char16_t>(mantissa[0]);
        if (n > 1) {
            putSep();
            for (int i = 1; i < n; ++i) *out++ = static_cast<char16_t>(mantissa[i]);
        }
        *out++ = u'E';
        *out++ = exponent < 0 ? u'-' : u'+';
        const int e = exponent < 0 ? -exponent : exponent;
        if (e >= 100) *out++ = static_cast<char16_t>(u'0' + e / 100);
        *out++ = static_cast<char16_t>(u'0' + e / 10 % 10);
        *out++ = static_cast<char16_t>(u'0' + e % 10);
    } else if (exponent >= 0) {
        for (int i = 0; i <= exponent; ++i) *out++ = static_cast<char16_t>(i < n ? mantissa[i] : '0');
        if (n > exponent + 1) {
            putSep();
            for (int i = exponent + 1; i < n; ++i) *out++ = static_cast<char16_t>(mantissa[i]);
        }
    } else {
        *out++ = u'0';
        putSep();
        for (int i = -1; i > exponent; --i) *out++ = u'0';
        for (int i = 0; i < n; ++i) *out++ = static_cast<char16_t>(mantissa[i]);
    }
    return String(begin, out);
}

template <class T>
String wholeText(T value) {
    char buf[16];
    const auto res = std::to_chars(buf, buf + sizeof buf, static_cast<long>(value));
    return String(buf, res.ptr);
}

constexpr auto isSkipped = chars::isNumberBlank;
constexpr auto isDigit = chars::isAsciiDigit;

int digitValue(char16_t c) noexcept {
    if (c >= u'0' && c <= u'9') return c - u'0';
    if (c >= u'a' && c <= u'f') return c - u'a' + 10;
    if (c >= u'A' && c <= u'F') return c - u'A' + 10;
    return 99;
}

// A hexadecimal or octal whole number as the host language reads it: up to
// 16 bits it is an Integer, so &HFFFF is -1; up to 32 bits a Long. `pos`
// points past "&H" or "&O"; blanks are skipped only when `skipBlanks`.
// Returns no value when the number has no digit or does not fit 32 bits.
std::optional<Double> radixNumber(StringView text, std::size_t pos, int radix, bool skipBlanks,
                                  std::size_t* end = nullptr) noexcept {
    std::uint64_t value = 0;
    bool any = false;
    bool tooLarge = false;
    for (; pos < text.size(); ++pos) {
        const char16_t c = text[pos];
        if (skipBlanks && isSkipped(c)) continue;
        const int d = digitValue(c);
        if (d >= radix) break;
        value = value * static_cast<unsigned>(radix) + static_cast<unsigned>(d);
        if (value > 0xFFFFFFFFull) {
            tooLarge = true;
            value = 0xFFFFFFFFull + 1;  // keeps scanning without overflowing
        }
        any = true;
    }
    if (end != nullptr) *end = pos;
    if (!any || tooLarge) return std::nullopt;
    if (value <= 0xFFFF) return static_cast<Double>(static_cast<std::int16_t>(value));
    return static_cast<Double>(static_cast<std::int32_t>(static_cast<std::uint32_t>(value)));
}

enum class Parsed { Number, NoNumber, OutOfRange };

// True when the number text `ascii` ([-]digits[.digits][e[-]digits], already
// validated) lies below 1 in magnitude: from_chars reports both ends of the
// range as out of range, and the small end is a number, zero.
bool belowOne(const std::string& ascii) noexcept {
    long magnitude = 0;  // decimal exponent of the first significant digit, roughly
    std::size_t i = (!ascii.empty() && ascii[0] == '-') ? 1 : 0;
    bool seenPoint = false;
    bool significant = false;
    for (; i < ascii.size() && ascii[i] != 'e'; ++i) {
        if (ascii[i] == '.') {
            seenPoint = true;
        } else if (!significant && ascii[i] == '0') {
            if (seenPoint) --magnitude;
        } else {
            significant = true;
            if (!seenPoint) ++magnitude;
        }
    }
    if (i < ascii.size()) {
        long e = 0;
        const char* first = ascii.data() + i + 1;
        const bool minus = *first == '-';
        if (minus || *first == '+') ++first;
        std::from_chars(first, ascii.data() + ascii.size(), e);  // the callers keep it short
        magnitude += minus ? -e : e;
    }
    return magnitude <= 0;
}

// Converts an ASCII number text that the callers have already validated.
Parsed toDouble(const std::string& ascii, double& value) noexcept {
    value = 0;
    const auto res = std::from_chars(ascii.data(), ascii.data() + ascii.size(), value);
    if (res.ec == std::errc::result_out_of_range) {
        value = 0;
        return belowOne(ascii) ? Parsed::Number : Parsed::OutOfRange;
    }
    if (res.ec != std::errc()) value = 0;
    return Parsed::Number;
}

// Appends the exponent digits of text[i..] (skipping what `skip` accepts) to
// `ascii` without leading zeros and at most nine of them: beyond that the
// value is out of range either way. Returns the index after the digits and
// whether there was any digit.
template <class Skip>
std::size_t appendExponentDigits(StringView text, std::size_t i, std::size_t n, std::string& ascii, bool& any,
                                 Skip skip) {
    int kept = 0;
    any = false;
    for (; i < n; ++i) {
        if (skip(text[i])) continue;
        if (!isDigit(text[i])) break;
        any = true;
        if (kept == 0 && text[i] == u'0') continue;
        if (kept < 9) ascii += static_cast<char>(text[i]);
        ++kept;
    }
    if (any && kept == 0) ascii += '0';
    if (kept > 9) ascii.replace(ascii.size() - 9, 9, "999999999");  // saturates, still out of range
    return i;
}

}  // namespace

String numberText(Double value) { return floatingText(value, 15); }
String numberText(Single value) { return floatingText(static_cast<double>(value), 7); }
String numberText(Long value) { return wholeText(value); }
String numberText(Integer value) { return wholeText(value); }
String numberText(Byte value) { return wholeText(value); }

Double numericPrefix(StringView text) noexcept {
    std::size_t i = 0;
    const std::size_t n = text.size();
    auto skip = [&] {
        while (i < n && isSkipped(text[i])) ++i;
    };
    skip();
    if (i + 1 < n && text[i] == u'&') {
        const char16_t r = text[i + 1];
        const int radix = (r == u'H' || r == u'h') ? 16 : (r == u'O' || r == u'o') ? 8 : 0;
        if (radix != 0) return radixNumber(text, i + 2, radix, true).value_or(0.0);
    }

    std::string ascii;
    ascii.reserve(32);
    if (i < n && (text[i] == u'-' || text[i] == u'+')) {
        if (text[i] == u'-') ascii += '-';
        ++i;
    }
    bool anyDigit = false;
    bool point = false;
    for (; i < n; ++i) {
        const char16_t c = text[i];
        if (isSkipped(c)) continue;
        if (isDigit(c)) {
            ascii += static_cast<char>(c);
            anyDigit = true;
        } else if (c == u'.' && !point) {
            ascii += '.';
            point = true;
        } else {
            break;
        }
    }
    if (!anyDigit) return 0.0;
    skip();
    if (i < n && (text[i] == u'E' || text[i] == u'e' || text[i] == u'D' || text[i] == u'd')) {
        std::size_t j = i + 1;
        while (j < n && isSkipped(text[j])) ++j;
        std::string exponent = "e";
        if (j < n && (text[j] == u'-' || text[j] == u'+')) {
            if (text[j] == u'-') exponent += '-';
            ++j;
        }
        bool anyExponentDigit = false;
        appendExponentDigits(text, j, n, exponent, anyExponentDigit, isSkipped);
        if (anyExponentDigit) ascii += exponent;
    }
    double value = 0;
    toDouble(ascii, value);  // out of range leaves 0
    return value;
}

namespace {
Parsed parseStrict(StringView text, double& value) noexcept {
    value = 0;
    std::size_t i = 0;
    std::size_t n = text.size();
    while (i < n && chars::isStrictNumberBlank(text[i])) ++i;
    while (n > i && chars::isStrictNumberBlank(text[n - 1])) --n;
    if (i == n) return Parsed::NoNumber;

    if (n - i > 2 && text[i] == u'&') {
        const char16_t r = text[i + 1];
        const int radix = (r == u'H' || r == u'h') ? 16 : (r == u'O' || r == u'o') ? 8 : 0;
        if (radix == 0) return Parsed::NoNumber;
        std::size_t end = 0;
        auto v = radixNumber(text.substr(0, n), i + 2, radix, false, &end);
        if (!v) return (end == n && end > i + 2) ? Parsed::OutOfRange : Parsed::NoNumber;
        if (end != n) return Parsed::NoNumber;
        value = *v;
        return Parsed::Number;
    }

    const String& sep = RegionalSettings::current().decimalSeparator;
    std::string ascii;
    ascii.reserve(32);
    if (text[i] == u'-' || text[i] == u'+') {
        if (text[i] == u'-') ascii += '-';
        ++i;
    }
    bool anyDigit = false;
    bool point = false;
    while (i < n) {
        const char16_t c = text[i];
        if (isDigit(c)) {
            ascii += static_cast<char>(c);
            anyDigit = true;
            ++i;
        } else if (!point && !sep.empty() && text.substr(i, sep.size()) == sep) {
            ascii += '.';
            point = true;
            i += sep.size();
        } else {
            break;
        }
    }
    if (!anyDigit) return Parsed::NoNumber;
    if (i < n) {
        const char16_t e = text[i];
        if (e != u'E' && e != u'e' && e != u'D' && e != u'd') return Parsed::NoNumber;
        ++i;
        ascii += 'e';
        if (i < n && (text[i] == u'-' || text[i] == u'+')) {
            if (text[i] == u'-') ascii += '-';
            ++i;
        }
        bool anyExponentDigit = false;
        i = appendExponentDigits(text, i, n, ascii, anyExponentDigit, [](char16_t) { return false; });
        if (!anyExponentDigit || i != n) return Parsed::NoNumber;
    }
    return toDouble(ascii, value);
}
}  // namespace

std::optional<Double> tryParseNumber(StringView text) noexcept {
    double value = 0;
    if (parseStrict(text, value) != Parsed::Number) return std::nullopt;
    return value;
}

Double parseNumber(StringView text) {
    double value = 0;
    switch (parseStrict(text, value)) {
        case Parsed::Number: return value;
        case Parsed::OutOfRange: throw Failure(errOverflow);
        case Parsed::NoNumber: break;
    }
    throw Failure(errTypeMismatch);
}

}  // namespace quillet
