// Placeholder until the date engine lands: numbers only.
#include "quillet/frame/DateText.h"

#include "quillet/frame/Failure.h"
#include "quillet/frame/NumberText.h"

namespace quillet {

String formatDate(Date value, StringView, VbDayOfWeek, VbFirstWeekOfYear) { return numberText(value.serial); }
String formatDate(Date value, VbDateTimeFormat) { return numberText(value.serial); }
std::optional<Date> tryReadDate(StringView text) {
    if (auto v = tryParseNumber(text)) return Date(*v);
    return std::nullopt;
}
Date readDate(StringView text) {
    if (auto d = tryReadDate(text)) return *d;
    throw Failure(errTypeMismatch);
}

}  // namespace quillet
