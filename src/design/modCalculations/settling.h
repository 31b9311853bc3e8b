// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "design/modCalculations/bore_length.h"
#include "design/modCalculations/temperature_penalty.h"

namespace varnholt::modCalculations {

/// Lengths and penalties that agree with each other, and how they were found.
struct SettledLengths {
    ByMode<double> boreLength{};          ///< ft; 0 for a mode that has no solution
    ByMode<double> previousBoreLength{};  ///< of the pass before the last, ft
    ByMode<double> temperaturePenalty{};  ///< degF; 0 for a mode that has no solution
    ByMode<bool> nonPositive{};           ///< a length of the mode was 1 ft or less in some pass
    std::int16_t iterations = 0;
    bool failed = false;  ///< neither mode has a solution, or the hundredth pass was the last

    friend bool operator==(const SettledLengths&, const SettledLengths&) = default;
};

/// Repeats penalty and length, since each depends on the other, until both lengths change by no
/// more than a thousandth. The limit of 100 passes holds for heating only: cooling keeps the loop
/// running until it has settled.
/// @param boreLength  the first lengths, ft
/// Throws RunTimeError 11 when a length that is to be compared with was 0 (as with a building that
/// has loads in one mode only), 6 when cooling has not settled after 32767 passes.
SettledLengths settleBoreLengths(const LengthTerms& terms, const PenaltySite& site,
                                 const ByMode<double>& boreLength);

}  // namespace varnholt::modCalculations
