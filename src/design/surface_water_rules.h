// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

#include "basis/mode.h"
#include "design/modCalculations/header_pickup.h"
#include "design/surface_water_values.h"

namespace varnholt {

// What follows from a designer's choice, beyond the value chosen.

/// A class of soil (0 dry, 1 damp, 2 wet) and the diffusivity that goes with it, 0.26, 0.6 or 0.96
/// ft^2/day. Throws RunTimeError 9 for any other.
void chooseSoilType(HeaderSoilValues& soil, int soilType);

/// Temperature of the ground at the headers' depth, from everything else in the group.
/// @return degF
/// Throws as modCalculations::groundTempAtDepth does.
ByMode<double> correctGroundTemp(const HeaderSoilValues& soil);

/// A pipe size for the loops with its outside diameter; the usual size for a choice that the list
/// has not.
void chooseLoopPipe(LoopValues& loop, int choice);

/// A pipe size for the main headers (0) or the branches (1) with all that follows from it; the
/// usual size for a choice that the list has not.
void chooseHeaderPipe(HeaderValues& headers, std::size_t kind, int choice);

/// Settles the number of headers that the designer has left the field with. There is at least one
/// main header. With less than one branch there are none: their number and head losses become 0
/// and so does their length in the water, whereas the length in the soil is kept.
/// @param kind  0 main headers, 1 branches
void settleHeaderCount(HeaderValues& headers, std::size_t kind);

/// The headers as the arithmetic takes them.
modCalculations::Headers headersOf(const HeaderValues& headers, const WaterTemperatures& water);

}  // namespace varnholt
