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

/// The same for the pipes of horizontal trenches. Here the limit of passes holds for both modes
/// alike, and no length that is compared is ever 0, so a building with loads in one mode only gets
/// its length. A mode whose fluid lies on the wrong side of its ground has no solution either, even
/// where the year's load made its length positive: it ends with a length and a penalty of 0.
/// Throws RunTimeError 11 when fluid and ground have the same temperature.
SettledLengths settleTrenchLengths(const LengthTerms& terms, const PenaltySite& site,
                                   const ByMode<double>& pipeLength);

}  // namespace varnholt::modCalculations
