// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "basis/mode.h"
#include "loads/import/monthly_loads.h"
#include "loads/zone.h"

namespace varnholt {

/// Building simulation programs whose files are read. Both write the same layout; the extension
/// tells them apart.
enum class SimulationFileType : std::int16_t { none = 0, systemAnalyzer = 1, trane700 = 2 };

/// Told by the last three characters of the name: "gth" and "gt1", in any mix of upper and lower
/// case.
SimulationFileType simulationFileType(std::string_view path);

/// The two years of loads that a simulation file holds, in its own order.
struct SimulationFile {
    struct Load {
        Months energy{};        ///< MBtu
        double yearEnergy = 0;  ///< MBtu
        Months peaks{};         ///< Btu/hr
        double yearPeak = 0;    ///< Btu/hr

        friend bool operator==(const Load&, const Load&) = default;
    };
    std::array<Load, 2> loads;

    friend bool operator==(const SimulationFile&, const SimulationFile&) = default;
};

/// Reads comma-separated items, however they are broken into lines: a title; twelve energies and
/// the year's, for both loads; empty items and a second title; twelve peaks and the year's, for
/// both loads. More items are passed over.
/// @throws RunTimeError 62 (fewer items), 13 (text in place of a number), 6 (beyond a double)
SimulationFile readSimulation(std::string_view bytes);

/// The same of a file, of which no more than its first megabyte is read.
/// @throws RunTimeError also as readWholeFile
SimulationFile readSimulationFile(const std::string& path);

/// The file as the importer reads it: the first load cools, the second heats.
ByMode<MonthlyLoads> coolingFirst(const SimulationFile& file);

/// The file as the import into a zone reads it: the first load heats, the second cools.
ByMode<MonthlyLoads> heatingFirst(const SimulationFile& file);

/// Puts a year of both modes into a zone: the year's peak in the block "12-4" of both modes, the
/// rest of the peak month's energy even over the other blocks, equivalent hours, seven days a week.
/// The pump stays as it is.
/// @param years of heatingFirst
/// @throws RunTimeError 6 for hours beyond 16 bits; the zone is then as it was
void importInto(Zone& zone, const ByMode<MonthlyLoads>& years);

}  // namespace varnholt
