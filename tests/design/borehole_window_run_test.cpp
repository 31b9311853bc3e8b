// SPDX-License-Identifier: GPL-3.0-or-later
// Runs of the Calculate command and of the tower's slider. The figures are worked in
// docs/hand-check.md.
#include <gtest/gtest.h>

#include "basis/run_time_error.h"
#include "borehole_window.h"

namespace varnholt {
namespace {

class BoreholeRuns : public BoreholeWindow {
 protected:
    /// The design of docs/hand-check.md.
    void enterHandCheck() {
        takeZones(handCheckZones());
        typeAndLeave("PAPatternRowsText(0)", "3");
        typeAndLeave("PAPatternRowsText(1)", "2");
        typeAndLeave("EKWPumpPowerText(1)", "2");
        typeAndLeave("EKWPumpPowerText(2)", "0.5");
    }
    void expectPair(const std::string& label, const char* coolingCaption,
                    const char* heatingCaption) {
        EXPECT_EQ(captionOf(label + "(0)"), coolingCaption) << label;
        EXPECT_EQ(captionOf(label + "(1)"), heatingCaption) << label;
    }
    int colourOf(const std::string& label) const { return design->control(label).forecolor(); }
};

TEST_F(BoreholeRuns, AgreeWithTheWorkingByHand) {
    enterHandCheck();
    calculate();
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_NEAR(value("annualGroundLoad"), -9.474228, 1e-5);
    EXPECT_NEAR(value("partLoadFactor(0)"), 0.4786967, 1e-6);
    EXPECT_NEAR(value("systemCOP(1)"), 2.466871, 1e-5);
    EXPECT_NEAR(value("groundResistance(2)"), 0.1990629, 1e-6);
    EXPECT_EQ(value("neighbourCount(3)"), 2);
    EXPECT_NEAR(value("temperaturePenalty(0)"), -1.241781, 1e-5);
    EXPECT_NEAR(value("temperaturePenalty(1)"), -2.347324, 1e-5);
    EXPECT_NEAR(value("boreLength(0)"), 1910.475, 1e-2);
    EXPECT_NEAR(value("boreLength(1)"), 1010.005, 1e-2);
    EXPECT_EQ(design->GetL(cooling), value("boreLength(0)"));
    EXPECT_EQ(design->GetTemperaturePenalty(heating), value("temperaturePenalty(1)"));
    EXPECT_EQ(design->GetGroundTemp(), 62);
}

TEST_F(BoreholeRuns, ShowTheirResults) {
    enterHandCheck();
    calculate();
    expectPair("CATotalLengthLabel", "1910.5", "1010.0");
    expectPair("CABoreholeLengthLabel", "318.4", "168.3");
    EXPECT_EQ(captionOf("CABoreholeNumberLabel(0)"), "6");
    EXPECT_FALSE(design->control("CABoreholeNumberLabel(1)").visible());
    expectPair("CAUnitInletLabel", "85.0", "50.0");
    expectPair("CAUnitOutletLabel", "94.9", "44.0");
    expectPair("CATotalCapacityLabel", "93.0", "78.0");
    expectPair("CAPeakLoadLabel", "76.0", "48.0");
    expectPair("CAPeakDemandLabel", "7.6", "5.7");
    expectPair("CAPumpCOPLabel", "14.1", "4.1");
    expectPair("CASystemCOPLabel", "9.9", "2.5");
    expectPair("CAFlowRateLabel", "19.0", "12.0");
    expectPair("CASoilTempChangeLabel", "+1.2", "+2.3");
}

TEST_F(BoreholeRuns, ShowTheirResultsInMetric) {
    enterHandCheck();
    calculate();
    inMetric();
    expectPair("CATotalLengthLabel", "582.3", "307.8");  // 1910.475 and 1010.005 ft
    expectPair("CABoreholeLengthLabel", "97.1", "51.3");
    expectPair("CAUnitInletLabel", "29.4", "10.0");
    expectPair("CAUnitOutletLabel", "35.0", "6.6");
    expectPair("CATotalCapacityLabel", "27.3", "22.9");
    expectPair("CAPeakLoadLabel", "22.3", "14.1");
    expectPair("CAPeakDemandLabel", "7.6", "5.7");
    expectPair("CAPumpCOPLabel", "4.1", "4.1");
    expectPair("CASystemCOPLabel", "2.9", "2.5");
    expectPair("CAFlowRateLabel", "71.9", "45.4");
    expectPair("CASoilTempChangeLabel", "+0.7", "+1.3");
    EXPECT_EQ(captionOf("CATotalLengthLabel(2)"), "[2104]");
    EXPECT_EQ(captionOf("CAPumpCOPLabel(2)"), "[2116]");
}

TEST_F(BoreholeRuns, EmphasiseTheCoolingThatGoverns) {
    enterHandCheck();
    calculate();
    EXPECT_EQ(colourOf("CATopLabel(0)"), 8925232);
    EXPECT_EQ(colourOf("CAUnitInletLabel(0)"), 8925232);
    EXPECT_EQ(colourOf("CATotalLengthLabel(0)"), 0);
    EXPECT_EQ(colourOf("CABoreholeLengthLabel(0)"), 0);
    for (const char* label : {"CATopLabel(1)", "CATotalLengthLabel(1)", "CABoreholeLengthLabel(1)",
                              "CAPeakLoadLabel(1)", "CASoilTempChangeLabel(1)"})
        EXPECT_EQ(colourOf(label), 7829367) << label;
    EXPECT_TRUE(design->control("CAHybridSlider").enabled());
    EXPECT_EQ(colourOf("CAHybridFrame"), 0);
    EXPECT_EQ(colourOf("CACondenserCapacityLabel(1)"), 0);
}

TEST_F(BoreholeRuns, EmphasiseTheHeatingThatGoverns) {
    enterHandCheck();
    std::vector<Zone> zones = handCheckZones();
    for (Zone& zone : zones)
        for (auto& block : zone.gains) block[heating] *= 3;
    takeZones(zones);
    calculate();
    ASSERT_GT(value("boreLength(1)"), value("boreLength(0)"));
    EXPECT_EQ(colourOf("CATopLabel(1)"), 5263547);
    EXPECT_EQ(colourOf("CATotalLengthLabel(1)"), 0);
    EXPECT_EQ(colourOf("CATotalLengthLabel(0)"), 7829367);
    EXPECT_FALSE(design->control("CAHybridSlider").enabled());
    for (const char* label : {"CAHybridFrame", "CAPercentHybridLabel(0)",
                              "CACondenserCapacityLabel(0)", "CACoolingTowerFlowRateLabel(0)",
                              "CACoolingTowerHoursLabel(0)", "CACoolingTowerRangeLabel(0)"})
        EXPECT_EQ(colourOf(label), 7829367) << label;
}

TEST_F(BoreholeRuns, OfAHeatingDominatedSiteShowACoolerGroundWithoutAPlus) {
    enterHandCheck();
    std::vector<Zone> zones = handCheckZones();
    for (Zone& zone : zones) zone.hours = {100, 3000};
    takeZones(zones);
    calculate();
    EXPECT_GT(value("annualGroundLoad"), 0);
    EXPECT_GT(value("temperaturePenalty(1)"), 0);
    EXPECT_EQ(captionOf("CASoilTempChangeLabel(1)").front(), '-');
}

TEST_F(BoreholeRuns, RestTheTowerBeforeTheFirstRun) {
    EXPECT_FALSE(design->control("CAHybridSlider").enabled());
    EXPECT_EQ(colourOf("CAHybridFrame"), 7829367);
    EXPECT_EQ(captionOf("CAPercentHybridLabel(0)"), "0 %");
}

TEST_F(BoreholeRuns, ClearTheStaleMark) {
    enterHandCheck();
    EXPECT_TRUE(design->isStale());
    calculate();
    EXPECT_FALSE(design->isStale());
    type("SOGroundTempText", "61");
    EXPECT_TRUE(design->isStale());
    EXPECT_EQ(captionOf("CATotalLengthLabel(0)"), "1910.5");
}

TEST_F(BoreholeRuns, ClearTheStaleMarkEvenWhenTheyFail) {
    enterHandCheck();
    design->calculationNeeded();
    takeZones({});
    calculate();  // without loads
    EXPECT_FALSE(design->isStale());

    takeZones(handCheckZones());
    type("PATimeText", "0");
    EXPECT_TRUE(design->isStale());
    calculate();  // a division by zero
    EXPECT_EQ(platform.messages.back().text, RunTimeError(11).message());
    EXPECT_EQ(design->control("CACalculateCommand").backcolor(), colours::buttonFace);
}

TEST_F(BoreholeRuns, WithoutZonesTellSo) {
    calculate();
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::information);
    EXPECT_EQ(platform.messages[0].text, "[2814]");
    EXPECT_FALSE(design->isStale());
    EXPECT_EQ(captionOf("CATotalLengthLabel(0)"), "0.0");
}

TEST_F(BoreholeRuns, WithoutZonesDropTheTower) {
    enterHandCheck();
    calculate();
    slide(25);
    takeZones({});
    calculate();
    EXPECT_EQ(value("hybridPercent"), 0);
    EXPECT_EQ(value("condenserCapacity"), 0);
    EXPECT_EQ(design->control("CAHybridSlider").value(), 0);
    EXPECT_EQ(captionOf("CAPercentHybridLabel(0)"), "0 %");
    EXPECT_EQ(captionOf("CACondenserCapacityLabel(0)"), "0.0");
    EXPECT_EQ(captionOf("CATotalLengthLabel(0)"), "1501.1");
}

TEST_F(BoreholeRuns, WithoutPositiveLoadsEndBeforeAnyLength) {
    enterHandCheck();
    calculate();
    std::vector<Zone> zones = handCheckZones();
    for (Zone& zone : zones) zone.gains = {};
    takeZones(zones);
    calculate();
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].text, "[2814]");
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::information);
    EXPECT_EQ(captionOf("CATotalLengthLabel(0)"), "1910.5");
    EXPECT_NEAR(value("boreLength(0)"), 1910.475, 1e-2);
    EXPECT_FALSE(design->isStale());
}

