// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/ground_resistance.h"

#include <cmath>

#include "basis/run_time_error.h"

namespace varnholt::modCalculations {

namespace {

constexpr double log10OfE =
    0.434294481903;  // as the method writes it; log10(x) is this times ln(x)

}  // namespace

double fourierNumber(double alpha, double t, double d) {
    if (d == 0) return 1.0e9;
    return divide(4 * alpha * t, d * d);
}

double gFactor(double fourier) {
    if (fourier <= 0) return 0.13;
    const double decades = log10OfE * std::log(fourier);
    const double g = fourier < 10 ? (decades + 0.89947) / 7.09472 : (decades + 0.45247) / 5.60998;
    return g < 0 ? 0 : g;
}

GroundResistances calcGroundResistances(const PulseTimes& pulses, double bore, const Soil& soil) {
    const double k = soil.conductivity;
    if (k == 0) return {};
    std::array<double, 3> g{};
    for (std::size_t i = 0; i < g.size(); ++i)
        g[i] = gFactor(fourierNumber(soil.diffusivity, pulses[i], bore));
    return {(g[0] - g[1]) / k, (g[1] - g[2]) / k, g[2] / k};
}

}  // namespace varnholt::modCalculations
