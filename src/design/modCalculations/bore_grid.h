// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

namespace varnholt::modCalculations {

/// A rectangular field of bores. The numbers are doubles, as the fields hold them.
struct BoreGrid {
    double rows = 1;
    double columns = 1;
    double separation = 0;  ///< between neighbours, ft
};

/// Element n is the number of bores that have n neighbours.
using NeighbourCount = std::array<double, 5>;

/// How many bores of a grid have 0, 1, 2, 3 and 4 nearest neighbours. All counts are 0 for a grid
/// that is none, with less than one row beside two or more columns, say.
NeighbourCount countNeighbours(double rows, double columns);

}  // namespace varnholt::modCalculations
