// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/drawings/canvas.h"
#include "forms/texts.h"
#include "loads/modLoads/loads_pictures.h"

namespace varnholt {

/// A pair of bars for each block, cooling solid and heating framed, with the figure of the largest
/// of each mode.
void paintLoads(const Canvas& canvas, const LoadsChart& loads, const LoadsCaptions& captions,
                const Texts& texts);

}  // namespace varnholt
