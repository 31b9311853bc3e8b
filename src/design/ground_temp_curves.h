// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "basis/mode.h"
#include "design/curve.h"
#include "design/modCalculations/ground_temp_at_depth.h"
#include "forms/quantity.h"

namespace varnholt {

/// Temperature of the ground over the depth, on the warmest and on the coldest day, and over the
/// year at one depth. All in the units shown.
struct GroundTempCurves {
    ByMode<Curve> overDepth;
    Curve overYear;
    /// On those curves at the depth, and on those days. None where there is no such day.
    ByMode<Curve> atDepth, onDay;
    std::string depthUnit, temperatureUnit;
    // The same in words, with the units.
    std::string depthLabel;
    ByMode<std::string> temperatureLabels;

    bool empty() const { return overYear.empty(); }
    friend bool operator==(const GroundTempCurves&, const GroundTempCurves&) = default;
};

/// The curves without their units and words, as modCalculations::groundTempAtDepth gives them. They
/// reach down to twice the depth, and far enough to show the swing fade. Empty for a ground that
/// the formula does not hold for.
/// @param depth        ft, of the pipe
/// @param diffusivity  ft^2/day
GroundTempCurves drawGroundTemp(double depth, double diffusivity,
                                const modCalculations::GroundSwing& swing, UnitSystem units);

}  // namespace varnholt
