// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/land.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace varnholt {
namespace {

const Polygon square = rectangleOf(100, 60);
/// An L: the square without its quarter of greatest x and y.
const Polygon angledLand{{0, 0}, {100, 0}, {100, 30}, {40, 30}, {40, 60}, {0, 60}};

TEST(Land, HasTheAreaOfItsOutlineEitherWayRound) {
    EXPECT_EQ(areaOf(square), 6000);
    EXPECT_EQ(areaOf(angledLand), 6000 - 60 * 30);
    Polygon other = angledLand;
    std::reverse(other.begin(), other.end());
    EXPECT_EQ(areaOf(other), 4200);
}

TEST(Land, IsRefusedWhereItsSidesCross) {
    EXPECT_TRUE(isSimple(square));
    EXPECT_TRUE(isSimple(angledLand));
    EXPECT_FALSE(isSimple({{0, 0}, {10, 0}}));
    EXPECT_FALSE(isSimple({{0, 0}, {10, 10}, {10, 0}, {0, 10}}));          // a bow tie
    EXPECT_FALSE(isSimple({{0, 0}, {10, 0}, {20, 0}}));                    // no area
    EXPECT_FALSE(isSimple({{0, 0}, {10, 0}, {10, 10}, {10, 0}}));          // runs back
    EXPECT_FALSE(isSimple({{0, 0}, {10, 0}, {10, 10}, {5, 0}, {0, 10}}));  // touches a side
    EXPECT_FALSE(isSimple({{0, 0}, {0, 0}, {10, 0}, {10, 10}}));
    EXPECT_FALSE(isSimple({{0, 0}, {NAN, 0}, {10, 10}}));
    // A corner in the middle of a straight side is no harm.
    EXPECT_TRUE(isSimple({{0, 0}, {5, 0}, {10, 0}, {10, 10}, {0, 10}}));
}

TEST(Land, TellsHowDeepAPointLiesInside) {
    EXPECT_EQ(depthInside(square, {50, 20}), 20);
    EXPECT_EQ(depthInside(square, {97, 20}), 3);
    EXPECT_EQ(depthInside(square, {103, 64}), -5);
    EXPECT_EQ(depthInside(square, {0, 30}), 0);
    EXPECT_NEAR(depthInside(angledLand, {37, 26}), 5, 1e-12);  // 3 and 4 ft from the inner corner
    EXPECT_EQ(depthInside(angledLand, {50, 40}), -10);
}

TEST(Land, AllowsABoreAtTheClearanceAndNoNearer) {
    const Land land{angledLand, {{{10, 10}, {20, 10}, {20, 20}, {10, 20}}}, 5, 2};
    EXPECT_TRUE(land.allows({5, 5}));
    EXPECT_FALSE(land.allows({4.99, 5}));
    EXPECT_TRUE(land.allows({22, 15}));
    EXPECT_FALSE(land.allows({21.99, 15}));
    EXPECT_FALSE(land.allows({15, 15}));
    EXPECT_FALSE(land.allows({50, 40}));
    // With rounding in the last digits it is still at the clearance.
    EXPECT_TRUE(land.allows({5 - 5e-8, 5}));
    const Land open{square, {}, 0, 0};
    EXPECT_TRUE(open.allows({0, 0}));
    EXPECT_TRUE(open.allows({100, 60}));
    EXPECT_FALSE(open.allows({100.001, 60}));
}

}  // namespace
}  // namespace varnholt
