// The host date formatter works in two stages: a format is tokenized once
// (the last few per thread are kept, since the same formats come back all the
// time) and the tokens are rendered for each value. The profile's own
// patterns, written in the system picture language, are tokenized the same
// way into the same tokens.
#include "quillet/frame/DateText.h"

#include <array>
#include <cmath>
#include <memory>
#include <vector>

#include "quillet/frame/Calendar.h"
#include "quillet/frame/Clock.h"
#include "quillet/frame/Failure.h"
#include "quillet/frame/NumberText.h"
#include "quillet/frame/RegionalSettings.h"
#include "quillet/frame/TextCompare.h"
#include "quillet/frame/chars.h"
#include "quillet/frame/convert.h"

namespace quillet {

namespace {

// ---------------------------------------------------------------------------
// Tokens

enum class Tok : std::uint8_t {
    Literal,
    Day,
    Day2,
    DayAbbr,
    DayName,
    ShortDate,
    LongDate,
    GeneralDate,
    LongTime,
    Month,
    Month2,
    MonthAbbr,
    MonthName,
    DayOfYear,
    Year2,
    Year4,
    Hour24,
    Hour24_2,
    Hour12,
    Hour12_2,
    Minute,
    Minute2,
    Second,
    Second2,
    AmPmWritten,  // the marks as the format writes them: text before noon, text2 after
    AmPmProfile,
    AmPmProfileFirst,  // the first letter of the profile's mark
    DateSep,
    TimeSep,
    WeekDay,
    WeekOfYear,
    Quarter,
};

struct Token {
    Tok kind;
    String text;
    String text2;
};

using Tokens = std::vector<Token>;

char16_t lowerAscii(char16_t c) noexcept { return (c >= u'A' && c <= u'Z') ? static_cast<char16_t>(c + 32) : c; }

bool startsWithNoCase(StringView text, std::size_t at, std::u16string_view lowerWord) noexcept {
    if (text.size() - at < lowerWord.size()) return false;
    for (std::size_t k = 0; k < lowerWord.size(); ++k)
        if (lowerAscii(text[at + k]) != lowerWord[k]) return false;
    return true;
}

void addLiteral(Tokens& tokens, StringView text) {
    if (text.empty()) return;
    if (!tokens.empty() && tokens.back().kind == Tok::Literal) tokens.back().text.append(text);
    else tokens.push_back({Tok::Literal, String(text), {}});
}

void add(Tokens& tokens, Tok kind) { tokens.push_back({kind, {}, {}}); }

std::size_t runLength(StringView text, std::size_t at, bool ignoreCase) noexcept {
    const char16_t c = ignoreCase ? lowerAscii(text[at]) : text[at];
    std::size_t n = 1;
    while (at + n < text.size() && (ignoreCase ? lowerAscii(text[at + n]) : text[at + n]) == c) ++n;
    return n;
}

// The host language's format: letters in any case, "literal", \x.
Tokens tokenizeHost(StringView f) {
    Tokens tokens;
    bool twelveHour = false;
    std::size_t i = 0;
    while (i < f.size()) {
        const char16_t c = f[i];
        const char16_t lc = lowerAscii(c);
        if (c == u'"') {
            const std::size_t close = f.find(u'"', i + 1);
            const std::size_t end = close == StringView::npos ? f.size() : close;
            addLiteral(tokens, f.substr(i + 1, end - i - 1));
            i = close == StringView::npos ? f.size() : close + 1;
            continue;
        }
        if (c == u'\\') {
            if (i + 1 < f.size()) addLiteral(tokens, f.substr(i + 1, 1));
            i += 2;
            continue;
        }
        if (c == u'/') {
            add(tokens, Tok::DateSep);
            ++i;
            continue;
        }
        if (c == u':') {
            add(tokens, Tok::TimeSep);
            ++i;
            continue;
        }
        if (lc == u'a') {
            if (startsWithNoCase(f, i, u"am/pm")) {
                tokens.push_back({Tok::AmPmWritten, String(f.substr(i, 2)), String(f.substr(i + 3, 2))});
                twelveHour = true;
                i += 5;
            } else if (startsWithNoCase(f, i, u"a/p")) {
                tokens.push_back({Tok::AmPmWritten, String(f.substr(i, 1)), String(f.substr(i + 2, 1))});
                twelveHour = true;
                i += 3;
            } else if (startsWithNoCase(f, i, u"ampm")) {
                add(tokens, Tok::AmPmProfile);
                twelveHour = true;
                i += 4;
            } else {
                addLiteral(tokens, f.substr(i, 1));
                ++i;
            }
            continue;
        }
        const std::size_t run = runLength(f, i, true);
        std::size_t used = 1;
        switch (lc) {
            case u'd': {
                static constexpr Tok kinds[] = {Tok::Day,     Tok::Day2,      Tok::DayAbbr,
                                                Tok::DayName, Tok::ShortDate, Tok::LongDate};
                used = std::min<std::size_t>(run, 6);
                add(tokens, kinds[used - 1]);
                break;
            }
            case u'm': {
                static constexpr Tok kinds[] = {Tok::Month, Tok::Month2, Tok::MonthAbbr, Tok::MonthName};
                used = std::min<std::size_t>(run, 4);
                Tok kind = kinds[used - 1];
                if (used <= 2) {
                    // Minutes when an hour stands straight before, a colon allowed between.
                    std::size_t k = tokens.size();
                    while (k > 0 && tokens[k - 1].kind == Tok::TimeSep) --k;
                    if (k > 0 && (tokens[k - 1].kind == Tok::Hour24 || tokens[k - 1].kind == Tok::Hour24_2))
                        kind = used == 1 ? Tok::Minute : Tok::Minute2;
                }
                add(tokens, kind);
                break;
            }
            case u'y':
                used = run >= 4 ? 4 : run >= 2 ? 2 : 1;
                add(tokens, used == 4 ? Tok::Year4 : used == 2 ? Tok::Year2 : Tok::DayOfYear);
                break;
            case u'h':
                used = std::min<std::size_t>(run, 2);
                add(tokens, used == 1 ? Tok::Hour24 : Tok::Hour24_2);
                break;
            case u'n':
                used = std::min<std::size_t>(run, 2);
                add(tokens, used == 1 ? Tok::Minute : Tok::Minute2);
                break;
            case u's':
                used = std::min<std::size_t>(run, 2);
                add(tokens, used == 1 ? Tok::Second : Tok::Second2);
                break;
            case u'w':
                used = std::min<std::size_t>(run, 2);
                add(tokens, used == 1 ? Tok::WeekDay : Tok::WeekOfYear);
                break;
            case u'q': add(tokens, Tok::Quarter); break;
            case u'c': add(tokens, Tok::GeneralDate); break;
            case u't':
                if (run >= 5) {
                    used = 5;
                    add(tokens, Tok::LongTime);
                } else {
                    addLiteral(tokens, f.substr(i, 1));
                }
                break;
            default: addLiteral(tokens, f.substr(i, 1)); break;
        }
        i += used;
    }
    if (twelveHour)
        for (Token& t : tokens) {
            if (t.kind == Tok::Hour24) t.kind = Tok::Hour12;
            if (t.kind == Tok::Hour24_2) t.kind = Tok::Hour12_2;
        }
    return tokens;
}

// The system picture language of the profile's patterns: case matters, H is
// the 24-hour clock, m minutes, t the mark, 'literal'.
Tokens tokenizePicture(StringView f) {
    Tokens tokens;
    std::size_t i = 0;
    while (i < f.size()) {
        const char16_t c = f[i];
        if (c == u'\'') {
            const std::size_t close = f.find(u'\'', i + 1);
            const std::size_t end = close == StringView::npos ? f.size() : close;
            addLiteral(tokens, f.substr(i + 1, end - i - 1));
            i = close == StringView::npos ? f.size() : close + 1;
            continue;
        }
        const std::size_t run = runLength(f, i, false);
        switch (c) {
            case u'd': {
                static constexpr Tok kinds[] = {Tok::Day, Tok::Day2, Tok::DayAbbr, Tok::DayName};
                add(tokens, kinds[std::min<std::size_t>(run, 4) - 1]);
                break;
            }
            case u'M': {
                static constexpr Tok kinds[] = {Tok::Month, Tok::Month2, Tok::MonthAbbr, Tok::MonthName};
                add(tokens, kinds[std::min<std::size_t>(run, 4) - 1]);
                break;
            }
            case u'y': add(tokens, run <= 2 ? Tok::Year2 : Tok::Year4); break;
            case u'h': add(tokens, run == 1 ? Tok::Hour12 : Tok::Hour12_2); break;
            case u'H': add(tokens, run == 1 ? Tok::Hour24 : Tok::Hour24_2); break;
            case u'm': add(tokens, run == 1 ? Tok::Minute : Tok::Minute2); break;
            case u's': add(tokens, run == 1 ? Tok::Second : Tok::Second2); break;
            case u't': add(tokens, run == 1 ? Tok::AmPmProfileFirst : Tok::AmPmProfile); break;
            case u'g': break;  // era: the library's calendars have one
            default: addLiteral(tokens, f.substr(i, run)); break;
        }
        i += run;
    }
    return tokens;
}

// The last few tokenized formats of this thread, replaced in turn.
std::shared_ptr<const Tokens> tokensFor(StringView format, bool picture) {
    struct Entry {
        bool picture = false;
        String format;
        std::shared_ptr<const Tokens> tokens;
    };
    constexpr std::size_t CACHE_SIZE = 8;
    thread_local std::array<Entry, CACHE_SIZE> cache;
    thread_local std::size_t next = 0;
    for (const Entry& e : cache)
        if (e.tokens && e.picture == picture && e.format == format) return e.tokens;
    auto tokens = std::make_shared<const Tokens>(picture ? tokenizePicture(format) : tokenizeHost(format));
    cache[next] = {picture, String(format), tokens};
    next = (next + 1) % CACHE_SIZE;
    return tokens;
}

// ---------------------------------------------------------------------------
// Rendering

void appendNumber(String& out, long long value, int minDigits) {
    char16_t buffer[24];
    int n = 0;
    const bool negative = value < 0;
    unsigned long long v =
        negative ? 0ULL - static_cast<unsigned long long>(value) : static_cast<unsigned long long>(value);
    do {
        buffer[n++] = static_cast<char16_t>(u'0' + v % 10);
        v /= 10;
    } while (v != 0);
    while (n < minDigits) buffer[n++] = u'0';
    if (negative) out.push_back(u'-');
    while (n > 0) out.push_back(buffer[--n]);
}

struct Moment {
    Date value;
    calendar::DateParts parts;
    std::int64_t day;  // calendar day after the time was rounded
    int secondOfDay;   // 0 .. 86399
};

Moment momentOf(Date value) {
    const calendar::DaySecond ds = calendar::daySecond(value);
    return {value, calendar::split(ds), ds.day, ds.second};
}

int sundayWeekday(const Moment& m) { return calendar::weekday(Date(static_cast<double>(m.day)), vbSunday); }

void render(String& out, const Tokens& tokens, const Moment& m, VbDayOfWeek firstDay, VbFirstWeekOfYear firstWeek);

void renderPattern(String& out, const String& pattern, const Moment& m) {
    const auto tokens = tokensFor(pattern, true);
    render(out, *tokens, m, vbSunday, vbFirstJan1);
}

void renderGeneral(String& out, const Moment& m) {
    const RegionalSettings& rs = RegionalSettings::current();
    const bool hasDate = m.day != 0;
    const bool hasTime = m.secondOfDay != 0;
    if (hasDate) renderPattern(out, rs.shortDatePattern, m);
    if (hasDate && hasTime) out.push_back(u' ');
    if (hasTime || !hasDate) renderPattern(out, rs.longTimePattern, m);
}

void render(String& out, const Tokens& tokens, const Moment& m, VbDayOfWeek firstDay, VbFirstWeekOfYear firstWeek) {
    const RegionalSettings& rs = RegionalSettings::current();
    const calendar::DateParts& p = m.parts;
    const bool morning = p.hour < 12;
    const int hour12 = p.hour % 12 == 0 ? 12 : p.hour % 12;
    for (const Token& t : tokens) {
        switch (t.kind) {
            case Tok::Literal: out.append(t.text); break;
            case Tok::Day: appendNumber(out, p.day, 1); break;
            case Tok::Day2: appendNumber(out, p.day, 2); break;
            case Tok::DayAbbr: out.append(rs.dayAbbreviations[sundayWeekday(m) - 1]); break;
            case Tok::DayName: out.append(rs.dayNames[sundayWeekday(m) - 1]); break;
            case Tok::ShortDate: renderPattern(out, rs.shortDatePattern, m); break;
            case Tok::LongDate: renderPattern(out, rs.longDatePattern, m); break;
            case Tok::GeneralDate: renderGeneral(out, m); break;
            case Tok::LongTime: renderPattern(out, rs.longTimePattern, m); break;
            case Tok::Month: appendNumber(out, p.month, 1); break;
            case Tok::Month2: appendNumber(out, p.month, 2); break;
            case Tok::MonthAbbr: out.append(rs.monthAbbreviations[p.month - 1]); break;
            case Tok::MonthName: out.append(rs.monthNames[p.month - 1]); break;
            case Tok::DayOfYear: appendNumber(out, calendar::dayOfYear(Date(static_cast<double>(m.day))), 1); break;
            case Tok::Year2: appendNumber(out, p.year % 100, 2); break;
            case Tok::Year4: appendNumber(out, p.year, 1); break;
            case Tok::Hour24: appendNumber(out, p.hour, 1); break;
            case Tok::Hour24_2: appendNumber(out, p.hour, 2); break;
            case Tok::Hour12: appendNumber(out, hour12, 1); break;
            case Tok::Hour12_2: appendNumber(out, hour12, 2); break;
            case Tok::Minute: appendNumber(out, p.minute, 1); break;
            case Tok::Minute2: appendNumber(out, p.minute, 2); break;
            case Tok::Second: appendNumber(out, p.second, 1); break;
            case Tok::Second2: appendNumber(out, p.second, 2); break;
            case Tok::AmPmWritten: out.append(morning ? t.text : t.text2); break;
            case Tok::AmPmProfile: out.append(morning ? rs.amMark : rs.pmMark); break;
            case Tok::AmPmProfileFirst: {
                const String& mark = morning ? rs.amMark : rs.pmMark;
                if (!mark.empty()) out.push_back(mark.front());
                break;
            }
            case Tok::DateSep: out.append(rs.dateSeparator); break;
            case Tok::TimeSep: out.append(rs.timeSeparator); break;
            case Tok::WeekDay:
                appendNumber(out, calendar::weekday(Date(static_cast<double>(m.day)), firstDay), 1);
                break;
            case Tok::WeekOfYear: appendNumber(out, calendar::weekOfYear(m.value, firstDay, firstWeek), 1); break;
            case Tok::Quarter: appendNumber(out, (p.month - 1) / 3 + 1, 1); break;
        }
    }
}

// ---------------------------------------------------------------------------
// Reading

constexpr auto isBlank = chars::isDateBlank;
constexpr auto isDigit = chars::isAsciiDigit;

StringView trimmed(StringView s) noexcept {
    while (!s.empty() && isBlank(s.front())) s.remove_prefix(1);
    while (!s.empty() && isBlank(s.back())) s.remove_suffix(1);
    return s;
}

struct Item {
    enum Kind { Number, Word, TimeSep, Sep };
    explicit Item(Kind k) : kind(k) {}
    Kind kind;
    long long value = 0;
    int digits = 0;
    String word;  // folded
};

struct Year {
    long long value;
    int digits;
};

bool isTimeSeparator(char16_t c, const RegionalSettings& rs) noexcept {
    if (c == u':') return true;
    if (rs.timeSeparator.size() != 1) return false;
    const char16_t t = rs.timeSeparator.front();
    return c == t && t != u'.' && t != u'/' && t != u'-' && t != u',' && !isBlank(t) && !isDigit(t);
}

bool isDateSeparator(char16_t c, const RegionalSettings& rs) noexcept {
    if (isBlank(c) || c == u'/' || c == u'-' || c == u'.' || c == u',') return true;
    return rs.dateSeparator.size() == 1 && c == rs.dateSeparator.front() && !isDigit(c);
}

std::optional<std::vector<Item>> scan(StringView text, const RegionalSettings& rs) {
    std::vector<Item> items;
    std::size_t i = 0;
    while (i < text.size()) {
        const char16_t c = text[i];
        if (isDigit(c)) {
            Item item{Item::Number};
            while (i < text.size() && isDigit(text[i])) {
                if (++item.digits > 9) return std::nullopt;
                item.value = item.value * 10 + (text[i] - u'0');
                ++i;
            }
            items.push_back(std::move(item));
        } else if (isTimeSeparator(c, rs)) {
            items.emplace_back(Item::TimeSep);
            ++i;
        } else if (isDateSeparator(c, rs)) {
            items.emplace_back(Item::Sep);
            ++i;
        } else {
            const std::size_t start = i;
            while (i < text.size() && !isDigit(text[i]) && !isTimeSeparator(text[i], rs) &&
                   !isDateSeparator(text[i], rs))
                ++i;
            Item item{Item::Word};
            item.word = foldCase(text.substr(start, i - start));
            items.push_back(std::move(item));
        }
    }
    return items;
}

int monthOfName(const String& folded, const RegionalSettings& rs) {
    for (int k = 0; k < 12; ++k)
        if (folded == foldCase(rs.monthNames[k]) || folded == foldCase(rs.monthAbbreviations[k])) return k + 1;
    return 0;
}

bool isDayName(const String& folded, const RegionalSettings& rs) {
    for (int k = 0; k < 7; ++k)
        if (folded == foldCase(rs.dayNames[k]) || folded == foldCase(rs.dayAbbreviations[k])) return true;
    return false;
}

// 1 before noon, 2 after, 0 no mark.
int markOf(const String& folded, const RegionalSettings& rs) {
    if (folded == u"am" || (!rs.amMark.empty() && folded == foldCase(rs.amMark))) return 1;
    if (folded == u"pm" || (!rs.pmMark.empty() && folded == foldCase(rs.pmMark))) return 2;
    return 0;
}

std::optional<long long> fullYear(const Year& y) {
    long long v = y.value;
    if (y.digits <= 2) v += v < 30 ? 2000 : 1900;
    if (v < 100 || v > 9999) return std::nullopt;
    return v;
}

bool validDate(long long y, long long m, long long d) {
    return m >= 1 && m <= 12 && d >= 1 && d <= calendar::daysInMonth(static_cast<int>(y), static_cast<int>(m));
}

long long currentYear() { return calendar::split(Clock::today()).year; }

std::optional<Date> readText(StringView text) {
    text = trimmed(text);
    if (text.empty()) return std::nullopt;
    if (auto number = tryParseNumber(text)) {
        (void)calendar::split(Date(*number));  // fails for a serial that rounds out of the dates
        return Date(*number);
    }
    const RegionalSettings& rs = RegionalSettings::current();
    const auto scanned = scan(text, rs);
    if (!scanned) return std::nullopt;
    const std::vector<Item>& items = *scanned;

    std::vector<const Item*> numbers;
    int monthName = 0;
    bool hasTime = false;
    long long hour = 0, minute = 0, second = 0;
    int mark = 0;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const Item& it = items[i];
        switch (it.kind) {
            case Item::Number: {
                if (i + 1 < items.size() && items[i + 1].kind == Item::TimeSep) {
                    if (hasTime || i + 2 >= items.size() || items[i + 2].kind != Item::Number) return std::nullopt;
                    hasTime = true;
                    hour = it.value;
                    minute = items[i + 2].value;
                    i += 2;
                    if (i + 2 < items.size() && items[i + 1].kind == Item::TimeSep &&
                        items[i + 2].kind == Item::Number) {
                        second = items[i + 2].value;
                        i += 2;
                    }
                    break;
                }
                // A lone hour with a mark: "3 PM".
                std::size_t next = i + 1;
                if (next < items.size() && items[next].kind == Item::Sep && next + 1 < items.size()) ++next;
                if (next < items.size() && items[next].kind == Item::Word && markOf(items[next].word, rs) != 0 &&
                    !hasTime) {
                    hasTime = true;
                    hour = it.value;
                    break;
                }
                if (numbers.size() == 3) return std::nullopt;
                numbers.push_back(&it);
                break;
            }
            case Item::Word: {
                if (const int month = monthOfName(it.word, rs); month != 0) {
                    if (monthName != 0) return std::nullopt;
                    monthName = month;
                } else if (const int m = markOf(it.word, rs); m != 0) {
                    if (mark != 0) return std::nullopt;
                    mark = m;
                } else if (isDayName(it.word, rs)) {
                    // weekday names are read over
                } else if (it.word == u"t" && numbers.size() == 3 && numbers.front()->digits == 4) {
                    // the T between an ISO date and its time
                } else {
                    return std::nullopt;
                }
                break;
            }
            case Item::TimeSep: return std::nullopt;
            case Item::Sep: break;
        }
    }

