// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/pulse_term.h"

#include <cmath>

#include "design/secondOpinion/g_function_memory.h"

namespace varnholt::secondOpinion {
namespace {

constexpr double spacing = 0.15;  // of ln t

}  // namespace

PulseTerm::PulseTerm(const CylinderSource& cylinder, double fourierPerHour, std::size_t months) {
    const double last = std::log(hoursPerMonth * static_cast<double>(months));
    const auto points = static_cast<std::size_t>(std::ceil(last / spacing)) + 1;
    std::vector<double> logarithms(points), values(points);
    for (std::size_t i = 0; i < points; ++i) {
        logarithms[i] = spacing * static_cast<double>(i);
        values[i] = cylinder.overLine(fourierPerHour * std::exp(logarithms[i]));
    }
    spline_ = CubicSpline(std::move(logarithms), std::move(values));
    monthly_.reserve(months);
    for (std::size_t n = 1; n <= months; ++n)
        monthly_.push_back(at(hoursPerMonth * static_cast<double>(n)));
}

double PulseTerm::at(double hours) const {
    return monthly_.empty() ? 0 : spline_.at(std::log(hours));
}

}  // namespace varnholt::secondOpinion
