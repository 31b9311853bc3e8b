// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "basis/mode.h"
#include "design/horizontal_project.h"
#include "persistence/file_items.h"

namespace varnholt {

// The lines of a horizontal design's files, written down once for reading and writing. The groups
// that stand in the project file and in the defaults file are described by the same function.
// Unlike those of the other kinds, pairs and triples stand on one line each, and every line is
// there whatever the file's version. A writer takes a project that is const.

/// Numbers with a line each.
template <class File, class... Numbers>
void lineEach(File& file, Numbers&... numbers) {
    (file.row(numbers), ...);
}

/// A line for each pair.
template <class File, class... Pairs>
void pairEach(File& file, Pairs&... each) {
    (file.row(each[0], each[1]), ...);
}

template <class File, class Project>
void describeTrenchConditions(File& file, Project& project) {
    auto& conditions = project.conditions;
    auto& outletTemp = resultsFor<File>(project).outlet.outletTemp;
    pairEach(file, conditions.inletTemp, outletTemp, conditions.inletLoadAirTemp,
             conditions.inletLoadWaterTemp);
    pairEach(file, project.pipe.pipeDiameter, conditions.minflowRate);
    pairEach(file, project.remainder.inputNumbers, project.remainder.inputDoubles);
}

/// Fluid, soil and pipe.
template <class File, class Project>
void describeTrenchSite(File& file, Project& project) {
    auto& fluid = project.fluid;
    lineEach(file, project.conditions.flowRate, fluid.percentAntifreeze, fluid.fluidTypeIndex);
    // Read as a whole line: a name that is typed may hold a comma.
    file.text(fluid.fluidName);
    lineEach(file, fluid.density, fluid.specificHeat);
    auto& soil = project.soil;
    lineEach(file, soil.groundTemp, soil.conductivity, soil.diffusivity);
    lineEach(file, project.groundTemperature.airTempSwing);
    pairEach(file, project.groundTemperature.extremeDay);
    auto& pipe = project.pipe;
    lineEach(file, pipe.pipeSizeIndex, project.remainder.uTubeConfig, pipe.pipeSdrIndex);
    lineEach(file, pipe.flowTypeIndex, pipe.pipeResistance);
}

/// The trenches behind their number, and the rest of what is entered.
template <class File, class Project>
void describeTrenches(File& file, Project& project) {
    auto& geometry = project.trench.trenchGeometry;
    auto& arrangement = project.arrangement;
    file.row(geometry[0], geometry[1], geometry[2]);
    lineEach(file, arrangement.offsetRows);
    pairEach(file, arrangement.pipeSeparation, arrangement.coilGeometry);
    lineEach(file, arrangement.predictionYears);
    auto& kept = project.remainder.numbers;
    lineEach(file, kept[0], kept[1], kept[2], project.extraPower.motorEfficiency[0]);
}

template <class File, class Project>
void describeTrenchResults(File& file, Project& project) {
    auto& results = resultsFor<File>(project);
    auto& ground = results.groundResistance;
    lineEach(file, results.annualGroundLoad);
    file.row(ground.annual, ground.monthly, ground.shortTerm);
    pairEach(file, results.loads.peakLoad, results.demand.peakDemand);
    pairEach(file, results.cop.heatPumpCOP, results.cop.systemCOP, results.outlet.systemFlow);
    pairEach(file, results.lengths.temperaturePenalty, results.requiredLength,
             results.totalPipeLength);
    auto& kept = project.remainder;
    pairEach(file, kept.resultFlags, kept.resultNumbers, kept.resultDoubles);
    // The file does not tell which mode governs: the longer one does.
    if constexpr (File::reading)
        results.governingMode =
            results.requiredLength[cooling] > results.requiredLength[heating] ? cooling : heating;
}

template <class File, class Project>
void describeTrenchTower(File& file, Project& project) {
    auto& tower = project.tower.tower;
    lineEach(file, project.tower.hybridPercent, tower.capacity, tower.capacityMax, tower.flow,
             tower.range, tower.hours);
    auto& efficiency = project.extraPower.motorEfficiency;
    file.row(efficiency[1], efficiency[2]);
}

/// The body of a project file, behind the head.
template <class File, class Project>
void describeHorizontalProject(File& file, Project& project) {
    describeTrenchConditions(file, project);
    for (auto& power : project.extraPower.extraPower) lineEach(file, power);
    describeTrenchSite(file, project);
    auto& arrangement = project.arrangement;
    lineEach(file, arrangement.trenchConfiguration, arrangement.pipesPerTrench,
             project.trench.trenchCount);
    describeTrenches(file, project);
    auto& loads = project.loads;
    lineEach(file, loads.zoneNumber);
    items(file, loads.activeSeries, loads.file.name, loads.file.folder);
    describeTrenchResults(file, project);
    file.text(loads.linkType);
    describeTrenchTower(file, project);
}

/// The body of the defaults file: what is entered, without the project, its results and its loads,
/// and without the number of trenches, of which a new design always has one.
template <class File, class Project>
void describeHorizontalDefaults(File& file, Project& project) {
    describeTrenchConditions(file, project);
    describeTrenchSite(file, project);
    lineEach(file, project.arrangement.trenchConfiguration, project.arrangement.pipesPerTrench);
    describeTrenches(file, project);
    items(file, project.loads.activeSeries);
}

}  // namespace varnholt
