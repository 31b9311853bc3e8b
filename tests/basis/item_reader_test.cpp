// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/item_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "basis/pasted_lines.h"
#include "basis/run_time_error.h"

namespace varnholt {
namespace {

std::vector<double> numbersOf(const std::string& text, int count) {
    ItemReader items(text);
    std::vector<double> numbers;
    for (int i = 0; i < count; ++i) numbers.push_back(items.number());
    return numbers;
}

int errorOfNumber(const std::string& text) {
    ItemReader items(text);
    try {
        items.number();
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return 0;
}

TEST(Items, AreTheSameHoweverTheyAreBrokenIntoLines) {
    const std::vector<double> expected{1, 2.5, -3, 4e2};
    for (const char* text : {"1,2.5,-3,4e2", "1\r\n2.5\r\n-3\r\n4e2\r\n", "1,2.5\n-3,\n4e2",
                             "1,2.5\r-3,4e2\r", " 1 ,\t2.5 , -3\r\n\r\n4e2", "\"1\",2.5,-3,4e2"})
        EXPECT_EQ(numbersOf(text, 4), expected) << text;
}

TEST(Items, BetweenTwoCommasAreEmptyAndCountAsZero) {
    EXPECT_EQ(numbersOf("1,,3", 3), (std::vector<double>{1, 0, 3}));
}

TEST(Items, KeepACommaInQuotes) {
    const std::string text = "\"Energy, by month\",7";
    ItemReader items(text);
    EXPECT_EQ(items.text(), "Energy, by month");
    EXPECT_EQ(items.number(), 7);
}

TEST(Items, OfTextAreTheLineWhereNoCommaStands) {
    const std::string text = "\r\nPeak loads\r\n7";
    ItemReader items(text);
    EXPECT_EQ(items.text(), "");
    EXPECT_EQ(items.text(), "Peak loads");
    EXPECT_EQ(items.number(), 7);
}

TEST(Items, ThatAreEmptyArePassedOverUpToAText) {
    const std::string text = "\r\n,,\"\"\r\n  \r\nPeaks\r\n7";
    ItemReader items(text);
    items.skipToText();
    EXPECT_EQ(items.number(), 7);
}

TEST(Items, EndWithAnErrorThatTellsWhy) {
    EXPECT_EQ(errorOfNumber(""), 62);
    EXPECT_EQ(errorOfNumber(" \r\n"), 62);
    EXPECT_EQ(errorOfNumber("January"), 13);
    EXPECT_EQ(errorOfNumber("1e999"), 6);
    EXPECT_EQ(errorOfNumber("12 kWh"), 0);
}

TEST(PastedLines, EndAtReturnsAndAtLineFeedsThatStandAlone) {
    for (const char* text : {"1\r2\r3", "1\r\n2\r\n3", "1\n2\n3"}) {
        const PastedLines lines = pastedLines(text);
        EXPECT_EQ(lines.ended, (std::vector<std::string>{"1", "2"})) << text;
        EXPECT_EQ(lines.rest, "3");
        EXPECT_EQ(lines.all(), (std::vector<std::string>{"1", "2", "3"}));
    }
    EXPECT_EQ(pastedLines("1\r\n").all(), std::vector<std::string>{"1"});
    EXPECT_EQ(pastedLines("\n\n").ended, (std::vector<std::string>{"", ""}));
    EXPECT_TRUE(pastedLines("").all().empty());
}

}  // namespace
}  // namespace varnholt
