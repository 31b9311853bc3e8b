// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "basis/mode.h"
#include "tools/full_load_hours.h"

namespace varnholt {

constexpr double btuPerMBtu = 1000.0;  // MBtu is a thousand Btu

/// A year of one mode by months.
struct MonthlyLoads {
    Months totalLoads{};   ///< energy, MBtu
    Months peakLoads{};    ///< Btu/hr
    double yearTotal = 0;  ///< MBtu
    double peakMax = 0;    ///< Btu/hr
    double eqvHours = 0;   ///< equivalent full-load hours

    /// The year's figures from the months': the sum, the greatest peak above 0, and the hours.
    void recompute();
    /// Of the months with the year's peak the one with the most energy, of equal ones the first;
    /// none where no month has it.
    std::optional<std::size_t> peakMonth() const;
    /// Energy over what the month's own peak would deliver all month; 0 without a peak.
    double factorOf(std::size_t month) const;
    /// Load factor of the peak month; 0 without a peak above 0, and where no month has it.
    double peakMonthFactor() const;

    friend bool operator==(const MonthlyLoads&, const MonthlyLoads&) = default;
};

/// Mean loads of one day by time block, MBtu/hr.
using DayLoads = std::array<double, timeBlocks>;

/// What the importer holds: a year of both modes, and where it comes from.
struct ImportedLoads {
    ByMode<MonthlyLoads> years;
    std::string importfileName;  ///< without folder and extension; empty for none
    std::int16_t fileType = 0;   ///< of SimulationFileType
    /// Each mode's peak day, where the loads come from hours.
    std::optional<ByMode<DayLoads>> peakDays;

    friend bool operator==(const ImportedLoads&, const ImportedLoads&) = default;
};

}  // namespace varnholt
