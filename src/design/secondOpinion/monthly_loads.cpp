// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/monthly_loads.h"

#include <algorithm>
#include <cmath>

#include "basis/units.h"
#include "design/ground_roll_up.h"
#include "design/loads_roll_up.h"
#include "design/modCalculations/heat_pulses.h"
#include "design/modCalculations/short_circuit.h"
#include "design/secondOpinion/g_function_memory.h"

namespace varnholt::secondOpinion {
namespace {

using namespace modCalculations;

ByMode<double> energyOf(const GroundRollUp& rollUp, const Hybrid& hybrid) {
    const ByMode<double>& tonHours = rollUp.annualTonHours;
    const double cooled = hybrid.on ? hybrid.leftForGround(tonHours[cooling]) : tonHours[cooling];
    return {mbtuPerTon * rejectionFactor(rollUp.cop.heatPumpCOP[cooling]) * cooled,
            mbtuPerTon * extractionFactor(rollUp.cop.heatPumpCOP[heating]) * tonHours[heating]};
}

}  // namespace

ZonesYear rollUpZones(const BoreholeInputs& inputs) {
    GroundRollUp rollUp;
    rollUp.loads = calcPeakLoads(inputs.loads.zones);
    ZonesYear zones;
    zones.hasLoad = hasLoad(rollUp.loads);
    if (!zones.hasLoad) return zones;
    const Hybrid hybrid = rollUpForGround(inputs.loads, rollUp);
    rollUpYear(inputs.loads, inputs.coolingRange, hybrid, rollUp);
    zones.energy = energyOf(rollUp, hybrid);
    zones.annualGroundLoad = rollUp.annualGroundLoad;
    zones.inletTemp = inputs.loads.inletTemp;
    zones.outletTemp = rollUp.outlet.outletTemp;
    zones.partLoadFactor = rollUp.partLoad.partLoadFactor;
    for (Mode m : modes) {
        const double sign = m == cooling ? -1 : 1;
        const double taken =
            peakGroundLoad(m, rollUp.loads.peakLoad[m], rollUp.demand.peakDemand[m]);
        const bool served = rollUp.loads.peakLoad[m] != 0;
        zones.designPeak[m] = served ? std::max(0.0, sign * taken) : 0;
        zones.meanLimit[m] = (zones.inletTemp[m] + zones.outletTemp[m]) / 2;
    }
    zones.shortCircuitFactor =
        shortCircuitFactor(inputs.arrangement.boresPerCircuit, inputs.loads.flowRate);
    zones.pulseHours = std::round(hoursPerDay * calcPulseTimes(rollUp.loads.peakBlock, 0)[2]);
    return zones;
}

double wantedShare(const ZonesYear& zones, Mode mode) {
    return hoursPerMonth * zones.partLoadFactor[mode] * zones.designPeak[mode] / zones.energy[mode];
}

bool GroundYear::hasMonths(Mode mode) const {
    return std::any_of(counts.begin(), counts.end(),
                       [mode](const ByMode<bool>& month) { return month[mode]; });
}

GroundYear groundYearOf(const ZonesYear& zones, const ByMode<YearOfMode>& shape) {
    GroundYear year;
    for (std::size_t m = 0; m < monthsOfYear; ++m) {
        year.mean[m] = (shape[heating].share[m] * zones.energy[heating] -
                        shape[cooling].share[m] * zones.energy[cooling]) /
                       hoursPerMonth;
        for (Mode mode : modes) {
            const double sign = mode == cooling ? -1 : 1;
            const double peak = zones.designPeak[mode] * shape[mode].peak[m];
            year.peak[m][mode] = std::max(peak, sign * year.mean[m]);
            year.counts[m][mode] = shape[mode].peak[m] > 0 && zones.designPeak[mode] > 0;
        }
    }
    return year;
}

std::vector<double> monthlyDrift(const std::array<double, 12>& mean, const std::vector<double>& g,
                                 std::size_t months) {
    std::array<double, 12> change{};
    for (std::size_t m = 0; m < monthsOfYear; ++m)
        change[m] = mean[m] - mean[(m + monthsOfYear - 1) % monthsOfYear];
    // In the first month there is no month before: its change is greater by December's mean.
    const double december = mean[monthsOfYear - 1];
    std::vector<double> drift(months), repeated(months);
    for (std::size_t n = 0; n < months; ++n) {
        double sum = n < monthsOfYear ? 0 : repeated[n - monthsOfYear];
        const std::size_t from = n < monthsOfYear ? 0 : n - monthsOfYear + 1;
        for (std::size_t age = from; age <= n; ++age)
            sum += change[(n - age) % monthsOfYear] * g[age];
        repeated[n] = sum;
        drift[n] = sum + december * g[n];
    }
    return drift;
}

}  // namespace varnholt::secondOpinion
