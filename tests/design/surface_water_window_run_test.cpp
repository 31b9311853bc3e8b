// SPDX-License-Identifier: GPL-3.0-or-later
// The Calculate command of the surface water design. The ponds are worked a second time in
// tests/independent/surface_water_road.py.
#include <gtest/gtest.h>

#include "surface_water_window.h"

namespace varnholt {
namespace {

class SurfaceWaterRuns : public SurfaceWaterWindow {
 protected:
    void expectPair(const std::string& label, const char* inCooling, const char* inHeating) {
        EXPECT_EQ(captionOf(label + "(0)"), inCooling) << label;
        EXPECT_EQ(captionOf(label + "(1)"), inHeating) << label;
    }
};

TEST_F(SurfaceWaterRuns, ShowTheirResults) {
    take(coilPond());
    calculate();
    EXPECT_TRUE(platform.messages.empty());
    expectPair("CALoopLengthLabel", "2359.5", "2019.5");
    expectPair("CALoopNumberLabel", "9.0", "4.0");
    expectPair("CAMaxParallelLoopNumberLabel", "9.0", "5.0");
    expectPair("CAApproachTempLabel", "11.2", "-7.0");
    expectPair("CAFlowRateLabel", "27.2", "23.8");
    expectPair("CAPrimaryHeaderFlowRateLabel", "13.6", "11.9");
    expectPair("CABranchHeaderFlowRateLabel", "4.5", "4.0");
    expectPair("CALoopLossLabel", "8.9", "20.3");
    expectPair("CAHeaderLossLabel", "16.5", "19.2");
    expectPair("CATotalLossLabel", "25.4", "39.5");
    expectPair("CAPeakDemandLabel", "8.5", "7.6");  // 6.95 + 1.5, 6.1 + 1.5
}

TEST_F(SurfaceWaterRuns, ShowTheirResultsInMetric) {
    take(coilPond());
    calculate();
    inMetric();
    expectPair("CALoopLengthLabel", "719.2", "615.5");  // 2359.476 and 2019.502 ft
    expectPair("CAApproachTempLabel", "6.2", "-3.9");   // 11.2428 and -7.0378 * 5/9, no 32
    expectPair("CAPrimaryHeaderFlowRateLabel", "51.5", "45.0");
    expectPair("CATotalLossLabel", "7.7", "12.0");
    expectPair("CALoopNumberLabel", "9.0", "4.0");
}

TEST_F(SurfaceWaterRuns, LowerTheNumberOfLoopsAndLeaveTheirResultsCurrent) {
    take(coilPond());
    design->setUnitLabels();
    EXPECT_EQ(textOf("PIParallelLoopsText(0)"), "12");
    calculate();
    EXPECT_EQ(textOf("PIParallelLoopsText(0)"), "9");
    EXPECT_EQ(textOf("PIParallelLoopsText(1)"), "4");  // five were allowed
    EXPECT_FALSE(design->isStale());
    EXPECT_FALSE(design->control("NoticeLabel").visible());
}

TEST_F(SurfaceWaterRuns, EmphasiseTheLongerMode) {
    take(coilPond());
    calculate();
    EXPECT_EQ(colourOf("CALoopLengthLabel(0)"), colours::black);
    EXPECT_EQ(colourOf("CALoopLengthLabel(1)"), colours::greyed);
    EXPECT_EQ(colourOf("CAFlowRateLabel(0)"), colours::coolingGoverns);
    SurfaceWaterInputs warm = coilPond();
    warm.loads.inletTemp = {95, 38};  // the approach of cooling grows, its length falls
    take(warm);
    calculate();
    EXPECT_EQ(colourOf("CALoopLengthLabel(0)"), colours::greyed);
    EXPECT_EQ(colourOf("CAFlowRateLabel(1)"), colours::heatingGoverns);
}

TEST_F(SurfaceWaterRuns, ColourAnApproachThatDoesNotSettle) {
    constexpr int unsettled = 16761087;
    SurfaceWaterInputs pond = coilPond();
    // A pickup larger than the difference it follows from swings instead of settling.
    pond.header.headerCount = {1, 0};
    pond.header.headerLength = {2500, 0, 0, 0};
    take(pond);
    calculate();
    EXPECT_EQ(value("loopLength(0)"), design->results().loopLength[cooling]);
    ASSERT_TRUE(design->results().approach.unsettled[cooling]);
    EXPECT_EQ(colourOf("CAApproachTempLabel(0)"), unsettled);
    EXPECT_TRUE(platform.messages.empty());
    take(coilPond());
    calculate();
    EXPECT_EQ(colourOf("CAApproachTempLabel(0)"), colours::black);
    EXPECT_EQ(colourOf("CAApproachTempLabel(1)"), colours::black);
}

TEST_F(SurfaceWaterRuns, WithoutLoadsSaySoAndKeepTheirInputs) {
    calculate();
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::information);
    EXPECT_EQ(platform.messages[0].text, "[2814]");
    EXPECT_EQ(value("inletTemp(0)"), 85);
    EXPECT_EQ(value("loopLength(0)"), 0);
}

TEST_F(SurfaceWaterRuns, ShowEveryErrorWithItsNumberAndKeepTheirResults) {
    take(coilPond());
    calculate();
    SurfaceWaterInputs pond = coilPond();
    pond.minimumLoopFlow = {0, 0};
    pond.loop.parallelLoops = {0, 4};
    take(pond);
    calculate();
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::exclamation);
    EXPECT_EQ(platform.messages[0].text, "11 - Division by zero");
    pond = coilPond();
    pond.loop.loopPipeSize = 4;  // from a file
    take(pond);
    calculate();
    ASSERT_EQ(platform.messages.size(), 2u);
    EXPECT_EQ(platform.messages[1].text.substr(0, 4), "9 - ");
    EXPECT_NEAR(value("loopLength(0)"), 2359.476044960, 1e-6);
}

TEST_F(SurfaceWaterRuns, CorrectTheGroundsTemperature) {
    SurfaceWaterInputs pond = coilPond();
    pond.soil.groundTempAtDepth = {1, 2};  // from a file
    take(pond);
    calculate();
    EXPECT_NEAR(value("groundTempAtDepth(0)"), 71.585236229, 1e-8);
    EXPECT_EQ(textOf("SOCorrectedTempText(0)"), "71.6");
}

TEST_F(SurfaceWaterRuns, DoNotDependOnTheDetails) {
    take(coilPond());
    calculate();
    const ByMode<double> before = design->results().loopLength;
    typeAndLeave("WASurfaceAreaText", "90000");
    typeAndLeave("WALoopPipeDepthText", "12");
    choose("WASurfaceWaterTypeCombo", 4);
    EXPECT_EQ(value("surfaceWaterType"), 4);
    calculate();
    EXPECT_EQ(design->results().loopLength, before);
}

TEST_F(SurfaceWaterRuns, LetAnInputBeTakenBack) {
    typeAndLeave("WALoopTempText(0)", "76");
    main.click("mnuUndo");
    EXPECT_EQ(value("loopWaterTemp(0)"), 75);
    EXPECT_EQ(textOf("WALoopTempText(0)"), "75.0");
}

}  // namespace
}  // namespace varnholt
