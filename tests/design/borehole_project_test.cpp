// SPDX-License-Identifier: GPL-3.0-or-later
// The project as a value, and the run as a function of it. The figures are those of
// docs/hand-check.md.
#include "design/borehole_project.h"
#include "design/differ.h"

#include <gtest/gtest.h>

#include "design/borehole_run.h"
#include "design/design_undo.h"

namespace varnholt {
namespace {

BoreholeProject handCheckProject() {
    BoreholeProject project;
    project.loads.zones = handCheckZones();
    project.loads.zoneNumber = 2;
    project.arrangement.patternRows = {3, 2};
    project.extraPower.extraPower[modCalculations::circulationPumpInput] = 2 * 0.74571 / 0.85;
    project.extraPower.extraPower[modCalculations::additionalPower] = 0.5;
    return project;
}

TEST(BoreholeProjects, AreCopiedAndComparedAsValues) {
    const BoreholeProject project = handCheckProject();
    BoreholeProject copy = project;
    EXPECT_TRUE(copy == project);
    copy.soil.groundTemp = 58;
    EXPECT_FALSE(copy == project);
    EXPECT_EQ(project.soil.groundTemp, 62);
    copy = project;
    copy.results.edit().lengths.boreLength = {1, 2};
    EXPECT_FALSE(copy == project);
    copy = project;
    copy.loads.zones.edit(1).days = 6;
    EXPECT_FALSE(copy == project);
    copy.loads.zones.edit(1).days = 7;
    EXPECT_TRUE(copy == project);
}

TEST(BoreholeProjects, ShareZonesAndResultsWithTheirCopiesUntilOneIsWrittenTo) {
    const BoreholeProject project = handCheckProject();
    BoreholeProject copy = project;
    EXPECT_TRUE(copy.loads.zones.isSameAs(project.loads.zones));
    EXPECT_TRUE(copy.results.isSameAs(project.results));
    copy.loads.zones.edit(0).title = "South";
    EXPECT_FALSE(copy.loads.zones.isSameAs(project.loads.zones));
    EXPECT_FALSE(copy.loads.zones.sharesZone(0, project.loads.zones));
    EXPECT_TRUE(copy.loads.zones.sharesZone(1, project.loads.zones));
    EXPECT_EQ(project.loads.zones[0].title, "");
    copy.results.edit().annualGroundLoad = 1;
    EXPECT_EQ(project.results->annualGroundLoad, 0);
}

TEST(BoreholeRun, AgreesWithTheWorkingByHand) {
    const std::optional<BoreholeResults> found = runBorehole(inputsOf(handCheckProject(), false));
    ASSERT_TRUE(found);
    EXPECT_NEAR(found->lengths.boreLength[cooling], 1910.475, 1e-2);
    EXPECT_NEAR(found->lengths.boreLength[heating], 1010.005, 1e-2);
    EXPECT_NEAR(found->annualGroundLoad, -9.474228, 1e-5);
    EXPECT_NEAR(found->outlet.outletTemp[cooling], 94.92609, 1e-5);
    EXPECT_NEAR(found->cop.systemCOP[heating], 2.466871, 1e-5);
}

TEST(BoreholeRun, LeavesItsInputsAndTheirZonesWhereTheyAre) {
    const BoreholeProject project = handCheckProject();
    const BoreholeInputs inputs = inputsOf(project, false);
    EXPECT_TRUE(inputs.loads.zones.isSameAs(project.loads.zones));
    const std::optional<BoreholeResults> found = runBorehole(inputs);
    EXPECT_TRUE(found->inputs == inputs);
    EXPECT_TRUE(found->inputs->loads.zones.isSameAs(project.loads.zones));
    EXPECT_TRUE(project == handCheckProject());
}

TEST(BoreholeRun, FindsTheSameAgainFromTheInputsThatItsResultsCarry) {
    const std::optional<BoreholeResults> found = runBorehole(inputsOf(handCheckProject(), false));
    EXPECT_TRUE(runBorehole(*found->inputs) == found);
}

TEST(BoreholeRun, FindsNothingWithoutALoad) {
    BoreholeProject project = handCheckProject();
    project.loads.zones = {Zone{}};
    EXPECT_FALSE(runBorehole(inputsOf(project, false)));
    project.loads.zones.clear();
    EXPECT_FALSE(runBorehole(inputsOf(project, false)));
}

TEST(BoreholeRun, CountsNoMoreZonesThanTheProjectSays) {
    BoreholeProject project = handCheckProject();
    project.loads.zoneNumber = 1;
    const BoreholeInputs inputs = inputsOf(project, false);
    EXPECT_EQ(inputs.loads.zones.size(), 1U);
    EXPECT_EQ(project.loads.zones.size(), 2U);
    EXPECT_EQ(runBorehole(inputs)->loads.peakLoad[cooling], 42);
}

TEST(BoreholeInputs, DifferWhereARunWouldFindSomethingElse) {
    const BoreholeProject project = handCheckProject();
    const BoreholeInputs then = inputsOf(project, false);
    EXPECT_FALSE(differ(then, then));
    const std::function<void(BoreholeProject&)> changes[] = {
        [](BoreholeProject& of) { of.soil.groundTemp = 58; },
        [](BoreholeProject& of) { of.bore.boreResistance = 0.2; },
        [](BoreholeProject& of) { of.arrangement.predictionTime = 11; },
        [](BoreholeProject& of) { of.conditions.inletTemp[heating] = 45; },
        [](BoreholeProject& of) { of.conditions.flowRate = 2.5; },
        [](BoreholeProject& of) { of.fluid.density = 64; },
        [](BoreholeProject& of) { of.extraPower.extraPower[0] = 3; },
        [](BoreholeProject& of) { of.loads.zones.edit(0).gains[0][cooling] = 99; },
        [](BoreholeProject& of) { of.loads.zones.edit(0).pump.watts[cooling] = 9; },
        [](BoreholeProject& of) { of.loads.zoneNumber = 1; },
    };
    for (std::size_t i = 0; i < std::size(changes); ++i) {
        BoreholeProject changed = project;
        changes[i](changed);
        EXPECT_TRUE(differ(then, inputsOf(changed, false))) << i;
    }
}

TEST(BoreholeInputs, DoNotDifferByWhatARunDoesNotRead) {
    const BoreholeProject project = handCheckProject();
    const BoreholeInputs then = inputsOf(project, false);
    const std::function<void(BoreholeProject&)> changes[] = {
        [](BoreholeProject& of) { of.information.projectName = "School"; },
        [](BoreholeProject& of) { of.tower.tower.range = 12; },
        [](BoreholeProject& of) { of.loads.zones.edit(0).name = "Zone 9"; },
        [](BoreholeProject& of) { of.loads.zones = handCheckZones(); },
        [](BoreholeProject& of) { of.loads.linkType = "frmZoneManage"; },
        [](BoreholeProject& of) { of.results.edit().annualGroundLoad = 1; },
    };
    for (std::size_t i = 0; i < std::size(changes); ++i) {
        BoreholeProject changed = project;
        changes[i](changed);
        EXPECT_FALSE(differ(then, inputsOf(changed, false))) << i;
    }
}

class RunsOfTheWindow : public DesignUndo {
 protected:
    /// The window's results, and what the function finds for its project now.
    void expectAgreement(bool hybridOn) {
        const std::optional<BoreholeResults> found =
            runBorehole(inputsOf(design->project(), hybridOn));
        ASSERT_TRUE(found);
        EXPECT_TRUE(design->results().lengths == found->lengths);
        EXPECT_TRUE(design->results() == *found);
    }
};

TEST_F(RunsOfTheWindow, AreThoseOfTheFunction) {
    calculate();
    expectAgreement(false);
    EXPECT_NEAR(design->GetL(cooling), 1910.475, 1e-2);
    typeAndLeave("SOGroundTempText", "58");
    typeAndLeave("PATimeText", "20");
    design->choose("FLFluidTypeCombo", 1);
    inMetric();
    calculate();
    expectAgreement(false);
}

TEST_F(RunsOfTheWindow, WithTheTowerAreThoseOfTheFunction) {
    calculate();
    slide(30);
    // The run of the slider started from the range that the tower had before.
    const BoreholeInputs from = *design->results().inputs;
    EXPECT_TRUE(from.loads.hybridOn);
    EXPECT_EQ(from.loads.hybridPercent, 30);
    EXPECT_TRUE(runBorehole(from) == design->results());
    EXPECT_TRUE(design->project().tower.tower == design->results().tower);
}

TEST_F(RunsOfTheWindow, TakeTheZonesOfTheProjectWithoutACopy) {
    calculate();
    EXPECT_TRUE(design->results().inputs->loads.zones.isSameAs(design->ZoneList()));
}

}  // namespace
}  // namespace varnholt
