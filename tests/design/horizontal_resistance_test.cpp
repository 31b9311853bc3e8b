// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "design/modCalculations/trench_resistance.h"
#include "expect_error.h"
#include "sample_materials.h"

namespace varnholt::modCalculations {
namespace {

constexpr double pipeOutside = 1.9;  // in
const PulseTimes eveningPulses = calcPulseTimes({1, 3}, 10);
const PulseTimes dayPulses = calcPulseTimes({1, 2}, 10);

GroundResistances resistanceOf(const TrenchLayout& layout,
                               const PulseTimes& pulses = eveningPulses) {
    return averageGroundResistance({buildPipePositions(layout), pipeOutside, pulses, sampleSoil});
}

TEST(TrenchResistance, OfOnePipeAgreesWithAHandCalculation) {
    // The pipe at its own radius: Fo = 4*0.75*t/0.158333^2 = 119.668 t with t = 3680.5, 30.5 and
    // 0.5 days: 440436, 3649.86, 59.83, G = 1.0866979, 0.7156436, 0.3974019.
    // Its image 12 ft away: Fo = 3 t/24^2 = 19.1693, 0.158854, 0.002604, G = 0.3092837, 0.0141610
    // and, where the line falls below it, 0. Differences over 1.3:
    const GroundResistances r = resistanceOf({singleColumn, 1, false, 6, 12, 12, 36});
    EXPECT_NEAR(r.annual, (1.0866979 - 0.7156436 - 0.3092837 + 0.0141610) / 1.3, 2e-7);
    EXPECT_NEAR(r.monthly, (0.7156436 - 0.3974019 - 0.0141610) / 1.3, 2e-7);
    EXPECT_NEAR(r.shortTerm, 0.3974019 / 1.3, 2e-7);
}

TEST(TrenchResistance, OfTwoPipesAgreesWithAHandCalculation) {
    // 1 ft apart in a trench of 6 ft. G of a distance a: Fo = 0.75 t/a^2.
    // annual G(t0) - G(t1), itself 0.3710543; neighbour, Fo 2760.375 and 22.875: 0.6940200 -
    // 0.3229657; images at 12 ft 0.2951227, at 11 ft (Fo 22.8130, 0.189050; G 0.3227556, 0.0248136)
    // 0.2979420 twice and at 10 ft (27.60375, 0.22875; 0.3375124, 0.0364822) 0.3010302. mean:
    // (2*0.3710543 + 2*0.3710543 - 0.2951227 - 2*0.2979420 - 0.3010302)/2/1.3
    const GroundResistances r = resistanceOf({singleColumn, 2, false, 6, 12, 12, 36});
    EXPECT_NEAR(r.annual,
                (2 * 0.3710543 + 2 * 0.3710543 - 0.2951227 - 2 * 0.2979420 - 0.3010302) / 2.6,
                2e-7);
}

TEST(TrenchResistance, OfPipesInOnePlaceStaysFinite) {
    // Rows 0 in apart: distance 0, Fo 1.0E+9, G = (9 + 0.45247)/5.60998 = 1.684938 for each pulse,
    // so that the neighbour adds to the short pulse alone. The image 12 ft away adds nothing to it.
    const GroundResistances one = resistanceOf({singleColumn, 1, false, 6, 0, 12, 36});
    const GroundResistances two = resistanceOf({singleColumn, 2, false, 6, 0, 12, 36});
    EXPECT_NEAR(two.shortTerm - one.shortTerm, 1.684938 / 1.3, 1e-6);
    // twice the images, and only the pipe itself against them: 2*0.2951227 and 2*0.0141610
    EXPECT_NEAR(two.annual, (0.3710543 - 2 * 0.2951227) / 1.3, 2e-7);
    EXPECT_NEAR(two.monthly, (0.7156436 - 0.3974019 - 2 * 0.0141610) / 1.3, 2e-7);
}

TEST(TrenchResistance, IsRaisedByMoreAndCloserPipesAndLoweredByTheSurface) {
    const auto monthly = [](double pipes, double step, double depth) {
        return resistanceOf({singleColumn, pipes, false, depth, step, 12, 36}).monthly;
    };
    EXPECT_GT(monthly(4, 12, 8), monthly(1, 12, 8));
    EXPECT_GT(monthly(4, 6, 8), monthly(4, 12, 8));
    EXPECT_LT(monthly(4, 12, 4), monthly(4, 12, 8));
}

TEST(TrenchResistance, OfAStaggeredTrenchIsLower) {
    for (std::int16_t arrangement : {singleColumn, twoColumns, threeColumns}) {
        const double straight = resistanceOf({arrangement, 12, false, 6, 9, 15, 36}).monthly;
        EXPECT_LT(resistanceOf({arrangement, 12, true, 6, 9, 15, 36}).monthly, straight);
    }
}

TEST(TrenchResistance, OfTheFourHourPulseDiffersInEveryPulse) {
    const TrenchLayout layout{twoColumns, 6, false, 6, 9, 15, 36};
    const GroundResistances four = resistanceOf(layout, dayPulses);
    const GroundResistances twelve = resistanceOf(layout, eveningPulses);
    EXPECT_NE(four.annual, twelve.annual);
    EXPECT_GT(four.monthly, twelve.monthly);
    EXPECT_LT(four.shortTerm, twelve.shortTerm);
}

TEST(TrenchResistance, WithoutDiffusivityIsThatOfTheShortPulseAlone) {
    // Fo 0: G = 0.13 everywhere, and the image takes away what the pipe adds.
    const GroundResistances r =
        averageGroundResistance({{{0, 0}, {0, 12}}, pipeOutside, dayPulses, {1.3, 0}});
    EXPECT_EQ(r, (GroundResistances{0, 0, 0}));
}

TEST(TrenchResistance, WithoutConductivityOrPipesIsADivisionByZero) {
    expectError(11, [] {
        averageGroundResistance({{{0, 0}, {0, 12}}, pipeOutside, dayPulses, {0, 0.75}});
    });
    expectError(11, [] { averageGroundResistance({{}, pipeOutside, dayPulses, sampleSoil}); });
}

}  // namespace
}  // namespace varnholt::modCalculations
