// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/cooling_tower.h"

#include <gtest/gtest.h>

#include "sample_materials.h"

namespace varnholt::modCalculations {
namespace {

constexpr TowerYear towerYear{4, 7500, 30};
constexpr Hybrid thirtyPercent{true, 30, 96};

CoolingTower sized(double range) {
    return sizeCoolingTower(thirtyPercent, 67.2, towerYear, sampleWater, range);
}

TEST(CoolingTower, AgreesWithAHandCalculation) {
    // Fc = 1.25: capacity 1.25 * 28.8 = 36; hours 1.25 * 12 * 2250 / 36 = 937.5
    // flow 36000 / (500.5728 * 10) = 7.191761
    const CoolingTower tower = sized(10);
    EXPECT_NEAR(tower.capacity, 36, 1e-9);
    EXPECT_NEAR(tower.capacityMax, 36, 1e-9);
    EXPECT_NEAR(tower.hours, 937.5, 1e-9);
    EXPECT_NEAR(tower.flow, 7.191761, 1e-6);
    EXPECT_EQ(tower.range, 10);
}

TEST(CoolingTower, TakesItsShareFromThePeak) {
    EXPECT_NEAR(thirtyPercent.leftForGround(96), 67.2, 1e-12);
    EXPECT_EQ((Hybrid{true, 100, 96}.leftForGround(96)), 0);
    EXPECT_EQ((Hybrid{true, 0, 96}.leftForGround(96)), 96);
}

TEST(CoolingTower, AtZeroPercentHasNoCapacityHoursOrMaximum) {
    const CoolingTower tower = sizeCoolingTower({true, 0, 96}, 96, {4, 7500, 0}, sampleWater, 10);
    EXPECT_EQ(tower, (CoolingTower{0, 0, 0, 10, 0}));
}

TEST(CoolingTower, WithARangeOfZeroHasNoFlowAndNoError) {
    EXPECT_EQ(sized(0).flow, 0);
    EXPECT_NEAR(sized(0).capacity, 36, 1e-9);
    EXPECT_EQ(trimCapacity(sized(0), 20, towerYear, sampleWater).flow, 0);
    const CoolingTower trimmed = trimRange(sized(10), 0, sampleWater);
    EXPECT_EQ(trimmed.capacity, 0);
    EXPECT_EQ(trimmed.hours, 0);
}

TEST(CoolingTower, WithoutFluidHasNoFlow) {
    EXPECT_EQ(sizeCoolingTower(thirtyPercent, 67.2, towerYear, {0, 1}, 10).flow, 0);
    EXPECT_EQ(sizeCoolingTower(thirtyPercent, 67.2, towerYear, {62.4, 0}, 10).flow, 0);
}

TEST(CoolingTower, OfPumpsWithoutCOPRejectsTheLoadItself) {
    const CoolingTower tower =
        sizeCoolingTower(thirtyPercent, 67.2, {0, 7500, 30}, sampleWater, 10);
    EXPECT_NEAR(tower.capacity, 28.8, 1e-9);
    EXPECT_NEAR(tower.hours, 937.5, 1e-9);  // 12 * 2250 / 28.8
}

TEST(CoolingTower, OfABuildingWithoutCoolingHasNoHours) {
    const CoolingTower tower = sizeCoolingTower({true, 30, 0}, 0, {4, 0, 30}, sampleWater, 10);
    EXPECT_EQ(tower, (CoolingTower{0, 0, 0, 10, 0}));
}

TEST(TrimmedCapacity, MovesHoursAndFlow) {
    const CoolingTower tower = trimCapacity(sized(10), 18, towerYear, sampleWater);
    EXPECT_EQ(tower.capacity, 18);
    EXPECT_NEAR(tower.hours, 1875, 1e-9);
    EXPECT_NEAR(tower.flow, 3.595881, 1e-6);  // 18000 / 5005.728
    EXPECT_NEAR(tower.capacityMax, 36, 1e-9);
}

TEST(TrimmedCapacity, OfZeroStopsTheTower) {
    const CoolingTower tower = trimCapacity(sized(10), 0, towerYear, sampleWater);
    EXPECT_EQ(tower.hours, 0);
    EXPECT_EQ(tower.flow, 0);
}

TEST(TrimmedCapacity, WithoutFluidHasNeitherHoursNorFlow) {
    EXPECT_EQ(trimCapacity(sized(10), 18, towerYear, {0, 1}).hours, 0);
    EXPECT_EQ(trimCapacity(sized(10), 18, towerYear, {62.4, 0}).flow, 0);
}

TEST(TrimmedCapacity, WithoutCOPHasNoHours) {
    const CoolingTower tower = trimCapacity(sized(10), 18, {0, 7500, 30}, sampleWater);
    EXPECT_EQ(tower.hours, 0);
    EXPECT_NEAR(tower.flow, 3.595881, 1e-6);
}

TEST(TrimmedRange, MovesTheCapacityAndLeavesFlowAndHours) {
    const CoolingTower tower = trimRange(sized(10), 5, sampleWater);
    EXPECT_NEAR(tower.capacity, 18, 1e-9);
    EXPECT_NEAR(tower.flow, 7.191761, 1e-6);
    EXPECT_NEAR(tower.hours, 937.5, 1e-9);
    EXPECT_EQ(tower.range, 5);
}

TEST(TrimmedRange, HoldsTheCapacityAtItsMaximumAndLowersTheFlow) {
    const CoolingTower tower = trimRange(sized(10), 20, sampleWater);
    EXPECT_NEAR(tower.capacity, 36, 1e-9);
    EXPECT_NEAR(tower.flow, 3.595881, 1e-6);  // 36000 / (500.5728 * 20)
}

TEST(TrimmedFlow, MovesTheCapacity) {
    const CoolingTower tower = trimFlow(sized(10), 3, sampleWater);
    EXPECT_NEAR(tower.capacity, 15.017184, 1e-6);  // 500.5728 * 3 * 10 / 1000
    EXPECT_EQ(tower.flow, 3);
    EXPECT_NEAR(tower.hours, 937.5, 1e-9);
}

TEST(TrimmedFlow, AboveWhatTheMaximumAllowsComesBackDown) {
    const CoolingTower tower = trimFlow(sized(10), 20, sampleWater);
    EXPECT_NEAR(tower.capacity, 36, 1e-9);
    EXPECT_NEAR(tower.flow, 7.191761, 1e-6);
}

TEST(TrimmedFlow, OfZeroStopsTheTower) {
    const CoolingTower tower = trimFlow(sized(10), 0, sampleWater);
    EXPECT_EQ(tower.capacity, 0);
    EXPECT_EQ(tower.hours, 0);
}

}  // namespace
}  // namespace varnholt::modCalculations
