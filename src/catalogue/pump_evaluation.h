// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

#include "basis/mode.h"
#include "catalogue/mini_pump.h"
#include "catalogue/pump.h"

namespace varnholt {

/// Loads of a design day, gains[block][mode], MBtu/hr.
using Gains = std::array<ByMode<double>, timeBlocks>;

/// What a building's loop and load sides are designed for; a zone file keeps it with the zones.
struct DesignConditions {
    double flowRate = 3;                         ///< source side, gpm per ton
    ByMode<double> inletTemp{85, 50};            ///< entering water, degF
    ByMode<double> inletLoadAirTemp{67, 70};     ///< wet bulb in cooling, dry bulb in heating, degF
    ByMode<double> inletLoadWaterTemp{55, 100};  ///< degF

    friend bool operator==(const DesignConditions&, const DesignConditions&) = default;
};

/// The design conditions, and the load side that a pump brings along where it has one of its own.
struct EvaluationConditions {
    DesignConditions design;
    ByMode<double> temporaryInletTemp{67, 70};  ///< degF
    ByMode<double> temporaryInletFlow{};        ///< cfm or gpm
    // One of these three: the temporary temperatures count, not the design's.
    bool updating = false;
    bool selectingPump = false;
    bool returningFromDetails = false;
    bool samePumpUpdated = false;  ///< and the temporary flows too

    bool carriesLoadSide() const { return updating || selectingPump || returningFromDetails; }
};

/// From this ratio of load to capacity on, the source flow follows the capacity, not the load.
constexpr double overloadRatio = 1.2;
/// The row of the measured table whose first two flows are a model's catalogue flows.
constexpr std::size_t catalogueFlowRow = 3;

/// Whether capacity and power are corrected for the load-side flow.
enum class LoadFlowCorrection { applied, omitted };

/// The largest of a day's four loads, at least `start`, MBtu/hr.
double peakLoad(const Gains& gains, Mode mode, double start = 0);

/// Capacity of one unit before any flow correction: a quadratic in the entering water times a
/// cubic in the load-side entering temperature, both degF. MBtu/hr.
double baseCapacity(const pump& model, Mode mode, double enteringWater, double enteringLoad);
/// The same for power, kW.
double basePower(const pump& model, Mode mode, double enteringWater, double enteringLoad);

/// Change of a model's capacity (quantity 0) or power (quantity 1) per gpm of source flow around
/// the first catalogue flow, given its value there; 0 when that flow is 0. Throws RunTimeError 11
/// when the two catalogue flows are equal.
double sourceFlowSlope(const pump& model, std::size_t quantity, Mode mode, double value);

/// The load-side entering temperatures that the design holds for a pump of the type.
const ByMode<double>& designLoadTemps(const DesignConditions& design, std::int16_t pumpType);

/// A catalogue model in a zone: its identity, and the capacity, power, COP, source flow and part
/// load factor of `units` units of it at design conditions, from its fitted curves.
///
/// @param model    the catalogue model
/// @param units    number of identical units
/// @param gains    the zone's loads, whose peaks set the source flow while the units have the
///                 capacity for them
/// @param current  the zone's pump so far: its load flow stays in force where no other is given
/// @return         the zone's new pump. Throws RunTimeError 11 (division by zero: equal catalogue
///                 flows, no power, no capacity) and 6 (overflow); the caller's zone is then as it
///                 was
MiniPump evaluatePump(const pump& model, std::int16_t units, const Gains& gains,
                      const MiniPump& current, const EvaluationConditions& conditions,
                      LoadFlowCorrection loadFlow = LoadFlowCorrection::applied);

}  // namespace varnholt
