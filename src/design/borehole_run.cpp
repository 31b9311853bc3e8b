// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/borehole_run.h"

#include "basis/units.h"
#include "design/modCalculations/heat_pulses.h"
#include "design/modCalculations/short_circuit.h"
#include "design/modCalculations/temperature_penalty.h"

namespace varnholt {
namespace {

using namespace modCalculations;

GroundResistances groundResistancesOf(const BoreholeInputs& inputs, const PeakLoads& loads) {
    const PulseTimes pulses = calcPulseTimes(loads.peakBlock, inputs.arrangement.predictionTime);
    return calcGroundResistances(pulses, inputs.bore.boreDiameter / inchesPerFoot,
                                 inputs.soil.soil());
}

LengthTerms lengthTermsOf(const BoreholeInputs& inputs, const BoreholeResults& results) {
    LengthTerms terms;
    terms.annualGroundLoad = results.annualGroundLoad;
    terms.peakLoad = results.loads.peakLoad;
    terms.peakDemand = results.demand.peakDemand;
    terms.partLoadFactor = results.partLoad.partLoadFactor;
    terms.groundResistance = results.groundResistance;
    terms.boreResistance = inputs.bore.boreResistance;
    terms.shortCircuitFactor =
        shortCircuitFactor(inputs.arrangement.boresPerCircuit, inputs.loads.flowRate);
    terms.groundTemp = {inputs.soil.groundTemp, inputs.soil.groundTemp};
    terms.inletTemp = inputs.loads.inletTemp;
    terms.outletTemp = results.outlet.outletTemp;
    return terms;
}

/// Length and penalty depend on each other: a first length, its penalty, and so on until they
/// agree.
void settleLengths(const BoreholeInputs& inputs, BoreholeResults& results) {
    const LengthTerms terms = lengthTermsOf(inputs, results);
    const auto& [rows, columns] = inputs.arrangement.patternRows;
    ByMode<double> lengths = calcBoreLengths(terms, initTemperaturePenalty());
    results.neighbourCount = countNeighbours(rows, columns);
    const PenaltySite site{{rows, columns, inputs.arrangement.boreSeparation},
                           results.neighbourCount,
                           inputs.soil.soil(),
                           inputs.arrangement.predictionTime};
    lengths =
        calcBoreLengths(terms, calcTemperaturePenalty(site, results.annualGroundLoad, lengths));
    results.lengths = settleBoreLengths(terms, site, lengths);
    results.lengthShares = lengthShares(terms, results.lengths.boreLength);
}

}  // namespace

BoreholeInputs inputsOf(const BoreholeProject& project, bool hybridOn) {
    return {
        {zonesInUse(project.loads), project.extraPower.extraPower, project.conditions.inletTemp,
         project.conditions.flowRate, project.fluid.fluid(), hybridOn, project.tower.hybridPercent},
        project.soil,
        project.bore,
        project.arrangement,
        project.tower.tower.range};
}

std::optional<BoreholeResults> runBorehole(const BoreholeInputs& inputs) {
    BoreholeResults results;
    results.loads = calcPeakLoads(inputs.loads.zones);
    if (!hasLoad(results.loads)) return std::nullopt;
    const Hybrid hybrid = rollUpForGround(inputs.loads, results);
    rollUpYear(inputs.loads, inputs.coolingRange, hybrid, results);
    results.groundResistance = groundResistancesOf(inputs, results.loads);
    settleLengths(inputs, results);
    if (hybrid.on) results.loads.peakLoad[cooling] = hybrid.coolingPeakBeforeHybrid;
    results.inputs = inputs;
    return results;
}

}  // namespace varnholt
