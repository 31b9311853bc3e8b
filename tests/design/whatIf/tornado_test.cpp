// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/tornado.h"

#include <gtest/gtest.h>

#include "design/whatIf/office.h"

namespace varnholt {
namespace {

Ends<quantityCount> tornadoOf(const Spreads& spreads) {
    const BoreholeInputs design = officeInputs();
    const RolledZones zones(design.loads.zones);
    return tornado(Cases(spreads), [&](const CaseFactors& factors) {
        return classicalFigures(zones, design, factors, 0).need();
    });
}

TEST(Tornado, OfTheOfficeHasTheseEnds) {
    const Ends<quantityCount> ends = tornadoOf({});
    const auto expect = [&](DoubtfulQuantity j, double low, double high) {
        EXPECT_NEAR(ends.low[j], low, 0.5) << j;
        EXPECT_NEAR(ends.high[j], high, 0.5) << j;
    };
    expect(coolingLoads, 6978, 9506);
    expect(conductivity, 9352, 7558);
    expect(groundTemperature, 7743, 8936);
    expect(boreResistance, 7858, 8736);
    expect(coolingHours, 7928, 8666);
    expect(heatCapacity, 8465, 8153);
    expect(method, 8296.949, 8296.949);
    const auto ranks = tornadoRanks(ends);
    const std::size_t expected[] = {coolingLoads,   conductivity, groundTemperature,
                                    boreResistance, coolingHours, heatCapacity};
    for (std::size_t n = 0; n < 6; ++n) EXPECT_EQ(ranks[n], expected[n]);
    EXPECT_EQ(ranks[9], static_cast<std::size_t>(method));
}

TEST(Tornado, ShrinksWhereTheBoreResistanceFollowsTheConductivity) {
    Spreads spreads;
    spreads.tie[resistanceTie] = 0.95;
    const Ends<quantityCount> ends = tornadoOf(spreads);
    EXPECT_NEAR(ends.low[conductivity], 8934, 0.5);
    EXPECT_NEAR(ends.high[conductivity], 7974, 0.5);
}

TEST(Tornado, RanksEqualSwingsByTheirPlaceAndAMissingEndFirst) {
    Ends<quantityCount> ends;
    ends.low.fill(10);
    ends.high.fill(20);
    ends.high[7] = noLength;
    ends.low[3] = 35;
    const auto ranks = tornadoRanks(ends);
    EXPECT_EQ(ranks[0], 7u);
    EXPECT_EQ(ranks[1], 3u);
    EXPECT_EQ(ranks[2], 0u);
    EXPECT_EQ(ranks[3], 1u);
    EXPECT_EQ(ranks[9], 9u);
}

TEST(Levers, OfTheOfficeHaveTheseEnds) {
    const BoreholeInputs design = officeInputs();
    const RolledZones zones(design.loads.zones);
    const double expected[leverCount][2] = {
        {10104, 7038}, {8297, 8297}, {9166, 7903}, {8075, 8521}, {8013, 8513}};
    for (std::size_t lever = 0; lever < leverCount; ++lever)
        for (int end = 0; end < 2; ++end) {
            const BoreholeInputs changed =
                withLever(design, static_cast<Lever>(lever), end == 0 ? -1 : 1);
            EXPECT_NEAR(classicalFigures(zones, changed, {}, 0).need(), expected[lever][end], 0.5)
                << lever << ' ' << end;
        }
}

}  // namespace
}  // namespace varnholt
