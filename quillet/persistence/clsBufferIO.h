// quillet/persistence/clsBufferIO.h - reads and writes the tagged text in
// which every settings object saves itself. A global class.
//
// The format looks like XML and is not: each read is a plain search for the
// exact begin tag and its matching end tag, over the whole buffer, nested
// elements included; the first match wins. Writers return one finished
// element with its CR LF; they never append to a buffer.
//
//   clsBufferIO io;
//   io.WriteNumberBetween(u"BarReduction", 12.5);     // u"<BarReduction>12.5</BarReduction>\r\n"
//   io.WriteStringBetween(u"N", u"a\"b");             // u"<N>a&quot;b</N>\r\n"
//   io.ReadNumberBetween(Variant(u"<X> </X>\r\n"), u"X", 7);   // 0.0: blanks are not empty
//   io.ReadNumberBetween(Variant(u"<X></X>\r\n"), u"X", 7);    // 7.0
//   io.ReadBooleanBetween(Variant(u"<B>  YES </B>"), u"B", False);  // True
//   io.ReadVariantBetween(Variant(u"<A><A>1</A></A>"), u"A");  // u"<A>1</A>"
//
// Buffers are taken as Variants by reference and never changed. A buffer
// that holds no text (Empty, Null, a number) reads as its text form, or as
// the empty text when it has none.
//
// Each read walks the buffer a fixed number of times, whatever it holds: the
// collection and array readers find all their items in one pass, and give
// each item exactly what a search for that item's own tag would give.
#pragma once

#include <memory>

#include "quillet/frame/Array.h"
#include "quillet/frame/Collection.h"
#include "quillet/frame/Variant.h"
#include "quillet/frame/types.h"

namespace quillet {

class clsBufferIO {
public:
    // isTagPresent - a begin tag with a matching end tag, from position 1.
    [[nodiscard]] Boolean isTagPresent(const Variant& search_str_, const String& xml_tag_) const;
    // locateMatchingTags - the matching scan: 1-based positions of the begin
    // tag and of its matching end tag, same-named elements nesting properly.
    // False when either is missing or start_pos is below 1.
    Boolean locateMatchingTags(const Variant& buffer, Long start_pos, const String& beg_tag, const String& end_tag,
                               Long& beg_pos, Long& end_pos) const;
    // ReadNumberBetween - numeric prefix of the element's trimmed text, always
    // a Double; the default (through its text) only when the element is
    // absent or empty; 0 without a default.
    [[nodiscard]] Variant ReadNumberBetween(const Variant& search_str_, const String& xml_tag_,
                                            const Variant& default_value_ = Variant::missing()) const;
    // WriteNumberBetween - the value's number text between the tags; "" for Null.
    [[nodiscard]] String WriteNumberBetween(const String& xml_tag_, const Variant& value_) const;
    // ReadStringBetween - the decoded text; the default when it is empty.
    [[nodiscard]] String ReadStringBetween(const Variant& search_str, const String& xml_tag_,
                                           const String& default_value_ = String()) const;
    [[nodiscard]] String WriteStringBetween(const String& xml_tag_, const String& value_) const;
    // ReadBooleanBetween - "true"/"yes" and "false"/"no" in any case, with
    // blanks around; anything else gives the default.
    [[nodiscard]] Boolean ReadBooleanBetween(const Variant& search_str, const String& xml_tag_,
                                             Boolean default_value_) const;
    [[nodiscard]] String WriteBooleanBetween(const String& xml_tag_, Boolean value_) const;
    [[nodiscard]] String ReadBase64StringBetween(const Variant& buffer_, const String& xml_tag_) const;
    [[nodiscard]] Variant WriteBase64StringBetween(const String& xml_tag_, const String& value_) const;
    // ReadVariantBetween - the raw text between the tags (or with them);
    // Empty when the tag is absent.
    [[nodiscard]] Variant ReadVariantBetween(const Variant& search_str, const String& xml_tag_,
                                             Boolean include_tags_ = False) const;
    // WriteVariantBetween - the value's text unescaped between the tags, so a
    // finished buffer can be nested; Null and Empty give an empty element.
    [[nodiscard]] Variant WriteVariantBetween(const String& xml_tag_, const Variant& value_) const;
    [[nodiscard]] Variant getSectionBetween(const Variant& buffer, Long start_pos, const String& beg_tag,
                                            const String& end_tag, Boolean include_tags_ = False) const;
    [[nodiscard]] String getBeginTag(const String& tag_) const;
    [[nodiscard]] String getEndTag(const String& tag_) const;
    // ReadDateBetween - the element's text through stringToDate; Date 0 when
    // it reads as no date.
    [[nodiscard]] Date ReadDateBetween(const Variant& search_str, const String& xml_tag_,
                                       const Variant& default_value_ = Variant::missing()) const;
    [[nodiscard]] String WriteDateBetween(const String& xml_tag_, Date value_) const;
    // ReadCollectionBetween - never Nothing; items come back as Strings. Reads
    // the XmlCollection form and the older Collection form. A Count above
    // 1048576 items, or items nested so that their texts together pass 2^26
    // code units, are taken as an allocation that failed: an empty collection.
    [[nodiscard]] std::shared_ptr<Collection> ReadCollectionBetween(const Variant& search_str,
                                                                    const String& xml_tag_) const;
    [[nodiscard]] Variant WriteCollectionBetween(const String& xml_tag_,
                                                 const std::shared_ptr<Collection>& coll_) const;
    // ReadArrayBetween - reads the XmlArray form and the older Array form; an
    // absent tag gives one empty text at subscript 0, bounds that hold no
    // element an unallocated array, and so do bounds spanning more than
    // 1048576 elements and items whose texts together pass 2^26 code units
    // (an allocation that failed).
    [[nodiscard]] Array<String> ReadArrayBetween(const Variant& search_str, const String& xml_tag_) const;
    [[nodiscard]] Variant WriteArrayBetween(const String& xml_tag_, const Array<String>& arr_) const;
};

}  // namespace quillet
