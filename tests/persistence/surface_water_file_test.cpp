// SPDX-License-Identifier: GPL-3.0-or-later
// The files of surface water designs: the project, and the defaults that the next one begins with.
#include "design/frmSWDesign.h"
#include "persistence/project_fixture.h"
#include "persistence/project_lines.h"

namespace varnholt {
namespace {

/// The body of a project, line by line, each value another one.
const std::vector<std::string> pondLines{
    // cooling: temperatures, least flow, day, ground, water, loss, primary header
    "86.5", "96.25", "66", "54", "2.7", "205", "71.5", "77", "3.2", "2", "5", "0.015", "0.002",
    // heating, branch header
    "38.5", "32.5", "71", "101", "4.1", "20", "44.75", "43", "3.9", "3", "4", "0.013", "0.0018",
    // extra power
    "1", "0.85", "0.5",
    // water temperature, head loss and length of the headers
    "74", "1.8", "120", "44", "2.1", "200", "76", "2.5", "60", "43.5", "2.9", "40",
    // fluid
    "3.4", "20", "4", "", "63.6", "0.95",
    // soil
    "58", "5", "24", "2", "0.96",
    // loops
    "1", "1", "1.315", "15",
    // details
    "40000", "8", "1",
    // motor, pumps and zones
    "80", "AcmeSeries A", "", "", "12", "3.125",
    // results
    "96", "6.95", "3.96", "3.33", "27.2", "2359.5", "9", "9.5", "11.25", "8.875", "16.52", "84",
    "6.1", "3.88", "3.24", "23.8", "2019.5", "4", "5", "-7.0625", "20.275", "19.24"};

std::string pondHead(const std::string& version) {
    return projectHead(version, "Surface Water Design", "Mill pond");
}

/// Line 24 of the file's order is the last that every version has; only newer ones tell the link.
std::string newPondFile() { return pondHead("3.0") + linesOf(pondLines) + "frmZoneManage\r\n"; }
std::string oldPondFile() { return pondHead("1.2") + linesOf(pondLines); }

SurfaceWaterProject pondProjectIn(const std::string& bytes) {
    SurfaceWaterProject project;
    readProjectText(bytes, project);
    return project;
}

class SurfaceWaterFile : public ProjectTest {
 protected:
    SurfaceWaterFile() { texts.known[3001] = "Surface Water Design Project"; }

