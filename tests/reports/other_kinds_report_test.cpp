// SPDX-License-Identifier: GPL-3.0-or-later
// The reports of horizontal and surface water designs.
#include <gtest/gtest.h>

#include "design/borehole_window.h"
#include "design/frmHZDesign.h"
#include "design/frmSWDesign.h"
#include "reports/modProjectReports.h"
#include "reports/project_reports.h"

namespace varnholt {
namespace {

class OtherKinds : public testing::Test {
 protected:
    OtherKinds() {
        main.start();
        installDesign(main);
    }

    GroundDesign& opened(const char* command) {
        main.click(command);
        return dynamic_cast<GroundDesign&>(*main.activeWindow());
    }
    Report print(const GroundDesign& window, int option) {
        const ProjectReportDefinition* report = projectReportOf(window.formName(), option);
        if (report == nullptr) throw std::logic_error("no report of " + window.formName());
        return FillProjectReport(*report, window, {{2026, 1, 15}, {}, false});
    }
    static std::string textOf(const Report& report, const std::string& control) {
        std::string text = "not printed";
        for (const ReportEntry& entry : entriesOf(report))
            if (entry.control == control) text = entry.text;
        return text;
    }
    static std::string shown(const GroundDesign& window, const std::string& label) {
        return window.control(label).caption();
    }

