// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/loads_roll_up.h"

namespace varnholt {

modCalculations::Hybrid hybridOf(const LoadsInputs& inputs,
                                 const modCalculations::PeakLoads& loads) {
    return {inputs.hybridOn, inputs.hybridPercent, inputs.hybridOn ? loads.peakLoad[cooling] : 0};
}

modCalculations::Hybrid rollUpForGround(const LoadsInputs& inputs, LoadsRollUp& rollUp) {
    const modCalculations::Hybrid hybrid = hybridOf(inputs, rollUp.loads);
    ByMode<double>& peakLoad = rollUp.loads.peakLoad;
    if (hybrid.on) peakLoad[cooling] = hybrid.leftForGround(peakLoad[cooling]);
    rollUp.demand = modCalculations::calcPeakDemand(inputs.zones, rollUp.loads.peakBlock);
    rollUp.partLoad = modCalculations::calcPartLoadFactors(inputs.zones, peakLoad, hybrid);
    rollUp.cop = modCalculations::calcSystemCOP(inputs.zones, peakLoad, rollUp.demand.peakDemand,
                                                inputs.extraPower, hybrid);
    rollUp.outlet =
        modCalculations::calcUnitOutletTemps(peakLoad, rollUp.demand.peakDemand, inputs.inletTemp,
                                             inputs.flowRate, inputs.fluid, hybrid);
    return hybrid;
}

LoadsRollUp rollUpLoads(const LoadsInputs& inputs) {
    LoadsRollUp rollUp;
    rollUp.loads = modCalculations::calcPeakLoads(inputs.zones);
    const double building = rollUp.loads.peakLoad[cooling];
    rollUpForGround(inputs, rollUp);
    rollUp.loads.peakLoad[cooling] = building;
    return rollUp;
}

bool hasLoad(const modCalculations::PeakLoads& loads) {
    return loads.peakLoad[cooling] > 0 || loads.peakLoad[heating] > 0;
}

}  // namespace varnholt
