// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "basis/mode.h"

namespace varnholt::modCalculations {

/// Headers of one kind, each of which runs through soil and water on its way to the loops.
struct Header {
    double count = 0;
    double waterFactor = 0;      ///< see HeaderPipe
    double soilFactor = 0;       ///< see HeaderPipe
    double lengthInWater = 0;    ///< of one pipe of it, ft
    double lengthInSoil = 0;     ///< of one pipe of it, ft
    ByMode<double> waterTemp{};  ///< around its submerged part, degF
    ByMode<double> headLoss{};   ///< ft of head for 100 ft of pipe

    friend bool operator==(const Header&, const Header&) = default;
};

/// Main headers and the branches on each of them; a field without branches has a count of 0.
struct Headers {
    Header primary;
    Header branch;

    friend bool operator==(const Headers&, const Headers&) = default;
};

/// By how much the fluid's temperature changes on its way through the headers, degF.
struct HeaderPickup {
    double submerged = 0;
    double buried = 0;

    friend bool operator==(const HeaderPickup&, const HeaderPickup&) = default;
};

/// What the headers pick up from the water and the soil around them, branches first, so that each
/// part meets the fluid that the parts before it have left:
///
///     change = factor (surroundings - fluid) length / flow
///
/// The flow of one branch is the system's over the branches in the water, and one main header's
/// over the branches in the soil. The difference is the method's and is kept; with several main
/// headers the first understates what a branch picks up.
///
/// @param fluidTemp   of the fluid, degF
/// @param systemFlow  gpm; nothing is picked up where nothing flows
/// @param groundTemp  around the buried part, degF
/// Throws RunTimeError 11 when something flows and there is no main header, 6 for an overflow.
HeaderPickup calculateHeaderPickup(const Headers& headers, Mode mode, double fluidTemp,
                                   double systemFlow, double groundTemp);

}  // namespace varnholt::modCalculations