    FakePlatform platform;
    FakeTexts texts;
    Varnmain main{platform, texts, "/program"};
};

TEST_F(OtherKinds, AreCalledAfterTheirDesigns) {
    texts.known[5001] = "Horizontal Design Project";
    texts.known[3001] = "Surface Water Design Project";
    texts.known[9101] = "Report";
    const GroundDesign& trenches = opened("NewHorizontal");
    EXPECT_EQ(print(trenches, 0).object, "rptHZ");
    EXPECT_EQ(print(trenches, 1).object, "rptHZShort");
    EXPECT_EQ(print(trenches, 1).caption, "Horizontal Design Project Report");
    const GroundDesign& pond = opened("NewSurfaceWater");
    EXPECT_EQ(print(pond, 0).object, "rptSW");
    EXPECT_EQ(print(pond, 1).object, "rptSWShort");
    EXPECT_EQ(print(pond, 0).caption, "Surface Water Design Project Report");
}

TEST_F(OtherKinds, ShowTheResultsOfTrenches) {
    GroundDesign& window = opened("NewHorizontal");
    const std::pair<const char*, const char*> rows[] = {
        {"TotalLength", "CATotalLengthLabel"},
        {"TrenchNumber", "CATrenchNumberLabel"},
        {"SingleTrenchLength", "CATrenchLengthLabel"},
        {"TotalPipeLength", "CATotalPipeLengthLabel"},
        {"SingleTrenchPipeLength", "CAPipeLengthPerTrenchLabel"},
        {"UnitInlet", "CAUnitInletLabel"},
        {"PeakDemand", "CAPeakDemandLabel"},
        {"GroundTemperatureChange", "CASoilTempChangeLabel"}};
    for (const bool metric : {false, true}) {
        window.switchUnits(metric ? UnitSystem::metric : UnitSystem::english);
        for (const int option : {0, 1})
            for (const auto& [stem, label] : rows) {
                const std::string name = stem, array = label;
                EXPECT_EQ(textOf(print(window, option), name + "Label"),
                          shown(window, array + "(2)"));
                EXPECT_EQ(textOf(print(window, option), name + "CoolingTextLabel"),
                          shown(window, array + "(0)"));
                EXPECT_EQ(textOf(print(window, option), name + "HeatingTextLabel"),
                          shown(window, array + "(1)"));
            }
    }
    EXPECT_EQ(textOf(print(window, 0), "LongTermSoilTemperaturesLabel"), "not printed");
}

TEST_F(OtherKinds, TellHowThePipesLieInTheTrench) {
    GroundDesign& window = opened("NewHorizontal");
    texts.known[5026] = "Offset";
    window.click("PAConfigurationOption(1)");
    window.slide("PAConfigurationUpDown(1)", 6);
    EXPECT_EQ(textOf(print(window, 0), "PipeLayoutTextLabel"), "2 x 3");
    EXPECT_EQ(textOf(print(window, 0), "PipeConfigurationTextLabel"), "[5039]");
    EXPECT_EQ(textOf(print(window, 0), "PipeVerticalSeparationOrPitchLabel"), "[5016]:");
    EXPECT_EQ(textOf(print(window, 0), "PipeHorizontalSeparationOrDiameterLabel"), "[5034]:");
    EXPECT_EQ(textOf(print(window, 0), "PipeVerticalSeparationOrPitchTextLabel"),
              window.control("PAInTrenchConfigurationText(1)").text() + " [5010]");
    window.click("PAOffsetCheck");
    EXPECT_TRUE(textOf(print(window, 0), "PipeLayoutTextLabel").starts_with("2 x 3, "));
    window.click("PAConfigurationOption(0)");
    window.slide("PAConfigurationUpDown(1)", 4);
    EXPECT_EQ(textOf(print(window, 1), "PipeLayoutTextLabel"), "1 x 4");
    window.click("PAConfigurationOption(3)");
    EXPECT_EQ(textOf(print(window, 0), "PipeConfigurationTextLabel"), "[3407]");
    EXPECT_EQ(textOf(print(window, 0), "PipeVerticalSeparationOrPitchLabel"), "[5017]:");
    EXPECT_EQ(textOf(print(window, 0), "PipeHorizontalSeparationOrDiameterLabel"), "[5018]:");
    EXPECT_EQ(textOf(print(window, 0), "PipeVerticalSeparationOrPitchTextLabel"),
              window.control("PAInTrenchConfigurationText(0)").text() + " [5010]");
    EXPECT_EQ(textOf(print(window, 0), "PipeHorizontalSeparationOrDiameterTextLabel"),
              window.control("PAInTrenchConfigurationText(1)").text() + " [5010]");
}

TEST_F(OtherKinds, PrintSoilAndTrenchesOfAHorizontalDesign) {
    GroundDesign& window = opened("NewHorizontal");
    const Report report = print(window, 0);
    EXPECT_EQ(textOf(report, "ExtremeDaySummerLabel"), window.control("SODayText(0)").text());
    EXPECT_EQ(textOf(report, "ExtremeDayWinterLabel"), window.control("SODayText(1)").text());
    EXPECT_EQ(textOf(report, "RegionalSwingTextLabel"),
              window.control("SOAirTempSwingText").text() + " [2305]");
    EXPECT_EQ(textOf(report, "TrenchDepthTextLabel"),
              window.control("PASeparationText(1)").text() + " [2512]");
    EXPECT_EQ(textOf(report, "ThermalDiffusivityLabel"), "[5139]");
    EXPECT_EQ(textOf(report, "TrenchDepthLabel"), "[5007]");
    EXPECT_EQ(textOf(report, "NumberOfTrenchesLabel"), "[5005]");
    EXPECT_EQ(textOf(report, "PipeSizeTextLabel"),
              window.control("PIPipeDiameterCombo").text() + " - " +
                  window.control("PIPipeResistanceCombo(0)").text());
    EXPECT_EQ(report.drawings.size(), 2U);
}

TEST_F(OtherKinds, ShowTheResultsOfAPond) {
    GroundDesign& window = opened("NewSurfaceWater");
    const std::pair<const char*, const char*> rows[] = {
        {"CircuitLength", "CALoopLengthLabel"},
        {"NumberOfCircuits", "CALoopNumberLabel"},
        {"MaxParallelCircuits", "CAMaxParallelLoopNumberLabel"},
        {"ApproachTemp", "CAApproachTempLabel"},
        {"CircuitLoss", "CALoopLossLabel"},
        {"HeaderLoss", "CAHeaderLossLabel"},
        {"TotalLoss", "CATotalLossLabel"},
        {"PrimaryHeaderFlowRate", "CAPrimaryHeaderFlowRateLabel"},
        {"BranchHeaderFlowRate", "CABranchHeaderFlowRateLabel"},
        {"CircuitFlowRate", "CACircuitFlowRateLabel"},
        {"SystemFlowRate", "CAFlowRateLabel"}};
    for (const bool metric : {false, true}) {
        window.switchUnits(metric ? UnitSystem::metric : UnitSystem::english);
        for (const auto& [stem, label] : rows) {
            const std::string name = stem, array = label;
            EXPECT_EQ(textOf(print(window, 1), name + "Label"), shown(window, array + "(2)"));
            EXPECT_EQ(textOf(print(window, 1), name + "HeatingTextLabel"),
                      shown(window, array + "(1)"));
        }
    }
    // A pond has no ground that the years change.
    EXPECT_EQ(textOf(print(window, 0), "GroundTemperatureChangeLabel"), "not printed");
    for (const int option : {0, 1})
        for (const char* row : {"TotalLengthLabel", "TotalCapacityLabel"})
            EXPECT_EQ(textOf(print(window, option), row), "not printed") << row;
}

TEST_F(OtherKinds, PrintHeadersLoopsAndWaterOfAPond) {
    GroundDesign& window = opened("NewSurfaceWater");
    window.click("PISlinkyOption");
    const auto field = [&](const char* name) { return window.control(name).text(); };
    for (const int option : {0, 1}) {
        const Report report = print(window, option);
        EXPECT_EQ(textOf(report, "CircuitStyleTextLabel"), "[3407]");
        EXPECT_EQ(textOf(report, "CircuitPipeSizeTextLabel"), field("PILoopPipeSizeCombo"));
        EXPECT_EQ(textOf(report, "CoolingTextLabel1"), field("FLMinFlowText(0)") + " [3211]");
        EXPECT_EQ(textOf(report, "HeatingTextLabel4"), field("PILoopHeadLossText(1)") + " [3411]");
        EXPECT_EQ(textOf(report, "CircuitHeadLossLabel"), "[3409]");
        EXPECT_EQ(textOf(report, "NumberOfHeadersTextLabel"), field("PIHeaderNumberText(0)"));
        EXPECT_EQ(textOf(report, "NumberOfBranchHeadersTextLabel"), field("PIHeaderNumberText(1)"));
        EXPECT_EQ(textOf(report, "InWaterTextLabel"), field("PIHeaderLengthText(0)") + " [2512]");
        EXPECT_EQ(textOf(report, "InSoilSubHeaderTextLabel"),
                  field("PIHeaderLengthText(3)") + " [2512]");
        EXPECT_EQ(textOf(report, "CoolingTextLabel5"),
                  field("PIHeaderHeadLossText(0)") + " [3411]");
        EXPECT_EQ(textOf(report, "SubHeaderHeatingTextLabel"),
                  field("PIHeaderHeadLossText(3)") + " [3411]");
        EXPECT_EQ(textOf(report, "CircuitSummerTextLabel"), field("WALoopTempText(0)") + " [2206]");
        EXPECT_EQ(textOf(report, "HeaderWinterTextLabel"),
                  field("WAHeaderTempText(1)") + " [2206]");
        EXPECT_EQ(textOf(report, "CorrectedTempSummerLabel"),
                  field("SOCorrectedTempText(0)") + " [2305]");
        EXPECT_EQ(textOf(report, "SurfaceAreaTextLabel"), field("WASurfaceAreaText") + " [3515]");
        EXPECT_EQ(textOf(report, "SoilTypeTextLabel"), field("SOSoilTypeCombo"));
        EXPECT_EQ(textOf(report, "DepthOfHeaderTextLabel"), field("SOHeaderDepthText") + " [2512]");
    }
    EXPECT_EQ(print(window, 0).drawings.size(), 1U);
}

}  // namespace
}  // namespace varnholt
