// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "basis/mode.h"

namespace varnholt::modCalculations {

/// The yearly swing of the ground near the surface.
struct GroundSwing {
    double meanTemp = 0;                ///< of the ground over the year, degF
    double airTempSwing = 0;            ///< amplitude at the surface, degF
    ByMode<std::int16_t> extremeDay{};  ///< warmest and coldest day of the year
};

/// Temperature of the ground at a depth on the warmest and on the coldest day of the year. The
/// yearly wave gets smaller and later with the depth; without a diffusivity none comes down at all
/// and both modes have the mean.
///
///     t = mean - swing exp(-d sqrt(pi/(365 a))) cos(2 pi/365 (day - coldest - lag))
///     lag = d/2 sqrt(365/(pi a))
///
/// Source: Kusuda and Achenbach, "Earth Temperature and Thermal Diffusivity at Selected Stations
/// in the United States" (ASHRAE Transactions 71, 1965).
///
/// @param depth        ft
/// @param diffusivity  ft^2/day
/// @return             degF
/// Throws RunTimeError 5 with a negative diffusivity, 6 with a depth at which the figures overflow.
ByMode<double> groundTempAtDepth(double depth, double diffusivity, const GroundSwing& swing);

/// The same while the year is still being entered: a mode whose day is 0 keeps the mean.
ByMode<double> groundTempOfKnownDays(double depth, double diffusivity, const GroundSwing& swing);

}  // namespace varnholt::modCalculations
