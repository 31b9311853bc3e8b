// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

#include "basis/mode.h"

namespace varnholt::modCalculations {

/// Days from the start of each heat pulse to the end of the design day: the annual, the monthly and
/// the short one, longest first.
using PulseTimes = std::array<double, 3>;

/// The three heat pulses of the design equation. The annual pulse lasts the whole prediction time,
/// the monthly one 30 days, the short one the time block of the peak: 12 hours when either mode
/// peaks in the long evening block, else 4.
/// Source: Kavanaugh and Rafferty, "Ground-Source Heat Pumps" (ASHRAE, 1997), chapter 3.
/// @param peakBlock  time block of each mode's peak load, 0 to 3
/// @param years      prediction time
PulseTimes calcPulseTimes(const ByMode<std::int16_t>& peakBlock, double years);

}  // namespace varnholt::modCalculations
