// The date reader: a text cut into its parts (numbers, words, separators),
// then the parts put together as a date and time in the profile's order.
// Hosts read texts that other people wrote, so the cutting stops as soon as
// the text can no longer be a date: a part beyond MAX_DATE_TEXT_PARTS, a
// number of more than nine digits or a word that names nothing. The parts
// live in a small fixed buffer, and no part but a known word is copied.
#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <span>

#include "quillet/frame/Calendar.h"
#include "quillet/frame/Clock.h"
#include "quillet/frame/DateText.h"
#include "quillet/frame/Failure.h"
#include "quillet/frame/NumberScan.h"
#include "quillet/frame/NumberText.h"
#include "quillet/frame/RegionalSettings.h"
#include "quillet/frame/TextCompare.h"
#include "quillet/frame/chars.h"

namespace quillet {

namespace {

constexpr auto isBlank = chars::isDateBlank;
constexpr auto isDigit = chars::isAsciiDigit;

StringView trimmed(StringView s) noexcept {
    while (!s.empty() && isBlank(s.front())) s.remove_prefix(1);
    while (!s.empty() && isBlank(s.back())) s.remove_suffix(1);
    return s;
}

struct Part {
    enum Kind : std::uint8_t { Number, Word, TimeSep, Sep };
    Kind kind = Sep;
    long long value = 0;  // a number's value
    int digits = 0;       // a number's digits
    int month = 0;        // a word that names a month: 1 .. 12
    int mark = 0;         // a word that is a mark: 1 before noon, 2 after
    bool dayName = false;
    bool isT = false;  // the T between an ISO date and its time
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

// Folding keeps lengths, so a name of another length is never folded.
bool sameFolded(const String& folded, const String& name) {
    return folded.size() == name.size() && folded == foldCase(name);
}

int monthOfName(const String& folded, const RegionalSettings& rs) {
    for (int k = 0; k < 12; ++k)
        if (sameFolded(folded, rs.monthNames[k]) || sameFolded(folded, rs.monthAbbreviations[k])) return k + 1;
    return 0;
}

bool isDayName(const String& folded, const RegionalSettings& rs) {
    for (int k = 0; k < 7; ++k)
        if (sameFolded(folded, rs.dayNames[k]) || sameFolded(folded, rs.dayAbbreviations[k])) return true;
    return false;
}

// 1 before noon, 2 after, 0 no mark.
int markOf(const String& folded, const RegionalSettings& rs) {
    if (folded == u"am" || (!rs.amMark.empty() && sameFolded(folded, rs.amMark))) return 1;
    if (folded == u"pm" || (!rs.pmMark.empty() && sameFolded(folded, rs.pmMark))) return 2;
    return 0;
}

// The longest word the reader knows; a longer one is unknown without being folded.
std::size_t longestWord(const RegionalSettings& rs) noexcept {
    std::size_t n = 2;  // "am", "pm"
    for (const String& s : rs.monthNames) n = std::max(n, s.size());
    for (const String& s : rs.monthAbbreviations) n = std::max(n, s.size());
    for (const String& s : rs.dayNames) n = std::max(n, s.size());
    for (const String& s : rs.dayAbbreviations) n = std::max(n, s.size());
    return std::max({n, rs.amMark.size(), rs.pmMark.size()});
}

struct Parts {
    std::array<Part, MAX_DATE_TEXT_PARTS> items;
    std::size_t size = 0;
};

// The parts of `text`, or none as soon as it can be no date.
bool cut(StringView text, const RegionalSettings& rs, Parts& parts) {
    std::size_t longest = 0;  // known once the first word comes up
    std::size_t i = 0;
    while (i < text.size()) {
        if (parts.size == MAX_DATE_TEXT_PARTS) return false;
        Part& part = parts.items[parts.size++];
        const char16_t c = text[i];
        if (isDigit(c)) {
            // No part of a date has ten digits.
            const DigitRun run = scanDigits(text, i, 9);
            if (run.tooLong) return false;
            part.kind = Part::Number;
            part.value = static_cast<long long>(run.value);
            part.digits = run.digits;
            i = run.end;
        } else if (isTimeSeparator(c, rs)) {
            part.kind = Part::TimeSep;
            ++i;
        } else if (isDateSeparator(c, rs)) {
            part.kind = Part::Sep;
            ++i;
        } else {
            if (longest == 0) longest = longestWord(rs);
            const std::size_t start = i;
            while (i < text.size() && !isDigit(text[i]) && !isTimeSeparator(text[i], rs) &&
                   !isDateSeparator(text[i], rs)) {
                if (i - start == longest) return false;
                ++i;
            }
            const String word = foldCase(text.substr(start, i - start));
            part.kind = Part::Word;
            part.month = monthOfName(word, rs);
            part.mark = markOf(word, rs);
            part.dayName = part.month == 0 && part.mark == 0 && isDayName(word, rs);
            part.isT = word == u"t";
            if (part.month == 0 && part.mark == 0 && !part.dayName && !part.isT) return false;
        }
    }
    return true;
}

struct Year {
    long long value;
    int digits;
};

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
    Parts parts;
    if (!cut(text, rs, parts)) return std::nullopt;
    const auto items = std::span<const Part>(parts.items.data(), parts.size);

