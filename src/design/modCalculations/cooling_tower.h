// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/modCalculations/hybrid.h"
#include "design/modCalculations/system_flow.h"

namespace varnholt::modCalculations {

struct CoolingTower {
    double capacity = 0;     ///< condenser capacity, MBtu/hr
    double capacityMax = 0;  ///< what the last run asked for, MBtu/hr
    double flow = 0;         ///< gpm
    double range = 0;        ///< by how much it cools, degF
    double hours = 0;        ///< of operation, hr/yr

    friend bool operator==(const CoolingTower&, const CoolingTower&) = default;
};

/// What the tower's hours depend on.
struct TowerYear {
    double coolingCOP = 0;           ///< of the heat pumps
    double coolingTonHours = 0;      ///< of the whole building, ton hr
    std::int16_t hybridPercent = 0;  ///< of it is the tower's share
};

/// A tower for the share of the peak cooling load that is kept from the ground.
/// @param groundPeak  peak cooling load that is left for the ground, MBtu/hr
/// @param range       degF; with a range of 0 there is no flow
CoolingTower sizeCoolingTower(const Hybrid& hybrid, double groundPeak, const TowerYear& year,
                              const Fluid& fluid, double range);

/// The designer chooses another capacity: hours and flow follow.
CoolingTower trimCapacity(CoolingTower tower, double capacity, const TowerYear& year,
                          const Fluid& fluid);

/// The designer chooses another range: the capacity follows, up to its maximum, from which the flow
/// is then found anew. The hours stay unless the capacity becomes 0.
CoolingTower trimRange(CoolingTower tower, double range, const Fluid& fluid);

/// The designer chooses another flow: the capacity follows as with another range.
CoolingTower trimFlow(CoolingTower tower, double flow, const Fluid& fluid);

}  // namespace varnholt::modCalculations
