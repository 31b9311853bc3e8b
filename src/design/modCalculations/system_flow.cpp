// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/system_flow.h"

#include "basis/run_time_error.h"
#include "basis/units.h"
#include "design/modCalculations/ground_load.h"

namespace varnholt::modCalculations {

namespace {

constexpr double minutesPerHour = 60;
constexpr double cubicFeetPerGallon = 0.1337;  // 231/1728, as the method rounds it

}  // namespace

double Fluid::heatPerGallonMinute() const {
    return minutesPerHour * density * cubicFeetPerGallon * specificHeat;
}

UnitOutlet calcUnitOutletTemps(const ByMode<double>& peakLoad, const ByMode<double>& peakDemand,
                               const ByMode<double>& inletTemp, double flowRate, const Fluid& fluid,
                               const Hybrid& hybrid) {
    ByMode<double> load = peakLoad;
    if (hybrid.on) load[cooling] = hybrid.coolingPeakBeforeHybrid;

    UnitOutlet result;
    for (Mode m : modes) {
        result.systemFlow[m] = load[m] / mbtuPerTon * flowRate;
        result.outletTemp[m] = inletTemp[m];
        if (result.systemFlow[m] == 0 || fluid.density == 0 || fluid.specificHeat == 0) continue;
        const double heat = 1000 * peakGroundLoad(m, load[m], peakDemand[m]);
        result.outletTemp[m] -= divide(heat, fluid.heatPerGallonMinute() * result.systemFlow[m]);
    }
    return result;
}

}  // namespace varnholt::modCalculations
