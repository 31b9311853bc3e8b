// SPDX-License-Identifier: GPL-3.0-or-later
// The fields of the horizontal design: arrangements, limits, ground temperature.
#include "horizontal_window.h"

#include <gtest/gtest.h>

#include "forms/named_controls.h"

namespace varnholt {
namespace {

using HorizontalDesign = HorizontalWindow;
using Messages = std::vector<std::string>;

constexpr int grey = 0x7F7F7F;
const Messages widened{"[5033]"};
const Messages deepened{"[5036]"};

TEST_F(HorizontalDesign, HasSevenPagesAndATower) {
    const std::vector<std::string> pages{"[2002]", "[2003]", "[2004]", "[2005]",
                                         "[5002]", "[2007]", "[2010]"};
    EXPECT_EQ(control("HZTabs").items(), pages);
    EXPECT_TRUE(design->has("CAHybridSlider"));
    EXPECT_FALSE(design->has("PIBoreholeDiameterText"));
}

TEST_F(HorizontalDesign, TakesASlotOfItsOwnKindAndGivesItBack) {
    EXPECT_EQ(design->caption(), "[5001] #1");
    EXPECT_TRUE(main.slots(DesignKind::horizontal).exists[1]);
    main.close(*design);
    EXPECT_FALSE(main.slots(DesignKind::horizontal).exists[1]);
}

TEST_F(HorizontalDesign, SharesTheRunningNumberWithDesignsOfOtherKinds) {
    main.click("NewBorehole");
    EXPECT_EQ(main.activeWindow()->caption(), "[2001] #2");
    main.click("NewSurfaceWater");
    main.click("NewHorizontal");
    EXPECT_EQ(main.activeWindow()->caption(), "[5001] #4");
    EXPECT_TRUE(main.slots(DesignKind::horizontal).exists[2]);
}

TEST_F(HorizontalDesign, FollowsTheMainWindowsUnits) {
    main.click("Metric");
    EXPECT_TRUE(control("MetricCheck").checked());
    EXPECT_EQ(textOf("PASeparationText(1)"), "1.8");
    EXPECT_EQ(captionOf("CATotalPipeLengthLabel(2)"), "[5042]");
    main.click("English");
    EXPECT_EQ(textOf("PASeparationText(1)"), "6.0");
    EXPECT_EQ(value("trenchGeometry(1)"), 6);
}

TEST_F(HorizontalDesign, HasANameForWhateverAPersonChanges) {
    texts.known[1101] = "";
    EXPECT_EQ(namelessControls(*design), "NoticeCommand\n");  // named while there is work for it
}

TEST_F(HorizontalDesign, StartsStaleWithItsBuiltInValues) {
    EXPECT_TRUE(design->isStale());
    EXPECT_EQ(textOf("PASeparationText(0)"), "20.0");
    EXPECT_EQ(textOf("PASeparationText(1)"), "6.0");
    EXPECT_EQ(textOf("PASeparationText(2)"), "8.0");
    EXPECT_EQ(textOf("PASeparationText(3)"), "1");
    EXPECT_EQ(textOf("SOAirTempSwingText"), "22.0");
    EXPECT_EQ(textOf("SODayText(0)"), "34");
    EXPECT_EQ(textOf("PATimeText"), "10.0");
    EXPECT_EQ(value("pipeSizeIndex"), 1);
    EXPECT_EQ(value("pipeDiameters(0)"), 1.9);
    EXPECT_EQ(value("pipeResistance"), 0.075);
    EXPECT_EQ(value("uTubeConfig"), 2);
    EXPECT_TRUE(control("PAConfigurationOption(0)").checked());
}

TEST_F(HorizontalDesign, NamesItsDimensionsByTheLettersInThePicture) {
    EXPECT_EQ(captionOf("PAInTrenchConfigurationLabel(0)"), "[5019]:");
    EXPECT_EQ(captionOf("PAInTrenchConfigurationLabel(1)"), "[5016] [Y]:");
    EXPECT_EQ(captionOf("PAInTrenchConfigurationLabel(2)"), "[5034] [X]:");
    choose(3);
    EXPECT_EQ(captionOf("PAInTrenchConfigurationLabel(0)"), "[5017] [P]:");
    EXPECT_EQ(captionOf("PAInTrenchConfigurationLabel(1)"), "[5018] [D]:");
    design->setLabels();
    EXPECT_EQ(captionOf("PAInTrenchConfigurationLabel(1)"), "[5018] [D]:");
}

TEST_F(HorizontalDesign, RestartsTheCountAtOneRowWithAnotherArrangement) {
    setPipes(7);
    EXPECT_EQ(value("pipesPerTrench"), 7);
    choose(2);
    EXPECT_EQ(value("pipesPerTrench"), 3);
    EXPECT_EQ(captionOf("PAInTrenchConfigurationLabel(3)"), "3");
    EXPECT_TRUE(messages().empty());  // though three columns are wider than the trench
    setPipes(9);
    EXPECT_EQ(messages(), widened);
    choose(2);
    EXPECT_EQ(value("pipesPerTrench"), 9);  // the same one does not
    choose(4);
    EXPECT_EQ(value("pipesPerTrench"), 1);
}

TEST_F(HorizontalDesign, CountsPipesByWholeRowsUpToTwentyFour) {
    choose(2);
    const Control& pipes = control("PAConfigurationUpDown(1)");
    EXPECT_EQ(pipes.min(), 3);
    EXPECT_EQ(pipes.step(), 3);
    setPipes(100);
    EXPECT_EQ(value("pipesPerTrench"), 24);
    setPipes(0);
    EXPECT_EQ(value("pipesPerTrench"), 3);
    setPipes(7);  // between two and three rows
    EXPECT_EQ(value("pipesPerTrench"), 6);
    choose(1);
    EXPECT_EQ(pipes.min(), 2);
    EXPECT_EQ(pipes.step(), 2);
}

TEST_F(HorizontalDesign, CountsTrenchesFromOneToAThousand) {
    setTrenches(12);
    EXPECT_EQ(value("trenchCount"), 12);
    EXPECT_EQ(textOf("PASeparationText(3)"), "12");
    setTrenches(5000);
    EXPECT_EQ(value("trenchCount"), 1000);
    setTrenches(-5);
    EXPECT_EQ(value("trenchCount"), 1);
    setTrenches(3.4);
    EXPECT_EQ(value("trenchCount"), 3);
    typeAndLeave("PASeparationText(3)", "17");
    EXPECT_EQ(control("PAConfigurationUpDown(0)").value(), 17);
    type("PASeparationText(3)", "1001");
    EXPECT_EQ(value("trenchCount"), 1000);
    type("PASeparationText(3)", "0");
    EXPECT_EQ(value("trenchCount"), 1);
}

TEST_F(HorizontalDesign, GreysTheVerticalStepOfASingleRow) {
    choose(1);
    EXPECT_FALSE(isEnabled("PAInTrenchConfigurationText(1)"));
    EXPECT_EQ(colourOf("PAInTrenchConfigurationLabel(1)"), grey);
    EXPECT_EQ(colourOf("PAInTrenchConfigurationUnitsLabel(1)"), grey);
    EXPECT_TRUE(isEnabled("PAInTrenchConfigurationText(2)"));
    EXPECT_EQ(colourOf("PAInTrenchConfigurationLabel(2)"), colours::black);
    setPipes(4);
    EXPECT_TRUE(isEnabled("PAInTrenchConfigurationText(1)"));
    EXPECT_EQ(colourOf("PAInTrenchConfigurationLabel(1)"), colours::black);
}

TEST_F(HorizontalDesign, OffersTheHorizontalStepOfASingleColumnOnlyWithAnOffset) {
    setPipes(2);
    EXPECT_FALSE(isEnabled("PAInTrenchConfigurationText(2)"));
    EXPECT_EQ(colourOf("PAInTrenchConfigurationLabel(2)"), grey);
    design->click("PAOffsetCheck");
    EXPECT_TRUE(isEnabled("PAInTrenchConfigurationText(2)"));
    EXPECT_EQ(colourOf("PAInTrenchConfigurationLabel(2)"), colours::black);
}

TEST_F(HorizontalDesign, OffersTheOffsetFromTwoRowsOn) {
    EXPECT_FALSE(isEnabled("PAOffsetCheck"));
    setPipes(2);
    EXPECT_TRUE(isEnabled("PAOffsetCheck"));
    design->click("PAOffsetCheck");
    EXPECT_EQ(value("offsetRows"), 1);
    setPipes(1);
    EXPECT_EQ(value("offsetRows"), 0);
    EXPECT_FALSE(control("PAOffsetCheck").checked());
}

TEST_F(HorizontalDesign, ShowsPitchAndDiameterOfACoilAlone) {
    EXPECT_FALSE(isVisible("PAInTrenchConfigurationText(0)"));
    EXPECT_FALSE(isVisible("PAInTrenchConfigurationUnitsLabel(0)"));
    choose(3);
    EXPECT_TRUE(isVisible("PAInTrenchConfigurationText(0)"));
    EXPECT_TRUE(isVisible("PAInTrenchConfigurationUnitsLabel(0)"));
    EXPECT_EQ(textOf("PAInTrenchConfigurationText(1)"), "36.0");
    EXPECT_FALSE(isVisible("PAInTrenchConfigurationText(2)"));
    EXPECT_FALSE(isVisible("PAInTrenchConfigurationLabel(2)"));
    EXPECT_FALSE(isVisible("PAInTrenchConfigurationUnitsLabel(2)"));
    EXPECT_FALSE(isVisible("PAInTrenchConfigurationLabel(3)"));
    EXPECT_FALSE(isVisible("PAOffsetCheck"));
    EXPECT_FALSE(isEnabled("PAConfigurationUpDown(1)"));
    choose(0);
    EXPECT_EQ(textOf("PAInTrenchConfigurationText(1)"), "12.0");
    EXPECT_TRUE(isEnabled("PAConfigurationUpDown(1)"));
}

TEST_F(HorizontalDesign, ShowsThePictureOfTheChosenArrangement) {
    setPipes(2);
    for (int chosen : {1, 2, 3, 4, 0}) {
        choose(chosen);
        for (std::size_t i = 0; i < 5; ++i)
            EXPECT_EQ(isVisible(elementName("imgConfiguration", i)),
                      i == static_cast<std::size_t>(chosen))
                << chosen << i;
        EXPECT_EQ(isVisible("PADiagramPicture(0)"), chosen >= 3);
        EXPECT_EQ(isVisible("PADiagramPicture(1)"), chosen < 3);
    }
    setPipes(2);
    design->click("PAOffsetCheck");
    EXPECT_FALSE(isVisible("PADiagramPicture(1)"));
    EXPECT_TRUE(isVisible("PADiagramPicture(2)"));
    choose(3);
    EXPECT_EQ(value("offsetRows"), 0);
    EXPECT_TRUE(isVisible("PADiagramPicture(0)"));
    EXPECT_FALSE(isVisible("PADiagramPicture(2)"));
}

TEST_F(HorizontalDesign, SetsTheWidthWithSomeArrangements) {
    typeAndLeave("PASeparationText(2)", "50");
    choose(2);
    EXPECT_EQ(textOf("PASeparationText(2)"), "50.0");
    choose(3);
    EXPECT_EQ(textOf("PASeparationText(2)"), "8.0");
    choose(4);
    EXPECT_EQ(textOf("PASeparationText(2)"), "36.0");
    choose(1);
    EXPECT_EQ(textOf("PASeparationText(2)"), "12.0");
    typeAndLeave("PASeparationText(2)", "40");
    choose(1);  // chosen already: it sets the width again
    EXPECT_EQ(textOf("PASeparationText(2)"), "12.0");
    EXPECT_TRUE(messages().empty());
}

TEST_F(HorizontalDesign, WidensATrenchForAnOffset) {
    choose(1);
    setPipes(4);
    design->click("PAOffsetCheck");
    EXPECT_EQ(value("trenchGeometry(2)"), 18);  // 1.5 * 12
    EXPECT_EQ(textOf("PASeparationText(2)"), "18.0");
    EXPECT_EQ(messages(), widened);
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::exclamation);
}

TEST_F(HorizontalDesign, WidensATrenchForItsColumns) {
    choose(2);
    typeAndLeave("PAInTrenchConfigurationText(2)", "10");
    EXPECT_EQ(value("trenchGeometry(2)"), 20);  // two steps of 10
    setPipes(6);
    design->click("PAOffsetCheck");
    EXPECT_EQ(value("trenchGeometry(2)"), 25);  // and half a one
    EXPECT_EQ(messages().size(), 2u);
    typeAndLeave("PASeparationText(2)", "25");
    EXPECT_EQ(messages().size(), 2u);
}

TEST_F(HorizontalDesign, WidensATrenchForACoilOnEdgeButNotForAFlatOne) {
    choose(3);
    typeAndLeave("PAInTrenchConfigurationText(1)", "40");
    EXPECT_EQ(value("trenchGeometry(2)"), 8);
    EXPECT_TRUE(messages().empty());
    choose(4);
    typeAndLeave("PAInTrenchConfigurationText(1)", "45");
    EXPECT_EQ(value("trenchGeometry(2)"), 45);
    EXPECT_EQ(messages(), widened);
}

TEST_F(HorizontalDesign, RestoresADepthThatIsLessThanTheStack) {
    setPipes(5);
    typeAndLeave("PASeparationText(1)", "3");
    EXPECT_EQ(value("trenchGeometry(1)"), 4);  // four steps of 12 in
    EXPECT_EQ(textOf("PASeparationText(1)"), "4.0");
    EXPECT_EQ(messages(), deepened);
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::exclamation);
}

