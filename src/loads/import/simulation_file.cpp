// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/import/simulation_file.h"

#include <algorithm>
#include <cctype>

#include "basis/file_system.h"
#include "basis/item_reader.h"
#include "basis/run_time_error.h"
#include "basis/text_encoding.h"
#include "loads/import/design_day.h"

namespace varnholt {
namespace {

/// Far more than the 106 items take.
constexpr std::size_t mostSimulationBytes = 1'000'000;

constexpr std::size_t peakBlock = 1;  // "12-4", in cooling and in heating

void readYear(ItemReader& items, Months& months, double& year) {
    for (double& month : months) month = items.number();
    year = items.number();
}

MonthlyLoads yearOf(const SimulationFile::Load& load) {
    MonthlyLoads year;
    year.totalLoads = load.energy;
    year.peakLoads = load.peaks;
    year.yearTotal = load.yearEnergy;
    year.peakMax = load.yearPeak;
    return year;
}

}  // namespace

SimulationFileType simulationFileType(std::string_view path) {
    if (path.size() < 3) return SimulationFileType::none;
    std::string end(path.substr(path.size() - 3));
    std::transform(end.begin(), end.end(), end.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (end == "gth") return SimulationFileType::systemAnalyzer;
    return end == "gt1" ? SimulationFileType::trane700 : SimulationFileType::none;
}

SimulationFile readSimulation(std::string_view bytes) {
    const std::string text = decodeText(bytes);
    ItemReader items(text);
    SimulationFile file;
    items.text();
    for (auto& load : file.loads) readYear(items, load.energy, load.yearEnergy);
    items.skipToText();
    for (auto& load : file.loads) readYear(items, load.peaks, load.yearPeak);
    return file;
}

SimulationFile readSimulationFile(const std::string& path) {
    return readSimulation(readFileStart(path, mostSimulationBytes));
}

ByMode<MonthlyLoads> coolingFirst(const SimulationFile& file) {
    ByMode<MonthlyLoads> years;
    years[cooling] = yearOf(file.loads[0]);
    years[heating] = yearOf(file.loads[1]);
    for (MonthlyLoads& year : years)
        year.eqvHours = fullLoadHoursOf(year.totalLoads, year.peakMax / btuPerMBtu);
    return years;
}

ByMode<MonthlyLoads> heatingFirst(const SimulationFile& file) {
    ByMode<MonthlyLoads> years;
    years[heating] = yearOf(file.loads[0]);
    years[cooling] = yearOf(file.loads[1]);
    for (MonthlyLoads& year : years)
        year.eqvHours = year.peakMax > 0 ? year.yearTotal * btuPerMBtu / year.peakMax : 0;
    return years;
}

void importInto(Zone& zone, const ByMode<MonthlyLoads>& years) {
    ByMode<ZoneImport> imports;
    for (const Mode m : modes) {
        const MonthlyLoads& year = years[m];
        const double factor = limitedLoadFactor(year.peakMonthFactor());
        imports[m] =
            zoneImportOf(designDay(year.peakMax / btuPerMBtu, factor, peakBlock), year.eqvHours);
    }
    for (const Mode m : modes) putInto(zone, m, imports[m]);
}

}  // namespace varnholt
