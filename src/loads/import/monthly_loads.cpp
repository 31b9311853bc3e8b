// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/import/monthly_loads.h"

namespace varnholt {

void MonthlyLoads::recompute() {
    yearTotal = 0;
    peakMax = 0;
    for (std::size_t month = 0; month < monthsOfYear; ++month) {
        if (peakLoads[month] > peakMax) peakMax = peakLoads[month];
        yearTotal += totalLoads[month];
    }
    eqvHours = fullLoadHoursOf(totalLoads, peakMax / btuPerMBtu);
}

std::optional<std::size_t> MonthlyLoads::peakMonth() const {
    std::optional<std::size_t> peak;
    for (std::size_t month = 0; month < monthsOfYear; ++month)
        if (peakLoads[month] == peakMax && (!peak || totalLoads[month] > totalLoads[*peak]))
            peak = month;
    return peak;
}

double MonthlyLoads::factorOf(std::size_t month) const {
    if (peakLoads[month] == 0) return 0;
    return loadFactorOf(totalLoads[month], peakLoads[month] / btuPerMBtu, month);
}

double MonthlyLoads::peakMonthFactor() const {
    const std::optional<std::size_t> peak = peakMonth();
    if (!peak || !(peakMax > 0)) return 0;
    return loadFactorOf(totalLoads[*peak], peakMax / btuPerMBtu, *peak);
}

}  // namespace varnholt