TEST_F(HorizontalDesign, CountsRowsAndNotPipesForTheDepth) {
    choose(2);
    typeAndLeave("PASeparationText(2)", "24");
    typeAndLeave("PASeparationText(1)", "2");
    setPipes(9);  // three rows: two steps of 12 in, exactly 2 ft
    EXPECT_TRUE(messages().empty());
    setPipes(12);
    EXPECT_EQ(value("trenchGeometry(1)"), 3);
    EXPECT_EQ(messages(), deepened);
}

TEST_F(HorizontalDesign, AsksForTheWidthAloneAfterTheOffset) {
    change(*design, [](HorizontalProject& project) {
        project.arrangement.pipesPerTrench = 12;  // as a file may hold it: 11 ft in a trench of 6
    });
    design->setUnitLabels();
    design->click("PAOffsetCheck");
    EXPECT_EQ(messages(), widened);
    design->leave("PASeparationText(0)");
    EXPECT_EQ(messages(), (Messages{"[5033]", "[5036]"}));
}

TEST_F(HorizontalDesign, KeepsThePitchWithinTheCoilsTableWithoutAWord) {
    choose(3);
    const struct {
        const char *typed, *kept;
    } cases[]{{"0", "20.0"}, {"", "20.0"}, {"60", "56.0"}, {"8", "10.0"}, {"30", "30.0"}};
    for (const auto& [typed, kept] : cases) {
        typeAndLeave("PAInTrenchConfigurationText(0)", typed);
        EXPECT_EQ(textOf("PAInTrenchConfigurationText(0)"), kept) << typed;
    }
    type("PAInTrenchConfigurationText(0)", "-3");
    EXPECT_EQ(value("coilGeometry(0)"), 18);
    type("PAInTrenchConfigurationText(0)", "60");
    EXPECT_EQ(value("coilGeometry(0)"), 60);  // while typing
    EXPECT_TRUE(messages().empty());
}

