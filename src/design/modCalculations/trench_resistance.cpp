// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/trench_resistance.h"

#include <cmath>

#include "basis/run_time_error.h"
#include "basis/units.h"
#include "design/modCalculations/numbers.h"

namespace varnholt::modCalculations {

namespace {

double distanceOf(const PipePosition& a, const PipePosition& b) {
    return std::sqrt(powerOf(b.y - a.y, 2) + powerOf(b.x - a.x, 2));
}

void addTo(GroundResistances& sum, double weight, const GroundResistances& pair) {
    sum.annual += weight * pair.annual;
    sum.monthly += weight * pair.monthly;
    sum.shortTerm += weight * pair.shortTerm;
}

GroundResistances resistanceAt(const TrenchGround& ground, double distance) {
    return calcGroundResistances(ground.pulses, 2 * distance, ground.soil);
}

}  // namespace

double pipeDistance(const TrenchGround& ground, int from, int to) {
    const PipePosition& a = at(ground.nodes, from);
    const PipePosition& b = at(ground.nodes, to);
    return from == to ? 0.5 * ground.outside / inchesPerFoot : distanceOf(a, b);
}

GroundResistances pairResistance(const TrenchGround& ground, int from, int to) {
    return resistanceAt(ground, pipeDistance(ground, from, to));
}

GroundResistances pipeResistanceSum(const TrenchGround& ground, int node) {
    at(ground.nodes, node);
    GroundResistances sum;
    for (int other = 0; other < static_cast<int>(ground.nodes.size()); ++other)
        addTo(sum, other % 2 == 0 ? 1 : -1, pairResistance(ground, node, other));
    return sum;
}

GroundResistances averageGroundResistance(const TrenchGround& ground) {
    if (ground.soil.conductivity == 0) throw RunTimeError(11);
    const std::vector<PipePosition>& nodes = ground.nodes;
    // A pipe feels another as that one feels it, and so with their images: one half of the table
    // stands for both.
    GroundResistances sum;
    for (std::size_t i = 0; i < nodes.size(); i += 2) {
        addTo(sum, 1, resistanceAt(ground, 0.5 * ground.outside / inchesPerFoot));
        addTo(sum, -1, resistanceAt(ground, distanceOf(nodes[i], nodes[i + 1])));
        for (std::size_t j = i + 2; j < nodes.size(); j += 2) {
            addTo(sum, 2, resistanceAt(ground, distanceOf(nodes[i], nodes[j])));
            addTo(sum, -2, resistanceAt(ground, distanceOf(nodes[i], nodes[j + 1])));
        }
    }
    const std::size_t count = nodes.size() / 2;
    const auto pipes = static_cast<double>(count);
    return {divide(sum.annual, pipes), divide(sum.monthly, pipes), divide(sum.shortTerm, pipes)};
}

}  // namespace varnholt::modCalculations
