// SPDX-License-Identifier: GPL-3.0-or-later
// The real windows of loads and designs together with their files.
#include "loads/install.h"
#include "persistence/project_fixture.h"

namespace varnholt {
namespace {

class WholeRoad : public ProjectTest {
 protected:
    WholeRoad() {
        std::filesystem::copy(VARNHOLT_SOURCE_DIR "/resources/pumps", folder / "pumps",
                              std::filesystem::copy_options::recursive |
                                  std::filesystem::copy_options::overwrite_existing);
        installLoads(main);
        texts.known[1204] = "Zone Loads";
    }
    LoadsWindow& zones() { return dynamic_cast<LoadsWindow&>(*main.find("frmZoneManage")); }
    void addZone(const std::string& gain, const std::string& loss) {
        zones().click("LONewCommand");
        zones().type("LOGainsText(1)", gain);
        zones().type("LOGainsText(7)", loss);
        zones().click("LOAutoSelectCommand");
    }
    void makeLinkedProject() {
        main.click("mnuZoneManage");
        addZone("24", "10");
        addZone("36", "15");
        main.click("NewBorehole");
        main.click("mnuLink");
        design().click("CACalculateCommand");
    }
    void saveBoth() {
        pick(folder / "zones/school.zon");
        zones().click("LOSaveCommand");
        saveAs(design(), "work files/school.vht");
    }
};

TEST_F(WholeRoad, SavedAndOpenedAgainIsByteForByteTheSameProject) {
    makeLinkedProject();
    ASSERT_GT(design().GetL(cooling), 0);
    saveBoth();
    const std::string saved = bytesOf(folder / "work files/school.vht");
    closeAll();
    const frmBHDesign& d = open("work files/school.vht");
    EXPECT_EQ(messages(), 0u) << lastMessage();
    EXPECT_EQ(d.LoadsHome(), &zones());
    EXPECT_FALSE(zones().hasUnsavedChanges());
    main.click("mnuFileSave");
    EXPECT_EQ(bytesOf(folder / "work files/school.vht"), saved);
    EXPECT_EQ(platform.questions.size(), 1u);  // of closing
}

TEST_F(WholeRoad, CalculatingAnOpenedProjectGivesItsSavedResults) {
    makeLinkedProject();
    saveBoth();
    const BoreholeResults before = design().results();
    closeAll();
    frmBHDesign& d = open("work files/school.vht");
    d.click("CACalculateCommand");
    EXPECT_EQ(d.results().lengths.boreLength, before.lengths.boreLength);
    EXPECT_EQ(d.results().demand.peakDemand, before.demand.peakDemand);
    EXPECT_EQ(d.results().cop.systemCOP, before.cop.systemCOP);
}

TEST_F(WholeRoad, AChangedZoneCountsInTheNextCalculation) {
    makeLinkedProject();
    const double before = design().results().loads.peakLoad[cooling];
    main.activate(zones());
    zones().choose("LOZoneList", 0);
    zones().type("LOGainsText(1)", "44");
    design().click("CACalculateCommand");
    // Zone 1 went from 24 to 44 MBtu/hr in the block of the peak.
    EXPECT_EQ(design().results().loads.peakLoad[cooling], before + 20);
    EXPECT_EQ(design().ZoneList()[0].gains[1][cooling], 44);
}

TEST_F(WholeRoad, AChangedInletTemperatureReachesTheLoadsAndTheirPumps) {
    makeLinkedProject();
    saveBoth();
    main.activate(design());
    const double capacity = zones().ZoneList()[0].pump.capacity[cooling];
    design().type("FLInletTempText(0)", "95");
    EXPECT_EQ(zones().conditions().inletTemp[cooling], 95);
    EXPECT_EQ(zones().ZoneList()[0].pump.capacity[cooling], capacity);
    design().leave("FLInletTempText(0)");
    EXPECT_NE(zones().ZoneList()[0].pump.capacity[cooling], capacity);
    EXPECT_TRUE(zones().hasUnsavedChanges());
}

TEST_F(WholeRoad, ClosingTheFrameAsksLoadsAndDesignEachForItself) {
    makeLinkedProject();
    answer(Answer::no);
    answer(Answer::no);
    main.click("mnuFileExit");
    EXPECT_EQ(platform.quitResult, true);
    EXPECT_EQ(platform.questions.size(), 2u);
}

TEST_F(WholeRoad, AProjectSavedWhenTheFrameClosesStillHasItsLink) {
    makeLinkedProject();
    saveBoth();
    closeAll();
    // Opening a project opens its loads after it: they are the newest window.
    open("work files/school.vht");
    design().type("INCityText", "Stillwater");
    answer(Answer::yes);
    main.click("mnuFileExit");
    EXPECT_TRUE(main.windows().empty());
    EXPECT_EQ(messages(), 0u);
    const std::string saved = bytesOf(folder / "work files/school.vht");
    EXPECT_NE(saved.find("Stillwater"), std::string::npos);
    EXPECT_NE(saved.find("\r\nfrmZoneManage\r\n"), std::string::npos);
}

TEST_F(WholeRoad, KeepsASeriesThatTheCatalogueDoesNotHave) {
    makeLinkedProject();
    saveBoth();
    const std::string series = design().loads().activeSeries;
    closeAll();
    const std::string path = folder / "work files/school.vht";
    std::string bytes = bytesOf(path);
    bytes.replace(bytes.find(series), series.size(), "NobodySeries Z");
    writeBytes(path, bytes);
    EXPECT_EQ(open("work files/school.vht").loads().activeSeries, "NobodySeries Z");
    EXPECT_EQ(zones().activeSeries(), series);
    main.click("mnuFileSave");
    EXPECT_EQ(bytesOf(path), bytes);
}

TEST_F(WholeRoad, AnOpenedProjectTakesItsLoadsIntoItsUnits) {
    makeLinkedProject();
    saveBoth();
    answer(Answer::no);
    main.close(design());
    main.click("Metric");
    main.click("NewBorehole");
    main.click("English");
    ASSERT_EQ(zones().units(), UnitSystem::metric);
    const frmBHDesign& d = open("work files/school.vht");
    EXPECT_EQ(d.LoadsHome(), &zones());
    EXPECT_EQ(d.units(), UnitSystem::english);
    EXPECT_EQ(zones().units(), UnitSystem::english);
}

TEST_F(WholeRoad, CancelAtTheLoadsStopsTheClosingOfTheFrame) {
    makeLinkedProject();
    answer(Answer::no);      // the design, opened last
    answer(Answer::cancel);  // the loads
    main.click("mnuFileExit");
    EXPECT_EQ(platform.quitResult, false);
    EXPECT_EQ(main.windows().size(), 1u);
    EXPECT_EQ(zones().links().designLinkID(), 0);
}

TEST_F(WholeRoad, ANewDesignStartsFromTheLastSavedOne) {
    makeLinkedProject();
    design().type("SOGroundTempText", "57");
    saveBoth();
    main.click("NewBorehole");
    EXPECT_EQ(design().project().soil.groundTemp, 57);
    EXPECT_EQ(design().loads().activeSeries, zones().activeSeries());
    EXPECT_EQ(design().loads().zoneNumber, 0);
    EXPECT_EQ(design().loads().linkType, "");
    EXPECT_TRUE(design().isStale());
}

TEST_F(WholeRoad, SwitchesTheUnitsOfALinkedPairTogether) {
    makeLinkedProject();
    main.click("Metric");
    EXPECT_EQ(design().units(), UnitSystem::metric);
    EXPECT_EQ(zones().units(), UnitSystem::metric);
    main.activate(zones());
    main.click("English");
    EXPECT_EQ(design().units(), UnitSystem::english);
    EXPECT_TRUE(design().link()->isNamed());
}

}  // namespace
}  // namespace varnholt
