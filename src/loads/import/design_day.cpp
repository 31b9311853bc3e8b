// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/import/design_day.h"

#include <algorithm>
#include <cmath>

#include "basis/run_time_error.h"

namespace varnholt {

double limitedLoadFactor(double factor) {
    if (factor > 1.0) return 1.0;
    // Written so that a factor that is no number is the lowest.
    return factor > lowestLoadFactor ? factor : lowestLoadFactor;
}

DayLoads designDay(double peak, double factor, std::size_t block) {
    // At the limits the formula's rounding would show.
    double rest = ((24.0 * peak * factor) - (4.0 * peak)) / 20.0;
    if (factor <= lowestLoadFactor) rest = 0;
    if (factor == 1.0) rest = peak;
    DayLoads day;
    day.fill(rest);
    day[block] = peak;
    return day;
}

ZoneImport zoneImportOf(const DayLoads& day, double hours) {
    const auto finite = [](double load) { return std::isfinite(load); };
    if (!std::all_of(day.begin(), day.end(), finite)) throw RunTimeError(6);
    ZoneImport import{day, toInteger(std::max(hours, 0.0))};
    for (double& load : import.day) load = std::max(load, 0.0);
    return import;
}

void putInto(Zone& zone, Mode mode, const ZoneImport& import) {
    for (std::size_t block = 0; block < timeBlocks; ++block)
        zone.gains[block][mode] = import.day[block];
    zone.hours[mode] = import.hours;
    zone.days = importedDays;
}

double hoursOfDay(const DayLoads& day, double energy) {
    const double greatest = *std::max_element(day.begin(), day.end());
    return greatest > 0 ? energy / greatest : 0;
}

}  // namespace varnholt
