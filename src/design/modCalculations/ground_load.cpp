// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/ground_load.h"

#include <algorithm>
#include <numeric>

#include "basis/units.h"

namespace varnholt::modCalculations {

double peakGroundLoad(Mode mode, double load, double demand) {
    const double sign = mode == cooling ? -1 : 1;
    return sign * load - mbtuPerKilowatt * demand;
}

LoadTonHours calculateLoadTonHours(Zones zones) {
    LoadTonHours result;
    for (Mode m : modes) {
        result.zonePeakTons[m].reserve(zones.size());
        result.loadTonHours[m].reserve(zones.size());
        for (const Zone& zone : zones) {
            double tons = 0;
            for (const auto& gain : zone.gains) tons = std::max(tons, gain[m] / mbtuPerTon);
            result.zonePeakTons[m].push_back(tons);
            result.loadTonHours[m].push_back(tons * zone.hours[m]);
        }
    }
    return result;
}

ByMode<double> annualTonHours(const LoadTonHours& tonHours) {
    ByMode<double> sum{};
    for (Mode m : modes) {
        const std::vector<double>& zones = tonHours.loadTonHours[m];
        sum[m] = std::accumulate(zones.begin(), zones.end(), 0.0);
    }
    return sum;
}

double rejectionFactor(double coolingCOP) {
    return coolingCOP == 0 ? 1.0 : (coolingCOP + 1) / coolingCOP;
}

double extractionFactor(double heatingCOP) {
    return heatingCOP == 0 ? 1.0 : (heatingCOP - 1) / heatingCOP;
}

double calcAnnualGroundLoad(const ByMode<double>& tonHours, const ByMode<double>& heatPumpCOP,
                            const Hybrid& hybrid) {
    const double cooled = hybrid.on ? hybrid.leftForGround(tonHours[cooling]) : tonHours[cooling];
    const double taken = extractionFactor(heatPumpCOP[heating]) * tonHours[heating];
    const double rejected = rejectionFactor(heatPumpCOP[cooling]) * cooled;
    return mbtuPerTon * (taken - rejected) / hoursPerYear;
}

}  // namespace varnholt::modCalculations
