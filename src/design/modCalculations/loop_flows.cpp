// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/loop_flows.h"

#include <cmath>

#include "basis/run_time_error.h"

namespace varnholt::modCalculations {

namespace {

double mostLoops(double systemFlow, double minimumLoopFlow, std::int16_t parallelLoops) {
    if (minimumLoopFlow <= 0) return parallelLoops;
    if (systemFlow <= minimumLoopFlow) return 1;
    return toInteger(std::floor(systemFlow / minimumLoopFlow));
}

/// Where a least flow tells how many loops there may be, there is one at least.
std::int16_t allowedLoops(double most, double minimumLoopFlow, std::int16_t parallelLoops) {
    if (parallelLoops >= most) return toInteger(most);
    return parallelLoops == 0 && minimumLoopFlow > 0 ? std::int16_t{1} : parallelLoops;
}

double sharedBy(double flow, double pipes) { return pipes == 0 ? 0 : flow / pipes; }

}  // namespace

ParallelLoops calculateMaxParallelLoops(const ByMode<double>& systemFlow,
                                        const ByMode<double>& minimumLoopFlow,
                                        const ByMode<std::int16_t>& parallelLoops) {
    ParallelLoops result;
    for (Mode m : modes) {
        const double most = mostLoops(systemFlow[m], minimumLoopFlow[m], parallelLoops[m]);
        result.maxParallelLoops[m] = most;
        result.parallelLoops[m] = allowedLoops(most, minimumLoopFlow[m], parallelLoops[m]);
    }
    return result;
}

PipeFlows calculateFlows(const ByMode<double>& systemFlow,
                         const ByMode<std::int16_t>& parallelLoops, const Headers& headers) {
    PipeFlows flows;
    for (Mode m : modes) {
        flows.primaryHeaderFlow[m] = sharedBy(systemFlow[m], headers.primary.count);
        flows.branchHeaderFlow[m] = sharedBy(flows.primaryHeaderFlow[m], headers.branch.count);
        flows.circuitFlow[m] = divide(systemFlow[m], parallelLoops[m]);
    }
    return flows;
}

}  // namespace varnholt::modCalculations
