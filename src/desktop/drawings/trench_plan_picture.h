// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/trench_plan.h"
#include "desktop/drawings/canvas.h"
#include "forms/texts.h"

namespace varnholt {

/// The trenches from above, to scale: side by side with their separation, columns of pipes as
/// lines, a lying slinky as loops that overlap by its pitch, one on edge as a line with the places
/// of its loops.
void paintTrenches(const Canvas& canvas, const TrenchPlan& plan, const Texts& texts);

}  // namespace varnholt
