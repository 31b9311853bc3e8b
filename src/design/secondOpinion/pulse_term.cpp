// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/pulse_term.h"

#include <cmath>

#include "design/secondOpinion/g_function_memory.h"

namespace varnholt::secondOpinion {
namespace {

constexpr double spacing = 0.15;  // of ln t

}  // namespace

PulseTerm::PulseTerm(const CylinderSource& cylinder, double fourierPerHour, std::size_t months) {
    std::vector<double> logarithms, values;
    const double last = std::log(hoursPerMonth * static_cast<double>(months));
    for (double logarithm = 0; logarithm < last + spacing; logarithm += spacing) {
        logarithms.push_back(logarithm);
        values.push_back(cylinder.overLine(fourierPerHour * std::exp(logarithm)));
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
