// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/modCalculations/hybrid.h"
#include "design/modCalculations/peak_loads.h"

namespace varnholt::modCalculations {

/// How evenly the building loads the ground over the design month.
struct PartLoadFactors {
    BlockLoads weightedBlockLoad{};   ///< weighted by days of occupation a week, MBtu/hr
    ByMode<double> dailyLoad{};       ///< of a mean day, MBtu
    ByMode<double> partLoadFactor{};  ///< daily load over a day at peak load; 0 without peak load

    friend bool operator==(const PartLoadFactors&, const PartLoadFactors&) = default;
};

/// With a tower the cooling factor is that of the load before the tower takes its share.
/// @param peakLoad  MBtu/hr
PartLoadFactors calcPartLoadFactors(Zones zones, const ByMode<double>& peakLoad,
                                    const Hybrid& hybrid);

}  // namespace varnholt::modCalculations
