// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "basis/mode.h"
#include "design/modCalculations/bore_grid.h"
#include "design/modCalculations/ground_load.h"
#include "design/modCalculations/ground_resistance.h"
#include "design/modCalculations/part_load.h"
#include "design/modCalculations/peak_demand.h"
#include "design/modCalculations/peak_loads.h"
#include "design/modCalculations/settling.h"
#include "design/modCalculations/system_cop.h"
#include "design/modCalculations/system_flow.h"

namespace varnholt {

/// What the zones amount to: the same for every kind of ground loop.
struct LoadsRollUp {
    modCalculations::PeakLoads loads;
    modCalculations::PeakDemand demand;
    modCalculations::PartLoadFactors partLoad;
    modCalculations::SystemCOP cop;
    /// `outletTemp` of a new design is its inlet temperature.
    modCalculations::UnitOutlet outlet;
};

/// Everything that a run of the borehole design computes.
struct BoreholeResults : LoadsRollUp {
    modCalculations::LoadTonHours tonHours;
    ByMode<double> annualTonHours{};
    double annualGroundLoad = 0;  ///< mean heat taken from the ground, MBtu/hr
    modCalculations::GroundResistances groundResistance;
    modCalculations::NeighbourCount neighbourCount{};
    modCalculations::SettledLengths lengths;
    double coolingPeakBeforeHybrid = 0;  ///< MBtu/hr
};

}  // namespace varnholt
