// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "basis/mode.h"
#include "design/surface_water_values.h"

namespace varnholt {

/// Headers of one kind in the diagram of a circuit.
struct CircuitHeaders {
    int count = 0;                ///< main headers, or branches on each of them
    ByMode<std::string> flow;     ///< in one of them; empty before a run
    std::string inSoil, inWater;  ///< lengths of one pipe; empty where it has none there

    friend bool operator==(const CircuitHeaders&, const CircuitHeaders&) = default;
};

/// The way of the fluid from the heat pumps through headers and branches to the loops in the water,
/// as a diagram without scale. Labels are in the active units, with the unit's word.
struct CircuitPlan {
    bool slinky = false;
    /// The main headers end on the shore, and the branches lead into the water.
    bool shoreAtBranches = false;
    CircuitHeaders primary, branch;
    ByMode<int> loops{};
    ByMode<std::string> systemFlow, loopFlow;  ///< empty before a run

    friend bool operator==(const CircuitPlan&, const CircuitPlan&) = default;
};

/// The diagram without its labels. Counts are never negative.
CircuitPlan drawCircuit(const LoopValues& loop, const HeaderValues& header);

}  // namespace varnholt
