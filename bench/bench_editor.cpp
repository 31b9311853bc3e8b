// SPDX-License-Identifier: GPL-3.0-or-later
// The heat pump editor without its window: one fit, a series of 100 pumps opened and browsed, index
// and series written. Budgets: 2 microseconds a fit, 5 ms to open, 20 ms to write.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <filesystem>
#include <memory>
#include <string>

#include "catalogue/ModPumpsIO.h"
#include "catalogue/editor/frmHPEdit.h"
#include "catalogue/fitting/measured_pump.h"
#include "catalogue/fitting/polynomial_fit.h"
#include "frame/varnmain.h"
#include "silent_platform.h"

namespace varnholt {
namespace {

class PlainTexts : public Texts {
 public:
    std::string text(int number) const override {
        return number == 1101 ? std::string() : std::to_string(number);
    }
    std::string picture(int) const override { return {}; }
};

/// The editor over a catalogue of one series with 100 pumps.
class OpenEditor {
 public:
    OpenEditor() {
        PumpSeries series{{"Hundred", "hundred", {2025, 1, 2}}, {"Maker", "", "", "", ""}, {}};
        for (int i = 1; i <= 100; ++i) {
            series.models.push_back(fittedPump());
            series.models.back().name = "M" + std::to_string(i);
        }
        std::filesystem::create_directories(folder_ + "/pumps");
        WritePumpSeries(folder_ + "/pumps", series);
        WritePumpList(folder_ + "/pumps", {{series.mfgInfo, {series.seriesInfo}}});
        main_ = std::make_unique<Varnmain>(platform_, texts_, folder_);
        auto made = std::make_unique<frmHPEdit>(*main_, [] {});
        window = made.get();
        main_->open(std::move(made));
    }
    OpenEditor(const OpenEditor&) = delete;
    OpenEditor& operator=(const OpenEditor&) = delete;
    ~OpenEditor() { std::filesystem::remove_all(folder_); }

    /// The only manufacturer brings its only series.
    void open() { window->choose("MfgCombo", 2); }

    frmHPEdit* window;

 private:
    static std::string freshFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "varnholt-bench-XXXXXX");
        if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder to measure in");
        return name;
    }

    std::string folder_ = freshFolder();
    SilentPlatform platform_;
    PlainTexts texts_;
    std::unique_ptr<Varnmain> main_;
};

void fitOfThreePoints(benchmark::State& state) {
    const FitPoints points = ratingPointsOf(measuredPump(), cooling, fittedCapacity);
    for (auto _ : state) benchmark::DoNotOptimize(FitPolynomial(points.xs(), points.ys(), 2));
}
BENCHMARK(fitOfThreePoints);

void fitOfFiveRows(benchmark::State& state) {
    const FitPoints rows = correctionRowsOf(measuredPump(), byTemperature, cooling, fittedCapacity);
    for (auto _ : state) benchmark::DoNotOptimize(FitPolynomial(rows.xs(), rows.ys(), 3));
}
BENCHMARK(fitOfFiveRows);

void openSeriesOfHundredPumps(benchmark::State& state) {
    OpenEditor editor;
    for (auto _ : state) editor.open();
    if (editor.window->control("PumpNamesList").items().size() != 100)
        state.SkipWithError("the pumps were not read");
}
BENCHMARK(openSeriesOfHundredPumps)->Unit(benchmark::kMillisecond);

void browseThePumps(benchmark::State& state) {
    OpenEditor editor;
    editor.open();
    int row = 0;
    for (auto _ : state) editor.window->choose("PumpNamesList", row = (row + 1) % 100);
}
BENCHMARK(browseThePumps)->Unit(benchmark::kMicrosecond);

void keystrokeInTheEditor(benchmark::State& state) {
    OpenEditor editor;
    editor.open();
    int digit = 0;
    for (auto _ : state)
        editor.window->type("CoolingFR1CapacityText(0)", std::to_string(30 + (digit = 1 - digit)));
}
BENCHMARK(keystrokeInTheEditor)->Unit(benchmark::kMicrosecond);

void saveHundredPumps(benchmark::State& state) {
    OpenEditor editor;
    editor.open();
    int flow = 0;
    for (auto _ : state) {
        editor.window->type("NominalFlowText", std::to_string(900 + (flow = 1 - flow)));
        editor.window->click("SaveCommand");
    }
    if (editor.window->control("SaveCommand").enabled())
        state.SkipWithError("the pumps were not saved");
}
BENCHMARK(saveHundredPumps)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace varnholt
