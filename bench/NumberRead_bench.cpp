// Reading numbers from text: the numeric prefix and strict conversion on a
// mix of the texts that saved documents and users give them, reported per
// text; and one long run of digits at three lengths, reported per character,
// so that the cost of a text follows its length.
#include <benchmark/benchmark.h>

#include <vector>

#include "quillet/frame/NumberText.h"

namespace {

const std::vector<quillet::String>& texts() {
    static const std::vector<quillet::String> v = {
        u"12.5kg", u"1 000", u"abc",       u"-3.25E+10", u"0",    u"&HFF",       u"  42  ",
        u"1,5",    u"0.1",   u"123456789", u"-.5",       u"1D-3", u"2147483647",
    };
    return v;
}

void numericPrefix_Mix(benchmark::State& state) {
    for (auto _ : state) {
        for (const auto& t : texts()) benchmark::DoNotOptimize(quillet::numericPrefix(t));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(texts().size()));
}

void parseNumber_Mix(benchmark::State& state) {
    for (auto _ : state) {
        for (const auto& t : texts()) benchmark::DoNotOptimize(quillet::tryParseNumber(t));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(texts().size()));
}

void numericPrefix_LongDigits(benchmark::State& state) {
    const quillet::String text = u"0." + quillet::String(static_cast<std::size_t>(state.range(0)), u'3');
    for (auto _ : state) benchmark::DoNotOptimize(quillet::numericPrefix(text));
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(text.size()));
}

BENCHMARK(numericPrefix_Mix);
BENCHMARK(parseNumber_Mix);
BENCHMARK(numericPrefix_LongDigits)->Arg(1000)->Arg(10000)->Arg(100000);

}  // namespace
