// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "design/horizontal_values.h"

namespace varnholt {

/// The field of trenches from above.
struct TrenchPlan {
    double trenches = 0;
    int drawn = 0;          ///< as many of them as one can tell apart
    double separation = 0;  ///< from middle line to middle line, ft
    double width = 0;       ///< of a trench, ft
    /// Columns of pipes in a trench; 0 for a coil.
    int columns = 0;
    double columnStep = 0;               ///< ft
    bool standing = false;               ///< the coil stands on edge: from above it is a line
    double pitch = 0, coilDiameter = 0;  ///< of a coil, ft
    // In the active units, with the unit's word.
    std::string separationLabel, pitchLabel, coilLabel;

    bool isCoil() const { return columns == 0; }
    bool empty() const { return drawn == 0; }
};

/// Most trenches that a plan shows.
inline constexpr int largestTrenchPlan = 4;

/// Empty for an arrangement that is none.
TrenchPlan drawTrenches(const TrenchValues& trench, const HorizontalArrangementValues& pipes);

}  // namespace varnholt
