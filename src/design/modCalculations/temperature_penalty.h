// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "basis/mode.h"
#include "design/modCalculations/bore_grid.h"
#include "design/modCalculations/ground_resistance.h"

namespace varnholt::modCalculations {

/// What the ground around a field of bores does with the heat that stays in it.
struct PenaltySite {
    BoreGrid grid;
    NeighbourCount neighbours{};
    Soil soil;
    double years = 0;  ///< prediction time
};

/// The first guess of the penalty, degF, before any length is known.
ByMode<double> initTemperaturePenalty();

/// How far the ground of the field drifts from its undisturbed temperature over the prediction
/// time.
///
/// The heat that one bore would leave in three rings of ground, from half the separation out to 25
/// ft, is taken from the line source; its neighbours keep that heat within the bore's own square
/// of ground, the more of it the more neighbours there are. Rings are empty from a separation of
/// 50 ft on, and the penalty is 0.
/// Source: Kavanaugh and Rafferty, "Ground-Source Heat Pumps" (ASHRAE, 1997), chapter 3.
///
/// @param annualGroundLoad  mean heat taken from the ground, MBtu/hr
/// @param boreLength        total length of each mode, ft
/// @return degF, positive where the ground gets colder; for the mode of a length 0 it is 0
/// Throws RunTimeError 11 with a prediction time of 0 or a field without rows or columns, 5 with a
/// negative diffusivity.
ByMode<double> calcTemperaturePenalty(const PenaltySite& site, double annualGroundLoad,
                                      const ByMode<double>& boreLength);

}  // namespace varnholt::modCalculations
