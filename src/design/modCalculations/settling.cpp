// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/settling.h"

#include <cmath>

#include "basis/run_time_error.h"

namespace varnholt::modCalculations {

namespace {

constexpr std::int16_t settlingPassLimit = 100;
constexpr double settlingTolerance = 0.001;
constexpr double shortestLength = 1;       // ft
constexpr double unsolvedLength = 1.0e-6;  // ft, stands for a length that is none

void pass(SettledLengths& state, const LengthTerms& terms, const PenaltySite& site) {
    state.iterations = toInteger(state.iterations + 1);
    state.previousBoreLength = state.boreLength;
    state.temperaturePenalty =
        calcTemperaturePenalty(site, terms.annualGroundLoad, state.boreLength);
    state.boreLength = calcBoreLengths(terms, state.temperaturePenalty);
    for (Mode m : modes) {
        if (state.boreLength[m] > shortestLength) continue;
        state.boreLength[m] = unsolvedLength;
        state.nonPositive[m] = true;
    }
}

bool settled(const SettledLengths& state, Mode m) {
    const double ratio = divide(state.boreLength[m], state.previousBoreLength[m]);
    return std::abs(ratio - 1) <= settlingTolerance;
}

bool bothNonPositive(const SettledLengths& state) {
    return state.nonPositive[cooling] && state.nonPositive[heating];
}

bool spent(const SettledLengths& state) { return state.iterations == settlingPassLimit; }

/// Both modes are compared on every pass, whatever the first comparison says.
bool goesOn(const SettledLengths& state) {
    const ByMode<bool> done{settled(state, cooling), settled(state, heating)};
    return !done[cooling] ||
           (!done[heating] && state.iterations < settlingPassLimit && !bothNonPositive(state));
}

/// Measured by the new length, which is never 0.
bool trenchSettled(const SettledLengths& state, Mode m) {
    return std::abs(1 - state.previousBoreLength[m] / state.boreLength[m]) <= settlingTolerance;
}

bool trenchesGoOn(const SettledLengths& state) {
    const bool done = trenchSettled(state, cooling) && trenchSettled(state, heating);
    return !done && !spent(state) && !bothNonPositive(state);
}

void clear(SettledLengths& state, Mode m) {
    state.boreLength[m] = 0;
    state.temperaturePenalty[m] = 0;
}

/// Takes back what the passes have left of a mode without a solution.
void conclude(SettledLengths& state) {
    state.failed = bothNonPositive(state) || spent(state);
    for (Mode m : modes)
        if (state.nonPositive[m] || spent(state)) clear(state, m);
}

/// Heat flows from the warmer to the colder: the ground has to be warmer than the fluid in heating,
/// and colder in cooling.
bool onWrongSide(const LengthTerms& terms, Mode m, double temperaturePenalty) {
    const double difference = temperatureDifference(terms, m, temperaturePenalty);
    return m == heating ? difference < 0 : difference > 0;
}

}  // namespace

SettledLengths settleBoreLengths(const LengthTerms& terms, const PenaltySite& site,
                                 const ByMode<double>& boreLength) {
    SettledLengths state;
    state.boreLength = boreLength;
    do pass(state, terms, site);
    while (goesOn(state));
    conclude(state);
    return state;
}

SettledLengths settleTrenchLengths(const LengthTerms& terms, const PenaltySite& site,
                                   const ByMode<double>& pipeLength) {
    SettledLengths state;
    state.boreLength = pipeLength;
    do pass(state, terms, site);
    while (trenchesGoOn(state));
    conclude(state);
    for (Mode m : modes)
        if (onWrongSide(terms, m, state.temperaturePenalty[m])) clear(state, m);
    return state;
}

}  // namespace varnholt::modCalculations
