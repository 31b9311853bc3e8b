// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

namespace varnholt {

/// A manufacturer that may have an edition of the program: its language resource then carries
/// the manufacturer's web address.
struct Maker {
    const char* webAddress;
    const char* mfgName;
    const char* preferredSeries;  ///< active in a new loads window, where the catalogue lists it
};

constexpr std::array<Maker, 3> makers{{
    {"www.waterfurnace.com", "WaterFurnace", "Premier P Series"},
    {"www.nakrelpa.com", "Nakrelpa", "GR Horizontal"},
    {"www.floridaheatpump.com", "Florida Heat Pump", "EM Series"},
}};

}  // namespace varnholt
