// SPDX-License-Identifier: GPL-3.0-or-later
// What the fields say about their help, against the pages that are there.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

#include "app/application.h"
#include "basis/file_system.h"
#include "forms/fake_platform.h"

namespace varnholt {
namespace {

namespace fs = std::filesystem;
const std::string pages = VARNHOLT_SOURCE_DIR "/resources/help/";

/// Whether a topic "page#section", or a page alone, is among the help.
bool isThere(const std::string& topic) {
    const std::size_t mark = topic.find('#');
    const std::string page = pages + topic.substr(0, mark) + ".html";
    if (!fs::exists(page)) return false;
    const std::string section = mark == std::string::npos ? "" : topic.substr(mark + 1);
    return section.empty() ||
           readWholeFile(page).find("id=\"" + section + "\"") != std::string::npos;
}

class Help : public testing::Test {
 protected:
    Help() {
        fs::create_directories(folder);
        application = std::make_unique<Application>(
            platform, Application::Setup{folder, VARNHOLT_SOURCE_DIR "/resources", 0x409});
        application->start();
        for (const char* entry :
             {"NewBorehole", "mnuZoneManage", "mnuAvgBlock", "mnuMonthlyLoadsImport", "mnuDiffCalc",
              "mnuEqvHours", "mnuPumpPowerCalc"})
            application->main().click(entry);
    }
    ~Help() override { fs::remove_all(folder); }

    const std::string folder = testing::TempDir() + "varnholt_help_test";
    FakePlatform platform;
    std::unique_ptr<Application> application;
};

TEST_F(Help, TheLookForATopicFindsPagesAndTheirSectionsAlone) {
    EXPECT_TRUE(isThere("tower"));
    EXPECT_TRUE(isThere("borehole#soil"));
    EXPECT_FALSE(isThere("trench"));
    EXPECT_FALSE(isThere("borehole#trench"));
}

TEST_F(Help, EveryTopicOfAControlIsAmongThePages) {
    std::set<std::string> topics;
    for (const ChildWindow* window : application->main().windows())
        for (const auto& control : window->controls()) {
            const std::string& topic = control->helpTopic();
            if (topic.empty()) continue;
            topics.insert(topic);
            EXPECT_TRUE(isThere(topic))
                << window->formName() << "." << control->name() << ": " << topic;
        }
    EXPECT_GE(topics.size(), 10U);
}

TEST_F(Help, EveryNumericFieldHasATopic) {
    for (ChildWindow* window : application->main().windows())
        for (const auto& control : window->controls())
            EXPECT_FALSE(window->fields().has(control->name()) && control->helpTopic().empty())
                << window->formName() << "." << control->name();
}

}  // namespace
}  // namespace varnholt
