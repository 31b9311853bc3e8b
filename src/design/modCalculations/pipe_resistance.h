// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace varnholt::modCalculations {

/// Thermal resistance of the pipe wall and the fluid film of one bore.
///
/// Wall: a shell of the legs' equivalent diameter. Film: Dittus-Boelter at a fixed Reynolds number
/// for each flow regime, with the Prandtl number and the conductivity of water whatever the fluid.
/// Source: Kavanaugh and Rafferty, "Ground-Source Heat Pumps" (ASHRAE, 1997), chapter 3.
///
/// @param config    0 one U-tube, 1 two, 2 a single pipe in the ground; any other gives 0
/// @param flowType  0 turbulent (Re 10000), 1 transition (Re 3150), 2 laminar (Re 1600)
/// @param outside   outside diameter, in
/// @param inside    inside diameter, in; 0 means a closed pipe, with a resistance of about 10000
/// @return          hr ft degF/Btu, never negative
/// Throws RunTimeError 11 with another flow type, for then no heat passes the film; 5 or 11 with
/// diameters that no pipe has.
double pipeResistanceOf(int config, int flowType, double outside, double inside);

}  // namespace varnholt::modCalculations
