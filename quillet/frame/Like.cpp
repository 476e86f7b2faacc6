#include "quillet/frame/Like.h"

#include <vector>

#include "quillet/frame/Failure.h"
#include "quillet/frame/TextCompare.h"
#include "quillet/frame/chars.h"

namespace quillet {

namespace {

enum class Op : unsigned char { Literal, AnyOne, Digit, Set, NotSet, Star };

struct Token {
    Op op;
    char16_t ch = 0;          // Literal
    std::uint32_t first = 0;  // Set/NotSet: ranges [first, first + count)
    std::uint32_t count = 0;
};

struct Range {
    char16_t low;
    char16_t high;
};

struct Compiled {
    std::vector<Token> tokens;
    std::vector<Range> ranges;
};

[[noreturn]] void invalidPattern() { throw Failure(errInvalidCall, "pattern string invalid"); }

// Reads the whole pattern first, so that a bad pattern fails whatever the text.
Compiled compile(StringView p) {
    Compiled c;
    c.tokens.reserve(p.size());
    for (std::size_t i = 0; i < p.size();) {
        const char16_t ch = p[i];
        if (ch == u'*') {
            if (c.tokens.empty() || c.tokens.back().op != Op::Star) c.tokens.push_back({Op::Star});
            ++i;
        } else if (ch == u'?') {
            c.tokens.push_back({Op::AnyOne});
            ++i;
        } else if (ch == u'#') {
            c.tokens.push_back({Op::Digit});
            ++i;
        } else if (ch == u'[') {
            std::size_t j = i + 1;
            const bool negate = j < p.size() && p[j] == u'!';
            if (negate) ++j;
            const std::size_t listStart = j;
            while (j < p.size() && p[j] != u']') ++j;
            if (j == p.size()) invalidPattern();
            const std::size_t listEnd = j;  // at the ']'
            i = j + 1;
            if (listStart == listEnd) {
                // "[]" is the empty text; "[!]" excludes nothing, so it takes any one character.
                if (negate) c.tokens.push_back({Op::AnyOne});
                continue;
            }
            Token t{negate ? Op::NotSet : Op::Set};
            t.first = static_cast<std::uint32_t>(c.ranges.size());
            for (std::size_t k = listStart; k < listEnd;) {
                const char16_t low = p[k];
                if (k + 2 < listEnd && p[k + 1] == u'-') {
                    const char16_t high = p[k + 2];
                    if (high < low) invalidPattern();
                    c.ranges.push_back({low, high});
                    k += 3;
                } else {
                    // A '-' that opens or closes the list stands for itself.
                    c.ranges.push_back({low, low});
                    ++k;
                }
            }
            t.count = static_cast<std::uint32_t>(c.ranges.size()) - t.first;
            c.tokens.push_back(t);
        } else {
            Token t{Op::Literal};
            t.ch = ch;
            c.tokens.push_back(t);
            ++i;
        }
    }
    return c;
}

bool inSet(const Compiled& c, const Token& t, char16_t ch) noexcept {
    for (std::uint32_t r = t.first; r < t.first + t.count; ++r)
        if (ch >= c.ranges[r].low && ch <= c.ranges[r].high) return true;
    return false;
}

bool matchesOne(const Compiled& c, const Token& t, char16_t ch) noexcept {
    switch (t.op) {
        case Op::Literal: return ch == t.ch;
        case Op::AnyOne: return true;
        case Op::Digit: return chars::isAsciiDigit(ch);
        case Op::Set: return inSet(c, t, ch);
        case Op::NotSet: return !inSet(c, t, ch);
        case Op::Star: break;
    }
    return false;
}

// Every token but a star takes exactly one unit, so when a match after a star
// fails it is enough to let the most recent star take one unit more: an
// earlier star could only take what the later one can take as well.
bool matchTokens(const Compiled& c, StringView s) noexcept {
    const std::vector<Token>& t = c.tokens;
    std::size_t ti = 0;
    std::size_t si = 0;
    std::size_t starToken = npos;
    std::size_t starText = 0;
    while (si < s.size()) {
        if (ti < t.size() && t[ti].op == Op::Star) {
            starToken = ti++;
            starText = si;
        } else if (ti < t.size() && matchesOne(c, t[ti], s[si])) {
            ++ti;
            ++si;
        } else if (starToken != npos) {
            ti = starToken + 1;
            si = ++starText;
        } else {
            return false;
        }
    }
    while (ti < t.size() && t[ti].op == Op::Star) ++ti;
    return ti == t.size();
}

}  // namespace

bool like(StringView text, StringView pattern, VbCompareMethod mode) {
    if (mode != vbTextCompare) return matchTokens(compile(pattern), text);
    // Folding keeps lengths and leaves the pattern's special characters alone.
    const String foldedPattern = foldCase(pattern);
    const String foldedText = foldCase(text);
    return matchTokens(compile(foldedPattern), foldedText);
}

}  // namespace quillet
