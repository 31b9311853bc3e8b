// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/land_lines.h"

#include <gtest/gtest.h>

namespace varnholt {
namespace {

TEST(LandLines, AreAnOutlineAndTheAreasBehindEmptyLines) {
    const LandLines land = readLandLines(
        "0\t0\r\n100\t0\r\n100\t50\r\n\r\n\r\n10\t10\n20\t10\n15\t20\n\n30\t10\n40\t10\n35\t20",
        UnitSystem::english);
    ASSERT_EQ(land.fault, LandFault::none);
    ASSERT_EQ(land.polygons.size(), 3U);
    EXPECT_EQ(land.polygons[0], (Polygon{{0, 0}, {100, 0}, {100, 50}}));
    EXPECT_EQ(land.polygons[2], (Polygon{{30, 10}, {40, 10}, {35, 20}}));
}

TEST(LandLines, AreMetersInMetricUnits) {
    const LandLines land = readLandLines("0\t0\n3.048\t0\n0\t3.048\n", UnitSystem::metric);
    ASSERT_EQ(land.fault, LandFault::none);
    EXPECT_NEAR(land.polygons[0][1].x, 10, 1e-9);  // 3.048 m / 0.3048
}

TEST(LandLines, TellWhatIsWrongWithThem) {
    const struct {
        const char* text;
        LandFault fault;
        std::size_t line, polygon;
    } cases[] = {{"", LandFault::tooFewCorners, 0, 0},
                 {"\n\n", LandFault::tooFewCorners, 0, 0},
                 {"0\t0\n1 0\n1\t1\n", LandFault::noNumbers, 2, 0},
                 {"0\t0\n1\tx\n1\t1\n", LandFault::noNumbers, 2, 0},
                 {"0\t0\n1\tinf\n1\t1\n", LandFault::noNumbers, 2, 0},
                 {"0\t0\n9\t0\n9\t9\n\n1\t1\n2\t1\n", LandFault::tooFewCorners, 0, 1},
                 {"0\t0\n9\t9\n9\t0\n0\t9\n", LandFault::sidesCross, 0, 0}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.text);
        const LandLines land = readLandLines(each.text, UnitSystem::english);
        EXPECT_EQ(land.fault, each.fault);
        EXPECT_EQ(land.line, each.line);
        EXPECT_EQ(land.polygon, each.polygon);
        EXPECT_TRUE(land.polygons.empty());
    }
}

TEST(LandLines, AreReadAsTheyWereWritten) {
    const std::vector<Point> corners{{0, 0}, {12.5, 0.25}, {3, 40}};
    const LandLines land =
        readLandLines(landLines(corners, UnitSystem::english), UnitSystem::english);
    ASSERT_EQ(land.polygons.size(), 1U);
    EXPECT_EQ(land.polygons[0], corners);
}

}  // namespace
}  // namespace varnholt
