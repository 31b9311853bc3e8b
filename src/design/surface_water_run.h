// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "design/surface_water_results.h"

namespace varnholt {

/// The whole run of pipe in surface water: loads rolled up, loops that the flow allows, ground
/// temperature and approach at the headers' end, length of the loops, head losses. There is no
/// ground resistance and no long-term change, and nothing is repeated but the approach. A pure
/// function: it reads nothing but its inputs and leaves the zones where they are.
/// Source: Kavanaugh and Rafferty, "Ground-Source Heat Pumps" (ASHRAE, 1997), on closed loops in
/// surface water.
///
/// @return the results with their inputs; nothing where no mode has a load.
///         `approach.unsettled` tells an approach that did not settle. Throws RunTimeError 11 for
///         fluid as warm as the water, for no loops and for no main header, and whatever else the
///         arithmetic ends in (6 for an overflow, 9 for a pipe that the table has not)
std::optional<SurfaceWaterResults> runSurfaceWater(const SurfaceWaterInputs& inputs);

}  // namespace varnholt
