// SPDX-License-Identifier: GPL-3.0-or-later
// What the pictures of the horizontal design are drawn from.
#include "horizontal_window.h"

#include <gtest/gtest.h>

namespace varnholt {
namespace {

using TrenchPictures = HorizontalWindow;

TEST_F(TrenchPictures, ShowPipesWhereTheArithmeticHasThem) {
    choose(1);
    setPipes(4);
    const TrenchDrawing drawing = design->trenchDrawing();
    ASSERT_EQ(drawing.pipes.size(), 4u);
    // Two columns 12 in apart around the middle; the lower row on the ground of 6 ft.
    EXPECT_EQ(drawing.pipes[0].x, -6);
    EXPECT_EQ(drawing.pipes[0].y, -72);
    EXPECT_EQ(drawing.pipes[1].y, -60);
    EXPECT_EQ(drawing.pipes[2].x, 6);
    EXPECT_EQ(drawing.besideFirst, 2u);
    EXPECT_EQ(drawing.widthLabel, "12.0 [5010]");
    type("PASeparationText(1)", "5");
    EXPECT_EQ(design->trenchDrawing().pipes[0].y, -60);
}

TEST_F(TrenchPictures, ShowACoilOnEdgeBelowTheDepth) {
    choose(4);
    const TrenchDrawing drawing = design->trenchDrawing();
    EXPECT_EQ(drawing.coilMiddle, 90);  // 72 + 36/2 in
    EXPECT_EQ(drawing.bottom, 108);
    EXPECT_TRUE(drawing.fits);
    choose(3);
    EXPECT_FALSE(design->trenchDrawing().fits);  // 36 in over a trench of 8
    EXPECT_EQ(design->trenchDrawing().coilMiddle, 72);
}

TEST_F(TrenchPictures, ShowAFewTrenchesOfMany) {
    setTrenches(12);
    choose(3);
    const TrenchPlan plan = design->trenchPlan();
    EXPECT_EQ(plan.drawn, largestTrenchPlan);
    EXPECT_EQ(plan.trenches, 12);
    EXPECT_TRUE(plan.isCoil());
    EXPECT_EQ(plan.coilDiameter, 3);
    choose(2);
    EXPECT_EQ(design->trenchPlan().columns, 3);
}

TEST_F(TrenchPictures, TellTheGroundsTemperatureAtTheMeanDepthOfThePipes) {
    takeSample();
    setPipes(3);
    const GroundTempCurves curves = design->groundTempCurves();
    // The mean of 6, 5 and 4 ft.
    ASSERT_EQ(curves.atDepth[heating].size(), 1u);
    EXPECT_EQ(curves.atDepth[heating][0].across, 5);
    EXPECT_EQ(curves.onDay[cooling][0].across, 202);
    EXPECT_EQ(curves.depthLabel, "5.0 [2512]");
    typeAndLeave("PASeparationText(1)", "8");
    EXPECT_EQ(design->groundTempCurves().atDepth[heating][0].across, 7);
    calculate();
    EXPECT_NEAR(design->groundTempCurves().atDepth[heating][0].up, value("groundTempAtDepth(1)"),
                1e-12);
}

}  // namespace
}  // namespace varnholt
