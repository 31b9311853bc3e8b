// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <limits>

#include "design/modCalculations/trench_layout.h"
#include "expect_error.h"

namespace varnholt::modCalculations {
namespace {

/// Rows 9 in apart and columns 15 in apart in a trench of 6 ft, with a coil of 36 in.
TrenchLayout layoutOf(std::int16_t arrangement, double pipes, bool offset = false) {
    return {arrangement, pipes, offset, 6, 9, 15, 36};
}

using Positions = std::vector<PipePosition>;

TEST(TrenchLayout, HasOneTwoOrThreeColumnsAndOneForACoil) {
    const int expected[]{1, 2, 3, 1, 1};
    for (std::int16_t i = 0; i < 5; ++i) EXPECT_EQ(columnsOf(i), expected[i]);
    expectError(9, [] { columnsOf(5); });
    expectError(9, [] { columnsOf(-1); });
}

TEST(TrenchLayout, CountsRowsInsideAColumn) {
    EXPECT_EQ(rowsOf(layoutOf(singleColumn, 7)), 7);
    EXPECT_EQ(rowsOf(layoutOf(twoColumns, 8)), 4);
    EXPECT_EQ(rowsOf(layoutOf(threeColumns, 24)), 8);
}

TEST(TrenchLayout, OffersAnOffsetFromTwoRowsOn) {
    for (std::int16_t i : {singleColumn, twoColumns, threeColumns}) {
        EXPECT_FALSE(offsetIsOffered(layoutOf(i, columnsOf(i))));
        EXPECT_TRUE(offsetIsOffered(layoutOf(i, 2 * columnsOf(i))));
    }
    EXPECT_FALSE(offsetIsOffered(layoutOf(lyingCoil, 4)));
    EXPECT_FALSE(offsetIsOffered(layoutOf(standingCoil, 4)));
}

TEST(TrenchLayout, UsesTheStepWithinAColumnFromTheSecondRowOn) {
    EXPECT_FALSE(usesRowStep(layoutOf(singleColumn, 1)));
    EXPECT_TRUE(usesRowStep(layoutOf(singleColumn, 2)));
    EXPECT_FALSE(usesRowStep(layoutOf(twoColumns, 2)));
    EXPECT_TRUE(usesRowStep(layoutOf(twoColumns, 4)));
    EXPECT_FALSE(usesRowStep(layoutOf(threeColumns, 3)));
    EXPECT_TRUE(usesRowStep(layoutOf(threeColumns, 6)));
    EXPECT_FALSE(usesRowStep(layoutOf(lyingCoil, 1)));
}

TEST(TrenchLayout, UsesTheStepBetweenColumnsOfASingleOneOnlyWithAnOffset) {
    EXPECT_FALSE(usesColumnStep(layoutOf(singleColumn, 4)));
    EXPECT_TRUE(usesColumnStep(layoutOf(singleColumn, 4, true)));
    EXPECT_FALSE(usesColumnStep(layoutOf(singleColumn, 1, true)));
    EXPECT_TRUE(usesColumnStep(layoutOf(twoColumns, 2)));
    EXPECT_TRUE(usesColumnStep(layoutOf(threeColumns, 3)));
    EXPECT_FALSE(usesColumnStep(layoutOf(standingCoil, 1)));
}

TEST(PipePositions, OfOnePipeAreThatPipeAndOneImageTwiceAsHighAsTheTrenchIsDeep) {
    EXPECT_EQ(buildPipePositions(layoutOf(singleColumn, 1)), (Positions{{0, 0}, {0, 12}}));
    EXPECT_EQ(meanPipeDepth(layoutOf(singleColumn, 1)), 6);
}

TEST(PipePositions, OfAColumnGoUpFromTheDeepestPipe) {
    EXPECT_EQ(buildPipePositions(layoutOf(singleColumn, 3)),
              (Positions{{0, 0}, {0, 12}, {0, 0.75}, {0, 11.25}, {0, 1.5}, {0, 10.5}}));
}

TEST(PipePositions, GoColumnByColumn) {
    EXPECT_EQ(buildPipePositions(layoutOf(twoColumns, 4)), (Positions{{0, 0},
                                                                      {0, 12},
                                                                      {0, 0.75},
                                                                      {0, 11.25},
                                                                      {1.25, 0},
                                                                      {1.25, 12},
                                                                      {1.25, 0.75},
                                                                      {1.25, 11.25}}));
    const Positions three = buildPipePositions(layoutOf(threeColumns, 6));
    EXPECT_EQ(three.size(), 12u);
    EXPECT_EQ(three[8], (PipePosition{2.5, 0}));
    EXPECT_EQ(three[11], (PipePosition{2.5, 11.25}));
}

TEST(PipePositions, OfASingleColumnWithOffsetAlternateBetweenTwoPlaces) {
    // every second pipe, with its image, by the whole step of 15 in
    EXPECT_EQ(buildPipePositions(layoutOf(singleColumn, 4, true)), (Positions{{0, 0},
                                                                              {0, 12},
                                                                              {1.25, 0.75},
                                                                              {1.25, 11.25},
                                                                              {0, 1.5},
                                                                              {0, 10.5},
                                                                              {1.25, 2.25},
                                                                              {1.25, 9.75}}));
}

TEST(PipePositions, OfTwoColumnsWithOffsetMoveEverySecondRowByHalfAStep) {
    EXPECT_EQ(buildPipePositions(layoutOf(twoColumns, 6, true)), (Positions{{0, 0},
                                                                            {0, 12},
                                                                            {0.625, 0.75},
                                                                            {0.625, 11.25},
                                                                            {0, 1.5},
                                                                            {0, 10.5},
                                                                            {1.25, 0},
                                                                            {1.25, 12},
                                                                            {1.875, 0.75},
                                                                            {1.875, 11.25},
                                                                            {1.25, 1.5},
                                                                            {1.25, 10.5}}));
}

TEST(PipePositions, OfThreeColumnsWithOffsetMoveEveryColumn) {
    const Positions positions = buildPipePositions(layoutOf(threeColumns, 6, true));
    for (std::size_t column = 0; column < 3; ++column) {
        const double x = 1.25 * static_cast<double>(column);
        EXPECT_EQ(positions[4 * column].x, x);
        EXPECT_EQ(positions[4 * column + 2].x, x + 0.625);
        EXPECT_EQ(positions[4 * column + 3].x, x + 0.625);
    }
}

TEST(PipePositions, OfALyingCoilHaveTheSurfaceAtTheTrenchsDepth) {
    EXPECT_EQ(buildPipePositions(layoutOf(lyingCoil, 1)), (Positions{{0, 0}, {0, 12}}));
}

TEST(PipePositions, OfAStandingCoilHaveTheSurfaceHalfTheCoilHigher) {
    // (6*12 + 36/2)/12 = 7.5 ft
    EXPECT_EQ(buildPipePositions(layoutOf(standingCoil, 1)), (Positions{{0, 0}, {0, 15}}));
}

TEST(PipePositions, OfPipesThatFillNoRowsAreRefused) {
    expectError(9, [] { buildPipePositions(layoutOf(threeColumns, 7)); });
    expectError(9, [] { buildPipePositions(layoutOf(singleColumn, 2.5)); });
    expectError(9, [] { buildPipePositions(layoutOf(singleColumn, -1)); });
    expectError(9, [] { buildPipePositions(layoutOf(singleColumn, 1e9)); });
    expectError(9, [] {
        buildPipePositions(layoutOf(singleColumn, std::numeric_limits<double>::quiet_NaN()));
    });
    expectError(9, [] { buildPipePositions(layoutOf(5, 1)); });
    EXPECT_TRUE(buildPipePositions(layoutOf(singleColumn, 0)).empty());
}

TEST(MeanPipeDepth, LiesHalfTheStackAboveTheTrenchsBottom) {
    // stacks of 6, 3 and 2 pipes: 6 - 5*0.75/2, 6 - 2*0.75/2, 6 - 0.75/2
    EXPECT_EQ(meanPipeDepth(layoutOf(singleColumn, 6)), 4.125);
    EXPECT_EQ(meanPipeDepth(layoutOf(twoColumns, 6)), 5.25);
    EXPECT_EQ(meanPipeDepth(layoutOf(threeColumns, 6)), 5.625);
}

TEST(MeanPipeDepth, OfACoilIsThatOfTheTrenchOrOfTheStandingCoilsMiddle) {
    EXPECT_EQ(meanPipeDepth(layoutOf(lyingCoil, 1)), 6);
    EXPECT_EQ(meanPipeDepth(layoutOf(standingCoil, 1)), 7.5);
}

}  // namespace
}  // namespace varnholt::modCalculations
