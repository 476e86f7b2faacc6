// quillet/frame/enums.h - the numbered constants that every application of
// the family shares, and the record `bounds`.
//
// The numbers are stored in saved documents, settings and databases, so none
// of them may ever change. Each enumeration is unscoped and held in a `Long`:
// members are used without the enumeration's name, and any `Long` fits, not
// only the listed members.
//
//   using namespace quillet;
//   Long unit = QLT_CENTIMETERS;                 // 2
//   QltMeasuringUnit odd = QltMeasuringUnit(12); // holds 12, no member has it
//   LINE_CAP_FLAT;                               // 512
//   FIF_IFF == FIF_LBM;                          // true, both 5
//   bounds b{10, 20, 30, 40};                    // b.X2 == 20, b.Y1 == 30
//
// A trailing `..._COUNT` member is one past the last real member, not a value
// to store. Misspelt members (QLT_FILP_NONE, ..._SEPERATION) and
// members that share a value (FICD_MONOCHROME, FICD_MONOCHROME_THRESHOLD and
// FICD_1BPP are all 1) are part of the interface and stay as they are.
//
// Spelling changes. Member names are those of the original interface, except
// where a name would break a build that includes common system headers:
//   ScaleMethod::None  -> None_   (X11's <X11/X.h> defines the macro None)
// `compact` (PaddingOption) clashes with no keyword or macro and keeps its
// spelling.
#pragma once

#include "quillet/frame/types.h"

