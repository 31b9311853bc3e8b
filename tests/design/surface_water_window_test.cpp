// SPDX-License-Identifier: GPL-3.0-or-later
// The fields of the surface water design, their limits and what follows from them.
#include "surface_water_window.h"

#include <gtest/gtest.h>

namespace varnholt {
namespace {

using SurfaceWaterDesign = SurfaceWaterWindow;

TEST_F(SurfaceWaterDesign, HasSevenPagesAndNoTower) {
    const std::vector<std::string> pages{"[2002]", "[2003]", "[2004]", "[3002]",
                                         "[3003]", "[2007]", "[2010]"};
    EXPECT_EQ(design->control("SWTabs").items(), pages);
    EXPECT_FALSE(design->has("CAHybridSlider"));
    EXPECT_FALSE(design->has("EKWPumpPowerText(3)"));
    EXPECT_TRUE(design->has("EKWPumpPowerText(2)"));
}

TEST_F(SurfaceWaterDesign, TakesASlotOfItsOwnKindAndGivesItBack) {
    EXPECT_EQ(design->caption(), "[3001] #1");
    EXPECT_TRUE(main.slots(DesignKind::surfaceWater).exists[1]);
    EXPECT_FALSE(main.slots(DesignKind::borehole).exists[1]);
    main.close(*design);
    EXPECT_FALSE(main.slots(DesignKind::surfaceWater).exists[1]);
}

TEST_F(SurfaceWaterDesign, StartsStaleWithItsBuiltInValues) {
    EXPECT_TRUE(design->isStale());
    EXPECT_EQ(textOf("FLMinFlowText(0)"), "2.8");
    EXPECT_EQ(textOf("FLMinFlowText(1)"), "4.2");
    EXPECT_EQ(textOf("SODayText(0)"), "34");
    EXPECT_EQ(textOf("SODayText(1)"), "34");
    EXPECT_EQ(value("loopPipeSize"), 3);
    EXPECT_EQ(value("headerPipeSize(1)"), 3);
    // Both days are day 34: the wave's phase is the lag of 6 ft alone, and its amplitude
    // exp(-6 sqrt(pi/(365 * 0.6))) = exp(-0.718628) = 0.487421; cos(0.718628) = 0.752710.
    EXPECT_NEAR(value("groundTempAtDepth(0)"), 62 - 22 * 0.487421 * 0.752710, 1e-4);
    EXPECT_EQ(textOf("SOCorrectedTempText(1)"), "53.9");
}

TEST_F(SurfaceWaterDesign, KeepsALeastFlowOfZeroAndFillsAnEmptyField) {
    typeAndLeave("FLMinFlowText(0)", "");
    EXPECT_EQ(textOf("FLMinFlowText(0)"), "2.8");
    type("FLMinFlowText(1)", "213");
    EXPECT_EQ(value("minflowRate(1)"), 4.2);
    typeAndLeave("FLMinFlowText(1)", "0");
    EXPECT_EQ(value("minflowRate(1)"), 0);
    EXPECT_EQ(textOf("FLMinFlowText(1)"), "0.0");
}

TEST_F(SurfaceWaterDesign, TakesDaysOfTheYearAlone) {
    type("SODayText(0)", "365");
    EXPECT_EQ(value("extremeDay(0)"), 365);
    type("SODayText(0)", "366");
    EXPECT_EQ(textOf("SODayText(0)"), "34");
    type("SODayText(1)", "-1");
    EXPECT_EQ(textOf("SODayText(1)"), "34");
    for (const char* beyond : {"40000", "-40000", "1e300"}) {  // no 16-bit number either
        type("SODayText(0)", "20");
        type("SODayText(0)", beyond);
        EXPECT_EQ(textOf("SODayText(0)"), "34") << beyond;
        EXPECT_EQ(value("extremeDay(0)"), 34) << beyond;
    }
    type("SODayText(1)", "20");
    typeAndLeave("SODayText(1)", "");
    EXPECT_EQ(textOf("SODayText(1)"), "34");
    typeAndLeave("SODayText(1)", "0");
    EXPECT_EQ(textOf("SODayText(1)"), "34");
    EXPECT_EQ(value("extremeDay(1)"), 34);
}

TEST_F(SurfaceWaterDesign, TakesTheSwingAsADifference) {
    inMetric();
    type("SOAirTempSwingText", "10");
    EXPECT_EQ(value("airTempSwing"), 18);  // 10 * 9/5, and no 32
    type("SOAirTempSwingText", "118");     // 212.4 degF
    EXPECT_EQ(value("airTempSwing"), 22);
    EXPECT_EQ(textOf("SOAirTempSwingText"), "12.2");
    type("SOAirTempSwingText", "-1");
    EXPECT_EQ(value("airTempSwing"), 22);
}

TEST_F(SurfaceWaterDesign, CorrectsTheGroundsTemperatureWithEveryChangeOfTheSoil) {
    typeAndLeave("SOHeaderDepthText", "0");
    // At the surface the coldest day has the mean less the swing.
    EXPECT_NEAR(value("groundTempAtDepth(1)"), 62 - 22, 1e-12);
    typeAndLeave("SOGroundTempText", "58");
    EXPECT_EQ(textOf("SOCorrectedTempText(1)"), "36.0");
    typeAndLeave("SOAirTempSwingText", "24");
    EXPECT_EQ(textOf("SOCorrectedTempText(1)"), "34.0");
    typeAndLeave("SODayText(1)", "20");
    typeAndLeave("SODayText(0)", "205");
    // 58 - 24 cos(2 pi 185/365) = 58 - 24 * (-0.999074)
    EXPECT_EQ(textOf("SOCorrectedTempText(0)"), "82.0");
    typeAndLeave("SOHeaderDepthText", "5");
    choose("SOSoilTypeCombo", 2);
    EXPECT_EQ(value("soilDiffusivity"), 0.96);
    // Worked in tests/independent/surface_water_road.py, the pond with coils.
    EXPECT_NEAR(value("groundTempAtDepth(0)"), 71.585236229, 1e-8);
    EXPECT_NEAR(value("groundTempAtDepth(1)"), 44.695675677, 1e-8);
    EXPECT_TRUE(design->control("SOCorrectedTempText(0)").locked());
}

TEST_F(SurfaceWaterDesign, SetsTheSizesThatFollowFromAPipe) {
    choose("PILoopPipeSizeCombo", 0);
    EXPECT_EQ(value("loopPipeOutsideDiameter"), 1.05);
    choose("PIHeaderPipeSizeCombo(0)", 7);
    EXPECT_EQ(value("headerOutsideDiameter(0)"), 6.625);
    EXPECT_EQ(value("headerWaterFactor(0)"), 0.025);
    EXPECT_EQ(value("headerSoilFactor(0)"), 0.0026);
    EXPECT_EQ(value("headerOutsideDiameter(1)"), 1.9);
}

TEST_F(SurfaceWaterDesign, ChoosesCoilOrSlinky) {
    EXPECT_TRUE(design->control("PICoilOption").checked());
    design->click("PISlinkyOption");
    EXPECT_EQ(value("loopStyle"), 1);
    design->click("PICoilOption");
    EXPECT_EQ(value("loopStyle"), 0);
}

TEST_F(SurfaceWaterDesign, HasAtLeastOnePrimaryHeader) {
    type("PIHeaderNumberText(0)", "0");
    EXPECT_EQ(value("headerCount(0)"), 0);
    design->leave("PIHeaderNumberText(0)");
    EXPECT_EQ(value("headerCount(0)"), 1);
    EXPECT_EQ(textOf("PIHeaderNumberText(0)"), "1");
}

TEST_F(SurfaceWaterDesign, WithoutBranchesClearsAndGreysWhatIsTheirs) {
    EXPECT_FALSE(isEnabled("PIHeaderLengthText(2)"));
    typeAndLeave("PIHeaderNumberText(1)", "3");
    for (const char* name :
         {"PIHeaderLengthText(2)", "PIHeaderLengthText(3)", "PIHeaderHeadLossText(2)",
          "PIHeaderHeadLossText(3)", "PIHeaderPipeSizeCombo(1)"})
        EXPECT_TRUE(isEnabled(name)) << name;
    typeAndLeave("PIHeaderLengthText(2)", "60");
    typeAndLeave("PIHeaderLengthText(3)", "40");
    typeAndLeave("PIHeaderHeadLossText(2)", "2.5");
    typeAndLeave("PIHeaderHeadLossText(3)", "2.9");
    typeAndLeave("PIHeaderNumberText(1)", "0");
    EXPECT_EQ(textOf("PIHeaderLengthText(2)"), "0.0");
    EXPECT_EQ(textOf("PIHeaderHeadLossText(2)"), "0.0");
    EXPECT_EQ(textOf("PIHeaderHeadLossText(3)"), "0.0");
    // The length in the soil stays.
    EXPECT_EQ(textOf("PIHeaderLengthText(3)"), "40.0");
    for (const char* name :
         {"PIHeaderLengthText(2)", "PIHeaderLengthText(3)", "PIHeaderHeadLossText(2)",
          "PIHeaderHeadLossText(3)", "PIHeaderPipeSizeCombo(1)"})
        EXPECT_FALSE(isEnabled(name)) << name;
    EXPECT_TRUE(isEnabled("PIHeaderNumberText(1)"));
}

TEST_F(SurfaceWaterDesign, LetsBranchesBeDescribedAsSoonAsTheirNumberIsTyped) {
    EXPECT_FALSE(isEnabled("PIHeaderLengthText(2)"));
    type("PIHeaderNumberText(1)", "2");
    EXPECT_TRUE(isEnabled("PIHeaderLengthText(2)"));
    // What is only being typed anew clears nothing yet.
    type("PIHeaderNumberText(1)", "");
    EXPECT_TRUE(isEnabled("PIHeaderLengthText(2)"));
    design->leave("PIHeaderNumberText(1)");
    EXPECT_FALSE(isEnabled("PIHeaderLengthText(2)"));
}

TEST_F(SurfaceWaterDesign, TakesNoLoopsAsTypedAndOneLoopForAnEmptyField) {
    typeAndLeave("PIParallelLoopsText(0)", "0");
    EXPECT_EQ(value("parallelLoops(0)"), 0);
    EXPECT_EQ(textOf("PIParallelLoopsText(0)"), "0");
    typeAndLeave("PIParallelLoopsText(0)", "");
    EXPECT_EQ(textOf("PIParallelLoopsText(0)"), "1");
}

TEST_F(SurfaceWaterDesign, TellsWhatTheHeadersTookUpInTheLastPass) {
    take(coilPond());
    calculate();
    // The passes of heating are the last ones.
    EXPECT_NEAR(value("inletTemp(1)") - value("loopWaterTemp(1)") - value("headerHeatPickup(0)") -
                    value("headerHeatPickup(1)"),
                value("approachTemp(1)"), 1e-12);
    EXPECT_EQ(value("minimumLoopFlow(0)"), 2.8);
}

TEST_F(SurfaceWaterDesign, ShowsLossesWithTwoPlacesInMetric) {
    typeAndLeave("PILoopHeadLossText(0)", "3.2");
    typeAndLeave("PIHeaderHeadLossText(1)", "2.1");
    inMetric();
    EXPECT_EQ(textOf("PILoopHeadLossText(0)"), "0.98");    // 3.2 * 0.3048
    EXPECT_EQ(textOf("PIHeaderHeadLossText(1)"), "0.64");  // 2.1 * 0.3048
    type("PILoopHeadLossText(1)", "1");
    EXPECT_NEAR(value("loopHeadLoss(1)"), 1 / 0.3048, 1e-12);
}

TEST_F(SurfaceWaterDesign, ShowsItsWaterInMetric) {
    typeAndLeave("WASurfaceAreaText", "1076.39104");
    typeAndLeave("WALoopPipeDepthText", "10");
    typeAndLeave("WALoopTempText(0)", "77");
    inMetric();
    EXPECT_EQ(textOf("WASurfaceAreaText"), "100.0");
    EXPECT_EQ(textOf("WALoopPipeDepthText"), "3.0");
    EXPECT_EQ(textOf("WALoopTempText(0)"), "25.0");
    type("WAHeaderTempText(3)", "10");
    EXPECT_EQ(value("headerWaterTemp(3)"), 50);
}

TEST_F(SurfaceWaterDesign, MarksItsResultsStaleWithEveryChange) {
    for (const char* field : {"WALoopTempText(0)", "PIHeaderLengthText(0)", "SOHeaderDepthText",
                              "FLMinFlowText(0)", "PIExtraEqvLengthText", "WASurfaceAreaText"}) {
        take(coilPond());
        calculate();
        ASSERT_FALSE(design->isStale());
        type(field, "7");
        EXPECT_TRUE(design->isStale()) << field;
    }
}

}  // namespace
}  // namespace varnholt
