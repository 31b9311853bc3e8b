// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "basis/mode.h"
#include "basis/units.h"
#include "catalogue/pump.h"
#include "loads/zone.h"

namespace varnholt {

// What the pictures of the loads windows show, in the units shown. They are drawn elsewhere.

/// Loads by time block, of one zone or of a whole building.
struct LoadsChart {
    ByMode<std::array<double, timeBlocks>> loads{};  ///< MBtu/hr or kW
    ByMode<double> largest{};
    /// What the zone's pump gives in a mode; none where there is none.
    ByMode<std::optional<double>> capacity{};
    /// Block of the largest load; none where there is no load.
    ByMode<std::optional<std::size_t>> peakBlock{};

    bool empty() const { return !peakBlock[cooling] && !peakBlock[heating]; }
    friend bool operator==(const LoadsChart&, const LoadsChart&) = default;
};

/// What stands at a chart of loads: the words of the four blocks and of the loads' unit.
struct LoadsCaptions {
    std::array<std::string, timeBlocks> blocks;
    std::string unit;

    friend bool operator==(const LoadsCaptions&, const LoadsCaptions&) = default;
};

/// One point of a model's performance over the entering water temperature.
struct PumpChartPoint {
    double enteringWater = 0;  ///< degF or degC
    double value = 0;          ///< capacity in MBtu/hr or kW, or power in kW

    friend bool operator==(const PumpChartPoint&, const PumpChartPoint&) = default;
};

/// The fitted curve of a quantity, and the catalogue's points that it was fitted to.
struct PumpCurve {
    std::vector<PumpChartPoint> curve, points;

    friend bool operator==(const PumpCurve&, const PumpCurve&) = default;
};

/// A model's capacity and power at the first catalogue flow and the rated load side.
struct PumpChart {
    std::string name;  ///< of the model; empty where none is chosen
    ByMode<PumpCurve> capacity, power;

    friend bool operator==(const PumpChart&, const PumpChart&) = default;
};

/// A model's curves and the water that the design takes it with, all in the units shown.
struct PumpPicture {
    PumpChart pump;
    ByMode<double> designWater{};  ///< entering water temperature of the design
    std::string temperatureUnit, capacityUnit, powerUnit;

    friend bool operator==(const PumpPicture&, const PumpPicture&) = default;
};

/// @param gains gains[block][mode], MBtu/hr
LoadsChart chartOf(const std::array<ByMode<double>, timeBlocks>& gains, UnitSystem units);
PumpChart chartOf(const pump& model, UnitSystem units);

}  // namespace varnholt
