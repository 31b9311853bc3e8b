// SPDX-License-Identifier: GPL-3.0-or-later
// A project with its zone file. Budgets for 1,000 zones: opened in 50 ms, saved in 20 ms.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <filesystem>
#include <memory>
#include <string>

#include "../tests/forms/fake_platform.h"
#include "design/frmBHDesign.h"
#include "loads/ModLoadsIO.h"
#include "loads/install.h"
#include "persistence/design_files.h"
#include "persistence/project_commands.h"

namespace varnholt {
namespace {

/// The program in a folder of its own, with a linked project and its zone file in it.
class ProjectFolder {
 public:
    explicit ProjectFolder(std::int64_t zones) {
        std::string pattern = (std::filesystem::temp_directory_path() / "bench-XXXXXX").string();
        if (::mkdtemp(pattern.data()) != nullptr) folder = pattern;
        std::filesystem::copy(VARNHOLT_SOURCE_DIR "/resources/pumps", folder + "/pumps",
                              std::filesystem::copy_options::recursive);
        project = folder + "/project.vht";
        main = std::make_unique<Varnmain>(platform, texts, folder);
        installLoads(*main);
        installPersistence(*main);
        main->start();
        makeProject(static_cast<std::size_t>(zones));
    }
    ~ProjectFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    frmBHDesign& open() {
        openProjectFile(*main, project);
        return dynamic_cast<frmBHDesign&>(*main->find("frmBHDesign"));
    }
    void closeAll() {
        while (!main->windows().empty()) {
            platform.answers.push_back(Answer::no);
            main->close(*main->windows().back());
        }
        platform.answers.clear();
    }

    FakePlatform platform;
    FakeTexts texts;
    std::string folder, project;
    std::unique_ptr<Varnmain> main;

 private:
    void makeProject(std::size_t zones) {
        std::vector<Zone> rooms(zones);
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
        saveZoneFile(folder + "/zones.zon", data);
        main->click("NewBorehole");
        auto& design = dynamic_cast<frmBHDesign&>(*main->find("frmBHDesign"));
        BoreholeProject linked = design.project();
        linked.loads.linkType = "frmZoneManage";
        linked.loads.file = {"zones.zon", folder, true};
        design.setProject(std::move(linked));
        saveVHTFile(design, project);
        closeAll();
    }
};

void openProject(benchmark::State& state) {
    ProjectFolder program(state.range(0));
    for (auto _ : state) {
        const frmBHDesign& design = program.open();
        if (design.ZoneList().size() != static_cast<std::size_t>(state.range(0)))
            state.SkipWithError("the zones were not found");
        state.PauseTiming();
        program.closeAll();
        state.ResumeTiming();
    }
}
BENCHMARK(openProject)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

void saveProject(benchmark::State& state) {
    ProjectFolder program(state.range(0));
    program.open();
    for (auto _ : state) program.main->click("mnuFileSave");
}
BENCHMARK(saveProject)->Arg(10)->Arg(1000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace varnholt
