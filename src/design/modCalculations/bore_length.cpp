// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/bore_length.h"

#include "basis/run_time_error.h"
#include "basis/units.h"
#include "design/modCalculations/ground_load.h"
#include "design/modCalculations/numbers.h"

namespace varnholt::modCalculations {

double temperatureDifference(const LengthTerms& terms, Mode mode, double temperaturePenalty) {
    const double fluid = (terms.inletTemp[mode] + terms.outletTemp[mode]) / 2;
    return terms.groundTemp[mode] - fluid - temperaturePenalty;
}

ByMode<double> calcBoreLengths(const LengthTerms& terms, const ByMode<double>& temperaturePenalty) {
    const GroundResistances& ground = terms.groundResistance;
    ByMode<double> length{};
    for (Mode m : modes) {
        if (terms.peakLoad[m] == 0) continue;
        const double annual = terms.annualGroundLoad * ground.annual;
        const double peak = peakGroundLoad(m, terms.peakLoad[m], terms.peakDemand[m]) *
                            (terms.boreResistance + terms.partLoadFactor[m] * ground.monthly +
                             ground.shortTerm * terms.shortCircuitFactor);
        const double difference = temperatureDifference(terms, m, temperaturePenalty[m]);
        length[m] = finite(divide(1000 * (annual + peak), difference));
    }
    return length;
}

}  // namespace varnholt::modCalculations
