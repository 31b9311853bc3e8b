// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "basis/mode.h"
#include "design/modCalculations/extra_power.h"
#include "design/modCalculations/hybrid.h"
#include "design/modCalculations/part_load.h"
#include "design/modCalculations/peak_demand.h"
#include "design/modCalculations/peak_loads.h"
#include "design/modCalculations/system_cop.h"
#include "design/modCalculations/system_flow.h"
#include "loads/shared_zones.h"

namespace varnholt {

/// What the roll-up of the loads needs to know of a design.
struct LoadsInputs {
    SharedZones zones;
    modCalculations::ExtraPower extraPower{};  ///< kW
    ByMode<double> inletTemp{};                ///< degF
    double flowRate = 0;                       ///< gpm per ton
    modCalculations::Fluid fluid;
    bool hybridOn = false;           ///< a cooling tower takes its share in this run
    std::int16_t hybridPercent = 0;  ///< of the peak cooling load

    friend bool operator==(const LoadsInputs&, const LoadsInputs&) = default;
};

/// What the zones amount to: the same for every kind of ground loop.
struct LoadsRollUp {
    modCalculations::PeakLoads loads;
    modCalculations::PeakDemand demand;
    modCalculations::PartLoadFactors partLoad;
    modCalculations::SystemCOP cop;
    /// `outletTemp` of a new design is its inlet temperature.
    modCalculations::UnitOutlet outlet;

    friend bool operator==(const LoadsRollUp&, const LoadsRollUp&) = default;
};

/// The tower's part in a run: the building's peak cooling load with what the tower leaves of it.
modCalculations::Hybrid hybridOf(const LoadsInputs& inputs,
                                 const modCalculations::PeakLoads& loads);

/// Demand, part-load factors, COPs, flow and outlet temperatures of zones whose peaks are known.
/// @param rollUp  in: its peak loads, of the whole building; out: everything, the peak cooling
///                load being what the tower leaves for the ground
/// @return        the tower's part in it
modCalculations::Hybrid rollUpForGround(const LoadsInputs& inputs, LoadsRollUp& rollUp);

/// The zones rolled up for a window that shows them: the peak loads are the whole building's.
LoadsRollUp rollUpLoads(const LoadsInputs& inputs);

/// Some mode has a load.
bool hasLoad(const modCalculations::PeakLoads& loads);

}  // namespace varnholt
