// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/cubic_spline.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace varnholt::secondOpinion {

CubicSpline::CubicSpline(std::vector<double> x, std::vector<double> y)
    : x_(std::move(x)), y_(std::move(y)), curvature_(x_.size(), 0) {
    const std::size_t n = x_.size();
    if (n < 3) return;
    // Second derivatives at the ends lie on the straight line of the two next to them.
    const double first = n > 3 ? (x_[1] - x_[0]) / (x_[2] - x_[1]) : 0;
    const double last = n > 3 ? (x_[n - 1] - x_[n - 2]) / (x_[n - 2] - x_[n - 3]) : 0;
    // They solve a system of three diagonals, by Thomas's elimination.
    std::vector<double> upper(n, 0);
    for (std::size_t i = 1; i + 1 < n; ++i) {
        double before = x_[i] - x_[i - 1], behind = x_[i + 1] - x_[i];
        const double bend = (y_[i + 1] - y_[i]) / behind - (y_[i] - y_[i - 1]) / before;
        double middle = 2 * (before + behind);
        if (i == 1 && n > 3) {
            middle += before * (1 + first);
            behind -= before * first;
            before = 0;
        }
        if (i + 2 == n && n > 3) {
            middle += (x_[n - 1] - x_[i]) * (1 + last);
            before -= (x_[n - 1] - x_[i]) * last;
            behind = 0;
        }
        const double pivot = middle - before * upper[i - 1];
        upper[i] = behind / pivot;
        curvature_[i] = (6 * bend - before * curvature_[i - 1]) / pivot;
    }
    for (std::size_t i = n - 1; i-- > 1;) curvature_[i] -= upper[i] * curvature_[i + 1];
    if (n == 3) return;
    curvature_[0] = curvature_[1] + first * (curvature_[1] - curvature_[2]);
    curvature_[n - 1] = curvature_[n - 2] + last * (curvature_[n - 2] - curvature_[n - 3]);
}

double CubicSpline::at(double x) const {
    if (!(x > x_.front())) return y_.front();
    if (!(x < x_.back())) return y_.back();
    const auto above = std::upper_bound(x_.begin(), x_.end(), x);
    const auto i = static_cast<std::size_t>(above - x_.begin());
    const double width = x_[i] - x_[i - 1];
    const double a = (x_[i] - x) / width, b = (x - x_[i - 1]) / width;
    return a * y_[i - 1] + b * y_[i] +
           ((a * a * a - a) * curvature_[i - 1] + (b * b * b - b) * curvature_[i]) * width * width /
               6;
}

}  // namespace varnholt::secondOpinion
