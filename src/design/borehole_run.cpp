// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/borehole_run.h"

#include "design/modCalculations/heat_pulses.h"
#include "design/modCalculations/short_circuit.h"

namespace varnholt {
namespace {

constexpr double inchesPerFoot = 12;

modCalculations::Soil soilOf(const SoilValues& soil) {
    return {soil.conductivity, soil.diffusivity};
}

}  // namespace

LoadsRun::LoadsRun(const LoadsInputs& inputs, LoadsRollUp& rollUp)
    : inputs_(inputs), rollUp_(rollUp), hybrid_{inputs.hybridOn, inputs.hybridPercent, 0} {}

void LoadsRun::calcPeakLoads() { rollUp_.loads = modCalculations::calcPeakLoads(inputs_.zones); }

bool LoadsRun::hasLoad() const {
    return rollUp_.loads.peakLoad[cooling] > 0 || rollUp_.loads.peakLoad[heating] > 0;
}

void LoadsRun::prepareHybrid() {
    if (!hybrid_.on) return;
    double& peak = rollUp_.loads.peakLoad[cooling];
    hybrid_.coolingPeakBeforeHybrid = peak;
    peak = hybrid_.leftForGround(peak);
}

void LoadsRun::calcPeakDemand() {
    rollUp_.demand = modCalculations::calcPeakDemand(inputs_.zones, rollUp_.loads.peakBlock);
}

void LoadsRun::calcPartLoadFactors() {
    rollUp_.partLoad =
        modCalculations::calcPartLoadFactors(inputs_.zones, rollUp_.loads.peakLoad, hybrid_);
}

void LoadsRun::calcSystemCOP() {
    rollUp_.cop =
        modCalculations::calcSystemCOP(inputs_.zones, rollUp_.loads.peakLoad,
                                       rollUp_.demand.peakDemand, inputs_.extraPower, hybrid_);
}

void LoadsRun::calcUnitOutletTemps() {
    rollUp_.outlet = modCalculations::calcUnitOutletTemps(
        rollUp_.loads.peakLoad, rollUp_.demand.peakDemand, inputs_.inletTemp, inputs_.flowRate,
        inputs_.fluid, hybrid_);
}

void LoadsRun::restorePeakLoad() {
    if (hybrid_.on) rollUp_.loads.peakLoad[cooling] = hybrid_.coolingPeakBeforeHybrid;
}

BoreholeRun::BoreholeRun(const BoreholeInputs& inputs)
    : LoadsRun(inputs.loads, results_), inputs_(inputs) {}

void BoreholeRun::calculateLoadTonHours() {
    results_.tonHours = modCalculations::calculateLoadTonHours(inputs_.loads.zones);
}

void BoreholeRun::calcAnnualGroundLoad() {
    results_.annualTonHours = modCalculations::annualTonHours(results_.tonHours);
    results_.annualGroundLoad = modCalculations::calcAnnualGroundLoad(
        results_.annualTonHours, results_.cop.heatPumpCOP, hybrid());
    results_.coolingPeakBeforeHybrid = hybrid().coolingPeakBeforeHybrid;
    const modCalculations::TowerYear year{results_.cop.heatPumpCOP[cooling],
                                          results_.annualTonHours[cooling],
                                          inputs_.loads.hybridPercent};
    tower_ = modCalculations::sizeCoolingTower(hybrid(), results_.loads.peakLoad[cooling], year,
                                               inputs_.loads.fluid, inputs_.coolingRange);
}

void BoreholeRun::calcGroundResistances() {
    const modCalculations::PulseTimes pulses = modCalculations::calcPulseTimes(
        results_.loads.peakBlock, inputs_.arrangement.predictionTime);
    results_.groundResistance = modCalculations::calcGroundResistances(
        pulses, inputs_.bore.boreDiameter / inchesPerFoot, soilOf(inputs_.soil));
}

void BoreholeRun::initTemperaturePenalty() {
    results_.lengths.temperaturePenalty = modCalculations::initTemperaturePenalty();
}

void BoreholeRun::calcBoreLengths() {
    results_.lengths.boreLength =
        modCalculations::calcBoreLengths(lengthTerms(), results_.lengths.temperaturePenalty);
}

void BoreholeRun::countNeighbours() {
    const auto& [rows, columns] = inputs_.arrangement.patternRows;
    results_.neighbourCount = modCalculations::countNeighbours(rows, columns);
}

void BoreholeRun::calcTemperaturePenalty() {
    results_.lengths.temperaturePenalty = modCalculations::calcTemperaturePenalty(
        penaltySite(), results_.annualGroundLoad, results_.lengths.boreLength);
}

void BoreholeRun::iterate() {
    results_.lengths = modCalculations::settleBoreLengths(lengthTerms(), penaltySite(),
                                                          results_.lengths.boreLength);
}

modCalculations::LengthTerms BoreholeRun::lengthTerms() const {
    modCalculations::LengthTerms terms;
    terms.annualGroundLoad = results_.annualGroundLoad;
    terms.peakLoad = results_.loads.peakLoad;
    terms.peakDemand = results_.demand.peakDemand;
    terms.partLoadFactor = results_.partLoad.partLoadFactor;
    terms.groundResistance = results_.groundResistance;
    terms.boreResistance = inputs_.bore.boreResistance;
    terms.shortCircuitFactor = modCalculations::shortCircuitFactor(
        inputs_.arrangement.boresPerCircuit, inputs_.loads.flowRate);
    terms.groundTemp = {inputs_.soil.groundTemp, inputs_.soil.groundTemp};
    terms.inletTemp = inputs_.loads.inletTemp;
    terms.outletTemp = results_.outlet.outletTemp;
    return terms;
}

modCalculations::PenaltySite BoreholeRun::penaltySite() const {
    const ArrangementValues& field = inputs_.arrangement;
    return {{field.patternRows[0], field.patternRows[1], field.boreSeparation},
            results_.neighbourCount,
            soilOf(inputs_.soil),
            field.predictionTime};
}

}  // namespace varnholt
