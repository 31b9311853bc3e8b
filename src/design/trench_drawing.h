// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "design/bore_drawing.h"
#include "design/horizontal_values.h"

namespace varnholt {

/// A trench with its pipes in a cut across it, to scale. Lengths in inches; x is counted from the
/// trench's middle line, y from the ground surface upward, so that pipes have negative ones.
struct TrenchDrawing {
    double width = 0, depth = 0;  ///< of the trench as entered
    double bottom = 0;            ///< of what has to be dug: a coil on edge hangs below the depth
    std::vector<PipeCircle> pipes;
    bool coil = false, standing = false;
    double coilDiameter = 0;
    double coilMiddle = 0;   ///< below the surface
    bool fits = true;        ///< the coil is no wider than the trench
    bool showsRows = false;  ///< there are two rows or more
    /// Element of the pipe that lies the columns' step beside the first one; 0 for none.
    std::size_t besideFirst = 0;
    // In the active units, with the unit's word.
    std::string depthLabel, widthLabel, rowStepLabel, columnStepLabel, coilLabel;

    /// There is no trench to draw.
    bool empty() const { return !(width > 0 && depth > 0) || (pipes.empty() && !coil); }
};

/// Pipes where the arithmetic has them, in the middle of the trench. Without a trench, or with
/// pipes that no trench can hold, it is empty.
TrenchDrawing drawTrench(const TrenchValues& trench, const HorizontalArrangementValues& pipes,
                         const PipeValues& pipe);

}  // namespace varnholt
