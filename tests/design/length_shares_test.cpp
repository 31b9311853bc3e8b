// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/length_shares.h"

#include <gtest/gtest.h>

#include "round_terms.h"

namespace varnholt::modCalculations {
namespace {

TEST(LengthShares, AgreeWithAHandCalculationInCooling) {
    // 60 - 90 = -30 degF; the ground takes 100 + 34.12 = 134.12 MBtu/hr
    // long term 2000*0.3/30 = 20; month 134120*0.5*0.2/30 = 447.066667;
    // pulse 134120*0.1*1.04/30 = 464.949333; bore 134120*0.2/30 = 894.133333
    // with a penalty of -3 degF the length is 54784.48/27 = 2029.054815, without it
    // 54784.48/30 = 1826.149333, so the penalty adds 202.905481
    const LengthShares cool = lengthShares(roundTerms(), {2029.054815, 0})[cooling];
    EXPECT_NEAR(cool.longTerm, 20, 1e-9);
    EXPECT_NEAR(cool.monthly, 447.066667, 1e-6);
    EXPECT_NEAR(cool.shortTerm, 464.949333, 1e-6);
    EXPECT_NEAR(cool.boreResistance, 894.133333, 1e-6);
    EXPECT_NEAR(cool.penalty, 202.905481, 1e-5);
    EXPECT_NEAR(cool.total(), 2029.054815, 1e-9);
}

TEST(LengthShares, ReachBelowZeroWhereAHeatRelievesTheMode) {
    // 60 - 47 = 13 degF; the ground gives 100 - 34.12 = 65.88 MBtu/hr
    // long term -2000*0.3/13 = -46.153846; month 65880*0.25*0.2/13 = 253.384615;
    // pulse 65880*0.1*1.04/13 = 527.04; bore 65880*0.2/13 = 1013.538462
    // together 1747.809231; with a penalty of -3 degF, 16 degF in all: 22721.52/16 = 1420.095,
    // so the warmer ground saves 327.714231
    const LengthShares heat = lengthShares(roundTerms(), {0, 1420.095})[heating];
    EXPECT_NEAR(heat.longTerm, -46.153846, 1e-6);
    EXPECT_NEAR(heat.monthly, 253.384615, 1e-6);
    EXPECT_NEAR(heat.shortTerm, 527.04, 1e-9);
    EXPECT_NEAR(heat.boreResistance, 1013.538462, 1e-6);
    EXPECT_NEAR(heat.penalty, -327.714231, 1e-6);
    EXPECT_NEAR(heat.total(), 1420.095, 1e-9);
}

TEST(LengthShares, OfTheEquationsOwnLengthLeaveThePenaltyNothingWithoutADrift) {
    const LengthTerms terms = roundTerms();
    const auto shares = lengthShares(terms, calcBoreLengths(terms, {0, 0}));
    for (const Mode mode : modes) EXPECT_NEAR(shares[mode].penalty, 0, 1e-9);
}

TEST(LengthShares, OfAModeWithoutALengthAreNone) {
    const auto shares = lengthShares(roundTerms(), {2029.05, 0});
    EXPECT_FALSE(shares[cooling].empty());
    EXPECT_TRUE(shares[heating].empty());
    EXPECT_TRUE(lengthShares(roundTerms(), {-100, 5})[cooling].empty());
}

TEST(LengthShares, AreNoneWhereTheFluidIsAsWarmAsTheUndisturbedGround) {
    LengthTerms terms = roundTerms();
    terms.groundTemp[cooling] = 90;
    EXPECT_TRUE(lengthShares(terms, {2029.05, 1420})[cooling].empty());
    EXPECT_FALSE(lengthShares(terms, {2029.05, 1420})[heating].empty());
}

}  // namespace
}  // namespace varnholt::modCalculations
