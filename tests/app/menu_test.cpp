// SPDX-License-Identifier: GPL-3.0-or-later
// The menu of the whole program.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "app/application.h"
#include "forms/fake_platform.h"
#include "frame/menu_table.h"

namespace varnholt {
namespace {

class Menu : public testing::Test {
 protected:
    Menu() {
        std::filesystem::create_directories(folder);
        program = std::make_unique<Application>(
            platform, Application::Setup{folder, VARNHOLT_RESOURCE_DIR, 0x409});
        program->start();
    }
    ~Menu() override { std::filesystem::remove_all(folder); }

    Varnmain& main() { return program->main(); }

    /// Notes what can be chosen at this moment.
    void look() {
        for (const MenuRow& row : menuTable())
            if (row.menu != nullptr && row.captionText != 0 &&
                main().control(row.control).enabled())
                seen.insert(row.control);
    }

    const std::string folder = testing::TempDir() + "varnholt_menu_test";
    FakePlatform platform;
    std::unique_ptr<Application> program;
    std::set<std::string> seen;
};

TEST_F(Menu, HasNoCommandThatCanNeverBeChosen) {
    look();
    main().click("NewBorehole");
    ChildWindow& design = *main().activeWindow();
    look();
    design.type("SOGroundTempText", "50");
    design.leave("SOGroundTempText");
    look();
    main().click("mnuUndo");
    look();
    for (const MenuRow& row : menuTable())
        if (row.menu != nullptr && row.captionText != 0) {
            EXPECT_TRUE(seen.count(row.control) > 0) << row.control;
        }
}

TEST_F(Menu, OpensTablesAndHelpWithoutAnyWindow) {
    for (const char* entry : {"FluidProperties", "SoilProperties", "PipeProperties", "Conversions",
                              "mnuHelp", "mnuWhatsThis", "mnuAbout"})
        EXPECT_TRUE(main().control(entry).enabled()) << entry;
}

}  // namespace
}  // namespace varnholt
