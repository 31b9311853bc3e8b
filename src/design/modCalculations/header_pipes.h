// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace varnholt::modCalculations {

/// A pipe that headers are made of.
struct HeaderPipe {
    double outsideDiameter = 0;  ///< in
    /// By how many degF 1 gpm of fluid changes in 1 ft of pipe for each degF between the fluid and
    /// the water, or the soil, around the pipe.
    double waterFactor = 0;
    double soilFactor = 0;
};

/// The size that every choice outside the list stands for, of loops and of headers: 1 1/2 in.
constexpr std::int16_t usualPipeSize = 3;

/// The size itself, or the usual one where the list of header pipes (0 to 7: 3/4, 1, 1 1/4, 1 1/2,
/// 2, 3, 4, 6 in) has no such entry.
std::int16_t headerPipeSizeOf(int choice);

/// The header pipe of a size; the usual one for a size that the list has not.
const HeaderPipe& headerPipe(int size);

/// The size itself, or the usual one where the list of loop pipes (0 to 3: 3/4, 1, 1 1/4, 1 1/2
/// in) has no such entry.
std::int16_t loopPipeSizeOf(int choice);

/// Outside diameter of the loop pipe of a size, in; of the usual one for a size that the list has
/// not.
double loopPipeOutsideDiameter(int size);

}  // namespace varnholt::modCalculations
