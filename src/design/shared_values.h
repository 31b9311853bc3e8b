// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "design/borehole_results.h"
#include "design/design_values.h"
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
/// The rest of a borehole run.
void addBoreholeResults(Values& values, const std::function<const BoreholeResults&()>& results);

}  // namespace varnholt
