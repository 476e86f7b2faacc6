// quillet/frame/DateText.h - dates to text and text to dates under the
// current regional settings: the host date formatter and the date reader.
#pragma once

#include <optional>

#include "quillet/frame/hostenums.h"
#include "quillet/frame/types.h"

namespace quillet {

// formatDate - `value` written with a host date format.
[[nodiscard]] String formatDate(Date value, StringView format, VbDayOfWeek firstDayOfWeek = vbSunday,
                                VbFirstWeekOfYear firstWeekOfYear = vbFirstJan1);
// formatDate - `value` written in a named format of the regional settings;
// vbGeneralDate shows only the date and time parts that are not zero.
[[nodiscard]] String formatDate(Date value, VbDateTimeFormat named);

// tryReadDate - a text read as a date under the regional settings; no value
// when it reads as no date.
[[nodiscard]] std::optional<Date> tryReadDate(StringView text);
// readDate - as tryReadDate; Failure(errTypeMismatch) when it reads as no date.
[[nodiscard]] Date readDate(StringView text);

}  // namespace quillet
