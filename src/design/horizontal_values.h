// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

#include "basis/mode.h"

namespace varnholt {

// What a designer enters for pipes in trenches, beside the values that all kinds of ground loops
// share. The rules of design_values.h hold here too.

/// The trenches of a horizontal field.
struct TrenchValues {
    double trenchCount = 1;                          ///< side by side
    std::array<double, 3> trenchGeometry{20, 6, 8};  ///< separation, ft; depth, ft; width, in

    friend bool operator==(const TrenchValues&, const TrenchValues&) = default;
};

/// How the pipes lie in each trench, and how long the field has to serve.
struct HorizontalArrangementValues {
    std::int16_t trenchConfiguration = 0;  ///< one, two, three columns, lying or standing coil
    double pipesPerTrench = 1;
    std::int16_t offsetRows = 0;                   ///< 1: every second row is moved sideways
    std::array<double, 2> pipeSeparation{12, 12};  ///< within a column, between columns, in
    std::array<double, 2> coilGeometry{10, 36};    ///< pitch, diameter, in
    double predictionYears = 10;

    friend bool operator==(const HorizontalArrangementValues&,
                           const HorizontalArrangementValues&) = default;
};

/// How the temperature of the ground near the surface goes through the year.
struct GroundTemperatureValues {
    double airTempSwing = 22;                 ///< amplitude at the surface, degF
    ByMode<std::int16_t> extremeDay{34, 34};  ///< warmest, coldest day of the year

    friend bool operator==(const GroundTemperatureValues&,
                           const GroundTemperatureValues&) = default;
};

}  // namespace varnholt