TEST_F(HorizontalDesign, FillsAnEmptyDiameterAndKeepsATypedZero) {
    choose(3);
    typeAndLeave("PAInTrenchConfigurationText(1)", "");
    EXPECT_EQ(value("coilGeometry(1)"), 36);
    type("PAInTrenchConfigurationText(1)", "-1");
    EXPECT_EQ(value("coilGeometry(1)"), 36);
    typeAndLeave("PAInTrenchConfigurationText(1)", "0");
    EXPECT_EQ(value("coilGeometry(1)"), 0);
}

TEST_F(HorizontalDesign, FillsEmptyStepsBetweenPipes) {
    choose(1);
    setPipes(4);
    typeAndLeave("PAInTrenchConfigurationText(1)", "0");
    EXPECT_EQ(textOf("PAInTrenchConfigurationText(1)"), "12.0");
    typeAndLeave("PAInTrenchConfigurationText(2)", "");
    EXPECT_EQ(textOf("PAInTrenchConfigurationText(2)"), "12.0");
    type("PAInTrenchConfigurationText(2)", "-4");
    EXPECT_EQ(value("pipeSeparation(1)"), 12);
}

TEST_F(HorizontalDesign, RefusesTrenchesOutOfRangeAndFillsEmptyOnes) {
    const struct {
        const char* field;
        double fallback;
    } cases[]{{"PASeparationText(0)", 6}, {"PASeparationText(1)", 6}, {"PASeparationText(2)", 8}};
    for (std::size_t i = 0; i < 3; ++i) {
        const auto& [field, fallback] = cases[i];
        const std::string stored = elementName("trenchGeometry", i);
        for (const char* refused : {"1001", "-1"}) {
            type(field, "9");
            type(field, refused);
            EXPECT_EQ(value(stored), fallback) << field << refused;
        }
        for (const char* empty : {"", "0"}) {
            type(field, "9");
            typeAndLeave(field, empty);
            EXPECT_EQ(value(stored), fallback) << field << empty;
        }
    }
}