    frmSWDesign& pond() {
        return dynamic_cast<frmSWDesign&>(*main.windowsNamed("frmSWDesign").back());
    }
    frmSWDesign& newPond() {
        main.click("NewSurfaceWater");
        return pond();
    }
    frmSWDesign& openPond(const std::string& path) {
        pick(path);
        main.click("mnuFileOpen");
        return pond();
    }
    std::string ini() const { return folder / "vhtsw.ini"; }
};

TEST_F(SurfaceWaterFile, HoldsEveryValueInItsOrder) {
    const SurfaceWaterProject p = pondProjectIn(newPondFile());
    EXPECT_EQ(p.information.projectName, "Mill pond");
    EXPECT_EQ(p.conditions.inletTemp, (ByMode<double>{86.5, 38.5}));
    EXPECT_EQ(p.results->outlet.outletTemp, (ByMode<double>{96.25, 32.5}));
    EXPECT_EQ(p.conditions.inletLoadAirTemp, (ByMode<double>{66, 71}));
    EXPECT_EQ(p.conditions.inletLoadWaterTemp, (ByMode<double>{54, 101}));
    EXPECT_EQ(p.conditions.minflowRate, (ByMode<double>{2.7, 4.1}));
    EXPECT_EQ(p.soil.extremeDay, (ByMode<std::int16_t>{205, 20}));
    EXPECT_EQ(p.soil.groundTempAtDepth, (ByMode<double>{71.5, 44.75}));
    EXPECT_EQ(p.water.loopWaterTemp, (ByMode<double>{77, 43}));
    EXPECT_EQ(p.loop.loopHeadLoss, (ByMode<double>{3.2, 3.9}));
    EXPECT_EQ(p.header.headerCount, (std::array<double, 2>{2, 3}));
    EXPECT_EQ(p.header.headerPipeSize, (std::array<std::int16_t, 2>{5, 4}));
    EXPECT_EQ(p.header.headerWaterFactor, (std::array<double, 2>{0.015, 0.013}));
    EXPECT_EQ(p.header.headerSoilFactor, (std::array<double, 2>{0.002, 0.0018}));
    EXPECT_EQ(p.extraPower.extraPower, (modCalculations::ExtraPower{1, 0.85, 0.5}));
    EXPECT_EQ(p.water.headerWaterTemp, (std::array<double, 4>{74, 44, 76, 43.5}));
    EXPECT_EQ(p.header.headerHeadLoss, (std::array<double, 4>{1.8, 2.1, 2.5, 2.9}));
    EXPECT_EQ(p.header.headerLength, (std::array<double, 4>{120, 200, 60, 40}));
    EXPECT_EQ(p.conditions.flowRate, 3.4);
    EXPECT_EQ(p.fluid.percentAntifreeze, 20);
    EXPECT_EQ(p.fluid.fluidTypeIndex, 4);
    EXPECT_EQ(p.fluid.density, 63.6);
    EXPECT_EQ(p.fluid.specificHeat, 0.95);
    EXPECT_EQ(p.soil.groundTemp, 58);
    EXPECT_EQ(p.soil.headerDepth, 5);
    EXPECT_EQ(p.soil.airTempSwing, 24);
    EXPECT_EQ(p.soil.soilType, 2);
    EXPECT_EQ(p.soil.soilDiffusivity, 0.96);
    EXPECT_EQ(p.loop.loopStyle, 1);
    EXPECT_EQ(p.loop.loopPipeSize, 1);
    EXPECT_EQ(p.loop.loopPipeOutsideDiameter, 1.315);
    EXPECT_EQ(p.loop.extraEqvLength, 15);
    EXPECT_EQ(p.details.surfaceArea, 40000);
    EXPECT_EQ(p.details.loopPipeDepth, 8);
    EXPECT_EQ(p.details.surfaceWaterType, 1);
    EXPECT_EQ(p.extraPower.motorEfficiency[0], 80);
    EXPECT_EQ(p.loads.activeSeries, "AcmeSeries A");
    EXPECT_EQ(p.loads.zoneNumber, 12);
    EXPECT_EQ(p.annualGroundLoad, 3.125);
    EXPECT_EQ(p.results->loads.peakLoad, (ByMode<double>{96, 84}));
    EXPECT_EQ(p.results->demand.peakDemand, (ByMode<double>{6.95, 6.1}));
    EXPECT_EQ(p.results->cop.heatPumpCOP, (ByMode<double>{3.96, 3.88}));
    EXPECT_EQ(p.results->cop.systemCOP, (ByMode<double>{3.33, 3.24}));
    EXPECT_EQ(p.results->outlet.systemFlow, (ByMode<double>{27.2, 23.8}));
    EXPECT_EQ(p.results->loopLength, (ByMode<double>{2359.5, 2019.5}));
    EXPECT_EQ(p.loop.parallelLoops, (ByMode<std::int16_t>{9, 4}));
    EXPECT_EQ(p.results->loops.maxParallelLoops, (ByMode<double>{9.5, 5}));
    EXPECT_EQ(p.results->approach.approachTemp, (ByMode<double>{11.25, -7.0625}));
    EXPECT_EQ(p.results->headLoss.loopLoss, (ByMode<double>{8.875, 20.275}));
    EXPECT_EQ(p.results->headLoss.headerLoss, (ByMode<double>{16.52, 19.24}));
    EXPECT_EQ(p.loads.linkType, "frmZoneManage");
}

TEST_F(SurfaceWaterFile, IsWrittenAsItWasRead) {
    EXPECT_EQ(projectText(pondProjectIn(newPondFile())), newPondFile());
}

TEST_F(SurfaceWaterFile, TellsTheRestOfAPipeAndOfTheFlows) {
    const SurfaceWaterProject p = pondProjectIn(newPondFile());
    EXPECT_EQ(p.header.headerOutsideDiameter, (std::array<double, 2>{3.5, 2.375}));
    EXPECT_EQ(p.results->loops.parallelLoops, (ByMode<std::int16_t>{9, 4}));
    EXPECT_EQ(p.results->flows.primaryHeaderFlow, (ByMode<double>{13.6, 11.9}));  // 27.2/2, 23.8/2
    EXPECT_NEAR(p.results->flows.branchHeaderFlow[cooling], 13.6 / 3, 1e-12);
    EXPECT_NEAR(p.results->flows.circuitFlow[heating], 23.8 / 4, 1e-12);
}

TEST_F(SurfaceWaterFile, KeepsFactorsThatNoPipeHas) {
    std::string bytes = newPondFile();
    bytes.replace(bytes.find("\r\n0.015\r\n"), 9, "\r\n0.5\r\n");
    EXPECT_EQ(pondProjectIn(bytes).header.headerWaterFactor[0], 0.5);
}

TEST_F(SurfaceWaterFile, WithoutLoopsIsReadAndTellsNoFlow) {
    std::string bytes = newPondFile();
    bytes.replace(bytes.find("\r\n2359.5\r\n9\r\n"), 13, "\r\n2359.5\r\n0\r\n");
    const SurfaceWaterProject p = pondProjectIn(bytes);
    EXPECT_EQ(p.loop.parallelLoops, (ByMode<std::int16_t>{0, 4}));
    EXPECT_EQ(p.results->flows, modCalculations::PipeFlows());
}

TEST_F(SurfaceWaterFile, OfVersionOneHasNoLink) {
    const SurfaceWaterProject p = pondProjectIn(oldPondFile());
    EXPECT_EQ(p.loads.linkType, "");
    EXPECT_EQ(p.results->headLoss.headerLoss, (ByMode<double>{16.52, 19.24}));
    SurfaceWaterProject linked;
    linked.loads.linkType = "frmAvgBlock";
    readProjectText(oldPondFile(), linked);
    EXPECT_EQ(linked.loads.linkType, "");
}

TEST_F(SurfaceWaterFile, OfAnOldVersionIsReadByItsEncodingAndSavedAsTheNewest) {
    SurfaceWaterProject old = pondProjectIn(bytesOf(sampleProject("surface_water_1.2.vht")));
    EXPECT_EQ(old.information.projectName, "M\u00FChlteich");
    EXPECT_EQ(old.information.comments, "Measured in August:\r\n77 degrees at 8 feet");
    EXPECT_EQ(old.loads.linkType, "");
    const std::string newest = bytesOf(sampleProject("surface_water_3.0.vht"));
    EXPECT_EQ(projectText(pondProjectIn(newest)), newest);
    // They differ in encoding, version and the line of the link.
    old.loads.linkType = "frmZoneManage";
    EXPECT_EQ(projectText(old), newest);
}

TEST_F(SurfaceWaterFile, CutAtAnyLineKeepsTheValuesReadAndTellsTheEnd) {
    const std::string whole = newPondFile();
    for (std::size_t end = whole.find('\n', whole.find("#2024-09-01#")); end + 1 < whole.size();
         end = whole.find('\n', end + 1)) {
        SCOPED_TRACE(end);
        SurfaceWaterProject project;
        try {
            readProjectText(whole.substr(0, end + 1), project);
            ADD_FAILURE() << "nothing was missed";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number(), 62);
        }
        EXPECT_EQ(project.information.projectName, "Mill pond");
    }
}

TEST_F(SurfaceWaterFile, DamagedAnywhereNeverEndsInACrash) {
    const std::string whole = newPondFile();
    int read = 0;
    for (std::size_t at = 0; at < whole.size(); ++at)
        for (const char byte : {'9', '-', '\n', 'e'}) {
            std::string changed = whole;
            changed[at] = byte;
            SurfaceWaterProject project;
            try {
                readProjectText(changed, project);
                ++read;
            } catch (const RunTimeError& error) {
                EXPECT_TRUE(error.number() == 62 || error.number() == 6) << error.number();
            }
        }
    EXPECT_GT(read, 0);
}

TEST_F(SurfaceWaterFile, OpensInAWindowOfItsKindWithItsResultsCurrent) {
    writeBytes(folder / "work files/mill.vht", oldPondFile());
    frmSWDesign& d = openPond("work files/mill.vht");
    EXPECT_EQ(messages(), 0u);
    EXPECT_EQ(d.caption(), "Surface Water Design Project - mill.vht");
    EXPECT_FALSE(d.isStale());
    EXPECT_EQ(d.control("CALoopLengthLabel(0)").caption(), "2359.5");
    EXPECT_EQ(d.control("CALoopNumberLabel(1)").caption(), "4.0");
    EXPECT_EQ(d.control("CAApproachTempLabel(1)").caption(), "-7.1");
    EXPECT_EQ(d.control("CATotalLossLabel(0)").caption(), "25.4");
    EXPECT_EQ(d.control("CALoopLengthLabel(1)").forecolor(), colours::greyed);
    EXPECT_EQ(d.control("SOCorrectedTempText(0)").text(), "71.5");
    EXPECT_TRUE(d.control("PISlinkyOption").checked());
    EXPECT_TRUE(d.control("PIHeaderLengthText(2)").enabled());
}

TEST_F(SurfaceWaterFile, SavedByItsWindowIsTheSame) {
    writeBytes(folder / "work files/mill.vht", oldPondFile());
    openPond("work files/mill.vht");
    main.click("mnuFileSave");
    EXPECT_EQ(bytesOf(folder / "work files/mill.vht"),
              pondHead("3.0") + linesOf(pondLines) + "\r\n");
}

TEST_F(SurfaceWaterFile, GivesTheNextDesignItsDefaultsInAnOrderOfTheirOwn) {
    writeBytes(folder / "work files/mill.vht", oldPondFile());
    openPond("work files/mill.vht");
    main.click("mnuFileSave");
    // The motor's efficiency, 80, stands before the details here.
    EXPECT_EQ(
        bytesOf(ini()),
        "Varnholt Initialization File Version 3.0\r\nSurface Water Design\r\n" +
            linesOf(
                {"86.5", "96.25", "66",    "54",   "2.7", "205",   "71.5", "77",  "38.5",
                 "32.5", "71",    "101",   "4.1",  "20",  "44.75", "43",   "3.4", "20",
                 "4",    "",      "63.6",  "0.95", "58",  "5",     "24",   "2",   "0.96",
                 "1",    "1",     "1.315", "15",   "80",  "40000", "8",    "1",   "AcmeSeries A"}));
}

TEST_F(SurfaceWaterFile, LeavesTheNextDesignWhatItsDefaultsDoNotHold) {
    writeBytes(folder / "work files/mill.vht", oldPondFile());
    openPond("work files/mill.vht");
    main.click("mnuFileSave");
    const SurfaceWaterProject& next = newPond().project();
    EXPECT_EQ(next.details.surfaceArea, 40000);
    EXPECT_EQ(next.extraPower.motorEfficiency[0], 80);
    EXPECT_EQ(next.soil.soilDiffusivity, 0.96);
    EXPECT_EQ(next.soil.groundTempAtDepth, (ByMode<double>{71.5, 44.75}));
    EXPECT_EQ(next.water.loopWaterTemp, (ByMode<double>{77, 43}));
    EXPECT_EQ(next.water.headerWaterTemp, WaterTemperatures().headerWaterTemp);
    EXPECT_EQ(next.header, HeaderValues());
    EXPECT_EQ(next.loop.loopHeadLoss, LoopValues().loopHeadLoss);
    EXPECT_EQ(next.loop.parallelLoops, LoopValues().parallelLoops);
    EXPECT_EQ(next.extraPower.extraPower, modCalculations::ExtraPower());
    EXPECT_EQ(next.results->loopLength, (ByMode<double>{0, 0}));
}

TEST_F(SurfaceWaterFile, WithoutDefaultsBeginsWithTheBuiltInValues) {
    EXPECT_EQ(newPond().project().soil.groundTemp, 62);
    EXPECT_EQ(messages(), 0u);
    EXPECT_FALSE(fileExists(ini()));
}

TEST_F(SurfaceWaterFile, CutDefaultsKeepTheValuesReadAndTellTheEnd) {
    writeBytes(ini(),
               "Varnholt Initialization File Version 3.0\r\nSurface Water Design\r\n86.5\r\n");
    const frmSWDesign& d = newPond();
    EXPECT_EQ(lastMessage(), "Varnholt - Input past end of file");
    EXPECT_EQ(d.conditions().inletTemp, (ByMode<double>{86.5, 50}));
}

TEST_F(SurfaceWaterFile, DoesNotTouchTheBoreholesDefaults) {
    frmSWDesign& d = newPond();
    d.type("SOGroundTempText", "51");
    pick("work files/mill.vht");
    main.click("mnuFileSaveAs");
    EXPECT_TRUE(fileExists(ini()));
    EXPECT_FALSE(fileExists(folder / "vhtbh.ini"));
    EXPECT_EQ(newDesign().project().soil.groundTemp, 62);
    EXPECT_EQ(newPond().project().soil.groundTemp, 51);
}

TEST_F(SurfaceWaterFile, FindsItsLoadsAgainAndKeepsItsResults) {
    writeZones(folder / "zones/school.zon", 3);
    main.click("mnuZoneManage");
    loads().LOOpenZoneFile(folder / "zones/school.zon");
    frmSWDesign& made = newPond();
    main.click("mnuLink");
    made.CACalculateCommand_Click();
    const double length = made.results().loopLength[cooling];
    ASSERT_GT(length, 0);
    main.activate(made);
    pick("work files/school.vht");
    main.click("mnuFileSaveAs");
    closeAll();
    frmSWDesign& again = openPond("work files/school.vht");
    EXPECT_NE(again.link(), nullptr);
    EXPECT_EQ(again.project().loads.zoneNumber, 3);
    EXPECT_EQ(again.results().loopLength[cooling], length);
    EXPECT_FALSE(again.isStale());
    EXPECT_FALSE(again.control("NoticeLabel").visible());
}

}  // namespace
}  // namespace varnholt
