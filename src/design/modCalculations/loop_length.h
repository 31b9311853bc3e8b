// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "basis/mode.h"
#include "design/modCalculations/system_flow.h"

namespace varnholt::modCalculations {

/// How the pipe lies in the water.
struct LoopPipe {
    double loopStyle = 0;     ///< 0 coil, 1 slinky
    double loopPipeSize = 0;  ///< 0 to 3: 3/4, 1, 1 1/4, 1 1/2 in
};

/// Feet of pipe in the water for a ton of load at 3 gpm per ton: a cubic near the water's
/// temperature, a straight line further away. The two join closely but not exactly.
///
///     f = c0 + c1 a + c2 a^2 + c3 a^3  for a <= 13 degF in cooling, a >= -9 degF in heating
///     f = p + q a                      beyond
///
/// Fits of the program's own, for a method after Kavanaugh and Rafferty, "Ground-Source Heat
/// Pumps" (ASHRAE, 1997), on closed loops in surface water. They may come out negative.
/// @param approachTemp  fluid less water, degF
/// Throws RunTimeError 9 for a style and a size that are not in the table, 6 beyond 16 bits.
double feetPerTon(const LoopPipe& pipe, Mode mode, double approachTemp);

/// What the length depends on besides the pipe.
struct LoopLengthTerms {
    ByMode<double> approachTemp{};  ///< fluid less water, degF
    ByMode<double> peakLoad{};      ///< MBtu/hr
    ByMode<double> peakDemand{};    ///< kW
    ByMode<double> inletTemp{};     ///< of the heat pump units, degF
    ByMode<double> outletTemp{};    ///< at the design flow, degF
    Fluid fluid;
};

/// Length of pipe in the water that each mode needs, ft: the table's feet per ton, corrected for
/// the mean temperature of the fluid at the design flow instead of 3 gpm per ton.
///
///     L = tons f (a + (outlet at 3 gpm per ton - inlet)/2) / (a + (outlet - inlet)/2), f >= 0
///
/// A mode without peak load needs none.
/// Throws RunTimeError 11 where the fluid is as warm as the water on the mean, or has no density or
/// specific heat, 6 for an overflow, and as feetPerTon does.
ByMode<double> calculateLoopLength(const LoopPipe& pipe, const LoopLengthTerms& terms);

/// What that length would be at the flow of the table, 3 gpm per ton, ft.
/// Equation: L = tons f. Throws as feetPerTon does.
ByMode<double> lengthAtTableFlow(const LoopPipe& pipe, const LoopLengthTerms& terms);

}  // namespace varnholt::modCalculations
