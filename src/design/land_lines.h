// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "basis/units.h"
#include "design/whatIf/land.h"

namespace varnholt {

/// Why lines are no land.
enum class LandFault { none, noNumbers, tooFewCorners, sidesCross };

/// Land as it stands in the clipboard: lines of x, tab, y, the outline first, then no-go areas,
/// each behind an empty line.
struct LandLines {
    std::vector<Polygon> polygons;  ///< the outline first, ft
    LandFault fault = LandFault::none;
    std::size_t line = 0;     ///< that is no pair of numbers, from 1
    std::size_t polygon = 0;  ///< that is at fault: 0 the outline
};

/// @param units  of the numbers: ft or m
LandLines readLandLines(std::string_view text, UnitSystem units);

/// Bores or corners as lines of x, tab, y.
std::string landLines(const std::vector<Point>& points, UnitSystem units);

}  // namespace varnholt
