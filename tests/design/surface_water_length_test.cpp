// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "design/modCalculations/loop_length.h"
#include "expect_error.h"
#include "sample_materials.h"

namespace varnholt::modCalculations {
namespace {

constexpr LoopPipe coil{0, 1};

struct TablePoint {
    double size;
    Mode mode;
    double style;
    double near, bound, far;  ///< feet per ton at 5, 13 and 20 degF in cooling, -5, -9, -14
};

// Worked by tests/independent/surface_water_road.py --table.
constexpr TablePoint tablePoints[] = {
    {0, cooling, 0, 577.319700, 259.004740, 232.000000},
    {0, cooling, 1, 465.071485, 210.072245, 187.383000},
    {0, heating, 0, 372.142878, 238.571484, 221.250000},
    {0, heating, 1, 301.905310, 189.527022, 175.146600},
    {1, cooling, 0, 522.975950, 249.071310, 223.076600},
    {1, cooling, 1, 419.571861, 199.578837, 178.459600},
    {1, heating, 0, 352.975450, 223.450210, 207.416000},
    {1, heating, 1, 281.428513, 179.523701, 165.931700},
    {2, cooling, 0, 469.506700, 234.493100, 214.154000},
    {2, cooling, 1, 373.803514, 170.155274, 169.540700},
    {2, heating, 0, 331.904857, 209.286377, 193.586400},
    {2, heating, 1, 266.785785, 169.881133, 156.715730},
    {3, cooling, 0, 408.768450, 229.636834, 205.230000},
    {3, cooling, 1, 329.857072, 179.856598, 160.612800},
    {3, heating, 0, 315.833410, 199.405410, 184.375400},
    {3, heating, 1, 249.762410, 159.525970, 147.597400},
};

TEST(FeetPerTon, OfEveryPipeAgreeWithASecondRoute) {
    for (const auto& [size, mode, style, near, bound, far] : tablePoints) {
        SCOPED_TRACE(testing::Message() << size << " " << mode << " " << style);
        const LoopPipe pipe{style, size};
        const double sign = mode == cooling ? 1 : -1;
        EXPECT_NEAR(feetPerTon(pipe, mode, sign * 5), near, 1e-6);
        EXPECT_NEAR(feetPerTon(pipe, mode, mode == cooling ? 13 : -9), bound, 1e-6);
        EXPECT_NEAR(feetPerTon(pipe, mode, mode == cooling ? 20 : -14), far, 1e-6);
    }
}

TEST(FeetPerTon, FollowTheCubicUpToItsBoundsAndTheLineBehindThem) {
    // Coils of 3/4 inch; cooling: cubic 259.00474, line 312 - 4 * 13.0001; heating: cubic 238.5715,
    // line 273.75 - 3.75 * 9.0001
    const LoopPipe pipe{0, 0};
    EXPECT_NEAR(feetPerTon(pipe, cooling, 13), 259.00474, 1e-5);
    EXPECT_NEAR(feetPerTon(pipe, cooling, 13.0001), 259.9996, 1e-9);
    EXPECT_NEAR(feetPerTon(pipe, heating, -9), 238.571484, 1e-5);
    EXPECT_NEAR(feetPerTon(pipe, heating, -9.0001), 239.999625, 1e-9);
}

TEST(FeetPerTon, JoinCloselyButNotExactlyAtTheBounds) {
    for (const TablePoint& point : tablePoints) {
        SCOPED_TRACE(testing::Message() << point.size << " " << point.mode << " " << point.style);
        const double beyond = point.mode == cooling ? 13.0001 : -9.0001;
        const double line = feetPerTon({point.style, point.size}, point.mode, beyond);
        const bool poorFit = point.size == 2 && point.mode == cooling;  // 5.5 and 19.8 ft
        EXPECT_NE(line, point.bound);
        EXPECT_NEAR(line, point.bound, poorFit ? 20 : 1.6);
    }
}

TEST(FeetPerTon, OnTheWrongSideOfTheWaterAreStillThoseOfTheCubic) {
    // 970.35714 + 205.05952 * 2 + 21.25 * 4 + 0.8333333 * 8
    EXPECT_NEAR(feetPerTon({0, 0}, heating, 2), 1472.142846, 1e-5);
    // 1442.824 + 270.23656 * 2 + 22.95499 * 4 + 0.70557 * 8
    EXPECT_NEAR(feetPerTon({0, 0}, cooling, -2), 2080.76164, 1e-5);
}

TEST(FeetPerTon, OfAPipeOutsideTheTableAreASubscriptOutOfRange) {
    expectError(9, [] { feetPerTon({0, 4}, cooling, 10); });
    expectError(9, [] { feetPerTon({2, 3}, heating, -5); });
    expectError(9, [] { feetPerTon({-1, 0}, cooling, 10); });
    expectError(6, [] { feetPerTon({0, 1e6}, cooling, 10); });
}

/// 8 tons of cooling and 7 of heating.
LoopLengthTerms loads() {
    LoopLengthTerms terms;
    terms.approachTemp = {10, -5};
    terms.peakLoad = {96, 84};
    terms.peakDemand = {8, 6};
    terms.inletTemp = {85, 40};
    terms.outletTemp = terms.inletTemp;
    terms.fluid = sampleWater;
    return terms;
}

/// Outlets at 3 gpm per ton: 500.5728 Btu/hr for each gpm and degF of water;
/// (96 + 3.412 * 8) 1000/(500.5728 * 24) = 10.263, (84 - 3.412 * 6) 1000/(500.5728 * 21) = 6.0435
LoopLengthTerms atTableFlow() {
    LoopLengthTerms terms = loads();
    terms.outletTemp = {85 + 123296 / (500.5728 * 24), 40 - 63528 / (500.5728 * 21)};
    return terms;
}

TEST(LoopLength, AtTheTablesFlowIsTheTablesTimesTheTons) {
    const ByMode<double> length = calculateLoopLength(coil, atTableFlow());
    // 1224.5566 - 2150.1288 + 1754.685 - 521.5 = 307.6128; 352.97545
    EXPECT_NEAR(length[cooling], 8 * 307.6128, 1e-6);
    EXPECT_NEAR(length[heating], 7 * 352.97545, 1e-6);
}

TEST(LoopLength, AtAnotherFlowIsCorrectedForTheMeanTemperatureOfTheFluid) {
    LoopLengthTerms terms = loads();
    terms.outletTemp = {97, 33};
    const ByMode<double> length = calculateLoopLength(coil, terms);
    // 307.6128 (10 + 10.2629/2)/(10 + 6) * 8, 352.97545 (-5 - 6.04335/2)/(-5 - 3.5) * 7
    EXPECT_NEAR(length[cooling], 8 * 307.6128 * (10 + 123296 / (500.5728 * 48)) / 16, 1e-6);
    EXPECT_NEAR(length[cooling], 2327.3146, 1e-4);
    EXPECT_NEAR(length[heating], 7 * 352.97545 * (5 + 63528 / (500.5728 * 42)) / 8.5, 1e-6);
    EXPECT_NEAR(length[heating], 2331.7877, 1e-4);
}

TEST(LoopLength, OfAModeWithoutLoadIsNone) {
    LoopLengthTerms terms = atTableFlow();
    terms.peakLoad[heating] = 0;
    terms.peakDemand[heating] = 0;
    terms.outletTemp[heating] = 40;
    const ByMode<double> length = calculateLoopLength(coil, terms);
    EXPECT_NEAR(length[cooling], 8 * 307.6128, 1e-6);
    EXPECT_EQ(length[heating], 0);
}

TEST(LoopLength, IsNeverNegativeAndTheOtherModeStands) {
    LoopLengthTerms terms = atTableFlow();
    // beyond the end of the line: 300 - 3.84617 * 80 = -7.69
    terms.approachTemp[cooling] = 80;
    ByMode<double> length = calculateLoopLength(coil, terms);
    EXPECT_EQ(length[cooling], 0);
    EXPECT_NEAR(length[heating], 7 * 352.97545, 1e-6);
    // the mean of the fluid lies below the water at 3 gpm per ton and above it at the design flow
    terms.approachTemp[cooling] = -6;
    terms.outletTemp[cooling] = 100;
    length = calculateLoopLength(coil, terms);
    EXPECT_EQ(length[cooling], 0);
}

TEST(LoopLength, OfFluidAsWarmAsTheWaterOnTheMeanIsADivisionByZero) {
    LoopLengthTerms terms = loads();
    terms.outletTemp[cooling] = 85 - 20;  // 10 + (65 - 85)/2
    expectError(11, [&] { calculateLoopLength(coil, terms); });
}

TEST(LoopLength, OfNothingOverNothingIsADivisionByZero) {
    LoopLengthTerms terms = loads();
    terms.peakLoad[heating] = 0;
    terms.peakDemand[heating] = 0;
    terms.approachTemp[heating] = 0;
    expectError(11, [&] { calculateLoopLength(coil, terms); });
}

TEST(LoopLength, OfAFluidWithoutDensityOrHeatIsADivisionByZeroWhereThereIsALoad) {
    LoopLengthTerms terms = loads();
    terms.fluid = {0, 1};
    expectError(11, [&] { calculateLoopLength(coil, terms); });
    terms.fluid = {62.4, 0};
    expectError(11, [&] { calculateLoopLength(coil, terms); });
    terms.peakLoad = {0, 0};
    EXPECT_EQ(calculateLoopLength(coil, terms), (ByMode<double>{0, 0}));
}

TEST(LoopLength, BeyondAllFiguresOverflows) {
    LoopLengthTerms terms = loads();
    terms.approachTemp[cooling] = -1e120;
    expectError(6, [&] { calculateLoopLength(coil, terms); });
}

}  // namespace
}  // namespace varnholt::modCalculations
