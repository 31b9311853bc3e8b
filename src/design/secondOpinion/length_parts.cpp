// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/length_parts.h"

#include "basis/units.h"
#include "design/secondOpinion/settled_depth.h"

namespace varnholt::secondOpinion {
namespace {

constexpr double hoursOfDesignMonth = 720;

SettledDepth settlePulses(GFunctionMemory& memory, const FieldTerms& terms, Mode mode,
                          const LengthsToPart& lengths, bool withCylinder) {
    const DepthSearch search{lengths.bores, lengths.secondOpinion / lengths.bores, lastRung};
    const std::array<double, 3> hours = threePulseHours(terms);
    return settleDepth(memory, search, [&](const DepthFunction& function) {
        std::array<double, 3> g{};
        for (std::size_t i = 0; i < g.size(); ++i)
            g[i] = function.at(hours[i]) + (withCylinder ? lengths.cylinder[i] : 0);
        return threePulseLength(terms, mode, g);
    });
}

}  // namespace

std::array<double, 3> threePulseHours(const FieldTerms& terms) {
    const double month = hoursOfDesignMonth + terms.pulseHours;
    return {hoursPerYear * terms.years + month, month, terms.pulseHours};
}

double threePulseLength(const FieldTerms& terms, Mode mode, const std::array<double, 3>& g) {
    const ZonesYear& zones = terms.zones;
    const double peak = (mode == cooling ? -1 : 1) * zones.designPeak[mode];
    const double annual = zones.annualGroundLoad * (g[0] - g[1]);
    const double pulses = zones.partLoadFactor[mode] * (g[1] - g[2]) +
                          zones.shortCircuitFactor * g[2] +
                          terms.heatScale() * terms.boreResistance;
    return terms.lengthFor(annual + peak * pulses, mode);
}

PartedLengths partLengths(GFunctionMemory& memory, const FieldTerms& terms, Mode mode,
                          const LengthsToPart& lengths) {
    const SettledDepth withCylinder = settlePulses(memory, terms, mode, lengths, true);
    if (withCylinder.state == SettledDepth::waiting) return {true, {}};
    const SettledDepth asOpinion =
        lengths.withCylinder ? withCylinder : settlePulses(memory, terms, mode, lengths, false);
    if (asOpinion.state == SettledDepth::waiting) return {true, {}};
    const bool sound =
        withCylinder.state == SettledDepth::settled && asOpinion.state == SettledDepth::settled;
    if (!sound) return {};
    return {false, LengthParts{withCylinder.length - lengths.classical,
                               asOpinion.length - withCylinder.length,
                               lengths.secondOpinion - asOpinion.length}};
}

}  // namespace varnholt::secondOpinion
