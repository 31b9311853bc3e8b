// SPDX-License-Identifier: GPL-3.0-or-later
// The second opinion, without a window. Budgets in processor time: one g-function of 120 bores 4
// ms; whole, with a single bore 3 ms, with 24, 120, 400 and 1,000 bores 20, 50, 100 and 300 ms;
// after a changed bore resistance 5 ms; the longest slice a few ms, which is what a key waits for.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>

#include "design/secondOpinion/g_function.h"
#include "design/secondOpinion/opinion_cases.h"

namespace varnholt {
namespace {

void gFunction(benchmark::State& state) {
    const int across = static_cast<int>(state.range(0)), down = static_cast<int>(state.range(1));
    const auto bores = secondOpinion::rectangularField(across, down, 20);
    while (state.KeepRunning())
        benchmark::DoNotOptimize(
            secondOpinion::gFunctionOf(bores, {300, 4, 0.2}, 0.03, 8760 * 50 + 744));
}
BENCHMARK(gFunction)->Args({12, 10})->Unit(benchmark::kMillisecond);

void secondOpinionWhole(benchmark::State& state) {
    const SecondOpinionCase theCase =
        peersCase(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    while (state.KeepRunning()) {
        SecondOpinionMemory memory;
        const SecondOpinion opinion = secondOpinionOf(theCase, memory);
        if (!opinion.governing()) state.SkipWithError("the field has no length");
    }
}
BENCHMARK(secondOpinionWhole)
    ->Args({1, 1})
    ->Args({6, 4})
    ->Args({12, 10})
    ->Args({20, 20})
    ->Args({40, 25})
    ->Args({50, 50})
    ->Unit(benchmark::kMillisecond);

/// Loads within two percent of each other, as a designer who types has them.
void secondOpinionAgain(benchmark::State& state) {
    SecondOpinionCase theCase =
        peersCase(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    SecondOpinionMemory memory;
    const double resistance = theCase.design.bore.boreResistance;
    double change = 0;
    secondOpinionOf(theCase, memory);
    while (state.KeepRunning()) {
        theCase.design.bore.boreResistance = resistance * (1 + 0.001 * change);
        change = change < 20 ? change + 1 : 0;
        benchmark::DoNotOptimize(secondOpinionOf(theCase, memory));
    }
}
BENCHMARK(secondOpinionAgain)
    ->Args({1, 1})
    ->Args({6, 4})
    ->Args({12, 10})
    ->Args({40, 25})
    ->Unit(benchmark::kMillisecond);

/// The longest slice of a run, in processor time.
void secondOpinionSlice(benchmark::State& state) {
    const SecondOpinionCase theCase =
        peersCase(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    std::clock_t longest = 0;
    while (state.KeepRunning()) {
        SecondOpinionMemory memory;
        SecondOpinionRun run(theCase, memory);
        for (bool done = false; !done;) {
            const std::clock_t from = std::clock();
            done = run.step();
            longest = std::max(longest, std::clock() - from);
        }
    }
    state.counters["slice_ms"] = 1000.0 * static_cast<double>(longest) / CLOCKS_PER_SEC;
}
BENCHMARK(secondOpinionSlice)
    ->Args({12, 10})
    ->Args({40, 25})
    ->Args({50, 50})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace varnholt
