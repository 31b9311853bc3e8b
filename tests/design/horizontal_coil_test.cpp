// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "design/modCalculations/coil_length.h"
#include "design/modCalculations/trench_lengths.h"
#include "expect_error.h"

namespace varnholt::modCalculations {
namespace {

TEST(CoilLength, AgreesWithAHandCalculation) {
    // Pitch 18, load held at 30: by load the cubic of 30 at 18:
    // 31.99116 + 3.34444*18 - 0.044088*324 + 0.0002732*5832 = 79.499870
    // by pitch the cubic of 18 at 30 (interval 10 to 18, upper end):
    // 76.47498 + 0.08024*30 + 0.001039*900 - 0.0000064*27000 = 79.644480
    EXPECT_NEAR(coilLengthFor(18, 0.4), (79.499870 + 79.644480) / 2, 1e-5);
}

TEST(CoilLength, AgreesWithASecondRouteOverBothGrids) {
    const double partLoads[]{30, 45, 50, 60, 100};
    const struct {
        double pitch;
        double length[5];
    } cases[]{
        {10, {61.175585000, 62.577882500, 63.184715000, 66.114580000, 83.806200000}},
        {14, {70.634788900, 72.513884050, 73.215924100, 75.261034900, 85.813736100}},
        {18, {79.572175200, 81.678338400, 82.392342800, 83.823624200, 88.494401800}},
        {30, {99.115096667, 100.264569167, 100.672793333, 101.713491667, 103.169495000}},
        {36, {107.745040600, 108.203720950, 108.388239400, 109.517286600, 111.068328400}},
        {50, {122.845186500, 122.472865875, 122.358246500, 123.151156500, 125.018756500}},
        {56, {128.999061600, 129.001811700, 129.002728400, 128.998947600, 128.996547400}},
    };
    for (const auto& [pitch, lengths] : cases)
        for (std::size_t i = 0; i < 5; ++i)
            EXPECT_NEAR(coilLengthFor(pitch, partLoads[i]), lengths[i], 1e-8)
                << pitch << ", " << partLoads[i];
}

TEST(CoilLength, OfAFractionIsThatOfTheLowestPartLoad) {
    for (double factor : {0.001, 0.3, 0.63, 1.0})
        EXPECT_EQ(coilLengthFor(24, factor), coilLengthFor(24, 30));
    EXPECT_EQ(coilLengthFor(24, 120), coilLengthFor(24, 100));
    EXPECT_NE(coilLengthFor(24, 63), coilLengthFor(24, 0.63));
}

TEST(CoilLength, OfAPitchOutsideTheTableIsThatAtItsEnd) {
    EXPECT_EQ(coilLengthFor(8, 0.4), coilLengthFor(10, 0.4));
    EXPECT_EQ(coilLengthFor(0, 0.4), coilLengthFor(10, 0.4));
    EXPECT_EQ(coilLengthFor(80, 0.4), coilLengthFor(56, 0.4));
}

TEST(CoilPipe, AgreesWithAHandCalculation) {
    // (100 - 3)/1.5 = 64.666667 loops of 9.424778 ft, twice 1.5 ft from each to the next:
    // 609.468968 + 194 + 4.712389 + 3
    EXPECT_NEAR(coilPipeLength(100, 18, 36), 811.181357, 1e-5);
    EXPECT_NEAR(coilPipeLength(100, 18, 36), 811.181363075, 1e-8);
}

TEST(CoilPipe, OfNoTrenchIsNone) {
    EXPECT_EQ(coilPipeLength(0, 18, 36), 0);
    EXPECT_EQ(coilPipeLength(-5, 18, 36), 0);
    EXPECT_EQ(coilPipeLength(0, 0, 36), 0);
}

TEST(CoilPipe, OfATrenchShorterThanALoopCountsALoopLessThanNone) {
    // (2 - 3)/(10/12) = -1.2 loops: -11.309734 - 2 + 4.712389 + 3
    EXPECT_NEAR(coilPipeLength(2, 10, 36), -5.597345, 1e-6);
}

TEST(CoilPipe, WithoutAPitchIsADivisionByZero) {
    expectError(11, [] { coilPipeLength(100, 0, 36); });
}

TEST(TrenchLengths, AreSharesOfThePipe) {
    EXPECT_EQ(totalTrenchLength(1200, 4), 300);
    EXPECT_EQ(singleTrenchLength(1200, 4, 3), 100);
    EXPECT_EQ(pipeLengthPerTrench(1200, 3), 400);
}

TEST(TrenchLengths, WithoutPipesOrTrenchesAreNone) {
    EXPECT_EQ(totalTrenchLength(1200, 0), 0);
    EXPECT_EQ(singleTrenchLength(1200, 4, 0), 0);
    EXPECT_EQ(pipeLengthPerTrench(1200, 0), 0);
}

}  // namespace
}  // namespace varnholt::modCalculations
