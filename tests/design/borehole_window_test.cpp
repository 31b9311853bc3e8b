// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "basis/file_system.h"
#include "borehole_window.h"
#include "expect_error.h"
#include "tools/text_table.h"

namespace varnholt {
namespace {

using BoreholeDesign = BoreholeWindow;

TEST_F(BoreholeDesign, HasSevenPages) {
    const std::vector<std::string> pages{"[2002]", "[2003]", "[2004]", "[2005]",
                                         "[2006]", "[2007]", "[2010]"};
    EXPECT_EQ(design->control("BHTabs").items(), pages);
    EXPECT_EQ(design->control("BHTabs").index(), 0);
}

TEST_F(BoreholeDesign, IsNumberedInItsCaption) {
    EXPECT_EQ(design->caption(), "[2001] #1");
    main.click("NewBorehole");
    EXPECT_EQ(main.activeWindow()->caption(), "[2001] #2");
}

TEST_F(BoreholeDesign, TakesASlotAndGivesItBack) {
    EXPECT_TRUE(main.slots(DesignKind::borehole).exists[1]);
    EXPECT_EQ(design->counter, 1);
    main.close(*design);
    EXPECT_FALSE(main.slots(DesignKind::borehole).exists[1]);
}

TEST_F(BoreholeDesign, OpensFiftyTimesAndNotOnceMore) {
    for (int i = 2; i <= 51; ++i) main.click("NewBorehole");
    EXPECT_EQ(main.windows().size(), 50u);
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::exclamation);
}

TEST_F(BoreholeDesign, StartsStale) { EXPECT_TRUE(design->isStale()); }

TEST_F(BoreholeDesign, ReadsItsDefaultsOverTheBuiltInValues) {
    double groundTempBefore = 0;
    frmBHDesign* opened = newBorehole(main, [&](frmBHDesign& window) {
        DesignFiles files;
        files.readINIFile = [&] {
            EXPECT_TRUE(window.settingUnits);
            groundTempBefore = window.project().soil.groundTemp;
            change(window, [&](BoreholeProject& of) { of.soil.groundTemp = 51.5; });
        };
        files.readProject = [] { FAIL(); };
        return files;
    });
    EXPECT_EQ(groundTempBefore, 62);
    EXPECT_EQ(opened->control("SOGroundTempText").text(), "51.5");
    EXPECT_FALSE(opened->settingUnits);
    EXPECT_TRUE(opened->isStale());
}

TEST_F(BoreholeDesign, OpenedFromAFileShowsItsResultsAsCurrent) {
    main.openCall = true;
    frmBHDesign* opened = newBorehole(main, [](frmBHDesign& window) {
        DesignFiles files;
        files.readINIFile = [] { FAIL(); };
        files.readProject = [&window] {
            window.setFile("/projects/school.vht");
            change(window, [&](BoreholeProject& of) {
                of.results.edit().lengths.boreLength = {1910.475, 1010.005};
            });
        };
        return files;
    });
    main.openCall = false;
    EXPECT_FALSE(opened->isStale());
    EXPECT_EQ(opened->caption(), "[2001] - school.vht");
    EXPECT_EQ(opened->control("CATotalLengthLabel(0)").caption(), "1910.5");
    EXPECT_EQ(opened->control("CABoreholeLengthLabel(0)").caption(), "79.6");  // 1910.475/24
}

TEST_F(BoreholeDesign, ComputesNoResistanceWhileAProjectIsOpened) {
    main.openCall = true;
    design->choose("PIPipeResistanceCombo(1)", 2);
    EXPECT_EQ(value("pipeResistance"), 0.075);
    EXPECT_EQ(value("boreResistance"), 0.196);
}

TEST_F(BoreholeDesign, AsksBeforeItClosesWhenItKnowsFiles) {
    bool mayClose = false;
    design->files.queryClose = [&] { return mayClose; };
    EXPECT_FALSE(main.close(*design));
    EXPECT_TRUE(main.isOpen(design));
    mayClose = true;
    EXPECT_TRUE(main.close(*design));
}

TEST_F(BoreholeDesign, StartsInTheUnitsOfTheMainWindow) {
    main.close(*design);
    main.click("Metric");
    main.click("NewBorehole");
    design = dynamic_cast<frmBHDesign*>(main.activeWindow());
    EXPECT_TRUE(design->control("MetricCheck").checked());
    EXPECT_EQ(textOf("FLInletTempText(0)"), "29.4");
    EXPECT_EQ(captionOf("CAUnitInletLabel(2)"), "[2109]");
}

TEST_F(BoreholeDesign, KeepsStoredValuesAndTheStaleMarkWhenUnitsSwitch) {
    typeAndLeave("FLInletTempText(0)", "86.37");
    const FluidValues fluid = design->project().fluid;
    const SoilValues soil = design->project().soil;
    const PipeValues pipe = design->project().pipe;
    const BoreValues bore = design->project().bore;
    design->calculationDone();
    for (int i = 0; i < 5; ++i) {
        inMetric();
        inEnglish();
    }
    EXPECT_EQ(value("inletTemp(0)"), 86.37);
    EXPECT_EQ(design->project().fluid, fluid);
    EXPECT_EQ(design->project().soil, soil);
    EXPECT_EQ(design->project().pipe, pipe);
    EXPECT_EQ(design->project().bore, bore);
    EXPECT_FALSE(design->isStale());
    design->calculationNeeded();
    inMetric();
    EXPECT_TRUE(design->isStale());
}

TEST_F(BoreholeDesign, CanCalculateAgainOnceTheUnitsAreSwitched) {
    design->click("MetricCheck");
    EXPECT_TRUE(design->control("CACalculateCommand").enabled());
    EXPECT_FALSE(design->settingUnits);
    EXPECT_EQ(textOf("FLInletTempText(0)"), "29.4");
    EXPECT_TRUE(main.control("Metric").checked());
}

TEST_F(BoreholeDesign, RestoresTheGuardThatItFoundWhenUnitsSwitch) {
    design->settingUnits = true;
    design->switchUnits(UnitSystem::metric);
    EXPECT_TRUE(design->settingUnits);
}

TEST_F(BoreholeDesign, TakesNoTypingWhileCodeRewritesTheFields) {
    design->settingUnits = true;
    type("SOGroundTempText", "70");
    EXPECT_EQ(value("groundTemp"), 62);
}

TEST_F(BoreholeDesign, HasTheDefaultsThatNoFieldShows) {
    EXPECT_EQ(value("inletLoadAirTemp(0)"), 67);
    EXPECT_EQ(value("inletLoadAirTemp(1)"), 70);
    EXPECT_EQ(value("inletLoadWaterTemp(0)"), 55);
    EXPECT_EQ(value("inletLoadWaterTemp(1)"), 100);
    EXPECT_EQ(value("temporaryInletTemp(0)"), 67);
    EXPECT_EQ(value("temporaryInletTemp(1)"), 70);
    EXPECT_EQ(value("minflowRate(0)"), 2.8);
    EXPECT_EQ(value("minflowRate(1)"), 4.2);
    EXPECT_EQ(value("outletTemp(0)"), 85);
    EXPECT_EQ(value("outletTemp(1)"), 50);
    EXPECT_EQ(value("coolingRange"), 0);
}

TEST_F(BoreholeDesign, PublishesTheTablesOfPipesAndShapes) {
    EXPECT_EQ(value("pipeTable(0,1,0)"), 1.05);
    EXPECT_EQ(value("pipeTable(0,1,1)"), 0.86);  // SDR 11: less two walls of 1.05 / 11 in
    expectError(9, [this] { value("pipeTable(0,5,0)"); });
    expectError(9, [this] { value("pipeTable(0,1,2)"); });
    EXPECT_EQ(value("shapeFit(0)"), 17.44268);  // legs at average distance
    EXPECT_EQ(value("shapeFit(1)"), -0.605154);
}

TEST_F(BoreholeDesign, PublishesEveryValueThatAProjectStores) {
    for (const char* name : {"projectName",
                             "designerName",
                             "currentDate",
                             "projectStartDate",
                             "clientName",
                             "addressLine1",
                             "addressLine2",
                             "city",
                             "state",
                             "zip",
                             "country",
                             "phone",
                             "fax",
                             "email",
                             "comments",
                             "inletTemp(1)",
                             "outletTemp(1)",
                             "inletLoadAirTemp(1)",
                             "inletLoadWaterTemp(1)",
                             "pipeDiameter(1)",
                             "minflowRate(1)",
                             "extraPower(6)",
                             "flowRate",
                             "percentAntifreeze",
                             "fluidTypeIndex",
                             "fluidName",
                             "fluidDensity",
                             "specificHeat",
                             "groundTemp",
                             "soilConductivity",
                             "soilDiffusivity",
                             "pipeSizeIndex",
                             "pipeSdrIndex",
                             "flowTypeIndex",
                             "pipePlacement",
                             "uTubeConfig",
                             "boreDiameter",
                             "groutConductivity",
                             "pipeResistance",
                             "boreResistance",
                             "patternRows(1)",
                             "boreSeparation",
                             "boresPerCircuit",
                             "predictionTime",
                             "activeSeries",
                             "workingZoneFile",
                             "workingZoneDirectory",
                             "zoneNumber",
                             "zoneTemp.gains(3,1)",
                             "zoneTemp.pump.name",
                             "style",
                             "annualGroundLoad",
                             "peakLoad(1)",
                             "peakDemand(1)",
                             "heatPumpCOP(1)",
                             "systemCOP(1)",
                             "systemFlow(1)",
                             "boreLength(1)",
                             "linkType",
                             "hybridPercent",
                             "condenserCapacity",
                             "condenserCapacityMax",
                             "coolingTowerFlow",
                             "coolingRange",
                             "coolingTowerHours",
                             "towerMotorEfficiency(2)",
                             "temperaturePenalty(1)"})
        EXPECT_TRUE(design->values().has(name)) << name;
}

TEST_F(BoreholeDesign, PublishesEveryStateOfARun) {
    takeZones(handCheckZones());
    calculate();
    for (const char* name :
         {"blockLoad(1,3)", "peakBlock(1)", "weightedBlockLoad(0,2)", "dailyLoad(0)",
          "partLoadFactor(0)", "zoneDemand(0,1)", "zonePartLoad(1,1)", "totalCapacity(0)",
          "zonePeakTons(0,0)", "loadTonHours(1,0)", "annualTonHours(0)", "groundResistance(2)",
          "neighbourCount(4)", "previousBoreLength(0)", "coolingPeakBeforeHybrid"})
        EXPECT_NO_THROW(value(name)) << name;
    EXPECT_FALSE(std::get<bool>(design->values().read("hybridOn")));
}

TEST_F(BoreholeDesign, HasALabelForEachFieldAndAFrameForEachControl) {
    for (const auto& control : design->controls()) {
        const std::string& name = control->name();
        if (name.substr(0, 2) == "BH" || name == "MetricCheck" ||
            name.starts_with("imgLinkLight") || name.starts_with("Notice") ||
            control->kind() == ControlKind::frame)
            continue;
        EXPECT_FALSE(control->container().empty()) << name;
        if (control->kind() == ControlKind::text && !name.starts_with("IN")) {
            EXPECT_TRUE(design->has(control->label())) << name;
        }
    }
}

TEST_F(BoreholeDesign, OpensTheTablesAndCalculatorsOfTheMenu) {
    std::vector<std::string> run;
    EXPECT_FALSE(design->control("FLTablesButton").enabled());
    for (const char* entry :
         {"FluidProperties", "PipeProperties", "SoilProperties", "mnuDiffCalc", "mnuPumpPowerCalc"})
        main.setCommand(entry, CommandNeeds::nothing, [&run, entry] { run.emplace_back(entry); });
    design->activated();
    for (const char* button : {"FLTablesButton", "PIPipeTablesCommand", "SOSoilCommand(1)",
                               "SOSoilCommand(0)", "EKWPumpPowerCommand"}) {
        EXPECT_TRUE(design->control(button).enabled()) << button;
        design->click(button);
    }
    EXPECT_EQ(run, (std::vector<std::string>{"FluidProperties", "PipeProperties", "SoilProperties",
                                             "mnuDiffCalc", "mnuPumpPowerCalc"}));
}

TEST_F(BoreholeDesign, HasBeenHereOnceItWasActive) { EXPECT_TRUE(design->beenHere); }

TEST(BoreholeTexts, HoldTheCaptionsOfTheWindow) {
    TextTable table;
    const std::string file = VARNHOLT_SOURCE_DIR "/resources/language/english/2000_borehole.txt";
    table.read(readWholeFile(file), "2000_borehole.txt");
    const std::pair<int, const char*> captions[] = {
        {2101, "Calculation of Required Bore Lengths"},
        {2142, "Optional Cooling Tower"},
        {2601, "Circulation Pumps"},
        {2602, "Additional Power Requirements"},
        {2603, "Optional Cooling Tower"},
        {2501, "Ground Field Arrangement"},
        {2502, "Vertical Grid Arrangement"},
        {2505, "Separation Between Vertical Bores"},
        {2508, "Boreholes per Parallel Circuit"},
        {2509, "Modeling Time Period"},
        {2201, "Fluid Temperatures and Flow Rate"},
        {2202, "Design Fluid Inlet Temperatures"},
        {2207, "Design System Flow Rate"},
        {2211, "Solution Properties"},
        {2301, "Soil Temperatures and Properties"},
        {2302, "Undisturbed Ground Temperature"},
        {2306, "Soil Thermal Properties"},
        {2401, "Pipe Size and Thermal Resistance"},
        {2406, "Pipe Parameters"},
        {2429, "U-Tube Configuration"},
        {2422, "Backfill (Grout) Information"},
        {2423, "Borehole Diameter"},
        {2432, "Pipe Radial Placement"},
        {2402, "Borehole Equivalent Thermal Resistance"},
        {2700, "Project Information"},
        {2203, "Cooling:"},
        {2204, "Heating:"},
        {2208, "Flow Rate:"},
        {2209, "(L/min)/3.5kW"},
        {2219, "Density (rho):"},
        {2220, "kg/m^3"},
        {2216, "Specific Heat (Cp):"},
        {2217, "kJ/(degK*kg)"},
        {2213, "%"},
        {2303, "Ground Temperature:"},
        {2445, "Thermal Conductivity:"},
        {2446, "W/(m*degK)"},
        {2307, "Thermal Diffusivity:"},
        {2308, "m^2/day"},
        {2503, "Number of Rows Across:"},
        {2504, "Number of Rows Down:"},
        {2506, "Borehole Separation:"},
        {2507, "Number of Bores per Parallel Circuit:"},
        {2510, "Prediction Time:"},
        {2606, "Pump Motor Efficiency:"},
        {2609, "Motor Efficiency:"},
        {2605, "Pump Power:"},
        {2608, "Power:"},
        {2604, "Additional Power:"},
        {2712, "Date:"},
        {2713, "Project Start Date:"},
        {2714, "Comments:"},
        {2102, "COOLING"},
        {2103, "HEATING"},
        {2141, "Load Balance"},
        {2143, "Condenser Capacity (kW):"},
        {2145, "Cooling Tower Flow Rate (L/min):"},
        {2147, "Cooling Range (deg C):"},
        {2149, "Annual Operating Hours (hr/yr):"},
        {2151, "Calculation Failed!!  iterations="},
        {2410, "SDR 11"},
        {2414, "Turbulent"},
        {2421, "1 1/2\" (38 mm)"},
        {2430, "Single"},
        {2431, "Double"},
        {2433, "Along Outer Wall"},
        {2434, "Average"},
        {2435, "Close Together"},
        {2224, "Water"},
        {2104, "Total Length (m):"},
        {2106, "Borehole Number:"},
        {2107, "Borehole Length (m):"},
        {2109, "Unit Inlet (deg C):"},
        {2111, "Unit Outlet (deg C):"},
        {2113, "Total Capacity (kW):"},
        {2115, "Peak Load (kW):"},
        {2119, "Peak Demand (kW):"},
        {2118, "System COP:"},
        {2122, "Flow Rate (L/min):"},
        {2124, "Ground Temperature Change (deg C):"},
    };
    for (const auto& [number, caption] : captions) EXPECT_EQ(table.text(number), caption) << number;
}

}  // namespace
}  // namespace varnholt
