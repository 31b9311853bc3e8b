// SPDX-License-Identifier: GPL-3.0-or-later
// The arithmetic of a borehole run, from zones to settled lengths. Budget: 100 microseconds with
// 100 zones.
#include <benchmark/benchmark.h>

#include <vector>

#include "design/modCalculations/ground_load.h"
#include "design/modCalculations/part_load.h"
#include "design/modCalculations/peak_demand.h"
#include "design/modCalculations/peak_loads.h"
#include "design/modCalculations/settling.h"
#include "design/modCalculations/short_circuit.h"
#include "design/modCalculations/system_cop.h"
#include "design/modCalculations/system_flow.h"

namespace varnholt::modCalculations {
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

SettledLengths run(Zones zones) {
    constexpr Soil soil{1.3, 0.75};
    constexpr double years = 10;
    constexpr double flowRate = 3;
    const Hybrid hybrid;
    const PeakLoads loads = calcPeakLoads(zones);
    const PeakDemand demand = calcPeakDemand(zones, loads.peakBlock);
    const SystemCOP cop = calcSystemCOP(zones, loads.peakLoad, demand.peakDemand, {}, hybrid);

    LengthTerms terms;
    terms.annualGroundLoad =
        calcAnnualGroundLoad(annualTonHours(calculateLoadTonHours(zones)), cop.heatPumpCOP, hybrid);
    terms.peakLoad = loads.peakLoad;
    terms.peakDemand = demand.peakDemand;
    terms.partLoadFactor = calcPartLoadFactors(zones, loads.peakLoad, hybrid).partLoadFactor;
    terms.groundResistance =
        calcGroundResistances(calcPulseTimes(loads.peakBlock, years), 5.0 / 12, soil);
    terms.boreResistance = 0.196;
    terms.shortCircuitFactor = shortCircuitFactor(2, flowRate);
    terms.groundTemp = {62, 62};
    terms.inletTemp = {85, 50};
    terms.outletTemp = calcUnitOutletTemps(loads.peakLoad, demand.peakDemand, terms.inletTemp,
                                           flowRate, {62.4, 1.0}, hybrid)
                           .outletTemp;

    const PenaltySite site{{6, 4, 20}, countNeighbours(6, 4), soil, years};
    const auto first = calcBoreLengths(terms, initTemperaturePenalty());
    const auto penalty = calcTemperaturePenalty(site, terms.annualGroundLoad, first);
    return settleBoreLengths(terms, site, calcBoreLengths(terms, penalty));
}

void borehole(benchmark::State& state) {
    const std::vector<Zone> zones = buildingOf(state.range(0));
    if (run(zones).failed) state.SkipWithError("the building has no solution");
    while (state.KeepRunning()) benchmark::DoNotOptimize(run(zones));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(borehole)
    ->RangeMultiplier(10)
    ->Range(1, 1000)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN);

}  // namespace
}  // namespace varnholt::modCalculations
