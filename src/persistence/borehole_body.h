// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "basis/mode.h"
#include "design/borehole_project.h"
#include "persistence/file_items.h"
#include "persistence/second_opinion_block.h"
#include "persistence/what_if_block.h"

namespace varnholt {

// The lines of a borehole design's files, written down once for reading and writing. The groups
// that stand in the project file and in the defaults file are described by the same function.
// A writer takes a project that is const.

template <class File, class Project>
void describeConditions(File& file, Project& project) {
    auto& conditions = project.conditions;
    auto& outletTemp = resultsFor<File>(project).outlet.outletTemp;
    auto& kept = project.remainder;
    for (const Mode mode : modes) {
        items(file, conditions.inletTemp[mode], outletTemp[mode]);
        items(file, conditions.inletLoadAirTemp[mode], conditions.inletLoadWaterTemp[mode]);
        // Outside and inside diameter, though they stand among the values of the modes.
        items(file, project.pipe.pipeDiameter[mode], conditions.minflowRate[mode]);
        items(file, kept.inputFlag[mode], kept.inputNumber[mode], kept.inputDouble[mode]);
    }
}

template <class File, class Project>
void describeSite(File& file, Project& project) {
    auto& fluid = project.fluid;
    items(file, project.conditions.flowRate, fluid.percentAntifreeze, fluid.fluidTypeIndex,
          fluid.fluidName, fluid.density, fluid.specificHeat);
    items(file, project.soil.groundTemp, project.soil.conductivity, project.soil.diffusivity);
    auto& pipe = project.pipe;
    auto& bore = project.bore;
    items(file, pipe.pipeSizeIndex, pipe.pipeSdrIndex, pipe.flowTypeIndex);
    items(file, bore.pipePlacement, bore.uTubeConfig, bore.boreDiameter, bore.groutConductivity);
    items(file, pipe.pipeResistance, bore.boreResistance);
    auto& field = project.arrangement;
    items(file, field.patternRows[0], field.patternRows[1], field.boreSeparation,
          field.boresPerCircuit, field.predictionTime);
    auto& kept = project.remainder.numbers;
    items(file, kept[0], kept[1], kept[2]);
    items(file, project.extraPower.motorEfficiency[0], project.loads.activeSeries);
}

template <class File, class Project>
void describeResults(File& file, Project& project) {
    auto& results = resultsFor<File>(project);
    items(file, results.annualGroundLoad);
    for (const Mode mode : modes) {
        auto& kept = project.remainder;
        items(file, results.loads.peakLoad[mode], results.demand.peakDemand[mode]);
        items(file, results.cop.heatPumpCOP[mode], results.cop.systemCOP[mode]);
        items(file, results.outlet.systemFlow[mode], results.lengths.boreLength[mode]);
        items(file, kept.resultFlag[mode], kept.resultNumber[mode], kept.resultDouble[mode]);
    }
}

template <class File, class Project>
void describeTower(File& file, Project& project) {
    auto& power = project.extraPower;
    auto& tower = project.tower.tower;
    auto& penalty = resultsFor<File>(project).lengths.temperaturePenalty;
    if (file.since(2.1)) {
        items(file, project.tower.hybridPercent, tower.capacity, tower.capacityMax, tower.flow,
              tower.range, tower.hours);
        for (const Mode mode : modes) items(file, power.motorEfficiency[mode + 1], penalty[mode]);
        items(file, power.extraPower[3], power.extraPower[4], power.extraPower[5],
              power.extraPower[6]);
        return;
    }
    if constexpr (File::reading) {
        // Before there were towers all extra power was entered otherwise: it is not taken over, the
        // values just read included.
        project.tower = {};
        power = {};
        penalty = {};
        resetCoolingRange(project);
    }
}

/// What the body of a project file holds of the design itself.
template <class File, class Project>
void describeBoreholeBody(File& file, Project& project) {
    describeConditions(file, project);
    auto& extraPower = project.extraPower.extraPower;
    items(file, extraPower[0], extraPower[1], extraPower[2]);
    describeSite(file, project);
    items(file, project.loads.file.name, project.loads.file.folder, project.loads.zoneNumber);
    describeResults(file, project);
    if (file.since(2.0))
        file.text(project.loads.linkType);
    else if constexpr (File::reading)
        project.loads.linkType.clear();
    describeTower(file, project);
}

/// The body of a project file, behind the head.
template <class File, class Project>
void describeBoreholeProject(File& file, Project& project) {
    describeBoreholeBody(file, project);
    describeSecondOpinion(file, project.secondOpinion);
    describeWhatIf(file, project.whatIf);
}

/// The body of the defaults file: what is entered, without the project, its results and its loads.
template <class File, class Project>
void describeBoreholeDefaults(File& file, Project& project) {
    describeConditions(file, project);
    describeSite(file, project);
}

}  // namespace varnholt
