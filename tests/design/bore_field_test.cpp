// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <array>
#include <cstdint>

#include "design/modCalculations/bore_grid.h"
#include "design/modCalculations/short_circuit.h"

namespace varnholt::modCalculations {
namespace {

TEST(ShortCircuitFactor, FollowsItsTable) {
    EXPECT_EQ(shortCircuitFactor(1, 2.0), 1.06);
    EXPECT_EQ(shortCircuitFactor(2, 2.0), 1.03);
    EXPECT_EQ(shortCircuitFactor(3, 2.0), 1.02);
    EXPECT_EQ(shortCircuitFactor(1, 3.0), 1.04);
    EXPECT_EQ(shortCircuitFactor(2, 3.0), 1.02);
    EXPECT_EQ(shortCircuitFactor(3, 3.0), 1.01);
}

TEST(ShortCircuitFactor, OfExactly2Point4GpmPerTonIsTheHigherOne) {
    EXPECT_EQ(shortCircuitFactor(1, 2.4), 1.06);
    EXPECT_EQ(shortCircuitFactor(2, 2.4), 1.03);
    EXPECT_EQ(shortCircuitFactor(3, 2.4), 1.02);
    EXPECT_EQ(shortCircuitFactor(1, 2.4000001), 1.04);
}

TEST(ShortCircuitFactor, OfAnyOtherCircuitIsOne) {
    for (const std::int16_t bores : std::array<std::int16_t, 4>{0, 4, -1, 100}) {
        EXPECT_EQ(shortCircuitFactor(bores, 2.0), 1.0);
        EXPECT_EQ(shortCircuitFactor(bores, 3.0), 1.0);
    }
}

TEST(Neighbours, OfASingleBoreAreNone) {
    EXPECT_EQ(countNeighbours(1, 1), (NeighbourCount{1, 0, 0, 0, 0}));
}

TEST(Neighbours, InALineAreTwoButAtItsEnds) {
    EXPECT_EQ(countNeighbours(1, 5), (NeighbourCount{0, 2, 3, 0, 0}));
    EXPECT_EQ(countNeighbours(5, 1), (NeighbourCount{0, 2, 3, 0, 0}));
    EXPECT_EQ(countNeighbours(2, 1), (NeighbourCount{0, 2, 0, 0, 0}));
}

TEST(Neighbours, InADoubleLineAreThreeButAtItsCorners) {
    EXPECT_EQ(countNeighbours(2, 2), (NeighbourCount{0, 0, 4, 0, 0}));
    EXPECT_EQ(countNeighbours(2, 6), (NeighbourCount{0, 0, 4, 8, 0}));
    EXPECT_EQ(countNeighbours(6, 2), (NeighbourCount{0, 0, 4, 8, 0}));
}

TEST(Neighbours, InAFieldAreTwoThreeOrFour) {
    EXPECT_EQ(countNeighbours(3, 3), (NeighbourCount{0, 0, 4, 4, 1}));
    EXPECT_EQ(countNeighbours(6, 4), (NeighbourCount{0, 0, 4, 12, 8}));
}

TEST(Neighbours, OfEveryGridAreCountedBoreByBore) {
    for (int rows = 1; rows <= 7; ++rows) {
        for (int columns = 1; columns <= 7; ++columns) {
            NeighbourCount counted{};
            for (int r = 0; r < rows; ++r)
                for (int c = 0; c < columns; ++c) {
                    const int neighbours = (r > 0) + (r + 1 < rows) + (c > 0) + (c + 1 < columns);
                    counted[static_cast<std::size_t>(neighbours)] += 1;
                }
            EXPECT_EQ(countNeighbours(rows, columns), counted) << rows << " by " << columns;
        }
    }
}

TEST(Neighbours, OfAGridWithoutRowsAreNotCounted) {
    EXPECT_EQ(countNeighbours(0, 4), NeighbourCount{});
    EXPECT_EQ(countNeighbours(0, 0), NeighbourCount{});
    EXPECT_EQ(countNeighbours(2.5, 4), NeighbourCount{});
}

}  // namespace
}  // namespace varnholt::modCalculations
