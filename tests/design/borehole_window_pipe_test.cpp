// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "borehole_window.h"

namespace varnholt {
namespace {

using PipeOfADesign = BoreholeWindow;

// Wall and film worked by hand, W = ln(n o/(n o - (o - i)))/(6.28318*0.225), n = sqrt(2) or 2;
// h = 0.35 Nu/(i/12), Nu = 0.023 Re^0.8 6.6^0.3 = 64.2083 turbulent, so F =
// 1/(3.14159*0.35*64.2083) = 0.0141642 whatever the diameter, 0.0356897 in transition (Re 3150),
// 0.0613614 laminar. 1.9/1.55: W = ln(2.687006/2.337006)/1.4137155 = 0.0987164, R = W + F/2 =
// 0.1057985.
constexpr double elevenBySingle = 0.1057985;
// Grout: S = 17.44268 (5/1.9)^-0.605154 = 9.712199, 1/(S*0.85) = 0.1211333.
constexpr double groutAverage = 0.1211333;

TEST_F(PipeOfADesign, StartsWithTheBuiltInResistances) {
    EXPECT_EQ(textOf("PIPipeDiameterCombo"), "[2421]");
    EXPECT_EQ(textOf("PIPipeResistanceCombo(0)"), "[2410]");
    EXPECT_EQ(textOf("PIPipeResistanceCombo(1)"), "[2414]");
    EXPECT_TRUE(design->control("PIConfigurationOption(0)").checked());
    EXPECT_TRUE(design->control("PIPlacementOption(1)").checked());
    EXPECT_EQ(value("pipeResistance"), 0.075);
    EXPECT_EQ(value("boreResistance"), 0.196);
}

TEST_F(PipeOfADesign, IsRecomputedDownToTheBoreWhenItsWallChanges) {
    design->calculationDone();
    design->choose("PIPipeResistanceCombo(0)", 4);
    EXPECT_EQ(value("pipeDiameter(1)"), 1.5);
    EXPECT_EQ(textOf("PIPipeDiameterText(1)"), "1.500");
    // W = ln(2.687006/2.287006)/1.4137155 = 0.1140145
    EXPECT_NEAR(value("pipeResistance"), 0.1140145 + 0.0141642 / 2, 1e-6);
    EXPECT_NEAR(value("boreResistance"), groutAverage + 0.1140145 + 0.0141642 / 2, 1e-6);
    EXPECT_TRUE(design->isStale());
    design->choose("PIPipeResistanceCombo(0)", 1);
    EXPECT_NEAR(value("pipeResistance"), elevenBySingle, 1e-6);
}

TEST_F(PipeOfADesign, HasAThickerFilmInSlowFlow) {
    design->choose("PIPipeResistanceCombo(1)", 2);
    EXPECT_EQ(value("flowTypeIndex"), 2);
    EXPECT_NEAR(value("pipeResistance"), 0.0987164 + 0.0613614 / 2, 1e-6);
    design->choose("PIPipeResistanceCombo(1)", 1);
    EXPECT_NEAR(value("pipeResistance"), 0.0987164 + 0.0356897 / 2, 1e-6);
}

TEST_F(PipeOfADesign, TakesBothDiametersOfItsSize) {
    design->choose("PIPipeDiameterCombo", 0);
    EXPECT_EQ(value("pipeDiameter(0)"), 1.05);
    EXPECT_EQ(value("pipeDiameter(1)"), 0.86);
    EXPECT_EQ(textOf("PIPipeDiameterText(0)"), "1.050");
    // W = ln(1.484924/1.294924)/1.4137155 = 0.0968452
    EXPECT_NEAR(value("pipeResistance"), 0.0968452 + 0.0141642 / 2, 1e-6);
}

TEST_F(PipeOfADesign, ThatDoesNotFitIsRefusedWithItsSpan) {
    design->choose("PIPipeDiameterCombo", 0);
    typeAndLeave("PIBoreholeDiameterText", "3");
    const double resistance = value("pipeResistance");
    design->calculationDone();
    design->choose("PIPipeDiameterCombo", 3);
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].title, "Varnholt");
    EXPECT_EQ(platform.messages[0].text, "[2453]\n\n[2423]: 3.00 [2449]\n[2454]: 3.80 [2449]");
    EXPECT_EQ(value("pipeSizeIndex"), 0);
    EXPECT_EQ(value("pipeDiameter(0)"), 1.05);
    EXPECT_EQ(textOf("PIPipeDiameterCombo"), "[2418]");
    EXPECT_EQ(textOf("PIPipeDiameterText(0)"), "1.050");
    EXPECT_EQ(value("pipeResistance"), resistance);
    EXPECT_FALSE(design->isStale());
}

