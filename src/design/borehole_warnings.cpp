// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/borehole_warnings.h"

#include <algorithm>
#include <cmath>

#include "basis/units.h"

namespace varnholt {
namespace {

using Concern = BoreholeWarning::Concern;

void addGround(const BoreholeResults& results, std::vector<BoreholeWarning>& warnings) {
    for (const Mode m : modes) {
        if (!(results.loads.peakLoad[m] > 0)) continue;
        const double mean = (results.inputs->loads.inletTemp[m] + results.outlet.outletTemp[m]) / 2;
        if (std::abs(results.inputs->soil.groundTemp - mean) <= nearGround)
            warnings.push_back({Concern::groundNearFluid, m, mean, nearGround});
    }
}

void addTouch(const BoreholeProject& project, std::vector<BoreholeWarning>& warnings) {
    const ArrangementValues& field = project.arrangement;
    const bool several = field.patternRows[0] * field.patternRows[1] > 1;
    if (several && field.boreSeparation * inchesPerFoot <= project.bore.boreDiameter)
        warnings.push_back(
            {Concern::boresTouch, cooling, project.bore.boreDiameter, field.boreSeparation});
}

void addDepth(const BoreholeResults& results, std::vector<BoreholeWarning>& warnings) {
    const ByMode<double>& length = results.lengths.boreLength;
    const Mode governing = length[cooling] >= length[heating] ? cooling : heating;
    const auto& rows = results.inputs->arrangement.patternRows;
    const double bores = rows[0] * rows[1];
    if (bores > 0 && length[governing] / bores > deepestBore)
        warnings.push_back(
            {Concern::boreTooDeep, governing, length[governing] / bores, deepestBore});
}

}  // namespace

std::vector<BoreholeWarning> warningsOf(const BoreholeProject& project) {
    std::vector<BoreholeWarning> warnings;
    const BoreholeResults& results = *project.results;
    if (results.inputs) addGround(results, warnings);
    addTouch(project, warnings);
    if (results.inputs) addDepth(results, warnings);
    return warnings;
}

}  // namespace varnholt