TEST_F(BoreholeRuns, CountMoreZonesThanTheyHaveWithoutHarm) {
    // A project remembers the number of zones of a file that is missing now.
    change(*design, [&](BoreholeProject& of) { of.loads.zoneNumber = 12; });
    calculate();
    EXPECT_EQ(platform.messages.at(0).text, "[2814]");
}

TEST_F(BoreholeRuns, OfACoolingOnlyBuildingEndWithDivisionByZero) {
    enterHandCheck();
    calculate();
    const std::vector<std::string> before = resultCaptions();
    std::vector<Zone> zones = handCheckZones();
    for (Zone& zone : zones)
        for (auto& block : zone.gains) block[heating] = 0;
    takeZones(zones);
    design->calculationNeeded();
    calculate();
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::exclamation);
    EXPECT_EQ(platform.messages[0].text, RunTimeError(11).message());
    EXPECT_EQ(resultCaptions(), before);
    EXPECT_FALSE(design->isStale());
    EXPECT_FALSE(design->hybridOn);
}

TEST_F(BoreholeRuns, DropOtherErrorsWithoutAWord) {
    enterHandCheck();
    calculate();
    const std::vector<std::string> before = resultCaptions();
    change(*design, [&](BoreholeProject& of) {
        of.soil.diffusivity = -1;
    });  // as a file may hold it: no square root, error 5
    design->calculationNeeded();
    calculate();
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(resultCaptions(), before);
    EXPECT_FALSE(design->isStale());
}

