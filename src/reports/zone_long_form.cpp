// SPDX-License-Identifier: GPL-3.0-or-later
// Every zone with all that is known of its loads and its pump.
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/heat_pump_editor.h"
#include "forms/text_numbers/loads.h"
#include "forms/text_numbers/main.h"
#include "forms/text_numbers/reports.h"
#include "reports/unit_inlet.h"
#include "reports/zone_report_bands.h"

namespace varnholt {
namespace longFormReport {
namespace {

using enum ReportSection;
using enum ItemStyle;

// Captions, units, then eight columns of figures; the last two are a pump's flow in air or water.
constexpr double columns[] = {24, 16, 19.5, 19.5, 19.5, 19.5, 19.5, 19.5, 11.5, 11.5};

// clang-format off
constexpr ItemDefinition zoneItems[] = {
    {0, 0, 2, "txtZoneNumber",       zone, zoneField("Name")},
    {0, 2, 8, "txtTitle",            ItemStyle::value, zoneField("Title")},
    {1, 0, 2, "LoadsLabel",          subheading, words(Text::loadsHeading)},
    {1, 2, 4, "DesignDayLoadsLabel", columnHead, words(Text::designDayLoads)},
    {2, 0, 2, "TimeOfDayLabel",      textHead, words(Text::timeOfDay)},
    {2, 2, 1, "EightToNoonLabel",    columnHead, words(Text::blockEightToNoon)},
    {2, 3, 1, "NoonToFourLabel",     columnHead, words(Text::blockNoonToFour)},
    {2, 4, 1, "FourToEightLabel",    columnHead, words(Text::blockFourToEight)},
    {2, 5, 1, "EightToEightLabel",   columnHead, words(Text::blockEightToEight)},
    {2, 6, 2, "HoursLabel",          columnHead, words(Text::annualFullLoadHours)},
    {2, 8, 2, "DaysPerWeekLabel",    columnHead, words(Text::daysOccupiedPerWeek), Tint::none, Printed::withDays},
    {3, 0, 1, "HeatGainsLabel",      caption, words(Text::heatGains), Tint::cooling},
    {3, 1, 1, "HeatGainsUnitsLabel", unit, words(Text::reportLoadUnitsMetric, Text::reportLoadUnitsEnglish)},
    {3, 2, 1, "txtLoadsCool",        figure, pumpField("Loads 0 Cool")},
    {3, 3, 1, "txtLoadsCool1",       figure, pumpField("Loads 1 Cool")},
    {3, 4, 1, "txtLoadsCool2",       figure, pumpField("Loads 2 Cool")},
    {3, 5, 1, "txtLoadsCool3",       figure, pumpField("Loads 3 Cool")},
    {3, 6, 1, "CoolingLabel",        columnHead, words(Text::inletTemperatureCooling)},
    {3, 7, 1, "txtCoolingHours",     figure, zoneField("Cooling Hours")},
    {3, 8, 2, "txtDaysperWeek",      figure, zoneField("Days per Week"), Tint::none, Printed::withDays},
    {4, 0, 1, "HeatLossesLabel",     caption, words(Text::heatLosses), Tint::heating},
    {4, 1, 1, "HeatLossesUnitsLabel", unit, words(Text::reportLoadUnitsMetric, Text::reportLoadUnitsEnglish)},
    {4, 2, 1, "txtLoadsHeat",        figure, pumpField("Loads 0 Heat")},
    {4, 3, 1, "txtLoadsHeat1",       figure, pumpField("Loads 1 Heat")},
    {4, 4, 1, "txtLoadsHeat2",       figure, pumpField("Loads 2 Heat")},
    {4, 5, 1, "txtLoadsHeat3",       figure, pumpField("Loads 3 Heat")},
    {4, 6, 1, "HeatingLabel",        columnHead, words(Text::inletTemperatureHeating)},
    {4, 7, 1, "txtHeatingHours",     figure, zoneField("Heating Hours")},
    {5, 0, 2, "PumpsLabel",          subheading, words(Text::pumpsHeading)},
};

constexpr ItemDefinition pumpItems[] = {
    {0, 0, 1, "PumpLabel",           caption, words(Text::pumpName)},
    {0, 1, 4, "txtName",             ItemStyle::value, pumpField("Name")},
    {0, 5, 1, "UnitNumberLabel",     caption, words(Text::numberOfUnitsSign)},
    {0, 6, 1, "txtUnitNumber",       ItemStyle::value, pumpField("UnitNumber")},
    {0, 7, 1, "PumpTypeLabel",       caption, words(Text::reportPumpType)},
    {0, 8, 2, "txtPumpTypeLabel",    ItemStyle::value, pumpField("PumpTypeLabel")},
    {1, 0, 1, "ManufacturerLabel",   caption, words(Text::reportManufacturer)},
    {1, 1, 4, "txtManufacturer",     ItemStyle::value, pumpField("Manufacturer")},
    {1, 5, 1, "SeriesLabel",         caption, words(Text::reportSeries)},
    {1, 6, 4, "txtSeries",           ItemStyle::value, pumpField("Series")},
    {2, 2, 1, "CapacityLabel",       columnHead, words(Text::zonePumpCapacityMetric, Text::zonePumpCapacityEnglish)},
    {2, 3, 1, "PowerLabel",          columnHead, words(Text::zonePumpPower)},
    {2, 4, 1, "COPLabel",            columnHead, words(Text::zonePumpCopMetric, Text::zonePumpCopEnglish)},
    {2, 5, 1, "FlowRateLabel",       columnHead, words(Text::zonePumpFlowRateMetric, Text::zonePumpFlowRateEnglish)},
    {2, 6, 1, "PLFLabel",            columnHead, words(Text::partialLoadFactor)},
    {2, 7, 1, "LoadTempLabel",       columnHead, words(Text::reportLoadTempMetric, Text::reportLoadTempEnglish)},
    {2, 8, 2, "LoadFlowsLabel",      columnHead, words(Text::loadFlow)},
    {3, 8, 1, "LoadFlowUnitsLabel1", unit, words(Text::airFlowUnitsMetric, Text::airFlowUnitsEnglish)},
    {3, 9, 1, "LoadFlowUnitsLabel2", unit, words(Text::loadWaterUnitsMetric, Text::loadWaterUnitsEnglish)},
    {4, 0, 2, "CoolingLabel1",       caption, words(Text::cooling), Tint::cooling},
    {4, 2, 1, "txtCapacityCool",     figure, pumpField("Capacity Cool")},
    {4, 3, 1, "txtWattsCool",        figure, pumpField("Watts Cool")},
    {4, 4, 1, "txtCOPCool",          figure, pumpField("COP Cool")},
    {4, 5, 1, "txtFlowRateCool",     figure, pumpField("FlowRate Cool")},
    {4, 6, 1, "txtPLFCool",          figure, pumpField("PLF Cool")},
    {4, 7, 1, "txtLoadTempCool",     figure, pumpField("LoadTemp Cool")},
    {4, 8, 1, "txtLoadFlowCool",     figure, pumpField("LoadFlow Cool"), Tint::none, Printed::ofAirPump},
    {4, 9, 1, "txtLoadFlowCool",     figure, pumpField("LoadFlow Cool"), Tint::none, Printed::ofWaterPump},
    {5, 0, 2, "HeatingLabel1",       caption, words(Text::heating), Tint::heating},
    {5, 2, 1, "txtCapacityHeat",     figure, pumpField("Capacity Heat")},
    {5, 3, 1, "txtWattsHeat",        figure, pumpField("Watts Heat")},
    {5, 4, 1, "txtCOPHeat",          figure, pumpField("COP Heat")},
    {5, 5, 1, "txtFlowRateHeat",     figure, pumpField("FlowRate Heat")},
    {5, 6, 1, "txtPLFHeat",          figure, pumpField("PLF Heat")},
    {5, 7, 1, "txtLoadTempHeat",     figure, pumpField("LoadTemp Heat")},
    {5, 8, 1, "txtLoadFlowHeat",     figure, pumpField("LoadFlow Heat"), Tint::none, Printed::ofAirPump},
    {5, 9, 1, "txtLoadFlowHeat",     figure, pumpField("LoadFlow Heat"), Tint::none, Printed::ofWaterPump},
};
// clang-format on

constexpr BandDefinition bands[] = {
    unitInletBand, {Zones_Header, columns, zoneItems}, {Pumps_Detail, columns, pumpItems}};

}  // namespace
}  // namespace longFormReport

constinit const std::span<const BandDefinition> longFormBands = longFormReport::bands;

}  // namespace varnholt
