// quillet/labeldata/clsConstants.h - the family's fixed values: the defaults
// of a barcode and of an application identifier entry, and the ranges of the
// data types. A global class: it holds no data.
//
//   clsConstants c;
//   c.DEFAULT_FONT_NAME();                      // u"Arial"
//   c.MAX_BAR_REDUCTION();                      // 100
//   c.MAX_UNSIGNED_LONG_DATA_TYPE_VALUE();      // Variant(4294967295.0), a Double
//   c.DEFAULT_UCC128_APPLICATION_CODE();        // u"00"
//
// The unsigned maxima and the two byte limits are Doubles inside a Variant,
// not whole-number types, because no whole-number type of the host language
// holds 4294967295.
#pragma once

#include "quillet/frame/Variant.h"
#include "quillet/frame/enums.h"
#include "quillet/frame/types.h"

namespace quillet {

class clsConstants {
public:
    [[nodiscard]] QltPageOrientation DEFAULT_PRINT_ORIENTATION() const;
    [[nodiscard]] String DEFAULT_FONT_NAME() const;
    [[nodiscard]] Long DEFAULT_FONT_SIZE() const;
    [[nodiscard]] Integer MAX_INTEGER_DATA_TYPE_VALUE() const;
    [[nodiscard]] Integer MIN_INTEGER_DATA_TYPE_VALUE() const;
    [[nodiscard]] Variant MAX_UNSIGNED_INTEGER_DATA_TYPE_VALUE() const;
    [[nodiscard]] Long MAX_LONG_DATA_TYPE_VALUE() const;
    [[nodiscard]] Long MIN_LONG_DATA_TYPE_VALUE() const;
    [[nodiscard]] Variant MAX_UNSIGNED_LONG_DATA_TYPE_VALUE() const;
    [[nodiscard]] Variant MAX_BYTE_DATA_TYPE_VALUE() const;
    [[nodiscard]] Variant MIN_BYTE_DATA_TYPE_VALUE() const;
    // US_ENGLISH_LOCALE_ID - 1033; kept for hosts, the library uses it nowhere.
    [[nodiscard]] Long US_ENGLISH_LOCALE_ID() const;
    // MIN_BAR_REDUCTION, MAX_BAR_REDUCTION - the range, in per cent, that
    // clsOptionsBarcode::setBarReduction clamps to.
    [[nodiscard]] Long MIN_BAR_REDUCTION() const;
    [[nodiscard]] Long MAX_BAR_REDUCTION() const;
    [[nodiscard]] BarcodeSymbology DEFAULT_BARCODE_SYMBOLOGY() const;
    [[nodiscard]] QltEan13Extension DEFAULT_EAN13_EXT() const;
    [[nodiscard]] qltCode128CodeSet DEFAULT_CODE_128_CODE_SET() const;
    [[nodiscard]] Double DEFAULT_BAR_RATIO() const;
    [[nodiscard]] Double DEFAULT_BAR_WIDTH() const;
    [[nodiscard]] BarWidthOption DEFAULT_BAR_WIDTH_OPTION() const;
    [[nodiscard]] Double DEFAULT_BAR_REDUCTION() const;
    [[nodiscard]] String DEFAULT_UCC128_APPLICATION_CODE() const;
    [[nodiscard]] String DEFAULT_UCC128_APPLICATION_DESCRIPTION() const;
    [[nodiscard]] Boolean DEFAULT_UCC128_DATA_FORMAT_IS_DATA_NUMERIC() const;
    [[nodiscard]] Long DEFAULT_UCC128_DATA_FORMAT_MIN_LENGTH() const;
    [[nodiscard]] Long DEFAULT_UCC128_DATA_FORMAT_MAX_LENGTH() const;
    [[nodiscard]] Boolean DEFAULT_UCC128_USES_DATA_CHECK_DIGIT() const;
    [[nodiscard]] Boolean DEFAULT_UCC128_HAS_PREDEFINED_LENGTH() const;
};

}  // namespace quillet
