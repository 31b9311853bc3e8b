// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace varnholt {

/// Shaft power that a circulation pump needs.
///
///   power = flow head / (3960 efficiency / 100)
///
/// Source: ASHRAE Handbook, "HVAC Systems and Equipment", chapter on centrifugal pumps; 3960 is
/// 33,000 ft lb/min of a horsepower over the 8.33 lb of a gallon of water.
///
/// @param flow        gpm
/// @param head        ft of water
/// @param efficiency  percent, not 0
/// @return            hp
double pumpPowerOf(double flow, double head, double efficiency);

}  // namespace varnholt
