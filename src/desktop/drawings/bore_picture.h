// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/bore_drawing.h"
#include "desktop/drawings/canvas.h"
#include "forms/texts.h"

namespace varnholt {

/// The bore from above, to scale: ground, grout, the legs of the U-tubes with their walls, and the
/// diameters of bore and pipe. Pipes that do not fit are drawn as they would lie, with a warning.
void paintBore(const Canvas& canvas, const BoreDrawing& bore, const Texts& texts);

}  // namespace varnholt
