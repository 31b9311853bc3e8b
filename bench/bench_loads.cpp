// SPDX-License-Identifier: GPL-3.0-or-later
// Selection of pumps for many zones, and zone files. Budgets: 50 ms for 1,000 zones and 100
// models, 100 ms for a file of 10,000 zones in either direction.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "catalogue/pump_selection.h"
#include "loads/ModLoadsIO.h"

namespace varnholt {
namespace {

/// Models of rising size from a tenth of a ton up, 1.2 MBtu/hr apart.
std::vector<pump> risingModels(std::int64_t count) {
    std::vector<pump> models(static_cast<std::size_t>(count));
    double size = 0;
    for (pump& model : models) {
        size += 1.2;
        model.name = "M" + std::to_string(static_cast<int>(size));
        auto& c = model.coefficients;
        c.capacity = {{{size * 1.5, size * 0.5}, {size * -0.005, size * 0.008}}};
        c.watts = {{{size * 0.03, size * 0.06}, {size * 0.0005, size * 0.0002}}};
        c.capacityCorrection = {{{0.33, 1.7}, {0.01, -0.01}}};
        c.wattsCorrection = c.capacityCorrection;
        model.flowCf = {{{1.02, 1.03}, {0.97, 1.01}}};
        model.ewt[3].flowRate[0].flowRate = size * 0.19;
        model.ewt[3].flowRate[1].flowRate = size * 0.25;
    }
    return models;
}

/// Loads between 2 and 400 MBtu/hr, so that the larger zones need several units.
std::vector<Zone> manyZones(std::int64_t count) {
    std::vector<Zone> zones(static_cast<std::size_t>(count));
    std::size_t i = 0;
    for (Zone& zone : zones) {
        const double load = 2 + static_cast<double>(i++ * 7919 % 400);
        zone.gains = {{{load * 0.6, load * 0.8}, {load, load * 0.3}, {load * 0.9, 0}, {0, load}}};
        zone.hours = {1200, 900};
        zone.title = "Classroom with a north window";
        zone.pump.mfgName = "Northfield Heat Pumps";
        zone.pump.seriesName = "Meadow Single Stage";
        zone.pump.name = "ML036";
        zone.pump.capacity = {load / 0.93, load / 0.87};
        zone.pump.efficiency = {load / 31, load / 37};
    }
    return zones;
}

void selectPumps(benchmark::State& state) {
    const std::vector<Zone> zones = manyZones(state.range(0));
    const std::vector<pump> models = risingModels(state.range(1));
    for (auto _ : state)
        for (const Zone& zone : zones)
            benchmark::DoNotOptimize(autoSelectPump(models, zone.gains, zone.pump, {}));
}
BENCHMARK(selectPumps)
    ->Args({100, 100})
    ->Args({1000, 10})
    ->Args({1000, 100})
    ->Args({10000, 100})
    ->Unit(benchmark::kMillisecond);

LoadsData manyZonesData(std::int64_t count) {
    LoadsData data;
    data.zones = manyZones(count);
    return data;
}

void readZoneFileText(benchmark::State& state) {
    const std::string text = zonesText(manyZonesData(state.range(0)));
    for (auto _ : state) {
        LoadsData data;
        readZones(text, {"Zone", ""}, data);
        benchmark::DoNotOptimize(data.zones.size());
    }
}
BENCHMARK(readZoneFileText)->RangeMultiplier(10)->Range(10, 10000)->Unit(benchmark::kMillisecond);

void writeZoneFileText(benchmark::State& state) {
    const LoadsData data = manyZonesData(state.range(0));
    for (auto _ : state) benchmark::DoNotOptimize(zonesText(data));
}
BENCHMARK(writeZoneFileText)->RangeMultiplier(10)->Range(10, 10000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace varnholt
