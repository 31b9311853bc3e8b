// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

#include "basis/mode.h"
#include "basis/shared.h"
#include "design/borehole_results.h"
#include "design/design_values.h"
#include "design/secondOpinion/second_opinion_inputs.h"
#include "design/whatIf/what_if_inputs.h"
#include "loads/design_project.h"

namespace varnholt {

/// Numbers of a borehole file that the design carries along and does not use. They keep the file's
/// shape.
struct BoreholeFileRemainder {
    ByMode<std::int16_t> inputFlag{1, 1};
    ByMode<double> inputNumber{}, inputDouble{};
    std::array<double, 3> numbers{1.9, 100, 0};
    ByMode<double> resultFlag{1, 1}, resultNumber{}, resultDouble{};

    friend bool operator==(const BoreholeFileRemainder&, const BoreholeFileRemainder&) = default;
};

/// The project of a field of vertical bores: a plain value, held by its window and described by
/// its file. A copy shares zones and results with the original until one of them is written to.
struct BoreholeProject : DesignProject {
    FluidValues fluid;
    SoilValues soil;
    PipeValues pipe;
    BoreValues bore;
    ArrangementValues arrangement;
    ExtraPowerValues extraPower;
    TowerValues tower;
    SecondOpinionInputs secondOpinion;
    WhatIfInputs whatIf;
    Shared<BoreholeResults> results;
    BoreholeFileRemainder remainder;

    friend bool operator==(const BoreholeProject&, const BoreholeProject&) = default;
};

}  // namespace varnholt
