// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>

#include "design/modCalculations/settling.h"
#include "expect_error.h"
#include "settling_terms.h"

namespace varnholt::modCalculations {
namespace {

/// Three trenches 10 ft apart. The penalty is c/L for every length L, with c from the site alone,
/// and the length is N/(D - c/L): passes approach (N + c)/D by the factor -c/N each when that is
/// below 1, and swing for ever when it is 1. With resistances of 0 but the pipe's 1, N is 1000
/// times the load, negative in cooling.
const PenaltySite threeTrenches{{3, 1, 10}, countNeighbours(3, 1), {1.3, 0.75}, 10};
const PenaltySite oneTrench{{1, 1, 10}, countNeighbours(1, 1), {1.3, 0.75}, 10};

void expectNone(const SettledLengths& result, Mode m) {
    EXPECT_EQ(result.boreLength[m], 0);
    EXPECT_EQ(result.temperaturePenalty[m], 0);
}

TEST(TrenchSettling, FindsLengthsThatAgreeWithTheirPenalties) {
    const double c = penaltyTimesLength(threeTrenches, -2);
    const auto result = settleTrenchLengths(settlingTerms(-2, 50, 30), threeTrenches, {1500, 2500});
    EXPECT_FALSE(result.failed);
    EXPECT_NEAR(result.boreLength[cooling], (-50000 + c) / -25, 0.2);
    EXPECT_NEAR(result.boreLength[heating], (30000 + c) / 10, 0.2);
    EXPECT_NEAR(result.temperaturePenalty[cooling], c / result.boreLength[cooling], 1e-2);
    EXPECT_LT(result.iterations, 20);
}

TEST(TrenchSettling, OfBothModesInTheFirstPassIsNoFailure) {
    const auto result = settleTrenchLengths(settlingTerms(-2, 50, 30), oneTrench, {2000, 3000});
    EXPECT_EQ(result.iterations, 1);
    EXPECT_FALSE(result.failed);
}

TEST(TrenchSettling, MeasuresTheChangeByTheNewLength) {
    // The one trench has its lengths of 2000 and 3000 ft at once. 2001.9 ft lie 0.00095 of 2000 ft
    // away; 1998.001 ft 0.0009995 of 2000 ft, though 0.0010005 of themselves.
    EXPECT_EQ(settleTrenchLengths(settlingTerms(0, 50, 30), oneTrench, {2001.9, 3000}).iterations,
              1);
    EXPECT_EQ(settleTrenchLengths(settlingTerms(0, 50, 30), oneTrench, {1998.001, 3000}).iterations,
              1);
    EXPECT_EQ(settleTrenchLengths(settlingTerms(0, 50, 30), oneTrench, {1997.9, 3000}).iterations,
              2);
    EXPECT_EQ(settleTrenchLengths(settlingTerms(0, 50, 30), oneTrench, {2000, 3003.1}).iterations,
              2);
}

TEST(TrenchSettling, OfABuildingWithLoadsInOneModeGivesThatModesLength) {
    const double c = penaltyTimesLength(threeTrenches, -2);
    const auto cool = settleTrenchLengths(settlingTerms(-2, 50, 0), threeTrenches, {1500, 0});
    EXPECT_NEAR(cool.boreLength[cooling], (-50000 + c) / -25, 0.2);
    EXPECT_FALSE(cool.failed);
    expectNone(cool, heating);
    const auto heat = settleTrenchLengths(settlingTerms(2, 0, 30), threeTrenches, {0, 3500});
    EXPECT_NEAR(heat.boreLength[heating], (30000 - c) / 10, 0.2);
    EXPECT_FALSE(heat.failed);
    expectNone(heat, cooling);
}

TEST(TrenchSettling, OfAModeWithoutLoadTakesASecondPass) {
    // Its length is set to 1.0E-6 after the first, and compared with that after the second.
    EXPECT_EQ(settleTrenchLengths(settlingTerms(0, 50, 0), oneTrench, {2000, 0}).iterations, 2);
}

TEST(TrenchSettling, GivesUpEitherModeAfterAHundredPassesAndClearsBoth) {
    const double c = penaltyTimesLength(threeTrenches, 5);
    const auto heat = settleTrenchLengths(settlingTerms(5, 500, c / 1000 * 1.0000001),
                                          threeTrenches, {20000, 3 * 2 * c / 10});
    EXPECT_EQ(heat.nonPositive, (ByMode<bool>{false, false}));
    const auto cool = settleTrenchLengths(settlingTerms(-5, c / 1000 * 1.0000001, 500),
                                          threeTrenches, {3 * 2 * c / 25, 50000});
    EXPECT_EQ(cool.nonPositive, (ByMode<bool>{false, false}));
    for (const SettledLengths& result : {heat, cool}) {
        EXPECT_EQ(result.iterations, 100);
        EXPECT_TRUE(result.failed);
        for (Mode m : modes) expectNone(result, m);
    }
}

TEST(TrenchSettling, FailsWhenNeitherModeHasASolution) {
    LengthTerms terms = settlingTerms(-2, 50, 30);
    terms.groundTemp = {100, 40};
    const auto result = settleTrenchLengths(terms, threeTrenches, {1500, 2500});
    EXPECT_TRUE(result.failed);
    EXPECT_LT(result.iterations, 100);
    for (Mode m : modes) expectNone(result, m);
}

TEST(TrenchSettling, ClearsTheModeWithoutASolutionSilentlyAndKeepsTheOther) {
    LengthTerms terms = settlingTerms(-2, 50, 30);
    terms.groundTemp = {60, 40};
    const auto result = settleTrenchLengths(terms, threeTrenches, {1500, 2500});
    EXPECT_FALSE(result.failed);
    EXPECT_EQ(result.nonPositive, (ByMode<bool>{false, true}));
    expectNone(result, heating);
    EXPECT_GT(result.boreLength[cooling], 0);
    EXPECT_NE(result.temperaturePenalty[cooling], 0);
}

TEST(TrenchSettling, CountsALengthOfExactlyOneFootAsNone) {
    // 10 Btu/hr over 10 degF, and a little more
    const auto nonPositive = [](double load) {
        return settleTrenchLengths(settlingTerms(0, 50, load), oneTrench, {2000, 1})
            .nonPositive[heating];
    };
    EXPECT_TRUE(nonPositive(0.01));
    EXPECT_FALSE(nonPositive(0.0101));
}

TEST(TrenchSettling, ClearsALengthThatIsPositiveOnTheWrongSide) {
    // The year's heat into the ground outweighs the heating peak, and the ground is colder than the
    // fluid: (-100*1 + 30)*1000/(40 - 50) = 7000 ft that would heat the ground.
    LengthTerms terms = settlingTerms(-100, 500, 30);
    terms.groundResistance.annual = 1;
    terms.groundTemp = {60, 40};
    const auto heat = settleTrenchLengths(terms, oneTrench, {24000, 7000});
    EXPECT_EQ(heat.previousBoreLength[heating], 7000);
    EXPECT_EQ(heat.nonPositive, (ByMode<bool>{false, false}));
    EXPECT_FALSE(heat.failed);
    expectNone(heat, heating);
    EXPECT_EQ(heat.boreLength[cooling], 24000);
    // and the other way round: (100*1 - 50)*1000/(100 - 85) = 3333 ft
    terms = settlingTerms(100, 50, 500);
    terms.groundResistance.annual = 1;
    terms.groundTemp = {100, 60};
    const auto cool = settleTrenchLengths(terms, oneTrench, {50000 / 15.0, 60000});
    EXPECT_EQ(cool.nonPositive, (ByMode<bool>{false, false}));
    expectNone(cool, cooling);
    EXPECT_EQ(cool.boreLength[heating], 60000);
}

TEST(TrenchSettling, LooksForTheWrongSideWithThePenaltyOfTheLastPass) {
    // The ground is 2 degF colder than the fluid to be heated, but the year's cooling warms the
    // site. Without its penalty the mode would be on the wrong side.
    LengthTerms terms = settlingTerms(-60, 500, 30);
    terms.groundTemp = {60, 48};
    const double c = penaltyTimesLength(threeTrenches, -60);
    ASSERT_LT(c, -30000);
    const ByMode<double> settled{(-500000 + c) / -25, (30000 + c) / -2};
    const auto result = settleTrenchLengths(terms, threeTrenches, settled);
    EXPECT_LT(result.temperaturePenalty[heating], -2);
    for (Mode m : modes) EXPECT_NEAR(result.boreLength[m] / settled[m], 1, 1e-9);
}

TEST(TrenchSettling, OfFluidAndGroundOfOneTemperatureIsADivisionByZero) {
    LengthTerms terms = settlingTerms(0, 50, 30);
    terms.groundTemp = {60, 50};
    expectError(11, [&] { settleTrenchLengths(terms, oneTrench, {2000, 3000}); });
}

}  // namespace
}  // namespace varnholt::modCalculations
