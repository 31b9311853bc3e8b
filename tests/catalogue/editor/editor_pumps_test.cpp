// SPDX-License-Identifier: GPL-3.0-or-later
// The pumps of a series: adding, copying, removing, ordering, saving.
#include <gtest/gtest.h>

#include "catalogue/editor/editor_fixture.h"

namespace varnholt {
namespace {

class EditorPumps : public EditorTest {};

TEST_F(EditorPumps, AreShownOneByOne) {
    frmHPEdit& window = opened();
    EXPECT_EQ(shown(window, "PumpModelText"), "A1");
    window.type("PumpModelText", "A1x");
    EXPECT_EQ(names(window), (Names{"A1x", "A2", "A3"}));
    EXPECT_EQ(word(window, "PumpList(0).name"), "A1x");
    window.choose("PumpNamesList", 2);
    EXPECT_EQ(shown(window, "PumpModelText"), "A3");
    EXPECT_TRUE(control(window, "PumpTypeOption(0)").checked());
    EXPECT_EQ(shown(window, "CoolingEWTText(0)"), "75.0");
    EXPECT_EQ(shown(window, "CoolingFR1CapacityText(0)"), "30.1");
    EXPECT_EQ(shown(window, "HeatingFR2PowerText(2)"), "2.05");
    EXPECT_EQ(shown(window, "CoolingFlowRateText(1)"), "8.0");
    EXPECT_EQ(shown(window, "CoolingELTText(4)"), "73.0");
    EXPECT_EQ(shown(window, "HeatingCorrectionsPowerFactorText(4)"), "1.090");
    EXPECT_EQ(shown(window, "CoolingCorrectionsCapacityFactorText(9)"), "1.030");
    EXPECT_EQ(shown(window, "HeatingPercentNominalText(0)"), "80");
    EXPECT_EQ(shown(window, "NominalFlowText"), "900");
}

TEST_F(EditorPumps, AfterTheFirstTakeTheirRowsFromTheLast) {
    frmHPEdit& window = opened();
    window.choose("PumpNamesList", 2);
    typeAndLeave(window, "HeatingEWTText(0)", "33");
    window.choose("PumpNamesList", 0);
    typeAndLeave(window, "HeatingEWTText(0)", "31");
    window.click("NewCommand");
    EXPECT_EQ(names(window), (Names{"A1", "A2", "A3", "4 [4246]"}));
    EXPECT_EQ(shown(window, "PumpModelText"), "4 [4246]");
    EXPECT_EQ(shown(window, "HeatingEWTText(0)"), "33.0");
    EXPECT_EQ(shown(window, "HeatingFR1CapacityText(0)"), "0.0");
    EXPECT_EQ(shown(window, "CoolingFlowRateText(0)"), "0.0");
    EXPECT_EQ(word(window, "PumpList(3).mfgInfo.phone"), "555");
    EXPECT_EQ(word(window, "PumpList(3).seriesInfo.FileName"), "f_air");
    EXPECT_TRUE(enabled(window, "SaveCommand"));
    EXPECT_FALSE(window.recalculationNeeded);
}

TEST_F(EditorPumps, AreCopiedWithAllTheirFields) {
    frmHPEdit& window = opened();
    typeAndLeave(window, "CoolingFR1CapacityText(1)", "28.9");
    window.click("CopyCommand");
    EXPECT_EQ(names(window), (Names{"A1", "A2", "A3", "A1[4215]"}));
    EXPECT_EQ(shown(window, "CoolingFR1CapacityText(1)"), "28.9");
    // The copy's curves are those of its data, the original's still are not.
    const double copied = number(window, "PumpList(3).coefficients.capacity(2,0)");
    EXPECT_NE(copied, number(window, "PumpList(0).coefficients.capacity(2,0)"));
    window.choose("PumpNamesList", 0);
    window.click("CalculateCoefficientsCommand(0)");
    EXPECT_EQ(copied, number(window, "PumpList(0).coefficients.capacity(2,0)"));
}

TEST_F(EditorPumps, OfWhichACopyCannotBeFittedTellEachCommandOnce) {
    frmHPEdit& window = opened();
    for (const char* field :
         {"CoolingCorrectionsCapacityFactorText(0)", "HeatingCorrectionsCapacityFactorText(0)",
          "CoolingCorrectionsCapacityFactorText(5)"})
        typeAndLeave(window, field, "0");
    window.click("CopyCommand");
    ASSERT_EQ(platform.messages.size(), 2u);
    for (const auto& message : platform.messages) {
        EXPECT_EQ(message.title, "[4511]");
        EXPECT_EQ(message.text, "[4512]");
        EXPECT_EQ(message.icon, MessageIcon::exclamation);
    }
    EXPECT_EQ(names(window).size(), 4u);
    EXPECT_TRUE(isRed(window, "CoefficientsCalculateCommand(0)"));
    EXPECT_TRUE(isRed(window, "CoefficientsCalculateCommand(1)"));
}

TEST_F(EditorPumps, AreRemovedAfterAQuestion) {
    frmHPEdit& window = opened();
    window.choose("PumpNamesList", 1);
    platform.answers = {Answer::no, Answer::yes, Answer::yes, Answer::yes};
    window.click("RemoveCommand");
    EXPECT_EQ(platform.questions.back().icon, MessageIcon::exclamation);
    EXPECT_EQ(platform.questions.back().title, "[4522]");
    EXPECT_EQ(platform.questions.back().text, "[4521]");
    EXPECT_EQ(names(window).size(), 3u);
    window.click("RemoveCommand");
    // The next pump, and the one before it when the last went.
    EXPECT_EQ(names(window), (Names{"A1", "A3"}));
    EXPECT_EQ(shown(window, "PumpModelText"), "A3");
    window.click("RemoveCommand");
    EXPECT_EQ(shown(window, "PumpModelText"), "A1");
    EXPECT_TRUE(enabled(window, "SaveCommand"));
    window.click("RemoveCommand");
    for (const char* command : {"CopyCommand", "RemoveCommand", "ReorderCommand", "ClearCommand",
                                "SummaryCommand", "SaveCommand", "PumpDataTabs"})
        EXPECT_FALSE(enabled(window, command)) << command;
    EXPECT_TRUE(enabled(window, "NewCommand"));
    EXPECT_EQ(shown(window, "PumpModelText"), "");
    window.undo();
    EXPECT_EQ(names(window), Names{"A1"});
    EXPECT_TRUE(enabled(window, "SaveCommand"));
}

TEST_F(EditorPumps, AreOrderedByNameWhateverTheCase) {
    frmHPEdit& window = opened();
    window.type("PumpModelText", "b");
    window.choose("PumpNamesList", 1);
    window.type("PumpModelText", "C");
    window.choose("PumpNamesList", 2);
    window.type("PumpModelText", "a");
    window.click("SaveCommand");
    window.choose("PumpNamesList", 1);
    window.click("ReorderCommand");
    EXPECT_EQ(names(window), (Names{"a", "b", "C"}));
    EXPECT_EQ(shown(window, "PumpModelText"), "C");
    EXPECT_TRUE(enabled(window, "SaveCommand"));
}

TEST_F(EditorPumps, AreClearedAfterAQuestion) {
    frmHPEdit& window = opened();
    platform.answers = {Answer::no, Answer::yes};
    window.click("ClearCommand");
    EXPECT_EQ(platform.questions.back().title, "[4520]");
    EXPECT_EQ(platform.questions.back().text, "[4519]");
    EXPECT_EQ(names(window).size(), 3u);
    window.click("ClearCommand");
    EXPECT_EQ(names(window), Names{});
    EXPECT_FALSE(enabled(window, "PumpDataTabs"));
    EXPECT_FALSE(enabled(window, "CopyCommand"));
    EXPECT_TRUE(enabled(window, "SaveCommand"));
    window.click("SaveCommand");
    EXPECT_TRUE(onDisk("f_air").models.empty());
    // The first pump of a list has the usual rows.
    window.click("NewCommand");
    EXPECT_EQ(names(window), Names{"1 [4246]"});
    EXPECT_EQ(shown(window, "HeatingEWTText(0)"), "35.0");
}

TEST_F(EditorPumps, HaveASummaryThatOnlySaysThatThereIsNone) {
    frmHPEdit& window = opened();
    EXPECT_EQ(control(window, "SummaryCommand").caption(), "[4206]");
    EXPECT_EQ(control(window, "SummaryCommand").tooltip(), "[4206]");
    window.click("SummaryCommand");
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(platform.told, std::vector<std::string>{"[4535]"});
    EXPECT_FALSE(enabled(window, "SaveCommand"));
}

TEST_F(EditorPumps, AreSavedAsTheyAre) {
    frmHPEdit& window = opened();
    typeAndLeave(window, "NominalFlowText", "1000");
    const std::string indexBefore = readWholeFile(pumpIndexPath(pumps()));
    window.click("SaveCommand");
    EXPECT_FALSE(enabled(window, "SaveCommand"));
    EXPECT_EQ(onDisk("f_air").models[0].nominalFlow, 1000);
    EXPECT_EQ(onDisk("f_air").models.size(), 3u);
    EXPECT_EQ(readWholeFile(pumpIndexPath(pumps())), indexBefore);
    EXPECT_EQ(written, 1);
}

TEST_F(EditorPumps, AreSavedByTheCommandOfTheMenuToo) {
    frmHPEdit& window = opened();
    typeAndLeave(window, "NominalFlowText", "1000");
    EXPECT_TRUE(window.canSave());
    window.save();
    EXPECT_EQ(onDisk("f_air").models[0].nominalFlow, 1000);
    window.save();
    EXPECT_EQ(written, 1);
}

TEST_F(EditorPumps, StayUnsavedWhereTheFileCannotBeWritten) {
    frmHPEdit& window = opened();
    typeAndLeave(window, "NominalFlowText", "1000");
    std::filesystem::remove(seriesFile("f_air"));
    std::filesystem::create_directory(seriesFile("f_air"));
    window.click("SaveCommand");
    EXPECT_NE(lastMessage().find("[4526]\n\n" + seriesFile("f_air")), std::string::npos);
    EXPECT_TRUE(enabled(window, "SaveCommand"));
    EXPECT_EQ(written, 0);
    platform.answers = {Answer::yes};
    EXPECT_FALSE(main.close(window));
}

TEST_F(EditorPumps, OfAnIndexThatNamesAFileElsewhereAreNotWrittenThere) {
    addSeries("Dale", "Stray", "../stray", {"S1"}, 0);
    const std::string before = readWholeFile(seriesFile("../stray"));
    frmHPEdit& window = opened("Dale", "Stray");
    typeAndLeave(window, "NominalFlowText", "1000");
    window.click("SaveCommand");
    EXPECT_EQ(lastMessage(), "[4527]");
    EXPECT_TRUE(enabled(window, "SaveCommand"));
    EXPECT_EQ(readWholeFile(seriesFile("../stray")), before);
}

TEST_F(EditorPumps, TakeTheFileOfAnotherProgramOnlyWhenTheUserSaysSo) {
    frmHPEdit& window = opened();
    typeAndLeave(window, "NominalFlowText", "1000");
    PumpSeries others = onDisk("f_air");
    others.models.pop_back();
    WritePumpSeries(pumps(), others);
    platform.answers = {Answer::no};
    window.click("SaveCommand");
    EXPECT_NE(platform.questions.back().text.find("[4524]"), std::string::npos);
    EXPECT_TRUE(enabled(window, "SaveCommand"));
    EXPECT_EQ(onDisk("f_air").models.size(), 2u);
    platform.answers = {Answer::yes};
    window.click("SaveCommand");
    EXPECT_EQ(onDisk("f_air").models.size(), 3u);
    // Its own writing is no change of another program.
    typeAndLeave(window, "NominalFlowText", "1100");
    window.click("SaveCommand");
    EXPECT_EQ(platform.questions.size(), 2u);
}

TEST_F(EditorPumps, AreWrittenAnewWhereTheirFileIsGone) {
    frmHPEdit& window = opened();
    typeAndLeave(window, "NominalFlowText", "1000");
    std::filesystem::remove(seriesFile("f_air"));
    window.click("SaveCommand");
    EXPECT_TRUE(platform.questions.empty());
    EXPECT_EQ(onDisk("f_air").models.size(), 3u);
}

TEST_F(EditorPumps, BeyondThoseThatASelectionTakesAreKeptWithANotice) {
    std::vector<std::string> many;
    for (int i = 0; i < 102; ++i) many.push_back("M" + std::to_string(i));
    addSeries("Dale", "Many", "f_many", many, 0);
    texts.known[4533] = "%1 of %2";
    frmHPEdit& window = opened("Dale", "Many");
    EXPECT_EQ(names(window).size(), 102u);
    EXPECT_EQ(control(window, "NoticeLabel").caption(), "102 of 101");
    typeAndLeave(window, "NominalFlowText", "1000");
    window.click("SaveCommand");
    EXPECT_EQ(onDisk("f_many").models.size(), 102u);
    platform.answers = {Answer::yes};
    window.click("RemoveCommand");
    EXPECT_FALSE(control(window, "NoticeLabel").visible());
}

TEST_F(EditorPumps, OfAnotherTypeHaveOtherNamesAndUnits) {
    frmHPEdit& window = opened();
    EXPECT_EQ(shown(window, "ELTLabel(0)"), "[4243]");
    EXPECT_EQ(shown(window, "ELTLabel(1)"), "[4244]");
    EXPECT_EQ(shown(window, "NominalFlowRateLabel"), "[2874]");
    EXPECT_EQ(shown(window, "TestLoadELTText(0)"), "67.0");
    EXPECT_EQ(shown(window, "TestLoadELTText(1)"), "70.0");
    window.click("PumpTypeOption(1)");
    EXPECT_EQ(number(window, "PumpList(0).pumpType"), 1);
    EXPECT_TRUE(enabled(window, "SaveCommand"));
    EXPECT_EQ(shown(window, "ELTLabel(0)"), shown(window, "EWTLabel(0)"));
    EXPECT_EQ(shown(window, "ELTLabel(0)"), "[4230]");
    EXPECT_EQ(shown(window, "ELTLabel(1)"), "[4230]");
    EXPECT_EQ(shown(window, "NominalFlowRateLabel"), "[3215]");
    EXPECT_EQ(shown(window, "TestLoadELTText(0)"), "55.0");
    EXPECT_EQ(shown(window, "TestLoadELTText(1)"), "100.0");
    window.click("MetricCheck");
    EXPECT_EQ(shown(window, "NominalFlowRateLabel"), "[3214]");
    EXPECT_EQ(shown(window, "NominalFlowText"), "3406.9");  // 900 x 3.785412
    window.click("PumpTypeOption(0)");
    EXPECT_EQ(shown(window, "NominalFlowRateLabel"), "[2873]");
    EXPECT_EQ(shown(window, "NominalFlowText"), "424.8");  // 900 x 0.4719474
}

TEST_F(EditorPumps, ComeBackByUndoWithTheirButtons) {
    frmHPEdit& window = opened();
    typeAndLeave(window, "CoolingFR1CapacityText(0)", "31");
    EXPECT_TRUE(isRed(window, "CalculateCoefficientsCommand(0)"));
    window.undo();
    EXPECT_EQ(shown(window, "CoolingFR1CapacityText(0)"), "30.1");
    EXPECT_FALSE(isRed(window, "CalculateCoefficientsCommand(0)"));
    EXPECT_FALSE(enabled(window, "SaveCommand"));
    window.redo();
    EXPECT_EQ(shown(window, "CoolingFR1CapacityText(0)"), "31.0");
    EXPECT_TRUE(isRed(window, "CalculateCoefficientsCommand(0)"));
    EXPECT_TRUE(enabled(window, "SaveCommand"));
    window.click("ReorderCommand");
    window.click("NewCommand");
    window.undo();
    EXPECT_EQ(names(window), (Names{"A1", "A2", "A3"}));
}

TEST_F(EditorPumps, CannotBeUndoneIntoAnotherSeries) {
    frmHPEdit& window = opened();
    window.type("PumpModelText", "A1x");
    platform.answers = {Answer::no};
    choose(window, "SeriesCombo", "Water ");
    EXPECT_FALSE(window.history().canUndo());
}

TEST_F(EditorPumps, CountAsSavedWhenOnlyTheTestHasChanged) {
    frmHPEdit& window = opened();
    typeAndLeave(window, "TestSourceEWTText(0)", "80");
    typeAndLeave(window, "TestSourceEWTText(0)", "81");
    window.undo();
    EXPECT_EQ(shown(window, "TestSourceEWTText(0)"), "80.0");
    EXPECT_FALSE(enabled(window, "SaveCommand"));
}

}  // namespace
}  // namespace varnholt
