// quillet/platform/CodePage.h - conversion between String and an ANSI code
// page, through ICU. A character the code page cannot hold becomes "?".
//
//   toCodePage(u"Grüße €", 1252)     bytes 47 72 FC DF 65 20 80
//   toCodePage(u"Ω", 1252)           bytes 3F  ("?")
//   fromCodePage({0x80}, 1252)       u"€"
#pragma once

#include <string>

#include "quillet/frame/types.h"

namespace quillet {

// toCodePage - the text in Windows code page `codePage` (1250 to 1258, 874,
// 932, 936, 949, 950). An unknown code page fails with errInvalidCall.
[[nodiscard]] std::string toCodePage(StringView text, Long codePage);
// fromCodePage - bytes of code page `codePage` as UTF-16. Bytes the code page
// leaves undefined become U+FFFD.
[[nodiscard]] String fromCodePage(std::string_view bytes, Long codePage);

}  // namespace quillet
