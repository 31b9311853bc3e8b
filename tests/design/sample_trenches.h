// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/horizontal_run.h"
#include "sample_building.h"

namespace varnholt {

/// The sample building over trenches in default soil, where the surface swings by 20 degF either
/// way and is warmest on day 202, coldest on day 19. Pipe of 1 1/2 in, three gpm per ton of water,
/// 1.5 kW of extra power; trenches and arrangement as in a new design.
inline HorizontalInputs sampleTrenches() {
    HorizontalInputs inputs;
    inputs.loads = {sampleBuilding(), {1.0, 0.85, 0.5, 0, 0, 0, 0}, {85, 50}, 3, {62.4, 1.0}};
    inputs.groundTemperature = {20, {202, 19}};
    inputs.coolingRange = 10;
    return inputs;
}

}  // namespace varnholt
