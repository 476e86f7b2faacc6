// quillet/frame/TextCompare.h - the two ways the library compares texts.
//
// Binary comparison compares UTF-16 code units exactly; it is plain ==.
// Text comparison ignores case, by ICU's default case folding, so it agrees
// in every profile:
//
//   equalsText(u"Straße", u"STRASSE")  false   (simple folding: one unit stays one)
//   equalsText(u"Key", u"kEY")         true
//   foldCase(u"ÄBC")                   u"äbc"
#pragma once

#include "quillet/frame/types.h"

namespace quillet {

// foldCase - the simple case folding of every code point; the length in code
// units never changes, so positions found in the folded text hold in the
// original.
[[nodiscard]] String foldCase(StringView text);

// equalsText - equality by text comparison.
[[nodiscard]] bool equalsText(StringView a, StringView b);

}  // namespace quillet
