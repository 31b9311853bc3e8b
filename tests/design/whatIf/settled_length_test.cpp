// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/settled_length.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "basis/run_time_error.h"
#include "design/borehole_run.h"
#include "design/modCalculations/bore_grid.h"
#include "design/modCalculations/temperature_penalty.h"
#include "design/sample_building.h"
#include "design/whatIf/office.h"

namespace varnholt {
namespace {

CaseFigures figuresOf(const BoreholeInputs& design, const CaseFactors& factors = {},
                      double drawnLength = 0) {
    return classicalFigures(RolledZones(design.loads.zones), design, factors, drawnLength);
}

/// Gains, hours and power of the zones multiplied one by one, as a designer would type them.
SharedZones multiplied(SharedZones zones, const CaseFactors& factors) {
    for (std::size_t i = 0; i < zones.size(); ++i) {
        Zone& zone = zones.edit(i);
        for (Mode m : modes) {
            for (auto& gain : zone.gains) gain[m] *= factors.loads[m];
            zone.pump.watts[m] *= factors.pumpPower;
        }
    }
    return zones;
}

TEST(RolledZones, GiveTheDemandOfZonesWhosePumpsComeToTheirLimits) {
    // Zone A: load 10 of 8, limited from a factor of 0.8 on. Zone B: 6 of 12, from 2 on.
    Zone a = zoneOf({{{10, 0}, {0, 0}, {0, 0}, {0, 0}}});
    a.pump.capacity = {8, 0};
    a.pump.watts = {2, 0};
    Zone b = zoneOf({{{6, 0}, {0, 0}, {0, 0}, {0, 0}}});
    b.pump.capacity = {12, 0};
    b.pump.watts = {3, 0};
    const RolledZones zones({b, a});
    EXPECT_NEAR(zones.peakDemand(cooling, 0.4), 0.5 * 2 + 0.2 * 3, 1e-12);
    EXPECT_NEAR(zones.peakDemand(cooling, 1), 2 + 0.5 * 3, 1e-12);
    EXPECT_NEAR(zones.peakDemand(cooling, 2), 2 + 3, 1e-12);
    EXPECT_NEAR(zones.peakDemand(cooling, 5), 2 + 3, 1e-12);
    EXPECT_EQ(zones.peakDemand(heating, 1), 0);
}

TEST(RolledZones, AgreeWithZonesMultipliedOneByOne) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> factor(0.3, 3);
    for (int i = 0; i < 300; ++i) {
        BoreholeInputs design = officeInputs();
        design.loads.zones = sampleBuilding();
        design.loads.hybridOn = i % 2 == 1;
        design.loads.hybridPercent = static_cast<std::int16_t>(i % 2 * 30);
        CaseFactors factors;
        factors.loads = {factor(random), factor(random)};
        factors.pumpPower = factor(random);
        const CaseLoads loads = loadsOfCase(RolledZones(design.loads.zones), design.loads, factors);
        design.loads.zones = multiplied(design.loads.zones, factors);
        const auto run = runBorehole(design);
        EXPECT_NEAR(loads.peakLoad[heating], run->loads.peakLoad[heating], 1e-9);
        EXPECT_NEAR(loads.buildingPeak, run->loads.peakLoad[cooling], 1e-9);
        EXPECT_NEAR(loads.annualGroundLoad, run->annualGroundLoad, 1e-9);
        for (Mode m : modes) {
            EXPECT_NEAR(loads.peakDemand[m], run->demand.peakDemand[m], 1e-9);
            EXPECT_NEAR(loads.partLoadFactor[m], run->partLoad.partLoadFactor[m], 1e-12);
            EXPECT_NEAR(loads.outletTemp[m], run->outlet.outletTemp[m], 1e-9);
            EXPECT_NEAR(loads.heatPumpCOP[m], run->cop.heatPumpCOP[m], 1e-12);
        }
    }
}

TEST(SettledLength, IsThatOfTheOffice) {
    const CaseFigures figures = figuresOf(officeInputs());
    EXPECT_NEAR(figures.length[cooling], 8296.949, 5e-4);
    EXPECT_NEAR(figures.length[heating], 3458.519, 5e-4);
    EXPECT_EQ(figures.governing(), cooling);
}

TEST(SettledLength, PutsItsOwnPenaltyIntoTheLengthEquation) {
    // Second route: the penalty of the length found, put back, gives the same length.
    const BoreholeInputs design = officeInputs();
    const CaseFigures figures = figuresOf(design);
    const auto run = runBorehole(design);
    const auto& field = design.arrangement;
    const modCalculations::PenaltySite site{
        {field.patternRows[0], field.patternRows[1], field.boreSeparation},
        modCalculations::countNeighbours(field.patternRows[0], field.patternRows[1]),
        design.soil.soil(),
        field.predictionTime};
    const ByMode<double> penalty =
        modCalculations::calcTemperaturePenalty(site, run->annualGroundLoad, figures.length);
    modCalculations::LengthTerms terms;
    terms.annualGroundLoad = run->annualGroundLoad;
    terms.peakLoad = run->loads.peakLoad;
    terms.peakDemand = run->demand.peakDemand;
    terms.partLoadFactor = run->partLoad.partLoadFactor;
    terms.groundResistance = run->groundResistance;
    terms.boreResistance = design.bore.boreResistance;
    terms.shortCircuitFactor = 1.02;  // two bores a circuit, 3 gpm per ton
    terms.groundTemp = {62, 62};
    terms.inletTemp = design.loads.inletTemp;
    terms.outletTemp = run->outlet.outletTemp;
    const ByMode<double> lengths = modCalculations::calcBoreLengths(terms, penalty);
    for (Mode m : modes) EXPECT_NEAR(lengths[m], figures.length[m], 1e-8);
}

TEST(SettledLength, StandsWhereARunFailsBecauseTheOtherModeDoesNotSettle) {
    BoreholeInputs design = officeInputs();
    design.arrangement.boreSeparation = 12;
    const CaseFigures figures = figuresOf(design);
    EXPECT_NEAR(figures.length[cooling], 10298.77, 5e-3);
    EXPECT_EQ(figures.length[heating], 0);
    EXPECT_TRUE(runBorehole(design)->lengths.failed);
}

TEST(SettledLength, StandsWhereARunEndsForWantOfTheOtherMode) {
    BoreholeInputs design = officeInputs();
    for (auto& gain : design.loads.zones.edit(0).gains) gain[heating] = 0;
    EXPECT_THROW(runBorehole(design), RunTimeError);
    const CaseFigures figures = figuresOf(design);
    EXPECT_EQ(figures.length[heating], 0);
    EXPECT_GT(figures.length[cooling], 8000);
    EXPECT_TRUE(figures.hasNeed());
}

TEST(SettledLength, IsNoneForALimitOnTheWrongSideOfTheGround) {
    BoreholeInputs design = officeInputs();
    design.loads.inletTemp[cooling] = 50;
    const CaseFigures figures = figuresOf(design);
    EXPECT_EQ(figures.length[cooling], noLength);
    EXPECT_NEAR(figures.length[heating], 3458.519, 5e-4);
    EXPECT_FALSE(figures.hasNeed());
}

TEST(SettledLength, IsThatOfARunWhereverThePenaltyIsModerate) {
    // r is the penalty's part in the length: c over the heat without it.
    std::mt19937 random(20);
    const auto draw = [&](double least, double most) {
        return std::uniform_real_distribution<double>(least, most)(random);
    };
    int compared = 0;
    for (int i = 0; i < 10'000; ++i) {
        BoreholeInputs design = officeInputs();
        Zone& zone = design.loads.zones.edit(0);
        for (auto& gain : zone.gains)
            for (Mode m : modes) gain[m] = draw(10, 400);
        zone.hours = {static_cast<std::int16_t>(draw(100, 2500)),
                      static_cast<std::int16_t>(draw(100, 2500))};
        design.soil = {draw(45, 75), draw(0.4, 2.5), draw(0.3, 1.5)};
        design.arrangement.patternRows = {std::floor(draw(1, 13)), std::floor(draw(1, 13))};
        design.arrangement.boreSeparation = draw(10, 40);
        design.arrangement.predictionTime = draw(1, 40);
        design.loads.inletTemp = {draw(80, 100), draw(30, 45)};
        const CaseFigures figures = figuresOf(design);
        BoreholeInputs apart = design;
        apart.arrangement.boreSeparation = 100;  // no rings, no penalty
        const CaseFigures without = figuresOf(apart);
        bool moderate = true;
        for (Mode m : modes)
            moderate = moderate && without.length[m] > 100 &&
                       std::abs(figures.length[m] / without.length[m] - 1) <= 0.5;
        if (!moderate) continue;
        ++compared;
        const auto run = runBorehole(design);
        for (Mode m : modes)
            ASSERT_NEAR(figures.length[m] / run->lengths.boreLength[m], 1, 0.001) << i;
    }
    EXPECT_GT(compared, 3000);
}

TEST(SettledLength, TakesACasesFactorsAsADesignerWouldTypeThem) {
    CaseFactors factors;
    factors.conductivity = 1.2;
    factors.diffusivity = 1.2 / 0.9;
    factors.groundTemp = -3;
    factors.boreResistance = 1.1;
    factors.loads = {1.3, 0.7};
    factors.pumpPower = 1.05;
    BoreholeInputs typed = officeInputs();
    typed.soil = {59, 1.3 * 1.2, 0.75 * 1.2 / 0.9};
    typed.bore.boreResistance *= 1.1;
    typed.loads.zones = multiplied(typed.loads.zones, factors);
    const CaseFigures expected = figuresOf(typed);
    CaseFigures figures = figuresOf(officeInputs(), factors);
    for (Mode m : modes) EXPECT_NEAR(figures.length[m], expected.length[m], 1e-8);
    factors.method = 1.1;
    figures = figuresOf(officeInputs(), factors);
    EXPECT_NEAR(figures.length[cooling], 1.1 * expected.length[cooling], 1e-8);
    // Hours are no whole numbers here: 1150 at 1.1 are 1265, 720 at 0.9 are 648.
    factors = {};
    factors.hours = {1.1, 0.9};
    typed = officeInputs();
    typed.loads.zones.edit(0).hours = {1265, 648};
    EXPECT_NEAR(figuresOf(officeInputs(), factors).need(), figuresOf(typed).need(), 1e-8);
}

TEST(EnteringWater, IsTheLimitAtTheLengthThatIsNeeded) {
    const CaseFigures figures = figuresOf(officeInputs());
    const CaseFigures atNeed = figuresOf(officeInputs(), {}, figures.need());
    EXPECT_NEAR(atNeed.entering[cooling], 85, 1e-9);
    EXPECT_GT(atNeed.entering[heating], 50);
    // At twice the length the fluid's mean is half as far from the ground's 62 degF.
    const CaseFigures atTwice = figuresOf(officeInputs(), {}, 2 * figures.need());
    const auto run = runBorehole(officeInputs());
    const double half = (run->outlet.outletTemp[cooling] - 85) / 2;
    EXPECT_NEAR(atTwice.entering[cooling] + half - 62, (85 + half - 62) / 2, 1e-9);
}

}  // namespace
}  // namespace varnholt