    if (mark != 0) {
        if (!hasTime || hour > 23 || (mark == 1 && hour > 12)) return std::nullopt;
        if (hour <= 12) {
            if (hour == 12) hour = 0;
            if (mark == 2) hour += 12;
        }
    }
    if (hour > 23 || minute > 59 || second > 59) return std::nullopt;

    long long year = 0, month = 0, day = 0;
    const auto yearOf = [](const Item* n) { return Year{n->value, n->digits}; };
    const auto isYearLike = [](const Item* n) { return n->digits >= 3 || n->value > 31; };
    std::optional<long long> y;
    if (monthName != 0) {
        month = monthName;
        if (numbers.empty()) return std::nullopt;
        if (numbers.size() == 1) {
            if (isYearLike(numbers[0])) {
                y = fullYear(yearOf(numbers[0]));
                day = 1;
            } else {
                y = currentYear();
                day = numbers[0]->value;
            }
        } else if (numbers.size() == 2) {
            const bool yearFirst = isYearLike(numbers[0]);
            y = fullYear(yearOf(numbers[yearFirst ? 0 : 1]));
            day = numbers[yearFirst ? 1 : 0]->value;
        } else {
            return std::nullopt;
        }
        if (!y || !validDate(*y, month, day)) return std::nullopt;
        year = *y;
    } else if (numbers.empty()) {
        if (!hasTime) return std::nullopt;
        return calendar::fromDayAndTime(0, calendar::timeFraction(hour, minute, second));
    } else if (numbers.size() == 1) {
        return std::nullopt;
    } else {
        const Item* a = numbers[0];
        const Item* b = numbers[1];
        long long first = 0, secondPart = 0;  // month and day in the profile's order
        if (numbers.size() == 2) {
            if (isYearLike(b)) {
                y = fullYear(yearOf(b));
                first = a->value;
                secondPart = 1;
            } else if (isYearLike(a)) {
                y = fullYear(yearOf(a));
                first = b->value;
                secondPart = 1;
            } else {
                y = currentYear();
                const bool dayFirst = rs.dateOrder == DateOrder::DayMonthYear;
                first = dayFirst ? b->value : a->value;
                secondPart = dayFirst ? a->value : b->value;
            }
        } else {
            const Item* c = numbers[2];
            if (isYearLike(a) || rs.dateOrder == DateOrder::YearMonthDay) {
                y = fullYear(yearOf(a));
                first = b->value;
                secondPart = c->value;
            } else {
                y = fullYear(yearOf(c));
                const bool dayFirst = rs.dateOrder == DateOrder::DayMonthYear;
                first = dayFirst ? b->value : a->value;
                secondPart = dayFirst ? a->value : b->value;
            }
        }
        if (!y) return std::nullopt;
        year = *y;
        month = first;
        day = secondPart;
        // An order that is impossible in the profile is read the other way round.
        if (!validDate(year, month, day)) std::swap(month, day);
        if (!validDate(year, month, day)) return std::nullopt;
    }
    const Date date = calendar::dateSerial(year, month, day);
    return calendar::fromDayAndTime(calendar::dayIndex(date), calendar::timeFraction(hour, minute, second));
}

}  // namespace

