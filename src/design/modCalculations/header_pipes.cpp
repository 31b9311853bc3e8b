// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/header_pipes.h"

#include <array>
#include <cstddef>

namespace varnholt::modCalculations {

namespace {

// Iron pipe sizes; the factors are the method's.
constexpr std::array<HeaderPipe, 8> headerPipes{{
    {1.05, 0.008, 0.0014},
    {1.315, 0.009, 0.0015},
    {1.66, 0.01, 0.0016},
    {1.9, 0.011, 0.0017},
    {2.375, 0.013, 0.0018},
    {3.5, 0.015, 0.002},
    {4.5, 0.019, 0.0022},
    {6.625, 0.025, 0.0026},
}};

constexpr int loopPipes = 4;  // the first of the list above

std::int16_t sizeOf(int choice, int sizes) {
    return choice >= 0 && choice < sizes ? static_cast<std::int16_t>(choice) : usualPipeSize;
}

}  // namespace

std::int16_t headerPipeSizeOf(int choice) {
    return sizeOf(choice, static_cast<int>(headerPipes.size()));
}

const HeaderPipe& headerPipe(int size) {
    return headerPipes[static_cast<std::size_t>(headerPipeSizeOf(size))];
}

std::int16_t loopPipeSizeOf(int choice) { return sizeOf(choice, loopPipes); }

double loopPipeOutsideDiameter(int size) {
    return headerPipes[static_cast<std::size_t>(loopPipeSizeOf(size))].outsideDiameter;
}

}  // namespace varnholt::modCalculations
