// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "design/secondOpinion/cubic_spline.h"
#include "design/secondOpinion/cylinder_source.h"
#include "design/secondOpinion/published_fields.h"
#include "design/secondOpinion/pulse_term.h"
#include "design/secondOpinion/symmetric_system.h"

namespace varnholt::secondOpinion {
namespace {

TEST(LineSource, AtTheWallIsTheExponentialIntegral) {
    // E1(1/4) = 1.0442826, Abramowitz and Stegun table 5.1; over 4 pi 0.0831.
    EXPECT_NEAR(exponentialIntegral(0.25), 1.0442826, 1e-7);
    EXPECT_NEAR(exponentialIntegral(0.25) / (4 * std::numbers::pi), 0.0831, 5e-5);
    // A deep bore has no ends: its even response over 2 pi is G of the line.
    const BoreShape shape{1.0e4, 1.0e3, 0.2};
    const double alpha = 0.2 * 0.2;  // ft^2/hr, so that Fo is the time in hours
    BoreField field({{0, 0}});
    while (!field.measureMore()) {
    }
    const PairCounts pairs(field, {{0}, {1}});
    ResponseIntegral integral(pairs, shape, alpha);
    for (const double fourier : {0.1, 1.0, 10.0, 100.0}) {
        integral.advanceTo(fourier);
        EXPECT_NEAR(integral.table().ofEvenBore, exponentialIntegral(1 / (4 * fourier)) / 2,
                    1e-3 * 0.3)
            << fourier;
    }
    EXPECT_NEAR(exponentialIntegral(1.0 / 4) / 2 / (2 * std::numbers::pi), 0.0831, 5e-5);
}

TEST(LineSource, HasTheIntegralOfTheErrorFunction) {
    // x erf(x) - (1 - exp(-x^2))/sqrt(pi): for 1, 0.8427008 - 0.6321206/1.7724539 = 0.4860649.
    EXPECT_NEAR(integralOfErf(1), 0.4860649, 1e-7);
    EXPECT_EQ(integralOfErf(0), 0);
    EXPECT_EQ(integralOfErf(-1), integralOfErf(1));
    EXPECT_NEAR(integralOfErf(5.999999), integralOfErf(6.000001), 3e-6);
    // x^2/sqrt(pi) near 0.
    EXPECT_NEAR(integralOfErf(1e-5) * 1e10, 0.5641896, 1e-6);
}

TEST(Segments, FillTheBoreAndGrowToItsMiddle) {
    const auto ends = segmentEnds({300, 5, 0.2});
    EXPECT_EQ(ends.front(), 5);
    EXPECT_NEAR(ends.back(), 305, 1e-9);
    EXPECT_NEAR(ends[4], 155, 1e-9);
    EXPECT_NEAR(ends[1] - ends[0], 6, 1e-9);  // 2 percent of 300 ft
    const double growth = (ends[2] - ends[1]) / (ends[1] - ends[0]);
    EXPECT_NEAR((ends[3] - ends[2]) / (ends[2] - ends[1]), growth, 1e-9);
    EXPECT_NEAR((ends[4] - ends[3]) / (ends[3] - ends[2]), growth, 1e-9);
    EXPECT_NEAR(ends[8] - ends[7], 6, 1e-9);
}

TEST(Segments, OfAShallowWideBoreAreNoShorterThanHalfItsRadius) {
    const auto ends = segmentEnds({10, 0, 1});
    EXPECT_NEAR(ends[1], 0.5, 1e-9);
    EXPECT_NEAR(ends[8] - ends[7], 0.5, 1e-9);
    EXPECT_NEAR(ends[4], 5, 1e-9);
    // Eight equal ones at most.
    const auto equal = segmentEnds({10, 0, 6});
    for (std::size_t u = 0; u < segmentCount; ++u) EXPECT_NEAR(equal[u + 1] - equal[u], 1.25, 1e-9);
}

TEST(Responses, OfTwoSegmentsAreTheIntegralOverTheirPointSources) {
    // n_a l_u h is half the double integral of erfc(r/sqrt(4 alpha t))/r over both segments, less
    // that of the image; here by midpoints, for the third and the sixth segment of two bores.
    const BoreShape shape{100, 4, 0.25};
    const double alpha = 0.03, hours = 20000, spacing = 15;
    BoreField field(rectangularField(2, 1, spacing));
    while (!field.measureMore()) {
    }
    const PairCounts pairs(field, {{0}, {2}});
    ResponseIntegral integral(pairs, shape, alpha);
    for (const double time : {10.0, 700.0, hours}) integral.advanceTo(time);
    const auto ends = segmentEnds(shape);
    const auto pointSources = [&](double distance) {
        const int pieces = 300;
        const double du = (ends[3] - ends[2]) / pieces, dv = (ends[6] - ends[5]) / pieces;
        const auto source = [&](double r) {
            return std::erfc(r / std::sqrt(4 * alpha * hours)) / r;
        };
        double sum = 0;
        for (int i = 0; i < pieces; ++i)
            for (int j = 0; j < pieces; ++j) {
                const double u = ends[2] + (i + 0.5) * du, v = ends[5] + (j + 0.5) * dv;
                sum += source(std::hypot(distance, u - v)) - source(std::hypot(distance, u + v));
            }
        return sum * du * dv / 2;
    };
    // Two bores feel themselves and each other.
    const double expected = 2 * pointSources(0.25) + 2 * pointSources(spacing);
    EXPECT_NEAR(integral.table().ofGroups[segmentPair(2, 5)], expected, 1e-4 * expected);
    EXPECT_NEAR(integral.table().ofOneBore[segmentPair(2, 5)], pointSources(0.25), 1e-4 * expected);
}

TEST(CylinderSource, HasTheValuesOfTheTables) {
    const CylinderSource cylinder;
    EXPECT_NEAR(cylinder.wall(0.1), 0.050012, 1e-6);
    EXPECT_NEAR(cylinder.wall(1), 0.127665, 1e-6);
    EXPECT_NEAR(cylinder.wall(10), 0.262748, 1e-6);
    EXPECT_NEAR(cylinder.wall(100), 0.433362, 1e-6);
}

TEST(CylinderSource, BecomesALine) {
    const CylinderSource cylinder;
    double before = cylinder.overLine(1);
    for (double fourier = 2; fourier < 1e15; fourier *= 2) {
        const double now = cylinder.overLine(fourier);
        EXPECT_LE(now, before) << fourier;
        EXPECT_GE(now, 0) << fourier;
        before = now;
    }
    EXPECT_EQ(before, 0);
    EXPECT_NEAR(cylinder.wall(1e12), exponentialIntegral(0.25e-12) / (4 * std::numbers::pi), 1e-12);
}

TEST(CylinderSource, ExceedsTheLineAsInAPublicLibrary) {
    const CylinderSource cylinder;
    for (const PublishedField& field : publishedFields())
        for (const PublishedField::Point& point : field.points) {
            const double fourier =
                field.alpha * point.hours / (field.shape.radius * field.shape.radius);
            EXPECT_NEAR(cylinder.overLine(fourier), point.cylinder, 2e-6) << fourier;
        }
}

TEST(PulseTerm, LiesOnTheCylinderBetweenItsPoints) {
    const CylinderSource cylinder;
    const double perHour = 0.03125 / (0.2 * 0.2);
    const PulseTerm term(cylinder, perHour, 600);
    for (const double hours : {1.0, 4.0, 6.3, 12.0, 730.0, 87600.0})
        EXPECT_NEAR(term.at(hours), cylinder.overLine(perHour * hours), 2e-5) << hours;
    EXPECT_EQ(term.afterMonths(12), term.at(8760));
    EXPECT_EQ(PulseTerm().at(4), 0);
    EXPECT_EQ(PulseTerm().afterMonths(12), 0);
}

TEST(CubicSpline, GoesThroughItsPointsAndKeepsTheOuterValues) {
    const CubicSpline spline({0, 1, 3, 4}, {1, 2, 0, 5});
    EXPECT_EQ(spline.at(1), 2);
    EXPECT_EQ(spline.at(3), 0);
    EXPECT_EQ(spline.at(-1), 1);
    EXPECT_EQ(spline.at(9), 5);
    // A straight line has no curvature anywhere.
    const CubicSpline line({0, 1, 3, 4}, {1, 2, 4, 5});
    EXPECT_NEAR(line.at(2.2), 3.2, 1e-12);
    const CubicSpline two({0, 2}, {1, 5});
    EXPECT_NEAR(two.at(0.5), 2, 1e-12);
}

TEST(CubicSpline, GivesACubicAsItIs) {
    const auto cubic = [](double x) { return 2 - x + 0.5 * x * x - 0.25 * x * x * x; };
    const std::vector<double> x{-1, 0.5, 1, 2.5, 3, 5};
    std::vector<double> y;
    for (const double place : x) y.push_back(cubic(place));
    const CubicSpline spline(x, y);
    for (double place = -1; place <= 5; place += 0.125)
        EXPECT_NEAR(spline.at(place), cubic(place), 1e-12) << place;
    const CubicSpline four({x[0], x[1], x[2], x[3]}, {y[0], y[1], y[2], y[3]});
    EXPECT_NEAR(four.at(2), cubic(2), 1e-12);
}

TEST(CubicSpline, OfThreePointsIsTheNaturalOne) {
    // Points 0, 1, 0 at 0, 1, 2: the middle's second derivative m has (1 + 1) 2 m = 6 (-1 - 1), m =
    // -3; half-way up, 1/2 + (0.125 - 0.5) (-3)/6 = 0.6875.
    EXPECT_NEAR(CubicSpline({0, 1, 2}, {0, 1, 0}).at(0.5), 0.6875, 1e-12);
}

TEST(SymmetricSystem, IsSolved) {
    // [4 2 1; 2 5 3; 1 3 6] x = [7 10 10] has x = [1 1 1].
    SymmetricSystem system(3);
    const double matrix[3][3] = {{4, 2, 1}, {2, 5, 3}, {1, 3, 6}};
    for (std::size_t c = 0; c < 3; ++c)
        for (std::size_t r = c; r < 3; ++r) system.column(c)[r] = matrix[r][c];
    ASSERT_TRUE(system.factorize());
    std::vector<double> x{7, 10, 10};
    system.solve(x);
    for (const double value : x) EXPECT_NEAR(value, 1, 1e-14);
}

TEST(SymmetricSystem, OfMoreUnknownsIsSolved) {
    // The element of rows r >= c is 1 more than c, and 1 more on the diagonal: min(r, c) + 1 + [r =
    // c].
    const std::size_t n = 11;
    SymmetricSystem system(n);
    std::vector<double> side(n, 0), wanted;
    for (std::size_t i = 0; i < n; ++i) wanted.push_back(1.0 + 0.25 * static_cast<double>(i));
    for (std::size_t c = 0; c < n; ++c)
        for (std::size_t r = 0; r < n; ++r) {
            const double element = static_cast<double>(std::min(r, c)) + 1 + (r == c ? 1 : 0);
            if (r >= c) system.column(c)[r] = element;
            side[r] += element * wanted[c];
        }
    ASSERT_TRUE(system.factorize());
    system.solve(side);
    for (std::size_t i = 0; i < n; ++i) EXPECT_NEAR(side[i], wanted[i], 1e-12);
}

TEST(SymmetricSystem, TellsOneThatIsNotPositive) {
    SymmetricSystem system(2);
    system.column(0)[0] = 1;
    system.column(0)[1] = 2;
    system.column(1)[1] = 1;
    EXPECT_FALSE(system.factorize());
}

}  // namespace
}  // namespace varnholt::secondOpinion
