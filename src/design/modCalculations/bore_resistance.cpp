// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/bore_resistance.h"

#include <cmath>

#include "basis/run_time_error.h"
#include "design/modCalculations/numbers.h"

namespace varnholt::modCalculations {

namespace {

constexpr double legGive = 0.05;                // in, by which legs can be pressed together
constexpr double eulersNumber = 2.71828182846;  // the digits of the fit

// clang-format off
constexpr std::array<std::array<PipeDiameters, 5>, 4> pipesOfSizes{{
    // SDR 9           SDR 11         SDR 17         schedule 40     schedule 80
    {{{1.05,  0.82}, {1.05,  0.86}, {1.05,  0.93}, {1.05,  0.824}, {1.05,  0.742}}},
    {{{1.315, 1.02}, {1.315, 1.08}, {1.315, 1.16}, {1.315, 1.049}, {1.315, 0.957}}},
    {{{1.66,  1.29}, {1.66,  1.36}, {1.66,  1.46}, {1.66,  1.38},  {1.66,  1.278}}},
    {{{1.9,   1.48}, {1.9,   1.55}, {1.9,   1.68}, {1.9,   1.61},  {1.9,   1.5}}},
}};

constexpr std::array<ShapeFit, 3> fits{{
    {20.100377, -0.94467},   // along outer wall
    {17.44268,  -0.605154},  // average
    {21.90587,  -0.3796},    // close together
}};
// clang-format on

/// Diameters of one pipe that the legs of a configuration count for.
double legFactor(int uTubeConfig) { return squareRoot(1.0 + uTubeConfig); }

}  // namespace

const PipeDiameters& pipeTable(int size, int sdr) { return at(at(pipesOfSizes, size), sdr); }

const ShapeFit& shapeFit(int placement) { return at(fits, placement); }

double pipeSpan(double outside, int uTubeConfig) { return 2 * outside * legFactor(uTubeConfig); }

bool pipesFit(double outside, int uTubeConfig, double boreDiameter) {
    return pipeSpan(outside, uTubeConfig) < boreDiameter + legGive;
}

double boreDiameterFor(double outside, int uTubeConfig) {
    const double diameter = pipeSpan(outside, uTubeConfig);
    return diameter > 10 ? 5 : diameter;
}

double boreResistanceOf(const Bore& bore, double outside, int uTubeConfig, const ShapeFit& fit,
                        double pipeResistance) {
    if (!(outside > 0 && bore.diameter > 0 && bore.groutConductivity > 0)) return 0;
    if (pipeSpan(outside, uTubeConfig) > bore.diameter + legGive) return 0;
    const double base = divide(bore.diameter, outside * legFactor(uTubeConfig));
    const double shape =
        fit.constant * std::exp(naturalLog(base) / std::log(eulersNumber) * fit.exponent);
    const double grout = shape == 0 ? 0 : 1 / (shape * bore.groutConductivity);
    return grout + pipeResistance;
}

}  // namespace varnholt::modCalculations
