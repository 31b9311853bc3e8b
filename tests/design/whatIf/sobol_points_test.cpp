// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/sobol_points.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace varnholt {
namespace {

double fraction(std::uint32_t coordinate) { return coordinate * 0x1p-32; }

TEST(SobolPoints, BeginAsTheRecurrenceGivesThemByHand) {
    // Dimension 1 is the radical inverse in Gray code order: 0, 1/2, 3/4, 1/4, 3/8, 7/8.
    const std::vector<std::uint32_t> first = sobolCoordinates(0, 8);
    const double expected[] = {0, 0.5, 0.75, 0.25, 0.375, 0.875, 0.625, 0.125};
    for (std::size_t i = 0; i < 8; ++i) EXPECT_EQ(fraction(first[i]), expected[i]);
    // Dimension 3: s = 2, a = 1, m = 1, 3, so v1 = 0.1 and v2 = 0.11 in binary; m3 = 2 a m2 xor
    // 4 m1 xor m1 = 6 xor 4 xor 1 = 3, v3 = 0.011. In Gray code order: 0, v1, v1+v2, v2, v2+v3,
    // all by exclusive or: 0, 1/2, 1/4, 3/4, 3/8.
    const std::vector<std::uint32_t> third = sobolCoordinates(2, 8);
    const double expectedThird[] = {0, 0.5, 0.25, 0.75, 0.375 + 0.25};
    for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(fraction(third[i]), expectedThird[i]);
    // The fourth index turns v3: 0.110 xor 0.011 = 0.101.
    EXPECT_EQ(fraction(third[4]), expectedThird[4]);
}

TEST(SobolPoints, PutOnePointIntoEveryIntervalOfEachCoordinate) {
    for (std::size_t dimension = 0; dimension < sobolDimensions; ++dimension) {
        SCOPED_TRACE(dimension);
        for (const std::size_t count : {16u, 256u, 2048u}) {
            std::set<std::uint32_t> plain, scrambled;
            const auto parts = static_cast<double>(count);
            for (const std::uint32_t x : sobolCoordinates(dimension, count)) {
                plain.insert(static_cast<std::uint32_t>(fraction(x) * parts));
                scrambled.insert(
                    static_cast<std::uint32_t>(fraction(owenScrambled(x, 12345)) * parts));
            }
            EXPECT_EQ(plain.size(), count);
            EXPECT_EQ(scrambled.size(), count);
        }
    }
}

TEST(SobolPoints, FillEverySquareOfTwoCoordinatesThatMakeANet) {
    // Dimensions 1 and 2 are a (0, m, 2)-net: each of the 2^a by 2^b boxes of 256 = 2^(a+b) has
    // one.
    const auto x = sobolCoordinates(0, 256), y = sobolCoordinates(1, 256);
    for (int a = 0; a <= 8; ++a) {
        std::set<std::pair<int, int>> boxes, scrambled;
        for (std::size_t i = 0; i < 256; ++i) {
            const auto box = [&](std::uint32_t u, std::uint32_t v) {
                return std::pair{static_cast<int>(fraction(u) * (1 << a)),
                                 static_cast<int>(fraction(v) * (1 << (8 - a)))};
            };
            boxes.insert(box(x[i], y[i]));
            scrambled.insert(box(owenScrambled(x[i], 7), owenScrambled(y[i], 8)));
        }
        EXPECT_EQ(boxes.size(), 256u);
        EXPECT_EQ(scrambled.size(), 256u);
    }
}

TEST(OwenScrambling, TurnsABitByTheBitsAboveItAlone) {
    for (std::uint32_t seed = 1; seed < 50; ++seed)
        for (int bit = 0; bit < 32; ++bit) {
            const std::uint32_t a = 0x9e3779b9u * seed, flipped = a ^ (1u << bit);
            const std::uint32_t change = owenScrambled(a, seed) ^ owenScrambled(flipped, seed);
            // The bit itself changes, those above it do not.
            EXPECT_EQ(change >> bit, 1u) << seed << ' ' << bit;
        }
}

TEST(OwenScrambling, IsAnotherOneWithAnotherSeed) {
    int same = 0;
    for (std::uint32_t i = 0; i < 1000; ++i)
        same += owenScrambled(i << 22, 1) >> 22 == owenScrambled(i << 22, 2) >> 22 ? 1 : 0;
    EXPECT_LT(same, 20);
}

TEST(NormalQuantile, AgreesWithTheTablesAndTheErrorFunction) {
    EXPECT_NEAR(normalQuantile(0.9), 1.2815515655446004, 1e-14);
    EXPECT_NEAR(normalQuantile(0.975), 1.959963984540054, 1e-14);
    EXPECT_NEAR(normalQuantile(0.5), 0, 1e-16);
    EXPECT_NEAR(normalQuantile(1e-9), -5.997807015007686, 1e-12);
    for (double share = 0.0001; share < 1; share += 0.00037)
        EXPECT_NEAR(0.5 * std::erfc(-normalQuantile(share) / std::sqrt(2.0)), share, 4e-16);
}

}  // namespace
}  // namespace varnholt
