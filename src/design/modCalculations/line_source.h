// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace varnholt::modCalculations {

/// The line-source integral I(X): the integral of exp(-b^2)/b over b from X to infinity, which is
/// half the exponential integral E1 of X^2. It tells how warm a long thin source makes the ground
/// around it.
/// Source: Ingersoll, Zobel and Ingersoll, "Heat Conduction" (1954); polynomials after Abramowitz
/// and Stegun, "Handbook of Mathematical Functions" (1964), 5.1.53 and 5.1.56.
/// @param x  distance / (2 sqrt(diffusivity time)); 0 or less gives 0
double lineSourceI(double x);

}  // namespace varnholt::modCalculations
