// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/monthly_loads.h"

#include <gtest/gtest.h>

#include <cmath>

#include "design/borehole_run.h"
#include "design/secondOpinion/opinion_cases.h"

namespace varnholt::secondOpinion {
namespace {

BoreholeInputs sampleInputs() {
    BoreholeInputs inputs = sampleCase().design;
    inputs.arrangement.boresPerCircuit = 2;
    return inputs;
}

TEST(ZonesYear, HasTheFiguresOfTheClassicalRun) {
    const BoreholeInputs inputs = sampleInputs();
    const BoreholeResults run = *runBorehole(inputs);
    const ZonesYear zones = rollUpZones(inputs);
    EXPECT_TRUE(zones.hasLoad);
    EXPECT_EQ(zones.annualGroundLoad, run.annualGroundLoad);
    EXPECT_NEAR(zones.energy[heating] - zones.energy[cooling], 8760 * run.annualGroundLoad, 1e-6);
    EXPECT_DOUBLE_EQ(zones.designPeak[cooling],
                     run.loads.peakLoad[cooling] + 3.412 * run.demand.peakDemand[cooling]);
    EXPECT_DOUBLE_EQ(zones.designPeak[heating],
                     run.loads.peakLoad[heating] - 3.412 * run.demand.peakDemand[heating]);
    for (Mode m : modes) {
        EXPECT_EQ(zones.meanLimit[m], (inputs.loads.inletTemp[m] + run.outlet.outletTemp[m]) / 2);
        EXPECT_EQ(zones.partLoadFactor[m], run.partLoad.partLoadFactor[m]);
    }
    EXPECT_EQ(zones.shortCircuitFactor, 1.02);
    // Heating peaks in the evening block of twelve hours.
    EXPECT_EQ(zones.pulseHours, 12);
}

TEST(ZonesYear, WithATowerHasWhatIsLeftForTheGround) {
    BoreholeInputs inputs = sampleInputs();
    const ZonesYear whole = rollUpZones(inputs);
    inputs.loads.hybridOn = true;
    inputs.loads.hybridPercent = 25;
    const ZonesYear left = rollUpZones(inputs);
    EXPECT_NEAR(left.energy[cooling], 0.75 * whole.energy[cooling], 1e-9 * whole.energy[cooling]);
    EXPECT_EQ(left.energy[heating], whole.energy[heating]);
    // The pumps still serve the whole building: 24 MBtu/hr of the peak of 96 are gone, no demand.
    EXPECT_NEAR(left.designPeak[cooling], whole.designPeak[cooling] - 24, 1e-9);
    EXPECT_EQ(left.meanLimit, whole.meanLimit);
    EXPECT_NEAR(left.energy[heating] - left.energy[cooling], 8760 * left.annualGroundLoad, 1e-6);
    EXPECT_EQ(left.partLoadFactor, whole.partLoadFactor);
}

TEST(ZonesYear, OfHeatPumpsThatDrawMoreThanTheyGiveHasNoPeak) {
    BoreholeInputs inputs = sampleInputs();
    Zone zone = zoneWithoutPower({20, 10}, {500, 500});
    zone.pump.watts = {1, 5};  // 17 MBtu/hr of power for 10 of heat
    inputs.loads.zones = std::vector<Zone>{zone};
    EXPECT_EQ(rollUpZones(inputs).designPeak[heating], 0);
}

TEST(ZonesYear, WithoutLoadHasNone) {
    BoreholeInputs inputs = sampleInputs();
    inputs.loads.zones = {};
    EXPECT_FALSE(rollUpZones(inputs).hasLoad);
}

TEST(ZonesYear, WantsTheDesignMonthsMeanInTheGreatestMonth) {
    ZonesYear zones;
    zones.partLoadFactor = {0.3, 0.5};
    zones.designPeak = {100, 80};
    zones.energy = {100000, 200000};
    EXPECT_NEAR(wantedShare(zones, cooling), 730 * 0.3 * 100 / 100000, 1e-12);
    EXPECT_NEAR(wantedShare(zones, heating), 730 * 0.5 * 80 / 200000, 1e-12);
}

TEST(GroundYear, SumsToTheYearsEnergy) {
    const ZonesYear zones = rollUpZones(sampleInputs());
    const ByMode<YearOfMode> shape{
        standardYearOf(cooling, wantedShare(zones, cooling), 0.4, false),
        standardYearOf(heating, wantedShare(zones, heating), 0.4, false)};
    const GroundYear year = groundYearOf(zones, shape);
    double sum = 0;
    for (const double mean : year.mean) sum += mean;
    EXPECT_NEAR(730 * sum, 8760 * zones.annualGroundLoad, 1e-6);
    EXPECT_GT(year.mean[0], 0);
    EXPECT_LT(year.mean[6], 0);
}

TEST(GroundYear, HasPeaksNoLessThanItsMeans) {
    ZonesYear zones;
    zones.energy = {7300, 14600};  // 10 and 20 MBtu/hr if it all came in one month
    zones.designPeak = {4, 30};
    std::array<double, 12> july{}, january{};
    july[6] = january[0] = 1;
    const GroundYear year =
        groundYearOf(zones, {knownYearOf(july, july), knownYearOf(january, january)});
    EXPECT_EQ(year.mean[6], -10);
    EXPECT_EQ(year.mean[0], 20);
    EXPECT_EQ(year.peak[6][cooling], 10);  // the mean is more than the peak of 4
    EXPECT_EQ(year.peak[0][heating], 30);
    EXPECT_EQ(year.peak[0][cooling], 0);
    EXPECT_TRUE(year.counts[6][cooling]);
    EXPECT_FALSE(year.counts[0][cooling]);
    EXPECT_TRUE(year.hasMonths(cooling) && year.hasMonths(heating));
    zones.designPeak[cooling] = 0;
    EXPECT_FALSE(groundYearOf(zones, {knownYearOf(july, july), knownYearOf(january, january)})
                     .hasMonths(cooling));
}

TEST(MonthlyDrift, IsTheDirectSum) {
    std::array<double, 12> mean{};
    std::vector<double> g;
    for (std::size_t m = 0; m < 12; ++m) mean[m] = std::sin(1.0 + double(m)) * 5 + 1;
    for (std::size_t n = 1; n <= 100; ++n) g.push_back(std::log(1.0 + double(n)));
    const std::vector<double> drift = monthlyDrift(mean, g, 100);
    ASSERT_EQ(drift.size(), 100u);
    for (std::size_t n = 1; n <= 100; ++n) {
        double sum = 0;
        for (std::size_t j = 1; j <= n; ++j) {
            const double before = j == 1 ? 0 : mean[(j - 2) % 12];
            sum += (mean[(j - 1) % 12] - before) * g[n - j];
        }
        EXPECT_NEAR(drift[n - 1], sum, 1e-10) << n;
    }
}

}  // namespace
}  // namespace varnholt::secondOpinion
