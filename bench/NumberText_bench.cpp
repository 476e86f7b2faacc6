// numberText(Double) against std::to_chars with 15 significant digits on the
// same values, in one run. Target: numberText within 3x of to_chars, though it
// also trims zeros, lays out the digits, applies the regional separator and
// returns a String.
#include <benchmark/benchmark.h>

#include <charconv>
#include <cmath>
#include <random>
#include <vector>

#include "quillet/frame/NumberText.h"

namespace {

// Whole numbers, short decimals, full-precision fractions, and very large and
// very small magnitudes that need the exponent form.
std::vector<double> values() {
    std::mt19937_64 rng(42);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    std::uniform_int_distribution<int> exponent(-300, 300);
    std::vector<double> v;
    v.reserve(1024);
    for (int i = 0; v.size() < 1024; ++i) {
        switch (i % 4) {
            case 0: v.push_back(static_cast<double>(i * 37 % 100000)); break;
            case 1: v.push_back(static_cast<double>(i % 1000) / 8.0 - 50.0); break;
            case 2: v.push_back(unit(rng)); break;
            default: v.push_back(unit(rng) * std::pow(10.0, exponent(rng))); break;
        }
    }
    return v;
}

void numberText_Double(benchmark::State& state) {
    const auto v = values();
    for (auto _ : state) {
        for (double x : v) {
            quillet::String s = quillet::numberText(x);
            benchmark::DoNotOptimize(s);
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(v.size()));
}

void toChars_General15(benchmark::State& state) {
    const auto v = values();
    char buf[40];
    for (auto _ : state) {
        for (double x : v) {
            const auto r = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::general, 15);
            benchmark::DoNotOptimize(r.ptr);
            benchmark::DoNotOptimize(buf);
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(v.size()));
}

BENCHMARK(numberText_Double);
BENCHMARK(toChars_General15);

}  // namespace
