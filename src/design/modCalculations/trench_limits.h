// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/modCalculations/trench_layout.h"

namespace varnholt::modCalculations {

// The limits between pipes and trench always correct the trench, never the pipes.

/// The trench's depth, or the height of the stack of pipes where that is more, ft. A coil is no
/// stack.
double depthThatHolds(const TrenchLayout& layout);

/// The trench's width, or that of the pipes where that is more, in: from the first column to the
/// last, half a step more with an offset, and a standing coil's diameter. A lying coil has no
/// limit; what each arrangement is held to is the method's choice.
/// @param width  of the trench, in
double widthThatHolds(const TrenchLayout& layout, double width);

/// Width of the trench when an arrangement is chosen, in: 8 for a lying coil, the diameter of a
/// standing one, the step between two columns; the others keep the width they find.
/// @param layout  with the new arrangement
/// @param width   of the trench before, in
double widthWhenChosen(const TrenchLayout& layout, double width);

/// A coil's pitch within the limits of the coil table, 10 to 56 in; 20 when none has been entered.
double pitchWithinLimits(double pitch);

}  // namespace varnholt::modCalculations
