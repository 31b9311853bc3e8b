// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/loop_curves.h"

#include <algorithm>
#include <cmath>

#include "basis/run_time_error.h"

namespace varnholt {
namespace {

using namespace modCalculations;

constexpr double nearest = 4;        // degF; nearer to the water any length is asked for
constexpr double usualReach = 24;    // degF
constexpr double largestReach = 60;  // degF, where the lines come to nothing
constexpr double stepOfLines = 0.5;

/// Cooling has fluid above the water, heating below it.
double approachOf(Mode mode, double difference) {
    return mode == cooling ? difference : -difference;
}

CurvePoint pointAt(const LoopPipe& pipe, Mode mode, double difference, UnitSystem units) {
    const double feet = std::max(0.0, feetPerTon(pipe, mode, approachOf(mode, difference)));
    return {quantities::temperatureDifference.shown(difference, units),
            quantities::length.shown(feet, units)};
}

double reachOf(const ByMode<double>& approachTemp) {
    double reach = usualReach;
    for (const Mode mode : modes)
        reach = std::max(reach, std::abs(approachTemp[mode]) + stepOfLines);
    return std::min(reach, largestReach);
}

}  // namespace

LoopCurves drawLoopCurves(const LoopPipe& pipe, const ByMode<double>& approachTemp,
                          UnitSystem units) {
    LoopCurves curves;
    try {
        const double reach = reachOf(approachTemp);
        for (const Mode mode : modes) {
            const auto steps = static_cast<int>((reach - nearest) / stepOfLines);
            for (int i = 0; i <= steps; ++i)
                curves.perTon[mode].push_back(
                    pointAt(pipe, mode, nearest + i * stepOfLines, units));
            const double difference = approachOf(mode, approachTemp[mode]);
            if (difference >= nearest && difference <= reach)
                curves.atDesign[mode] = {pointAt(pipe, mode, difference, units)};
        }
        return curves;
    } catch (const RunTimeError&) {
        return {};
    }
}

}  // namespace varnholt
