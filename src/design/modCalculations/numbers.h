// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace varnholt::modCalculations {

/// x to the power n by repeated multiplication, so that a square is the same to the last digit
/// wherever it is taken.
/// @param n  rounded to a whole number of 16 bits; below 1 the result is x itself
/// Throws RunTimeError 6 when n does not fit.
double powerOf(double x, double n);

/// The natural logarithm. Throws RunTimeError 5 unless x is positive.
double naturalLog(double x);

/// The square root. Throws RunTimeError 5 when x is negative.
double squareRoot(double x);

/// x itself, a figure that a result may be made of. Throws RunTimeError 6 when it has grown beyond
/// all doubles (or is no number, which only such a figure can lead to).
double finite(double x);

}  // namespace varnholt::modCalculations
