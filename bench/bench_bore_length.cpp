// SPDX-License-Identifier: GPL-3.0-or-later
// A borehole run, from zones to settled lengths, without a window. Budget: 5 microseconds with 100
// zones.
#include <benchmark/benchmark.h>

#include "design/borehole_run.h"
#include "sample_building.h"

namespace varnholt {
namespace {

void borehole(benchmark::State& state) {
    BoreholeProject project;
    project.loads.zones = buildingOf(state.range(0));
    project.loads.zoneNumber = static_cast<std::int16_t>(state.range(0));
    const BoreholeInputs inputs = inputsOf(project, false);
    if (runBorehole(inputs)->lengths.failed) state.SkipWithError("the building has no solution");
    while (state.KeepRunning()) benchmark::DoNotOptimize(runBorehole(inputs));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(borehole)
    ->RangeMultiplier(10)
    ->Range(1, 1000)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN);

}  // namespace
}  // namespace varnholt
