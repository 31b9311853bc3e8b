// SPDX-License-Identifier: GPL-3.0-or-later
// The whole program in its language, and in none.
#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>

#include "app/application.h"
#include "forms/fake_platform.h"
#include "tools/modResource.h"

namespace varnholt {
namespace {

constexpr unsigned noSuchLocale = 0x7777;

class Language : public testing::Test {
 protected:
    Language() { std::filesystem::create_directories(folder); }
    ~Language() override { std::filesystem::remove_all(folder); }

    /// The program with the satellite of a locale, started.
    Varnmain& start(unsigned locale) {
        application = std::make_unique<Application>(
            platform, Application::Setup{folder, VARNHOLT_RESOURCE_DIR, locale});
        application->start();
        return application->main();
    }

    /// A caption is a figure or the dash that stands for none, or it comes from the language, a
    /// file name's proposal too.
    static void expectLiterals(const Form& form) {
        EXPECT_NE(form.caption().find(noLocalData), std::string::npos) << form.formName();
        for (const auto& control : form.controls()) {
            const std::string& caption = control->caption();
            const bool figure = !caption.empty() && std::isdigit(caption[0]) != 0;
            if (caption.empty() || figure || caption == "-") continue;
            EXPECT_TRUE(caption.starts_with(noLocalData))
                << form.formName() << "." << control->name() << ": " << caption;
        }
    }

    const std::string folder = testing::TempDir() + "varnholt_language_test";
    FakePlatform platform;
    std::unique_ptr<Application> application;
};

TEST_F(Language, KeepsTheBuiltInCaptionOfTheHoursCalculatorAsItStands) {
    EXPECT_EQ(start(0x409).control("mnuEqvHours").caption(), "Eqivalent Hours Calculator");
}

TEST_F(Language, OfALocaleWithoutASatelliteShowsTheLiteralInEveryCaptionAndNothingFails) {
    Varnmain& main = start(noSuchLocale);
    expectLiterals(main);
    for (const char* entry : {"NewBorehole", "mnuZoneManage", "mnuAvgBlock"}) {
        main.click(entry);
        ASSERT_NE(main.activeWindow(), nullptr) << entry;
        expectLiterals(*main.activeWindow());
    }
    ChildWindow& design = *main.find("frmBHDesign");
    platform.messages.clear();
    design.click("CACalculateCommand");
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].title, noLocalData);
    EXPECT_EQ(platform.messages[0].text, noLocalData);
    design.switchUnits(UnitSystem::english);
    expectLiterals(design);
    EXPECT_EQ(design.control("FLInletTempText(0)").text(), "85.0");
}

}  // namespace
}  // namespace varnholt
