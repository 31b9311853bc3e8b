// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/settling.h"

#include <gtest/gtest.h>

#include <cmath>

#include "expect_error.h"
#include "settling_terms.h"

namespace varnholt::modCalculations {
namespace {

/// The penalty is c/L for every length L, with c from the site alone, and the length is
/// N/(D - c/L) = N L/(D L - c). Passes therefore approach (N + c)/D by the factor -c/N each when
/// that is below 1, swing for ever when it is 1, and fall to nothing above. Each test chooses N and
/// D by loads and temperatures: with resistances of 0 but the bore's 1, N is 1000 times the load.
constexpr PenaltySite nineBores{{3, 3, 20}, {0, 0, 4, 4, 1}, {1.3, 0.75}, 10};

TEST(Settling, FindsLengthsThatAgreeWithTheirPenalties) {
    const double c = penaltyTimesLength(nineBores, -5);
    const auto result = settleBoreLengths(settlingTerms(-5, 50, 30), nineBores, {1500, 2500});
    EXPECT_FALSE(result.failed);
    EXPECT_NEAR(result.boreLength[cooling], (-50000 + c) / -25, 0.1);
    EXPECT_NEAR(result.boreLength[heating], (30000 + c) / 10, 0.1);
    EXPECT_NEAR(result.temperaturePenalty[cooling], c / result.boreLength[cooling], 1e-2);
    EXPECT_LT(result.iterations, 10);
}

TEST(Settling, MeansThatNeitherLengthChangedByMoreThanAThousandth) {
    const auto result = settleBoreLengths(settlingTerms(-5, 50, 30), nineBores, {1500, 2500});
    for (Mode m : modes)
        EXPECT_LE(std::abs(result.boreLength[m] / result.previousBoreLength[m] - 1), 0.001);
}

TEST(Settling, OfLengthsThatArriveOnTheFirstPassTakesOnePass) {
    const double c = penaltyTimesLength(nineBores, -5);
    const auto result = settleBoreLengths(settlingTerms(-5, 50, 30), nineBores,
                                          {(-50000 + c) / -25, (30000 + c) / 10});
    EXPECT_EQ(result.iterations, 1);
}

TEST(Settling, OfACoolingOnlyBuildingEndsWithDivisionByZero) {
    expectError(11, [] { settleBoreLengths(settlingTerms(-5, 50, 0), nineBores, {2000, 0}); });
}

TEST(Settling, OfAHeatingOnlyBuildingEndsWithDivisionByZero) {
    expectError(11, [] { settleBoreLengths(settlingTerms(5, 0, 30), nineBores, {0, 3000}); });
}

TEST(Settling, GivesUpHeatingAfterAHundredPassesAndClearsBothModes) {
    const double c = penaltyTimesLength(nineBores, 5);
    const LengthTerms terms = settlingTerms(5, 500, c / 1000 * 1.0000001);
    const auto result = settleBoreLengths(terms, nineBores, {20000, 3 * 2 * c / 10});
    EXPECT_EQ(result.iterations, 100);
    EXPECT_TRUE(result.failed);
    EXPECT_EQ(result.nonPositive, (ByMode<bool>{false, false}));
    EXPECT_EQ(result.boreLength, (ByMode<double>{0, 0}));
    EXPECT_EQ(result.temperaturePenalty, (ByMode<double>{0, 0}));
}

TEST(Settling, LetsCoolingRunBeyondAHundredPasses) {
    const double c = penaltyTimesLength(nineBores, -5);  // negative, as is cooling's N
    const LengthTerms terms = settlingTerms(-5, -c / 1000 * 1.02, 30);
    const double fixed = (1.02 * c + c) / -25;
    const auto result = settleBoreLengths(terms, nineBores, {3 * fixed, 3000});
    EXPECT_GT(result.iterations, 100);
    EXPECT_FALSE(result.failed);
    EXPECT_NEAR(result.boreLength[cooling] / fixed, 1, 0.001);
    EXPECT_GT(result.boreLength[heating], 0);
}

TEST(Settling, OfACoolingThatSwingsForEverEndsWithAnOverflow) {
    const double c = penaltyTimesLength(nineBores, -5);
    const LengthTerms terms = settlingTerms(-5, -c / 1000, 30);
    expectError(6, [&] { settleBoreLengths(terms, nineBores, {3 * 2 * c / -25, 3000}); });
}

TEST(Settling, ClearsTheModeWithoutASolutionAndKeepsTheOther) {
    LengthTerms terms = settlingTerms(-5, 50, 30);
    terms.inletTemp[heating] = terms.outletTemp[heating] = 75;
    const auto result = settleBoreLengths(terms, nineBores, {1500, 2500});
    EXPECT_FALSE(result.failed);
    EXPECT_EQ(result.nonPositive, (ByMode<bool>{false, true}));
    EXPECT_EQ(result.boreLength[heating], 0);
    EXPECT_EQ(result.temperaturePenalty[heating], 0);
    EXPECT_GT(result.boreLength[cooling], 0);
    EXPECT_NE(result.temperaturePenalty[cooling], 0);
}

TEST(Settling, FailsWhenNeitherModeHasASolution) {
    LengthTerms terms = settlingTerms(-5, 50, 30);
    terms.groundTemp = {100, 40};
    const auto result = settleBoreLengths(terms, nineBores, {1500, 2500});
    EXPECT_TRUE(result.failed);
    EXPECT_LT(result.iterations, 100);
    EXPECT_EQ(result.boreLength, (ByMode<double>{0, 0}));
    EXPECT_EQ(result.temperaturePenalty, (ByMode<double>{0, 0}));
}

TEST(Settling, NeverForgetsThatALengthWasNone) {
    // Heating starts at next to nothing, is set to 1.0E-6, and then grows to a sound length.
    const double c = penaltyTimesLength(nineBores, -1e-6);
    const LengthTerms terms = settlingTerms(-1e-6, 50, 30);
    ASSERT_GT(30000 * 1e-6 / -c, 1);
    const auto result = settleBoreLengths(terms, nineBores, {2000, 1e-10});
    EXPECT_GT(result.previousBoreLength[heating], 1000);
    EXPECT_EQ(result.nonPositive, (ByMode<bool>{false, true}));
    EXPECT_EQ(result.boreLength[heating], 0);
    EXPECT_GT(result.boreLength[cooling], 0);
}

TEST(Settling, CountsALengthOfExactlyOneFootAsNone) {
    PenaltySite alone = nineBores;
    alone.neighbours = countNeighbours(1, 1);
    EXPECT_TRUE(
        settleBoreLengths(settlingTerms(0, 50, 0.01), alone, {2000, 1}).nonPositive[heating]);
    EXPECT_FALSE(
        settleBoreLengths(settlingTerms(0, 50, 0.0101), alone, {2000, 1}).nonPositive[heating]);
}

}  // namespace
}  // namespace varnholt::modCalculations
