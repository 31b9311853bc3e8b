// SPDX-License-Identifier: GPL-3.0-or-later
// Fields whose range is looked at when they are left.
#include <gtest/gtest.h>

#include <string>

#include "forms/fake_platform.h"
#include "forms/form.h"

namespace varnholt {
namespace {

class Sheet : public Form {
 public:
    Sheet(Platform& platform, const Texts& texts) : Form("frmSheet", platform, texts) {
        addField({.control = "FlowText",
                  .stored = &flow,
                  .quantity = &quantities::waterFlow,
                  .lowest = -100,
                  .highest = 100,
                  .fallback = 7,
                  .checkedWhenLeft = true,
                  .notTaken = -1,
                  .changed = [this] { ++changes; },
                  .left = [this] { ++visits; }});
    }
    std::string shown() { return control("FlowText").text(); }

    double flow = 3;
    int changes = 0, visits = 0;
};

class CheckedWhenLeft : public testing::Test {
 protected:
    FakePlatform platform;
    FakeTexts texts;
    Sheet sheet{platform, texts};
};

TEST_F(CheckedWhenLeft, TheFieldHoldsWhateverNumberIsTyped) {
    for (const char* number : {"101", "-101", "-1", "1e300"}) {
        sheet.type("FlowText", number);
        EXPECT_EQ(sheet.flow, std::stod(number));
        EXPECT_EQ(sheet.shown(), number);
        EXPECT_FALSE(sheet.control("FlowText").refused());
    }
    EXPECT_EQ(sheet.changes, 4);
}

TEST_F(CheckedWhenLeft, WhatIsOutOfRangeIsReplacedAndToldOf) {
    for (const char* number : {"101", "-101", "-1"}) {
        sheet.type("FlowText", number);
        sheet.leave("FlowText");
        EXPECT_EQ(sheet.flow, 7);
        EXPECT_EQ(sheet.shown(), "7.0");
        ASSERT_TRUE(sheet.fields().refused());
        EXPECT_EQ(sheet.fields().refused()->typed, number);
        EXPECT_EQ(sheet.fields().refused()->taken, "7.0");
    }
    EXPECT_EQ(sheet.visits, 3);
    // Typed and replaced, three times.
    EXPECT_EQ(sheet.changes, 6);
}

TEST_F(CheckedWhenLeft, TheEndsOfTheRangeAndTheNeighboursOfARefusedValueStand) {
    for (const char* number : {"100", "-100", "-1.5", "0"}) {
        sheet.type("FlowText", number);
        sheet.leave("FlowText");
        EXPECT_EQ(sheet.flow, std::stod(number));
        EXPECT_FALSE(sheet.fields().refused());
    }
}

TEST_F(CheckedWhenLeft, TextThatIsNoNumberAsAWholeChangesNothing) {
    for (const char* text : {"", " ", "x", "5x", "5 6", "1,5", "--5", "1e400"}) {
        sheet.type("FlowText", text);
        EXPECT_EQ(sheet.flow, 3) << text;
        sheet.leave("FlowText");
        EXPECT_EQ(sheet.shown(), "3.0");
    }
    EXPECT_EQ(sheet.changes, 0);
    EXPECT_EQ(sheet.visits, 8);
}

TEST_F(CheckedWhenLeft, AStoredValueOutOfRangeIsReplacedThoughNothingWasTyped) {
    sheet.flow = 500;
    sheet.leave("FlowText");
    EXPECT_EQ(sheet.flow, 7);
    EXPECT_EQ(sheet.changes, 1);
}

}  // namespace
}  // namespace varnholt