TEST_F(HorizontalDesign, ShowsWidthsInWholeCentimetres) {
    inMetric();
    EXPECT_EQ(textOf("PASeparationText(0)"), "6.1");  // 20 ft
    EXPECT_EQ(textOf("PASeparationText(2)"), "20");   // 8 in = 20.32 cm
    EXPECT_EQ(textOf("PAInTrenchConfigurationText(1)"), "30");
    EXPECT_EQ(captionOf("PASeparationUnitsLabel(2)"), "[5009]");
    typeAndLeave("PASeparationText(2)", "61");
    // (61/100 * 12)/0.3048
    EXPECT_NEAR(value("trenchGeometry(2)"), 24.015748, 1e-6);
    typeAndLeave("PASeparationText(1)", "2");
    EXPECT_NEAR(value("trenchGeometry(1)"), 6.561680, 1e-6);  // 2/0.3048
}

TEST_F(HorizontalDesign, FollowsTheGroundsTemperatureAtTheTrench) {
    typeAndLeave("SOAirTempSwingText", "20");
    typeAndLeave("SODayText(0)", "202");
    typeAndLeave("SODayText(1)", "19");
    // The second route, tests/independent/horizontal_road.py, at 6, 12 and 0 ft.
    EXPECT_NEAR(value("groundTempAtDepth(0)"), 70.472038931, 1e-8);
    EXPECT_NEAR(value("groundTempAtDepth(1)"), 53.581906324, 1e-8);
    type("PASeparationText(1)", "12");
    EXPECT_NEAR(value("groundTempAtDepth(0)"), 63.601915916, 1e-8);
    type("PASeparationText(1)", "0");
    EXPECT_EQ(value("groundTempAtDepth(1)"), 42);
    type("SOGroundTempText", "50");
    EXPECT_EQ(value("groundTempAtDepth(1)"), 30);
    type("SODayText(1)", "");  // a day that is not entered: its mode keeps the mean
    EXPECT_EQ(value("groundTempAtDepth(1)"), 50);
    type("SOThermalDiffusivityText", "0");
    EXPECT_EQ(value("groundTempAtDepth(0)"), 50);
}

