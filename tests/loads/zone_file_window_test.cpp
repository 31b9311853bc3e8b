// SPDX-License-Identifier: GPL-3.0-or-later
// Opening, saving and closing, as the loads windows do it.
#include "basis/file_system.h"
#include "loads/ModLoadsIO.h"
#include "loads/loads_fixture.h"

namespace varnholt {
namespace {

class ZoneFileWindowTest : public LoadsTest {
 protected:
    void pick(const std::string& name) { platform.picks.emplace_back(zoneFile(name)); }
    void open(const std::string& name) {
        pick(name);
        window.click("LOOpenCommand");
    }
    /// A file with three zones of cooling loads 1, 2 and 3.
    void writeThreeZones(const std::string& name) {
        LoadsData data;
        data.zones = std::vector<Zone>(3);
        for (std::size_t i = 0; i < 3; ++i) {
            data.zones.edit(i).gains[0][cooling] = static_cast<double>(i + 1);
            data.zones.edit(i).title = "Room " + std::to_string(i + 1);
        }
        data.conditions.flowRate = 2.5;
        data.conditions.inletTemp = {90, 40};
        data.activeSeries = "FirstWater";
        writeFile(zoneFile(name), zonesText(data));
    }
    /// A file of the repository's own of that version.
    static std::string sample(const std::string& version) {
        return std::string(VARNHOLT_SOURCE_DIR) + "/tests/files/zones_" + version + ".zon";
    }

