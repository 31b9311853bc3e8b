// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/extra_power.h"

namespace varnholt::modCalculations {

double inputPower(double shaftPower, double efficiency) {
    return efficiency == 0 ? 0 : shaftPower / (efficiency / 100);
}

ByMode<double> demandWithExtraPower(const ByMode<double>& peakDemand, const ExtraPower& extraPower,
                                    const Hybrid& hybrid) {
    ByMode<double> demand{};
    for (Mode m : modes)
        demand[m] = peakDemand[m] + extraPower[circulationPumpInput] + extraPower[additionalPower];
    if (hybrid.on && hybrid.percent != 0)
        demand[cooling] += extraPower[towerFanInput] + extraPower[towerPumpInput];
    return demand;
}

}  // namespace varnholt::modCalculations
