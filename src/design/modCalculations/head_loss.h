// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "design/modCalculations/header_pickup.h"

namespace varnholt::modCalculations {

/// The loops, as the head of the circulation pump sees them.
struct LoopRun {
    ByMode<double> loopLength{};           ///< of all loops together, ft
    ByMode<std::int16_t> parallelLoops{};  ///< that share it
    double extraEqvLength = 0;             ///< of each loop's fittings, ft of pipe
    ByMode<double> loopHeadLoss{};         ///< ft of head for 100 ft of pipe
};

/// Head that is lost on the way through the field, ft.
struct HeadLoss {
    ByMode<double> loopLoss{};
    ByMode<double> headerLoss{};

    double total(Mode mode) const { return loopLoss[mode] + headerLoss[mode]; }
    friend bool operator==(const HeadLoss&, const HeadLoss&) = default;
};

/// Head lost in one loop and in one header of each kind, since all of a kind are in parallel.
/// Headers count twice, for supply and return.
///
///     loop   = (length / loops + extra length) loss/100
///     header = 2 (length in water + length in soil) loss/100, main header and branch together
///
/// Throws RunTimeError 11 with no loops, 6 for an overflow.
HeadLoss calculateHeadLoss(const LoopRun& loops, const Headers& headers);

}  // namespace varnholt::modCalculations
