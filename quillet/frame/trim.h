// quillet/frame/trim.h - blanks removed from both ends of a text, as the
// host language's Trim does: only the blank (U+0020), not tabs or line ends.
//
//   trimBlanks(u"  a b  ")    u"a b"
//   trimBlanks(u"\ta ")       u"\ta"
#pragma once

#include "quillet/frame/chars.h"
#include "quillet/frame/types.h"

namespace quillet {

// trimBlanks - a view into `text`; keep `text` alive while the view is used.
[[nodiscard]] constexpr StringView trimBlanks(StringView text) noexcept {
    while (!text.empty() && chars::isTrimBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && chars::isTrimBlank(text.back())) text.remove_suffix(1);
    return text;
}

}  // namespace quillet
