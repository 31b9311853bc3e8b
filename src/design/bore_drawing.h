// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "design/design_values.h"

namespace varnholt {

/// One leg of a U-tube in the cross-section of a bore. Lengths in inches, the bore's middle is the
/// origin.
struct PipeCircle {
    double x = 0, y = 0;
    double outside = 0, inside = 0;  ///< diameters
};

/// The cross-section of a bore, to scale.
struct BoreDrawing {
    double boreDiameter = 0;  ///< in
    std::vector<PipeCircle> pipes;
    bool fits = true;  ///< the pipes go into the bore without touching the ground
    // In the active units, with the unit's word.
    std::string boreLabel, pipeLabel;
};

/// Legs lie on a circle around the bore's middle: against the bore's wall, with equal gaps between
/// wall, pipe and pipe, or against each other. A bore that is too narrow shows them against each
/// other.
BoreDrawing drawBore(const BoreValues& bore, const PipeValues& pipe);

}  // namespace varnholt
