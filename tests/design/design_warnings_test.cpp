// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/design_warnings.h"

#include <gtest/gtest.h>

#include "forms/text_numbers/loads.h"
#include "horizontal_window.h"
#include "linked_project.h"
#include "surface_water_window.h"

namespace varnholt {
namespace {

using Concern = DesignWarning::Concern;

/// After a run: 24 bores of 250 ft in cooling, water in at 85 and out at 95, in at 50 and out at
/// 44; the means are 90 and 47 degF.
BoreholeProject afterRun(double groundTemp) {
    BoreholeProject project;
    project.soil.groundTemp = groundTemp;
    BoreholeResults& results = project.results.edit();
    results.inputs.emplace();
    results.inputs->soil.groundTemp = groundTemp;
    results.inputs->arrangement = project.arrangement;
    results.inputs->loads.inletTemp = {85, 50};
    results.outlet.outletTemp = {95, 44};
    results.loads.peakLoad = {100, 80};
    results.lengths.boreLength = {24 * 250.0, 24 * 200.0};
    return project;
}

TEST(DesignWarnings, AreNoneForAnOrdinaryField) {
    EXPECT_TRUE(warningsOf(BoreholeProject()).empty());
    EXPECT_TRUE(warningsOf(afterRun(62)).empty());
}

TEST(DesignWarnings, TellOfGroundWithinFiveDegreesOfTheMeanFluid) {
    const auto warm = warningsOf(afterRun(52));  // 52 - 47
    ASSERT_EQ(warm.size(), 1U);
    EXPECT_EQ(warm[0], (DesignWarning{Concern::groundNearFluid, heating, 52, 5, 47}));
    EXPECT_TRUE(warningsOf(afterRun(52.1)).empty());
    const auto hot = warningsOf(afterRun(86));
    ASSERT_EQ(hot.size(), 1U);
    EXPECT_EQ(hot[0].mode, cooling);
}

TEST(DesignWarnings, SayNothingOfTheGroundInAModeWithoutALoadOrBeforeARun) {
    BoreholeProject project = afterRun(52);
    project.results.edit().loads.peakLoad[heating] = 0;
    EXPECT_TRUE(warningsOf(project).empty());
    project = afterRun(52);
    project.results.edit().inputs.reset();
    EXPECT_TRUE(warningsOf(project).empty());
}

TEST(DesignWarnings, TellOfBoresThatTouch) {
    BoreholeProject project;
    project.bore.boreDiameter = 6;
    project.arrangement.boreSeparation = 0.5;  // 6 in
    const auto warnings = warningsOf(project);
    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_EQ(warnings[0], (DesignWarning{Concern::boresTouch, cooling, 6, 0.5}));
    project.arrangement.boreSeparation = 0.51;
    EXPECT_TRUE(warningsOf(project).empty());
    project.arrangement.boreSeparation = 0.5;
    project.arrangement.patternRows = {1, 1};  // nothing to touch
    EXPECT_TRUE(warningsOf(project).empty());
}

TEST(DesignWarnings, TellOfRowsThatHoldPartsOfBores) {
    BoreholeProject project;
    project.arrangement.patternRows = {4, 2.5};  // 10 bores, of which 4 by 2 are whole
    const auto warnings = warningsOf(project);
    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_EQ(warnings[0], (DesignWarning{Concern::rowsInParts, cooling, 10, 8}));
    project.arrangement.patternRows = {4, 3};
    EXPECT_TRUE(warningsOf(project).empty());
}

TEST(DesignWarnings, TellOfBoresDeeperThanSixHundredFeetInTheModeThatGoverns) {
    BoreholeProject project = afterRun(62);
    project.results.edit().lengths.boreLength = {24 * 600.0, 24 * 601.0};
    const auto warnings = warningsOf(project);
    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_EQ(warnings[0], (DesignWarning{Concern::boreTooDeep, heating, 601, 600}));
    project.results.edit().lengths.boreLength = {24 * 600.0, 0};
    EXPECT_TRUE(warningsOf(project).empty());
}

/// After a run of trenches or loops with the temperatures of the field of bores above.
template <class Project>
Project afterRunOf() {
    Project project;
    auto& results = project.results.edit();
    results.inputs.emplace();
    results.inputs->loads.inletTemp = {85, 50};
    results.outlet.outletTemp = {95, 44};
    results.loads.peakLoad = {100, 80};
    return project;
}

TEST(DesignWarnings, OfTrenchesGoByTheGroundAtTheirPipesInEachMode) {
    auto project = afterRunOf<HorizontalProject>();
    // The mean of the year is near the fluid of heating, and of no account.
    project.results.edit().inputs->soil.groundTemp = 47;
    project.results.edit().groundTempAtDepth = {70, 41};
    EXPECT_TRUE(warningsOf(project).empty());
    project.results.edit().groundTempAtDepth = {85, 42};  // 90 - 85 and 47 - 42
    EXPECT_EQ(warningsOf(project),
              (std::vector<DesignWarning>{{Concern::groundNearFluid, cooling, 85, 5, 90},
                                          {Concern::groundNearFluid, heating, 42, 5, 47}}));
    project.results.edit().loads.peakLoad[cooling] = 0;
    EXPECT_EQ(warningsOf(project).size(), 1U);
    project.results.edit().inputs.reset();
    EXPECT_TRUE(warningsOf(project).empty());
}

TEST(DesignWarnings, OfLoopsInWaterGoByTheWaterInPlaceOfTheGround) {
    auto project = afterRunOf<SurfaceWaterProject>();
    project.results.edit().inputs->soil.groundTemp = 47;
    EXPECT_TRUE(warningsOf(project).empty());  // water of 75 and 55 beside fluid of 90 and 47
    project.results.edit().inputs->water.loopWaterTemp = {75, 51};
    EXPECT_EQ(warningsOf(project),
              (std::vector<DesignWarning>{{Concern::waterNearFluid, heating, 51, 5, 47}}));
}

TEST(DesignWarnings, TellOfPipesThatTouchInTheirTrench) {
    HorizontalProject project;
    project.pipe.pipeDiameter = {1.9, 1.55};
    project.arrangement.pipesPerTrench = 2;
    project.arrangement.pipeSeparation = {1.9, 12};
    const auto warnings = warningsOf(project);
    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_EQ(warnings[0].concern, Concern::pipesTouch);
    EXPECT_EQ(warnings[0].figure, 1.9);
    EXPECT_NEAR(warnings[0].limit, 1.9, 1e-12);
    project.arrangement.pipeSeparation = {1.91, 12};
    EXPECT_TRUE(warningsOf(project).empty());
    // The step between columns counts only where there are columns.
    project.arrangement.pipeSeparation = {12, 1};
    EXPECT_TRUE(warningsOf(project).empty());
    project.arrangement.trenchConfiguration = modCalculations::twoColumns;
    ASSERT_EQ(warningsOf(project).size(), 1U);
    EXPECT_NEAR(warningsOf(project)[0].limit, 1, 1e-12);
}

TEST(DesignWarnings, MeasurePipesThatAreStaggeredAcross) {
    HorizontalProject project;
    project.pipe.pipeDiameter = {1.9, 1.55};
    project.arrangement.pipesPerTrench = 2;
    project.arrangement.offsetRows = 1;
    // 1.2 in up and 1.6 in sideways are 2 in.
    project.arrangement.pipeSeparation = {1.2, 1.6};
    EXPECT_TRUE(warningsOf(project).empty());
    project.pipe.pipeDiameter[0] = 2.1;
    ASSERT_EQ(warningsOf(project).size(), 1U);
    EXPECT_NEAR(warningsOf(project)[0].limit, 2, 1e-12);
}

TEST(DesignWarnings, LetCoilsOverlapAndSayNothingOfWhatIsNoArrangement) {
    HorizontalProject project;
    project.pipe.pipeDiameter = {40, 1};
    project.arrangement.trenchConfiguration = modCalculations::lyingCoil;
    EXPECT_TRUE(warningsOf(project).empty());
    for (const double pipes : {0.0, 2.5, 1e9}) {
        project.arrangement.trenchConfiguration = modCalculations::singleColumn;
        project.arrangement.pipesPerTrench = pipes;
        EXPECT_TRUE(warningsOf(project).empty()) << pipes;
    }
    project.arrangement.trenchConfiguration = 7;
    EXPECT_TRUE(warningsOf(project).empty());
}

TEST_F(HorizontalWindow, WarnsOfPipesThatTouchInItsOwnUnits) {
    texts.known.insert({{2348, "%1 %3, %2 %3"}, {2318, "in"}, {2319, "mm"}});
    EXPECT_TRUE(design->warnings().empty());
    setPipes(2);
    typeAndLeave("PAInTrenchConfigurationText(1)", "1");
    ASSERT_EQ(design->warnings().size(), 1U);
    EXPECT_EQ(design->warnings()[0], "1.90 in, 1.00 in");
    inMetric();
    // 1.9 and 1 times 25.4
    EXPECT_EQ(design->warnings()[0], "48.26 mm, 25.40 mm");
}

TEST_F(SurfaceWaterWindow, WarnsOfWaterNearItsFluid) {
    texts.known.insert({{2347, "%1 %2 %3 %5"}});
    EXPECT_TRUE(design->warnings().empty());
    change(*design, [](SurfaceWaterProject& project) {
        project.results = afterRunOf<SurfaceWaterProject>().results;
        project.results.edit().inputs->water.loopWaterTemp = {94, 55};
    });
    ASSERT_EQ(design->warnings().size(), 1U);
    EXPECT_EQ(design->warnings()[0], "94.0 90.0 " + design->text(Text::cooling) + " 5.0");
}

class WarnedDesigns : public LoadsAndDesigns {
 protected:
    /// A zone with a pump whose points in cooling end at 80 degF.
    void addWarmZone(ZoneWindow& window) {
        addZone(window, 20, 0);
        window.change([](LoadsDocument& document) {
            MiniPump& own = document.data.zones.edit(document.data.zones.size() - 1).pump;
            own.customPump = 0;
            own.mfgName = "Third";
            own.seriesName = own.name = "Cool";
            own.capacity = {25, 20};
        });
    }
    void writeCoolSeries() {
        pump model;
        model.name = "Cool";
        for (std::size_t row = 0; row < 3; ++row) {
            model.ewt[row].temperature = 30 + 20.0 * static_cast<double>(row);
            model.ewt[row + 3].temperature = 50 + 15.0 * static_cast<double>(row);
        }
        write({{"Cool", "f_Cool", {2025, 1, 2}}, {"Third", "", "", "", ""}, {model}});
    }
    GroundDesign& active() { return dynamic_cast<GroundDesign&>(*main.activeWindow()); }
};

TEST_F(WarnedDesigns, OfAllKindsTellOfWaterBeyondTheDataOfTheirPumps) {
    texts.known.insert({{2349, "%1+%2|%3"}, {2363, "%1|%2|%4|%5"}});
    writeCoolSeries();
    for (const char* command : {"NewBorehole", "NewHorizontal", "NewSurfaceWater"}) {
        SCOPED_TRACE(command);
        main.click(command);
        GroundDesign& design = active();
        frmZoneManage& loads = manager();
        const int zones = loads.zoneNumber();
        addWarmZone(loads);
        EXPECT_TRUE(design.warnings().empty()) << "not linked yet";
        main.activate(design);
        main.click("mnuLink");
        ASSERT_EQ(design.LoadsHome(), &loads);
        design.type("FLInletTempText(0)", "81");
        ASSERT_EQ(design.warnings().size(), 1U);
        EXPECT_EQ(design.warnings()[0], zones == 0 ? "Zone 1|81.0|50.0|80.0"
                                                   : "Zone 1+" + std::to_string(zones) + "|81.0");
        design.type("FLInletTempText(0)", "80");
        EXPECT_TRUE(design.warnings().empty());
        main.click("mnuUnlink");
    }
}

}  // namespace
}  // namespace varnholt
