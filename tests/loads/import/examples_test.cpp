// SPDX-License-Identifier: GPL-3.0-or-later
// The example files, against tests/independent/import_check.py, which reads them apart from the
// program.
#include <gtest/gtest.h>

#include <string>

#include "basis/file_system.h"
#include "loads/import/design_day.h"
#include "loads/import/load_table.h"
#include "loads/import/simulation_file.h"

namespace varnholt {
namespace {

const std::string examplesFolder = VARNHOLT_SOURCE_DIR "/examples/";

void expectDay(const DayLoads& day, const DayLoads& expected) {
    for (std::size_t block = 0; block < timeBlocks; ++block)
        EXPECT_NEAR(day[block], expected[block], 1e-8) << block;
}

TEST(Examples, OfTheSchoolGoIntoAZone) {
    Zone zone;
    importInto(zone, heatingFirst(readSimulationFile(examplesFolder + "school-south.gt1")));
    for (std::size_t block = 0; block < timeBlocks; ++block) {
        EXPECT_NEAR(zone.gains[block][cooling], block == 1 ? 1912.5 : 220.554838710, 1e-8);
        EXPECT_NEAR(zone.gains[block][heating], block == 1 ? 864.5 : 0, 1e-8);
    }
    EXPECT_EQ(zone.hours[cooling], 1150);
    EXPECT_EQ(zone.hours[heating], 380);
}

TEST(Examples, OfTheSchoolAreReadByTheImporter) {
    ByMode<MonthlyLoads> years =
        coolingFirst(readSimulationFile(examplesFolder + "school-south.gth"));
    for (MonthlyLoads& year : years) year.recompute();
    EXPECT_NEAR(years[cooling].peakMonthFactor(), 0.262768993, 5e-10);
    EXPECT_NEAR(years[heating].peakMonthFactor(), 0.153225806, 5e-10);
    EXPECT_NEAR(years[cooling].eqvHours, 1150.0005, 5e-5);
    EXPECT_NEAR(years[heating].eqvHours, 379.9988, 5e-5);
}

TEST(Examples, OfTheOfficesHoursBecomeMonthsAndAPeakDay) {
    const TableText table(readWholeFile(examplesFolder + "small-office.csv"));
    const TableFormat format = table.guessedFormat();
    const auto rows = table.rows(format);
    const TableReading reading =
        readLoads(rows, guessedChoices(rows, format, TableUnit::mbtuPerHour));
    ASSERT_TRUE(reading.years);
    const ByMode<MonthlyLoads>& years = *reading.years;
    EXPECT_NEAR(years[cooling].yearTotal, 177005.970658, 5e-6);
    EXPECT_NEAR(years[heating].yearTotal, 226199.419993, 5e-6);
    EXPECT_NEAR(years[cooling].peakMax, 132105.083589, 5e-6);
    EXPECT_NEAR(years[heating].peakMax, 121596.724667, 5e-6);
    EXPECT_NEAR(years[cooling].totalLoads[6], 36036.7451, 5e-5);
    EXPECT_NEAR(years[heating].totalLoads[1], 38689.2187, 5e-5);
    EXPECT_NEAR(years[cooling].peakMonthFactor(), 0.366651185, 5e-10);
    EXPECT_NEAR(years[heating].peakMonthFactor(), 0.492680313, 5e-10);
    ASSERT_TRUE(reading.peakDays);
    const ByMode<DayLoads>& days = *reading.peakDays;
    expectDay(days[cooling], {110.116001365, 130.586830433, 90.626066189, 35.076196975});
    expectDay(days[heating], {36.642784033, 16.171954964, 56.132719208, 111.668372569});
    EXPECT_NEAR(hoursOfDay(days[cooling], years[cooling].yearTotal), 1355.4657, 5e-5);
    EXPECT_NEAR(hoursOfDay(days[heating], years[heating].yearTotal), 2025.6355, 5e-5);
}

}  // namespace
}  // namespace varnholt
