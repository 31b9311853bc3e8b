// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "design/modCalculations/header_pickup.h"

namespace varnholt::modCalculations {

/// What stands between the heat pumps and the water around the loops.
struct ApproachTerms {
    Headers headers;
    ByMode<double> systemFlow{};         ///< gpm
    ByMode<double> inletTemp{};          ///< of the heat pump units, degF
    ByMode<double> loopWaterTemp{};      ///< at the loops' mean depth, degF
    ByMode<double> groundTempAtDepth{};  ///< around the buried headers, degF
};

/// The approach of each mode and how it was found.
struct Approach {
    ByMode<double> approachTemp{};  ///< fluid less water at the loops, degF
    ByMode<HeaderPickup> headerHeatPickup{};
    ByMode<std::int16_t> passes{};
    /// The last pass was the fifth, whether or not it agreed with the fourth. The approach is then
    /// the one with headers full of fluid at the inlet temperature.
    ByMode<bool> unsettled{};

    friend bool operator==(const Approach&, const Approach&) = default;
};

/// The approach temperature: what is left of the difference between fluid and water when the
/// headers have taken their part. They meet fluid of a temperature that depends on what they pick
/// up, so pickup and approach are repeated until the approach changes by no more than a twentieth,
/// five times at most.
///
///     approach = inlet - water - submerged pickup - buried pickup
///
/// Positive in cooling, negative in heating, unless a design temperature lies on the wrong side of
/// the water's.
/// Throws RunTimeError 11 when an approach that is to be compared with is 0, and as
/// calculateHeaderPickup does.
Approach calculateApproach(const ApproachTerms& terms);

}  // namespace varnholt::modCalculations
