// quillet/datetime/clsDate.h - date and time helpers: the format strings the
// family shares, previews of a format on a value, comparisons of dates and
// times, the date ranges of a log filter, the first and last days of a
// period, the standard conversions of a Variant, and sets of weekdays. A
// global class: it holds no data, and every text follows the calling
// thread's regional settings at the moment of the call.
//
//   clsDate d;                                              // US English profile
//   d.getDatePreview(u"1/2/2015", u"dddd, mmmm d", False);  // u"Friday, January 2"
//   d.getDateFormatEnumToString(QLT_dd_MMM_yy);             // u"dd-MMM-yy"
//   d.validateDateFormat(u"DD/mm/YYYY");                    // u"dd/MM/yyyy"
//   d.dateComp(Variant(u"1/1/2015"), Variant(u"1/2/2015")); // 1: the second is later
//   d.timeDiff(Variant(u"23:00:00"), Variant(u"01:00:00")); // -79200
//   d.removeSecondsIfZero(u"11:30:00 PM");                  // u"11:30 PM"
//   d.getRangeStartDate(ADM_LCD_CURRENT_MONTH);             // the 1st of this month
#pragma once

#include <memory>

#include "quillet/frame/Collection.h"
#include "quillet/frame/Variant.h"
#include "quillet/frame/enums.h"
#include "quillet/frame/hostenums.h"
#include "quillet/frame/types.h"
#include "quillet/platform/ListControl.h"

namespace quillet {

class clsDate {
public:
    // Constants -------------------------------------------------------------
    [[nodiscard]] String FORMAT_FUNCTION_TIME_FORMAT() const { return u"Hh:Nn:Ss AM/PM"; }
    // A picture for a host date picker control, never given to the formatter.
    [[nodiscard]] String DTPICKER_CONTROL_TIME_FORMAT() const { return u"hh:mm:ss tt"; }
    [[nodiscard]] String FORMAT_FUNCTION_DATE_FORMAT() const { return u"dd/mm/yyyy"; }
    [[nodiscard]] String TIME_START_OF_DAY() const { return u"12:00:00 AM"; }
    [[nodiscard]] String TIME_END_OF_DAY() const { return u"11:59:59 PM"; }
    [[nodiscard]] Long HOURS_PER_DAY() const { return 24; }
    [[nodiscard]] Date EARLIEST_DATE() const { return Date(-36522.0); }  // 1 January 1800
    [[nodiscard]] Date LATEST_DATE() const { return Date(402133.0); }    // 31 December 3000
    // The date part of the database server's unset date; the blank belongs to it.
    [[nodiscard]] String MS_SQL_SERVER_NULL_DATE_VALUE() const { return u"1900-01-01 "; }

    // Format strings --------------------------------------------------------
    // getDatePreview - the value written with the host date format (weeks from
    // Sunday, week 1 holds 1 January), upper-cased when asked. A value that
    // reads as no date comes back as it is.
    [[nodiscard]] String getDatePreview(const String& date_value_, const String& date_format_string_,
                                        Boolean return_capitalized_) const;
    // getDateFormatEnumToString - a system picture; "M/d/yy" for an unknown value.
    [[nodiscard]] String getDateFormatEnumToString(QltStandardDateFormats date_format_enum_) const;
    // getTimeFormatEnumToString - a host date format; "" for an unknown value.
    [[nodiscard]] String getTimeFormatEnumToString(QltStandardTimeFormats standard_time_format_) const;
    // validateDateFormat - d, M and y in the system's case outside double
    // quotes; quoted text kept as it is (an open quote stays open).
    [[nodiscard]] String validateDateFormat(const String& date_format_string_) const;
    // getDateVBFormatFromSystemformat - every ' becomes ".
    [[nodiscard]] String getDateVBFormatFromSystemformat(const String& sys_date_format_) const;
    // getDateSystemFormatFromVBFormat - every " becomes '.
    [[nodiscard]] String getDateSystemFormatFromVBFormat(const String& vb_date_format_) const;
    // removeWeekdayFromLongDateFormat - commas become blanks and weekday
    // names (full, then abbreviated, any case) are removed; blanks stay.
    [[nodiscard]] String removeWeekdayFromLongDateFormat(const String& date_) const;
    // getVBDateFromDateFormat - short date for general and short, long date
    // for long, general date otherwise.
    [[nodiscard]] VbDateTimeFormat getVBDateFromDateFormat(QltDateFormat date_format_) const;
    // getVBTimeFromTimeFormat - long time for general and long, short time
    // for short, general date otherwise.
    [[nodiscard]] VbDateTimeFormat getVBTimeFromTimeFormat(QltTimeFormat time_format_) const;

    // Comparisons (the sign runs from the first argument to the second) -----
    // dateComp - 1 when date2_ is a later day, -1 earlier, 0 the same day or
    // when a value cannot be read. Empty counts as 30 December 1899.
    [[nodiscard]] Long dateComp(const Variant& date1_, const Variant& date2_) const;
    // timeComp - the sign of timeDiff.
    [[nodiscard]] Long timeComp(const Variant& time1_, const Variant& time2_) const;
    // timeDiff - seconds from time1_ to time2_; 0 when a value cannot be read.
    [[nodiscard]] Long timeDiff(const Variant& time1_, const Variant& time2_) const;

