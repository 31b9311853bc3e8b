// SPDX-License-Identifier: GPL-3.0-or-later
// Undo and redo by the main window's menu.
#include "frame/note_window.h"

namespace varnholt {
namespace {

class UndoTest : public NoteTest {
 protected:
    NoteWindow& window = newNote();
};

TEST_F(NoteTest, WithoutAWindowThereIsNothingToUndo) {
    EXPECT_EQ(undoCaption(), "Undo");
    EXPECT_EQ(redoCaption(), "Redo");
    EXPECT_FALSE(canUndo());
    EXPECT_FALSE(canRedo());
    undo();
    redo();
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(UndoTest, TellsInItsCaptionWhatItWouldUndo) {
    EXPECT_EQ(undoCaption(), "Undo");
    EXPECT_FALSE(canUndo());
    window.click("AddCommand");
    EXPECT_EQ(undoCaption(), "Undo Add Line");
    EXPECT_TRUE(canUndo());
    EXPECT_FALSE(canRedo());
    undo();
    EXPECT_EQ(undoCaption(), "Undo");
    EXPECT_FALSE(canUndo());
    EXPECT_EQ(redoCaption(), "Redo Add Line");
    EXPECT_TRUE(canRedo());
    redo();
    EXPECT_EQ(undoCaption(), "Undo Add Line");
    EXPECT_EQ(redoCaption(), "Redo");
    EXPECT_EQ(window.note.lines, 1);
}

TEST_F(UndoTest, CallsAStepAsItsCommandDoesOrByWhatTheControlIsCalled) {
    window.click("AddCommand");
    window.click("RemoveCommand");
    EXPECT_EQ(undoCaption(), "Undo Remove Line 1");
    window.type("TitleText", "A");
    EXPECT_EQ(undoCaption(), "Undo Title");
    window.control("SizeText").setAccessibleName("Size of the note");
    window.type("SizeText", "7");
    EXPECT_EQ(undoCaption(), "Undo Size of the note");
    window.slide("LevelSlider", 40);
    EXPECT_EQ(undoCaption(), "Undo Level");
}

TEST_F(UndoTest, BringsTheDocumentBackAndShowsIt) {
    window.type("TitleText", "Draft");
    window.leave("TitleText");
    window.type("SizeText", "20");
    window.leave("SizeText");
    window.slide("LevelSlider", 40);
    undo();
    EXPECT_EQ(window.control("LevelSlider").value(), 0);
    undo();
    EXPECT_EQ(window.note.size, 5);
    EXPECT_EQ(window.control("SizeText").text(), "5.0");
    undo();
    EXPECT_EQ(window.control("TitleText").text(), "");
    EXPECT_EQ(window.note, Note{});
    for (int i = 0; i < 3; ++i) redo();
    EXPECT_EQ(window.note, (Note{"Draft", 20, 40, 0}));
    EXPECT_EQ(window.control("SizeText").text(), "20.0");
}

TEST_F(UndoTest, TakesTheWholeVisitOfAFieldForOneStep) {
    for (const char* typed : {"D", "Dr", "Dra", "Draft"}) window.type("TitleText", typed);
    window.leave("TitleText");
    window.type("TitleText", "Final");
    undo();
    EXPECT_EQ(window.note.title, "Draft");
    undo();
    EXPECT_EQ(window.note.title, "");
    EXPECT_FALSE(canUndo());
}

TEST_F(UndoTest, BringsBackTheStartOfAVisitThatHasNotEnded) {
    window.type("SizeText", "20");
    window.leave("SizeText");
    window.type("SizeText", "3");
    window.type("SizeText", "30");
    undo();
    EXPECT_EQ(window.note.size, 20);
    EXPECT_EQ(window.visitedField(), "");
    window.type("SizeText", "31");  // another visit, for the first one has been undone
    window.type("SizeText", "32");
    undo();
    EXPECT_EQ(window.note.size, 20);
}

TEST_F(UndoTest, HasNoStepForAFieldThatWasTypedBackToItsStart) {
    window.type("SizeText", "20");
    EXPECT_TRUE(canUndo());
    window.type("SizeText", "5");
    EXPECT_FALSE(canUndo());
    window.leave("SizeText");
    EXPECT_FALSE(canUndo());
}

TEST_F(UndoTest, CountsTheReformattedTextOfAFieldThatIsLeftToItsVisit) {
    window.type("SizeText", "");  // stored as 0 until the field is left
    EXPECT_EQ(window.note.size, 0);
    window.leave("SizeText");
    EXPECT_EQ(window.note.size, 5);
    EXPECT_FALSE(canUndo());
}

TEST_F(UndoTest, TakesAPasteForOneStep) {
    platform.clipboardText = "Pasted";
    window.key("TitleText", "Ctrl+V");
    EXPECT_EQ(undoCaption(), "Undo Title");
    undo();
    EXPECT_EQ(window.note.title, "");
    EXPECT_FALSE(canUndo());
}

TEST_F(UndoTest, TakesADragForOneStepAndTwoDragsForTwo) {
    for (const double end : {30.0, 60.0}) {
        window.beginGesture("LevelSlider");
        for (const double moved : {end - 20, end - 10, end}) window.slide("LevelSlider", moved);
        window.endGesture();
    }
    undo();
    EXPECT_EQ(window.note.level, 30);
    undo();
    EXPECT_EQ(window.note.level, 0);
    EXPECT_FALSE(canUndo());
}

TEST_F(UndoTest, TakesMovesOfASliderWithoutADragForAStepEach) {
    window.slide("LevelSlider", 1);
    window.slide("LevelSlider", 2);
    undo();
    EXPECT_EQ(window.note.level, 1);
}

TEST_F(UndoTest, HasNoStepForADragThatEndsWhereItBegan) {
    window.beginGesture("LevelSlider");
    for (const double moved : {10.0, 20.0, 0.0}) window.slide("LevelSlider", moved);
    window.endGesture();
    EXPECT_FALSE(canUndo());
}

TEST_F(UndoTest, HasNoStepForACommandThatChangesNothing) {
    window.click("IdleCommand");
    EXPECT_FALSE(canUndo());
}

TEST_F(UndoTest, TakesACommandThatFailedHalfWayBackToo) {
    window.click("FailingCommand");
    EXPECT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(window.note.lines, 1);
    EXPECT_EQ(undoCaption(), "Undo Fail");
    undo();
    EXPECT_EQ(window.note.lines, 0);
}

TEST_F(UndoTest, HasNoStepForTheUnits) {
    window.type("SizeText", "20");
    window.click("MetricCheck");
    main.click("English");
    main.click("Metric");
    EXPECT_EQ(undoCaption(), "Undo Size");
    undo();
    EXPECT_FALSE(canUndo());
    EXPECT_EQ(window.units(), UnitSystem::metric);
    EXPECT_EQ(window.control("SizeText").text(), "1.5");  // 5 ft
}

TEST_F(UndoTest, HasNoStepForSaving) {
    main.setCommand("mnuFileSave", CommandNeeds::anyWindow, [this] { window.save(); });
    window.click("AddCommand");
    main.click("mnuFileSave");
    EXPECT_EQ(undoCaption(), "Undo Add Line");
    undo();
    EXPECT_EQ(window.note.lines, 0);
    EXPECT_FALSE(canUndo());
}

TEST_F(UndoTest, BeginsAnewWithADocumentThatIsOpened) {
    window.click("AddCommand");
    window.click("AddCommand");
    undo();
    main.setCommand("mnuFileOpen", CommandNeeds::nothing, [this] { window.open({"School"}); });
    main.click("mnuFileOpen");
    EXPECT_FALSE(canUndo());
    EXPECT_FALSE(canRedo());
    window.click("AddCommand");
    undo();
    EXPECT_EQ(window.note, (Note{"School"}));
}

TEST_F(UndoTest, BeginsAnewWhenTheWindowsOwnCommandOpensADocument) {
    window.whenLineAdded = [this] { window.open({"School"}); };
    window.click("AddCommand");
    EXPECT_FALSE(canUndo());
    EXPECT_EQ(undoCaption(), "Undo");
}

TEST_F(UndoTest, MakesADocumentUnchangedWhereItWasSaved) {
    window.type("SizeText", "20");
    window.leave("SizeText");
    window.save();
    window.type("SizeText", "30");
    EXPECT_TRUE(window.changed);
    undo();
    EXPECT_FALSE(window.changed);
    undo();
    EXPECT_TRUE(window.changed);
    redo();
    EXPECT_FALSE(window.changed);
    redo();
    EXPECT_TRUE(window.changed);
}

TEST_F(UndoTest, WorksOnTheWindowInFront) {
    NoteWindow& other = newNote();
    EXPECT_FALSE(canUndo());
    other.click("AddCommand");
    main.activate(window);
    EXPECT_FALSE(canUndo());
    EXPECT_EQ(undoCaption(), "Undo");
    window.click("RemoveCommand");
    main.activate(other);
    EXPECT_EQ(undoCaption(), "Undo Add Line");
    undo();
    EXPECT_EQ(other.note.lines, 0);
    EXPECT_EQ(window.note.lines, -1);
    ASSERT_TRUE(main.close(other));
    EXPECT_EQ(undoCaption(), "Undo Remove Line 0");
    ASSERT_TRUE(main.close(window));
    EXPECT_EQ(undoCaption(), "Undo");
    EXPECT_FALSE(canUndo());
}

TEST_F(UndoTest, LeavesAWindowWithoutADocumentAlone) {
    class Plain : public ChildWindow {
     public:
        explicit Plain(Varnmain& main) : ChildWindow("frmPlain", main) {
            add("Go", ControlKind::button);
        }
    };
    window.click("AddCommand");
    main.open(std::make_unique<Plain>(main));
    main.find("frmPlain")->click("Go");
    EXPECT_FALSE(canUndo());
    EXPECT_EQ(undoCaption(), "Undo");
}

TEST_F(UndoTest, EndsWithItsWindowThatAnActionOfItsOwnCloses) {
    NoteWindow& other = newNote();
    other.whenLineAdded = [&] { main.close(other); };
    other.click("AddCommand");
    EXPECT_EQ(main.activeWindow(), &window);
    EXPECT_FALSE(canUndo());
}

// One window's action may change another window's document.

TEST_F(UndoTest, OfAnActionThatHasChangedTwoDocumentsIsOneStepOfBoth) {
    NoteWindow& other = newNote("frmOther");
    window.whenLineAdded = [&] { other.takeLines(window.note.lines); };
    window.click("AddCommand");
    EXPECT_EQ(undoCaption(), "Undo Add Line");  // of the other one, which is in front
    undo();
    EXPECT_EQ(other.note.lines, 0);
    EXPECT_EQ(window.note.lines, 0);
    redo();
    EXPECT_EQ(other.note.lines, 1);
    EXPECT_EQ(window.note.lines, 1);
}

TEST_F(UndoTest, OfAnActionOnTwoDocumentsLeavesTheOneAloneThatHasMovedOn) {
    NoteWindow& other = newNote("frmOther");
    window.whenLineAdded = [&] { other.takeLines(window.note.lines); };
    window.click("AddCommand");
    window.whenLineAdded = {};
    window.click("AddCommand");
    main.activate(other);
    undo();
    EXPECT_EQ(other.note.lines, 0);
    EXPECT_EQ(window.note.lines, 2);
}

TEST_F(UndoTest, OfAnotherDocumentHasNoStepForWhatItWasToldWithoutAnAction) {
    NoteWindow& other = newNote("frmOther");
    other.takeLines(3);
    EXPECT_FALSE(canUndo());
    other.click("AddCommand");
    undo();
    EXPECT_EQ(other.note.lines, 3);
}

TEST_F(UndoTest, OfAnActionInsideAnotherIsOneStep) {
    window.whenLineAdded = [this] { window.type("TitleText", "Line added"); };
    window.click("AddCommand");
    undo();
    EXPECT_EQ(window.note, Note{});
    EXPECT_FALSE(canUndo());
}

TEST_F(UndoTest, OfAMenuCommandIsAStepWhereTheCommandSaysSo) {
    main.setCommand("mnuLink", CommandNeeds::anyWindow, [this] {
        const DocumentStep step({&window}, "Link");
        window.note.lines = 9;
    });
    main.setCommand("mnuUnlink", CommandNeeds::anyWindow, [this] { window.note.lines = 4; });
    main.click("mnuLink");
    EXPECT_EQ(undoCaption(), "Undo Link");
    main.click("mnuUnlink");
    EXPECT_EQ(undoCaption(), "Undo Link");
    window.click("AddCommand");
    undo();
    EXPECT_EQ(window.note.lines, 4);
    undo();
    EXPECT_EQ(window.note.lines, 0);
}

TEST_F(UndoTest, OfAMenuCommandThatClosesTheWindowIsNone) {
    main.setCommand("mnuLink", CommandNeeds::anyWindow, [this] {
        const DocumentStep step({&window}, "Link");
        window.note.lines = 9;
        main.close(window);
    });
    main.click("mnuLink");
    EXPECT_TRUE(main.windows().empty());
    EXPECT_FALSE(canUndo());
}

// A window that cannot be set up.

TEST_F(NoteTest, AWindowThatFailsToLoadLeavesNothingBehind) {
    NoteWindow& before = newNote();
    before.click("AddCommand");
    main.setCommand("NewBorehole", CommandNeeds::nothing, [this] {
        ASSERT_EQ(main.takeSlot(DesignKind::borehole), 1);
        class Failing : public NoteWindow {
         public:
            using NoteWindow::NoteWindow;
            void unloaded() override { main().releaseSlot(DesignKind::borehole, 1); }
        };
        auto made = std::make_unique<Failing>(main, "frmBHDesign");
        made->failsToLoad = true;
        main.open(std::move(made));
    });
    const std::vector<std::string> shown = platform.openedForms;
    main.click("NewBorehole");
    EXPECT_EQ(platform.messages.at(0).text, RunTimeError(62).message());
    EXPECT_EQ(main.windows(), std::vector<ChildWindow*>{&before});
    EXPECT_EQ(main.activeWindow(), &before);
    EXPECT_EQ(main.find("frmBHDesign"), nullptr);
    EXPECT_FALSE(main.slots(DesignKind::borehole).exists[1]);
    EXPECT_EQ(platform.openedForms, shown);
    EXPECT_TRUE(platform.closedForms.empty() ||
                platform.closedForms == std::vector<std::string>{"frmSplash"});
    EXPECT_EQ(undoCaption(), "Undo Add Line");
    EXPECT_EQ(main.takeSlot(DesignKind::borehole), 1);
}

TEST_F(NoteTest, AWindowThatFailsToLoadTellsTheSubsystemThatOpenedIt) {
    auto made = std::make_unique<NoteWindow>(main);
    made->failsToLoad = true;
    EXPECT_THROW(main.open(std::move(made)), RunTimeError);
    EXPECT_TRUE(main.windows().empty());
    EXPECT_EQ(main.activeWindow(), nullptr);
    EXPECT_FALSE(canUndo());
}

}  // namespace
}  // namespace varnholt
