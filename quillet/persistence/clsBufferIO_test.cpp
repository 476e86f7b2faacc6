#include "quillet/persistence/clsBufferIO.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "quillet/frame/Failure.h"
#include "quillet/frame/NumberText.h"
#include "quillet/frame/RegionalSettings.h"
#include "quillet/frame/convert.h"
#include "quillet/frame/utf8.h"

namespace quillet {
namespace {

const clsBufferIO io;

RegionalSettings decimalComma() {
    RegionalSettings s = RegionalSettings::usEnglish();
    s.decimalSeparator.assign(1, u',');
    return s;
}

TEST(clsBufferIO, HeaderExamples) {
    EXPECT_EQ(io.WriteNumberBetween(u"BarReduction", 12.5), u"<BarReduction>12.5</BarReduction>\r\n");
    EXPECT_EQ(io.WriteStringBetween(u"N", u"a\"b"), u"<N>a&quot;b</N>\r\n");
    EXPECT_EQ(io.ReadNumberBetween(Variant(u"<X> </X>\r\n"), u"X", 7), Variant(0.0));
    EXPECT_EQ(io.ReadNumberBetween(Variant(u"<X></X>\r\n"), u"X", 7), Variant(7.0));
    EXPECT_EQ(io.ReadBooleanBetween(Variant(u"<B>  YES </B>"), u"B", False), True);
    EXPECT_EQ(io.ReadVariantBetween(Variant(u"<A><A>1</A></A>"), u"A"), Variant(u"<A>1</A>"));
}

TEST(clsBufferIO, MatchingScanPairsSameNamedTagsAndUsesOneBasedPositions) {
    struct Row {
        const char* name;
        Variant buffer;
        Long start;
        String beg, end;
        bool found;
        Long beg_pos, end_pos;
    };
    const Row rows[] = {
        {"simple", u"<A>1</A>", 1, u"<A>", u"</A>", true, 1, 5},
        {"nested same name", u"<A><A></A></A>", 1, u"<A>", u"</A>", true, 1, 11},
        {"siblings take the first", u"<A>x</A><A>y</A>", 1, u"<A>", u"</A>", true, 1, 5},
        {"start after the first", u"<A>x</A><A>y</A>", 2, u"<A>", u"</A>", true, 9, 13},
        {"unbalanced inner begin", u"<A><A>1</A>", 1, u"<A>", u"</A>", false, 1, 0},
        {"end before begin ignored", u"</A><A>x</A>", 1, u"<A>", u"</A>", true, 5, 9},
        {"same begin and end", u"|a|b|", 1, u"|", u"|", true, 1, 3},
        {"empty begin tag", u"ab</A>", 1, u"", u"</A>", true, 1, 3},
        {"empty end tag", u"xx<A>yy", 1, u"<A>", u"", true, 3, 7},
        {"binary comparison", u"<a>1</a>", 1, u"<A>", u"</A>", false, 0, 0},
        {"absent", u"nothing here", 1, u"<A>", u"</A>", false, 0, 0},
        {"Empty buffer", Variant(), 1, u"<A>", u"</A>", false, 0, 0},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        Long b = -5, e = -5;
        EXPECT_EQ(io.locateMatchingTags(r.buffer, r.start, r.beg, r.end, b, e), Boolean(r.found));
        EXPECT_EQ(b, r.beg_pos);
        EXPECT_EQ(e, r.end_pos);
    }
    // A start below 1 and a buffer without text fail the scan before it sets anything.
    Long b = -5, e = -5;
    EXPECT_EQ(io.locateMatchingTags(Variant(u"<A>1</A>"), 0, u"<A>", u"</A>", b, e), False);
    EXPECT_EQ(io.locateMatchingTags(Variant::null(), 1, u"<A>", u"</A>", b, e), False);
    EXPECT_EQ(b, -5);
    EXPECT_EQ(e, -5);
    EXPECT_EQ(io.isTagPresent(Variant(u"<A><A>1</A>"), u"A"), False);
    EXPECT_EQ(io.isTagPresent(Variant(u"x<A></A>"), u"A"), True);
}

TEST(clsBufferIO, SectionsAreRawTextWithOrWithoutTheTags) {
    const Variant buffer(u"<O><A>x&amp;y</A>\r\n</O>\r\n");
    EXPECT_EQ(io.ReadVariantBetween(buffer, u"A"), Variant(u"x&amp;y"));
    EXPECT_EQ(io.ReadVariantBetween(buffer, u"O", True), Variant(u"<O><A>x&amp;y</A>\r\n</O>"));
    // Overlapping begin and end tags would cut a negative length: no section.
    EXPECT_EQ(io.getSectionBetween(Variant(u"<A>"), 1, u"<A>", u"A>"), Variant());
    // NUL characters are ordinary characters of a buffer.
    const String withNul(u"<A>a\0b</A>\0<B>c</B>", 19);
    EXPECT_EQ(io.ReadStringBetween(Variant(withNul), u"A"), String(u"a\0b", 3));
    EXPECT_EQ(io.ReadStringBetween(Variant(withNul), u"B"), u"c");
    // A tag inside a value is found like any other: the first match wins.
    EXPECT_EQ(io.ReadStringBetween(Variant(u"<V><X>in</X></V><X>out</X>"), u"X"), u"in");
}

TEST(clsBufferIO, NumbersReadTheNumericPrefixAndWriteNumberText) {
    struct Row {
        const char* name;
        const char16_t* buffer;
        Variant default_value;
        Variant expected;
    };
    const Row rows[] = {
        {"absent, no default", u"", Variant::missing(), 0.0},
        {"absent, default", u"<Y>3</Y>", Variant(u"2.5"), 2.5},
        {"numeric prefix", u"<X> 12.5kg</X>", Variant::missing(), 12.5},
        {"point only", u"<X>1,5</X>", Variant::missing(), 1.0},
        {"beyond Long", u"<X>99999999999</X>", Variant::missing(), 99999999999.0},
        {"beyond Double", u"<X>1E400</X>", Variant::missing(), 0.0},
        {"a Null default cannot be read", u"<X></X>", Variant::null(), Variant()},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        EXPECT_EQ(io.ReadNumberBetween(Variant(r.buffer), u"X", r.default_value), r.expected);
    }
    {
        // Written with the regional separator, read with the point only; a
        // default passes through its text.
        RegionalScope comma(decimalComma());
        EXPECT_EQ(io.WriteNumberBetween(u"X", 1.5), u"<X>1,5</X>\r\n");
        EXPECT_EQ(io.ReadNumberBetween(Variant(io.WriteNumberBetween(u"X", 1.5)), u"X"), Variant(1.0));
        EXPECT_EQ(io.ReadNumberBetween(Variant(u""), u"X", 2.5), Variant(2.0));
    }
    EXPECT_EQ(io.WriteNumberBetween(u"X", Variant::null()), u"");
    EXPECT_EQ(io.WriteNumberBetween(u"X", Variant(std::make_shared<int>(1))), u"");
}

TEST(clsBufferIO, StringsEscapeFiveCharactersAndDecodeThemInAnyCase) {
    EXPECT_EQ(io.WriteStringBetween(u"S", u"<a & 'b'>\""), u"<S>&lt;a &amp; &apos;b&apos;&gt;&quot;</S>\r\n");
    struct Row {
        const char* name;
        const char16_t* value_text;
        const char16_t* expected;
    };
    const Row rows[] = {
        {"ampersand last", u"a&amp;lt;b", u"a&lt;b"},  {"upper case entity", u"&LT;x&GT;", u"<x>"},
        {"mixed case", u"&Amp;&QuOt;&aPoS;", u"&\"'"}, {"no numeric references", u"&#60;&nbsp;", u"&#60;&nbsp;"},
        {"lone ampersand", u"a & b;", u"a & b;"},      {"no trimming", u"  x  ", u"  x  "},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        const String buffer = String(u"<A>") + r.value_text + u"</A>";
        EXPECT_EQ(io.ReadStringBetween(Variant(buffer), u"A"), r.expected);
    }
    // An empty saved text cannot override the default, which is not decoded.
    EXPECT_EQ(io.ReadStringBetween(Variant(u"<A></A>"), u"A", u"&amp;"), u"&amp;");
    EXPECT_EQ(io.ReadStringBetween(Variant(u"<B>x</B>"), u"A", u"d"), u"d");
    // Every text comes back from its element, entities and all.
    for (const char16_t* text : {u"&lt;", u"a\"b", u"&amp;amp;", u"x'y<z>", u"Grüße €"}) {
        SCOPED_TRACE(toUtf8(text));
        EXPECT_EQ(io.ReadStringBetween(Variant(io.WriteStringBetween(u"T", text)), u"T"), text);
    }
}

TEST(clsBufferIO, BooleansAcceptYesNoAnyCaseWithBlanks) {
    struct Row {
        const char* name;
        const char16_t* value_text;
        Boolean default_value;
        Boolean expected;
    };
    const Row rows[] = {
        {"YES with blanks", u"  YES ", False, True},
        {"no", u"no", True, False},
        {"a number is no boolean", u"1", False, False},
        {"empty takes the default", u"", True, True},
        {"tabs are not trimmed", u"\ttrue", False, False},
        {"not decoded", u"&quot;", Boolean::fromRaw(1), Boolean::fromRaw(1)},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        const String buffer = String(u"<B>") + r.value_text + u"</B>";
        EXPECT_EQ(io.ReadBooleanBetween(Variant(buffer), u"B", r.default_value), r.expected);
    }
    EXPECT_EQ(io.ReadBooleanBetween(Variant(), u"B", True), True);
    EXPECT_EQ(io.WriteBooleanBetween(u"B", True), u"<B>True</B>\r\n");
    EXPECT_EQ(io.WriteBooleanBetween(u"B", Boolean::fromRaw(1)), u"<B>False</B>\r\n");
}

TEST(clsBufferIO, VariantsAreWrittenUnescapedSoBuffersNest) {
    EXPECT_EQ(io.WriteVariantBetween(u"V", Variant(u"<A>1</A>\r\n")), Variant(u"<V><A>1</A>\r\n</V>\r\n"));
    EXPECT_EQ(io.WriteVariantBetween(u"V", Variant::null()), Variant(u"<V></V>\r\n"));
    EXPECT_EQ(io.WriteVariantBetween(u"V", Variant()), Variant(u"<V></V>\r\n"));
    EXPECT_EQ(io.WriteVariantBetween(u"V", Variant::missing()), Variant());
    EXPECT_EQ(io.WriteVariantBetween(u"V", Variant(std::make_shared<int>(1))), Variant());
}

TEST(clsBufferIO, CollectionGoldenTextsAndBothReadForms) {
    auto colors = std::make_shared<Collection>();
    colors->Add(u"red");
    colors->Add(u"blue");
    const Variant written = io.WriteCollectionBetween(u"Colors", colors);
    EXPECT_EQ(written, Variant(u"<Colors><XmlCollection><Count>2</Count>\r\n<Item1>red</Item1>\r\n<Item2>blue</Item2>"
                               u"\r\n</XmlCollection>\r\n</Colors>\r\n"));
    const Variant none(u"<Colors><XmlCollection><Count>0</Count>\r\n</XmlCollection>\r\n</Colors>\r\n");
    EXPECT_EQ(io.WriteCollectionBetween(u"Colors", nullptr), none);
    EXPECT_EQ(io.WriteCollectionBetween(u"Colors", std::make_shared<Collection>()), none);

    const auto items = [](const std::shared_ptr<Collection>& c) {
        String s;
        if (!c) return String(u"Nothing");
        for (Long i = 1; i <= c->Count(); ++i) s += toText(c->Item(i)) + u"|";
        return s;
    };
    struct Row {
        const char* name;
        Variant buffer;
        String expected;
    };
    const Row rows[] = {
        {"current form", written, u"red|blue|"},
        {"older form", Variant(u"<Colors><Collection><Count>2</Count><1>red</1><2>blue</2></Collection></Colors>"),
         u"red|blue|"},
        {"no items", none, u""},
        {"absent", Variant(u"<Other/>"), u""},
        {"count above the items",
         Variant(u"<Colors><XmlCollection><Count>3</Count><Item1>a</Item1>"
                 u"</XmlCollection></Colors>"),
         u"a|||"},
        {"items read from the outer element",
         Variant(u"<Colors><Item1>x</Item1><XmlCollection><Count>1</Count></XmlCollection></Colors>"), u"x|"},
        {"count rounds half-to-even", Variant(u"<C><XmlCollection><Count>2.5</Count></XmlCollection></C>"), u"||"},
        {"negative count", Variant(u"<C><XmlCollection><Count>-4</Count></XmlCollection></C>"), u""},
        {"count beyond Long", Variant(u"<C><XmlCollection><Count>1E20</Count></XmlCollection></C>"), u""},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        const String tag = r.buffer.getIf<String>()->starts_with(u"<C>") ? u"C" : u"Colors";
        EXPECT_EQ(items(io.ReadCollectionBetween(r.buffer, tag)), r.expected);
    }
    // An item with no text is left out, while Count still counts it.
    auto mixed = std::make_shared<Collection>();
    mixed->Add(u"a&b");
    mixed->Add(Variant(std::make_shared<int>(1)));
    mixed->Add(Long{5});
    EXPECT_EQ(io.WriteCollectionBetween(u"M", mixed),
              Variant(u"<M><XmlCollection><Count>3</Count>\r\n<Item1>a&amp;b</Item1>\r\n<Item3>5</Item3>\r\n"
                      u"</XmlCollection>\r\n</M>\r\n"));
    EXPECT_EQ(items(io.ReadCollectionBetween(io.WriteCollectionBetween(u"M", mixed), u"M")), u"a&b||5|");
}

TEST(clsBufferIO, ArrayGoldenTextsAndBothReadForms) {
    const Array<String> names = Array<String>::from(0, {u"a", u"b"});
    const Variant written = io.WriteArrayBetween(u"Names", names);
    EXPECT_EQ(written, Variant(u"<Names><XmlArray><LBound>0</LBound>\r\n<UBound>1</UBound>\r\n<Item0>a</Item0>\r\n"
                               u"<Item1>b</Item1>\r\n</XmlArray>\r\n</Names>\r\n"));
    EXPECT_EQ(io.WriteArrayBetween(u"Names", Array<String>()),
              Variant(u"<Names><XmlArray><LBound>0</LBound>\r\n<UBound>-1</UBound>\r\n</XmlArray>\r\n</Names>\r\n"));
    EXPECT_EQ(io.ReadArrayBetween(written, u"Names"), names);

    const Array<String> negative = Array<String>::from(-2, {u"<x>", u"", u"z"});
    EXPECT_EQ(io.ReadArrayBetween(io.WriteArrayBetween(u"N", negative), u"N"), negative);
    EXPECT_EQ(io.ReadArrayBetween(Variant(u"<N><Array><LBound>1</LBound><UBound>2</UBound><1>p</1><2>q</2>"
                                          u"</Array></N>"),
                                  u"N"),
              Array<String>::from(1, {u"p", u"q"}));
    // Unallocated stays unallocated; an absent tag gives one empty text.
    EXPECT_FALSE(io.ReadArrayBetween(io.WriteArrayBetween(u"N", Array<String>()), u"N").isAllocated());
    EXPECT_EQ(io.ReadArrayBetween(Variant(u""), u"N"), Array<String>::from(0, {u""}));
    // Bounds past what can be held read as a failed allocation.
    EXPECT_FALSE(io.ReadArrayBetween(Variant(u"<N><XmlArray><LBound>-2000000000</LBound><UBound>2000000000</UBound>"
                                             u"</XmlArray></N>"),
                                     u"N")
                     .isAllocated());
}

TEST(clsBufferIO, Base64StringsGoThroughTheCodePage) {
    EXPECT_EQ(io.WriteBase64StringBetween(u"B", u"foo"), Variant(u"<B>Zm9v</B>\r\n"));
    EXPECT_EQ(io.WriteBase64StringBetween(u"B", u""), Variant(u"<B></B>\r\n"));
    EXPECT_EQ(io.ReadBase64StringBetween(io.WriteBase64StringBetween(u"B", u"Grüße €"), u"B"), u"Grüße €");
    EXPECT_EQ(io.ReadBase64StringBetween(io.WriteBase64StringBetween(u"B", u"Ω"), u"B"), u"?");
    EXPECT_EQ(io.ReadBase64StringBetween(Variant(u"<B>*not base64*</B>"), u"B"), u"");
    EXPECT_EQ(io.ReadBase64StringBetween(Variant(u""), u"B"), u"");
}

TEST(clsBufferIO, DatesRoundTripInTheFixedMonthFirstForm) {
    RegionalScope us(RegionalSettings::usEnglish());
    const String written = io.WriteDateBetween(u"D", Date{42006.75});
    EXPECT_EQ(written, u"<D>01/02/2015 18:00:00</D>\r\n");
    EXPECT_EQ(io.ReadDateBetween(Variant(written), u"D"), Date{42006.75});
    // The default passes through its text; an empty element takes it.
    EXPECT_EQ(io.ReadDateBetween(Variant(u"<D></D>"), u"D", Variant(Date{42006.25})), Date{42006.25});
    // No date, an absent tag without default, and a Null default give Date 0.
    EXPECT_EQ(io.ReadDateBetween(Variant(u""), u"D"), Date{});
    EXPECT_EQ(io.ReadDateBetween(Variant(u"<D>no date</D>"), u"D"), Date{});
    EXPECT_EQ(io.ReadDateBetween(Variant(u"<D></D>"), u"D", Variant::null()), Date{});
}

TEST(clsBufferIO, HostileBuffersGiveDefaultsWithoutFailing) {
    for (const Variant& buffer : {Variant(), Variant::null(), Variant(5), Variant(std::make_shared<int>(1)),
                                  Variant(Array<String>(0, 1)), Variant::missing()}) {
        EXPECT_EQ(io.ReadNumberBetween(buffer, u"X", 3), Variant(3.0));
        EXPECT_EQ(io.ReadStringBetween(buffer, u"X", u"d"), u"d");
        EXPECT_EQ(io.ReadBooleanBetween(buffer, u"X", True), True);
        EXPECT_EQ(io.ReadVariantBetween(buffer, u"X"), Variant());
        EXPECT_EQ(io.ReadCollectionBetween(buffer, u"X")->Count(), 0);
        EXPECT_EQ(io.ReadArrayBetween(buffer, u"X"), Array<String>::from(0, {u""}));
        EXPECT_EQ(io.ReadBase64StringBetween(buffer, u"X"), u"");
    }
    // Deeply nested same-named elements pair correctly.
    String deep;
    for (int i = 0; i < 5000; ++i) deep += u"<A>";
    deep += u"v";
    for (int i = 0; i < 5000; ++i) deep += u"</A>";
    EXPECT_EQ(io.ReadVariantBetween(Variant(deep), u"A").getIf<String>()->size(), deep.size() - 7);
    deep += u"<A>";
    EXPECT_EQ(io.ReadStringBetween(Variant(u"<A>" + deep), u"A", u"none"), u"none");  // one begin too many
    // A 1 MB buffer with the element at its end.
    String big(1 << 20, u'x');
    big += u"<Far>42</Far>\r\n";
    EXPECT_EQ(io.ReadNumberBetween(Variant(big), u"Far"), Variant(42.0));
    // Huge counts cost no memory or time beyond the items that exist.
    const Variant many(u"<C><XmlCollection><Count>1048576</Count></XmlCollection><Item7>x</Item7></C>");
    const auto c = io.ReadCollectionBetween(many, u"C");
    EXPECT_EQ(c->Count(), 1048576);
    EXPECT_EQ(c->Item(7), Variant(u"x"));
    EXPECT_EQ(
        io.ReadCollectionBetween(Variant(u"<C><XmlCollection><Count>2000000000</Count></XmlCollection></C>"), u"C")
            ->Count(),
        0);
    // Items nested in each other: their texts together grow with the square
    // of the buffer, and past 2^26 code units the read counts as failed.
    String nested = u"<C><XmlCollection><Count>20000</Count></XmlCollection>";
    for (int i = 1; i <= 20000; ++i) nested += u"<Item" + numberText(i) + u">";
    for (int i = 1; i <= 20000; ++i) nested += u"</Item" + numberText(i) + u">";
    nested += u"</C>";
    EXPECT_EQ(io.ReadCollectionBetween(Variant(nested), u"C")->Count(), 0);
    EXPECT_EQ(io.ReadCollectionBetween(Variant(nested.substr(0, 60000) + u"</C>"), u"C")->Count(), 20000);
}

// The item readers find every item in one pass; what each item gets must be
// what a search of the element for that item's own tag gives.
std::vector<String> perItem(const Variant& buffer, bool array) {
    const String outer = toText(io.ReadVariantBetween(buffer, u"C"));
    String prefix = u"Item";
    String inner = toText(io.ReadVariantBetween(Variant(outer), array ? u"XmlArray" : u"XmlCollection"));
    if (inner.empty()) {
        inner = toText(io.ReadVariantBetween(Variant(outer), array ? u"Array" : u"Collection"));
        prefix.clear();
    }
    Long first = 1, last = 0;
    attempt([&] { first = array ? toLong(io.ReadNumberBetween(Variant(inner), u"LBound")) : 1; });
    attempt([&] { last = toLong(io.ReadNumberBetween(Variant(inner), array ? u"UBound" : u"Count")); });
    std::vector<String> items;
    // Collection items are searched in the caller's element, array items in the inner one.
    const Variant searched(array ? inner : outer);
    for (Long i = first; i <= last && last - first < (1 << 20); ++i)
        items.push_back(io.ReadStringBetween(searched, prefix + numberText(i)));
    return items;
}

std::vector<String> itemsOf(const std::shared_ptr<Collection>& c) {
    std::vector<String> items;
    for (Long i = 1; i <= c->Count(); ++i) items.push_back(toText(c->Item(i)));
    return items;
}

std::vector<String> itemsOf(const Array<String>& a) {
    std::vector<String> items;
    if (a.isAllocated())
        for (Long i = a.lbound(); i <= a.ubound(); ++i) items.push_back(a[i]);
    return items;
}

TEST(clsBufferIO, ItemReadersGiveWhatThePerItemScanGives) {
    using Items = std::vector<String>;
    struct Row {
        const char* name;
        const char16_t* inside;  // the text inside <C>...</C>
        Items collection;
    };
    const String head = u"<XmlCollection><Count>3</Count></XmlCollection>";
    const Row rows[] = {
        {"out of order", u"<Item3>c</Item3><Item1>a</Item1><Item2>b</Item2>", {u"a", u"b", u"c"}},
        {"missing in the middle", u"<Item1>a</Item1><Item3>c</Item3>", {u"a", u"", u"c"}},
        {"an item inside another", u"<Item1>x<Item2>y</Item2>z</Item1>", {u"x<Item2>y</Item2>z", u"y", u""}},
        {"duplicated: the first wins", u"<Item2>first</Item2><Item2>second</Item2>", {u"", u"first", u""}},
        {"an unbalanced begin tag", u"<Item1><Item1>a</Item1><Item2>b</Item2>", {u"", u"b", u""}},
        {"no leading zeros or minus zero", u"<Item01>a</Item01><Item-0>b</Item-0><Item3>c</Item3>", {u"", u"", u"c"}},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        const Variant buffer(u"<C>" + head + r.inside + u"</C>");
        EXPECT_EQ(itemsOf(io.ReadCollectionBetween(buffer, u"C")), r.collection);
        EXPECT_EQ(perItem(buffer, false), r.collection);
    }
    // Many generated buffers of the pieces the readers react to.
    const char16_t* pieces[] = {u"<Item1>", u"</Item1>", u"<Item2>", u"</Item2>", u"<Item3>", u"</Item3>",
                                u"<1>",     u"</1>",     u"<2>",     u"</2>",     u"<-1>",    u"</-1>",
                                u"<Item0>", u"</Item0>", u"<Item",   u">",        u"</",      u"x",
                                u"&amp;",   u"&LT;",     u"<C>",     u"</C>",     u"<Item02>"};
    const char16_t* heads[] = {u"<XmlCollection><Count>3</Count></XmlCollection>",
                               u"<Collection><Count>3</Count></Collection>",
                               u"<XmlArray><LBound>-1</LBound><UBound>3</UBound></XmlArray>",
                               u"<Array><LBound>0</LBound><UBound>2</UBound></Array>",
                               u"<XmlArray><LBound>-1</LBound><UBound>3</UBound>",
                               u""};
    std::mt19937 random(20260101);
    for (int round = 0; round < 4000; ++round) {
        String inside;
        const int length = static_cast<int>(random() % 14);
        for (int k = 0; k < length; ++k) inside += pieces[random() % std::size(pieces)];
        String text = heads[random() % std::size(heads)];
        text.insert(random() % (text.size() + 1), inside);
        const Variant buffer(random() % 4 == 0 ? text : u"<C>" + text + u"</C>");
        SCOPED_TRACE(toUtf8(*buffer.getIf<String>()));
        ASSERT_EQ(itemsOf(io.ReadCollectionBetween(buffer, u"C")), perItem(buffer, false));
        ASSERT_EQ(itemsOf(io.ReadArrayBetween(buffer, u"C")), perItem(buffer, true));
    }
}

}  // namespace
}  // namespace quillet
