// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/trench_plan.h"

#include <algorithm>

#include "basis/units.h"
#include "design/design_tab.h"
#include "design/modCalculations/trench_layout.h"

namespace varnholt {

TrenchPlan drawTrenches(const TrenchValues& trench, const HorizontalArrangementValues& pipes) {
    using namespace modCalculations;
    constexpr int arrangements = 5;
    TrenchPlan plan;
    plan.trenches = trench.trenchCount;
    if (entryOf(pipes.trenchConfiguration, arrangements) < 0) return plan;
    plan.drawn = static_cast<int>(std::clamp(plan.trenches, 0.0, double{largestTrenchPlan}));
    plan.separation = trench.trenchGeometry[0];
    plan.width = trench.trenchGeometry[2] / inchesPerFoot;
    plan.columns = isCoil(pipes.trenchConfiguration) ? 0 : columnsOf(pipes.trenchConfiguration);
    plan.columnStep = pipes.pipeSeparation[1] / inchesPerFoot;
    plan.standing = pipes.trenchConfiguration == standingCoil;
    plan.pitch = pipes.coilGeometry[0] / inchesPerFoot;
    plan.coilDiameter = pipes.coilGeometry[1] / inchesPerFoot;
    return plan;
}

}  // namespace varnholt
