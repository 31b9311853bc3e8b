// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of every report by their names, and that no report has a column that it does not
// declare.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <sstream>

#include "reports/project_reports.h"
#include "reports/shared_bands.h"
#include "reports/zone_report_definitions.h"

namespace varnholt {
namespace {

using Names = std::set<std::string>;

Names namesIn(const std::string& words) {
    std::istringstream reader(words);
    Names names;
    for (std::string word; reader >> word;) names.insert(word);
    return names;
}

Names namesOf(std::span<const BandDefinition> bands, ReportSection section) {
    Names names;
    for (const BandDefinition& band : bands)
        if (band.section == section)
            for (const ItemDefinition& item : band.items) names.insert(item.control);
    return names;
}

const std::string inlet =
    "UnitInletLabel UnitInletCoolingTextLabel UnitInletHeatingTextLabel CoolingLabel2 "
    "HeatingLabel2 ";
const std::string loadFields =
    "txtLoadsCool txtLoadsCool1 txtLoadsCool2 txtLoadsCool3 txtLoadsHeat txtLoadsHeat1 "
    "txtLoadsHeat2 txtLoadsHeat3 txtCoolingHours txtHeatingHours ";
const std::string pumpFigureFields =
    "txtCapacityCool txtCapacityHeat txtWattsCool txtWattsHeat txtCOPCool txtCOPHeat "
    "txtFlowRateCool txtFlowRateHeat txtPLFCool txtPLFHeat txtLoadTempCool txtLoadTempHeat "
    "txtLoadFlowCool txtLoadFlowHeat ";
const std::string pumpCaptions =
    "CapacityLabel CapacityUnitsLabel PowerLabel PowerUnitsLabel COPLabel FlowRateLabel "
    "FlowRateUnitsLabel PLFLabel LoadTempLabel LoadTempUnitsLabel LoadFlowLabel1 LoadFlowLabel2 "
    "LoadFlowUnitsLabel1 LoadFlowUnitsLabel2 ";
const std::string modeLabels = "CoolingLabel1 HeatingLabel1 ";

struct ExpectedReport {
    const char* object;
    std::map<ReportSection, std::string> bands;
};

const ExpectedReport expectedReports[] = {
    {"rptZoneSM",
     {{ReportSection::PageHeader,
       inlet + pumpCaptions +
           "ZoneLabel LoadsLabel LoadsUnitsLabel DesignDayLoadsLabel EightToNoonLabel1 "
           "NoonToFourLabel1 FourToEightLabel1 EightToEightLabel1 HoursLabel ModeLabel "
           "HeatPumpLabel PumpLabel UnitNumberLabel CoolingLabel HeatingLabel"},
      {ReportSection::Zones_Header, ""},
      {ReportSection::Pumps_Detail,
       loadFields + pumpFigureFields + modeLabels + "txtZoneID txtUnitNumber txtName"},
      {ReportSection::Zones_Footer, ""}}},
    {"rptZone",
     {{ReportSection::PageHeader, inlet},
      {ReportSection::Zones_Header,
       loadFields +
           "txtZoneNumber txtTitle LoadsLabel PumpsLabel DesignDayLoadsLabel TimeOfDayLabel "
           "HeatGainsLabel HeatLossesLabel HeatGainsUnitsLabel HeatLossesUnitsLabel "
           "EightToNoonLabel NoonToFourLabel FourToEightLabel EightToEightLabel HoursLabel "
           "CoolingLabel HeatingLabel DaysPerWeekLabel txtDaysperWeek"},
      {ReportSection::Pumps_Detail,
       pumpFigureFields + modeLabels +
           "PumpLabel txtUnitNumber txtName ManufacturerLabel txtManufacturer SeriesLabel "
           "txtSeries PumpTypeLabel txtPumpTypeLabel UnitNumberLabel CapacityLabel PowerLabel "
           "COPLabel FlowRateLabel PLFLabel LoadTempLabel LoadFlowsLabel LoadFlowUnitsLabel1 "
           "LoadFlowUnitsLabel2"},
      {ReportSection::Zones_Footer, ""}}},
    {"rptZoneEQ",
     {{ReportSection::PageHeader,
       inlet + pumpCaptions +
           "ZoneLabel PumpInfoLabel PumpDataLabel HeatPumpLabel ModeLabel PumpLabel "
           "UnitNumberLabel"},
      {ReportSection::Zones_Header, ""},
      {ReportSection::Pumps_Detail,
       pumpFigureFields + modeLabels +
           "txtZoneID txtUnitNumber txtName txtManufacturer txtSeries txtPumpTypeLabel"},
      {ReportSection::Zones_Footer, "Line3"}}},
    {"rptZoneLO",
     {{ReportSection::PageHeader,
       "ZoneLabel ModeLabel DesignDayLoadsLabel LoadsUnitsLabel EightToNoonLabel1 "
       "NoonToFourLabel1 FourToEightLabel1 EightToEightLabel1 HoursLabel DaysPerWeekLabel Line2"},
      {ReportSection::Zones_Header, ""},
      {ReportSection::Pumps_Detail, loadFields + modeLabels + "txtZoneID txtDaysperWeek"},
      {ReportSection::Zones_Footer, "Line4"}}},
    {"rptZoneNM",
     {{ReportSection::PageHeader, "ZoneLabel ZoneReferenceLabel PumpLabel UnitNumberLabel"},
      {ReportSection::Zones_Header, ""},
      {ReportSection::Pumps_Detail, "txtZoneID txtTitle txtName txtUnitNumber"},
      {ReportSection::Zones_Footer, ""}}},
};

TEST(ReportNames, OfTheZoneReportsAreThoseOfTheirTables) {
    for (std::size_t i = 0; i < zoneReports.size(); ++i) {
        ASSERT_STREQ(zoneReports[i].object, expectedReports[i].object);
        for (const auto& [section, names] : expectedReports[i].bands)
            EXPECT_EQ(namesOf(zoneReports[i].bands, section), namesIn(names))
                << expectedReports[i].object << " " << nameOf(section);
    }
}

TEST(ReportNames, OfTheProjectBlockStandInEveryHead) {
    Names names = namesOf(reportHead, ReportSection::ReportHeader);
    for (const std::string stem :
         {"ProjectName", "DesignerName", "Date", "ProjectStartDate", "ClientName", "AddressLine1",
          "AddressLine2", "City", "State", "Zip", "Phone", "Fax", "Email"}) {
        EXPECT_EQ(names.erase(stem + "Label"), 1U) << stem;
        EXPECT_EQ(names.erase(stem + "TextLabel"), 1U) << stem;
    }
    EXPECT_EQ(names, (Names{"VHTTitleLabel", "TitleLabel", "imgLogo", "NoticeLabel"}));
}

TEST(ReportNames, StandInColumnsThatTheirBandsHave) {
    const auto check = [](std::span<const BandDefinition> bands) {
        for (const BandDefinition& band : bands) {
            int row = 0;
            for (const ItemDefinition& item : band.items) {
                EXPECT_LE(static_cast<std::size_t>(item.first + item.span), band.columns.size())
                    << item.control;
                EXPECT_GE(item.row, row) << item.control << " stands behind a later row";
                row = item.row;
            }
        }
    };
    for (const ZoneReportDefinition& report : zoneReports) check(report.bands);
    check(reportHead);
    check(std::span(&pageFoot, 1));
}

/// Two items of a row that stand on each other would be printed on each other.
TEST(ReportNames, StandBesideEachOther) {
    for (const ZoneReportDefinition& report : zoneReports)
        for (const BandDefinition& band : report.bands) {
            std::map<int, int> end;
            for (const ItemDefinition& item : band.items) {
                if (item.printed == Printed::withoutDays) continue;
                EXPECT_GE(item.first, end[item.row]) << report.object << " " << item.control;
                end[item.row] = item.first + item.span;
            }
        }
}

TEST(UnitPlace, StandsBehindANumberAlone) {
    EXPECT_EQ(unitPlace("20.0 ft"), 5U);
    EXPECT_EQ(unitPlace("-7.0 deg F"), 5U);
    EXPECT_EQ(unitPlace("3 x 4"), 0U);
    EXPECT_EQ(unitPlace("1 1/2\" (38 mm)"), 0U);
    EXPECT_EQ(unitPlace("100% Water"), 0U);
    EXPECT_EQ(unitPlace("Lake"), 0U);
    EXPECT_EQ(unitPlace(""), 0U);
}

}  // namespace
}  // namespace varnholt
