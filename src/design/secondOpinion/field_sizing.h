// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "design/secondOpinion/g_function_memory.h"
#include "design/secondOpinion/monthly_loads.h"
#include "design/secondOpinion/pulse_term.h"

namespace varnholt::secondOpinion {

/// Everything between the year's heat and the length of a field but the field's g-function.
struct FieldTerms {
    ZonesYear zones;
    GroundYear year;
    double groundTemp = 0;      ///< undisturbed, degF
    double conductivity = 0;    ///< Btu/(hr ft degF)
    double boreResistance = 0;  ///< from fluid to bore wall, hr ft degF/Btu
    double pulseHours = 0;      ///< length of the peak, hr
    double years = 0;           ///< prediction time
    std::size_t months = 12;    ///< of the prediction time
    double bores = 1;
    PulseTerm pulseTerm;  ///< added to every g-function

    /// 2 pi k, by which heat per length and g make a temperature, Btu/(hr ft degF).
    double heatScale() const;
    /// By how much the undisturbed ground is warmer than the limit of the mean fluid, degF.
    double limitDifference(Mode mode) const { return groundTemp - zones.meanLimit[mode]; }
    /// Length from what the ground has to bear, 1000 X/(2 pi k (Tg - F)), ft.
    double lengthFor(double heat, Mode mode) const;
    /// Mean fluid from the same with a field of a length, degF.
    double fluidWith(double heat, double length) const;
};

/// What the ground has to bear at the end of the peak of each month, MBtu/hr times g.
/// Equation: X = drift + s ((P - s q) g(h) + (Fsc - 1) P g(h) + 2 pi k Rb P), s being -1 for
/// cooling and 1 for heating, q the month's mean, P its peak and h the length of the peak.
class MonthlyHeat {
 public:
    /// @param months  that are looked at
    MonthlyHeat(const FieldTerms& terms, const DepthFunction& g, std::size_t months);

    std::size_t months() const { return drift_.size(); }
    /// @param month  0 is the first
    double at(std::size_t month, Mode mode) const {
        return drift_[month] + peak_[month % 12][mode];
    }
    /// Of the month's mean load alone, at its end.
    double meanAt(std::size_t month) const { return drift_[month] + mean_[month % 12]; }

 private:
    std::vector<double> drift_;
    std::array<ByMode<double>, 12> peak_{};
    std::array<double, 12> mean_{};
};

/// The month that asks for most.
struct GreatestNeed {
    double length = 0;  ///< ft; below 0 where no month needs any
    std::size_t month = 0;
    double heat = 0;  ///< X of it
};

/// Over the months of the prediction time that count for the mode, of which there is one at least.
GreatestNeed greatestNeed(const FieldTerms& terms, const MonthlyHeat& heat, Mode mode);

}  // namespace varnholt::secondOpinion
