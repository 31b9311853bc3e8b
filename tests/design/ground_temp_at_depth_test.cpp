// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/ground_temp_at_depth.h"

#include <gtest/gtest.h>

#include "expect_error.h"

namespace varnholt::modCalculations {
namespace {

// 30 July and 30 January.
constexpr GroundSwing swing{54, 20, {212, 30}};

TEST(GroundTempAtDepth, AgreesWithAHandCalculation) {
    // damping and lag: 5 sqrt(3.141592653/(365*0.96)) = 0.473438; exp(-0.473438) = 0.622857
    // cooling: 2 pi/365 * 185 - 0.473438 = 2.711190, cosine -0.908798: 58 + 24 * 0.566051
    // heating: cosine of -0.473438 = 0.890006: 58 - 24 * 0.554347
    const ByMode<double> ground = groundTempAtDepth(5, 0.96, {58, 24, {205, 20}});
    EXPECT_NEAR(ground[cooling], 71.585236, 1e-6);
    EXPECT_NEAR(ground[heating], 44.695676, 1e-6);
}

TEST(GroundTempAtDepth, WithoutDiffusivityIsTheMeanInBothModes) {
    EXPECT_EQ(groundTempAtDepth(4, 0, swing), (ByMode<double>{54, 54}));
    EXPECT_EQ(groundTempAtDepth(0, 0, swing), (ByMode<double>{54, 54}));
}

TEST(GroundTempAtDepth, AtTheSurfaceHasTheWholeSwing) {
    const ByMode<double> ground = groundTempAtDepth(0, 0.6, swing);
    EXPECT_EQ(ground[heating], 54.0 - 20.0);
    // 54 - 20 cos(2 pi * 182/365) = 54 + 20 * 0.999963
    EXPECT_NEAR(ground[cooling], 73.999259, 1e-6);
}

TEST(GroundTempAtDepth, GoesToTheMeanWithTheDepth) {
    const ByMode<double> ground = groundTempAtDepth(100, 0.6, swing);
    EXPECT_NEAR(ground[cooling], 54, 1e-3);  // exp(-100 * 0.119773) = 6.3e-6
    EXPECT_NEAR(ground[heating], 54, 1e-3);
}

TEST(GroundTempAtDepth, OfOneDayForBothExtremesIsTheSameInBothModes) {
    const ByMode<double> ground = groundTempAtDepth(6, 0.6, {62, 22, {34, 34}});
    EXPECT_EQ(ground[cooling], ground[heating]);
}

TEST(GroundTempAtDepth, OfANegativeDiffusivityIsAnInvalidArgument) {
    expectError(5, [] { groundTempAtDepth(4, -0.6, swing); });
}

TEST(GroundTempAtDepth, FarAboveTheGroundOverflows) {
    expectError(6, [] { groundTempAtDepth(-1e5, 0.6, swing); });
}

}  // namespace
}  // namespace varnholt::modCalculations
