// quillet/frame/VariantCompare.h - two Variants compared as the host language
// compares them with <, = and >. Every comparison of values in the library
// goes through compareVariants: the collection scans, token pairs and the
// database comparisons.
//
// The kinds meet like this:
//   - Null against anything, Null itself included, gives Null: the answer is
//     unknown, and a condition treats it as false.
//   - Numbers of every kind compare by value: Integer, Long, Single, Double,
//     Byte, a Boolean as -1 or 0, a Date as its serial; a Single widens to
//     a Double exactly, so Single 0.1 is above Double 0.1.
//   - Texts compare by `mode`: binary by UTF-16 units, text ignoring case.
//   - Empty is 0 against a number and "" against a text; two Empties are equal.
//   - A number against a text: the number is less, whatever the text says.
//   - An object, an array or an error value (the missing value too) fails
//     with errTypeMismatch, unless the other side is Null.
//
//   compareVariants(Variant(2), Variant(2.0))                     Equal
//   compareVariants(Variant(Integer{1}), Variant(1.5f))           Less
//   compareVariants(Variant(True), Variant())                     Less     (-1 < 0)
//   compareVariants(Variant(Date{1.5}), Variant(1.5))             Equal
//   compareVariants(Variant(u"abc"), Variant(u"ABC"))             Greater  ('a' > 'A')
//   compareVariants(Variant(u"abc"), Variant(u"ABC"), vbTextCompare)   Equal
//   compareVariants(Variant(), Variant(u""))                      Equal
//   compareVariants(Variant(), Variant(u"a"))                     Less
//   compareVariants(Variant(9), Variant(u"1"))                    Less     (a number is below a text)
//   compareVariants(Variant(u"1"), Variant(9))                    Greater
//   compareVariants(Variant::null(), Variant::null())             Null
//   compareVariants(Variant(1), Variant(Array<Long>(0, 0)))       throws Failure(errTypeMismatch)
#pragma once

#include "quillet/frame/Variant.h"
#include "quillet/frame/hostenums.h"

namespace quillet {

// VariantOrder - how the first Variant stands to the second.
enum class VariantOrder { Less = -1, Equal = 0, Greater = 1, Null = 2 };

// compareVariants - see above. Any mode other than vbTextCompare is binary.
[[nodiscard]] VariantOrder compareVariants(const Variant& a, const Variant& b, VbCompareMethod mode = vbBinaryCompare);

}  // namespace quillet
