// SPDX-License-Identifier: GPL-3.0-or-later
// Whole runs of the horizontal design. The figures were worked by a second route,
// tests/independent/horizontal_road.py, which fills the whole table of pipes and images.
#include "design/horizontal_run.h"
#include "design/differ.h"

#include <gtest/gtest.h>

#include <cmath>
#include <iterator>
#include <random>

#include "design/modCalculations/pipe_resistance.h"
#include "design/modCalculations/trench_layout.h"
#include "design/modCalculations/trench_lengths.h"
#include "expect_error.h"
#include "sample_trenches.h"

namespace varnholt {
namespace {

using namespace modCalculations;

/// Fields are set by what differs from a new design.
struct RunField {
    std::int16_t arrangement = singleColumn;
    double pipes = 1;
    bool offset = false;
    double rowStep = 12, columnStep = 12;  ///< in
    double depth = 6;                      ///< ft
    double trenches = 1, separation = 20;  ///< ft
    double pitch = 10;                     ///< in
};

HorizontalInputs inputsOf(const RunField& field) {
    HorizontalInputs inputs = sampleTrenches();
    inputs.arrangement.trenchConfiguration = field.arrangement;
    inputs.arrangement.pipesPerTrench = field.pipes;
    inputs.arrangement.offsetRows = field.offset ? 1 : 0;
    inputs.arrangement.pipeSeparation = {field.rowStep, field.columnStep};
    inputs.arrangement.coilGeometry = {field.pitch, 36};
    inputs.trench = {field.trenches, {field.separation, field.depth, 8}};
    return inputs;
}

struct ExpectedRun {
    GroundResistances resistance;
    ByMode<double> ground;   ///< degF
    ByMode<double> penalty;  ///< degF
    std::int16_t iterations;
    ByMode<double> length, pipe;  ///< ft
};

struct RunCase {
    const char* name;
    RunField field;
    ExpectedRun expected;
};

// clang-format off
const RunCase runCases[]{
    {"OnePipe", {},
     {{0.058408893, 0.233908236, 0.305693747}, {70.4720389, 53.5819063}, {0, 0}, 1,
      {2939.990233, 5006.983753}, {2939.990233, 5006.983753}}},
    {"OnePipeInEachOf12Trenches", {.trenches = 12, .separation = 8},
     {{0.058408893, 0.233908236, 0.305693747}, {70.4720389, 53.5819063}, {-2.319826478, -2.019203426}, 5,
      {3336.731585, 3832.284865}, {3336.731585, 3832.284865}}},
    {"OneColumn", {.pipes = 4, .rowStep = 9, .trenches = 3, .separation = 8},
     {{0.203840962, 0.697836878, 0.436493820}, {72.3329172, 51.7176377}, {-0.895365493, -0.454320404}, 3,
      {5763.589739, 11353.859934}, {5763.589739, 11353.859934}}},
    {"OneColumnWithOffset", {.pipes = 4, .offset = true, .rowStep = 9, .columnStep = 10, .trenches = 3, .separation = 8},
     {{0.203228034, 0.680490664, 0.379702905}, {72.3329172, 51.7176377}, {-0.968192533, -0.493591073}, 3,
      {5330.081558, 10449.460808}, {5330.081558, 10449.460808}}},
    {"TwoColumns", {.arrangement = twoColumns, .pipes = 6, .rowStep = 9, .columnStep = 15, .trenches = 5, .separation = 10},
     {{0.321740544, 1.064166959, 0.470488220}, {71.6931432, 52.3588047}, {-0.603445629, -0.308703111}, 3,
      {6742.288794, 13178.423695}, {6742.288794, 13178.423695}}},
    {"TwoColumnsWithOffset", {.arrangement = twoColumns, .pipes = 6, .offset = true, .rowStep = 9, .columnStep = 15, .trenches = 5, .separation = 10},
     {{0.312529728, 1.056519010, 0.451984902}, {71.6931432, 52.3588047}, {-0.616662252, -0.315023621}, 3,
      {6597.786987, 12913.949468}, {6597.786987, 12913.949468}}},
    {"ThreeColumns", {.arrangement = threeColumns, .pipes = 24, .rowStep = 8, .columnStep = 16, .depth = 8, .trenches = 2, .separation = 15},
     {{1.024196258, 3.465947565, 0.563113009}, {71.0049828, 53.0481986}, {-0.065396117, -0.030872436}, 2,
      {13321.198240, 28217.570337}, {13321.198240, 28217.570337}}},
    {"ThreeColumnsWithOffset", {.arrangement = threeColumns, .pipes = 24, .offset = true, .rowStep = 8, .columnStep = 16, .depth = 8, .trenches = 2, .separation = 15},
     {{1.005105744, 3.442821560, 0.540303859}, {71.0049828, 53.0481986}, {-0.066440279, -0.031283885}, 2,
      {13111.844173, 27846.440481}, {13111.844173, 27846.440481}}},
    {"LyingCoil", {.arrangement = lyingCoil, .trenches = 6, .separation = 12, .pitch = 18},
     {{0.058408893, 0.233908236, 0.264417034}, {70.4720389, 53.5819063}, {-0.861108145, -0.579154827}, 3,
      {1064.593693, 1582.473548}, {8801.089659, 13090.784467}}},
    {"StandingCoil", {.arrangement = standingCoil, .trenches = 6, .separation = 12, .pitch = 30},
     {{0.074092053, 0.244801344, 0.264417034}, {68.2724883, 55.7827609}, {-0.949109281, -0.764746661}, 3,
      {1203.103808, 1492.851522}, {6932.204768, 8604.023344}}},
};
// clang-format on

class HorizontalRunOf : public testing::TestWithParam<RunCase> {};

TEST_P(HorizontalRunOf, AgreesWithASecondRoute) {
    const auto results = runHorizontal(inputsOf(GetParam().field));
    ASSERT_TRUE(results);
    const ExpectedRun& expected = GetParam().expected;
    EXPECT_NEAR(results->groundResistance.annual, expected.resistance.annual, 1e-9);
    EXPECT_NEAR(results->groundResistance.monthly, expected.resistance.monthly, 1e-9);
    EXPECT_NEAR(results->groundResistance.shortTerm, expected.resistance.shortTerm, 1e-9);
    EXPECT_EQ(results->lengths.iterations, expected.iterations);
    EXPECT_FALSE(results->lengths.failed);
    for (Mode m : modes) {
        EXPECT_NEAR(results->groundTempAtDepth[m], expected.ground[m], 1e-7);
        EXPECT_NEAR(results->lengths.temperaturePenalty[m], expected.penalty[m], 1e-9);
        EXPECT_NEAR(results->requiredLength[m], expected.length[m], 1e-6);
        EXPECT_NEAR(results->totalPipeLength[m], expected.pipe[m], 1e-6);
    }
    EXPECT_EQ(results->governingMode, heating);
}

INSTANTIATE_TEST_SUITE_P(Every, HorizontalRunOf, testing::ValuesIn(runCases),
                         [](const auto& one) { return std::string(one.param.name); });

void clearLoads(HorizontalInputs& inputs, Mode mode) {
    for (std::size_t zone = 0; zone < inputs.loads.zones.size(); ++zone)
        for (auto& gain : inputs.loads.zones.edit(zone).gains) gain[mode] = 0;
}

TEST(HorizontalRun, SharesThePipeOutOverTrenches) {
    // 2 trenches of 24 pipes
    const auto results = runHorizontal(inputsOf(runCases[6].field));
    EXPECT_NEAR(totalTrenchLength(results->requiredLength[cooling], 24), 555.049927, 1e-6);
    EXPECT_NEAR(singleTrenchLength(results->requiredLength[heating], 24, 2), 587.866049, 1e-6);
    EXPECT_NEAR(pipeLengthPerTrench(results->totalPipeLength[heating], 2), 14108.785169, 1e-6);
}

TEST(HorizontalRun, WithATowerAgreesWithASecondRoute) {
    HorizontalInputs inputs =
        inputsOf({.arrangement = twoColumns, .pipes = 4, .trenches = 5, .separation = 10});
    inputs.loads.hybridOn = true;
    inputs.loads.hybridPercent = 30;
    const auto results = runHorizontal(inputs);
    EXPECT_NEAR(results->annualGroundLoad, -1.9404037, 1e-7);
    EXPECT_NEAR(results->requiredLength[cooling], 4028.674722, 1e-6);
    EXPECT_NEAR(results->requiredLength[heating], 10324.403201, 1e-6);
    EXPECT_NEAR(results->lengths.temperaturePenalty[cooling], -0.337827742, 1e-9);
    EXPECT_NEAR(results->tower.capacity, 36.067560, 1e-6);
    EXPECT_NEAR(results->tower.hours, 937.5, 1e-6);
    // The building's peak is shown again, and what was before the tower remembered.
    EXPECT_EQ(results->loads.peakLoad[cooling], 96);
    EXPECT_EQ(results->coolingPeakBeforeHybrid, 96);
}

TEST(HorizontalRun, WithATowerForAllCoolingNeedsNoPipeForIt) {
    HorizontalInputs inputs = inputsOf({.trenches = 3, .separation = 10});
    inputs.loads.hybridOn = true;
    inputs.loads.hybridPercent = 100;
    const auto results = runHorizontal(inputs);
    EXPECT_EQ(results->requiredLength[cooling], 0);
    EXPECT_GT(results->requiredLength[heating], 0);
    EXPECT_FALSE(results->lengths.failed);
}

TEST(HorizontalRun, OfABuildingWithLoadsInOneModeSizesThatMode) {
    HorizontalInputs inputs = inputsOf({.trenches = 3, .separation = 10});
    clearLoads(inputs, heating);
    const auto cool = runHorizontal(inputs);
    // four-hour pulse: 0.058545842, 0.299193330, 0.240271705
    EXPECT_NEAR(cool->groundResistance.shortTerm, 0.240271705, 1e-9);
    EXPECT_NEAR(cool->requiredLength[cooling], 3088.422912, 1e-6);
    EXPECT_EQ(cool->requiredLength[heating], 0);
    EXPECT_EQ(cool->governingMode, cooling);
    EXPECT_FALSE(cool->lengths.failed);

    inputs = inputsOf({.trenches = 3, .separation = 10});
    clearLoads(inputs, cooling);
    const auto heat = runHorizontal(inputs);
    EXPECT_NEAR(heat->requiredLength[heating], 5715.492186, 1e-6);
    EXPECT_NEAR(heat->lengths.temperaturePenalty[heating], 0.685098852, 1e-9);
    EXPECT_EQ(heat->requiredLength[cooling], 0);
}

TEST(HorizontalRun, WithoutLoadsHasNoResults) {
    HorizontalInputs inputs = sampleTrenches();
    inputs.loads.zones.clear();
    EXPECT_FALSE(runHorizontal(inputs));
    inputs = sampleTrenches();
    for (Mode m : modes) clearLoads(inputs, m);
    EXPECT_FALSE(runHorizontal(inputs));
}

TEST(HorizontalRun, OverGroundTooColdToHeatFromSizesCoolingSilently) {
    HorizontalInputs inputs = inputsOf({.trenches = 3, .separation = 10});
    inputs.soil.groundTemp = 48;
    const auto results = runHorizontal(inputs);
    EXPECT_FALSE(results->lengths.failed);
    EXPECT_NEAR(results->requiredLength[cooling], 1807.563422, 1e-6);
    EXPECT_EQ(results->requiredLength[heating], 0);
    EXPECT_EQ(results->lengths.temperaturePenalty[heating], 0);
    EXPECT_EQ(results->governingMode, cooling);
}

TEST(HorizontalRun, ClearsALengthThatTheYearMadePositiveOnTheWrongSide) {
    HorizontalInputs inputs = inputsOf({});
    inputs.soil.groundTemp = 48;
    Zone offices = sampleBuilding()[0];
    const double gains[]{2, 1, 1, 4};
    for (std::size_t block = 0; block < timeBlocks; ++block)
        offices.gains[block][heating] = gains[block];
    offices.hours = {4000, 10};
    inputs.loads.zones = {offices};
    const auto results = runHorizontal(inputs);
    EXPECT_EQ(results->lengths.nonPositive, (ByMode<bool>{false, false}));
    EXPECT_GT(results->lengths.previousBoreLength[heating], 1);
    EXPECT_EQ(results->requiredLength[heating], 0);
    EXPECT_NEAR(results->requiredLength[cooling], 1104.817536, 1e-6);
}

TEST(HorizontalRun, WithoutASolutionInEitherModeFails) {
    HorizontalInputs inputs = inputsOf({.depth = 3, .trenches = 3, .separation = 10});
    inputs.groundTemperature.airTempSwing = 90;
    const auto results = runHorizontal(inputs);
    EXPECT_TRUE(results->lengths.failed);
    EXPECT_EQ(results->lengths.iterations, 1);
    EXPECT_EQ(results->requiredLength, (ByMode<double>{0, 0}));
    EXPECT_EQ(results->totalPipeLength, (ByMode<double>{0, 0}));
    EXPECT_EQ(results->governingMode, heating);
}

TEST(HorizontalRun, TakesTheLengthsOfOneTrenchWithoutAPenalty) {
    const auto results = runHorizontal(inputsOf({.separation = 1}));
    EXPECT_EQ(results->neighbourCount, (NeighbourCount{1, 0, 0, 0, 0}));
    EXPECT_EQ(results->lengths.temperaturePenalty, (ByMode<double>{0, 0}));
}

TEST(HorizontalRun, HasARowOfTrenchesForItsField) {
    const auto results = runHorizontal(inputsOf({.trenches = 12, .separation = 8}));
    EXPECT_EQ(results->neighbourCount, (NeighbourCount{0, 2, 10, 0, 0}));
}

TEST(HorizontalRun, WithTrenchesMoreThan50FeetApartHasNoPenalty) {
    const auto apart = runHorizontal(inputsOf({.trenches = 12, .separation = 50.1}));
    const auto alone = runHorizontal(inputsOf({}));
    EXPECT_EQ(apart->lengths.temperaturePenalty, (ByMode<double>{0, 0}));
    EXPECT_EQ(apart->requiredLength, alone->requiredLength);
}

TEST(HorizontalRun, HasNoShortCircuitAtAnyFlow) {
    // The flow changes the outlet too; at 2.4 gpm and a hair more only the factor would differ.
    HorizontalInputs inputs = inputsOf({});
    inputs.loads.flowRate = 2.4;
    const double slow = runHorizontal(inputs)->requiredLength[heating];
    inputs.loads.flowRate = std::nextafter(2.4, 3);
    EXPECT_NEAR(runHorizontal(inputs)->requiredLength[heating], slow, 1e-6);
}

TEST(HorizontalRun, TakesTheLongPulseWhenEitherModePeaksInTheEvening) {
    const GroundResistances evening = runHorizontal(inputsOf({}))->groundResistance;
    HorizontalInputs inputs = inputsOf({});
    for (std::size_t zone = 0; zone < 2; ++zone)
        inputs.loads.zones.edit(zone).gains[3][heating] = 0;
    const GroundResistances day = runHorizontal(inputs)->groundResistance;
    EXPECT_NEAR(day.shortTerm, 0.240271705, 1e-9);
    EXPECT_NE(day.annual, evening.annual);
    EXPECT_NE(day.monthly, evening.monthly);
    for (std::size_t zone = 0; zone < 2; ++zone)
        inputs.loads.zones.edit(zone).gains[3][cooling] = 100;
    EXPECT_EQ(runHorizontal(inputs)->groundResistance, evening);
}

TEST(HorizontalRun, WithoutSoilConductivityIsADivisionByZero) {
    HorizontalInputs inputs = sampleTrenches();
    inputs.soil.conductivity = 0;
    expectError(11, [&] { runHorizontal(inputs); });
}

TEST(HorizontalRun, WithoutDiffusivityTakesTheMeanTemperature) {
    HorizontalInputs inputs = inputsOf({.trenches = 3, .separation = 10});
    inputs.soil.diffusivity = 0;
    const auto results = runHorizontal(inputs);
    EXPECT_EQ(results->groundTempAtDepth, (ByMode<double>{62, 62}));
    EXPECT_EQ(results->lengths.temperaturePenalty, (ByMode<double>{0, 0}));
}

TEST(HorizontalRun, OfNumbersThatOnlyAFileHoldsEndsInAnErrorAndNeverACrash) {
    expectError(9, [] { runHorizontal(inputsOf({.arrangement = 5})); });
    expectError(9, [] { runHorizontal(inputsOf({.arrangement = threeColumns, .pipes = 7})); });
    expectError(9, [] { runHorizontal(inputsOf({.pipes = 1e300})); });
    expectError(11, [] { runHorizontal(inputsOf({.pipes = 0})); });
    expectError(11, [] { runHorizontal(inputsOf({.trenches = 0})); });
}

/// One of the numbers that a file may hold in place of a sound one, mostly the sound one.
void spoil(std::mt19937& random, double& value) {
    const double others[]{0, -1, 1e-300, 1e300, -1e300, 40000, 0.5};
    if (random() % 4 == 0) value = others[random() % std::size(others)];
}

TEST(HorizontalRun, OfRandomNumbersEndsInFiniteFiguresOrInARunTimeError) {
    std::mt19937 random(1);
    int ended = 0;
    for (int i = 0; i < 20000; ++i) {
        HorizontalInputs inputs = inputsOf(runCases[random() % std::size(runCases)].field);
        for (double* value :
             {&inputs.soil.groundTemp, &inputs.soil.conductivity, &inputs.soil.diffusivity,
              &inputs.groundTemperature.airTempSwing, &inputs.trench.trenchCount,
              &inputs.arrangement.pipesPerTrench, &inputs.arrangement.predictionYears})
            spoil(random, *value);
        for (double& value : inputs.trench.trenchGeometry) spoil(random, value);
        for (double& value : inputs.arrangement.pipeSeparation) spoil(random, value);
        for (double& value : inputs.arrangement.coilGeometry) spoil(random, value);
        for (double& value : inputs.pipe.pipeDiameter) spoil(random, value);
        try {
            const auto results = runHorizontal(inputs);
            ++ended;
            for (Mode m : modes) {
                EXPECT_TRUE(std::isfinite(results->requiredLength[m]));
                EXPECT_TRUE(std::isfinite(results->totalPipeLength[m]));
                EXPECT_TRUE(std::isfinite(results->lengths.temperaturePenalty[m]));
            }
        } catch (const RunTimeError&) {
        }
    }
    EXPECT_GT(ended, 100);
}

TEST(HorizontalRun, ShowsPipesInOnePlaceAFiniteResistance) {
    const auto results = runHorizontal(inputsOf({.pipes = 2, .rowStep = 0}));
    // G(1.0E+9) = 1.684938: (0.397402 + 1.684938)/1.3
    EXPECT_NEAR(results->groundResistance.shortTerm, 1.601800, 2e-6);
}

TEST(HorizontalRun, OfCoilsComputesWithTheirEquivalentPipeAndKeepsItsResistance) {
    const HorizontalInputs inputs = inputsOf(runCases[8].field);
    const auto results = runHorizontal(inputs);
    // film of 1.55*sqrt(2) in and wall ln(1.9/1.55)/(2 pi 0.225), which the factor leaves alone
    EXPECT_NEAR(results->pipeResistance, 0.158181102, 1e-9);
    EXPECT_NEAR(results->pipeResistance,
                pipeResistanceOf(2, 0, 1.9 * std::sqrt(2.0), 1.55 * std::sqrt(2.0)), 1e-15);
    EXPECT_EQ(results->inputs->pipe.pipeResistance, results->pipeResistance);
    EXPECT_EQ(results->inputs->pipe.pipeDiameter, inputs.pipe.pipeDiameter);
    // The diameter counts in the ground's resistance as well.
    EXPECT_NE(results->groundResistance.shortTerm,
              runHorizontal(inputsOf({}))->groundResistance.shortTerm);
}

TEST(HorizontalRun, OfCoilsIsTheSameWhenItIsRepeatedWithThePipeItLeaves) {
    const auto first = runHorizontal(inputsOf(runCases[9].field));
    const auto second = runHorizontal(*first->inputs);
    EXPECT_EQ(*second, *first);
}

TEST(HorizontalRun, OfStraightPipesTakesTheResistanceAsEntered) {
    HorizontalInputs inputs = inputsOf(runCases[2].field);
    inputs.pipe.pipeResistance = 0.2;
    const auto results = runHorizontal(inputs);
    EXPECT_EQ(results->pipeResistance, 0.2);
    EXPECT_EQ(results->coilLengthPer250, (ByMode<double>{0, 0}));
    EXPECT_GT(results->requiredLength[heating], runCases[2].expected.length[heating]);
}

TEST(HorizontalRun, OfACoilWithAPitchBelowTheTableTakesItsFirstAndLaysItsOwn) {
    // 818.466276 and 1216.615542 ft with both; the pipe follows the pitch of 8 in
    const auto eight = runHorizontal(
        inputsOf({.arrangement = lyingCoil, .trenches = 6, .separation = 12, .pitch = 8}));
    const auto ten = runHorizontal(
        inputsOf({.arrangement = lyingCoil, .trenches = 6, .separation = 12, .pitch = 10}));
    EXPECT_EQ(eight->requiredLength, ten->requiredLength);
    EXPECT_NEAR(eight->requiredLength[cooling], 818.466276, 1e-6);
    EXPECT_NEAR(eight->totalPipeLength[heating], 19592.028976, 1e-5);
    EXPECT_LT(ten->totalPipeLength[heating], eight->totalPipeLength[heating]);
}

TEST(HorizontalRun, OfACoilWithoutAPartLoadHasNoLengthThoughPipeWouldHave) {
    HorizontalInputs inputs = inputsOf(runCases[8].field);
    for (std::size_t zone = 0; zone < 2; ++zone) inputs.loads.zones.edit(zone).days = 0;
    const auto results = runHorizontal(inputs);
    EXPECT_GT(results->lengths.boreLength[cooling], 0);
    EXPECT_EQ(results->coilLengthPer250, (ByMode<double>{0, 0}));
    EXPECT_EQ(results->requiredLength, (ByMode<double>{0, 0}));
    EXPECT_EQ(results->totalPipeLength, (ByMode<double>{0, 0}));
    EXPECT_EQ(results->governingMode, heating);
}

TEST(HorizontalRun, LeavesItsInputsInTheResults) {
    const HorizontalInputs inputs = inputsOf(runCases[5].field);
    const auto results = runHorizontal(inputs);
    EXPECT_EQ(*results->inputs, inputs);
    EXPECT_FALSE(differ(*results->inputs, inputs));
}

TEST(HorizontalInputs, DifferInWhateverChangesARun) {
    const HorizontalInputs inputs = sampleTrenches();
    HorizontalInputs other = inputs;
    other.coolingRange = 12;
    other.loads.hybridOn = true;
    EXPECT_FALSE(differ(inputs, other));
    other = inputs;
    other.groundTemperature.extremeDay[cooling] = 200;
    EXPECT_TRUE(differ(inputs, other));
    other = inputs;
    other.trench.trenchGeometry[1] = 7;
    EXPECT_TRUE(differ(inputs, other));
    other = inputs;
    other.loads.zones.edit(0).hours[cooling] = 901;
    EXPECT_TRUE(differ(inputs, other));
}

}  // namespace
}  // namespace varnholt
