// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/cost.h"

#include <gtest/gtest.h>

#include <cmath>

#include "design/whatIf/office.h"
#include "design/whatIf/tower_curve.h"

namespace varnholt {
namespace {

DesignCost officeCost(double depth, std::size_t percent = 0) {
    const BoreholeInputs design = withTower(officeInputs(), percent);
    return designCost(design, RolledZones(design.loads.zones), depth, {});
}

TEST(Cost, OfTheOfficeAt320FeetIsThis) {
    // Drilling 30 x 320 x 14 = 134,400, bores 30 x 200 = 6,000, mobilization 5,000, trench
    // (29 x 20 + 50) x 10 = 6,300: 151,700.
    const DesignCost cost = officeCost(320);
    EXPECT_EQ(cost.costPart, (CostParts{134'400, 6'000, 5'000, 6'300, 0}));
    EXPECT_EQ(cost.firstCost, 151'700);
    // Cooling: peak tons 336/12 = 28, times 1150 hours 32,200 ton hours, times 12 over 3.412 is
    // 113,247.4 kWh of heat, over a COP of 352/3.412/24.96 = 4.1333 it is 27,398.9 kWh. Heating:
    // 240/12 x 720 = 14,400, times 12 over 3.412 is 50,644.8, over 304/3.412/22.72 = 3.9216 it is
    // 12,914.5. Together 40,313.
    EXPECT_NEAR(cost.yearlyEnergy, 40'314, 1);
    EXPECT_NEAR(cost.yearlyCost, 40'314 * 0.12, 0.2);
    EXPECT_NEAR(cost.lifeCost, 231'103, 1);
}

TEST(Cost, CountsTheFeetBelowTheBandAtTheirOwnPrice) {
    // 2 bores of 450 ft: 400 x 14 + 50 x 18 = 6,500 each; trench 1 x 15 + 50 = 65 ft.
    const CostParts parts = costParts({2, 450, 15, 10}, {});
    EXPECT_EQ(parts, (CostParts{13'000, 400, 5'000, 650, 3'000}));
    EXPECT_EQ(sumOf(parts), 22'050);
    EXPECT_EQ(costParts({2, 400, 15, 0}, {})[drillingPart], 11'200);
}

TEST(Cost, OfALoopIsItsTrenchAndItsPipe) {
    EXPECT_EQ(loopCost(600, 1200, {}), 5'000 + 8 * 600 + 1200);
    EXPECT_EQ(loopCost(0, 1200, {}), 6'200);
}

TEST(Energy, AddsCirculationThroughTheHoursAtFullLoad) {
    // 1,150 and 720 hours at peak, since the ton hours are peak tons times those hours.
    EnergyYear year;
    year.annualTonHours = {32'200, 14'400};
    year.peakLoad = {336, 240};
    year.heatPumpCOP = {0, 0};
    year.extraPower[modCalculations::circulationPumpInput] = 2;
    year.extraPower[modCalculations::additionalPower] = 1;
    EXPECT_NEAR(yearlyEnergy(year, {}), 3 * (1150 + 720), 1e-9);
    year.peakLoad[heating] = 0;
    EXPECT_NEAR(yearlyEnergy(year, {}), 3 * 1150, 1e-9);
}

TEST(Energy, OfATowerComesFromItsMotorsOrItsTons) {
    EnergyYear year;
    year.towerTons = 10;
    year.towerHours = 500;
    EXPECT_NEAR(yearlyEnergy(year, {}), 500 * 10 * 0.1, 1e-9);
    year.extraPower[modCalculations::towerFanInput] = 1.5;
    EXPECT_NEAR(yearlyEnergy(year, {}), 500 * 1.5, 1e-9);
    year.extraPower[modCalculations::towerPumpInput] = 0.5;
    EXPECT_NEAR(yearlyEnergy(year, {}), 500 * 2.0, 1e-9);
}

TEST(PresentWorth, IsThatOfARowOfPowers) {
    // q = 1.02/1.04; q + ... + q^20 = q (1 - q^20)/(1 - q).
    const double q = 1.02 / 1.04;
    EXPECT_NEAR(presentWorth({}), q * (1 - std::pow(q, 20)) / (1 - q), 1e-12);
    Prices flat;
    flat.escalation = flat.discount = 3;
    EXPECT_NEAR(presentWorth(flat), 20, 1e-12);
    flat.costYears = 1;
    flat.escalation = 0;
    EXPECT_NEAR(presentWorth(flat), 1 / 1.03, 1e-12);
    EXPECT_NEAR(lifeCost(1000, 100, flat), 1000 + 100 / 1.03, 1e-12);
}

TEST(TowerOfADesign, IsThatOfASliderRun) {
    for (const std::size_t percent : {10u, 44u, 99u}) {
        const BoreholeInputs design = withTower(officeInputs(), percent);
        const auto run = runBorehole(design);
        const EnergyYear year = energyYearOf(design, RolledZones(design.loads.zones));
        EXPECT_NEAR(year.towerTons, run->tower.capacity / 12, 1e-9);
        EXPECT_NEAR(year.towerHours, run->tower.hours, 1e-9);
        // The pumps still cool: their year is the whole building's.
        EXPECT_EQ(year.annualTonHours, run->annualTonHours);
        EXPECT_EQ(year.peakLoad, run->loads.peakLoad);
    }
    EXPECT_EQ(energyYearOf(officeInputs(), RolledZones(officeInputs().loads.zones)).towerTons, 0);
}

TowerCurve officeCurve(const Prices& prices = {}) {
    const BoreholeInputs design = officeInputs();
    const RolledZones zones(design.loads.zones);
    TowerCurve curve;
    std::array<bool, towerPercents> heatingGoverns{};
    for (std::size_t p = 0; p < towerPercents; ++p) {
        const CaseFigures figures = classicalFigures(zones, withTower(design, p), {}, 0);
        setTowerPercent(curve, p, design, zones, figures, prices);
        heatingGoverns[p] = figures.governing() == heating;
    }
    concludeTower(curve, heatingGoverns);
    return curve;
}

TEST(TowerCurve, OfTheOfficeIsLeastWhereHeatingBeginsToGovern) {
    const TowerCurve curve = officeCurve();
    EXPECT_EQ(curve.best, 44u);
    EXPECT_EQ(curve.bestFirst, 45u);
    EXPECT_EQ(curve.heatingGoverns, 45u);
    EXPECT_NEAR(curve.length[0], 8296.949, 5e-4);
    EXPECT_GT(curve.length[60], curve.length[45]);
    EXPECT_GT(curve.life[60], curve.life[45]);
    // Fc 336 x 45 / 100 / 12 tons at 300 each, Fc = 5.1333/4.1333.
    const double cop = 352 / 3.412 / 24.96;
    EXPECT_NEAR(curve.towerCost[45], (cop + 1) / cop * 336 * 0.45 / 12 * 300, 1e-9);
}

TEST(TowerCurve, AgreesWithRunsOfTheSlider) {
    const TowerCurve curve = officeCurve();
    for (const std::size_t percent : {0u, 20u, 44u}) {
        const auto run = runBorehole(withTower(officeInputs(), percent));
        EXPECT_NEAR(curve.length[percent] / run->lengths.boreLength[cooling], 1, 0.001);
    }
}

TEST(TowerCurve, TakesTheLowerOfEqualPercents) {
    TowerCurve curve;
    curve.length.fill(100);
    curve.life.fill(7);
    curve.first.fill(9);
    curve.length[0] = 0;  // no length, no cost: not the best
    curve.life[0] = curve.first[0] = 0;
    concludeTower(curve, {});
    EXPECT_EQ(curve.best, 1u);
    EXPECT_EQ(curve.bestFirst, 1u);
    EXPECT_FALSE(curve.heatingGoverns);
}

}  // namespace
}  // namespace varnholt
