// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "design/curve.h"
#include "design/modCalculations/loop_length.h"
#include "forms/quantity.h"

namespace varnholt {

/// Length of pipe for a ton of load over the difference of fluid and water, as the design table
/// gives it for one pipe and style. In the units shown; differences are positive in both modes.
struct LoopCurves {
    ByMode<Curve> perTon;
    ByMode<Curve> atDesign;  ///< one point on each curve; none before a run
    std::string lengthUnit, differenceUnit;

    bool empty() const { return perTon[cooling].empty(); }
    friend bool operator==(const LoopCurves&, const LoopCurves&) = default;
};

/// The curves without their words. They reach beyond the design's own approach. Empty for a pipe
/// that the table has not.
/// @param approachTemp  of the design by mode, degF; 0 for none
LoopCurves drawLoopCurves(const modCalculations::LoopPipe& pipe, const ByMode<double>& approachTemp,
                          UnitSystem units);

}  // namespace varnholt
