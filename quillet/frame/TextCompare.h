// quillet/frame/TextCompare.h - the two ways the library compares texts.
//
// Binary comparison compares UTF-16 code units exactly; it is plain ==.
// Text comparison ignores case, by ICU's default case folding, so it agrees
// in every profile:
//
//   equalsText(u"Straße", u"STRASSE")  false   (simple folding: one unit stays one)
//   equalsText(u"Key", u"kEY")         true
//   foldCase(u"ÄBC")                   u"äbc"
//
// Searching and replacing take either mode:
//
//   compareText(u"apple", u"BANANA")                         -1
//   compareBinary(u"apple", u"BANANA")                       1   ('a' > 'B')
//   findText(u"Hello World", u"WORLD", 0, vbTextCompare)     6
//   findText(u"Hello World", u"WORLD", 0, vbBinaryCompare)   npos
//   findTextReverse(u"abcabc", u"BC", npos, vbTextCompare)   4
//   replaceText(u"aXbxc", u"x", u"-", vbTextCompare)         u"a-b-c"
#pragma once

#include <cstddef>

#include "quillet/frame/hostenums.h"
#include "quillet/frame/types.h"

namespace quillet {

// The "not found" position of findText and findTextReverse.
inline constexpr std::size_t npos = StringView::npos;

// foldCase - the simple case folding of every code point; the length in code
// units never changes, so positions found in the folded text hold in the
// original.
[[nodiscard]] String foldCase(StringView text);

// equalsText - equality by text comparison.
[[nodiscard]] bool equalsText(StringView a, StringView b);

// compareText - -1, 0 or 1 by text comparison. Texts are ordered by their
// case-folded code points, not by a language's collation: the order is the
// same under every profile, and compareText(a, b) == 0 exactly when
// equalsText(a, b).
[[nodiscard]] int compareText(StringView a, StringView b) noexcept;

// compareBinary - -1, 0 or 1 by UTF-16 code units; a proper prefix sorts first.
[[nodiscard]] int compareBinary(StringView a, StringView b) noexcept;

// compareTexts - compareText or compareBinary, as `mode` says (any mode other
// than vbTextCompare is binary).
[[nodiscard]] int compareTexts(StringView a, StringView b, VbCompareMethod mode) noexcept;

// findText - the 0-based position of the first `needle` in `haystack` at or
// after `start0`, or npos. An empty needle is found at `start0` itself when
// that is within the text (its end included); a start past the end gives npos.
[[nodiscard]] std::size_t findText(StringView haystack, StringView needle, std::size_t start0, VbCompareMethod mode);

// findTextReverse - the 0-based position of the last `needle` that lies
// wholly in the first `end0` units of `haystack` (npos: the whole text), or
// npos. An empty needle is found at min(end0, size). So a host's 1-based
// reverse search from position p is findTextReverse(h, n, p, mode) + 1.
[[nodiscard]] std::size_t findTextReverse(StringView haystack, StringView needle, std::size_t end0 = npos,
                                          VbCompareMethod mode = vbBinaryCompare);

// inStr - the host language's InStr: the 1-based position of `needle` in
// `haystack` at or after the 1-based `start`, 0 when there is none. A start
// beyond the text gives 0; an empty needle is found at `start`. A start below
// 1 fails with errInvalidCall.
//   inStr(1, u"a<b<c", u"<")  2      inStr(3, u"a<b<c", u"<")  4
//   inStr(6, u"a<b<c", u"")   0      inStr(0, u"abc", u"a")    throws
[[nodiscard]] Long inStr(Long start, StringView haystack, StringView needle, VbCompareMethod mode = vbBinaryCompare);

// replaceText - every occurrence of `find` replaced by `replacement`, taken
// left to right without overlap; the search goes on after each replacement,
// never into it. An empty `find` leaves the text unchanged.
[[nodiscard]] String replaceText(StringView text, StringView find, StringView replacement, VbCompareMethod mode);

}  // namespace quillet
