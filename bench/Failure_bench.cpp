// A statement under continue-on-failure that does not fail must cost no more
// than the plain statement plus a try block. Compare the two lines of each
// pair in one run: attempt/... within 1.2x of plain/...
#include <benchmark/benchmark.h>

#include <vector>

#include "quillet/frame/Failure.h"
#include "quillet/frame/checked.h"

namespace {

using quillet::Long;

std::vector<Long> values() {
    std::vector<Long> v(1024);
    for (std::size_t i = 0; i < v.size(); ++i) v[i] = static_cast<Long>(i % 97);
    return v;
}

// The same checked statement, plain and wrapped.
void plain_CheckedAdd(benchmark::State& state) {
    const auto v = values();
    for (auto _ : state) {
        Long total = 0;
        for (Long x : v) total = quillet::checked::add(total, x);
        benchmark::DoNotOptimize(total);
    }
}
void attempt_CheckedAdd(benchmark::State& state) {
    const auto v = values();
    for (auto _ : state) {
        Long total = 0;
        for (Long x : v) quillet::attempt([&] { total = quillet::checked::add(total, x); });
        benchmark::DoNotOptimize(total);
    }
}

// A member that can fail, under stop-on-failure, against the bare call.
Long divideAll(const std::vector<Long>& v) {
    Long q = 0;
    for (Long x : v) q = quillet::checked::add(q, quillet::checked::div(Long{1000000}, x + 1));
    return q;
}
void plain_Member(benchmark::State& state) {
    const auto v = values();
    for (auto _ : state) benchmark::DoNotOptimize(divideAll(v));
}
void stopOnFailure_Member(benchmark::State& state) {
    const auto v = values();
    for (auto _ : state) benchmark::DoNotOptimize(quillet::stopOnFailure(Long{-1}, [&] { return divideAll(v); }));
}

}  // namespace

BENCHMARK(plain_CheckedAdd);
BENCHMARK(attempt_CheckedAdd);
BENCHMARK(plain_Member);
BENCHMARK(stopOnFailure_Member);