TEST_F(BoreholeRuns, ThatFindNoLengthsSayAfterHowManyPasses) {
    enterHandCheck();
    // The ground lies on the wrong side of both fluids: both lengths are negative at once.
    typeAndLeave("SOGroundTempText", "62");
    typeAndLeave("FLInletTempText(0)", "20");
    typeAndLeave("FLInletTempText(1)", "110");
    calculate();
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::plain);
    // The first pass sets both flags, the second finds the lengths settled.
    EXPECT_EQ(platform.messages[0].text, "Calculation Failed!!  iterations=2");
    expectPair("CATotalLengthLabel", "0.0", "0.0");
    expectPair("CASoilTempChangeLabel", "0.0", "0.0");
    EXPECT_FALSE(design->isStale());
}

TEST_F(BoreholeRuns, WithoutPumpsShowNoCopAndNoError) {
    enterHandCheck();
    typeAndLeave("EKWPumpPowerText(1)", "0");
    typeAndLeave("EKWPumpPowerText(2)", "0");
    std::vector<Zone> zones = handCheckZones();
    for (Zone& zone : zones) zone.pump = {};
    takeZones(zones);
    calculate();
    EXPECT_TRUE(platform.messages.empty());
    expectPair("CAPumpCOPLabel", "0.0", "0.0");
    expectPair("CASystemCOPLabel", "0.0", "0.0");
}

