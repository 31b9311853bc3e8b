// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/import/simulation_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "basis/run_time_error.h"
#include "loads/import/design_day.h"
#include "loads/import/sample_year.h"

namespace varnholt {
namespace {

int errorOfSimulation(const std::string& bytes) {
    try {
        readSimulation(bytes);
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return 0;
}

TEST(SimulationFiles, AreToldByTheLastThreeCharacters) {
    for (const char* name :
         {"a.gth", "a.GTH", "a.gTh", "a.GTh", "a.gTH", "a.gtH", "a.Gth", "a.GtH"})
        EXPECT_EQ(simulationFileType(name), SimulationFileType::systemAnalyzer) << name;
    for (const char* name : {"a.gt1", "a.GT1", "a.gT1", "a.Gt1"})
        EXPECT_EQ(simulationFileType(name), SimulationFileType::trane700) << name;
    for (const char* name : {"a.gt2", "a.gt", "a.gt1 ", "th", "", "a.csv", "gth.txt"})
        EXPECT_EQ(simulationFileType(name), SimulationFileType::none) << name;
}

TEST(SimulationFiles, HoldTwoLoadsByMonths) {
    const SimulationFile file = readSimulation(SampleYear().text());
    EXPECT_EQ(file.loads[0].energy[0], 20000);
    EXPECT_EQ(file.loads[0].energy[11], 31000);
    EXPECT_EQ(file.loads[0].yearEnergy, 306000);
    EXPECT_EQ(file.loads[1].energy[11], 21000);
    EXPECT_EQ(file.loads[1].yearEnergy, 318000);
    EXPECT_EQ(file.loads[0].peaks[6], 80000);
    EXPECT_EQ(file.loads[0].yearPeak, 80000);
    EXPECT_EQ(file.loads[1].peaks[0], 90000);
    EXPECT_EQ(file.loads[1].yearPeak, 90000);
}

TEST(SimulationFiles, AreReadHoweverTheyAreBrokenIntoLines) {
    const SimulationFile expected = readSimulation(SampleYear().text());
    SampleYear year;
    year.separator = "\r\n";
    EXPECT_EQ(readSimulation(year.text()), expected);
    year.separator = ",\n ";
    year.lineEnd = year.gap = "\n";
    EXPECT_EQ(readSimulation(year.text()), expected);
    year.gap = ",,,\r\"\",\r\r";
    year.separator = " , ";
    year.lineEnd = "\r";
    EXPECT_EQ(readSimulation(year.text()), expected);
    year = {};
    year.gap.clear();
    EXPECT_EQ(readSimulation(year.text()), expected);
}

TEST(SimulationFiles, MayHaveMarksAccentsAndMoreItems) {
    const SimulationFile expected = readSimulation(SampleYear().text());
    SampleYear year;
    EXPECT_EQ(readSimulation("\xEF\xBB\xBF" + year.text()), expected);
    EXPECT_EQ(readSimulation(year.text() + "1,2,3\r\nand more"), expected);
    year.title = "\"B\xE2timent\"";  // Windows-1252
    year.secondTitle = "Peaks";
    EXPECT_EQ(readSimulation(year.text()), expected);
    year.title = "\"\"";
    EXPECT_EQ(readSimulation(year.text()), expected);
}

TEST(SimulationFiles, EndTooEarlyWhereverTheyAreCut) {
    std::string text = SampleYear().text();
    // Without its line end the last number is still whole.
    text.resize(text.size() - 2);
    const SimulationFile whole = readSimulation(text);
    for (std::size_t length = 0; length < text.size(); ++length) {
        const std::string cut = text.substr(0, length);
        const int error = errorOfSimulation(cut);
        if (error == 0) {
            // Only the last number itself may have been cut.
            EXPECT_GE(length, text.size() - 4) << length;
            EXPECT_NE(readSimulation(cut), whole);
        } else {
            EXPECT_TRUE(error == 62 || error == 13) << length << ": " << error;
        }
    }
}

TEST(SimulationFiles, WithTextInPlaceOfANumberAreNotTaken) {
    SampleYear year;
    std::string text = year.text();
    text.replace(text.find("25000"), 5, "April");
    EXPECT_EQ(errorOfSimulation(text), 13);
    text.replace(text.find("April"), 5, "1e999");
    EXPECT_EQ(errorOfSimulation(text), 6);
    year.separator = ";";
    EXPECT_NE(errorOfSimulation(year.text()), 0);
}

TEST(SimulationFiles, ThatNeverEndAreReadNoFurtherThanTheyMatter) {
    const std::string name = (std::filesystem::temp_directory_path() / "endless.gt1").string();
    {
        std::ofstream file(name, std::ios::binary);
        file << "title\r\n" << std::string(3'000'000, ',');
    }
    try {
        readSimulationFile(name);
        ADD_FAILURE() << "nothing was told";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number(), 62);
    }
    std::filesystem::remove(name);
    EXPECT_THROW(readSimulationFile(name), RunTimeError);
}

TEST(SimulationFiles, AreCrossedByTheImportIntoAZoneAndNotByTheImporter) {
    const SimulationFile file = readSimulation(SampleYear().text());
    EXPECT_EQ(coolingFirst(file)[cooling].yearTotal, 306000);
    EXPECT_EQ(coolingFirst(file)[heating].peakMax, 90000);
    EXPECT_EQ(heatingFirst(file)[heating].yearTotal, 306000);
    EXPECT_EQ(heatingFirst(file)[cooling].peakMax, 90000);
}

Zone importedFrom(const SampleYear& year) {
    Zone zone;
    zone.days = 5;
    zone.gains[3] = {1, 2};
    importInto(zone, heatingFirst(readSimulation(year.text())));
    return zone;
}

void expectGains(const Zone& zone, Mode m, const DayLoads& expected) {
    for (std::size_t block = 0; block < timeBlocks; ++block)
        EXPECT_NEAR(zone.gains[block][m], expected[block], 1e-9) << m << " " << block;
}

TEST(ZoneImport, PutsBothPeaksAtNoonAndTheRestAround) {
    const Zone zone = importedFrom({});
    expectGains(zone, heating, {firstRest, 80, firstRest, firstRest});
    expectGains(zone, cooling, {secondRest, 90, secondRest, secondRest});
    EXPECT_EQ(zone.hours[heating], firstHours);
    EXPECT_EQ(zone.hours[cooling], secondHours);
    EXPECT_EQ(zone.days, 7);
}

TEST(ZoneImport, OfAYearWithoutAPeakLeavesTheModeWithoutLoads) {
    SampleYear year;
    for (double& peak : year.peaks[0]) peak = 0;
    const Zone zone = importedFrom(year);
    expectGains(zone, heating, {0, 0, 0, 0});
    EXPECT_EQ(zone.hours[heating], 0);
    EXPECT_EQ(zone.hours[cooling], secondHours);
}

TEST(ZoneImport, OfALoadFactorOfOneOrMoreFillsTheDay) {
    SampleYear year;
    year.energies[0][6] = 59520;  // 80 * 24 * 31
    expectGains(importedFrom(year), heating, {80, 80, 80, 80});
    year.energies[0][6] = 77376;  // 1.3 times as much: a peak below the mean
    expectGains(importedFrom(year), heating, {80, 80, 80, 80});
}

TEST(ZoneImport, AtTheLowestLoadFactorLeavesNoRest) {
    SampleYear year;
    year.energies[0][6] = 9920;  // 59520/6
    Zone zone = importedFrom(year);
    expectGains(zone, heating, {0, 80, 0, 0});
    EXPECT_EQ(zone.gains[0][heating], 0);
    year.energies[0][6] = 100;
    zone = importedFrom(year);
    EXPECT_EQ(zone.gains[0][heating], 0);
    year.energies[0][6] = 10000;
    // (24 * 80 * 10000/59520 - 320)/20 = (322.58065 - 320)/20
    EXPECT_NEAR(importedFrom(year).gains[0][heating], 0.129032, 5e-7);
}

TEST(ZoneImport, TakesOfMonthsWithTheSamePeakTheOneWithMostEnergy) {
    SampleYear year;
    year.peaks[0][3] = year.peaks[0][9] = 80000;
    year.energies[0][3] = year.energies[0][9] = 30000;
    // April comes first and has 30 days: (1920 * 30000/57600 - 320)/20 = (1000 - 320)/20
    EXPECT_NEAR(importedFrom(year).gains[0][heating], 34, 1e-9);
    year.energies[0][9] = 30001;
    // October has 31: (1920 * 30001/59520 - 320)/20 = (967.77419 - 320)/20
    EXPECT_NEAR(importedFrom(year).gains[0][heating], 32.388710, 5e-7);
}

TEST(ZoneImport, OfAYearlyPeakThatNoMonthHasTakesTheLowestLoadFactor) {
    SampleYear year;
    year.peaks[0][12] = 80000.1;
    const Zone zone = importedFrom(year);
    expectGains(zone, heating, {0, 80.0001, 0, 0});
}

TEST(ZoneImport, OfNegativeLoadsLeavesTheModeWithoutLoads) {
    SampleYear year;
    for (double& energy : year.energies[0]) energy = -energy;
    for (double& peak : year.peaks[0]) peak = -peak;
    const Zone zone = importedFrom(year);
    expectGains(zone, heating, {0, 0, 0, 0});
    EXPECT_EQ(zone.hours[heating], 0);
    EXPECT_EQ(zone.hours[cooling], secondHours);
}

TEST(ZoneImport, OfTooManyHoursLeavesTheZoneAsItIs) {
    SampleYear year;
    year.energies[0][12] = 80.0 * 32768;
    Zone zone;
    zone.days = 5;
    EXPECT_THROW(importInto(zone, heatingFirst(readSimulation(year.text()))), RunTimeError);
    EXPECT_EQ(zone, [] {
        Zone untouched;
        untouched.days = 5;
        return untouched;
    }());
    year.energies[0][12] = 80.0 * 32767;
    EXPECT_EQ(importedFrom(year).hours[heating], 32767);
}

TEST(DesignDay, KeepsTheEnergyOfItsLoadFactor) {
    // Mean over peak: (4 * 50 + 20 * rest)/(24 * 50)
    for (const double factor : {0.2, 0.5, 0.9}) {
        const DayLoads day = designDay(50, factor, 1);
        EXPECT_NEAR((4 * day[1] + 4 * day[0] + 4 * day[2] + 12 * day[3]) / (24 * 50), factor,
                    1e-12);
    }
}

TEST(DesignDay, HoldsLoadFactorsFromASixthToOne) {
    EXPECT_DOUBLE_EQ(lowestLoadFactor, 1.0 / 6);
    EXPECT_EQ(limitedLoadFactor(1.3), 1);
    EXPECT_EQ(limitedLoadFactor(0), lowestLoadFactor);
    EXPECT_EQ(limitedLoadFactor(0.5), 0.5);
}

}  // namespace
}  // namespace varnholt
