// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/temperature_penalty.h"

#include <gtest/gtest.h>

#include "expect_error.h"

namespace varnholt::modCalculations {
namespace {

PenaltySite siteOf(double rows, double columns, double separation) {
    return {{rows, columns, separation}, countNeighbours(rows, columns), {1.3, 0.75}, 10};
}

TEST(TemperaturePenalty, StartsThreeDegreesEitherWay) {
    EXPECT_EQ(initTemperaturePenalty(), (ByMode<double>{-3.0, 3.0}));
}

TEST(TemperaturePenalty, AgreesWithAHandCalculation) {
    // Rings 10-15, 15-20, 20-25 ft; 2 sqrt(0.75 * 10 * 365) = 104.642 ft
    // X = 0.119455, 0.167236, 0.215018, I = 1.843295, 1.513528, 1.271012
    // sum of (b^2 - a^2) I = 125*1.843295 + 175*1.513528 + 225*1.271012 = 781.256953
    // times 1000 q / (2 k L) and over d^2: 5800.373782 * 781.256953 / 2.6 / 400 / L = 4357.29 / L
    // 2 by 2: each bore weighs 0.25: 1089.3227 / L
    const auto penalty = calcTemperaturePenalty(siteOf(2, 2, 20), -5.800373782, {2000, 1000});
    EXPECT_NEAR(penalty[cooling], -0.5446613, 1e-6);
    EXPECT_NEAR(penalty[heating], -1.0893227, 1e-6);
}

TEST(TemperaturePenalty, WeighsNeighbours) {
    // With the figures above one bore's own is 4357.2906 / L.
    const double ofOneBore = -4.3572906;
    const auto penalty = [](double rows, double columns) {
        return calcTemperaturePenalty(siteOf(rows, columns, 20), -5.800373782, {1000, 1000})[0];
    };
    EXPECT_NEAR(penalty(1, 2), ofOneBore * 0.1, 1e-6);
    EXPECT_NEAR(penalty(1, 4), ofOneBore * (0.5 + 0.2) / 4, 1e-6);
    EXPECT_NEAR(penalty(3, 4), ofOneBore * (2 + 0.5 * 6 + 0.25 * 4) / 12, 1e-6);
}

TEST(TemperaturePenalty, OfAHeatingDominatedSiteIsPositive) {
    const auto penalty = calcTemperaturePenalty(siteOf(2, 2, 20), 5.8, {2000, 1000});
    EXPECT_GT(penalty[cooling], 0);
    EXPECT_GT(penalty[heating], 0);
}

TEST(TemperaturePenalty, OfAOneBoreGridIsZeroForAnyLoad) {
    for (double load : {-5000.0, -5.8, 0.0, 5.8, 5000.0})
        EXPECT_EQ(calcTemperaturePenalty(siteOf(1, 1, 20), load, {2000, 1000}),
                  (ByMode<double>{0, 0}));
}

TEST(TemperaturePenalty, BeyondASeparationOf50FeetIsZero) {
    EXPECT_EQ(calcTemperaturePenalty(siteOf(3, 3, 50.001), -5.8, {2000, 1000}),
              (ByMode<double>{0, 0}));
    EXPECT_EQ(calcTemperaturePenalty(siteOf(0, 0, 80), -5.8, {2000, 1000}), (ByMode<double>{0, 0}));
}

TEST(TemperaturePenalty, AtASeparationOfExactly50FeetHasEmptyRingsAndIsZero) {
    EXPECT_EQ(calcTemperaturePenalty(siteOf(3, 3, 50), -5.8, {2000, 1000}), (ByMode<double>{0, 0}));
}

TEST(TemperaturePenalty, IsZeroWhereAGuardedQuantityIsZero) {
    PenaltySite site = siteOf(3, 3, 20);
    EXPECT_EQ(calcTemperaturePenalty(site, -5.8, {0, 1000})[cooling], 0);
    EXPECT_NE(calcTemperaturePenalty(site, -5.8, {0, 1000})[heating], 0);
    site.soil = {0, 0.75};
    EXPECT_EQ(calcTemperaturePenalty(site, -5.8, {2000, 1000}), (ByMode<double>{0, 0}));
    site.soil = {1.3, 0};
    EXPECT_EQ(calcTemperaturePenalty(site, -5.8, {2000, 1000}), (ByMode<double>{0, 0}));
    EXPECT_EQ(calcTemperaturePenalty(siteOf(3, 3, 0), -5.8, {2000, 1000}), (ByMode<double>{0, 0}));
}

TEST(TemperaturePenalty, DividesByTheNumberOfBoresUnguarded) {
    expectError(11, [] { calcTemperaturePenalty(siteOf(0, 4, 20), -5.8, {2000, 1000}); });
    expectError(11, [] { calcTemperaturePenalty(siteOf(3, 0, 20), -5.8, {2000, 1000}); });
}

TEST(TemperaturePenalty, OfNoPredictionTimeIsADivisionByZero) {
    PenaltySite site = siteOf(3, 3, 20);
    site.years = 0;
    expectError(11, [&] { calcTemperaturePenalty(site, -5.8, {2000, 1000}); });
}

TEST(TemperaturePenalty, OfANegativeDiffusivityIsAnInvalidCall) {
    PenaltySite site = siteOf(3, 3, 20);
    site.soil.diffusivity = -0.75;
    expectError(5, [&] { calcTemperaturePenalty(site, -5.8, {2000, 1000}); });
}

}  // namespace
}  // namespace varnholt::modCalculations
