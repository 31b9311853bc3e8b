// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/horizontal_project.h"

#include "basis/run_time_error.h"
#include "design/modCalculations/ground_temp_at_depth.h"

namespace varnholt {

HorizontalInputs inputsOf(const HorizontalProject& project, bool hybridOn) {
    return {
        {zonesInUse(project.loads), project.extraPower.extraPower, project.conditions.inletTemp,
         project.conditions.flowRate, project.fluid.fluid(), hybridOn, project.tower.hybridPercent},
        project.soil,
        project.groundTemperature,
        project.pipe,
        project.trench,
        project.arrangement,
        project.tower.tower.range};
}

ByMode<double> groundTempAtTrench(const HorizontalProject& project) {
    const SoilValues& soil = project.soil;
    const GroundTemperatureValues& year = project.groundTemperature;
    try {
        return modCalculations::groundTempOfKnownDays(
            project.trench.trenchGeometry[1], soil.diffusivity,
            {soil.groundTemp, year.airTempSwing, year.extremeDay});
    } catch (const RunTimeError&) {
        return {soil.groundTemp, soil.groundTemp};
    }
}

}  // namespace varnholt
