// SPDX-License-Identifier: GPL-3.0-or-later
// Links are made and ended, undone and redone, from either side; and what one side of a link
// changes in the other is a step there too.
#include "linked_project.h"

namespace varnholt {
namespace {

class UndoOfALink : public LinkedProject {};

TEST_F(UndoOfALink, MadeFromTheDesign) {
    linkFrom(design);
    expectLinked(design, true);
    EXPECT_EQ(undoCaption(), "Undo Link");
    EXPECT_EQ(design.ZoneList().size(), 2U);
    undo();
    expectLinked(design, false);
    expectLoadsNameTheDesign(false);
    EXPECT_EQ(zones.links().designLinkID(), 0);
    EXPECT_EQ(design.ZoneList().size(), 0U);
    EXPECT_EQ(zones.zoneNumber(), 2);
    redo();
    expectLinked(design, true);
    expectLoadsNameTheDesign(true);
    EXPECT_EQ(zones.links().designLinkID(), design.myID);
    EXPECT_EQ(design.ZoneList().size(), 2U);
}

TEST_F(UndoOfALink, MadeFromTheLoads) {
    linkFrom(zones);
    expectLinked(design, true);
    EXPECT_EQ(undoCaption(), "Undo Link");
    undo();
    expectLinked(design, false);
    expectLoadsNameTheDesign(false);
    redo();
    expectLinked(design, true);
    expectLoadsNameTheDesign(true);
}

TEST_F(UndoOfALink, EndedFromTheDesign) {
    linkFrom(design);
    unlinkFrom(design);
    EXPECT_EQ(undoCaption(), "Undo Unlink");
    undo();
    expectLinked(design, true);
    expectLoadsNameTheDesign(true);
    EXPECT_EQ(design.ZoneList().size(), 2U);
    redo();
    expectLinked(design, false);
    EXPECT_EQ(design.ZoneList().size(), 2U);
}

TEST_F(UndoOfALink, EndedFromTheLoads) {
    linkFrom(design);
    unlinkFrom(zones);
    EXPECT_EQ(undoCaption(), "Undo Unlink");
    expectLinked(design, false);
    undo();
    expectLinked(design, true);
    expectLoadsNameTheDesign(true);
    redo();
    expectLinked(design, false);
    expectLoadsNameTheDesign(false);
}

TEST_F(UndoOfALink, IsAStepOfBothSides) {
    linkFrom(design);
    front(zones);
    EXPECT_EQ(undoCaption(), "Undo Link");
    undo();
    expectLinked(design, false);
    EXPECT_EQ(design.ZoneList().size(), 0U);
    front(design);
    EXPECT_EQ(main.control("mnuRedo").caption(), "Redo Link");
    redo();
    expectLinked(design, true);
    EXPECT_EQ(design.ZoneList().size(), 2U);
    unlinkFrom(design);
    undoIn(zones);
    expectLinked(design, true);
}

TEST_F(UndoOfALink, TakesTheStepsBeforeItOneByOne) {
    linkFrom(design);
    zones.type("LOGainsText(1)", "44");
    zones.leave("LOGainsText(1)");
    front(zones);
    undo();
    expectLinked(design, true);
    undo();  // of the link
    undo();  // of the pumps that were selected before it
    EXPECT_EQ(undoCaption(), "Undo [2821], [2827]");
    expectLinked(design, false);
}

TEST_F(UndoOfALink, OfSeveralDesignsMakesThemAllAgain) {
    frmBHDesign& other = newDesign();
    linkFrom(design);
    linkFrom(other);
    unlinkFrom(zones);
    expectLinked(design, false);
    expectLinked(other, false);
    undo();
    expectLinked(design, true);
    expectLinked(other, true);
    redo();
    expectLinked(design, false);
    expectLinked(other, false);
}

TEST_F(UndoOfALink, OfSeveralDesignsIsRedoneInWhateverOrderTheyWereLinked) {
    frmBHDesign& other = newDesign();
    linkFrom(other);
    linkFrom(design);
    unlinkFrom(zones);
    zones.click("LONewCommand");
    undo();
    undo();  // both are linked again, the first one first
    redo();
    redo();
    expectLinked(design, false);
    expectLinked(other, false);
    EXPECT_EQ(zones.zoneNumber(), 3);
}

TEST_F(UndoOfALink, ThatWasNotMadeIsNoStep) {
    unlinkFrom(design);
    EXPECT_EQ(undoCaption(), "Undo");
    linkFrom(design);
    linkFrom(design);  // which it is already
    EXPECT_EQ(undoCaption(), "Undo Link");
    undo();
    EXPECT_EQ(undoCaption(), "Undo");
}

TEST_F(UndoOfALink, WithAWindowThatHasClosedSinceLeavesTheDesignByItself) {
    linkFrom(design);
    unlinkFrom(design);
    platform.answers = {Answer::no};
    main.close(zones);
    front(design);
    undo();
    EXPECT_EQ(design.LoadsHome(), nullptr);
    EXPECT_EQ(design.loads().linkType, "");
    EXPECT_EQ(design.ZoneList().size(), 2U);
    undo();
    redo();
    EXPECT_EQ(design.LoadsHome(), nullptr);
}

TEST_F(UndoOfALink, WithAWindowThatHasClosedSinceLeavesLaterLinksAsTheyAre) {
    linkFrom(design);
    unlinkFrom(design);
    platform.answers = {Answer::no};
    main.close(zones);
    frmAvgBlock& single = block();
    linkFrom(design);
    ASSERT_EQ(design.LoadsHome(), &single);
    undo();  // the link with the block
    undo();  // the end of the link with the window that is gone
    EXPECT_EQ(design.LoadsHome(), nullptr);
    undo();  // the link with it
    for (int i = 0; i < 3; ++i) redo();
    EXPECT_EQ(design.LoadsHome(), &single);
    EXPECT_EQ(design.loads().linkType, "frmAvgBlock");
}

TEST_F(UndoOfALink, WithADesignThatHasClosedSinceLeavesTheLoadsByThemselves) {
    linkFrom(design);
    unlinkFrom(zones);
    main.close(design);
    undo();
    EXPECT_TRUE(zones.links().all().empty());
    EXPECT_EQ(zones.caption(), "Loads");
    EXPECT_EQ(zones.zoneNumber(), 2);
}

TEST_F(UndoOfALink, LeavesADesignAloneThatHasFoundOtherLoads) {
    linkFrom(design);
    unlinkFrom(zones);
    platform.onModal = [](Form& question) {
        question.click("optLink(1)");
        question.click("cmdSelect");
    };
    frmAvgBlock& single = block();
    linkFrom(design);
    ASSERT_EQ(design.LoadsHome(), &single);
    undoIn(zones);
    EXPECT_EQ(design.LoadsHome(), &single);
    EXPECT_EQ(design.loads().linkType, "frmAvgBlock");
}

TEST_F(UndoOfALink, OfATemperatureGivesItBackToTheLoads) {
    linkFrom(design);
    design.type("FLInletTempText(0)", "92");
    design.leave("FLInletTempText(0)");
    EXPECT_EQ(zones.conditions().inletTemp[cooling], 92);
    undo();
    EXPECT_EQ(design.conditions().inletTemp[cooling], 85);
    EXPECT_EQ(zones.conditions().inletTemp[cooling], 85);
    EXPECT_EQ(shown(zones, "LOInletTempText(0)"), "85.0");
    redo();
    EXPECT_EQ(zones.conditions().inletTemp[cooling], 92);
    EXPECT_EQ(shown(zones, "LOInletTempText(0)"), "92.0");
}

TEST_F(UndoOfALink, OfATemperatureLeavesSavedLoadsSavedThoughTheLinkIsYounger) {
    setSaved(zones, "two.zon");
    linkFrom(design);
    EXPECT_FALSE(zones.hasUnsavedChanges());
    design.type("FLInletTempText(0)", "92");
    design.leave("FLInletTempText(0)");
    undo();
    EXPECT_FALSE(zones.hasUnsavedChanges());
    EXPECT_FALSE(enabled(zones, "LOSaveCommand"));
    redo();
    undo();
    undo();  // of the link
    EXPECT_FALSE(zones.hasUnsavedChanges());
    EXPECT_TRUE(main.close(zones));
    EXPECT_TRUE(platform.questions.empty());
}

TEST_F(UndoOfALink, OfATemperatureInTheDesignIsAStepOfTheLoadsToo) {
    linkFrom(design);
    for (const char* typed : {"9", "92"}) design.type("FLInletTempText(0)", typed);
    design.leave("FLInletTempText(0)");
    front(zones);
    EXPECT_EQ(undoCaption(), "Undo [2202], [2203]");
    undo();
    EXPECT_EQ(zones.conditions().inletTemp[cooling], 85);
    EXPECT_EQ(design.conditions().inletTemp[cooling], 85);
    EXPECT_EQ(undoCaption(), "Undo Link");
}

TEST_F(UndoOfALink, GivesEachSideBackTheTemperatureThatItHad) {
    setSaved(zones, "two.zon");
    linkFrom(design);
    design.type("FLInletTempText(0)", "92");
    design.leave("FLInletTempText(0)");
    // The file brings its own temperature, and the design keeps what was typed there.
    platform.answers.push_back(Answer::no);
    platform.picks.emplace_back(zoneFile("two.zon"));
    zones.click("LOOpenCommand");
    front(design);
    ASSERT_EQ(zones.conditions().inletTemp[cooling], 85);
    ASSERT_EQ(design.conditions().inletTemp[cooling], 92);
    undo();
    EXPECT_EQ(design.conditions().inletTemp[cooling], 85);
    redo();
    EXPECT_EQ(design.conditions().inletTemp[cooling], 92);
    EXPECT_EQ(zones.conditions().inletTemp[cooling], 85);
    design.type("FLInletTempText(0)", "70");
    design.leave("FLInletTempText(0)");
    EXPECT_EQ(zones.conditions().inletTemp[cooling], 70);
    undo();
    EXPECT_EQ(design.conditions().inletTemp[cooling], 92);
    EXPECT_EQ(zones.conditions().inletTemp[cooling], 85);
    EXPECT_FALSE(zones.hasUnsavedChanges());
}

TEST_F(UndoOfALink, OfALoadInTheLoadsIsNoStepOfTheDesign) {
    linkFrom(design);
    front(zones);
    zones.type("LOGainsText(1)", "44");
    zones.leave("LOGainsText(1)");
    front(design);  // takes the loads
    EXPECT_EQ(design.ZoneList()[1].gains[1][cooling], 44);
    EXPECT_EQ(undoCaption(), "Undo Link");
    design.type("SOGroundTempText", "58");
    undo();
    EXPECT_EQ(design.ZoneList()[1].gains[1][cooling], 44);
}

TEST_F(UndoOfALink, InADesignThatItHasNeverHadKeepsTheZonesOfTheWindow) {
    linkFrom(design);
    undo();
    EXPECT_EQ(zones.zoneNumber(), 2);
    EXPECT_EQ(zones.ZoneList()[1].gains[1][cooling], 38);
}

class NoticesOfALink : public LinkedProject {
 protected:
    NoticesOfALink() {
        linkFrom(design);
        design.click("CACalculateCommand");
    }
};

TEST_F(NoticesOfALink, TellAtOnceThatALinkedLoadHasChanged) {
    EXPECT_EQ(notice(design), "");
    zones.type("LOGainsText(1)", "44");
    EXPECT_EQ(notice(design), "Results are out of date");
    EXPECT_FALSE(design.isStale());  // the button waits until the loads are transferred
    EXPECT_EQ(design.control("NoticeCommand").caption(), "Calculate");
    zones.type("LOGainsText(1)", "38");
    EXPECT_EQ(notice(design), "");
}

TEST_F(NoticesOfALink, GoWhenTheLoadIsUndone) {
    zones.type("LOGainsText(1)", "44");
    zones.leave("LOGainsText(1)");
    front(zones);
    undo();
    EXPECT_EQ(notice(design), "");
    redo();
    EXPECT_EQ(notice(design), "Results are out of date");
}

TEST_F(NoticesOfALink, GoWithACalculationThatTakesTheLoads) {
    zones.type("LOGainsText(1)", "44");
    design.click("NoticeCommand");
    EXPECT_EQ(notice(design), "");
    EXPECT_EQ(design.results().loads.peakLoad[cooling], 82);  // 38 and 44
}

TEST_F(NoticesOfALink, TellOfEveryLinkedDesign) {
    frmBHDesign& other = newDesign();
    linkFrom(other);
    EXPECT_EQ(notice(other), "");  // it has not run yet
    zones.click("LONewCommand");
    EXPECT_EQ(notice(design), "Results are out of date");
    EXPECT_EQ(notice(other), "");
}

TEST_F(NoticesOfALink, TellNothingOfLoadsAfterTheLinkHasEnded) {
    unlinkFrom(design);
    zones.type("LOGainsText(1)", "44");
    EXPECT_EQ(notice(design), "");
}

TEST_F(NoticesOfALink, TellThatZonesHaveGoneOrComeOrBeenRenamedInOrder) {
    zones.choose("LOZoneList", 0);
    zones.click("LORemoveCommand");
    EXPECT_EQ(notice(design), "Results are out of date");
    front(zones);
    undo();
    EXPECT_EQ(notice(design), "");
    zones.type("LOZoneReferenceText", "South");
    EXPECT_EQ(notice(design), "Results are out of date");
}

}  // namespace
}  // namespace varnholt
