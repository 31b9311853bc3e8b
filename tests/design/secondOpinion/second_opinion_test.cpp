// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/second_opinion.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <numbers>
#include <tuple>
#include <utility>

#include "design/borehole_project.h"
#include "design/borehole_run.h"
#include "design/secondOpinion/opinion_cases.h"

namespace varnholt {
namespace {

TEST(SecondOpinion, AgreesWithThreePublicToolsOnTheirField) {
    // Two of the tools and a prototype of this method: 83.5 m for 6 by 4, 100.6 m for 12 by 10, and
    // heating governs in January of the twentieth year.
    for (const auto& [across, down, depth] : {std::tuple{6, 4, 83.5}, {12, 10, 100.6}}) {
        const SecondOpinion opinion = opinionOn(peersCase(across, down));
        ASSERT_FALSE(opinion.reason.holds());
        EXPECT_EQ(opinion.governing(), heating);
        EXPECT_NEAR(opinion.soDepth[heating] * metresPerFoot, depth, 0.005 * depth);
        EXPECT_EQ(opinion.soMonth[heating], 19 * 12 + 1);
        EXPECT_EQ(opinion.groupCount, 6u);
        EXPECT_NEAR(opinion.soLength[heating], opinion.soDepth[heating] * across * down, 1e-6);
    }
}

TEST(SecondOpinion, AgreesWithASecondRouteOnThatField) {
    // tests/independent/g_function_road.py prints g of 80 and 87 m, the depth and the month.
    const std::array<double, 10> of80{0.3590, 1.1080,  1.7751,  2.7336,  3.4575,
                                      6.9368, 13.5558, 16.8974, 19.7461, 22.1987};
    const std::array<double, 10> of87{0.3590, 1.1081,  1.7754,  2.7345,  3.4597,
                                      6.9622, 13.7269, 17.2223, 20.2797, 23.0220};
    SecondOpinionCase theCase = peersCase(6, 4);
    theCase.window.depthChoice = depthAsTyped;
    for (const auto& [depth, expected] : {std::pair{80, of80}, {87, of87}}) {
        theCase.window.typedDepth = feet(depth);
        const SecondOpinion opinion = opinionOn(theCase);
        for (std::size_t i = 0; i < expected.size(); ++i)
            EXPECT_NEAR(opinion.gValue[i], expected[i], 0.0008 * expected[i]) << depth << " " << i;
        EXPECT_NEAR(opinion.soDepth[heating] * metresPerFoot, 83.52, 0.02);
        EXPECT_EQ(opinion.soMonth[heating], 229);
    }
}

TEST(SecondOpinion, TellsWhatTheClassicalFigureMisses) {
    // The more bores, the more the neighbours' heat counts that three rings of ground do not show.
    const SecondOpinion small = opinionOn(peersCase(6, 4)), large = opinionOn(peersCase(12, 10));
    EXPECT_NEAR(*small.difference(heating), 0.088, 0.002);
    EXPECT_NEAR(*large.difference(heating), 0.279, 0.002);
    for (const SecondOpinion* opinion : {&small, &large})
        for (Mode mode : modes) {
            const LengthParts& parts = *opinion->lengthPart[mode];
            EXPECT_NEAR(parts[0] + parts[1] + parts[2],
                        opinion->soLength[mode] - opinion->classicalLength[mode], 1e-6);
        }
    // Neighbours and ends are the largest part, a line in place of a cylinder spares some length.
    const LengthParts& parts = *large.lengthPart[heating];
    EXPECT_GT(parts[neighboursAndEnds], parts[monthsAndYears]);
    EXPECT_LT(parts[shortPulseAsLine], 0);
    // Cooling is worst in the first year, before the ground has cooled down.
    EXPECT_EQ(large.soMonth[cooling], 8);
}

/// Test 1a of Ahmadfard and Bernier, "A review of vertical ground heat exchanger sizing tools
/// including an inter-model comparison" (Renewable and Sustainable Energy Reviews 110, 2019).
SecondOpinionCase ahmadfardCase() {
    SecondOpinionCase theCase;
    BoreholeInputs& design = theCase.design;
    // The year's 1,907.2 and 1,899.4 kWh with full-load hours that are whole: parts of the peak of
    // 4.43 kW for 430 and 431, and for 428 and 429 hours. 2.13 430 + 2.30 431 = 1907.2,
    // 1.07 428 + 3.36 429 = 1899.4.
    const double kilowatt = mbtuPerKilowatt;
    design.loads.zones =
        std::vector<Zone>{zoneWithoutPower({2.13 * kilowatt, 1.07 * kilowatt}, {430, 428}),
                          zoneWithoutPower({2.30 * kilowatt, 3.36 * kilowatt}, {431, 429})};
    design.loads.inletTemp = {toFahrenheit(35), toFahrenheit(0)};
    // 0.44 kg/s of 3,795 J/(kg K) carry 1,669.8 W/K, 1,669.8 3.412/1.8 = 3,165.2 Btu/(hr degF); a
    // gpm of the fluid carries 60 62.4 0.1337 = 500.57, so it takes 6.3232 gpm for
    // 4.43 3.412/12 = 1.25960 tons.
    design.loads.fluid = {62.4, 1.0};
    design.loads.flowRate = 6.3232 / 1.25960;
    design.soil = {toFahrenheit(17.5), conductivityOf(1.8), diffusivityOf(1.8, 2.0736e6)};
    design.bore.boreDiameter = 12 * feet(0.15);
    design.bore.boreResistance = 0.13 / conductivityToEnglish;
    design.arrangement = {{1, 1}, 20, 0, 10};
    theCase.window.buriedDepth = feet(4);
    theCase.window.pulseHours = 6;
    theCase.window.shape = typedYear;
    theCase.window.monthEnergy =
        monthsOf({0, 0, 0, 121.5, 320.3, 493.4, 482.3, 355.5, 134.2, 0, 0, 0},
                 {449.1, 330.4, 150.5, 0.4, 0, 0, 0, 0, 0, 118.9, 344.3, 505.8});
    theCase.window.monthTop = monthsOf({0, 0, 0, 2.00, 3.61, 4.39, 4.43, 3.73, 2.14, 0, 0, 0},
                                       {4.40, 3.71, 2.21, 0.06, 0, 0, 0, 0, 0, 1.97, 3.75, 4.43});
    return theCase;
}

TEST(SecondOpinion, LiesAmongThePublishedToolsForOneBore) {
    const SecondOpinion opinion = opinionOn(ahmadfardCase());
    // Heat of a kWh a year: 3.412 MBtu.
    EXPECT_NEAR(opinion.annualEnergy[cooling], 1907.2 * 3.412, 1e-6 * 6507);
    EXPECT_NEAR(opinion.annualEnergy[heating], 1899.4 * 3.412, 1e-6 * 6481);
    const double depth = opinion.soDepth[*opinion.governing()] * metresPerFoot;
    EXPECT_GT(depth, 56.5);
    EXPECT_LT(depth, 63.7);
    EXPECT_NEAR(depth, 59.8, 1.5);
}

/// A bore of 300 ft that gives 10 MBtu/hr all year.
SecondOpinionCase evenCase(Mode mode) {
    SecondOpinionCase theCase;
    BoreholeInputs& design = theCase.design;
    ByMode<double> peak{};
    ByMode<std::int16_t> hours{};
    peak[mode] = 10;
    hours[mode] = 8760;
    design.loads.zones = std::vector<Zone>{zoneWithoutPower(peak, hours)};
    design.loads.inletTemp = {90, 40};
    design.arrangement = {{1, 1}, 20, 0, 10};
    theCase.window.depthChoice = depthAsTyped;
    theCase.window.typedDepth = 300;
    return theCase;
}

TEST(SecondOpinion, OfEvenHeatIsWorkedByHand) {
    for (Mode mode : modes) {
        const SecondOpinionCase theCase = evenCase(mode);
        const SecondOpinion opinion = opinionOn(theCase);
        ASSERT_FALSE(opinion.reasonOfShown.holds());
        for (const double load : opinion.monthlyLoad)
            EXPECT_NEAR(load, mode == cooling ? -10 : 10, 1e-12);
        const double k = theCase.design.soil.conductivity, length = 300;
        for (std::size_t i = 0; i < opinionYears.size(); ++i) {
            // The year ends with its extreme. 1,000 Btu/hr are 1 MBtu/hr.
            const double change =
                1000 * 10 * opinion.gValue[5 + i] / (2 * std::numbers::pi * k * length) +
                1000 * 10 * theCase.design.bore.boreResistance / length;
            if (mode == cooling) {
                EXPECT_NEAR(*opinion.years[i].high, 62 + change, 1e-6);
                EXPECT_FALSE(opinion.years[i].low);
            } else {
                EXPECT_NEAR(*opinion.years[i].low, 62 - change, 1e-6);
                EXPECT_FALSE(opinion.years[i].high);
            }
        }
    }
}

TEST(SecondOpinion, HoldsTheLimitAtItsOwnLength) {
    // At the depth of the governing mode the water entering in the month that governs is the limit.
    for (const SecondOpinionCase& theCase : {sampleCase(), peersCase(6, 4), ahmadfardCase()}) {
        const SecondOpinion opinion = opinionOn(theCase);
        const Mode mode = *opinion.governing();
        const auto month = static_cast<std::size_t>(opinion.soMonth[mode] - 1);
        EXPECT_NEAR(opinion.shownDepth, opinion.soDepth[mode], 1e-9);
        EXPECT_NEAR(*opinion.water[month].entering[mode], theCase.design.loads.inletTemp[mode],
                    2e-3);
    }
}

TEST(SecondOpinion, SumsItsMonthsToTheAnnualGroundLoad) {
    for (const std::int16_t shape : {std::int16_t{standardYear}, std::int16_t{typedYear}}) {
        SecondOpinionCase theCase = sampleCase();
        theCase.window.shape = shape;
        theCase.window.monthEnergy = theCase.window.monthTop = peersCase(1, 1).window.monthEnergy;
        const SecondOpinion opinion = opinionOn(theCase);
        double sum = 0;
        ByMode<double> shares{};
        for (std::size_t m = 0; m < 12; ++m) {
            sum += opinion.monthlyLoad[m];
            for (Mode mode : modes) shares[mode] += opinion.monthShare[m][mode];
        }
        EXPECT_NEAR(730 * sum, 8760 * runBorehole(theCase.design)->annualGroundLoad, 1e-6);
        EXPECT_NEAR(shares[cooling], 1, 1e-12);
        EXPECT_NEAR(shares[heating], 1, 1e-12);
    }
}

TEST(SecondOpinion, WithoutTypedEnergyOfAModeHasNone) {
    SecondOpinionCase theCase = sampleCase();
    theCase.window.shape = typedYear;
    for (auto& month : theCase.window.monthEnergy) month = {1, 0};
    for (auto& month : theCase.window.monthTop) month = {1, 1};
    const SecondOpinion opinion = opinionOn(theCase);
    EXPECT_EQ(opinion.annualEnergy[heating], 0);
    EXPECT_GT(opinion.annualEnergy[cooling], 0);
    for (const double load : opinion.monthlyLoad)
        EXPECT_NEAR(load, -opinion.annualEnergy[cooling] / 8760, 1e-12);
    // Its peaks are still there.
    EXPECT_GT(opinion.designPeak[heating], 0);
    EXPECT_FALSE(opinion.reasonOfMode[heating].holds());
}

TEST(SecondOpinion, HasThePenaltyOfTheField) {
    SecondOpinionCase theCase = peersCase(6, 4);
    const SecondOpinion opinion = opinionOn(theCase);
    // The field gives more heat than it takes: its ground gets colder, a positive penalty, and ever
    // more so; a bore alone has none.
    double before = 0;
    for (const OpinionYearLine& line : opinion.years) {
        EXPECT_GT(*line.penalty, before);
        before = *line.penalty;
    }
    const double length = opinion.shownDepth * 24;
    const double load = runBorehole(theCase.design)->annualGroundLoad;
    const ShownGFunction& g = opinion.gFunction;
    ASSERT_EQ(g.hours.size(), g.g.size());
    ASSERT_EQ(g.hours.size(), g.ofOneBore.size());
    // The last point of the picture lies a month behind the last year of the table.
    const double atEnd = 1000 * load * (g.g.back() - g.ofOneBore.back()) /
                         (2 * std::numbers::pi * theCase.design.soil.conductivity * length);
    EXPECT_NEAR(*opinion.years.back().penalty, atEnd, 0.003 * atEnd);
    theCase.design.arrangement.patternRows = {1, 1};
    for (const OpinionYearLine& line : opinionOn(theCase).years) EXPECT_EQ(*line.penalty, 0);
}

TEST(SecondOpinion, WithTheCylinderHasNoPartOfTheLine) {
    SecondOpinionCase theCase = peersCase(6, 4);
    theCase.window.depthChoice = depthAsTyped;
    const SecondOpinion line = opinionOn(theCase);
    theCase.window.cylinder = true;
    const SecondOpinion cylinder = opinionOn(theCase);
    for (Mode mode : modes) {
        // The ground within a line's bore holds heat, that within a cylinder's none.
        EXPECT_GT(cylinder.soLength[mode], line.soLength[mode]);
        const LengthParts& parts = *cylinder.lengthPart[mode];
        EXPECT_EQ(parts[shortPulseAsLine], 0);
        EXPECT_NEAR(parts[neighboursAndEnds], (*line.lengthPart[mode])[neighboursAndEnds], 1e-3);
        EXPECT_NEAR(parts[0] + parts[1] + parts[2],
                    cylinder.soLength[mode] - cylinder.classicalLength[mode], 1e-6);
    }
    EXPECT_GT(cylinder.gValue[0], line.gValue[0] + 0.1);
    EXPECT_NEAR(cylinder.gValue[9], line.gValue[9], 1e-4);
}

TEST(SecondOpinion, ShowsTheDepthThatIsChosen) {
    SecondOpinionCase theCase = peersCase(6, 4);
    theCase.window.depthChoice = depthOfDesign;
    const SecondOpinion ofDesign = opinionOn(theCase);
    EXPECT_NEAR(ofDesign.shownDepth, ofDesign.classicalLength[heating] / 24, 1e-9);
    theCase.window.depthChoice = depthOfSecondOpinion;
    const SecondOpinion own = opinionOn(theCase);
    EXPECT_EQ(own.shownDepth, own.soDepth[heating]);
    // The shorter bores of the classical length have colder water.
    EXPECT_LT(*ofDesign.years[3].low, *own.years[3].low - 1);
    theCase.window.depthChoice = depthAsTyped;
    theCase.window.typedDepth = own.shownDepth;
    const SecondOpinion typed = opinionOn(theCase);
    EXPECT_EQ(typed.years, own.years);
    EXPECT_EQ(typed.gValue, own.gValue);
    EXPECT_EQ(typed.soLength, own.soLength);
}

TEST(SecondOpinion, LooksFiftyYearsAheadWhateverThePredictionTime) {
    SecondOpinionCase theCase = sampleCase();
    theCase.design.arrangement.predictionTime = 0.5;
    const SecondOpinion opinion = opinionOn(theCase);
    EXPECT_EQ(opinion.water.size(), 600u);
    EXPECT_TRUE(opinion.years.back().high && opinion.years.back().low);
    // A year is looked at even of half a year's prediction.
    EXPECT_LE(opinion.soMonth[cooling], 12);
}

TEST(SecondOpinion, TakesThePulseOfTheWindowOrOfTheDesign) {
    SecondOpinionCase theCase = sampleCase();
    EXPECT_EQ(opinionOn(theCase).pulseHours, 12);
    theCase.window.pulseHours = 6;
    const SecondOpinion six = opinionOn(theCase);
    EXPECT_EQ(six.pulseHours, 6);
    theCase.window.pulseHours = 8;
    EXPECT_GT(opinionOn(theCase).soLength[cooling], six.soLength[cooling]);
}

TEST(SecondOpinion, TakesTheTowersShareAsARunOfTheSliderDoes) {
    BoreholeProject project;
    project.loads.zones = sampleBuilding();
    project.loads.zoneNumber = 2;
    project.tower.hybridPercent = 30;
    const SecondOpinionCase theCase = secondOpinionCase(project, {}, std::nullopt);
    EXPECT_TRUE(theCase.design.loads.hybridOn);
    const SecondOpinion opinion = opinionOn(theCase);
    EXPECT_EQ(opinion.towerPercent, 30);
    EXPECT_EQ(opinion.classicalLength, runBorehole(inputsOf(project, true))->lengths.boreLength);
    project.tower.hybridPercent = 0;
    const SecondOpinion whole = opinionOn(secondOpinionCase(project, {}, std::nullopt));
    EXPECT_EQ(whole.towerPercent, 0);
    EXPECT_EQ(whole.classicalLength, runBorehole(inputsOf(project, false))->lengths.boreLength);
    EXPECT_LT(opinion.soLength[cooling], whole.soLength[cooling]);
    EXPECT_NEAR(opinion.annualEnergy[cooling], 0.7 * whole.annualEnergy[cooling], 1e-6);
}

TEST(SecondOpinion, TellsWhatItsYearRestsOn) {
    SecondOpinionCase theCase = sampleCase();
    const SecondOpinion standard = opinionOn(theCase);
    EXPECT_EQ(standard.year[cooling].peakMonth, 7);
    EXPECT_EQ(standard.year[heating].peakMonth, 1);
    EXPECT_NEAR(standard.year[cooling].peakShare, standard.monthShare[6][cooling], 1e-12);
    theCase.window.southern = true;
    EXPECT_EQ(opinionOn(theCase).year[cooling].peakMonth, 1);
    EXPECT_EQ(opinionOn(theCase).year[heating].peakMonth, 7);
    // So few hours that one month would hold more than 40 percent, so many that no month is
    // greater.
    Zone zone = theCase.design.loads.zones[0];
    zone.hours = {100, 8760};
    theCase.design.loads.zones = std::vector<Zone>{zone};
    const SecondOpinion extremes = opinionOn(theCase);
    EXPECT_TRUE(extremes.year[cooling].heldAtGreatest);
    EXPECT_NEAR(extremes.year[cooling].peakShare, 0.4, 1e-9);
    EXPECT_TRUE(extremes.year[heating].evenMonths);
    EXPECT_FALSE(extremes.year[heating].heldAtGreatest);
}

TEST(SecondOpinion, TakesTheImportersYear) {
    SecondOpinionCase theCase = sampleCase();
    theCase.window.shape = importedYear;
    ByMode<MonthlyLoads> years{};
    years[cooling].totalLoads[5] = 300;
    years[cooling].totalLoads[6] = 700;
    years[cooling].peakLoads[5] = 20000;
    years[cooling].peakLoads[6] = 40000;
    years[heating].totalLoads[0] = years[heating].peakLoads[0] = 1;
    for (MonthlyLoads& year : years) year.recompute();
    theCase.imported = years;
    const SecondOpinion opinion = opinionOn(theCase);
    EXPECT_EQ(opinion.shape, importedYear);
    EXPECT_FALSE(opinion.importerMissing);
    EXPECT_NEAR(opinion.monthShare[5][cooling], 0.3, 1e-12);
    EXPECT_NEAR(opinion.monthPeak[5][cooling], 0.5, 1e-12);
    EXPECT_EQ(opinion.monthShare[0][heating], 1);
    EXPECT_EQ(opinion.year[cooling].peakMonth, 7);
}

TEST(SecondOpinion, FallsBackToTheStandardYearWithoutAnImport) {
    SecondOpinionCase theCase = sampleCase();
    const SecondOpinion standard = opinionOn(theCase);
    theCase.window.shape = importedYear;
    for (const auto& imported : {std::optional<ByMode<MonthlyLoads>>(),
                                 std::optional<ByMode<MonthlyLoads>>(ByMode<MonthlyLoads>{})}) {
        theCase.imported = imported;
        const SecondOpinion opinion = opinionOn(theCase);
        EXPECT_TRUE(opinion.importerMissing);
        EXPECT_EQ(opinion.shape, standardYear);
        EXPECT_EQ(opinion.soLength, standard.soLength);
    }
}

TEST(SecondOpinion, IsTheSameWhateverIsRemembered) {
    SecondOpinionMemory memory;
    const SecondOpinionCase small = peersCase(6, 4), other = sampleCase(), large = peersCase(9, 7);
    const SecondOpinion alone = opinionOn(small);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(secondOpinionOf(small, memory), alone);
        secondOpinionOf(other, memory);
        // A run that is dropped on the way leaves the memory sound.
        SecondOpinionRun dropped(large, memory);
        for (int steps = 0; steps < 20 * (i + 1); ++steps) dropped.step();
    }
    EXPECT_EQ(secondOpinionOf(small, memory), alone);
}

TEST(SecondOpinion, NeedsNoNewGFunctionForAnotherLoad) {
    SecondOpinionMemory memory;
    SecondOpinionCase theCase = peersCase(12, 10);
    const auto stepsOf = [&memory](const SecondOpinionCase& it) {
        SecondOpinionRun run(it, memory);
        int steps = 1;
        while (!run.step()) ++steps;
        return steps;
    };
    EXPECT_GT(stepsOf(theCase), 100);
    // One step for each of the stages and no more.
    EXPECT_LT(stepsOf(theCase), 10);
    theCase.design.bore.boreResistance *= 1.01;
    EXPECT_LT(stepsOf(theCase), 10);
    theCase.design.soil.groundTemp += 0.2;
    EXPECT_LT(stepsOf(theCase), 10);
}

}  // namespace
}  // namespace varnholt
