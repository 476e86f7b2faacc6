#include "quillet/frame/TextCompare.h"

#include <gtest/gtest.h>

#include "quillet_test.h"

#include "quillet/frame/Failure.h"
#include "quillet/frame/Like.h"
#include "quillet/frame/utf8.h"

namespace quillet {
namespace {

using namespace std::string_view_literals;

TEST(TextCompare, HeaderExamples) {
    EXPECT_FALSE(equalsText(u"Straße", u"STRASSE"));
    EXPECT_TRUE(equalsText(u"Key", u"kEY"));
    EXPECT_EQ(foldCase(u"ÄBC"), u"äbc");
    EXPECT_EQ(compareText(u"apple", u"BANANA"), -1);
    EXPECT_EQ(compareBinary(u"apple", u"BANANA"), 1);
    EXPECT_EQ(findText(u"Hello World", u"WORLD", 0, vbTextCompare), 6u);
    EXPECT_EQ(findText(u"Hello World", u"WORLD", 0, vbBinaryCompare), npos);
    EXPECT_EQ(findTextReverse(u"abcabc", u"BC", npos, vbTextCompare), 4u);
    EXPECT_EQ(replaceText(u"aXbxc", u"x", u"-", vbTextCompare), u"a-b-c");
}

TEST(TextCompare, OrderingInBothModes) {
    struct Row {
        StringView a;
        StringView b;
        int text;
        int binary;
    };
    const Row rows[] = {
        {u"", u"", 0, 0},
        {u"", u"a", -1, -1},
        {u"abc", u"ABC", 0, 1},
        {u"abc", u"abd", -1, -1},
        {u"ab", u"ABC", -1, 1},
        {u"ÉCOLE", u"école", 0, -1},
        {u"Z", u"a", 1, -1},
        {u"a\0b"sv, u"a", 1, 1},
        {u"ΣΑΣ", u"σας", 0, -1},
        {u"\U00010400", u"\U00010428", 0, -1},  // Deseret capital and small letter: a pair of units each
    };
    for (const Row& r : rows) {
        const StringView a = r.a, b = r.b;
        EXPECT_EQ(compareText(a, b), r.text) << toUtf8(a) << " / " << toUtf8(b);
        EXPECT_EQ(compareText(b, a), -r.text) << toUtf8(a) << " / " << toUtf8(b);
        EXPECT_EQ(compareBinary(a, b), r.binary) << toUtf8(a) << " / " << toUtf8(b);
        EXPECT_EQ(compareTexts(a, b, vbTextCompare), r.text);
        EXPECT_EQ(compareTexts(a, b, vbBinaryCompare), r.binary);
        // Text comparison agrees with the equality the collections use.
        EXPECT_EQ(compareText(a, b) == 0, equalsText(a, b)) << toUtf8(a) << " / " << toUtf8(b);
    }
}

TEST(TextCompare, FindingForwardAndBackward) {
    const String h = u"abcABCabc";
    EXPECT_EQ(findText(h, u"abc", 1, vbBinaryCompare), 6u);
    EXPECT_EQ(findText(h, u"abc", 1, vbTextCompare), 3u);
    EXPECT_EQ(findText(h, u"abc", 7, vbTextCompare), npos);
    EXPECT_EQ(findText(h, u"", 4, vbTextCompare), 4u);
    EXPECT_EQ(findText(h, u"", 9, vbBinaryCompare), 9u);
    EXPECT_EQ(findText(h, u"", 10, vbBinaryCompare), npos);
    EXPECT_EQ(findText(h, u"a", 100, vbTextCompare), npos);
    EXPECT_EQ(findText(u"", u"a", 0, vbTextCompare), npos);
    EXPECT_EQ(findText(u"xxÄÖü", u"äöÜ", 0, vbTextCompare), 2u);

    EXPECT_EQ(findTextReverse(h, u"ABC", npos, vbBinaryCompare), 3u);
    EXPECT_EQ(findTextReverse(h, u"ABC", npos, vbTextCompare), 6u);
    EXPECT_EQ(findTextReverse(h, u"abc", 8, vbTextCompare), 3u);  // must lie within the first 8 units
    EXPECT_EQ(findTextReverse(h, u"abc", 2, vbTextCompare), npos);
    EXPECT_EQ(findTextReverse(h, u"", 5, vbTextCompare), 5u);
    EXPECT_EQ(findTextReverse(h, u"", npos, vbBinaryCompare), 9u);
}

TEST(TextCompare, ReplacingEveryOccurrence) {
    EXPECT_EQ(replaceText(u"aaaa", u"aa", u"b", vbBinaryCompare), u"bb");     // no overlap
    EXPECT_EQ(replaceText(u"aaa", u"a", u"aa", vbBinaryCompare), u"aaaaaa");  // never searches its own output
    EXPECT_EQ(replaceText(u"abc", u"", u"x", vbBinaryCompare), u"abc");       // empty find: unchanged
    EXPECT_EQ(replaceText(u"AbAB", u"ab", u"", vbTextCompare), u"");
    EXPECT_EQ(replaceText(u"AbAB", u"ab", u"", vbBinaryCompare), u"AbAB");
    EXPECT_EQ(replaceText(u"a.b.c", u".", u"\r\n", vbBinaryCompare), u"a\r\nb\r\nc");
    EXPECT_EQ(replaceText(u"ΣΑΣ", u"σ", u"s", vbTextCompare), u"sΑs");
}

// Like: one row per rule. An expected value of -1 means the pattern fails.
TEST(Like, PatternLanguage) {
    struct Row {
        const char* shows;
        StringView text;
        StringView pattern;
        int expected;
    };
    const Row rows[] = {
        {"plain text must cover the whole", u"abc", u"abc", 1},
        {"a prefix is not enough", u"abcd", u"abc", 0},
        {"binary comparison", u"ABC", u"abc", 0},
        {"empty matches empty", u"", u"", 1},
        {"empty pattern matches nothing else", u"a", u"", 0},
        {"star alone matches empty", u"", u"*", 1},
        {"star in the middle", u"a-to-z", u"a*z", 1},
        {"star needs the rest to follow", u"a-to-y", u"a*z", 0},
        {"several stars", u"xaxbxcx", u"*a*b*c*", 1},
        {"question mark needs a character", u"a", u"a?", 0},
        {"hash takes a digit", u"a7", u"a#", 1},
        {"hash refuses a letter", u"ax", u"a#", 0},
        {"list", u"b", u"[abc]", 1},
        {"negated list", u"d", u"[!abc]", 1},
        {"range", u"m", u"[a-z]", 1},
        {"range is binary", u"M", u"[a-z]", 0},
        {"negated range", u"5", u"[!a-z]", 1},
        {"hyphen first is itself", u"-", u"[-a]", 1},
        {"hyphen after ! is itself", u"-", u"[!-a]", 0},
        {"bracketed star is a star", u"*", u"[*]", 1},
        {"bracketed star is not a wildcard", u"x", u"[*]", 0},
        {"bracketed opening bracket", u"[", u"[[]", 1},
        {"bracketed hash", u"#", u"[#]", 1},
        {"closing bracket outside is itself", u"a]", u"a]", 1},
        {"! outside brackets is itself", u"!", u"!", 1},
        {"[] is the empty text", u"ab", u"a[]b", 1},
        {"[!] takes any one character", u"axb", u"a[!]b", 1},
        {"unclosed bracket fails", u"a", u"[a", -1},
        {"unclosed bracket fails even after a mismatch", u"zzz", u"a[", -1},
        {"descending range fails", u"b", u"[c-a]", -1},
        {"pattern ends in a star after text", u"abc", u"abc*", 1},
        {"code units", u"\U0001F600", u"??", 1},
        {"NUL is an ordinary character", u"a\0b"sv, u"a?b", 1},
    };
    for (const Row& r : rows) {
        int got = 0;
        try {
            got = like(r.text, r.pattern) ? 1 : 0;
        } catch (const Failure& f) {
            EXPECT_EQ(f.number(), errInvalidCall) << r.shows;
            got = -1;
        }
        EXPECT_EQ(got, r.expected) << r.shows << ": " << toUtf8(r.text) << " Like " << toUtf8(r.pattern);
    }
}

TEST(Like, TextModeAndLongInputs) {
    EXPECT_TRUE(like(u"ABC", u"a*", vbTextCompare));
    EXPECT_TRUE(like(u"Q", u"[p-r]", vbTextCompare));
    EXPECT_FALSE(like(u"ABC", u"a*", vbBinaryCompare));

    // Stars do not make the matcher exponential.
    const String as(20000, u'a');
    EXPECT_FALSE(like(as, u"*a*a*a*a*a*a*a*a*b"));
    EXPECT_TRUE(like(as + u"b", u"*a*a*a*a*a*a*a*a*b"));
    EXPECT_TRUE(like(as, String(5000, u'*') + u"a"));
}

TEST(TextCompare, InStrIsOneBasedAndFailsBelowOne) {
    EXPECT_EQ(inStr(3, u"a<b<c", u"<"), 4);
    EXPECT_EQ(inStr(5, u"a<b<c", u"<"), 0);
    EXPECT_EQ(inStr(5, u"a<b<c", u""), 5);  // an empty needle is found at start...
    EXPECT_EQ(inStr(6, u"a<b<c", u""), 0);  // ...unless start is past the end
    EXPECT_EQ(inStr(1, u"aXb", u"x"), 0);
    EXPECT_EQ(inStr(1, u"aXb", u"x", vbTextCompare), 2);
    EXPECT_FAILURE((void)inStr(0, u"abc", u"a"), errInvalidCall);
}

}  // namespace
}  // namespace quillet
