// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/project_fixture.h"

namespace varnholt {
namespace {

class ZoneLink : public ProjectTest {
 protected:
    ZoneLink() {
        saveLinkedProject();
        saved = bytesOf(school());
        closeAll();
        platform.questions.clear();
    }
    std::string school() const { return folder / "work files/school.vht"; }
    frmBHDesign& reopen() { return open("work files/school.vht"); }
    void replaceInProject(const std::string& what, const std::string& with) {
        std::string bytes = bytesOf(school());
        const std::size_t at = bytes.find(what);
        ASSERT_NE(at, std::string::npos) << what;
        writeBytes(school(), bytes.replace(at, what.size(), with));
    }
    void expectForgotten(const frmBHDesign& d) {
        EXPECT_EQ(d.loads().linkType, "");
        EXPECT_EQ(d.LoadsHome(), nullptr);
        EXPECT_EQ(d.loads().file.name, "");
        EXPECT_EQ(d.loads().file.folder, "");
        EXPECT_FALSE(d.loads().file.exists);
        EXPECT_FALSE(d.control("imgLinkLight(0)").visible());
        EXPECT_TRUE(d.control("imgLinkLight(6)").visible());
    }
    std::string saved;
};

TEST_F(ZoneLink, IsFoundAgainOnOpening) {
    const frmBHDesign& d = reopen();
    EXPECT_EQ(messages(), 0u);
    EXPECT_EQ(loads().zoneNumber(), 3);
    EXPECT_EQ(loads().file().name, "school.zon");
    EXPECT_EQ(d.loads().linkType, "frmZoneManage");
    EXPECT_EQ(d.LoadsHome(), &loads());
    EXPECT_EQ(loads().links().designLinkID(), d.myID);
    EXPECT_TRUE(d.link()->isNamed());
    EXPECT_EQ(d.ZoneList().size(), 3u);
    EXPECT_EQ(d.loads().zoneNumber, 3);
    EXPECT_TRUE(d.control("imgLinkLight(0)").visible());
    EXPECT_FALSE(d.control("imgLinkLight(6)").visible());
    EXPECT_TRUE(loads().control("imgLinkLight(0)").visible());
    EXPECT_FALSE(d.isStale());
    EXPECT_EQ(main.activeWindow(), &d);
}

TEST_F(ZoneLink, LeavesAProjectByteForByteTheSameWhenItIsSavedAgain) {
    reopen();
    main.click("mnuFileSave");
    EXPECT_EQ(bytesOf(school()), saved);
}

TEST_F(ZoneLink, LeavesTheResultsWithACoolingTowerByteForByteTheSame) {
    frmBHDesign& d = reopen();
    ASSERT_TRUE(d.control("CAHybridSlider").enabled());
    d.slide("CAHybridSlider", 40);
    main.click("mnuFileSave");
    const std::string withTower = bytesOf(school());
    EXPECT_NE(withTower, saved);
    closeAll();
    frmBHDesign& again = reopen();
    EXPECT_EQ(again.project().tower.hybridPercent, 40);
    EXPECT_EQ(again.control("CAHybridSlider").value(), 40);
    EXPECT_GT(again.project().tower.tower.capacity, 0);
    main.click("mnuFileSave");
    EXPECT_EQ(bytesOf(school()), withTower);
}

TEST_F(ZoneLink, IsFoundInTheProgramsFolderOfZonesWhenItsOwnIsGone) {
    replaceInProject("\r\n" + (folder / "zones") + "\r\n", "\r\n/no/such/folder\r\n");
    const frmBHDesign& d = reopen();
    EXPECT_EQ(d.LoadsHome(), &loads());
    EXPECT_EQ(d.loads().file.folder, folder / "zones");
}

TEST_F(ZoneLink, IsLookedForInItsOwnFolderFirst) {
    std::filesystem::create_directory(folder / "own");
    writeZones(folder / "own/school.zon", 5);
    replaceInProject("\r\n" + (folder / "zones") + "\r\n", "\r\n" + (folder / "own") + "\r\n");
    EXPECT_EQ(reopen().loads().zoneNumber, 5);
}

TEST_F(ZoneLink, ThatIsMissingIsNamedAndForgotten) {
    std::filesystem::remove(folder / "zones/school.zon");
    const frmBHDesign& d = reopen();
    ASSERT_EQ(messages(), 1u);
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::exclamation);
    EXPECT_EQ(lastMessage(), "[8540]\n\nschool.zon");
    expectForgotten(d);
    EXPECT_EQ(main.find("frmZoneManage"), nullptr);
    EXPECT_EQ(d.loads().zoneNumber, 3);
}

TEST_F(ZoneLink, IsNotMadeWithADamagedZoneFile) {
    const std::string zones = bytesOf(folder / "zones/school.zon");
    writeBytes(folder / "zones/school.zon", zones.substr(0, zones.size() / 2));
    const frmBHDesign& d = reopen();
    EXPECT_EQ(lastMessage(), "[8543]\n\n" + (folder / "zones/school.zon"));
    expectForgotten(d);
    EXPECT_FALSE(d.isStale());
    // What could be read stays in the loads window.
    EXPECT_EQ(loads().zoneNumber(), 1);
}

TEST_F(ZoneLink, IsNotMadeWithAZoneFileThatThePersonDidNotWantToOpen) {
    main.click("mnuZoneManage");
    loads().cancelsOpening = true;
    const frmBHDesign& d = reopen();
    // Nothing is wrong with the file, and nothing says so.
    EXPECT_EQ(lastMessage(), "[8561]\n\n" + (folder / "zones/school.zon"));
    expectForgotten(d);
    EXPECT_EQ(loads().zoneNumber(), 0);
}

TEST_F(ZoneLink, IsRefusedWhenTheLoadsWindowHoldsAnotherFile) {
    writeZones(folder / "zones/other.zon", 2);
    main.click("mnuZoneManage");
    loads().LOOpenZoneFile(folder / "zones/other.zon");
    const frmBHDesign& d = reopen();
    EXPECT_EQ(lastMessage(), "[8539]");
    expectForgotten(d);
    EXPECT_EQ(loads().zoneNumber(), 2);
    EXPECT_EQ(loads().links().designLinkID(), 0);
    EXPECT_EQ(loads().caption(), "Project Loads");
}

TEST_F(ZoneLink, IsRefusedWhenTheLoadsWindowIsLinkedToAnotherDesign) {
    std::filesystem::copy_file(school(), folder / "work files/copy.vht");
    const frmBHDesign& first = reopen();
    const frmBHDesign& second = open("work files/copy.vht");
    EXPECT_EQ(lastMessage(), "[8539]");
    expectForgotten(second);
    EXPECT_EQ(first.LoadsHome(), &loads());
    EXPECT_EQ(loads().links().designLinkID(), first.myID);
}

TEST_F(ZoneLink, IsRefusedWhenTheLoadsWindowHoldsZonesOfItsOwn) {
    main.click("mnuZoneManage");
    loads().setZones({loadedZone(1)});
    loads().unsaved = true;
    expectForgotten(reopen());
    EXPECT_EQ(loads().zoneNumber(), 1);
}

TEST_F(ZoneLink, TakesALoadsWindowThatHoldsTheFileAsItIs) {
    main.click("mnuZoneManage");
    loads().LOOpenZoneFile(folder / "zones/school.zon");
    loads().data().zones.edit(0).days = 3;
    loads().unsaved = true;
    const frmBHDesign& d = reopen();
    EXPECT_EQ(d.LoadsHome(), &loads());
    EXPECT_EQ(loads().filesRead, 1);
    EXPECT_EQ(d.ZoneList().at(0).days, 3);
    EXPECT_TRUE(loads().hasUnsavedChanges());
}

TEST_F(ZoneLink, FillsAnEmptyLoadsWindow) {
    main.click("mnuZoneManage");
    EXPECT_EQ(reopen().LoadsHome(), &loads());
    EXPECT_EQ(loads().zoneNumber(), 3);
}

TEST_F(ZoneLink, OpensTheAverageBlockWhereTheProjectNamesIt) {
    replaceInProject("frmZoneManage", "frmAvgBlock");
    const frmBHDesign& d = reopen();
    EXPECT_EQ(d.loads().linkType, "frmAvgBlock");
    EXPECT_EQ(d.LoadsHome(), &loads("frmAvgBlock"));
    EXPECT_EQ(main.find("frmZoneManage"), nullptr);
}

TEST_F(ZoneLink, OfAnUnknownKindIsTheZoneManagers) {
    replaceInProject("frmZoneManage", "frmSomething");
    EXPECT_EQ(reopen().loads().linkType, "frmZoneManage");
}

TEST_F(ZoneLink, StaysAwayWithoutAZoneFileEvenWhenALinkTypeIsStored) {
    replaceInProject("\r\nschool.zon\r\n", "\r\n\r\n");
    const frmBHDesign& d = reopen();
    EXPECT_EQ(d.loads().linkType, "");
    EXPECT_EQ(d.LoadsHome(), nullptr);
    EXPECT_FALSE(d.loads().file.exists);
    EXPECT_EQ(messages(), 0u);
    EXPECT_EQ(main.find("frmZoneManage"), nullptr);
}

TEST_F(ZoneLink, IsMadeAgainWhenTheLoadsWereClosedBeforeTheProjectWasSaved) {
    frmBHDesign& before = reopen();
    ASSERT_TRUE(main.close(loads()));
    ASSERT_EQ(before.loads().linkType, "");
    main.click("mnuFileSave");
    closeAll();
    const frmBHDesign& d = reopen();
    EXPECT_EQ(messages(), 0u);
    EXPECT_EQ(d.loads().linkType, "frmZoneManage");
    EXPECT_EQ(d.LoadsHome(), &loads());
    EXPECT_EQ(d.ZoneList().size(), 3u);
}

TEST_F(ZoneLink, IsMadeWithAFluidWithWhichNoLoadsAddUp) {
    replaceInProject("\r\n62.4\r\n1\r\n", "\r\n1e-200\r\n1e-200\r\n");
    frmBHDesign& d = reopen();
    EXPECT_EQ(messages(), 0u);
    EXPECT_FALSE(main.openCall);
    EXPECT_FALSE(d.settingUnits);
    EXPECT_EQ(d.LoadsHome(), &loads());
    EXPECT_EQ(d.ZoneList().size(), 3u);
    EXPECT_EQ(main.activeWindow(), &d);
    d.click("CACalculateCommand");
    EXPECT_EQ(messages(), 1u);
}

TEST_F(ZoneLink, OfAProjectBeforeVersionTwoStaysEmpty) {
    replaceInProject("Version 3.0", "Version 1.2");
    const frmBHDesign& d = reopen();
    EXPECT_EQ(d.loads().linkType, "");
    EXPECT_EQ(d.LoadsHome(), nullptr);
    EXPECT_EQ(d.loads().file.name, "school.zon");
    EXPECT_TRUE(d.loads().file.exists);
}

TEST_F(ZoneLink, KeepsTheProjectsTemperaturesFlowAndSeriesAndGivesThemToTheLoads) {
    LoadsData data;
    data.zones = {loadedZone(9)};
    data.conditions.flowRate = 1.5;
    data.conditions.inletTemp = {70, 30};
    data.activeSeries = "OtherB";
    saveZoneFile(folder / "zones/school.zon", data);
    const frmBHDesign& d = reopen();
    EXPECT_EQ(d.ZoneList().size(), 1u);
    EXPECT_EQ(d.conditions().inletTemp, (ByMode<double>{85, 50}));
    EXPECT_EQ(d.conditions().flowRate, 3);
    EXPECT_EQ(d.loads().activeSeries, "AcmeA");
    EXPECT_EQ(loads().conditions().inletTemp, (ByMode<double>{85, 50}));
    EXPECT_EQ(loads().conditions().flowRate, 3);
    EXPECT_EQ(loads().activeSeries(), "AcmeA");
    EXPECT_EQ(loads().zoneNumber(), 1);
}

TEST_F(ZoneLink, ShowsTheSavedResultsThoughTheZonesHaveChanged) {
    const ByMode<double> before = reopen().results().loads.peakLoad;
    EXPECT_GT(before[cooling], 0);
    closeAll();
    writeZones(folder / "zones/school.zon", 1);
    frmBHDesign& d = reopen();
    EXPECT_EQ(d.results().loads.peakLoad, before);
    EXPECT_FALSE(d.isStale());
    // The next run takes the zones as they are: one of 10 MBtu/hr.
    d.CACalculateCommand_Click();
    EXPECT_EQ(d.results().loads.peakLoad[cooling], 10);
}

TEST_F(ZoneLink, MakesAChangeInTheLoadsCountInTheNextCalculation) {
    frmBHDesign& d = reopen();
    loads().data().zones.edit(0).gains[1][cooling] += 100;
    const double before = d.results().loads.peakLoad[cooling];
    d.click("CACalculateCommand");
    EXPECT_EQ(d.results().loads.peakLoad[cooling], before + 100);
}

TEST_F(ZoneLink, ShowsWhichModeGoverns) {
    const frmBHDesign& d = reopen();
    const ByMode<double>& length = d.results().lengths.boreLength;
    ASSERT_NE(length[cooling], length[heating]);
    const int greyed = length[cooling] > length[heating] ? 1 : 0;
    EXPECT_EQ(d.control("CATopLabel(" + std::to_string(greyed) + ")").forecolor(), colours::greyed);
    EXPECT_NE(d.control("CATopLabel(" + std::to_string(1 - greyed) + ")").forecolor(),
              colours::greyed);
}

}  // namespace
}  // namespace varnholt
