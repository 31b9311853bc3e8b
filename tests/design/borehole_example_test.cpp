// SPDX-License-Identifier: GPL-3.0-or-later
// One building through all steps of a borehole run. The figures beside the steps were worked by a
// second route, in which the fixed point of length and penalty is found in closed form.
#include <gtest/gtest.h>

#include "design/modCalculations/cooling_tower.h"
#include "design/modCalculations/ground_load.h"
#include "design/modCalculations/part_load.h"
#include "design/modCalculations/peak_demand.h"
#include "design/modCalculations/peak_loads.h"
#include "design/modCalculations/settling.h"
#include "design/modCalculations/short_circuit.h"
#include "design/modCalculations/system_cop.h"
#include "design/modCalculations/system_flow.h"
#include "expect_error.h"
#include "sample_building.h"

namespace varnholt::modCalculations {
namespace {

/// The building in default soil with a grid of 2 by 2, two bores a circuit, 3 gpm per ton of water.
struct Design {
    std::vector<Zone> zones = sampleBuilding();
    BoreGrid grid{2, 2, 20};
    Soil soil{1.3, 0.75};
    double years = 10;
    Hybrid hybrid;
    ExtraPower extraPower{1.0, 0.85, 0.5, 0, 0, 0, 0};
    ByMode<double> inletTemp{85, 50};
    Fluid fluid{62.4, 1.0};
    double flowRate = 3;

    PeakLoads loads;
    SystemCOP cop;
    LengthTerms terms;
    ByMode<double> firstLength;
    SettledLengths settled;

