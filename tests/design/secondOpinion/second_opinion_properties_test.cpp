// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "design/secondOpinion/opinion_case.h"
#include "design/secondOpinion/opinion_cases.h"
#include "design/secondOpinion/settled_depth.h"

namespace varnholt {
namespace {

using Change = std::function<void(SecondOpinionCase&)>;

double lengthOf(SecondOpinionCase theCase, Mode mode, const Change& change) {
    change(theCase);
    const SecondOpinion opinion = opinionOn(theCase);
    EXPECT_TRUE(opinion.hasLength(mode));
    return opinion.soLength[mode];
}

void expectLonger(const SecondOpinionCase& theCase, Mode mode, const Change& change) {
    EXPECT_GT(lengthOf(theCase, mode, change), 1.001 * lengthOf(theCase, mode, [](auto&) {}));
}

/// A building that takes three times as much heat out of the ground as it gives back.
SecondOpinionCase heatingCase() {
    SecondOpinionCase theCase = peersCase(6, 4);
    const double peak = 2.5 * mbtuPerKilowatt * 24;
    theCase.design.loads.zones = std::vector<Zone>{zoneWithoutPower({peak, peak}, {500, 1500})};
    return theCase;
}

TEST(OpinionLength, GrowsWithTheLoad) {
    for (Mode mode : modes)
        expectLonger(sampleCase(), mode, [](SecondOpinionCase& c) {
            std::vector<Zone> zones = sampleBuilding();
            for (Zone& zone : zones) {
                for (auto& gain : zone.gains) gain = {gain[cooling] * 1.1, gain[heating] * 1.1};
                zone.pump.capacity = {zone.pump.capacity[cooling] * 1.1,
                                      zone.pump.capacity[heating] * 1.1};
                zone.pump.watts = {zone.pump.watts[cooling] * 1.1, zone.pump.watts[heating] * 1.1};
            }
            c.design.loads.zones = zones;
        });
}

TEST(OpinionLength, GrowsInPoorGround) {
    for (Mode mode : modes)
        expectLonger(sampleCase(), mode,
                     [](SecondOpinionCase& c) { c.design.soil.conductivity *= 0.9; });
}

TEST(OpinionLength, GrowsWhenBoresStandCloser) {
    expectLonger(heatingCase(), heating,
                 [](SecondOpinionCase& c) { c.design.arrangement.boreSeparation *= 0.8; });
}

TEST(OpinionLength, GrowsWithTheYearsOfAnUnbalancedBuilding) {
    expectLonger(heatingCase(), heating,
                 [](SecondOpinionCase& c) { c.design.arrangement.predictionTime = 40; });
}

TEST(OpinionLength, HardlyGrowsWithTheYearsOfABalancedBuilding) {
    SecondOpinionCase theCase = peersCase(6, 4);
    const double peak = 2.5 * mbtuPerKilowatt * 24;
    theCase.design.loads.zones = std::vector<Zone>{zoneWithoutPower({peak, peak}, {1200, 1200})};
    const auto after = [&](double years, Mode mode) {
        return lengthOf(theCase, mode, [years](SecondOpinionCase& c) {
            c.design.arrangement.predictionTime = years;
        });
    };
    for (Mode mode : modes) EXPECT_NEAR(after(50, mode), after(10, mode), 0.01 * after(10, mode));
    // The unbalanced one grows by a fifth.
    theCase = heatingCase();
    EXPECT_GT(after(50, heating), 1.1 * after(10, heating));
}

TEST(OpinionLength, OfCoolingGrowsInWarmerGround) {
    expectLonger(sampleCase(), cooling,
                 [](SecondOpinionCase& c) { c.design.soil.groundTemp += 3; });
    expectLonger(sampleCase(), heating,
                 [](SecondOpinionCase& c) { c.design.soil.groundTemp -= 3; });
}

TEST(OpinionLength, GrowsWithTheResistanceOfTheBore) {
    for (Mode mode : modes)
        expectLonger(sampleCase(), mode,
                     [](SecondOpinionCase& c) { c.design.bore.boreResistance *= 1.1; });
}

TEST(OpinionLength, OfHalfTheLoadOnHalfTheFieldIsHalfAtGreatSpacing) {
    // 6 by 4 bores and 3 by 4, each with the same share, 300 ft apart: no bore feels another much.
    const auto far = [](int across, int down) {
        SecondOpinionCase theCase = peersCase(across, down);
        theCase.design.arrangement.boreSeparation = 300;
        return opinionOn(theCase);
    };
    const SecondOpinion whole = far(6, 4), half = far(3, 4);
    for (Mode mode : modes)
        EXPECT_NEAR(half.soLength[mode], whole.soLength[mode] / 2, 0.002 * whole.soLength[mode]);
}

TEST(OpinionLength, DoesNotDependOnWhichSideOfTheFieldIsLong) {
    const SecondOpinion wide = opinionOn(peersCase(8, 3)), deep = opinionOn(peersCase(3, 8));
    for (Mode mode : modes)
        EXPECT_NEAR(wide.soLength[mode], deep.soLength[mode], 1e-6 * wide.soLength[mode]);
}

TEST(OpinionLength, OfTheSouthIsThatOfTheNorthHalfAYearLater) {
    SecondOpinionCase theCase = sampleCase();
    const SecondOpinion north = opinionOn(theCase);
    theCase.window.southern = true;
    const SecondOpinion south = opinionOn(theCase);
    for (std::size_t m = 0; m < 12; ++m)
        EXPECT_NEAR(south.monthlyLoad[m], north.monthlyLoad[(m + 6) % 12], 1e-9);
    // It begins in the other season, which matters little after ten years.
    for (Mode mode : modes)
        EXPECT_NEAR(south.soLength[mode], north.soLength[mode], 0.1 * north.soLength[mode]);
}

using namespace secondOpinion;

TEST(SettledDepth, IsTheSameFromAnyStart) {
    const SecondOpinionCase theCase = peersCase(6, 4);
    SecondOpinion told;
    const PreparedCase prepared = prepareCase(theCase, told);
    GFunctionMemory memory;
    memory.select(prepared.site);
    for (Mode mode : modes) {
        const auto from = [&](double start) {
            for (;;) {
                const SettledDepth found =
                    settleDepth(memory, {24, start}, [&](const DepthFunction& g) {
                        const FieldTerms& terms = prepared.terms;
                        return greatestNeed(terms, MonthlyHeat(terms, g, terms.months), mode)
                            .length;
                    });
                if (found.state != SettledDepth::waiting) {
                    EXPECT_EQ(found.state, SettledDepth::settled);
                    return found.length;
                }
                while (memory.isComputing()) memory.computeMore();
            }
        };
        const double usual = from(250);
        for (const double start : {1.0, 10.0, 40.0, 120.0, 600.0, 2000.0, 1e6})
            EXPECT_NEAR(from(start), usual, 1e-4 * usual) << start;
    }
}

TEST(SettledDepth, BelowTenFeetIsTheLengthWithTheFunctionOfTenFeet) {
    GFunctionMemory memory;
    memory.select({rectangularField(2, 2, 20), 0.2, 0.03, 4, 438744});
    const auto settle = [&](double length) {
        for (;;) {
            const SettledDepth found =
                settleDepth(memory, {4, 250}, [length](const DepthFunction&) { return length; });
            if (found.state != SettledDepth::waiting) return found;
            while (memory.isComputing()) memory.computeMore();
        }
    };
    EXPECT_EQ(settle(12).length, 12);
    EXPECT_EQ(settle(-5).length, -5);
    EXPECT_NEAR(settle(4 * 77.7).length, 4 * 77.7, 1e-3);
    EXPECT_NEAR(settle(4 * 1999.9).length, 4 * 1999.9, 1e-2);
    EXPECT_EQ(settle(4 * 2000.1).state, SettledDepth::tooDeep);
    EXPECT_NEAR(settle(4 * 10.5).length, 4 * 10.5, 1e-3);
    EXPECT_EQ(settle(std::nan("")).state, SettledDepth::notComputable);
}

DepthFunction functionAt(GFunctionMemory& memory, double depth) {
    for (;;) {
        if (auto function = memory.atDepth(depth)) return *function;
        while (memory.isComputing()) memory.computeMore();
    }
}

TEST(SettledDepth, IsFoundWhereTheNeedHardlyFallsBehindTheDepth) {
    // The length asked for is 998 thousandths of the depth and 1 ft more, so 500 ft agree.
    GFunctionMemory memory;
    memory.select({{{0, 0}}, 0.2, 0.03, 4, 438744});
    for (const double start : {10.0, 490.0, 2000.0}) {
        int lengths = 0;
        double found = 0;
        for (bool waiting = true; waiting;) {
            lengths = 0;
            const SettledDepth settled =
                settleDepth(memory, {1, start}, [&](const DepthFunction& g) {
                    ++lengths;
                    return 1 + 0.998 * g.depth();
                });
            while (memory.isComputing()) memory.computeMore();
            waiting = settled.state == SettledDepth::waiting;
            found = settled.length;
        }
        EXPECT_NEAR(found, 500, 0.05) << start;
        EXPECT_LT(lengths, 20) << start;
    }
}

TEST(DepthFunction, LiesOnTheGFunctionOfItsDepth) {
    const FieldSite site{rectangularField(6, 5, 15), 0.2, 0.03, 4, 438744};
    GFunctionMemory memory;
    memory.select(site);
    for (const double depth : {10.0, 11.0, 57.0, 250.0, 333.0, 1900.0, 2000.0}) {
        const DepthFunction between = functionAt(memory, depth);
        const GFunction itself = gFunctionOf(site.bores, {depth, 4, 0.2}, 0.03, site.lastHour);
        for (const double hours : {1.0, 12.0, 730.0, 8760.0, 87600.0, 438000.0}) {
            EXPECT_NEAR(between.at(hours), itself.at(hours), 1e-4 * itself.at(hours));
            EXPECT_NEAR(between.ofOneBoreAt(hours), itself.ofOneBoreAt(hours),
                        1e-4 * itself.ofOneBoreAt(hours));
        }
        EXPECT_NEAR(between.afterMonths(120), itself.at(87600), 1e-4 * itself.at(87600));
    }
    // No function is taken of less than ten feet.
    EXPECT_EQ(functionAt(memory, 3).at(8760), functionAt(memory, 10).at(8760));
}

TEST(Ladder, HasTenAndTwoThousandFeetAmongItsRungs) {
    EXPECT_EQ(depthOfRung(rungOfLeastDepth), 10);
    EXPECT_EQ(depthOfRung(rungOfGreatestDepth), 2000);
    for (std::size_t rung = rungOfLeastDepth; rung < lastRung; ++rung)
        EXPECT_EQ(rungAbove(depthOfRung(rung) * 1.0001), rung);
    EXPECT_EQ(rungAbove(1), rungOfLeastDepth);
    EXPECT_EQ(rungAbove(std::nan("")), rungOfLeastDepth);
    EXPECT_EQ(rungAbove(1e30), lastRung);
}

}  // namespace
}  // namespace varnholt
