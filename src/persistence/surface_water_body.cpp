// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/surface_water_body.h"

#include "basis/run_time_error.h"
#include "design/modCalculations/loop_flows.h"

namespace varnholt {

void completeResults(SurfaceWaterProject& project) {
    SurfaceWaterResults& results = project.results.edit();
    results.loops.parallelLoops = project.loop.parallelLoops;
    try {
        results.flows =
            modCalculations::calculateFlows(results.outlet.systemFlow, results.loops.parallelLoops,
                                            headersOf(project.header, project.water));
    } catch (const RunTimeError&) {
        // A file may hold no loops, or figures beyond all sizes: there is no flow to tell.
        results.flows = {};
    }
}

}  // namespace varnholt
