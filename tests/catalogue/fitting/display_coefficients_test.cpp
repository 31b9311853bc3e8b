// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/fitting/display_coefficients.h"

#include <gtest/gtest.h>

#include "catalogue/fitting/measured_pump.h"

namespace varnholt {
namespace {

/// Terms a = 1, b = 10, c = 100, d = 1000 in both modes, so that each constant shows.
coefficients plainTerms() {
    coefficients terms;
    for (Polynomial* polynomial :
         {&terms.capacity, &terms.watts, &terms.capacityCorrection, &terms.wattsCorrection,
          &terms.capacityFlowCorrection, &terms.wattsFlowCorrection})
        *polynomial = {{{1, 1}, {10, 10}, {100, 100}, {1000, 1000}}};
    return terms;
}

TEST(DisplayCoefficients, AreTheStoredOnesInEnglishUnits) {
    EXPECT_EQ(CopyCoefficientsForDisplay(plainTerms()), plainTerms());
}

TEST(DisplayCoefficients, OfACapacityAreForCelsiusAndKilowatts) {
    const coefficients shown = ConvertCoefficientsToMetric(plainTerms());
    for (const Mode m : modes) {
        EXPECT_DOUBLE_EQ(shown.capacity[0][m], 0.2931 + 93.82 + 30007.5);
        EXPECT_DOUBLE_EQ(shown.capacity[1][m], 5.28 + 3375);
        EXPECT_DOUBLE_EQ(shown.capacity[2][m], 94.9);
        EXPECT_DOUBLE_EQ(shown.watts[0][m], 1 + 320.04 + 102143);
        EXPECT_DOUBLE_EQ(shown.watts[1][m], 18 + 11497);
        EXPECT_DOUBLE_EQ(shown.watts[2][m], 323.6);
    }
}

TEST(DisplayCoefficients, OfACorrectionByTemperatureAreForCelsius) {
    const coefficients shown = ConvertCoefficientsToMetric(plainTerms());
    for (const Polynomial* terms : {&shown.capacityCorrection, &shown.wattsCorrection})
        for (const Mode m : modes) {
            EXPECT_DOUBLE_EQ((*terms)[0][m], 1 + 320.04 + 102143 + 32768000);
            EXPECT_DOUBLE_EQ((*terms)[2][m], 323.6 + 311040);
            EXPECT_DOUBLE_EQ((*terms)[3][m], 5832);
        }
    EXPECT_DOUBLE_EQ(shown.capacityCorrection[1][cooling], 18 + 11497 + 5529600);
    EXPECT_DOUBLE_EQ(shown.capacityCorrection[1][heating], 18 + 11497 + 5529600);
    // The cooling power alone has 115.2.
    EXPECT_DOUBLE_EQ(shown.wattsCorrection[1][cooling], 18 + 11520 + 5529600);
    EXPECT_DOUBLE_EQ(shown.wattsCorrection[1][heating], 18 + 11497 + 5529600);
}

TEST(DisplayCoefficients, OfACorrectionByFlowAreTheSameInBothSystems) {
    const coefficients shown = ConvertCoefficientsToMetric(plainTerms());
    EXPECT_EQ(shown.capacityFlowCorrection, plainTerms().capacityFlowCorrection);
    EXPECT_EQ(shown.wattsFlowCorrection, plainTerms().wattsFlowCorrection);
}

// With the digits of tests/independent/curve_fit.py.
TEST(DisplayCoefficients, OfAFittedPumpHaveTheDigitsOfASecondImplementation) {
    const coefficients shown = ConvertCoefficientsToMetric(fittedPump().coefficients);
    EXPECT_EQ(shown.capacity[0][cooling], 9.29572625001401);
    EXPECT_EQ(shown.capacity[1][cooling], 0.03706499999902621);
    EXPECT_EQ(shown.capacity[2][cooling], -0.0023724999999835505);
    EXPECT_EQ(shown.wattsCorrection[1][cooling], 0.03913333424622306);
}

}  // namespace
}  // namespace varnholt
