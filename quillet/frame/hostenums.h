// quillet/frame/hostenums.h - the host language's own numberings that the
// library's interface uses: kinds of a Variant, weekdays, named date formats.
#pragma once

#include "quillet/frame/types.h"

namespace quillet {

// VbVarType - the kind code of a Variant. An array's code is vbArray plus the
// code of its element kind (vbArray + vbString == 8200).
enum VbVarType : Integer {
    vbEmpty = 0,
    vbNull = 1,
    vbInteger = 2,
    vbLong = 3,
    vbSingle = 4,
    vbDouble = 5,
    vbDate = 7,
    vbString = 8,
    vbObject = 9,
    vbError = 10,
    vbBoolean = 11,
    vbVariant = 12,
    vbByte = 17,
    vbArray = 8192,
};

// VbDayOfWeek - 1 Sunday to 7 Saturday; 0 where a call takes a first day
// means the first day of the week of the regional settings.
enum VbDayOfWeek : Long {
    vbUseSystemDayOfWeek = 0,
    vbSunday = 1,
    vbMonday = 2,
    vbTuesday = 3,
    vbWednesday = 4,
    vbThursday = 5,
    vbFriday = 6,
    vbSaturday = 7,
};

// VbDateTimeFormat - the named formats of the regional settings.
enum VbDateTimeFormat : Long {
    vbGeneralDate = 0,
    vbLongDate = 1,
    vbShortDate = 2,
    vbLongTime = 3,
    vbShortTime = 4,
};

// VbFirstWeekOfYear - how a week number counts; the library always asks for
// the week of 1 January.
enum VbFirstWeekOfYear : Long {
    vbUseSystem = 0,
    vbFirstJan1 = 1,
    vbFirstFourDays = 2,
    vbFirstFullWeek = 3,
};

// VbCompareMethod - binary or text comparison of texts.
enum VbCompareMethod : Long {
    vbBinaryCompare = 0,
    vbTextCompare = 1,
};

}  // namespace quillet
