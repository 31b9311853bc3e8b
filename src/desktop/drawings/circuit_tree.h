// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "design/circuit_plan.h"

namespace varnholt {

/// A pipe of the circuit with the pipes that go out from its end.
struct CircuitPipe {
    double level = 0;  ///< its height in the picture
    std::vector<CircuitPipe> next;
};

/// The pipes that are drawn, from the trunk at the heat pumps through headers and branches to the
/// loops, spread over a height. So few of each kind that they can be told apart.
struct CircuitTree {
    CircuitPipe trunk;
    double distance = 0;  ///< between two loops, or the whole height for one alone
};

CircuitTree treeOf(const CircuitPlan& plan, double top, double bottom, double leastDistance);

}  // namespace varnholt
