// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <span>

namespace varnholt {

/// A cubic has four terms, which is as many as any curve of a heat pump has.
constexpr std::size_t mostTerms = 4;
/// A table of corrections has five rows.
constexpr std::size_t mostFitPoints = 5;

/// Terms of a polynomial; terms[k] multiplies the k-th power of x.
using FittedTerms = std::array<double, mostTerms>;
using NormalMatrix = std::array<std::array<double, mostTerms>, mostTerms>;

/// The polynomial of least squares through points, by the normal equations X'X c = X'y in x as it
/// is, neither centred nor scaled. The order of the operations is part of the method, so that a
/// second implementation has the same digits: powers by repeated products, sums over the points in
/// their order from 0, then SolveLinearSystem.
///
/// degree + 1 points are met exactly but for rounding. Limits: the system loses about twice the
/// digits that the spread of the powers of x takes; five points of a cubic between 60 and 120 keep
/// ten of them.
/// Source: Press et al., "Numerical Recipes in C" (Cambridge, 2nd ed. 1992), section 15.4.
///
/// @param x, y    the points, equally many, at most mostFitPoints
/// @param degree  at most 3
/// @return        degree + 1 terms, and 0 for the others
/// Throws as SolveLinearSystem; RunTimeError 6 where a sum overflows.
FittedTerms FitPolynomial(std::span<const double> x, std::span<const double> y, std::size_t degree);

/// Solves a system of `size` linear equations in place by Gauss-Jordan elimination with partial
/// pivoting; of equal candidates for the pivot the first row wins. `right` then holds the solution.
///
/// There is no tolerance and no early exit: a nearly singular system gives what rounding leaves of
/// it. Where nothing but zeros is left to choose a pivot from, there is no row to exchange with.
/// Source: Press et al., section 2.1.
///
/// Throws RunTimeError 9 for a singular system, 6 where a number overflows.
void SolveLinearSystem(NormalMatrix& matrix, FittedTerms& right, std::size_t size);

/// What keeps a row of a table of corrections from being used.
enum class FitFault {
    none,
    noPlace,  ///< the temperature or the flow is missing: it rounds to zero
    badRow,   ///< it, or the factor, is zero or negative
};

/// How much of a table a cubic can use.
struct FitPointCount {
    std::size_t count = 0;  ///< leading rows
    bool enough = false;    ///< there are four of them at least
    FitFault fault = FitFault::none;
};

/// Counts the leading rows of a table of corrections that a cubic may use. In the first three rows
/// a value that is not positive is a fault and ends the count; in the others a factor that is not
/// positive ends it, and x is not looked at.
///
/// @param x, y  five rows
FitPointCount CountFitPoints(std::span<const double> x, std::span<const double> y);

}  // namespace varnholt
