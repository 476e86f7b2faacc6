// Tests of enums.h: every enumeration's first and last number, the numbers
// that look wrong but are required, and the shape of `bounds`.
//
// The expected numbers are typed in by hand, not computed from the header, so
// a dropped, doubled or misplaced member shows up as a wrong last number.
#include "quillet/frame/enums.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <set>
#include <string>
#include <type_traits>

#include "quillet/frame/clsEnum.h"
#include "quillet/frame/clsQDSEnums.h"

namespace quillet {
namespace {

struct Row {
    const char* enumeration;
    const char* member;
    Long actual;
    Long expected;
};

// row<E> accepts only a member of E: a member of another enumeration or a bare
// number does not compile, so each row also proves which enumeration holds the
// member, and that the enumeration is held in a Long.
template <class E>
constexpr Row row(const char* enumeration, const char* member, E actual, Long expected) {
    static_assert(std::is_enum_v<E>);
    static_assert(std::is_same_v<std::underlying_type_t<E>, Long>);
    return {enumeration, member, static_cast<Long>(actual), expected};
}

#define ROW(E, M, V) row<E>(#E, #M, M, V)

void expectRows(const Row* first, const Row* last) {
    for (const Row* r = first; r != last; ++r) {
        EXPECT_EQ(r->actual, r->expected) << r->enumeration << "::" << r->member;
    }
}

// First and last member of every enumeration, in the header's order.
constexpr Row kFirstAndLast[] = {
    // Dates and times
    ROW(QltStandardDateFormats, QLT_M_d_yy, 0),
    ROW(QltStandardDateFormats, QLT_STD_DATE_COUNT, 12),
    ROW(QltStandardTimeFormats, QLT_HH_MM_SS_AMPM, 0),
    ROW(QltStandardTimeFormats, QLT_HH_MM, 3),
    ROW(StandardDateFormats, M_D_YY, 0),
    ROW(StandardDateFormats, DDDD_MMMM_DD_YYYY, 11),
    ROW(StandardTimeFormats, HH_MM_SS_AMPM, 0),
    ROW(StandardTimeFormats, HH_MM, 3),
    ROW(QltDateTimeOption, QLT_DTO_NONE, -1),
    ROW(QltDateTimeOption, QLT_DTO_TIME, 2),
    ROW(QltDateFormat, QLT_DF_GENERAL, 0),
    ROW(QltDateFormat, QLT_DF_LONG, 2),
    ROW(QltTimeFormat, QLT_TF_GENERAL, 0),
    ROW(QltTimeFormat, QLT_TF_LONG, 2),
    ROW(DateDataFormat, STANDARD_DATE_FORMAT, 0),
    ROW(DateDataFormat, CUSTOM_DATE_FORMAT, 1),
    ROW(qltDateFormula, QLT_CURRENT_DATE, 0),
    ROW(qltDateFormula, QLT_CURRENT_DATE_MINUS, 2),
    ROW(TimeDataFormat, STANDARD_TIME_FORMAT, 0),
    ROW(TimeDataFormat, CUSTOM_TIME_FORMAT, 1),
    ROW(qltTimeFormula, QLT_CURRENT_TIME, 0),
    ROW(qltTimeFormula, QLT_CURRENT_TIME_MINUS, 2),
    ROW(qltUserDataFormat, TEXT_DATA_FORMAT, 0),
    ROW(qltUserDataFormat, IMAGE_DATA_FORMAT, 1),

    // Data sources and queries
    ROW(QDSDBType, QDS_DBT_ADMIN_DB, -1),
    ROW(QDSDBType, QDS_DBT_COUNT, 12),
    ROW(QDSTableTypeCategory, QDS_TTC_ALL, -1),
    ROW(QDSTableTypeCategory, QDS_TTC_COUNT, 4),
    ROW(QDSTableType, QDS_TT_TABLE, 0),
    ROW(QDSTableType, QDS_TT_UNKNOWN, 4),
    ROW(QDSDBLiteral, QDS_DBL_INVALID, 0),
    ROW(QDSDBLiteral, QDS_DBL_QUOTE_SUFFIX, 28),
    ROW(QDSExcelFileType, QDS_EFT_VER_3, 0),
    ROW(QDSExcelFileType, QDS_EFT_COUNT, 7),
    ROW(QDSFoxproFileType, QDS_FFT_DATABASE, 0),
    ROW(QDSFoxproFileType, QDS_FFT_COUNT, 2),
    ROW(QDSDsnType, QDS_DSN_ALL, 0),
    ROW(QDSDsnType, QDS_DSN_SYSTEM, 2),
    ROW(QDSDbaseFileType, QDS_DFT_VER_III, 0),
    ROW(QDSDbaseFileType, QDS_DFT_COUNT, 3),
    ROW(QDSCharacterSetType, QDS_TCT_ANSI, 0),
    ROW(QDSCharacterSetType, QDS_TCT_COUNT, 4),
    ROW(QDSTextFormatType, QDS_TDT_CSV_DELIMITED, 0),
    ROW(QDSTextFormatType, QDS_TDT_COUNT, 4),
    ROW(QDSFixedLengthFormatType, QDS_TFLFT_ROWS_TERMINATED_BY_CARRIAGE_RETURN, 0),
    ROW(QDSFixedLengthFormatType, QDS_TFLFT_COUNT, 2),
    ROW(QDSCurrencyPositiveFormatType, QDS_TCPFT_PREFIX_WITH_NO_SEPERATION, 0),
    ROW(QDSCurrencyPositiveFormatType, QDS_TCPFT_COUNT, 4),
    ROW(QDSCurrencyNegativeFormatType, QDS_TCNFT_PREFIXED_SYMBOL_WITH_BRACKETS, 0),
    ROW(QDSCurrencyNegativeFormatType, QDS_TCNFT_COUNT, 16),
    ROW(QDSCommandType, QDS_CT_TABLE, 0),
    ROW(QDSCommandType, QDS_CT_FILE, 4),
    ROW(QDSColumnCategory, QDS_CC_ASCII, 0),
    ROW(QDSColumnCategory, QDS_CC_ALL, 7),
    ROW(QDSJoinType, QDS_JT_INNER, 0),
    ROW(QDSJoinType, QDS_JT_CROSS_JOIN, 4),
    ROW(QDSSortOption, QDS_SO_DO_NOT_SORT, 0),
    ROW(QDSSortOption, QDS_SO_SORT_USING_SQL_EXPRESSION, 2),
    ROW(QDSSchemaObjectsAccessibility, QDS_SOA_NONE, 0),
    ROW(QDSSchemaObjectsAccessibility, QDS_SOA_SOME, 2),
    ROW(QDSKeyType, QDS_KT_NONE, 0),
    ROW(QDSKeyType, QDS_KT_UNIQUE, 3),
    ROW(QDSSortOrder, QDS_SO_NONE, 0),
    ROW(QDSSortOrder, QDS_SO_DESCENDING, 2),
    ROW(QDSSortLogicalOperation, QDS_SLO_NONE, 0),
    ROW(QDSSortLogicalOperation, QDS_SLO_AND, 2),
    ROW(QDSSelectTableChoice, QDS_STC_TABLE_LIST, 0),
    ROW(QDSSelectTableChoice, QDS_STC_SQL_STRING, 2),
    ROW(QDSSelectColumnChoice, QDS_SCC_ALL_COLUMNS, 0),
    ROW(QDSSelectColumnChoice, QDS_SCC_RECORD_COUNT, 4),
    ROW(QDSSelectSortChoice, QDS_SSC_NONE, 0),
    ROW(QDSSelectSortChoice, QDS_SSC_STORED_SORT, 2),
    ROW(QDSDatabaseImageFormat, QDS_DIF_DATABASE_OPTIONS, -1),
    ROW(QDSDatabaseImageFormat, QDS_DIF_1_BIT_TIFF, 6),
    ROW(QDSDataTypeCategory, QDS_DTC_ASCII, 0),
    ROW(QDSDataTypeCategory, QDS_DTC_ALL, 8),
    ROW(QDSColumnOrderStyle, QDS_COS_NONE, 0),
    ROW(QDSColumnOrderStyle, QDS_COS_BY_TAB_INDEX, 4),
    ROW(qltSortLogicalOperation, SORT_LOGICAL_NONE, 0),
    ROW(qltSortLogicalOperation, SORT_LOGICAL_AND, 2),
    ROW(CompareMethod, COMPARE_NONE, -1),
    ROW(CompareMethod, COMPARE_COUNTS, 28),
    ROW(QltHostDataSource, QLT_HDS_QDS, 0),
    ROW(QltHostDataSource, QLT_HDS_LDAP, 1),
    ROW(QltLDAPAuthenticationMethod, QLT_LAM_WINDOWS_SECURITY, 0),
    ROW(QltLDAPAuthenticationMethod, QLT_LAM_USERNAME_PASSWORD, 1),
    ROW(QltCompanyDatabaseType, QLT_COMPANY_DATABASE_TYPE_QRK_FILE, 0),
    ROW(QltCompanyDatabaseType, QLT_COMPANY_DATABASE_OLE_DB_PROVIDER, 6),
    ROW(QltImportFindResult, QLT_IMPORT_FIND_RESULT_ERROR, 0),
    ROW(QltImportFindResult, QLT_IMPORT_FIND_RESULT_MULTIPLE_MATCHES_CRITERIA_FULL, 5),
    ROW(qltRecordView, QLT_SINGLE_RECORD_VIEW, 0),
    ROW(qltRecordView, QLT_SPREADSHEET_VIEW, 1),
    ROW(qltRecordAction, QLT_ADD_RECORD, 0),
    ROW(qltRecordAction, QLT_DUPLICATE_RECORD, 4),
    ROW(QltMatchCriteria, QLT_MC_ANY_PART_OF_FIELD, 0),
    ROW(QltMatchCriteria, QLT_MC_COUNT, 4),
    ROW(QltSearchDirection, QLT_SD_FORWARD, 0),
    ROW(QltSearchDirection, QLT_SD_COUNT, 2),
    ROW(qltDataEntryType, DATA_ENTRY_TYPE_NO_FORMAT, -1),
    ROW(qltDataEntryType, DATA_ENTRY_TYPE_BARCODE, 7),
    ROW(QltDBColumnFontStyle, DB_COLUMN_FONT_STYLE_NORMAL, 0),
    ROW(QltDBColumnFontStyle, DB_COLUMN_FONT_STYLE_ITALIC, 2),
    ROW(QltFlexGridColumnType, QLT_FGCT_NONE, 0),
    ROW(QltFlexGridColumnType, QLT_FGCT_REMOVE, 6),
    ROW(QltBooleanStyle, BOOLEAN_STYLE_TRUE_FALSE, 0),
    ROW(QltBooleanStyle, BOOLEAN_STYLE_YES_NO, 1),

    // Numbers and text handling
    ROW(CountingDirection, COUNT_UP, 0),
    ROW(CountingDirection, COUNT_DOWN, 1),
    ROW(QltNumberSystem, QLT_NS_DECIMAL, 0),
    ROW(QltNumberSystem, QLT_NS_CUSTOM, 9),
    ROW(PaddingOption, ZEROES, 0),
    ROW(PaddingOption, compact, 2),
    ROW(PaddingPosition, PAD_FRONT, 0),
    ROW(PaddingPosition, PAD_END, 1),
    ROW(QltTokenDataType, QLT_TOKEN_STRING, 0),
    ROW(QltTokenDataType, QLT_TOKEN_BOOLEAN, 2),
    ROW(qltSerializeOn, QLT_SERIALIZE_ON_RECORDS, 0),
    ROW(qltSerializeOn, QLT_SERIALIZE_ON_RECORD_COPIES, 2),

    // Geometry, measure and design surface
    ROW(QltAngleStep, QLT_ANGLE_STEP_90, 0),
    ROW(QltAngleStep, QLT_ANGLE_STEP_1, 1),
    ROW(QltQuadrant, QLT_QUADRANT_0, 0),
    ROW(QltQuadrant, QLT_QUADRANT_270, 3),
    ROW(QltMeasuringUnit, QLT_MILS, 0),
    ROW(QltMeasuringUnit, QLT_HIMETRICS, 11),
    ROW(ScaleMethod, None_, 0),
    ROW(ScaleMethod, ENLARGE, 2),
    ROW(GridStyle, DOTTED_GRID, 1),
    ROW(GridStyle, LINE_GRID, 2),
    ROW(MouseEvent, mouse_down, 0),
    ROW(MouseEvent, mouse_up, 2),
    ROW(HorizontalAlignment, HORIZONTAL_ALIGN_NONE, 0),
    ROW(HorizontalAlignment, ALIGN_RIGHT, 3),
    ROW(VerticalAlignment, VERTICAL_ALIGN_NONE, 0),
    ROW(VerticalAlignment, ALIGN_BOTTOM, 3),
    ROW(ArcDirection, ARC_COUNTER_CLOCKWISE, 0),
    ROW(ArcDirection, ARC_CLOCKWISE, 1),
    ROW(DragState, STATE_NOTHING, 0),
    ROW(DragState, STATE_SIZING, 2),
    ROW(SpacingDirection, HORIZONTAL_SPACING, 0),
    ROW(SpacingDirection, VERTICAL_SPACING, 1),
    ROW(MovementActivity, MOVE_INITIATE, 0),
    ROW(MovementActivity, MOVE_TERMINATE, 2),
    ROW(AlignReference, ALIGN_WITH_DOCUMENT, 0),
    ROW(AlignReference, ALIGN_WITH_OBJECT, 1),
    ROW(SizingReference, MAKE_SAME_WIDTH, 0),
    ROW(SizingReference, MAKE_SAME_BOTH, 2),
    ROW(StretchTypes, STRETCH_WIDTH, 0),
    ROW(StretchTypes, STRETCH_BOTH, 2),
    ROW(QltClipTarget, QLT_CLIP_HDC, 0),
    ROW(QltClipTarget, QLT_CLIP_WINDOW, 1),
    ROW(LabelShape, LS_RECT, 0),
    ROW(LabelShape, LS_ELLIPSE, 2),
    ROW(QltFlip, QLT_FILP_NONE, 0),
    ROW(QltFlip, QLT_FLIP_BOTH, 3),
    ROW(QltDesignSide, QLT_DESIGN_FRONT_SIDE, 0),
    ROW(QltDesignSide, QLT_DESIGN_BACK_SIDE, 1),
    ROW(QltDataSource, QLT_DS_DESIGN, 0),
    ROW(QltDataSource, QLT_DS_TIME, 5),
    ROW(QltFieldCategory, QLT_FIELD_CATEGORY_TEXT, 0),
    ROW(QltFieldCategory, QLT_FIELD_CATEGORY_PICTURE, 1),
    ROW(QltFieldOption, QLT_FIELD_OPTION_SINGLE, 0),
    ROW(QltFieldOption, QLT_FIELD_OPTION_MERGE, 1),
    ROW(qltDrawMode, QLT_SHOW_IDENTIFIER, 0),
    ROW(qltDrawMode, QLT_SHOW_VALUE, 1),
    ROW(LineCapStyle, LINE_CAP_ROUND, 0),
    ROW(LineCapStyle, LINE_CAP_FLAT, 512),
    ROW(CombineMode, COMBINE_AND, 1),
    ROW(CombineMode, COMBINE_COPY, 5),

    // Fills, images and text objects
    ROW(GradientType, GRADIENT_HORIZONTAL, 0),
    ROW(GradientType, GRADIENT_BOTTOM_RIGHT, 10),
    ROW(QltFillStyle, QLT_FILL_PATTERN, 0),
    ROW(QltFillStyle, QLT_GRADIENT_PATTERN, 1),
    ROW(QltFreeImageColorDepth, FICD_AUTO, 0),
    ROW(QltFreeImageColorDepth, FICD_32BPP, 32),
    ROW(ImageFormats, QLT_IMAGE_ALL, 0),
    ROW(ImageFormats, QLT_IMAGE_MSACCESS, 1),
    ROW(QltImagePositions, QLT_IP_STRETCH, 0),
    ROW(QltImagePositions, QLT_IP_BOTTOM_RIGHT, 10),
    ROW(QltMaskColorOption, QLT_MCO_AUTO_DETECT, 0),
    ROW(QltMaskColorOption, QLT_MCO_FIXED_COLOR, 1),
    ROW(qltActionAfterImageCapture, AAIC_NO_ACTION, 0),
    ROW(qltActionAfterImageCapture, AAIC_DISPLAY_IMAGE_EDITOR, 1),
    ROW(QltTextStyle, QLT_TS_STRAIGHT, 0),
    ROW(QltTextStyle, QLT_TS_TEXT_BOX, 2),
    ROW(QltTextHAlignment, QLT_ALIGN_LEFT, 0),
    ROW(QltTextHAlignment, QLT_ALIGN_RIGHT, 2),
    ROW(QltTextVAlignment, QLT_ALIGN_TOP, 0),
    ROW(QltTextVAlignment, QLT_ALIGN_BOTTOM, 2),
    ROW(QltAllowFileType, QLT_ALLOW_QLT_AND_QTP_FILES, 0),
    ROW(QltAllowFileType, QLT_ALLOW_IMAGE_FILES, 2),

    // Barcodes
    ROW(BarcodeSymbology, BARCODE_UPC_A, 0),
    ROW(BarcodeSymbology, BARCODE_SYMBOLOGIES_COUNT, 21),
    ROW(BarWidthOption, BAR_WIDTH_AUTO, 0),
    ROW(BarWidthOption, BAR_WIDTH_FIXED, 1),
    ROW(BarcodeTextStyle, TEXT_STYLE_STANDARD, 0),
    ROW(BarcodeTextStyle, TEXT_STYLE_EXTENDED, 1),
    ROW(BarcodeTextPlacement, TEXT_PLACEMENT_TOP, 0),
    ROW(BarcodeTextPlacement, TEXT_PLACEMENT_BOTTOM, 1),
    ROW(BarcodeTextAlignment, TEXT_ALIGNMENT_LEFT, 0),
    ROW(BarcodeTextAlignment, TEXT_ALIGNMENT_JUSTIFIED, 3),
    ROW(qltCode128CodeSet, CODE_128_CODE_SET_AUTO, 0),
    ROW(qltCode128CodeSet, CODE_128_CODE_SET_C, 3),
    ROW(AustraliaPostFormat, STANDARD_CUSTOMER_BARCODE, 0),
    ROW(AustraliaPostFormat, REPLY_PAID_BARCODE, 3),
    ROW(EnglishPostBarType, BAR_FULL_HEIGHT, 0),
    ROW(EnglishPostBarType, BAR_TRACKER, 3),
    ROW(Ean13EncodingEntry, EAN_13_CODE_SET_A, 0),
    ROW(Ean13EncodingEntry, EAN_13_CODE_CHECK_DIGIT, 3),
    ROW(Supp2EncodingEntry, SUPPLEMENT_2_CODE_SET_A, 0),
    ROW(Supp2EncodingEntry, SUPPLEMENT_2_CODE_CHECK_DIGIT, 2),
    ROW(Supp5EncodingEntry, SUPPLEMENT_5_CODE_SET_A, 0),
    ROW(Supp5EncodingEntry, SUPPLEMENT_5_CODE_CHECK_DIGIT, 2),
    ROW(QltEan13Extension, QLT_EAN13_EXT_NONE, 0),
    ROW(QltEan13Extension, QLT_EAN13_EXT_OTHER, 3),
    ROW(Barcode2dDataMatrixModes, DATA_MATRIX_ASCII_MODE, 0),
    ROW(Barcode2dDataMatrixModes, DATA_MATRIX_B256_MODE, 5),
    ROW(Barcode2dTypes, BARCODE_2D_PDF417, 0),
    ROW(Barcode2dTypes, BARCODE_2D_QR_CODE, 2),
    ROW(Barcode2dRenderType, BARCODE_2D_STACKED, 0),
    ROW(Barcode2dRenderType, BARCODE_2D_MATRIX, 1),
    ROW(Barcode2dDimensionsSpecificationOption, BARCODE_2D_FIXED_MODULE_WIDTH, 0),
    ROW(Barcode2dDimensionsSpecificationOption, BARCODE_2D_AUTO_MODULE_WIDTH, 1),
    ROW(Barcode2dNumOfDataCodewordColsOption, BARCODE_2D_NUM_OF_DATA_CODEWORD_COLS_AUTO, 0),
    ROW(Barcode2dNumOfDataCodewordColsOption, BARCODE_2D_NUM_OF_DATA_CODEWORD_COLS_FIXED, 1),
    ROW(Barcode2dNumOfDataCodewordRowsOption, BARCODE_2D_NUM_OF_DATA_CODEWORD_ROWS_AUTO, 0),
    ROW(Barcode2dNumOfDataCodewordRowsOption, BARCODE_2D_NUM_OF_DATA_CODEWORD_ROWS_FIXED, 1),
    ROW(Barcode2dPrefixOption, BARCODE_2D_DM_ECC200_PREFIX_NONE, 0),
    ROW(Barcode2dPrefixOption, BARCODE_2D_DM_ECC200_PREFIX_READER_PROGRAMMING, 4),
    ROW(Barcode2dDataCompactionFormats, BARCODE_2D_COMPACTION_PDF417_TEXT, 0),
    ROW(Barcode2dDataCompactionFormats, BARCODE_2D_COMPACTION_PDF417_NUMERIC, 2),
    ROW(Barcode2dEccLevelOptions, BARCODE_2D_ECC_LEVEL_OPTION_AUTO, 0),
    ROW(Barcode2dEccLevelOptions, BARCODE_2D_ECC_LEVEL_OPTION_FIXED, 1),
    ROW(Barcode2dEccLevels, BARCODE_2D_ECC_LEVEL_0, 0),
    ROW(Barcode2dEccLevels, BARCODE_2D_ECC_LEVEL_8, 8),

    // Printing and encoding of cards
    ROW(QltPrintOptionsTab, QLT_PRINT_OPTION_TAB_ALL, 0),
    ROW(QltPrintOptionsTab, QLT_PRINT_OPTION_TAB_PRINT_SETUP, 2),
    ROW(PrintDirection, HORIZONTAL_MAJOR, 0),
    ROW(PrintDirection, VERTICAL_MAJOR, 1),
    ROW(QltPageOrientation, QLT_PORTRAIT, 1),
    ROW(QltPageOrientation, QLT_LANDSCAPE, 2),
    ROW(QltPrintMode, QPM_AUTO, 0),
    ROW(QltPrintMode, QPM_INVERTED, 3),
    ROW(QltPageType, QLT_SHEET, 0),
    ROW(QltPageType, QLT_CONTINUOUS, 1),
    ROW(PrintTask, PREVIEW_PAGE, 0),
    ROW(PrintTask, PRINT_PAGES, 1),
    ROW(CropMarks, NO_MARKS, 0),
    ROW(CropMarks, EDGE_MARKS, 3),
    ROW(qltCropMarks, QLT_CROP_MARKS_NONE, 0),
    ROW(qltCropMarks, QLT_CROP_MARKS_EDGE, 3),
    ROW(QltPrintSide, QLT_PRINT_FRONT_SIDE, 0),
    ROW(QltPrintSide, QLT_PRINT_BOTH_SIDE, 2),
    ROW(qltPrintCriteria, QLT_PRINT_OBJECT, 0),
    ROW(qltPrintCriteria, QLT_PRINT_OBJECT_CONDITIONALLY, 2),
    ROW(qltPrintPanel, QLT_PRINT_ALL_PANELS, 0),
    ROW(qltPrintPanel, QLT_PRINT_UV_PANEL, 3),
    ROW(qltMagStripeEncodingStandard, QLT_ISO_ENCODING, 0),
    ROW(qltMagStripeEncodingStandard, QLT_CUSTOM_ENCODING, 1),
    ROW(qltMagStripeCoercivity, QLT_LOW_COERCIVITY, 0),
    ROW(qltMagStripeCoercivity, QLT_HIGH_COERCIVITY, 1),
    ROW(QLTReportGridLines, RGL_NONE, 0),
    ROW(QLTReportGridLines, RGL_BOTH, 3),

    // Thermal printers
    ROW(qltThermalPrintMode, QLT_THERMAL_PRINT_MODE_DIRECT_THERMAL, 0),
    ROW(qltThermalPrintMode, QLT_THERMAL_PRINT_MODE_THERMAL_TRANSFER, 1),
    ROW(qltEPL2PageMode, QLT_EPL2_PAGE_MODE_GAP_SENSING, 0),
    ROW(qltEPL2PageMode, QLT_EPL2_PAGE_MODE_CONTINUOUS, 3),
    ROW(qltZPL2PageMode, QLT_ZPL2_PAGE_MODE_WEB_SENSING, 0),
    ROW(qltZPL2PageMode, QLT_ZPL2_PAGE_MODE_CONTINUOUS, 2),
    ROW(qltThermalPrintSpeed, QLT_PRINT_SPEED_SLOW, 0),
    ROW(qltThermalPrintSpeed, QLT_PRINT_SPEED_FAST, 2),
    ROW(qltThermalPrintDarkness, QLT_PRINT_DARKNESS_LIGHT, 0),
    ROW(qltThermalPrintDarkness, QLT_PRINT_DARKNESS_DARK, 2),
    ROW(qltThermalPrintOrientation, QLT_PRINT_ORIENTATION_TOP_FIRST, 0),
    ROW(qltThermalPrintOrientation, QLT_PRINT_ORIENTATION_BOTTOM_FIRST, 1),
    ROW(qltThermalCutterMode, QLT_THERMAL_CUTTER_DISABLED, 0),
    ROW(qltThermalCutterMode, QLT_THERMAL_CUTTER_AFTER_SPECIFIED_INTERVAL, 3),
    ROW(qltZPL2FeedMode, QLT_ZPL2_FEED_MODE_TEAR_OFF, 0),
    ROW(qltZPL2FeedMode, QLT_ZPL2_FEED_MODE_CUT, 3),
    ROW(qltZPL2PauseMode, QLT_ZPL2_NO_PAUSE, 0),
    ROW(qltZPL2PauseMode, QLT_ZPL2_PAUSE_AFTER_SPECIFIED_INTERVAL, 3),
    ROW(qltZPL2BackfeedMode, QLT_ZPL2_BACKFEED_NORMAL, 0),
    ROW(qltZPL2BackfeedMode, QLT_ZPL2_BACKFEED_PERCENTAGE, 4),

    // Devices and host dialogs
    ROW(qltSignaturePadButtonOptions, SIGNATURE_PAD_BT_OK, 0),
    ROW(qltSignaturePadButtonOptions, SIGNATURE_PAD_BT_NONE, 4),
    ROW(qltSignaturePadImageSizes, SIGNATURE_PAD_IMAGE_SIZE_SMALL, 0),
    ROW(qltSignaturePadImageSizes, SIGNATURE_PAD_IMAGE_SIZE_LARGE, 2),
    ROW(qltSignaturePadImageQualities, SIGNATURE_PAD_IMAGE_QUALITY_LOW, 0),
    ROW(qltSignaturePadImageQualities, SIGNATURE_PAD_IMAGE_QUALITY_HIGH, 2),
    ROW(QltScannerDocumentType, SCANNER_DOCUMENT_DRIVERS_LICENSE, 0),
    ROW(QltScannerDocumentType, SCANNER_DOCUMENT_BUSINESS_CARD, 2),
    ROW(QltReplaceFileAnswer, QLT_YES, 0),
    ROW(QltReplaceFileAnswer, QLT_UNKNOWN_ERROR, 6),
    ROW(QltClVerbosity, QLT_CL_VERBOSITY_SILENT, 0),
    ROW(QltClVerbosity, QLT_CL_VERBOSITY_VERBOSE, 2),
    ROW(QMessageActionCode, QMAC_NONE, 0),
    ROW(QMessageActionCode, QMAC_OPEN_LOCAL_CONFIGURATION, 2),

    // Logs and check-in
    ROW(LogEventAction, LEA_ADD, 0),
    ROW(LogEventAction, LEA_COUNT, 24),
    ROW(QltLogEventResult, LER_NONE, 0),
    ROW(QltLogEventResult, LER_FAILED, 2),
    ROW(QltLogDefinitionListDisplayMode, LDLDM_CUSTOMIZE, 0),
    ROW(QltLogDefinitionListDisplayMode, LDLDM_LOG_DISPLAY, 1),
    ROW(QltLogType, LT_PERSON, 0),
    ROW(QltLogType, LT_EQUIPMENT, 1),
    ROW(QrkCombineOperation, QRK_CO_AND, 0),
    ROW(QrkCombineOperation, QRK_CO_OR, 1),
    ROW(QrkCardType, QRK_CT_INTERNAL, 0),
    ROW(QrkCardType, QRK_CT_COUNT, 2),
    ROW(QrkStatus, QRK_STATUS_CHECKED_OUT, 0),
    ROW(QrkStatus, QRK_STATUS_CHECKED_IN, 1),
    ROW(AdmLogChoiceDate, ADM_LCD_CUSTOM, 0),
    ROW(AdmLogChoiceDate, ADM_LCD_PREVIOUS_YEAR, 9),
    ROW(AdmLogChoiceAction, ADM_LCA_ALL_ACTIONS, 0),
    ROW(AdmLogChoiceAction, ADM_LCA_ACTION_LIST, 1),
    ROW(AdmLogChoiceResult, ADM_LCR_ALL_RESULTS, 0),
    ROW(AdmLogChoiceResult, ADM_LCR_FAIL, 2),
    ROW(AdmLogChoiceSession, ADM_LCS_ALL_SESSIONS, 0),
    ROW(AdmLogChoiceSession, ADM_LCS_SELECTED_SESSIONS, 1),
    ROW(AdmLogChoiceFlag, ADM_LCF_ALL_FLAGS, 0),
    ROW(AdmLogChoiceFlag, ADM_LCF_RESTOCK_NEEDED, 5),
    ROW(AdmLogChoiceCardSource, ADM_LCCS_CURRENT_CARDHOLDER_GROUP, 0),
    ROW(AdmLogChoiceCardSource, ADM_LCCS_SELECTED_CARDHOLDER_GROUPS, 2),
    ROW(AdmLogChoiceColumn, ADM_LCC_ALL_COLUMNS, 0),
    ROW(AdmLogChoiceColumn, ADM_LCC_SELECTED_COLUMNS, 1),
    ROW(AdmLogChoiceLocation, ADM_LCL_CURRENT_LOCATION, 0),
    ROW(AdmLogChoiceLocation, ADM_LCL_SELECTED_LOCATIONS, 2),
    ROW(AdmLogChoiceUser, ADM_LCU_CURRENT_USER, 0),
    ROW(AdmLogChoiceUser, ADM_LCU_SELECTED_USERS, 2),

    // Image file formats
    ROW(FREE_IMAGE_FORMAT, FIF_UNKNOWN, -1),
    ROW(FREE_IMAGE_FORMAT, FIF_RAW, 34),
};

// Numbers that look like slips but are required, and members in the middle of
// a list whose number other code depends on.
constexpr Row kSurprises[] = {
    ROW(QDSDBType, QDS_DBT_SAMPLE_DB, 0),
    ROW(QDSDBType, QDS_DBT_QUILLET_CLOUD, 11),
    ROW(QDSTableTypeCategory, QDS_TTC_TABLE, 0),
    ROW(CompareMethod, COMPARE_LESS_THAN, 0),
    ROW(CompareMethod, COMPARE_IS_NOT, 27),
    ROW(LineCapStyle, LINE_CAP_SQUARE, 256),
    ROW(LineCapStyle, LINE_CAP_FLAT, 512),
    ROW(QltPageOrientation, QLT_PORTRAIT, 1),
    ROW(QltPageOrientation, QLT_LANDSCAPE, 2),
    ROW(GridStyle, DOTTED_GRID, 1),
    ROW(CombineMode, COMBINE_AND, 1),
    ROW(ScaleMethod, None_, 0),
    ROW(ScaleMethod, SHRINK, 1),
    ROW(PaddingOption, SPACES, 1),
    // The two generations of time formats number their members differently.
    ROW(QltStandardTimeFormats, QLT_HH_MM_SS, 1),
    ROW(QltStandardTimeFormats, QLT_HH_MM_AMPM, 2),
    ROW(StandardTimeFormats, HH_MM_AMPM, 1),
    ROW(StandardTimeFormats, HH_MM_SS, 2),
    // The other generation pairs agree.
    ROW(StandardDateFormats, DD_MMM_YY, 8),
    ROW(QltStandardDateFormats, QLT_dd_MMM_yy, 8),
    ROW(qltSortLogicalOperation, SORT_LOGICAL_END, 1),
    ROW(QDSSortLogicalOperation, QDS_SLO_END, 1),
    ROW(CropMarks, CROSS_MARKS, 2),
    ROW(qltCropMarks, QLT_CROP_MARKS_CROSS, 2),
    // Members that share a value.
    ROW(QltFreeImageColorDepth, FICD_MONOCHROME, 1),
    ROW(QltFreeImageColorDepth, FICD_MONOCHROME_THRESHOLD, 1),
    ROW(QltFreeImageColorDepth, FICD_1BPP, 1),
    ROW(QltFreeImageColorDepth, FICD_MONOCHROME_DITHER, 3),
    ROW(QltFreeImageColorDepth, FICD_4BPP, 4),
    ROW(QltFreeImageColorDepth, FICD_8BPP, 8),
    ROW(QltFreeImageColorDepth, FICD_15BPP, 15),
    ROW(QltFreeImageColorDepth, FICD_16BPP, 16),
    ROW(QltFreeImageColorDepth, FICD_24BPP, 24),
    ROW(FREE_IMAGE_FORMAT, FIF_BMP, 0),
    ROW(FREE_IMAGE_FORMAT, FIF_JPEG, 2),
    ROW(FREE_IMAGE_FORMAT, FIF_LBM, 5),
    ROW(FREE_IMAGE_FORMAT, FIF_IFF, 5),
    ROW(FREE_IMAGE_FORMAT, FIF_MNG, 6),
    ROW(FREE_IMAGE_FORMAT, FIF_PNG, 13),
    ROW(FREE_IMAGE_FORMAT, FIF_TIFF, 18),
    ROW(FREE_IMAGE_FORMAT, FIF_GIF, 25),
    ROW(FREE_IMAGE_FORMAT, FIF_PICT, 33),
    // Members used by the unit, serial-number and date code.
    ROW(QltMeasuringUnit, QLT_CENTIMETERS, 2),
    ROW(QltMeasuringUnit, QLT_TWIPS, 10),
    ROW(QltNumberSystem, QLT_NS_HEXADECIMAL, 5),
    ROW(QltNumberSystem, QLT_NS_ALPHANUMERICBASE36, 7),
    ROW(QDSDBLiteral, QDS_DBL_QUOTE_PREFIX, 15),
    ROW(QDSCurrencyNegativeFormatType, QDS_TCNFT_SUFFIXED_SPACE_SYMBOL_WITH_BRACKETS, 15),
    ROW(LogEventAction, LEA_INVENTORY_ADJUST, 23),
    ROW(BarcodeSymbology, BARCODE_ROYAL_MAIL, 20),
};

#undef ROW

// Compile-time facts: the underlying type, that any Long is held, and the
// layout of bounds.
static_assert(std::is_same_v<std::underlying_type_t<QltMeasuringUnit>, Long>);
static_assert(std::is_same_v<std::underlying_type_t<FREE_IMAGE_FORMAT>, Long>);
static_assert(sizeof(QltMeasuringUnit) == sizeof(Long));
static_assert(QltMeasuringUnit(12) == 12);
static_assert(QltMeasuringUnit(-1) == -1);
static_assert(QltMeasuringUnit(std::numeric_limits<Long>::max()) == std::numeric_limits<Long>::max());
static_assert(QltMeasuringUnit(std::numeric_limits<Long>::min()) == std::numeric_limits<Long>::min());
static_assert(FREE_IMAGE_FORMAT(36) == 36);  // a format newer than FIF_RAW
// Members are visible without the enumeration's name and turn into a Long.
static_assert(std::is_convertible_v<QltMeasuringUnit, Long>);
static_assert(!std::is_convertible_v<Long, QltMeasuringUnit>);

static_assert(sizeof(bounds) == 16);
static_assert(std::is_standard_layout_v<bounds>);
static_assert(std::is_aggregate_v<bounds>);
static_assert(offsetof(bounds, X1) == 0);
static_assert(offsetof(bounds, X2) == 4);
static_assert(offsetof(bounds, Y1) == 8);
static_assert(offsetof(bounds, Y2) == 12);
static_assert(std::is_same_v<decltype(bounds::X1), Long>);
static_assert(std::is_same_v<decltype(bounds::Y2), Long>);

static_assert(std::is_empty_v<clsEnum>);
static_assert(std::is_empty_v<clsQDSEnums>);

TEST(Enums, HeaderExamples) {
    Long unit = QLT_CENTIMETERS;
    EXPECT_EQ(unit, 2);
    QltMeasuringUnit odd = QltMeasuringUnit(12);
    EXPECT_EQ(static_cast<Long>(odd), 12);
    EXPECT_EQ(LINE_CAP_FLAT, 512);
    EXPECT_EQ(static_cast<Long>(FIF_IFF), static_cast<Long>(FIF_LBM));
    bounds b{10, 20, 30, 40};
    EXPECT_EQ(b.X2, 20);
    EXPECT_EQ(b.Y1, 30);
}

TEST(Enums, FirstAndLastMemberOfEveryEnumeration) {
    expectRows(std::begin(kFirstAndLast), std::end(kFirstAndLast));

    // Every enumeration of the interface has its rows here; one that is
    // missing from the header would not compile.
    std::set<std::string> enumerations;
    for (const Row& r : kFirstAndLast) enumerations.insert(r.enumeration);
    EXPECT_EQ(enumerations.size(), 165U);
}

TEST(Enums, RequiredSurprises) { expectRows(std::begin(kSurprises), std::end(kSurprises)); }

TEST(Enums, AnyLongIsHeldAndComesBack) {
    // A document may hold a number that no member names; it must survive a
    // round trip through the enumeration unchanged.
    for (Long n : {-2, 12, 1000, std::numeric_limits<Long>::min(), std::numeric_limits<Long>::max()}) {
        QltMeasuringUnit unit = static_cast<QltMeasuringUnit>(n);
        EXPECT_EQ(static_cast<Long>(unit), n);
    }
}

TEST(Enums, BoundsKeepsFieldOrder) {
    bounds b{1, 2, 3, 4};
    EXPECT_EQ(b.X1, 1);
    EXPECT_EQ(b.X2, 2);
    EXPECT_EQ(b.Y1, 3);
    EXPECT_EQ(b.Y2, 4);
    bounds zero;
    EXPECT_EQ(zero, (bounds{0, 0, 0, 0}));
    EXPECT_NE(b, (bounds{1, 3, 2, 4}));
}

}  // namespace
}  // namespace quillet
