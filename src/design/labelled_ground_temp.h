// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/ground_temp_curves.h"

namespace varnholt {

class GroundDesign;

/// The curves of the ground's temperature in a design's units, with their words.
/// @param depth         ft, of the pipe
/// @param diffusivity   ft^2/day
/// @param temperatures  at that depth on the warmest and on the coldest day, degF
GroundTempCurves labelledGroundTemp(const GroundDesign& design, double depth, double diffusivity,
                                    const modCalculations::GroundSwing& swing,
                                    const ByMode<double>& temperatures);

}  // namespace varnholt
