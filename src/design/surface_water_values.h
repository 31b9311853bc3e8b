// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "basis/mode.h"

namespace varnholt {

// What a designer enters for pipe in surface water, one group a part of the window, in English
// units, as in design_values.h. Arrays keep the order of the fields and files.

/// Soil around the buried headers.
struct HeaderSoilValues {
    double groundTemp = 62;                   ///< mean over the year, degF
    double airTempSwing = 22;                 ///< amplitude at the surface, degF
    ByMode<std::int16_t> extremeDay{34, 34};  ///< warmest and coldest day of the year
    double headerDepth = 6;                   ///< ft
    double soilType = 1;                      ///< dry, damp, wet
    double soilDiffusivity = 0.6;             ///< ft^2/day; follows the type
    /// degF; follows all of these (see correctGroundTemp), and is their mean until it has been
    /// found.
    ByMode<double> groundTempAtDepth{62, 62};

    friend bool operator==(const HeaderSoilValues&, const HeaderSoilValues&) = default;
};

/// The pipe in the water.
struct LoopValues {
    double loopStyle = 0;                      ///< 0 coil, 1 slinky
    double loopPipeSize = 3;                   ///< 3/4, 1, 1 1/4, 1 1/2 in
    double loopPipeOutsideDiameter = 1.9;      ///< in; follows the size
    double extraEqvLength = 0;                 ///< of each loop's fittings, ft of pipe
    ByMode<double> loopHeadLoss{};             ///< ft of head for 100 ft of pipe
    ByMode<std::int16_t> parallelLoops{1, 1};  ///< lowered by a run to what the flow allows

    friend bool operator==(const LoopValues&, const LoopValues&) = default;
};

/// Index of the branch headers in the arrays of headers; the primary one stands before them.
constexpr std::size_t branchHeaders = 1;

/// Main headers (element 0) and the branches on each of them (element 1). Arrays of four run
/// through the main headers' two values first: cooling and heating, or in water and in soil.
struct HeaderValues {
    std::array<double, 2> headerCount{1, 0};
    std::array<std::int16_t, 2> headerPipeSize{3, 3};       ///< 3/4, 1, 1 1/4, 1 1/2, 2, 3, 4, 6 in
    std::array<double, 2> headerOutsideDiameter{1.9, 1.9};  ///< in; follows the size
    std::array<double, 2> headerWaterFactor{0.011, 0.011};  ///< see HeaderPipe
    std::array<double, 2> headerSoilFactor{0.0017, 0.0017};  ///< see HeaderPipe
    std::array<double, 4> headerHeadLoss{};  ///< by mode, ft of head for 100 ft of pipe
    std::array<double, 4> headerLength{};    ///< in water, in soil, ft

    friend bool operator==(const HeaderValues&, const HeaderValues&) = default;
};

/// Temperatures of the water. Those of a new design lie on the proper side of its fluid
/// temperatures, so that its first run means something.
struct WaterTemperatures {
    ByMode<double> loopWaterTemp{75, 55};                   ///< at the loops' mean depth, degF
    std::array<double, 4> headerWaterTemp{75, 55, 75, 55};  ///< main headers, branches, degF

    friend bool operator==(const WaterTemperatures&, const WaterTemperatures&) = default;
};

/// What the design tells of its water and no calculation uses.
struct SurfaceWaterDetails {
    std::int16_t surfaceWaterType = 0;  ///< entry of the list
    double surfaceArea = 0;             ///< ft^2
    double loopPipeDepth = 0;           ///< ft

    friend bool operator==(const SurfaceWaterDetails&, const SurfaceWaterDetails&) = default;
};

}  // namespace varnholt
