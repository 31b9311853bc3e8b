// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/settling.h"

#include <cmath>

#include "basis/run_time_error.h"

namespace varnholt::modCalculations {

namespace {

constexpr std::int16_t passLimit = 100;
constexpr double tolerance = 0.001;
constexpr double shortestLength = 1;  // ft
constexpr double noLength = 1.0e-6;   // ft, stands for a length that is none

void pass(SettledLengths& state, const LengthTerms& terms, const PenaltySite& site) {
    state.iterations = toInteger(state.iterations + 1);
    state.previousBoreLength = state.boreLength;
    state.temperaturePenalty =
        calcTemperaturePenalty(site, terms.annualGroundLoad, state.boreLength);
    state.boreLength = calcBoreLengths(terms, state.temperaturePenalty);
    for (Mode m : modes) {
        if (state.boreLength[m] > shortestLength) continue;
        state.boreLength[m] = noLength;
        state.nonPositive[m] = true;
    }
}

bool settled(const SettledLengths& state, Mode m) {
    const double ratio = divide(state.boreLength[m], state.previousBoreLength[m]);
    return std::abs(ratio - 1) <= tolerance;
}

bool bothNonPositive(const SettledLengths& state) {
    return state.nonPositive[cooling] && state.nonPositive[heating];
}

/// Both modes are compared on every pass, whatever the first comparison says.
bool goesOn(const SettledLengths& state) {
    const ByMode<bool> done{settled(state, cooling), settled(state, heating)};
    return !done[cooling] ||
           (!done[heating] && state.iterations < passLimit && !bothNonPositive(state));
}

}  // namespace

SettledLengths settleBoreLengths(const LengthTerms& terms, const PenaltySite& site,
                                 const ByMode<double>& boreLength) {
    SettledLengths state;
    state.boreLength = boreLength;
    do pass(state, terms, site);
    while (goesOn(state));

    const bool spent = state.iterations == passLimit;
    state.failed = bothNonPositive(state) || spent;
    for (Mode m : modes) {
        if (!state.nonPositive[m] && !spent) continue;
        state.boreLength[m] = 0;
        state.temperaturePenalty[m] = 0;
    }
    return state;
}

}  // namespace varnholt::modCalculations
