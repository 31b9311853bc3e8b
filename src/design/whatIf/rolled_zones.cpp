// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/rolled_zones.h"

#include <algorithm>

namespace varnholt {

using namespace modCalculations;

RolledZones::RolledZones(const SharedZones& zones) : loads_(calcPeakLoads(zones)) {
    partLoadFactor_ = calcPartLoadFactors(zones, loads_.peakLoad, {}).partLoadFactor;
    annualTonHours_ = varnholt::modCalculations::annualTonHours(calculateLoadTonHours(zones));
    heatPumpCOP_ = calcSystemCOP(zones, {}, {}, {}, {}).heatPumpCOP;
    for (Mode m : modes) {
        std::vector<Bend>& bends = bends_[m];
        bends.reserve(zones.size());
        for (const Zone& zone : zones) {
            const double capacity = zone.pump.capacity[m];
            const double load = zone.gains[static_cast<std::size_t>(loads_.peakBlock[m])][m];
            const double power = zone.pump.watts[m];
            if (capacity != 0) bends.push_back({load / capacity, power, load / capacity * power});
        }
        std::stable_sort(bends.begin(), bends.end(),
                         [](const Bend& a, const Bend& b) { return a.ratio > b.ratio; });
        double limited = 0;
        for (const Bend& bend : bends) rising_[m] += bend.rising;
        double rising = rising_[m];
        for (Bend& bend : bends) {
            bend.limited = limited += bend.limited;
            bend.rising = rising -= bend.rising;
        }
    }
}

double RolledZones::peakDemand(Mode mode, double factor) const {
    const std::vector<Bend>& bends = bends_[mode];
    const auto below = std::partition_point(
        bends.begin(), bends.end(), [&](const Bend& bend) { return bend.ratio * factor > 1; });
    if (below == bends.begin()) return factor * rising_[mode];
    const Bend& last = *(below - 1);
    return last.limited + factor * last.rising;
}

CaseLoads loadsOfCase(const RolledZones& zones, const LoadsInputs& inputs,
                      const CaseFactors& factors) {
    CaseLoads loads;
    for (Mode m : modes) {
        loads.peakLoad[m] = zones.loads().peakLoad[m] * factors.loads[m];
        loads.peakDemand[m] = zones.peakDemand(m, factors.loads[m]) * factors.pumpPower;
        loads.tonHours[m] = zones.annualTonHours()[m] * factors.loads[m] * factors.hours[m];
        loads.heatPumpCOP[m] = zones.heatPumpCOP()[m] / factors.pumpPower;
    }
    loads.partLoadFactor = zones.partLoadFactor();
    loads.buildingPeak = loads.peakLoad[cooling];
    const Hybrid hybrid{inputs.hybridOn, inputs.hybridPercent,
                        inputs.hybridOn ? loads.buildingPeak : 0};
    if (hybrid.on) loads.peakLoad[cooling] = hybrid.leftForGround(loads.buildingPeak);
    loads.annualGroundLoad = calcAnnualGroundLoad(loads.tonHours, loads.heatPumpCOP, hybrid);
    loads.outletTemp = calcUnitOutletTemps(loads.peakLoad, loads.peakDemand, inputs.inletTemp,
                                           inputs.flowRate, inputs.fluid, hybrid)
                           .outletTemp;
    return loads;
}

}  // namespace varnholt
