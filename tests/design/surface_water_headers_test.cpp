// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "design/modCalculations/header_pickup.h"
#include "design/modCalculations/header_pipes.h"
#include "design/surface_water_rules.h"
#include "expect_error.h"

namespace varnholt {
namespace {

using namespace modCalculations;

/// Two main headers with four branches each, of round figures.
Headers fourOnTwo() {
    return {{2, 0.02, 0.004, 100, 50, {70, 40}, {}}, {4, 0.01, 0.002, 30, 20, {75, 42}, {}}};
}

TEST(HeaderPickup, TakesBranchesFirstThenMainHeadersInWaterThenInSoil) {
    // 40 gpm at 85 degF, soil 65; a main header carries 20 gpm
    // branches in water, 40/4 gpm: 0.01 (75 - 85) 30/10 = -0.3
    // main in water: 0.02 (70 - 84.7) 100/20 = -1.47
    // branches in soil, (40/2)/4 gpm: 0.002 (65 - 83.23) 20/5 = -0.14584
    // main in soil: 0.004 (65 - 83.08416) 50/20 = -0.1808416
    const HeaderPickup pickup = calculateHeaderPickup(fourOnTwo(), cooling, 85, 40, 65);
    EXPECT_NEAR(pickup.submerged, -1.77, 1e-12);
    EXPECT_NEAR(pickup.buried, -0.3266816, 1e-12);
}

TEST(HeaderPickup, OfABranchInTheWaterIsThatOfTheWholeFlowOverTheBranches) {
    Headers headers = fourOnTwo();
    headers.primary.lengthInWater = headers.primary.lengthInSoil = 0;
    headers.branch.lengthInSoil = 0;
    // not of (40/2)/4 gpm, which would be -0.6
    EXPECT_NEAR(calculateHeaderPickup(headers, cooling, 85, 40, 65).submerged, -0.3, 1e-12);
    headers.primary.count = 1;
    EXPECT_NEAR(calculateHeaderPickup(headers, cooling, 85, 40, 65).submerged, -0.3, 1e-12);
}

TEST(HeaderPickup, OfABranchInTheSoilIsThatOfOneMainHeadersFlowOverTheBranches) {
    Headers headers = fourOnTwo();
    headers.primary.lengthInWater = headers.primary.lengthInSoil = 0;
    headers.branch.lengthInWater = 0;
    // 0.002 (65 - 85) 20/5 = -0.16, and half of it with one main header instead of two
    EXPECT_NEAR(calculateHeaderPickup(headers, cooling, 85, 40, 65).buried, -0.16, 1e-12);
    headers.primary.count = 1;
    EXPECT_NEAR(calculateHeaderPickup(headers, cooling, 85, 40, 65).buried, -0.08, 1e-12);
}

TEST(HeaderPickup, OfTheSubmergedPartKnowsTheWaterOfItsMode) {
    // heating: 0.01 (42 - 35) 30/10 = 0.21; 0.02 (40 - 35.21) 100/20 = 0.479
    EXPECT_NEAR(calculateHeaderPickup(fourOnTwo(), heating, 35, 40, 50).submerged, 0.689, 1e-12);
}

TEST(HeaderPickup, WithoutBranchesHasTheMainHeadersTermsAlone) {
    Headers headers = fourOnTwo();
    headers.branch.count = 0;
    // 0.02 (70 - 85) 100/20 = -1.5; 0.004 (65 - 83.5) 50/20 = -0.185
    const HeaderPickup pickup = calculateHeaderPickup(headers, cooling, 85, 40, 65);
    EXPECT_NEAR(pickup.submerged, -1.5, 1e-12);
    EXPECT_NEAR(pickup.buried, -0.185, 1e-12);
}

TEST(HeaderPickup, WithoutFlowIsNoneWhateverTheHeadersAre) {
    EXPECT_EQ(calculateHeaderPickup(fourOnTwo(), cooling, 85, 0, 65), HeaderPickup{});
    EXPECT_EQ(calculateHeaderPickup({}, heating, 35, 0, 65), HeaderPickup{});
}

TEST(HeaderPickup, WithoutLengthIsNone) {
    Headers headers = fourOnTwo();
    headers.primary.lengthInWater = headers.primary.lengthInSoil = 0;
    headers.branch.lengthInWater = headers.branch.lengthInSoil = 0;
    const HeaderPickup pickup = calculateHeaderPickup(headers, cooling, 85, 40, 65);
    EXPECT_EQ(pickup.submerged, 0);
    EXPECT_EQ(pickup.buried, 0);
}

TEST(HeaderPickup, WithoutAMainHeaderIsADivisionByZeroEvenOfNoLength) {
    expectError(11, [] { calculateHeaderPickup({}, cooling, 85, 40, 65); });
}

TEST(HeaderPickup, BeyondAllFiguresOverflows) {
    Headers headers = fourOnTwo();
    headers.primary.lengthInWater = 1e308;
    expectError(6, [&] { calculateHeaderPickup(headers, cooling, 85, 0.001, 65); });
}

TEST(HeaderPipes, GrowWithTheirSize) {
    struct {
        double diameter, water, soil;
    } const rows[] = {{1.05, 0.008, 0.0014}, {1.315, 0.009, 0.0015}, {1.66, 0.01, 0.0016},
                      {1.9, 0.011, 0.0017},  {2.375, 0.013, 0.0018}, {3.5, 0.015, 0.002},
                      {4.5, 0.019, 0.0022},  {6.625, 0.025, 0.0026}};
    for (int size = 0; size < 8; ++size) {
        SCOPED_TRACE(size);
        EXPECT_EQ(headerPipe(size).outsideDiameter, rows[size].diameter);
        EXPECT_EQ(headerPipe(size).waterFactor, rows[size].water);
        EXPECT_EQ(headerPipe(size).soilFactor, rows[size].soil);
    }
    for (int size = 0; size < 4; ++size)
        EXPECT_EQ(loopPipeOutsideDiameter(size), rows[size].diameter);
}

TEST(HeaderPipes, OfAnyOtherChoiceAreOfTheUsualSize) {
    for (const int choice : {-1, 8, 100}) {
        SCOPED_TRACE(choice);
        HeaderValues headers;
        chooseHeaderPipe(headers, 1, 7);
        chooseHeaderPipe(headers, 1, choice);
        EXPECT_EQ(headers, HeaderValues{});  // 3: 1.9 in, 0.011, 0.0017
        LoopValues loop;
        chooseLoopPipe(loop, 0);
        chooseLoopPipe(loop, choice);
        EXPECT_EQ(loop, LoopValues{});
    }
    EXPECT_EQ(loopPipeSizeOf(4), 3);  // the loops' list is the shorter one
    EXPECT_EQ(loopPipeOutsideDiameter(7), 1.9);
}

TEST(HeaderPipes, AreChosenForOneKindOfHeaderAlone) {
    HeaderValues headers;
    chooseHeaderPipe(headers, 0, 6);
    EXPECT_EQ(headers.headerPipeSize, (std::array<std::int16_t, 2>{6, 3}));
    EXPECT_EQ(headers.headerOutsideDiameter, (std::array<double, 2>{4.5, 1.9}));
    EXPECT_EQ(headers.headerWaterFactor, (std::array<double, 2>{0.019, 0.011}));
    EXPECT_EQ(headers.headerSoilFactor, (std::array<double, 2>{0.0022, 0.0017}));
    EXPECT_THROW(chooseHeaderPipe(headers, 2, 0), std::out_of_range);
}

TEST(LoopPipe, BringsItsDiameter) {
    LoopValues loop;
    chooseLoopPipe(loop, 2);
    EXPECT_EQ(loop.loopPipeSize, 2);
    EXPECT_EQ(loop.loopPipeOutsideDiameter, 1.66);
}

HeaderValues withBranches() {
    HeaderValues headers;
    headers.headerCount = {2, 3};
    headers.headerHeadLoss = {1, 2, 3, 4};
    headers.headerLength = {10, 20, 30, 40};
    return headers;
}

TEST(HeaderCount, OfLessThanOneBranchClearsTheBranchesButTheirLengthInSoil) {
    for (const double count : {0.0, 0.9, -2.0}) {
        SCOPED_TRACE(count);
        HeaderValues headers = withBranches();
        headers.headerCount[1] = count;
        settleHeaderCount(headers, 1);
        EXPECT_EQ(headers.headerCount, (std::array<double, 2>{2, 0}));
        EXPECT_EQ(headers.headerHeadLoss, (std::array<double, 4>{1, 2, 0, 0}));
        EXPECT_EQ(headers.headerLength, (std::array<double, 4>{10, 20, 0, 40}));
    }
}

TEST(HeaderCount, OfMainHeadersIsAtLeastOne) {
    for (const double count : {0.0, 0.9, -2.0}) {
        SCOPED_TRACE(count);
        HeaderValues headers = withBranches();
        headers.headerCount[0] = count;
        HeaderValues expected = withBranches();
        expected.headerCount[0] = 1;
        settleHeaderCount(headers, 0);
        EXPECT_EQ(headers, expected);
    }
}

TEST(HeaderCount, OfOneOrMoreChangesNothing) {
    HeaderValues headers = withBranches();
    headers.headerCount = {1, 1};
    const HeaderValues before = headers;
    settleHeaderCount(headers, 0);
    settleHeaderCount(headers, 1);
    EXPECT_EQ(headers, before);
}

TEST(SoilType, BringsItsDiffusivity) {
    HeaderSoilValues soil;
    for (const auto& [type, diffusivity] : {std::pair{0, 0.26}, {1, 0.6}, {2, 0.96}}) {
        chooseSoilType(soil, type);
        EXPECT_EQ(soil.soilType, type);
        EXPECT_EQ(soil.soilDiffusivity, diffusivity);
    }
    expectError(9, [&] { chooseSoilType(soil, 3); });
    EXPECT_EQ(soil.soilType, 2);
}

TEST(CorrectedGroundTemp, FollowsEveryValueOfTheSoil) {
    const HeaderSoilValues usual;
    // 62 - 22 exp(-w) cos(w), w = 6 sqrt(3.141592653/(365*0.6)) = 0.718628:
    // 62 - 22 * 0.487421 * 0.752710
    EXPECT_NEAR(correctGroundTemp(usual)[heating], 53.928504, 1e-6);
    HeaderSoilValues soil = usual;
    soil.groundTemp = 60;
    EXPECT_NEAR(correctGroundTemp(soil)[heating], 51.928504, 1e-6);
    soil = usual;
    soil.airTempSwing = 0;
    EXPECT_EQ(correctGroundTemp(soil)[heating], 62);
    soil = usual;
    soil.headerDepth = 0;
    EXPECT_EQ(correctGroundTemp(soil)[heating], 40);
    soil = usual;
    soil.extremeDay[cooling] = 216;
    EXPECT_NE(correctGroundTemp(soil)[cooling], correctGroundTemp(usual)[cooling]);
    EXPECT_EQ(correctGroundTemp(soil)[heating], correctGroundTemp(usual)[heating]);
    chooseSoilType(soil = usual, 0);
    EXPECT_NE(correctGroundTemp(soil)[heating], correctGroundTemp(usual)[heating]);
}

TEST(SurfaceWaterValues, OfANewDesignFollowFromItsChoices) {
    LoopValues loop;
    chooseLoopPipe(loop, static_cast<int>(loop.loopPipeSize));
    EXPECT_EQ(loop, LoopValues{});
    HeaderValues headers;
    for (const std::size_t kind : {0u, 1u}) {
        chooseHeaderPipe(headers, kind, headers.headerPipeSize[kind]);
        settleHeaderCount(headers, kind);
    }
    EXPECT_EQ(headers, HeaderValues{});
    HeaderSoilValues soil;
    chooseSoilType(soil, static_cast<int>(soil.soilType));
    EXPECT_EQ(soil, HeaderSoilValues{});
}

}  // namespace
}  // namespace varnholt
