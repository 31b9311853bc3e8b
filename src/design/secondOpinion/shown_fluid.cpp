// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/shown_fluid.h"

#include <algorithm>
#include <cmath>

#include "basis/units.h"

namespace varnholt::secondOpinion {
namespace {

constexpr std::size_t picturePieces = 96;

void showG(const FieldTerms& terms, const DepthFunction& g, double lastHour,
           SecondOpinion& result) {
    for (std::size_t i = 0; i < gValueHours.size(); ++i)
        result.gValue[i] = g.at(gValueHours[i]) + terms.pulseTerm.at(gValueHours[i]);
    const double step = std::log(lastHour) / static_cast<double>(picturePieces);
    for (std::size_t i = 0; i <= picturePieces; ++i) {
        const double hours = std::exp(step * static_cast<double>(i));
        const double ofPulse = terms.pulseTerm.at(hours);
        result.gFunction.hours.push_back(hours);
        result.gFunction.g.push_back(g.at(hours) + ofPulse);
        result.gFunction.ofOneBore.push_back(g.ofOneBoreAt(hours) + ofPulse);
    }
    result.groupCount = g.groupCount();
}

void showMonths(const FieldTerms& terms, const DepthFunction& g, double length,
                SecondOpinion& result) {
    const MonthlyHeat heat(terms, g, opinionMonths);
    result.water.resize(opinionMonths);
    for (std::size_t n = 0; n < opinionMonths; ++n) {
        MonthOfWater& month = result.water[n];
        month.mean = terms.fluidWith(heat.meanAt(n), length);
        for (Mode mode : modes)
            if (terms.year.counts[n % monthsOfYear][mode])
                month.entering[mode] =
                    enteringWater(terms, mode, terms.fluidWith(heat.at(n, mode), length));
    }
}

/// Cooling has its highest water, heating its lowest.
std::optional<double> extremeOfYear(const std::vector<MonthOfWater>& water, std::size_t year,
                                    Mode mode) {
    std::optional<double> extreme;
    for (std::size_t n = (year - 1) * monthsOfYear; n < year * monthsOfYear; ++n) {
        const std::optional<double>& entering = water[n].entering[mode];
        if (!entering) continue;
        const bool further =
            !extreme || (mode == cooling ? *entering > *extreme : *entering < *extreme);
        if (further) extreme = entering;
    }
    return extreme;
}

}  // namespace

double enteringWater(const FieldTerms& terms, Mode mode, double meanFluid) {
    return meanFluid - (terms.zones.outletTemp[mode] - terms.zones.inletTemp[mode]) / 2;
}

void showFluid(const FieldTerms& terms, const DepthFunction& g, double lastHour,
               SecondOpinion& result) {
    const double length = result.shownDepth * terms.bores;
    showG(terms, g, lastHour, result);
    showMonths(terms, g, length, result);
    for (std::size_t i = 0; i < opinionYears.size(); ++i) {
        const double hours = hoursPerYear * opinionYears[i];
        const auto year = static_cast<std::size_t>(opinionYears[i]);
        result.years[i] = {1000 * terms.zones.annualGroundLoad *
                               (g.at(hours) - g.ofOneBoreAt(hours)) / (terms.heatScale() * length),
                           extremeOfYear(result.water, year, cooling),
                           extremeOfYear(result.water, year, heating)};
    }
}

}  // namespace varnholt::secondOpinion
