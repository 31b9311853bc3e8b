// SPDX-License-Identifier: GPL-3.0-or-later
// A linked project in its real windows. Budgets in processor time: 25 ms to open one of 1,000
// zones, 3 ms for a keystroke in a design that is linked to 500.
#include <benchmark/benchmark.h>

#include <QTest>
#include <QWindow>

#include "linked_project.h"
#include "painted.h"

namespace varnholt {
namespace {

void openLinkedProjectToPaintedWindows(benchmark::State& state) {
    LinkedProject program(state.range(0));
    for (auto _ : state) {
        program.open();
        state.PauseTiming();
        if (program.window("frmZoneManage").control("LOZoneList").items().size() !=
            static_cast<std::size_t>(state.range(0)))
            state.SkipWithError("the zones were not found");
        program.closeAll();
        state.ResumeTiming();
    }
}
BENCHMARK(openLinkedProjectToPaintedWindows)
    ->Arg(40)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime();

/// Types digits into the temperature of a linked design, which passes them on to its loads.
void keystrokeToPaintedWindows(benchmark::State& state) {
    LinkedProject program(state.range(0));
    program.open();
    ChildWindow& design = program.window("frmBHDesign");
    program.desk.main().activate(design);
    design.choose("BHTabs", 1);
    Desk::settle();
    auto& field = static_cast<QLineEdit&>(program.widget("frmBHDesign", "FLInletTempText(0)"));
    field.setFocus();
    field.selectAll();
    QWindow* window = program.desk.window->windowHandle();
    Painted painted(field);
    Desk::settle();
    typeToPainted(state, window, field, painted, Desk::settle);
    if (design.control("FLInletTempText(0)").text().size() != 1)
        state.SkipWithError("the keys did not arrive");
}
BENCHMARK(keystrokeToPaintedWindows)
    ->Arg(0)
    ->Arg(500)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime();

}  // namespace
}  // namespace varnholt
