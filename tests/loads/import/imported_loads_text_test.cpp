// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/import/imported_loads_text.h"

#include <gtest/gtest.h>

#include "basis/run_time_error.h"

namespace varnholt {
namespace {

ImportedLoads sampleLoads() {
    ImportedLoads loads;
    for (const Mode mode : modes)
        for (std::size_t month = 0; month < 12; ++month) {
            loads.years[mode].totalLoads[month] = 100.5 * static_cast<double>(month + 1);
            loads.years[mode].peakLoads[month] = mode == cooling ? 2000 : 1500.5;
        }
    loads.years[heating].recompute();
    loads.importfileName = "école";
    loads.fileType = 1;
    return loads;
}

TEST(ImportedLoadsText, BringsBackWhatTheImporterHolds) {
    ImportedLoads loads = sampleLoads();
    ImportedLoads read;
    readImportedLoads(importedLoadsText(loads), read);
    EXPECT_EQ(read, loads);
    loads.peakDays.emplace();
    (*loads.peakDays)[heating][3] = 12.25;
    readImportedLoads(importedLoadsText(loads), read);
    EXPECT_EQ(read, loads);
}

TEST(ImportedLoadsText, ThatIsCutAnywhereIsAnErrorAndNeverACrash) {
    ImportedLoads loads = sampleLoads();
    loads.peakDays.emplace();
    const std::string whole = importedLoadsText(loads);
    for (std::size_t end = 0; end < whole.rfind("0\r\n"); ++end) {
        ImportedLoads read;
        EXPECT_THROW(readImportedLoads(std::string_view(whole).substr(0, end), read), RunTimeError)
            << end;
    }
}

}  // namespace
}  // namespace varnholt
