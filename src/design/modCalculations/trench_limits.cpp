// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/trench_limits.h"

#include <algorithm>

#include "basis/units.h"
#include "design/modCalculations/coil_length.h"

namespace varnholt::modCalculations {

namespace {

constexpr double lyingCoilWidth = 8;    // in
constexpr double pitchNotEntered = 20;  // in

/// What the pipes take of the trench's width, in; nothing where there is no limit.
double widthOfPipes(const TrenchLayout& layout) {
    const double step = layout.columnStep;
    switch (layout.arrangement) {
        case singleColumn:
            return layout.offset && layout.pipes != 1 ? step : 0;
        case twoColumns:
            return layout.offset ? 1.5 * step : step;
        case threeColumns:
            return layout.offset ? 2.5 * step : 2 * step;
        case standingCoil:
            return layout.coilDiameter;
        default:
            return 0;
    }
}

}  // namespace

double depthThatHolds(const TrenchLayout& layout) {
    if (isCoil(layout.arrangement)) return layout.depth;
    return std::max(layout.depth, layout.rowStep * (rowsOf(layout) - 1) / inchesPerFoot);
}

double widthThatHolds(const TrenchLayout& layout, double width) {
    return std::max(width, widthOfPipes(layout));
}

double widthWhenChosen(const TrenchLayout& layout, double width) {
    switch (layout.arrangement) {
        case twoColumns:
            return layout.columnStep;
        case lyingCoil:
            return lyingCoilWidth;
        case standingCoil:
            return layout.coilDiameter;
        default:
            return width;
    }
}

double pitchWithinLimits(double pitch) {
    if (pitch == 0) return pitchNotEntered;
    return std::clamp(pitch, leastPitch, largestPitch);
}

}  // namespace varnholt::modCalculations
