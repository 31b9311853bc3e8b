// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "design/modCalculations/trench_limits.h"
#include "design/trench_rules.h"
#include "expect_error.h"

namespace varnholt {
namespace {

using namespace modCalculations;

/// A field as the window holds it.
struct HeldField {
    TrenchValues trench;
    HorizontalArrangementValues pipes;

    double& depth() { return trench.trenchGeometry[1]; }
    double& width() { return trench.trenchGeometry[2]; }
    double& rowStep() { return pipes.pipeSeparation[0]; }
    double& columnStep() { return pipes.pipeSeparation[1]; }
    void select(std::int16_t arrangement) { selectArrangement(arrangement, trench, pipes); }
    void take(double count) { takePipes(count, pipes); }
    bool deepen() { return deepenTrench(trench, pipes); }
    bool widen() { return widenTrench(trench, pipes); }
};

/// An arrangement with some pipes, wide and deep enough for any of them.
HeldField fieldOf(std::int16_t arrangement, double pipes, bool offset = false) {
    HeldField field;
    field.select(arrangement);
    field.take(pipes);
    field.pipes.offsetRows = offset ? 1 : 0;
    field.depth() = 30;
    field.width() = 100;
    return field;
}

TEST(HorizontalValues, OfANewDesignAreTheBuiltInOnes) {
    const HeldField field;
    EXPECT_EQ(field.trench.trenchCount, 1);
    EXPECT_EQ(field.trench.trenchGeometry, (std::array<double, 3>{20, 6, 8}));
    EXPECT_EQ(field.pipes.trenchConfiguration, singleColumn);
    EXPECT_EQ(field.pipes.pipesPerTrench, 1);
    EXPECT_EQ(field.pipes.offsetRows, 0);
    EXPECT_EQ(field.pipes.pipeSeparation, (std::array<double, 2>{12, 12}));
    EXPECT_EQ(field.pipes.coilGeometry, (std::array<double, 2>{10, 36}));
    EXPECT_EQ(field.pipes.predictionYears, 10);
}

TEST(ChoosingAnArrangement, BeginsWithOneRowOfPipes) {
    for (std::int16_t arrangement : {twoColumns, threeColumns, lyingCoil, standingCoil}) {
        HeldField field = fieldOf(singleColumn, 7);
        field.select(arrangement);
        EXPECT_EQ(field.pipes.pipesPerTrench, columnsOf(arrangement));
        EXPECT_EQ(field.pipes.trenchConfiguration, arrangement);
    }
    HeldField field = fieldOf(threeColumns, 9);
    field.select(singleColumn);
    EXPECT_EQ(field.pipes.pipesPerTrench, 1);
}

TEST(ChoosingAnArrangement, ThatIsChosenAlreadyKeepsItsPipesAndItsOffset) {
    for (std::int16_t arrangement : {singleColumn, twoColumns, threeColumns}) {
        HeldField field = fieldOf(arrangement, 6, true);
        field.select(arrangement);
        EXPECT_EQ(field.pipes.pipesPerTrench, 6);
        EXPECT_EQ(field.pipes.offsetRows, 1);
    }
}

TEST(ChoosingAnArrangement, TakesTheOffsetAwayWithTheRows) {
    for (std::int16_t arrangement : {singleColumn, threeColumns, lyingCoil, standingCoil}) {
        HeldField field = fieldOf(twoColumns, 6, true);
        field.select(arrangement);
        EXPECT_EQ(field.pipes.offsetRows, 0);
    }
}

TEST(ChoosingTwoColumns, SetsTheWidthToTheirStep) {
    HeldField field = fieldOf(singleColumn, 1);
    field.columnStep() = 17;
    field.select(twoColumns);
    EXPECT_EQ(field.width(), 17);
}

TEST(ChoosingTwoColumns, SetsTheWidthAlsoWhenTheyWereChosenAlready) {
    HeldField field = fieldOf(twoColumns, 6);
    field.columnStep() = 17;
    field.select(twoColumns);
    EXPECT_EQ(field.width(), 17);
    EXPECT_EQ(field.pipes.pipesPerTrench, 6);
}

TEST(ChoosingOneOrThreeColumns, KeepsTheWidth) {
    for (std::int16_t arrangement : {singleColumn, threeColumns}) {
        HeldField field = fieldOf(twoColumns, 4);
        field.select(arrangement);
        EXPECT_EQ(field.width(), 100);
    }
}

TEST(ChoosingALyingCoil, MakesTheTrenchEightInchesWideHoweverWideItWas) {
    for (double width : {2.0, 8.0, 100.0}) {
        HeldField field = fieldOf(singleColumn, 4, true);
        field.width() = width;
        field.select(lyingCoil);
        EXPECT_EQ(field.width(), 8);
        EXPECT_EQ(field.pipes.pipesPerTrench, 1);
        EXPECT_EQ(field.pipes.offsetRows, 0);
    }
}

TEST(ChoosingACoil, ThatIsChosenAlreadyLeavesASinglePipeWithoutOffset) {
    for (std::int16_t arrangement : {lyingCoil, standingCoil}) {
        HeldField field;
        field.pipes.trenchConfiguration = arrangement;
        field.pipes.pipesPerTrench = 5;  // as a file may hold
        field.pipes.offsetRows = 1;
        field.select(arrangement);
        EXPECT_EQ(field.pipes.pipesPerTrench, 1);
        EXPECT_EQ(field.pipes.offsetRows, 0);
    }
}

TEST(ChoosingAStandingCoil, MakesTheTrenchAsWideAsTheCoil) {
    HeldField field = fieldOf(singleColumn, 4);
    field.pipes.coilGeometry[1] = 30;
    field.select(standingCoil);
    EXPECT_EQ(field.width(), 30);
    field.width() = 50;
    field.select(standingCoil);
    EXPECT_EQ(field.width(), 30);
}

TEST(ChoosingNoArrangement, IsASubscriptOutOfRangeAndChangesNothing) {
    for (std::int16_t arrangement : {std::int16_t{-1}, std::int16_t{5}}) {
        HeldField field = fieldOf(twoColumns, 6, true);
        const HeldField before = field;
        expectError(9, [&] { field.select(arrangement); });
        EXPECT_EQ(field.pipes, before.pipes);
        EXPECT_EQ(field.trench, before.trench);
    }
}

TEST(NumberOfPipes, IsRoundedAndEndsTheOffsetAtOneRow) {
    HeldField field = fieldOf(twoColumns, 6, true);
    field.take(3.6);
    EXPECT_EQ(field.pipes.pipesPerTrench, 4);
    EXPECT_EQ(field.pipes.offsetRows, 1);
    field.take(2);
    EXPECT_EQ(field.pipes.offsetRows, 0);
    expectError(6, [&] { field.take(40000); });
}

TEST(NumberOfTrenches, IsRounded) {
    TrenchValues trench;
    takeTrenches(11.7, trench);
    EXPECT_EQ(trench.trenchCount, 12);
}

TEST(NumberOfPipes, EndsAt24InEveryStep) {
    for (int columns : {1, 2, 3}) EXPECT_EQ(static_cast<int>(mostPipesPerTrench) % columns, 0);
    EXPECT_EQ(mostPipesPerTrench, 24);
    EXPECT_EQ(mostTrenches, 1000);
}

TEST(TrenchDepth, OfLessThanTheStackBecomesExactlyTheStacksHeight) {
    // rows of 12 in: 6, 3 and 2 of them with 6 pipes
    const struct {
        std::int16_t arrangement;
        double stack;
    } cases[]{{singleColumn, 5}, {twoColumns, 2}, {threeColumns, 1}};
    for (const auto& [arrangement, stack] : cases) {
        HeldField field = fieldOf(arrangement, 6);
        field.depth() = stack - 0.01;
        EXPECT_TRUE(field.deepen());
        EXPECT_EQ(field.depth(), stack);
        EXPECT_FALSE(field.deepen());
        field.depth() = stack + 0.01;
        EXPECT_FALSE(field.deepen());
    }
}

TEST(TrenchDepth, OnceCorrectedIsNotCorrectedAgain) {
    // whatever the last digits of a step and a count of rows do
    for (int pipes = 1; pipes <= 24; ++pipes)
        for (double step = 0.1; step < 20; step += 0.7) {
            HeldField field = fieldOf(singleColumn, pipes);
            field.rowStep() = step;
            field.depth() = 0;
            field.deepen();
            EXPECT_FALSE(field.deepen()) << pipes << " pipes, " << step << " in";
        }
}

TEST(ReadingACoil, LeavesASinglePipeWithoutOffsetAndTheRestAsItWas) {
    for (std::int16_t arrangement : {lyingCoil, standingCoil}) {
        HeldField field;
        field.pipes.trenchConfiguration = arrangement;
        field.pipes.pipesPerTrench = 5;
        field.pipes.offsetRows = 1;
        settleCoil(field.pipes);
        EXPECT_EQ(field.pipes.pipesPerTrench, 1);
        EXPECT_EQ(field.pipes.offsetRows, 0);
        EXPECT_EQ(field.pipes.trenchConfiguration, arrangement);
    }
}

TEST(ReadingPipesSideBySide, LeavesTheirNumberAndOffset) {
    for (std::int16_t arrangement : {singleColumn, twoColumns, threeColumns}) {
        HeldField field = fieldOf(arrangement, 6, true);
        settleCoil(field.pipes);
        EXPECT_EQ(field.pipes.pipesPerTrench, 6);
        EXPECT_EQ(field.pipes.offsetRows, 1);
    }
}

TEST(TrenchDepth, OfACoilHasNoLimit) {
    for (std::int16_t arrangement : {lyingCoil, standingCoil}) {
        HeldField field = fieldOf(arrangement, 1);
        field.pipes.pipesPerTrench = 5;  // as a file may hold
        field.depth() = 0.1;
        EXPECT_FALSE(field.deepen());
    }
}

struct WidthCase {
    std::int16_t arrangement;
    double pipes;
    bool offset;
    double least;  ///< in, with columns 10 in apart and a coil of 36 in
};

TEST(TrenchWidth, OfLessThanThePipesBecomesExactlyTheirs) {
    const WidthCase cases[]{
        {singleColumn, 4, true, 10}, {twoColumns, 2, false, 10},   {twoColumns, 6, false, 10},
        {twoColumns, 6, true, 15},   {threeColumns, 3, false, 20}, {threeColumns, 6, false, 20},
        {threeColumns, 6, true, 25}, {standingCoil, 1, false, 36},
    };
    for (const auto& [arrangement, pipes, offset, least] : cases) {
        SCOPED_TRACE(testing::Message() << arrangement << ", " << pipes << ", " << offset);
        HeldField field = fieldOf(arrangement, pipes, offset);
        field.columnStep() = 10;
        field.width() = least - 0.01;
        EXPECT_TRUE(field.widen());
        EXPECT_EQ(field.width(), least);
        EXPECT_FALSE(field.widen());
    }
}

TEST(TrenchWidth, OfASingleColumnWithoutOffsetHasNoLimit) {
    HeldField field = fieldOf(singleColumn, 6);
    field.width() = 0;
    EXPECT_FALSE(field.widen());
    field = fieldOf(singleColumn, 1, true);
    field.width() = 0;
    EXPECT_FALSE(field.widen());
}

TEST(TrenchWidth, OfALyingCoilHasNoLimit) {
    HeldField field = fieldOf(lyingCoil, 1);
    field.width() = 8;
    EXPECT_FALSE(field.widen());
}

TEST(TrenchWidth, IsOneAndAHalfStepsOnceTwoColumnsAreOffset) {
    HeldField field = fieldOf(singleColumn, 1);
    field.select(twoColumns);
    field.take(4);
    EXPECT_EQ(field.width(), field.columnStep());
    EXPECT_FALSE(field.widen());
    field.pipes.offsetRows = 1;
    EXPECT_TRUE(field.widen());
    EXPECT_EQ(field.width(), 1.5 * field.columnStep());
}

TEST(Limits, NeverCorrectThePipes) {
    for (std::int16_t arrangement : {singleColumn, twoColumns, threeColumns, standingCoil}) {
        HeldField field = fieldOf(arrangement, arrangement == standingCoil ? 1 : 24, false);
        const HorizontalArrangementValues before = field.pipes;
        field.depth() = field.width() = 0;
        field.deepen();
        field.widen();
        EXPECT_EQ(field.pipes, before);
    }
}

TEST(CoilPitch, StaysWithinTheTablesLimits) {
    EXPECT_EQ(pitchWithinLimits(0), 20);
    EXPECT_EQ(pitchWithinLimits(9.9), 10);
    EXPECT_EQ(pitchWithinLimits(10), 10);
    EXPECT_EQ(pitchWithinLimits(33), 33);
    EXPECT_EQ(pitchWithinLimits(56), 56);
    EXPECT_EQ(pitchWithinLimits(56.1), 56);
}

}  // namespace
}  // namespace varnholt
