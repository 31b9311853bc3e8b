// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/trench_resistance.h"

#include <cmath>

#include "basis/run_time_error.h"
#include "design/modCalculations/numbers.h"

namespace varnholt::modCalculations {

namespace {

constexpr double inchesPerFoot = 12;

double distanceOf(const PipePosition& a, const PipePosition& b) {
    return std::sqrt(powerOf(b.y - a.y, 2) + powerOf(b.x - a.x, 2));
}

void addTo(GroundResistances& sum, double weight, const GroundResistances& pair) {
    sum.annual += weight * pair.annual;
    sum.monthly += weight * pair.monthly;
    sum.shortTerm += weight * pair.shortTerm;
}

}  // namespace

GroundResistances averageGroundResistance(const std::vector<PipePosition>& nodes, double outside,
                                          const PulseTimes& pulses, const Soil& soil) {
    if (soil.conductivity == 0) throw RunTimeError(11);
    const auto resistanceAt = [&](double distance) {
        return calcGroundResistances(pulses, 2 * distance, soil);
    };
    // A pipe feels another as that one feels it, and so with their images: one half of the table
    // stands for both.
    GroundResistances sum;
    for (std::size_t i = 0; i < nodes.size(); i += 2) {
        addTo(sum, 1, resistanceAt(0.5 * outside / inchesPerFoot));
        addTo(sum, -1, resistanceAt(distanceOf(nodes[i], nodes[i + 1])));
        for (std::size_t j = i + 2; j < nodes.size(); j += 2) {
            addTo(sum, 2, resistanceAt(distanceOf(nodes[i], nodes[j])));
            addTo(sum, -2, resistanceAt(distanceOf(nodes[i], nodes[j + 1])));
        }
    }
    const std::size_t count = nodes.size() / 2;
    const auto pipes = static_cast<double>(count);
    return {divide(sum.annual, pipes), divide(sum.monthly, pipes), divide(sum.shortTerm, pipes)};
}

}  // namespace varnholt::modCalculations