namespace quillet {

// ---------------------------------------------------------------------------
// Dates and times
// ---------------------------------------------------------------------------

// Named date patterns; each member spells its pattern in the host date letters.
enum QltStandardDateFormats : Long {
    QLT_M_d_yy = 0,
    QLT_MM_dd_yy = 1,
    QLT_M_d_yyyy = 2,
    QLT_MM_dd_yyyy = 3,
    QLT_d_M_yy = 4,
    QLT_dd_MM_yy = 5,
    QLT_d_M_yyyy = 6,
    QLT_dd_MM_yyyy = 7,
    QLT_dd_MMM_yy = 8,
    QLT_MMMM_dd_yyyy = 9,
    QLT_ddd_MMM_d_yy = 10,
    QLT_dddd_MMMM_dd_yyyy = 11,
    QLT_STD_DATE_COUNT = 12,
};

enum QltStandardTimeFormats : Long {
    QLT_HH_MM_SS_AMPM = 0,
    QLT_HH_MM_SS = 1,
    QLT_HH_MM_AMPM = 2,
    QLT_HH_MM = 3,
};

// Same patterns and numbers as QltStandardDateFormats; both generations stay.
enum StandardDateFormats : Long {
    M_D_YY = 0,
    MM_DD_YY = 1,
    M_D_YYYY = 2,
    MM_DD_YYYY = 3,
    D_M_YY = 4,
    DD_MM_YY = 5,
    D_M_YYYY = 6,
    DD_MM_YYYY = 7,
    DD_MMM_YY = 8,
    MMMM_DD_YYYY = 9,
    DDD_MMM_D_YY = 10,
    DDDD_MMMM_DD_YYYY = 11,
};

// The other generation of QltStandardTimeFormats, numbered differently:
// HH_MM_AMPM is 1 here while QLT_HH_MM_AMPM is 2 there. Both stay.
enum StandardTimeFormats : Long {
    HH_MM_SS_AMPM = 0,
    HH_MM_AMPM = 1,
    HH_MM_SS = 2,
    HH_MM = 3,
};

enum QltDateTimeOption : Long {
    QLT_DTO_NONE = -1,
    QLT_DTO_DATE_TIME = 0,
    QLT_DTO_DATE = 1,
    QLT_DTO_TIME = 2,
};

enum QltDateFormat : Long {
    QLT_DF_GENERAL = 0,
    QLT_DF_SHORT = 1,
    QLT_DF_LONG = 2,
};

enum QltTimeFormat : Long {
    QLT_TF_GENERAL = 0,
    QLT_TF_SHORT = 1,
    QLT_TF_LONG = 2,
};

enum DateDataFormat : Long {
    STANDARD_DATE_FORMAT = 0,
    CUSTOM_DATE_FORMAT = 1,
};

enum qltDateFormula : Long {
    QLT_CURRENT_DATE = 0,
    QLT_CURRENT_DATE_PLUS = 1,
    QLT_CURRENT_DATE_MINUS = 2,
};

enum TimeDataFormat : Long {
    STANDARD_TIME_FORMAT = 0,
    CUSTOM_TIME_FORMAT = 1,
};

enum qltTimeFormula : Long {
    QLT_CURRENT_TIME = 0,
    QLT_CURRENT_TIME_PLUS = 1,
    QLT_CURRENT_TIME_MINUS = 2,
};

enum qltUserDataFormat : Long {
    TEXT_DATA_FORMAT = 0,
    IMAGE_DATA_FORMAT = 1,
};

// ---------------------------------------------------------------------------
// Data sources and queries
// ---------------------------------------------------------------------------

enum QDSDBType : Long {
    QDS_DBT_ADMIN_DB = -1,
    QDS_DBT_SAMPLE_DB = 0,
    QDS_DBT_MDB_FILE = 1,
    QDS_DBT_EXCEL_FILE = 2,
    QDS_DBT_TEXT_FILE = 3,
    QDS_DBT_DBASE_FILE = 4,
    QDS_DBT_FOXPRO_FILE = 5,
    QDS_DBT_PARADOX_FILE = 6,
    QDS_DBT_ODBC_DSN_FILE = 7,
    QDS_DBT_ODBC_DSN_NAME = 8,
    QDS_DBT_OLE_UDL_FILE = 9,
    QDS_DBT_OLE_DB_PROVIDER = 10,
    QDS_DBT_QUILLET_CLOUD = 11,
    QDS_DBT_COUNT = 12,
};

enum QDSTableTypeCategory : Long {
    QDS_TTC_ALL = -1,
    QDS_TTC_TABLE = 0,
    QDS_TTC_VIEW = 1,
    QDS_TTC_QUERY = 2,
    QDS_TTC_JOIN = 3,
    QDS_TTC_COUNT = 4,
};

enum QDSTableType : Long {
    QDS_TT_TABLE = 0,
    QDS_TT_VIEW = 1,
    QDS_TT_QUERY = 2,
    QDS_TT_NON_QUERY = 3,
    QDS_TT_UNKNOWN = 4,
};

enum QDSDBLiteral : Long {
    QDS_DBL_INVALID = 0,
    QDS_DBL_BINARY_LITERAL = 1,
    QDS_DBL_CATALOG_NAME = 2,
    QDS_DBL_CATALOG_SEPARATOR = 3,
    QDS_DBL_CHAR_LITERAL = 4,
    QDS_DBL_COLUMN_ALIAS = 5,
    QDS_DBL_COLUMN_NAME = 6,
    QDS_DBL_CORRELATION_NAME = 7,
    QDS_DBL_CURSOR_NAME = 8,
    QDS_DBL_ESCAPE_PERCENT = 9,
    QDS_DBL_ESCAPE_UNDERSCORE = 10,
    QDS_DBL_INDEX_NAME = 11,
    QDS_DBL_LIKE_PERCENT = 12,
    QDS_DBL_LIKE_UNDERSCORE = 13,
    QDS_DBL_PROCEDURE_NAME = 14,
    QDS_DBL_QUOTE_PREFIX = 15,
    QDS_DBL_SCHEMA_NAME = 16,
    QDS_DBL_TABLE_NAME = 17,
    QDS_DBL_TEXT_COMMAND = 18,
    QDS_DBL_USER_NAME = 19,
    QDS_DBL_VIEW_NAME = 20,
    QDS_DBL_CUBE_NAME = 21,
    QDS_DBL_DIMENSION_NAME = 22,
    QDS_DBL_HIERARCHY_NAME = 23,
    QDS_DBL_LEVEL_NAME = 24,
    QDS_DBL_MEMBER_NAME = 25,
    QDS_DBL_PROPERTY_NAME = 26,
    QDS_DBL_SCHEMA_SEPARATOR = 27,
    QDS_DBL_QUOTE_SUFFIX = 28,
};

enum QDSExcelFileType : Long {
    QDS_EFT_VER_3 = 0,
    QDS_EFT_VER_4 = 1,
    QDS_EFT_VER_5 = 2,
    QDS_EFT_VER_7 = 3,
    QDS_EFT_VER_97 = 4,
    QDS_EFT_VER_2000 = 5,
    QDS_EFT_VER_2007 = 6,
    QDS_EFT_COUNT = 7,
};

enum QDSFoxproFileType : Long {
    QDS_FFT_DATABASE = 0,
    QDS_FFT_FREE_TABLES = 1,
    QDS_FFT_COUNT = 2,
};

enum QDSDsnType : Long {
    QDS_DSN_ALL = 0,
    QDS_DSN_USER = 1,
    QDS_DSN_SYSTEM = 2,
};

enum QDSDbaseFileType : Long {
    QDS_DFT_VER_III = 0,
    QDS_DFT_VER_IV = 1,
    QDS_DFT_VER_5 = 2,
    QDS_DFT_COUNT = 3,
};

enum QDSCharacterSetType : Long {
    QDS_TCT_ANSI = 0,
    QDS_TCT_OEM = 1,
    QDS_TCT_UNICODE = 2,
    QDS_TCT_CODE_PAGE_DECIMAL_NUMBER = 3,
    QDS_TCT_COUNT = 4,
};

enum QDSTextFormatType : Long {
    QDS_TDT_CSV_DELIMITED = 0,
    QDS_TDT_TAB_DELIMITED = 1,
    QDS_TDT_CUSTOM_DELIMITED = 2,
    QDS_TDT_FIXED_LENGTH_FIELDS = 3,
    QDS_TDT_COUNT = 4,
};

enum QDSFixedLengthFormatType : Long {
    QDS_TFLFT_ROWS_TERMINATED_BY_CARRIAGE_RETURN = 0,
    QDS_TFLFT_ROWS_CONTAINING_EXACT_NUMBER_OF_CHARACTERS = 1,
    QDS_TFLFT_COUNT = 2,
};

// "SEPERATION" is the original spelling.
enum QDSCurrencyPositiveFormatType : Long {
    QDS_TCPFT_PREFIX_WITH_NO_SEPERATION = 0,
    QDS_TCPFT_SUFFIX_WITH_NO_SEPERATION = 1,
    QDS_TCPFT_PREFIX_WITH_ONE_CHARACTER_SEPERATION = 2,
    QDS_TCPFT_SUFFIX_WITH_ONE_CHARACTER_SEPERATION = 3,
    QDS_TCPFT_COUNT = 4,
};

enum QDSCurrencyNegativeFormatType : Long {
    QDS_TCNFT_PREFIXED_SYMBOL_WITH_BRACKETS = 0,
    QDS_TCNFT_PREFIXED_NEG_SYMBOL = 1,
    QDS_TCNFT_PREFIXED_SYMBOL_NEG = 2,
    QDS_TCNFT_PREFIXED_SYMBOL_SUFFIXED_NEG = 3,
    QDS_TCNFT_SUFFIXED_SYMBOL_WITH_BRACKETS = 4,
    QDS_TCNFT_PREFIXED_NEG_SUFFIXED_SYMBOL = 5,
    QDS_TCNFT_SUFFIXED_NEG_SYMBOL = 6,
    QDS_TCNFT_SUFFIXED_SYMBOL_NEG = 7,
    QDS_TCNFT_PREFIXED_NEG_SUFFIXED_SPACE_SYMBOL = 8,
    QDS_TCNFT_PREFIXED_NEG_SYMBOL_SPACE = 9,
    QDS_TCNFT_SUFFIXED_SPACE_SYMBOL_NEG = 10,
    QDS_TCNFT_PREFIXED_SYMBOL_SPACE_SUFFIXED_NEG = 11,
    QDS_TCNFT_PREFIXED_SYMBOL_SPACE_NEG = 12,
    QDS_TCNFT_SUFFIXED_NEG_SPACE_SYMBOL = 13,
    QDS_TCNFT_PREFIXED_SYMBOL_SPACE_WITH_BRACKETS = 14,
    QDS_TCNFT_SUFFIXED_SPACE_SYMBOL_WITH_BRACKETS = 15,
    QDS_TCNFT_COUNT = 16,
};

enum QDSCommandType : Long {
    QDS_CT_TABLE = 0,
    QDS_CT_STORED_PROCEDURE = 1,
    QDS_CT_SQL_STATEMENT = 2,
    QDS_CT_CUSTOM_SQL = 3,
    QDS_CT_FILE = 4,
};

enum QDSColumnCategory : Long {
    QDS_CC_ASCII = 0,
    QDS_CC_BINARY = 1,
    QDS_CC_CHAR = 2,
    QDS_CC_FILTER = 3,
    QDS_CC_FIND = 4,
    QDS_CC_SORT = 5,
    QDS_CC_TEXT = 6,
    QDS_CC_ALL = 7,
};

enum QDSJoinType : Long {
    QDS_JT_INNER = 0,
    QDS_JT_LEFT_OUTER = 1,
    QDS_JT_RIGHT_OUTER = 2,
    QDS_JT_FULL_OUTER = 3,
    QDS_JT_CROSS_JOIN = 4,
};

enum QDSSortOption : Long {
    QDS_SO_DO_NOT_SORT = 0,
    QDS_SO_SORT_USING_CRITERIA_LIST = 1,
    QDS_SO_SORT_USING_SQL_EXPRESSION = 2,
};

enum QDSSchemaObjectsAccessibility : Long {
    QDS_SOA_NONE = 0,
    QDS_SOA_ALL = 1,
    QDS_SOA_SOME = 2,
};

enum QDSKeyType : Long {
    QDS_KT_NONE = 0,
    QDS_KT_PRIMARY = 1,
    QDS_KT_FOREIGN = 2,
    QDS_KT_UNIQUE = 3,
};

enum QDSSortOrder : Long {
    QDS_SO_NONE = 0,
    QDS_SO_ASCENDING = 1,
    QDS_SO_DESCENDING = 2,
};

enum QDSSortLogicalOperation : Long {
    QDS_SLO_NONE = 0,
    QDS_SLO_END = 1,
    QDS_SLO_AND = 2,
};

enum QDSSelectTableChoice : Long {
    QDS_STC_TABLE_LIST = 0,
    QDS_STC_STORED_JOIN = 1,
    QDS_STC_SQL_STRING = 2,
};

enum QDSSelectColumnChoice : Long {
    QDS_SCC_ALL_COLUMNS = 0,
    QDS_SCC_TEXT_COLUMNS = 1,
    QDS_SCC_BINARY_COLUMNS = 2,
    QDS_SCC_COLUMN_LIST = 3,
    QDS_SCC_RECORD_COUNT = 4,
};

enum QDSSelectSortChoice : Long {
    QDS_SSC_NONE = 0,
    QDS_SSC_SORT_OBJECT = 1,
    QDS_SSC_STORED_SORT = 2,
};

enum QDSDatabaseImageFormat : Long {
    QDS_DIF_DATABASE_OPTIONS = -1,
    QDS_DIF_BMP = 0,
    QDS_DIF_OLE_BMP = 1,
    QDS_DIF_JPEG = 2,
    QDS_DIF_PNG = 3,
    QDS_DIF_TIFF = 4,
    QDS_DIF_1_BIT_BITMAP = 5,
    QDS_DIF_1_BIT_TIFF = 6,
};

enum QDSDataTypeCategory : Long {
    QDS_DTC_ASCII = 0,
    QDS_DTC_BINARY = 1,
    QDS_DTC_CHAR = 2,
    QDS_DTC_FILTER = 3,
    QDS_DTC_FIND = 4,
    QDS_DTC_MATCH = 5,
    QDS_DTC_SORT = 6,
    QDS_DTC_TEXT = 7,
    QDS_DTC_ALL = 8,
};

enum QDSColumnOrderStyle : Long {
    QDS_COS_NONE = 0,
    QDS_COS_BY_DATABASE = 1,
    QDS_COS_LEFT_TO_RIGHT = 2,
    QDS_COS_TOP_TO_BOTTOM = 3,
    QDS_COS_BY_TAB_INDEX = 4,
};

// Same members and numbers as QDSSortLogicalOperation; both generations stay.
enum qltSortLogicalOperation : Long {
    SORT_LOGICAL_NONE = 0,
    SORT_LOGICAL_END = 1,
    SORT_LOGICAL_AND = 2,
};

// COMPARE_COUNTS is the number of comparisons after COMPARE_NONE.
enum CompareMethod : Long {
    COMPARE_NONE = -1,
    COMPARE_LESS_THAN = 0,
    COMPARE_LESS_THAN_OR_EQUAL = 1,
    COMPARE_EQUAL = 2,
    COMPARE_NOT_EQUAL = 3,
    COMPARE_GREATER_THAN = 4,
    COMPARE_GREATER_THAN_OR_EQUAL = 5,
    COMPARE_LIKE = 6,
    COMPARE_NOT_LIKE = 7,
    COMPARE_IN = 8,
    COMPARE_BETWEEN = 9,
    COMPARE_EMPTY = 10,
    COMPARE_NOT_EMPTY = 11,
    COMPARE_STARTS_WITH = 12,
    COMPARE_CONTAINS = 13,
    COMPARE_ENDS_WITH = 14,
    COMPARE_MATCHES = 15,
    COMPARE_BEFORE = 16,
    COMPARE_ON = 17,
    COMPARE_AFTER = 18,
    COMPARE_NOT_STARTS_WITH = 19,
    COMPARE_NOT_CONTAINS = 20,
    COMPARE_NOT_ENDS_WITH = 21,
    COMPARE_NOT_MATCHES = 22,
    COMPARE_NOT_BEFORE = 23,
    COMPARE_NOT_ON = 24,
    COMPARE_NOT_AFTER = 25,
    COMPARE_IS = 26,
    COMPARE_IS_NOT = 27,
    COMPARE_COUNTS = 28,
};

enum QltHostDataSource : Long {
    QLT_HDS_QDS = 0,
    QLT_HDS_LDAP = 1,
};

enum QltLDAPAuthenticationMethod : Long {
    QLT_LAM_WINDOWS_SECURITY = 0,
    QLT_LAM_USERNAME_PASSWORD = 1,
};

enum QltCompanyDatabaseType : Long {
    QLT_COMPANY_DATABASE_TYPE_QRK_FILE = 0,
    QLT_COMPANY_DATABASE_TYPE_QUILLET_COMPANY_SERVER = 1,
    QLT_COMPANY_DATABASE_MS_ACCESS = 2,
    QLT_COMPANY_DATABASE_ODBC_DSN_FILE = 3,
    QLT_COMPANY_DATABASE_ODBC_DSN_NAME = 4,
    QLT_COMPANY_DATABASE_OLE_UDL_FILE = 5,
    QLT_COMPANY_DATABASE_OLE_DB_PROVIDER = 6,
};

enum QltImportFindResult : Long {
    QLT_IMPORT_FIND_RESULT_ERROR = 0,
    QLT_IMPORT_FIND_RESULT_NO_MATCH = 1,
    QLT_IMPORT_FIND_RESULT_MATCH_FOUND = 2,
    QLT_IMPORT_FIND_RESULT_MULTIPLE_MATCHES = 3,
    QLT_IMPORT_FIND_RESULT_CRITERIA_EMPTY = 4,
    QLT_IMPORT_FIND_RESULT_MULTIPLE_MATCHES_CRITERIA_FULL = 5,
};

enum qltRecordView : Long {
    QLT_SINGLE_RECORD_VIEW = 0,
    QLT_SPREADSHEET_VIEW = 1,
};

enum qltRecordAction : Long {
    QLT_ADD_RECORD = 0,
    QLT_MODIFY_RECORD = 1,
    QLT_VIEW_RECORD = 2,
    QLT_MASS_UPDATE = 3,
    QLT_DUPLICATE_RECORD = 4,
};

enum QltMatchCriteria : Long {
    QLT_MC_ANY_PART_OF_FIELD = 0,
    QLT_MC_WHOLE_FIELD = 1,
    QLT_MC_START_OF_FIELD = 2,
    QLT_MC_END_OF_FIELD = 3,
    QLT_MC_COUNT = 4,
};

enum QltSearchDirection : Long {
    QLT_SD_FORWARD = 0,
    QLT_SD_BACKWARD = 1,
    QLT_SD_COUNT = 2,
};

enum qltDataEntryType : Long {
    DATA_ENTRY_TYPE_NO_FORMAT = -1,
    DATA_ENTRY_TYPE_TEXT = 0,
    DATA_ENTRY_TYPE_NUMERIC = 1,
    DATA_ENTRY_TYPE_DATE_TIME = 2,
    DATA_ENTRY_TYPE_IMAGE_PATH = 3,
    DATA_ENTRY_TYPE_BINARY = 4,
    DATA_ENTRY_TYPE_DROP_DOWN_LIST = 5,
    DATA_ENTRY_TYPE_BOOLEAN = 6,
    DATA_ENTRY_TYPE_BARCODE = 7,
};

enum QltDBColumnFontStyle : Long {
    DB_COLUMN_FONT_STYLE_NORMAL = 0,
    DB_COLUMN_FONT_STYLE_BOLD = 1,
    DB_COLUMN_FONT_STYLE_ITALIC = 2,
};

enum QltFlexGridColumnType : Long {
    QLT_FGCT_NONE = 0,
    QLT_FGCT_ACTIVE_LINK = 1,
    QLT_FGCT_PASSIVE_LINK = 2,
    QLT_FGCT_TEXT = 3,
    QLT_FGCT_COMBO = 4,
    QLT_FGCT_BUTTON = 5,
    QLT_FGCT_REMOVE = 6,
};

enum QltBooleanStyle : Long {
    BOOLEAN_STYLE_TRUE_FALSE = 0,
    BOOLEAN_STYLE_YES_NO = 1,
};

// ---------------------------------------------------------------------------
// Numbers and text handling
// ---------------------------------------------------------------------------

enum CountingDirection : Long {
    COUNT_UP = 0,
    COUNT_DOWN = 1,
};

enum QltNumberSystem : Long {
    QLT_NS_DECIMAL = 0,
    QLT_NS_ALPHABETIC = 1,
    QLT_NS_ALPHABETIC_LOWER = 2,
    QLT_NS_BINARY = 3,
    QLT_NS_OCTAL = 4,
    QLT_NS_HEXADECIMAL = 5,
    QLT_NS_HEXADECIMAL_LOWER = 6,
    QLT_NS_ALPHANUMERICBASE36 = 7,
    QLT_NS_ALPHANUMERICBASE36_LOWER = 8,
    QLT_NS_CUSTOM = 9,
};

// `compact` is lower case in the original interface and stays so.
enum PaddingOption : Long {
    ZEROES = 0,
    SPACES = 1,
    compact = 2,
};

enum PaddingPosition : Long {
    PAD_FRONT = 0,
    PAD_END = 1,
};

enum QltTokenDataType : Long {
    QLT_TOKEN_STRING = 0,
    QLT_TOKEN_NUMERIC = 1,
    QLT_TOKEN_BOOLEAN = 2,
};

enum qltSerializeOn : Long {
    QLT_SERIALIZE_ON_RECORDS = 0,
    QLT_SERIALIZE_ON_LABELS = 1,
    QLT_SERIALIZE_ON_RECORD_COPIES = 2,
};

// ---------------------------------------------------------------------------
// Geometry, measure and design surface
// ---------------------------------------------------------------------------

enum QltAngleStep : Long {
    QLT_ANGLE_STEP_90 = 0,
    QLT_ANGLE_STEP_1 = 1,
};

enum QltQuadrant : Long {
    QLT_QUADRANT_0 = 0,
    QLT_QUADRANT_90 = 1,
    QLT_QUADRANT_180 = 2,
    QLT_QUADRANT_270 = 3,
};

enum QltMeasuringUnit : Long {
    QLT_MILS = 0,
    QLT_INCHES = 1,
    QLT_CENTIMETERS = 2,
    QLT_MILLIMETERS = 3,
    QLT_POINTS = 4,
    QLT_PICAS = 5,
    QLT_CICEROS = 6,
    QLT_DIDOTS = 7,
    QLT_AGATES = 8,
    QLT_DIAMONDS = 9,
    QLT_TWIPS = 10,
    QLT_HIMETRICS = 11,
};

// None_ is the interface's `None`, renamed (see the top of this file).
enum ScaleMethod : Long {
    None_ = 0,
    SHRINK = 1,
    ENLARGE = 2,
};

// Starts at 1.
enum GridStyle : Long {
    DOTTED_GRID = 1,
    LINE_GRID = 2,
};

// The lower-case mouse_down and mouse_up are the original spelling.
enum MouseEvent : Long {
    mouse_down = 0,
    MOUSE_MOVE = 1,
    mouse_up = 2,
};

enum HorizontalAlignment : Long {
    HORIZONTAL_ALIGN_NONE = 0,
    ALIGN_LEFT = 1,
    ALIGN_CENTER = 2,
    ALIGN_RIGHT = 3,
};

enum VerticalAlignment : Long {
    VERTICAL_ALIGN_NONE = 0,
    ALIGN_TOP = 1,
    ALIGN_MIDDLE = 2,
    ALIGN_BOTTOM = 3,
};

enum ArcDirection : Long {
    ARC_COUNTER_CLOCKWISE = 0,
    ARC_CLOCKWISE = 1,
};

enum DragState : Long {
    STATE_NOTHING = 0,
    STATE_MOVING = 1,
    STATE_SIZING = 2,
};

enum SpacingDirection : Long {
    HORIZONTAL_SPACING = 0,
    VERTICAL_SPACING = 1,
};

enum MovementActivity : Long {
    MOVE_INITIATE = 0,
    MOVE_PROCESS = 1,
    MOVE_TERMINATE = 2,
};

enum AlignReference : Long {
    ALIGN_WITH_DOCUMENT = 0,
    ALIGN_WITH_OBJECT = 1,
};

enum SizingReference : Long {
    MAKE_SAME_WIDTH = 0,
    MAKE_SAME_HEIGHT = 1,
    MAKE_SAME_BOTH = 2,
};

enum StretchTypes : Long {
    STRETCH_WIDTH = 0,
    STRETCH_HEIGHT = 1,
    STRETCH_BOTH = 2,
};

enum QltClipTarget : Long {
    QLT_CLIP_HDC = 0,
    QLT_CLIP_WINDOW = 1,
};

enum LabelShape : Long {
    LS_RECT = 0,
    LS_ROUND_RECT = 1,
    LS_ELLIPSE = 2,
};

// QLT_FILP_NONE is misspelt in the original interface and stays so.
enum QltFlip : Long {
    QLT_FILP_NONE = 0,
    QLT_FLIP_HORIZONTAL = 1,
    QLT_FLIP_VERTICAL = 2,
    QLT_FLIP_BOTH = 3,
};

enum QltDesignSide : Long {
    QLT_DESIGN_FRONT_SIDE = 0,
    QLT_DESIGN_BACK_SIDE = 1,
};

enum QltDataSource : Long {
    QLT_DS_DESIGN = 0,
    QLT_DS_DATABASE = 1,
    QLT_DS_SERIAL_NUMBER = 2,
    QLT_DS_USER = 3,
    QLT_DS_DATE = 4,
    QLT_DS_TIME = 5,
};

enum QltFieldCategory : Long {
    QLT_FIELD_CATEGORY_TEXT = 0,
    QLT_FIELD_CATEGORY_PICTURE = 1,
};

enum QltFieldOption : Long {
    QLT_FIELD_OPTION_SINGLE = 0,
    QLT_FIELD_OPTION_MERGE = 1,
};

enum qltDrawMode : Long {
    QLT_SHOW_IDENTIFIER = 0,
    QLT_SHOW_VALUE = 1,
};

// The pen end-cap flags of the Windows drawing interface, hence 256 and 512.
enum LineCapStyle : Long {
    LINE_CAP_ROUND = 0,
    LINE_CAP_SQUARE = 256,
    LINE_CAP_FLAT = 512,
};

// The region combine modes of the Windows drawing interface, from 1.
enum CombineMode : Long {
    COMBINE_AND = 1,
    COMBINE_OR = 2,
    COMBINE_XOR = 3,
    COMBINE_DIFF = 4,
    COMBINE_COPY = 5,
};

// ---------------------------------------------------------------------------
// Fills, images and text objects
// ---------------------------------------------------------------------------

enum GradientType : Long {
    GRADIENT_HORIZONTAL = 0,
    GRADIENT_VERTICAL = 1,
    GRADIENT_CENTERED_HORIZONTAL = 2,
    GRADIENT_CENTERED_VERTICAL = 3,
    GRADIENT_RADIAL = 4,
    GRADIENT_DIAGONAL_UPWARD = 5,
    GRADIENT_DIAGONAL_DOWNWARD = 6,
    GRADIENT_TOP_LEFT = 7,
    GRADIENT_TOP_RIGHT = 8,
    GRADIENT_BOTTOM_LEFT = 9,
    GRADIENT_BOTTOM_RIGHT = 10,
};

enum QltFillStyle : Long {
    QLT_FILL_PATTERN = 0,
    QLT_GRADIENT_PATTERN = 1,
};

// Bits per pixel, but for the monochrome choices: plain and threshold are 1,
// like FICD_1BPP, and dithered is 3.
enum QltFreeImageColorDepth : Long {
    FICD_AUTO = 0,
    FICD_MONOCHROME = 1,
    FICD_MONOCHROME_THRESHOLD = 1,
    FICD_MONOCHROME_DITHER = 3,
    FICD_1BPP = 1,
    FICD_4BPP = 4,
    FICD_8BPP = 8,
    FICD_15BPP = 15,
    FICD_16BPP = 16,
    FICD_24BPP = 24,
    FICD_32BPP = 32,
};

enum ImageFormats : Long {
    QLT_IMAGE_ALL = 0,
    QLT_IMAGE_MSACCESS = 1,
};

enum QltImagePositions : Long {
    QLT_IP_STRETCH = 0,
    QLT_IP_TILE = 1,
    QLT_IP_TOP_LEFT = 2,
    QLT_IP_TOP_MIDDLE = 3,
    QLT_IP_TOP_RIGHT = 4,
    QLT_IP_MIDDLE_LEFT = 5,
    QLT_IP_MIDDLE_MIDDLE = 6,
    QLT_IP_MIDDLE_RIGHT = 7,
    QLT_IP_BOTTOM_LEFT = 8,
    QLT_IP_BOTTOM_MIDDLE = 9,
    QLT_IP_BOTTOM_RIGHT = 10,
};

enum QltMaskColorOption : Long {
    QLT_MCO_AUTO_DETECT = 0,
    QLT_MCO_FIXED_COLOR = 1,
};

enum qltActionAfterImageCapture : Long {
    AAIC_NO_ACTION = 0,
    AAIC_DISPLAY_IMAGE_EDITOR = 1,
};

enum QltTextStyle : Long {
    QLT_TS_STRAIGHT = 0,
    QLT_TS_CIRCULAR = 1,
    QLT_TS_TEXT_BOX = 2,
};

enum QltTextHAlignment : Long {
    QLT_ALIGN_LEFT = 0,
    QLT_ALIGN_CENTER = 1,
    QLT_ALIGN_RIGHT = 2,
};

enum QltTextVAlignment : Long {
    QLT_ALIGN_TOP = 0,
    QLT_ALIGN_MIDDLE = 1,
    QLT_ALIGN_BOTTOM = 2,
};

enum QltAllowFileType : Long {
    QLT_ALLOW_QLT_AND_QTP_FILES = 0,
    QLT_ALLOW_QTP_FILES = 1,
    QLT_ALLOW_IMAGE_FILES = 2,
};

// ---------------------------------------------------------------------------
// Barcodes
// ---------------------------------------------------------------------------

enum BarcodeSymbology : Long {
    BARCODE_UPC_A = 0,
    BARCODE_POSTNET = 1,
    BARCODE_EAN_13 = 2,
    BARCODE_ISBN = 3,
    BARCODE_ISSN = 4,
    BARCODE_CODE_39 = 5,
    BARCODE_SUPPLEMENT_5 = 6,
    BARCODE_SUPPLEMENT_2 = 7,
    BARCODE_CODE_128 = 8,
    BARCODE_STANDARD_2_OF_5 = 9,
    BARCODE_INTERLEAVED_2_OF_5 = 10,
    BARCODE_CODABAR = 11,
    BARCODE_UCC_128 = 12,
    BARCODE_UPC_E = 13,
    BARCODE_CODE_39_FULL_ASCII = 14,
    BARCODE_CODE_93 = 15,
    BARCODE_MSI = 16,
    BARCODE_EAN_8 = 17,
    BARCODE_CODE_93_FULL_ASCII = 18,
    BARCODE_AUSTRALIA_POST = 19,
    BARCODE_ROYAL_MAIL = 20,
    BARCODE_SYMBOLOGIES_COUNT = 21,
};

enum BarWidthOption : Long {
    BAR_WIDTH_AUTO = 0,
    BAR_WIDTH_FIXED = 1,
};

enum BarcodeTextStyle : Long {
    TEXT_STYLE_STANDARD = 0,
    TEXT_STYLE_EXTENDED = 1,
};

enum BarcodeTextPlacement : Long {
    TEXT_PLACEMENT_TOP = 0,
    TEXT_PLACEMENT_BOTTOM = 1,
};

enum BarcodeTextAlignment : Long {
    TEXT_ALIGNMENT_LEFT = 0,
    TEXT_ALIGNMENT_CENTER = 1,
    TEXT_ALIGNMENT_RIGHT = 2,
    TEXT_ALIGNMENT_JUSTIFIED = 3,
};

enum qltCode128CodeSet : Long {
    CODE_128_CODE_SET_AUTO = 0,
    CODE_128_CODE_SET_A = 1,
    CODE_128_CODE_SET_B = 2,
    CODE_128_CODE_SET_C = 3,
};

enum AustraliaPostFormat : Long {
    STANDARD_CUSTOMER_BARCODE = 0,
    CUSTOMER_BARCODE_2 = 1,
    CUSTOMER_BARCODE_3 = 2,
    REPLY_PAID_BARCODE = 3,
};

enum EnglishPostBarType : Long {
    BAR_FULL_HEIGHT = 0,
    BAR_ASCENDER = 1,
    BAR_DESCENDER = 2,
    BAR_TRACKER = 3,
};

enum Ean13EncodingEntry : Long {
    EAN_13_CODE_SET_A = 0,
    EAN_13_CODE_SET_B = 1,
    EAN_13_CODE_SET_C = 2,
    EAN_13_CODE_CHECK_DIGIT = 3,
};

enum Supp2EncodingEntry : Long {
    SUPPLEMENT_2_CODE_SET_A = 0,
    SUPPLEMENT_2_CODE_SET_B = 1,
    SUPPLEMENT_2_CODE_CHECK_DIGIT = 2,
};

enum Supp5EncodingEntry : Long {
    SUPPLEMENT_5_CODE_SET_A = 0,
    SUPPLEMENT_5_CODE_SET_B = 1,
    SUPPLEMENT_5_CODE_CHECK_DIGIT = 2,
};

enum QltEan13Extension : Long {
    QLT_EAN13_EXT_NONE = 0,
    QLT_EAN13_EXT_2_DIGIT = 1,
    QLT_EAN13_EXT_5_DIGIT = 2,
    QLT_EAN13_EXT_OTHER = 3,
};

enum Barcode2dDataMatrixModes : Long {
    DATA_MATRIX_ASCII_MODE = 0,
    DATA_MATRIX_C40_MODE = 1,
    DATA_MATRIX_TEXT_MODE = 2,
    DATA_MATRIX_X12_MODE = 3,
    DATA_MATRIX_EDF_MODE = 4,
    DATA_MATRIX_B256_MODE = 5,
};

enum Barcode2dTypes : Long {
    BARCODE_2D_PDF417 = 0,
    BARCODE_2D_DATA_MATRIX_ECC_200 = 1,
    BARCODE_2D_QR_CODE = 2,
};

enum Barcode2dRenderType : Long {
    BARCODE_2D_STACKED = 0,
    BARCODE_2D_MATRIX = 1,
};

enum Barcode2dDimensionsSpecificationOption : Long {
    BARCODE_2D_FIXED_MODULE_WIDTH = 0,
    BARCODE_2D_AUTO_MODULE_WIDTH = 1,
};

enum Barcode2dNumOfDataCodewordColsOption : Long {
    BARCODE_2D_NUM_OF_DATA_CODEWORD_COLS_AUTO = 0,
    BARCODE_2D_NUM_OF_DATA_CODEWORD_COLS_FIXED = 1,
};

enum Barcode2dNumOfDataCodewordRowsOption : Long {
    BARCODE_2D_NUM_OF_DATA_CODEWORD_ROWS_AUTO = 0,
    BARCODE_2D_NUM_OF_DATA_CODEWORD_ROWS_FIXED = 1,
};

enum Barcode2dPrefixOption : Long {
    BARCODE_2D_DM_ECC200_PREFIX_NONE = 0,
    BARCODE_2D_DM_ECC200_PREFIX_FNC1 = 1,
    BARCODE_2D_DM_ECC200_PREFIX_05_MACRO = 2,
    BARCODE_2D_DM_ECC200_PREFIX_06_MACRO = 3,
    BARCODE_2D_DM_ECC200_PREFIX_READER_PROGRAMMING = 4,
};

enum Barcode2dDataCompactionFormats : Long {
    BARCODE_2D_COMPACTION_PDF417_TEXT = 0,
    BARCODE_2D_COMPACTION_PDF417_BYTE = 1,
    BARCODE_2D_COMPACTION_PDF417_NUMERIC = 2,
};

enum Barcode2dEccLevelOptions : Long {
    BARCODE_2D_ECC_LEVEL_OPTION_AUTO = 0,
    BARCODE_2D_ECC_LEVEL_OPTION_FIXED = 1,
};

enum Barcode2dEccLevels : Long {
    BARCODE_2D_ECC_LEVEL_0 = 0,
    BARCODE_2D_ECC_LEVEL_1 = 1,
    BARCODE_2D_ECC_LEVEL_2 = 2,
    BARCODE_2D_ECC_LEVEL_3 = 3,
    BARCODE_2D_ECC_LEVEL_4 = 4,
    BARCODE_2D_ECC_LEVEL_5 = 5,
    BARCODE_2D_ECC_LEVEL_6 = 6,
    BARCODE_2D_ECC_LEVEL_7 = 7,
    BARCODE_2D_ECC_LEVEL_8 = 8,
};

// ---------------------------------------------------------------------------
// Printing and encoding of cards
// ---------------------------------------------------------------------------

enum QltPrintOptionsTab : Long {
    QLT_PRINT_OPTION_TAB_ALL = 0,
    QLT_PRINT_OPTION_TAB_NUMBER_OF_COPIES = 1,
    QLT_PRINT_OPTION_TAB_PRINT_SETUP = 2,
};

enum PrintDirection : Long {
    HORIZONTAL_MAJOR = 0,
    VERTICAL_MAJOR = 1,
};

// The printer driver's orientation numbers: portrait 1, landscape 2.
enum QltPageOrientation : Long {
    QLT_PORTRAIT = 1,
    QLT_LANDSCAPE = 2,
};

enum QltPrintMode : Long {
    QPM_AUTO = 0,
    QPM_PHOTO = 1,
    QPM_NORMAL = 2,
    QPM_INVERTED = 3,
};

enum QltPageType : Long {
    QLT_SHEET = 0,
    QLT_CONTINUOUS = 1,
};

enum PrintTask : Long {
    PREVIEW_PAGE = 0,
    PRINT_PAGES = 1,
};

enum CropMarks : Long {
    NO_MARKS = 0,
    DOTTED_MARKS = 1,
    CROSS_MARKS = 2,
    EDGE_MARKS = 3,
};

// Same marks and numbers as CropMarks; both generations stay.
enum qltCropMarks : Long {
    QLT_CROP_MARKS_NONE = 0,
    QLT_CROP_MARKS_DOTTED = 1,
    QLT_CROP_MARKS_CROSS = 2,
    QLT_CROP_MARKS_EDGE = 3,
};

enum QltPrintSide : Long {
    QLT_PRINT_FRONT_SIDE = 0,
    QLT_PRINT_BACK_SIDE = 1,
    QLT_PRINT_BOTH_SIDE = 2,
};

enum qltPrintCriteria : Long {
    QLT_PRINT_OBJECT = 0,
    QLT_DO_NOT_PRINT_OBJECT = 1,
    QLT_PRINT_OBJECT_CONDITIONALLY = 2,
};

enum qltPrintPanel : Long {
    QLT_PRINT_ALL_PANELS = 0,
    QLT_PRINT_CMY_PANEL = 1,
    QLT_PRINT_K_PANEL = 2,
    QLT_PRINT_UV_PANEL = 3,
};

enum qltMagStripeEncodingStandard : Long {
    QLT_ISO_ENCODING = 0,
    QLT_CUSTOM_ENCODING = 1,
};

enum qltMagStripeCoercivity : Long {
    QLT_LOW_COERCIVITY = 0,
    QLT_HIGH_COERCIVITY = 1,
};

enum QLTReportGridLines : Long {
    RGL_NONE = 0,
    RGL_HORIZONTAL = 1,
    RGL_VERTICAL = 2,
    RGL_BOTH = 3,
};

// ---------------------------------------------------------------------------
// Thermal printers
// ---------------------------------------------------------------------------

enum qltThermalPrintMode : Long {
    QLT_THERMAL_PRINT_MODE_DIRECT_THERMAL = 0,
    QLT_THERMAL_PRINT_MODE_THERMAL_TRANSFER = 1,
};

enum qltEPL2PageMode : Long {
    QLT_EPL2_PAGE_MODE_GAP_SENSING = 0,
    QLT_EPL2_PAGE_MODE_NOTCH_SENSING = 1,
    QLT_EPL2_PAGE_MODE_MARK_SENSING = 2,
    QLT_EPL2_PAGE_MODE_CONTINUOUS = 3,
};

enum qltZPL2PageMode : Long {
    QLT_ZPL2_PAGE_MODE_WEB_SENSING = 0,
    QLT_ZPL2_PAGE_MODE_MARK_SENSING = 1,
    QLT_ZPL2_PAGE_MODE_CONTINUOUS = 2,
};

enum qltThermalPrintSpeed : Long {
    QLT_PRINT_SPEED_SLOW = 0,
    QLT_PRINT_SPEED_MEDIUM = 1,
    QLT_PRINT_SPEED_FAST = 2,
};

enum qltThermalPrintDarkness : Long {
    QLT_PRINT_DARKNESS_LIGHT = 0,
    QLT_PRINT_DARKNESS_MEDIUM = 1,
    QLT_PRINT_DARKNESS_DARK = 2,
};

enum qltThermalPrintOrientation : Long {
    QLT_PRINT_ORIENTATION_TOP_FIRST = 0,
    QLT_PRINT_ORIENTATION_BOTTOM_FIRST = 1,
};

enum qltThermalCutterMode : Long {
    QLT_THERMAL_CUTTER_DISABLED = 0,
    QLT_THERMAL_CUTTER_AFTER_EACH_LABEL = 1,
    QLT_THERMAL_CUTTER_AFTER_BATCH = 2,
    QLT_THERMAL_CUTTER_AFTER_SPECIFIED_INTERVAL = 3,
};

enum qltZPL2FeedMode : Long {
    QLT_ZPL2_FEED_MODE_TEAR_OFF = 0,
    QLT_ZPL2_FEED_MODE_PEEL_OFF = 1,
    QLT_ZPL2_FEED_MODE_REWIND = 2,
    QLT_ZPL2_FEED_MODE_CUT = 3,
};

enum qltZPL2PauseMode : Long {
    QLT_ZPL2_NO_PAUSE = 0,
    QLT_ZPL2_PAUSE_AFTER_LABEL = 1,
    QLT_ZPL2_PAUSE_AFTER_JOB = 2,
    QLT_ZPL2_PAUSE_AFTER_SPECIFIED_INTERVAL = 3,
};

enum qltZPL2BackfeedMode : Long {
    QLT_ZPL2_BACKFEED_NORMAL = 0,
    QLT_ZPL2_BACKFEED_NONE = 1,
    QLT_ZPL2_BACKFEED_BEFORE_PRINTING = 2,
    QLT_ZPL2_BACKFEED_AFTER_PRINTING = 3,
    QLT_ZPL2_BACKFEED_PERCENTAGE = 4,
};

// ---------------------------------------------------------------------------
// Devices and host dialogs
// ---------------------------------------------------------------------------

enum qltSignaturePadButtonOptions : Long {
    SIGNATURE_PAD_BT_OK = 0,
    SIGNATURE_PAD_BT_OK_CLEAR = 1,
    SIGNATURE_PAD_BT_OK_CANCEL = 2,
    SIGNATURE_PAD_BT_OK_CLEAR_CANCEL = 3,
    SIGNATURE_PAD_BT_NONE = 4,
};

enum qltSignaturePadImageSizes : Long {
    SIGNATURE_PAD_IMAGE_SIZE_SMALL = 0,
    SIGNATURE_PAD_IMAGE_SIZE_MEDIUM = 1,
    SIGNATURE_PAD_IMAGE_SIZE_LARGE = 2,
};

enum qltSignaturePadImageQualities : Long {
    SIGNATURE_PAD_IMAGE_QUALITY_LOW = 0,
    SIGNATURE_PAD_IMAGE_QUALITY_MEDIUM = 1,
    SIGNATURE_PAD_IMAGE_QUALITY_HIGH = 2,
};

enum QltScannerDocumentType : Long {
    SCANNER_DOCUMENT_DRIVERS_LICENSE = 0,
    SCANNER_DOCUMENT_PASSPORT = 1,
    SCANNER_DOCUMENT_BUSINESS_CARD = 2,
};

enum QltReplaceFileAnswer : Long {
    QLT_YES = 0,
    QLT_YES_TO_ALL = 1,
    QLT_NO = 2,
    QLT_NO_TO_ALL = 3,
    QLT_CANCEL = 4,
    QLT_INVALID_PARAMETERS = 5,
    QLT_UNKNOWN_ERROR = 6,
};

enum QltClVerbosity : Long {
    QLT_CL_VERBOSITY_SILENT = 0,
    QLT_CL_VERBOSITY_NORMAL = 1,
    QLT_CL_VERBOSITY_VERBOSE = 2,
};

enum QMessageActionCode : Long {
    QMAC_NONE = 0,
    QMAC_OPEN_GLOBAL_CONFIGURATION = 1,
    QMAC_OPEN_LOCAL_CONFIGURATION = 2,
};

// ---------------------------------------------------------------------------
// Logs and check-in
// ---------------------------------------------------------------------------

enum LogEventAction : Long {
    LEA_ADD = 0,
    LEA_EDIT = 1,
    LEA_DELETE = 2,
    LEA_PRINT = 3,
    LEA_CHECK_IN = 4,
    LEA_CHECK_OUT = 5,
    LEA_CHECK_IN_ONLY = 6,
    LEA_AUTO_CHECK_OUT = 7,
    LEA_RE_CHECK_IN = 8,
    LEA_LIBRARY_RETURN = 9,
    LEA_LIBRARY_CHECK_OUT = 10,
    LEA_PRINT_REPORT = 11,
    LEA_ADD_ATTENDANCE = 12,
    LEA_EDIT_ATTENDANCE = 13,
    LEA_DELETE_ATTENDANCE = 14,
    LEA_ABSENT = 15,
    LEA_TARDY_UNEXCUSED = 16,
    LEA_TARDY_EXCUSED = 17,
    LEA_INVENTORY_RECEIVE = 18,
    LEA_INVENTORY_ISSUE = 19,
    LEA_PRESENT = 20,
    LEA_LOGIN = 21,
    LEA_LOGOUT = 22,
    LEA_INVENTORY_ADJUST = 23,
    LEA_COUNT = 24,
};

enum QltLogEventResult : Long {
    LER_NONE = 0,
    LER_SUCCESS = 1,
    LER_FAILED = 2,
};

enum QltLogDefinitionListDisplayMode : Long {
    LDLDM_CUSTOMIZE = 0,
    LDLDM_LOG_DISPLAY = 1,
};

enum QltLogType : Long {
    LT_PERSON = 0,
    LT_EQUIPMENT = 1,
};

enum QrkCombineOperation : Long {
    QRK_CO_AND = 0,
    QRK_CO_OR = 1,
};

enum QrkCardType : Long {
    QRK_CT_INTERNAL = 0,
    QRK_CT_EXTERNAL = 1,
    QRK_CT_COUNT = 2,
};

enum QrkStatus : Long {
    QRK_STATUS_CHECKED_OUT = 0,
    QRK_STATUS_CHECKED_IN = 1,
};

enum AdmLogChoiceDate : Long {
    ADM_LCD_CUSTOM = 0,
    ADM_LCD_ALL = 1,
    ADM_LCD_CURRENT_DAY = 2,
    ADM_LCD_YESTERDAY = 3,
    ADM_LCD_CURRENT_WEEK = 4,
    ADM_LCD_PREVIOUS_WEEK = 5,
    ADM_LCD_CURRENT_MONTH = 6,
    ADM_LCD_PREVIOUS_MONTH = 7,
    ADM_LCD_CURRENT_YEAR = 8,
    ADM_LCD_PREVIOUS_YEAR = 9,
};

enum AdmLogChoiceAction : Long {
    ADM_LCA_ALL_ACTIONS = 0,
    ADM_LCA_ACTION_LIST = 1,
};

enum AdmLogChoiceResult : Long {
    ADM_LCR_ALL_RESULTS = 0,
    ADM_LCR_SUCCESS = 1,
    ADM_LCR_FAIL = 2,
};

enum AdmLogChoiceSession : Long {
    ADM_LCS_ALL_SESSIONS = 0,
    ADM_LCS_SELECTED_SESSIONS = 1,
};

enum AdmLogChoiceFlag : Long {
    ADM_LCF_ALL_FLAGS = 0,
    ADM_LCF_NONE = 1,
    ADM_LCF_NOT_CHECKED_OUT = 2,
    ADM_LCF_NOT_CHECKED_IN = 3,
    ADM_LCF_OVERDUE_EQUIPMENT = 4,
    ADM_LCF_RESTOCK_NEEDED = 5,
};

enum AdmLogChoiceCardSource : Long {
    ADM_LCCS_CURRENT_CARDHOLDER_GROUP = 0,
    ADM_LCCS_ALL_CARDHOLDER_GROUPS = 1,
    ADM_LCCS_SELECTED_CARDHOLDER_GROUPS = 2,
};

enum AdmLogChoiceColumn : Long {
    ADM_LCC_ALL_COLUMNS = 0,
    ADM_LCC_SELECTED_COLUMNS = 1,
};

enum AdmLogChoiceLocation : Long {
    ADM_LCL_CURRENT_LOCATION = 0,
    ADM_LCL_ALL_LOCATIONS = 1,
    ADM_LCL_SELECTED_LOCATIONS = 2,
};

enum AdmLogChoiceUser : Long {
    ADM_LCU_CURRENT_USER = 0,
    ADM_LCU_ALL_USERS = 1,
    ADM_LCU_SELECTED_USERS = 2,
};

// ---------------------------------------------------------------------------
// Image file formats
// ---------------------------------------------------------------------------

// FreeImage's own file-format numbers, so that a value passes straight to
// FreeImage. FIF_IFF is another name for FIF_LBM. Formats that later FreeImage
// versions number past FIF_RAW have no member here but can still be held.
enum FREE_IMAGE_FORMAT : Long {
    FIF_UNKNOWN = -1,
    FIF_BMP = 0,
    FIF_ICO = 1,
    FIF_JPEG = 2,
    FIF_JNG = 3,
    FIF_KOALA = 4,
    FIF_LBM = 5,
    FIF_IFF = FIF_LBM,
    FIF_MNG = 6,
    FIF_PBM = 7,
    FIF_PBMRAW = 8,
    FIF_PCD = 9,
    FIF_PCX = 10,
    FIF_PGM = 11,
    FIF_PGMRAW = 12,
    FIF_PNG = 13,
    FIF_PPM = 14,
    FIF_PPMRAW = 15,
    FIF_RAS = 16,
    FIF_TARGA = 17,
    FIF_TIFF = 18,
    FIF_WBMP = 19,
    FIF_PSD = 20,
    FIF_CUT = 21,
    FIF_XBM = 22,
    FIF_XPM = 23,
    FIF_DDS = 24,
    FIF_GIF = 25,
    FIF_HDR = 26,
    FIF_FAXG3 = 27,
    FIF_SGI = 28,
    FIF_EXR = 29,
    FIF_J2K = 30,
    FIF_JP2 = 31,
    FIF_PFM = 32,
    FIF_PICT = 33,
    FIF_RAW = 34,
};

// ---------------------------------------------------------------------------
// Record
// ---------------------------------------------------------------------------

// bounds - a rectangle as two x and two y coordinates, in this field order.
struct bounds {
    Long X1 = 0;
    Long X2 = 0;
    Long Y1 = 0;
    Long Y2 = 0;

    friend constexpr bool operator==(const bounds&, const bounds&) noexcept = default;
};

}  // namespace quillet
