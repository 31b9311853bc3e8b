// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/circuit_plan.h"
#include "desktop/drawings/canvas.h"
#include "forms/texts.h"

namespace varnholt {

/// The way from the heat pumps through the headers to the loops in the water: a section through
/// shore and pond, without scale, and below it the number, flow and length of each kind of pipe.
/// Of many pipes some stand for all. A low picture has no words.
void paintCircuit(const Canvas& canvas, const CircuitPlan& plan, const Texts& texts);

}  // namespace varnholt