    void calculate() {
        loads = calcPeakLoads(zones);
        hybrid.coolingPeakBeforeHybrid = loads.peakLoad[cooling];
        if (hybrid.on) loads.peakLoad[cooling] = hybrid.leftForGround(loads.peakLoad[cooling]);
        const PeakDemand demand = calcPeakDemand(zones, loads.peakBlock);
        cop = calcSystemCOP(zones, loads.peakLoad, demand.peakDemand, extraPower, hybrid);
        terms.peakLoad = loads.peakLoad;
        terms.peakDemand = demand.peakDemand;
        terms.partLoadFactor = calcPartLoadFactors(zones, loads.peakLoad, hybrid).partLoadFactor;
        terms.annualGroundLoad = calcAnnualGroundLoad(annualTonHours(calculateLoadTonHours(zones)),
                                                      cop.heatPumpCOP, hybrid);
        terms.groundResistance =
            calcGroundResistances(calcPulseTimes(loads.peakBlock, years), 5.0 / 12, soil);
        terms.boreResistance = 0.196;
        terms.shortCircuitFactor = shortCircuitFactor(2, flowRate);
        terms.groundTemp = {62, 62};
        terms.inletTemp = inletTemp;
        terms.outletTemp = calcUnitOutletTemps(loads.peakLoad, demand.peakDemand, inletTemp,
                                               flowRate, fluid, hybrid)
                               .outletTemp;
        const PenaltySite site{grid, countNeighbours(grid.rows, grid.columns), soil, years};
        firstLength = calcBoreLengths(terms, initTemperaturePenalty());
        const auto penalty = calcTemperaturePenalty(site, terms.annualGroundLoad, firstLength);
        settled = settleBoreLengths(terms, site, calcBoreLengths(terms, penalty));
    }
};

TEST(BoreholeExample, AgreesWithASecondRoute) {
    Design design;
    design.calculate();
    // ton-hours 7500 and 6950, COP 3.962816 and 3.879043:
    // 12 * (0.742205*6950 - 1.252346*7500) / 8760
    EXPECT_NEAR(design.terms.annualGroundLoad, -5.8003738, 1e-6);
    // a 12-hour pulse: Fo 63599.04, 527.04, 8.64; G 0.936888, 0.565833, 0.258782
    EXPECT_NEAR(design.terms.groundResistance.annual, 0.2854264, 1e-7);
    EXPECT_NEAR(design.terms.groundResistance.monthly, 0.2361935, 1e-7);
    EXPECT_NEAR(design.terms.groundResistance.shortTerm, 0.1990629, 1e-7);
    // cooling: -60986.2965 over -27.982580 + 3, heating: 32916.0488 over 15.005452 - 3
    EXPECT_NEAR(design.firstLength[cooling], 2441.15290, 1e-4);
    EXPECT_NEAR(design.firstLength[heating], 2741.75835, 1e-4);
    // penalty -1089.3227/L; closed form (N + c)/D: 2218.36657 and 2121.01080
    EXPECT_NEAR(design.settled.boreLength[cooling], 2218.36657, 0.01);
    EXPECT_NEAR(design.settled.boreLength[heating], 2121.01080, 0.05);
    EXPECT_NEAR(design.settled.temperaturePenalty[cooling], -0.491047, 1e-3);
    EXPECT_NEAR(design.settled.temperaturePenalty[heating], -0.513587, 1e-3);
    EXPECT_FALSE(design.settled.failed);
}

TEST(BoreholeExample, WithATowerAgreesWithASecondRoute) {
    Design design;
    design.hybrid = {true, 30, 0};
    design.calculate();
    EXPECT_NEAR(design.terms.annualGroundLoad, -1.9404037, 1e-6);
    EXPECT_NEAR(design.settled.boreLength[cooling], 1643.02814, 0.01);
    EXPECT_NEAR(design.settled.boreLength[heating], 2242.74308, 0.01);
    // 1.252346 * 28.8 MBtu/hr
    const CoolingTower tower =
        sizeCoolingTower(design.hybrid, design.loads.peakLoad[cooling],
                         {design.cop.heatPumpCOP[cooling], 7500, 30}, design.fluid, 10);
    EXPECT_NEAR(tower.capacity, 36.06756, 1e-5);
    EXPECT_NEAR(tower.hours, 937.5, 1e-6);
    EXPECT_NEAR(tower.flow, 7.2052577, 1e-6);
}

TEST(BoreholeExample, OfACoolingOnlyBuildingEndsWithDivisionByZero) {
    Design design;
    for (Zone& zone : design.zones)
        for (auto& gain : zone.gains) gain[heating] = 0;
    expectError(11, [&] { design.calculate(); });
    EXPECT_EQ(design.firstLength[heating], 0);
}

TEST(BoreholeExample, WithATowerForAllCoolingEndsWithDivisionByZero) {
    Design design;
    design.hybrid = {true, 100, 0};
    expectError(11, [&] { design.calculate(); });
}

TEST(BoreholeExample, WithBoresMoreThan50FeetApartHasThePlainThreePulseLengths) {
    Design design;
    design.grid.separation = 50.1;
    design.calculate();
    // N/D: 60986.2965/27.982580 and 32916.0488/15.005452
    EXPECT_NEAR(design.settled.boreLength[cooling], 2179.4380, 0.001);
    EXPECT_NEAR(design.settled.boreLength[heating], 2193.6059, 0.001);
    EXPECT_EQ(design.settled.temperaturePenalty, (ByMode<double>{0, 0}));
    EXPECT_EQ(design.settled.iterations, 1);
}

TEST(BoreholeExample, OfTwoTiedBlocksTakesTheEarlierAndWithItTheShorterPulse) {
    Design design;
    for (Zone& zone : design.zones) zone.gains[0][heating] = zone.gains[3][heating];
    design.calculate();
    EXPECT_EQ(design.loads.peakBlock[heating], 0);
    // the 4-hour pulse: G(2.88)/1.3
    EXPECT_NEAR(design.terms.groundResistance.shortTerm, 0.1473319, 1e-7);
}

TEST(BoreholeExample, OfAHeatingDominatedSiteCoolsItsGroundInBothModes) {
    Design design;
    for (Zone& zone : design.zones) zone.hours = {300, 2500};
    design.calculate();
    EXPECT_GT(design.terms.annualGroundLoad, 0);
    EXPECT_GT(design.settled.temperaturePenalty[cooling], 0);
    EXPECT_GT(design.settled.temperaturePenalty[heating], 0);
}

}  // namespace
}  // namespace varnholt::modCalculations
