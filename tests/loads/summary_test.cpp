// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/text_numbers/loads.h"
#include "forms/text_numbers/pictures.h"
#include "forms/text_numbers/screen_reader.h"
#include "loads/loads_fixture.h"
#include "loads/modLoads/building_totals.h"
#include "loads/modLoads/summary_lines.h"

namespace varnholt {
namespace {

/// Cooling by block, one heating load in block 3; a pump of these figures in both modes.
Zone zoneOf(const std::array<double, 4>& coolingLoads, double heatingLoad, double capacity,
            double watts) {
    Zone zone;
    for (std::size_t block = 0; block < timeBlocks; ++block)
        zone.gains[block][cooling] = coolingLoads[block];
    zone.gains[3][heating] = heatingLoad;
    zone.pump.capacity = {capacity, capacity};
    zone.pump.watts = {watts, watts};
    return zone;
}

TEST(BuildingTotals, AddUpByBlockAndMode) {
    const BuildingTotals totals =
        totalsOf({zoneOf({1, 2, 3, 4}, 10, 20, 2), zoneOf({5, 6, 1, 0}, 20, 30, 4)});
    EXPECT_EQ(totals.gains[1][cooling], 8);
    EXPECT_EQ(totals.peakLoad, (ByMode<double>{8, 30}));
    EXPECT_EQ(totals.peakPeriod, (ByMode<std::size_t>{1, 3}));
    EXPECT_EQ(totals.totalCapacity, (ByMode<double>{50, 50}));
    // Cooling 2 x 2/20 + 4 x 6/30, heating 2 x 10/20 + 4 x 20/30.
    EXPECT_DOUBLE_EQ(totals.peakDemand[cooling], 1.0);
    EXPECT_DOUBLE_EQ(totals.peakDemand[heating], 1 + 8.0 / 3);
    EXPECT_DOUBLE_EQ(totals.cop[cooling], 50 / 3.412 / 6);
}

TEST(BuildingTotals, TakeTheEarlierOfTwoEqualBlocks) {
    const BuildingTotals totals =
        totalsOf({zoneOf({0, 7, 3, 0}, 0, 10, 1), zoneOf({0, 0, 4, 0}, 0, 10, 1)});
    EXPECT_EQ(totals.peakPeriod[cooling], 1U);
}

TEST(BuildingTotals, WithoutLoadPeakInTheFirstBlock) {
    EXPECT_EQ(totalsOf({Zone{}, Zone{}}).peakPeriod, (ByMode<std::size_t>{0, 0}));
    EXPECT_EQ(totalsOf({}), BuildingTotals{});
}

TEST(BuildingTotals, AZoneWithoutCapacityAddsNoDemandButItsPowerCounts) {
    const BuildingTotals totals =
        totalsOf({zoneOf({10, 0, 0, 0}, 0, 0, 3), zoneOf({10, 0, 0, 0}, 0, 20, 2)});
    EXPECT_DOUBLE_EQ(totals.peakDemand[cooling], 1);
    EXPECT_DOUBLE_EQ(totals.cop[cooling], 20 / 3.412 / 5);
}

TEST(BuildingTotals, DoNotCapTheRatioOfLoadToCapacity) {
    EXPECT_DOUBLE_EQ(totalsOf({zoneOf({30, 0, 0, 0}, 0, 20, 2)}).peakDemand[cooling], 3);
}

TEST(SummaryLine, HasColumnsOfFixedWidth) {
    Zone zone = zoneOf({1.04, 20, 300.5, 0}, 12, 36, 2.54);
    zone.pump.name = "ML036";
    zone.pump.number = 2;
    zone.pump.efficiency = {4, 3.5};
    zone.pump.plf = {0.834, 0};
    //        "12 " "ML036   " " 2" "   1.0" "  20.0" " 300.5" "   0.0" "   36.0" "  2.5" "  13.6"
    EXPECT_EQ(summaryLine("12", zone, cooling, UnitSystem::english),
              "12 ML036    2   1.0  20.0 300.5   0.0   36.0  2.5  13.6 .83");
    EXPECT_EQ(summaryLine("12", zone, heating, UnitSystem::english),
              "12 ML036    2   0.0   0.0   0.0  12.0   36.0  2.5   3.5 .00");
    EXPECT_EQ(summaryLine("12", zone, cooling, UnitSystem::metric),
              "12 ML036    2   0.3   5.9  88.1   0.0   10.6  2.5   4.0 .83");
}

TEST(SummaryLine, CutsNoLongText) {
    Zone zone;
    zone.pump.name = "A long model name";
    EXPECT_TRUE(summaryLine("1", zone, cooling, UnitSystem::english)
                    .starts_with("1  A long model name 1   0.0"));
}

class SummaryTest : public LoadsTest {
 protected:
    SummaryTest() {
        addZone(window, 15, 10);
        addZone(window, 30, 20);
        window.click("LOAutoSelectAllCommand");  // Air-20 and Air-40, 2.5 and 2 kW each
    }
    frmZoneManage& window = manager();
};

TEST_F(SummaryTest, ShowsTheTotalsOfTheBuilding) {
    window.click("LOSummaryCommand");
    EXPECT_TRUE(window.control("LOSummaryPicture").visible());
    EXPECT_EQ(shown(window, "LOPeakLoadPeriodLabel(0)"), "[2882]");
    EXPECT_EQ(shown(window, "LOPeakLoadPeriodLabel(1)"), "[2884]");
    EXPECT_EQ(shown(window, "LOTotalCapacityLabel(0)"), "60.0");
    EXPECT_EQ(shown(window, "LOTotalCapacityLabel(1)"), "54.0");
    EXPECT_EQ(shown(window, "LOPeakLoadLabel(0)"), "45.0");
    EXPECT_EQ(shown(window, "LOPeakLoadLabel(1)"), "30.0");
    EXPECT_EQ(shown(window, "LOPeakDemandLabel(0)"), "3.8");  // 2.5 x 15/20 + 2.5 x 30/40 = 3.75
    EXPECT_EQ(shown(window, "LOPeakDemandLabel(1)"), "2.2");  // 2 x 10/18 + 2 x 20/36 = 2.22
    EXPECT_EQ(shown(window, "LOPumpCOPLabel(0)"), "12.0");    // an EER: 60 / 5
    EXPECT_EQ(shown(window, "LOPumpCOPLabel(1)"), "4.0");     // 54 / 3.412 / 4 = 3.957
    ASSERT_EQ(window.control("LOZoneSummaryList").items().size(), 4U);
    EXPECT_EQ(window.control("LOZoneSummaryList").items()[2],
              "2  Air-40   1   0.0  30.0   0.0   0.0   40.0  2.5  16.0 .75");
}

TEST_F(SummaryTest, SuspendsTheCommandsForZonesUntilTheReturn) {
    const char* suspended[] = {"LONewCommand", "LOCopyCommand", "LORemoveCommand", "LOClearCommand",
                               "LORenumberCommand"};
    window.click("LOSummaryCommand");
    for (const char* command : suspended) EXPECT_FALSE(enabled(window, command)) << command;
    EXPECT_TRUE(enabled(window, "LOUpdatePumpsCommand"));
    window.click("LOReturnFromSummaryCommand");
    EXPECT_FALSE(window.control("LOSummaryPicture").visible());
    for (const char* command : suspended) EXPECT_TRUE(enabled(window, command)) << command;
}

TEST_F(SummaryTest, ASecondClickOnTheCommandReturns) {
    window.click("LOSummaryCommand");
    window.click("LOSummaryCommand");
    EXPECT_FALSE(window.control("LOSummaryPicture").visible());
    EXPECT_TRUE(enabled(window, "LONewCommand"));
}

TEST_F(SummaryTest, FollowsTheUnits) {
    window.click("LOSummaryCommand");
    EXPECT_EQ(shown(window, "LOTotalCapacityTitleLabel"), "[2921]");
    window.click("MetricCheck");
    EXPECT_TRUE(window.control("LOSummaryPicture").visible());
    EXPECT_EQ(shown(window, "LOTotalCapacityLabel(0)"), "17.6");  // 60 x 0.2931
    EXPECT_EQ(shown(window, "LOPeakLoadLabel(1)"), "8.8");        // 30 x 0.2931
    EXPECT_EQ(shown(window, "LOPumpCOPLabel(0)"), "3.5");         // 12 / 3.412
    EXPECT_EQ(shown(window, "LOPeakDemandLabel(0)"), "3.8");
    EXPECT_EQ(shown(window, "LOTotalCapacityTitleLabel"), "[2922]");
    EXPECT_EQ(shown(window, "LOSummaryLabel(11)"), "[2918]");
    EXPECT_FALSE(window.settingUnits);
}

TEST_F(SummaryTest, WithoutPowerTheEfficiencyIsZero) {
    window.change([](LoadsDocument& of) {
        for (std::size_t i = 0; i < of.data.zones.size(); ++i)
            of.data.zones.edit(i).pump.watts = {0, 0};
    });
    window.click("LOSummaryCommand");
    EXPECT_EQ(shown(window, "LOPumpCOPLabel(0)"), "0.0");
    EXPECT_EQ(shown(window, "LOPumpCOPLabel(1)"), "0.0");
}

TEST_F(SummaryTest, CountsTypedFiguresLikeEvaluatedOnes) {
    window.click("LOCustomPumpCheck");
    window.type("LOCapacityText(0)", "80");
    window.type("LOPowerText(0)", "7.5");
    window.click("LOSummaryCommand");
    EXPECT_EQ(shown(window, "LOTotalCapacityLabel(0)"), "100.0");
    EXPECT_EQ(shown(window, "LOPumpCOPLabel(0)"), "10.0");    // 100 / 10
    EXPECT_EQ(shown(window, "LOPeakDemandLabel(0)"), "4.7");  // 2.5 x 15/20 + 7.5 x 30/80 = 4.6875
}

TEST_F(SummaryTest, IsRebuiltByASelectionForAllZonesWhichThenRests) {
    window.click("LOSummaryCommand");
    window.change([&](LoadsDocument& of) { of.data.zones.edit(0).gains[1][cooling] = 35; });
    window.click("LOAutoSelectAllCommand");
    EXPECT_TRUE(window.control("LOSummaryPicture").visible());
    EXPECT_EQ(shown(window, "LOTotalCapacityLabel(0)"), "80.0");
    EXPECT_FALSE(enabled(window, "LOAutoSelectAllCommand"));
    window.click("MetricCheck");
    window.click("LOUpdatePumpsCommand");
    EXPECT_FALSE(enabled(window, "LOAutoSelectAllCommand"));
    window.click("LOReturnFromSummaryCommand");
    EXPECT_TRUE(enabled(window, "LOAutoSelectAllCommand"));
}

TEST_F(SummaryTest, IsRebuiltByAnUpdateOfThePumps) {
    window.click("LOSummaryCommand");
    window.change([&](LoadsDocument& of) { of.data.zones.edit(0).gains[1][cooling] = 35; });
    window.click("LOUpdatePumpsCommand");
    EXPECT_EQ(shown(window, "LOTotalCapacityLabel(0)"), "80.0");
}

TEST_F(SummaryTest, NamesZonesByTheirNumbersInTheList) {
    addZone(window, 1, 1);
    window.choose("LOZoneList", 1);
    window.click("LORemoveCommand");
    window.click("LOSummaryCommand");
    EXPECT_TRUE(window.control("LOZoneSummaryList").items()[2].starts_with("3  "));
}

TEST_F(SummaryTest, ChartsAreThoseOfTheZoneAndOfTheBuilding) {
    const LoadsChart zone = window.loadsChart();
    EXPECT_EQ(zone.loads[cooling], (std::array<double, 4>{0, 30, 0, 0}));
    EXPECT_EQ(zone.peakBlock[heating], 3U);
    const LoadsChart building = window.buildingDayChart();
    EXPECT_EQ(building.loads[cooling][1], 45);
    EXPECT_EQ(building.largest[heating], 30);
    window.click("MetricCheck");
    EXPECT_DOUBLE_EQ(window.buildingDayChart().largest[cooling], 45 * 0.2931);
}

TEST_F(SummaryTest, ChartsTellTheLoadsOfTheirBlocks) {
    texts.known[Text::gainsByBlock] = "gains %1, %2, %3, %4 %5, most in %6";
    const std::string unit = texts.text(Text::loadUnitsEnglish);
    const std::string block = texts.text(Text::summaryNoonToFour);
    const std::string zone = window.descriptionOf("LOLoadsChart");
    EXPECT_TRUE(zone.starts_with("gains 0.0, 30.0, 0.0, 0.0 " + unit + ", most in " + block))
        << zone;
    const std::string building = window.descriptionOf("LOBuildingDayChart");
    EXPECT_NE(building.find(", 45.0, "), std::string::npos) << building;
    texts.known[Text::pumpCurves] = "curves of %1";
    const std::string curves = window.descriptionOf("LOPumpChart");
    EXPECT_TRUE(curves.starts_with("curves of Air-")) << curves;
    EXPECT_EQ(window.descriptionOf("LOZoneList"), "");
    window.click("MetricCheck");
    // 30 MBtu/hr are 30 x 0.2931 = 8.8 kW.
    EXPECT_TRUE(window.descriptionOf("LOLoadsChart")
                    .starts_with("gains 0.0, 8.8, 0.0, 0.0 " + texts.text(Text::loadUnitsMetric)));
}

TEST_F(SummaryTest, AChartWithoutLoadsIsEmpty) {
    window.click("LONewCommand");
    EXPECT_TRUE(window.loadsChart().empty());
    platform.answers = {Answer::no};
    window.click("LOClearCommand");
    EXPECT_EQ(window.loadsChart(), LoadsChart{});
    EXPECT_TRUE(window.buildingDayChart().empty());
}

}  // namespace
}  // namespace varnholt
