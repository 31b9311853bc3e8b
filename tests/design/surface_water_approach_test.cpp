// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "design/modCalculations/approach_temp.h"
#include "expect_error.h"

namespace varnholt::modCalculations {
namespace {

// One header in the water with a pickup of K times the difference between water and fluid. The
// fluid at the loops goes from t to inlet - K (water - t), and so the approach of pass n is
//
//     a(n) = e - K d (1 - K^n)/(1 - K),  e = inlet - loop water,  d = header water - inlet
//
// which is e - n d for K = 1.
constexpr double pondFlow = 10;

/// @param k           pickup for each degF of difference
/// @param approach    inlet less loop water, degF
/// @param difference  header water less inlet, degF
ApproachTerms headerInWater(double k, const ByMode<double>& approach,
                            const ByMode<double>& difference) {
    ApproachTerms terms;
    terms.inletTemp = {85, 40};
    terms.systemFlow = {pondFlow, pondFlow};
    terms.headers.primary = {1, 0.01, 0, k * pondFlow / 0.01, 0, {}, {}};
    for (const Mode m : modes) {
        terms.loopWaterTemp[m] = terms.inletTemp[m] - approach[m];
        terms.headers.primary.waterTemp[m] = terms.inletTemp[m] + difference[m];
    }
    return terms;
}

TEST(ApproachTemp, WithoutHeaderLengthIsInletLessWaterAfterTwoPasses) {
    const Approach approach = calculateApproach(headerInWater(0, {10, -5}, {-10, 5}));
    EXPECT_EQ(approach.approachTemp, (ByMode<double>{10, -5}));
    EXPECT_EQ(approach.passes, (ByMode<std::int16_t>{2, 2}));
    EXPECT_EQ(approach.unsettled, (ByMode<bool>{false, false}));
    EXPECT_EQ(approach.headerHeatPickup[cooling].submerged, 0);
    EXPECT_EQ(approach.headerHeatPickup[cooling].buried, 0);
}

TEST(ApproachTemp, NearTheFirstGuessIsFoundInOnePass) {
    // A change of no more than 0.05 of 100, and of 0.05 of -60.
    const Approach near = calculateApproach(headerInWater(0, {95, -63}, {0, 0}));
    EXPECT_EQ(near.passes, (ByMode<std::int16_t>{1, 1}));
    EXPECT_EQ(near.approachTemp, (ByMode<double>{95, -63}));
    const Approach off = calculateApproach(headerInWater(0, {94.9, -63.1}, {0, 0}));
    EXPECT_EQ(off.passes, (ByMode<std::int16_t>{2, 2}));
}

TEST(ApproachTemp, SettlesWhenItChangesByNoMoreThanATwentieth) {
    // K = 0.5, e = 10, d = -4: a = 12, 13, 13.5; changes of 1/12 and 0.5/13 = 0.038
    // heating, e = -8, d = 4: a = -10, -11, -11.5, -11.75; 1/10, 0.5/11 = 0.045
    const Approach approach = calculateApproach(headerInWater(0.5, {10, -8}, {-4, 4}));
    EXPECT_NEAR(approach.approachTemp[cooling], 13.5, 1e-9);
    EXPECT_NEAR(approach.approachTemp[heating], -11.5, 1e-9);
    EXPECT_EQ(approach.passes, (ByMode<std::int16_t>{3, 3}));
    EXPECT_EQ(approach.unsettled, (ByMode<bool>{false, false}));
    // the last pass starts from fluid at 85 - (-3) = 88: 0.5 (81 - 88)
    EXPECT_NEAR(approach.headerHeatPickup[cooling].submerged, -3.5, 1e-9);
}

TEST(ApproachTemp, ThatDoesNotSettleInFivePassesTakesTheHeadersAtTheInletTemperature) {
    // K = 1.5, e = 10, d = -4: a(5) = 10 + 6 (1 - 1.5^5)/(-0.5) = 89.125, far from a(4) = 58.75;
    // at the inlet temperature e - K d = 16. In heating the water is the inlet's: nothing happens.
    const Approach approach = calculateApproach(headerInWater(1.5, {10, -8}, {-4, 0}));
    EXPECT_EQ(approach.passes, (ByMode<std::int16_t>{5, 2}));
    EXPECT_EQ(approach.unsettled, (ByMode<bool>{true, false}));
    EXPECT_NEAR(approach.approachTemp[cooling], 16, 1e-9);
    EXPECT_NEAR(approach.headerHeatPickup[cooling].submerged, -6, 1e-9);
    EXPECT_EQ(approach.approachTemp[heating], -8);
}

TEST(ApproachTemp, ThatSettlesInTheFifthPassCountsAsUnsettledAllTheSame) {
    // K = 0.65, e = 5, d = -4: a = 7.6, 9.29, 10.3885, 11.10253, 11.56664, with changes of 0.222,
    // 0.118, 0.069 and 0.042
    const Approach approach = calculateApproach(headerInWater(0.65, {5, -8}, {-4, 0}));
    EXPECT_EQ(approach.passes[cooling], 5);
    EXPECT_TRUE(approach.unsettled[cooling]);
    EXPECT_NEAR(approach.approachTemp[cooling], 7.6, 1e-9);  // e - K d, not 11.56664
}

TEST(ApproachTemp, ThatSettlesInTheFourthPassIsSettled) {
    // K = 0.6, e = 6, d = -4: a = 8.4, 9.84, 10.704, 11.2224, with changes of 0.171, 0.088 and
    // 0.048
    const Approach approach = calculateApproach(headerInWater(0.6, {6, -8}, {-4, 0}));
    EXPECT_EQ(approach.passes[cooling], 4);
    EXPECT_FALSE(approach.unsettled[cooling]);
    EXPECT_NEAR(approach.approachTemp[cooling], 11.2224, 1e-9);
}

TEST(ApproachTemp, OfExactlyZeroIsADivisionByZeroAtTheNextComparison) {
    expectError(11, [] { calculateApproach(headerInWater(0, {0, -5}, {0, 0})); });
    expectError(11, [] { calculateApproach(headerInWater(0, {10, 0}, {0, 0})); });
}

TEST(ApproachTemp, OfZeroBeforeTheLastPassIsComparedAfterIt) {
    // K = 1, e = 8, d = 2: a = 6, 4, 2, 0, -2. The fifth pass compares with 0, though no further
    // pass could follow.
    expectError(11, [] { calculateApproach(headerInWater(1, {8, -8}, {2, 0})); });
}

TEST(ApproachTemp, OfZeroInTheFifthPassIsNotComparedWith) {
    // K = 1, e = 10, d = 2: a = 8, 6, 4, 2, 0; unsettled, and e - d at the inlet temperature.
    const Approach approach = calculateApproach(headerInWater(1, {10, -8}, {2, 0}));
    EXPECT_TRUE(approach.unsettled[cooling]);
    EXPECT_EQ(approach.approachTemp[cooling], 8);
}

TEST(ApproachTemp, OfAModeWithoutFlowKnowsNoHeaders) {
    ApproachTerms terms = headerInWater(0.5, {10, -8}, {-4, 4});
    terms.systemFlow[heating] = 0;
    const Approach approach = calculateApproach(terms);
    EXPECT_NEAR(approach.approachTemp[cooling], 13.5, 1e-9);
    EXPECT_EQ(approach.approachTemp[heating], -8);
    EXPECT_EQ(approach.headerHeatPickup[heating], HeaderPickup{});
}

TEST(ApproachTemp, TakesTheBuriedHeadersFromTheGroundOfItsMode) {
    ApproachTerms terms = headerInWater(0, {10, -8}, {0, 0});
    terms.headers.primary.soilFactor = 0.002;
    terms.headers.primary.lengthInSoil = 50;
    terms.groundTempAtDepth = {65, 48};
    // K = 0.01; cooling, d = -20: 10.2, 10.202; heating, d = 8: -8.08, -8.0808
    const Approach approach = calculateApproach(terms);
    EXPECT_NEAR(approach.approachTemp[cooling], 10.202, 1e-9);
    EXPECT_NEAR(approach.approachTemp[heating], -8.0808, 1e-9);
    EXPECT_NEAR(approach.headerHeatPickup[cooling].buried, -0.202, 1e-9);
}

}  // namespace
}  // namespace varnholt::modCalculations
