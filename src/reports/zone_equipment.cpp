// SPDX-License-Identifier: GPL-3.0-or-later
// The heat pumps of every zone.
#include <iterator>
#include <numeric>

#include "forms/text_numbers/heat_pump_editor.h"
#include "forms/text_numbers/loads.h"
#include "forms/text_numbers/reports.h"
#include "reports/pump_columns.h"
#include "reports/unit_inlet.h"
#include "reports/zone_report_bands.h"

namespace varnholt {
namespace equipmentReport {
namespace {

using enum ReportSection;
using enum ItemStyle;

// Zone, units, pump, maker, series, type, mode, then the pump's figures.
constexpr double columns[] = {8, 6, 25, 29, 27, 19, 13, 12, 9.5, 8.5, 11, 8, 9.5, 8, 8};

constexpr double pageWidth = std::accumulate(std::begin(columns), std::end(columns), 0.0);

// clang-format off
constexpr std::array headItems{
    ItemDefinition{0, 0, 1, "ZoneLabel", textHead, words(Text::zone)},
    ItemDefinition{0, 1, 2, "HeatPumpLabel", textHead, words(Text::heatPumpsHeading)},
    ItemDefinition{0, 3, 3, "PumpInfoLabel", textHead, words(Text::pumpInformationColumn)},
    ItemDefinition{0, 6, 1, "ModeLabel", textHead, words(Text::modeColumn)},
    ItemDefinition{0, 7, 3, "PumpDataLabel", columnHead, words(Text::pumpDataColumn)},
    ItemDefinition{1, 1, 1, "UnitNumberLabel", columnHead, words(Text::unitsColumn)},
    ItemDefinition{1, 2, 1, "PumpLabel", textHead, words(Text::pump)},
};

constexpr std::array zoneItems{
    ItemDefinition{0, 0, 1, "txtZoneID", zone, zoneField("Zone ID")},
    ItemDefinition{0, 1, 1, "txtUnitNumber", figure, pumpField("UnitNumber")},
    ItemDefinition{0, 2, 1, "txtName", ItemStyle::value, pumpField("Name")},
    ItemDefinition{0, 3, 1, "txtManufacturer", ItemStyle::value, pumpField("Manufacturer")},
    ItemDefinition{0, 4, 1, "txtSeries", ItemStyle::value, pumpField("Series")},
    ItemDefinition{0, 5, 1, "txtPumpTypeLabel", ItemStyle::value, pumpField("PumpTypeLabel")},
};

constexpr ItemDefinition ruleItems[] = {
    {0, 0, 15, "Line3", rule, nothing(), Tint::none, Printed::always, pageWidth},
};
// clang-format on

constexpr auto heads = joined(headItems, pumpHeads(1, 7));
constexpr auto lines = joined(zoneItems, modeWords(6), pumpFigures(7));
constexpr BandDefinition bands[] = {unitInletBand,
                                    {PageHeader, columns, heads},
                                    {Pumps_Detail, columns, lines},
                                    {Zones_Footer, columns, ruleItems}};

}  // namespace
}  // namespace equipmentReport

constinit const std::span<const BandDefinition> equipmentBands = equipmentReport::bands;

}  // namespace varnholt
