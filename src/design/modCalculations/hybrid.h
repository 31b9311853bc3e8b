// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace varnholt::modCalculations {

/// The share of the cooling load that a cooling tower takes from the ground.
struct Hybrid {
    bool on = false;                     ///< a tower takes part in this run
    std::int16_t percent = 0;            ///< of the peak cooling load
    double coolingPeakBeforeHybrid = 0;  ///< peak cooling load of the building, MBtu/hr

    /// What is left of a cooling load for the ground.
    double leftForGround(double load) const { return load * (1 - percent / 100.0); }
};

}  // namespace varnholt::modCalculations
