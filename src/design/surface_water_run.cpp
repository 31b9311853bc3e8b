// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/surface_water_run.h"

#include "design/modCalculations/loop_length.h"
#include "design/surface_water_rules.h"

namespace varnholt {
namespace {

using namespace modCalculations;

ApproachTerms approachTermsOf(const SurfaceWaterInputs& inputs, const Headers& headers,
                              const UnitOutlet& outlet) {
    return {headers, outlet.systemFlow, inputs.loads.inletTemp, inputs.water.loopWaterTemp,
            inputs.soil.groundTempAtDepth};
}

LoopLengthTerms lengthTermsOf(const LoadsInputs& loads, const SurfaceWaterResults& results) {
    return {results.approach.approachTemp, results.loads.peakLoad,
            results.demand.peakDemand,     loads.inletTemp,
            results.outlet.outletTemp,     loads.fluid};
}

/// The field of loops and headers for loads that are rolled up.
void sizeField(const SurfaceWaterInputs& inputs, SurfaceWaterResults& results) {
    const Headers headers = headersOf(inputs.header, inputs.water);
    results.flows = calculateFlows(results.outlet.systemFlow, results.loops.parallelLoops, headers);
    results.approach = calculateApproach(approachTermsOf(inputs, headers, results.outlet));
    const LoopPipe pipe{inputs.loop.loopStyle, inputs.loop.loopPipeSize};
    const LoopLengthTerms terms = lengthTermsOf(inputs.loads, results);
    results.loopLength = calculateLoopLength(pipe, terms);
    results.lengthAtTableFlow = lengthAtTableFlow(pipe, terms);
    results.headLoss = calculateHeadLoss({results.loopLength, results.loops.parallelLoops,
                                          inputs.loop.extraEqvLength, inputs.loop.loopHeadLoss},
                                         headers);
}

}  // namespace

std::optional<SurfaceWaterResults> runSurfaceWater(const SurfaceWaterInputs& inputs) {
    SurfaceWaterResults results;
    results.loads = calcPeakLoads(inputs.loads.zones);
    if (!hasLoad(results.loads)) return std::nullopt;
    rollUpForGround(inputs.loads, results);
    results.loops = calculateMaxParallelLoops(results.outlet.systemFlow, inputs.minimumLoopFlow,
                                              inputs.loop.parallelLoops);
    SurfaceWaterInputs& settled = results.inputs.emplace(inputs);
    settled.loop.parallelLoops = results.loops.parallelLoops;
    settled.soil.groundTempAtDepth = correctGroundTemp(inputs.soil);
    sizeField(settled, results);
    return results;
}

}  // namespace varnholt
