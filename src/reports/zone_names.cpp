// SPDX-License-Identifier: GPL-3.0-or-later
// What every zone is called, and its heat pumps by name and number.
#include "forms/text_numbers/heat_pump_editor.h"
#include "forms/text_numbers/loads.h"
#include "forms/text_numbers/reports.h"
#include "reports/zone_report_bands.h"

namespace varnholt {
namespace zoneNamesReport {
namespace {

using enum ReportSection;
using enum ItemStyle;

constexpr double columns[] = {18, 88, 58, 16};

// clang-format off
constexpr ItemDefinition headItems[] = {
    {0, 0, 1, "ZoneLabel",          textHead, words(Text::zone)},
    {0, 1, 1, "ZoneReferenceLabel", textHead, words(Text::zoneNameColumn)},
    {0, 2, 1, "PumpLabel",          textHead, words(Text::pump)},
    {0, 3, 1, "UnitNumberLabel",    columnHead, words(Text::unitsColumn)},
};

constexpr ItemDefinition zoneItems[] = {
    {0, 0, 1, "txtZoneID",     zone, zoneField("Zone ID")},
    {0, 1, 1, "txtTitle",      ItemStyle::value, zoneField("Title")},
    {0, 2, 1, "txtName",       ItemStyle::value, pumpField("Name")},
    {0, 3, 1, "txtUnitNumber", figure, pumpField("UnitNumber")},
};
// clang-format on

constexpr BandDefinition bands[] = {{PageHeader, columns, headItems},
                                    {Pumps_Detail, columns, zoneItems}};

}  // namespace
}  // namespace zoneNamesReport

constinit const std::span<const BandDefinition> nameBands = zoneNamesReport::bands;

}  // namespace varnholt
