// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "basis/shared.h"
#include "design/design_values.h"
#include "design/horizontal_run.h"
#include "loads/design_project.h"

namespace varnholt {

/// Numbers of a horizontal file that nobody enters. All but `uTubeConfig` are carried along without
/// a use and keep the file's shape.
struct HorizontalFileRemainder {
    std::array<double, 2> inputNumbers{}, inputDoubles{};
    /// The configuration of pipeResistanceOf: a single pipe, which only a file can change.
    double uTubeConfig = 2;
    std::array<double, 3> numbers{1.9, 100, 0};
    std::array<double, 2> resultFlags{1, 0}, resultNumbers{}, resultDoubles{};

    friend bool operator==(const HorizontalFileRemainder&,
                           const HorizontalFileRemainder&) = default;
};

/// The project of a field of horizontal trenches: a plain value, held by its window and described
/// by its file.
struct HorizontalProject : DesignProject {
    FluidValues fluid;
    SoilValues soil;
    GroundTemperatureValues groundTemperature;
    PipeValues pipe{.pipeSizeIndex = 1};
    TrenchValues trench;
    HorizontalArrangementValues arrangement;
    ExtraPowerValues extraPower;
    TowerValues tower;
    /// Of the last run at the pipes' mean depth, or since an input changed at the trench's, degF.
    ByMode<double> groundTempAtDepth{62, 62};
    Shared<HorizontalResults> results;
    HorizontalFileRemainder remainder;

    friend bool operator==(const HorizontalProject&, const HorizontalProject&) = default;
};

/// What a run takes from a project.
/// @param hybridOn  the cooling tower takes its share, as after a move of the slider
HorizontalInputs inputsOf(const HorizontalProject& project, bool hybridOn);

/// The ground's temperature at the depth of the trenches, which follows soil, year and depth while
/// they are entered, degF. For a soil that no temperature can be found for, the mean.
ByMode<double> groundTempAtTrench(const HorizontalProject& project);

}  // namespace varnholt
