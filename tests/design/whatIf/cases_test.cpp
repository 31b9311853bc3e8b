// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/cases.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace varnholt {
namespace {

CaseFactors alone(const Spreads& spreads, DoubtfulQuantity quantity, double driver) {
    return Cases(spreads).at(driverAlone(quantity, driver));
}

TEST(Cases, HaveTheDesignInTheMiddle) { EXPECT_EQ(Cases({}).at(Drivers{}), CaseFactors{}); }

TEST(Cases, HaveTheFieldsAsTheirOneInTenValues) {
    Spreads spreads;
    spreads.low[conductivity] = 20;
    spreads.high[conductivity] = 25;
    EXPECT_NEAR(alone(spreads, conductivity, -oneInTen).conductivity, 0.80, 1e-12);
    EXPECT_NEAR(alone(spreads, conductivity, oneInTen).conductivity, 1.25, 1e-12);
    EXPECT_NEAR(alone(spreads, pumpPower, -oneInTen).pumpPower, 0.95, 1e-12);
    EXPECT_NEAR(alone(spreads, pumpPower, oneInTen).pumpPower, 1.10, 1e-12);
    EXPECT_NEAR(alone(spreads, groundTemperature, -oneInTen).groundTemp, -2, 1e-12);
    EXPECT_NEAR(alone(spreads, heatingHours, oneInTen).hours[heating], 1.2, 1e-12);
    // Twice as far is the square of the factor, and twice the degrees.
    EXPECT_NEAR(alone(spreads, conductivity, 2 * oneInTen).conductivity, 1.5625, 1e-12);
    EXPECT_NEAR(alone(spreads, groundTemperature, 2 * oneInTen).groundTemp, 4, 1e-12);
}

TEST(Cases, TakeTheDiffusivityFromConductivityAndHeatCapacity) {
    Drivers drivers{};
    drivers[conductivity] = oneInTen;   // 1.2
    drivers[heatCapacity] = -oneInTen;  // 0.85
    const CaseFactors factors = Cases({}).at(drivers);
    EXPECT_NEAR(factors.diffusivity, 1.2 / 0.85, 1e-12);
    EXPECT_NEAR(alone({}, heatCapacity, oneInTen).conductivity, 1, 0);
}

TEST(Cases, MoveATiedQuantityAlong) {
    Spreads spreads;
    spreads.tie = {0.6, -0.6, 0.8};
    // 0.6 of the driver of conductivity and sqrt(1 - 0.36) = 0.8 of its own.
    EXPECT_NEAR(alone(spreads, conductivity, oneInTen).boreResistance, std::pow(0.85, 0.6), 1e-12);
    EXPECT_NEAR(alone(spreads, boreResistance, oneInTen).boreResistance, std::pow(1.15, 0.8),
                1e-12);
    EXPECT_NEAR(alone(spreads, conductivity, oneInTen).diffusivity, 1.2 / std::pow(1.15, 0.6),
                1e-12);
    EXPECT_NEAR(alone(spreads, coolingLoads, -oneInTen).loads[heating], std::pow(0.85, 0.8), 1e-12);
    EXPECT_NEAR(alone(spreads, heatingLoads, oneInTen).loads[cooling], 1, 0);
}

TEST(Drivers, AreStandardNormalAndIndependentOfEachOther) {
    const DriverPairs pairs = driverPairs(1024);
    for (std::size_t a = 0; a < quantityCount; ++a) {
        double mean = 0, square = 0, below = 0;
        for (const Drivers& z : pairs.first) {
            mean += z[a] / 1024;
            square += z[a] * z[a] / 1024;
            below += z[a] < -oneInTen ? 1.0 / 1024 : 0;
        }
        EXPECT_NEAR(mean, 0, 0.003);
        EXPECT_NEAR(square, 1, 0.02);
        EXPECT_NEAR(below, 0.1, 0.001);
        for (std::size_t b = 0; b < quantityCount; ++b) {
            double across = 0, inside = 0;
            for (std::size_t i = 0; i < 1024; ++i) {
                across += pairs.first[i][a] * pairs.second[i][b] / 1024;
                inside += pairs.first[i][a] * pairs.first[i][b] / 1024;
            }
            EXPECT_NEAR(across, 0, 0.12);
            if (a != b) {
                EXPECT_NEAR(inside, 0, 0.12);
            }
        }
    }
}

TEST(Drivers, AreTheSameForTheSameSeedAndOthersInEverySet) {
    EXPECT_EQ(driversOfSet(3, 256), driversOfSet(3, 256));
    EXPECT_NE(driversOfSet(3, 256), driversOfSet(4, 256));
    EXPECT_NE(driversOfSet(3, 256), driversOfSet(3, 256, 99));
    const std::vector<Drivers> few = driversOfSet(0, 256), many = driversOfSet(0, casesOfSet);
    EXPECT_TRUE(std::equal(few.begin(), few.end(), many.begin()));
}

TEST(Knowledge, WritesTheGroundsSpreadsAndItsTie) {
    const Spreads test = withKnowledge({}, responseTest);
    const double expected[] = {10, 15, 1, 12};
    for (std::size_t j = 0; j < 4; ++j) {
        EXPECT_EQ(test.low[j], expected[j]);
        EXPECT_EQ(test.high[j], expected[j]);
    }
    EXPECT_EQ(test.tie[resistanceTie], 0.7);
    EXPECT_EQ(test.low[coolingLoads], 15);
    const Spreads table = withKnowledge(test, tableValue);
    EXPECT_EQ(table.low[conductivity], 40);
    EXPECT_EQ(table.high[groundTemperature], 4);
    EXPECT_EQ(table.tie[resistanceTie], 0);
    // The built-in spreads are those of a drill log or a map.
    EXPECT_EQ(withKnowledge(table, drillLogOrMap), Spreads{});
    EXPECT_EQ(withKnowledge(table, knownAsTyped), table);
}

}  // namespace
}  // namespace varnholt
