// The host date formatter against ICU's SimpleDateFormat on the same date and
// the equivalent pattern, en_US, in one run: ours/... must not be slower than
// icu/....
#include <benchmark/benchmark.h>

#include <unicode/locid.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>

#include <memory>

#include "quillet/frame/DateText.h"
#include "quillet/frame/RegionalSettings.h"

namespace {

constexpr double SERIAL = 42006.7535763889;  // Friday 2 January 2015 18:05:09
// ICU counts milliseconds since 1970-01-01 (serial 25569) in UTC.
constexpr double ICU_MILLIS = (SERIAL - 25569.0) * 86400000.0;

void ours_FormatLongDateTime(benchmark::State& state) {
    quillet::RegionalScope us(quillet::RegionalSettings::usEnglish());
    const quillet::Date d(SERIAL);
    for (auto _ : state) {
        quillet::String text = quillet::formatDate(d, u"dddd, mmmm dd, yyyy hh:nn:ss");
        benchmark::DoNotOptimize(text);
    }
}

void icu_FormatLongDateTime(benchmark::State& state) {
    UErrorCode status = U_ZERO_ERROR;
    icu::SimpleDateFormat format(icu::UnicodeString(u"EEEE, MMMM dd, yyyy HH:mm:ss"), icu::Locale("en_US"), status);
    format.adoptTimeZone(icu::TimeZone::createTimeZone(icu::UnicodeString(u"UTC")));
    if (U_FAILURE(status)) {
        state.SkipWithError("ICU could not make the format");
        return;
    }
    for (auto _ : state) {
        icu::UnicodeString text;
        format.format(ICU_MILLIS, text);
        benchmark::DoNotOptimize(text);
    }
}

void ours_ReadShortDate(benchmark::State& state) {
    quillet::RegionalScope us(quillet::RegionalSettings::usEnglish());
    for (auto _ : state) {
        auto d = quillet::tryReadDate(u"1/2/2015 6:05:09 PM");
        benchmark::DoNotOptimize(d);
    }
}

}  // namespace

BENCHMARK(ours_FormatLongDateTime);
BENCHMARK(icu_FormatLongDateTime);
BENCHMARK(ours_ReadShortDate);
