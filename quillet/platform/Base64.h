// quillet/platform/Base64.h - the Base64 codec that the tag buffer uses for
// its Base64 strings: the standard alphabet (A-Z a-z 0-9 + /), "=" padding,
// no line breaks when encoding.
//
//   base64::encode(Array<Byte>::from(0, {'f', 'o', 'o'}))   u"Zm9v"
//   base64::encode(Array<Byte>())                           u""
//   base64::decode(u"Zm9vYg==")                             bytes 66 6F 6F 62, 0-based
//   base64::decode(u"Zm9v\r\nYg==")                         the same: blanks and line breaks are skipped
//   base64::decode(u"Zm9vYg")                               the same: padding may be left out
//   base64::decode(u"Zm9*")                                 an unallocated array: not Base64
//
// Neither function fails: a text that is no Base64 decodes to no bytes.
#pragma once

#include "quillet/frame/Array.h"
#include "quillet/frame/types.h"

namespace quillet::base64 {

// encode - the bytes in Base64, padded to a multiple of four characters; ""
// for an empty or unallocated array.
[[nodiscard]] String encode(const Array<Byte>& bytes) noexcept;

// decode - the bytes of a Base64 text as a 0-based array. Blanks, tabs, CR
// and LF are skipped; missing padding is accepted. Any other character
// outside the alphabet, a "=" before the end, or a length that cannot be
// Base64 gives an unallocated array, as does the empty text.
[[nodiscard]] Array<Byte> decode(StringView text) noexcept;

}  // namespace quillet::base64
