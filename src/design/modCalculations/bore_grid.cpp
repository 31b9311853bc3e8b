// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/bore_grid.h"

namespace varnholt::modCalculations {

NeighbourCount countNeighbours(double rows, double columns) {
    if (rows == 1 && columns == 1) return {1, 0, 0, 0, 0};
    if (rows == 1 || columns == 1) return {0, 2, (rows != 1 ? rows : columns) - 2, 0, 0};
    if (rows == 2 || columns == 2) return {0, 0, 4, ((rows != 2 ? rows : columns) - 2) * 2, 0};
    if (rows >= 3 && columns >= 3) {
        const double edge = ((rows - 2) + (columns - 2)) * 2;
        return {0, 0, 4, edge, (rows - 2) * (columns - 2)};
    }
    return {};
}

}  // namespace varnholt::modCalculations
