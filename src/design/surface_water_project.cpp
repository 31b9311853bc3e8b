// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/surface_water_project.h"

namespace varnholt {

SurfaceWaterInputs inputsOf(const SurfaceWaterProject& project) {
    return {{zonesInUse(project.loads), project.extraPower.extraPower, project.conditions.inletTemp,
             project.conditions.flowRate, project.fluid.fluid(), false, 0},
            project.conditions.minflowRate,
            project.soil,
            project.loop,
            project.header,
            project.water};
}

}  // namespace varnholt
