// quillet/frame/chars.h - the named character classes of the library. Each
// reader skips its own set of blanks, and the sets differ on purpose; they
// are named here once so that no class spells out a set of its own.
//
//   isTrimBlank(u'\t')         false  (Trim removes only U+0020)
//   isNumberBlank(u'\n')       true   (the numeric prefix skips it anywhere)
//   isStrictNumberBlank(u'\n') false  (strict conversion trims only blank and tab)
//   isDateBlank(u'\u00A0')     true   (the date reader takes a no-break space)
//   isBase64Skipped(u'\r')     true
//   isAsciiDigit(u'7')         true
#pragma once

namespace quillet::chars {

// isTrimBlank - what the host language's Trim, LTrim and RTrim remove.
[[nodiscard]] constexpr bool isTrimBlank(char16_t c) noexcept { return c == u' '; }

// isNumberBlank - what the numeric prefix skips wherever it stands.
[[nodiscard]] constexpr bool isNumberBlank(char16_t c) noexcept { return c == u' ' || c == u'\t' || c == u'\n'; }

// isStrictNumberBlank - what strict conversion allows around a number.
[[nodiscard]] constexpr bool isStrictNumberBlank(char16_t c) noexcept { return c == u' ' || c == u'\t'; }

// isDateBlank - what separates the parts of a text read as a date.
[[nodiscard]] constexpr bool isDateBlank(char16_t c) noexcept {
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n' || c == 0x00A0;
}

// isBase64Skipped - what the Base64 decoder passes over between groups.
[[nodiscard]] constexpr bool isBase64Skipped(char16_t c) noexcept {
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

// isAsciiDigit - 0 to 9 only; other scripts' digits are no digits here.
[[nodiscard]] constexpr bool isAsciiDigit(char16_t c) noexcept { return c >= u'0' && c <= u'9'; }

}  // namespace quillet::chars