    std::array<const Part*, 3> numbers{};
    std::size_t numberCount = 0;
    int monthName = 0;
    bool hasTime = false;
    long long hour = 0, minute = 0, second = 0;
    int mark = 0;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const Part& it = items[i];
        switch (it.kind) {
            case Part::Number: {
                if (i + 1 < items.size() && items[i + 1].kind == Part::TimeSep) {
                    if (hasTime || i + 2 >= items.size() || items[i + 2].kind != Part::Number) return std::nullopt;
                    hasTime = true;
                    hour = it.value;
                    minute = items[i + 2].value;
                    i += 2;
                    if (i + 2 < items.size() && items[i + 1].kind == Part::TimeSep &&
                        items[i + 2].kind == Part::Number) {
                        second = items[i + 2].value;
                        i += 2;
                    }
                    break;
                }
                // A lone hour with a mark: "3 PM".
                std::size_t next = i + 1;
                if (next < items.size() && items[next].kind == Part::Sep && next + 1 < items.size()) ++next;
                if (next < items.size() && items[next].kind == Part::Word && items[next].mark != 0 && !hasTime) {
                    hasTime = true;
                    hour = it.value;
                    break;
                }
                if (numberCount == 3) return std::nullopt;
                numbers[numberCount++] = &it;
                break;
            }
            case Part::Word: {
                if (it.month != 0) {
                    if (monthName != 0) return std::nullopt;
                    monthName = it.month;
                } else if (it.mark != 0) {
                    if (mark != 0) return std::nullopt;
                    mark = it.mark;
                } else if (it.dayName) {
                    // weekday names are read over
                } else if (it.isT && numberCount == 3 && numbers[0]->digits == 4) {
                    // the T between an ISO date and its time
                } else {
                    return std::nullopt;
                }
                break;
            }
            case Part::TimeSep: return std::nullopt;
            case Part::Sep: break;
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
    const double time = calendar::timeFraction(hour, minute, second);

    long long year = 0, month = 0, day = 0;
    const auto yearOf = [](const Part* n) { return Year{n->value, n->digits}; };
    const auto isYearLike = [](const Part* n) { return n->digits >= 3 || n->value > 31; };
    std::optional<long long> y;
    if (monthName != 0) {
        month = monthName;
        if (numberCount == 0) return std::nullopt;
        if (numberCount == 1) {
            if (isYearLike(numbers[0])) {
                y = fullYear(yearOf(numbers[0]));
                day = 1;
            } else {
                y = currentYear();
                day = numbers[0]->value;
            }
        } else if (numberCount == 2) {
            const bool yearFirst = isYearLike(numbers[0]);
            y = fullYear(yearOf(numbers[yearFirst ? 0 : 1]));
            day = numbers[yearFirst ? 1 : 0]->value;
        } else {
            return std::nullopt;
        }
        if (!y || !validDate(*y, month, day)) return std::nullopt;
        year = *y;
    } else if (numberCount == 0) {
        if (!hasTime) return std::nullopt;
        return calendar::fromDayAndTime(0, time);
    } else if (numberCount == 1) {
        return std::nullopt;
    } else {
        const Part* a = numbers[0];
        const Part* b = numbers[1];
        long long first = 0, secondPart = 0;  // month and day in the profile's order
        if (numberCount == 2) {
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
            const Part* c = numbers[2];
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
    return calendar::fromDayAndTime(calendar::dayIndex(date), time);
}

}  // namespace

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

}  // namespace quillet