TEST_F(HorizontalDesign, FindsThePipesResistanceInTheConfigurationThatItsFileHolds) {
    design->choose("PIPipeDiameterCombo", 3);
    // A single pipe: wall ln(1.9/1.55)/(6.28318*0.225) and a turbulent film.
    EXPECT_NEAR(value("pipeResistance"), 0.144017 + 0.014164, 1e-6);
    change(*design, [](HorizontalProject& project) { project.remainder.uTubeConfig = 0; });
    design->choose("PIPipeDiameterCombo", 3);
    // A pair: ln(2.687006/2.337006)/(6.28318*0.225) and half the film.
    EXPECT_NEAR(value("pipeResistance"), 0.098716 + 0.007082, 1e-6);
    change(*design, [](HorizontalProject& project) { project.remainder.uTubeConfig = 7; });
    design->choose("PIPipeDiameterCombo", 3);
    EXPECT_EQ(value("pipeResistance"), 0);
}

TEST_F(HorizontalDesign, OfAFileWithoutAnArrangementShowsNoneAndKeepsItsTrench) {
    change(*design, [](HorizontalProject& project) {
        project.arrangement.trenchConfiguration = 7;
        project.arrangement.pipesPerTrench = 2;
    });
    design->setUnitLabels();
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_FALSE(control(elementName("PAConfigurationOption", i)).checked());
        EXPECT_FALSE(isVisible(elementName("imgConfiguration", i)));
    }
    EXPECT_FALSE(isEnabled("PAConfigurationUpDown(1)"));
    typeAndLeave("PASeparationText(1)", "1");
    EXPECT_TRUE(messages().empty());
    EXPECT_TRUE(design->trenchDrawing().empty());
    EXPECT_TRUE(design->trenchPlan().empty());
    choose(1);
    EXPECT_EQ(value("pipesPerTrench"), 2);
}

TEST_F(HorizontalDesign, TakesStepsBack) {
    choose(1);
    setPipes(6);
    design->click("PAOffsetCheck");  // widens the trench
    main.click("mnuUndo");
    EXPECT_EQ(value("offsetRows"), 0);
    EXPECT_EQ(textOf("PASeparationText(2)"), "12.0");
    EXPECT_FALSE(control("PAOffsetCheck").checked());
    main.click("mnuUndo");
    EXPECT_EQ(captionOf("PAInTrenchConfigurationLabel(3)"), "2");
    main.click("mnuUndo");
    EXPECT_TRUE(control("PAConfigurationOption(0)").checked());
    EXPECT_EQ(value("trenchGeometry(2)"), 8);
    main.click("mnuRedo");
    EXPECT_TRUE(control("PAConfigurationOption(1)").checked());
}

}  // namespace
}  // namespace varnholt
