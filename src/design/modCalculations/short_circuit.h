// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace varnholt::modCalculations {

/// Factor on the short-term ground resistance for the heat that passes from one leg of a U-tube to
/// the other.
/// Source: Kavanaugh and Rafferty, "Ground-Source Heat Pumps" (ASHRAE, 1997), chapter 3.
/// @param boresPerCircuit  bores in series in one parallel circuit
/// @param flowPerTon       design flow, gpm per ton; exactly 2.4 counts as a slow flow
double shortCircuitFactor(std::int16_t boresPerCircuit, double flowPerTon);

}  // namespace varnholt::modCalculations