TEST_F(BoreholeRuns, WithAGridOfNoBoresShowNoLengthOfEach) {
    enterHandCheck();
    change(*design, [&](BoreholeProject& of) {
        of.results.edit().lengths.boreLength = {100, 100};
    });
    typeAndLeave("PAPatternRowsText(0)", "0");
    inMetric();
    expectPair("CABoreholeLengthLabel", "0.0", "0.0");
    EXPECT_EQ(captionOf("CABoreholeNumberLabel(0)"), "0");
}

TEST_F(BoreholeRuns, WithTheSliderAgreeWithTheWorkingByHand) {
    enterHandCheck();
    calculate();
    design->slide("CACoolingRangeUpDown", 10);
    slide(25);
    EXPECT_NEAR(value("annualGroundLoad"), -6.269615, 1e-5);
    EXPECT_NEAR(value("condenserCapacity"), 23.6007, 1e-4);
    EXPECT_EQ(value("condenserCapacityMax"), value("condenserCapacity"));
    EXPECT_NEAR(value("coolingTowerHours"), 1189.474, 1e-3);
    EXPECT_NEAR(value("coolingTowerFlow"), 4.714738, 1e-5);
    EXPECT_NEAR(value("boreLength(0)"), 1501.105, 1e-2);
    EXPECT_NEAR(value("boreLength(1)"), 1124.269, 1e-2);
    EXPECT_EQ(value("peakLoad(0)"), 76);
    EXPECT_EQ(value("coolingPeakBeforeHybrid"), 76);
    EXPECT_EQ(captionOf("CAPercentHybridLabel(0)"), "25 %");
    EXPECT_EQ(captionOf("CACondenserCapacityLabel(0)"), "23.6");
    EXPECT_EQ(captionOf("CACoolingTowerFlowRateLabel(0)"), "4.7");
    EXPECT_EQ(captionOf("CACoolingTowerRangeLabel(0)"), "10.0");
    EXPECT_EQ(captionOf("CACoolingTowerHoursLabel(0)"), "1189");
    expectPair("CATotalLengthLabel", "1501.1", "1124.3");
    expectPair("CAUnitOutletLabel", "94.9", "44.0");
    expectPair("CAFlowRateLabel", "19.0", "12.0");
    EXPECT_FALSE(design->hybridOn);
}

TEST_F(BoreholeRuns, WithATowerCountItsFanAndPumpInCoolingOnly) {
    enterHandCheck();
    inMetric();
    typeAndLeave("EKWPumpPowerText(4)", "0.85");
    typeAndLeave("EKWPumpPowerText(6)", "1.7");
    calculate();
    expectPair("CAPeakDemandLabel", "7.6", "5.7");
    slide(25);
    expectPair("CAPeakDemandLabel", "10.6", "5.7");  // 7.649056 + 1 + 2
    // 76 / 3.412 / 10.649056
    EXPECT_NEAR(value("systemCOP(0)"), 2.0916714, 1e-6);
    inEnglish();
    expectPair("CAPeakDemandLabel", "10.6", "5.7");
}

TEST_F(BoreholeRuns, WithTheSliderAtZeroHaveNoTower) {
    enterHandCheck();
    calculate();
    design->slide("CACoolingRangeUpDown", 10);
    slide(25);
    slide(0);
    EXPECT_EQ(value("condenserCapacity"), 0);
    EXPECT_EQ(value("coolingTowerHours"), 0);
    EXPECT_EQ(value("condenserCapacityMax"), 0);
    EXPECT_NEAR(value("boreLength(0)"), 1910.475, 1e-2);
}

TEST_F(BoreholeRuns, ByTheButtonDropTheTower) {
    enterHandCheck();
    calculate();
    design->slide("CACoolingRangeUpDown", 10);
    slide(25);
    calculate();
    EXPECT_EQ(value("hybridPercent"), 0);
    EXPECT_EQ(design->control("CAHybridSlider").value(), 0);
    EXPECT_EQ(captionOf("CAPercentHybridLabel(0)"), "0 %");
    EXPECT_EQ(value("condenserCapacity"), 0);
    EXPECT_EQ(value("condenserCapacityMax"), 0);
    EXPECT_EQ(value("coolingTowerHours"), 0);
    EXPECT_EQ(value("coolingTowerFlow"), 0);
    EXPECT_EQ(value("coolingRange"), 10);
    EXPECT_NEAR(value("boreLength(0)"), 1910.475, 1e-2);
}

