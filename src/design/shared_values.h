// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/values.h"

namespace varnholt {

class GroundDesign;
struct BoreholeResults;
struct LoadsRollUp;

// Public values under the names that scripts, reports and files know.

/// Fluid, soil, pipe, extra power and tower of any design.
void addSharedValues(Values& values, const GroundDesign& design);
/// What the zones amount to.
void addRollUpValues(Values& values, const LoadsRollUp& rollUp);
/// The rest of a borehole run.
void addBoreholeResults(Values& values, const BoreholeResults& results);

}  // namespace varnholt
