// SPDX-License-Identifier: GPL-3.0-or-later
// The files of horizontal designs: the project, and the defaults that the next one begins with.
#include <algorithm>

#include "design/frmHZDesign.h"
#include "persistence/project_fixture.h"
#include "persistence/project_lines.h"

namespace varnholt {
namespace {

/// The body of a project, line by line, each value another one.
const std::vector<std::string> trenchLines{
    // temperatures, diameters, least flow, kept pairs
    "86.5,38.5", "96.25,32.5", "66,71", "54,101", "1.315,1.08", "2.7,4.1", "7,8", "0.5,0.25",
    // extra power
    "1", "0.85", "0.5", "2.5", "2", "1.25", "1.125",
    // fluid
    "3.4", "20", "7", "Glycol, 20 %", "63.6", "0.95",
    // soil and its year
    "58", "1.25", "0.8", "24", "205,20",
    // pipe
    "2", "1", "3", "1", "0.125",
    // arrangement, pipes, trenches
    "2", "12", "5", "15,7.5,40", "1", "9,16", "18,30", "12.5",
    // kept numbers, motor, zones and pumps
    "1.75", "99", "3", "80", "12", "AcmeSeries A", "", "",
    // results
    "-3.125", "0.2,0.7,0.375", "96,84", "6.95,6.1", "3.96,3.88", "3.33,3.24", "27.2,23.8",
    "-0.9,-0.45", "2359.5,2019.5", "2400.5,2100.25", "4,5", "6,9", "0.75,0.375",
    // link and tower
    "frmZoneManage", "30", "36.5", "40.25", "7.5", "9.25", "937.5", "75,70"};

std::string trenchHead(const std::string& version) {
    return projectHead(version, "Horizontal Design", "Mill house");
}

std::string newTrenchFile() { return trenchHead("3.0") + linesOf(trenchLines); }
/// Every line is there in every version.
std::string oldTrenchFile() { return bytesOf(sampleProject("horizontal_1.1.vht")); }

HorizontalProject trenchProjectIn(const std::string& bytes) {
    HorizontalProject project;
    readProjectText(bytes, project);
    return project;
}

class HorizontalFile : public ProjectTest {
 protected:
    HorizontalFile() { texts.known[5001] = "Horizontal Design Project"; }

