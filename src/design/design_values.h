// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "design/modCalculations/cooling_tower.h"
#include "design/modCalculations/extra_power.h"
#include "design/modCalculations/ground_resistance.h"

namespace varnholt {

// What a designer enters, one group a tab, in English units. The member initialisers are the
// built-in values of a new design. These are plain values, so that files can be described by them.
// Numbers that a file may hold out of every range are doubles even where they count something.

/// What circulates in the loop.
struct FluidValues {
    std::int16_t fluidTypeIndex = 0;  ///< entry of the fluids' list, or `typedFluid`
    std::string fluidName;            ///< of a typed fluid, else empty
    double percentAntifreeze = 100;
    double density = 62.4;      ///< lb/ft^3
    double specificHeat = 1.0;  ///< Btu/(lb degF)

    static constexpr std::int16_t typedFluid = 7;

    modCalculations::Fluid fluid() const { return {density, specificHeat}; }
    friend bool operator==(const FluidValues&, const FluidValues&) = default;
};

/// The undisturbed ground.
struct SoilValues {
    double groundTemp = 62;     ///< degF
    double conductivity = 1.3;  ///< Btu/(hr ft degF)
    double diffusivity = 0.75;  ///< ft^2/day

    modCalculations::Soil soil() const { return {conductivity, diffusivity}; }
    friend bool operator==(const SoilValues&, const SoilValues&) = default;
};

/// The pipe in the ground.
struct PipeValues {
    double pipeSizeIndex = 3;                       ///< 3/4, 1, 1 1/4, 1 1/2 in
    double pipeSdrIndex = 1;                        ///< SDR 9, 11, 17, schedule 40, 80
    std::int16_t flowTypeIndex = 0;                 ///< turbulent, transition, laminar
    std::array<double, 2> pipeDiameter{1.9, 1.55};  ///< outside, inside, in
    double pipeResistance = 0.075;                  ///< wall and film, hr ft degF/Btu

    friend bool operator==(const PipeValues&, const PipeValues&) = default;
};

/// The bore that holds the pipe.
struct BoreValues {
    double uTubeConfig = 0;           ///< 0 one U-tube, 1 two
    double pipePlacement = 1;         ///< along the wall, average, close together
    double boreDiameter = 5;          ///< in
    double groutConductivity = 0.85;  ///< Btu/(hr ft degF)
    double boreResistance = 0.196;    ///< from fluid to bore wall, hr ft degF/Btu

    friend bool operator==(const BoreValues&, const BoreValues&) = default;
};

/// The field of bores.
struct ArrangementValues {
    std::array<double, 2> patternRows{6, 4};  ///< rows across, rows down
    double boreSeparation = 20;               ///< ft
    std::int16_t boresPerCircuit = 2;
    double predictionTime = 10;  ///< years

    friend bool operator==(const ArrangementValues&, const ArrangementValues&) = default;
};

/// Electric power besides the heat pumps'.
struct ExtraPowerValues {
    modCalculations::ExtraPower extraPower{};  ///< kW
    /// Percent: circulation pump, tower fan, tower pump. Files call elements 1 and 2
    /// `towerMotorEfficiency`.
    std::array<double, 3> motorEfficiency{85, 85, 85};

    friend bool operator==(const ExtraPowerValues&, const ExtraPowerValues&) = default;
};

/// The optional cooling tower.
struct TowerValues {
    std::int16_t hybridPercent = 0;  ///< of the peak cooling load; the slider
    modCalculations::CoolingTower tower;

    friend bool operator==(const TowerValues&, const TowerValues&) = default;
};

}  // namespace varnholt
