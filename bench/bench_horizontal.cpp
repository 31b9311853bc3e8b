// SPDX-License-Identifier: GPL-3.0-or-later
// A horizontal run, from zones to settled lengths, without a window, and how it grows with the
// pipes in a trench: budget 300 microseconds with 24. The same by a click of Calculate in its form.
#include <benchmark/benchmark.h>

#include "../tests/forms/fake_platform.h"
#include "design/frmHZDesign.h"
#include "design/install.h"
#include "sample_building.h"

namespace varnholt {
namespace {

/// Three columns of pipes in each of ten trenches.
HorizontalProject fieldOf(std::int64_t pipes) {
    HorizontalProject project;
    project.loads.zones = buildingOf(10);
    project.loads.zoneNumber = 10;
    project.groundTemperature = {20, {202, 19}};
    project.arrangement.trenchConfiguration = modCalculations::threeColumns;
    project.arrangement.pipesPerTrench = static_cast<double>(pipes);
    project.trench = {10, {8, 8, 24}};
    return project;
}

void horizontal(benchmark::State& state) {
    const HorizontalInputs inputs = inputsOf(fieldOf(state.range(0)), false);
    const auto found = runHorizontal(inputs);
    if (!found || found->lengths.failed) state.SkipWithError("the field has no solution");
    while (state.KeepRunning()) benchmark::DoNotOptimize(runHorizontal(inputs));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(horizontal)
    ->Arg(3)
    ->Arg(6)
    ->Arg(12)
    ->Arg(24)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity();

void horizontalByClick(benchmark::State& state) {
    FakePlatform platform;
    FakeTexts texts;
    Varnmain main(platform, texts, "/nowhere");
    main.start();
    installDesign(main);
    main.click("NewHorizontal");
    auto& design = dynamic_cast<frmHZDesign&>(*main.activeWindow());
    design.setProject(fieldOf(state.range(0)));
    while (state.KeepRunning()) design.click("CACalculateCommand");
    if (design.results().lengths.failed) state.SkipWithError("the field has no solution");
}
BENCHMARK(horizontalByClick)->Arg(3)->Arg(24)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace varnholt
