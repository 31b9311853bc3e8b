// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "basis/mode.h"
#include "basis/run_time_error.h"

namespace varnholt {

/// The heat pump of a zone: who made it and what its units do together at design conditions.
/// The catalogue's curves stay behind; a custom pump has only typed figures.
struct MiniPump {
    std::int16_t customPump = 1;  ///< 1 typed in by hand or none chosen, 0 from the catalogue
    std::int16_t number = 1;      ///< identical units
    double nominalFlow = 0;       ///< load side, per unit, cfm or gpm; see setNominalFlow
    std::int16_t pumpType = 0;    ///< 0 water-to-air, 1 water-to-water
    std::string name;
    std::string mfgName;
    std::string seriesName;
    ByMode<double> efficiency{};  ///< COP
    ByMode<double> watts{};       ///< kW, all units
    ByMode<double> capacity{};    ///< MBtu/hr, all units
    ByMode<double> flowRate{};    ///< source side, gpm, all units
    ByMode<double> plf{};         ///< part load factor: peak load over capacity
    ByMode<double> elt{};         ///< entering load temperature, degF
    ByMode<double> elf{};         ///< entering load flow, cfm or gpm; 0 means nominal

    /// A zone keeps the nominal flow as a whole number of 16 bits, half to even, though the
    /// catalogue's is a double. Throws RunTimeError 6 when it does not fit.
    void setNominalFlow(double flow) { nominalFlow = toInteger(flow); }

    friend bool operator==(const MiniPump&, const MiniPump&) = default;
};

}  // namespace varnholt