TEST_F(BoreholeRuns, WithTheWholeCoolingOnATowerEndWithDivisionByZero) {
    enterHandCheck();
    calculate();
    const std::string length = captionOf("CATotalLengthLabel(0)");
    slide(100);
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].text, RunTimeError(11).message());
    EXPECT_EQ(captionOf("CATotalLengthLabel(0)"), length);
    EXPECT_EQ(captionOf("CAPercentHybridLabel(0)"), "100 %");
    EXPECT_EQ(value("peakLoad(0)"), 76);
    EXPECT_FALSE(design->hybridOn);
}

TEST_F(BoreholeRuns, LetTheDesignerMoveBackWhenTheTowerMakesHeatingGovern) {
    enterHandCheck();
    calculate();
    slide(60);
    ASSERT_GT(value("boreLength(1)"), value("boreLength(0)"));
    EXPECT_EQ(colourOf("CATopLabel(1)"), 5263547);
    EXPECT_TRUE(design->control("CAHybridSlider").enabled());
    EXPECT_EQ(colourOf("CAHybridFrame"), 0);
    slide(0);
    EXPECT_NEAR(value("boreLength(0)"), 1910.475, 1e-2);
}

TEST_F(BoreholeRuns, RefuseToStartWithinASlidersRun) {
    enterHandCheck();
    calculate();
    slide(25);
    design->hybridOn = true;
    design->slide("CAHybridSlider", 50);
    EXPECT_EQ(design->control("CAHybridSlider").value(), 25);
    EXPECT_EQ(value("hybridPercent"), 25);
    design->hybridOn = false;
    design->settingUnits = true;
    design->slide("CAHybridSlider", 50);
    EXPECT_EQ(value("hybridPercent"), 25);
}

TEST_F(BoreholeRuns, KeepTheStaleMarkAwayAfterTheSlider) {
    enterHandCheck();
    calculate();
    type("SOGroundTempText", "62");
    slide(10);
    EXPECT_FALSE(design->isStale());
}

class Tower : public BoreholeRuns {
 protected:
    void SetUp() override {
        enterHandCheck();
        calculate();
        design->slide("CACoolingRangeUpDown", 10);
        slide(25);
    }
};

TEST_F(Tower, CapacityTrimmedTakesHoursAndFlowAlong) {
    design->slide("CACondenserCapacityUpDown", 20);
    EXPECT_EQ(value("condenserCapacity"), 20);
    // Fc * 12 * (7533.333 - 5650) / 20, and 20000 / (500.5728 * 10)
    EXPECT_NEAR(value("coolingTowerHours"), 1.242142 * 12 * 1883.3333 / 20, 1e-2);
    EXPECT_NEAR(value("coolingTowerFlow"), 3.995423, 1e-5);
    EXPECT_EQ(captionOf("CACoolingTowerHoursLabel(0)"), "1404");
    EXPECT_EQ(captionOf("CACoolingTowerFlowRateLabel(0)"), "4.0");
    EXPECT_NEAR(value("condenserCapacityMax"), 23.6007, 1e-4);
}

TEST_F(Tower, CapacityIsTakenFromItsLabel) {
    design->slide("CACondenserCapacityUpDown", 20.26);
    EXPECT_EQ(captionOf("CACondenserCapacityLabel(0)"), "20.3");
    EXPECT_EQ(value("condenserCapacity"), 20.3);
    EXPECT_EQ(design->control("CACondenserCapacityUpDown").value(), 20.3);
}

TEST_F(Tower, CapacityCannotBeRaisedAboveWhatTheRunAskedFor) {
    design->slide("CACondenserCapacityUpDown", 100);
    EXPECT_NEAR(value("condenserCapacity"), 23.6, 1e-9);
    EXPECT_EQ(captionOf("CACondenserCapacityLabel(0)"), "23.6");
}

