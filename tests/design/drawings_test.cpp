// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "borehole_window.h"
#include "design/modCalculations/bore_grid.h"

namespace varnholt {
namespace {

double distance(const PipeCircle& a, const PipeCircle& b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

TEST(BoreDrawing, ShowsASingleUTubeToScale) {
    const BoreDrawing drawing = drawBore({}, {});
    ASSERT_EQ(drawing.pipes.size(), 2u);
    EXPECT_EQ(drawing.boreDiameter, 5);
    EXPECT_EQ(drawing.pipes[0].outside, 1.9);
    EXPECT_EQ(drawing.pipes[0].inside, 1.55);
    // Gaps of (5 - 3.8)/3 = 0.4 between wall, pipe and pipe: middles 0.4 + 1.9 apart.
    EXPECT_NEAR(distance(drawing.pipes[0], drawing.pipes[1]), 2.3, 1e-12);
    EXPECT_TRUE(drawing.fits);
}

TEST(BoreDrawing, PutsTheLegsWhereTheirPlacementSays) {
    BoreValues bore;
    bore.pipePlacement = 0;
    BoreDrawing drawing = drawBore(bore, {});
    EXPECT_NEAR(distance(drawing.pipes[0], drawing.pipes[1]), 3.1, 1e-12);  // 5 - 1.9
    bore.pipePlacement = 2;
    drawing = drawBore(bore, {});
    EXPECT_NEAR(distance(drawing.pipes[0], drawing.pipes[1]), 1.9, 1e-12);
}

TEST(BoreDrawing, NeverLetsTwoLegsOverlap) {
    for (const double config : {0, 1})
        for (const double placement : {0, 1, 2})
            for (const double diameter : {0.0, 2.0, 4.5, 6.0, 12.0}) {
                BoreValues bore;
                bore.uTubeConfig = config;
                bore.pipePlacement = placement;
                bore.boreDiameter = diameter;
                const BoreDrawing drawing = drawBore(bore, {});
                ASSERT_EQ(drawing.pipes.size(), config == 1 ? 4u : 2u);
                for (std::size_t i = 1; i < drawing.pipes.size(); ++i)
                    EXPECT_GE(distance(drawing.pipes[i - 1], drawing.pipes[i]), 1.9 - 1e-9);
            }
}

TEST(BoreDrawing, SaysWhenThePipesDoNotFit) {
    BoreValues bore;
    bore.boreDiameter = 3.7;
    EXPECT_FALSE(drawBore(bore, {}).fits);
    bore.boreDiameter = 3.8;
    EXPECT_TRUE(drawBore(bore, {}).fits);
}

TEST(FieldPlan, KnowsTheNeighboursOfEachBore) {
    for (const double across : {1, 2, 3, 7})
        for (const double down : {1, 2, 3, 5}) {
            ArrangementValues field;
            field.patternRows = {across, down};
            const FieldPlan plan = drawField(field);
            modCalculations::NeighbourCount counted{};
            for (const int n : plan.neighbours) ++counted.at(static_cast<std::size_t>(n));
            EXPECT_EQ(counted, modCalculations::countNeighbours(across, down))
                << across << " by " << down;
        }
}

TEST(FieldPlan, IsReadRowByRow) {
    ArrangementValues field;
    field.patternRows = {3, 2};
    EXPECT_EQ(drawField(field).neighbours, (std::vector<int>{2, 3, 2, 2, 3, 2}));
    EXPECT_EQ(drawField(field).columnsDrawn, 3);
    EXPECT_EQ(drawField(field).rowsDrawn, 2);
}

TEST(FieldPlan, ShowsPartOfAFieldThatIsTooLarge) {
    ArrangementValues field;
    field.patternRows = {1e9, std::numeric_limits<double>::max()};
    const FieldPlan plan = drawField(field);
    EXPECT_TRUE(plan.cut);
    EXPECT_EQ(plan.neighbours.size(), 3600u);
    EXPECT_EQ(plan.neighbours.back(), 4);
    field.patternRows = {60, 60};
    EXPECT_FALSE(drawField(field).cut);
    field.patternRows = {-3, 0};
    EXPECT_TRUE(drawField(field).neighbours.empty());
}

using DrawingsOfADesign = BoreholeWindow;

TEST_F(DrawingsOfADesign, FollowTypingAndUnits) {
    type("PAPatternRowsText(0)", "3");
    type("PASeparationText", "25");
    type("PIBoreholeDiameterText", "6");
    EXPECT_EQ(design->boreDrawing().boreDiameter, 6);
    EXPECT_EQ(design->boreDrawing().boreLabel, "6.00 [2449]");
    EXPECT_EQ(design->fieldPlan().columnsDrawn, 3);
    EXPECT_EQ(design->fieldPlan().separationLabel, "25.0 [2512]");
    EXPECT_EQ(design->fieldPlan().acrossLabel, "50.0 [2512]");
    EXPECT_EQ(design->fieldPlan().downLabel, "75.0 [2512]");
    inMetric();
    EXPECT_EQ(design->boreDrawing().pipeLabel, "48.26 [2448]");
    EXPECT_EQ(design->fieldPlan().acrossLabel, "15.2 [2511]");
    EXPECT_TRUE(design->has("imgBore"));
    EXPECT_TRUE(design->has("imgField"));
}

}  // namespace
}  // namespace varnholt
