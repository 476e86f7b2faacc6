// quillet/frame/utf8.h - conversion between UTF-8 std::string and String, for
// hosts. Ill-formed input never fails: each bad sequence (or lone surrogate)
// becomes U+FFFD.
//
//   fromUtf8("Größe")   u"Größe"
//   toUtf8(u"€1")       "\xE2\x82\xAC" "1"
#pragma once

#include <string>
#include <string_view>

#include "quillet/frame/types.h"

namespace quillet {

[[nodiscard]] String fromUtf8(std::string_view text);
[[nodiscard]] std::string toUtf8(StringView text);

}  // namespace quillet
