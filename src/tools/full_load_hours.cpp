// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/full_load_hours.h"

#include <cmath>

namespace varnholt {

double fullLoadHoursOf(const Months& energy, double peak) {
    if (!(peak > 0)) return 0;
    double hours = 0;
    for (const double month : energy) hours = month / peak + hours;
    return std::isfinite(hours) ? hours : 0;
}

double loadFactorOf(double energy, double load, std::size_t month) {
    const double factor = energy / ((load * 24.0) * daysInMonth[month]);
    return std::isfinite(factor) ? factor : 0;
}

std::size_t greatestMonth(const Months& values) {
    std::size_t greatest = 0;
    for (std::size_t month = 1; month < monthsOfYear; ++month)
        if (values[month] > values[greatest]) greatest = month;
    return greatest;
}

}  // namespace varnholt
