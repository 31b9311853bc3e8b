// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/trench_drawing.h"
#include "desktop/drawings/canvas.h"
#include "forms/texts.h"

namespace varnholt {

/// The trench in a cut across it, to scale: ground, backfill, pipes or the coil, and the dimensions
/// under the letters that the fields call them by.
void paintTrench(const Canvas& canvas, const TrenchDrawing& trench, const Texts& texts);

}  // namespace varnholt
