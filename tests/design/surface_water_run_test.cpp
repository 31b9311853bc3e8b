// SPDX-License-Identifier: GPL-3.0-or-later
// Whole runs of the surface water design. The figures of the two ponds were worked by a second
// route, tests/independent/surface_water_road.py; the steps beside them are its.
#include "design/surface_water_run.h"

#include <gtest/gtest.h>

#include "expect_error.h"
#include "surface_water_pond.h"

namespace varnholt {
namespace {

using Counts = ByMode<std::int16_t>;

SurfaceWaterResults run(const SurfaceWaterInputs& inputs) {
    return runSurfaceWater(inputs).value();
}

void expectNear(const ByMode<double>& values, double inCooling, double inHeating, double error) {
    EXPECT_NEAR(values[cooling], inCooling, error);
    EXPECT_NEAR(values[heating], inHeating, error);
}

TEST(CoilPond, RollsItsLoadsUpAsEveryDesign) {
    const SurfaceWaterResults results = run(coilPond());
    EXPECT_EQ(results.loads.peakLoad, (ByMode<double>{96, 84}));
    // 60/62 * 4.6 + 2.5; 4.0 + 30/40 * 2.8
    expectNear(results.demand.peakDemand, 6.951612903, 6.1, 1e-8);
    // 96/3.412/(6.951613 + 1.5), 84/3.412/(6.1 + 1.5)
    expectNear(results.cop.systemCOP, 3.329067593, 3.239341025, 1e-8);
    // 8 * 3.4, 7 * 3.4
    expectNear(results.outlet.systemFlow, 27.2, 23.8, 1e-12);
    // (96 + 23.7189) 1000/(60 * 0.1337 * 63.6 * 0.95 * 27.2) above, (84 - 20.8132) ... below
    expectNear(results.outlet.outletTemp, 94.080932487, 32.522454092, 1e-8);
}

TEST(CoilPond, SharesItsFlowAmongTheLoopsThatItAllows) {
    const SurfaceWaterResults results = run(coilPond());
    EXPECT_EQ(results.loops.maxParallelLoops, (ByMode<double>{9, 5}));  // 27.2/2.8, 23.8/4.2
    EXPECT_EQ(results.loops.parallelLoops, (Counts{9, 4}));
    expectNear(results.flows.circuitFlow, 27.2 / 9, 23.8 / 4, 1e-12);
    expectNear(results.flows.primaryHeaderFlow, 13.6, 11.9, 1e-12);
    expectNear(results.flows.branchHeaderFlow, 13.6 / 3, 11.9 / 3, 1e-12);
}

TEST(CoilPond, AgreesWithASecondRoute) {
    const SurfaceWaterResults results = run(coilPond());
    // approaches of the passes: 10.525163, 11.108189, 11.242802; -6.533342, -6.933416, -7.037802
    expectNear(results.approach.approachTemp, 11.242801697, -7.037802449, 1e-8);
    EXPECT_EQ(results.approach.passes, (Counts{3, 3}));
    // cooling: -2.632009 in the water and -0.610793 in the soil, heating: 1.689577 and 0.348225
    expectNear({results.approach.headerHeatPickup[cooling].submerged,
                results.approach.headerHeatPickup[heating].submerged},
               -2.632008715, 1.689577085, 1e-8);
    expectNear({results.approach.headerHeatPickup[cooling].buried,
                results.approach.headerHeatPickup[heating].buried},
               -0.610792983, 0.348225364, 1e-8);
    // 284.039656 (11.242802 + 10.291723/2)/(11.242802 + 9.080932/2) = 294.934506 ft per ton;
    // 278.112360 (-7.037802 - 6.207885/2)/(-7.037802 - 5.477546/2) = 288.500273
    expectNear(results.loopLength, 2359.476044960, 2019.501912181, 1e-6);
    // (2359.476/9 + 15) 3.2/100, (2019.502/4 + 15) 3.9/100
    expectNear(results.headLoss.loopLoss, 8.869248160, 20.275143644, 1e-8);
    // 2 (320 * 1.8 + 100 * 2.5)/100, 2 (320 * 2.1 + 100 * 2.9)/100
    expectNear(results.headLoss.headerLoss, 16.52, 19.24, 1e-12);
}

TEST(SlinkyPond, AgreesWithASecondRoute) {
    const SurfaceWaterResults results = run(slinkyPond());
    expectNear(results.outlet.outletTemp, 103.958191019, 22.786914739, 1e-8);
    // in the soil: 0.0018 (61.156758 - 92.709587) 250/20 = -0.709587, and 0.442783 of 17.5 gpm
    expectNear(results.approach.approachTemp, 22.709587345, -16.442783342, 1e-8);
    EXPECT_EQ(results.approach.passes, (Counts{2, 2}));
    EXPECT_EQ(results.approach.headerHeatPickup[cooling].submerged, 0);
    // (252 - 3.23085 * 22.709587) (22.709587 + 9.965159/2)/(22.709587 + 11.958191/2) = 172.423970
    // (216.735 - 2.9706 * 16.442783) (-16.442783 - 6.010904/2)/(-16.442783 - 7.213085/2) = 162.8566
    expectNear(results.loopLength, 1379.391763160, 1139.996382370, 1e-6);
    // 1379.392/10 * 4.5/100, 1139.996/8 * 5.1/100; 2 * 250 * 2.2/100, 2 * 250 * 2.6/100
    expectNear(results.headLoss.loopLoss, 6.207262934, 7.267476938, 1e-8);
    expectNear(results.headLoss.headerLoss, 11, 13, 1e-12);
}

TEST(SlinkyPond, WithoutALeastFlowKeepsItsLoops) {
    const SurfaceWaterResults results = run(slinkyPond());
    EXPECT_EQ(results.loops.maxParallelLoops, (ByMode<double>{10, 8}));
    EXPECT_EQ(results.loops.parallelLoops, (Counts{10, 8}));
    EXPECT_EQ(results.flows.branchHeaderFlow, (ByMode<double>{0, 0}));
}

TEST(SlinkyPond, NearTheWatersTemperatureAgreesWithASecondRoute) {
    SurfaceWaterInputs pond = slinkyPond();
    chooseLoopPipe(pond.loop, 3);
    pond.loads.inletTemp = {85, 38};
    pond.water.loopWaterTemp = {77, 43};
    const SurfaceWaterResults results = run(pond);
    expectNear(results.approach.approachTemp, 8.548543595, -5.231779260, 1e-8);
    // 237.192157 and 241.621970 ft per ton, corrected 220.922082 and 225.189365
    expectNear(results.loopLength, 1767.376664155, 1576.325552208, 1e-6);
    expectNear(results.headLoss.loopLoss, 7.953194989, 10.049075395, 1e-8);
}

TEST(SurfaceWaterRun, OfABuildingThatOnlyCoolsHasNoHeatingLength) {
    SurfaceWaterInputs pond = coilPond();
    for (std::size_t zone = 0; zone < pond.loads.zones.size(); ++zone)
        for (auto& gain : pond.loads.zones.edit(zone).gains) gain[heating] = 0;
    const SurfaceWaterResults results = run(pond);
    expectNear(results.loopLength, 2359.476044960, 0, 1e-6);
    EXPECT_EQ(results.loopLength[heating], 0);
    EXPECT_EQ(results.outlet.outletTemp[heating], 38);
    // without flow there is no pickup: 38 - 43
    EXPECT_EQ(results.approach.approachTemp[heating], -5);
    EXPECT_EQ(results.loops.parallelLoops, (Counts{9, 1}));
    EXPECT_EQ(results.flows.circuitFlow[heating], 0);
    // the fittings of the one loop that is left: 15 * 3.9/100
    EXPECT_NEAR(results.headLoss.loopLoss[heating], 0.585, 1e-12);
    EXPECT_NEAR(results.headLoss.headerLoss[heating], 19.24, 1e-12);
}

TEST(SurfaceWaterRun, WithoutHeaderLengthHasTheTablesLengthAtTheTablesFlow) {
    SurfaceWaterInputs pond = coilPond();
    pond.header.headerLength = {};
    pond.loads.flowRate = 3;
    const SurfaceWaterResults results = run(pond);
    EXPECT_EQ(results.approach.approachTemp, (ByMode<double>{8, -5}));
    EXPECT_EQ(results.approach.passes, (Counts{2, 2}));
    // 1224.5566 - 215.01288 * 8 + 17.54685 * 64 - 0.5215 * 512 = 360.44396; 352.97545
    expectNear(results.loopLength, 8 * 360.44396, 7 * 352.97545, 1e-6);
    EXPECT_EQ(results.headLoss.headerLoss, (ByMode<double>{0, 0}));
}

TEST(SurfaceWaterRun, WithoutBranchesKnowsNothingOfTheirPipes) {
    SurfaceWaterInputs without = coilPond();
    without.header.headerCount[1] = 0;
    SurfaceWaterInputs nothing = without;
    chooseHeaderPipe(nothing.header, 1, 0);
    nothing.header.headerLength[2] = nothing.header.headerLength[3] = 0;
    nothing.header.headerHeadLoss[2] = nothing.header.headerHeadLoss[3] = 0;
    nothing.water.headerWaterTemp[2] = nothing.water.headerWaterTemp[3] = 0;
    EXPECT_EQ(run(without).approach, run(nothing).approach);
    EXPECT_EQ(run(without).headLoss, run(nothing).headLoss);
    EXPECT_EQ(run(without).flows, run(nothing).flows);
    EXPECT_EQ(run(without).flows.branchHeaderFlow, (ByMode<double>{0, 0}));
}

TEST(SurfaceWaterRun, TellsAnApproachThatDoesNotSettleAndGoesOnWithIt) {
    SurfaceWaterInputs pond = slinkyPond();
    // In water of 70 degF 2 inch headers of 2000 ft give 0.013 * 2000/20 = 1.3 times the
    // difference to the fluid in cooling, which never settles.
    pond.header.headerLength = {2000, 0, 0, 0};
    const SurfaceWaterResults results = run(pond);
    EXPECT_TRUE(results.approach.unsettled[cooling]);
    EXPECT_EQ(results.approach.passes[cooling], 5);
    // 92 - 70 - 1.3 (70 - 92)
    EXPECT_NEAR(results.approach.approachTemp[cooling], 50.6, 1e-9);
    // (252 - 3.23085 * 50.6) (50.6 + 9.965159/2)/(50.6 + 11.958191/2) = 86.959923 ft per ton
    EXPECT_NEAR(results.loopLength[cooling], 8 * 86.959923, 1e-4);
}

TEST(SurfaceWaterRun, OfANewDesignMeansSomethingInBothModes) {
    SurfaceWaterInputs pond;
    pond.loads = {sampleBuilding(), {}, {85, 50}, 3, {62.4, 1.0}};
    pond.minimumLoopFlow = {2.8, 4.2};
    const SurfaceWaterResults results = run(pond);
    EXPECT_EQ(results.approach.approachTemp, (ByMode<double>{10, -5}));
    EXPECT_EQ(results.loops.maxParallelLoops, (ByMode<double>{8, 5}));  // 24/2.8, 21/4.2
    EXPECT_EQ(results.loops.parallelLoops, (Counts{1, 1}));
    // 750.2788 - 954.344 + 615.5266 - 145.76 = 265.7014; 315.83341
    expectNear(results.loopLength, 8 * 265.7014, 7 * 315.83341, 1e-6);
    EXPECT_EQ(results.headLoss.total(cooling), 0);
}

TEST(SurfaceWaterRun, OfNoLoadsIsNone) {
    SurfaceWaterInputs pond = coilPond();
    pond.loads.zones.clear();
    EXPECT_FALSE(runSurfaceWater(pond));
    pond.loads.zones = {zoneOf({{{0, -5}, {0, -4}, {0, -3}, {0, -2}}})};
    EXPECT_FALSE(runSurfaceWater(pond));
}

TEST(SurfaceWaterRun, OfZonesWithoutPumpsHasOutletsOfTheLoadAlone) {
    SurfaceWaterInputs pond = coilPond();
    for (std::size_t zone = 0; zone < pond.loads.zones.size(); ++zone)
        pond.loads.zones.edit(zone).pump = {};
    const SurfaceWaterResults results = run(pond);
    EXPECT_EQ(results.cop.heatPumpCOP, (ByMode<double>{0, 0}));
    // 85 + 96000/(60 * 0.1337 * 63.6 * 0.95 * 27.2) = 85 + 7.281803
    EXPECT_NEAR(results.outlet.outletTemp[cooling], 92.281803, 1e-6);
    EXPECT_GT(results.loopLength[cooling], 0);
}

TEST(SurfaceWaterRun, WithoutLoopsOrAMainHeaderIsADivisionByZero) {
    SurfaceWaterInputs pond = slinkyPond();
    pond.loop.parallelLoops = {10, 0};
    expectError(11, [&] { runSurfaceWater(pond); });
    pond = slinkyPond();
    pond.header.headerCount[0] = 0;
    expectError(11, [&] { runSurfaceWater(pond); });
}

TEST(SurfaceWaterRun, AtTheWatersTemperatureIsADivisionByZeroInTheModeWithoutLoadToo) {
    SurfaceWaterInputs pond = coilPond();
    for (std::size_t zone = 0; zone < pond.loads.zones.size(); ++zone)
        for (auto& gain : pond.loads.zones.edit(zone).gains) gain[heating] = 0;
    pond.water.loopWaterTemp[heating] = pond.loads.inletTemp[heating];
    expectError(11, [&] { runSurfaceWater(pond); });
}

TEST(SurfaceWaterRun, WithoutFlowPerTonHasTheLengthForTheInletTemperature) {
    SurfaceWaterInputs pond = coilPond();
    pond.loads.flowRate = 0;
    const SurfaceWaterResults results = run(pond);
    EXPECT_EQ(results.outlet.outletTemp, pond.loads.inletTemp);
    EXPECT_EQ(results.loops.parallelLoops, (Counts{1, 1}));
    // 360.44396 (8 + 10.291723/2)/8 ft per ton
    EXPECT_NEAR(results.loopLength[cooling], 8 * 592.293308, 1e-4);
}

TEST(SurfaceWaterRun, FindsTheGroundAroundTheHeadersAnew) {
    SurfaceWaterInputs pond = coilPond();
    pond.soil.groundTempAtDepth = {1000, -1000};
    const SurfaceWaterResults results = run(pond);
    expectNear(results.loopLength, 2359.476044960, 2019.501912181, 1e-6);
    expectNear(results.inputs->soil.groundTempAtDepth, 71.585236229, 44.695675677, 1e-8);
}

TEST(SurfaceWaterRun, KeepsItsInputsAsItSettledThem) {
    const SurfaceWaterResults first = run(coilPond());
    SurfaceWaterInputs expected = coilPond();
    expected.loop.parallelLoops = {9, 4};
    expected.soil.groundTempAtDepth = correctGroundTemp(expected.soil);
    EXPECT_EQ(*first.inputs, expected);
    EXPECT_EQ(run(*first.inputs), first);
}

}  // namespace
}  // namespace varnholt
