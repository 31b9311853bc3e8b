// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "design/modCalculations/header_pickup.h"

namespace varnholt::modCalculations {

/// How many loops the flow is shared by.
struct ParallelLoops {
    ByMode<double> maxParallelLoops{};  ///< a whole number
    ByMode<std::int16_t> parallelLoops{};

    friend bool operator==(const ParallelLoops&, const ParallelLoops&) = default;
};

/// The most loops that each keep their least flow, and the designer's number of loops lowered to
/// that; it is never raised, save that no loops are one where there is a least flow.
///
///     most = whole part of system flow / least flow; 1 where the system has no more than that flow
///
/// @param systemFlow       gpm
/// @param minimumLoopFlow  least flow of a loop, gpm; with 0 every number of loops is allowed
/// @param parallelLoops    as the designer wants them
/// Throws RunTimeError 6 when more than 32767 loops could keep their flow.
ParallelLoops calculateMaxParallelLoops(const ByMode<double>& systemFlow,
                                        const ByMode<double>& minimumLoopFlow,
                                        const ByMode<std::int16_t>& parallelLoops);

/// Flow in one pipe of each kind, gpm.
struct PipeFlows {
    ByMode<double> circuitFlow{};
    ByMode<double> primaryHeaderFlow{};  ///< 0 without main headers
    ByMode<double> branchHeaderFlow{};   ///< 0 without branches

    friend bool operator==(const PipeFlows&, const PipeFlows&) = default;
};

/// The system's flow shared by the loops, by the main headers, and on each of these by the
/// branches.
/// @param systemFlow  gpm
/// Throws RunTimeError 11 with no loops.
PipeFlows calculateFlows(const ByMode<double>& systemFlow,
                         const ByMode<std::int16_t>& parallelLoops, const Headers& headers);

}  // namespace varnholt::modCalculations
