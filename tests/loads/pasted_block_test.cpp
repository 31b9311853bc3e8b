// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/pasted_block.h"

#include <gtest/gtest.h>

namespace varnholt {
namespace {

TEST(PastedBlock, IsMoreThanOneCell) {
    EXPECT_TRUE(isBlock("1\t2"));
    EXPECT_TRUE(isBlock("1\r\n2\r\n"));
    EXPECT_FALSE(isBlock("12.5\r\n"));
    EXPECT_FALSE(isBlock("12,5"));
    EXPECT_FALSE(isBlock(""));
}

TEST(PastedBlock, HasALineForEachLineAndACellBetweenTabs) {
    EXPECT_EQ(readBlock("1\t2\r\n\t4\r\n", '.'), (PastedBlock{{"1", "2"}, {"", "4"}}));
}

TEST(PastedBlock, TellsItsDecimalMarkByTheCellsThatHaveOneReading) {
    // 12,5 cannot group thousands, so the comma is the mark, and 1.250 is a thousand and more.
    EXPECT_EQ(readBlock("12,5\t1.250", '.'), (PastedBlock{{"12.5", "1250"}}));
    EXPECT_EQ(readBlock("12.5\t1,250", ','), (PastedBlock{{"12.5", "1250"}}));
    EXPECT_EQ(readBlock("1.234,5\t2", '.'), (PastedBlock{{"1234.5", "2"}}));
}

TEST(PastedBlock, TakesTheUsualMarkWhereTheCellsDoNotTell) {
    EXPECT_EQ(readBlock("1,234\t5", '.'), (PastedBlock{{"1234", "5"}}));
    EXPECT_EQ(readBlock("1,234\t5", ','), (PastedBlock{{"1.234", "5"}}));
}

TEST(PastedBlock, ReadsACellByTheOtherMarkWhereItIsANumberByThatOneAlone) {
    EXPECT_EQ(readBlock("12.5\t18,5\t1,250", '.'), (PastedBlock{{"12.5", "18.5", "1250"}}));
    EXPECT_EQ(readBlock("12,5\t18.25\t1.250", ','), (PastedBlock{{"12.5", "18.25", "1250"}}));
}

TEST(PastedBlock, LeavesWhatIsNoNumberAsItIs) {
    EXPECT_EQ(readBlock("Room 1.2, east\t3,5\tn/a", '.'),
              (PastedBlock{{"Room 1.2, east", "3.5", "n/a"}}));
}

}  // namespace
}  // namespace varnholt
