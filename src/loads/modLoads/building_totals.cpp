// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/modLoads/building_totals.h"

#include "basis/units.h"

namespace varnholt {
namespace {

void sumLoads(BuildingTotals& totals, const SharedZones& zones, Mode m) {
    for (const Zone& zone : zones)
        for (std::size_t block = 0; block < timeBlocks; ++block)
            totals.gains[block][m] += zone.gains[block][m];
    for (std::size_t block = 0; block < timeBlocks; ++block)
        if (totals.gains[block][m] > totals.peakLoad[m]) {
            totals.peakLoad[m] = totals.gains[block][m];
            totals.peakPeriod[m] = block;
        }
}

void sumPumps(BuildingTotals& totals, const SharedZones& zones, Mode m) {
    double totalWatts = 0;
    for (const Zone& zone : zones) {
        const double capacity = zone.pump.capacity[m];
        totalWatts += zone.pump.watts[m];
        totals.totalCapacity[m] += capacity;
        if (capacity != 0)
            totals.peakDemand[m] +=
                zone.pump.watts[m] * (zone.gains[totals.peakPeriod[m]][m] / capacity);
    }
    if (totalWatts == 0) return;
    for (const Zone& zone : zones)
        totals.cop[m] += zone.pump.capacity[m] / mbtuPerKilowatt / totalWatts;
}

}  // namespace

BuildingTotals totalsOf(const SharedZones& zones) {
    BuildingTotals totals;
    for (const Mode m : modes) {
        sumLoads(totals, zones, m);
        sumPumps(totals, zones, m);
    }
    return totals;
}

}  // namespace varnholt
