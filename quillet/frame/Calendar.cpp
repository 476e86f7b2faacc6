#include "quillet/frame/Calendar.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "quillet/frame/Failure.h"
#include "quillet/frame/RegionalSettings.h"
#include "quillet/frame/TextCompare.h"

namespace quillet::calendar {

namespace {

constexpr auto FIRST_DAY = static_cast<std::int64_t>(FIRST_SERIAL);
constexpr auto LAST_DAY = static_cast<std::int64_t>(LAST_SERIAL);
// Days from 1970-01-01 to 1899-12-30, the zero of Date.
constexpr std::int64_t EPOCH_OFFSET = -25569;

// Days since 1970-01-01 of a proleptic Gregorian date (H. Hinnant's method).
constexpr std::int64_t daysFromCivil(std::int64_t y, int m, int d) noexcept {
    y -= m <= 2 ? 1 : 0;
    const std::int64_t era = (y >= 0 ? y : y - 399) / 400;
    const std::int64_t yoe = y - era * 400;
    const std::int64_t doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
    const std::int64_t doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + doe - 719468;
}

struct Civil {
    std::int64_t year;
    int month;
    int day;
};

constexpr Civil civilFromDays(std::int64_t z) noexcept {
    z += 719468;
    const std::int64_t era = (z >= 0 ? z : z - 146096) / 146097;
    const std::int64_t doe = z - era * 146097;
    const std::int64_t yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    const std::int64_t doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    const std::int64_t mp = (5 * doy + 2) / 153;
    const int d = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
    const int m = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
    return {yoe + era * 400 + (m <= 2 ? 1 : 0), m, d};
}

static_assert(daysFromCivil(1899, 12, 30) == EPOCH_OFFSET);

void checkDay(std::int64_t day) {
    if (day < FIRST_DAY || day > LAST_DAY) throw Failure(errOverflow);
}

std::int64_t serialOfCivil(std::int64_t y, int m, int d) { return daysFromCivil(y, m, d) - EPOCH_OFFSET; }

// A count of seconds as a day and the fraction of it, the day rounded down.
Date fromTotalSeconds(long long total) {
    const long long day = total >= 0 ? total / 86400 : -((-total + 86399) / 86400);
    return fromDayAndTime(day, timeFraction(0, 0, static_cast<double>(total - day * 86400)));
}

}  // namespace

DaySecond daySecond(Date value) {
    if (!std::isfinite(value.serial) || value.serial <= FIRST_SERIAL - 1.0 || value.serial >= LAST_SERIAL + 1.0)
        throw Failure(errOverflow);
    DaySecond r{dayIndex(value), secondOfDay(value)};
    if (r.second >= 86400) {
        r.second -= 86400;
        ++r.day;
    }
    checkDay(r.day);
    return r;
}

std::int64_t totalSeconds(Date value) {
    const DaySecond ds = daySecond(value);
    return ds.day * 86400 + ds.second;
}

DateParts split(Date value) { return split(daySecond(value)); }

DateParts split(DaySecond ds) noexcept {
    const Civil c = civilFromDays(ds.day + EPOCH_OFFSET);
    return {static_cast<int>(c.year), c.month, c.day, ds.second / 3600, ds.second / 60 % 60, ds.second % 60};
}

Date fromDayAndTime(std::int64_t day, double fraction) {
    checkDay(day);
    const double d = static_cast<double>(day);
    // Before the zero day the whole part is negative and the fraction still
    // counts forward, so it is subtracted.
    return Date(day < 0 ? d - fraction : d + fraction);
}

Date fromParts(const DateParts& p) {
    if (p.month < 1 || p.month > 12 || p.day < 1 || p.day > daysInMonth(p.year, p.month)) throw Failure(errOverflow);
    const std::int64_t day = serialOfCivil(p.year, p.month, p.day);
    return fromDayAndTime(day, timeFraction(p.hour, p.minute, p.second));
}

int daysInMonth(int year, int month) noexcept {
    static constexpr int lengths[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month < 1 || month > 12) return 0;
    if (month == 2 && (year % 4 == 0 && (year % 100 != 0 || year % 400 == 0))) return 29;
    return lengths[month - 1];
}

Date dateSerial(long long year, long long month, long long day) {
    // Far beyond the range of Date anyway; keeps the arithmetic below exact.
    constexpr long long LIMIT = 100000000;
    if (std::llabs(year) > LIMIT || std::llabs(month) > LIMIT || std::llabs(day) > LIMIT) throw Failure(errOverflow);
    long long m0 = month - 1;
    long long y = year + (m0 >= 0 ? m0 / 12 : -((-m0 + 11) / 12));
    m0 -= (y - year) * 12;
    if (y < -LIMIT || y > LIMIT) throw Failure(errOverflow);
    const std::int64_t day0 = serialOfCivil(y, static_cast<int>(m0 + 1), 1) + (day - 1);
    checkDay(day0);
    return Date(static_cast<double>(day0));
}

Date timeSerial(long long hour, long long minute, long long second) {
    constexpr long long LIMIT = 100000000;
    if (std::llabs(hour) > LIMIT || std::llabs(minute) > LIMIT || std::llabs(second) > LIMIT)
        throw Failure(errOverflow);
    return fromTotalSeconds(hour * 3600 + minute * 60 + second);
}

int weekday(Date value, VbDayOfWeek firstDay) {
    int first = firstDay;
    if (first == vbUseSystemDayOfWeek) first = RegionalSettings::current().firstDayOfWeek;
    if (first < 1 || first > 7) throw Failure(errInvalidCall);
    if (!std::isfinite(value.serial)) throw Failure(errOverflow);
    const std::int64_t day = dayIndex(value);
    // Day 0 was a Saturday, the seventh day of a Sunday week.
    const int sundayBased = static_cast<int>(((day + 6) % 7 + 7) % 7) + 1;
    return (sundayBased - first + 7) % 7 + 1;
}

int dayOfYear(Date value) {
    const DateParts p = split(value);
    return static_cast<int>(serialOfCivil(p.year, p.month, p.day) - serialOfCivil(p.year, 1, 1)) + 1;
}

int weekOfYear(Date value, VbDayOfWeek firstDay, VbFirstWeekOfYear firstWeek) {
    const DaySecond ds = daySecond(value);
    const DateParts p = split(ds);
    const Date jan1(static_cast<double>(serialOfCivil(p.year, 1, 1)));
    const int doy = static_cast<int>(ds.day - static_cast<std::int64_t>(jan1.serial)) + 1;
    const int wd1 = weekday(jan1, firstDay);
    if (firstWeek == vbFirstFourDays || firstWeek == vbFirstFullWeek) {
        // Days of the year before week 1 starts; they belong to the last
        // week of the year before.
        const int offset = firstWeek == vbFirstFullWeek ? (wd1 == 1 ? 0 : 8 - wd1) : (wd1 <= 4 ? 1 - wd1 : 8 - wd1);
        if (doy - 1 < offset) {
            if (p.year <= 100) return 52;
            return weekOfYear(Date(jan1.serial - 1.0), firstDay, firstWeek);
        }
        return (doy - 1 - offset) / 7 + 1;
    }
    return (doy - 1 + wd1 - 1) / 7 + 1;
}

Date dateAdd(StringView interval, long long number, Date value) {
    const String unit = foldCase(interval);
    const DaySecond ds = daySecond(value);
    const double fraction = std::fabs(value.serial - std::trunc(value.serial));
    auto addMonths = [&](long long months) {
        if (std::llabs(months) > 1000000) throw Failure(errOverflow);
        const Civil c = civilFromDays(dayIndex(value) + EPOCH_OFFSET);
        const long long m0 = c.month - 1 + months;
        const long long y = c.year + (m0 >= 0 ? m0 / 12 : -((-m0 + 11) / 12));
        const int month = static_cast<int>(m0 - (y - c.year) * 12) + 1;
        if (y < 100 || y > 9999) throw Failure(errOverflow);
        const int day = std::min(c.day, daysInMonth(static_cast<int>(y), month));
        return fromDayAndTime(serialOfCivil(y, month, day), fraction);
    };
    auto addSeconds = [&](long long seconds) {
        if (std::llabs(seconds) > 1000000000000LL) throw Failure(errOverflow);
        return fromTotalSeconds(ds.day * 86400 + ds.second + seconds);
    };
    auto addDays = [&](long long days) {
        if (std::llabs(days) > 100000000) throw Failure(errOverflow);
        return fromDayAndTime(dayIndex(value) + days, fraction);
    };
    if (unit == u"yyyy") return addMonths(number * 12);
    if (unit == u"q") return addMonths(number * 3);
    if (unit == u"m") return addMonths(number);
    if (unit == u"d" || unit == u"y" || unit == u"w") return addDays(number);
    if (unit == u"ww") return addDays(number * 7);
    if (unit == u"h") return addSeconds(number * 3600);
    if (unit == u"n") return addSeconds(number * 60);
    if (unit == u"s") return addSeconds(number);
    throw Failure(errInvalidCall);
}

}  // namespace quillet::calendar
