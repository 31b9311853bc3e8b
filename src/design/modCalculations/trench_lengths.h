// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace varnholt::modCalculations {

/// A length of pipe over the pipes that lie beside each other in all trenches, ft: how long the
/// trenches get. 0 where there are none.
/// @param requiredLength  pipe, or for coils, of which a trench has one, trench, ft
/// @param pipes           in one trench
double totalTrenchLength(double requiredLength, double pipes);

/// The length of one of the trenches, ft; 0 where there are none.
double singleTrenchLength(double requiredLength, double pipes, double trenches);

/// The pipe in one of the trenches, ft; 0 where there are none.
double pipeLengthPerTrench(double totalPipeLength, double trenches);

}  // namespace varnholt::modCalculations
