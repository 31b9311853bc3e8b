// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/design_warnings.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "basis/run_time_error.h"
#include "basis/units.h"
#include "design/trench_rules.h"

namespace varnholt {
namespace {

/// What feet and back to inches leave of a separation that is just the pipe's diameter.
constexpr double roundingOfFeet = 1e-9;

using Concern = DesignWarning::Concern;
using DesignWarnings = std::vector<DesignWarning>;

/// @param ground  degF, by mode
void addNearFluid(const LoadsRollUp& rollUp, const LoadsInputs& loads, const ByMode<double>& ground,
                  Concern concern, DesignWarnings& warnings) {
    for (const Mode m : modes) {
        if (!(rollUp.loads.peakLoad[m] > 0)) continue;
        const double mean = (loads.inletTemp[m] + rollUp.outlet.outletTemp[m]) / 2;
        if (std::abs(ground[m] - mean) <= nearGround)
            warnings.push_back({concern, m, ground[m], nearGround, mean});
    }
}

void addTouchingBores(const BoreholeProject& project, DesignWarnings& warnings) {
    const ArrangementValues& field = project.arrangement;
    const bool several = field.patternRows[0] * field.patternRows[1] > 1;
    if (several && field.boreSeparation * inchesPerFoot <= project.bore.boreDiameter)
        warnings.push_back(
            {Concern::boresTouch, cooling, project.bore.boreDiameter, field.boreSeparation});
}

void addRowsInParts(const ArrangementValues& field, DesignWarnings& warnings) {
    const double across = field.patternRows[0], down = field.patternRows[1];
    const double whole = std::floor(across) * std::floor(down);
    if (across * down != whole)
        warnings.push_back({Concern::rowsInParts, cooling, across * down, whole});
}

void addDepth(const BoreholeResults& results, DesignWarnings& warnings) {
    const ByMode<double>& length = results.lengths.boreLength;
    const Mode governing = length[cooling] >= length[heating] ? cooling : heating;
    const auto& rows = results.inputs->arrangement.patternRows;
    const double bores = rows[0] * rows[1];
    if (bores > 0 && length[governing] / bores > deepestBore)
        warnings.push_back(
            {Concern::boreTooDeep, governing, length[governing] / bores, deepestBore});
}

/// Between the middles of the two pipes of a trench that are next to each other, in; nothing for a
/// single pipe, a coil, or what is no arrangement.
std::optional<double> closestPipes(const modCalculations::TrenchLayout& layout) {
    using modCalculations::PipePosition;
    if (modCalculations::isCoil(layout.arrangement)) return std::nullopt;
    std::vector<PipePosition> pipes;
    try {
        pipes = modCalculations::buildPipePositions(layout);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
    double closest = std::numeric_limits<double>::infinity();
    // Odd elements are images above the ground.
    for (std::size_t i = 0; i < pipes.size(); i += 2)
        for (std::size_t j = 0; j < i; j += 2)
            closest =
                std::min(closest, std::hypot(pipes[i].x - pipes[j].x, pipes[i].y - pipes[j].y));
    if (!std::isfinite(closest)) return std::nullopt;
    return closest * inchesPerFoot;
}

void addTouchingPipes(const HorizontalProject& project, DesignWarnings& warnings) {
    const double outside = project.pipe.pipeDiameter[0];
    const auto closest = closestPipes(layoutOf(project.trench, project.arrangement));
    if (closest && *closest <= outside * (1 + roundingOfFeet))
        warnings.push_back({Concern::pipesTouch, cooling, outside, *closest});
}

}  // namespace

std::vector<DesignWarning> warningsOf(const BoreholeProject& project) {
    DesignWarnings warnings;
    const BoreholeResults& results = *project.results;
    if (results.inputs) {
        const double ground = results.inputs->soil.groundTemp;
        addNearFluid(results, results.inputs->loads, {ground, ground}, Concern::groundNearFluid,
                     warnings);
    }
    addTouchingBores(project, warnings);
    addRowsInParts(project.arrangement, warnings);
    if (results.inputs) addDepth(results, warnings);
    return warnings;
}

std::vector<DesignWarning> warningsOf(const HorizontalProject& project) {
    DesignWarnings warnings;
    const HorizontalResults& results = *project.results;
    if (results.inputs)
        addNearFluid(results, results.inputs->loads, results.groundTempAtDepth,
                     Concern::groundNearFluid, warnings);
    addTouchingPipes(project, warnings);
    return warnings;
}

std::vector<DesignWarning> warningsOf(const SurfaceWaterProject& project) {
    DesignWarnings warnings;
    const SurfaceWaterResults& results = *project.results;
    if (results.inputs)
        addNearFluid(results, results.inputs->loads, results.inputs->water.loopWaterTemp,
                     Concern::waterNearFluid, warnings);
    return warnings;
}

}  // namespace varnholt
