// SPDX-License-Identifier: GPL-3.0-or-later
// Help and reference pages, to the painted pixel. Budgets: the help's first window 400 ms, a page
// in the text browser 50 ms, in the web engine 1.5 s the first time and 200 ms later.
#include <benchmark/benchmark.h>

#include "desktop/desk.h"
#include "forms/text_numbers/browser.h"
#include "painted.h"

namespace varnholt {
namespace {

/// The module is loaded, the collection made and the first page painted: once a run, since the
/// library stays in memory.
void helpFirstWindow(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        Desk desk;
        Desk::settle();
        state.ResumeTiming();
        desk.main().click("mnuHelp");
        QWidget* window = desk.help.window()->window();
        Painted painted(*window);
        window->update();
        painted.wait();
        state.PauseTiming();
        desk.help.close();
        state.ResumeTiming();
    }
}
BENCHMARK(helpFirstWindow)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(helpFirstWindow)->Iterations(5)->Unit(benchmark::kMillisecond)->Name("helpLaterWindow");

/// From the command to the page in its painted window.
void openPage(benchmark::State& state, const char* command, Desk& desk) {
    desk.main().click(command);
    ChildWindow& browser = *desk.main().activeWindow();
    QWidget* frame = desk.shelf.frameOf(browser);
    Painted painted(*frame);
    while (browser.caption() == browser.text(Text::browserTitle) ||
           browser.caption() == browser.text(Text::browserWorking))
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    frame->update();
    painted.wait();
    state.PauseTiming();
    desk.main().close(browser);
    Desk::settle();
    state.ResumeTiming();
}

void pageInTheTextBrowser(benchmark::State& state, const char* command) {
    Desk desk;
    Desk::settle();
    for (auto _ : state) openPage(state, command, desk);
}
BENCHMARK_CAPTURE(pageInTheTextBrowser, fluids, "FluidProperties")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(pageInTheTextBrowser, soils, "SoilProperties")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(pageInTheTextBrowser, pipes, "PipeProperties")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(pageInTheTextBrowser, factors, "Conversions")->Unit(benchmark::kMillisecond);

void pageInTheWebEngine(benchmark::State& state) {
    Desk desk("web");
    Desk::settle();
    for (auto _ : state) openPage(state, "FluidProperties", desk);
}
BENCHMARK(pageInTheWebEngine)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(pageInTheWebEngine)
    ->Iterations(10)
    ->Unit(benchmark::kMillisecond)
    ->Name("laterPageInTheWebEngine");

}  // namespace
}  // namespace varnholt
