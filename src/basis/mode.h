// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>

namespace varnholt {

/// Index of every two-element array of loads, pumps and results.
enum Mode : std::size_t { cooling = 0, heating = 1 };

constexpr std::array<Mode, 2> modes{cooling, heating};

/// One value for cooling and one for heating.
template <class T>
using ByMode = std::array<T, 2>;

/// Number of time blocks of a design day: "8-12", "12-4", "4-8" and "8-8".
constexpr std::size_t timeBlocks = 4;

/// Hours that each time block stands for.
constexpr std::array<double, timeBlocks> blockHours{4, 4, 4, 12};

}  // namespace varnholt
