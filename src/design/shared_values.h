// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <functional>

#include "design/design_values.h"
#include "design/ground_roll_up.h"
#include "forms/values.h"

namespace varnholt {

// Public values under the names that scripts, reports and files know. What they are read from must
// outlive them; results are asked for anew at each reading, since a run replaces them.

void addFluidValues(Values& values, const FluidValues& fluid);
void addSoilValues(Values& values, const SoilValues& soil);
void addPipeValues(Values& values, const PipeValues& pipe);
void addExtraPowerValues(Values& values, const ExtraPowerValues& power);
void addTowerValues(Values& values, const TowerValues& tower);

/// What the zones amount to.
void addRollUpValues(Values& values, const std::function<const LoadsRollUp&()>& rollUp);
/// And what they amount to for the ground, over the year.
void addGroundValues(Values& values, const std::function<const GroundRollUp&()>& rollUp);

/// Annual, monthly and short term, as the public array has them.
std::array<double, 3> elementsOf(const modCalculations::GroundResistances& resistances);

}  // namespace varnholt
