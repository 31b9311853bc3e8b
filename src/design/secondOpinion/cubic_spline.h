// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

namespace varnholt::secondOpinion {

/// The cubic spline through some points, with no knot at the second and the last but one of them: a
/// cubic comes out as it is. Through three points it is the natural one, through two a line.
/// Outside the points it keeps the value of the nearest.
class CubicSpline {
 public:
    CubicSpline() = default;
    /// @param x  ascending, two at least
    CubicSpline(std::vector<double> x, std::vector<double> y);

    double at(double x) const;
    const std::vector<double>& x() const { return x_; }
    const std::vector<double>& y() const { return y_; }

 private:
    std::vector<double> x_, y_, curvature_;
};

}  // namespace varnholt::secondOpinion
