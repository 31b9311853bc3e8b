// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace varnholt {
namespace {

struct ReadCase {
    const char* text;
    double value;
};

TEST(LeadingNumber, TakesSignDigitsPointAndExponentAndStopsAtTheFirstOtherCharacter) {
    const ReadCase cases[] = {
        {"12", 12},  {"  -3.5", -3.5}, {"12abc", 12}, {"1.2.3", 1.2},  {"+7", 7},
        {".5", 0.5}, {"5.", 5},        {"1e3", 1000}, {"1E-2x", 0.01}, {"2e", 2},
        {"2e+", 2},  {"1,5", 1},       {"-", 0},      {"", 0},         {"abc", 0},
        {"- 5", 0},  {".", 0},         {"1 2", 1},    {"\t4", 4},      {"0x10", 0},
    };
    for (const ReadCase& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(leadingNumber(c.text), c.value);
    }
}

TEST(LeadingNumber, TellsTextWithoutANumberFromZero) {
    EXPECT_FALSE(readLeadingNumber("x"));
    EXPECT_FALSE(readLeadingNumber("-"));
    ASSERT_TRUE(readLeadingNumber("0"));
    EXPECT_EQ(*readLeadingNumber("0"), 0);
}

TEST(LeadingNumber, OfAHugeExponentIsInfiniteAndOfATinyOneZero) {
    EXPECT_TRUE(std::isinf(leadingNumber("1e999")));
    EXPECT_EQ(leadingNumber("1e-999"), 0);
    EXPECT_LT(leadingNumber("-1e999"), 0);
}

struct FormatCase {
    double value;
    const char* picture;
    const char* text;
};

TEST(FormatNumber, RoundsHalfAwayFromZeroOnTheDecimalDigits) {
    const FormatCase cases[] = {
        {3124.65, "###0.0", "3124.7"},  // the double is below 3124.65, its digits are not
        {0.05, "###0.0", "0.1"},
        {-0.05, "###0.0", "-0.1"},
        {2.5, "###0", "3"},
        {-2.5, "###0", "-3"},
        {1.005, "###0.00", "1.01"},
        {0.125, "###0.00", "0.13"},
        {99.95, "###0.0", "100.0"},
        {0, "###0.0", "0.0"},
        {-0.04, "###0.0", "0.0"},
        {-0.0, "###0", "0"},
        {12345678.9, "###0.0", "12345678.9"},
        {0.5, "#.00", ".50"},
        {1.0, "#.00", "1.00"},
        {0.196, "###0.000", "0.196"},
        {1e21, "###0", "1000000000000000000000"},
        {1e-7, "###0.00", "0.00"},
        {62.4, "####0", "62"},
        {1.2345, "0.0##", "1.235"},
        {1.2, "0.0##", "1.2"},
    };
    for (const FormatCase& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(formatNumber(c.value, c.picture), c.text);
    }
}

TEST(FormatNumber, RoundsTheShortestTextOfNumbersOfAnySize) {
    // The double nearest to 10^23 is 99999999999999991611392, and 1e+23 is its shortest text.
    EXPECT_EQ(formatNumber(1e23, "###0"), "1" + std::string(23, '0'));
    EXPECT_EQ(formatNumber(-1.5e300, "###0.0"), "-15" + std::string(299, '0') + ".0");
    EXPECT_EQ(formatNumber(0.05, "###0.0"), "0.1");
    EXPECT_EQ(formatNumber(0.049999, "###0.0"), "0.0");
    EXPECT_EQ(formatNumber(0.999, "###0.00"), "1.00");
    EXPECT_EQ(formatNumber(99.95, "###0.0"), "100.0");
    EXPECT_EQ(formatNumber(5e-324, "###0.000"), "0.000");
}

TEST(FormatNumber, ShowsWhatIsNoNumberAsZero) {
    EXPECT_EQ(formatNumber(std::nan(""), "###0.0"), "0.0");
    EXPECT_EQ(formatNumber(std::numeric_limits<double>::infinity(), "###0"), "0");
}

TEST(ReadPlainNumber, TakesTheWholeTextOrNothing) {
    EXPECT_EQ(readPlainNumber("30.1"), 30.1);
    EXPECT_EQ(readPlainNumber(" \t-2e3 "), -2000);
    EXPECT_EQ(readPlainNumber("+.5"), 0.5);
    EXPECT_EQ(readPlainNumber("5."), 5);
    for (const char* text : {"", " ", "-", ".", "abc", "30x", "3 0", "30,1", "1e", "nan", "inf"})
        EXPECT_EQ(readPlainNumber(text), std::nullopt) << text;
}

TEST(ShortestText, ReadsBackAsTheSameDouble) {
    for (const double value : {0.1, 1.0 / 3, 3124.6899414062, 1e22, -2.5e-10, 5e-324, 0.0})
        EXPECT_EQ(leadingNumber(shortestText(value)), value) << value;
    EXPECT_EQ(shortestText(0.1), "0.1");
    EXPECT_EQ(shortestText(20), "20");
}

TEST(ShortestText, OfAZeroHasNoSign) {
    EXPECT_EQ(shortestText(0.0), "0");
    EXPECT_EQ(shortestText(-0.0), "0");  // what is left of a negative penalty without neighbours
}

TEST(FormatText, AlignsInAsManyCharactersAsThePictureHas) {
    EXPECT_EQ(formatText("7", "@@@"), "  7");
    EXPECT_EQ(formatText("7", "!@@@"), "7  ");
    EXPECT_EQ(formatText("12345", "@@@"), "12345");
    EXPECT_EQ(formatText("\xC3\xA9", "@@"), " \xC3\xA9");
}

}  // namespace
}  // namespace varnholt
