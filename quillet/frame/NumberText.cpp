#include "quillet/frame/NumberText.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <string>

#include "quillet/frame/Failure.h"
#include "quillet/frame/NumberScan.h"
#include "quillet/frame/RegionalSettings.h"

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

}  // namespace

String numberText(Double value) { return floatingText(value, 15); }
String numberText(Single value) { return floatingText(static_cast<double>(value), 7); }
String numberText(Long value) { return wholeText(value); }
String numberText(Integer value) { return wholeText(value); }
String numberText(Byte value) { return wholeText(value); }

Double numericPrefix(StringView text) noexcept { return scanNumber(text, PREFIX_SCAN).value; }

std::optional<Double> tryParseNumber(StringView text) noexcept {
    const NumberScan scan = scanNumber(text, STRICT_SCAN);
    if (scan.status != NumberScanStatus::Number) return std::nullopt;
    return scan.value;
}

Double parseNumber(StringView text) {
    const NumberScan scan = scanNumber(text, STRICT_SCAN);
    switch (scan.status) {
        case NumberScanStatus::Number: return scan.value;
        case NumberScanStatus::OutOfRange: throw Failure(errOverflow);
        case NumberScanStatus::NoNumber: break;
    }
    throw Failure(errTypeMismatch);
}

}  // namespace quillet
