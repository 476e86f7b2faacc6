#include "quillet/frame/TextCompare.h"

#include <limits>

#include <unicode/uchar.h>
#include <unicode/utf16.h>

#include "quillet/frame/Failure.h"

namespace quillet {

String foldCase(StringView text) {
    String out(text);
    const int32_t n = static_cast<int32_t>(out.size());
    for (int32_t i = 0; i < n;) {
        if (out[i] < 0x80) {  // ASCII, the common case, without a table look-up
            if (out[i] >= u'A' && out[i] <= u'Z') out[i] += 32;
            ++i;
            continue;
        }
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

namespace {

// The folded code point at `i`, advancing `i`; the same choice foldCase makes
// (a fold that would change the length in units is not taken).
UChar32 nextFolded(StringView s, std::size_t& i) noexcept {
    const char16_t u = s[i];
    if (u < 0x80) {  // ASCII, the common case, without a table look-up
        ++i;
        return (u >= u'A' && u <= u'Z') ? u + 32 : u;
    }
    const int32_t n = static_cast<int32_t>(s.size());
    int32_t k = static_cast<int32_t>(i);
    UChar32 c;
    U16_NEXT(s.data(), k, n, c);
    const int32_t length = k - static_cast<int32_t>(i);
    i = static_cast<std::size_t>(k);
    const UChar32 f = u_foldCase(c, U_FOLD_CASE_DEFAULT);
    return U16_LENGTH(f) == length ? f : c;
}

int sign(long long d) noexcept { return d < 0 ? -1 : (d > 0 ? 1 : 0); }

}  // namespace

int compareText(StringView a, StringView b) noexcept {
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < a.size() && j < b.size()) {
        const UChar32 x = nextFolded(a, i);
        const UChar32 y = nextFolded(b, j);
        if (x != y) return x < y ? -1 : 1;
    }
    return sign(static_cast<long long>(a.size() - i) - static_cast<long long>(b.size() - j));
}

int compareBinary(StringView a, StringView b) noexcept {
    const int c = a.compare(b);
    return c < 0 ? -1 : (c > 0 ? 1 : 0);
}

int compareTexts(StringView a, StringView b, VbCompareMethod mode) noexcept {
    return mode == vbTextCompare ? compareText(a, b) : compareBinary(a, b);
}

std::size_t findText(StringView haystack, StringView needle, std::size_t start0, VbCompareMethod mode) {
    if (start0 > haystack.size()) return npos;
    if (mode != vbTextCompare) return haystack.find(needle, start0);
    if (needle.empty()) return start0;
    if (needle.size() > haystack.size() - start0) return npos;
    // Folding keeps lengths, so a position in the folded text is the same
    // position in the original.
    const String h = foldCase(haystack);
    const String n = foldCase(needle);
    return StringView(h).find(n, start0);
}

std::size_t findTextReverse(StringView haystack, StringView needle, std::size_t end0, VbCompareMethod mode) {
    if (end0 > haystack.size()) end0 = haystack.size();
    if (needle.size() > end0) return npos;
    haystack = haystack.substr(0, end0);
    if (mode != vbTextCompare) return haystack.rfind(needle);
    if (needle.empty()) return end0;
    const String h = foldCase(haystack);
    const String n = foldCase(needle);
    return StringView(h).rfind(n);
}

Long inStr(Long start, StringView haystack, StringView needle, VbCompareMethod mode) {
    if (start < 1) throw Failure(errInvalidCall);
    const auto from = static_cast<std::size_t>(start);
    if (from > haystack.size()) return 0;
    if (needle.empty()) return start;
    const std::size_t p = findText(haystack, needle, from - 1, mode);
    if (p == npos) return 0;
    if (p >= static_cast<std::size_t>(std::numeric_limits<Long>::max())) throw Failure(errOverflow);
    return static_cast<Long>(p + 1);
}

String replaceText(StringView text, StringView find, StringView replacement, VbCompareMethod mode) {
    if (find.empty() || find.size() > text.size()) return String(text);
    String folded;
    String foldedFind;
    StringView searched = text;
    StringView sought = find;
    if (mode == vbTextCompare) {
        folded = foldCase(text);
        foldedFind = foldCase(find);
        searched = folded;
        sought = foldedFind;
    }
    String out;
    std::size_t from = 0;
    for (std::size_t at = searched.find(sought); at != npos; at = searched.find(sought, from)) {
        if (out.empty()) out.reserve(text.size());
        out.append(text.substr(from, at - from));
        out.append(replacement);
        from = at + find.size();
    }
    if (from == 0) return String(text);
    out.append(text.substr(from));
    return out;
}

}  // namespace quillet
