// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/circuit_tree.h"

#include <algorithm>

namespace varnholt {
namespace {

constexpr int mostHeaders = 3;
constexpr int mostRows = 9;

/// How many pipes of each kind go out from one of the kind before.
using Fan = std::vector<int>;

CircuitPipe grown(const Fan& fan, std::size_t kind, double& level, double distance) {
    CircuitPipe pipe;
    if (kind == fan.size()) {
        pipe.level = level;
        level += distance;
        return pipe;
    }
    for (int i = 0; i < fan[kind]; ++i) pipe.next.push_back(grown(fan, kind + 1, level, distance));
    pipe.level = (pipe.next.front().level + pipe.next.back().level) / 2;
    return pipe;
}

}  // namespace

CircuitTree treeOf(const CircuitPlan& plan, double top, double bottom, double leastDistance) {
    const int rows = std::clamp(static_cast<int>((bottom - top) / leastDistance) + 1, 1, mostRows);
    const int loops = std::max(plan.loops[cooling], plan.loops[heating]);
    const int headers = std::clamp(plan.primary.count, 1, std::min(mostHeaders, rows));
    const int branches = std::clamp(plan.branch.count, 1, std::max(1, rows / headers));
    const int ends = std::max(1, plan.primary.count) * std::max(1, plan.branch.count);
    const int loopsOfAnEnd = std::max(1, (loops + ends - 1) / ends);
    const int loopsDrawn = std::clamp(loopsOfAnEnd, 1, std::max(1, rows / (headers * branches)));

    Fan fan{headers};
    if (plan.branch.count > 0) fan.push_back(branches);
    fan.push_back(loopsDrawn);
    const int drawn = headers * branches * loopsDrawn;
    CircuitTree tree;
    tree.distance = drawn > 1 ? (bottom - top) / (drawn - 1) : bottom - top;
    double level = drawn > 1 ? top : (top + bottom) / 2;
    tree.trunk = grown(fan, 0, level, tree.distance);
    return tree;
}

}  // namespace varnholt
