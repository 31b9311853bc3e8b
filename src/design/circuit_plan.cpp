// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/circuit_plan.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace varnholt {
namespace {

/// Files may hold any number.
int countOf(double count) {
    constexpr double most = std::numeric_limits<std::int16_t>::max();
    return count >= 1 ? static_cast<int>(std::min(count, most)) : 0;
}

}  // namespace

CircuitPlan drawCircuit(const LoopValues& loop, const HeaderValues& header) {
    const auto& [primaryInWater, primaryInSoil, branchInWater, branchInSoil] = header.headerLength;
    CircuitPlan plan;
    plan.slinky = loop.loopStyle == 1;
    plan.primary.count = countOf(header.headerCount[0]);
    plan.branch.count = countOf(header.headerCount[1]);
    plan.shoreAtBranches = plan.branch.count > 0 && primaryInWater <= 0 && branchInSoil > 0;
    for (const Mode mode : modes) plan.loops[mode] = countOf(loop.parallelLoops[mode]);
    return plan;
}

}  // namespace varnholt
