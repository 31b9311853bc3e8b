// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/ground_roll_up.h"

namespace varnholt {

void rollUpYear(const LoadsInputs& loads, double coolingRange,
                const modCalculations::Hybrid& hybrid, GroundRollUp& rollUp) {
    const ByMode<double>& cop = rollUp.cop.heatPumpCOP;
    rollUp.tonHours = modCalculations::calculateLoadTonHours(loads.zones);
    rollUp.annualTonHours = modCalculations::annualTonHours(rollUp.tonHours);
    rollUp.annualGroundLoad =
        modCalculations::calcAnnualGroundLoad(rollUp.annualTonHours, cop, hybrid);
    rollUp.coolingPeakBeforeHybrid = hybrid.coolingPeakBeforeHybrid;
    rollUp.tower = modCalculations::sizeCoolingTower(
        hybrid, rollUp.loads.peakLoad[cooling],
        {cop[cooling], rollUp.annualTonHours[cooling], loads.hybridPercent}, loads.fluid,
        coolingRange);
}

}  // namespace varnholt