TEST_F(PipeOfADesign, TwiceInAFiveInchBoreDoesNotFit) {
    // 2 * 1.9 * sqrt(2) = 5.37 is above 5.05
    design->calculationDone();
    design->click("PIConfigurationOption(1)");
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].text, "[2453]\n\n[2423]: 5.00 [2449]\n[2454]: 5.37 [2449]");
    EXPECT_EQ(value("uTubeConfig"), 0);
    EXPECT_TRUE(design->control("PIConfigurationOption(0)").checked());
    EXPECT_FALSE(design->control("PIConfigurationOption(1)").checked());
    EXPECT_EQ(value("pipeResistance"), 0.075);
    EXPECT_EQ(value("boreResistance"), 0.196);
    EXPECT_FALSE(design->isStale());
}

TEST_F(PipeOfADesign, MisfitIsToldInMillimetresInMetric) {
    inMetric();
    design->click("PIConfigurationOption(1)");
    // 5 in = 127 mm, 5.37401 in = 136.50 mm
    EXPECT_EQ(platform.messages.at(0).text,
              "[2453]\n\n[2423]: 127.00 [2448]\n[2454]: 136.50 [2448]");
}

TEST_F(PipeOfADesign, TwiceInAWiderBoreIsTaken) {
    typeAndLeave("PIBoreholeDiameterText", "6");
    design->click("PIConfigurationOption(1)");
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(value("uTubeConfig"), 1);
    // W = ln(3.8/3.45)/1.4137155 = 0.0683496, R = W + F/4; grout: base 6/(1.9 sqrt 2) = 2.232967,
    // S = 17.44268 * 2.232967^-0.605154 = 10.727178, 1/(0.85 S) = 0.1096720
    EXPECT_NEAR(value("pipeResistance"), 0.0683496 + 0.0141642 / 4, 1e-6);
    EXPECT_NEAR(value("boreResistance"), 0.1096720 + 0.0683496 + 0.0141642 / 4, 1e-6);
}

TEST_F(PipeOfADesign, PlacementChangesTheGroutsPart) {
    design->click("PIPlacementOption(0)");
    EXPECT_EQ(value("pipePlacement"), 0);
    // S = 20.100377 (5/1.9)^-0.94467 = 8.058206, 1/(0.85 S) = 0.1459966
    EXPECT_NEAR(value("boreResistance"), 0.1459966 + elevenBySingle, 1e-6);
    design->click("PIPlacementOption(2)");
    // S = 21.90587 (5/1.9)^-0.3796 = 15.172123, 1/(0.85 S) = 0.0775416
    EXPECT_NEAR(value("boreResistance"), 0.0775416 + elevenBySingle, 1e-6);
}

TEST_F(PipeOfADesign, WithAZeroInsideDiameterIsNotRecomputedWhileTyping) {
    type("PIPipeDiameterText(1)", "0");
    EXPECT_EQ(value("pipeResistance"), 0.075);
    // The chain still runs by any other way, and then the pipe counts as closed.
    design->choose("PIPipeResistanceCombo(1)", 1);
    EXPECT_NEAR(value("pipeResistance"), 10000, 1);
    EXPECT_EQ(textOf("PIPipeResistanceText"), "10000.000");
}

TEST_F(PipeOfADesign, WithAZeroInsideDiameterShowsNear10000WithAnyFlowType) {
    type("PIPipeDiameterText(1)", "0");
    for (const int flowType : {1, 2, 0}) {
        design->choose("PIPipeResistanceCombo(1)", flowType);
        // The film's conductance counts as 10000 as well: half of 1/10000 on top.
        EXPECT_NEAR(value("pipeResistance"), 10000.00005, 1e-9);
        EXPECT_EQ(textOf("PIPipeResistanceText"), "10000.000");
    }
}

TEST_F(PipeOfADesign, DiametersAreRecomputedOnlyWhenTheyAreAPipes) {
    type("PIPipeDiameterText(1)", "1.9");  // no wall
    EXPECT_EQ(value("pipeResistance"), 0.075);
    type("PIPipeDiameterText(1)", "1.5");
    EXPECT_NEAR(value("pipeResistance"), 0.1140145 + 0.0141642 / 2, 1e-6);
    const double before = value("pipeResistance");
    type("PIPipeDiameterText(0)", "2.6");  // does not fit
    EXPECT_EQ(value("pipeResistance"), before);
    EXPECT_TRUE(platform.messages.empty());
    design->leave("PIPipeDiameterText(0)");
    EXPECT_EQ(platform.messages.size(), 1u);
}

TEST_F(PipeOfADesign, DiameterOutOfRangeReturnsToTheTable) {
    design->choose("PIPipeDiameterCombo", 2);
    type("PIPipeDiameterText(0)", "1001");
    EXPECT_EQ(value("pipeDiameter(0)"), 1.66);
    EXPECT_EQ(textOf("PIPipeDiameterText(0)"), "1.660");
    typeAndLeave("PIPipeDiameterText(1)", "");
    EXPECT_EQ(value("pipeDiameter(1)"), 1.36);
}

