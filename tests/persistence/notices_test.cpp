// SPDX-License-Identifier: GPL-3.0-or-later
// What a project that is opened tells at the top of its window, and what opening and saving are to
// undo.
#include "persistence/project_fixture.h"

namespace varnholt {
namespace {

class NoticesOfAFile : public ProjectTest {
 protected:
    NoticesOfAFile() {
        texts.known.insert({{1029, "Link"},
                            {1081, "Undo"},
                            {1082, "Redo"},
                            {1230, "Results are out of date"},
                            {1231, "Calculate"},
                            {1234, "The zone file %1 was not found."},
                            {1235, "Find"},
                            {1236, "Not all of %1 could be read."}});
        saveLinkedProject();
        closeAll();
        platform.questions.clear();
    }
    std::string school() const { return folder / "work files/school.vht"; }
    frmBHDesign& reopen() { return open("work files/school.vht"); }
    void hideZones() {
        std::filesystem::rename(folder / "zones/school.zon", folder / "work files/moved.zon");
    }
    std::string notice() { return design().control("NoticeLabel").caption(); }
    std::string action() { return design().control("NoticeCommand").caption(); }
    std::string undoCaption() const { return main.control("mnuUndo").caption(); }
};

TEST_F(NoticesOfAFile, TellNothingOfAProjectThatIsWhole) {
    reopen();
    EXPECT_EQ(notice(), "");
    EXPECT_EQ(undoCaption(), "Undo");
    EXPECT_FALSE(main.control("mnuUndo").enabled());
}

TEST_F(NoticesOfAFile, NameAMissingZoneFileAndOfferToFindIt) {
    hideZones();
    reopen();
    EXPECT_EQ(notice(), "The zone file school.zon was not found.");
    EXPECT_EQ(action(), "Find");
    EXPECT_TRUE(design().control("NoticeCommand").visible());
}

TEST_F(NoticesOfAFile, LinkTheProjectWithTheZoneFileThatWasFound) {
    hideZones();
    frmBHDesign& opened = reopen();
    pick("work files/moved.zon");
    opened.click("NoticeCommand");
    EXPECT_EQ(platform.dialogs.back().proposedName, "school.zon");
    EXPECT_EQ(platform.dialogs.back().folder, folder / "zones");
    EXPECT_EQ(opened.LoadsHome(), &loads());
    EXPECT_EQ(opened.loads().file.name, "moved.zon");
    EXPECT_EQ(opened.ZoneList().size(), 3U);
    EXPECT_EQ(main.activeWindow(), &opened);
    EXPECT_EQ(undoCaption(), "Undo Find");
    // Whether these are the zones of the saved run is not known: the next run takes them.
    EXPECT_EQ(notice(), "Results are out of date");
    EXPECT_EQ(action(), "Calculate");
    opened.click("NoticeCommand");
    EXPECT_EQ(notice(), "");
    EXPECT_EQ(opened.results().loads.peakLoad[cooling], 10 + 11 + 12);
}

TEST_F(NoticesOfAFile, OfAMissingZoneFileStayWhenTheDialogIsCancelled) {
    hideZones();
    frmBHDesign& opened = reopen();
    pick(std::nullopt);
    opened.click("NoticeCommand");
    EXPECT_EQ(notice(), "The zone file school.zon was not found.");
    EXPECT_EQ(opened.LoadsHome(), nullptr);
}

TEST_F(NoticesOfAFile, OfAMissingZoneFileStayWhenAnotherFileCannotBeRead) {
    hideZones();
    frmBHDesign& opened = reopen();
    writeBytes(folder / "work files/moved.zon", "Zone Data File Version 3.0\r\n9\r\n");
    pick("work files/moved.zon");
    opened.click("NoticeCommand");
    EXPECT_EQ(lastMessage(), "[8543]\n\n" + (folder / "work files/moved.zon"));
    EXPECT_EQ(notice(), "The zone file school.zon was not found.");
    EXPECT_EQ(action(), "Find");
}

TEST_F(NoticesOfAFile, OfAMissingZoneFileEndWithALinkMadeByHand) {
    hideZones();
    frmBHDesign& opened = reopen();
    main.click("mnuZoneManage");
    loads().setZones({loadedZone(10), loadedZone(11), loadedZone(12)});
    main.activate(opened);
    main.click("mnuLink");
    EXPECT_EQ(notice(), "Results are out of date");
}

TEST_F(NoticesOfAFile, TellThatNotAllOfAProjectWasRead) {
    const std::string whole = bytesOf(school());
    writeBytes(school(), whole.substr(0, whole.size() / 2));
    frmBHDesign& opened = reopen();
    EXPECT_EQ(notice(), "Not all of school.vht could be read. [1242] [1248] [1249]");
    EXPECT_EQ(messages(), 1U);
    pick("work files/rest.vht");
    main.activate(opened);
    main.click("mnuFileSaveAs");
    EXPECT_EQ(notice(), "");
}

TEST_F(NoticesOfAFile, TellNothingOfAProjectThatHadNoRunWhenItWasSaved) {
    frmBHDesign& made = newDesign();
    saveAs(made, "work files/new.vht");
    closeAll();
    frmBHDesign& opened = open("work files/new.vht");
    opened.type("SOGroundTempText", "58");
    EXPECT_EQ(notice(), "");
}

TEST_F(NoticesOfAFile, TellThatSavedResultsAreOutOfDate) {
    frmBHDesign& opened = reopen();
    opened.type("SOGroundTempText", "58");
    EXPECT_EQ(notice(), "Results are out of date");
    EXPECT_EQ(action(), "Calculate");
    main.click("mnuUndo");
    EXPECT_EQ(notice(), "");
}

TEST_F(NoticesOfAFile, LeaveSavingAndOpeningOutOfTheHistory) {
    frmBHDesign& opened = reopen();
    opened.type("SOGroundTempText", "58");
    opened.leave("SOGroundTempText");
    EXPECT_TRUE(opened.isChanged());
    const std::string before = undoCaption();
    main.click("mnuFileSave");
    EXPECT_FALSE(opened.isChanged());
    EXPECT_EQ(undoCaption(), before);
    main.click("mnuUndo");
    EXPECT_TRUE(opened.isChanged());
    EXPECT_EQ(opened.GetGroundTemp(), 62);
    main.click("mnuRedo");
    EXPECT_FALSE(opened.isChanged());
}

TEST_F(NoticesOfAFile, LeaveTheSliderAwakeOfAProjectWhoseTowerHasMadeTheHeatingGovern) {
    frmBHDesign& opened = reopen();
    opened.slide("CAHybridSlider", 95);
    ASSERT_GT(opened.GetL(heating), opened.GetL(cooling));
    ASSERT_TRUE(opened.control("CAHybridSlider").enabled());
    main.click("mnuFileSave");
    closeAll();
    EXPECT_TRUE(reopen().control("CAHybridSlider").enabled());
    EXPECT_EQ(design().control("CAHybridSlider").value(), 95);
}

}  // namespace
}  // namespace varnholt
