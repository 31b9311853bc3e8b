// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "basis/mode.h"

namespace varnholt::modCalculations {

/// The year at the surface of the ground: one cosine.
struct SurfaceYear {
    double mean = 0;   ///< of the ground, degF
    double swing = 0;  ///< amplitude, half the difference between warmest and coldest day, degF
    /// Day of the year: the warmest for cooling, the coldest for heating.
    ByMode<std::int16_t> extremeDay{};
};

/// Temperature of the ground at a depth, on the warmest day for cooling and on the coldest for
/// heating: the deeper, the less it swings and the later it follows the surface. The surface is
/// coldest on the day of heating.
/// Source: Kusuda and Achenbach, "Earth Temperature and Thermal Diffusivity at Selected Stations in
/// the United States" (ASHRAE Transactions 71, 1965).
/// Equation: T = mean - swing exp(-d sqrt(pi/(365 a))) cos(2 pi/365 (day - coldest - d/2
/// sqrt(365/(pi a))))
///
/// @param depth        d, ft
/// @param diffusivity  a, ft^2/day; 0 gives the mean
/// @return degF
/// Throws RunTimeError 5 with a negative diffusivity, 6 for a temperature beyond all doubles.
ByMode<double> groundTempAtDepth(double depth, double diffusivity, const SurfaceYear& year);

/// The same while the year is still being entered: a mode whose day is 0 keeps the mean.
ByMode<double> groundTempOfKnownDays(double depth, double diffusivity, const SurfaceYear& year);

}  // namespace varnholt::modCalculations
