// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/g_function.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <stdexcept>
#include <tuple>
#include <utility>

#include "design/secondOpinion/published_fields.h"
#include "design/secondOpinion/symmetric_system.h"

namespace varnholt::secondOpinion {
namespace {

constexpr double fiftyYears = 8760 * 50 + 744;  // hr
constexpr BoreShape usualBore{250, 4, 0.208};   // ft
constexpr double usualAlpha = 0.75 / 24;        // ft^2/hr
const std::vector<double> someHours{1, 6, 24, 168, 720, 8760, 43800, 87600, 175200, 438000};

void expectSame(const GFunction& a, const GFunction& b, double tolerance) {
    for (const double hours : someHours)
        EXPECT_NEAR(a.at(hours), b.at(hours), tolerance * std::abs(b.at(hours))) << hours;
}

TEST(GFunction, AgreesWithAPublicLibrary) {
    const std::vector<PublishedField> fields = publishedFields();
    EXPECT_EQ(fields.size(), 7u);
    for (const PublishedField& field : fields) {
        SCOPED_TRACE(field.name);
        ASSERT_EQ(field.points.size(), 21u);
        const GFunction g = gFunctionOf(field);
        const double tolerance = field.columns * field.rows == 1 ? 0.0002 : 0.003;
        for (const PublishedField::Point& point : field.points)
            EXPECT_NEAR(g.at(point.hours), point.g, tolerance * point.g) << point.hours;
    }
}

TEST(GFunction, OfOneBoreStandsBesideThatOfItsField) {
    const GFunction field =
        gFunctionOf(rectangularField(3, 2, 20), usualBore, usualAlpha, fiftyYears);
    const GFunction bore = gFunctionOf({{7, 7}}, usualBore, usualAlpha, fiftyYears);
    for (const double hours : someHours) {
        EXPECT_NEAR(field.ofOneBoreAt(hours), bore.at(hours), 1e-12);
        EXPECT_EQ(bore.ofOneBoreAt(hours), bore.at(hours));
    }
}

TEST(GFunction, DoesNotDependOnTheOrderOfTheBores) {
    std::vector<BorePosition> bores = rectangularField(7, 4, 18);
    const GFunction ordered = gFunctionOf(bores, usualBore, usualAlpha, fiftyYears);
    std::mt19937 random(7);
    std::shuffle(bores.begin(), bores.end(), random);
    expectSame(gFunctionOf(bores, usualBore, usualAlpha, fiftyYears), ordered, 1e-9);
}

TEST(GFunction, DoesNotDependOnWhereAndHowTheFieldLies) {
    const auto bores = rectangularField(7, 4, 18);
    const GFunction asItIs = gFunctionOf(bores, usualBore, usualAlpha, fiftyYears);
    expectSame(gFunctionOf(rectangularField(4, 7, 18), usualBore, usualAlpha, fiftyYears), asItIs,
               1e-9);
    // Moved, and turned by 37 degrees: no reflection of the axes helps to find equal bores then.
    auto moved = bores, turned = bores;
    const double c = std::cos(37 * 0.017453292519943), s = std::sin(37 * 0.017453292519943);
    for (BorePosition& p : moved) p = {p.x + 1234.5, p.y - 98.7};
    for (BorePosition& p : turned) p = {c * p.x - s * p.y, s * p.x + c * p.y};
    expectSame(gFunctionOf(moved, usualBore, usualAlpha, fiftyYears), asItIs, 1e-7);
    expectSame(gFunctionOf(turned, usualBore, usualAlpha, fiftyYears), asItIs, 1e-6);
}

TEST(GFunction, TakesFreeLayouts) {
    // An L of seven bores and the same seen in a mirror; a bore far away makes hardly a difference
    // to the mean but for its own share.
    const std::vector<BorePosition> corner{{0, 0},  {20, 0}, {40, 0}, {60, 0},
                                           {0, 20}, {0, 40}, {0, 60}};
    std::vector<BorePosition> mirrored = corner;
    for (BorePosition& p : mirrored) p.x = -p.x;
    const GFunction g = gFunctionOf(corner, usualBore, usualAlpha, fiftyYears);
    expectSame(gFunctionOf(mirrored, usualBore, usualAlpha, fiftyYears), g, 1e-9);
    const GFunction line =
        gFunctionOf(rectangularField(7, 1, 20), usualBore, usualAlpha, fiftyYears);
    const GFunction block =
        gFunctionOf(rectangularField(4, 2, 20), usualBore, usualAlpha, fiftyYears);
    EXPECT_GT(g.at(438000), line.at(438000));
    EXPECT_LT(g.at(438000), block.at(438000));
}

TEST(GFunction, UngroupedAgreesWithGrouped) {
    const auto bores = rectangularField(6, 4, 20);
    const GFunction grouped = gFunctionOf(bores, usualBore, usualAlpha, fiftyYears);
    const GFunction each = gFunctionOf(bores, usualBore, usualAlpha, fiftyYears, {40, 24});
    EXPECT_EQ(grouped.groupCount(), 6u);
    expectSame(grouped, each, 0.001);
    // A field that the symmetry of the rectangle does not cut into six kinds of bores by itself.
    const auto large = rectangularField(9, 7, 20);
    expectSame(gFunctionOf(large, usualBore, usualAlpha, fiftyYears),
               gFunctionOf(large, usualBore, usualAlpha, fiftyYears, {40, 100}), 0.001);
}

TEST(GFunction, InTwiceAsManyStepsIsTheSame) {
    // 81 times in place of 41, each with half as many taken off: 0.07 percent apart at most, 0.12
    // where bores are many. From 321 it is hardly more.
    for (const auto& [across, down, apart] :
         {std::tuple{6, 4, 0.001}, {12, 10, 0.0013}, {20, 20, 0.0014}}) {
        SCOPED_TRACE(across);
        const auto bores = rectangularField(across, down, 20);
        const GFunction usual = gFunctionOf(bores, usualBore, usualAlpha, fiftyYears);
        const GFunction fine =
            gFunctionOf(bores, usualBore, usualAlpha, fiftyYears, {80, mostGroups});
        expectSame(usual, fine, apart);
        expectSame(usual, gFunctionOf(bores, usualBore, usualAlpha, fiftyYears, {320, mostGroups}),
                   apart);
    }
}

TEST(GFunction, OfAFieldIsThatOfOneBoreUntilTheNeighbourIsReached) {
    const GFunction g = gFunctionOf(rectangularField(5, 5, 20), usualBore, usualAlpha, fiftyYears);
    // E1(d^2/(4 alpha t))/2 of a neighbour 20 ft away after a week: E1(400/(4 0.03125 168))/2 =
    // E1(19.05)/2 = 1.3E-10.
    for (const double hours : {1.0, 6.0, 24.0, 168.0})
        EXPECT_NEAR(g.at(hours), g.ofOneBoreAt(hours), 2e-6 * g.at(hours)) << hours;
    EXPECT_GT(g.at(8760), 1.3 * g.ofOneBoreAt(8760));
}

/// The steady state in closed form: all segments of all bores, each solved for by itself. The
/// response of two segments is a difference of second integrals of 1/d, as that of whole bores is.
double steadyG(const std::vector<BorePosition>& bores, const BoreShape& shape) {
    const auto ends = segmentEnds(shape);
    const std::size_t unknowns = bores.size() * segmentCount;
    SymmetricSystem system(unknowns);
    std::vector<double> lengths;
    for (std::size_t i = 0; i < unknowns; ++i) {
        const std::size_t u = i % segmentCount;
        lengths.push_back(ends[u + 1] - ends[u]);
        for (std::size_t j = i; j < unknowns; ++j) {
            const std::size_t v = j % segmentCount;
            const BorePosition& a = bores[i / segmentCount];
            const BorePosition& b = bores[j / segmentCount];
            const double r = &a == &b ? shape.radius : std::hypot(a.x - b.x, a.y - b.y);
            const auto f = [r](double z) { return z * std::asinh(z / r) - std::hypot(z, r); };
            const auto m = [&](std::size_t x, std::size_t y) {
                return f(ends[y] - ends[x]) + f(ends[y] + ends[x]);
            };
            system.column(i)[j] = (m(u, v + 1) + m(u + 1, v) - m(u, v) - m(u + 1, v + 1)) / 2;
        }
    }
    if (!system.factorize()) throw std::runtime_error("no steady state");
    std::vector<double> heat = lengths;
    system.solve(heat);
    double sum = 0;
    for (std::size_t i = 0; i < unknowns; ++i) sum += lengths[i] * heat[i];
    return static_cast<double>(bores.size()) * shape.depth / sum;
}

TEST(GFunction, AfterLongTimesIsTheSteadyState) {
    const double late = 1e9;  // hr, a hundred thousand years
    const BoreShape shape{100, 4, 0.25};
    for (const auto& [across, down] : {std::pair{1, 1}, {2, 1}, {3, 3}, {6, 4}}) {
        const auto bores = rectangularField(across, down, 20);
        const double steady = steadyG(bores, shape);
        const GFunction g = gFunctionOf(bores, shape, usualAlpha, late);
        EXPECT_NEAR(g.at(late), steady, 1e-3 * steady) << across << " by " << down;
        EXPECT_NEAR(g.at(late / 10), steady, 1e-3 * steady) << across << " by " << down;
    }
}

TEST(GFunction, BeforeTheMarchIsTheLineSourceAtTheWall) {
    // Slow soil: the march begins at Fo = 0.1, after 0.1 0.208^2 24/0.01 = 10.4 hours. Before, g is
    // E1(1/(4 Fo))/2 less what the ends take away, of which there is 1 in 250 ft/0.2 ft.
    const double alpha = 0.01 / 24;
    const GFunction g = gFunctionOf(rectangularField(4, 4, 20), usualBore, alpha, fiftyYears);
    for (const double hours : {4.0, 6.0, 8.0, 10.0}) {
        const double fourier = alpha * hours / (0.208 * 0.208);
        EXPECT_NEAR(g.at(hours), exponentialIntegral(1 / (4 * fourier)) / 2, 2e-5) << hours;
    }
}

struct Extreme {
    double diffusivity;  ///< ft^2/day
    double depth, spacing;
    double radius = 0.208, buried = 4;
};

TEST(GFunction, RisesWithTimeAndWithEveryRowInSlowAndFastSoil) {
    for (const Extreme& e : {Extreme{0.001, 10, 1}, Extreme{0.001, 10, 100},
                             Extreme{0.001, 2000, 1}, Extreme{0.75, 10, 1}, Extreme{0.75, 250, 20},
                             Extreme{0.75, 2000, 1}, Extreme{1000, 10, 1}, Extreme{1000, 10, 100},
                             Extreme{1000, 2000, 1}, Extreme{1000, 2000, 100},
                             // Wide bores at the surface, where the march holds least.
                             Extreme{0.03, 10, 60, 0.9, 0}, Extreme{0.001, 10, 10, 1, 0},
                             Extreme{1, 10, 3, 1, 0}, Extreme{0.001, 300, 5, 1, 0}}) {
        SCOPED_TRACE("diffusivity " + std::to_string(e.diffusivity) + ", depth " +
                     std::to_string(e.depth) + ", spacing " + std::to_string(e.spacing));
        const BoreShape shape{e.depth, e.buried, e.radius};
        std::vector<double> lastOfFewer;
        for (const int rows : {1, 2, 3, 5, 8}) {
            const GFunction g = gFunctionOf(rectangularField(5, rows, e.spacing), shape,
                                            e.diffusivity / 24, fiftyYears);
            std::vector<double> values;
            for (double logarithm = 0; logarithm < std::log(fiftyYears); logarithm += 0.05)
                values.push_back(g.at(std::exp(logarithm)));
            for (std::size_t i = 1; i < values.size(); ++i)
                EXPECT_GE(values[i], values[i - 1] - 1e-5 * (0.1 + values[i])) << rows << " " << i;
            for (std::size_t i = 0; i < lastOfFewer.size(); ++i)
                EXPECT_GE(values[i], lastOfFewer[i] - 1e-3 * (0.1 + values[i])) << rows << " " << i;
            lastOfFewer = values;
        }
    }
}

TEST(GFunction, OfBoresAtTheSurfaceAndOfWideBoresIsFinite) {
    for (const BoreShape& shape :
         {BoreShape{10, 0, 0.05}, BoreShape{10, 100, 1}, BoreShape{2000, 0, 1}})
        for (const double diffusivity : {0.001, 1000.0}) {
            const GFunction g =
                gFunctionOf(rectangularField(3, 3, 3), shape, diffusivity / 24, fiftyYears);
            EXPECT_TRUE(g.isFinite());
            EXPECT_GT(g.at(438000), 0);
        }
}

}  // namespace
}  // namespace varnholt::secondOpinion
