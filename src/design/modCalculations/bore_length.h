// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "basis/mode.h"
#include "design/modCalculations/ground_resistance.h"

namespace varnholt::modCalculations {

/// Everything in the length equation but the temperature penalty.
struct LengthTerms {
    double annualGroundLoad = 0;      ///< mean heat taken from the ground, MBtu/hr
    ByMode<double> peakLoad{};        ///< MBtu/hr
    ByMode<double> peakDemand{};      ///< kW
    ByMode<double> partLoadFactor{};  ///< of the design month
    GroundResistances groundResistance;
    double boreResistance = 0;      ///< from fluid to bore wall, hr ft degF/Btu
    double shortCircuitFactor = 1;  ///< on the short-term resistance
    ByMode<double> groundTemp{};    ///< undisturbed, degF
    ByMode<double> inletTemp{};     ///< of the heat pump units, degF
    ByMode<double> outletTemp{};
};

/// By how much the ground, with its penalty, is warmer than the fluid's mean, degF: what drives the
/// heat to the fluid.
/// @param temperaturePenalty  of the mode, degF
double temperatureDifference(const LengthTerms& terms, Mode mode, double temperaturePenalty);

/// Length of bore that each mode needs, ft: the heat of the three pulses times the resistances
/// between fluid and far ground, over the temperature difference between the two. A mode without
/// peak load needs none. Lengths may come out negative, where the fluid lies on the wrong side of
/// the ground's temperature.
/// Source: Kavanaugh and Rafferty, "Ground-Source Heat Pumps" (ASHRAE, 1997), chapter 3.
/// @param temperaturePenalty  degF
/// Throws RunTimeError 11 when fluid and ground have the same temperature.
ByMode<double> calcBoreLengths(const LengthTerms& terms, const ByMode<double>& temperaturePenalty);

}  // namespace varnholt::modCalculations
