#include "quillet/frame/TextCompare.h"

#include <unicode/uchar.h>
#include <unicode/utf16.h>

namespace quillet {

String foldCase(StringView text) {
    String out(text);
    const int32_t n = static_cast<int32_t>(out.size());
    for (int32_t i = 0; i < n;) {
        const int32_t start = i;
        UChar32 c;
        U16_NEXT(out.data(), i, n, c);
        const UChar32 f = u_foldCase(c, U_FOLD_CASE_DEFAULT);
        // Simple folding keeps BMP in BMP and supplementary in supplementary,
        // so the folded code point fits the units it replaces.
        if (f != c && U16_LENGTH(f) == i - start) {
            int32_t j = start;
            [[maybe_unused]] UBool error = false;
            U16_APPEND(out.data(), j, n, f, error);
        }
    }
    return out;
}

bool equalsText(StringView a, StringView b) {
    if (a.size() != b.size()) return false;
    return foldCase(a) == foldCase(b);
}

}  // namespace quillet
