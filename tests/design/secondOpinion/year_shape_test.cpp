// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/year_shape.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace varnholt::secondOpinion {
namespace {

using Months = std::array<double, 12>;

double sumOfYear(const Months& values) {
    return std::accumulate(values.begin(), values.end(), 0.0);
}
double greatestOf(const Months& values) { return *std::max_element(values.begin(), values.end()); }

YearOfMode standard(Mode mode, double wanted, bool southern = false) {
    return standardYearOf(mode, wanted, 0.40, southern);
}

TEST(StandardYear, GivesTheGreatestMonthItsShare) {
    for (const double wanted : {1.0 / 11 + 1e-6, 0.1, 0.15, 0.2, 0.27, 0.33, 0.4}) {
        const YearOfMode year = standard(cooling, wanted);
        EXPECT_NEAR(sumOfYear(year.share), 1, 1e-12);
        EXPECT_NEAR(year.share[6], wanted, 1e-9);
        EXPECT_EQ(greatestOf(year.share), year.share[6]);
        EXPECT_FALSE(year.heldAtGreatest);
        EXPECT_FALSE(year.even);
    }
}

TEST(StandardYear, FollowsThePowerOfACosine) {
    // With the power 1 the wave sums to 6, so the greatest share is 1/6; a month beside it has
    // (1 + cos 30)/2 = 0.9330 of it, three months away 0.5, half a year away none.
    const YearOfMode year = standard(heating, 1.0 / 6);
    EXPECT_NEAR(year.share[0], 1.0 / 6, 1e-9);
    EXPECT_NEAR(year.share[1], 0.9330127 / 6, 1e-8);
    EXPECT_NEAR(year.share[11], 0.9330127 / 6, 1e-8);
    EXPECT_NEAR(year.share[3], 0.5 / 6, 1e-9);
    EXPECT_NEAR(year.share[6], 0, 1e-12);
    // The full peak in every month with half of the greatest month's energy.
    EXPECT_NEAR(year.peak[3], 1, 1e-9);
    EXPECT_EQ(year.peak[1], 1);
    // Four months away the wave is 0.25, and the peak half of the full one.
    EXPECT_NEAR(year.peak[4], 0.5, 1e-8);
    EXPECT_EQ(year.peak[6], 0);
}

TEST(StandardYear, HoldsTheGreatestShareAtItsLimit) {
    const YearOfMode year = standard(cooling, 0.41);
    EXPECT_TRUE(year.heldAtGreatest);
    EXPECT_NEAR(year.share[6], 0.40, 1e-9);
    EXPECT_NEAR(sumOfYear(year.share), 1, 1e-12);
    EXPECT_TRUE(standard(heating, std::numeric_limits<double>::infinity()).heldAtGreatest);
    EXPECT_FALSE(standard(cooling, 0.40).heldAtGreatest);
}

TEST(StandardYear, IsEvenWhereTheMonthsCouldNotHoldTheEnergyUnevenly) {
    for (const double wanted : {0.0, -0.2, 0.0833, 0.0909, std::nan("")}) {
        const YearOfMode year = standard(cooling, wanted);
        EXPECT_TRUE(year.even) << wanted;
        for (const double share : year.share) EXPECT_EQ(share, 1.0 / 12);
        for (const double peak : year.peak) EXPECT_EQ(peak, 1);
    }
    EXPECT_FALSE(standard(cooling, 1.0 / 11).even);
}

TEST(StandardYear, OfTheSouthMirrorsThatOfTheNorth) {
    for (const double wanted : {0.05, 0.15, 0.27, 0.5}) {
        const YearOfMode north = standard(cooling, wanted), south = standard(cooling, wanted, true);
        for (std::size_t m = 0; m < 12; ++m) {
            EXPECT_NEAR(south.share[m], north.share[(m + 6) % 12], 1e-12);
            EXPECT_NEAR(south.peak[m], north.peak[(m + 6) % 12], 1e-12);
            EXPECT_EQ(south.share[m], standard(heating, wanted).share[m]);
        }
    }
}

TEST(KnownYear, HasRatiosAlone) {
    Months energies{}, peaks{};
    energies[2] = 30;
    energies[7] = 10;
    peaks[2] = 5;
    peaks[3] = 20;
    const YearOfMode year = knownYearOf(energies, peaks);
    EXPECT_EQ(year.share[2], 0.75);
    EXPECT_EQ(year.share[7], 0.25);
    EXPECT_EQ(sumOfYear(year.share), 1);
    EXPECT_EQ(year.peak[2], 0.25);
    EXPECT_EQ(year.peak[3], 1);
    EXPECT_TRUE(year.hasEnergy);
    EXPECT_FALSE(year.heldAtGreatest || year.even);
}

TEST(KnownYear, WithoutEnergyOrPeaksHasNone) {
    const YearOfMode year = knownYearOf({}, {});
    EXPECT_FALSE(year.hasEnergy);
    EXPECT_EQ(sumOfYear(year.share), 0);
    EXPECT_EQ(sumOfYear(year.peak), 0);
    Months negative{};
    negative.fill(-1);
    negative[4] = 2;
    const YearOfMode one = knownYearOf(negative, negative);
    EXPECT_EQ(one.share[4], 1);
    EXPECT_EQ(one.share[5], 0);
    EXPECT_EQ(one.peak[5], 0);
}

}  // namespace
}  // namespace varnholt::secondOpinion
