// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/circuit_plan.h"
#include "design/field_plan.h"
#include "design/trench_plan.h"
#include "desktop/drawings/canvas.h"

namespace varnholt {

// Designs at a glance, as small as a line of a list: no words, no measures, every size a share of
// the canvas' area.

/// As many bores as the field has, each a dot; areas where there are too many to tell apart.
void paintMiniature(const Canvas& canvas, const FieldPlan& field);
/// Trenches from above with their columns of pipes, or the rings of their slinkies.
void paintMiniature(const Canvas& canvas, const TrenchPlan& plan);
/// The way from the shore to loops in the water.
void paintMiniature(const Canvas& canvas, const CircuitPlan& plan);

}  // namespace varnholt
