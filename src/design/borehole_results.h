// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "design/design_values.h"
#include "design/ground_roll_up.h"
#include "design/modCalculations/bore_grid.h"
#include "design/modCalculations/ground_resistance.h"
#include "design/modCalculations/length_shares.h"
#include "design/modCalculations/settling.h"

namespace varnholt {

/// All that a run of the borehole design starts from.
struct BoreholeInputs {
    LoadsInputs loads;
    SoilValues soil;
    BoreValues bore;
    ArrangementValues arrangement;
    double coolingRange = 0;  ///< of the tower, degF

    friend bool operator==(const BoreholeInputs&, const BoreholeInputs&) = default;
};

/// Everything that a run of the borehole design computes, and what it was computed from.
struct BoreholeResults : GroundRollUp {
    /// What the figures came from; none before the first run, and what the project holds where
    /// they were read from its file.
    std::optional<BoreholeInputs> inputs;
    modCalculations::GroundResistances groundResistance;
    modCalculations::NeighbourCount neighbourCount{};
    modCalculations::SettledLengths lengths;
    /// Where the lengths come from; files hold nothing of it.
    ByMode<modCalculations::LengthShares> lengthShares;

    friend bool operator==(const BoreholeResults&, const BoreholeResults&) = default;
};

}  // namespace varnholt
