// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>

#include "forms/text_numbers/heat_pump_editor.h"
#include "forms/text_numbers/loads.h"
#include "forms/text_numbers/reports.h"
#include "reports/report_definition.h"

namespace varnholt {

// The columns of a pump's figures as several reports print them: captions over units, cooling over
// heating. The flow of the load side has two columns: its figure stands below the unit of the pump.

/// Number of the columns.
constexpr int pumpColumns = 8;

/// Captions in two lines and units in a third, from a row and a column on.
constexpr auto pumpHeads(int row, int column) {
    using enum ItemStyle;
    // clang-format off
    return std::array{
        ItemDefinition{row, column, 1, "CapacityLabel", columnHead, words(Text::ratedCapacity)},
        ItemDefinition{row, column + 1, 1, "PowerLabel", columnHead, words(Text::ratedPower)},
        ItemDefinition{row, column + 2, 1, "COPLabel", columnHead, words(Text::zonePumpCopMetric)},
        ItemDefinition{row, column + 3, 1, "FlowRateLabel", columnHead, words(Text::flowRateColumn)},
        ItemDefinition{row, column + 4, 1, "PLFLabel", columnHead, words(Text::partialLoadColumn)},
        ItemDefinition{row, column + 5, 1, "LoadTempLabel", columnHead, words(Text::loadTempColumn)},
        ItemDefinition{row, column + 6, 1, "LoadFlowLabel1", columnHead, words(Text::loadColumn)},
        ItemDefinition{row, column + 7, 1, "LoadFlowLabel2", columnHead, words(Text::flowRateColumn)},
        ItemDefinition{row + 1, column, 1, "CapacityUnitsLabel", unit, words(Text::reportLoadUnitsMetric, Text::reportLoadUnitsEnglish)},
        ItemDefinition{row + 1, column + 1, 1, "PowerUnitsLabel", unit, words(Text::reportLoadUnitsMetric)},
        ItemDefinition{row + 1, column + 3, 1, "FlowRateUnitsLabel", unit, words(Text::flowColumnUnitsMetric, Text::flowColumnUnitsEnglish)},
        ItemDefinition{row + 1, column + 5, 1, "LoadTempUnitsLabel", unit, words(Text::loadTemperatureUnitsMetric, Text::loadTemperatureUnitsEnglish)},
        ItemDefinition{row + 1, column + 6, 1, "LoadFlowUnitsLabel1", unit, words(Text::airFlowUnitsMetric, Text::airFlowUnitsEnglish)},
        ItemDefinition{row + 1, column + 7, 1, "LoadFlowUnitsLabel2", unit, words(Text::loadWaterUnitsMetric, Text::loadWaterUnitsEnglish)},
    };
    // clang-format on
}

/// The figures in two rows from a column on.
constexpr auto pumpFigures(int column) {
    using enum ItemStyle;
    // clang-format off
    return std::array{
        ItemDefinition{0, column, 1, "txtCapacityCool", figure, pumpField("Capacity Cool")},
        ItemDefinition{0, column + 1, 1, "txtWattsCool", figure, pumpField("Watts Cool")},
        ItemDefinition{0, column + 2, 1, "txtCOPCool", figure, pumpField("COP Cool")},
        ItemDefinition{0, column + 3, 1, "txtFlowRateCool", figure, pumpField("FlowRate Cool")},
        ItemDefinition{0, column + 4, 1, "txtPLFCool", figure, pumpField("PLF Cool")},
        ItemDefinition{0, column + 5, 1, "txtLoadTempCool", figure, pumpField("LoadTemp Cool")},
        ItemDefinition{0, column + 6, 1, "txtLoadFlowCool", figure, pumpField("LoadFlow Cool"), Tint::none, Printed::ofAirPump},
        ItemDefinition{0, column + 7, 1, "txtLoadFlowCool", figure, pumpField("LoadFlow Cool"), Tint::none, Printed::ofWaterPump},
        ItemDefinition{1, column, 1, "txtCapacityHeat", figure, pumpField("Capacity Heat")},
        ItemDefinition{1, column + 1, 1, "txtWattsHeat", figure, pumpField("Watts Heat")},
        ItemDefinition{1, column + 2, 1, "txtCOPHeat", figure, pumpField("COP Heat")},
        ItemDefinition{1, column + 3, 1, "txtFlowRateHeat", figure, pumpField("FlowRate Heat")},
        ItemDefinition{1, column + 4, 1, "txtPLFHeat", figure, pumpField("PLF Heat")},
        ItemDefinition{1, column + 5, 1, "txtLoadTempHeat", figure, pumpField("LoadTemp Heat")},
        ItemDefinition{1, column + 6, 1, "txtLoadFlowHeat", figure, pumpField("LoadFlow Heat"), Tint::none, Printed::ofAirPump},
        ItemDefinition{1, column + 7, 1, "txtLoadFlowHeat", figure, pumpField("LoadFlow Heat"), Tint::none, Printed::ofWaterPump},
    };
    // clang-format on
}

/// The loads of the design day and the full-load hours in two rows, from a column on.
constexpr auto loadFigures(int column) {
    using enum ItemStyle;
    // clang-format off
    return std::array{
        ItemDefinition{0, column, 1, "txtLoadsCool", figure, pumpField("Loads 0 Cool")},
        ItemDefinition{0, column + 1, 1, "txtLoadsCool1", figure, pumpField("Loads 1 Cool")},
        ItemDefinition{0, column + 2, 1, "txtLoadsCool2", figure, pumpField("Loads 2 Cool")},
        ItemDefinition{0, column + 3, 1, "txtLoadsCool3", figure, pumpField("Loads 3 Cool")},
        ItemDefinition{0, column + 4, 1, "txtCoolingHours", figure, zoneField("Cooling Hours")},
        ItemDefinition{1, column, 1, "txtLoadsHeat", figure, pumpField("Loads 0 Heat")},
        ItemDefinition{1, column + 1, 1, "txtLoadsHeat1", figure, pumpField("Loads 1 Heat")},
        ItemDefinition{1, column + 2, 1, "txtLoadsHeat2", figure, pumpField("Loads 2 Heat")},
        ItemDefinition{1, column + 3, 1, "txtLoadsHeat3", figure, pumpField("Loads 3 Heat")},
        ItemDefinition{1, column + 4, 1, "txtHeatingHours", figure, zoneField("Heating Hours")},
    };
    // clang-format on
}

/// The words "Cooling" over "Heating" in a column.
constexpr auto modeWords(int column) {
    using enum ItemStyle;
    return std::array{
        ItemDefinition{0, column, 1, "CoolingLabel1", caption, words(Text::cooling), Tint::cooling},
        ItemDefinition{1, column, 1, "HeatingLabel1", caption, words(Text::heating),
                       Tint::heating}};
}

/// Tables of items as one, row by row.
template <std::size_t... sizes>
constexpr auto joined(const std::array<ItemDefinition, sizes>&... tables) {
    std::array<ItemDefinition, (sizes + ...)> all{};
    std::size_t place = 0;
    ((std::copy(tables.begin(), tables.end(), all.begin() + place), place += sizes), ...);
    std::sort(all.begin(), all.end(), [](const ItemDefinition& a, const ItemDefinition& b) {
        return a.row != b.row ? a.row < b.row : a.first < b.first;
    });
    return all;
}

}  // namespace varnholt
