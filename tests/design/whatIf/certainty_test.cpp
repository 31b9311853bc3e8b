// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/certainty.h"

#include <gtest/gtest.h>

#include <cmath>

#include "design/whatIf/office.h"

namespace varnholt {
namespace {

CaseFigures caseOf(double coolingLength, double heatingLength) {
    return {{coolingLength, heatingLength}, {80, 50}, true};
}

std::vector<CaseFigures> casesUpTo(int count) {
    std::vector<CaseFigures> cases;
    for (int i = 1; i <= count; ++i) cases.push_back(caseOf(i, count + 1 - i));
    return cases;
}

Certainty officeCertainty(const Spreads& spreads, double depth, std::uint32_t seed = 0x5eed'0001u) {
    const BoreholeInputs design = officeInputs();
    const RolledZones zones(design.loads.zones);
    const Cases cases(spreads);
    CertaintySum sum;
    for (std::size_t set = 0; set < caseSets; ++set) {
        std::vector<CaseFigures> figures;
        for (const Drivers& drivers : driversOfSet(set, casesOfSet, seed))
            figures.push_back(classicalFigures(zones, design, cases.at(drivers), depth * 30));
        sum.add(std::move(figures));
    }
    return sum.certainty(depth * 30, 0.9);
}

TEST(Quantile, IsTheLeastValueThatTheShareDoesNotExceed) {
    const std::vector<double> ten{1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    EXPECT_EQ(quantileOf(ten, 0.1), 1);
    EXPECT_EQ(quantileOf(ten, 0.11), 2);
    EXPECT_EQ(quantileOf(ten, 0.9), 9);
    EXPECT_EQ(quantileOf(ten, 0.99), 10);
    EXPECT_EQ(quantileOf({7}, 0.5), 7);
}

TEST(Certainty, CountsTheCasesThatALengthServes) {
    // Cooling 1 to 10, heating 10 to 1: the need is 10, 9, 8, 7, 6, 6, 7, 8, 9, 10.
    CertaintySum sum;
    sum.add(casesUpTo(10));
    const Certainty certainty = sum.certainty(7, 0.9);
    EXPECT_EQ(certainty.sampleCount, 10u);
    EXPECT_EQ(certainty.holds, 0.4);
    EXPECT_EQ(certainty.holdsMode[cooling], 0.7);
    EXPECT_EQ(certainty.needMean, 8);
    EXPECT_EQ(certainty.need, (Deciles{6, 8, 10}));
    EXPECT_EQ(certainty.length[heating], (Deciles{1, 5, 9}));
    EXPECT_EQ(certainty.entering[cooling].p50, 80);
    EXPECT_EQ(certainty.needError, 0);  // one set tells nothing of another
}

TEST(Certainty, TellsTheErrorOfItsSampling) {
    // Quantiles of 4 and 8: their standard deviation is sqrt(8), over sqrt(2) it is 2.
    CertaintySum sum;
    sum.add({caseOf(4, 0), caseOf(4, 0)});
    sum.add({caseOf(8, 0), caseOf(8, 0)});
    EXPECT_NEAR(sum.certainty(5, 0.9).needError, 2, 1e-12);
}

TEST(Certainty, CountsACaseWithoutALengthAsOneThatNothingHolds) {
    CertaintySum sum;
    std::vector<CaseFigures> cases = casesUpTo(10);
    cases[0].length[heating] = noLength;
    sum.add(cases);
    const Certainty certainty = sum.certainty(100, 0.9);
    EXPECT_EQ(certainty.failedSamples, 1u);
    EXPECT_EQ(certainty.holds, 0.9);
    EXPECT_EQ(certainty.need.p90, 10);
    EXPECT_EQ(sum.certainty(100, 0.95).confidentLength, noLength);
    EXPECT_NEAR(certainty.needMean, 70.0 / 9, 1e-12);
}

TEST(Certainty, OfTheOfficeIsThis) {
    const Certainty certainty = officeCertainty({}, 300);
    EXPECT_NEAR(certainty.need.p10, 6700, 0.005 * 6700);
    EXPECT_NEAR(certainty.need.p50, 8329, 0.005 * 8329);
    EXPECT_NEAR(certainty.need.p90, 10276, 0.005 * 10276);
    EXPECT_NEAR(certainty.holds, 0.678, 0.005);
    EXPECT_NEAR(officeCertainty({}, 250).holds, 0.269, 0.005);
    EXPECT_NEAR(officeCertainty({}, 340).holds, 0.892, 0.005);
    const Certainty tested = officeCertainty(withKnowledge({}, responseTest), 300);
    EXPECT_NEAR(tested.need.p10, 6915, 0.005 * 6915);
    EXPECT_NEAR(tested.need.p50, 8314, 0.005 * 8314);
    EXPECT_NEAR(tested.need.p90, 9746, 0.005 * 9746);
}

TEST(Certainty, ComesCloserToTheTruthThanTwiceItsErrorInNineOfTenSeeds) {
    // The truth from 20 seeds together, each 16,384 cases.
    std::vector<Certainty> all;
    double truth = 0;
    for (std::uint32_t seed = 1; seed <= 20; ++seed) {
        all.push_back(officeCertainty({}, 300, seed));
        truth += all.back().need.p90 / 20;
    }
    int covered = 0;
    for (const Certainty& each : all) {
        covered += std::abs(each.need.p90 - truth) <= 2 * each.needError ? 1 : 0;
        EXPECT_LT(each.needError, 0.004 * truth);
    }
    EXPECT_GE(covered, 18);
}

TEST(Certainty, IsTheBaseEverywhereWithoutSpreadsAndWidensWithThem) {
    Spreads none;
    none.low.fill(0);
    none.high.fill(0);
    const Certainty still = officeCertainty(none, 300);
    EXPECT_EQ(still.need.p10, still.need.p90);
    EXPECT_NEAR(still.need.p50, 8296.949, 5e-4);
    EXPECT_EQ(still.holds, 1);
    Spreads wide;
    wide.low[conductivity] = wide.high[conductivity] = 40;
    const Certainty usual = officeCertainty({}, 300), wider = officeCertainty(wide, 300);
    EXPECT_GT(wider.need.p90 - wider.need.p10, usual.need.p90 - usual.need.p10);
    EXPECT_EQ(usual, officeCertainty({}, 300));
}

}  // namespace
}  // namespace varnholt