    // fillBoxWithDays - the full weekday names in the system's order, each
    // item's data its VbDayOfWeek number. Nothing does nothing.
    void fillBoxWithDays(const std::shared_ptr<ListControl>& box_) const;
    // getRangeStartDate, getRangeEndDate - the first and last day of a log
    // filter's range, at midnight; Date 0 for ADM_LCD_CUSTOM and unknown values.
    [[nodiscard]] Date getRangeStartDate(AdmLogChoiceDate date_range_option_) const;
    [[nodiscard]] Date getRangeEndDate(AdmLogChoiceDate date_range_option_) const;
    // timeToNumber - "HH:NN:SS" without colons as a Long: 13:45:07 is 134507;
    // 0 when that is no number.
    [[nodiscard]] Long timeToNumber(const Variant& time_) const;

    // Weekday sets ----------------------------------------------------------
    // isDayPresentInDays - day_ of exactly three letters found in days_, any case.
    [[nodiscard]] Boolean isDayPresentInDays(const String& days_, const String& day_) const;
    // isDaySelected - some item equals weekday_enum; Nothing gives False.
    [[nodiscard]] Boolean isDaySelected(Long weekday_enum, const std::shared_ptr<Collection>& selected_days_) const;
    // getDaysStringFromCollection - abbreviated names in collection order,
    // blank-separated; Nothing gives "".
    [[nodiscard]] String getDaysStringFromCollection(const std::shared_ptr<Collection>& selected_days_) const;

    // First and last days ---------------------------------------------------
    [[nodiscard]] Date getFirstDayOfMonth(Date date_) const;
    [[nodiscard]] Date getLastDayOfMonth(Date date_) const;
    // getFirstDayOfWeekEnum - the system's first day of the week, learnt from
    // getFirstDayOfWeek of today.
    [[nodiscard]] VbDayOfWeek getFirstDayOfWeekEnum() const;
    // getFirstDayOfWeek - the first day of date_'s week in the system's week.
    [[nodiscard]] Date getFirstDayOfWeek(Date date_) const;
    // getLastDayOfWeek - the Saturday of date_'s Sunday-based week, whatever
    // the system's first day is.
    [[nodiscard]] Date getLastDayOfWeek(Date date_) const;
    // getFirstDayOfYear, getLastDayOfYear - 1 January and 31 December of the
    // current year; date_ is not used.
    [[nodiscard]] Date getFirstDayOfYear(Date date_) const;
    [[nodiscard]] Date getLastDayOfYear(Date date_) const;

    // Standard conversions (Empty for an empty or blank value; a Variant
    // holding "" when the conversion fails) ----------------------------------
    // variantToDateStd - the short date text, or Empty when the value has no date.
    [[nodiscard]] Variant variantToDateStd(const Variant& date_value_) const;
    // dateToStringStd - the value's plain text; "" when empty or on failure.
    [[nodiscard]] String dateToStringStd(const Variant& date_value_) const;
    // variantToTimeStd - the time part as a Date without date, or Empty when
    // the value holds no time.
    [[nodiscard]] Variant variantToTimeStd(const Variant& time_value_, Boolean include_midnight_ = False) const;
    // timeToStringStd - the same routine as dateToStringStd.
    [[nodiscard]] String timeToStringStd(const Variant& time_value_) const;
    // removeSecondsIfZero - "11:30:00 PM" gives "11:30 PM".
    [[nodiscard]] String removeSecondsIfZero(const String& date_time_str_) const;
    // variantToDateTimeStd - the value as a Date.
    [[nodiscard]] Variant variantToDateTimeStd(const Variant& date_time_value_) const;
    // variantToDateTimeOptionStd - date, time or date and time by the option.
    [[nodiscard]] Variant variantToDateTimeOptionStd(const Variant& date_time_value_,
                                                     QltDateTimeOption date_time_option_) const;
    // variantToISODateTime - "yyyy-mm-dd hh:mm:ss"; a text that reads as no
    // date comes back unchanged.
    [[nodiscard]] Variant variantToISODateTime(const Variant& date_time_value_) const;
    // getValidatedDateTimeOption - QLT_DTO_DATE and QLT_DTO_TIME as they are,
    // everything else QLT_DTO_DATE_TIME.
    [[nodiscard]] QltDateTimeOption getValidatedDateTimeOption(QltDateTimeOption date_time_option_) const;
    [[nodiscard]] Boolean isDateOptionAvailable(QltDateTimeOption date_time_option_) const;
    [[nodiscard]] Boolean isTimeOptionAvailable(QltDateTimeOption date_time_option_) const;
    // containsDateValue - the short date text differs from that of 0.
    [[nodiscard]] Boolean containsDateValue(const Variant& date_time_value_) const;
    // containsTimeValue - no date, a time other than midnight, or midnight
    // when include_midnight_ is true. False when the value cannot be formatted.
    [[nodiscard]] Boolean containsTimeValue(const Variant& date_time_value_, Boolean include_midnight_ = False) const;
    // removeNullDateFromString - the long time text when the text holds the
    // server's null date (1 January 1900) as a short date; else unchanged.
    [[nodiscard]] String removeNullDateFromString(const String& date_time_value_) const;
};

}  // namespace quillet
