// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/ground_temp_at_depth.h"

#include <cmath>

#include "basis/run_time_error.h"
#include "basis/units.h"
#include "design/modCalculations/numbers.h"

namespace varnholt::modCalculations {

namespace {

constexpr double piOfSwing = 3.141592653;  // these digits are the method's
constexpr double twoPiOfSwing = 6.283185306;

}  // namespace

ByMode<double> groundTempAtDepth(double depth, double diffusivity, const GroundSwing& swing) {
    if (diffusivity == 0) return {swing.meanTemp, swing.meanTemp};
    const double damping =
        std::exp(-depth * squareRoot(divide(piOfSwing, daysPerYear * diffusivity)));
    const double lag = (depth / 2) * squareRoot(divide(daysPerYear, piOfSwing * diffusivity));
    ByMode<double> temperature{};
    for (Mode m : modes) {
        const double sinceColdest = swing.extremeDay[m] - swing.extremeDay[heating];
        const double phase = (twoPiOfSwing / daysPerYear) * (sinceColdest - lag);
        temperature[m] = finite(swing.meanTemp - swing.airTempSwing * damping * std::cos(phase));
    }
    return temperature;
}

ByMode<double> groundTempOfKnownDays(double depth, double diffusivity, const GroundSwing& swing) {
    ByMode<double> temperature = groundTempAtDepth(depth, diffusivity, swing);
    for (Mode m : modes)
        if (swing.extremeDay[m] == 0) temperature[m] = swing.meanTemp;
    return temperature;
}

}  // namespace varnholt::modCalculations
