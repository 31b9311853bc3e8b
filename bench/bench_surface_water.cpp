// SPDX-License-Identifier: GPL-3.0-or-later
// A surface water run, from zones to head losses, without a window: budget 5 microseconds with 100
// zones. The same by a click of Calculate in its form, without widgets.
#include <benchmark/benchmark.h>

#include "../tests/forms/fake_platform.h"
#include "design/frmSWDesign.h"
#include "design/install.h"
#include "sample_building.h"

namespace varnholt {
namespace {

/// A pond with buried and submerged headers and branches, so that every step has work.
SurfaceWaterProject pondOf(std::int64_t zones) {
    SurfaceWaterProject project;
    project.loads.zones = buildingOf(zones);
    project.loads.zoneNumber = static_cast<std::int16_t>(zones);
    project.conditions.inletTemp = {86, 34};
    project.water.loopWaterTemp = {74, 42};
    project.header.headerCount = {2, 3};
    project.header.headerLength = {40, 160, 90, 20};
    project.header.headerHeadLoss = {1.6, 1.9, 1.8, 2.2};
    project.loop.parallelLoops = {48, 48};
    project.loop.loopHeadLoss = {2.4, 3.1};
    return project;
}

void surfaceWater(benchmark::State& state) {
    const SurfaceWaterInputs inputs = inputsOf(pondOf(state.range(0)));
    const auto found = runSurfaceWater(inputs);
    if (!found || found->loopLength[cooling] <= 0) state.SkipWithError("the pond has no length");
    while (state.KeepRunning()) benchmark::DoNotOptimize(runSurfaceWater(inputs));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(surfaceWater)
    ->RangeMultiplier(10)
    ->Range(1, 1000)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN);

void surfaceWaterByClick(benchmark::State& state) {
    FakePlatform platform;
    FakeTexts texts;
    Varnmain main(platform, texts, "/nowhere");
    main.start();
    installDesign(main);
    main.click("NewSurfaceWater");
    auto& design = dynamic_cast<frmSWDesign&>(*main.activeWindow());
    design.setProject(pondOf(state.range(0)));
    while (state.KeepRunning()) design.click("CACalculateCommand");
    if (design.results().loopLength[cooling] <= 0) state.SkipWithError("the pond has no length");
}
BENCHMARK(surfaceWaterByClick)->Arg(1)->Arg(100)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace varnholt
