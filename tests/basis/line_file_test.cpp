// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/line_file.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "basis/run_time_error.h"

namespace varnholt {
namespace {

TEST(LineFile, KeepsEveryItemOnALineOfItsOwn) {
    LineFileWriter file;
    file.title("Two\r\nlines List Version ");
    file.text("first\nsecond");
    file.fixed("one\r\n");
    EXPECT_EQ(file.bytes(), "Two  lines List Version 3.0\r\nfirst second\r\none  \r\n");
}

TEST(LineFileRow, PutsItsNumbersOnOneLine) {
    LineFileWriter file;
    file.row(20.5, std::int16_t{-3}, 0.0);
    file.row(7.0);
    EXPECT_EQ(file.bytes(), "20.5,-3,0\r\n7\r\n");
}

TEST(LineFileRow, IsReadAsItWasWritten) {
    LineFileReader file("20.5,-3,0\r\nnext\r\n");
    double first = 0, last = 1;
    std::int16_t second = 0;
    file.row(first, second, last);
    EXPECT_EQ(first, 20.5);
    EXPECT_EQ(second, -3);
    EXPECT_EQ(last, 0);
    EXPECT_EQ(file.line(), "next");
}

TEST(LineFileRow, IsReadWhereverTheLinesEndBetweenItsNumbers) {
    LineFileReader file("1\r\n2,3\r\n");
    double first = 0, second = 0, third = 0;
    file.row(first, second);
    file.row(third);
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 2);
    EXPECT_EQ(third, 3);
}

TEST(LineFileRow, LeavesTheRestOfItsLineToAWholeLineRead) {
    LineFileReader file("1,rest of it\r\nnext\r\n");
    double first = 0;
    file.row(first);
    EXPECT_EQ(file.line(), "rest of it");
    EXPECT_EQ(file.line(), "next");
}

TEST(LineFileRow, BeyondTheFilesEndIsAnError) {
    LineFileReader file("1\r\n");
    double first = 0, second = 5;
    try {
        file.row(first, second);
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number(), 62);
    }
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 5);
}

}  // namespace
}  // namespace varnholt
