// The Like operator on arbitrary UTF-16 pattern and text (split at the first
// NUL unit). Properties checked:
//  - "*" matches any text, and a text matches itself with its special
//    characters bracketed;
//  - the only failure is Failure(errInvalidCall), and it happens exactly when
//    a small independent reader finds the pattern unreadable;
//  - for short inputs the answer equals that of a plain dynamic-programming
//    matcher written here from the pattern rules.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <vector>

#include "quillet/frame/Failure.h"
#include "quillet/frame/Like.h"

using namespace quillet;

namespace {

void check(bool condition) {
    if (!condition) std::abort();
}

// One pattern element: kind 's' star, '?' any, '#' digit, 'c' literal,
// 'l' list, 'n' negated list, 'e' empty ("[]").
struct Element {
    char kind;
    char16_t ch = 0;
    std::vector<std::pair<char16_t, char16_t>> ranges{};
};

std::optional<std::vector<Element>> parse(StringView p) {
    std::vector<Element> out;
    for (std::size_t i = 0; i < p.size(); ++i) {
        const char16_t c = p[i];
        if (c == u'*') out.push_back({'s'});
        else if (c == u'?') out.push_back({'?'});
        else if (c == u'#') out.push_back({'#'});
        else if (c == u'[') {
            const std::size_t close = p.find(u']', i + 1);
            if (close == StringView::npos) return std::nullopt;
            StringView list = p.substr(i + 1, close - i - 1);
            Element e{'l'};
            if (!list.empty() && list[0] == u'!') {
                e.kind = 'n';
                list.remove_prefix(1);
            }
            for (std::size_t k = 0; k < list.size(); ++k) {
                if (k + 2 < list.size() && list[k + 1] == u'-') {
                    if (list[k + 2] < list[k]) return std::nullopt;
                    e.ranges.emplace_back(list[k], list[k + 2]);
                    k += 2;
                } else {
                    e.ranges.emplace_back(list[k], list[k]);
                }
            }
            if (e.kind == 'l' && e.ranges.empty()) e.kind = 'e';
            out.push_back(e);
            i = close;
        } else {
            Element e{'c'};
            e.ch = c;
            out.push_back(e);
        }
    }
    return out;
}

bool one(const Element& e, char16_t c) {
    if (e.kind == '?') return true;
    if (e.kind == '#') return c >= u'0' && c <= u'9';
    if (e.kind == 'c') return c == e.ch;
    bool in = false;
    for (auto [lo, hi] : e.ranges) in = in || (c >= lo && c <= hi);
    return e.kind == 'l' ? in : !in;
}

// m[i][j]: the first i elements match the first j units.
bool reference(const std::vector<Element>& p, StringView s) {
    std::vector<std::vector<char>> m(p.size() + 1, std::vector<char>(s.size() + 1, 0));
    m[0][0] = 1;
    for (std::size_t i = 1; i <= p.size(); ++i) {
        for (std::size_t j = 0; j <= s.size(); ++j) {
            const Element& e = p[i - 1];
            if (e.kind == 's') m[i][j] = m[i - 1][j] || (j > 0 && m[i][j - 1]);
            else if (e.kind == 'e') m[i][j] = m[i - 1][j];
            else m[i][j] = j > 0 && m[i - 1][j - 1] && one(e, s[j - 1]);
        }
    }
    return m[p.size()][s.size()] != 0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    String all(size / 2, u'\0');
    if (!all.empty()) std::memcpy(all.data(), data, all.size() * 2);
    const std::size_t cut = all.find(u'\0');
    const StringView pattern = cut == String::npos ? StringView(all) : StringView(all).substr(0, cut);
    const StringView text = cut == String::npos ? StringView() : StringView(all).substr(cut + 1);

    check(like(text, u"*"));
    String escaped;
    for (char16_t c : text) {
        if (c == u'*' || c == u'?' || c == u'#' || c == u'[') {
            escaped += u'[';
            escaped += c;
            escaped += u']';
        } else {
            escaped += c;
        }
    }
    check(like(text, escaped));

    const auto elements = parse(pattern);
    try {
        const bool got = like(text, pattern);
        check(elements.has_value());
        if (pattern.size() <= 64 && text.size() <= 64) check(got == reference(*elements, text));
    } catch (const Failure& f) {
        check(f.number() == errInvalidCall);
        check(!elements.has_value());
    }
    try {
        (void)like(text, pattern, vbTextCompare);
    } catch (const Failure& f) {
        check(f.number() == errInvalidCall);
    }
    return 0;
}
