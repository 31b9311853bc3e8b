// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace varnholt::modCalculations {

/// Limits of the coil table's pitch, in.
constexpr double leastPitch = 10;
constexpr double largestPitch = 56;

/// Length of pipe run to which the coil table is normalised, ft.
constexpr double coilTableLength = 250;

/// Length of trench with a coil that does the work of 250 ft of single pipe, ft.
///
/// Mean of two straight interpolations in a table of cubics, one by pitch and one by part load.
/// Grids: pitch 10, 18, 36, 56 in; part load 30, 50, 70, 100. Both arguments are held within their
/// grid. The method hands the part-load factor over as a fraction, so that it always stands at the
/// lower end of its grid: this is kept. No publication of the table is known; its figures are the
/// method's.
/// Equation: L = ((f - f0)(y3 - y2)/(f1 - f0) + y2 + (p - p0)(y1 - y0)/(p1 - p0) + y0)/2, with y0
/// and y1 the cubics in f of the pitches p0 and p1 around p, y2 and y3 those in p of the loads f0
/// and f1 around f.
/// @param pitch     p, from loop to loop, in
/// @param partLoad  f
double coilLengthFor(double pitch, double partLoad);

/// Pipe in a trench with a coil: a loop for each pitch, from loop to loop two runs of it, and the
/// run back along the last loop, ft.
/// Equation: n = (L - D)/P, pipe = n pi D + 2 n P + pi D/2 + D, all in ft.
/// @param trenchLength  L, ft; 0 for a length of 0 or less
/// @param pitch         P, in
/// @param diameter      D, of a loop, in
/// Throws RunTimeError 11 with a pitch of 0, 6 for a length beyond all doubles.
double coilPipeLength(double trenchLength, double pitch, double diameter);

}  // namespace varnholt::modCalculations
