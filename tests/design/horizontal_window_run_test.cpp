// SPDX-License-Identifier: GPL-3.0-or-later
// The Calculate command of the horizontal design. The fields are worked a second time in
// tests/independent/horizontal_road.py.
#include <gtest/gtest.h>

#include "basis/run_time_error.h"
#include "horizontal_window.h"

namespace varnholt {
namespace {

class HorizontalRuns : public HorizontalWindow {
 protected:
    void expectPair(const std::string& label, const char* inCooling, const char* inHeating) {
        EXPECT_EQ(captionOf(label + "(0)"), inCooling) << label;
        EXPECT_EQ(captionOf(label + "(1)"), inHeating) << label;
    }
    /// Six trenches 12 ft apart with a slinky of 18 in pitch in each.
    void layCoils() {
        takeSample();
        choose(3);
        setTrenches(6);
        typeAndLeave("PASeparationText(0)", "12");
        typeAndLeave("PAInTrenchConfigurationText(0)", "18");
    }
};

TEST_F(HorizontalRuns, ShowTheirResults) {
    takeSample();
    setPipes(4);
    typeAndLeave("PAInTrenchConfigurationText(1)", "9");
    setTrenches(3);
    typeAndLeave("PASeparationText(0)", "8");
    calculate();
    EXPECT_TRUE(messages().empty());
    // 5763.589739 and 11353.859934 ft of pipe, four in a trench
    expectPair("CATotalPipeLengthLabel", "5763.6", "11353.9");
    expectPair("CATotalLengthLabel", "1440.9", "2838.5");
    expectPair("CATrenchLengthLabel", "480.3", "946.2");
    expectPair("CATrenchNumberLabel", "3", "3");
    expectPair("CAPipeLengthPerTrenchLabel", "1921.2", "3784.6");
    // penalties -0.895365 and -0.454320, shown with the other sign
    expectPair("CASoilTempChangeLabel", "0.9", "0.5");
    EXPECT_EQ(captionOf("CASoilTempChangeLabel(2)"), "[5052]");
    inMetric();
    expectPair("CATotalPipeLengthLabel", "1756.7", "3460.7");
    expectPair("CATrenchNumberLabel", "3", "3");
    expectPair("CASoilTempChangeLabel", "0.5", "0.3");
    EXPECT_EQ(captionOf("CASoilTempChangeLabel(2)"), "[5051]");
}

TEST_F(HorizontalRuns, EmphasiseTheLongerMode) {
    takeSample();
    calculate();
    EXPECT_EQ(colourOf("CATotalPipeLengthLabel(0)"), colours::greyed);
    EXPECT_EQ(colourOf("CATotalPipeLengthLabel(1)"), colours::black);
    EXPECT_EQ(colourOf("CATrenchNumberLabel(1)"), colours::heatingGoverns);
    EXPECT_FALSE(isEnabled("CAHybridSlider"));
    typeAndLeave("SOGroundTempText", "75");
    calculate();
    EXPECT_EQ(colourOf("CATotalPipeLengthLabel(0)"), colours::black);
    EXPECT_EQ(colourOf("CAPeakLoadLabel(0)"), colours::coolingGoverns);
    EXPECT_TRUE(isEnabled("CAHybridSlider"));
}

TEST_F(HorizontalRuns, LeaveTheResistanceOfACoilsPipeBehind) {
    layCoils();
    calculate();
    // Lying coil of the second route.
    EXPECT_NEAR(value("requiredLength(1)"), 1582.473548, 1e-5);
    EXPECT_NEAR(value("totalPipeLength(1)"), 13090.784467, 1e-5);
    EXPECT_NEAR(value("pipeResistance"), 0.158181102, 1e-8);
    EXPECT_EQ(textOf("PIPipeResistanceText"), "0.158");
    EXPECT_EQ(value("pipeDiameters(0)"), 1.9);
    EXPECT_FALSE(design->isStale());
    EXPECT_FALSE(control("NoticeLabel").visible());
    choose(0);
    EXPECT_EQ(textOf("PIPipeResistanceText"), "0.158");
}

TEST_F(HorizontalRuns, TellWhatTheTableOfCoilsGave) {
    layCoils();
    calculate();
    // Pitch 18 at the lowest part load, as the second route has it.
    EXPECT_NEAR(value("coilLengthPer250"), 79.572175200, 1e-8);
    choose(0);
    calculate();
    EXPECT_EQ(value("coilLengthPer250"), 0);
}

TEST_F(HorizontalRuns, OfCoilsLeaveASinglePipeBehindWhateverAFileHeld) {
    layCoils();
    change(*design, [](HorizontalProject& project) { project.remainder.uTubeConfig = 0; });
    calculate();
    EXPECT_EQ(value("uTubeConfig"), 2);
    EXPECT_NEAR(value("pipeResistance"), 0.158181102, 1e-8);
}

TEST_F(HorizontalRuns, WithoutLoadsSaySoAndDropTheTower) {
    change(*design, [](HorizontalProject& project) {
        project.tower = {40,
                         {.capacity = 30, .capacityMax = 30, .flow = 9, .range = 8, .hours = 900}};
    });
    design->setUnitLabels();
    calculate();
    EXPECT_EQ(messages(), std::vector<std::string>{"[2814]"});
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::information);
    EXPECT_EQ(value("hybridPercent"), 0);
    EXPECT_EQ(captionOf("CAPercentHybridLabel(0)"), "0 [2150]");
    for (const char* total :
         {"condenserCapacity", "condenserCapacityMax", "coolingTowerFlow", "coolingTowerHours"})
        EXPECT_EQ(value(total), 0) << total;
    EXPECT_EQ(captionOf("CACoolingTowerHoursLabel(0)"), "0");
    EXPECT_EQ(value("coolingRange"), 8);  // entered, and no figure of the loads
    EXPECT_EQ(value("requiredLength(0)"), 0);
}

TEST_F(HorizontalRuns, OfABuildingWithoutAPositivePeakSaySo) {
    takeSample();
    change(*design, [](HorizontalProject& project) {
        for (std::size_t i = 0; i < project.loads.zones.size(); ++i)
            project.loads.zones.edit(i).gains = {};
    });
    calculate();
    EXPECT_EQ(messages(), std::vector<std::string>{"[2814]"});
}

TEST_F(HorizontalRuns, ShowEveryErrorWithItsNumberAndKeepTheirResults) {
    takeSample();
    calculate();
    const double length = value("requiredLength(1)");
    typeAndLeave("SOThermalConductivityText", "0");
    change(*design, [](HorizontalProject& project) { project.soil.conductivity = 0; });
    calculate();
    ASSERT_EQ(messages().size(), 1u);
    EXPECT_EQ(messages()[0], "11 - Division by zero");
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::exclamation);
    change(*design, [](HorizontalProject& project) {
        project.soil.conductivity = 1.3;
        project.arrangement.trenchConfiguration = 7;
    });
    calculate();
    ASSERT_EQ(messages().size(), 2u);
    EXPECT_EQ(messages()[1].substr(0, 4), "9 - ");
    EXPECT_EQ(value("requiredLength(1)"), length);
    EXPECT_FALSE(design->isStale());
}

