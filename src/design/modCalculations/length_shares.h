// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/modCalculations/bore_length.h"

namespace varnholt::modCalculations {

/// Where a length of bore or pipe comes from, ft. A share is negative where its heat relieves the
/// mode, as the heat that cooling leaves in the ground relieves heating.
struct LengthShares {
    double longTerm = 0;        ///< the year's heat against the annual resistance of the ground
    double monthly = 0;         ///< the design month against the monthly one
    double shortTerm = 0;       ///< the peak against the short-term one
    double boreResistance = 0;  ///< the peak against the resistance from fluid to ground
    double penalty = 0;         ///< what the drift of the ground's temperature adds

    /// The length that they add up to, ft.
    double total() const { return longTerm + monthly + shortTerm + boreResistance + penalty; }
    /// There is nothing to tell.
    bool empty() const { return *this == LengthShares(); }
    friend bool operator==(const LengthShares&, const LengthShares&) = default;
};

/// The length equation taken apart: each of its terms over the ground's undisturbed temperature
/// less the fluid's mean, and as the penalty the rest of the length.
/// Equation: share = 1000 q R / (tg - (ti + to)/2); penalty = L - the sum of the others.
/// Source: the length equation of Kavanaugh and Rafferty, "Ground-Source Heat Pumps" (ASHRAE,
/// 1997), chapter 3.
/// @param length  that the terms have led to, ft
/// @return        all 0 for a mode without a length, and where fluid and undisturbed ground have
///                the same temperature, so that the penalty is all there is
ByMode<LengthShares> lengthShares(const LengthTerms& terms, const ByMode<double>& length);

}  // namespace varnholt::modCalculations
