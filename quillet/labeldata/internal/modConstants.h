// quillet/labeldata/internal/modConstants.h - the private constants that the label
// data classes share. Not part of the public interface: hosts read these
// values through clsConstants.
#pragma once

#include "quillet/frame/enums.h"
#include "quillet/frame/types.h"

namespace quillet::labeldata_internal::modConstants {

inline constexpr QltPageOrientation DEFAULT_PRINT_ORIENTATION = QLT_PORTRAIT;
inline constexpr const char16_t* DEFAULT_FONT_NAME = u"Arial";
inline constexpr Long DEFAULT_FONT_SIZE = 8;

inline constexpr Integer MAX_INTEGER_DATA_TYPE_VALUE = 32767;
inline constexpr Integer MIN_INTEGER_DATA_TYPE_VALUE = -32768;
inline constexpr Double MAX_UNSIGNED_INTEGER_DATA_TYPE_VALUE = 65535.0;
inline constexpr Long MAX_LONG_DATA_TYPE_VALUE = 2147483647;
inline constexpr Long MIN_LONG_DATA_TYPE_VALUE = -2147483647 - 1;
inline constexpr Double MAX_UNSIGNED_LONG_DATA_TYPE_VALUE = 4294967295.0;
inline constexpr Double MAX_BYTE_DATA_TYPE_VALUE = 255.0;
inline constexpr Double MIN_BYTE_DATA_TYPE_VALUE = 0.0;

inline constexpr Long US_ENGLISH_LOCALE_ID = 1033;

// The range that setBarReduction clamps to, in per cent.
inline constexpr Long MIN_BAR_REDUCTION = 0;
inline constexpr Long MAX_BAR_REDUCTION = 100;

inline constexpr BarcodeSymbology DEFAULT_BARCODE_SYMBOLOGY = BARCODE_CODE_39;
inline constexpr QltEan13Extension DEFAULT_EAN13_EXT = QLT_EAN13_EXT_NONE;
inline constexpr qltCode128CodeSet DEFAULT_CODE_128_CODE_SET = CODE_128_CODE_SET_AUTO;
inline constexpr Double DEFAULT_BAR_RATIO = 3.0;
inline constexpr Double DEFAULT_BAR_WIDTH = 10.0;
inline constexpr BarWidthOption DEFAULT_BAR_WIDTH_OPTION = BAR_WIDTH_AUTO;
inline constexpr Double DEFAULT_BAR_REDUCTION = 0.0;

// The serial shipping container code: the entry a new clsUccAISpec describes.
inline constexpr const char16_t* DEFAULT_UCC128_APPLICATION_CODE = u"00";
inline constexpr const char16_t* DEFAULT_UCC128_APPLICATION_DESCRIPTION = u"Serial Shipping Container Code (SSCC-18)";
inline constexpr bool DEFAULT_UCC128_DATA_FORMAT_IS_DATA_NUMERIC = true;
inline constexpr Long DEFAULT_UCC128_DATA_FORMAT_MIN_LENGTH = 18;
inline constexpr Long DEFAULT_UCC128_DATA_FORMAT_MAX_LENGTH = 18;
inline constexpr bool DEFAULT_UCC128_USES_DATA_CHECK_DIGIT = true;
inline constexpr bool DEFAULT_UCC128_HAS_PREDEFINED_LENGTH = true;

}  // namespace quillet::labeldata_internal::modConstants
