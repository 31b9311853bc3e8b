// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>

#include "basis/mode.h"
#include "loads/shared_zones.h"

namespace varnholt {

/// A building's design day and what its heat pumps make of it, from the zones' stored values:
/// figures that were typed count like evaluated ones.
struct BuildingTotals {
    /// Sum of the zones by block and mode, MBtu/hr.
    std::array<ByMode<double>, timeBlocks> gains{};
    ByMode<double> peakLoad{};         ///< MBtu/hr, of the largest block
    ByMode<std::size_t> peakPeriod{};  ///< the first block that reaches it; 0 without load
    ByMode<double> totalCapacity{};    ///< MBtu/hr
    /// kW in the peak period, each pump's power in the ratio of its zone's load to its capacity.
    /// The ratio may exceed 1, and a zone without capacity adds nothing.
    ByMode<double> peakDemand{};
    /// Capacity over power of all pumps together; 0 without power.
    ByMode<double> cop{};

    friend bool operator==(const BuildingTotals&, const BuildingTotals&) = default;
};

BuildingTotals totalsOf(const SharedZones& zones);

}  // namespace varnholt