TEST_F(HorizontalRuns, ThatDoNotSettleSayHowOftenTheyTried) {
    takeSample();
    // Ground too hot to cool with and too cold to heat from, in the second route: one pass.
    typeAndLeave("SOAirTempSwingText", "90");
    typeAndLeave("PASeparationText(1)", "3");
    typeAndLeave("PASeparationText(0)", "10");
    setTrenches(3);
    calculate();
    EXPECT_EQ(messages(), std::vector<std::string>{"[2151]1"});
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::plain);
    expectPair("CATotalPipeLengthLabel", "0.0", "0.0");
    expectPair("CASoilTempChangeLabel", "0.0", "0.0");
}

TEST_F(HorizontalRuns, TellWhenBothDaysOfTheYearAreTheSame) {
    takeSample();
    calculate();
    EXPECT_FALSE(control("NoticeLabel").visible());
    typeAndLeave("SODayText(0)", "19");
    calculate();
    EXPECT_TRUE(control("NoticeLabel").visible());
    EXPECT_EQ(value("groundTempAtDepth(0)"), value("groundTempAtDepth(1)"));
}

TEST_F(HorizontalRuns, AreOlderThanAnInputThatCountsAndNotThanOneThatIsBack) {
    takeSample();
    setPipes(4);
    calculate();
    EXPECT_FALSE(control("NoticeLabel").visible());
    typeAndLeave("PAInTrenchConfigurationText(1)", "9");
    EXPECT_TRUE(control("NoticeLabel").visible());
    EXPECT_TRUE(design->isStale());
    main.click("mnuUndo");
    EXPECT_FALSE(control("NoticeLabel").visible());
    EXPECT_FALSE(design->isStale());
}

