// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "design/modCalculations/head_loss.h"
#include "design/modCalculations/loop_flows.h"
#include "expect_error.h"

namespace varnholt::modCalculations {
namespace {

using Counts = ByMode<std::int16_t>;

TEST(ParallelLoops, AreLoweredToTheWholeNumberThatKeepsTheLeastFlow) {
    // 27.2/2.8 = 9.71, 23.8/4.2 = 5.67
    const ParallelLoops loops = calculateMaxParallelLoops({27.2, 23.8}, {2.8, 4.2}, {12, 6});
    EXPECT_EQ(loops.maxParallelLoops, (ByMode<double>{9, 5}));
    EXPECT_EQ(loops.parallelLoops, (Counts{9, 5}));
}

TEST(ParallelLoops, AreNeverRaised) {
    const ParallelLoops loops = calculateMaxParallelLoops({27.2, 23.8}, {2.8, 4.2}, {3, 5});
    EXPECT_EQ(loops.maxParallelLoops, (ByMode<double>{9, 5}));
    EXPECT_EQ(loops.parallelLoops, (Counts{3, 5}));
}

TEST(ParallelLoops, AreOneWhereTheSystemHasNoMoreThanTheLeastFlow) {
    const ParallelLoops loops = calculateMaxParallelLoops({3, 2.9}, {3, 3}, {7, 7});
    EXPECT_EQ(loops.maxParallelLoops, (ByMode<double>{1, 1}));
    EXPECT_EQ(loops.parallelLoops, (Counts{1, 1}));
}

TEST(ParallelLoops, OfAModeWithoutFlowAreOne) {
    EXPECT_EQ(calculateMaxParallelLoops({27.2, 0}, {2.8, 4.2}, {12, 6}).parallelLoops,
              (Counts{9, 1}));
}

TEST(ParallelLoops, StayAsTheyAreWithoutALeastFlow) {
    const ParallelLoops loops = calculateMaxParallelLoops({27.2, 0}, {0, -1}, {120, 6});
    EXPECT_EQ(loops.maxParallelLoops, (ByMode<double>{120, 6}));
    EXPECT_EQ(loops.parallelLoops, (Counts{120, 6}));
}

TEST(ParallelLoops, OfNoneAreOneWhereThereIsALeastFlowAndStayNoneElse) {
    const ParallelLoops loops = calculateMaxParallelLoops({27.2, 23.8}, {2.8, 0}, {0, 0});
    EXPECT_EQ(loops.maxParallelLoops, (ByMode<double>{9, 0}));
    EXPECT_EQ(loops.parallelLoops, (Counts{1, 0}));
}

TEST(ParallelLoops, OfOneOrMoreAreNeverLoweredToNone) {
    for (const double flow : {-5.0, 0.0, 1e-300, 2.8, 5.5, 1000.0}) {
        SCOPED_TRACE(flow);
        const ParallelLoops loops = calculateMaxParallelLoops({flow, flow}, {2.8, 1e4}, {1, 9});
        EXPECT_EQ(loops.parallelLoops[cooling], 1);
        EXPECT_EQ(loops.parallelLoops[heating], 1);
    }
}

TEST(ParallelLoops, BeyondSixteenBitsOverflow) {
    EXPECT_EQ(calculateMaxParallelLoops({32767.5, 1}, {1, 1}, {2, 2}).maxParallelLoops[cooling],
              32767);
    expectError(6, [] { calculateMaxParallelLoops({32768, 1}, {1, 1}, {2, 2}); });
}

Headers headersOf(double primary, double branch) {
    Headers headers;
    headers.primary.count = primary;
    headers.branch.count = branch;
    return headers;
}

TEST(PipeFlows, AreTheSystemsFlowSharedByThePipesOfAKind) {
    const PipeFlows flows = calculateFlows({48, 36}, {12, 4}, headersOf(2, 3));
    EXPECT_EQ(flows.circuitFlow, (ByMode<double>{4, 9}));
    EXPECT_EQ(flows.primaryHeaderFlow, (ByMode<double>{24, 18}));
    EXPECT_EQ(flows.branchHeaderFlow, (ByMode<double>{8, 6}));
}

TEST(PipeFlows, WithoutBranchesAreNoneInABranch) {
    const PipeFlows flows = calculateFlows({48, 36}, {12, 4}, headersOf(2, 0));
    EXPECT_EQ(flows.branchHeaderFlow, (ByMode<double>{0, 0}));
}

TEST(PipeFlows, WithoutMainHeadersAreNoneInAnyHeader) {
    const PipeFlows flows = calculateFlows({48, 36}, {12, 4}, headersOf(0, 3));
    EXPECT_EQ(flows.primaryHeaderFlow, (ByMode<double>{0, 0}));
    EXPECT_EQ(flows.branchHeaderFlow, (ByMode<double>{0, 0}));
}

TEST(PipeFlows, OfNoLoopsAreADivisionByZeroWithOrWithoutFlow) {
    expectError(11, [] { calculateFlows({48, 36}, {12, 0}, headersOf(1, 0)); });
    expectError(11, [] { calculateFlows({48, 0}, {12, 0}, headersOf(1, 0)); });
}

/// Main headers of 120 ft in water and 200 in soil, branches of 60 and 40.
Headers longHeaders() {
    return {{2, 0, 0, 120, 200, {}, {1.8, 2.1}}, {3, 0, 0, 60, 40, {}, {2.5, 2.9}}};
}

LoopRun nineLoops() { return {{2250, 1800}, {9, 4}, 15, {3.2, 3.9}}; }

TEST(HeadLoss, IsThatOfOneLoopAndOfOneHeaderThereAndBack) {
    const HeadLoss loss = calculateHeadLoss(nineLoops(), longHeaders());
    // (2250/9 + 15) 3.2/100, (1800/4 + 15) 3.9/100
    EXPECT_NEAR(loss.loopLoss[cooling], 8.48, 1e-12);
    EXPECT_NEAR(loss.loopLoss[heating], 18.135, 1e-12);
    // 2 (320 * 1.8 + 100 * 2.5)/100, 2 (320 * 2.1 + 100 * 2.9)/100
    EXPECT_NEAR(loss.headerLoss[cooling], 16.52, 1e-12);
    EXPECT_NEAR(loss.headerLoss[heating], 19.24, 1e-12);
    EXPECT_NEAR(loss.total(cooling), 25.0, 1e-12);
    EXPECT_NEAR(loss.total(heating), 37.375, 1e-12);
}

TEST(HeadLoss, OfAHeaderDoesNotDependOnTheirNumber) {
    Headers headers = longHeaders();
    headers.primary.count = 7;
    headers.branch.count = 1;
    EXPECT_EQ(calculateHeadLoss(nineLoops(), headers),
              calculateHeadLoss(nineLoops(), longHeaders()));
}

TEST(HeadLoss, WithoutBranchesHasNoTermOfTheirs) {
    Headers headers = longHeaders();
    headers.branch.count = 0;
    // 2 * 320 * 1.8/100, 2 * 320 * 2.1/100
    const HeadLoss loss = calculateHeadLoss(nineLoops(), headers);
    EXPECT_NEAR(loss.headerLoss[cooling], 11.52, 1e-12);
    EXPECT_NEAR(loss.headerLoss[heating], 13.44, 1e-12);
}

TEST(HeadLoss, WithoutHeaderLengthIsThatOfTheLoopAlone) {
    Headers headers = longHeaders();
    for (Header* header : {&headers.primary, &headers.branch})
        header->lengthInWater = header->lengthInSoil = 0;
    const HeadLoss loss = calculateHeadLoss(nineLoops(), headers);
    EXPECT_EQ(loss.headerLoss, (ByMode<double>{0, 0}));
    EXPECT_EQ(loss.total(cooling), loss.loopLoss[cooling]);
    EXPECT_EQ(loss.total(heating), loss.loopLoss[heating]);
}

TEST(HeadLoss, OfOneLoopWithoutFittingsIsTheLengthTimesTheLossOfAHundredFeet) {
    const HeadLoss loss = calculateHeadLoss({{400, 300}, {1, 1}, 0, {2.5, 3}}, longHeaders());
    EXPECT_NEAR(loss.loopLoss[cooling], 10, 1e-12);
    EXPECT_NEAR(loss.loopLoss[heating], 9, 1e-12);
}

TEST(HeadLoss, OfNoLoopsIsADivisionByZeroEvenOfNoLength) {
    expectError(11, [] { calculateHeadLoss({{400, 300}, {0, 1}, 0, {}}, longHeaders()); });
    expectError(11, [] { calculateHeadLoss({{400, 0}, {1, 0}, 0, {}}, longHeaders()); });
}

TEST(HeadLoss, BeyondAllFiguresOverflows) {
    expectError(6, [] { calculateHeadLoss({{1e308, 0}, {1, 1}, 0, {200, 0}}, longHeaders()); });
    Headers headers = longHeaders();
    headers.primary.lengthInWater = 1e308;
    expectError(6, [&] { calculateHeadLoss(nineLoops(), headers); });
}

}  // namespace
}  // namespace varnholt::modCalculations
