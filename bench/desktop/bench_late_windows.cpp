// SPDX-License-Identifier: GPL-3.0-or-later
// A keystroke in a design while a window with late figures stands beside it: they are dropped and
// begun anew with every key. Budget: 3 ms of processor time to the painted pixel, as without it.
#include <benchmark/benchmark.h>

#include <QLineEdit>
#include <QTest>
#include <QWindow>

#include "design/frmBHDesign.h"
#include "linked_project.h"

namespace varnholt {
namespace {

/// A design of 120 bores for 500 zones, and beside it what a command of its opens.
class LateWindow {
 public:
    LateWindow(const char* command, const char* form) {
        program.open();
        design().type("PAPatternRowsText(0)", "12");
        design().type("PAPatternRowsText(1)", "10");
        design().choose("BHTabs", 1);
        program.desk.window->resize(2000, 1000);
        design().click(command);
        place("frmBHDesign", {0, 0, 900, 900});
        place(form, {900, 0, 1050, 900});
        program.desk.main().activate(design());
        Desk::settle();
    }
    ChildWindow& design() { return program.window("frmBHDesign"); }
    QLineEdit& field() {
        return static_cast<QLineEdit&>(program.widget("frmBHDesign", "FLInletTempText(0)"));
    }

    /// Loads of 500 zones that come to some 100 tons.
    LinkedProject program{500, 0.01};

 private:
    void place(const char* form, const QRect& where) {
        auto* frame = program.desk.shelf.frameOf(program.window(form));
        frame->showNormal();
        frame->setGeometry(where);
    }
};

/// Types digits while the figures of the digit before are on the way.
void typeBeside(benchmark::State& state, LateWindow& windows) {
    QLineEdit& field = windows.field();
    field.setFocus();
    field.selectAll();
    QWindow* window = windows.program.desk.window->windowHandle();
    Painted painted(field);
    Desk::settle();
    // Past the rest that the repaint is left, so that the figures are being found.
    typeToPainted(state, window, field, painted, [] { QTest::qWait(25); });
    if (windows.design().control("FLInletTempText(0)").text().size() != 1)
        state.SkipWithError("the keys did not arrive");
    if (!windows.program.desk.faults.empty()) state.SkipWithError("the window has failed");
}

void keystrokeBesideTheSecondOpinion(benchmark::State& state) {
    LateWindow windows("CASecondOpinionCommand", "frmSecondOpinion");
    typeBeside(state, windows);
}
BENCHMARK(keystrokeBesideTheSecondOpinion)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(100)
    ->MeasureProcessCPUTime();

void keystrokeBesideWhatIf(benchmark::State& state) {
    LateWindow windows("CAWhatIfCommand", "frmWhatIf");
    windows.program.window("frmWhatIf").choose("WITabs", static_cast<int>(state.range(0)));
    windows.program.desk.main().activate(windows.design());
    typeBeside(state, windows);
}
BENCHMARK(keystrokeBesideWhatIf)
    ->ArgName("page")
    ->DenseRange(0, 5)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(100)
    ->MeasureProcessCPUTime();

}  // namespace
}  // namespace varnholt
