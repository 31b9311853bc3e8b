// SPDX-License-Identifier: GPL-3.0-or-later
// Every zone in two lines, cooling over heating.
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/heat_pump_editor.h"
#include "forms/text_numbers/loads.h"
#include "forms/text_numbers/reports.h"
#include "reports/pump_columns.h"
#include "reports/unit_inlet.h"
#include "reports/zone_report_bands.h"

namespace varnholt {
namespace shortFormReport {
namespace {

using enum ReportSection;
using enum ItemStyle;

// Zone, mode, four blocks, hours, units, pump, then the pump's figures.
constexpr double columns[] = {9, 16, 11, 11, 11, 11, 11, 7, 29, 12, 10, 9, 11, 9, 10, 9.5, 9.5};

// clang-format off
constexpr std::array headItems{
    ItemDefinition{0, 0, 1, "ZoneLabel", textHead, words(Text::zone)},
    ItemDefinition{0, 1, 1, "ModeLabel", textHead, words(Text::modeColumn)},
    ItemDefinition{0, 2, 2, "LoadsLabel", columnHead, words(Text::loadsHeading)},
    ItemDefinition{0, 4, 2, "LoadsUnitsLabel", unit, words(Text::reportLoadUnitsMetric, Text::reportLoadUnitsEnglish)},
    ItemDefinition{0, 8, 1, "HeatPumpLabel", textHead, words(Text::heatPumpsHeading)},
    ItemDefinition{1, 1, 1, "CoolingLabel", textHead, words(Text::resultsCooling), Tint::cooling},
    ItemDefinition{1, 2, 4, "DesignDayLoadsLabel", columnHead, words(Text::designDayLoads)},
    ItemDefinition{2, 1, 1, "HeatingLabel", textHead, words(Text::resultsHeating), Tint::heating},
    ItemDefinition{2, 2, 1, "EightToNoonLabel1", columnHead, words(Text::columnEightToNoon)},
    ItemDefinition{2, 3, 1, "NoonToFourLabel1", columnHead, words(Text::columnNoonToFour)},
    ItemDefinition{2, 4, 1, "FourToEightLabel1", columnHead, words(Text::columnFourToEight)},
    ItemDefinition{2, 5, 1, "EightToEightLabel1", columnHead, words(Text::columnEightToEight)},
    ItemDefinition{1, 6, 1, "HoursLabel", columnHead, words(Text::hoursColumn)},
    ItemDefinition{1, 7, 1, "UnitNumberLabel", columnHead, words(Text::unitsColumn)},
    ItemDefinition{1, 8, 1, "PumpLabel", textHead, words(Text::pump)},
};

constexpr std::array zoneItems{
    ItemDefinition{0, 0, 1, "txtZoneID", zone, zoneField("Zone ID")},
    ItemDefinition{0, 7, 1, "txtUnitNumber", figure, pumpField("UnitNumber")},
    ItemDefinition{0, 8, 1, "txtName", ItemStyle::value, pumpField("Name")},
};
// clang-format on

constexpr auto heads = joined(headItems, pumpHeads(1, 9));
constexpr auto lines = joined(zoneItems, modeWords(1), loadFigures(2), pumpFigures(9));
constexpr BandDefinition bands[] = {
    unitInletBand, {PageHeader, columns, heads}, {Pumps_Detail, columns, lines}};

}  // namespace
}  // namespace shortFormReport

constinit const std::span<const BandDefinition> shortFormBands = shortFormReport::bands;

}  // namespace varnholt
