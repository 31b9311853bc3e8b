// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>

#include "design/horizontal_values.h"
#include "design/modCalculations/ground_temperature.h"
#include "expect_error.h"

namespace varnholt::modCalculations {
namespace {

constexpr SurfaceYear year{62, 20, {202, 19}};

TEST(GroundTemperature, AgreesWithAHandCalculation) {
    // 6 ft in 0.75 ft^2/day: 6 sqrt(3.141592653/273.75) = 0.642763, exp(-0.642763) = 0.525838;
    // the surface is followed by 3 sqrt(365/2.356194) = 37.3392 days.
    // heating: 62 - 20 * 0.525838 cos(0.0172142 * -37.3392) = 62 - 10.516756 * 0.800464
    // cooling: 62 - 10.516756 cos(0.0172142 * (183 - 37.3392)) = 62 + 10.516756 * 0.805575
    const ByMode<double> temperature = groundTempAtDepth(6, 0.75, year);
    EXPECT_NEAR(temperature[heating], 53.5819, 1e-4);
    EXPECT_NEAR(temperature[cooling], 70.4720, 1e-4);
}

TEST(GroundTemperature, AgreesWithASecondRouteAtEveryDepth) {
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
        const ByMode<double> temperature = groundTempAtDepth(depth, 0.75, year);
        for (Mode m : modes) EXPECT_NEAR(temperature[m], expected[m], 1e-8);
    }
}

TEST(GroundTemperature, WithoutDiffusivityIsTheMeanWhateverTheSwing) {
    for (double swing : {0.0, 20.0, 212.0})
        EXPECT_EQ(groundTempAtDepth(6, 0, {62, swing, {202, 19}}), (ByMode<double>{62, 62}));
}

TEST(GroundTemperature, AtTheSurfaceIsExactlyTheMeanLessTheSwingInHeating) {
    EXPECT_EQ(groundTempAtDepth(0, 0.75, year)[heating], 42);
    EXPECT_EQ(groundTempAtDepth(0, 0.01, year)[heating], 42);
}

TEST(GroundTemperature, AtTheSurfaceFollowsTheDaysInCooling) {
    // 100 days: 62 - 20 cos(100 * 0.01721420632) = 62 + 20 * 0.1500554
    const ByMode<double> temperature = groundTempAtDepth(0, 0.75, {62, 20, {119, 19}});
    EXPECT_NEAR(temperature[cooling], 62 + 20 * 0.1500554, 2e-6);
    // The same day is the coldest for both.
    EXPECT_EQ(groundTempAtDepth(0, 0.75, {62, 20, {34, 34}}), (ByMode<double>{42, 42}));
}

TEST(GroundTemperature, SixMonthsAfterTheColdestDayIsNearTheMeanPlusTheSwing) {
    EXPECT_NEAR(groundTempAtDepth(0, 0.75, year)[cooling], 82, 1e-3);
}

TEST(GroundTemperature, TendsToTheMeanWithDepth) {
    double off = 20;
    for (double depth : {5.0, 20.0, 50.0, 100.0}) {
        const double now = std::abs(groundTempAtDepth(depth, 0.75, year)[heating] - 62);
        EXPECT_LT(now, off);
        off = now;
    }
    EXPECT_LT(off, 2e-4);
    EXPECT_EQ(groundTempAtDepth(1e6, 0.75, year), (ByMode<double>{62, 62}));
}

TEST(GroundTemperature, OfANegativeDiffusivityIsAnInvalidCall) {
    expectError(5, [] { groundTempAtDepth(6, -0.75, year); });
}

TEST(GroundTemperature, BeyondAllDoublesIsAnOverflow) {
    expectError(6, [] { groundTempAtDepth(-1e6, 0.75, year); });
}

TEST(GroundTemperature, OfADayThatIsNotEnteredIsTheMean) {
    const ByMode<double> known = groundTempAtDepth(6, 0.75, year);
    EXPECT_EQ(groundTempOfKnownDays(6, 0.75, year), known);
    EXPECT_EQ(groundTempOfKnownDays(6, 0.75, {62, 20, {0, 19}}), (ByMode<double>{62, known[1]}));
    // A coldest day of 0 counts as day 0 for cooling all the same: 202 days in place of 183.
    const ByMode<double> noWinter = groundTempOfKnownDays(6, 0.75, {62, 20, {202, 0}});
    EXPECT_EQ(noWinter[heating], 62);
    EXPECT_EQ(noWinter[cooling], groundTempAtDepth(6, 0.75, {62, 20, {221, 19}})[cooling]);
}

TEST(GroundTemperature, OfANewDesignHasTheSameDayForBothModes) {
    const GroundTemperatureValues values;
    EXPECT_EQ(values.airTempSwing, 22);
    EXPECT_EQ(values.extremeDay, (ByMode<std::int16_t>{34, 34}));
}

}  // namespace
}  // namespace varnholt::modCalculations
