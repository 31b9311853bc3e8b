// SPDX-License-Identifier: GPL-3.0-or-later
// A borehole run, from zones to settled lengths, without a window. Budget: 5 microseconds with 100
// zones.
#include <benchmark/benchmark.h>

#include <vector>

#include "design/borehole_run.h"

namespace varnholt {
namespace {

/// Zones of different sizes, so that no two add the same figures.
std::vector<Zone> buildingOf(std::int64_t zoneCount) {
    std::vector<Zone> zones(static_cast<std::size_t>(zoneCount));
    double size = 1;
    for (Zone& zone : zones) {
        zone.gains = {{{20 * size, 18 * size},
                       {36 * size, 12 * size},
                       {30 * size, 16 * size},
                       {6 * size, 26 * size}}};
        zone.hours = {1000, 900};
        zone.days = 5;
        zone.pump.capacity = {38 * size, 30 * size};
        zone.pump.watts = {2.8 * size, 2.5 * size};
        size = size > 2 ? 1 : size + 0.01;
    }
    return zones;
}

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
