// quillet/frame/RegionalSettings.h - everything the library takes from the
// user's regional settings, as one value per thread.
//
// The library never reads the environment for this: a thread starts with the
// US English profile, and a host sets another one if it wants.
//
//   RegionalSettings::current().decimalSeparator;           // u"."
//   RegionalSettings::setCurrent(RegionalSettings::fromLocale("de_DE"));
//   numberText(1.5);                                        // u"1,5"
//   {
//       RegionalScope us(RegionalSettings::usEnglish());    // for one scope
//       numberText(1.5);                                    // u"1.5"
//   }
//
// Patterns use the system picture language: d, dd, ddd, dddd; M, MM, MMM,
// MMMM; y, yy, yyyy; h, hh (12-hour), H, HH (24-hour); m, mm minutes; s, ss;
// t, tt the AM/PM mark; literal text in single quotes.
#pragma once

#include <array>
#include <string_view>

#include "quillet/frame/types.h"

namespace quillet {

// The order of day, month and year in a date typed without names.
enum class DateOrder { MonthDayYear, DayMonthYear, YearMonthDay };

struct RegionalSettings {
    String localeName = u"en_US";  // the ICU locale the profile came from
    String decimalSeparator = u".";
    String thousandSeparator = u",";  // the grouping mark; number text never writes it
    String dateSeparator = u"/";
    String timeSeparator = u":";
    String shortDatePattern = u"M/d/yyyy";
    String longDatePattern = u"dddd, MMMM d, yyyy";
    String longTimePattern = u"h:mm:ss tt";
    String shortTimePattern = u"h:mm tt";
    String amMark = u"AM";
    String pmMark = u"PM";
    std::array<String, 12> monthNames{u"January", u"February", u"March",     u"April",   u"May",      u"June",
                                      u"July",    u"August",   u"September", u"October", u"November", u"December"};
    std::array<String, 12> monthAbbreviations{u"Jan", u"Feb", u"Mar", u"Apr", u"May", u"Jun",
                                              u"Jul", u"Aug", u"Sep", u"Oct", u"Nov", u"Dec"};
    // Indexed from Sunday (0) to Saturday (6), whatever the first day is.
    std::array<String, 7> dayNames{u"Sunday", u"Monday", u"Tuesday", u"Wednesday", u"Thursday", u"Friday", u"Saturday"};
    std::array<String, 7> dayAbbreviations{u"Sun", u"Mon", u"Tue", u"Wed", u"Thu", u"Fri", u"Sat"};
    Long firstDayOfWeek = 1;  // VbDayOfWeek: 1 Sunday .. 7 Saturday
    DateOrder dateOrder = DateOrder::MonthDayYear;
    Long ansiCodePage = 1252;

    // usEnglish - the default profile.
    [[nodiscard]] static RegionalSettings usEnglish();
    // fromLocale - a profile built from ICU's data for a locale name such as
    // "de_DE", "en_GB" or "fr-FR". The ANSI code page follows the language
    // (1250 central European, 1251 Cyrillic, 1252 western, 1253 Greek, 1254
    // Turkish, ...). An unknown name gives ICU's root data, which ICU itself
    // falls back to; nothing fails.
    [[nodiscard]] static RegionalSettings fromLocale(std::string_view localeName);

    // current - the calling thread's profile.
    [[nodiscard]] static const RegionalSettings& current() noexcept;
    static void setCurrent(RegionalSettings settings);
};

// RegionalScope - switches the calling thread's profile until the end of the
// scope, then puts the previous one back. For tests and for hosts that format
// one document under another profile.
class RegionalScope {
public:
    explicit RegionalScope(RegionalSettings settings);
    ~RegionalScope();
    RegionalScope(const RegionalScope&) = delete;
    RegionalScope& operator=(const RegionalScope&) = delete;

private:
    RegionalSettings m_previous;
};

}  // namespace quillet
