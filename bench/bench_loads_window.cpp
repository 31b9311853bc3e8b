// SPDX-License-Identifier: GPL-3.0-or-later
// The Zone Manager as a window: pumps for all zones, a zone file on the disk, a keystroke. The
// catalogue is a series of 100 models in a program folder of its own. Budget: 50 ms for the pumps
// of 1,000 zones.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "catalogue/ModPumpsIO.h"
#include "frame/varnmain.h"
#include "loads/frmZoneManage.h"
#include "silent_platform.h"

namespace varnholt {
namespace {

class NumberedTexts : public Texts {
 public:
    std::string text(int number) const override {
        return number == 1101 ? std::string() : std::to_string(number);
    }
    std::string picture(int) const override { return {}; }
};

PumpSeries hundredModels() {
    PumpSeries series{{"Rising", "rising", {2025, 1, 2}}, {"Maker", "", "", "", ""}, {}};
    for (int i = 1; i <= 100; ++i) {
        pump model;
        const double size = 1.2 * i;
        model.name = "M" + std::to_string(i);
        auto& c = model.coefficients;
        c.capacity = {{{size * 1.5, size * 0.5}, {size * -0.005, size * 0.008}}};
        c.watts = {{{size * 0.03, size * 0.06}, {size * 0.0005, size * 0.0002}}};
        c.capacityCorrection = {{{0.33, 1.7}, {0.01, -0.01}}};
        c.wattsCorrection = c.capacityCorrection;
        model.flowCf = {{{1.02, 1.03}, {0.97, 1.01}}};
        model.ewt[3].flowRate[0].flowRate = size * 0.19;
        model.ewt[3].flowRate[1].flowRate = size * 0.25;
        series.models.push_back(model);
    }
    return series;
}

/// A Zone Manager with so many zones of 2 to 400 MBtu/hr.
class OpenManager {
 public:
    explicit OpenManager(std::int64_t zones) {
        const PumpSeries series = hundredModels();
        std::filesystem::create_directories(folder_ + "/pumps");
        WritePumpSeries(folder_ + "/pumps", series);
        WritePumpList(folder_ + "/pumps", {{series.mfgInfo, {series.seriesInfo}}});
        main_ = std::make_unique<Varnmain>(platform_, texts_, folder_);
        auto made = std::make_unique<frmZoneManage>(*main_);
        window = made.get();
        main_->open(std::move(made));
        std::vector<Zone> list(static_cast<std::size_t>(zones));
        for (std::size_t i = 0; i < list.size(); ++i) {
            const double load = 2 + static_cast<double>(i * 7919 % 400);
            list[i].gains = {
                {{load * 0.6, load * 0.8}, {load, load * 0.3}, {load * 0.9, 0}, {0, load}}};
        }
        DesignProject project;
        project.loads.zones = list;
        project.loads.activeSeries = window->activeSeries();
        window->replaceLoads(project);
    }
    ~OpenManager() { std::filesystem::remove_all(folder_); }
    OpenManager(const OpenManager&) = delete;
    OpenManager& operator=(const OpenManager&) = delete;

    std::string path(const std::string& name) const { return folder_ + "/" + name; }

    frmZoneManage* window = nullptr;

 private:
    static std::string newFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "varnholt-XXXXXX").string();
        return mkdtemp(name.data()) == nullptr ? "." : name;
    }

    std::string folder_ = newFolder();
    SilentPlatform platform_;
    NumberedTexts texts_;
    std::unique_ptr<Varnmain> main_;
};

void autoSelectAll(benchmark::State& state) {
    OpenManager manager(state.range(0));
    for (auto _ : state) manager.window->click("LOAutoSelectAllCommand");
}
BENCHMARK(autoSelectAll)->RangeMultiplier(10)->Range(10, 10000)->Unit(benchmark::kMillisecond);

void updatePumps(benchmark::State& state) {
    OpenManager manager(state.range(0));
    manager.window->click("LOAutoSelectAllCommand");
    for (auto _ : state) manager.window->click("LOUpdatePumpsCommand");
}
BENCHMARK(updatePumps)->RangeMultiplier(10)->Range(10, 1000)->Unit(benchmark::kMillisecond);

void openZoneFile(benchmark::State& state) {
    OpenManager manager(state.range(0));
    saveZoneFile(manager.path("zones.zon"), {manager.window->ZoneList(), {}, "MakerRising"});
    for (auto _ : state) manager.window->LOOpenZoneFile(manager.path("zones.zon"));
}
BENCHMARK(openZoneFile)->RangeMultiplier(10)->Range(10, 10000)->Unit(benchmark::kMillisecond);

void typeALoad(benchmark::State& state) {
    OpenManager manager(state.range(0));
    for (auto _ : state) manager.window->type("LOGainsText(1)", "31.5");
}
BENCHMARK(typeALoad)->RangeMultiplier(10)->Range(10, 1000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace varnholt
