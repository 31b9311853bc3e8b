// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/modLoads/loads_pictures.h"

#include <algorithm>

#include "catalogue/fitting/pump_fit.h"
#include "forms/quantity.h"

namespace varnholt {
namespace {

constexpr int stepsOfCurve = 24;

using MeasuredValue = double HeatMode::*;

/// One quantity of one mode. A table without temperatures has nothing to draw.
PumpCurve curveOf(const pump& model, Mode mode, const Polynomial& terms, MeasuredValue measured,
                  const Quantity& quantity, UnitSystem units) {
    PumpCurve curve;
    const auto point = [&](double water, double value) {
        return PumpChartPoint{quantities::temperature.shown(water, units),
                              quantity.shown(value, units)};
    };
    double coldest = 0, warmest = 0;
    for (std::size_t i = 0; i < ratingPoints; ++i) {
        const ewt& row = model.ewt[firstRatingRow[mode] + i];
        coldest = i == 0 ? row.temperature : std::min(coldest, row.temperature);
        warmest = i == 0 ? row.temperature : std::max(warmest, row.temperature);
        curve.points.push_back(point(row.temperature, row.flowRate[0].HeatMode[mode].*measured));
    }
    if (coldest == warmest) return {};
    for (int i = 0; i <= stepsOfCurve; ++i) {
        const double water = coldest + (warmest - coldest) * i / stepsOfCurve;
        curve.curve.push_back(point(water, quadratic(terms, mode, water)));
    }
    return curve;
}

}  // namespace

LoadsChart chartOf(const std::array<ByMode<double>, timeBlocks>& gains, UnitSystem units) {
    LoadsChart chart;
    for (const Mode m : modes)
        for (std::size_t block = 0; block < timeBlocks; ++block) {
            const double load = quantities::load.shown(gains[block][m], units);
            chart.loads[m][block] = load;
            if (!(load > chart.largest[m])) continue;
            chart.largest[m] = load;
            chart.peakBlock[m] = block;
        }
    return chart;
}

PumpChart chartOf(const pump& model, UnitSystem units) {
    PumpChart chart;
    chart.name = model.name;
    for (const Mode m : modes) {
        chart.capacity[m] = curveOf(model, m, model.coefficients.capacity, &HeatMode::capacity,
                                    quantities::load, units);
        chart.power[m] =
            curveOf(model, m, model.coefficients.watts, &HeatMode::watts, quantities::plain, units);
    }
    return chart;
}

}  // namespace varnholt
