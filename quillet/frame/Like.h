// quillet/frame/Like.h - the Like operator: does a text match a pattern?
//
// The pattern must cover the whole text. "?" matches any one character, "*"
// any run of characters (none included), "#" one digit 0-9, "[list]" one
// character of the list and "[!list]" one character outside it. A list holds
// single characters and ascending ranges such as "a-z"; a "-" first (after
// "!") or last stands for itself. Brackets make the special characters plain:
// "[*]" is a star, "[[]" an opening bracket, "[?]" and "[#]" likewise. A "]"
// outside brackets and a "!" outside brackets stand for themselves. "[]" is
// the empty text and matches nothing at all; "[!]" matches any one character.
// Characters are UTF-16 code units.
//
//   like(u"abc", u"a*")          true
//   like(u"ABC", u"a*")          false   (binary comparison)
//   like(u"a1b", u"a#b")         true
//   like(u"x", u"[!a-c]")        true
//   like(u"*", u"[*]")           true
//   like(u"ab", u"a[]b")         true
//   like(u"a", u"[a")            throws Failure(errInvalidCall)
//   like(u"a", u"[c-a]")         throws Failure(errInvalidCall)
//
// Matching takes time proportional to the text's length times the pattern's
// at worst, whatever the stars: "*a*a*a*a*b" against a long run of "a" is fast.
#pragma once

#include "quillet/frame/hostenums.h"
#include "quillet/frame/types.h"

namespace quillet {

// like - true when `text` matches `pattern`. With vbTextCompare, case is
// ignored (both sides case-folded; ranges compare folded characters). A
// pattern that cannot be read - an unclosed "[" or a descending range - fails
// with Failure(errInvalidCall), whatever the text.
[[nodiscard]] bool like(StringView text, StringView pattern, VbCompareMethod mode = vbBinaryCompare);

}  // namespace quillet
