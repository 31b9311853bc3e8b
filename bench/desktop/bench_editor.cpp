// SPDX-License-Identifier: GPL-3.0-or-later
// The heat pump editor in its real window. Budget: 8 ms from a keystroke in a rating table to the
// painted field and picture.
#include <benchmark/benchmark.h>

#include <QTest>
#include <QWindow>

#include "desktop/desk.h"
#include "painted.h"

namespace varnholt {
namespace {

void keystrokeInRatingTableToPaintedPicture(benchmark::State& state) {
    Desk desk;
    desk.main().click("EditAdd");
    ChildWindow& editor = *desk.main().find("frmHPEdit");
    editor.choose("MfgCombo", 2);
    editor.choose("SeriesCombo", 1);
    editor.choose("PumpDataTabs", 1);
    Desk::settle();
    Binder& binder = desk.shelf.windowOf(editor)->binder();
    auto& field = static_cast<QLineEdit&>(*binder.widget("CoolingFR1CapacityText(0)"));
    field.setFocus();
    field.selectAll();
    QWindow* window = desk.window->windowHandle();
    Painted painted(*binder.widget("CoolingRatingChart"));
    Desk::settle();
    typeToPainted(state, window, field, painted, Desk::settle);
    if (editor.control("CoolingFR1CapacityText(0)").text().size() != 1)
        state.SkipWithError("the keys did not arrive");
}
BENCHMARK(keystrokeInRatingTableToPaintedPicture)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime();

}  // namespace
}  // namespace varnholt
