// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "basis/mode.h"
#include "design/loads_roll_up.h"
#include "design/modCalculations/approach_temp.h"
#include "design/modCalculations/head_loss.h"
#include "design/modCalculations/loop_flows.h"
#include "design/surface_water_values.h"

namespace varnholt {

/// All that a run of the surface water design starts from. There is no cooling tower.
struct SurfaceWaterInputs {
    LoadsInputs loads;
    ByMode<double> minimumLoopFlow{};  ///< least flow of a loop, gpm
    HeaderSoilValues soil;
    LoopValues loop;
    HeaderValues header;
    WaterTemperatures water;

    friend bool operator==(const SurfaceWaterInputs&, const SurfaceWaterInputs&) = default;
};

/// Everything that a run of the surface water design computes, and what it was computed from.
struct SurfaceWaterResults : LoadsRollUp {
    /// What the figures came from; none before the first run, and what the project holds where
    /// they were read from its file. The values that a run settles stand in them as settled:
    /// `loop.parallelLoops` and `soil.groundTempAtDepth`.
    std::optional<SurfaceWaterInputs> inputs;
    modCalculations::ParallelLoops loops;
    modCalculations::PipeFlows flows;
    modCalculations::Approach approach;
    ByMode<double> loopLength{};  ///< of all loops together, ft
    /// What they would be at the flow of the loops' table, ft; files hold nothing of it.
    ByMode<double> lengthAtTableFlow{};
    modCalculations::HeadLoss headLoss;

    friend bool operator==(const SurfaceWaterResults&, const SurfaceWaterResults&) = default;
};

}  // namespace varnholt
