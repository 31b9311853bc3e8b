// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "forms/texts.h"
#include "loads/modLoads/loads_pictures.h"

namespace varnholt {

// What the charts of the loads windows show, in sentences: a screen reader and scripts tell them.

/// "kW" of "(kW)".
std::string withoutBrackets(const std::string& unit);
/// The words at a chart of loads in a unit system.
LoadsCaptions loadsCaptions(UnitSystem units, const Texts& texts);

/// Each mode's loads by block, the block of the largest, and what the pump gives.
std::string describe(const LoadsChart& loads, const LoadsCaptions& captions, const Texts& texts);
/// The model, and what it does at the design's water.
std::string describe(const PumpPicture& picture, const Texts& texts);

/// A curve's value at a place, between its points on a straight line; nothing outside of it.
std::optional<double> valueAt(const PumpCurve& curve, double enteringWater);

}  // namespace varnholt
