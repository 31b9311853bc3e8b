// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

namespace varnholt {

/// What rounding may move a place by, ft: it decides nothing.
constexpr double placeGive = 1e-7;

/// A place on the land, ft: x grows across, y down the list of rows.
struct Point {
    double x = 0;
    double y = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

/// Corners in order, either way round; the last is joined to the first.
using Polygon = std::vector<Point>;

/// The rectangle with a corner at 0, 0.
Polygon rectangleOf(double across, double down);

/// Area, ft^2, whichever way round the corners go.
double areaOf(const Polygon& polygon);

/// Whether a polygon bounds a piece of land: three corners or more, finite, sides that neither
/// cross nor touch but where they follow each other, and an area.
bool isSimple(const Polygon& polygon);

/// Distance of a point from the nearest side, ft, negative outside.
double depthInside(const Polygon& polygon, const Point& point);

/// The smallest rectangle along the axes that holds a polygon.
struct Extent {
    Point least, greatest;
};
Extent extentOf(const Polygon& polygon);

/// Land that bores may stand on.
struct Land {
    Polygon outline;
    std::vector<Polygon> noGo;
    double boundaryClearance = 0;  ///< from the outline to a bore, ft
    double noGoClearance = 0;      ///< from a no-go area to a bore, ft

    /// Whether a bore may stand there, with a ten-millionth of a foot of give for rounding.
    bool allows(const Point& point) const;
};

}  // namespace varnholt
