// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/representative_pump.h"

#include <gtest/gtest.h>

#include "catalogue/sample_models.h"
#include "loads/rounding_of_fit.h"

namespace varnholt {
namespace {

/// Ratio 1.25, COP 5 and 4.
MiniPump evaluated() {
    MiniPump pump;
    pump.capacity = {30, 24};
    pump.efficiency = {5, 4};
    pump.plf = {0.8, 0.5};
    return pump;
}

TEST(RepresentativePump, IsSizedToTheHeatingLoadWhereThatDecides) {
    // 100 / 1.25 = 80 is below 90. plf stays 0.5: heating 90 / 0.5 = 180, cooling 1.25 x that.
    const MiniPump pump = fitRepresentativePump(evaluated(), peaks(100, 90), 3);
    EXPECT_NEAR(pump.plf[heating], 0.5, roundingOfFit);
    EXPECT_NEAR(pump.capacity[heating], 180, roundingOfFit);
    EXPECT_NEAR(pump.watts[heating], 90 / (4 * 3.412) / 0.5, roundingOfFit);
    EXPECT_NEAR(pump.flowRate[heating], 22.5, roundingOfFit);  // 90 x 3 / 12
    EXPECT_NEAR(pump.capacity[cooling], 225, roundingOfFit);
    EXPECT_NEAR(pump.flowRate[cooling], 28.125, roundingOfFit);  // 1.25 x 90 x 3 / 12
    // The part load factor divides twice here: once in the capacity, once more in the power.
    EXPECT_NEAR(pump.watts[cooling], 225 / (5 * 3.412) / 0.5, roundingOfFit);
    EXPECT_NEAR(pump.plf[cooling], 100.0 / 225, roundingOfFit);
}

TEST(RepresentativePump, IsSizedToTheCoolingLoadWhereThatDecides) {
    // 100 / 1.25 = 80 is not below 70. plf stays 0.8: cooling 125, heating 80 / 0.8 = 100.
    const MiniPump pump = fitRepresentativePump(evaluated(), peaks(100, 70), 3);
    EXPECT_NEAR(pump.capacity[cooling], 125, roundingOfFit);
    EXPECT_NEAR(pump.watts[cooling], 100 / (5 * 3.412) / 0.8, roundingOfFit);
    EXPECT_NEAR(pump.flowRate[cooling], 25, roundingOfFit);
    EXPECT_NEAR(pump.capacity[heating], 100, roundingOfFit);
    EXPECT_NEAR(pump.flowRate[heating], 20, roundingOfFit);
    EXPECT_NEAR(pump.watts[heating], 100 / (4 * 3.412) / 0.8, roundingOfFit);
    EXPECT_NEAR(pump.plf[heating], 0.7, roundingOfFit);
}

TEST(RepresentativePump, WithoutHeatingCapacityHasARatioOfOne) {
    MiniPump pump = evaluated();
    pump.capacity[heating] = 0;
    const MiniPump fitted = fitRepresentativePump(pump, peaks(80, 90), 3);
    EXPECT_NEAR(fitted.capacity[cooling], fitted.capacity[heating], roundingOfFit);
    EXPECT_NEAR(fitted.capacity[heating], 180, roundingOfFit);
}

TEST(RepresentativePump, TakesTheCoolingBranchForEqualPeaksAndARatioOfOne) {
    MiniPump pump = evaluated();
    pump.capacity = {30, 30};
    const MiniPump fitted = fitRepresentativePump(pump, peaks(60, 60), 3);
    EXPECT_NEAR(fitted.plf[cooling], 0.8, roundingOfFit);  // kept: it is the dominant mode's
    EXPECT_NEAR(fitted.capacity[cooling], 75, roundingOfFit);
    EXPECT_NEAR(fitted.plf[heating], 0.8, roundingOfFit);
}

TEST(RepresentativePump, LimitsAPartLoadFactorAboveOneOrNotAboveZeroToOne) {
    for (const double plf : {1.5, 0.0, -0.2}) {
        MiniPump pump = evaluated();
        pump.plf = {plf, plf};
        const MiniPump cooled = fitRepresentativePump(pump, peaks(100, 70), 3);
        EXPECT_EQ(cooled.plf[cooling], 1);
        EXPECT_NEAR(cooled.capacity[cooling], 100, roundingOfFit);
        EXPECT_EQ(fitRepresentativePump(pump, peaks(100, 90), 3).plf[heating], 1);
    }
    MiniPump pump = evaluated();
    pump.plf = {1, 1};
    EXPECT_NEAR(fitRepresentativePump(pump, peaks(100, 70), 3).capacity[cooling], 100,
                roundingOfFit);
}

TEST(RepresentativePump, WithoutEfficiencyInTheOtherModeHasNoPowerThere) {
    MiniPump pump = evaluated();
    pump.efficiency[heating] = 0;
    EXPECT_EQ(fitRepresentativePump(pump, peaks(100, 70), 3).watts[heating], 0);
    EXPECT_EQ(errorOf([&] { fitRepresentativePump(pump, peaks(100, 90), 3); }), 11);
}

TEST(RepresentativePump, WithoutLoadInTheOtherModeLeavesItsPartLoadFactor) {
    EXPECT_EQ(fitRepresentativePump(evaluated(), peaks(100, 0), 3).plf[heating], 0.5);
}

TEST(RepresentativePump, WithoutCoolingCapacityEndsWithDivisionByZero) {
    MiniPump pump = evaluated();
    pump.capacity[cooling] = 0;
    EXPECT_EQ(errorOf([&] { fitRepresentativePump(pump, peaks(100, 90), 3); }), 11);
}

TEST(RepresentativePump, KeepsThePartLoadFactorThatTheBlockHadBefore) {
    // 30 and 24 MBtu/hr a unit: ratio 1.25, and 28 / 1.25 = 22.4 exceeds 20, so cooling decides.
    // The block's own 0.8 counts, not 28 / 30: 28 / 0.8 = 35 and 22.4 / 0.8 = 28.
    const pump model = plainModel("A", 30, 24);
    MiniPump current;
    current.plf = {0.8, 0.3};
    const MiniPump fitted = representativePump(model, 1, peaks(28, 20), current, {});
    EXPECT_NEAR(fitted.plf[cooling], 0.8, roundingOfFit);
    EXPECT_NEAR(fitted.capacity[cooling], 35, roundingOfFit);
    EXPECT_NEAR(fitted.capacity[heating], 28, roundingOfFit);
    EXPECT_NEAR(fitted.flowRate[cooling], 7, roundingOfFit);
    EXPECT_NEAR(fitted.plf[heating], 20.0 / 28, roundingOfFit);
    EXPECT_EQ(fitted.customPump, 0);
}

TEST(RepresentativePump, OfABlockWithoutPartLoadFactorIsFullyLoaded) {
    const MiniPump fitted =
        representativePump(plainModel("A", 30, 24), 1, peaks(28, 20), MiniPump{}, {});
    EXPECT_EQ(fitted.plf[cooling], 1);
    EXPECT_NEAR(fitted.capacity[cooling], 28, roundingOfFit);
}

TEST(RepresentativePump, DoesNotDependOnTheNumberOfUnits) {
    const pump model = plainModel("A", 30, 24);
    const MiniPump one = representativePump(model, 1, peaks(28, 20), {}, {});
    MiniPump two = representativePump(model, 2, peaks(28, 20), {}, {});
    EXPECT_EQ(two.number, 2);
    two.number = 1;
    EXPECT_EQ(two, one);
}

TEST(RepresentativePump, HasNoLoadFlowCorrectionAndKeepsItsLoadFlow) {
    pump model = plainModel("A", 30, 24);
    model.nominalFlow = 900;
    model.coefficients.capacityFlowCorrection[0] = {7, 7};
    MiniPump current;
    current.elf = {800, 0};
    const MiniPump fitted = representativePump(model, 1, peaks(28, 20), current, {});
    EXPECT_EQ(fitted.elf, (ByMode<double>{800, 0}));
    EXPECT_NEAR(fitted.capacity[cooling], 28, roundingOfFit);
    EXPECT_EQ(fitted.nominalFlow, 900);
}

}  // namespace
}  // namespace varnholt
