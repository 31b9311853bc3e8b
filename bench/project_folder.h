// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <string>

#include "../tests/forms/fake_platform.h"
#include "app/application.h"
#include "design/frmBHDesign.h"
#include "loads/ModLoadsIO.h"
#include "loads/frmZoneManage.h"
#include "persistence/design_files.h"
#include "persistence/project_commands.h"
#include "titled_building.h"

namespace varnholt {

/// The program without a screen, in a folder of its own, with a project that is linked with a zone
/// file.
class ProjectFolder {
 public:
    explicit ProjectFolder(std::int64_t zones) {
        main.start();
        makeProject(zones);
    }
    ProjectFolder(const ProjectFolder&) = delete;
    ProjectFolder& operator=(const ProjectFolder&) = delete;
    ~ProjectFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    /// Opens the project and brings it to the front.
    frmBHDesign& open() {
        openProjectFile(main, project);
        main.activate(*main.find("frmBHDesign"));
        return dynamic_cast<frmBHDesign&>(*main.find("frmBHDesign"));
    }
    frmZoneManage& manager() { return dynamic_cast<frmZoneManage&>(*main.find("frmZoneManage")); }
    void closeAll() {
        while (!main.windows().empty()) {
            platform.answers.push_back(Answer::no);
            main.close(*main.windows().back());
        }
        platform.answers.clear();
    }

    const std::string folder = newFolder(), project = folder + "/project.vht";
    FakePlatform platform;

 private:
    Application program_{platform, {folder, VARNHOLT_SOURCE_DIR "/resources"}};

 public:
    Varnmain& main = program_.main();

 private:
    static std::string newFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "bench-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) return ".";
        std::filesystem::copy(VARNHOLT_SOURCE_DIR "/resources/pumps", name + "/pumps",
                              std::filesystem::copy_options::recursive);
        return name;
    }

    void makeProject(std::int64_t zones) {
        LoadsData data;
        data.zones = titledBuildingOf(zones);
        saveZoneFile(folder + "/zones.zon", data);
        main.click("NewBorehole");
        auto& design = dynamic_cast<frmBHDesign&>(*main.find("frmBHDesign"));
        BoreholeProject linked = design.project();
        linked.loads.linkType = "frmZoneManage";
        linked.loads.file = {"zones.zon", folder, true};
        design.setProject(std::move(linked));
        saveVHTFile(design, project);
        closeAll();
    }
};

}  // namespace varnholt
