// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/ground_resistance.h"

#include <gtest/gtest.h>

#include "expect_error.h"
#include "sample_materials.h"

namespace varnholt::modCalculations {
namespace {

constexpr double bore = 5.0 / 12;

TEST(PulseTimes, AreTheYearsTheMonthAndTheBlock) {
    const PulseTimes t = calcPulseTimes({1, 0}, 10);
    EXPECT_NEAR(t[0], 3650 + 30 + 4.0 / 24, 1e-9);
    EXPECT_NEAR(t[1], 30 + 4.0 / 24, 1e-9);
    EXPECT_NEAR(t[2], 4.0 / 24, 1e-9);
}

TEST(PulseTimes, OfAPeakInTheEveningOfEitherModeLengthenTheShortPulseOfBoth) {
    EXPECT_NEAR(calcPulseTimes({3, 0}, 10)[2], 0.5, 1e-9);
    EXPECT_NEAR(calcPulseTimes({0, 3}, 10)[2], 0.5, 1e-9);
    EXPECT_NEAR(calcPulseTimes({2, 2}, 10)[2], 4.0 / 24, 1e-9);
}

TEST(FourierNumber, IsFourAlphaTOverTheSquare) {
    EXPECT_NEAR(fourierNumber(0.75, 0.5, bore), 8.64, 1e-9);  // 1.5 / 0.173611
}

TEST(FourierNumber, OfNoDiameterIsAThousandMillion) {
    EXPECT_EQ(fourierNumber(0.75, 10, 0), 1.0e9);
    EXPECT_EQ(fourierNumber(0, 0, 0), 1.0e9);
}

TEST(GFactor, FollowsItsTwoLines) {
    EXPECT_NEAR(gFactor(1), 0.126780, 1e-6);      // 0.89947 / 7.09472
    EXPECT_NEAR(gFactor(9.999), 0.267724, 1e-6);  // 1.899427 / 7.09472
    EXPECT_NEAR(gFactor(10), 0.258908, 1e-6);     // 1.45247 / 5.60998
    EXPECT_NEAR(gFactor(100), 0.437162, 1e-6);    // 2.45247 / 5.60998
    EXPECT_NEAR(gFactor(1.0e9), 1.684938, 1e-6);  // 9.45247 / 5.60998
}

TEST(GFactor, OfNoTimeIsAFixedFigure) {
    EXPECT_EQ(gFactor(0), 0.13);
    EXPECT_EQ(gFactor(-5), 0.13);
}

TEST(GFactor, IsNeverNegative) {
    EXPECT_EQ(gFactor(0.1), 0);  // -0.10053 / 7.09472
    EXPECT_EQ(gFactor(1e-3), 0);
}

TEST(GroundResistance, AgreesWithAHandCalculation) {
    // Fo = 4 * 0.75 t / (5/12)^2 = 17.28 t: 63593.3, 521.28, 2.88
    // G = 0.936881, 0.564983, 0.191532
    const GroundResistances r = calcGroundResistances(calcPulseTimes({1, 0}, 10), bore, sampleSoil);
    EXPECT_NEAR(r.annual, 0.286075, 1e-6);     // 0.371898 / 1.3
    EXPECT_NEAR(r.monthly, 0.287270, 1e-6);    // 0.373451 / 1.3
    EXPECT_NEAR(r.shortTerm, 0.147332, 1e-6);  // 0.191532 / 1.3
}

TEST(GroundResistance, WithoutConductivityIsZeroThroughout) {
    const GroundResistances r = calcGroundResistances(calcPulseTimes({1, 0}, 10), bore, {0, 0.75});
    EXPECT_EQ(r.annual, 0);
    EXPECT_EQ(r.monthly, 0);
    EXPECT_EQ(r.shortTerm, 0);
}

TEST(GroundResistance, WithoutDiffusivityIsThatOfTheShortPulseAlone) {
    const GroundResistances r = calcGroundResistances(calcPulseTimes({1, 0}, 10), bore, {1.3, 0});
    EXPECT_EQ(r.annual, 0);
    EXPECT_EQ(r.monthly, 0);
    EXPECT_NEAR(r.shortTerm, 0.1, 1e-12);  // 0.13 / 1.3
}

}  // namespace
}  // namespace varnholt::modCalculations
