// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/document_history.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace varnholt {
namespace {

/// A document that is one number, and a place in it that is on show and no part of it.
struct Number {
    int value = 0;
    int place = 0;

    friend bool operator==(const Number& a, const Number& b) { return a.value == b.value; }
};

class DocumentHistoryTest : public testing::Test {
 protected:
    DocumentHistoryTest() { history.start(state(0)); }

    static StatePointer state(int value, int place = 0) {
        return std::make_shared<StateOf<Number>>(Number{value, place});
    }
    static Number numberOf(const DocumentState& state) {
        return static_cast<const StateOf<Number>&>(state).value;
    }
    int undo() { return numberOf(history.undo()).value; }
    int redo() { return numberOf(history.redo()).value; }
    void record(int value, const std::string& visit = {}) {
        history.record(state(value), "Set " + std::to_string(value), visit);
    }

    DocumentHistory history;
};

TEST_F(DocumentHistoryTest, OfANewDocumentHasNothingToUndo) {
    EXPECT_TRUE(history.hasStarted());
    EXPECT_FALSE(history.canUndo());
    EXPECT_FALSE(history.canRedo());
    EXPECT_EQ(history.undoName(), "");
    EXPECT_EQ(history.redoName(), "");
    EXPECT_TRUE(history.isAtSaved());
    EXPECT_FALSE(DocumentHistory().hasStarted());
}

TEST_F(DocumentHistoryTest, WalksBackAndOnAndNamesTheSteps) {
    record(1);
    record(2);
    EXPECT_EQ(history.undoName(), "Set 2");
    EXPECT_EQ(undo(), 1);
    EXPECT_EQ(history.undoName(), "Set 1");
    EXPECT_EQ(history.redoName(), "Set 2");
    EXPECT_EQ(undo(), 0);
    EXPECT_FALSE(history.canUndo());
    EXPECT_EQ(redo(), 1);
    EXPECT_EQ(redo(), 2);
    EXPECT_FALSE(history.canRedo());
}

TEST_F(DocumentHistoryTest, ForgetsWhatWasUndoneOnceAnotherStepIsMade) {
    record(1);
    record(2);
    undo();
    record(3);
    EXPECT_FALSE(history.canRedo());
    EXPECT_EQ(undo(), 1);
    EXPECT_EQ(redo(), 3);
}

TEST_F(DocumentHistoryTest, AnActionThatChangesNothingIsNoStepAndLosesNothing) {
    record(1);
    undo();
    record(0);
    EXPECT_FALSE(history.canUndo());
    EXPECT_EQ(history.redoName(), "Set 1");
}

TEST_F(DocumentHistoryTest, ChangesOfOneVisitAreOneStepWithTheNameOfTheFirst) {
    record(1, "Field");
    record(12, "Field");
    record(123, "Field");
    EXPECT_EQ(history.undoName(), "Set 1");
    EXPECT_EQ(undo(), 0);
    EXPECT_EQ(redo(), 123);
}

TEST_F(DocumentHistoryTest, VisitsOfTwoFieldsAreTwoSteps) {
    record(1, "Field");
    record(2, "Other");
    record(3, "Field");
    EXPECT_EQ(undo(), 2);
    EXPECT_EQ(undo(), 1);
    EXPECT_EQ(undo(), 0);
}

TEST_F(DocumentHistoryTest, ChangesWithoutAVisitAreEachAStep) {
    record(1);
    record(2);
    EXPECT_EQ(undo(), 1);
}

TEST_F(DocumentHistoryTest, TwoVisitsOfOneFieldAreTwoSteps) {
    record(1, "Field");
    history.endVisit();
    record(2, "Field");
    EXPECT_EQ(undo(), 1);
}

TEST_F(DocumentHistoryTest, AVisitThatEndsWhereItBeganIsNoStep) {
    record(1, "Field");
    record(0, "Field");
    EXPECT_FALSE(history.canUndo());
    EXPECT_FALSE(history.canRedo());
    EXPECT_TRUE(history.isAtSaved());
    record(5, "Field");  // the visit goes on
    EXPECT_EQ(undo(), 0);
}

TEST_F(DocumentHistoryTest, AVisitThatEndsWhereItBeganLeavesTheStepBeforeItAlone) {
    record(7);
    record(1, "Field");
    record(7, "Field");
    EXPECT_EQ(history.undoName(), "Set 7");
    record(2, "Field");
    EXPECT_EQ(undo(), 7);
    EXPECT_EQ(undo(), 0);
}

TEST_F(DocumentHistoryTest, UndoEndsAVisit) {
    record(1, "Field");
    undo();
    redo();
    record(2, "Field");
    EXPECT_EQ(undo(), 1);
}

TEST_F(DocumentHistoryTest, SavingEndsAVisit) {
    record(1, "Field");
    history.markSaved(state(1));
    record(2, "Field");
    EXPECT_FALSE(history.isAtSaved());
    EXPECT_EQ(undo(), 1);
    EXPECT_TRUE(history.isAtSaved());
}

TEST_F(DocumentHistoryTest, WhatIsAbsorbedIsNoStepAndStaysWhenTheNextStepIsUndone) {
    record(1);
    history.absorb(state(10));
    EXPECT_EQ(history.undoName(), "Set 1");
    record(2);
    EXPECT_EQ(undo(), 10);
    EXPECT_EQ(undo(), 0);
    EXPECT_EQ(redo(), 10);
}

TEST_F(DocumentHistoryTest, ADocumentThatChangesByItselfIsNotAsItWasSaved) {
    history.absorb(state(10));
    EXPECT_FALSE(history.isAtSaved());
    EXPECT_FALSE(history.canUndo());
}

TEST_F(DocumentHistoryTest, WhatIsAbsorbedMayLeaveASavedDocumentSaved) {
    history.absorb(state(10), true);
    EXPECT_TRUE(history.isAtSaved());
    record(1);
    EXPECT_FALSE(history.isAtSaved());
    history.absorb(state(11), true);
    EXPECT_FALSE(history.isAtSaved());
    undo();
    EXPECT_TRUE(history.isAtSaved());
}

TEST_F(DocumentHistoryTest, AStepMayLeaveASavedDocumentSavedTooOnEitherSideOfIt) {
    history.record(state(1), "Link", "", 0, true);
    EXPECT_TRUE(history.isAtSaved());
    record(2);
    EXPECT_FALSE(history.isAtSaved());
    history.record(state(3), "Link", "", 0, true);  // what was not saved stays so
    EXPECT_FALSE(history.isAtSaved());
    undo();
    undo();
    EXPECT_TRUE(history.isAtSaved());
    undo();
    EXPECT_TRUE(history.isAtSaved());
}

TEST_F(DocumentHistoryTest, AVisitLeavesTheSavedStateWithItsFirstChangeThatIsOne) {
    history.record(state(1), "Field", "Field", 0, true);
    EXPECT_TRUE(history.isAtSaved());
    history.record(state(2), "Field", "Field", 0, false);
    EXPECT_FALSE(history.isAtSaved());
    undo();
    EXPECT_TRUE(history.isAtSaved());
}

TEST_F(DocumentHistoryTest, AbsorbingTheSameStateChangesNothing) {
    record(1);
    undo();
    history.absorb(state(0));
    EXPECT_TRUE(history.isAtSaved());
    EXPECT_TRUE(history.canRedo());
}

TEST_F(DocumentHistoryTest, KnowsWhereTheDocumentWasSavedWhicheverWayItIsReached) {
    record(1);
    history.markSaved(state(1));
    record(2);
    EXPECT_FALSE(history.isAtSaved());
    undo();
    EXPECT_TRUE(history.isAtSaved());
    undo();
    EXPECT_FALSE(history.isAtSaved());
    redo();
    EXPECT_TRUE(history.isAtSaved());
}

TEST_F(DocumentHistoryTest, SavedOnAnotherBranchIsReachedByNoUndo) {
    record(1);
    history.markSaved(state(1));
    undo();
    record(2);
    EXPECT_FALSE(history.isAtSaved());
    undo();
    EXPECT_FALSE(history.isAtSaved());
}

TEST_F(DocumentHistoryTest, ADocumentMayBeginUnsaved) {
    history.start(state(3), false);
    EXPECT_FALSE(history.isAtSaved());
    record(4);
    undo();
    EXPECT_FALSE(history.isAtSaved());
    history.markSaved(state(3));
    EXPECT_TRUE(history.isAtSaved());
}

TEST_F(DocumentHistoryTest, BeginsAnewWithAnotherDocument) {
    record(1, "Field");
    record(2);
    undo();
    history.start(state(50));
    EXPECT_FALSE(history.canUndo());
    EXPECT_FALSE(history.canRedo());
    EXPECT_TRUE(history.isAtSaved());
    record(51, "Field");
    EXPECT_EQ(undo(), 50);
}

TEST_F(DocumentHistoryTest, HoldsTheLastTwoHundredSteps) {
    ASSERT_EQ(DocumentHistory::mostSteps, 200U);
    for (int value = 1; value <= 201; ++value) record(value);
    int steps = 0, last = 201;
    for (; history.canUndo(); ++steps) last = undo();
    EXPECT_EQ(steps, 200);
    EXPECT_EQ(last, 1);
    while (history.canRedo()) last = redo();
    EXPECT_EQ(last, 201);
}

TEST_F(DocumentHistoryTest, ASavedStateThatIsForgottenIsNotMistakenForAnother) {
    for (int value = 1; value <= 201; ++value) record(value);
    while (history.canUndo()) {
        EXPECT_FALSE(history.isAtSaved());
        undo();
    }
    EXPECT_FALSE(history.isAtSaved());
}

TEST_F(DocumentHistoryTest, TakesWhatUndoCouldBringBackForTheStateFromThenOn) {
    record(1);
    history.markSaved(state(1));
    record(2);
    undo();
    history.settle(state(10));
    EXPECT_TRUE(history.isAtSaved());
    EXPECT_EQ(numberOf(history.present()).value, 10);
    EXPECT_EQ(redo(), 2);
    EXPECT_EQ(undo(), 10);
    EXPECT_EQ(undo(), 0);
    EXPECT_EQ(redo(), 10);
}

TEST_F(DocumentHistoryTest, BringsBackThePlaceInWhichAStepWasMade) {
    history.record(state(1, 1), "One", "");
    history.absorb(state(1, 7));  // another place was chosen, and the next step made there
    history.record(state(2, 7), "Two", "");
    history.absorb(state(2, 3));
    EXPECT_EQ(numberOf(history.undo()).place, 7);
    EXPECT_EQ(numberOf(history.undo()).place, 0);
    EXPECT_EQ(numberOf(history.redo()).place, 1);
    EXPECT_EQ(numberOf(history.redo()).place, 7);
}

}  // namespace
}  // namespace varnholt
