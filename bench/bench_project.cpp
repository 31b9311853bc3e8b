// SPDX-License-Identifier: GPL-3.0-or-later
// A project with its zone file. Budgets for 1,000 zones: opened in 50 ms, saved in 20 ms.
#include <benchmark/benchmark.h>

#include "project_folder.h"

namespace varnholt {
namespace {

void openProject(benchmark::State& state) {
    ProjectFolder program(state.range(0));
    for (auto _ : state) {
        const frmBHDesign& design = program.open();
        if (design.ZoneList().size() != static_cast<std::size_t>(state.range(0)))
            state.SkipWithError("the zones were not found");
        state.PauseTiming();
        program.closeAll();
        state.ResumeTiming();
    }
}
BENCHMARK(openProject)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

void saveProject(benchmark::State& state) {
    ProjectFolder program(state.range(0));
    program.open();
    for (auto _ : state) program.main.click("mnuFileSave");
}
BENCHMARK(saveProject)->Arg(10)->Arg(1000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace varnholt
