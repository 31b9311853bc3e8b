// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "design/modCalculations/peak_loads.h"

namespace varnholt::modCalculations {

/// What the heat pumps draw when the building peaks.
struct PeakDemand {
    ByMode<std::vector<double>> zonePartLoad;  ///< load over capacity by zone, at most 1
    ByMode<std::vector<double>> zoneDemand;    ///< kW by zone
    ByMode<double> totalCapacity{};            ///< MBtu/hr
    ByMode<double> peakDemand{};               ///< kW

    friend bool operator==(const PeakDemand&, const PeakDemand&) = default;
};

/// A zone without a pump has no capacity and counts 0.
/// @param peakBlock  time block of each mode's peak; RunTimeError 9 outside 0 to 3
PeakDemand calcPeakDemand(Zones zones, const ByMode<std::int16_t>& peakBlock);

}  // namespace varnholt::modCalculations
