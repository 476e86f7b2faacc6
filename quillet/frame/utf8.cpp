#include "quillet/frame/utf8.h"

#include <unicode/ustring.h>
#include <unicode/utypes.h>

namespace quillet {

// ICU's converters substitute U+FFFD for ill-formed sequences when given a
// substitution character, which is exactly the documented behaviour.
String fromUtf8(std::string_view text) {
    if (text.empty()) return {};
    String out(text.size(), u'\0');  // UTF-16 never needs more units than UTF-8 bytes
    int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF8WithSub(out.data(), static_cast<int32_t>(out.size()), &length, text.data(),
                         static_cast<int32_t>(text.size()), 0xFFFD, nullptr, &status);
    out.resize(U_SUCCESS(status) ? static_cast<std::size_t>(length) : 0);
    return out;
}

std::string toUtf8(StringView text) {
    if (text.empty()) return {};
    std::string out(text.size() * 3, '\0');  // at most three bytes per UTF-16 unit
    int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strToUTF8WithSub(out.data(), static_cast<int32_t>(out.size()), &length, text.data(),
                       static_cast<int32_t>(text.size()), 0xFFFD, nullptr, &status);
    out.resize(U_SUCCESS(status) ? static_cast<std::size_t>(length) : 0);
    return out;
}

}  // namespace quillet
