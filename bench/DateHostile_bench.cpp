// Dates under large and hostile input, each at 1x, 10x and 100x in one run:
//
// - Format/<item>/<n>: a date format of n copies of one letter (or one quoted
//   text of n characters), rendered on one date. The counter per_char is the
//   time per format character; it must stay flat from 1x to 100x.
// - Read*/<n>: a text of n characters read as a date and rejected ("1 1 1 ..."
//   and "1/2/2015" followed by slashes), sizes 0.5, 5 and 50 MB of UTF-16.
//   peak_x_text is the peak of the memory allocated during the read divided by
//   the text's own size; it must stay under 3.
//
// Peak memory is measured by counting every operator new and delete of this
// binary (malloc_usable_size of each block) while a read runs; blocks freed
// during the read that were allocated before it count against the peak, so
// the figure is the net growth of the heap at its highest point.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

#include "quillet/frame/DateText.h"
#include "quillet/frame/RegionalSettings.h"
#include "quillet/text/clsString.h"

namespace {

bool g_counting = false;
long long g_live = 0;
long long g_peak = 0;

void countAllocation(void* p) noexcept {
    if (!g_counting || p == nullptr) return;
    g_live += static_cast<long long>(malloc_usable_size(p));
    g_peak = std::max(g_peak, g_live);
}

void countRelease(void* p) noexcept {
    if (g_counting && p != nullptr) g_live -= static_cast<long long>(malloc_usable_size(p));
}

// The peak of the heap's growth while `work` runs, in bytes.
template <class Work>
long long peakDuring(Work&& work) {
    g_live = 0;
    g_peak = 0;
    g_counting = true;
    work();
    g_counting = false;
    return g_peak;
}

}  // namespace

// The replacements pair malloc with free themselves; the compiler cannot see
// that they are one pair.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"

void* operator new(std::size_t size) {
    void* p = std::malloc(size == 0 ? 1 : size);
    if (p == nullptr) throw std::bad_alloc();
    countAllocation(p);
    return p;
}

void operator delete(void* p) noexcept {
    countRelease(p);
    std::free(p);
}

void operator delete(void* p, std::size_t) noexcept {
    countRelease(p);
    std::free(p);
}

#pragma GCC diagnostic pop

namespace {

using quillet::String;

constexpr double SERIAL = 42006.7535763889;  // Friday 2 January 2015 18:05:09

void formatRun(benchmark::State& state, const String& format) {
    quillet::RegionalScope us(quillet::RegionalSettings::usEnglish());
    const quillet::Date d(SERIAL);
    for (auto _ : state) {
        String text = quillet::formatDate(d, format);
        benchmark::DoNotOptimize(text);
    }
    const auto chars = static_cast<double>(format.size());
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(format.size()));
    state.counters["per_char"] = benchmark::Counter(chars * static_cast<double>(state.iterations()),
                                                    benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void Format_RunOfOneLetter(benchmark::State& state, char16_t letter) {
    formatRun(state, String(static_cast<std::size_t>(state.range(0)), letter));
}

void Format_QuotedText(benchmark::State& state) {
    // Quotes set in place rather than u"\"" + ...: g++ 12 at -O3 takes that insert for an overlapping copy.
    String format(static_cast<std::size_t>(state.range(0)), u'x');
    format.front() = format.back() = u'"';
    formatRun(state, format);
}

void readRejected(benchmark::State& state, const String& text, bool throughClsString) {
    quillet::RegionalScope us(quillet::RegionalSettings::usEnglish());
    long long peak = 0;
    for (auto _ : state) {
        peak = std::max(peak, peakDuring([&] {
                            if (throughClsString) {
                                quillet::Date d = quillet::clsString().stringToDate(text);
                                benchmark::DoNotOptimize(d);
                            } else {
                                auto d = quillet::tryReadDate(text);
                                if (d) state.SkipWithError("the text was read as a date");
                                benchmark::DoNotOptimize(d);
                            }
                        }));
    }
    const double bytes = static_cast<double>(text.size() * sizeof(char16_t));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
    state.counters["per_char"] = benchmark::Counter(static_cast<double>(text.size() * state.iterations()),
                                                    benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    state.counters["peak_bytes"] = static_cast<double>(peak);
    state.counters["peak_x_text"] = static_cast<double>(peak) / bytes;
}

// "1 1 1 ...": every part a number, far too many of them.
String ones(std::size_t chars) {
    String text;
    text.reserve(chars);
    while (text.size() + 2 <= chars) text += u"1 ";
    text += u'1';
    return text;
}

String dateAndSlashes(std::size_t chars) { return u"1/2/2015" + String(chars - 8, u'/'); }

void Read_Ones(benchmark::State& state) { readRejected(state, ones(static_cast<std::size_t>(state.range(0))), false); }

void Read_DateAndSlashes(benchmark::State& state) {
    readRejected(state, dateAndSlashes(static_cast<std::size_t>(state.range(0))), false);
}

void StringToDate_Ones(benchmark::State& state) {
    readRejected(state, ones(static_cast<std::size_t>(state.range(0))), true);
}

// Characters of the format sizes, and of 0.5, 5 and 50 MB of UTF-16 text.
constexpr std::int64_t FORMAT_1X = 1600;
constexpr std::int64_t TEXT_1X = 250000;

}  // namespace

#define QUILLET_FORMAT_RUN(name, letter)                                          \
    BENCHMARK_CAPTURE(Format_RunOfOneLetter, name, static_cast<char16_t>(letter)) \
        ->Arg(FORMAT_1X)                                                          \
        ->Arg(FORMAT_1X * 10)                                                     \
        ->Arg(FORMAT_1X * 100)

QUILLET_FORMAT_RUN(d, u'd');
QUILLET_FORMAT_RUN(m, u'm');
QUILLET_FORMAT_RUN(y, u'y');
QUILLET_FORMAT_RUN(h, u'h');
QUILLET_FORMAT_RUN(n, u'n');
QUILLET_FORMAT_RUN(s, u's');
QUILLET_FORMAT_RUN(t, u't');
QUILLET_FORMAT_RUN(x, u'x');
BENCHMARK(Format_QuotedText)->Arg(FORMAT_1X)->Arg(FORMAT_1X * 10)->Arg(FORMAT_1X * 100);
BENCHMARK(Read_Ones)->Arg(TEXT_1X)->Arg(TEXT_1X * 10)->Arg(TEXT_1X * 100);
BENCHMARK(Read_DateAndSlashes)->Arg(TEXT_1X)->Arg(TEXT_1X * 10)->Arg(TEXT_1X * 100);
BENCHMARK(StringToDate_Ones)->Arg(TEXT_1X)->Arg(TEXT_1X * 10)->Arg(TEXT_1X * 100);
