// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/numbers.h"

#include <gtest/gtest.h>

#include <limits>

#include "expect_error.h"

namespace varnholt::modCalculations {
namespace {

TEST(PowerOf, MultipliesRepeatedly) {
    EXPECT_DOUBLE_EQ(powerOf(3, 2), 9);
    EXPECT_DOUBLE_EQ(powerOf(-2, 5), -32);
    EXPECT_DOUBLE_EQ(powerOf(1.5, 3), 3.375);
}

TEST(PowerOf, LeavesXBelowAnExponentOfTwo) {
    EXPECT_DOUBLE_EQ(powerOf(7, 1), 7);
    EXPECT_DOUBLE_EQ(powerOf(7, 0), 7);
    EXPECT_DOUBLE_EQ(powerOf(7, -3), 7);
}

TEST(PowerOf, RoundsTheExponentHalfToEven) {
    EXPECT_DOUBLE_EQ(powerOf(2, 2.5), 4);
    EXPECT_DOUBLE_EQ(powerOf(2, 3.5), 16);
}

TEST(PowerOf, OfAnExponentBeyond16BitsIsAnOverflow) {
    expectError(6, [] { powerOf(1, 40000); });
}

TEST(Numbers, OfWrongSignAreAnInvalidCall) {
    expectError(5, [] { naturalLog(0); });
    expectError(5, [] { naturalLog(-1); });
    expectError(5, [] { squareRoot(-1e-9); });
    EXPECT_EQ(squareRoot(0), 0);
}

TEST(Numbers, BeyondAllDoublesAreAnOverflow) {
    expectError(6, [] { finite(std::numeric_limits<double>::infinity()); });
    expectError(6, [] { finite(std::numeric_limits<double>::quiet_NaN()); });
    EXPECT_EQ(finite(1e308), 1e308);
}

}  // namespace
}  // namespace varnholt::modCalculations
