// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "design/modCalculations/ground_load.h"
#include "design/modCalculations/part_load.h"
#include "design/modCalculations/peak_demand.h"
#include "design/modCalculations/peak_loads.h"
#include "design/modCalculations/system_cop.h"
#include "design/modCalculations/system_flow.h"
#include "expect_error.h"
#include "sample_building.h"
#include "sample_materials.h"

namespace varnholt::modCalculations {
namespace {

constexpr ExtraPower extra{1.0, 0.85, 0.5, 0.2, 0.17, 0.3, 0.255};

TEST(PeakLoads, AreSumsOverTheZonesAndTheirLargestBlock) {
    const PeakLoads loads = calcPeakLoads(sampleBuilding());
    EXPECT_EQ(loads.blockLoad[cooling], (std::array<double, 4>{60, 96, 78, 18}));
    EXPECT_EQ(loads.blockLoad[heating], (std::array<double, 4>{54, 36, 46, 84}));
    EXPECT_EQ(loads.peakLoad, (ByMode<double>{96, 84}));
    EXPECT_EQ(loads.peakBlock, (ByMode<std::int16_t>{1, 3}));
}

TEST(PeakLoads, KeepTheEarlierOfTwoBlocksThatTie) {
    const std::vector<Zone> zones{zoneOf({{{0, 5}, {40, 9}, {40, 2}, {40, 9}}})};
    EXPECT_EQ(calcPeakLoads(zones).peakBlock, (ByMode<std::int16_t>{1, 1}));
}

TEST(PeakLoads, WithoutAPositiveBlockAreZeroInTheFirst) {
    const std::vector<Zone> zones{zoneOf({{{0, -5}, {0, -4}, {0, -3}, {0, -2}}})};
    const PeakLoads loads = calcPeakLoads(zones);
    EXPECT_EQ(loads.peakLoad, (ByMode<double>{0, 0}));
    EXPECT_EQ(loads.peakBlock, (ByMode<std::int16_t>{0, 0}));
    EXPECT_EQ(loads.blockLoad[heating][3], -2);
}

TEST(PeakLoads, OfNoZonesAreZero) { EXPECT_EQ(calcPeakLoads({}).peakLoad, (ByMode<double>{0, 0})); }

TEST(PeakDemand, AgreesWithAHandCalculation) {
    // cooling, block 1: 60/62 * 4.6 = 4.451613, 36/34 capped: 2.5
    // heating, block 3: 54/50 capped: 4.0, 30/40 * 2.8 = 2.1
    const PeakDemand demand = calcPeakDemand(sampleBuilding(), {1, 3});
    EXPECT_NEAR(demand.peakDemand[cooling], 6.951613, 1e-6);
    EXPECT_NEAR(demand.peakDemand[heating], 6.1, 1e-12);
    EXPECT_EQ(demand.totalCapacity, (ByMode<double>{96, 90}));
    ASSERT_EQ(demand.zoneDemand[cooling].size(), 2u);
    EXPECT_NEAR(demand.zoneDemand[cooling][0], 4.451613, 1e-6);
    EXPECT_NEAR(demand.zonePartLoad[heating][1], 0.75, 1e-12);
}

TEST(PeakDemand, OfAPumpSmallerThanItsZoneIsTheRatedPower) {
    const PeakDemand demand = calcPeakDemand(sampleBuilding(), {1, 3});
    EXPECT_EQ(demand.zonePartLoad[cooling][1], 1.0);
    EXPECT_EQ(demand.zoneDemand[cooling][1], 2.5);
    EXPECT_EQ(demand.zonePartLoad[heating][0], 1.0);
    EXPECT_EQ(demand.zoneDemand[heating][0], 4.0);
}

TEST(PeakDemand, OfAZoneWithoutAPumpIsZero) {
    std::vector<Zone> zones = sampleBuilding();
    zones[1].pump = {};
    const PeakDemand demand = calcPeakDemand(zones, {1, 3});
    EXPECT_EQ(demand.zonePartLoad[cooling][1], 0);
    EXPECT_EQ(demand.zoneDemand[cooling][1], 0);
    EXPECT_EQ(demand.totalCapacity, (ByMode<double>{62, 50}));
}

TEST(PeakDemand, OutsideTheFourBlocksIsASubscriptOutOfRange) {
    expectError(9, [] { calcPeakDemand(sampleBuilding(), {4, 0}); });
    expectError(9, [] { calcPeakDemand(sampleBuilding(), {0, -1}); });
}

TEST(PartLoadFactor, AgreesWithAHandCalculation) {
    // cooling: 5/7 * (4*(40+60+48) + 12*12) + 4*(20+36+30) + 12*6 = 525.714286 + 416 = 941.714286
    // heating: 5/7 * (4*(36+24+30) + 12*54) + 4*(18+12+16) + 12*30 = 720 + 544 = 1264
    const PartLoadFactors result = calcPartLoadFactors(sampleBuilding(), {96, 84}, {});
    EXPECT_NEAR(result.dailyLoad[cooling], 941.714286, 1e-6);
    EXPECT_NEAR(result.dailyLoad[heating], 1264, 1e-9);
    EXPECT_NEAR(result.weightedBlockLoad[cooling][0], 48.571429, 1e-6);  // 40 * 5/7 + 20
    EXPECT_NEAR(result.partLoadFactor[cooling], 0.408730, 1e-6);         // / (24 * 96)
    EXPECT_NEAR(result.partLoadFactor[heating], 0.626984, 1e-6);         // / (24 * 84)
}

TEST(PartLoadFactor, OfZonesThatAreNeverOccupiedIsZero) {
    std::vector<Zone> zones = sampleBuilding();
    for (Zone& zone : zones) zone.days = 0;
    EXPECT_EQ(calcPartLoadFactors(zones, {96, 84}, {}).partLoadFactor, (ByMode<double>{0, 0}));
}

TEST(PartLoadFactor, WithoutPeakLoadIsZero) {
    EXPECT_EQ(calcPartLoadFactors(sampleBuilding(), {0, 0}, {}).partLoadFactor,
              (ByMode<double>{0, 0}));
}

TEST(PartLoadFactor, WithATowerIsThatOfTheWholeCoolingLoad) {
    const auto without = calcPartLoadFactors(sampleBuilding(), {96, 84}, {});
    const auto with = calcPartLoadFactors(sampleBuilding(), {67.2, 84}, {true, 30, 96});
    EXPECT_EQ(with.partLoadFactor, without.partLoadFactor);
    const auto noPeak = calcPartLoadFactors(sampleBuilding(), {67.2, 84}, {true, 30, 0});
    EXPECT_NEAR(noPeak.partLoadFactor[cooling], 941.714286 / (24 * 67.2), 1e-6);
}

TEST(SystemCOP, AgreesWithAHandCalculation) {
    // pumps: 96/3.412/7.1 = 3.962816, 90/3.412/6.8 = 3.879043
    // system: 96/3.412/(6.951613 + 1.5) = 3.329068, 84/3.412/(6.1 + 1.5) = 3.239341
    const SystemCOP cop = calcSystemCOP(sampleBuilding(), {96, 84}, {6.95161290, 6.1}, extra, {});
    EXPECT_NEAR(cop.totalPumpWatts[cooling], 7.1, 1e-12);
    EXPECT_NEAR(cop.heatPumpCOP[cooling], 3.962816, 1e-6);
    EXPECT_NEAR(cop.heatPumpCOP[heating], 3.879043, 1e-6);
    EXPECT_NEAR(cop.systemCOP[cooling], 3.329068, 1e-6);
    EXPECT_NEAR(cop.systemCOP[heating], 3.239341, 1e-6);
}

TEST(SystemCOP, OfNoPumpsIsZero) {
    const std::vector<Zone> zones(3);
    const SystemCOP cop = calcSystemCOP(zones, {96, 84}, {0, 0}, {}, {});
    EXPECT_EQ(cop.heatPumpCOP, (ByMode<double>{0, 0}));
    EXPECT_EQ(cop.systemCOP, (ByMode<double>{0, 0}));
}

TEST(SystemCOP, WithATowerCountsItsPowerAndTheWholeLoad) {
    // 96/3.412/(6.951613 + 1.0 + 0.5 + 0.2 + 0.3) = 28.135991/8.951613 = 3.143120
    const SystemCOP cop =
        calcSystemCOP(sampleBuilding(), {67.2, 84}, {6.95161290, 6.1}, extra, {true, 30, 96});
    EXPECT_NEAR(cop.systemCOP[cooling], 3.143120, 1e-6);
    EXPECT_NEAR(cop.systemCOP[heating], 3.239341, 1e-6);
}

TEST(SystemCOP, WithATowerAtZeroPercentIsThatWithout) {
    const SystemCOP cop =
        calcSystemCOP(sampleBuilding(), {96, 84}, {6.95161290, 6.1}, extra, {true, 0, 96});
    EXPECT_NEAR(cop.systemCOP[cooling], 3.329068, 1e-6);
}

TEST(ExtraPower, OfAShaftIsMoreAtTheMotor) {
    EXPECT_NEAR(inputPower(0.85, 85), 1.0, 1e-12);
    EXPECT_EQ(inputPower(0.85, 0), 0);
}

TEST(ExtraPower, AddsToTheShownDemand) {
    const auto plain = demandWithExtraPower({10, 20}, extra, {});
    EXPECT_NEAR(plain[cooling], 11.5, 1e-12);
    EXPECT_NEAR(plain[heating], 21.5, 1e-12);
    const auto tower = demandWithExtraPower({10, 20}, extra, {true, 30, 96});
    EXPECT_NEAR(tower[cooling], 12.0, 1e-12);
    EXPECT_NEAR(tower[heating], 21.5, 1e-12);
    EXPECT_NEAR(demandWithExtraPower({10, 20}, extra, {true, 0, 96})[cooling], 11.5, 1e-12);
    EXPECT_NEAR(demandWithExtraPower({10, 20}, extra, {false, 30, 96})[cooling], 11.5, 1e-12);
}

TEST(UnitOutlet, AgreesWithAHandCalculation) {
    // flow 96/12*3 = 24 and 84/12*3 = 21 gpm; 60*62.4*0.1337*1 = 500.5728 Btu/hr per gpm and degF
    // cooling: 85 + (96 + 3.412*6.95161290)*1000/(500.5728*24) = 85 + 119718.903/12013.747
    // heating: 50 - (84 - 3.412*6.1)*1000/(500.5728*21) = 50 - 63186.8/10512.029
    const UnitOutlet outlet =
        calcUnitOutletTemps({96, 84}, {6.95161290, 6.1}, {85, 50}, 3, sampleWater, {});
    EXPECT_NEAR(outlet.systemFlow[cooling], 24, 1e-12);
    EXPECT_NEAR(outlet.systemFlow[heating], 21, 1e-12);
    EXPECT_NEAR(outlet.outletTemp[cooling], 94.965159, 1e-6);
    EXPECT_NEAR(outlet.outletTemp[heating], 43.989096, 1e-6);
}

TEST(UnitOutlet, LiesAboveTheInletInCoolingAndBelowItInHeating) {
    for (double load : {1.0, 20.0, 3000.0}) {
        const double demand = load / 3.412 / 4;
        const UnitOutlet outlet =
            calcUnitOutletTemps({load, load}, {demand, demand}, {85, 50}, 2.5, sampleWater, {});
        EXPECT_GT(outlet.outletTemp[cooling], 85);
        EXPECT_LT(outlet.outletTemp[heating], 50);
        EXPECT_GT(outlet.outletTemp[cooling] - 85, 50 - outlet.outletTemp[heating]);
    }
}

TEST(UnitOutlet, OfAStandingLoopIsTheInlet) {
    const ByMode<double> inlet{85, 50};
    EXPECT_EQ(calcUnitOutletTemps({96, 84}, {7, 6}, inlet, 0, sampleWater, {}).outletTemp, inlet);
    EXPECT_EQ(calcUnitOutletTemps({0, 0}, {7, 6}, inlet, 3, sampleWater, {}).outletTemp, inlet);
    EXPECT_EQ(calcUnitOutletTemps({96, 84}, {7, 6}, inlet, 3, {0, 1}, {}).outletTemp, inlet);
    EXPECT_EQ(calcUnitOutletTemps({96, 84}, {7, 6}, inlet, 3, {62.4, 0}, {}).outletTemp, inlet);
}

TEST(UnitOutlet, WithATowerIsThatOfTheWholeLoad) {
    const auto without = calcUnitOutletTemps({96, 84}, {7, 6}, {85, 50}, 3, sampleWater, {});
    const auto with =
        calcUnitOutletTemps({67.2, 84}, {7, 6}, {85, 50}, 3, sampleWater, {true, 30, 96});
    EXPECT_EQ(with.systemFlow, without.systemFlow);
    EXPECT_EQ(with.outletTemp, without.outletTemp);
}

TEST(TonHours, ArePeakTonsTimesFullLoadHours) {
    // cooling: 5 t * 900 + 3 t * 1000 = 7500; heating: 4.5 t * 1100 + 2.5 t * 800 = 6950
    const LoadTonHours hours = calculateLoadTonHours(sampleBuilding());
    EXPECT_EQ(hours.zonePeakTons[cooling], (std::vector<double>{5, 3}));
    EXPECT_EQ(hours.zonePeakTons[heating], (std::vector<double>{4.5, 2.5}));
    EXPECT_EQ(hours.loadTonHours[heating], (std::vector<double>{4950, 2000}));
    EXPECT_EQ(annualTonHours(hours), (ByMode<double>{7500, 6950}));
}

TEST(TonHours, OfAZoneWithNegativeLoadsAreZero) {
    std::vector<Zone> zones{zoneOf({{{-5, -5}, {-4, -5}, {-4, -5}, {-4, -5}}})};
    zones[0].hours = {1000, 1000};
    EXPECT_EQ(annualTonHours(calculateLoadTonHours(zones)), (ByMode<double>{0, 0}));
}

TEST(AnnualGroundLoad, AgreesWithAHandCalculation) {
    // Fc = 5/4, Fh = 3/4: 12 * (0.75*6950 - 1.25*7500) / 8760 = 12 * -4162.5 / 8760 = -5.702055
    EXPECT_NEAR(calcAnnualGroundLoad({7500, 6950}, {4, 4}, {}), -5.702055, 1e-6);
}

TEST(AnnualGroundLoad, OfAHeatingDominatedYearIsPositive) {
    EXPECT_GT(calcAnnualGroundLoad({1000, 6950}, {4, 4}, {}), 0);
}

TEST(AnnualGroundLoad, WithoutCOPTakesTheLoadsAsTheyAre) {
    EXPECT_NEAR(calcAnnualGroundLoad({1000, 8300}, {0, 0}, {}), 10.0, 1e-12);  // 12*7300/8760
}

TEST(AnnualGroundLoad, WithATowerLosesItsShareOfTheCooling) {
    // 12 * (0.75*6950 - 1.25*7500*0.7) / 8760 = 12 * -1350 / 8760 = -1.849315
    EXPECT_NEAR(calcAnnualGroundLoad({7500, 6950}, {4, 4}, {true, 30, 96}), -1.849315, 1e-6);
    EXPECT_NEAR(calcAnnualGroundLoad({7500, 6950}, {4, 4}, {false, 30, 96}), -5.702055, 1e-6);
}

}  // namespace
}  // namespace varnholt::modCalculations
