// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/bore_length.h"

#include <gtest/gtest.h>

#include "design/modCalculations/ground_load.h"
#include "expect_error.h"
#include "round_terms.h"

namespace varnholt::modCalculations {
namespace {

TEST(PeakGroundLoad, RejectsThePumpsPowerInCoolingAndSavesItInHeating) {
    EXPECT_NEAR(peakGroundLoad(cooling, 100, 10), -134.12, 1e-12);
    EXPECT_NEAR(peakGroundLoad(heating, 100, 10), 65.88, 1e-12);
}

TEST(BoreLength, AgreesWithAHandCalculation) {
    // cooling: -2*0.3 - 134.12*(0.2 + 0.5*0.2 + 0.1*1.04) = -0.6 - 54.18448 = -54.78448
    //          60 - 90 + 3 = -27;  54784.48/27 = 2029.05481
    // heating: -0.6 + 65.88*(0.2 + 0.25*0.2 + 0.104) = -0.6 + 23.32152 = 22.72152
    //          60 - 47 - 3 = 10;   2272.152
    const auto length = calcBoreLengths(roundTerms(), {-3, 3});
    EXPECT_NEAR(length[cooling], 2029.05481, 1e-5);
    EXPECT_NEAR(length[heating], 2272.152, 1e-9);
}

TEST(BoreLength, OfAModeWithoutPeakLoadIsZero) {
    LengthTerms terms = roundTerms();
    terms.peakLoad[heating] = 0;
    const auto length = calcBoreLengths(terms, {-3, 3});
    EXPECT_GT(length[cooling], 0);
    EXPECT_EQ(length[heating], 0);
}

TEST(BoreLength, IsNegativeWithTheFluidOnTheWrongSideOfTheGround) {
    LengthTerms terms = roundTerms();
    terms.inletTemp[heating] = 70;
    terms.outletTemp[heating] = 64;
    EXPECT_LT(calcBoreLengths(terms, {-3, 3})[heating], 0);
}

TEST(BoreLength, BetweenEqualTemperaturesIsADivisionByZero) {
    LengthTerms terms = roundTerms();
    expectError(11, [&] { calcBoreLengths(terms, {-30, 3}); });
}

TEST(BoreLength, BeyondAllDoublesIsAnOverflow) {
    LengthTerms terms = roundTerms();
    terms.boreResistance = 1e308;
    expectError(6, [&] { calcBoreLengths(terms, {-3, 3}); });
}

TEST(BoreLength, OfABuildingWithoutDaysHasOnlyAnnualAndShortTermGround) {
    LengthTerms terms = roundTerms();
    terms.partLoadFactor = {0, 0};
    const auto with = calcBoreLengths(terms, {-3, 3});
    terms.groundResistance.monthly = 0;
    EXPECT_EQ(calcBoreLengths(terms, {-3, 3}), with);
}

}  // namespace
}  // namespace varnholt::modCalculations
