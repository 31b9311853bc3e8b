// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "basis/shared.h"
#include "design/design_values.h"
#include "design/surface_water_results.h"
#include "design/surface_water_values.h"
#include "loads/design_project.h"

namespace varnholt {

/// The project of pipe in surface water: a plain value, held by its window and described by its
/// file. It has no bore, no tower and no typed conductivity.
struct SurfaceWaterProject : DesignProject {
    FluidValues fluid;
    HeaderSoilValues soil;
    LoopValues loop;
    HeaderValues header;
    WaterTemperatures water;
    SurfaceWaterDetails details;
    ExtraPowerValues extraPower;
    double annualGroundLoad = 0;  ///< carried by its file, MBtu/hr
    Shared<SurfaceWaterResults> results;

    friend bool operator==(const SurfaceWaterProject&, const SurfaceWaterProject&) = default;
};

/// What a run takes from a project.
SurfaceWaterInputs inputsOf(const SurfaceWaterProject& project);

}  // namespace varnholt
