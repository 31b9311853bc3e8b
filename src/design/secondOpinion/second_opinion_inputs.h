// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

#include "basis/mode.h"

namespace varnholt {

/// One value for each month and mode, in the order in which they are named: [month][mode], month 0
/// being January.
using MonthsOfModes = std::array<ByMode<double>, 12>;

/// Where the shape of the year comes from.
enum YearShape : std::int16_t { standardYear = 0, importedYear = 1, typedYear = 2 };

/// The depth of bore that the fluid's temperatures are told for.
enum DepthChoice : std::int16_t { depthOfDesign = 0, depthOfSecondOpinion = 1, depthAsTyped = 2 };

/// What a designer enters for the second opinion. The member initialisers are the defaults.
struct SecondOpinionInputs {
    double buriedDepth = 4;  ///< of the bores' tops, ft
    double pulseHours = 0;   ///< length of the peak, hr; 0 takes the design's 4 or 12
    double yearsShown = 20;
    std::int16_t shape = standardYear;  ///< a YearShape
    bool southern = false;              ///< the site lies south of the equator
    bool cylinder = false;              ///< the short pulse is a cylinder source's, not a line's
    MonthsOfModes monthEnergy{};        ///< typed year, any unit: only ratios count
    MonthsOfModes monthTop{};           ///< typed peaks, any unit
    std::int16_t depthChoice = depthOfSecondOpinion;  ///< a DepthChoice
    double typedDepth = 250;                          ///< of a bore, ft

    friend bool operator==(const SecondOpinionInputs&, const SecondOpinionInputs&) = default;
};

}  // namespace varnholt
