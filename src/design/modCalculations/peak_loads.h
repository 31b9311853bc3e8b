// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

#include "basis/mode.h"
#include "loads/shared_zones.h"

namespace varnholt::modCalculations {

/// The zones in use.
using Zones = const SharedZones&;

/// Loads of each mode by time block, MBtu/hr.
using BlockLoads = ByMode<std::array<double, timeBlocks>>;

/// The building's design day.
struct PeakLoads {
    BlockLoads blockLoad{};            ///< sum over the zones, MBtu/hr
    ByMode<double> peakLoad{};         ///< largest block load, 0 when none is positive, MBtu/hr
    ByMode<std::int16_t> peakBlock{};  ///< earliest block of that load, 0 when none is positive

    friend bool operator==(const PeakLoads&, const PeakLoads&) = default;
};

PeakLoads calcPeakLoads(Zones zones);

}  // namespace varnholt::modCalculations
