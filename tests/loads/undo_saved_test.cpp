// SPDX-License-Identifier: GPL-3.0-or-later
// What undo has to do with the zone file: saving, opening, and the question before closing.
#include "basis/file_system.h"
#include "forms/named_controls.h"
#include "loads/undo_fixture.h"

namespace varnholt {
namespace {

class SavedZones : public LoadsUndo {
 protected:
    SavedZones() {
        texts.known[1236] = "Not all of %1 could be read.";
        texts.known[1237] = "%1: %2 is refused, %3 to %4, now %5.";
        texts.known[1238] = "%1: %2 is refused, no less than %3, now %5.";
        addZone(window, 15, 10);
        for (const char* field : {"LOGainsText(1)", "LOGainsText(7)"}) window.leave(field);
        setSaved(window, "one.zon");
    }
    void open(const std::string& name) {
        platform.picks.emplace_back(zoneFile(name));
        window.click("LOOpenCommand");
    }
    /// The first half of a file of two zones: one zone can be read.
    void writeHalfFile() {
        Zone hall = window.ZoneList()[0];
        hall.title = "Hall";
        const LoadsData data{{hall, hall}, {}, "FirstAir"};
        const std::string whole = zonesText(data);
        writeFile(zoneFile("half.zon"), whole.substr(0, whole.size() / 2));
    }
    bool closesWithoutAQuestion() {
        const std::size_t asked = platform.questions.size();
        platform.answers = {Answer::cancel};
        const bool closed = main.close(window);
        platform.answers.clear();
        return closed && platform.questions.size() == asked;
    }
    const std::string& notice() const { return window.control("NoticeLabel").caption(); }
};

TEST_F(SavedZones, AreReachedAgainByUndoAndNothingIsLeftToSave) {
    EXPECT_FALSE(saveIsEnabled());
    typeAndLeave("LOGainsText(0)", "9");
    EXPECT_TRUE(saveIsEnabled());
    undo();
    EXPECT_FALSE(saveIsEnabled());
    EXPECT_FALSE(window.hasUnsavedChanges());
    EXPECT_TRUE(closesWithoutAQuestion());
}

TEST_F(SavedZones, AreLeftAgainByRedo) {
    typeAndLeave("LOGainsText(0)", "9");
    undo();
    redo();
    EXPECT_TRUE(saveIsEnabled());
    EXPECT_FALSE(closesWithoutAQuestion());
    EXPECT_EQ(platform.questions.back().text, "Zone Loads\n\none.zon\n\n[1203]");
}

TEST_F(SavedZones, AreLeftByAnUndoOfWhatWasDoneBefore) {
    undo();
    EXPECT_EQ(window.ZoneList()[0].gains[3][heating], 0);
    EXPECT_TRUE(saveIsEnabled());
    redo();
    EXPECT_FALSE(saveIsEnabled());
    EXPECT_TRUE(closesWithoutAQuestion());
}

TEST_F(SavedZones, AreNeverReachedAgainOnAnotherWay) {
    undo();
    typeAndLeave("LOGainsText(0)", "9");
    undo();
    EXPECT_TRUE(saveIsEnabled());
}

TEST_F(SavedZones, AreKeptInTheHistoryBySaving) {
    EXPECT_EQ(undoCaption(), "Undo [2821], [2827]");
    for (int i = 0; i < 3; ++i) undo();
    EXPECT_EQ(window.zoneNumber(), 0);
    EXPECT_FALSE(canUndo());
}

TEST_F(SavedZones, StayThoseOfTheFileWhileADesignIsLinkedThatHandsItsProjectOver) {
    ProjectInformation school;
    school.projectName = "School";
    window.takeProject(school);
    typeAndLeave("LOGainsText(0)", "9");
    EXPECT_TRUE(saveIsEnabled());
    undo();
    EXPECT_FALSE(saveIsEnabled());
    EXPECT_EQ(window.document().information.projectName, "School");
    EXPECT_TRUE(closesWithoutAQuestion());
}

TEST_F(SavedZones, OfANewDocumentAreNoneAndAskNothing) {
    platform.answers = {Answer::no};
    window.click("LOClearCommand");
    window.click("LONewCommand");
    EXPECT_TRUE(saveIsEnabled());
    undo();
    EXPECT_FALSE(saveIsEnabled());
    EXPECT_TRUE(closesWithoutAQuestion());
}

TEST_F(SavedZones, ThatAreOpenedBeginANewHistory) {
    window.click("LONewCommand");
    undo();
    ASSERT_TRUE(canRedo());
    open("one.zon");
    EXPECT_FALSE(canUndo());
    EXPECT_FALSE(canRedo());
    EXPECT_EQ(undoCaption(), "Undo");
    typeAndLeave("LOGainsText(0)", "9");
    undo();
    EXPECT_FALSE(canUndo());
    EXPECT_FALSE(saveIsEnabled());
    EXPECT_EQ(window.ZoneList()[0].gains[1][cooling], 15);
}

TEST_F(SavedZones, OfAFileThatCannotBeReadLeaveTheHistoryAlone) {
    const std::string before = undoCaption();
    open("missing.zon");
    EXPECT_EQ(undoCaption(), before);
}

TEST_F(SavedZones, OfAnOpeningThatWasCancelledLeaveTheHistoryAlone) {
    typeAndLeave("LOGainsText(0)", "9");
    platform.answers = {Answer::cancel};
    open("one.zon");
    EXPECT_EQ(undoCaption(), "Undo [2820], [2824]");
}

// A file of which not everything could be read.

TEST_F(SavedZones, OfAHalfReadFileAreToldOf) {
    EXPECT_EQ(notice(), "");
    writeHalfFile();
    open("half.zon");
    ASSERT_EQ(window.zoneNumber(), 1);
    EXPECT_EQ(notice(), "Not all of half.zon could be read. [1242] [1246] [1249]");
    EXPECT_TRUE(window.control("NoticeLabel").visible());
    EXPECT_FALSE(window.control("NoticeCommand").visible());
}

TEST_F(SavedZones, OfAHalfReadFileAreToldOfUntilTheyAreSaved) {
    writeHalfFile();
    open("half.zon");
    typeAndLeave("LOGainsText(0)", "9");
    undo();
    EXPECT_EQ(notice(), "Not all of half.zon could be read. [1242] [1246] [1249]");
    setSaved(window, "rest.zon");
    EXPECT_EQ(notice(), "");
}

TEST_F(SavedZones, OfAHalfReadFileAreToldOfUntilAnotherFileIsOpened) {
    writeHalfFile();
    open("half.zon");
    platform.answers = {Answer::no};
    open("one.zon");
    EXPECT_EQ(notice(), "");
}

TEST_F(SavedZones, OfAHalfReadFileAreToldOfUntilTheZonesAreCleared) {
    writeHalfFile();
    open("half.zon");
    platform.answers = {Answer::no};
    window.click("LOClearCommand");
    EXPECT_EQ(notice(), "");
    undo();
    EXPECT_EQ(notice(), "Not all of half.zon could be read. [1242] [1246] [1249]");
}

TEST_F(SavedZones, OfAHalfReadFileStayUnsavedHoweverMuchIsUndone) {
    writeHalfFile();
    open("half.zon");
    EXPECT_TRUE(saveIsEnabled());
    typeAndLeave("LOGainsText(0)", "9");
    undo();
    EXPECT_TRUE(saveIsEnabled());
    EXPECT_FALSE(closesWithoutAQuestion());
}

// A value that a field does not take.

TEST_F(SavedZones, ARefusedValueIsExplainedUntilItsFieldIsLeft) {
    window.type("LODaysperWeekText", "8");
    EXPECT_EQ(notice(), "[2830]: 8 is refused, 0.0 to 7.0, now 7.0.");
    window.leave("LODaysperWeekText");
    EXPECT_EQ(notice(), "");
}

TEST_F(SavedZones, ARefusedValueWithoutAnUpperLimitIsExplainedByTheLower) {
    window.type("LOGainsText(0)", "-3");
    EXPECT_EQ(notice(), "[2820], [2824]: -3 is refused, no less than 0.0, now 0.0.");
    window.type("LOGainsText(0)", "3");
    EXPECT_EQ(notice(), "");
}

TEST_F(SavedZones, ANumberThatOverflowsItsFieldIsExplained) {
    typeAndLeave("LOHoursText(1)", "900");
    window.type("LOHoursText(1)", "99999");
    EXPECT_TRUE(window.control("LOHoursText(1)").refused());
    EXPECT_EQ(notice(), "[2828], [2840]: 99999 is refused, 0 to 32767, now 900.");
    undo();  // the visit has changed nothing: it is the 900 hours that go
    EXPECT_EQ(notice(), "");
    EXPECT_FALSE(window.control("LOHoursText(1)").refused());
}

TEST_F(SavedZones, ANumberThatNoFieldCanHoldIsExplainedAsTooLarge) {
    texts.known[1240] = "%1: %2 is too large, now %5.";
    typeAndLeave("LOGainsText(0)", "5");
    window.type("LOGainsText(0)", "1e400");
    EXPECT_EQ(notice(), "[2820], [2824]: 1e400 is too large, now 5.0.");
    window.leave("LOGainsText(0)");
    EXPECT_EQ(shown(window, "LOGainsText(0)"), "5.0");
}

TEST_F(SavedZones, WhatAFileLostIsToldBeforeARefusedValue) {
    writeHalfFile();
    open("half.zon");
    window.type("LODaysperWeekText", "8");
    EXPECT_EQ(notice(),
              "Not all of half.zon could be read. [1242] [1246] [1249] [2830]: 8 is refused, 0.0 "
              "to 7.0, now 7.0.");
}

TEST_F(LoadsUndo, HasANameForWhateverAPersonChanges) {
    texts.known[1101] = "";
    const std::string noticeAlone = "NoticeCommand\n";  // named while there is something to do
    EXPECT_EQ(namelessControls(window), noticeAlone);
    EXPECT_EQ(namelessControls(block()), noticeAlone);
}

}  // namespace
}  // namespace varnholt
