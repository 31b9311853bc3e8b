// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/borehole_warnings.h"

#include <gtest/gtest.h>

namespace varnholt {
namespace {

using Concern = BoreholeWarning::Concern;

/// After a run: 24 bores of 250 ft in cooling, water in at 85 and out at 95, in at 50 and out at
/// 44; the means are 90 and 47 degF.
BoreholeProject afterRun(double groundTemp) {
    BoreholeProject project;
    project.soil.groundTemp = groundTemp;
    BoreholeResults& results = project.results.edit();
    results.inputs.emplace();
    results.inputs->soil.groundTemp = groundTemp;
    results.inputs->arrangement = project.arrangement;
    results.inputs->loads.inletTemp = {85, 50};
    results.outlet.outletTemp = {95, 44};
    results.loads.peakLoad = {100, 80};
    results.lengths.boreLength = {24 * 250.0, 24 * 200.0};
    return project;
}

TEST(BoreholeWarnings, AreNoneForAnOrdinaryField) {
    EXPECT_TRUE(warningsOf(BoreholeProject()).empty());
    EXPECT_TRUE(warningsOf(afterRun(62)).empty());
}

TEST(BoreholeWarnings, TellOfGroundWithinFiveDegreesOfTheMeanFluid) {
    const auto warm = warningsOf(afterRun(52));  // 52 - 47
    ASSERT_EQ(warm.size(), 1U);
    EXPECT_EQ(warm[0], (BoreholeWarning{Concern::groundNearFluid, heating, 47, 5}));
    EXPECT_TRUE(warningsOf(afterRun(52.1)).empty());
    const auto hot = warningsOf(afterRun(86));
    ASSERT_EQ(hot.size(), 1U);
    EXPECT_EQ(hot[0].mode, cooling);
}

TEST(BoreholeWarnings, SayNothingOfTheGroundInAModeWithoutALoadOrBeforeARun) {
    BoreholeProject project = afterRun(52);
    project.results.edit().loads.peakLoad[heating] = 0;
    EXPECT_TRUE(warningsOf(project).empty());
    project = afterRun(52);
    project.results.edit().inputs.reset();
    EXPECT_TRUE(warningsOf(project).empty());
}

TEST(BoreholeWarnings, TellOfBoresThatTouch) {
    BoreholeProject project;
    project.bore.boreDiameter = 6;
    project.arrangement.boreSeparation = 0.5;  // 6 in
    const auto warnings = warningsOf(project);
    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_EQ(warnings[0], (BoreholeWarning{Concern::boresTouch, cooling, 6, 0.5}));
    project.arrangement.boreSeparation = 0.51;
    EXPECT_TRUE(warningsOf(project).empty());
    project.arrangement.boreSeparation = 0.5;
    project.arrangement.patternRows = {1, 1};  // nothing to touch
    EXPECT_TRUE(warningsOf(project).empty());
}

TEST(BoreholeWarnings, TellOfBoresDeeperThanSixHundredFeetInTheModeThatGoverns) {
    BoreholeProject project = afterRun(62);
    project.results.edit().lengths.boreLength = {24 * 600.0, 24 * 601.0};
    const auto warnings = warningsOf(project);
    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_EQ(warnings[0], (BoreholeWarning{Concern::boreTooDeep, heating, 601, 600}));
    project.results.edit().lengths.boreLength = {24 * 600.0, 0};
    EXPECT_TRUE(warningsOf(project).empty());
}

}  // namespace
}  // namespace varnholt
