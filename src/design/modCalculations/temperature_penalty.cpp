// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/temperature_penalty.h"

#include "basis/run_time_error.h"
#include "design/modCalculations/line_source.h"
#include "design/modCalculations/numbers.h"

namespace varnholt::modCalculations {

namespace {

constexpr double piOfRings = 3.14159265359;  // the method's digits
constexpr double ringReach = 25;             // ft from a bore to the outside of its rings
constexpr int rings = 3;

struct Ring {
    double inner, outer;  // radii, ft
};

/// Strength of the line source's warming at the middle of a ring.
double integralAt(const Ring& ring, const PenaltySite& site) {
    const double alpha = site.soil.diffusivity;
    if (alpha == 0) return lineSourceI(0);
    const double middle = (ring.inner + ring.outer) / 2;
    return lineSourceI(divide(middle, 2 * squareRoot(alpha * site.years * 365)));
}

/// Heat that stays in a ring along all bores, Btu.
double storedHeat(const Ring& ring, double integral, double heatCapacity, double conductivity,
                  double annualGroundLoad, double length) {
    if (length == 0 || conductivity == 0) return 0;
    const double change =
        divide(1000 * annualGroundLoad * integral, 2 * piOfRings * conductivity * length);
    const double area = piOfRings * (powerOf(ring.outer, 2) - powerOf(ring.inner, 2));
    return heatCapacity * length * area * change;
}

double neighbourWeight(const NeighbourCount& n) {
    return n[4] + 0.5 * n[3] + 0.25 * n[2] + 0.1 * n[1];
}

}  // namespace

ByMode<double> initTemperaturePenalty() { return {-3.0, 3.0}; }

ByMode<double> calcTemperaturePenalty(const PenaltySite& site, double annualGroundLoad,
                                      const ByMode<double>& boreLength) {
    const auto& [rows, columns, separation] = site.grid;
    const auto& [k, alpha] = site.soil;
    const double innermost = separation / 2;
    if (innermost > ringReach) return {};
    const double width = (ringReach - innermost) / rings;
    const double heatCapacity = alpha == 0 ? 0 : k * 24 / alpha;  // Btu/(ft^3 degF)

    ByMode<double> heat{};
    for (int j = 0; j < rings; ++j) {
        const double inner = innermost + j * width;
        const Ring ring{inner, inner + width};
        const double integral = integralAt(ring, site);
        for (Mode m : modes)
            heat[m] += storedHeat(ring, integral, heatCapacity, k, annualGroundLoad, boreLength[m]);
    }

    ByMode<double> penalty{};
    for (Mode m : modes) {
        const bool alone = boreLength[m] == 0 || heatCapacity == 0 || separation == 0;
        const double ground = heatCapacity * separation * separation * boreLength[m];
        const double ofOneBore = alone ? 0 : divide(heat[m], ground);
        penalty[m] = divide(neighbourWeight(site.neighbours) * ofOneBore, rows * columns);
    }
    return penalty;
}

}  // namespace varnholt::modCalculations
