// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/approach_temp.h"

#include <cmath>

#include "basis/run_time_error.h"
#include "design/modCalculations/numbers.h"

namespace varnholt::modCalculations {

namespace {

constexpr std::int16_t approachPassLimit = 5;
constexpr double approachTolerance = 0.05;
// Two guesses that differ by more than the tolerance, so that a first pass is made, degF.
constexpr ByMode<double> firstApproach{60.0, -50.0};
constexpr ByMode<double> firstNewApproach{100.0, -60.0};

struct ApproachState {
    double approach, newApproach;
    HeaderPickup pickup{};
    std::int16_t passes = 0;
};

void takePickup(ApproachState& state, const ApproachTerms& terms, Mode m, double fluidAtLoop) {
    state.pickup = calculateHeaderPickup(terms.headers, m, fluidAtLoop, terms.systemFlow[m],
                                         terms.groundTempAtDepth[m]);
    const auto& [submerged, buried] = state.pickup;
    state.newApproach = finite(terms.inletTemp[m] - terms.loopWaterTemp[m] - submerged - buried);
}

/// The two approaches are compared after the last pass too.
bool goesOn(const ApproachState& state) {
    const double change =
        std::abs(finite(divide(state.approach - state.newApproach, state.approach)));
    return change > approachTolerance && state.passes < approachPassLimit;
}

ApproachState approachOf(const ApproachTerms& terms, Mode m) {
    ApproachState state{firstApproach[m], firstNewApproach[m]};
    double fluidAtLoop = terms.inletTemp[m];
    while (goesOn(state)) {
        state.approach = state.newApproach;
        takePickup(state, terms, m, fluidAtLoop);
        fluidAtLoop = terms.inletTemp[m] - state.pickup.submerged - state.pickup.buried;
        ++state.passes;
    }
    if (state.passes == approachPassLimit) takePickup(state, terms, m, terms.inletTemp[m]);
    return state;
}

}  // namespace

Approach calculateApproach(const ApproachTerms& terms) {
    Approach result;
    for (Mode m : modes) {
        const ApproachState state = approachOf(terms, m);
        result.approachTemp[m] = state.newApproach;
        result.headerHeatPickup[m] = state.pickup;
        result.passes[m] = state.passes;
        result.unsettled[m] = state.passes == approachPassLimit;
    }
    return result;
}

}  // namespace varnholt::modCalculations
