// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/modCalculations/cooling_tower.h"
#include "design/modCalculations/ground_resistance.h"

namespace varnholt::modCalculations {

/// Water as new designs have it, 62.4 lb/ft^3 and 1 Btu/(lb degF): 60 * 62.4 * 0.1337 * 1 =
/// 500.5728 Btu/hr for 1 gpm and 1 degF.
inline constexpr Fluid sampleWater{62.4, 1.0};

/// Soil as new designs have it, 1.3 Btu/(hr ft degF) and 0.75 ft^2/day.
inline constexpr Soil sampleSoil{1.3, 0.75};

}  // namespace varnholt::modCalculations
