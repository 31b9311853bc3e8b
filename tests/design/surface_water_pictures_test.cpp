// SPDX-License-Identifier: GPL-3.0-or-later
// What the pictures of a surface water design are drawn from.
#include <algorithm>
#include <cmath>

#include "surface_water_window.h"

namespace varnholt {
namespace {

class PondPictures : public SurfaceWaterWindow {
 protected:
    PondPictures() {
        texts.known.insert({{3210, "L/min"}, {3211, "gal/min"}});
        take(coilPond());
    }
};

TEST_F(PondPictures, TheCircuitFollowsWhatIsTyped) {
    CircuitPlan plan = design->circuitPlan();
    EXPECT_FALSE(plan.slinky);
    EXPECT_EQ(plan.primary.count, 2);
    EXPECT_EQ(plan.branch.count, 3);
    EXPECT_EQ(plan.loops, (ByMode<int>{12, 4}));
    design->click("PISlinkyOption");
    type("PIHeaderNumberText(0)", "5");
    typeAndLeave("PIHeaderNumberText(1)", "0");
    plan = design->circuitPlan();
    EXPECT_TRUE(plan.slinky);
    EXPECT_EQ(plan.primary.count, 5);
    EXPECT_EQ(plan.branch.count, 0);
    EXPECT_EQ(plan.branch.inWater, "");
}

TEST_F(PondPictures, TheCircuitTellsFlowsOfTheLastRunUntilAnInputChanges) {
    EXPECT_EQ(design->circuitPlan().systemFlow[cooling], "");
    calculate();
    // 96 MBtu/hr are 8 tons at 3.4 gpm each: 27.2 gpm, half of it in a header, a third of that in a
    // branch, a ninth of all in a loop.
    CircuitPlan plan = design->circuitPlan();
    EXPECT_EQ(plan.systemFlow[cooling], "27.2 gal/min");
    EXPECT_EQ(plan.primary.flow[cooling], "13.6 gal/min");
    EXPECT_EQ(plan.branch.flow[cooling], "4.5 gal/min");
    EXPECT_EQ(plan.loopFlow[cooling], "3.0 gal/min");
    EXPECT_EQ(plan.loops[cooling], 9);
    inMetric();
    EXPECT_EQ(design->circuitPlan().systemFlow[cooling], "103.0 L/min");
    type("PIHeaderNumberText(0)", "3");
    EXPECT_EQ(design->circuitPlan().systemFlow[cooling], "");
}

TEST_F(PondPictures, TheShoreIsWhereTheFirstPipeEntersTheWater) {
    EXPECT_FALSE(design->circuitPlan().shoreAtBranches);
    type("PIHeaderLengthText(0)", "0");
    EXPECT_TRUE(design->circuitPlan().shoreAtBranches);
    type("PIHeaderLengthText(3)", "0");
    EXPECT_FALSE(design->circuitPlan().shoreAtBranches);
}

TEST(CircuitPlan, TakesAnyCountThatAFileMayHold) {
    HeaderValues header;
    header.headerCount = {1e300, -4};
    const CircuitPlan plan = drawCircuit(LoopValues(), header);
    EXPECT_EQ(plan.primary.count, 32767);
    EXPECT_EQ(plan.branch.count, 0);
}

TEST_F(PondPictures, TheGroundsCurvesMeetTheCorrectedTemperatures) {
    calculate();
    const GroundTempCurves curves = design->groundTempCurves();
    for (const Mode mode : modes) {
        ASSERT_EQ(curves.atDepth[mode].size(), 1u);
        EXPECT_EQ(curves.atDepth[mode][0].across, 5);
        EXPECT_NEAR(curves.atDepth[mode][0].up, value(elementName("groundTempAtDepth", mode)),
                    1e-12);
        EXPECT_EQ(curves.onDay[mode][0].up, curves.atDepth[mode][0].up);
    }
    EXPECT_EQ(curves.onDay[cooling][0].across, 205);
    EXPECT_EQ(curves.onDay[heating][0].across, 20);
    // At the surface the coldest day has the mean less the whole swing: 58 - 24.
    EXPECT_NEAR(curves.overDepth[heating][0].up, 34, 1e-9);
}

TEST_F(PondPictures, TheGroundsYearIsLowestAfterTheColdestDayAtTheSurface) {
    // At 5 ft in wet soil the wave lags by 5/2 sqrt(365/(pi 0.96)) = 27.5 days behind day 20.
    const Curve year = design->groundTempCurves().overYear;
    const auto lowest =
        std::min_element(year.begin(), year.end(),
                         [](const CurvePoint& a, const CurvePoint& b) { return a.up < b.up; });
    EXPECT_NEAR(lowest->across, 47.5, 2.5);
}

TEST_F(PondPictures, TheGroundIsShownInMetricUnitsToo) {
    inMetric();
    const GroundTempCurves curves = design->groundTempCurves();
    EXPECT_NEAR(curves.atDepth[cooling][0].across, 1.524, 1e-9);
    EXPECT_EQ(curves.overDepth[cooling].back().across, 6);  // where the axis ends too
    EXPECT_NEAR(curves.overDepth[heating][0].up, (34 - 32) / 1.8, 1e-9);
}

TEST_F(PondPictures, AGroundBeyondTheFormulaHasNoCurves) {
    const modCalculations::GroundSwing swing{58, 24, {205, 20}};
    EXPECT_TRUE(drawGroundTemp(5, -1, swing, UnitSystem::english).empty());
    EXPECT_TRUE(drawGroundTemp(1e300, 0.6, swing, UnitSystem::english).empty());
    EXPECT_TRUE(drawGroundTemp(5, 0.6, {1e200, 24, {205, 20}}, UnitSystem::english).empty());
    EXPECT_FALSE(drawGroundTemp(5, 0, swing, UnitSystem::english).empty());
}

TEST_F(PondPictures, TheLoopCurvesAreTheTablesAndCarryTheDesignsApproach) {
    EXPECT_TRUE(design->loopCurves().atDesign[cooling].empty());
    calculate();
    const LoopCurves curves = design->loopCurves();
    // 1 inch coils at an approach of 4: 1224.5566 - 4*215.01288 + 16*17.54685 - 64*0.5215
    EXPECT_EQ(curves.perTon[cooling].front().across, 4);
    EXPECT_NEAR(curves.perTon[cooling].front().up, 611.87868, 1e-4);
    ASSERT_EQ(curves.atDesign[heating].size(), 1u);
    EXPECT_NEAR(curves.atDesign[heating][0].across, -value("approachTemp(1)"), 1e-12);
}

TEST_F(PondPictures, TheLoopCurvesOfAnUnknownPipeAreEmpty) {
    EXPECT_TRUE(drawLoopCurves({0, 7}, {}, UnitSystem::english).empty());
}

TEST_F(PondPictures, TheLoopCurvesReachToAFarApproachAndNoFurtherThanTheLinesDo) {
    const auto reach = [](double approach) {
        return drawLoopCurves({0, 1}, {approach, 0}, UnitSystem::english)
            .perTon[cooling]
            .back()
            .across;
    };
    EXPECT_EQ(reach(10), 24);
    EXPECT_NEAR(reach(30), 30.5, 0.51);
    EXPECT_EQ(reach(1e6), 60);
}

}  // namespace
}  // namespace varnholt
