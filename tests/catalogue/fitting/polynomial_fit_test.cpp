// SPDX-License-Identifier: GPL-3.0-or-later
// The figures with all their digits come from tests/independent/curve_fit.py, which takes the same
// operations in the same order.
#include "catalogue/fitting/polynomial_fit.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "catalogue/sample_models.h"

namespace varnholt {
namespace {

using Points = std::vector<double>;

TEST(PolynomialFit, OfThreePointsHasTheDigitsOfASecondImplementation) {
    const FittedTerms terms = FitPolynomial(Points{75, 85, 95}, Points{30.1, 28.4, 26.2}, 2);
    EXPECT_EQ(terms,
              (FittedTerms{26.912500000124552, 0.22999999999704773, -0.0024999999999826667, 0}));
}

TEST(PolynomialFit, OfFiveRowsHasTheDigitsOfASecondImplementation) {
    const FittedTerms terms =
        FitPolynomial(Points{61, 64, 67, 70, 73}, Points{0.903, 0.952, 1, 1.048, 1.1}, 3);
    EXPECT_EQ(terms, (FittedTerms{-4.49059407929948, 0.2173042362118602, -0.003054232855198488,
                                  1.5432099018941498e-05}));
}

TEST(PolynomialFit, GoesThroughAsManyPointsAsItHasTerms) {
    const Points x{61, 64, 67, 70}, y{0.903, 0.952, 1, 1.048};
    const FittedTerms terms = FitPolynomial(x, y, 3);
    for (std::size_t i = 0; i < x.size(); ++i) {
        const double at =
            terms[0] + terms[1] * x[i] + terms[2] * x[i] * x[i] + terms[3] * x[i] * x[i] * x[i];
        // The raw powers of x leave eleven digits.
        EXPECT_NEAR(at, y[i], 1e-9) << x[i];
    }
}

// y = x^2 at -1, 0, 1, 2 and one point off by 5 at 3: the best cubic through five points spread
// evenly leaves residues in the ratio 1, -4, 6, -4, 1, of 70 in squares; 5 at the end makes 5/70.
TEST(PolynomialFit, OfOnePointMoreThanTermsIsTheLeastSquares) {
    const Points x{-1, 0, 1, 2, 3}, y{1, 0, 1, 4, 14};
    const FittedTerms terms = FitPolynomial(x, y, 3);
    const double residues[] = {5.0 / 70, -20.0 / 70, 30.0 / 70, -20.0 / 70, 5.0 / 70};
    for (std::size_t i = 0; i < x.size(); ++i) {
        const double at =
            terms[0] + terms[1] * x[i] + terms[2] * x[i] * x[i] + terms[3] * x[i] * x[i] * x[i];
        EXPECT_NEAR(y[i] - at, residues[i], 1e-12) << x[i];
    }
}

TEST(PolynomialFit, OfEqualPlacesEndsInASubscriptOutOfRange) {
    EXPECT_EQ(errorOf([] { FitPolynomial(Points{50, 50, 50}, Points{1, 2, 3}, 2); }), 9);
    EXPECT_EQ(errorOf([] { FitPolynomial(Points{0, 0, 0}, Points{1, 2, 3}, 2); }), 9);
}

// 85.3 is no binary fraction: its powers leave a pivot of rounding, and no tolerance stops there.
TEST(PolynomialFit, OfEqualPlacesThatRoundingKeepsApartGivesWhatRoundingLeaves) {
    EXPECT_EQ(errorOf([] { FitPolynomial(Points{85.3, 85.3, 85.3}, Points{1, 2, 3}, 2); }), 0);
}

TEST(PolynomialFit, OfPlacesTooLargeToBeSquaredOverflows) {
    EXPECT_EQ(errorOf([] { FitPolynomial(Points{1e200, 2e200, 3e200}, Points{1, 2, 3}, 2); }), 6);
    EXPECT_EQ(errorOf([] { FitPolynomial(Points{1, 2, 3}, Points{1e308, 1e308, 1e308}, 2); }), 6);
}

// 2 x + y = 5, 4 x - y = 1: x = 1, y = 3.
TEST(LinearSystem, IsSolvedWithTheGreatestPivot) {
    NormalMatrix matrix{};
    matrix[0] = {2, 1};
    matrix[1] = {4, -1};
    FittedTerms right{5, 1};
    SolveLinearSystem(matrix, right, 2);
    EXPECT_EQ(right, (FittedTerms{1, 3, 0, 0}));
}

// With a zero at the head of the first row there is no dividing without an exchange.
TEST(LinearSystem, ExchangesRowsWhereThePivotIsZero) {
    NormalMatrix matrix{};
    matrix[0] = {0, 2};
    matrix[1] = {4, 0};
    FittedTerms right{6, 8};
    SolveLinearSystem(matrix, right, 2);
    EXPECT_EQ(right, (FittedTerms{2, 3, 0, 0}));
}

// x = (4 x 6.9 - 7.5 x 0.1) / (3 x 4 + 3 x 7.5) = 0.77826086956521734; dividing the first row by
// its 3 leaves another last digit than dividing the second by its -3 would: 0.7782608695652175.
TEST(LinearSystem, TakesTheFirstOfEqualPivots) {
    NormalMatrix matrix{};
    matrix[0] = {3, 7.5};
    matrix[1] = {-3, 4};
    FittedTerms right{6.9, 0.1};
    SolveLinearSystem(matrix, right, 2);
    EXPECT_EQ(right, (FittedTerms{0.7782608695652176, 0.6086956521739131, 0, 0}));
}

FitPointCount counted(const Points& x, const Points& y) { return CountFitPoints(x, y); }

TEST(FitPointsCount, OfFiveGoodRowsIsFive) {
    const FitPointCount rows = counted({61, 64, 67, 70, 73}, {0.9, 0.95, 1, 1.05, 1.1});
    EXPECT_EQ(rows.count, 5u);
    EXPECT_TRUE(rows.enough);
    EXPECT_EQ(rows.fault, FitFault::none);
}

TEST(FitPointsCount, EndsAtAFifthRowWithoutAFactor) {
    for (const double last : {0.0, -1.0}) {
        const FitPointCount rows = counted({61, 64, 67, 70, 73}, {0.9, 0.95, 1, 1.05, last});
        EXPECT_EQ(rows.count, 4u);
        EXPECT_TRUE(rows.enough);
        EXPECT_EQ(rows.fault, FitFault::none);
    }
}

TEST(FitPointsCount, OfThreeRowsIsTooSmallAndNoFault) {
    // A good row behind the empty one changes nothing.
    const FitPointCount rows = counted({61, 64, 67, 70, 73}, {0.9, 0.95, 1, 0, 1.1});
    EXPECT_EQ(rows.count, 3u);
    EXPECT_FALSE(rows.enough);
    EXPECT_EQ(rows.fault, FitFault::none);
}

TEST(FitPointsCount, DoesNotLookAtThePlaceOfTheLastTwoRows) {
    const FitPointCount rows = counted({61, 64, 67, 0, -5}, {0.9, 0.95, 1, 1.05, 1.1});
    EXPECT_EQ(rows.count, 5u);
    EXPECT_TRUE(rows.enough);
}

TEST(FitPointsCount, TellsAMissingPlaceFromABadRow) {
    struct Case {
        double x, y;
        FitFault fault;
    };
    // Halves round to the even number, 0.
    const Case cases[] = {
        {0, 1, FitFault::noPlace},    {0.3, 0, FitFault::noPlace}, {0.5, 0, FitFault::noPlace},
        {-0.4, 1, FitFault::noPlace}, {0.6, 0, FitFault::badRow},  {64, 0, FitFault::badRow},
        {64, -1, FitFault::badRow},   {-64, 1, FitFault::badRow},  {1e6, 0, FitFault::badRow}};
    for (const Case& each : cases)
        for (std::size_t row = 0; row < 3; ++row) {
            SCOPED_TRACE(std::to_string(each.x) + ", " + std::to_string(each.y));
            Points x{61, 64, 67, 70, 73}, y{0.9, 0.95, 1, 1.05, 1.1};
            x[row] = each.x;
            y[row] = each.y;
            const FitPointCount rows = counted(x, y);
            EXPECT_EQ(rows.count, row);
            EXPECT_FALSE(rows.enough);
            EXPECT_EQ(rows.fault, each.fault);
        }
}

}  // namespace
}  // namespace varnholt
