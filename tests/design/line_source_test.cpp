// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/line_source.h"

#include <gtest/gtest.h>

namespace varnholt::modCalculations {
namespace {

TEST(LineSource, AtOrBehindTheSourceIsZero) {
    EXPECT_EQ(lineSourceI(0), 0);
    EXPECT_EQ(lineSourceI(-1), 0);
}

TEST(LineSource, AgreesWithTheIntegralWhereItsFiguresAreThePublishedOnes) {
    // The integral of exp(-b^2)/b from X on, by Simpson's rule with 400000 steps.
    EXPECT_NEAR(lineSourceI(0.1), 2.018965, 2e-5);
    EXPECT_NEAR(lineSourceI(0.6), 0.387231, 3e-5);
    EXPECT_NEAR(lineSourceI(1), 0.109692, 1e-5);
    EXPECT_NEAR(lineSourceI(2), 0.00188968, 1e-8);
}

TEST(LineSource, HalvesOnlyTheFirstGroupNearTheSource) {
    // u = 0.25: (0.24999798 + 1.38629436 - 0.57721566)/2 - 0.01561941 + 0.00086250 - 0.00003813
    //           + 0.00000105 = 0.51474436; the integral itself is 0.522141
    EXPECT_NEAR(lineSourceI(0.5), 0.51474436, 1e-8);
}

TEST(LineSource, TakesTheSeriesAtOneHalfAndTheFractionBeyond) {
    EXPECT_LT(lineSourceI(0.5), lineSourceI(0.500001));
    EXPECT_NEAR(lineSourceI(0.500001), 0.523080, 1e-6);
}

TEST(LineSource, KeepsItsOwnTwoCoefficients) {
    // u = 1: 36.5377284 / (2 e) / 61.2744284, where the published ones give 0.109692
    EXPECT_NEAR(lineSourceI(1), 36.5377284 / (2 * 2.718281828459045) / 61.2744284, 1e-9);
}

TEST(LineSource, VeryFarAwayIsZero) { EXPECT_EQ(lineSourceI(200), 0); }

}  // namespace
}  // namespace varnholt::modCalculations