    frmHZDesign& field() {
        return dynamic_cast<frmHZDesign&>(*main.windowsNamed("frmHZDesign").back());
    }
    frmHZDesign& newField() {
        main.click("NewHorizontal");
        return field();
    }
    frmHZDesign& openField(const std::string& path) {
        pick(path);
        main.click("mnuFileOpen");
        return field();
    }
    std::string ini() const { return folder / "vhthz.ini"; }
};

TEST_F(HorizontalFile, HoldsEveryValueInItsOrder) {
    const HorizontalProject p = trenchProjectIn(newTrenchFile());
    EXPECT_EQ(p.information.projectName, "Mill house");
    EXPECT_EQ(p.conditions.inletTemp, (ByMode<double>{86.5, 38.5}));
    EXPECT_EQ(p.results->outlet.outletTemp, (ByMode<double>{96.25, 32.5}));
    EXPECT_EQ(p.conditions.inletLoadAirTemp, (ByMode<double>{66, 71}));
    EXPECT_EQ(p.conditions.inletLoadWaterTemp, (ByMode<double>{54, 101}));
    EXPECT_EQ(p.pipe.pipeDiameter, (std::array<double, 2>{1.315, 1.08}));
    EXPECT_EQ(p.conditions.minflowRate, (ByMode<double>{2.7, 4.1}));
    EXPECT_EQ(p.remainder.inputNumbers, (std::array<double, 2>{7, 8}));
    EXPECT_EQ(p.remainder.inputDoubles, (std::array<double, 2>{0.5, 0.25}));
    EXPECT_EQ(p.extraPower.extraPower,
              (modCalculations::ExtraPower{1, 0.85, 0.5, 2.5, 2, 1.25, 1.125}));
    EXPECT_EQ(p.conditions.flowRate, 3.4);
    EXPECT_EQ(p.fluid.percentAntifreeze, 20);
    EXPECT_EQ(p.fluid.fluidTypeIndex, 7);
    EXPECT_EQ(p.fluid.fluidName, "Glycol, 20 %");
    EXPECT_EQ(p.fluid.density, 63.6);
    EXPECT_EQ(p.fluid.specificHeat, 0.95);
    EXPECT_EQ(p.soil.groundTemp, 58);
    EXPECT_EQ(p.soil.conductivity, 1.25);
    EXPECT_EQ(p.soil.diffusivity, 0.8);
    EXPECT_EQ(p.groundTemperature.airTempSwing, 24);
    EXPECT_EQ(p.groundTemperature.extremeDay, (ByMode<std::int16_t>{205, 20}));
    EXPECT_EQ(p.pipe.pipeSizeIndex, 2);
    EXPECT_EQ(p.remainder.uTubeConfig, 1);
    EXPECT_EQ(p.pipe.pipeSdrIndex, 3);
    EXPECT_EQ(p.pipe.flowTypeIndex, 1);
    EXPECT_EQ(p.pipe.pipeResistance, 0.125);
    EXPECT_EQ(p.arrangement.trenchConfiguration, 2);
    EXPECT_EQ(p.arrangement.pipesPerTrench, 12);
    EXPECT_EQ(p.trench.trenchCount, 5);
    EXPECT_EQ(p.trench.trenchGeometry, (std::array<double, 3>{15, 7.5, 40}));
    EXPECT_EQ(p.arrangement.offsetRows, 1);
    EXPECT_EQ(p.arrangement.pipeSeparation, (std::array<double, 2>{9, 16}));
    EXPECT_EQ(p.arrangement.coilGeometry, (std::array<double, 2>{18, 30}));
    EXPECT_EQ(p.arrangement.predictionYears, 12.5);
    EXPECT_EQ(p.remainder.numbers, (std::array<double, 3>{1.75, 99, 3}));
    EXPECT_EQ(p.extraPower.motorEfficiency, (std::array<double, 3>{80, 75, 70}));
    EXPECT_EQ(p.loads.zoneNumber, 12);
    EXPECT_EQ(p.loads.activeSeries, "AcmeSeries A");
    EXPECT_EQ(p.results->annualGroundLoad, -3.125);
    EXPECT_EQ(p.results->groundResistance, (modCalculations::GroundResistances{0.2, 0.7, 0.375}));
    EXPECT_EQ(p.results->loads.peakLoad, (ByMode<double>{96, 84}));
    EXPECT_EQ(p.results->demand.peakDemand, (ByMode<double>{6.95, 6.1}));
    EXPECT_EQ(p.results->cop.heatPumpCOP, (ByMode<double>{3.96, 3.88}));
    EXPECT_EQ(p.results->cop.systemCOP, (ByMode<double>{3.33, 3.24}));
    EXPECT_EQ(p.results->outlet.systemFlow, (ByMode<double>{27.2, 23.8}));
    EXPECT_EQ(p.results->lengths.temperaturePenalty, (ByMode<double>{-0.9, -0.45}));
    EXPECT_EQ(p.results->requiredLength, (ByMode<double>{2359.5, 2019.5}));
    EXPECT_EQ(p.results->totalPipeLength, (ByMode<double>{2400.5, 2100.25}));
    EXPECT_EQ(p.results->governingMode, cooling);
    EXPECT_EQ(p.remainder.resultFlags, (std::array<double, 2>{4, 5}));
    EXPECT_EQ(p.remainder.resultNumbers, (std::array<double, 2>{6, 9}));
    EXPECT_EQ(p.remainder.resultDoubles, (std::array<double, 2>{0.75, 0.375}));
    EXPECT_EQ(p.loads.linkType, "frmZoneManage");
    EXPECT_EQ(p.tower.hybridPercent, 30);
    EXPECT_EQ(p.tower.tower.capacity, 36.5);
    EXPECT_EQ(p.tower.tower.capacityMax, 40.25);
    EXPECT_EQ(p.tower.tower.flow, 7.5);
    EXPECT_EQ(p.tower.tower.range, 9.25);
    EXPECT_EQ(p.tower.tower.hours, 937.5);
}

TEST_F(HorizontalFile, IsWrittenAsItWasRead) {
    EXPECT_EQ(projectText(trenchProjectIn(newTrenchFile())), newTrenchFile());
}

TEST_F(HorizontalFile, OfANewProjectHoldsTheToldDefaults) {
    const std::string bytes = projectText(HorizontalProject());
    for (const char* line :
         {"\r\n1\r\n2\r\n1\r\n0\r\n0.075\r\n",                          // size to resistance
          "\r\n0\r\n1\r\n1\r\n20,6,8\r\n0\r\n12,12\r\n10,36\r\n10\r\n"  // trenches
          "1.9\r\n100\r\n0\r\n",
          "\r\n1,0\r\n0,0\r\n0,0\r\n", "\r\n85,85\r\n"})
        EXPECT_NE(bytes.find(line), std::string::npos) << line;
}

TEST_F(HorizontalFile, TakesItsNumbersWhereverTheLinesEnd) {
    std::string bytes = newTrenchFile();
    bytes.replace(bytes.find("\r\n15,7.5,40\r\n"), 13, "\r\n15\r\n7.5\r\n 40\r\n");
    bytes.replace(bytes.find("96,84"), 5, " 96 , 84 ");
    EXPECT_EQ(trenchProjectIn(bytes), trenchProjectIn(newTrenchFile()));
}

TEST_F(HorizontalFile, OfAnOldVersionHoldsLinkAndTowerToo) {
    const HorizontalProject p = trenchProjectIn(oldTrenchFile());
    EXPECT_EQ(p.information.projectName, "Old mill");
    EXPECT_EQ(p.arrangement.pipesPerTrench, 3);
    EXPECT_EQ(p.loads.linkType, "frmAvgBlock");
    EXPECT_EQ(p.extraPower.motorEfficiency, (std::array<double, 3>{85, 82, 78}));
    EXPECT_EQ(p.extraPower.extraPower[0], 1.5);
}

TEST_F(HorizontalFile, CutAtAnyLineKeepsTheValuesReadAndTellsTheEnd) {
    const std::string whole = newTrenchFile();
    for (std::size_t end = whole.find('\n', whole.find("#2024-09-01#")); end + 1 < whole.size();
         end = whole.find('\n', end + 1)) {
        SCOPED_TRACE(end);
        HorizontalProject project;
        try {
            readProjectText(whole.substr(0, end + 1), project);
            ADD_FAILURE() << "nothing was missed";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number(), 62);
        }
        EXPECT_EQ(project.information.projectName, "Mill house");
    }
}

TEST_F(HorizontalFile, DamagedAnywhereNeverEndsInACrash) {
    const std::string whole = newTrenchFile();
    int read = 0;
    for (std::size_t at = 0; at < whole.size(); ++at)
        for (const char byte : {'9', '-', '\n', 'e', ','}) {
            std::string changed = whole;
            changed[at] = byte;
            HorizontalProject project;
            try {
                readProjectText(changed, project);
                ++read;
            } catch (const RunTimeError& error) {
                EXPECT_TRUE(error.number() == 62 || error.number() == 6) << error.number();
            }
        }
    EXPECT_GT(read, 0);
}

TEST_F(HorizontalFile, OpensInAWindowOfItsKindWithItsResultsCurrent) {
    writeBytes(folder / "work files/mill.vht", newTrenchFile());
    frmHZDesign& d = openField("work files/mill.vht");
    EXPECT_EQ(messages(), 0u);
    EXPECT_EQ(d.caption(), "Horizontal Design Project - mill.vht");
    EXPECT_FALSE(d.isStale());
    EXPECT_EQ(d.control("CATotalPipeLengthLabel(0)").caption(), "2400.5");
    EXPECT_EQ(d.control("CATotalLengthLabel(0)").caption(), "196.6");  // 2359.5/12
    EXPECT_EQ(d.control("CATrenchLengthLabel(1)").caption(), "33.7");  // 2019.5/60
    EXPECT_EQ(d.control("CATrenchNumberLabel(0)").caption(), "5");
    EXPECT_EQ(d.control("CASoilTempChangeLabel(0)").caption(), "0.9");
    EXPECT_EQ(d.control("CATotalPipeLengthLabel(1)").forecolor(), colours::greyed);
    EXPECT_EQ(d.control("CAHybridSlider").value(), 30);
    EXPECT_TRUE(d.control("PAConfigurationOption(2)").checked());
    EXPECT_EQ(d.control("PAInTrenchConfigurationLabel(3)").caption(), "12");
    EXPECT_TRUE(d.control("PAOffsetCheck").checked());
    EXPECT_EQ(d.control("FLFluidTypeCombo").text(), "Glycol, 20 %");
}

TEST_F(HorizontalFile, OfThreePipesShowsThemAndItsArrangement) {
    writeBytes(folder / "work files/old.vht", oldTrenchFile());
    frmHZDesign& d = openField("work files/old.vht");
    EXPECT_EQ(d.control("PAInTrenchConfigurationLabel(3)").caption(), "3");
    EXPECT_TRUE(d.control("PAConfigurationOption(0)").checked());
    // Its width is kept, though three pipes with an offset of 12 in need more than 8.
    EXPECT_EQ(d.control("PASeparationText(2)").text(), "8.0");
    EXPECT_EQ(messages(), 0u);
}

TEST_F(HorizontalFile, OfACoilWithMorePipesAndAnOffsetOpensAsOnePipeWithoutOne) {
    for (const char* coil : {"3", "4"}) {
        std::vector<std::string> lines = trenchLines;
        lines[31] = coil;  // arrangement, then the pipes; the offset is in row 35
        lines[32] = "7";
        ASSERT_EQ(lines[35], "1");
        writeBytes(folder / "work files/coil.vht", trenchHead("3.0") + linesOf(lines));
        const frmHZDesign& d = openField("work files/coil.vht");
        EXPECT_EQ(d.project().arrangement.pipesPerTrench, 1) << coil;
        EXPECT_EQ(d.project().arrangement.offsetRows, 0) << coil;
        // Neither the width of 40 in nor what was found gives way to the coil's own.
        EXPECT_EQ(d.project().trench.trenchGeometry, (std::array<double, 3>{15, 7.5, 40})) << coil;
        EXPECT_EQ(d.control("CATotalLengthLabel(0)").caption(), "2359.5") << coil;
        EXPECT_FALSE(d.isStale()) << coil;
        EXPECT_EQ(messages(), 0u) << coil;
        closeAll();
    }
}

TEST_F(HorizontalFile, SavedByItsWindowIsTheSame) {
    writeBytes(folder / "work files/mill.vht", newTrenchFile());
    openField("work files/mill.vht");
    main.click("mnuFileSave");
    // Without a zone file there is no link.
    std::vector<std::string> unlinked = trenchLines;
    *std::find(unlinked.begin(), unlinked.end(), "frmZoneManage") = "";
    EXPECT_EQ(bytesOf(folder / "work files/mill.vht"), trenchHead("3.0") + linesOf(unlinked));
}

TEST_F(HorizontalFile, GivesTheNextDesignItsDefaults) {
    writeBytes(folder / "work files/mill.vht", newTrenchFile());
    openField("work files/mill.vht");
    main.click("mnuFileSave");
    // Neither the number of trenches, 5, nor the extra power stands here.
    EXPECT_EQ(
        bytesOf(ini()),
        "Varnholt Initialization File Version 3.0\r\nHorizontal Design\r\n" +
            linesOf(
                {"86.5,38.5", "96.25,32.5", "66,71",     "54,101", "1.315,1.08", "2.7,4.1",
                 "7,8",       "0.5,0.25",   "3.4",       "20",     "7",          "Glycol, 20 %",
                 "63.6",      "0.95",       "58",        "1.25",   "0.8",        "24",
                 "205,20",    "2",          "1",         "3",      "1",          "0.125",
                 "2",         "12",         "15,7.5,40", "1",      "9,16",       "18,30",
                 "12.5",      "1.75",       "99",        "3",      "80",         "AcmeSeries A"}));
}

TEST_F(HorizontalFile, LeavesTheNextDesignOneTrenchAndAllOtherValues) {
    writeBytes(folder / "work files/mill.vht", newTrenchFile());
    frmHZDesign& d = openField("work files/mill.vht");
    d.slide("PAConfigurationUpDown(0)", 12);
    main.click("mnuFileSave");
    const HorizontalProject saved = d.project();
    const HorizontalProject& next = newField().project();
    EXPECT_EQ(next.trench.trenchCount, 1);
    EXPECT_EQ(next.trench.trenchGeometry, saved.trench.trenchGeometry);
    EXPECT_EQ(next.arrangement, saved.arrangement);
    EXPECT_EQ(next.soil, saved.soil);
    EXPECT_EQ(next.groundTemperature, saved.groundTemperature);
    EXPECT_EQ(next.groundTempAtDepth, groundTempAtTrench(saved));
    EXPECT_EQ(next.pipe, saved.pipe);
    EXPECT_EQ(next.fluid, saved.fluid);
    EXPECT_EQ(next.tower.tower.range, 96.25 - 86.5);
    EXPECT_EQ(next.extraPower.extraPower, modCalculations::ExtraPower());
    EXPECT_EQ(next.results->requiredLength, (ByMode<double>{0, 0}));
}

TEST_F(HorizontalFile, WithoutDefaultsBeginsWithTheBuiltInValues) {
    EXPECT_EQ(newField().project().groundTemperature.airTempSwing, 22);
    EXPECT_EQ(messages(), 0u);
    EXPECT_FALSE(fileExists(ini()));
}

TEST_F(HorizontalFile, CutDefaultsKeepTheValuesReadAndTellTheEnd) {
    writeBytes(ini(),
               "Varnholt Initialization File Version 3.0\r\nHorizontal Design\r\n86.5,38.5\r\n");
    const frmHZDesign& d = newField();
    EXPECT_EQ(lastMessage(), "Varnholt - Input past end of file");
    EXPECT_EQ(d.conditions().inletTemp, (ByMode<double>{86.5, 38.5}));
}

TEST_F(HorizontalFile, FindsItsLoadsAgainAndKeepsItsResults) {
    writeZones(folder / "zones/school.zon", 3);
    main.click("mnuZoneManage");
    loads().LOOpenZoneFile(folder / "zones/school.zon");
    frmHZDesign& made = newField();
    main.click("mnuLink");
    made.click("PAConfigurationOption(4)");
    made.CACalculateCommand_Click();
    const double length = made.results().requiredLength[cooling];
    ASSERT_GT(length, 0);
    main.activate(made);
    pick("work files/school.vht");
    main.click("mnuFileSaveAs");
    closeAll();
    frmHZDesign& again = openField("work files/school.vht");
    EXPECT_NE(again.link(), nullptr);
    EXPECT_EQ(again.project().loads.zoneNumber, 3);
    EXPECT_EQ(again.results().requiredLength[cooling], length);
    EXPECT_FALSE(again.isStale());
}

}  // namespace
}  // namespace varnholt
