// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/peak_demand.h"

#include "basis/run_time_error.h"

namespace varnholt::modCalculations {

namespace {

double partLoad(double load, double capacity) {
    if (capacity == 0) return 0;
    const double ratio = load / capacity;
    return ratio > 1.0 ? 1.0 : ratio;
}

}  // namespace

PeakDemand calcPeakDemand(Zones zones, const ByMode<std::int16_t>& peakBlock) {
    PeakDemand result;
    for (Mode m : modes) {
        result.zonePartLoad[m].reserve(zones.size());
        result.zoneDemand[m].reserve(zones.size());
        for (const Zone& zone : zones) {
            const double capacity = zone.pump.capacity[m];
            const double ratio = partLoad(at(zone.gains, peakBlock[m])[m], capacity);
            const double demand = ratio * zone.pump.watts[m];
            result.zonePartLoad[m].push_back(ratio);
            result.zoneDemand[m].push_back(demand);
            result.totalCapacity[m] += capacity;
            result.peakDemand[m] += demand;
        }
    }
    return result;
}

}  // namespace varnholt::modCalculations
