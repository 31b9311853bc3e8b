// SPDX-License-Identifier: GPL-3.0-or-later
// The window of the second opinion: its life, its fields, what belongs to its design.
#include <cmath>

#include "basis/number_text.h"
#include "forms/text_numbers/second_opinion.h"
#include "loads/import/frmImport1.h"
#include "second_opinion_window.h"

namespace varnholt {
namespace {

TEST_F(SecondOpinionWindow, StandsOnceForADesign) {
    EXPECT_EQ(main.windows().size(), 2U);
    main.activate(*design);
    EXPECT_EQ(open(), opinion);
    EXPECT_EQ(main.windows().size(), 2U);
    EXPECT_EQ(main.activeWindow(), opinion);
}

TEST_F(SecondOpinionWindow, IsNumberedAsItIsOpened) {
    main.click("NewBorehole");
    auto* second = dynamic_cast<frmBHDesign*>(main.activeWindow());
    second->click("CASecondOpinionCommand");
    EXPECT_EQ(main.numberOf(*opinion), 1);
    EXPECT_EQ(main.numberOf(*main.activeWindow()), 2);
}

TEST_F(SecondOpinionWindow, SaysWhatAPeakOfNoHoursMeans) {
    EXPECT_EQ(opinion->control("SEPulseText").tooltip(),
              "[" + std::to_string(Text::opinionPulseTip) + "]");
}

TEST_F(SecondOpinionWindow, ClosesWithItsDesignAndAsksNothing) {
    EXPECT_TRUE(main.close(*design));
    EXPECT_TRUE(main.windows().empty());
    EXPECT_TRUE(platform.questions.empty());
}

TEST_F(SecondOpinionWindow, CanBeOpenedAgainAfterItWasClosed) {
    EXPECT_TRUE(main.close(*opinion));
    EXPECT_EQ(main.windows().size(), 1U);
    opinion = open();
    ASSERT_NE(opinion, nullptr);
    EXPECT_EQ(main.activeWindow(), opinion);
}

TEST_F(SecondOpinionWindow, IsCalledAfterTheFileOrTheProject) {
    EXPECT_EQ(opinion->caption(), "Second Opinion - " + design->caption());
    design->type("INProjectNameText", "School");
    EXPECT_EQ(opinion->caption(), "Second Opinion - School");
    design->setFile("projects/school.vht");
    design->type("INProjectNameText", "Another");
    EXPECT_EQ(opinion->caption(), "Second Opinion - school.vht");
}

TEST_F(SecondOpinionWindow, FollowsTheUnitsOfItsDesign) {
    EXPECT_EQ(shown("SEBuriedDepthText"), "4.0");
    EXPECT_EQ(shown("SEDepthText"), "250.0");
    inMetric();
    // 4 ft x 0.3048 = 1.2192 m; 250 ft x 0.3048 = 76.2 m.
    EXPECT_EQ(shown("SEBuriedDepthText"), "1.2");
    EXPECT_EQ(shown("SEDepthText"), "76.2");
    EXPECT_EQ(opinion->units(), UnitSystem::metric);
    EXPECT_EQ(inputs(), SecondOpinionInputs{});
}

TEST_F(SecondOpinionWindow, SwitchesTheUnitsOfItsDesignByTheMenu) {
    main.click("Metric");
    EXPECT_EQ(design->units(), UnitSystem::metric);
    EXPECT_EQ(shown("SEBuriedDepthText"), "1.2");
    // The menu's mark follows the design though the second opinion is in front.
    design->switchUnits(UnitSystem::english);
    EXPECT_TRUE(main.control("English").checked());
}

struct OpinionFieldCase {
    const char* field;
    const char* typed;
    double stored;
    const char* text;
};

/// As the field holds it while it stands in it, and as it is left.
TEST_F(SecondOpinionWindow, RefusesWhatIsOutOfRange) {
    const OpinionFieldCase cases[] = {{"SEBuriedDepthText", "0", 0, "0.0"},
                                      {"SEBuriedDepthText", "100", 100, "100.0"},
                                      {"SEBuriedDepthText", "100.1", 4, "4.0"},
                                      {"SEBuriedDepthText", "-1", 4, "4.0"},
                                      {"SEBuriedDepthText", "", 4, "4.0"},
                                      {"SEPulseText", "1", 1, "1.0"},
                                      {"SEPulseText", "24", 24, "24.0"},
                                      {"SEPulseText", "24.1", 0, "0.0"},
                                      {"SEPulseText", "0.5", 0, "0.0"},
                                      {"SEPulseText", "-1", 0, "0.0"},
                                      {"SEPulseText", "", 0, "0.0"},
                                      {"SEYearsText", "1", 1, "1"},
                                      {"SEYearsText", "50", 50, "50"},
                                      {"SEYearsText", "51", 20, "20"},
                                      {"SEYearsText", "0", 20, "20"},
                                      {"SEYearsText", "", 20, "20"},
                                      {"SEDepthText", "10", 10, "10.0"},
                                      {"SEDepthText", "9.9", 250, "250.0"},
                                      {"SEDepthText", "2000", 2000, "2000.0"},
                                      {"SEDepthText", "2001", 250, "250.0"},
                                      {"SEDepthText", "-5", 250, "250.0"},
                                      {"SEDepthText", "", 250, "250.0"},
                                      {"SECoolingEnergyText(3)", "-2", 0, "0.0"}};
    const std::map<std::string, std::string> values{{"SEBuriedDepthText", "buriedDepth"},
                                                    {"SEPulseText", "pulseHours"},
                                                    {"SEYearsText", "yearsShown"},
                                                    {"SEDepthText", "typedDepth"},
                                                    {"SECoolingEnergyText(3)", "monthEnergy(3,0)"}};
    for (const OpinionFieldCase& each : cases) {
        SCOPED_TRACE(std::string(each.field) + " " + each.typed);
        enter(each.field, each.typed);
        EXPECT_EQ(held(values.at(each.field)), each.stored);
        EXPECT_EQ(shown(each.field), each.text);
    }
}

TEST_F(SecondOpinionWindow, LetsADepthBeTypedFigureByFigure) {
    opinion->type("SEDepthText", "3");
    EXPECT_EQ(held("typedDepth"), 3);
    EXPECT_EQ(shown("SEDepthText"), "3");
    opinion->type("SEDepthText", "31");
    opinion->leave("SEDepthText");
    EXPECT_EQ(held("typedDepth"), 31);
    opinion->type("SEDepthText", "2001");
    EXPECT_EQ(held("typedDepth"), 250);
}

TEST_F(SecondOpinionWindow, DrawsForTheDepthThatIsTyped) {
    EXPECT_TRUE(opinion->control("SEDepthOption(1)").checked());
    enter("SEDepthText", "300");
    EXPECT_EQ(held("depthChoice"), 2);
    EXPECT_TRUE(opinion->control("SEDepthOption(2)").checked());
    EXPECT_FALSE(opinion->control("SEDepthOption(1)").checked());
    opinion->click("SEDepthOption(0)");
    EXPECT_EQ(held("depthChoice"), 0);
}

TEST_F(SecondOpinionWindow, TakesTheShapeOfTypedMonths) {
    opinion->choose("SEShapeCombo", 1);
    EXPECT_EQ(held("shape"), 1);
    enter("SEHeatingPeakText(11)", "4.5");
    EXPECT_EQ(held("shape"), 2);
    EXPECT_EQ(opinion->control("SEShapeCombo").index(), 2);
    EXPECT_EQ(held("monthTop(11,1)"), 4.5);
    enter("SECoolingEnergyText(0)", "7");
    enter("SEHeatingEnergyText(0)", "8");
    enter("SECoolingPeakText(0)", "9");
    EXPECT_EQ(inputs().monthEnergy[0], (ByMode<double>{7, 8}));
    EXPECT_EQ(inputs().monthTop[0][cooling], 9);
}

TEST_F(SecondOpinionWindow, KeepsMonthsAsTheyAreInBothSystems) {
    enter("SECoolingEnergyText(6)", "12.5");
    inMetric();
    EXPECT_EQ(shown("SECoolingEnergyText(6)"), "12.5");
    EXPECT_EQ(held("monthEnergy(6,0)"), 12.5);
}

TEST_F(SecondOpinionWindow, ReadsMetricFieldsInMetricWindows) {
    inMetric();
    enter("SEBuriedDepthText", "2");
    // 2 m / 0.3048 = 6.5617 ft.
    EXPECT_NEAR(held("buriedDepth"), 2 / 0.3048, 1e-12);
    EXPECT_EQ(shown("SEBuriedDepthText"), "2.0");
}

TEST_F(SecondOpinionWindow, MarksTheDesignChangedAndNotStale) {
    takeZones(handCheckZones());
    calculate();
    design->noteSaved();
    ASSERT_FALSE(design->isChanged());
    enter("SEBuriedDepthText", "6");
    EXPECT_TRUE(design->isChanged());
    EXPECT_FALSE(design->isStale());
    EXPECT_FALSE(design->showsOlderResults());
}

TEST_F(SecondOpinionWindow, IsUndoneInItsDesignByTheMenu) {
    enter("SEBuriedDepthText", "6");
    opinion->click("SESouthCheck");
    EXPECT_EQ(main.control("mnuUndo").caption(), "Undo [2659]");
    main.click("mnuUndo");
    EXPECT_FALSE(inputs().southern);
    EXPECT_FALSE(opinion->control("SESouthCheck").checked());
    EXPECT_EQ(shown("SEBuriedDepthText"), "6.0");
    main.click("mnuUndo");
    EXPECT_EQ(inputs(), SecondOpinionInputs{});
    EXPECT_EQ(shown("SEBuriedDepthText"), "4.0");
    EXPECT_FALSE(design->isChanged());
    main.click("mnuRedo");
    EXPECT_EQ(inputs().buriedDepth, 6);
    EXPECT_EQ(shown("SEBuriedDepthText"), "6.0");
}

TEST_F(SecondOpinionWindow, MakesTheTypingInAFieldOneStep) {
    opinion->type("SECoolingEnergyText(5)", "1");
    opinion->type("SECoolingEnergyText(5)", "12");
    opinion->type("SECoolingEnergyText(5)", "120");
    opinion->leave("SECoolingEnergyText(5)");
    main.click("mnuUndo");
    EXPECT_EQ(inputs(), SecondOpinionInputs{});
    EXPECT_EQ(opinion->control("SEShapeCombo").index(), 0);
    EXPECT_FALSE(main.control("mnuUndo").enabled());
}

TEST_F(SecondOpinionWindow, IsUndoneFromItsDesignToo) {
    enter("SEPulseText", "6");
    main.activate(*design);
    main.click("mnuUndo");
    EXPECT_EQ(shown("SEPulseText"), "0.0");
    EXPECT_EQ(inputs(), SecondOpinionInputs{});
}

std::string lineOf(const char* cells) { return std::string(cells) + "\r\n"; }

/// Twelve months, month m with m+1 in every column but its tenths.
std::string twelveLines() {
    std::string text;
    for (int month = 1; month <= 12; ++month) {
        const std::string m = std::to_string(month);
        text += m + ".1\t" + m + ".2\t" + m + ".3\t" + m + ".4\r\n";
    }
    return text;
}

TEST_F(SecondOpinionWindow, TakesTwelveLinesFromTheClipboard) {
    platform.clipboardText =
        "\r\n" + twelveLines() + " \t \r\n" + lineOf("no\tnumber\there\tat all");
    opinion->click("SEPasteCommand");
    EXPECT_EQ(captioned("SEMessageLabel").find("bad"), std::string::npos);
    EXPECT_EQ(inputs().shape, 2);
    EXPECT_EQ(opinion->control("SEShapeCombo").index(), 2);
    EXPECT_EQ(inputs().monthEnergy[0], (ByMode<double>{1.1, 1.2}));
    EXPECT_EQ(inputs().monthTop[11], (ByMode<double>{12.3, 12.4}));
    EXPECT_EQ(shown("SEHeatingPeakText(11)"), "12.4");
    main.click("mnuUndo");
    EXPECT_EQ(inputs(), SecondOpinionInputs{});
}

TEST_F(SecondOpinionWindow, ReplacesAllMonthsByWhatIsPasted) {
    enter("SECoolingPeakText(7)", "99");
    platform.clipboardText = twelveLines();
    opinion->click("SEPasteCommand");
    EXPECT_EQ(inputs().monthTop[7][cooling], 8.3);
}

TEST_F(SecondOpinionWindow, TakesNothingFromFewerLinesAndSaysSo) {
    const std::string twelve = twelveLines();
    platform.clipboardText = twelve.substr(0, twelve.find("12.1"));
    opinion->click("SEPasteCommand");
    EXPECT_EQ(inputs(), SecondOpinionInputs{});
    EXPECT_EQ(captioned("SEMessageLabel"), "only 11 lines");
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_FALSE(main.control("mnuUndo").enabled());
    // The next action takes the sentence away.
    opinion->click("SESouthCheck");
    EXPECT_NE(captioned("SEMessageLabel"), "only 11 lines");
}

TEST_F(SecondOpinionWindow, TakesNothingFromALineThatIsNotFourNumbers) {
    for (const char* bad : {"1\t2\t3\tx", "1\t2\t3", "1\t2\t3\t4\t5", "1\t\t3\t4", "1;2;3;4",
                            "1\t2\t3\t1e999", "\t1\t2\t3\t4"}) {
        SCOPED_TRACE(bad);
        platform.clipboardText =
            twelveLines().replace(0, std::string("1.1\t1.2\t1.3\t1.4").size(), bad);
        opinion->click("SEPasteCommand");
        EXPECT_EQ(inputs(), SecondOpinionInputs{});
        EXPECT_EQ(captioned("SEMessageLabel"), "line 1 is bad");
    }
}

TEST_F(SecondOpinionWindow, TakesNegativeMonthsForZeroAsItsFieldsDo) {
    platform.clipboardText = twelveLines().replace(0, 3, "-5");
    opinion->click("SEPasteCommand");
    EXPECT_EQ(inputs().monthEnergy[0], (ByMode<double>{0, 1.2}));
}

TEST_F(SecondOpinionWindow, CopiesTypedMonthsAsTheyCanBePastedAgain) {
    platform.clipboardText = twelveLines();
    opinion->click("SEPasteCommand");
    const SecondOpinionInputs pasted = inputs();
    opinion->click("SECopyCommand");
    EXPECT_TRUE(platform.clipboardText.starts_with("1.1\t1.2\t1.3\t1.4\r\n2.1\t"))
        << platform.clipboardText;
    // Behind the months the table of years, with its heads: 12 + 1 + 1 + 5 lines.
    EXPECT_EQ(std::count(platform.clipboardText.begin(), platform.clipboardText.end(), '\n'), 19);
    enter("SECoolingPeakText(7)", "99");
    opinion->click("SEPasteCommand");
    EXPECT_EQ(inputs(), pasted);
}

TEST_F(SecondOpinionWindow, ShowsDashesAndZerosWithoutLoads) {
    EXPECT_EQ(held("soLength(0)"), 0);
    EXPECT_EQ(held("shownDepth"), 0);
    EXPECT_EQ(held("gPenalty(4)"), 0);
    EXPECT_EQ(held("lengthPart(2,1)"), 0);
    for (const char* label : {"SELengthLabel(0)", "SEBoreDepthLabel(1)", "SEDifferenceLabel(0)",
                              "SEMonthLabel(1)", "SECoolingPartLabel(0)", "SEHeatingPartLabel(2)",
                              "SEPenaltyLabel(0)", "SEHighLabel(4)", "SELowLabel(2)"})
        EXPECT_EQ(captioned(label), "-") << label;
    EXPECT_EQ(captioned("SEYearLabel(3)"), "20");
    EXPECT_EQ(captioned("SEMessageLabel"), "[2730]");
    EXPECT_EQ(opinion->descriptionOf("imgHistory"), "[2730]");
    design->catchUp();
    EXPECT_EQ(captionOf("CASecondLengthLabel(0)"), "-");
    EXPECT_EQ(value("secondLength(0)"), 0);
    EXPECT_EQ(value("secondDepth(1)"), 0);
}

TEST_F(SecondOpinionWindow, ChoosesTheYearWhoseMonthsAreShown) {
    enter("SEYearsText", "7");
    opinion->catchUp();
    opinion->slide("SEYearUpDown", 9);
    EXPECT_EQ(opinion->control("SEYearUpDown").value(), 7);
    enter("SEYearsText", "5");
    opinion->catchUp();
    EXPECT_EQ(opinion->control("SEYearUpDown").value(), 0);
    EXPECT_FALSE(design->isStale() && inputs().yearsShown != 5);
}

/// What would take long waits until somebody reads it.
TEST_F(SecondOpinionWindow, IsFoundWhenItIsRead) {
    takeZones(handCheckZones());
    type("SOGroundTempText", "61");
    EXPECT_TRUE(design->isBehind());
    EXPECT_TRUE(opinion->isBehind());
    const std::string before = captionOf("CASecondLengthLabel(0)");
    EXPECT_EQ(before, "-");
    EXPECT_GT(value("secondLength(0)"), 0);
    EXPECT_TRUE(design->isBehind());
    design->catchUp();
    EXPECT_FALSE(design->isBehind());
    EXPECT_NE(captionOf("CASecondLengthLabel(0)"), before);
}

TEST_F(SecondOpinionWindow, SaysThatItIsOfTheInputsAsTheyStand) {
    takeZones(handCheckZones());
    calculate();
    design->catchUp();
    EXPECT_FALSE(design->control("CASecondStandsLabel").visible());
    type("SOGroundTempText", "61");
    design->catchUp();
    EXPECT_TRUE(design->control("CASecondStandsLabel").visible());
    EXPECT_TRUE(design->control("CASecondOpinionCommand").enabled());
}

/// The row is strong where the governing mode's two figures differ by more than a tenth, whatever
/// the field, and only there.
TEST_F(SecondOpinionWindow, MakesItsRowStrongWhereTheMethodsDiffer) {
    texts.known.insert({{2174, "%1 by %2 (%3 %4)"}, {2645, "field"}, {2175, "plain"}});
    takeZones(handCheckZones());
    int strong = 0, weak = 0;
    for (const char* separation : {"8", "15", "20", "30", "50", "100"}) {
        SCOPED_TRACE(separation);
        typeAndLeave("PASeparationText", separation);
        calculate();
        design->catchUp();
        const Mode governing = value("boreLength(0)") > value("boreLength(1)") ? cooling : heating;
        const std::string index = governing == cooling ? "(0)" : "(1)";
        const double ratio = value("secondLength" + index) / value("boreLength" + index);
        const bool expected = std::abs(ratio - 1) > 0.10;
        const Control& figure = design->control("CASecondLengthLabel" + index);
        EXPECT_EQ(figure.bold(), expected) << ratio;
        EXPECT_EQ(design->control("CASecondDepthLabel(2)").bold(), expected);
        EXPECT_EQ(figure.tooltip() != "plain", expected) << figure.tooltip();
        EXPECT_EQ(figure.forecolor(), colours::black);
        ++(expected ? strong : weak);
    }
    EXPECT_GT(strong, 0);
    EXPECT_GT(weak, 0);
}

TEST_F(SecondOpinionWindow, StandsBesideTheClassicalFiguresOfTheSameInputs) {
    takeZones(handCheckZones());
    calculate();
    EXPECT_EQ(captioned("SEClassicalLabel(0)"), captionOf("CATotalLengthLabel(0)"));
    EXPECT_EQ(captioned("SEClassicalDepthLabel(1)"), captionOf("CABoreholeLengthLabel(1)"));
    EXPECT_EQ(captioned("SELengthLabel(0)"), formatNumber(value("secondLength(0)"), "###0.0"));
    EXPECT_EQ(captioned("SEBoreDepthLabel(0)"), formatNumber(value("secondDepth(0)"), "###0.0"));
    EXPECT_NEAR(value("secondLength(0)"), 24 * value("secondDepth(0)"), 1e-6);
    // The parts add up to the difference.
    for (const Mode mode : modes) {
        const std::string index = std::to_string(mode);
        double sum = 0;
        for (const char* part : {"0", "1", "2"})
            sum += held(std::string("lengthPart(") + part + "," + index + ")");
        EXPECT_NEAR(sum, held("soLength(" + index + ")") - value("boreLength(" + index + ")"),
                    1e-6);
    }
    // A stale design does no harm: the classical figure beside it is of the same inputs.
    const std::string onShow = captionOf("CATotalLengthLabel(0)");
    type("SOGroundTempText", "58");
    EXPECT_NE(captioned("SEClassicalLabel(0)"), onShow);
    EXPECT_EQ(captionOf("CATotalLengthLabel(0)"), onShow);
    calculate();
    EXPECT_EQ(captioned("SEClassicalLabel(0)"), captionOf("CATotalLengthLabel(0)"));
}

TEST_F(SecondOpinionWindow, StandsWithoutTheModeThatHasNoLoad) {
    std::vector<Zone> zones = handCheckZones();
    for (Zone& zone : zones) {
        for (auto& block : zone.gains) block[heating] = 0;
        zone.hours[heating] = 0;
    }
    takeZones(zones);
    EXPECT_GT(held("soLength(0)"), 0);
    EXPECT_EQ(held("soLength(1)"), 0);
    EXPECT_EQ(captioned("SELengthLabel(1)"), "-");
    EXPECT_EQ(captioned("SEDifferenceLabel(0)"), "-");
    EXPECT_EQ(captioned("SECoolingPartLabel(0)"), "-");
    EXPECT_NE(captioned("SEHighLabel(3)"), "-");
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(SecondOpinionWindow, TakesTheImportersMonthsWhileItIsOpen) {
    takeZones(handCheckZones());
    installImporter(main);
    opinion->choose("SEShapeCombo", 1);
    texts.known.insert({{2746, "no importer"}});
    EXPECT_NE(captioned("SEMessageLabel").find("no importer"), std::string::npos);
    main.click("mnuMonthlyLoadsImport");
    auto* importer = dynamic_cast<frmImport1*>(main.activeWindow());
    ASSERT_NE(importer, nullptr);
    EXPECT_NE(captioned("SEMessageLabel").find("no importer"), std::string::npos);
    ByMode<MonthlyLoads> years;
    for (const Mode mode : modes) {
        years[mode].totalLoads = {1, 1, 1, 1, 1, 1, 5, 1, 1, 1, 1, 1};
        years[mode].peakLoads = {500, 500, 500, 500, 500, 500, 1000, 500, 500, 500, 500, 500};
        years[mode].recompute();
    }
    importer->TransferValuesToImport1(years);
    importer->click("cmdCoolHeat(1)");
    // 5 of 16; half the peak.
    EXPECT_EQ(captioned("SEMessageLabel").find("no importer"), std::string::npos);
    EXPECT_NEAR(held("monthShare(6,0)"), 5.0 / 16, 1e-12);
    EXPECT_NEAR(held("monthPeak(2,1)"), 0.5, 1e-12);
    EXPECT_EQ(held("shape"), 1);
    main.close(*importer);
    EXPECT_NE(captioned("SEMessageLabel").find("no importer"), std::string::npos);
}

TEST_F(SecondOpinionWindow, LeavesTheDesignAsItWas) {
    takeZones(handCheckZones());
    calculate();
    const BoreholeProject before = design->project();
    opinion->catchUp();
    EXPECT_GT(held("soLength(0)"), 0);
    EXPECT_TRUE(design->project() == before);
    EXPECT_FALSE(design->isStale());
}

}  // namespace
}  // namespace varnholt
