// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/pipe_resistance.h"

#include <cmath>

#include "basis/run_time_error.h"
#include "basis/units.h"
#include "design/modCalculations/numbers.h"

namespace varnholt::modCalculations {

namespace {

constexpr double wallConductivity = 0.225;  // polyethylene, Btu/(hr ft degF)
constexpr double twoPiOfPipes = 6.28318;    // these digits are the method's
constexpr double piOfPipes = 3.14159;
constexpr double waterConductivity = 0.35;  // Btu/(hr ft degF)
constexpr double waterPrandtl = 6.6;
constexpr double closed = 10000;  // wall resistance and film conductance of a closed pipe

/// Wall of n legs taken as one shell of the same outside area; n = 1 is the pipe itself.
double wallResistance(double legs, double outside, double inside) {
    const double equivalent = std::sqrt(legs) * outside;
    const double ratio = divide(equivalent, equivalent - (outside - inside));
    return naturalLog(ratio) / (twoPiOfPipes * wallConductivity);
}

double pipeWallResistance(double outside, double inside) {
    return naturalLog(divide(outside, inside)) / (twoPiOfPipes * wallConductivity);
}

double reynoldsNumber(int flowType) {
    switch (flowType) {
        case 0:
            return 10000;
        case 1:
            return 3150;
        case 2:
            return 1600;
        default:
            return 0;
    }
}

/// Conductance of the fluid film of one pipe, Btu/(hr ft degF).
double filmConductance(int flowType, double inside) {
    const double diameter = inside / inchesPerFoot;
    const double nusselt =
        0.023 * std::pow(reynoldsNumber(flowType), 0.8) * std::pow(waterPrandtl, 0.3);
    const double coefficient = divide(waterConductivity * nusselt, diameter);
    return diameter * piOfPipes * 1.0 * coefficient;
}

double wallOf(int config, double outside, double inside) {
    if (inside == 0) return closed;
    switch (config) {
        case 0:
            return wallResistance(2, outside, inside);
        case 1:
            return wallResistance(4, outside, inside);
        default:
            return pipeWallResistance(outside, inside);
    }
}

}  // namespace

double pipeResistanceOf(int config, int flowType, double outside, double inside) {
    if (config < 0 || config > 2) return 0;
    const double film = divide(1, inside == 0 ? closed : filmConductance(flowType, inside));
    const double legs = config == 0 ? 2 : config == 1 ? 4 : 1;
    const double resistance = film / legs + wallOf(config, outside, inside);
    return resistance < 0 ? 0 : resistance;
}

}  // namespace varnholt::modCalculations
