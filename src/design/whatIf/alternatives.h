// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "design/borehole_results.h"
#include "design/horizontal_run.h"
#include "design/surface_water_results.h"
#include "design/whatIf/reason.h"
#include "design/whatIf/tower_curve.h"

namespace varnholt {

struct BoreholeProject;

enum class AlternativeKind { borehole = 0, horizontal = 1, surfaceWater = 2 };

/// Pipe in trenches or in a pond, with its last lengths.
struct LoopAlternative {
    double pipe = 0;    ///< total length of the governing mode, ft; 0 for none
    double trench = 0;  ///< total length, ft; none in a pond
    EnergyYear year;

    friend bool operator==(const LoopAlternative&, const LoopAlternative&) = default;
};
LoopAlternative loopOf(const HorizontalResults& results);
LoopAlternative loopOf(const SurfaceWaterResults& results);

/// What is compared: a field of bores by its inputs, any other kind by its last run.
struct Alternative {
    std::string name;
    AlternativeKind kind = AlternativeKind::borehole;
    std::optional<BoreholeInputs> design;  ///< of bores
    LoopAlternative loop;                  ///< of all else

    friend bool operator==(const Alternative&, const Alternative&) = default;
};

/// A kept design with the present loads, its tower as a move of the slider has it.
BoreholeInputs keptInputs(const BoreholeProject& kept, const SharedZones& zones);

/// What an alternative comes to. What cannot be had is 0.
struct AlternativeFigures {
    std::string name;
    AlternativeKind kind = AlternativeKind::borehole;
    double length = 0;  ///< of bore or pipe, ft
    double bores = 0;
    double depth = 0;   ///< of a bore, ft
    double first = 0;   ///< first cost
    double life = 0;    ///< cost over life
    double energy = 0;  ///< kWh a year
    Reason reason;      ///< why there is no length, or no year

    friend bool operator==(const AlternativeFigures&, const AlternativeFigures&) = default;
};

/// @param figures  of the design, at its own need
AlternativeFigures boreAlternative(const std::string& name, const BoreholeInputs& design,
                                   const RolledZones& zones, const CaseFigures& figures,
                                   const Prices& prices);
AlternativeFigures loopAlternative(const Alternative& alternative, const Prices& prices);

/// One that has no figures, and why.
AlternativeFigures withoutFigures(const Alternative& alternative, Reason reason);

}  // namespace varnholt
