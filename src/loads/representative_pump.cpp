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

struct DominantLoad {
    Mode mode;
    double ratio;  ///< of the pump's cooling capacity to its heating capacity
};

/// The mode whose load needs the larger pump of these capacities; cooling where both need the same.
DominantLoad dominantLoad(const MiniPump& pump, const Gains& gains) {
    const double ratio =
        pump.capacity[heating] > 0 ? pump.capacity[cooling] / pump.capacity[heating] : 1;
    const double coolingAsHeating = divide(peakLoad(gains, cooling), ratio);
    return {coolingAsHeating < peakLoad(gains, heating) ? heating : cooling, ratio};
}

}  // namespace

MiniPump representativePump(const pump& model, std::int16_t units, const Gains& gains,
                            const MiniPump& current, const EvaluationConditions& conditions) {
    MiniPump pump =
        evaluatePump(model, units, gains, current, conditions, LoadFlowCorrection::omitted);
    const Mode dominant = dominantLoad(pump, gains).mode;
    pump.plf[dominant] = current.plf[dominant];
    return fitRepresentativePump(pump, gains, conditions.design.flowRate);
}

MiniPump fitRepresentativePump(MiniPump pump, const Gains& gains, double flowPerTon) {
    const DominantLoad dominant = dominantLoad(pump, gains);
    const double load = peakLoad(gains, dominant.mode);
    if (dominant.mode == heating)
        fitTo(pump, heating, load, dominant.ratio * load, peakLoad(gains, cooling), flowPerTon);
    else
        fitTo(pump, cooling, load, load / dominant.ratio, peakLoad(gains, heating), flowPerTon);
    return pump;
}

}  // namespace varnholt
