// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/modCalculations/extra_power.h"
#include "design/modCalculations/peak_loads.h"

namespace varnholt::modCalculations {

/// Coefficients of performance. Each is 0 where nothing draws power.
struct SystemCOP {
    ByMode<double> totalPumpWatts{};  ///< kW at full capacity
    ByMode<double> heatPumpCOP{};     ///< capacity of all pumps over their power
    ByMode<double> systemCOP{};       ///< peak load over peak demand with extra power

    friend bool operator==(const SystemCOP&, const SystemCOP&) = default;
};

/// @param peakLoad    MBtu/hr; with a tower's share the cooling figure is the load before it
/// @param peakDemand  kW, of the heat pumps alone
SystemCOP calcSystemCOP(Zones zones, const ByMode<double>& peakLoad,
                        const ByMode<double>& peakDemand, const ExtraPower& extraPower,
                        const Hybrid& hybrid);

}  // namespace varnholt::modCalculations
