// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/loads_roll_up.h"
#include "design/modCalculations/cooling_tower.h"
#include "design/modCalculations/ground_load.h"

namespace varnholt {

/// What the zones amount to for the ground: their design day, their year, and the tower that keeps
/// a part of both away.
struct GroundRollUp : LoadsRollUp {
    modCalculations::LoadTonHours tonHours;
    ByMode<double> annualTonHours{};
    double annualGroundLoad = 0;         ///< mean heat taken from the ground, MBtu/hr
    double coolingPeakBeforeHybrid = 0;  ///< MBtu/hr
    modCalculations::CoolingTower tower;

    friend bool operator==(const GroundRollUp&, const GroundRollUp&) = default;
};

/// The year and the tower of zones whose design day is known.
/// @param coolingRange  of the tower, degF
/// @param hybrid        the tower's part, as rollUpForGround gives it
/// @param rollUp        in: its design day; out: everything
void rollUpYear(const LoadsInputs& loads, double coolingRange,
                const modCalculations::Hybrid& hybrid, GroundRollUp& rollUp);

/// What a project's cooling tower starts from where nothing tells it: its range is what the units
/// add to the loop.
template <class Project>
void resetCoolingRange(Project& project) {
    project.tower.tower.range =
        project.results->outlet.outletTemp[cooling] - project.conditions.inletTemp[cooling];
}

}  // namespace varnholt
