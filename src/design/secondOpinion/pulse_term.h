// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <vector>

#include "design/secondOpinion/cubic_spline.h"
#include "design/secondOpinion/cylinder_source.h"

namespace varnholt::secondOpinion {

/// What a g-function of lines gains where the bores are taken for cylinders:
/// CylinderSource::overLine over time, or nothing.
class PulseTerm {
 public:
    /// Nothing.
    PulseTerm() = default;
    /// @param fourierPerHour  alpha/rb^2, 1/hr
    /// @param months          for which afterMonths is asked
    PulseTerm(const CylinderSource& cylinder, double fourierPerHour, std::size_t months);

    /// @param hours  from 1 on
    double at(double hours) const;
    /// @param months  1 or more
    double afterMonths(std::size_t months) const {
        return monthly_.empty() ? 0 : monthly_[months - 1];
    }

 private:
    CubicSpline spline_;
    std::vector<double> monthly_;
};

}  // namespace varnholt::secondOpinion