TEST_F(PipeOfADesign, DiameterIsTypedInMillimetresInMetric) {
    inMetric();
    type("PIPipeDiameterText(0)", "50.8");
    EXPECT_DOUBLE_EQ(value("pipeDiameter(0)"), 2);
}

TEST_F(PipeOfADesign, ResistanceCanBeTypedAndReachesTheBore) {
    type("PIPipeResistanceText", "0.1");
    EXPECT_EQ(value("pipeResistance"), 0.1);
    EXPECT_NEAR(value("boreResistance"), groutAverage + 0.1, 1e-6);
    EXPECT_EQ(textOf("PIThermalResistanceText"), "0.221");
}

TEST_F(PipeOfADesign, ResistanceOfTheBoreCanBeTypedAndStaysUntilTheNextChain) {
    inMetric();
    type("PIThermalResistanceText", "0.1");
    EXPECT_DOUBLE_EQ(value("boreResistance"), 0.1 / 0.5777892);
    type("SOGroundTempText", "15");
    EXPECT_DOUBLE_EQ(value("boreResistance"), 0.1 / 0.5777892);
    type("PIGroutConductivityText", "1.5");
    EXPECT_NE(value("boreResistance"), 0.1 / 0.5777892);
}

TEST_F(PipeOfADesign, ResistanceOfTheBoreIsShownWithThreeDecimalsInMetric) {
    inMetric();
    EXPECT_EQ(textOf("PIThermalResistanceText"), "0.113");  // 0.196 * 0.5777892 = 0.11325
}

TEST_F(PipeOfADesign, TooNarrowABoreIsWidenedToThePipes) {
    typeAndLeave("PIBoreholeDiameterText", "2");
    EXPECT_EQ(platform.messages.size(), 1u);
    EXPECT_DOUBLE_EQ(value("boreDiameter"), 3.8);
    EXPECT_EQ(textOf("PIBoreholeDiameterText"), "3.80");
    // base 2: S = 17.44268 * 2^-0.605154 = 11.466839, 1/(0.85 S) = 0.1025976, and 0.075
    EXPECT_NEAR(value("boreResistance"), 0.1025976 + 0.075, 1e-6);
}

TEST_F(PipeOfADesign, PipesWiderThanTenInchesGetAFiveInchBore) {
    type("PIPipeDiameterText(0)", "6");
    typeAndLeave("PIBoreholeDiameterText", "4");
    EXPECT_EQ(value("boreDiameter"), 5);
}

TEST_F(PipeOfADesign, JustTouchingTheWallIsComputedButRefused) {
    // A span of exactly the bore and its give: 2 * 1.5 against 2.95 + 0.05.
    typeAndLeave("PIBoreholeDiameterText", "2.95");
    platform.messages.clear();
    type("PIPipeDiameterText(0)", "1.5");
    type("PIPipeDiameterText(1)", "1.2");
    type("PIBoreholeDiameterText", "2.95");
    type("PIGroutConductivityText", "1");
    EXPECT_GT(value("boreResistance"), 0);
    design->leave("PIBoreholeDiameterText");
    EXPECT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(value("boreDiameter"), 3);
}

TEST_F(PipeOfADesign, OfAnOddFileIsShownAsNone) {
    main.openCall = true;
    frmBHDesign* opened = newBorehole(main, [](frmBHDesign& window) {
        DesignFiles files;
        files.readProject = [&window] {
            change(window, [&](BoreholeProject& of) { of.pipe.pipeSizeIndex = 1e300; });
            change(window, [&](BoreholeProject& of) { of.pipe.pipeSdrIndex = -4; });
            change(window, [&](BoreholeProject& of) { of.pipe.flowTypeIndex = 99; });
            change(window, [&](BoreholeProject& of) { of.bore.uTubeConfig = -17; });
            change(window, [&](BoreholeProject& of) { of.bore.pipePlacement = 2.5; });
        };
        return files;
    });
    main.openCall = false;
    EXPECT_EQ(opened->control("PIPipeDiameterCombo").index(), -1);
    EXPECT_FALSE(opened->control("PIPlacementOption(1)").checked());
    opened->type("PIGroutConductivityText", "1");
    opened->type("PIPipeDiameterText(0)", "1.2");
    opened->leave("PIBoreholeDiameterText");
    opened->choose("PIPipeResistanceCombo(0)", 0);
    EXPECT_EQ(opened->project().pipe.pipeResistance, 0);
    opened->boreDrawing();
}

}  // namespace
}  // namespace varnholt
