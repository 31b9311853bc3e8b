// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/import/imported_loads_text.h"

#include <cstddef>
#include <utility>

#include "basis/line_file.h"

namespace varnholt {
namespace {

// One description, run with a reader or with a writer.

template <class File, class Year>
void describeYear(File& file, Year& year) {
    for (auto& total : year.totalLoads) file.number(total);
    for (auto& peak : year.peakLoads) file.number(peak);
    file.number(year.yearTotal);
    file.number(year.peakMax);
    file.number(year.eqvHours);
}

template <class File, class Loads>
void describeLoads(File& file, Loads& loads) {
    file.title("Monthly Loads Version ");
    for (const Mode mode : modes) describeYear(file, loads.years[mode]);
    file.text(loads.importfileName);
    file.integer(loads.fileType);
    // Peak days are there, of both modes, or not at all.
    const std::size_t days = file.count(loads.peakDays ? 1 : 0, timeBlocks * modes.size());
    if constexpr (File::reading) {
        loads.peakDays.reset();
        if (days > 0) loads.peakDays.emplace();
    }
    if (!loads.peakDays) return;
    for (const Mode mode : modes)
        for (auto& load : (*loads.peakDays)[mode]) file.number(load);
}

}  // namespace

std::string importedLoadsText(const ImportedLoads& loads) {
    LineFileWriter file;
    describeLoads(file, loads);
    return std::move(file).bytes();
}

void readImportedLoads(std::string_view bytes, ImportedLoads& loads) {
    LineFileReader file(bytes);
    describeLoads(file, loads);
}

}  // namespace varnholt
