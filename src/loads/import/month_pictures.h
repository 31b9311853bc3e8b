// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>

#include "basis/mode.h"
#include "forms/texts.h"
#include "tools/full_load_hours.h"

namespace varnholt {

/// A year of one mode as the importer's picture shows it, in the units shown.
struct MonthsChart {
    Mode mode = cooling;
    Months energies{};  ///< MBtu or kWh
    Months peaks{};     ///< MBtu/hr or kW
    std::optional<std::size_t> peakMonth;
    std::array<std::string, monthsOfYear> names;
    std::string energyUnit, peakUnit;

    bool empty() const { return energies == Months{} && peaks == Months{}; }
    friend bool operator==(const MonthsChart&, const MonthsChart&) = default;
};

/// What the picture shows, in a sentence.
std::string describe(const MonthsChart& year, const Texts& texts);

}  // namespace varnholt
