// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "basis/number_text.h"
#include "basis/units.h"
#include "design/modCalculations/bore_resistance.h"
#include "design/modCalculations/pipe_resistance.h"
#include "expect_error.h"

namespace varnholt::modCalculations {
namespace {

TEST(PipeResistance, AgreesWithAHandCalculation) {
    // Re 10000: Nu = 0.023 * 1584.893 * 1.761427 = 64.20828
    // film 1/(3.14159 * 0.35 * Nu) = 0.01416418 (the diameter cancels)
    // one U-tube: ln(2.687006/2.337006)/(6.28318*0.225) = 0.0987164, plus half the film
    EXPECT_NEAR(pipeResistanceOf(0, 0, 1.9, 1.55), 0.1057985, 1e-7);
    // two: ln(2.63/2.395)/1.4137155 = 0.0662089, plus a quarter of the film
    EXPECT_NEAR(pipeResistanceOf(1, 0, 1.315, 1.08), 0.0697500, 1e-7);
    // a single pipe: ln(1.05/0.86)/1.4137155 = 0.1411975, plus the film
    EXPECT_NEAR(pipeResistanceOf(2, 0, 1.05, 0.86), 0.1553617, 1e-7);
}

TEST(PipeResistance, GrowsAsTheFlowSlows) {
    EXPECT_NEAR(pipeResistanceOf(0, 1, 1.9, 1.55), 0.1165613, 1e-7);  // film 0.0356897
    EXPECT_NEAR(pipeResistanceOf(0, 2, 1.9, 1.55), 0.1293971, 1e-7);  // film 0.0613614
}

TEST(PipeResistance, OfAClosedPipeIsNear10000WithAnyFlowType) {
    for (int config : {0, 1, 2})
        for (int flowType : {0, 1, 2, 7})
            EXPECT_NEAR(pipeResistanceOf(config, flowType, 1.9, 0), 10000, 0.001);
}

TEST(PipeResistance, IsNeverNegative) {
    // An inside wider than the outside: ln(2.687006/3.687006)/1.41372 = -0.2238
    EXPECT_EQ(pipeResistanceOf(0, 0, 1.9, 2.9), 0);
}

TEST(PipeResistance, OfAnUnknownFlowTypeIsADivisionByZero) {
    expectError(11, [] { pipeResistanceOf(0, 3, 1.9, 1.55); });
    expectError(11, [] { pipeResistanceOf(0, -1, 1.9, 1.55); });
}

TEST(PipeResistance, OfDiametersThatNoPipeHasIsAnError) {
    expectError(5, [] { pipeResistanceOf(2, 0, 0, 1); });
    expectError(5, [] { pipeResistanceOf(0, 0, 1, -3); });
}

TEST(PipeResistance, OfAnUnknownConfigurationIsZero) {
    EXPECT_EQ(pipeResistanceOf(3, 0, 1.9, 1.55), 0);
    EXPECT_EQ(pipeResistanceOf(-1, 0, 1.9, 1.55), 0);
}

TEST(PipeTable, HoldsOneOutsideDiameterASize) {
    const double outside[]{1.05, 1.315, 1.66, 1.9};
    for (int size = 0; size < 4; ++size)
        for (int sdr = 0; sdr < 5; ++sdr) EXPECT_EQ(pipeTable(size, sdr).outside, outside[size]);
}

TEST(PipeTable, HoldsTheInsideDiameters) {
    const double inside[4][5]{{0.82, 0.86, 0.93, 0.824, 0.742},
                              {1.02, 1.08, 1.16, 1.049, 0.957},
                              {1.29, 1.36, 1.46, 1.38, 1.278},
                              {1.48, 1.55, 1.68, 1.61, 1.5}};
    for (int size = 0; size < 4; ++size)
        for (int sdr = 0; sdr < 5; ++sdr)
            EXPECT_EQ(pipeTable(size, sdr).inside, inside[size][sdr]) << size << ", " << sdr;
}

TEST(PipeTable, EndsWithASubscriptOutOfRange) {
    expectError(9, [] { pipeTable(4, 0); });
    expectError(9, [] { pipeTable(0, 5); });
    expectError(9, [] { pipeTable(-1, 0); });
    expectError(9, [] { shapeFit(3); });
}

TEST(BoreResistance, AgreesWithAHandCalculation) {
    // base 5/1.9 = 2.631579; S = 17.44268 * base^-0.605154 = 9.712199
    // 1/(9.712199*0.85) + 0.075 = 0.196133
    EXPECT_NEAR(boreResistanceOf({5, 0.85}, 1.9, 0, shapeFit(1), 0.075), 0.196133, 1e-6);
    // along the outer wall S = 8.058206, close together 15.172123
    EXPECT_NEAR(boreResistanceOf({5, 0.85}, 1.9, 0, shapeFit(0), 0.075), 0.220997, 1e-6);
    EXPECT_NEAR(boreResistanceOf({5, 0.85}, 1.9, 0, shapeFit(2), 0.075), 0.152542, 1e-6);
    // two U-tubes in 6 in: base 6/(1.05*1.414214) = 4.040610, S = 7.492373
    EXPECT_NEAR(boreResistanceOf({6, 0.85}, 1.05, 1, shapeFit(1), 0.075), 0.232022, 1e-6);
}

TEST(BoreResistance, InMetricUnitsIsShownTimesTheConductivityFactor) {
    const double shown = boreResistanceOf({5, 0.85}, 1.9, 0, shapeFit(1), 0.075);
    EXPECT_EQ(formatNumber(shown * conductivityToEnglish, "###0.000"), "0.113");  // 0.1133237
}

TEST(BoreResistance, IsZeroWithoutADimension) {
    EXPECT_EQ(boreResistanceOf({5, 0.85}, 0, 0, shapeFit(1), 0.075), 0);
    EXPECT_EQ(boreResistanceOf({0, 0.85}, 1.9, 0, shapeFit(1), 0.075), 0);
    EXPECT_EQ(boreResistanceOf({5, 0}, 1.9, 0, shapeFit(1), 0.075), 0);
    EXPECT_EQ(boreResistanceOf({5, 0.85}, -1.9, 0, shapeFit(1), 0.075), 0);
}

TEST(BoreResistance, OfPipesThatDoNotFitIsZero) {
    EXPECT_EQ(boreResistanceOf({5, 0.85}, 1.9, 1, shapeFit(1), 0.075), 0);
    EXPECT_EQ(boreResistanceOf({3.7, 0.85}, 1.9, 0, shapeFit(1), 0.075), 0);
}

TEST(PipeFit, RefusesADoubleUTubeOfThreeHalvesInAFiveInchBore) {
    EXPECT_NEAR(pipeSpan(1.9, 1), 5.374, 1e-3);
    EXPECT_FALSE(pipesFit(1.9, 1, 5));
    EXPECT_TRUE(pipesFit(1.9, 0, 5));
}

TEST(PipeFit, OfPipesThatJustTouchTheWallIsRefusedThoughTheirResistanceIsFound) {
    const double outside = (5 + 0.05) / 2;
    ASSERT_EQ(pipeSpan(outside, 0), 5 + 0.05);
    EXPECT_FALSE(pipesFit(outside, 0, 5));
    EXPECT_GT(boreResistanceOf({5, 0.85}, outside, 0, shapeFit(1), 0.075), 0.075);
}

TEST(PipeFit, MakesABoreAsWideAsThePipesOrFiveInches) {
    EXPECT_NEAR(boreDiameterFor(1.9, 0), 3.8, 1e-12);
    EXPECT_NEAR(boreDiameterFor(1.9, 1), 5.374011, 1e-6);
    EXPECT_EQ(boreDiameterFor(5, 0), 10);
    EXPECT_EQ(boreDiameterFor(5.1, 0), 5);
}

TEST(PipeFit, OfANegativeConfigurationIsAnInvalidCall) {
    expectError(5, [] { pipeSpan(1.9, -2); });
}

}  // namespace
}  // namespace varnholt::modCalculations