TEST_F(Tower, CapacityTrimmedToNothingHasNoHoursAndNoFlow) {
    design->slide("CACondenserCapacityUpDown", 0);
    EXPECT_EQ(value("coolingTowerHours"), 0);
    EXPECT_EQ(value("coolingTowerFlow"), 0);
}

TEST_F(Tower, FlowRaisedAboveTheMaximumComesBackDown) {
    design->slide("CACoolingTowerFlowRateUpDown", 50);
    EXPECT_NEAR(value("condenserCapacity"), 23.6007, 1e-4);
    EXPECT_NEAR(value("coolingTowerFlow"), 4.714738, 1e-5);
    EXPECT_EQ(captionOf("CACoolingTowerFlowRateLabel(0)"), "4.7");
    EXPECT_EQ(design->control("CACoolingTowerFlowRateUpDown").value(), 4.7);
}

TEST_F(Tower, FlowLoweredTakesTheCapacityAlong) {
    design->slide("CACoolingTowerFlowRateUpDown", 2);
    EXPECT_NEAR(value("condenserCapacity"), 10.011456, 1e-6);  // 500.5728 * 2 * 10 / 1000
    EXPECT_NEAR(value("coolingTowerHours"), 1189.474, 1e-3);
}

TEST_F(Tower, RangeOfZeroStopsTheTowerWithoutAnError) {
    design->slide("CACoolingRangeUpDown", 0);
    EXPECT_EQ(value("condenserCapacity"), 0);
    EXPECT_EQ(value("coolingTowerHours"), 0);
    EXPECT_TRUE(platform.messages.empty());
    slide(30);
    EXPECT_EQ(value("coolingTowerFlow"), 0);
    EXPECT_GT(value("condenserCapacity"), 0);
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(Tower, RangeRaisedAboveTheMaximumLowersTheFlow) {
    design->slide("CACoolingRangeUpDown", 20);
    EXPECT_NEAR(value("condenserCapacity"), 23.6007, 1e-4);
    EXPECT_NEAR(value("coolingTowerFlow"), 4.714738 / 2, 1e-5);
}

TEST_F(Tower, OfAFluidThatCarriesNoHeatIsToldAndKeepsItsFigures) {
    // Each is positive, their product is less than any double.
    type("FLFluidDensityText", "1e-200");
    type("FLSpecificHeatText", "1e-200");
    design->slide("CACondenserCapacityUpDown", 20);
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::exclamation);
    EXPECT_EQ(platform.messages[0].text, RunTimeError(11).message());
    EXPECT_NEAR(value("condenserCapacity"), 23.6007, 1e-4);
    EXPECT_NEAR(value("coolingTowerFlow"), 4.714738, 1e-5);
    EXPECT_EQ(captionOf("CACondenserCapacityLabel(0)"), "23.6");
    EXPECT_EQ(design->control("CACondenserCapacityUpDown").value(), 23.6);
}

TEST_F(Tower, IsTrimmedInMetricUnits) {
    inMetric();
    EXPECT_EQ(captionOf("CACondenserCapacityLabel(0)"), "6.9");  // 23.6007 * 0.2931
    EXPECT_EQ(captionOf("CACoolingTowerRangeLabel(0)"), "5.6");
    EXPECT_EQ(captionOf("CACoolingTowerFlowRateLabel(0)"), "17.8");
    EXPECT_NEAR(design->control("CACondenserCapacityUpDown").max(), 6.917365, 1e-5);
    design->slide("CACoolingRangeUpDown", 5);
    EXPECT_DOUBLE_EQ(value("coolingRange"), 9);
    design->slide("CACondenserCapacityUpDown", 5);
    EXPECT_DOUBLE_EQ(value("condenserCapacity"), 5 / 0.2931);
    design->slide("CACoolingTowerFlowRateUpDown", 10);
    EXPECT_DOUBLE_EQ(value("coolingTowerFlow"), 10 / 3.785412);
}

TEST_F(Tower, KeepsItsUpDownsInStepWithItsLabels) {
    EXPECT_EQ(design->control("CACondenserCapacityUpDown").value(), 23.6);
    EXPECT_EQ(design->control("CACoolingTowerFlowRateUpDown").value(), 4.7);
    EXPECT_EQ(design->control("CACoolingRangeUpDown").value(), 10);
}

}  // namespace
}  // namespace varnholt
