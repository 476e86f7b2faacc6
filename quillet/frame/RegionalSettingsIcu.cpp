// RegionalSettings::fromLocale - a profile built from ICU's locale data.
//
// ICU's patterns are close to the picture language of the profiles but not
// the same; the mapping below follows a few rules rather than special cases,
// and with them "en_US" gives exactly the default profile:
//
//   - short date: ICU's short date pattern, every year field written "yyyy"
//     (the profiles show a four-digit year there: "M/d/yy" -> "M/d/yyyy",
//     "dd.MM.yy" -> "dd.MM.yyyy", "dd/MM/y" -> "dd/MM/yyyy");
//   - long date: ICU's full date pattern (the one with the weekday name);
//   - long time: ICU's medium time pattern (seconds, no time zone);
//   - short time: ICU's short time pattern;
//   - fields: weekday names "ddd"/"dddd", day-period marks "tt", 12-hour
//     hours "h"/"hh", 24-hour "H"/"HH", at most two letters for day, hour,
//     minute and second; time zones, eras and fractions of a second are
//     dropped with the blanks before them;
//   - ICU's narrow and no-break spaces become plain blanks, and direction
//     marks go, since the picture language has neither;
//   - literal letters are put in single quotes, punctuation stays bare;
//   - names are ICU's format forms, taken as they are;
//   - digits and separators come from the Latin numbering system, which is
//     the one number text writes.
#include "quillet/frame/RegionalSettings.h"

#include <unicode/calendar.h>
#include <unicode/datefmt.h>
#include <unicode/dcfmtsym.h>
#include <unicode/dtfmtsym.h>
#include <unicode/locid.h>
#include <unicode/smpdtfmt.h>
#include <unicode/uchar.h>

#include <memory>
#include <string>

