// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/length_summary.h"
#include "desktop/drawings/canvas.h"
#include "forms/texts.h"

namespace varnholt {

/// Both modes' lengths as bars of one scale, each made of its parts: those that make it longer
/// rightward from the line at 0, those that make it shorter leftward. A mark stands where they add
/// up to the length.
void paintLengths(const Canvas& canvas, const LengthSummary& lengths, const Texts& texts);

}  // namespace varnholt
