// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/loads_fixture.h"

namespace varnholt {
namespace {

class ZoneManagerTest : public LoadsTest {};
using Strings = std::vector<std::string>;

TEST_F(ZoneManagerTest, StartsEmptyWithItsDefaults) {
    const frmZoneManage& window = manager();
    EXPECT_EQ(window.caption(), "[2930]");
    EXPECT_EQ(window.conditions().inletTemp, (ByMode<double>{85, 50}));
    EXPECT_EQ(window.conditions().flowRate, 3);
    EXPECT_EQ(window.conditions().inletLoadAirTemp, (ByMode<double>{67, 70}));
    EXPECT_EQ(window.conditions().inletLoadWaterTemp, (ByMode<double>{55, 100}));
    EXPECT_EQ(window.temporaryInletTemp, (ByMode<double>{67, 70}));
    EXPECT_EQ(window.document().zoneCount, 0);
    EXPECT_EQ(window.zoneNumber(), 0);
    EXPECT_EQ(window.file().folder, folder.path() + "/zones");
    EXPECT_EQ(window.activeSeries(), "FirstAir");
    EXPECT_EQ(window.document().information.currentDate, (Date{2026, 1, 15}));
    EXPECT_FALSE(window.control("LOZoneFrame").visible());
    EXPECT_FALSE(window.hasUnsavedChanges());
    EXPECT_EQ(shown(window, "LOInletTempText(0)"), "85.0");
    EXPECT_EQ(shown(window, "FLFlowRateText"), "3.0");
}

TEST_F(ZoneManagerTest, IsOneWindowHoweverOftenItIsCalled) {
    const frmZoneManage& window = manager();
    EXPECT_TRUE(main.frmZoneManageWindowExists);
    block();
    EXPECT_EQ(main.windows().size(), 2U);
    EXPECT_EQ(&manager(), &window);
    EXPECT_EQ(main.activeWindow(), &window);
    EXPECT_EQ(main.windows().size(), 2U);
}

TEST_F(ZoneManagerTest, ANewZoneStandsBehindTheLastAndIsOnDisplay) {
    frmZoneManage& window = manager();
    window.click("LONewCommand");
    window.click("LONewCommand");
    ASSERT_EQ(window.ZoneList().size(), 2U);
    EXPECT_EQ(window.control("LOZoneList").items(), (Strings{"Zone 1", "Zone 2"}));
    EXPECT_EQ(window.selectedZone(), 1);
    EXPECT_EQ(window.document().zoneCount, 2);
    EXPECT_EQ(window.zoneNumber(), 2);
    EXPECT_EQ(window.control("LOZoneFrame").caption(), "[2816] Zone 2");
    EXPECT_TRUE(window.control("LOZoneFrame").visible());
    EXPECT_TRUE(window.hasUnsavedChanges());
    const Zone& zone = window.ZoneList()[1];
    EXPECT_EQ(zone.days, 7);
    EXPECT_EQ(zone.hours, (ByMode<std::int16_t>{0, 0}));
    EXPECT_EQ(zone.pump.name, "No Pump");
    EXPECT_EQ(zone.pump.number, 1);
    EXPECT_EQ(zone.pump.customPump, 1);
    EXPECT_EQ(zone.pump.nominalFlow, 0);
    EXPECT_EQ(zone.pump.capacity, (ByMode<double>{}));
}

TEST_F(ZoneManagerTest, ANewZoneTakesSeriesAndLoadTemperaturesOfTheActiveSeries) {
    frmZoneManage& window = manager();
    window.type("HPLoadInletText(0)", "65");
    window.click("LONewCommand");
    EXPECT_EQ(window.ZoneList()[0].pump.mfgName, "First");
    EXPECT_EQ(window.ZoneList()[0].pump.seriesName, "Air");
    EXPECT_EQ(window.ZoneList()[0].pump.pumpType, 0);
    EXPECT_EQ(window.ZoneList()[0].pump.elt, (ByMode<double>{65, 70}));
    window.choose("HPSeriesCombo", 1);
    window.click("LONewCommand");
    EXPECT_EQ(window.ZoneList()[1].pump.seriesName, "Water");
    EXPECT_EQ(window.ZoneList()[1].pump.pumpType, 1);
    EXPECT_EQ(window.ZoneList()[1].pump.elt, (ByMode<double>{55, 100}));
    EXPECT_EQ(window.ZoneList()[1].pump.elf, (ByMode<double>{0, 0}));
}

TEST_F(ZoneManagerTest, ANewZoneTakesNoSeriesThatIsOnlyBeingBrowsed) {
    frmZoneManage& window = manager();
    window.click("LONewCommand");
    window.click("LOSelectCommand");
    window.choose("LOSeriesCombo", 1);
    std::filesystem::remove_all(pumps());
    window.click("LONewCommand");
    EXPECT_EQ(lastMessage(), "[2455]\r\r" + pumps() + "/f_Air.hpd");
    EXPECT_EQ(window.ZoneList()[1].pump.mfgName, "");
    EXPECT_EQ(window.ZoneList()[1].pump.pumpType, 0);
}

TEST_F(ZoneManagerTest, TheFirstZoneNamesTheFileAndWakesTheCommands) {
    frmZoneManage& window = manager();
    const char* commands[] = {"LOCopyCommand",          "LORemoveCommand",      "LORenumberCommand",
                              "LOAutoSelectAllCommand", "LOUpdatePumpsCommand", "LOSummaryCommand",
                              "LOClearCommand",         "LOSaveCommand",        "LOPrintCommand",
                              "LOImportCommand"};
    for (const char* command : commands) EXPECT_FALSE(enabled(window, command)) << command;
    window.click("LONewCommand");
    for (const char* command : commands) EXPECT_TRUE(enabled(window, command)) << command;
    EXPECT_EQ(window.file().name, "Zone Loads.zon");
    EXPECT_EQ(shown(window, "LOWorkingZoneLabel"), "Zone Loads.zon");
    EXPECT_FALSE(window.file().exists);
}

TEST_F(ZoneManagerTest, CommandsOfOtherPartsOfTheProgramWakeWhenThoseAreThere) {
    frmZoneManage& window = manager();
    window.click("LONewCommand");
    EXPECT_FALSE(enabled(window, "LOEqvHoursCommand"));
    int printed = 0, calculated = 0;
    main.setCommand("mnuFilePrint", CommandNeeds::anyWindow, [&] { ++printed; });
    main.setCommand("mnuEqvHours", CommandNeeds::nothing, [&] { ++calculated; });
    window.click("LONewCommand");
    EXPECT_TRUE(enabled(window, "LOPrintCommand"));
    EXPECT_TRUE(enabled(window, "LOEqvHoursCommand"));
    window.click("LOPrintCommand");
    window.click("LOEqvHoursCommand");
    EXPECT_EQ(printed, 1);
    EXPECT_EQ(calculated, 1);
    platform.answers = {Answer::no};
    window.click("LOClearCommand");
    EXPECT_FALSE(enabled(window, "LOEqvHoursCommand"));
}

TEST_F(ZoneManagerTest, ACopyHasEverythingButTheName) {
    frmZoneManage& window = manager();
    addZone(window, 15, 10);
    window.type("LOZoneReferenceText", "South");
    window.type("LOHoursText(0)", "1200");
    window.type("LODaysperWeekText", "5");
    window.click("LOAutoSelectCommand");
    addZone(window, 1, 1);
    window.choose("LOZoneList", 0);
    window.click("LOCopyCommand");
    ASSERT_EQ(window.ZoneList().size(), 3U);
    Zone copy = window.ZoneList()[2];
    EXPECT_EQ(copy.name, "Zone 3");
    EXPECT_EQ(copy.pump.name, "Air-20");
    copy.name = "Zone 1";
    EXPECT_EQ(copy, window.ZoneList()[0]);
    EXPECT_EQ(window.selectedZone(), 2);
    EXPECT_EQ(shown(window, "LOZoneReferenceText"), "South");
    EXPECT_EQ(window.zoneNumber(), 3);
}

TEST_F(ZoneManagerTest, RemovingTheSecondOfThreeLeavesOneAndThreeUntilARenumber) {
    frmZoneManage& window = manager();
    for (const double load : {1.0, 2.0, 3.0}) addZone(window, load, 0);
    window.choose("LOZoneList", 1);
    window.click("LORemoveCommand");
    EXPECT_EQ(window.control("LOZoneList").items(), (Strings{"Zone 1", "Zone 3"}));
    EXPECT_EQ(window.ZoneList()[1].name, "Zone 3");
    EXPECT_EQ(window.selectedZone(), 1);
    EXPECT_EQ(shown(window, "LOGainsText(1)"), "3.0");
    EXPECT_EQ(window.zoneNumber(), 2);
    window.click("LORenumberCommand");
    EXPECT_EQ(window.control("LOZoneList").items(), (Strings{"Zone 1", "Zone 2"}));
    EXPECT_EQ(window.ZoneList()[1].name, "Zone 2");
    EXPECT_EQ(window.selectedZone(), 0);
    window.click("LONewCommand");
    EXPECT_EQ(window.ZoneList()[2].name, "Zone 3");
}

TEST_F(ZoneManagerTest, AZoneAddedAfterARemovalDoesNotTakeAUsedName) {
    frmZoneManage& window = manager();
    for (int i = 0; i < 3; ++i) window.click("LONewCommand");
    window.choose("LOZoneList", 0);
    window.click("LORemoveCommand");
    window.click("LONewCommand");
    EXPECT_EQ(window.control("LOZoneList").items(), (Strings{"Zone 2", "Zone 3", "Zone 4"}));
}

TEST_F(ZoneManagerTest, ACopyIsNamedByItsPositionEvenWhereThatNameIsUsed) {
    frmZoneManage& window = manager();
    for (int i = 0; i < 3; ++i) window.click("LONewCommand");
    window.choose("LOZoneList", 1);
    window.click("LORemoveCommand");
    window.click("LOCopyCommand");
    EXPECT_EQ(window.control("LOZoneList").items(), (Strings{"Zone 1", "Zone 3", "Zone 3"}));
    EXPECT_EQ(window.document().zoneCount, 4);  // loaded or added so far
    EXPECT_EQ(window.zoneNumber(), 3);
}

TEST_F(ZoneManagerTest, RemovingTheLastInTheListSelectsTheOneBeforeIt) {
    frmZoneManage& window = manager();
    for (const double load : {1.0, 2.0}) addZone(window, load, 0);
    window.click("LORemoveCommand");
    EXPECT_EQ(window.selectedZone(), 0);
    EXPECT_EQ(shown(window, "LOGainsText(1)"), "1.0");
}

TEST_F(ZoneManagerTest, RemovingTheOnlyZoneEmptiesTheWindow) {
    frmZoneManage& window = manager();
    addZone(window, 1, 1);
    setSaved(window, "a.zon");
    EXPECT_TRUE(window.file().exists);
    window.click("LORemoveCommand");
    EXPECT_FALSE(window.control("LOZoneFrame").visible());
    EXPECT_FALSE(window.file().exists);
    EXPECT_EQ(window.file().name, "");
    EXPECT_EQ(shown(window, "LOWorkingZoneLabel"), "Zone Loads.zon");
    EXPECT_EQ(window.document().zoneCount, 0);
    EXPECT_EQ(window.zoneNumber(), 0);
    EXPECT_FALSE(enabled(window, "LORemoveCommand"));
    EXPECT_FALSE(enabled(window, "LOSaveCommand"));
    EXPECT_TRUE(enabled(window, "LONewCommand"));
}

TEST_F(ZoneManagerTest, TheFirstOfSeveralSelectedZonesIsOnDisplay) {
    frmZoneManage& window = manager();
    for (const double load : {1.0, 2.0, 3.0}) addZone(window, load, 0);
    window.select("LOZoneList", {2, 1});
    EXPECT_EQ(window.selectedZone(), 1);
    EXPECT_EQ(shown(window, "LOGainsText(1)"), "2.0");
    EXPECT_EQ(window.zoneTemp.name, "Zone 2");
    window.click("LORemoveCommand");
    EXPECT_EQ(window.control("LOZoneList").items(), (Strings{"Zone 1", "Zone 3"}));
}

TEST_F(ZoneManagerTest, ClearAsksOnlyAboutUnsavedChanges) {
    frmZoneManage& window = manager();
    addZone(window, 1, 1);
    setSaved(window, "a.zon");
    window.click("LOClearCommand");
    EXPECT_TRUE(platform.questions.empty());
    EXPECT_TRUE(window.ZoneList().empty());
    EXPECT_EQ(window.zoneNumber(), 0);
    EXPECT_EQ(window.document().zoneCount, 0);
    EXPECT_FALSE(window.file().exists);
    EXPECT_FALSE(enabled(window, "LOClearCommand"));
    EXPECT_FALSE(window.control("LOZoneFrame").visible());
    EXPECT_TRUE(window.control("LOZoneList").items().empty());
}

TEST_F(ZoneManagerTest, ACancelledQuestionLeavesTheZonesUncleared) {
    frmZoneManage& window = manager();
    addZone(window, 1, 1);
    platform.answers = {Answer::cancel};
    window.click("LOClearCommand");
    EXPECT_EQ(platform.questions.back().title, "[1205]");
    EXPECT_EQ(platform.questions.back().text, "Zone Loads\n\nZone Loads.zon\n\n[1203]");
    EXPECT_EQ(window.ZoneList().size(), 1U);
    EXPECT_TRUE(window.hasUnsavedChanges());
    platform.answers = {Answer::no};
    window.click("LOClearCommand");
    EXPECT_TRUE(window.ZoneList().empty());
    EXPECT_FALSE(window.hasUnsavedChanges());
}

TEST_F(ZoneManagerTest, ZonesAreCountedInSixteenBits) {
    frmZoneManage& window = manager();
    DesignProject project;
    project.loads.zones = std::vector<Zone>(40000);
    window.replaceLoads(project);
    EXPECT_EQ(window.ZoneList().size(), 32767U);
    EXPECT_EQ(window.zoneNumber(), 32767);
    window.click("LONewCommand");
    EXPECT_EQ(lastMessage(), "6 - Overflow");
    EXPECT_EQ(window.ZoneList().size(), 32767U);
}

TEST_F(ZoneManagerTest, OtherZonesCanTakeThePlaceOfItsOwnWithoutCountingAsAChange) {
    frmZoneManage& window = manager();
    addZone(window, 1, 1);
    setSaved(window, "a.zon");
    std::vector<Zone> zones(2);
    zones[0].gains[1][cooling] = 7;
    zones[0].pump.capacity = {10, 9};
    DesignProject project;
    project.loads.zones = zones;
    project.loads.activeSeries = "FirstWater";
    project.loads.file.name = "b.zon";
    project.conditions.inletTemp = {88, 44};
    window.replaceLoads(project);
    EXPECT_FALSE(window.hasUnsavedChanges());
    EXPECT_EQ(window.control("LOZoneList").items(), (Strings{"Zone 1", "Zone 2"}));
    EXPECT_EQ(window.zoneNumber(), 2);
    EXPECT_EQ(shown(window, "LOGainsText(1)"), "7.0");
    EXPECT_EQ(shown(window, "LOCapacityText(0)"), "10.0");
    EXPECT_EQ(shown(window, "LOInletTempText(1)"), "44.0");
    EXPECT_EQ(shown(window, "LOWorkingZoneLabel"), "b.zon");
    EXPECT_EQ(shown(window, "HPSeriesCombo"), "Water");
    EXPECT_EQ(window.catalogue.PumpList(activeSlot, 0).name, "Water-15");
}

TEST_F(ZoneManagerTest, ShowsTheLinkByItsLightAndTheHoursThatTheDesignUses) {
    frmZoneManage& window = manager();
    EXPECT_TRUE(window.control("imgLinkLight(6)").visible());
    window.setLight(true);
    EXPECT_TRUE(window.control("imgLinkLight(0)").visible());
    EXPECT_FALSE(window.control("imgLinkLight(8)").visible());
    EXPECT_FALSE(window.control("imgLinkLight(6)").visible());
    window.showHoursAndDays(false);
    for (const char* name : {"LOHoursText(0)", "LOHoursText(1)", "LOLoadsLabel(1)",
                             "LODaysperWeekText", "LODaysperWeekLabel"})
        EXPECT_FALSE(window.control(name).visible()) << name;
    EXPECT_TRUE(window.control("LOLoadsLabel(0)").visible());
    window.showHoursAndDays(true);
    EXPECT_TRUE(window.control("LOHoursText(0)").visible());
}

TEST_F(ZoneManagerTest, TellsTheFrameThatItsUnitsChangeAndThatItCloses) {
    frmZoneManage& window = manager();
    window.click("MetricCheck");
    EXPECT_TRUE(main.control("Metric").checked());
    EXPECT_TRUE(main.close(window));
    EXPECT_FALSE(main.frmZoneManageWindowExists);
}

TEST_F(ZoneManagerTest, OpensInTheUnitsOfTheMainWindow) {
    main.click("Metric");
    const frmZoneManage& window = manager();
    EXPECT_TRUE(window.control("MetricCheck").checked());
    EXPECT_EQ(shown(window, "LOInletTempText(0)"), "29.4");  // (85 - 32) x 5 / 9
    EXPECT_EQ(shown(window, "FLFlowRateText"), "11.4");      // 3 x 3.785412
}

TEST_F(ZoneManagerTest, FollowsTheUnitsMenuWithNoDesignOpen) {
    frmZoneManage& window = manager();
    EXPECT_EQ(main.windowCounter, 1);
    main.click("Metric");
    EXPECT_TRUE(window.control("MetricCheck").checked());
    EXPECT_EQ(shown(window, "LOInletTempText(0)"), "29.4");
    const frmAvgBlock& other = block();
    EXPECT_EQ(main.windowCounter, 1);
    main.click("English");
    EXPECT_FALSE(other.control("MetricCheck").checked());
    EXPECT_TRUE(window.control("MetricCheck").checked());
}

TEST_F(ZoneManagerTest, DoesNotCountAmongTheDesigns) {
    manager();
    ASSERT_EQ(main.takeSlot(DesignKind::borehole), 1);
    EXPECT_EQ(main.windowCounter, 1);  // the design is the first: "#1"
    block();
    EXPECT_EQ(main.windowCounter, 1);
}

TEST_F(ZoneManagerTest, GivesItsValuesToScripts) {
    frmZoneManage& window = manager();
    addZone(window, 15, 10);
    const auto number = [&](const char* name) {
        return std::get<double>(window.values().read(name));
    };
    EXPECT_EQ(number("ZoneList(0).gains(1,0)"), 15);
    EXPECT_EQ(number("inletTemp(1)"), 50);
    EXPECT_EQ(number("zoneNumber"), 1);
    EXPECT_EQ(number("size(0)"), 3);
    EXPECT_EQ(number("vhtMfgCount"), 2);
    EXPECT_EQ(number("vhtTotalSeriesCount"), 3);
    EXPECT_EQ(errorOf([&] { number("size(2)"); }), 9);
    EXPECT_EQ(std::get<std::string>(window.values().read("activeSeries")), "FirstAir");
    EXPECT_EQ(std::get<bool>(window.values().read("beenHere")), false);
}

TEST_F(ZoneManagerTest, WithoutACatalogueItStillTakesLoads) {
    std::filesystem::remove_all(pumps());
    frmZoneManage& window = manager();
    EXPECT_EQ(lastMessage(), "[2455]\r\r" + pumps() + "/PumpList.vht");
    addZone(window, 15, 10);
    EXPECT_EQ(window.ZoneList()[0].gains[1][cooling], 15);
    EXPECT_EQ(window.ZoneList()[0].pump.mfgName, "");
    EXPECT_TRUE(window.control("HPManufacturerCombo").items().empty());
    window.click("LOSelectCommand");
    window.click("LOSelectPumpCommand");
    EXPECT_EQ(window.ZoneList()[0].pump.name, "No Pump");
    window.click("LOAutoSelectCommand");
    EXPECT_EQ(lastMessage(), "[2940]\n\nZone 1");
}

}  // namespace
}  // namespace varnholt
