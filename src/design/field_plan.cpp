// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/field_plan.h"

#include <algorithm>
#include <cmath>

namespace varnholt {
namespace {

int drawn(double bores) {
    return static_cast<int>(std::clamp(std::floor(bores), 0.0, double{largestPlan}));
}

/// Neighbours of a bore along one line of the grid.
int neighboursInLine(int index, double bores) {
    return (index > 0 ? 1 : 0) + (index + 1 < std::floor(bores) ? 1 : 0);
}

}  // namespace

double fieldExtent(double bores, double separation) {
    return std::max(0.0, std::floor(bores) - 1) * separation;
}

FieldPlan drawField(const ArrangementValues& arrangement) {
    FieldPlan plan;
    plan.across = arrangement.patternRows[0];
    plan.down = arrangement.patternRows[1];
    plan.separation = arrangement.boreSeparation;
    plan.columnsDrawn = drawn(plan.across);
    plan.rowsDrawn = drawn(plan.down);
    plan.cut = plan.across >= largestPlan + 1 || plan.down >= largestPlan + 1;
    for (int row = 0; row < plan.rowsDrawn; ++row)
        for (int column = 0; column < plan.columnsDrawn; ++column)
            plan.neighbours.push_back(neighboursInLine(column, plan.across) +
                                      neighboursInLine(row, plan.down));
    return plan;
}

}  // namespace varnholt
