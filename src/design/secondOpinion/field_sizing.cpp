// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/field_sizing.h"

#include <cmath>
#include <limits>
#include <numbers>

namespace varnholt::secondOpinion {

double FieldTerms::heatScale() const { return 2 * std::numbers::pi * conductivity; }

double FieldTerms::lengthFor(double heat, Mode mode) const {
    return 1000 * heat / (heatScale() * limitDifference(mode));
}

double FieldTerms::fluidWith(double heat, double length) const {
    return groundTemp - 1000 * heat / (heatScale() * length);
}

MonthlyHeat::MonthlyHeat(const FieldTerms& terms, const DepthFunction& g, std::size_t months) {
    std::vector<double> monthly(months);
    for (std::size_t n = 1; n <= months; ++n)
        monthly[n - 1] = g.afterMonths(n) + terms.pulseTerm.afterMonths(n);
    drift_ = monthlyDrift(terms.year.mean, monthly, months);
    const double pulse = g.at(terms.pulseHours) + terms.pulseTerm.at(terms.pulseHours);
    const double resistance = terms.heatScale() * terms.boreResistance;
    for (std::size_t m = 0; m < peak_.size(); ++m) {
        const double mean = terms.year.mean[m];
        mean_[m] = resistance * mean;
        for (Mode mode : modes) {
            const double sign = mode == cooling ? -1 : 1;
            const double peak = terms.year.peak[m][mode];
            peak_[m][mode] =
                sign * ((peak - sign * mean) * pulse +
                        (terms.zones.shortCircuitFactor - 1) * peak * pulse + resistance * peak);
        }
    }
}

GreatestNeed greatestNeed(const FieldTerms& terms, const MonthlyHeat& heat, Mode mode) {
    GreatestNeed greatest;
    greatest.length = -std::numeric_limits<double>::infinity();
    for (std::size_t n = 0; n < std::min(terms.months, heat.months()); ++n) {
        if (!terms.year.counts[n % 12][mode]) continue;
        const double x = heat.at(n, mode);
        const double length = terms.lengthFor(x, mode);
        if (!(length <= greatest.length)) greatest = {length, n, x};
    }
    return greatest;
}

}  // namespace varnholt::secondOpinion
