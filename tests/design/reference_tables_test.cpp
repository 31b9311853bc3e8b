// SPDX-License-Identifier: GPL-3.0-or-later
// The reference pages tell the same figures as the program's own boxes, and the same in both unit
// systems.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <map>
#include <set>

#include "basis/number_text.h"
#include "basis/units.h"
#include "design/modCalculations/bore_resistance.h"
#include "design/modCalculations/header_pipes.h"
#include "design/surface_water_rules.h"
#include "forms/text_numbers/surface_water.h"
#include "tools/page_tables.h"
#include "tools/text_table.h"

namespace varnholt {
namespace {

const std::map<std::string, double>& programFactors() {
    static const std::map<std::string, double> factors{
        {"0.3048", metresPerFoot},
        {"3.785412", litresPerGallon},
        {"0.4719474", litresPerSecondPerCfm},
        {"16.01846", densityToMetric},
        {"4.186", specificHeatToMetric},
        {"0.5777892", conductivityToEnglish},
        {"1/0.5777892", 1 / conductivityToEnglish},
        {"0.2931", kilowattsPerMBtu},
        {"3.412", mbtuPerKilowatt},
        {"1/3.412", 1 / mbtuPerKilowatt},
        {"0.74571", kilowattsPerHorsepower},
        {"1/10.7639104", 1 / squareFeetPerSquareMetre},
        {"0.0929030400 (as 1/10.7639104)", 1 / squareFeetPerSquareMetre},
        {"12", mbtuPerTon},
        {"0.1337", 0.1337},    // ft^3 a gallon, of the flow equations
        {"25.4", 304.8 / 12},  // mm an inch, of the pipe diameters
        {"5/9", 5.0 / 9},      // of temperature differences
        {"1", 1},              // gpm x ft / 3960 of the pump power calculator
        {"500 by habit", 60 * 0.1337 * 62.4},
    };
    return factors;
}

/// The number of "1/0.5777892" and "0.3048".
double numberOf(const std::string& text) {
    const std::size_t slash = text.find('/');
    if (slash == std::string::npos) return leadingNumber(text);
    return leadingNumber(text.substr(0, slash)) / leadingNumber(text.substr(slash + 1));
}

/// Columns of the conversion table.
enum Factors : std::size_t { quantityColumn, fromColumn, toColumn, exactColumn, programColumn };

TEST(ReferenceTables, TheConversionTableGivesTheFactorsThatTheProgramUses) {
    std::set<std::string> told;
    for (const auto& row : tableOf(referencePage("ConversionTable"), "factors-table")) {
        const std::string& factor = row.at(programColumn);
        // The head, and the formulas of temperatures.
        const bool isNumber = !factor.empty() && factor[0] >= '0' && factor[0] <= '9';
        if (!isNumber) continue;
        const auto known = programFactors().find(factor);
        ASSERT_NE(known, programFactors().end()) << row[fromColumn] << ": " << factor;
        // A habit is written in round figures; the exact ones stand beside it.
        const bool isHabit = factor.find("habit") != std::string::npos;
        EXPECT_NEAR(numberOf(factor.substr(0, factor.find(" (as"))) / known->second, 1,
                    isHabit ? 2e-3 : 1e-8)
            << row[fromColumn];
        told.insert(factor);
    }
    EXPECT_EQ(told.size(), programFactors().size()) << "every factor of the program is told";
}

TEST(ReferenceTables, TheProgramsFactorsLieNearTheExactOnes) {
    int compared = 0;
    for (const auto& row : tableOf(referencePage("ConversionTable"), "factors-table")) {
        // Btu/hr to W: 1055.05585262/3600 of the International Table Btu.
        if (row.at(fromColumn) == "Btu/hr") {
            EXPECT_EQ(row.at(exactColumn), "0.293071070");
        }
        if (row.at(quantityColumn) != "power" || row.at(programColumn).empty()) continue;
        EXPECT_NEAR(numberOf(row[programColumn]) / numberOf(row[exactColumn]), 1, 2e-4)
            << row[fromColumn];
        ++compared;
    }
    EXPECT_EQ(compared, 4);
}

/// A size and wall as the page names them, for the program's indices.
constexpr std::array sizes{"3/4", "1", "1 1/4", "1 1/2"};
constexpr std::array walls{"SDR 9", "SDR 11", "SDR 17", "Sch 40", "Sch 80"};

TEST(ReferenceTables, ThePipeSizesAreThoseOfThePipeBoxes) {
    const PageTable table = tableOf(referencePage("PipeTables"), "sizes-table");
    int found = 0;
    for (const auto& row : table)
        for (int size = 0; size < 4; ++size)
            for (int wall = 0; wall < 5; ++wall) {
                const auto at = [](int i) { return static_cast<std::size_t>(i); };
                if (row.at(0) != sizes[at(size)] || row.at(1) != walls[at(wall)]) continue;
                const auto& pipe = modCalculations::pipeTable(size, wall);
                EXPECT_NEAR(leadingNumber(row.at(2)), pipe.outside, 1e-9);
                // The boxes round the inside to a hundredth.
                EXPECT_NEAR(leadingNumber(row.at(4)), pipe.inside, 0.00501)
                    << row[0] << " " << row[1];
                ++found;
            }
    EXPECT_EQ(found, 20);
}

TextTable englishTexts(const std::string& file) {
    TextTable table;
    table.read(readWholeFile(VARNHOLT_SOURCE_DIR "/resources/language/english/" + file), file);
    return table;
}

TEST(ReferenceTables, TheFluidsAreThoseOfTheFluidBox) {
    const std::string page = referencePage("FluidTables");
    const TextTable texts = englishTexts("2000_borehole.txt");
    for (int number = 2224; number <= 2230; ++number)
        EXPECT_NE(page.find(">" + texts.text(number) + "</h2>"), std::string::npos)
            << texts.text(number);
}

TEST(ReferenceTables, WaterAgreesWithTheProgramsRule) {
    const PageTable water = tableOf(referencePage("FluidTables"), "water-table");
    ASSERT_GT(water.size(), 3u);
    for (std::size_t row = 1; row < water.size(); ++row) {
        if (water[row].at(2).empty()) continue;  // frozen
        EXPECT_NEAR(leadingNumber(water[row][2]), 62.4, 0.5);
        EXPECT_NEAR(leadingNumber(water[row][3]), 1.0, 0.01);
    }
}

TEST(ReferenceTables, TheSoilClassesHaveTheDiffusivitiesOfTheirBox) {
    const PageTable classes = tableOf(referencePage("SoilTables"), "classes-table");
    const TextTable texts = englishTexts("3000_surface_water.txt");
    ASSERT_EQ(classes.size(), 4u);
    for (int soilType = 0; soilType < 3; ++soilType) {
        HeaderSoilValues soil;
        chooseSoilType(soil, soilType);
        const auto& row = classes[static_cast<std::size_t>(soilType) + 1];
        EXPECT_EQ(row.at(0), texts.text(Text::drySoil + soilType));
        EXPECT_NEAR(leadingNumber(row.at(2)), soil.soilDiffusivity, 1e-9) << row[0];
    }
}

TEST(ReferenceTables, ThePipesOfLoopsAndHeadersHaveTheDiametersOfTheirBoxes) {
    constexpr std::array named{"3/4", "1", "1 1/4", "1 1/2", "2", "3", "4", "6"};
    const PageTable table = tableOf(referencePage("PipeTables"), "sizes-table");
    std::set<std::string> told;
    for (const auto& row : table) {
        const auto size = std::find(named.begin(), named.end(), row.at(0));
        if (size == named.end()) continue;
        const int index = static_cast<int>(size - named.begin());
        const double outside = leadingNumber(row.at(2));
        EXPECT_NEAR(outside, modCalculations::headerPipe(index).outsideDiameter, 1e-9) << row[0];
        if (index < 4) {
            EXPECT_NEAR(outside, modCalculations::loopPipeOutsideDiameter(index), 1e-9) << row[0];
        }
        told.insert(row[0]);
    }
    EXPECT_EQ(told.size(), named.size());
}

/// How a column of the metric page follows from the one of the English page.
struct MetricColumn {
    std::size_t english, metric;
    std::function<double(double)> convert;
};

void expectAgreement(const PageTable& english, const PageTable& metric,
                     const std::vector<MetricColumn>& columns) {
    ASSERT_EQ(english.size(), metric.size());
    for (std::size_t row = 1; row < english.size(); ++row)
        for (const MetricColumn& column : columns) {
            const std::string& from = english[row].at(column.english);
            const std::string& to = metric[row].at(column.metric);
            EXPECT_EQ(from.empty(), to.empty());
            if (from.empty()) continue;
            const std::size_t point = to.find('.');
            const double places =
                point == std::string::npos ? 0 : static_cast<double>(to.size() - point - 1);
            EXPECT_NEAR(leadingNumber(to), column.convert(leadingNumber(from)),
                        0.5001 * std::pow(10, -places))
                << row << ": " << from << " and " << to;
        }
}

auto times(double factor) {
    return [factor](double value) { return value * factor; };
}

TEST(ReferenceTables, FluidsAgreeInBothUnits) {
    const std::string english = referencePage("FluidTables");
    const std::string metric = referencePage("FluidTablesMetric");
    for (const char* fluid : {"water", "propylene-glycol", "ethylene-glycol", "methanol", "ethanol",
                              "potassium-acetate", "calcium-chloride", "sodium-chloride"}) {
        SCOPED_TRACE(fluid);
        const std::string id = std::string(fluid) + "-table";
        expectAgreement(tableOf(english, id), tableOf(metric, id),
                        {{1, 1, toCelsius},
                         {2, 2, times(densityToMetric)},
                         {3, 3, times(specificHeatToMetric)},
                         {4, 4, times(1 / conductivityToEnglish)},
                         {5, 5, times(1)}});
    }
}

TEST(ReferenceTables, PipesAgreeInBothUnits) {
    const std::string english = referencePage("PipeTables");
    const std::string metric = referencePage("PipeTablesMetric");
    expectAgreement(
        tableOf(english, "sizes-table"), tableOf(metric, "sizes-table"),
        {{2, 2, times(25.4)}, {4, 4, times(25.4)}, {6, 6, times(litresPerGallon / metresPerFoot)}});
    expectAgreement(
        tableOf(english, "head-3-4-table"), tableOf(metric, "head-3-4-table"),
        {{1, 1, times(litresPerGallon)}, {2, 2, times(metresPerFoot)}, {3, 3, times(1)}});
}

TEST(ReferenceTables, SoilsAndSwingsAgreeInBothUnits) {
    const std::string english = referencePage("SoilTables");
    const std::string metric = referencePage("SoilTablesMetric");
    for (const char* id : {"soils-table", "rocks-table"})
        expectAgreement(tableOf(english, id), tableOf(metric, id),
                        {{2, 2, times(densityToMetric)},
                         {4, 4, times(specificHeatToMetric)},
                         {7, 7, times(1 / conductivityToEnglish)},
                         {10, 10, times(1 / squareFeetPerSquareMetre)}});
    expectAgreement(tableOf(english, "swing-united-states-table"),
                    tableOf(metric, "swing-united-states-table"),
                    {{1, 1, toCelsius}, {2, 2, times(5.0 / 9)}, {6, 6, toCelsius}});
}

TEST(ReferenceTables, SwingsAreAmplitudesAndDaysLieHalfAYearApart) {
    const PageTable swing = tableOf(referencePage("SoilTables"), "swing-united-states-table");
    ASSERT_GT(swing.size(), 50u);
    for (std::size_t row = 1; row < swing.size(); ++row) {
        const double amplitude = leadingNumber(swing[row].at(2));
        EXPECT_GT(amplitude, 0);
        EXPECT_LT(amplitude, 45) << "half of the yearly range, not the range";
        const double days = leadingNumber(swing[row].at(4)) - leadingNumber(swing[row].at(3));
        EXPECT_NEAR(std::abs(days), 182.5, 1.5) << swing[row][0];
    }
}

}  // namespace
}  // namespace varnholt
