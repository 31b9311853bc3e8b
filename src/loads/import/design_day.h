// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>

#include "basis/mode.h"
#include "loads/import/monthly_loads.h"
#include "loads/zone.h"

namespace varnholt {

/// Days a week that a zone has after an import.
constexpr double importedDays = 7;

/// The lowest load factor that a design day can hold: its peak for four hours on all days.
constexpr double lowestLoadFactor = importedDays * 4 / 168;

/// A load factor within what a design day can hold; one above 1 is 1.
double limitedLoadFactor(double factor);

/// A design day with its peak in one block of four hours and an even rest for the other twenty
/// hours, so that its mean over its peak is the load factor.
///
///   rest = (24 peak factor - 4 peak) / 20
///
/// @param peak    MBtu/hr
/// @param factor  within the limits
/// @param block   of the peak, 0 to 2
DayLoads designDay(double peak, double factor, std::size_t block);

/// The block that the importer gives a mode's peak: "12-4" to cooling, "8-12" to heating.
constexpr std::size_t peakBlockOf(Mode mode) { return mode == cooling ? 1 : 0; }

/// One mode of what an import writes into a zone.
struct ZoneImport {
    DayLoads day{};          ///< MBtu/hr
    std::int16_t hours = 0;  ///< equivalent full-load hours
};

/// A zone holds no loads and hours below 0: such are 0.
/// Throws RunTimeError 6 for hours beyond 16 bits and loads beyond a double.
ZoneImport zoneImportOf(const DayLoads& day, double hours);

/// Puts the mode's design day and hours into the zone, and the days a week.
void putInto(Zone& zone, Mode mode, const ZoneImport& import);

/// Hours that keep the year's energy when the day's greatest mean is the peak; 0 without a load.
/// @param energy  of the year, MBtu
double hoursOfDay(const DayLoads& day, double energy);

}  // namespace varnholt
