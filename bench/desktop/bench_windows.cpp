// SPDX-License-Identifier: GPL-3.0-or-later
// A linked project in its real windows. Budgets in processor time: 25 ms to open one of 1,000
// zones, 3 ms for a keystroke in a design that is linked to 500.
#include <benchmark/benchmark.h>

#include <QTest>
#include <QWindow>
#include <vector>

#include "desktop/desk.h"
#include "loads/ModLoadsIO.h"
#include "painted.h"
#include "persistence/project_commands.h"

namespace varnholt {
namespace {

/// The program with its windows, and a project on the disk that is linked to so many zones.
class LinkedProject {
 public:
    explicit LinkedProject(std::int64_t zones) {
        std::vector<Zone> rooms(static_cast<std::size_t>(zones));
        double load = 0;
        for (Zone& zone : rooms) {
            zone.gains[1][cooling] = load += 1.5;
            zone.gains[3][heating] = load / 2;
            zone.title = "A room with a name";
            zone.pump.capacity = {load, load};
            zone.pump.watts = {load / 12, load / 14};
        }
        LoadsData data;
        data.zones = rooms;
        saveZoneFile(desk.folder() + "/work files/zones.zon", data);
        makeProject();
    }

    void open() {
        openProjectFile(desk.main(), project());
        Painted design(*desk.shelf.frameOf(window("frmBHDesign")));
        Painted loads(*desk.shelf.frameOf(window("frmZoneManage")));
        design.wait();
    }
    void closeAll() {
        while (!desk.main().windows().empty()) desk.main().close(*desk.main().windows().back());
        Desk::settle();
    }
    ChildWindow& window(const char* name) { return *desk.main().find(name); }
    QWidget& widget(const char* form, const char* control) {
        return *desk.shelf.windowOf(window(form))->binder().widget(control);
    }

    Desk desk;

 private:
    std::string project() const { return desk.folder() + "/work files/project.vht"; }

    /// A design, linked with the zones and saved by its commands.
    void makeProject() {
        desk.main().click("NewBorehole");
        openZoneFile(desk.main(), desk.folder() + "/work files/zones.zon");
        desk.main().activate(window("frmBHDesign"));
        desk.main().click("mnuLink");
        desk.platform.picks = {project()};
        desk.main().click("mnuFileSave");
        closeAll();
    }
};

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
    int digit = 0;
    for (auto _ : state) {
        QTest::keyClick(window, static_cast<char>('8' + digit));
        painted.wait();
        state.PauseTiming();
        digit = 1 - digit;
        field.selectAll();
        Desk::settle();
        state.ResumeTiming();
    }
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
