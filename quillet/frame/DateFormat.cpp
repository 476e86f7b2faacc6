// The host date formatter works in two stages: a format is tokenized once
// (the last few short ones per thread are kept, since the same formats come
// back all the time) and the tokens are rendered for each value. The
// profile's own patterns, written in the system picture language, are
// tokenized the same way into the same tokens. Both tokenizers take each run
// of one letter once, so a format costs time in proportion to its length.
#include "quillet/frame/DateText.h"

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "quillet/frame/Calendar.h"
#include "quillet/frame/Failure.h"
#include "quillet/frame/RegionalSettings.h"
#include "quillet/frame/TextCompare.h"
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

// One item of a format, written `repeat` times: a run of one letter gives
// one token however long it is. A literal is the stretch [begin, begin +
// length) of Tokens::text; a written AM/PM mark is the morning text there and
// the evening text of the same length straight after it.
struct Token {
    Tok kind;
    std::uint32_t repeat = 1;
    std::size_t begin = 0;
    std::size_t length = 0;
};

struct Tokens {
    std::vector<Token> items;
    String text;
};

char16_t lowerAscii(char16_t c) noexcept { return (c >= u'A' && c <= u'Z') ? static_cast<char16_t>(c + 32) : c; }

bool startsWithNoCase(StringView text, std::size_t at, std::u16string_view lowerWord) noexcept {
    if (text.size() - at < lowerWord.size()) return false;
    for (std::size_t k = 0; k < lowerWord.size(); ++k)
        if (lowerAscii(text[at + k]) != lowerWord[k]) return false;
    return true;
}

void addLiteral(Tokens& tokens, StringView text) {
    if (text.empty()) return;
    // A literal's text is always the end of Tokens::text, so the next one extends it.
    if (!tokens.items.empty() && tokens.items.back().kind == Tok::Literal) tokens.items.back().length += text.size();
    else tokens.items.push_back({Tok::Literal, 1, tokens.text.size(), text.size()});
    tokens.text.append(text);
}

void addMarks(Tokens& tokens, StringView morning, StringView evening) {
    tokens.items.push_back({Tok::AmPmWritten, 1, tokens.text.size(), morning.size()});
    tokens.text.append(morning);
    tokens.text.append(evening);
}

void add(Tokens& tokens, Tok kind) {
    if (!tokens.items.empty() && tokens.items.back().kind == kind && tokens.items.back().repeat < UINT32_MAX)
        ++tokens.items.back().repeat;
    else tokens.items.push_back({kind});
}

std::size_t runLength(StringView text, std::size_t at, bool ignoreCase) noexcept {
    const char16_t c = ignoreCase ? lowerAscii(text[at]) : text[at];
    std::size_t n = 1;
    while (at + n < text.size() && (ignoreCase ? lowerAscii(text[at + n]) : text[at + n]) == c) ++n;
    return n;
}

// The item that the letter `lc` at `i` starts, `run` letters of it left;
// adds its token and gives how many letters it took.
std::size_t addLetterItem(Tokens& tokens, StringView f, std::size_t i, char16_t lc, std::size_t run) {
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
                const std::vector<Token>& items = tokens.items;
                std::size_t k = items.size();
                if (k > 0 && items[k - 1].kind == Tok::TimeSep) --k;
                if (k > 0 && (items[k - 1].kind == Tok::Hour24 || items[k - 1].kind == Tok::Hour24_2))
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
    return used;
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
                addMarks(tokens, f.substr(i, 2), f.substr(i + 3, 2));
                twelveHour = true;
                i += 5;
            } else if (startsWithNoCase(f, i, u"a/p")) {
                addMarks(tokens, f.substr(i, 1), f.substr(i + 2, 1));
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
        // The run is measured once and taken apart into its items, the
        // longest first: "ddddddd" is the long date and then the day.
        for (std::size_t run = runLength(f, i, true); run > 0;) {
            const std::size_t used = addLetterItem(tokens, f, i, lc, run);
            i += used;
            run -= used;
        }
    }
    if (twelveHour)
        for (Token& t : tokens.items) {
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

// The last few tokenized formats of this thread, replaced in turn. A long
// format is tokenized for its one call and not kept: a host that lets users
// type formats must not hold on to the largest one typed.
std::shared_ptr<const Tokens> tokensFor(StringView format, bool picture) {
    struct Entry {
        bool picture = false;
        String format;
        std::shared_ptr<const Tokens> tokens;
    };
    constexpr std::size_t CACHE_SIZE = 8;
    constexpr std::size_t LONGEST_CACHED = 256;
    if (format.size() > LONGEST_CACHED)
        return std::make_shared<const Tokens>(picture ? tokenizePicture(format) : tokenizeHost(format));
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

// What every token of one rendering shares.
struct RenderContext {
    const RegionalSettings& rs;
    const Moment& m;
    bool morning;
    int hour12;
    VbDayOfWeek firstDay;
    VbFirstWeekOfYear firstWeek;
};

void renderToken(String& out, const Tokens& tokens, const Token& t, const RenderContext& c) {
    const RegionalSettings& rs = c.rs;
    const Moment& m = c.m;
    const calendar::DateParts& p = m.parts;
    const bool morning = c.morning;
    const int hour12 = c.hour12;
    const VbDayOfWeek firstDay = c.firstDay;
    const VbFirstWeekOfYear firstWeek = c.firstWeek;
    switch (t.kind) {
        case Tok::Literal: out.append(tokens.text, t.begin, t.length); break;
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
        case Tok::AmPmWritten: out.append(tokens.text, t.begin + (morning ? 0 : t.length), t.length); break;
        case Tok::AmPmProfile: out.append(morning ? rs.amMark : rs.pmMark); break;
        case Tok::AmPmProfileFirst: {
            const String& mark = morning ? rs.amMark : rs.pmMark;
            if (!mark.empty()) out.push_back(mark.front());
            break;
        }
        case Tok::DateSep: out.append(rs.dateSeparator); break;
        case Tok::TimeSep: out.append(rs.timeSeparator); break;
        case Tok::WeekDay: appendNumber(out, calendar::weekday(Date(static_cast<double>(m.day)), firstDay), 1); break;
        case Tok::WeekOfYear: appendNumber(out, calendar::weekOfYear(m.value, firstDay, firstWeek), 1); break;
        case Tok::Quarter: appendNumber(out, (p.month - 1) / 3 + 1, 1); break;
    }
}

void render(String& out, const Tokens& tokens, const Moment& m, VbDayOfWeek firstDay, VbFirstWeekOfYear firstWeek) {
    const int hour = m.parts.hour;
    const RenderContext context{RegionalSettings::current(),     m,        hour < 12,
                                hour % 12 == 0 ? 12 : hour % 12, firstDay, firstWeek};
    for (const Token& t : tokens.items) {
        const std::size_t start = out.size();
        renderToken(out, tokens, t, context);
        if (t.repeat == 1) continue;
        // A repeated token writes the same text each time: written once, copied after.
        const std::size_t length = out.size() - start;
        out.reserve(out.size() + length * (t.repeat - 1));
        for (std::uint32_t r = 1; r < t.repeat; ++r) out.append(out, start, length);
    }
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
