// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/system_cop.h"

#include "basis/units.h"

namespace varnholt::modCalculations {

namespace {

double copOf(double load, double power) {
    return power == 0 ? 0 : (load / mbtuPerKilowatt) / power;
}

}  // namespace

SystemCOP calcSystemCOP(Zones zones, const ByMode<double>& peakLoad,
                        const ByMode<double>& peakDemand, const ExtraPower& extraPower,
                        const Hybrid& hybrid) {
    SystemCOP result;
    for (Mode m : modes) {
        for (const Zone& zone : zones) result.totalPumpWatts[m] += zone.pump.watts[m];
        for (const Zone& zone : zones)
            result.heatPumpCOP[m] += copOf(zone.pump.capacity[m], result.totalPumpWatts[m]);
    }

    ByMode<double> load = peakLoad;
    if (hybrid.on && hybrid.percent != 0) load[cooling] = hybrid.coolingPeakBeforeHybrid;
    const ByMode<double> power = demandWithExtraPower(peakDemand, extraPower, hybrid);
    for (Mode m : modes) result.systemCOP[m] = copOf(load[m], power[m]);
    return result;
}

}  // namespace varnholt::modCalculations