TEST_F(HorizontalRuns, LetPipesAndImagesBeAskedForOneByOne) {
    takeSample();
    setPipes(2);
    calculate();
    // Two pipes 1 ft apart in a trench of 6 ft: each at even places, its image behind it.
    EXPECT_EQ(value("pipePositions(1,0)"), 0);
    EXPECT_EQ(value("pipePositions(1,1)"), 12);
    EXPECT_EQ(value("pipePositions(1,2)"), 1);
    EXPECT_EQ(value("pipePositions(1,3)"), 11);
    EXPECT_EQ(value("pipePositions(0,3)"), 0);
    EXPECT_EQ(value("pipeDistances(0,3)"), 11);
    EXPECT_EQ(value("pipeDistances(2,2)"), 0.5 * 1.9 / 12);
    EXPECT_EQ(value("pairResistance(2,0,3)"), value("pairResistance(2,3,0)"));
    for (const std::string period : {"0", "1", "2"}) {
        // The row of a pipe: itself, its image, the other pipe, the other's image.
        const auto pair = [&](const std::string& to) {
            return value("pairResistance(" + period + ",0," + to + ")");
        };
        EXPECT_NEAR(value("pipeResistanceSum(" + period + ",0)"),
                    pair("0") - pair("1") + pair("2") - pair("3"), 1e-15);
        EXPECT_NEAR(value("groundResistance(" + period + ")"),
                    (value("pipeResistanceSum(" + period + ",0)") +
                     value("pipeResistanceSum(" + period + ",2)")) /
                        2,
                    1e-15);
    }
    // The last pass changed the length by less than a thousandth.
    EXPECT_LE(value("lengthChange(1)"), 0.001 * value("requiredLength(1)"));
    EXPECT_THROW(value("pipePositions(1,4)"), RunTimeError);
    EXPECT_THROW(value("pipeResistanceSum(3,0)"), RunTimeError);
}

TEST_F(HorizontalRuns, GiveATowerItsShare) {
    takeSample();
    typeAndLeave("SOGroundTempText", "75");
    calculate();
    const double whole = value("requiredLength(0)");
    design->slide("CAHybridSlider", 30);
    EXPECT_LT(value("requiredLength(0)"), whole);
    EXPECT_EQ(value("peakLoad(0)"), 96);
    // (3.96 + 1)/3.96 of 30 percent of 96: the second route has 36.067560
    EXPECT_NEAR(value("condenserCapacity"), 36.06756, 1e-6);
    EXPECT_NEAR(value("coolingTowerHours"), 937.5, 1e-9);
    calculate();
    EXPECT_EQ(value("hybridPercent"), 0);
    EXPECT_EQ(value("requiredLength(0)"), whole);
}

}  // namespace
}  // namespace varnholt
