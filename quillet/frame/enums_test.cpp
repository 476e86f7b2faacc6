// Tests of enums.h: the numbers of the interface's enumerations, typed in by
// hand rather than computed from the header, so that a dropped, doubled or
// misplaced member shows up as a wrong number; and the shape of `bounds`.
#include "quillet/frame/enums.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <set>
#include <type_traits>
#include <typeindex>

#include "quillet/frame/clsEnum.h"
#include "quillet/frame/clsQDSEnums.h"

namespace quillet {
namespace {

struct Row {
    const char* member;
    Long actual;
    Long expected;
    std::type_index enumeration;
};

// Every member belongs to an enumeration held in a Long; a bare number does
// not compile.
template <class E>
Row row(const char* member, E actual, Long expected) {
    static_assert(std::is_enum_v<E>);
    static_assert(std::is_same_v<std::underlying_type_t<E>, Long>);
    return {member, static_cast<Long>(actual), expected, typeid(E)};
}

#define ROW(M, V) row(#M, M, V)

// Every enumeration's last member, and its first where that is not 0, in the
// header's order; then the numbers that look like slips but are required, and
// members in the middle of a list whose number other code depends on.
const Row kRows[] = {
    // Dates and times
    ROW(QLT_STD_DATE_COUNT, 12), ROW(QLT_HH_MM, 3), ROW(DDDD_MMMM_DD_YYYY, 11), ROW(HH_MM, 3), ROW(QLT_DTO_NONE, -1),
    ROW(QLT_DTO_TIME, 2), ROW(QLT_DF_LONG, 2), ROW(QLT_TF_LONG, 2), ROW(CUSTOM_DATE_FORMAT, 1),
    ROW(QLT_CURRENT_DATE_MINUS, 2), ROW(CUSTOM_TIME_FORMAT, 1), ROW(QLT_CURRENT_TIME_MINUS, 2),
    ROW(IMAGE_DATA_FORMAT, 1),
    // Data sources and queries
    ROW(QDS_DBT_ADMIN_DB, -1), ROW(QDS_DBT_COUNT, 12), ROW(QDS_TTC_ALL, -1), ROW(QDS_TTC_COUNT, 4),
    ROW(QDS_TT_UNKNOWN, 4), ROW(QDS_DBL_QUOTE_SUFFIX, 28), ROW(QDS_EFT_COUNT, 7), ROW(QDS_FFT_COUNT, 2),
    ROW(QDS_DSN_SYSTEM, 2), ROW(QDS_DFT_COUNT, 3), ROW(QDS_TCT_COUNT, 4), ROW(QDS_TDT_COUNT, 4),
    ROW(QDS_TFLFT_COUNT, 2), ROW(QDS_TCPFT_COUNT, 4), ROW(QDS_TCNFT_COUNT, 16), ROW(QDS_CT_FILE, 4), ROW(QDS_CC_ALL, 7),
    ROW(QDS_JT_CROSS_JOIN, 4), ROW(QDS_SO_SORT_USING_SQL_EXPRESSION, 2), ROW(QDS_SOA_SOME, 2), ROW(QDS_KT_UNIQUE, 3),
    ROW(QDS_SO_DESCENDING, 2), ROW(QDS_SLO_AND, 2), ROW(QDS_STC_SQL_STRING, 2), ROW(QDS_SCC_RECORD_COUNT, 4),
    ROW(QDS_SSC_STORED_SORT, 2), ROW(QDS_DIF_DATABASE_OPTIONS, -1), ROW(QDS_DIF_1_BIT_TIFF, 6), ROW(QDS_DTC_ALL, 8),
    ROW(QDS_COS_BY_TAB_INDEX, 4), ROW(SORT_LOGICAL_AND, 2), ROW(COMPARE_NONE, -1), ROW(COMPARE_COUNTS, 28),
    ROW(QLT_HDS_LDAP, 1), ROW(QLT_LAM_USERNAME_PASSWORD, 1), ROW(QLT_COMPANY_DATABASE_OLE_DB_PROVIDER, 6),
    ROW(QLT_IMPORT_FIND_RESULT_MULTIPLE_MATCHES_CRITERIA_FULL, 5), ROW(QLT_SPREADSHEET_VIEW, 1),
    ROW(QLT_DUPLICATE_RECORD, 4), ROW(QLT_MC_COUNT, 4), ROW(QLT_SD_COUNT, 2), ROW(DATA_ENTRY_TYPE_NO_FORMAT, -1),
    ROW(DATA_ENTRY_TYPE_BARCODE, 7), ROW(DB_COLUMN_FONT_STYLE_ITALIC, 2), ROW(QLT_FGCT_REMOVE, 6),
    ROW(BOOLEAN_STYLE_YES_NO, 1),
    // Numbers and text handling
    ROW(COUNT_DOWN, 1), ROW(QLT_NS_CUSTOM, 9), ROW(compact, 2), ROW(PAD_END, 1), ROW(QLT_TOKEN_BOOLEAN, 2),
    ROW(QLT_SERIALIZE_ON_RECORD_COPIES, 2),
    // Geometry, measure and design surface
    ROW(QLT_ANGLE_STEP_1, 1), ROW(QLT_QUADRANT_270, 3), ROW(QLT_HIMETRICS, 11), ROW(ENLARGE, 2), ROW(DOTTED_GRID, 1),
    ROW(LINE_GRID, 2), ROW(mouse_up, 2), ROW(ALIGN_RIGHT, 3), ROW(ALIGN_BOTTOM, 3), ROW(ARC_CLOCKWISE, 1),
    ROW(STATE_SIZING, 2), ROW(VERTICAL_SPACING, 1), ROW(MOVE_TERMINATE, 2), ROW(ALIGN_WITH_OBJECT, 1),
    ROW(MAKE_SAME_BOTH, 2), ROW(STRETCH_BOTH, 2), ROW(QLT_CLIP_WINDOW, 1), ROW(LS_ELLIPSE, 2), ROW(QLT_FLIP_BOTH, 3),
    ROW(QLT_DESIGN_BACK_SIDE, 1), ROW(QLT_DS_TIME, 5), ROW(QLT_FIELD_CATEGORY_PICTURE, 1),
    ROW(QLT_FIELD_OPTION_MERGE, 1), ROW(QLT_SHOW_VALUE, 1), ROW(LINE_CAP_FLAT, 512), ROW(COMBINE_AND, 1),
    ROW(COMBINE_COPY, 5),
    // Fills, images and text objects
    ROW(GRADIENT_BOTTOM_RIGHT, 10), ROW(QLT_GRADIENT_PATTERN, 1), ROW(FICD_32BPP, 32), ROW(QLT_IMAGE_MSACCESS, 1),
    ROW(QLT_IP_BOTTOM_RIGHT, 10), ROW(QLT_MCO_FIXED_COLOR, 1), ROW(AAIC_DISPLAY_IMAGE_EDITOR, 1),
    ROW(QLT_TS_TEXT_BOX, 2), ROW(QLT_ALIGN_RIGHT, 2), ROW(QLT_ALIGN_BOTTOM, 2), ROW(QLT_ALLOW_IMAGE_FILES, 2),
    // Barcodes
    ROW(BARCODE_SYMBOLOGIES_COUNT, 21), ROW(BAR_WIDTH_FIXED, 1), ROW(TEXT_STYLE_EXTENDED, 1),
    ROW(TEXT_PLACEMENT_BOTTOM, 1), ROW(TEXT_ALIGNMENT_JUSTIFIED, 3), ROW(CODE_128_CODE_SET_C, 3),
    ROW(REPLY_PAID_BARCODE, 3), ROW(BAR_TRACKER, 3), ROW(EAN_13_CODE_CHECK_DIGIT, 3),
    ROW(SUPPLEMENT_2_CODE_CHECK_DIGIT, 2), ROW(SUPPLEMENT_5_CODE_CHECK_DIGIT, 2), ROW(QLT_EAN13_EXT_OTHER, 3),
    ROW(DATA_MATRIX_B256_MODE, 5), ROW(BARCODE_2D_QR_CODE, 2), ROW(BARCODE_2D_MATRIX, 1),
    ROW(BARCODE_2D_AUTO_MODULE_WIDTH, 1), ROW(BARCODE_2D_NUM_OF_DATA_CODEWORD_COLS_FIXED, 1),
    ROW(BARCODE_2D_NUM_OF_DATA_CODEWORD_ROWS_FIXED, 1), ROW(BARCODE_2D_DM_ECC200_PREFIX_READER_PROGRAMMING, 4),
    ROW(BARCODE_2D_COMPACTION_PDF417_NUMERIC, 2), ROW(BARCODE_2D_ECC_LEVEL_OPTION_FIXED, 1),
    ROW(BARCODE_2D_ECC_LEVEL_8, 8),
    // Printing and encoding of cards
    ROW(QLT_PRINT_OPTION_TAB_PRINT_SETUP, 2), ROW(VERTICAL_MAJOR, 1), ROW(QLT_PORTRAIT, 1), ROW(QLT_LANDSCAPE, 2),
    ROW(QPM_INVERTED, 3), ROW(QLT_CONTINUOUS, 1), ROW(PRINT_PAGES, 1), ROW(EDGE_MARKS, 3), ROW(QLT_CROP_MARKS_EDGE, 3),
    ROW(QLT_PRINT_BOTH_SIDE, 2), ROW(QLT_PRINT_OBJECT_CONDITIONALLY, 2), ROW(QLT_PRINT_UV_PANEL, 3),
    ROW(QLT_CUSTOM_ENCODING, 1), ROW(QLT_HIGH_COERCIVITY, 1), ROW(RGL_BOTH, 3),
    // Thermal printers
    ROW(QLT_THERMAL_PRINT_MODE_THERMAL_TRANSFER, 1), ROW(QLT_EPL2_PAGE_MODE_CONTINUOUS, 3),
    ROW(QLT_ZPL2_PAGE_MODE_CONTINUOUS, 2), ROW(QLT_PRINT_SPEED_FAST, 2), ROW(QLT_PRINT_DARKNESS_DARK, 2),
    ROW(QLT_PRINT_ORIENTATION_BOTTOM_FIRST, 1), ROW(QLT_THERMAL_CUTTER_AFTER_SPECIFIED_INTERVAL, 3),
    ROW(QLT_ZPL2_FEED_MODE_CUT, 3), ROW(QLT_ZPL2_PAUSE_AFTER_SPECIFIED_INTERVAL, 3),
    ROW(QLT_ZPL2_BACKFEED_PERCENTAGE, 4),
    // Devices and host dialogs
    ROW(SIGNATURE_PAD_BT_NONE, 4), ROW(SIGNATURE_PAD_IMAGE_SIZE_LARGE, 2), ROW(SIGNATURE_PAD_IMAGE_QUALITY_HIGH, 2),
    ROW(SCANNER_DOCUMENT_BUSINESS_CARD, 2), ROW(QLT_UNKNOWN_ERROR, 6), ROW(QLT_CL_VERBOSITY_VERBOSE, 2),
    ROW(QMAC_OPEN_LOCAL_CONFIGURATION, 2),
    // Logs and check-in
    ROW(LEA_COUNT, 24), ROW(LER_FAILED, 2), ROW(LDLDM_LOG_DISPLAY, 1), ROW(LT_EQUIPMENT, 1), ROW(QRK_CO_OR, 1),
    ROW(QRK_CT_COUNT, 2), ROW(QRK_STATUS_CHECKED_IN, 1), ROW(ADM_LCD_PREVIOUS_YEAR, 9), ROW(ADM_LCA_ACTION_LIST, 1),
    ROW(ADM_LCR_FAIL, 2), ROW(ADM_LCS_SELECTED_SESSIONS, 1), ROW(ADM_LCF_RESTOCK_NEEDED, 5),
    ROW(ADM_LCCS_SELECTED_CARDHOLDER_GROUPS, 2), ROW(ADM_LCC_SELECTED_COLUMNS, 1), ROW(ADM_LCL_SELECTED_LOCATIONS, 2),
    ROW(ADM_LCU_SELECTED_USERS, 2),
    // Image file formats
    ROW(FIF_UNKNOWN, -1), ROW(FIF_RAW, 34),
    // Numbers that look like slips but are required, and members in the middle of
    // a list whose number other code depends on.
    ROW(QDS_DBT_SAMPLE_DB, 0), ROW(QDS_DBT_QUILLET_CLOUD, 11), ROW(QDS_TTC_TABLE, 0), ROW(COMPARE_LESS_THAN, 0),
    ROW(COMPARE_IS_NOT, 27), ROW(LINE_CAP_SQUARE, 256), ROW(SHRINK, 1), ROW(SPACES, 1),
    // The two generations of time formats number their members differently.
    ROW(QLT_HH_MM_SS, 1), ROW(QLT_HH_MM_AMPM, 2), ROW(HH_MM_AMPM, 1), ROW(HH_MM_SS, 2),
    // The other generation pairs agree.
    ROW(DD_MMM_YY, 8), ROW(QLT_dd_MMM_yy, 8), ROW(SORT_LOGICAL_END, 1), ROW(QDS_SLO_END, 1), ROW(CROSS_MARKS, 2),
    ROW(QLT_CROP_MARKS_CROSS, 2),
    // Members that share a value.
    ROW(FICD_MONOCHROME, 1), ROW(FICD_MONOCHROME_THRESHOLD, 1), ROW(FICD_1BPP, 1), ROW(FICD_MONOCHROME_DITHER, 3),
    ROW(FIF_LBM, 5), ROW(FIF_IFF, 5),
    // Members used by the unit, serial-number and date code.
    ROW(QLT_CENTIMETERS, 2), ROW(QLT_TWIPS, 10), ROW(QLT_NS_HEXADECIMAL, 5), ROW(QLT_NS_ALPHANUMERICBASE36, 7),
    ROW(QDS_DBL_QUOTE_PREFIX, 15), ROW(QDS_TCNFT_SUFFIXED_SPACE_SYMBOL_WITH_BRACKETS, 15),
    ROW(LEA_INVENTORY_ADJUST, 23), ROW(BARCODE_ROYAL_MAIL, 20)};

#undef ROW

// Compile-time facts: that any Long is held, and the layout of bounds.
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

TEST(Enums, EveryNumberOfTheInterface) {
    std::set<std::type_index> enumerations;
    for (const Row& r : kRows) {
        EXPECT_EQ(r.actual, r.expected) << r.member;
        enumerations.insert(r.enumeration);
    }
    // Every enumeration of the interface has its rows here; one that is
    // missing from the header would not compile.
    EXPECT_EQ(enumerations.size(), 165U);
}

}  // namespace
}  // namespace quillet
