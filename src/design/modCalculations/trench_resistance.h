// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "design/modCalculations/ground_resistance.h"
#include "design/modCalculations/heat_pulses.h"
#include "design/modCalculations/trench_layout.h"

namespace varnholt::modCalculations {

/// What the resistances of the ground around the pipes of a trench come from.
struct TrenchGround {
    std::vector<PipePosition> nodes;  ///< pipes and images by turns, as buildPipePositions gives
    double outside = 0;               ///< diameter of the pipe, in
    PulseTimes pulses{};
    Soil soil;

    friend bool operator==(const TrenchGround&, const TrenchGround&) = default;
};

/// From node to node, ft; a node lies at the pipe's radius from itself.
/// Throws RunTimeError 9 for no node, as do the next two.
double pipeDistance(const TrenchGround& ground, int from, int to);

/// What one node feels of another, whatever its sign in the sum, hr ft degF/Btu.
GroundResistances pairResistance(const TrenchGround& ground, int from, int to);

/// What a node feels of all pipes, less what it feels of all images, hr ft degF/Btu.
GroundResistances pipeResistanceSum(const TrenchGround& ground, int node);

/// Effective thermal resistances of the ground around the pipes of a trench, for the three heat
/// pulses: the mean over the pipes of what each feels of itself and of all others, less what it
/// feels of their mirror images. The images hold the ground surface at its temperature.
/// Source: cylinder sources and images after Ingersoll, Zobel and Ingersoll, "Heat Conduction"
/// (1954).
/// Equation: R = 1/N sum over pipes i and j of r(distance of i and j) - r(distance of i and the
/// image of j), r of a distance being the resistances of a bore with that radius. A pipe lies at
/// its own radius from itself; pipes in one place, at a distance of 0, have a Fourier number
/// of 1.0E+9.
///
/// @return hr ft degF/Btu; a shallow pipe's may be negative
/// Throws RunTimeError 11 with a conductivity of 0 or without pipes.
GroundResistances averageGroundResistance(const TrenchGround& ground);

}  // namespace varnholt::modCalculations
