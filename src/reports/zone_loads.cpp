// SPDX-License-Identifier: GPL-3.0-or-later
// The loads of every zone.
#include "forms/text_numbers/loads.h"
#include "forms/text_numbers/reports.h"
#include "reports/pump_columns.h"
#include "reports/zone_report_bands.h"

namespace varnholt {
namespace loadsReport {
namespace {

using enum ReportSection;
using enum ItemStyle;

constexpr double millimetresPerTwip = 25.4 / 1440;
/// Length of the rules where the days are left out: 6660 twips.
constexpr double withoutDaysLength = 6660 * millimetresPerTwip;
constexpr double daysWidth = 22;

// Zone, mode, four blocks, hours, days, and the rest of the page.
constexpr double columns[] = {14,
                              18,
                              18,
                              18,
                              18,
                              18,
                              withoutDaysLength - 104,
                              daysWidth,
                              designWidth - withoutDaysLength - daysWidth};

// clang-format off
constexpr std::array headItems{
    ItemDefinition{0, 2, 4, "DesignDayLoadsLabel", columnHead, words(Text::designDayLoads)},
    ItemDefinition{1, 0, 1, "ZoneLabel", textHead, words(Text::zone)},
    ItemDefinition{1, 1, 1, "ModeLabel", textHead, words(Text::modeColumn)},
    ItemDefinition{1, 2, 1, "EightToNoonLabel1", columnHead, words(Text::blockEightToNoon)},
    ItemDefinition{1, 3, 1, "NoonToFourLabel1", columnHead, words(Text::blockNoonToFour)},
    ItemDefinition{1, 4, 1, "FourToEightLabel1", columnHead, words(Text::blockFourToEight)},
    ItemDefinition{1, 5, 1, "EightToEightLabel1", columnHead, words(Text::blockEightToEight)},
    ItemDefinition{1, 6, 1, "HoursLabel", columnHead, words(Text::hoursColumn)},
    ItemDefinition{1, 7, 1, "DaysPerWeekLabel", columnHead, words(Text::daysPerWeekColumn), Tint::none, Printed::withDays},
    ItemDefinition{2, 2, 4, "LoadsUnitsLabel", unit, words(Text::reportLoadUnitsMetric, Text::reportLoadUnitsEnglish)},
    ItemDefinition{3, 0, 9, "Line2", rule, nothing(), Tint::none, Printed::withDays, withoutDaysLength + daysWidth},
    ItemDefinition{3, 0, 9, "Line2", rule, nothing(), Tint::none, Printed::withoutDays, withoutDaysLength},
};

constexpr std::array zoneItems{
    ItemDefinition{0, 0, 1, "txtZoneID", zone, zoneField("Zone ID")},
    ItemDefinition{0, 7, 1, "txtDaysperWeek", figure, zoneField("Days per Week"), Tint::none, Printed::withDays},
};

constexpr ItemDefinition ruleItems[] = {
    {0, 0, 9, "Line4", rule, nothing(), Tint::none, Printed::withDays, withoutDaysLength + daysWidth},
    {0, 0, 9, "Line4", rule, nothing(), Tint::none, Printed::withoutDays, withoutDaysLength},
};
// clang-format on

constexpr auto heads = joined(headItems);
constexpr auto lines = joined(zoneItems, modeWords(1), loadFigures(2));
constexpr BandDefinition bands[] = {{PageHeader, columns, heads},
                                    {Pumps_Detail, columns, lines},
                                    {Zones_Footer, columns, ruleItems}};

}  // namespace
}  // namespace loadsReport

constinit const std::span<const BandDefinition> loadsBands = loadsReport::bands;

}  // namespace varnholt