    frmZoneManage& window = manager();
};

TEST_F(ZoneFileWindowTest, WhatIsSavedComesBack) {
    addZone(window, 15, 10);
    addZone(window, 30, 20);
    window.click("LOAutoSelectAllCommand");
    window.type("FLFlowRateText", "2.75");
    window.choose("HPSeriesCombo", 1);
    const SharedZones zones = window.ZoneList();
    setSaved(window, "a.zon");
    EXPECT_FALSE(window.hasUnsavedChanges());
    EXPECT_EQ(window.file().name, "a.zon");
    EXPECT_EQ(window.file().folder, folder.path() + "/zones");
    EXPECT_TRUE(window.file().exists);
    EXPECT_EQ(shown(window, "LOWorkingZoneLabel"), "a.zon");
    main.close(window);
    frmZoneManage& other = manager();
    ASSERT_TRUE(other.LOOpenZoneFile(zoneFile("a.zon")));
    EXPECT_EQ(other.ZoneList(), zones);
    EXPECT_EQ(other.conditions().flowRate, 2.75);
    EXPECT_EQ(other.activeSeries(), "FirstWater");
    EXPECT_EQ(other.catalogue.PumpList(activeSlot, 0).name, "Water-15");
    EXPECT_FALSE(other.hasUnsavedChanges());
}

TEST_F(ZoneFileWindowTest, OpeningShowsTheFirstZoneAndTheFilesConditions) {
    writeThreeZones("three.zon");
    std::string used;
    main.fileUsed = [&](const std::string& path) { used = path; };
    open("three.zon");
    EXPECT_EQ(window.zoneNumber(), 3);
    EXPECT_EQ(window.document().zoneCount, 3);
    EXPECT_EQ(window.selectedZone(), 0);
    EXPECT_EQ(shown(window, "LOZoneReferenceText"), "Room 1");
    EXPECT_EQ(shown(window, "LOInletTempText(1)"), "40.0");
    EXPECT_EQ(shown(window, "FLFlowRateText"), "2.5");
    EXPECT_EQ(shown(window, "HPSeriesCombo"), "Water");
    EXPECT_EQ(shown(window, "LOWorkingZoneLabel"), "three.zon");
    EXPECT_TRUE(enabled(window, "LOAutoSelectAllCommand"));
    EXPECT_FALSE(window.hasUnsavedChanges());
    EXPECT_EQ(used, zoneFile("three.zon"));
    EXPECT_EQ(main.TempDirectory, folder.path() + "/zones");
    window.click("LONewCommand");
    EXPECT_EQ(window.ZoneList()[3].name, "Zone 4");
    EXPECT_EQ(window.file().name, "three.zon");
}

TEST_F(ZoneFileWindowTest, AVersion10FileOpensWithTheConditionsOfItsTime) {
    window.change([](LoadsDocument& of) { of.data.conditions.inletTemp = {99, 33}; });
    ASSERT_TRUE(window.LOOpenZoneFile(sample("1.0")));
    ASSERT_FALSE(window.ZoneList().empty());
    for (const Zone& zone : window.ZoneList()) {
        EXPECT_EQ(zone.pump.elf, (ByMode<double>{0, 0}));
        EXPECT_EQ(zone.pump.nominalFlow, 0);
    }
    EXPECT_EQ(window.conditions().flowRate, 3);
    EXPECT_EQ(window.conditions().inletTemp, (ByMode<double>{85, 50}));
}

TEST_F(ZoneFileWindowTest, AVersion20FileGetsTheFirstSeriesOfTheCatalogue) {
    window.choose("HPManufacturerCombo", 1);
    window.change([](LoadsDocument& of) { of.data.conditions.inletLoadAirTemp = {60, 60}; });
    platform.answers = {Answer::no};
    ASSERT_TRUE(window.LOOpenZoneFile(sample("2.0")));
    EXPECT_EQ(window.activeSeries(), "FirstAir");
    EXPECT_EQ(window.conditions().inletLoadAirTemp, (ByMode<double>{67, 70}));
    EXPECT_EQ(window.conditions().inletLoadWaterTemp, (ByMode<double>{55, 100}));
}

TEST_F(ZoneFileWindowTest, TypedFiguresOfAFileStayAsTheyStand) {
    addZone(window, 15, 10);
    window.click("LOCustomPumpCheck");
    window.type("LOCapacityText(0)", "77");
    window.type("LONumberOfUnitsText(1)", "3");
    setSaved(window, "custom.zon");
    ASSERT_TRUE(window.LOOpenZoneFile(zoneFile("custom.zon")));
    EXPECT_EQ(window.ZoneList()[0].pump.capacity[cooling], 77);
    EXPECT_EQ(window.ZoneList()[0].pump.number, 3);
    EXPECT_EQ(window.ZoneList()[0].pump.customPump, 1);
    EXPECT_TRUE(window.control("LOCustomPumpCheck").checked());
    EXPECT_FALSE(window.control("LOCapacityText(0)").locked());
    EXPECT_EQ(shown(window, "LONumberOfUnitsText(0)"), "3");
}

TEST_F(ZoneFileWindowTest, TheListsOrderAloneNumbersTheZones) {
    for (const double load : {1.0, 2.0, 3.0}) addZone(window, load, 0);
    window.choose("LOZoneList", 0);
    window.click("LORemoveCommand");
    setSaved(window, "a.zon");
    ASSERT_TRUE(window.LOOpenZoneFile(zoneFile("a.zon")));
    EXPECT_EQ(window.control("LOZoneList").items(), (std::vector<std::string>{"Zone 1", "Zone 2"}));
    EXPECT_EQ(window.ZoneList()[0].gains[1][cooling], 2);
}

TEST_F(ZoneFileWindowTest, TheDialogStartsInTheZonesFolderWithTheZoneFiles) {
    addZone(window, 1, 1);
    platform.picks.emplace_back(std::nullopt);
    window.click("LOSaveCommand");
    const FileDialog& dialog = platform.dialogs.back();
    EXPECT_TRUE(dialog.saving);
    EXPECT_TRUE(dialog.overwritePrompt);
    EXPECT_EQ(dialog.folder, folder.path() + "/zones");
    EXPECT_EQ(dialog.proposedName, "Zone Loads.zon");
    EXPECT_EQ(dialog.filter, "[2962]");
    EXPECT_EQ(dialog.filterIndex, 3);
    std::filesystem::create_directory(folder.path() + "/elsewhere");
    platform.picks.emplace_back(folder.path() + "/elsewhere/b.zon");
    window.click("LOSaveCommand");
    platform.picks.emplace_back(std::nullopt);
    window.click("LOOpenCommand");
    EXPECT_FALSE(platform.dialogs.back().saving);
    EXPECT_EQ(platform.dialogs.back().folder, folder.path() + "/elsewhere");
    EXPECT_EQ(platform.dialogs.back().proposedName, "b.zon");
}

TEST_F(ZoneFileWindowTest, ACancelledDialogLeavesAllAsItWas) {
    addZone(window, 15, 10);
    const SharedZones zones = window.ZoneList();
    for (const char* command : {"LOSaveCommand", "LOOpenCommand"}) {
        platform.picks.emplace_back(std::nullopt);
        window.click(command);
        EXPECT_EQ(window.ZoneList(), zones);
        EXPECT_TRUE(window.hasUnsavedChanges());
        EXPECT_FALSE(window.file().exists);
        EXPECT_EQ(window.file().name, "Zone Loads.zon");
    }
    EXPECT_TRUE(platform.questions.empty());
}

TEST_F(ZoneFileWindowTest, OpeningOverUnsavedChangesAsksFirst) {
    writeThreeZones("three.zon");
    addZone(window, 15, 10);
    platform.answers = {Answer::cancel};
    open("three.zon");
    EXPECT_EQ(window.zoneNumber(), 1);
    platform.answers = {Answer::no};
    open("three.zon");
    EXPECT_EQ(window.zoneNumber(), 3);
}

TEST_F(ZoneFileWindowTest, AMissingFileIsToldAndChangesNothing) {
    addZone(window, 15, 10);
    const SharedZones zones = window.ZoneList();
    EXPECT_FALSE(window.LOOpenZoneFile(zoneFile("missing.zon")));
    EXPECT_EQ(platform.messages.back().icon, MessageIcon::exclamation);
    EXPECT_EQ(lastMessage(), RunTimeError(53).message());
    EXPECT_EQ(window.ZoneList(), zones);
    EXPECT_EQ(window.file().name, "Zone Loads.zon");
    EXPECT_TRUE(window.hasUnsavedChanges());
}

TEST_F(ZoneFileWindowTest, OtherErrorsOfReadingPassSilently) {
    texts.known[1245] = "Reading ended in %1.";
    const std::string zones = folder.path() + "/zones";
    EXPECT_FALSE(window.LOOpenZoneFile(zones));  // a folder
    EXPECT_TRUE(platform.messages.empty());
    // The notice says which.
    EXPECT_TRUE(window.control("NoticeLabel")
                    .caption()
                    .ends_with("Reading ended in " + RunTimeError(75, zones).message() + "."));
    writeFile(zoneFile("huge.zon"), "Zone Data File Version 3.0\r\n1\r\n1e999\r\n");
    EXPECT_FALSE(window.LOOpenZoneFile(zoneFile("huge.zon")));
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(ZoneFileWindowTest, ZonesThatCouldBeReadStayAndDoNotTakeTheFilesPlace) {
    writeThreeZones("three.zon");
    const std::string whole = readWholeFile(zoneFile("three.zon"));
    writeFile(zoneFile("cut.zon"), whole.substr(0, whole.find("Room 3")));
    EXPECT_FALSE(window.LOOpenZoneFile(zoneFile("cut.zon")));
    EXPECT_EQ(lastMessage(), RunTimeError(62).message());
    ASSERT_EQ(window.zoneNumber(), 2);
    EXPECT_EQ(shown(window, "LOZoneReferenceText"), "Room 1");
    EXPECT_FALSE(window.file().exists);
    EXPECT_TRUE(window.hasUnsavedChanges());
    EXPECT_TRUE(enabled(window, "LORemoveCommand"));
}

TEST_F(ZoneFileWindowTest, EveryCutOfAFileLeavesAWindowThatWorks) {
    writeThreeZones("three.zon");
    const std::string whole = readWholeFile(zoneFile("three.zon"));
    for (std::size_t length = 0; length < whole.size(); length += 7) {
        SCOPED_TRACE(length);
        writeFile(zoneFile("cut.zon"), whole.substr(0, length));
        window.LOOpenZoneFile(zoneFile("cut.zon"));
        ASSERT_EQ(window.control("LOZoneList").items().size(), window.ZoneList().size());
        ASSERT_EQ(static_cast<std::size_t>(window.zoneNumber()), window.ZoneList().size());
        ASSERT_EQ(window.control("LOZoneFrame").visible(), window.zoneNumber() > 0);
    }
}

TEST_F(ZoneFileWindowTest, AFileWithoutZonesOpensToAnEmptyWindow) {
    writeFile(zoneFile("empty.zon"), zonesText(LoadsData{}));
    addZone(window, 15, 10);
    ASSERT_TRUE(window.LOOpenZoneFile(zoneFile("empty.zon")));
    EXPECT_EQ(window.zoneNumber(), 0);
    EXPECT_FALSE(window.control("LOZoneFrame").visible());
    EXPECT_FALSE(enabled(window, "LOAutoSelectAllCommand"));
    EXPECT_EQ(window.file().name, "empty.zon");
}

TEST_F(ZoneFileWindowTest, AFailedSaveIsToldAndLosesNothing) {
    addZone(window, 15, 10);
    const SharedZones zones = window.ZoneList();
    const std::string path = folder.path() + "/nowhere/a.zon";
    platform.picks.emplace_back(path);
    window.click("LOSaveCommand");
    EXPECT_EQ(platform.messages.back().icon, MessageIcon::exclamation);
    EXPECT_EQ(lastMessage(), "[2942]\n\n" + path + "\n\n" + RunTimeError(76).message());
    EXPECT_EQ(window.ZoneList(), zones);
    EXPECT_TRUE(window.hasUnsavedChanges());
    EXPECT_FALSE(window.file().exists);
    EXPECT_EQ(window.file().name, "Zone Loads.zon");
}

TEST_F(ZoneFileWindowTest, ClosingAsksOnlyAboutUnsavedChanges) {
    addZone(window, 15, 10);
    setSaved(window, "a.zon");
    EXPECT_TRUE(main.close(window));
    EXPECT_TRUE(platform.questions.empty());
}

TEST_F(ZoneFileWindowTest, ClosingWithChangesSavesThemOnYes) {
    addZone(window, 15, 10);
    setSaved(window, "a.zon");
    window.type("LOGainsText(0)", "4");
    platform.answers = {Answer::yes};
    pick("b.zon");
    EXPECT_TRUE(main.close(window));
    EXPECT_EQ(platform.questions.back().title, "[1205]");
    EXPECT_EQ(platform.questions.back().text, "Zone Loads\n\na.zon\n\n[1203]");
    EXPECT_TRUE(fileExists(zoneFile("b.zon")));
}

TEST_F(ZoneFileWindowTest, ClosingWithChangesDropsThemOnNo) {
    addZone(window, 15, 10);
    platform.answers = {Answer::no};
    EXPECT_TRUE(main.close(window));
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_TRUE(main.windows().empty());
}

TEST_F(ZoneFileWindowTest, ClosingStopsOnCancel) {
    addZone(window, 15, 10);
    platform.answers = {Answer::cancel};
    EXPECT_FALSE(main.close(window));
    EXPECT_EQ(lastMessage(), "[1207]");
    EXPECT_TRUE(main.saveCancelled);
    EXPECT_FALSE(window.zoneSaveCancelled);
    EXPECT_TRUE(window.hasUnsavedChanges());
}

TEST_F(ZoneFileWindowTest, ClosingStopsWhenTheSaveIsCancelled) {
    addZone(window, 15, 10);
    platform.answers = {Answer::yes};
    platform.picks.emplace_back(std::nullopt);
    EXPECT_FALSE(main.close(window));
    EXPECT_EQ(lastMessage(), "[1207]");
    EXPECT_TRUE(main.saveCancelled);
    EXPECT_TRUE(window.zoneSaveCancelled);
}

TEST_F(ZoneFileWindowTest, ClosingStopsWhenTheSaveFails) {
    addZone(window, 15, 10);
    platform.answers = {Answer::yes};
    platform.picks.emplace_back(folder.path() + "/nowhere/a.zon");
    EXPECT_FALSE(main.close(window));
    EXPECT_EQ(platform.messages.size(), 2U);
    EXPECT_EQ(lastMessage(), "[1207]");
    EXPECT_EQ(window.ZoneList().size(), 1U);
}

TEST_F(ZoneFileWindowTest, TheFrameAsksInItsOwnWordsAndACancelKeepsItOpen) {
    addZone(window, 15, 10);
    platform.answers = {Answer::cancel};
    main.click("mnuFileExit");
    EXPECT_EQ(platform.questions.back().text, "[1206]");
    EXPECT_EQ(platform.questions.back().title, "[1205]");
    EXPECT_EQ(platform.quitResult, false);
    EXPECT_EQ(main.windows().size(), 1U);
    platform.answers = {Answer::no};
    main.click("mnuFileExit");
    EXPECT_EQ(platform.quitResult, true);
}

}  // namespace
}  // namespace varnholt
