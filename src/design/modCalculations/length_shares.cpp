// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/length_shares.h"

#include <cmath>

#include "design/modCalculations/ground_load.h"

namespace varnholt::modCalculations {
namespace {

LengthShares sharesOf(const LengthTerms& terms, Mode mode, double length) {
    constexpr double undisturbed = 0;
    const double difference = temperatureDifference(terms, mode, undisturbed);
    const GroundResistances& ground = terms.groundResistance;
    const double annual = 1000 * terms.annualGroundLoad / difference;
    const double peak =
        1000 * peakGroundLoad(mode, terms.peakLoad[mode], terms.peakDemand[mode]) / difference;
    LengthShares shares{annual * ground.annual, peak * terms.partLoadFactor[mode] * ground.monthly,
                        peak * ground.shortTerm * terms.shortCircuitFactor,
                        peak * terms.boreResistance, 0};
    shares.penalty = length - shares.total();
    // A difference of next to nothing leaves no figures to show.
    return std::isfinite(shares.penalty) ? shares : LengthShares();
}

}  // namespace

ByMode<LengthShares> lengthShares(const LengthTerms& terms, const ByMode<double>& length) {
    ByMode<LengthShares> shares;
    for (const Mode mode : modes)
        if (length[mode] > 0) shares[mode] = sharesOf(terms, mode, length[mode]);
    return shares;
}

}  // namespace varnholt::modCalculations
