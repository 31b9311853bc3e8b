// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/land.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

namespace varnholt {
namespace {

/// Twice the area of a triangle, positive where its corners turn left.
double turn(const Point& a, const Point& b, const Point& c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

/// Whether a point in line with a side lies on it.
bool liesBetween(const Point& a, const Point& b, const Point& p) {
    return std::min(a.x, b.x) <= p.x && p.x <= std::max(a.x, b.x) && std::min(a.y, b.y) <= p.y &&
           p.y <= std::max(a.y, b.y);
}

bool sidesMeet(const Point& a, const Point& b, const Point& c, const Point& d) {
    const double ofC = turn(a, b, c), ofD = turn(a, b, d);
    const double ofA = turn(c, d, a), ofB = turn(c, d, b);
    const auto opposite = [](double u, double v) { return (u > 0 && v < 0) || (u < 0 && v > 0); };
    if (opposite(ofC, ofD) && opposite(ofA, ofB)) return true;
    return (ofC == 0 && liesBetween(a, b, c)) || (ofD == 0 && liesBetween(a, b, d)) ||
           (ofA == 0 && liesBetween(c, d, a)) || (ofB == 0 && liesBetween(c, d, b));
}

/// Whether the side from b to c runs back over the one from a to b.
bool runsBack(const Point& a, const Point& b, const Point& c) {
    return turn(a, b, c) == 0 && (c.x - b.x) * (a.x - b.x) + (c.y - b.y) * (a.y - b.y) > 0;
}

double squaredDistance(const Point& a, const Point& b, const Point& p) {
    const double dx = b.x - a.x, dy = b.y - a.y;
    const double length = dx * dx + dy * dy;
    const double along =
        length == 0 ? 0 : std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / length, 0.0, 1.0);
    const double x = p.x - a.x - along * dx, y = p.y - a.y - along * dy;
    return x * x + y * y;
}

}  // namespace

Polygon rectangleOf(double across, double down) {
    return {{0, 0}, {across, 0}, {across, down}, {0, down}};
}

double areaOf(const Polygon& polygon) {
    double twice = 0;
    for (std::size_t i = 0; i < polygon.size(); ++i)
        twice += turn(polygon.front(), polygon[i], polygon[(i + 1) % polygon.size()]);
    return std::abs(twice) / 2;
}

bool isSimple(const Polygon& polygon) {
    const std::size_t n = polygon.size();
    if (n < 3) return false;
    for (const Point& corner : polygon)
        if (!std::isfinite(corner.x) || !std::isfinite(corner.y)) return false;
    for (std::size_t i = 0; i < n; ++i) {
        const Point& a = polygon[i];
        const Point& b = polygon[(i + 1) % n];
        if (a == b || runsBack(a, b, polygon[(i + 2) % n])) return false;
        for (std::size_t j = i + 2; j < n; ++j) {
            if (i == 0 && j == n - 1) continue;
            if (sidesMeet(a, b, polygon[j], polygon[(j + 1) % n])) return false;
        }
    }
    return areaOf(polygon) > 0;
}

double depthInside(const Polygon& polygon, const Point& p) {
    bool inside = false;
    double nearest = std::numeric_limits<double>::infinity();
    const Point* a = &polygon.back();
    for (const Point& b : polygon) {
        // A ray to the right meets each side that spans its height, and is inside after odd counts.
        if ((b.y > p.y) != (a->y > p.y) && p.x < (a->x - b.x) * (p.y - b.y) / (a->y - b.y) + b.x)
            inside = !inside;
        nearest = std::min(nearest, squaredDistance(*a, b, p));
        a = &b;
    }
    return inside ? std::sqrt(nearest) : -std::sqrt(nearest);
}

Extent extentOf(const Polygon& polygon) {
    Extent extent{polygon.front(), polygon.front()};
    for (const Point& corner : polygon) {
        extent.least = {std::min(extent.least.x, corner.x), std::min(extent.least.y, corner.y)};
        extent.greatest = {std::max(extent.greatest.x, corner.x),
                           std::max(extent.greatest.y, corner.y)};
    }
    return extent;
}

bool Land::allows(const Point& point) const {
    if (depthInside(outline, point) < boundaryClearance - placeGive) return false;
    return std::none_of(noGo.begin(), noGo.end(), [&](const Polygon& area) {
        return -depthInside(area, point) < noGoClearance - placeGive;
    });
}

}  // namespace varnholt
