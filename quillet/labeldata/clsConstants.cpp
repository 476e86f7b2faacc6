#include "quillet/labeldata/clsConstants.h"

#include "quillet/labeldata/internal/modConstants.h"

namespace quillet {

namespace mc = labeldata_internal::modConstants;

QltPageOrientation clsConstants::DEFAULT_PRINT_ORIENTATION() const { return mc::DEFAULT_PRINT_ORIENTATION; }
String clsConstants::DEFAULT_FONT_NAME() const { return mc::DEFAULT_FONT_NAME; }
Long clsConstants::DEFAULT_FONT_SIZE() const { return mc::DEFAULT_FONT_SIZE; }
Integer clsConstants::MAX_INTEGER_DATA_TYPE_VALUE() const { return mc::MAX_INTEGER_DATA_TYPE_VALUE; }
Integer clsConstants::MIN_INTEGER_DATA_TYPE_VALUE() const { return mc::MIN_INTEGER_DATA_TYPE_VALUE; }
Variant clsConstants::MAX_UNSIGNED_INTEGER_DATA_TYPE_VALUE() const {
    return Variant(mc::MAX_UNSIGNED_INTEGER_DATA_TYPE_VALUE);
}
Long clsConstants::MAX_LONG_DATA_TYPE_VALUE() const { return mc::MAX_LONG_DATA_TYPE_VALUE; }
Long clsConstants::MIN_LONG_DATA_TYPE_VALUE() const { return mc::MIN_LONG_DATA_TYPE_VALUE; }
Variant clsConstants::MAX_UNSIGNED_LONG_DATA_TYPE_VALUE() const {
    return Variant(mc::MAX_UNSIGNED_LONG_DATA_TYPE_VALUE);
}
Variant clsConstants::MAX_BYTE_DATA_TYPE_VALUE() const { return Variant(mc::MAX_BYTE_DATA_TYPE_VALUE); }
Variant clsConstants::MIN_BYTE_DATA_TYPE_VALUE() const { return Variant(mc::MIN_BYTE_DATA_TYPE_VALUE); }
Long clsConstants::US_ENGLISH_LOCALE_ID() const { return mc::US_ENGLISH_LOCALE_ID; }
Long clsConstants::MIN_BAR_REDUCTION() const { return mc::MIN_BAR_REDUCTION; }
Long clsConstants::MAX_BAR_REDUCTION() const { return mc::MAX_BAR_REDUCTION; }
BarcodeSymbology clsConstants::DEFAULT_BARCODE_SYMBOLOGY() const { return mc::DEFAULT_BARCODE_SYMBOLOGY; }
QltEan13Extension clsConstants::DEFAULT_EAN13_EXT() const { return mc::DEFAULT_EAN13_EXT; }
qltCode128CodeSet clsConstants::DEFAULT_CODE_128_CODE_SET() const { return mc::DEFAULT_CODE_128_CODE_SET; }
Double clsConstants::DEFAULT_BAR_RATIO() const { return mc::DEFAULT_BAR_RATIO; }
Double clsConstants::DEFAULT_BAR_WIDTH() const { return mc::DEFAULT_BAR_WIDTH; }
BarWidthOption clsConstants::DEFAULT_BAR_WIDTH_OPTION() const { return mc::DEFAULT_BAR_WIDTH_OPTION; }
Double clsConstants::DEFAULT_BAR_REDUCTION() const { return mc::DEFAULT_BAR_REDUCTION; }
String clsConstants::DEFAULT_UCC128_APPLICATION_CODE() const { return mc::DEFAULT_UCC128_APPLICATION_CODE; }
String clsConstants::DEFAULT_UCC128_APPLICATION_DESCRIPTION() const {
    return mc::DEFAULT_UCC128_APPLICATION_DESCRIPTION;
}
Boolean clsConstants::DEFAULT_UCC128_DATA_FORMAT_IS_DATA_NUMERIC() const {
    return mc::DEFAULT_UCC128_DATA_FORMAT_IS_DATA_NUMERIC;
}
Long clsConstants::DEFAULT_UCC128_DATA_FORMAT_MIN_LENGTH() const { return mc::DEFAULT_UCC128_DATA_FORMAT_MIN_LENGTH; }
Long clsConstants::DEFAULT_UCC128_DATA_FORMAT_MAX_LENGTH() const { return mc::DEFAULT_UCC128_DATA_FORMAT_MAX_LENGTH; }
Boolean clsConstants::DEFAULT_UCC128_USES_DATA_CHECK_DIGIT() const { return mc::DEFAULT_UCC128_USES_DATA_CHECK_DIGIT; }
Boolean clsConstants::DEFAULT_UCC128_HAS_PREDEFINED_LENGTH() const { return mc::DEFAULT_UCC128_HAS_PREDEFINED_LENGTH; }

}  // namespace quillet
