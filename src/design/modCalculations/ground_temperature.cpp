// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/ground_temperature.h"

#include <cmath>

#include "basis/run_time_error.h"
#include "design/modCalculations/numbers.h"

namespace varnholt::modCalculations {

namespace {

constexpr double pi = 3.141592653;  // the method's digits, here and in the next line
constexpr double twoPi = 6.283185306;
constexpr double daysPerYear = 365;

}  // namespace

ByMode<double> groundTempAtDepth(double depth, double diffusivity, const SurfaceYear& year) {
    if (diffusivity == 0) return {year.mean, year.mean};
    const double damping = std::exp(-depth * squareRoot(divide(pi, daysPerYear * diffusivity)));
    const double lag = (depth / 2) * squareRoot(divide(daysPerYear, pi * diffusivity));
    ByMode<double> temperature{};
    for (Mode m : modes) {
        const double days = year.extremeDay[m] - year.extremeDay[heating];
        const double phase = (twoPi / daysPerYear) * (days - lag);
        temperature[m] = finite(year.mean - year.swing * damping * std::cos(phase));
    }
    return temperature;
}

ByMode<double> groundTempOfKnownDays(double depth, double diffusivity, const SurfaceYear& year) {
    ByMode<double> temperature = groundTempAtDepth(depth, diffusivity, year);
    for (Mode m : modes)
        if (year.extremeDay[m] == 0) temperature[m] = year.mean;
    return temperature;
}

}  // namespace varnholt::modCalculations
