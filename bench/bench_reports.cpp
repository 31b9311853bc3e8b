// SPDX-License-Identifier: GPL-3.0-or-later
// Reports as documents. Budgets: the database filled with 1,000 zones in 30 ms, a project report in
// 50 ms.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <filesystem>

#include "../tests/forms/fake_platform.h"
#include "design/install.h"
#include "frame/varnmain.h"
#include "loads/install.h"
#include "reports/html_report.h"
#include "reports/modLoadsReports.h"
#include "reports/modProjectReports.h"
#include "reports/project_reports.h"

namespace varnholt {
namespace {

/// A Zone Manager with so many zones, and a design.
class Building {
 public:
    explicit Building(std::int64_t count) {
        std::string pattern = (std::filesystem::temp_directory_path() / "bench-XXXXXX").string();
        if (::mkdtemp(pattern.data()) != nullptr) folder = pattern;
        std::filesystem::copy(VARNHOLT_SOURCE_DIR "/resources/pumps", folder + "/pumps",
                              std::filesystem::copy_options::recursive);
        main = std::make_unique<Varnmain>(platform, texts, folder);
        installLoads(*main);
        installDesign(*main);
        main->start();
        main->click("NewBorehole");
        main->click("mnuZoneManage");
        for (std::int64_t i = 1; i <= count; ++i) names.push_back("Zone " + std::to_string(i));
        window().change([&](LoadsDocument& document) {
            std::vector<Zone> zones(names.size());
            for (Zone& zone : zones) zone.pump.capacity = {36.5, 30.25};
            document.data.zones = zones;
        });
    }
    ~Building() {
        main.reset();
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    ZoneWindow& window() { return dynamic_cast<ZoneWindow&>(*main->find("frmZoneManage")); }
    GroundDesign& design() { return dynamic_cast<GroundDesign&>(*main->find("frmBHDesign")); }
    std::vector<ZoneRow> rows() { return zoneRows(window().ZoneList(), names, false, texts); }

    FakePlatform platform;
    FakeTexts texts;
    std::string folder;
    std::vector<std::string> names;
    std::unique_ptr<Varnmain> main;
};

const PrintingFacts facts{{2026, 1, 15}, {}, false};

void FillTheDatabase(benchmark::State& state) {
    Building building(state.range(0));
    ReportDatabase database(building.folder + "/Data/vht.db");
    for (auto _ : state) benchmark::DoNotOptimize(database.refill(building.rows()));
    if (!database.usedFile()) state.SkipWithError("the file was not used");
}
BENCHMARK(FillTheDatabase)->Arg(10)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void FillALongForm(benchmark::State& state) {
    Building building(state.range(0));
    const std::vector<ZoneRow> rows = building.rows();
    for (auto _ : state)
        benchmark::DoNotOptimize(zoneReport(zoneReports[1], building.window(), rows, facts));
}
BENCHMARK(FillALongForm)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

void WriteAWebPage(benchmark::State& state) {
    Building building(state.range(0));
    const Report report = zoneReport(zoneReports[1], building.window(), building.rows(), facts);
    for (auto _ : state) benchmark::DoNotOptimize(htmlOf(report));
}
BENCHMARK(WriteAWebPage)->Arg(1000)->Unit(benchmark::kMillisecond);

void FillAProjectReport(benchmark::State& state) {
    Building building(1);
    const ProjectReportDefinition& definition = *projectReportOf("frmBHDesign", detailedForm);
    for (auto _ : state)
        benchmark::DoNotOptimize(FillProjectReport(definition, building.design(), facts));
}
BENCHMARK(FillAProjectReport)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace varnholt
