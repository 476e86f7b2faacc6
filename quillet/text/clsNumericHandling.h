// quillet/text/clsNumericHandling.h - number helpers. A global class.
//
//   clsNumericHandling n;
//   n.isArrayEmpty(Variant(Array<Long>()));      // True: unallocated
//   n.isArrayEmpty(Variant(Array<Long>(0, -1))); // True: ubound below lbound
//   n.isArrayEmpty(Variant(5));                  // True: no array at all
//   n.isVariantValueEmpty(Variant(0));           // False: 0 is a value
//   n.isVariantValueEmpty(Variant(u""));         // True
#pragma once

#include "quillet/frame/Variant.h"
#include "quillet/frame/types.h"

namespace quillet {

class clsNumericHandling {
public:
    // isArrayEmpty - True when the array has no element, has no bounds, or
    // the value is no array.
    [[nodiscard]] Boolean isArrayEmpty(const Variant& array_) const noexcept;
    // isVariantValueEmpty - True for Empty, Null, "", an empty array and
    // Nothing; False for everything else, 0 included.
    [[nodiscard]] Boolean isVariantValueEmpty(const Variant& value_) const noexcept;
};

}  // namespace quillet
