// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/pump_evaluation.h"

#include <algorithm>
#include <cmath>

#include "basis/run_time_error.h"
#include "basis/units.h"

namespace varnholt {
namespace {

constexpr std::size_t capacityFactor = 0;  // first index of flowCf
constexpr std::size_t powerFactor = 1;

double firstCatalogueFlow(const pump& model) {
    return model.ewt[catalogueFlowRow].flowRate[0].flowRate;
}

/// Design source flow of one unit, gpm, and what it means for capacity and power.
struct SourceFlow {
    double perUnit = 0;
    double delta = 0;       // above the first catalogue flow, gpm
    double correction = 0;  // of the capacity of one unit, MBtu/hr
};

/// The flow follows the load up to the overload ratio, and the capacity beyond it. There the
/// delta stays what it was, in heating that of cooling, and the power is corrected with it: kept.
/// A pump without capacity leaves the whole flow of the mode before.
void followLoad(SourceFlow& flow, double peak, double capacity, double units, double slope,
                double firstFlow, double flowPerTon) {
    if (!(capacity > 0) || !(units > 0)) return;
    if (divide(peak, capacity * units) < overloadRatio) {
        flow.perUnit = peak / units / mbtuPerTon * flowPerTon;
        flow.delta = flow.perUnit - firstFlow;
        flow.correction = slope * flow.delta;
    } else {
        flow.perUnit = capacity / mbtuPerTon * flowPerTon;
        flow.correction = 0;
    }
}

/// Identity of the model, and the load-side temperatures and flows to evaluate it at.
MiniPump placedPump(const pump& model, std::int16_t units, const MiniPump& current,
                    const EvaluationConditions& conditions) {
    MiniPump placed = current;
    placed.mfgName = model.mfgInfo.mfgName;
    placed.seriesName = model.seriesInfo.seriesName;
    placed.name = model.name;
    placed.pumpType = model.pumpType;
    placed.number = units;
    placed.customPump = 0;
    placed.setNominalFlow(model.nominalFlow);
    if (conditions.carriesLoadSide()) {
        placed.elt = conditions.temporaryInletTemp;
        placed.elf = conditions.samePumpUpdated ? conditions.temporaryInletFlow : ByMode<double>{};
    } else {
        placed.elt = designLoadTemps(conditions.design, model.pumpType);
    }
    return placed;
}

/// Load-side flow in percent of nominal; a flow of 0 becomes the nominal flow, the catalogue's
/// and not the zone's rounded one.
double loadFlowPercent(const pump& model, double& loadFlow) {
    if (loadFlow == 0) loadFlow = model.nominalFlow;
    return model.nominalFlow == 0 ? 0 : loadFlow * 100 / model.nominalFlow;
}

void evaluateMode(const pump& model, const Gains& gains, const EvaluationConditions& conditions,
                  LoadFlowCorrection loadFlow, Mode m, SourceFlow& flow, MiniPump& placed) {
    const double units = placed.number;
    const double peak = peakLoad(gains, m);
    const double enteringWater = conditions.design.inletTemp[m];
    const double firstFlow = firstCatalogueFlow(model);
    double capacity = baseCapacity(model, m, enteringWater, placed.elt[m]);
    double power = basePower(model, m, enteringWater, placed.elt[m]);
    if (loadFlow == LoadFlowCorrection::applied) {
        const double percent = loadFlowPercent(model, placed.elf[m]);
        if (percent != 0) {
            capacity = capacity * cubic(model.coefficients.capacityFlowCorrection, m, percent);
            power = power * cubic(model.coefficients.wattsFlowCorrection, m, percent);
        }
    }
    const double slope = sourceFlowSlope(model, capacityFactor, m, capacity);
    followLoad(flow, peak, capacity, units, slope, firstFlow, conditions.design.flowRate);
    placed.capacity[m] = units * (capacity + flow.correction);
    placed.watts[m] = units * (power + sourceFlowSlope(model, powerFactor, m, power) * flow.delta);
    if (firstFlow == 0) {
        placed.efficiency[m] = placed.flowRate[m] = placed.plf[m] = 0;
        return;
    }
    placed.efficiency[m] = divide(placed.capacity[m], placed.watts[m] * mbtuPerKilowatt);
    placed.flowRate[m] = units * flow.perUnit;
    placed.plf[m] = divide(peak, placed.capacity[m]);
}

void checkOverflow(const MiniPump& placed) {
    for (const ByMode<double>* values :
         {&placed.capacity, &placed.watts, &placed.efficiency, &placed.flowRate, &placed.plf})
        for (const double value : *values)
            if (!std::isfinite(value)) throw RunTimeError(6);
}

}  // namespace

double peakLoad(const Gains& gains, Mode mode, double start) {
    double peak = start;
    for (const ByMode<double>& block : gains) peak = std::max(peak, block[mode]);
    return peak;
}

double baseCapacity(const pump& model, Mode mode, double enteringWater, double enteringLoad) {
    return quadratic(model.coefficients.capacity, mode, enteringWater) *
           cubic(model.coefficients.capacityCorrection, mode, enteringLoad);
}

double basePower(const pump& model, Mode mode, double enteringWater, double enteringLoad) {
    return quadratic(model.coefficients.watts, mode, enteringWater) *
           cubic(model.coefficients.wattsCorrection, mode, enteringLoad);
}

double sourceFlowSlope(const pump& model, std::size_t quantity, Mode mode, double value) {
    const double firstFlow = firstCatalogueFlow(model);
    if (firstFlow == 0) return 0;
    const double secondFlow = model.ewt[catalogueFlowRow].flowRate[1].flowRate;
    return divide(model.flowCf[quantity][mode] * value - value, secondFlow - firstFlow);
}

const ByMode<double>& designLoadTemps(const DesignConditions& design, std::int16_t pumpType) {
    return pumpType == 0 ? design.inletLoadAirTemp : design.inletLoadWaterTemp;
}

MiniPump evaluatePump(const pump& model, std::int16_t units, const Gains& gains,
                      const MiniPump& current, const EvaluationConditions& conditions,
                      LoadFlowCorrection loadFlow) {
    MiniPump placed = placedPump(model, units, current, conditions);
    SourceFlow flow;  // outlives the mode: heating may go on from cooling's
    for (const Mode m : modes) evaluateMode(model, gains, conditions, loadFlow, m, flow, placed);
    checkOverflow(placed);
    return placed;
}

}  // namespace varnholt
