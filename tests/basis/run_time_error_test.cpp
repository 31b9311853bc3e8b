// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/run_time_error.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "basis/error_of.h"

namespace varnholt {
namespace {

TEST(WholeNumber, IsRoundedHalfToEven) {
    EXPECT_EQ(toInteger(0.5), 0);
    EXPECT_EQ(toInteger(1.5), 2);
    EXPECT_EQ(toInteger(2.5), 2);
    EXPECT_EQ(toInteger(-1.5), -2);
    EXPECT_EQ(toInteger(2.51), 3);
}

TEST(WholeNumber, BeyondSixteenBitsIsOverflow) {
    EXPECT_EQ(toInteger(32767.4), 32767);
    EXPECT_EQ(toInteger(-32768.5), -32768);
    EXPECT_EQ(errorOf([] { toInteger(32767.5); }), 6);
    EXPECT_EQ(errorOf([] { toInteger(-32769); }), 6);
    EXPECT_EQ(errorOf([] { toInteger(std::nan("")); }), 6);
}

TEST(Division, ByZeroIsAnErrorWhateverIsDivided) {
    EXPECT_EQ(divide(1, 4), 0.25);
    EXPECT_EQ(errorOf([] { divide(1, 0); }), 11);
    EXPECT_EQ(errorOf([] { divide(0, 0); }), 11);
    EXPECT_EQ(errorOf([] { divide(1, -0.0); }), 11);
}

TEST(Subscript, OutOfRangeIsAnError) {
    std::array<int, 3> values{1, 2, 3};
    EXPECT_EQ(at(values, 2), 3);
    EXPECT_EQ(errorOf([&] { at(values, 3); }), 9);
    EXPECT_EQ(errorOf([&] { at(values, -1); }), 9);
}

TEST(RunTimeErrors, AreToldByNumberAndDescription) {
    EXPECT_EQ(RunTimeError(11).message(), "11 - Division by zero");
    EXPECT_EQ(RunTimeError(5).message(), "5 - Invalid procedure call or argument");
    EXPECT_EQ(RunTimeError(6).message(), "6 - Overflow");
    EXPECT_EQ(RunTimeError(9).message(), "9 - Subscript out of range");
    EXPECT_EQ(RunTimeError(13).message(), "13 - Type mismatch");
    EXPECT_EQ(RunTimeError(53).message(), "53 - File not found");
    EXPECT_EQ(RunTimeError(75, "/a/b").message(), "75 - Path/File access error: /a/b");
    EXPECT_EQ(RunTimeError(62).message(), "62 - Input past end of file");
}

}  // namespace
}  // namespace varnholt
