#include "package/name_scrambling.h"

#include <benchmark/benchmark.h>

namespace tavmoor::bench {

namespace {

void Scrambling(benchmark::State& state) {
    const std::string name(static_cast<std::size_t>(state.range(0)), 'n');
    for (auto _ : state) {
        benchmark::DoNotOptimize(ScrambleText(name));
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * state.range(0));
}

BENCHMARK(Scrambling)->Arg(12)->Arg(255);

} // namespace

} // namespace tavmoor::bench
