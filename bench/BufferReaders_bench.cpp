// The collection and array readers walk a saved element once: the time per
// item at 100k items must stay within 1.5x of that at 1k. Compare the
// per_item counters of the three sizes of each reader in one run.
#include <benchmark/benchmark.h>

#include <memory>

#include "quillet/frame/Array.h"
#include "quillet/frame/Collection.h"
#include "quillet/frame/NumberText.h"
#include "quillet/persistence/clsBufferIO.h"

namespace {

using quillet::Array;
using quillet::clsBufferIO;
using quillet::Collection;
using quillet::Long;
using quillet::String;
using quillet::Variant;

String itemText(Long i) { return u"item " + quillet::numberText(i) + u" & more"; }

void perItem(benchmark::State& state) {
    state.counters["per_item"] =
        benchmark::Counter(static_cast<double>(state.range(0)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void read_CollectionBetween(benchmark::State& state) {
    const auto n = static_cast<Long>(state.range(0));
    auto items = std::make_shared<Collection>();
    for (Long i = 1; i <= n; ++i) items->Add(Variant(itemText(i)));
    const clsBufferIO io;
    const Variant saved = io.WriteCollectionBetween(u"Items", items);
    if (io.ReadCollectionBetween(saved, u"Items")->Count() != n) state.SkipWithError("the items did not come back");
    for (auto _ : state) benchmark::DoNotOptimize(io.ReadCollectionBetween(saved, u"Items"));
    perItem(state);
}

void read_ArrayBetween(benchmark::State& state) {
    const auto n = static_cast<Long>(state.range(0));
    Array<String> items(0, n - 1);
    for (Long i = 0; i < n; ++i) items[i] = itemText(i);
    const clsBufferIO io;
    const Variant saved = io.WriteArrayBetween(u"Items", items);
    if (io.ReadArrayBetween(saved, u"Items") != items) state.SkipWithError("the items did not come back");
    for (auto _ : state) benchmark::DoNotOptimize(io.ReadArrayBetween(saved, u"Items"));
    perItem(state);
}

}  // namespace

BENCHMARK(read_CollectionBetween)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(read_ArrayBetween)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
