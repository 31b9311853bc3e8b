// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/ground_temp_curves.h"

#include <algorithm>
#include <cmath>

#include "basis/run_time_error.h"
#include "basis/units.h"

namespace varnholt {
namespace {

using namespace modCalculations;

constexpr int points = 60;
constexpr int daysPerPoint = 5;

/// Where most of a year's swing has faded, as a round number of feet or metres.
double leastReach(UnitSystem units) { return units == UnitSystem::metric ? 6 : 20; }

double shownTemp(double temperature, UnitSystem units) {
    return quantities::temperature.shown(temperature, units);
}

/// The same ground on another warm day: the formula's first figure is that day's.
GroundSwing onDay(GroundSwing swing, std::int16_t day) {
    swing.extremeDay[cooling] = day;
    return swing;
}

void addOverDepth(GroundTempCurves& curves, double depth, double diffusivity,
                  const GroundSwing& swing, UnitSystem units) {
    const double reach = std::max(leastReach(units), 2 * quantities::length.shown(depth, units));
    for (int i = 0; i <= points; ++i) {
        const double at = reach * i / points;
        const ByMode<double> temperature =
            groundTempAtDepth(quantities::length.stored(at, units), diffusivity, swing);
        for (const Mode mode : modes)
            curves.overDepth[mode].push_back({at, shownTemp(temperature[mode], units)});
    }
}

void addOverYear(GroundTempCurves& curves, double depth, double diffusivity,
                 const GroundSwing& swing, UnitSystem units) {
    for (int day = 0; day <= daysPerYear; day += daysPerPoint) {
        const auto that = onDay(swing, static_cast<std::int16_t>(day));
        const ByMode<double> temperature = groundTempAtDepth(depth, diffusivity, that);
        curves.overYear.push_back({double(day), shownTemp(temperature[cooling], units)});
    }
}

void addMarks(GroundTempCurves& curves, double depth, double diffusivity, const GroundSwing& swing,
              UnitSystem units) {
    const ByMode<double> temperature = groundTempAtDepth(depth, diffusivity, swing);
    for (const Mode mode : modes) {
        const double shown = shownTemp(temperature[mode], units);
        const std::int16_t day = swing.extremeDay[mode];
        curves.atDepth[mode] = {{quantities::length.shown(depth, units), shown}};
        if (day >= 0 && day <= daysPerYear) curves.onDay[mode] = {{double(day), shown}};
    }
}

/// Files may hold any number, axes may not.
bool canBeDrawn(const GroundTempCurves& curves) {
    constexpr double beyondAllFigures = 1e5;
    for (const Curve* curve :
         {&curves.overDepth[cooling], &curves.overDepth[heating], &curves.overYear})
        for (const CurvePoint& point : *curve)
            if (!(std::abs(point.across) < beyondAllFigures &&
                  std::abs(point.up) < beyondAllFigures))
                return false;
    return true;
}

}  // namespace

GroundTempCurves drawGroundTemp(double depth, double diffusivity, const GroundSwing& swing,
                                UnitSystem units) {
    try {
        GroundTempCurves curves;
        addOverDepth(curves, depth, diffusivity, swing, units);
        addOverYear(curves, depth, diffusivity, swing, units);
        addMarks(curves, depth, diffusivity, swing, units);
        return canBeDrawn(curves) ? curves : GroundTempCurves{};
    } catch (const RunTimeError&) {
        return {};
    }
}

}  // namespace varnholt
