// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/representative_pump.h"

#include "basis/run_time_error.h"
#include "basis/units.h"

namespace varnholt {
namespace {

/// What the dominant mode's load makes the pump deliver in the other mode, MBtu/hr at full load.
void fitTo(MiniPump& pump, Mode dominant, double load, double otherLoad, double otherPeak,
           double flowPerTon) {
    const Mode other = dominant == cooling ? heating : cooling;
    double& plf = pump.plf[dominant];
    if (plf > 1 || plf <= 0) plf = 1;
    pump.capacity[dominant] = load / plf;
    pump.watts[dominant] = divide(load, pump.efficiency[dominant] * mbtuPerKilowatt) / plf;
    pump.flowRate[dominant] = load * flowPerTon / mbtuPerTon;
    pump.capacity[other] = otherLoad / plf;
    pump.flowRate[other] = otherLoad * flowPerTon / mbtuPerTon;
    pump.watts[other] =
        pump.efficiency[other] > 0
            ? pump.capacity[other] / (pump.efficiency[other] * mbtuPerKilowatt) / plf
            : 0;
    if (otherPeak != 0) pump.plf[other] = divide(otherPeak, pump.capacity[other]);
}

}  // namespace

MiniPump representativePump(const pump& model, std::int16_t units, const Gains& gains,
                            const MiniPump& current, const EvaluationConditions& conditions) {
    return fitRepresentativePump(
        evaluatePump(model, units, gains, current, conditions, LoadFlowCorrection::omitted), gains,
        conditions.design.flowRate);
}

MiniPump fitRepresentativePump(MiniPump pump, const Gains& gains, double flowPerTon) {
    const double coolingPeak = peakLoad(gains, cooling);
    const double heatingPeak = peakLoad(gains, heating);
    const double ratio =
        pump.capacity[heating] > 0 ? pump.capacity[cooling] / pump.capacity[heating] : 1;
    const double coolingAsHeating = divide(coolingPeak, ratio);
    if (coolingAsHeating < heatingPeak)
        fitTo(pump, heating, heatingPeak, ratio * heatingPeak, coolingPeak, flowPerTon);
    else
        fitTo(pump, cooling, coolingPeak, coolingAsHeating, heatingPeak, flowPerTon);
    return pump;
}

}  // namespace varnholt
