// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "basis/mode.h"
#include "design/modCalculations/hybrid.h"

namespace varnholt::modCalculations {

/// Electric power besides the heat pumps', kW. Shaft powers are typed, input powers computed.
using ExtraPower = std::array<double, 7>;

/// The elements of ExtraPower.
enum ExtraPowerElement : std::size_t {
    circulationPumpInput = 0,
    circulationPumpShaft = 1,
    additionalPower = 2,
    towerFanInput = 3,
    towerFanShaft = 4,
    towerPumpInput = 5,
    towerPumpShaft = 6
};

/// What a motor draws for a shaft power, kW; 0 when the efficiency is 0.
/// @param efficiency  percent
double inputPower(double shaftPower, double efficiency);

/// The peak demand with extra power, kW: circulation and additional power in both modes, the
/// tower's fan and pump in cooling when a tower takes a share.
ByMode<double> demandWithExtraPower(const ByMode<double>& peakDemand, const ExtraPower& extraPower,
                                    const Hybrid& hybrid);

}  // namespace varnholt::modCalculations
