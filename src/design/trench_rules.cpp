// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/trench_rules.h"

#include <utility>

#include "basis/run_time_error.h"
#include "design/modCalculations/trench_limits.h"

namespace varnholt {

namespace {

double& depthOf(TrenchValues& trench) { return trench.trenchGeometry[1]; }
double& widthOf(TrenchValues& trench) { return trench.trenchGeometry[2]; }

}  // namespace

modCalculations::TrenchLayout layoutOf(const TrenchValues& trench,
                                       const HorizontalArrangementValues& pipes) {
    return {pipes.trenchConfiguration, pipes.pipesPerTrench,    pipes.offsetRows == 1,
            trench.trenchGeometry[1],  pipes.pipeSeparation[0], pipes.pipeSeparation[1],
            pipes.coilGeometry[1]};
}

void selectArrangement(std::int16_t arrangement, TrenchValues& trench,
                       HorizontalArrangementValues& pipes) {
    const int columns = modCalculations::columnsOf(arrangement);
    const bool another = arrangement != pipes.trenchConfiguration;
    pipes.trenchConfiguration = arrangement;
    if (another || modCalculations::isCoil(arrangement)) takePipes(columns, pipes);
    widthOf(trench) = modCalculations::widthWhenChosen(layoutOf(trench, pipes), widthOf(trench));
}

void takePipes(double count, HorizontalArrangementValues& pipes) {
    pipes.pipesPerTrench = toInteger(count);
    if (!modCalculations::offsetIsOffered(layoutOf({}, pipes))) pipes.offsetRows = 0;
}

void settleCoil(HorizontalArrangementValues& pipes) {
    if (modCalculations::isCoil(pipes.trenchConfiguration)) takePipes(1, pipes);
}

void takeTrenches(double count, TrenchValues& trench) { trench.trenchCount = toInteger(count); }

bool deepenTrench(TrenchValues& trench, const HorizontalArrangementValues& pipes) {
    const double depth = modCalculations::depthThatHolds(layoutOf(trench, pipes));
    return std::exchange(depthOf(trench), depth) != depth;
}

bool widenTrench(TrenchValues& trench, const HorizontalArrangementValues& pipes) {
    const double width = modCalculations::widthThatHolds(layoutOf(trench, pipes), widthOf(trench));
    return std::exchange(widthOf(trench), width) != width;
}

}  // namespace varnholt
