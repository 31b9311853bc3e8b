// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/what_if.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "design/whatIf/office.h"
#include "design/whatIf/what_if_values.h"
#include "forms/text_numbers/what_if.h"
#include "forms/text_numbers/what_if_window.h"

namespace varnholt {
namespace {

WhatIfCase officeCase(WhatIfMeasure measure = classicalMethod) {
    WhatIfCase theCase;
    theCase.name = "Office";
    theCase.design = officeInputs();
    theCase.inputs.measure = measure;
    return theCase;
}

WhatIf found(const WhatIfCase& theCase, const WhatIfWanted& wanted) {
    WhatIfMemory memory;
    return whatIfOf(theCase, wanted, memory);
}

constexpr WhatIfWanted base{};
constexpr WhatIfWanted sure{.sure = true};

TEST(WhatIf, TellsTheNeedOfTheDesignAsItStands) {
    const WhatIf result = found(officeCase(), base);
    EXPECT_NEAR(result.needLength[cooling], 8296.949, 5e-4);
    EXPECT_NEAR(result.needLength[heating], 3458.519, 5e-4);
    EXPECT_EQ(result.needGoverning, result.needLength[cooling]);
    EXPECT_EQ(result.governing, cooling);
    EXPECT_NEAR(result.boreDepth, 8296.949 / 30, 1e-4);
    EXPECT_NEAR(result.otherNeed, 9762, 5);
    EXPECT_EQ(result.drawnDepth, result.boreDepth);
    EXPECT_TRUE(result.needs.empty());  // nobody asked
}

TEST(WhatIf, SaysThatARunDoesNotShowALength) {
    WhatIfCase theCase = officeCase();
    theCase.design.arrangement.boreSeparation = 12;
    const WhatIf result = found(theCase, base);
    EXPECT_NEAR(result.needLength[cooling], 10298.77, 5e-3);
    EXPECT_TRUE(result.hiddenByRun[cooling]);
    EXPECT_FALSE(result.hiddenByRun[heating]);
    EXPECT_FALSE(found(officeCase(), base).hiddenByRun[cooling]);
}

TEST(WhatIf, TakesTheTowerAsASliderRunHasIt) {
    WhatIfCase theCase = officeCase();
    theCase.design = withTower(theCase.design, 30);
    const WhatIf result = found(theCase, {.cost = true});
    const auto run = runBorehole(theCase.design);
    EXPECT_NEAR(result.needGoverning / run->lengths.boreLength[cooling], 1, 1e-3);
    EXPECT_NEAR(result.costPart[towerPart], run->tower.capacity / 12 * 300, 1e-6);
}

TEST(WhatIf, CostsTheDesignAtItsDrawnDepth) {
    WhatIfCase theCase = officeCase();
    theCase.inputs.drawnDepth = 320;
    const WhatIf result = found(theCase, {.cost = true});
    EXPECT_EQ(result.firstCost, 151'700);
    EXPECT_NEAR(result.yearlyEnergy, 40'314, 1);
    EXPECT_NEAR(result.lifeCost, 231'103, 1);
}

TEST(WhatIf, TellsHowSureTheDrawnDepthIs) {
    WhatIfCase theCase = officeCase();
    theCase.inputs.drawnDepth = 300;
    const WhatIf result = found(theCase, sure);
    EXPECT_NEAR(result.holds, 0.678, 0.005);
    EXPECT_NEAR(result.needP90, 10'276, 51);
    EXPECT_NEAR(result.confidentDepth, result.needP90 / 30, 1e-9);
    EXPECT_NEAR(result.testDepth, 325, 1);
    EXPECT_NEAR(result.testSaves, 529, 15);
    EXPECT_EQ(result.sampleCount, 16'384u);
    EXPECT_EQ(result.failedSamples, 0u);
    EXPECT_EQ(result.needs.size(), 16'384u);
    EXPECT_EQ(result.otherNeeds.size(), 2'048u);
    // Deeper than the need, the water stays below the limit in the middle case.
    EXPECT_LT(result.enteringP50[cooling], 85);
    EXPECT_LT(result.enteringP10[cooling], result.enteringP90[cooling]);
    // A test that is no better than what is known saves nothing.
    theCase.inputs.spreads = withKnowledge({}, responseTest);
    EXPECT_EQ(found(theCase, sure).testSaves, 0);
}

TEST(WhatIf, TellsByWhichConfidenceTheDepthIsAsked) {
    WhatIfCase theCase = officeCase();
    theCase.inputs.confidence = 50;
    const WhatIf result = found(theCase, sure);
    EXPECT_NEAR(result.confidentDepth * 30, result.needP50, 1e-9);
}

TEST(WhatIf, HoldsMoreCasesWithDepth) {
    WhatIfMemory memory;
    WhatIfCase theCase = officeCase();
    double before = 0;
    for (const double depth : {150, 280, 320, 600}) {
        theCase.inputs.drawnDepth = depth;
        const double holds = whatIfOf(theCase, sure, memory).holds;
        EXPECT_GE(holds, before);
        before = holds;
    }
    EXPECT_GT(before, 0.999);
}

TEST(WhatIf, GivesTheSameDigitsInSlicesAndAfterAnotherDesign) {
    WhatIfMemory memory;
    constexpr WhatIfWanted wanted{.sure = true, .tower = true};
    const WhatIfCase theCase = officeCase(byGFunctions);
    const WhatIf first = whatIfOf(theCase, wanted, memory);
    WhatIfCase other = theCase;
    other.design.soil.diffusivity = 0.9;
    other.design.arrangement.patternRows = {4, 4};
    whatIfOf(other, wanted, memory);
    WhatIfRun run(theCase, wanted, memory);
    while (!run.step()) run.result();
    EXPECT_EQ(run.result(), first);
    EXPECT_EQ(first.sampleCount, 2'048u);
    EXPECT_NEAR(first.needP90, 12'710, 127);
}

TEST(WhatIf, TellsOfFewerSetsWhileItRuns) {
    WhatIfMemory memory;
    WhatIfRun run(officeCase(), sure, memory);
    bool told = false;
    while (!run.step()) {
        const WhatIf& result = run.result();
        if (result.sampleCount == 0 || result.sampleCount == 16'384) continue;
        told = true;
        EXPECT_EQ(result.sampleCount % 2'048, 0u);
        EXPECT_NEAR(result.needP50, 8329, 0.02 * 8329);
        EXPECT_FALSE(run.isFinal());
    }
    EXPECT_TRUE(told);
    EXPECT_TRUE(run.isFinal());
}

TEST(WhatIf, LeavesTheOtherMethodWhereOneFails) {
    WhatIfCase theCase = officeCase(byGFunctions);
    theCase.design.arrangement.patternRows = {60, 50};
    const WhatIf result = found(theCase, sure);
    EXPECT_EQ(result.reason.text, Text::whatIfTooManyBores);
    EXPECT_EQ(result.needGoverning, 0);
    EXPECT_EQ(result.needP50, 0);
    EXPECT_GT(result.otherNeed, 0);
    EXPECT_EQ(result.otherNeeds.size(), 16'384u);
    theCase.inputs.measure = classicalMethod;
    const WhatIf classical = found(theCase, sure);
    EXPECT_FALSE(classical.reason.holds());
    EXPECT_GT(classical.needP50, 0);
    EXPECT_EQ(classical.reasonOfOther.text, Text::whatIfTooManyBores);
}

TEST(WhatIf, LeavesTheOtherModeWhereALimitIsOnTheWrongSide) {
    WhatIfCase theCase = officeCase();
    theCase.design.loads.inletTemp[heating] = 80;
    const WhatIf result = found(theCase, WhatIfWanted::everything());
    EXPECT_FALSE(result.reason.holds());
    EXPECT_EQ(result.reasonOfMode[heating].text, Text::whatIfHeatingLimit);
    EXPECT_NEAR(result.needLength[cooling], 8296.949, 5e-4);
    EXPECT_EQ(result.needLength[heating], 0);
    EXPECT_EQ(result.needGoverning, 0);
    EXPECT_FALSE(result.governing);
    EXPECT_EQ(result.failedSamples, result.sampleCount);
    EXPECT_EQ(result.needP50, 0);
    EXPECT_EQ(result.holds, 0);
    EXPECT_EQ(result.share, (std::array<double, quantityCount>{}));
    EXPECT_EQ(result.alternatives.at(0).reason.text, Text::alternativeWithoutLength);
    EXPECT_FALSE(result.tower.best);
}

TEST(WhatIf, SaysWhyThereIsNothing) {
    const auto reasonWith = [](const auto& change, WhatIfMeasure measure) {
        WhatIfCase theCase = officeCase(measure);
        change(theCase.design);
        const WhatIf result = found(theCase, WhatIfWanted::everything());
        EXPECT_EQ(result.needGoverning, 0);
        EXPECT_EQ(result.firstCost, 0);
        EXPECT_EQ(result.tornadoHigh[0], 0);
        EXPECT_EQ(result.needP90, 0);
        return result.reason.text;
    };
    for (const WhatIfMeasure measure : {classicalMethod, byGFunctions}) {
        using In = BoreholeInputs&;
        EXPECT_EQ(reasonWith([](In d) { d.loads.zones = SharedZones(); }, measure),
                  Text::whatIfNoLoads);
        EXPECT_EQ(reasonWith([](In d) { d.soil.conductivity = 0; }, measure),
                  Text::whatIfNoConductivity);
        EXPECT_EQ(reasonWith([](In d) { d.soil.diffusivity = 0; }, measure),
                  Text::whatIfNoDiffusivity);
        EXPECT_EQ(reasonWith([](In d) { d.bore.boreDiameter = 0; }, measure),
                  Text::whatIfNoBoreDiameter);
        EXPECT_EQ(reasonWith([](In d) { d.arrangement.patternRows[1] = 0; }, measure),
                  Text::whatIfNoRows);
        EXPECT_EQ(reasonWith([](In d) { d.arrangement.boreSeparation = 0; }, measure),
                  Text::whatIfNoSeparation);
        EXPECT_EQ(reasonWith([](In d) { d.arrangement.predictionTime = 0; }, measure),
                  Text::whatIfNoPredictionTime);
        EXPECT_EQ(reasonWith(
                      [](In d) {
                          d.loads.zones.edit(0).gains[1][cooling] = 1e306;
                          d.loads.zones.edit(0).hours[cooling] = 8760;
                          d.bore.boreResistance = 1e9;
                      },
                      measure),
                  Text::whatIfNotComputable);
    }
}

TEST(WhatIf, ComparesAlternativesEachAtItsOwnNeed) {
    WhatIfCase theCase = officeCase();
    auto kept = std::make_shared<BoreholeProject>();
    kept->arrangement.patternRows = {5, 4};
    kept->arrangement.boreSeparation = 25;
    kept->arrangement.predictionTime = 20;
    theCase.inputs.alternatives.push_back({"Wider", kept});
    Alternative trench{"Trenches", AlternativeKind::horizontal, {}, {}};
    trench.loop.pipe = 12'000;
    trench.loop.trench = 6'000;
    trench.loop.year = energyYearOf(theCase.design, RolledZones(theCase.design.loads.zones));
    Alternative pond{"Pond", AlternativeKind::surfaceWater, {}, {}};
    theCase.others = {trench, pond};
    const WhatIf result = found(theCase, {.alternatives = true});
    ASSERT_EQ(result.alternatives.size(), 4u);
    EXPECT_EQ(result.alternatives[0].name, "Office");
    EXPECT_NEAR(result.alternatives[0].length, 8296.949, 5e-4);
    // The kept one has the present loads: as a design of its own.
    WhatIfCase own = theCase;
    own.design.arrangement.patternRows = {5, 4};
    own.design.arrangement.boreSeparation = 25;
    EXPECT_NEAR(result.alternatives[1].length, found(own, base).needGoverning, 1e-9);
    EXPECT_EQ(result.alternatives[1].bores, 20);
    EXPECT_NEAR(result.alternatives[1].depth, result.alternatives[1].length / 20, 1e-9);
    EXPECT_EQ(result.alternatives[2].kind, AlternativeKind::horizontal);
    EXPECT_EQ(result.alternatives[2].first, 5'000 + 8 * 6'000 + 12'000);
    EXPECT_NEAR(result.alternatives[2].energy, 40'314, 1);
    EXPECT_NEAR(result.alternatives[2].life,
                result.alternatives[2].first + 40'314 * 0.12 * presentWorth({}), 1);
    EXPECT_EQ(result.alternatives[3].reason.text, Text::alternativeWithoutLength);
    EXPECT_EQ(result.alternatives[3].first, 0);
}

TEST(WhatIf, KnowsNoCostOverLifeOfALoopWithoutLoads) {
    WhatIfCase theCase = officeCase();
    Alternative trench{"Trenches", AlternativeKind::horizontal, {}, {}};
    trench.loop.pipe = 12'000;
    trench.loop.trench = 6'000;
    theCase.others = {trench};
    const AlternativeFigures loop = found(theCase, {.alternatives = true}).alternatives.at(1);
    EXPECT_EQ(loop.length, 12'000);
    EXPECT_EQ(loop.first, 5'000 + 8 * 6'000 + 12'000);
    EXPECT_EQ(loop.energy, 0);
    EXPECT_EQ(loop.life, 0);
    EXPECT_EQ(loop.reason.text, Text::alternativeWithoutYear);
}

TEST(WhatIf, ComputesAlternativesWhereTheDesignItselfHasNone) {
    WhatIfCase theCase = officeCase();
    theCase.inputs.alternatives.push_back({"Sound", std::make_shared<BoreholeProject>()});
    theCase.design.soil.conductivity = 0;
    const WhatIf result = found(theCase, {.alternatives = true});
    EXPECT_EQ(result.alternatives[0].reason.text, Text::whatIfNoConductivity);
    EXPECT_GT(result.alternatives[1].length, 0);
}

TEST(WhatIf, DrawsTheTowerByEitherMethod) {
    const WhatIf classical = found(officeCase(), {.tower = true});
    EXPECT_EQ(classical.tower.best, 44u);
    EXPECT_EQ(classical.tower.bestFirst, 45u);
    const WhatIf byG = found(officeCase(byGFunctions), {.tower = true});
    EXPECT_NEAR(byG.tower.length[0], 9762, 5);
    ASSERT_TRUE(byG.tower.best);
    EXPECT_LT(byG.tower.life[*byG.tower.best], byG.tower.life[0]);
}

TEST(WhatIf, TakesInputsThatAFileMayHoldForTheirDefaults) {
    WhatIfCase theCase = officeCase();
    theCase.inputs.spreads.low[0] = 100;
    theCase.inputs.confidence = NAN;
    theCase.inputs.measure = 17;
    theCase.inputs.prices.costYears = -4;
    theCase.inputs.spreads.tie[0] = 1;
    EXPECT_EQ(withinLimits(theCase.inputs), WhatIfInputs{});
    EXPECT_GT(found(theCase, sure).needP90, 0);
}

TEST(WhatIfValues, AreNamedOnceEachAndStartWithinTheirLimits) {
    WhatIfInputs inputs;
    std::vector<std::string> names;
    double value = 1;
    for (const WhatIfNumber& number : whatIfNumbers()) {
        EXPECT_TRUE(number.allows(number.in(inputs))) << number.name;
        names.push_back(number.name);
        number.in(inputs) = value++;
    }
    // Each stands for a value of its own.
    value = 1;
    for (const WhatIfNumber& number : whatIfNumbers()) EXPECT_EQ(number.in(inputs), value++);
    std::sort(names.begin(), names.end());
    EXPECT_EQ(std::adjacent_find(names.begin(), names.end()), names.end());
    EXPECT_EQ(inputs.spreads.high[2], 13);
    EXPECT_EQ(names.size(), 52u);
}

TEST(WhatIf, NeverFailsOnWhateverIsTyped) {
    std::mt19937 random(77);
    const auto pick = [&](std::initializer_list<double> values) {
        return values.begin()[random() % values.size()];
    };
    WhatIfMemory memory;
    for (int i = 0; i < 400; ++i) {
        WhatIfCase theCase = officeCase();
        BoreholeInputs& design = theCase.design;
        Zone& zone = design.loads.zones.edit(0);
        for (auto& gain : zone.gains)
            for (Mode m : modes) gain[m] = pick({0, 1e-9, 100, -50, 1e9, 300});
        zone.pump.capacity = {pick({0, 300, -1, 1e-300}), pick({0, 300})};
        zone.pump.watts = {pick({0, 25, 1e300}), pick({0, 25})};
        design.soil = {pick({62, -400, 1e9}), pick({1.3, 0, -1, 1e9}), pick({0.75, 0, -2, 1e-9})};
        design.arrangement.patternRows = {pick({6, 1, 0, 1e6, 2.5}), pick({5, 1, 0})};
        design.arrangement.boreSeparation = pick({20, 0, 60, 1e-3});
        design.arrangement.predictionTime = pick({20, 0, 1e5});
        design.loads.flowRate = pick({3, 0, -1, 1e-300});
        design.bore.boreDiameter = pick({5, 0, 1e6});
        const WhatIf result = whatIfOf(theCase, {.cost = true, .tower = true}, memory);
        EXPECT_TRUE(std::isfinite(result.needGoverning));
        EXPECT_TRUE(std::isfinite(result.lifeCost)) << i;
    }
}

}  // namespace
}  // namespace varnholt
