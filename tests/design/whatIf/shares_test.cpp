// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/shares.h"

#include <gtest/gtest.h>

#include <numeric>

#include "design/whatIf/office.h"
#include "design/whatIf/settled_length.h"

namespace varnholt {
namespace {

Shares sharesOf(const std::function<double(const Drivers&)>& f) {
    const DriverPairs pairs = driverPairs(sharePoints);
    ShareSum sum;
    for (std::size_t i = 0; i < sharePoints; ++i) sum.add(pairs.first[i], pairs.second[i], f);
    return sum.shares();
}

TEST(Shares, OfASumAreItsSquaredWeights) {
    // 3 z0 + 2 z4 + z9: the variance is 9 + 4 + 1, and without a product total and alone agree.
    const Shares shares =
        sharesOf([](const Drivers& z) { return 3 * z[0] + 2 * z[4] + z[9] + 100; });
    for (const auto& share : {shares.total, shares.alone}) {
        EXPECT_NEAR(share[0], 9.0 / 14, 0.012);
        EXPECT_NEAR(share[4], 4.0 / 14, 0.012);
        EXPECT_NEAR(share[9], 1.0 / 14, 0.012);
        EXPECT_NEAR(share[1], 0, 0.012);
    }
    EXPECT_EQ(shares.total[1], 0);
}

TEST(Shares, OfAProductAreNothingAloneAndAllTogether) {
    const Shares shares = sharesOf([](const Drivers& z) { return z[2] * z[3]; });
    // A product's fourth moment is 9 times its variance squared: a thousand points leave a tenth.
    EXPECT_NEAR(shares.total[2], 1, 0.2);
    EXPECT_NEAR(shares.total[3], 1, 0.2);
    EXPECT_LT(shares.alone[2], 0.1);
}

TEST(Shares, AreNoneWithoutVarianceOrWithACaseWithoutALength) {
    EXPECT_EQ(sharesOf([](const Drivers&) { return 8297.0; }), Shares{});
    EXPECT_EQ(sharesOf([](const Drivers& z) { return z[0] > 2 ? noLength : z[0]; }), Shares{});
}

TEST(Shares, OfTheOfficeAreThese) {
    const BoreholeInputs design = officeInputs();
    const RolledZones zones(design.loads.zones);
    const Cases cases({});
    const Shares shares = sharesOf(
        [&](const Drivers& z) { return classicalFigures(zones, design, cases.at(z), 0).need(); });
    EXPECT_NEAR(shares.total[conductivity], 0.264, 0.005);
    EXPECT_NEAR(shares.total[groundTemperature], 0.116, 0.005);
    EXPECT_NEAR(shares.total[boreResistance], 0.061, 0.005);
    EXPECT_NEAR(shares.total[coolingLoads], 0.510, 0.005);
    EXPECT_NEAR(shares.total[coolingHours], 0.046, 0.005);
    for (const DoubtfulQuantity j : {heatCapacity, heatingLoads, heatingHours, pumpPower, method})
        EXPECT_LT(shares.total[j], 0.01);
    for (std::size_t j = 0; j < quantityCount; ++j)
        EXPECT_NEAR(shares.alone[j], shares.total[j], 0.015);
}

}  // namespace
}  // namespace varnholt
