// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "design/design_values.h"
#include "design/ground_roll_up.h"
#include "design/horizontal_values.h"
#include "design/modCalculations/bore_grid.h"
#include "design/modCalculations/ground_resistance.h"
#include "design/modCalculations/length_shares.h"
#include "design/modCalculations/settling.h"
#include "design/modCalculations/trench_resistance.h"

namespace varnholt {

/// All that a run of the horizontal design starts from.
struct HorizontalInputs {
    LoadsInputs loads;
    SoilValues soil;
    GroundTemperatureValues groundTemperature;
    PipeValues pipe;
    TrenchValues trench;
    HorizontalArrangementValues arrangement;
    double coolingRange = 0;  ///< of the tower, degF

    friend bool operator==(const HorizontalInputs&, const HorizontalInputs&) = default;
};

/// Everything that a run of the horizontal design computes, and what it was computed from.
struct HorizontalResults : GroundRollUp {
    /// What the figures came from, with the pipe resistance that the run leaves behind; none before
    /// the first run.
    std::optional<HorizontalInputs> inputs;
    /// The resistance that was computed with. The design keeps it: a coil's is that of its
    /// equivalent pipe, also when straight pipes are chosen next.
    double pipeResistance = 0;  ///< hr ft degF/Btu
    modCalculations::TrenchGround trenchGround;
    modCalculations::GroundResistances groundResistance;
    ByMode<double> groundTempAtDepth{};  ///< at the mean depth of the pipes, degF
    modCalculations::NeighbourCount neighbourCount{};
    modCalculations::SettledLengths lengths;  ///< of single pipe, and the penalties, which last
    /// Where the lengths of single pipe come from; files hold nothing of it.
    ByMode<modCalculations::LengthShares> lengthShares;
    /// The mode that needs more single pipe. The coil correction may turn the lengths round where
    /// a part-load factor is 0, and does not change what governs.
    Mode governingMode = heating;
    ByMode<double> coilLengthPer250{};  ///< of coils only: trench in place of 250 ft of pipe, ft
    ByMode<double> requiredLength{};    ///< pipe, or for coils trench, ft
    ByMode<double> totalPipeLength{};   ///< ft

    friend bool operator==(const HorizontalResults&, const HorizontalResults&) = default;
};

/// The whole run of a field of horizontal trenches: loads rolled up, the resistance of the ground
/// around pipes and their images, its temperature at their depth, penalty and lengths repeated
/// until both modes settle, coils in place of pipe. A pure function: it reads nothing but its
/// inputs. Source: the length equation of Kavanaugh and Rafferty, "Ground-Source Heat Pumps"
/// (ASHRAE, 1997), chapter 3, with the pipe's resistance for the bore's and no short circuit.
///
/// @return the results with their inputs; nothing where no mode has a load. `lengths.failed` tells
///         lengths that did not settle. Throws RunTimeError 11 with a soil conductivity of 0, and
///         whatever else the arithmetic ends in (6 for an overflow, 9 for no arrangement)
std::optional<HorizontalResults> runHorizontal(const HorizontalInputs& inputs);

}  // namespace varnholt
