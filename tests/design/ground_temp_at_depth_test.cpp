// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/ground_temp_at_depth.h"

#include <gtest/gtest.h>

#include <cmath>

#include "expect_error.h"

namespace varnholt::modCalculations {
namespace {

// 30 July and 30 January.
constexpr GroundSwing swing{54, 20, {212, 30}};
// 21 July and 19 January.
constexpr GroundSwing warmerSwing{62, 20, {202, 19}};

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

TEST(GroundTempAtDepth, AgreesWithASecondRouteAtEveryDepth) {
    const struct {
        double depth;
        ByMode<double> temperature;
    } cases[]{{0, {81.999259182, 42}},
              {3, {75.799323992, 48.239596163}},
              {6, {70.472038931, 53.581906324}},
              {12, {63.601915916, 60.443700545}},
              {100, {61.999872045, 62.000124280}}};
    for (const auto& [depth, expected] : cases) {
        SCOPED_TRACE(depth);
        const ByMode<double> temperature = groundTempAtDepth(depth, 0.75, warmerSwing);
        for (Mode m : modes) EXPECT_NEAR(temperature[m], expected[m], 1e-8);
    }
}

TEST(GroundTempAtDepth, AtTheSurfaceFollowsTheDaysInCooling) {
    // 100 days: 62 - 20 cos(100 * 0.01721420632) = 62 + 20 * 0.1500554
    const ByMode<double> temperature = groundTempAtDepth(0, 0.75, {62, 20, {119, 19}});
    EXPECT_NEAR(temperature[cooling], 62 + 20 * 0.1500554, 2e-6);
    // The same day is the coldest for both.
    EXPECT_EQ(groundTempAtDepth(0, 0.75, {62, 20, {34, 34}}), (ByMode<double>{42, 42}));
}

TEST(GroundTempAtDepth, TendsToTheMeanWithDepth) {
    double off = 20;
    for (double depth : {5.0, 20.0, 50.0, 100.0}) {
        const double now = std::abs(groundTempAtDepth(depth, 0.75, warmerSwing)[heating] - 62);
        EXPECT_LT(now, off);
        off = now;
    }
    EXPECT_LT(off, 2e-4);
    EXPECT_EQ(groundTempAtDepth(1e6, 0.75, warmerSwing), (ByMode<double>{62, 62}));
}

TEST(GroundTempAtDepth, OfADayThatIsNotEnteredIsTheMean) {
    const ByMode<double> known = groundTempAtDepth(6, 0.75, warmerSwing);
    EXPECT_EQ(groundTempOfKnownDays(6, 0.75, warmerSwing), known);
    EXPECT_EQ(groundTempOfKnownDays(6, 0.75, {62, 20, {0, 19}}), (ByMode<double>{62, known[1]}));
    // A coldest day of 0 counts as day 0 for cooling all the same: 202 days in place of 183.
    const ByMode<double> noWinter = groundTempOfKnownDays(6, 0.75, {62, 20, {202, 0}});
    EXPECT_EQ(noWinter[heating], 62);
    EXPECT_EQ(noWinter[cooling], groundTempAtDepth(6, 0.75, {62, 20, {221, 19}})[cooling]);
}

}  // namespace
}  // namespace varnholt::modCalculations