String formatDate(Date value, StringView format, VbDayOfWeek firstDayOfWeek, VbFirstWeekOfYear firstWeekOfYear) {
    const Moment m = momentOf(value);
    String out;
    out.reserve(format.size() + 24);
    if (format.empty()) {
        renderGeneral(out, m);
        return out;
    }
    const auto tokens = tokensFor(format, false);
    render(out, *tokens, m, firstDayOfWeek, firstWeekOfYear);
    return out;
}

String formatDate(Date value, VbDateTimeFormat named) {
    const Moment m = momentOf(value);
    const RegionalSettings& rs = RegionalSettings::current();
    String out;
    switch (named) {
        case vbLongDate: renderPattern(out, rs.longDatePattern, m); break;
        case vbShortDate: renderPattern(out, rs.shortDatePattern, m); break;
        case vbLongTime: renderPattern(out, rs.longTimePattern, m); break;
        case vbShortTime: renderPattern(out, rs.shortTimePattern, m); break;
        case vbGeneralDate: renderGeneral(out, m); break;
        default: throw Failure(errInvalidCall);
    }
    return out;
}

std::optional<Date> tryReadDate(StringView text) {
    try {
        return readText(text);
    } catch (...) {
        return std::nullopt;
    }
}

Date readDate(StringView text) {
    if (auto d = tryReadDate(text)) return *d;
    throw Failure(errTypeMismatch);
}

String formatValue(const Variant& value, StringView format) {
    if (value.isEmpty() || value.isNull()) return {};
    if (const auto* s = value.getIf<String>()) {
        if (auto d = tryReadDate(*s)) return formatDate(*d, format);
        return *s;
    }
    return formatDate(toDate(value), format);
}

String formatValue(const Variant& value, VbDateTimeFormat named) {
    if (value.isNull()) throw Failure(errInvalidNull);
    return formatDate(value.isEmpty() ? Date() : toDate(value), named);
}

}  // namespace quillet
