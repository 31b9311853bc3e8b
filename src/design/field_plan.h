// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "design/design_values.h"

namespace varnholt {

/// The field of bores from above.
struct FieldPlan {
    double across = 0, down = 0;  ///< bores
    double separation = 0;        ///< ft
    /// Bores that are drawn: all of them, unless there are more than one can tell apart.
    int columnsDrawn = 0, rowsDrawn = 0;
    bool cut = false;
    /// Number of neighbours, 0 to 4, of each drawn bore, row by row.
    std::vector<int> neighbours;
    // In the active units, with the unit's word.
    std::string separationLabel, acrossLabel, downLabel;
};

/// Most rows and columns that a plan shows.
inline constexpr int largestPlan = 60;

FieldPlan drawField(const ArrangementValues& arrangement);

/// Distance between the first and the last of so many bores, ft.
double fieldExtent(double bores, double separation);

}  // namespace varnholt
