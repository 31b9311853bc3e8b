// SPDX-License-Identifier: GPL-3.0-or-later

#include "design/whatIf/lattice_fields.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <random>
#include <set>

#include "design/modCalculations/bore_grid.h"
#include "design/whatIf/field_finder.h"

namespace varnholt {
namespace {

Land rectangle(double across, double down, double clearance = 0) {
    return {rectangleOf(across, down), {}, clearance, 0};
}

Lattice laid(const Land& land, double separation, int x = 0, int y = 0) {
    Lattice lattice(land, separation, x, y);
    while (!lattice.isLaid()) lattice.layRow(land);
    return lattice;
}

std::vector<LatticeField> fieldsOf(const Land& land, const LayoutValues& layout) {
    FieldFinder finder(land, layout);
    while (!finder.step()) {
    }
    return finder.fields();
}

LayoutValues only(double separation, LayoutKind kind = wholeRectangles) {
    LayoutValues layout;
    layout.spacingFrom = layout.spacingTo = separation;
    layout.layoutKind = kind;
    return layout;
}

using Shape = std::array<std::size_t, 3>;
std::set<Shape> shapesOf(const std::vector<LatticeField>& fields) {
    std::set<Shape> shapes;
    for (const LatticeField& field : fields)
        shapes.insert({field.rows, field.columns, field.bores});
    return shapes;
}

TEST(Lattice, WeighsNeighboursAsTheClassicalCountDoes) {
    for (std::size_t rows = 1; rows <= 12; ++rows)
        for (std::size_t columns = 1; columns <= 12; ++columns) {
            const Lattice lattice = laid(rectangle(120, 120), 10);
            const auto count = modCalculations::countNeighbours(static_cast<double>(rows),
                                                                static_cast<double>(columns));
            const double classical = count[4] + 0.5 * count[3] + 0.25 * count[2] + 0.1 * count[1];
            EXPECT_NEAR(lattice.weightIn({0, 0, rows, columns}), classical, 1e-12);
            EXPECT_NEAR(lattice.fieldOf({0, 0, rows, columns}).neighbourWeight, classical, 1e-12);
        }
}

TEST(Lattice, WeighsTheNeighboursOfAFieldWithAGap) {
    // 3 by 3 without its middle: corners have two neighbours, the four others two as well.
    Land land = rectangle(20, 20);
    land.noGo.push_back({{9, 9}, {11, 9}, {11, 11}, {9, 11}});
    EXPECT_NEAR(laid(land, 10).weightIn({0, 0, 3, 3}), 8 * 0.25, 1e-12);
}

TEST(Lattice, WeighsTheNeighboursOfScatteredBoresAsTheyStand) {
    std::mt19937 random(6);
    std::uniform_real_distribution<double> place(0, 130);
    Land land = rectangle(140, 100);
    for (int i = 0; i < 40; ++i) {
        const double x = place(random), y = place(random);
        land.noGo.push_back({{x, y}, {x + 11, y}, {x + 4, y + 9}});
    }
    const Lattice lattice = laid(land, 5);
    const Lattice::Window window{2, 1, 23, 17};
    const auto isBore = [&](std::size_t i, std::size_t j) {
        const bool inside = i >= window.i && i < window.i + window.rows && j >= window.j &&
                            j < window.j + window.columns;
        return inside && land.allows(lattice.place(i, j));
    };
    double weight = 0;
    std::size_t bores = 0;
    for (std::size_t j = window.j; j < window.j + window.columns; ++j)
        for (std::size_t i = window.i; i < window.i + window.rows; ++i) {
            if (!isBore(i, j)) continue;
            ++bores;
            const int neighbours =
                isBore(i - 1, j) + isBore(i + 1, j) + isBore(i, j - 1) + isBore(i, j + 1);
            weight += std::array{0.0, 0.1, 0.25, 0.5, 1.0}.at(static_cast<std::size_t>(neighbours));
        }
    EXPECT_GT(bores, 50u);
    EXPECT_LT(bores, 23u * 17u);
    EXPECT_NEAR(lattice.weightIn(window), weight, 1e-9);
}

TEST(Lattice, CountsThePlacesOfEveryWindow) {
    std::mt19937 random(4);
    std::uniform_real_distribution<double> place(0, 90);
    Land land = rectangle(100, 80, 3);
    for (int i = 0; i < 6; ++i) {
        const double x = place(random), y = place(random);
        land.noGo.push_back({{x, y}, {x + 12, y}, {x + 5, y + 9}});
    }
    land.noGoClearance = 1;
    const Lattice lattice = laid(land, 7, 1, 3);
    EXPECT_EQ(lattice.place(0, 0), (Point{3 + 7 / 4.0, 3 + 21 / 4.0}));
    for (std::size_t j = 0; j < lattice.down(); ++j)
        for (std::size_t i = 0; i < lattice.across(); ++i) {
            EXPECT_EQ(lattice.allows(i, j), land.allows(lattice.place(i, j)));
            std::size_t count = 0;
            for (std::size_t v = j; v < lattice.down(); ++v)
                for (std::size_t u = i; u < lattice.across(); ++u)
                    count += land.allows(lattice.place(u, v)) ? 1 : 0;
            EXPECT_EQ(lattice.countIn({i, j, lattice.across() - i, lattice.down() - j}), count);
        }
}

TEST(Fields, OfARectangleAreAllThatFitWithTheirMirrorImagesTakenOnce) {
    // 30 by 20 ft at 10 ft: 4 places across, 3 down. Of 1x2 and 2x1 the one with more rows across
    // stays, and so on; 4x3 has no mirror image that fits.
    EXPECT_EQ(shapesOf(fieldsOf(rectangle(30, 20), only(10))), (std::set<Shape>{{1, 1, 1},
                                                                                {2, 1, 2},
                                                                                {3, 1, 3},
                                                                                {4, 1, 4},
                                                                                {2, 2, 4},
                                                                                {3, 2, 6},
                                                                                {4, 2, 8},
                                                                                {3, 3, 9},
                                                                                {4, 3, 12}}));
    // Turned, those that fit across stay across, the longest ones stand down.
    EXPECT_EQ(shapesOf(fieldsOf(rectangle(20, 30), only(10))), (std::set<Shape>{{1, 1, 1},
                                                                                {2, 1, 2},
                                                                                {3, 1, 3},
                                                                                {1, 4, 4},
                                                                                {2, 2, 4},
                                                                                {3, 2, 6},
                                                                                {2, 4, 8},
                                                                                {3, 3, 9},
                                                                                {3, 4, 12}}));
    LayoutValues few = only(10);
    few.mostBores = 5;
    EXPECT_EQ(shapesOf(fieldsOf(rectangle(30, 20), few)).count({3, 2, 6}), 0u);
}

/// Every field of a land, by trying every window of every lattice place by place.
std::set<Shape> byBruteForce(const Land& land, double separation, LayoutKind kind) {
    std::map<std::pair<std::size_t, std::size_t>, std::size_t> best;
    for (int offset = 0; offset < 16; ++offset) {
        const Lattice lattice = laid(land, separation, offset / 4, offset % 4);
        for (std::size_t rows = 1; rows <= lattice.across(); ++rows)
            for (std::size_t columns = 1; columns <= lattice.down(); ++columns) {
                std::size_t most = 0;
                bool edges = false;
                for (std::size_t j = 0; j + columns <= lattice.down(); ++j)
                    for (std::size_t i = 0; i + rows <= lattice.across(); ++i) {
                        std::size_t bores = 0;
                        std::set<std::size_t> usedRows, usedColumns;
                        for (std::size_t v = 0; v < columns; ++v)
                            for (std::size_t u = 0; u < rows; ++u)
                                if (land.allows(lattice.place(i + u, j + v))) {
                                    ++bores;
                                    usedRows.insert(u);
                                    usedColumns.insert(v);
                                }
                        if (bores <= most) continue;
                        most = bores;
                        edges = usedRows.count(0) && usedRows.count(rows - 1) &&
                                usedColumns.count(0) && usedColumns.count(columns - 1);
                    }
                if (most == 0 || !edges || (kind == wholeRectangles && most < rows * columns))
                    continue;
                std::size_t& kept = best[{rows, columns}];
                kept = std::max(kept, most);
            }
    }
    std::set<Shape> shapes;
    for (const auto& [shape, bores] : best) {
        const auto& [rows, columns] = shape;
        const auto mirrored = best.find({columns, rows});
        if (rows < columns && bores == rows * columns && mirrored != best.end() &&
            mirrored->second == rows * columns)
            continue;
        shapes.insert({rows, columns, bores});
    }
    return shapes;
}

TEST(Fields, AreThoseOfBruteForceOnACrookedLand) {
    const Land land{{{0, 0}, {83, 6}, {91, 40}, {60, 44}, {52, 71}, {9, 66}},
                    {{{30, 20}, {41, 24}, {33, 33}}},
                    4,
                    3};
    for (const LayoutKind kind : {wholeRectangles, rowsCutToLand})
        for (const double separation : {9.0, 13.0}) {
            const auto fields = fieldsOf(land, only(separation, kind));
            EXPECT_EQ(shapesOf(fields), byBruteForce(land, separation, kind));
            EXPECT_GT(fields.size(), 5u);
        }
}

TEST(Fields, HaveNoBoreWithinAClearanceOnAnyLand) {
    std::mt19937 random(8);
    const auto draw = [&](double least, double most) {
        return std::uniform_real_distribution<double>(least, most)(random);
    };
    int tried = 0;
    while (tried < 40) {
        Land land;
        const int corners = static_cast<int>(draw(3, 9));
        for (int i = 0; i < corners; ++i) land.outline.push_back({draw(-40, 90), draw(-20, 90)});
        if (!isSimple(land.outline)) continue;
        ++tried;
        const double x = draw(0, 60), y = draw(0, 60);
        land.noGo.push_back({{x, y}, {x + draw(5, 20), y}, {x, y + draw(5, 20)}});
        land.boundaryClearance = draw(0, 6);
        land.noGoClearance = draw(0, 6);
        for (const LayoutKind kind : {wholeRectangles, rowsCutToLand})
            for (const LatticeField& field : fieldsOf(land, only(draw(6, 15), kind))) {
                const std::vector<Point> bores = boresOf(land, field);
                ASSERT_EQ(bores.size(), field.bores);
                for (const Point& bore : bores) {
                    EXPECT_GE(depthInside(land.outline, bore), land.boundaryClearance - 2e-7);
                    EXPECT_LE(depthInside(land.noGo[0], bore), 2e-7 - land.noGoClearance);
                }
            }
    }
}

TEST(Fields, AreTriedInGreaterStepsWhereTheyWouldBeTooMany) {
    LayoutValues layout;
    layout.spacingFrom = 3;
    layout.spacingTo = 30;
    layout.spacingStep = 1;
    FieldFinder finder(rectangle(1000, 1000), layout);
    while (!finder.step()) {
    }
    EXPECT_FALSE(finder.tooManyShapes());
    EXPECT_GT(finder.spacingStep(), 1);
    EXPECT_EQ(std::log2(finder.spacingStep()), std::floor(std::log2(finder.spacingStep())));
    for (const LatticeField& field : finder.fields())
        EXPECT_EQ(std::fmod(field.separation - 3, finder.spacingStep()), 0);
}

TEST(Fields, OfALargeLandAreFoundInManySlices) {
    // 666 places each way at 15 ft, so that every shape of up to 400 bores fits, across or down:
    // for c columns those of c to 400/c rows, the sum over c = 1 to 20 of floor(400/c) less c - 1.
    std::size_t shapes = 0;
    for (std::size_t c = 1; c <= 20; ++c) shapes += 400 / c - (c - 1);
    EXPECT_EQ(shapes, 1244u);
    FieldFinder finder(rectangle(10'000, 10'000, 10), only(15));
    std::size_t slices = 1;
    while (!finder.step()) ++slices;
    EXPECT_EQ(finder.fields().size(), shapes);
    // 16 lattices of 443,556 places, each measured from four sides.
    EXPECT_GT(slices, 200u);
}

TEST(Fields, AreNoneWhereTheLandIsTooSmall) {
    FieldFinder finder(rectangle(15, 15, 10), {});
    while (!finder.step()) {
    }
    EXPECT_FALSE(finder.hasPlace());
    EXPECT_TRUE(finder.fields().empty());
    EXPECT_EQ(fieldsOf(rectangle(20, 20, 10), {}).size(), 16u);  // one bore, at each separation
}

}  // namespace
}  // namespace varnholt
