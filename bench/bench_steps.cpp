// SPDX-License-Identifier: GPL-3.0-or-later
// Steps of a user and back again, through the verbs of forms and the commands of the main menu,
// without a screen. Budgets: 1 ms for a step and for its undoing with 1,000 zones, 15 microseconds
// for Calculate with 100, 5 microseconds for a copy of a project with 10,000.
#include <benchmark/benchmark.h>

#include <string>

#include "project_folder.h"

namespace varnholt {
namespace {

void copyOfAProject(benchmark::State& state) {
    ProjectFolder program(state.range(0));
    const BoreholeProject original = program.open().project();
    if (original.loads.zones.size() != static_cast<std::size_t>(state.range(0)))
        return state.SkipWithError("the zones were not found");
    for (auto _ : state) {
        BoreholeProject copy = original;
        benchmark::DoNotOptimize(copy);
    }
}
BENCHMARK(copyOfAProject)->Arg(100)->Arg(10000)->Unit(benchmark::kMicrosecond);

void calculateByClick(benchmark::State& state) {
    ProjectFolder program(state.range(0));
    frmBHDesign& design = program.open();
    for (auto _ : state) design.click("CACalculateCommand");
    if (design.project().results->lengths.failed || !program.platform.messages.empty() ||
        design.project().loads.zones.size() != static_cast<std::size_t>(state.range(0)))
        state.SkipWithError("the building has no solution");
}
BENCHMARK(calculateByClick)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);

/// A load typed and left, in the Zone Manager and so in the design that is linked with it.
void stepInTheZones(benchmark::State& state) {
    ProjectFolder program(state.range(0));
    program.open();
    frmZoneManage& manager = program.manager();
    program.main.activate(manager);
    int digit = 0;
    for (auto _ : state) {
        digit = 1 - digit;
        manager.type("LOGainsText(1)", digit == 0 ? "31.5" : "32.5");
        manager.leave("LOGainsText(1)");
    }
    if (!program.main.control("mnuUndo").enabled()) state.SkipWithError("there were no steps");
}
BENCHMARK(stepInTheZones)->Arg(10)->Arg(1000)->Unit(benchmark::kMicrosecond);

void stepInTheDesign(benchmark::State& state) {
    ProjectFolder program(state.range(0));
    frmBHDesign& design = program.open();
    int digit = 0;
    for (auto _ : state) {
        digit = 1 - digit;
        design.type("SOGroundTempText", digit == 0 ? "61.5" : "62.5");
        design.leave("SOGroundTempText");
    }
    if (!program.main.control("mnuUndo").enabled()) state.SkipWithError("there were no steps");
}
BENCHMARK(stepInTheDesign)->Arg(10)->Arg(1000)->Unit(benchmark::kMicrosecond);

/// Undo and redo in turn: half of the time is that of one step.
void undoAndRedo(benchmark::State& state, Varnmain& main) {
    if (!main.control("mnuUndo").enabled()) return state.SkipWithError("there is nothing to undo");
    for (auto _ : state) {
        main.click("mnuUndo");
        main.click("mnuRedo");
    }
    if (main.control("mnuRedo").enabled()) state.SkipWithError("the step was not redone");
}

void undoAndRedoALoad(benchmark::State& state) {
    ProjectFolder program(state.range(0));
    program.open();
    frmZoneManage& manager = program.manager();
    program.main.activate(manager);
    manager.type("LOGainsText(1)", "31.5");
    manager.leave("LOGainsText(1)");
    undoAndRedo(state, program.main);
}
BENCHMARK(undoAndRedoALoad)->Arg(10)->Arg(1000)->Unit(benchmark::kMicrosecond);

void undoAndRedoEveryPump(benchmark::State& state) {
    ProjectFolder program(state.range(0));
    program.open();
    program.main.activate(program.manager());
    program.manager().click("LOAutoSelectAllCommand");
    undoAndRedo(state, program.main);
}
BENCHMARK(undoAndRedoEveryPump)->Arg(10)->Arg(1000)->Unit(benchmark::kMicrosecond);

void undoAndRedoARemoval(benchmark::State& state) {
    ProjectFolder program(state.range(0));
    program.open();
    program.main.activate(program.manager());
    program.manager().choose("LOZoneList", static_cast<int>(state.range(0) / 2));
    program.manager().click("LORemoveCommand");
    undoAndRedo(state, program.main);
}
BENCHMARK(undoAndRedoARemoval)->Arg(10)->Arg(1000)->Unit(benchmark::kMicrosecond);

void undoAndRedoARun(benchmark::State& state) {
    ProjectFolder program(state.range(0));
    program.open().click("CACalculateCommand");
    undoAndRedo(state, program.main);
}
BENCHMARK(undoAndRedoARun)->Arg(10)->Arg(1000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace varnholt
