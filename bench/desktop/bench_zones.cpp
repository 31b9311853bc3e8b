// SPDX-License-Identifier: GPL-3.0-or-later
// What a person does in the Zone Manager with 500 zones that a design is linked to, each time to
// the painted list. Budget: a blink, 100 ms, for whatever is done.
#include <benchmark/benchmark.h>

#include <QHeaderView>
#include <QLineEdit>
#include <QTest>
#include <QWindow>

#include "desktop/widgets/list_view.h"
#include "linked_project.h"

namespace varnholt {
namespace {

constexpr std::int64_t manyZones = 500;
constexpr int loadColumn = 2;

/// The Zone Manager in front, with its list.
class ZoneDesk {
 public:
    ZoneDesk() : program(manyZones) {
        program.open();
        program.desk.main().activate(loads());
        Desk::settle();
    }

    ChildWindow& loads() { return program.window("frmZoneManage"); }
    QWidget& widget(const char* control) { return program.widget("frmZoneManage", control); }
    ListView& list() { return static_cast<ListView&>(widget("LOZoneList")); }
    QLineEdit& filter() {
        return *program.desk.shelf.windowOf(loads())->findChild<QLineEdit*>(
            QStringLiteral("zoneFilter"));
    }
    void sortByLoad() { list().sortByColumn(loadColumn, Qt::DescendingOrder); }
    QWindow* keys() { return program.desk.window->windowHandle(); }

    LinkedProject program;
};

enum ZoneLooks { asOpened, sortedByLoad, filteredByLabel, withSummary };

/// Brings the list into the state that a person has made before.
void prepare(ZoneDesk& zones, int looks) {
    if (looks == sortedByLoad) zones.sortByLoad();
    if (looks == filteredByLabel) zones.filter().setText(QStringLiteral("room"));
    if (looks == withSummary) zones.loads().click("LOSummaryCommand");
    Desk::settle();
}

/// Times a benchmark in each of these states.
void inEveryState(benchmark::internal::Benchmark* timed) {
    for (const ZoneLooks looks : {asOpened, sortedByLoad, filteredByLabel, withSummary})
        timed->Arg(looks);
    timed->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
}

void keystrokeInALoadField(benchmark::State& state) {
    ZoneDesk zones;
    prepare(zones, static_cast<int>(state.range(0)));
    auto& field = static_cast<QLineEdit&>(zones.widget("LOGainsText(0)"));
    field.setFocus();
    field.selectAll();
    Painted painted(*zones.list().viewport());
    Desk::settle();
    typeToPainted(state, zones.keys(), field, painted, Desk::settle);
    if (field.text().size() != 1) state.SkipWithError("the keys did not arrive");
}
BENCHMARK(keystrokeInALoadField)->Apply(inEveryState);

void selectAZone(benchmark::State& state) {
    ZoneDesk zones;
    prepare(zones, static_cast<int>(state.range(0)));
    Painted painted(*zones.list().viewport());
    Desk::settle();
    int row = 0;
    for (auto _ : state) {
        row = (row + 7) % static_cast<int>(manyZones);
        zones.list().pick({row});
        painted.wait();
    }
    if (zones.loads().control("LOZoneList").selected() != std::vector<int>{row})
        state.SkipWithError("the zone was not chosen");
}
BENCHMARK(selectAZone)->Apply(inEveryState);

void selectAllZones(benchmark::State& state) {
    ZoneDesk zones;
    Painted painted(*zones.list().viewport());
    Desk::settle();
    for (auto _ : state) {
        zones.list().selectAll();
        painted.wait();
        state.PauseTiming();
        zones.list().pick({0});
        painted.wait();
        state.ResumeTiming();
    }
}
BENCHMARK(selectAllZones)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

void sortTheZones(benchmark::State& state) {
    ZoneDesk zones;
    Painted painted(*zones.list().viewport());
    Desk::settle();
    Qt::SortOrder order = Qt::AscendingOrder;
    const auto column = static_cast<int>(state.range(0));
    for (auto _ : state) {
        zones.list().sortByColumn(column, order);
        painted.wait();
        order = order == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    }
}
BENCHMARK(sortTheZones)->DenseRange(0, 3)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

void filterTheZones(benchmark::State& state) {
    ZoneDesk zones;
    prepare(zones, static_cast<int>(state.range(0)));
    Painted painted(*zones.list().viewport());
    Desk::settle();
    bool some = true;
    for (auto _ : state) {
        zones.filter().setText(some ? QStringLiteral("9") : QString());
        painted.wait();
        some = !some;
    }
}
BENCHMARK(filterTheZones)
    ->Arg(asOpened)
    ->Arg(sortedByLoad)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime();

void addAndTakeBackAZone(benchmark::State& state) {
    ZoneDesk zones;
    prepare(zones, static_cast<int>(state.range(0)));
    Painted painted(*zones.list().viewport());
    Desk::settle();
    for (auto _ : state) {
        zones.loads().click("LONewCommand");
        painted.wait();
        zones.loads().undo();
        painted.wait();
    }
}
BENCHMARK(addAndTakeBackAZone)
    ->Arg(asOpened)
    ->Arg(sortedByLoad)
    ->Arg(withSummary)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime();

}  // namespace
}  // namespace varnholt
