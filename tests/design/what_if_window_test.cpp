// SPDX-License-Identifier: GPL-3.0-or-later
// The window of What If: its life, its fields, what belongs to its design.
#include <cmath>
#include <iterator>
#include <set>

#include "basis/number_text.h"
#include "design/whatIf/what_if_values.h"
#include "forms/text_numbers/what_if.h"
#include "forms/text_numbers/what_if_window.h"
#include "what_if_window.h"

namespace varnholt {
namespace {

TEST_F(WhatIfWindow, StandsOnceForADesign) {
    EXPECT_EQ(main.windows().size(), 2U);
    main.activate(*design);
    EXPECT_EQ(open(), what);
    EXPECT_EQ(main.windows().size(), 2U);
    EXPECT_EQ(main.activeWindow(), what);
}

TEST_F(WhatIfWindow, ClosesWithItsDesignAndAsksNothing) {
    design->startHistory();
    EXPECT_TRUE(main.close(*design));
    EXPECT_TRUE(main.windows().empty());
    EXPECT_TRUE(platform.questions.empty());
}

TEST_F(WhatIfWindow, CanBeOpenedAgainAfterItWasClosed) {
    EXPECT_TRUE(main.close(*what));
    what = open();
    ASSERT_NE(what, nullptr);
    EXPECT_EQ(main.activeWindow(), what);
}

TEST_F(WhatIfWindow, IsCalledAfterTheFileOrTheProject) {
    EXPECT_EQ(what->caption(), "What If - " + design->caption());
    design->type("INProjectNameText", "School");
    EXPECT_EQ(what->caption(), "What If - School");
}

TEST_F(WhatIfWindow, MarksNoResultAsStaleAndIsAStepOfItsDesign) {
    calculate();
    ASSERT_FALSE(design->isStale());
    enter("WILowText(4)", "25");
    EXPECT_FALSE(design->isStale());
    EXPECT_EQ(inputs().spreads.low[coolingLoads], 25);
    design->undo();
    EXPECT_EQ(inputs().spreads.low[coolingLoads], 15);
    EXPECT_EQ(shown("WILowText(4)"), "15.0");
    design->redo();
    EXPECT_EQ(shown("WILowText(4)"), "25.0");
}

TEST_F(WhatIfWindow, FollowsTheUnitsOfItsDesign) {
    inMetric();
    // 300 ft x 0.3048 = 91.44 m; 2 degF x 5/9 = 1.11 degC; $14 a foot / 0.3048 = $45.93 a meter.
    EXPECT_EQ(shown("WLAcrossText"), "91.4");
    EXPECT_EQ(shown("WILowText(2)"), "1.1");
    EXPECT_EQ(shown("WCFootText"), "45.93");
    EXPECT_EQ(shown("WCBoreText"), "200");
    EXPECT_EQ(inputs().prices, Prices{});
    enter("WCFootText", "50");
    EXPECT_NEAR(inputs().prices.costFoot, 15.24, 1e-9);  // 50 x 0.3048
}

/// What is above the limit or negative is refused at once, what is below a limit above 0 on
/// leaving.
TEST_F(WhatIfWindow, RefusesWhatIsOutOfRange) {
    const struct {
        const char *field, *typed, *name;
        double typing, left;
    } cases[] = {{"WILowText(0)", "91", "spreadLow(0)", 20, 20},
                 {"WILowText(0)", "-1", "spreadLow(0)", 20, 20},
                 {"WILowText(0)", "90", "spreadLow(0)", 90, 90},
                 {"WIHighText(0)", "301", "spreadHigh(0)", 20, 20},
                 {"WIHighText(2)", "31", "spreadHigh(2)", 2, 2},
                 {"WILowText(2)", "31", "spreadLow(2)", 2, 2},
                 {"WILowText(2)", "30", "spreadLow(2)", 30, 30},
                 {"WIHighText(8)", "301", "spreadHigh(8)", 10, 10},
                 {"WITieText(0)", "0.96", "tie(0)", 0, 0},
                 {"WITieText(0)", "-0.95", "tie(0)", -0.95, -0.95},
                 {"WITieText(0)", "-0.96", "tie(0)", 0, 0},
                 {"WIDepthText", "2001", "drawnDepth", 0, 0},
                 {"WIDepthText", "", "drawnDepth", 0, 0},
                 {"WIConfidenceText", "100", "confidence", 90, 90},
                 {"WIConfidenceText", "49", "confidence", 49, 90},
                 {"WIConfidenceText", "50", "confidence", 50, 50},
                 {"WLAcrossText", "0.5", "landAcross", 0.5, 300},
                 {"WLDownText", "10001", "landDown", 200, 200},
                 {"WLBoundaryText", "1001", "boundaryClearance", 10, 10},
                 {"WLClearText", "0", "noGoClearance", 0, 0},
                 {"WLFromText", "2", "spacingFrom", 2, 15},
                 {"WLStepText", "0.05", "spacingStep", 0.05, 1},
                 {"WLMostDepthText", "9", "mostDepth", 9, 400},
                 {"WLMostText", "2501", "mostBores", 400, 400},
                 {"WLMarginText", "101", "margin", 0, 0},
                 {"WCFixedText", "-1", "costFixed", 5000.0, 5000.0},
                 {"WCEscalationText", "101", "escalation", 2, 2},
                 {"WCYearsText", "0", "costYears", 0, 20},
                 {"WCYearsText", "101", "costYears", 20, 20}};
    for (const auto& each : cases) {
        SCOPED_TRACE(std::string(each.field) + " " + each.typed);
        what->type(each.field, each.typed);
        EXPECT_DOUBLE_EQ(held(each.name), each.typing);
        what->leave(each.field);
        EXPECT_DOUBLE_EQ(held(each.name), each.left);
    }
}

TEST_F(WhatIfWindow, ShowsEveryInputByItsName) {
    for (const WhatIfNumber& number : whatIfNumbers())
        EXPECT_EQ(held(number.name), number.in(WhatIfInputs{})) << number.name;
    EXPECT_EQ(held("measure"), 0);
    EXPECT_EQ(held("knowledge"), 1);
    EXPECT_EQ(held("layoutKind"), 0);
    EXPECT_EQ(heldText("currency"), "$");
    EXPECT_EQ(heldText("pricesOf"), "");
}

TEST_F(WhatIfWindow, SaysWhatADepthOfNothingMeans) {
    EXPECT_EQ(shown("WIDepthText"), "0.0");
    EXPECT_EQ(what->control("WIDepthText").tooltip(),
              "[" + std::to_string(Text::whatIfDrawnTip) + "]");
}

TEST_F(WhatIfWindow, TakesTheSpreadsOfTheGroundsKnowledge) {
    what->click("WIGroundOption(0)");
    EXPECT_EQ(held("knowledge"), 0);
    EXPECT_EQ(shown("WILowText(0)"), "10.0");
    EXPECT_EQ(shown("WIHighText(3)"), "12.0");
    EXPECT_EQ(shown("WITieText(1)"), "0.70");
    what->click("WIGroundOption(2)");
    EXPECT_EQ(shown("WIHighText(0)"), "40.0");
    EXPECT_EQ(shown("WITieText(1)"), "0.00");
    EXPECT_EQ(shown("WILowText(4)"), "15.0");
}

TEST_F(WhatIfWindow, KnowsTheGroundAsTypedOnceOneOfItsSpreadsIsTyped) {
    for (const char* field : {"WILowText(0)", "WIHighText(3)", "WITieText(1)"}) {
        what->click("WIGroundOption(1)");
        enter(field, "0.5");
        EXPECT_EQ(held("knowledge"), 3) << field;
        EXPECT_FALSE(what->control("WIGroundOption(1)").checked()) << field;
    }
    what->click("WIGroundOption(1)");
    enter("WILowText(4)", "1");
    EXPECT_EQ(held("knowledge"), 1);
}

/// The office needs 8296.949 ft in cooling and 3458.519 in heating, worked apart from the program,
/// calculated or not.
TEST_F(WhatIfWindow, TellsWhatTheDesignNeedsWithoutCalculate) {
    EXPECT_NEAR(held("needLength(0)"), 8296.949, 1e-3);
    EXPECT_NEAR(held("needLength(1)"), 3458.519, 1e-3);
    EXPECT_NEAR(held("needGoverning"), 8296.949, 1e-3);
    EXPECT_EQ(captioned("WINeedLabel(0)"), "8296.9");
    EXPECT_EQ(captioned("WIBoreLabel"), "276.6 ft");
    typeAndLeave("PASeparationText", "12");
    EXPECT_NEAR(held("needGoverning"), 10298.77, 0.01);
}

TEST_F(WhatIfWindow, TellsHowSureTheDrawnDepthIs) {
    what->choose("WITabs", 1);
    enter("WIDepthText", "300");
    EXPECT_NEAR(held("holds"), 0.678, 0.005);
    EXPECT_EQ(captioned("WIQuestionLabel"), "68 of 100: 30 bores of 300 ft");
    enter("WIDepthText", "2000");
    EXPECT_EQ(captioned("WIQuestionLabel"), "more than 99 of 100: 30 bores of 2000 ft");
    enter("WIDepthText", "20");
    EXPECT_EQ(captioned("WIQuestionLabel"), "fewer than 1 of 100: 30 bores of 20 ft");
}

TEST_F(WhatIfWindow, CostsTheDesignAtItsDrawnDepth) {
    enter("WIDepthText", "320");
    // 30 x 320 x 14 + 30 x 200 + 5000 + 10 x (29 x 20 + 50)
    EXPECT_NEAR(held("firstCost"), 151'700, 1e-6);
    EXPECT_NEAR(held("costPart(0)"), 134'400, 1e-6);
}

TEST_F(WhatIfWindow, HasNoFigureWithoutLoadsAndSaysWhy) {
    takeZones({});
    EXPECT_EQ(held("needGoverning"), 0);
    EXPECT_EQ(held("holds"), 0);
    EXPECT_EQ(captioned("WINeedLabel(0)"), "-");
    EXPECT_EQ(captioned("WIQuestionLabel"), "-");
    EXPECT_FALSE(captioned("WIMessageLabel").empty());
    EXPECT_EQ(what->descriptionOf("imgTornado"), captioned("WIMessageLabel"));
    EXPECT_TRUE(platform.messages.empty());
}

// The land.

TEST_F(WhatIfWindow, PastesAnOutlineAndAreasWithoutBores) {
    platform.clipboardText =
        "0\t0\r\n100\t0\r\n100\t80\r\n0\t80\r\n\r\n10\t10\r\n20\t10\r\n15\t20\r\n";
    what->click("WLPasteCommand");
    EXPECT_EQ(inputs().land.corner.size(), 4U);
    EXPECT_EQ(held("noGoCount"), 1);
    EXPECT_DOUBLE_EQ(held("landArea"), 8'000);  // the areas are not deducted
    EXPECT_EQ(what->control("WLCornerList").items().size(), 7U);
    what->click("WLRectangleCommand");
    EXPECT_DOUBLE_EQ(held("landArea"), 60'000);  // 300 x 200
}

TEST_F(WhatIfWindow, ChangesNothingForWhatIsNoLand) {
    const struct {
        const char *text, *fault;
    } cases[] = {{"0\t0\n100\t0\nhere\t80\n", "line 3"},
                 {"0\t0\n100\t0\n", "outline has too few"},
                 {"0\t0\n9\t0\n9\t9\n\n1\t1\n2\t2\n", "area 1 has too few"},
                 {"0\t0\n9\t9\n9\t0\n0\t9\n", "outline crosses"},
                 {"", "outline has too few"}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.text);
        platform.clipboardText = each.text;
        what->click("WLPasteCommand");
        EXPECT_EQ(inputs().land, LandValues{});
        EXPECT_EQ(what->control("WLMessageLabel").caption(), each.fault);
    }
}

TEST_F(WhatIfWindow, TakesPastedLandInItsOwnUnit) {
    inMetric();
    platform.clipboardText = "0\t0\n30.48\t0\n30.48\t30.48\n";
    what->click("WLPasteCommand");
    EXPECT_NEAR(inputs().land.corner[1].x, 100, 1e-9);
}

TEST_F(WhatIfWindow, MakesAnOutlineOfARectangleWhoseCornerIsTyped) {
    what->choose("WLCornerList", 2);
    EXPECT_EQ(shown("WLCornerXText"), "300.0");
    enter("WLCornerXText", "250");
    ASSERT_EQ(inputs().land.corner.size(), 4U);
    EXPECT_EQ(inputs().land.corner[2], (Point{250, 200}));
    design->undo();
    EXPECT_TRUE(inputs().land.corner.empty());
}

TEST_F(WhatIfWindow, SaysAtOnceWhenATypedCornerMakesSidesCross) {
    what->choose("WITabs", 2);
    what->choose("WLCornerList", 2);
    // From (300, 0) to (-50, 100) a side runs through the one from (0, 200) to (0, 0).
    enter("WLCornerXText", "-50");
    enter("WLCornerYText", "100");
    EXPECT_EQ(captioned("WLMessageLabel"), texts.text(Text::layoutOutlineCrosses));
    EXPECT_EQ(what->descriptionOf("imgLand"), captioned("WLMessageLabel"));
    EXPECT_EQ(held("landArea"), 0);
    enter("WLCornerXText", "250");
    EXPECT_EQ(captioned("WLMessageLabel"), "");
}

// The search. Nobody works between two actions here, so it ends with its click.

TEST_F(WhatIfWindow, FindsFieldsAndChoosesTheCheapest) {
    what->click("WLSearchCommand");
    EXPECT_EQ(held("layoutCount"), 20);
    for (int n = 1; n < 20; ++n)
        EXPECT_GE(held("layoutCost(" + std::to_string(n) + ")"),
                  held("layoutCost(" + std::to_string(n - 1) + ")"));
    EXPECT_EQ(what->control("WLList").index(), 0);
    EXPECT_DOUBLE_EQ(held("layoutLength(0)"), held("layoutDepth(0)") * held("layoutBores(0)"));
    EXPECT_TRUE(what->control("WLTakeCommand").enabled());
}

TEST_F(WhatIfWindow, TakesAFieldOverInOneStep) {
    what->click("WLSearchCommand");
    const double rows = held("layoutRows(0)"), columns = held("layoutColumns(0)");
    const ArrangementValues before = design->project().arrangement;
    what->click("WLTakeCommand");
    EXPECT_EQ(value("patternRows(0)"), rows);
    EXPECT_EQ(value("patternRows(1)"), columns);
    EXPECT_EQ(value("boreSeparation"), held("layoutSpacing(0)"));
    EXPECT_EQ(textOf("PAPatternRowsText(0)"), formatNumber(rows, "###0"));
    EXPECT_TRUE(design->isStale());
    design->undo();
    EXPECT_EQ(design->project().arrangement, before);
}

TEST_F(WhatIfWindow, SaysWhenInputsHaveChangedSinceTheSearch) {
    what->click("WLSearchCommand");
    EXPECT_EQ(captioned("WLStateLabel"), "");
    enter("WLMostDepthText", "350");
    EXPECT_NE(captioned("WLStateLabel"), "");
    EXPECT_EQ(held("layoutCount"), 20);
    enter("WLMostDepthText", "400");
    EXPECT_EQ(captioned("WLStateLabel"), "");
}

TEST_F(WhatIfWindow, SaysSoWhateverTheSearchCameFromHasChanged) {
    const std::string text = texts.text(Text::whatIfInputsChanged);
    enter("WLStepText", "5");
    what->click("WLSearchCommand");
    design->click("CASecondOpinionCommand");
    ChildWindow& opinion = *main.find("frmSecondOpinion");
    const struct {
        ChildWindow* window;
        const char *field, *typed;
    } changes[] = {{design, "FLInletTempText(0)", "88"}, {design, "FLFlowRateText", "2.7"},
                   {design, "SOGroundTempText", "59"},   {design, "SOThermalConductivityText", "1"},
                   {design, "PATimeText", "15"},         {what, "WLAcrossText", "280"},
                   {what, "WLBoundaryText", "11"},       {what, "WLFromText", "16"},
                   {what, "WLMarginText", "5"},          {what, "WLMostText", "300"},
                   {what, "WCFootText", "15"},           {what, "WCTrenchText", "0"},
                   {&opinion, "SEPulseText", "6"},       {&opinion, "SEBuriedDepthText", "5"}};
    for (const auto& each : changes) {
        SCOPED_TRACE(each.field);
        each.window->type(each.field, each.typed);
        each.window->leave(each.field);
        EXPECT_EQ(captioned("WLStateLabel"), text);
        design->undo();
        EXPECT_EQ(captioned("WLStateLabel"), "");
    }
    for (const char* option : {"WLKindOption(1)", "WIMeasureOption(1)"}) {
        SCOPED_TRACE(option);
        what->click(option);
        EXPECT_EQ(captioned("WLStateLabel"), text);
        design->undo();
        EXPECT_EQ(captioned("WLStateLabel"), "");
    }
    platform.clipboardText = "0\t0\n300\t0\n300\t190\n0\t200\n";
    what->click("WLPasteCommand");
    EXPECT_EQ(captioned("WLStateLabel"), text);
    what->click("WLRectangleCommand");
    EXPECT_EQ(captioned("WLStateLabel"), "");
    takeZones(handCheckZones());
    EXPECT_EQ(captioned("WLStateLabel"), text);
}

TEST_F(WhatIfWindow, SaysNothingOfInputsThatTheSearchDoesNotComeFrom) {
    enter("WLStepText", "5");
    what->click("WLSearchCommand");
    design->click("CASecondOpinionCommand");
    ChildWindow& opinion = *main.find("frmSecondOpinion");
    typeAndLeave("PAPatternRowsText(0)", "9");
    typeAndLeave("PASeparationText", "17");
    typeAndLeave("INProjectNameText", "School");
    enter("WILowText(0)", "33");
    enter("WIDepthText", "250");
    opinion.type("SEYearsText", "30");
    opinion.type("SEDepthText", "300");
    EXPECT_EQ(captioned("WLStateLabel"), "");
}

TEST_F(WhatIfWindow, FollowsWindowsThatComeAndGo) {
    what->choose("WITabs", 4);
    EXPECT_EQ(captioned("WVHeadLabel(1)"), "");
    main.click("NewBorehole");
    ChildWindow& other = *main.activeWindow();
    EXPECT_EQ(captioned("WVHeadLabel(1)"), other.caption());
    main.close(other);
    EXPECT_TRUE(what->isBehind());
    EXPECT_EQ(captioned("WVHeadLabel(1)"), "");
}

/// The field that the keyboard was sent to last.
class Focus : public FormObserver {
 public:
    explicit Focus(Form& form) { form.addObserver(this); }

    void propertyChanged(Control& control, Property property) override {
        if (property == Property::focus) field = control.name();
    }
    void captionChanged(Form&) override {}
    void settled(Form&) override {}

    std::string field;
};

TEST_F(WhatIfWindow, PutsTheFieldOfALeverInFocusInItsDesign) {
    what->catchUp();
    const Focus focus(*design);
    std::set<std::string> pointed;
    for (std::size_t bar = 0; bar < what->tornadoPicture().bars.size(); ++bar) {
        const TornadoPicture::Bar of = what->tornadoPicture().bars[bar];
        if (!of.lever) continue;
        main.activate(*what);
        what->pointAtBar(bar);
        EXPECT_EQ(main.activeWindow(), design);
        // Limits of the fluid and its flow, distance and years.
        constexpr const char* fields[] = {"FLInletTempText(0)", "FLInletTempText(1)",
                                          "PASeparationText", "PATimeText", "FLFlowRateText"};
        EXPECT_EQ(focus.field, fields[of.index]);
        pointed.insert(fields[of.index]);
    }
    EXPECT_EQ(pointed.size(), 5U);
}

TEST_F(WhatIfWindow, CopiesTheBoresOfTheChosenField) {
    what->click("WLSearchCommand");
    what->click("WLCopyCommand");
    const std::string& copied = platform.clipboardText;
    EXPECT_EQ(static_cast<double>(std::count(copied.begin(), copied.end(), '\n')),
              held("layoutBores(0)"));
    EXPECT_TRUE(copied.starts_with("10.00\t10.00\r\n")) << copied;
}

// Alternatives and the tower.

TEST_F(WhatIfWindow, KeepsAnAlternativeAndPutsItBackInOneStep) {
    what->choose("WITabs", 4);
    what->click("WVKeepCommand");
    EXPECT_EQ(held("altCount"), 2);
    EXPECT_EQ(heldText("altName(1)"), "Alternative 2");
    EXPECT_NEAR(held("altLength(1)"), 8296.949, 1e-3);
    typeAndLeave("PASeparationText", "12");
    EXPECT_NEAR(held("altLength(0)"), 10298.77, 0.01);
    EXPECT_NEAR(held("altLength(1)"), 8296.949, 1e-3);
    what->catchUp();
    what->choose("WVList", 0);
    EXPECT_FALSE(what->control("WVRestoreCommand").enabled());
    what->choose("WVList", 1);
    EXPECT_TRUE(what->control("WVRestoreCommand").enabled());
    enter("WILowText(4)", "33");
    what->click("WVRestoreCommand");
    EXPECT_EQ(value("boreSeparation"), 20);
    EXPECT_EQ(inputs().spreads.low[coolingLoads], 33);
    EXPECT_EQ(inputs().alternatives.size(), 1U);
    EXPECT_EQ(design->project().loads.zoneNumber, 1);
    design->undo();
    EXPECT_EQ(value("boreSeparation"), 12);
}

TEST_F(WhatIfWindow, SaysHowManyAlternativesFindNoPlaceInTheTable) {
    texts.known.insert({Text::whatIfMoreAlternatives, "%1 of %2"});
    what->choose("WITabs", 4);
    constexpr std::size_t columns = frmWhatIf::alternativeColumns;
    // The design itself stands in the first column.
    for (std::size_t kept = 1; kept < columns; ++kept) what->click("WVKeepCommand");
    EXPECT_EQ(captioned("WVReasonLabel"), "");
    EXPECT_NE(captioned(elementName("WVLengthLabel", columns - 1)), "");
    what->click("WVKeepCommand");
    EXPECT_EQ(captioned("WVReasonLabel"), "16 of 17");
    EXPECT_EQ(what->control("WVList").items().size(), columns + 1);
}

TEST_F(WhatIfWindow, RemovesAnAlternativeThatWasKept) {
    what->type("WVNameText", "Wide");
    what->click("WVKeepCommand");
    EXPECT_EQ(heldText("altName(1)"), "Wide");
    what->choose("WITabs", 4);
    what->catchUp();
    what->choose("WVList", 1);
    what->click("WVRemoveCommand");
    EXPECT_EQ(held("altCount"), 1);
}

TEST_F(WhatIfWindow, SetsTheTowerByTheSliderOfTheDesign) {
    calculate();
    what->choose("WITabs", 5);
    EXPECT_EQ(held("towerBest"), 44);
    EXPECT_EQ(held("towerBestFirst"), 45);
    what->catchUp();
    ASSERT_TRUE(what->control("WTTakeCommand").enabled());
    what->click("WTTakeCommand");
    EXPECT_EQ(value("hybridPercent"), 44);
    EXPECT_EQ(design->control("CAHybridSlider").value(), 44);
    design->undo();
    EXPECT_EQ(value("hybridPercent"), 0);
}

TEST_F(WhatIfWindow, SetsTheTowerThoughNobodyHasReadWhichIsBest) {
    calculate();
    what->choose("WITabs", 5);
    const Control& command = what->control("WTTakeCommand");
    ASSERT_TRUE(command.isLate());
    what->catchUp(command);
    EXPECT_TRUE(command.enabled());
    what->click("WTTakeCommand");
    EXPECT_EQ(value("hybridPercent"), 44);
}

TEST_F(WhatIfWindow, FindsWhatIsReadOfAPageThatIsNotInFront) {
    what->choose("WITabs", 2);
    enter("WIDepthText", "300");
    what->catchUp(what->control("WIQuestionLabel"));
    EXPECT_EQ(what->control("WIQuestionLabel").caption(), "68 of 100: 30 bores of 300 ft");
    EXPECT_EQ(what->control("WCResultLabel(0)").caption(), "-");
    what->catchUp(what->control("WCResultLabel(0)"));
    // 30 x 300 x 14 + 30 x 200 + 5000 + 10 x (29 x 20 + 50)
    EXPECT_EQ(what->control("WCResultLabel(0)").caption(), "$143,300");
    what->catchUp(what->control("imgTornado"));
    EXPECT_FALSE(what->tornadoPicture().bars.empty());
    what->catchUp(what->control("WTBestLabel"));
    EXPECT_EQ(what->towerPicture().best, std::size_t{44});
}

TEST_F(WhatIfWindow, ComputesNothingThatItsPageDoesNotShow) {
    what->choose("WITabs", 2);
    what->catchUp();
    EXPECT_EQ(what->control("WCResultLabel(0)").caption(), "-");
    what->choose("WITabs", 3);
    what->catchUp();
    EXPECT_NE(what->control("WCResultLabel(0)").caption(), "-");
}

}  // namespace
}  // namespace varnholt
