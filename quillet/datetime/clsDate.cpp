#include "quillet/datetime/clsDate.h"

#include <unicode/unistr.h>

#include "quillet/frame/Calendar.h"
#include "quillet/frame/Clock.h"
#include "quillet/frame/DateText.h"
#include "quillet/frame/Failure.h"
#include "quillet/frame/RegionalSettings.h"
#include "quillet/frame/TextCompare.h"
#include "quillet/frame/checked.h"
#include "quillet/frame/convert.h"
#include "quillet/frame/trim.h"
#include "quillet/text/clsNumericHandling.h"

namespace quillet {

namespace {

String upperCase(const String& text) {
    icu::UnicodeString u(reinterpret_cast<const UChar*>(text.data()), static_cast<int32_t>(text.size()));
    u.toUpper();
    return String(reinterpret_cast<const char16_t*>(u.getBuffer()), static_cast<std::size_t>(u.length()));
}

bool isEmptyValue(const Variant& value) { return static_cast<bool>(clsNumericHandling().isVariantValueEmpty(value)); }

// A value that reads as blank text.
bool isBlankValue(const Variant& value) { return trimBlanks(toText(value)).empty(); }

// The Date a standard conversion's result counts as: Empty is Date 0; the
// empty text of a failed conversion cannot be counted and fails.
Date countable(const Variant& value) { return value.isEmpty() ? Date() : toDate(value); }

// A day written as the system's short date text and read back.
Date viaShortDate(Date value) { return readDate(formatDate(value, vbShortDate)); }

String weekdayName(Long weekday, bool abbreviated, VbDayOfWeek firstDay) {
    Long first = firstDay == vbUseSystemDayOfWeek ? RegionalSettings::current().firstDayOfWeek : firstDay;
    if (weekday < 1 || weekday > 7 || first < 1 || first > 7) throw Failure(errInvalidCall);
    const RegionalSettings& rs = RegionalSettings::current();
    const std::size_t index = static_cast<std::size_t>((first - 1 + weekday - 1) % 7);
    return abbreviated ? rs.dayAbbreviations[index] : rs.dayNames[index];
}

}  // namespace

// ---------------------------------------------------------------------------
// Format strings

String clsDate::getDatePreview(const String& date_value_, const String& date_format_string_,
                               Boolean return_capitalized_) const {
    String result;
    attempt([&] { result = formatValue(Variant(date_value_), date_format_string_); });
    if (return_capitalized_) attempt([&] { result = upperCase(result); });
    return result;
}

String clsDate::getDateFormatEnumToString(QltStandardDateFormats date_format_enum_) const {
    switch (date_format_enum_) {
        case QLT_MM_dd_yy: return u"MM/dd/yy";
        case QLT_M_d_yyyy: return u"M/d/yyyy";
        case QLT_MM_dd_yyyy: return u"MM/dd/yyyy";
        case QLT_d_M_yy: return u"d/M/yy";
        case QLT_dd_MM_yy: return u"dd/MM/yy";
        case QLT_d_M_yyyy: return u"d/M/yyyy";
        case QLT_dd_MM_yyyy: return u"dd/MM/yyyy";
        case QLT_dd_MMM_yy: return u"dd-MMM-yy";
        case QLT_MMMM_dd_yyyy: return u"MMMM dd, yyyy";
        case QLT_ddd_MMM_d_yy: return u"ddd, MMM d, yy";
        case QLT_dddd_MMMM_dd_yyyy: return u"dddd, MMMM dd, yyyy";
        default: return u"M/d/yy";
    }
}

String clsDate::getTimeFormatEnumToString(QltStandardTimeFormats standard_time_format_) const {
    switch (standard_time_format_) {
        case QLT_HH_MM_SS_AMPM: return u"hh:nn:ss ampm";
        case QLT_HH_MM_SS: return u"hh:nn:ss";
        case QLT_HH_MM_AMPM: return u"hh:nn ampm";
        case QLT_HH_MM: return u"hh:nn";
        default: return {};
    }
}

String clsDate::validateDateFormat(const String& date_format_string_) const {
    String result;
    std::size_t start = 0;
    for (std::size_t piece = 0;; ++piece) {
        const std::size_t quote = date_format_string_.find(u'"', start);
        const bool last = quote == String::npos;
        String text = date_format_string_.substr(start, last ? String::npos : quote - start);
        if (piece % 2 == 0) {
            for (char16_t& c : text) {
                if (c == u'D') c = u'd';
                else if (c == u'm') c = u'M';
                else if (c == u'Y') c = u'y';
            }
            result += text;
        } else {
            result += u'"';
            result += text;
            if (!last) result += u'"';
        }
        if (last) break;
        start = quote + 1;
    }
    return result;
}

String clsDate::getDateVBFormatFromSystemformat(const String& sys_date_format_) const {
    return replaceText(sys_date_format_, u"'", u"\"", vbBinaryCompare);
}

String clsDate::getDateSystemFormatFromVBFormat(const String& vb_date_format_) const {
    return replaceText(vb_date_format_, u"\"", u"'", vbBinaryCompare);
}

String clsDate::removeWeekdayFromLongDateFormat(const String& date_) const {
    String result = replaceText(trimBlanks(date_), u",", u" ", vbBinaryCompare);
    for (Long i = 1; i <= 7; ++i) {
        attempt([&] { result = replaceText(result, weekdayName(i, false, vbUseSystemDayOfWeek), u"", vbTextCompare); });
        attempt([&] { result = replaceText(result, weekdayName(i, true, vbUseSystemDayOfWeek), u"", vbTextCompare); });
    }
    return result;
}

VbDateTimeFormat clsDate::getVBDateFromDateFormat(QltDateFormat date_format_) const {
    switch (date_format_) {
        case QLT_DF_GENERAL:
        case QLT_DF_SHORT: return vbShortDate;
        case QLT_DF_LONG: return vbLongDate;
        default: return vbGeneralDate;
    }
}

VbDateTimeFormat clsDate::getVBTimeFromTimeFormat(QltTimeFormat time_format_) const {
    switch (time_format_) {
        case QLT_TF_GENERAL:
        case QLT_TF_LONG: return vbLongTime;
        case QLT_TF_SHORT: return vbShortTime;
        default: return vbGeneralDate;
    }
}

// ---------------------------------------------------------------------------
// Comparisons

Long clsDate::dateComp(const Variant& date1_, const Variant& date2_) const {
    Long result = 0;
    attempt([&] {
        const Date first = countable(variantToDateStd(date1_));
        const Date second = countable(variantToDateStd(date2_));
        const std::int64_t days = calendar::dayIndex(second) - calendar::dayIndex(first);
        result = days > 0 ? 1 : days < 0 ? -1 : 0;
    });
    return result;
}

Long clsDate::timeComp(const Variant& time1_, const Variant& time2_) const {
    const Long diff = timeDiff(time1_, time2_);
    return diff > 0 ? 1 : diff < 0 ? -1 : 0;
}

Long clsDate::timeDiff(const Variant& time1_, const Variant& time2_) const {
    Long result = 0;
    attempt([&] {
        const Date first = countable(variantToTimeStd(time1_, False));
        const Date second = countable(variantToTimeStd(time2_, False));
        result = toLong(static_cast<double>(calendar::totalSeconds(second) - calendar::totalSeconds(first)));
    });
    return result;
}

void clsDate::fillBoxWithDays(const std::shared_ptr<ListControl>& box_) const {
    if (!box_) return;
    attempt([&] { box_->Clear(); });
    const Long first = getFirstDayOfWeekEnum();
    for (Long i = 1; i <= 7; ++i) {
        attempt([&] { box_->AddItem(weekdayName(i, false, vbUseSystemDayOfWeek)); });
        attempt([&] { box_->setItemData(box_->NewIndex(), (i + first - 2) % 7 + 1); });
    }
}

Date clsDate::getRangeStartDate(AdmLogChoiceDate date_range_option_) const {
    Date result;
    attempt([&] {
        const Date today = Clock::today();
        switch (date_range_option_) {
            case ADM_LCD_ALL: result = EARLIEST_DATE(); break;
            case ADM_LCD_CURRENT_DAY: result = today; break;
            case ADM_LCD_YESTERDAY: result = calendar::dateAdd(u"d", -1, today); break;
            case ADM_LCD_CURRENT_WEEK: result = viaShortDate(getFirstDayOfWeek(today)); break;
            case ADM_LCD_PREVIOUS_WEEK:
                result = calendar::dateAdd(u"ww", -1, viaShortDate(getFirstDayOfWeek(today)));
                break;
            case ADM_LCD_CURRENT_MONTH: result = viaShortDate(getFirstDayOfMonth(today)); break;
            case ADM_LCD_PREVIOUS_MONTH:
                result = calendar::dateAdd(u"m", -1, viaShortDate(getFirstDayOfMonth(today)));
                break;
            case ADM_LCD_CURRENT_YEAR: result = viaShortDate(getFirstDayOfYear(today)); break;
            case ADM_LCD_PREVIOUS_YEAR:
                result = calendar::dateAdd(u"yyyy", -1, viaShortDate(getFirstDayOfYear(today)));
                break;
            default: result = Date(); break;
        }
    });
    return result;
}

Date clsDate::getRangeEndDate(AdmLogChoiceDate date_range_option_) const {
    Date result;
    attempt([&] {
        const Date today = Clock::today();
        switch (date_range_option_) {
            case ADM_LCD_ALL: result = LATEST_DATE(); break;
            case ADM_LCD_CURRENT_DAY: result = today; break;
            case ADM_LCD_YESTERDAY: result = calendar::dateAdd(u"d", -1, today); break;
            case ADM_LCD_CURRENT_WEEK: result = viaShortDate(getLastDayOfWeek(today)); break;
            case ADM_LCD_PREVIOUS_WEEK:
                result = calendar::dateAdd(u"ww", -1, viaShortDate(getLastDayOfWeek(today)));
                break;
            case ADM_LCD_CURRENT_MONTH: result = viaShortDate(getLastDayOfMonth(today)); break;
            case ADM_LCD_PREVIOUS_MONTH:
                result = calendar::dateAdd(u"d", -1, viaShortDate(getFirstDayOfMonth(today)));
                break;
            case ADM_LCD_CURRENT_YEAR: result = viaShortDate(getLastDayOfYear(today)); break;
            case ADM_LCD_PREVIOUS_YEAR:
                result = calendar::dateAdd(u"yyyy", -1, viaShortDate(getLastDayOfYear(today)));
                break;
            default: result = Date(); break;
        }
    });
    return result;
}

Long clsDate::timeToNumber(const Variant& time_) const {
    Long result = 0;
    attempt(
        [&] { result = toLong(Variant(replaceText(formatValue(time_, u"HH:NN:SS"), u":", u"", vbBinaryCompare))); });
    return result;
}

// ---------------------------------------------------------------------------
// Weekday sets

Boolean clsDate::isDayPresentInDays(const String& days_, const String& day_) const {
    if (day_.size() != 3 || days_.size() < 3) return False;
    return foldCase(days_).find(foldCase(day_)) != String::npos;
}

Boolean clsDate::isDaySelected(Long weekday_enum, const std::shared_ptr<Collection>& selected_days_) const {
    if (!selected_days_) return False;
    const Long count = selected_days_->Count();
    for (Long i = 1; i <= count; ++i) {
        bool equal = false;
        attempt([&] { equal = toDouble(selected_days_->Item(Variant(i))) == static_cast<double>(weekday_enum); });
        if (equal) return True;
    }
    return False;
}

String clsDate::getDaysStringFromCollection(const std::shared_ptr<Collection>& selected_days_) const {
    if (!selected_days_) return {};
    String result;
    const Long count = selected_days_->Count();
    for (Long i = 1; i <= count; ++i)
        attempt(
            [&] { result = result + weekdayName(toLong(selected_days_->Item(Variant(i))), true, vbSunday) + u" "; });
    return String(trimBlanks(result));
}

// ---------------------------------------------------------------------------
// First and last days

Date clsDate::getFirstDayOfMonth(Date date_) const {
    Date result;
    attempt([&] { result = calendar::dateAdd(u"d", 1 - calendar::split(date_).day, date_); });
    return result;
}

Date clsDate::getLastDayOfMonth(Date date_) const {
    Date result;
    attempt([&] {
        const Date next = calendar::dateAdd(u"m", 1, date_);
        result = calendar::dateAdd(u"d", -calendar::split(next).day, next);
    });
    return result;
}

VbDayOfWeek clsDate::getFirstDayOfWeekEnum() const {
    VbDayOfWeek result = vbUseSystemDayOfWeek;
    attempt([&] { result = static_cast<VbDayOfWeek>(calendar::weekday(getFirstDayOfWeek(Clock::today()), vbSunday)); });
    return result;
}

Date clsDate::getFirstDayOfWeek(Date date_) const {
    Date result;
    attempt([&] { result = calendar::dateAdd(u"d", 1 - calendar::weekday(date_, vbUseSystemDayOfWeek), date_); });
    return result;
}

Date clsDate::getLastDayOfWeek(Date date_) const {
    Date result;
    attempt([&] { result = calendar::dateAdd(u"d", 7 - calendar::weekday(date_, vbSunday), date_); });
    return result;
}

Date clsDate::getFirstDayOfYear(Date) const {
    Date result;
    attempt([&] { result = calendar::dateSerial(calendar::split(Clock::now()).year, 1, 1); });
    return result;
}

Date clsDate::getLastDayOfYear(Date) const {
    Date result;
    attempt([&] { result = calendar::dateSerial(calendar::split(Clock::now()).year, 12, 31); });
    return result;
}

// ---------------------------------------------------------------------------
// Standard conversions

Variant clsDate::variantToDateStd(const Variant& date_value_) const {
    return stopOnFailure(Variant(String()), [&]() -> Variant {
        if (isEmptyValue(date_value_) || isBlankValue(date_value_)) return {};
        if (containsDateValue(date_value_)) return Variant(formatValue(date_value_, vbShortDate));
        return {};
    });
}

String clsDate::dateToStringStd(const Variant& date_value_) const {
    return stopOnFailure(String(), [&]() -> String {
        if (isEmptyValue(date_value_)) return {};
        return toText(date_value_);
    });
}

Variant clsDate::variantToTimeStd(const Variant& time_value_, Boolean include_midnight_) const {
    return stopOnFailure(Variant(String()), [&]() -> Variant {
        if (isEmptyValue(time_value_) || isBlankValue(time_value_)) return {};
        if (!containsTimeValue(time_value_, include_midnight_)) return {};
        const Date read = readDate(toText(time_value_));
        return Variant(calendar::fromDayAndTime(0, calendar::timeFraction(0, 0, calendar::secondOfDay(read) % 86400)));
    });
}

String clsDate::timeToStringStd(const Variant& time_value_) const { return dateToStringStd(time_value_); }

String clsDate::removeSecondsIfZero(const String& date_time_str_) const {
    const std::size_t hit = date_time_str_.rfind(u":00");
    if (hit == String::npos) return date_time_str_;
    const std::size_t position = hit + 1;  // 1-based
    if (position <= 4) return date_time_str_;
    if (date_time_str_[position - 4] != u':') return date_time_str_;
    return date_time_str_.substr(0, hit) + date_time_str_.substr(hit + 3);
}

Variant clsDate::variantToDateTimeStd(const Variant& date_time_value_) const {
    return stopOnFailure(Variant(String()), [&]() -> Variant {
        if (isEmptyValue(date_time_value_) || isBlankValue(date_time_value_)) return {};
        return Variant(toDate(date_time_value_));
    });
}

Variant clsDate::variantToDateTimeOptionStd(const Variant& date_time_value_,
                                            QltDateTimeOption date_time_option_) const {
    switch (date_time_option_) {
        case QLT_DTO_DATE: return variantToDateStd(date_time_value_);
        case QLT_DTO_TIME: return variantToTimeStd(date_time_value_, False);
        default: return variantToDateTimeStd(date_time_value_);
    }
}

Variant clsDate::variantToISODateTime(const Variant& date_time_value_) const {
    return stopOnFailure(Variant(String()), [&]() -> Variant {
        if (isEmptyValue(date_time_value_) || isBlankValue(date_time_value_)) return {};
        return Variant(formatValue(date_time_value_, u"yyyy-mm-dd hh:mm:ss"));
    });
}

QltDateTimeOption clsDate::getValidatedDateTimeOption(QltDateTimeOption date_time_option_) const {
    if (date_time_option_ == QLT_DTO_DATE || date_time_option_ == QLT_DTO_TIME) return date_time_option_;
    return QLT_DTO_DATE_TIME;
}

Boolean clsDate::isDateOptionAvailable(QltDateTimeOption date_time_option_) const {
    return date_time_option_ != QLT_DTO_TIME;
}

Boolean clsDate::isTimeOptionAvailable(QltDateTimeOption date_time_option_) const {
    return date_time_option_ != QLT_DTO_DATE;
}

Boolean clsDate::containsDateValue(const Variant& date_time_value_) const {
    return stopOnFailure(
        False, [&] { return Boolean(formatValue(date_time_value_, vbShortDate) != formatDate(Date(), vbShortDate)); });
}

Boolean clsDate::containsTimeValue(const Variant& date_time_value_, Boolean include_midnight_) const {
    return stopOnFailure(False, [&] {
        if (formatValue(date_time_value_, vbShortDate) == formatDate(Date(), vbShortDate)) return True;
        const bool midnight = formatValue(date_time_value_, vbLongTime) == formatDate(Date(), vbLongTime);
        if (!midnight) return True;
        return Boolean(static_cast<bool>(include_midnight_));
    });
}

String clsDate::removeNullDateFromString(const String& date_time_value_) const {
    String result;
    String nullDate;
    attempt([&] { nullDate = formatValue(Variant(MS_SQL_SERVER_NULL_DATE_VALUE()), vbShortDate); });
    if (attemptTest([&] { return date_time_value_.find(nullDate) != String::npos && !nullDate.empty(); }))
        attempt([&] { result = formatValue(Variant(date_time_value_), vbLongTime); });
    else result = date_time_value_;
    return result;
}

}  // namespace quillet
