// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>

#include "basis/mode.h"
#include "design/modCalculations/header_pipes.h"
#include "design/surface_water_project.h"
#include "design/surface_water_rules.h"
#include "persistence/file_items.h"

namespace varnholt {

// The lines of a surface water design's files, written down once for reading and writing. The
// groups that stand in the project file and in the defaults file are described by the same
// function. A writer takes a project that is const.

/// The first lines of each mode, in both files.
template <class File, class Project>
void describePondConditions(File& file, Project& project, Mode mode) {
    auto& conditions = project.conditions;
    items(file, conditions.inletTemp[mode], resultsFor<File>(project).outlet.outletTemp[mode]);
    items(file, conditions.inletLoadAirTemp[mode], conditions.inletLoadWaterTemp[mode]);
    items(file, conditions.minflowRate[mode], project.soil.extremeDay[mode]);
    items(file, project.soil.groundTempAtDepth[mode], project.water.loopWaterTemp[mode]);
}

/// The kinds of header stand among the values of the modes: main headers with cooling, branches
/// with heating.
template <class File, class Project>
void describePipesOfMode(File& file, Project& project, Mode mode) {
    auto& header = project.header;
    const auto kind = static_cast<std::size_t>(mode);
    items(file, project.loop.loopHeadLoss[mode], header.headerCount[kind]);
    items(file, header.headerPipeSize[kind], header.headerWaterFactor[kind],
          header.headerSoilFactor[kind]);
    // The only figure of the pipe that its size has to tell.
    if constexpr (File::reading)
        header.headerOutsideDiameter[kind] =
            modCalculations::headerPipe(header.headerPipeSize[kind]).outsideDiameter;
}

template <class File, class Project>
void describeHeaders(File& file, Project& project) {
    auto& header = project.header;
    for (std::size_t i = 0; i < header.headerLength.size(); ++i)
        items(file, project.water.headerWaterTemp[i], header.headerHeadLoss[i],
              header.headerLength[i]);
}

/// Fluid, soil and loops, in both files.
template <class File, class Project>
void describePond(File& file, Project& project) {
    auto& fluid = project.fluid;
    items(file, project.conditions.flowRate, fluid.percentAntifreeze, fluid.fluidTypeIndex,
          fluid.fluidName, fluid.density, fluid.specificHeat);
    auto& soil = project.soil;
    items(file, soil.groundTemp, soil.headerDepth, soil.airTempSwing, soil.soilType,
          soil.soilDiffusivity);
    auto& loop = project.loop;
    items(file, loop.loopStyle, loop.loopPipeSize, loop.loopPipeOutsideDiameter,
          loop.extraEqvLength);
}

template <class File, class Project>
void describeDetails(File& file, Project& project) {
    auto& details = project.details;
    items(file, details.surfaceArea, details.loopPipeDepth, details.surfaceWaterType);
}

template <class File, class Project>
void describePondResults(File& file, Project& project) {
    auto& results = resultsFor<File>(project);
    for (const Mode mode : modes) {
        items(file, results.loads.peakLoad[mode], results.demand.peakDemand[mode]);
        items(file, results.cop.heatPumpCOP[mode], results.cop.systemCOP[mode]);
        items(file, results.outlet.systemFlow[mode], results.loopLength[mode]);
        items(file, project.loop.parallelLoops[mode], results.loops.maxParallelLoops[mode]);
        items(file, results.approach.approachTemp[mode]);
        items(file, results.headLoss.loopLoss[mode], results.headLoss.headerLoss[mode]);
    }
}

/// What a file leaves out of the results, since the rest of them tells it: the loops of the run and
/// the flow in each kind of pipe.
void completeResults(SurfaceWaterProject& project);

/// The body of a project file, behind the head.
template <class File, class Project>
void describeSurfaceWaterProject(File& file, Project& project) {
    for (const Mode mode : modes) {
        describePondConditions(file, project, mode);
        describePipesOfMode(file, project, mode);
    }
    auto& extraPower = project.extraPower.extraPower;
    items(file, extraPower[0], extraPower[1], extraPower[2]);
    describeHeaders(file, project);
    describePond(file, project);
    describeDetails(file, project);
    items(file, project.extraPower.motorEfficiency[0], project.loads.activeSeries);
    items(file, project.loads.file.name, project.loads.file.folder, project.loads.zoneNumber);
    items(file, project.annualGroundLoad);
    describePondResults(file, project);
    if (file.since(2.0))
        file.text(project.loads.linkType);
    else if constexpr (File::reading)
        project.loads.linkType.clear();
    if constexpr (File::reading) completeResults(project);
}

/// The body of the defaults file: what is entered, without the project, its headers, its results
/// and its loads. The motor's efficiency stands before the details here, and behind them in a
/// project file.
template <class File, class Project>
void describeSurfaceWaterDefaults(File& file, Project& project) {
    for (const Mode mode : modes) describePondConditions(file, project, mode);
    describePond(file, project);
    items(file, project.extraPower.motorEfficiency[0]);
    describeDetails(file, project);
    items(file, project.loads.activeSeries);
}

}  // namespace varnholt
