// SPDX-License-Identifier: GPL-3.0-or-later
// What decides a length, how sure it is, which field and which tower is cheapest. Budgets: the
// classical pages 15 ms with 1 to 1,000 zones; by g-functions of 120 bores 250 ms the distribution,
// 1 s the shares; layouts 10 ms on a rectangle, 200 ms on 50 corners with ten no-go areas, 1.5 s by
// g-functions; the tower's 100 percents 0.2 ms and 30 ms.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <numbers>

#include "design/whatIf/field_method.h"
#include "design/whatIf/layout_run.h"
#include "design/whatIf/layout_search.h"
#include "design/whatIf/office.h"
#include "design/whatIf/what_if.h"
#include "sample_building.h"

namespace varnholt {
namespace {

/// An office over 12 by 10 bores.
BoreholeInputs manyBores() {
    BoreholeInputs design = officeInputs();
    design.arrangement.patternRows = {12, 10};
    return design;
}

/// The classical pages as a run of its own, without the curve of the other method.
void classicalPages(benchmark::State& state) {
    BoreholeInputs design = officeInputs();
    design.loads.zones = buildingOf(state.range(0));
    std::array<std::vector<Drivers>, caseSets> sets;
    for (std::size_t set = 0; set < caseSets; ++set) sets[set] = driversOfSet(set, casesOfSet);
    const DriverPairs pairs = driverPairs(sharePoints);
    const Cases cases({});
    while (state.KeepRunning()) {
        const RolledZones zones(design.loads.zones);
        const auto figures = [&](const CaseFactors& factors) {
            return classicalFigures(zones, design, factors, 9'000);
        };
        const auto need = [&](const CaseFactors& factors) { return figures(factors).need(); };
        CertaintySum sum;
        for (const std::vector<Drivers>& drivers : sets) {
            std::vector<CaseFigures> set;
            set.reserve(drivers.size());
            for (const Drivers& z : drivers) set.push_back(figures(cases.at(z)));
            sum.add(std::move(set));
        }
        benchmark::DoNotOptimize(sum.certainty(9'000, 0.9));
        benchmark::DoNotOptimize(tornado(cases, need));
        ShareSum shares;
        for (std::size_t i = 0; i < sharePoints; ++i)
            shares.add(pairs.first[i], pairs.second[i],
                       [&](const Drivers& z) { return need(cases.at(z)); });
        benchmark::DoNotOptimize(shares.shares());
        for (std::size_t lever = 0; lever < leverCount; ++lever)
            for (const int end : {-1, 1})
                benchmark::DoNotOptimize(classicalFigures(
                    zones, withLever(design, static_cast<Lever>(lever), end), {}, 0));
    }
}
BENCHMARK(classicalPages)->Arg(1)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

/// What a page asks for, from nothing.
void pageByGFunctions(benchmark::State& state, const WhatIfWanted& wanted) {
    WhatIfCase theCase;
    theCase.design = manyBores();
    while (state.KeepRunning()) {
        WhatIfMemory memory;
        benchmark::DoNotOptimize(whatIfOf(theCase, wanted, memory));
    }
}
BENCHMARK_CAPTURE(pageByGFunctions, base, WhatIfWanted{})->Unit(benchmark::kMillisecond);
/// With what a test would save and the other method's curve, three distributions in all.
BENCHMARK_CAPTURE(pageByGFunctions, sure, WhatIfWanted{.sure = true})
    ->Unit(benchmark::kMillisecond);
/// Tornado and levers too, two of which have fields of their own.
BENCHMARK_CAPTURE(pageByGFunctions, decides, WhatIfWanted{.decides = true})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(pageByGFunctions, tower, WhatIfWanted{.tower = true})
    ->Unit(benchmark::kMillisecond);

/// The distribution alone: 2,048 cases and the g-functions that they need.
void distributionByGFunctions(benchmark::State& state) {
    const BoreholeInputs design = manyBores();
    const RolledZones zones(design.loads.zones);
    const Cases cases({});
    while (state.KeepRunning()) {
        FieldMemory memory;
        FieldMethod method({}, memory);
        double about = 0;
        const auto figures = [&](const CaseFactors& factors) {
            for (;;) {
                if (const auto found = method.figures({zones, design, 9'000, about}, factors))
                    return *found;
                method.computeMore();
            }
        };
        about = figures({}).need() / 120;
        for (std::size_t set = 0; set < caseSets; ++set)
            for (const Drivers& drivers : driversOfSet(set, 256))
                benchmark::DoNotOptimize(figures(cases.at(drivers)));
    }
}
BENCHMARK(distributionByGFunctions)->Unit(benchmark::kMillisecond);

void classicalTower(benchmark::State& state) {
    const BoreholeInputs design = officeInputs();
    const RolledZones zones(design.loads.zones);
    while (state.KeepRunning()) {
        TowerCurve curve;
        for (std::size_t percent = 0; percent < towerPercents; ++percent) {
            const BoreholeInputs with = withTower(design, percent);
            setTowerPercent(curve, percent, with, zones, classicalFigures(zones, with, {}, 0), {});
        }
        benchmark::DoNotOptimize(curve);
    }
}
BENCHMARK(classicalTower)->Unit(benchmark::kMillisecond);

Layouts found(const LayoutCase& theCase, const NeedByGFunctions& byGFunctions) {
    LayoutSearch search(theCase, byGFunctions);
    while (!search.step()) {
    }
    return search.result();
}

void layoutOnARectangle(benchmark::State& state) {
    LayoutCase theCase;
    theCase.design = officeInputs();
    std::size_t fields = 0;
    while (state.KeepRunning()) fields = found(theCase, {}).possible;
    state.counters["fields"] = static_cast<double>(fields);
}
BENCHMARK(layoutOnARectangle)->Unit(benchmark::kMillisecond);

/// Steps to the end, and tells the longest step in processor time, ms.
template <class Run>
double longestStep(Run& run) {
    std::clock_t longest = 0;
    for (bool done = false; !done;) {
        const std::clock_t from = std::clock();
        done = run.step();
        longest = std::max(longest, std::clock() - from);
    }
    return 1000.0 * static_cast<double>(longest) / CLOCKS_PER_SEC;
}

/// 10,000 ft by 10,000, whole rectangles and rows cut to the land.
void sliceOfALargeLand(benchmark::State& state) {
    LayoutCase theCase;
    theCase.design = officeInputs();
    theCase.land.across = theCase.land.down = 10'000;
    theCase.layout.layoutKind = static_cast<std::int16_t>(state.range(0));
    double longest = 0;
    while (state.KeepRunning()) {
        LayoutSearch search(theCase, {});
        longest = std::max(longest, longestStep(search));
    }
    state.counters["slice_ms"] = longest;
}
BENCHMARK(sliceOfALargeLand)->ArgName("kind")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

/// Every page by g-functions of 120 bores, and a search for fields of up to 400.
void sliceByGFunctions(benchmark::State& state) {
    WhatIfCase theCase;
    theCase.design = manyBores();
    double ofPages = 0, ofSearch = 0;
    while (state.KeepRunning()) {
        WhatIfMemory memory;
        WhatIfRun run(theCase, WhatIfWanted::everything(), memory);
        ofPages = std::max(ofPages, longestStep(run));
        LayoutSearch search = layoutSearchOf(theCase);
        ofSearch = std::max(ofSearch, longestStep(search));
    }
    state.counters["slice_ms"] = ofPages;
    state.counters["search_slice_ms"] = ofSearch;
}
BENCHMARK(sliceByGFunctions)->Unit(benchmark::kMillisecond);

/// A star of 50 corners with ten triangles in it.
LandValues crookedLand() {
    LandValues land;
    for (int i = 0; i < 50; ++i) {
        const double angle = i * 2 * std::numbers::pi / 50, radius = i % 2 == 0 ? 130 : 150;
        land.corner.push_back({150 + radius * std::cos(angle), 150 + radius * std::sin(angle)});
    }
    for (int i = 0; i < 10; ++i) {
        const double x = 50 + i * 20, y = 100 + i * 7;
        land.noGo.push_back({{x, y}, {x + 8, y}, {x + 5, y + 12}});
    }
    return land;
}

void layoutCutToTheLand(benchmark::State& state) {
    LayoutCase theCase;
    theCase.design = officeInputs();
    theCase.land = crookedLand();
    theCase.layout.layoutKind = rowsCutToLand;
    while (state.KeepRunning()) benchmark::DoNotOptimize(found(theCase, {}));
}
BENCHMARK(layoutCutToTheLand)->Unit(benchmark::kMillisecond);

/// A building of four times the office's loads on land for some 250 bores.
void layoutByGFunctions(benchmark::State& state) {
    LayoutCase theCase;
    theCase.design = officeInputs();
    Zone& zone = theCase.design.loads.zones.edit(0);
    for (Mode m : modes) {
        for (auto& gain : zone.gains) gain[m] *= 4;
        zone.pump.capacity[m] *= 4;
        zone.pump.watts[m] *= 4;
    }
    theCase.layout.mostBores = 250;
    theCase.layout.mostDepth = 300;
    theCase.measure = byGFunctions;
    int computed = 0;
    while (state.KeepRunning()) {
        computed = 0;
        FieldSizer sizer({}, theCase.design);
        const Layouts layouts = found(
            theCase, [&](const std::vector<Point>& bores, const LatticeField& field, double depth) {
                std::vector<secondOpinion::BorePosition> places;
                for (const Point& bore : bores) places.push_back({bore.x, bore.y});
                const auto need = sizer.need(places, field.separation, depth);
                computed += need ? 1 : 0;
                return need;
            });
        if (layouts.fields.empty()) state.SkipWithError("no field");
    }
    state.counters["fields"] = computed;
}
BENCHMARK(layoutByGFunctions)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace varnholt
