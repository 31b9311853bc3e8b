// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/bore_field.h"

#include <gtest/gtest.h>

#include <cmath>

#include "design/secondOpinion/bore_groups.h"
#include "design/secondOpinion/line_source_response.h"

namespace varnholt::secondOpinion {
namespace {

BoreField measured(std::vector<BorePosition> bores) {
    BoreField field(std::move(bores));
    while (!field.measureMore()) {
    }
    return field;
}

BoreGroups groupsOf(const BoreField& field, std::size_t most = mostGroups) {
    BoreGrouping grouping(field, {250, 4, 0.2}, most);
    while (!grouping.step()) {
    }
    return grouping.groups();
}

TEST(BoreField, FindsTheBoresThatHaveTheSamePart) {
    // A quarter of a rectangle; an eighth of a square with its diagonal and its middle lines.
    EXPECT_EQ(measured(rectangularField(6, 4, 20)).classCount(), 6u);
    EXPECT_EQ(measured(rectangularField(5, 4, 20)).classCount(), 6u);
    EXPECT_EQ(measured(rectangularField(3, 3, 20)).classCount(), 3u);
    EXPECT_EQ(measured(rectangularField(50, 50, 20)).classCount(), 325u);
    EXPECT_EQ(measured(rectangularField(1, 1, 20)).classCount(), 1u);
    // An L with legs of the same length has its diagonal alone, one with unlike legs nothing.
    EXPECT_EQ(measured({{0, 0}, {1, 0}, {2, 0}, {0, 1}, {0, 2}}).classCount(), 3u);
    EXPECT_EQ(measured({{0, 0}, {1, 0}, {2, 0}, {0, 1}}).classCount(), 4u);
}

TEST(BoreField, KnowsEveryDistance) {
    const std::vector<BorePosition> bores{{0, 0}, {3, 4}, {10, 0}, {0.5, 11}, {-7, 2}};
    const BoreField field = measured(bores);
    ASSERT_EQ(field.classCount(), 5u);
    for (std::size_t i = 0; i < 5; ++i)
        for (std::size_t j = 0; j < 5; ++j) {
            const double square =
                std::pow(bores[i].x - bores[j].x, 2) + std::pow(bores[i].y - bores[j].y, 2);
            EXPECT_NEAR(field.squares()[field.squareIndices(i)[j]], square, 1e-3 * square);
        }
}

TEST(BoreField, KeepsItsDistancesInAscendingOrder) {
    const BoreField field = measured(rectangularField(9, 7, 15));
    EXPECT_EQ(field.squares().front(), 0);
    for (std::size_t i = 1; i < field.squares().size(); ++i)
        EXPECT_LT(field.squares()[i - 1], field.squares()[i]);
}

TEST(BoreGroups, HoldEveryBoreOnceAndTheOuterOnesGiveMore) {
    const BoreField field = measured(rectangularField(12, 10, 20));
    BoreGrouping grouping(field, {250, 4, 0.2}, mostGroups);
    while (!grouping.step()) {
    }
    ASSERT_EQ(grouping.groups().count(), mostGroups);
    double bores = 0;
    for (const double size : grouping.groups().size) bores += size;
    EXPECT_EQ(bores, 120);
    // The first bore stands in a corner, of the group that gives most, with the three others.
    EXPECT_EQ(grouping.groups().ofClass[field.classOf(0)], mostGroups - 1);
    EXPECT_EQ(grouping.groups().size.back(), 4);
    EXPECT_GT(grouping.heats()[field.classOf(0)], 2 * grouping.heats()[field.classOf(4 * 12 + 5)]);
}

TEST(BoreGroups, AreNoMoreThanTheKindsOfBores) {
    EXPECT_EQ(groupsOf(measured(rectangularField(1, 1, 20))).count(), 1u);
    EXPECT_EQ(groupsOf(measured(rectangularField(2, 2, 20))).count(), 1u);
    EXPECT_EQ(groupsOf(measured(rectangularField(3, 3, 20))).count(), 3u);
    EXPECT_EQ(groupsOf(measured(rectangularField(6, 4, 20))).count(), 6u);
    EXPECT_EQ(groupsOf(measured(rectangularField(6, 4, 20)), 2).count(), 2u);
}

TEST(BoreGroups, SolveForTheHeatsOfEqualWalls) {
    // Two unlike kinds of bores in a row of three: a middle m and two ends e with
    // e (a + b2) + m b1 = 1 and 2 e b1 + m a = 1, b1 and b2 at one and two spacings.
    const BoreField field = measured(rectangularField(3, 1, 20));
    BoreGrouping grouping(field, {250, 4, 0.2}, mostGroups);
    while (!grouping.step()) {
    }
    const double a = steadyResponse(0.2, 250, 4), b1 = steadyResponse(20, 250, 4),
                 b2 = steadyResponse(40, 250, 4);
    const double determinant = (a + b2) * a - 2 * b1 * b1;
    EXPECT_NEAR(grouping.heats()[field.classOf(0)], (a - b1) / determinant, 1e-9);
    EXPECT_NEAR(grouping.heats()[field.classOf(1)], (a + b2 - 2 * b1) / determinant, 1e-9);
}

TEST(Classification, FindsTheBestCut) {
    using Groups = std::vector<std::size_t>;
    EXPECT_EQ(classifyValues({1, 2, 10, 11, 30}, {1, 1, 1, 1, 1}, 3), (Groups{0, 0, 1, 1, 2}));
    EXPECT_EQ(classifyValues({1, 2, 3}, {1, 1, 1}, 6), (Groups{0, 1, 2}));
    EXPECT_EQ(classifyValues({1, 2, 3, 4}, {1, 1, 1, 1}, 1), (Groups{0, 0, 0, 0}));
    // Costs of the two cuts of 0, 4, 9: {0, 4} 8 w, {4, 9} 12.5; a heavy 0 makes the first one
    // dear: weights 1: 8 < 12.5; weights 9, 1, 1: 9 1/10 16 = 14.4 > 12.5.
    EXPECT_EQ(classifyValues({0, 4, 9}, {1, 1, 1}, 2), (Groups{0, 0, 1}));
    EXPECT_EQ(classifyValues({0, 4, 9}, {9, 1, 1}, 2), (Groups{0, 1, 1}));
}

TEST(Classification, AgreesWithTryingEveryCut) {
    const std::vector<double> values{0.3, 0.9, 1.1, 2.2, 2.3, 2.9, 4.4, 4.6, 5.0, 7.7};
    const std::vector<double> weights{4, 2, 2, 1, 4, 4, 2, 1, 2, 4};
    const auto cost = [&](std::size_t from, std::size_t to) {
        double sum = 0, weight = 0, result = 0;
        for (std::size_t i = from; i < to; ++i) sum += weights[i] * values[i], weight += weights[i];
        for (std::size_t i = from; i < to; ++i)
            result += weights[i] * std::pow(values[i] - sum / weight, 2);
        return result;
    };
    double best = 1e9;
    for (std::size_t a = 1; a < 8; ++a)
        for (std::size_t b = a + 1; b < 9; ++b)
            for (std::size_t c = b + 1; c < 10; ++c)
                best = std::min(best, cost(0, a) + cost(a, b) + cost(b, c) + cost(c, 10));
    const auto groups = classifyValues(values, weights, 4);
    double found = 0;
    for (std::size_t from = 0; from < values.size();) {
        std::size_t to = from;
        while (to < values.size() && groups[to] == groups[from]) ++to;
        found += cost(from, to);
        from = to;
    }
    EXPECT_EQ(groups.back(), 3u);
    EXPECT_NEAR(found, best, 1e-12);
}

TEST(SteadyResponse, IsTheDoubleIntegralOfOneOverTheDistance) {
    // By midpoints of 400 by 400 pieces, bores of 100 ft from 4 ft down, 20 ft apart.
    const int pieces = 400;
    const double piece = 100.0 / pieces;
    double sum = 0;
    for (int i = 0; i < pieces; ++i)
        for (int j = 0; j < pieces; ++j) {
            const double u = 4 + (i + 0.5) * piece, v = 4 + (j + 0.5) * piece;
            sum += 1 / std::hypot(20, u - v) - 1 / std::hypot(20, u + v);
        }
    EXPECT_NEAR(steadyResponse(20, 100, 4), sum * piece * piece / 200, 1e-5);
}

}  // namespace
}  // namespace varnholt::secondOpinion
