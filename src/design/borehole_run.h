// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "design/borehole_project.h"
#include "design/borehole_results.h"

namespace varnholt {

/// What a run takes from a project.
/// @param hybridOn  the cooling tower takes its share, as after a move of the slider
BoreholeInputs inputsOf(const BoreholeProject& project, bool hybridOn);

/// The whole run of a field of vertical bores: loads rolled up, ground resistances, penalty and
/// lengths repeated until both modes settle. A pure function: it reads nothing but its inputs and
/// leaves the zones where they are.
/// Source: Kavanaugh and Rafferty, "Ground-Source Heat Pumps" (ASHRAE, 1997), chapter 3.
///
/// @return the results with their inputs; nothing where no mode has a load. `lengths.failed` tells
///         lengths that did not settle. Throws RunTimeError 11 for a building that has loads in
///         one mode only, and whatever else the arithmetic ends in (6 for an overflow)
std::optional<BoreholeResults> runBorehole(const BoreholeInputs& inputs);

}  // namespace varnholt
