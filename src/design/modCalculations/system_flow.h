// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "basis/mode.h"
#include "design/modCalculations/hybrid.h"

namespace varnholt::modCalculations {

struct Fluid {
    double density = 0;       ///< lb/ft^3
    double specificHeat = 0;  ///< Btu/(lb degF)

    /// Heat carried by 1 gpm for each degF, Btu/hr.
    double heatPerGallonMinute() const;

    friend bool operator==(const Fluid&, const Fluid&) = default;
};

/// What the loop carries.
struct UnitOutlet {
    ByMode<double> systemFlow{};  ///< gpm
    ByMode<double> outletTemp{};  ///< of the heat pump units, degF

    friend bool operator==(const UnitOutlet&, const UnitOutlet&) = default;
};

/// Flow of the loop and the temperature at which it leaves the units: above the inlet in cooling,
/// below it in heating, and the inlet itself where nothing flows. A tower changes neither, since
/// the units still serve the whole load.
/// @param peakLoad    MBtu/hr
/// @param peakDemand  kW
/// @param inletTemp   degF
/// @param flowRate    design flow, gpm per ton of load
UnitOutlet calcUnitOutletTemps(const ByMode<double>& peakLoad, const ByMode<double>& peakDemand,
                               const ByMode<double>& inletTemp, double flowRate, const Fluid& fluid,
                               const Hybrid& hybrid);

}  // namespace varnholt::modCalculations