namespace quillet {

namespace {

String toString(const icu::UnicodeString& s) {
    return String(reinterpret_cast<const char16_t*>(s.getBuffer()), static_cast<std::size_t>(s.length()));
}

String fromAscii(std::string_view s) { return String(s.begin(), s.end()); }

enum class YearForm { FourDigits, AsGiven };

bool isPatternLetter(char16_t c) noexcept { return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z'); }

// Blanks the picture language knows as plain blanks; marks it has no use for.
char16_t normaliseLiteral(char16_t c) noexcept {
    switch (c) {
        case 0x00A0:
        case 0x202F:
        case 0x2009:
        case 0x2007: return u' ';
        case 0x200E:
        case 0x200F:
        case 0x061C: return 0;
        default: return c;
    }
}

void appendLiteral(String& out, char16_t c) {
    c = normaliseLiteral(c);
    if (c == 0) return;
    if (isPatternLetter(c) || c == u'\'' || (c > 0x7F && u_isalpha(c))) {
        // Quote letters so they are never taken for fields; join with an
        // open quote just before.
        if (out.size() >= 2 && out.back() == u'\'' && out[out.size() - 2] != u'\'') {
            out.pop_back();
        } else {
            out += u'\'';
        }
        if (c == u'\'') out += u"''";
        else out += c;
        out += u'\'';
    } else {
        out += c;
    }
}

void trimTrailingBlanks(String& s) {
    while (!s.empty() && s.back() == u' ') s.pop_back();
}

// Converts an ICU date/time pattern into the picture language.
String convertPattern(const icu::UnicodeString& icuPattern, YearForm years) {
    const String p = toString(icuPattern);
    String out;
    bool dropBlanks = false;  // after a dropped field, its separating blanks go too
    for (std::size_t i = 0; i < p.size();) {
        const char16_t c = p[i];
        if (c == u'\'') {
            // Quoted literal; '' stands for one quote.
            std::size_t j = i + 1;
            if (j < p.size() && p[j] == u'\'') {
                appendLiteral(out, u'\'');
                i = j + 1;
                continue;
            }
            for (; j < p.size(); ++j) {
                if (p[j] == u'\'') {
                    if (j + 1 < p.size() && p[j + 1] == u'\'') {
                        appendLiteral(out, u'\'');
                        ++j;
                        continue;
                    }
                    break;
                }
                appendLiteral(out, p[j]);
            }
            i = j + 1;
            dropBlanks = false;
            continue;
        }
        if (!isPatternLetter(c)) {
            const char16_t lit = normaliseLiteral(c);
            if (!(dropBlanks && lit == u' ')) appendLiteral(out, c);
            if (lit != u' ' && lit != 0) dropBlanks = false;
            ++i;
            continue;
        }
        std::size_t n = 1;
        while (i + n < p.size() && p[i + n] == c) ++n;
        i += n;
        const auto upTo = [](std::size_t count, std::size_t most) { return count < most ? count : most; };
        String field;
        switch (c) {
            case u'y':
            case u'Y':
            case u'u':
            case u'U':
            case u'r': field = (years == YearForm::AsGiven && n == 2) ? u"yy" : u"yyyy"; break;
            case u'M':
            case u'L': field.assign(upTo(n, 4), u'M'); break;
            case u'd': field.assign(upTo(n, 2), u'd'); break;
            case u'E': field = n >= 4 ? u"dddd" : u"ddd"; break;
            case u'c':
            case u'e':
                if (n >= 3) field = n >= 4 ? u"dddd" : u"ddd";
                break;
            case u'a':
            case u'b':
            case u'B': field = u"tt"; break;
            case u'h':
            case u'K': field.assign(upTo(n, 2), u'h'); break;
            case u'H':
            case u'k': field.assign(upTo(n, 2), u'H'); break;
            case u'm': field.assign(upTo(n, 2), u'm'); break;
            case u's': field.assign(upTo(n, 2), u's'); break;
            default: break;  // zones, eras, fractions, week numbers: not in the picture language
        }
        if (field.empty()) {
            trimTrailingBlanks(out);
            dropBlanks = true;
        } else {
            out += field;
            dropBlanks = false;
        }
    }
    trimTrailingBlanks(out);
    std::size_t lead = 0;
    while (lead < out.size() && out[lead] == u' ') ++lead;
    return out.substr(lead);
}

// The literal text between the first two fields of a converted pattern,
// blanks trimmed: "/" in "M/d/yyyy", "." in "dd.MM.yyyy", ":" in "h:mm tt".
String separatorOf(const String& pattern, String fallback) {
    std::size_t i = 0;
    while (i < pattern.size() && !isPatternLetter(pattern[i])) ++i;
    while (i < pattern.size() && isPatternLetter(pattern[i])) ++i;
    std::size_t j = i;
    while (j < pattern.size() && !isPatternLetter(pattern[j]) && pattern[j] != u'\'') ++j;
    String sep = pattern.substr(i, j - i);
    while (!sep.empty() && sep.back() == u' ') sep.pop_back();
    while (!sep.empty() && sep.front() == u' ') sep.erase(0, 1);
    return sep.empty() ? fallback : sep;
}

DateOrder orderOf(const String& shortDate) {
    bool quoted = false;
    bool dayBeforeMonth = false;
    bool seenDay = false;
    for (char16_t c : shortDate) {
        if (c == u'\'') quoted = !quoted;
        if (quoted) continue;
        if (c == u'y') return seenDay || dayBeforeMonth ? DateOrder::DayMonthYear : DateOrder::YearMonthDay;
        if (c == u'd') seenDay = true;
        if (c == u'M') return seenDay ? DateOrder::DayMonthYear : DateOrder::MonthDayYear;
    }
    return DateOrder::MonthDayYear;
}

// The ANSI code page the platform pairs with a language.
Long ansiCodePageOf(const icu::Locale& locale) {
    const std::string lang = locale.getLanguage();
    icu::Locale full(locale);
    UErrorCode status = U_ZERO_ERROR;
    full.addLikelySubtags(status);
    const std::string script = U_SUCCESS(status) ? full.getScript() : "";
    const std::string country = U_SUCCESS(status) ? full.getCountry() : locale.getCountry();

    auto any = [&](std::initializer_list<const char*> names) {
        for (const char* n : names)
            if (lang == n) return true;
        return false;
    };
    if (any({"cs", "pl", "hu", "sk", "sl", "hr", "ro", "sq", "bs", "hsb", "dsb", "tk"})) {
        return (lang == "bs" && script == "Cyrl") ? 1251 : 1250;
    }
    if (lang == "sr") return script == "Latn" ? 1250 : 1251;
    if (any({"ru", "uk", "bg", "be", "mk", "kk", "ky", "tt", "mn", "ba", "sah", "tg"})) return 1251;
    if (lang == "el") return 1253;
    if (any({"tr", "az", "uz"})) return (script == "Cyrl") ? 1251 : 1254;
    if (any({"he", "yi"})) return 1255;
    if (any({"ar", "fa", "ur", "ps", "sd", "ug", "ckb"})) return 1256;
    if (any({"et", "lv", "lt"})) return 1257;
    if (lang == "vi") return 1258;
    if (lang == "th") return 874;
    if (lang == "ja") return 932;
    if (lang == "ko") return 949;
    if (lang == "zh") {
        if (script == "Hant" || country == "TW" || country == "HK" || country == "MO") return 950;
        return 936;
    }
    return 1252;
}

icu::UnicodeString patternOf(std::unique_ptr<icu::DateFormat> format) {
    icu::UnicodeString pattern;
    if (auto* simple = dynamic_cast<icu::SimpleDateFormat*>(format.get())) simple->toPattern(pattern);
    return pattern;
}

}  // namespace

RegionalSettings RegionalSettings::fromLocale(std::string_view localeName) {
    RegionalSettings s;
    // An empty name would make ICU use the process's default locale, which
    // comes from the environment; the root data stands in for it instead.
    const std::string name(localeName);
    const icu::Locale locale = name.empty() ? icu::Locale::getRoot() : icu::Locale(name.c_str());
    if (locale.isBogus()) return s;
    s.localeName = fromAscii(locale.getName());

    UErrorCode status = U_ZERO_ERROR;
    icu::Locale latn(locale);
    latn.setKeywordValue("numbers", "latn", status);
    status = U_ZERO_ERROR;
    const icu::DecimalFormatSymbols numbers(latn, status);
    if (U_SUCCESS(status)) {
        const String dec = toString(numbers.getSymbol(icu::DecimalFormatSymbols::kDecimalSeparatorSymbol));
        const String group = toString(numbers.getSymbol(icu::DecimalFormatSymbols::kGroupingSeparatorSymbol));
        if (!dec.empty()) s.decimalSeparator = dec;
        s.thousandSeparator = group;
    }

    const icu::UnicodeString shortDate = patternOf(
        std::unique_ptr<icu::DateFormat>(icu::DateFormat::createDateInstance(icu::DateFormat::kShort, locale)));
    const icu::UnicodeString fullDate = patternOf(
        std::unique_ptr<icu::DateFormat>(icu::DateFormat::createDateInstance(icu::DateFormat::kFull, locale)));
    const icu::UnicodeString mediumTime = patternOf(
        std::unique_ptr<icu::DateFormat>(icu::DateFormat::createTimeInstance(icu::DateFormat::kMedium, locale)));
    const icu::UnicodeString shortTime = patternOf(
        std::unique_ptr<icu::DateFormat>(icu::DateFormat::createTimeInstance(icu::DateFormat::kShort, locale)));
    if (!shortDate.isEmpty()) s.shortDatePattern = convertPattern(shortDate, YearForm::FourDigits);
    if (!fullDate.isEmpty()) s.longDatePattern = convertPattern(fullDate, YearForm::AsGiven);
    if (!mediumTime.isEmpty()) s.longTimePattern = convertPattern(mediumTime, YearForm::AsGiven);
    if (!shortTime.isEmpty()) s.shortTimePattern = convertPattern(shortTime, YearForm::AsGiven);
    s.dateSeparator = separatorOf(s.shortDatePattern, u"/");
    s.timeSeparator = separatorOf(s.shortTimePattern, u":");
    s.dateOrder = orderOf(s.shortDatePattern);

    status = U_ZERO_ERROR;
    const icu::DateFormatSymbols symbols(locale, status);
    if (U_SUCCESS(status)) {
        int32_t count = 0;
        const icu::UnicodeString* marks = symbols.getAmPmStrings(count);
        if (count >= 2) {
            s.amMark = toString(marks[0]);
            s.pmMark = toString(marks[1]);
        }
        using Sym = icu::DateFormatSymbols;
        const icu::UnicodeString* months = symbols.getMonths(count, Sym::FORMAT, Sym::WIDE);
        for (int32_t i = 0; i < 12 && i < count; ++i) s.monthNames[static_cast<std::size_t>(i)] = toString(months[i]);
        months = symbols.getMonths(count, Sym::FORMAT, Sym::ABBREVIATED);
        for (int32_t i = 0; i < 12 && i < count; ++i)
            s.monthAbbreviations[static_cast<std::size_t>(i)] = toString(months[i]);
        // ICU's weekday arrays start at index 1 (Sunday).
        const icu::UnicodeString* days = symbols.getWeekdays(count, Sym::FORMAT, Sym::WIDE);
        for (int32_t i = 1; i <= 7 && i < count; ++i) s.dayNames[static_cast<std::size_t>(i - 1)] = toString(days[i]);
        days = symbols.getWeekdays(count, Sym::FORMAT, Sym::ABBREVIATED);
        for (int32_t i = 1; i <= 7 && i < count; ++i)
            s.dayAbbreviations[static_cast<std::size_t>(i - 1)] = toString(days[i]);
    }

    status = U_ZERO_ERROR;
    std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(locale, status));
    if (U_SUCCESS(status) && calendar) {
        // ICU numbers weekdays 1 Sunday .. 7 Saturday, as VbDayOfWeek does.
        const UCalendarDaysOfWeek first = calendar->getFirstDayOfWeek(status);
        if (U_SUCCESS(status)) s.firstDayOfWeek = static_cast<Long>(first);
    }

    s.ansiCodePage = ansiCodePageOf(locale);
    return s;
}

}  // namespace quillet
