// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/horizontal_run.h"

#include <cmath>

#include "design/modCalculations/coil_length.h"
#include "design/modCalculations/ground_temp_at_depth.h"
#include "design/modCalculations/heat_pulses.h"
#include "design/modCalculations/pipe_resistance.h"
#include "design/modCalculations/temperature_penalty.h"
#include "design/modCalculations/trench_resistance.h"
#include "design/trench_rules.h"

namespace varnholt {
namespace {

using namespace modCalculations;

constexpr int singlePipe = 2;  // configuration of the pipe's resistance

/// The two runs of a coil's loop lie so close that they count as one pipe of their equivalent
/// diameter.
PipeValues equivalentPipe(PipeValues pipe) {
    for (double& diameter : pipe.pipeDiameter) diameter *= std::sqrt(2.0);
    pipe.pipeResistance = pipeResistanceOf(singlePipe, pipe.flowTypeIndex, pipe.pipeDiameter[0],
                                           pipe.pipeDiameter[1]);
    return pipe;
}

/// What stands around the pipes: the ground's resistance and its temperature.
void findGround(const HorizontalInputs& inputs, const PipeValues& pipe,
                HorizontalResults& results) {
    const TrenchLayout layout = layoutOf(inputs.trench, inputs.arrangement);
    const PulseTimes pulses =
        calcPulseTimes(results.loads.peakBlock, inputs.arrangement.predictionYears);
    results.trenchGround = {buildPipePositions(layout), pipe.pipeDiameter[0], pulses,
                            inputs.soil.soil()};
    results.groundResistance = averageGroundResistance(results.trenchGround);
    const GroundTemperatureValues& year = inputs.groundTemperature;
    results.groundTempAtDepth =
        groundTempAtDepth(meanPipeDepth(layout), inputs.soil.diffusivity,
                          {inputs.soil.groundTemp, year.airTempSwing, year.extremeDay});
}

LengthTerms lengthTermsOf(const HorizontalInputs& inputs, const HorizontalResults& results) {
    LengthTerms terms;
    terms.annualGroundLoad = results.annualGroundLoad;
    terms.peakLoad = results.loads.peakLoad;
    terms.peakDemand = results.demand.peakDemand;
    terms.partLoadFactor = results.partLoad.partLoadFactor;
    terms.groundResistance = results.groundResistance;
    terms.boreResistance = results.pipeResistance;
    terms.groundTemp = results.groundTempAtDepth;
    terms.inletTemp = inputs.loads.inletTemp;
    terms.outletTemp = results.outlet.outletTemp;
    return terms;
}

/// For the penalty each trench is a bore: the field has one column of them.
PenaltySite siteOf(const HorizontalInputs& inputs) {
    const double rows = inputs.trench.trenchCount;
    return {{rows, 1, inputs.trench.trenchGeometry[0]},
            countNeighbours(rows, 1),
            inputs.soil.soil(),
            inputs.arrangement.predictionYears};
}

void settleLengths(const HorizontalInputs& inputs, HorizontalResults& results) {
    const LengthTerms terms = lengthTermsOf(inputs, results);
    const PenaltySite site = siteOf(inputs);
    results.neighbourCount = site.neighbours;
    ByMode<double> lengths = calcBoreLengths(terms, initTemperaturePenalty());
    lengths =
        calcBoreLengths(terms, calcTemperaturePenalty(site, results.annualGroundLoad, lengths));
    results.lengths = settleTrenchLengths(terms, site, lengths);
    lengths = results.lengths.boreLength;
    results.lengthShares = lengthShares(terms, lengths);
    results.governingMode = lengths[cooling] > lengths[heating] ? cooling : heating;
}

/// Trench with a coil in place of single pipe, and the pipe in all.
void layCoils(const HorizontalInputs& inputs, HorizontalResults& results) {
    const auto& [pitch, diameter] = inputs.arrangement.coilGeometry;
    for (Mode m : modes) {
        const double partLoad = results.partLoad.partLoadFactor[m];
        const double coilLength = partLoad > 0 ? coilLengthFor(pitch, partLoad) : 0;
        results.coilLengthPer250[m] = coilLength;
        results.requiredLength[m] = results.lengths.boreLength[m] / coilTableLength * coilLength;
        results.totalPipeLength[m] = coilPipeLength(results.requiredLength[m], pitch, diameter);
    }
}

}  // namespace

std::optional<HorizontalResults> runHorizontal(const HorizontalInputs& inputs) {
    HorizontalResults results;
    results.loads = calcPeakLoads(inputs.loads.zones);
    if (!hasLoad(results.loads)) return std::nullopt;
    const Hybrid hybrid = rollUpForGround(inputs.loads, results);
    rollUpYear(inputs.loads, inputs.coolingRange, hybrid, results);

    const bool coil = isCoil(inputs.arrangement.trenchConfiguration);
    const PipeValues pipe = coil ? equivalentPipe(inputs.pipe) : inputs.pipe;
    results.pipeResistance = pipe.pipeResistance;
    findGround(inputs, pipe, results);
    settleLengths(inputs, results);
    results.requiredLength = results.totalPipeLength = results.lengths.boreLength;
    if (coil) layCoils(inputs, results);

    if (hybrid.on) results.loads.peakLoad[cooling] = hybrid.coolingPeakBeforeHybrid;
    results.inputs = inputs;
    results.inputs->pipe.pipeResistance = results.pipeResistance;
    return results;
}

}  // namespace varnholt
