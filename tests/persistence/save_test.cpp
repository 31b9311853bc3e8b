// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/project_fixture.h"

namespace varnholt {
namespace {

using Saving = ProjectTest;

TEST_F(Saving, AProjectNeverSavedBehavesAsSaveAs) {
    frmBHDesign& d = newDesign();
    pick("work files/school.vht");
    main.click("mnuFileSave");
    ASSERT_EQ(platform.dialogs.size(), 1u);
    EXPECT_TRUE(platform.dialogs[0].saving);
    EXPECT_TRUE(platform.dialogs[0].overwritePrompt);
    EXPECT_EQ(platform.dialogs[0].folder, folder / "work files");
    EXPECT_EQ(platform.dialogs[0].proposedName, "#1");
    EXPECT_EQ(platform.dialogs[0].filterIndex, 3);
    EXPECT_EQ(d.caption(), "Borehole Design Project - school.vht");
    EXPECT_EQ(d.FileName, "school.vht");
    EXPECT_EQ(d.directoryName, folder / "work files");
    EXPECT_TRUE(d.currentFileCheck);
    EXPECT_EQ(main.openWindowFiles(DesignKind::borehole, 1), folder / "work files/school.vht");
    EXPECT_EQ(main.TempDirectory, folder / "work files");
    EXPECT_EQ(bytesOf(folder / "work files/school.vht"), projectText(d));
}

TEST_F(Saving, AgainAsksNothing) {
    frmBHDesign& d = newDesign();
    saveAs(d, "work files/school.vht");
    d.type("INCityText", "Stillwater");
    main.click("SaveProject");
    EXPECT_EQ(platform.dialogs.size(), 1u);
    EXPECT_NE(bytesOf(folder / "work files/school.vht").find("Stillwater"), std::string::npos);
}

TEST_F(Saving, UnderAnotherNameProposesTheOldOne) {
    frmBHDesign& d = newDesign();
    std::filesystem::create_directory(folder / "elsewhere");
    saveAs(d, "elsewhere/school.vht");
    saveAs(d, "work files/copy.vht");
    EXPECT_EQ(platform.dialogs[1].folder, folder / "elsewhere");
    EXPECT_EQ(platform.dialogs[1].proposedName, "school.vht");
    EXPECT_EQ(d.caption(), "Borehole Design Project - copy.vht");
    EXPECT_TRUE(fileExists(folder / "elsewhere/school.vht"));
    // The old name is free again.
    EXPECT_EQ(open("elsewhere/school.vht").FileName, "school.vht");
    EXPECT_EQ(messages(), 0u);
}

TEST_F(Saving, CancelledInTheDialogLeavesTheProjectUnsaved) {
    frmBHDesign& d = newDesign();
    pick(std::nullopt);
    main.click("mnuFileSaveAs");
    EXPECT_FALSE(d.currentFileCheck);
    EXPECT_TRUE(main.saveCancelled);
    EXPECT_EQ(messages(), 0u);
    EXPECT_FALSE(fileExists(folder / "vhtbh.ini"));
}

TEST_F(Saving, UnderANameInUseSaysSoAndAsksAgain) {
    saveAs(newDesign(), "work files/first.vht");
    const std::string before = bytesOf(folder / "work files/first.vht");
    frmBHDesign& second = newDesign();
    change(second, [&](BoreholeProject& of) { of.information.city = "Stillwater"; });
    pick("work files/first.vht");
    saveAs(second, "work files/second.vht");
    EXPECT_EQ(platform.dialogs.size(), 3u);
    EXPECT_EQ(messages(), 1u);
    EXPECT_EQ(lastMessage(), "[1201]");
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::exclamation);
    EXPECT_EQ(second.FileName, "second.vht");
    EXPECT_EQ(bytesOf(folder / "work files/first.vht"), before);
}

TEST_F(Saving, UnderItsOwnNameIsNoConflict) {
    frmBHDesign& d = newDesign();
    saveAs(d, "work files/first.vht");
    saveAs(d, "work files/first.vht");
    EXPECT_EQ(messages(), 0u);
}

TEST_F(Saving, ThatFailsIsToldAndChangesNoName) {
    frmBHDesign& d = newDesign();
    saveAs(d, "no such folder/school.vht");
    EXPECT_EQ(lastMessage(), "76 - Path not found: " + folder / "no such folder/school.vht");
    EXPECT_EQ(platform.messages.back().icon, MessageIcon::exclamation);
    EXPECT_FALSE(d.currentFileCheck);
    EXPECT_EQ(d.caption(), "Borehole Design Project #1");
    EXPECT_EQ(main.openWindowFiles(DesignKind::borehole, 1), "");
    EXPECT_TRUE(main.saveCancelled);
}

TEST_F(Saving, AnActiveLoadsWindowSavesItsZones) {
    main.click("mnuZoneManage");
    loads().setZones({loadedZone(5)});
    loads().unsaved = true;
    loads().savePath = folder / "zones/new.zon";
    main.click("mnuFileSave");
    EXPECT_TRUE(fileExists(folder / "zones/new.zon"));
    EXPECT_FALSE(loads().hasUnsavedChanges());
    // Only designs have a name to choose.
    EXPECT_FALSE(main.control("mnuFileSaveAs").enabled());
}

TEST_F(Saving, WithoutAWindowIsNotOffered) {
    for (const char* entry : {"mnuFileSave", "SaveProject", "mnuFileSaveAs"})
        EXPECT_FALSE(main.control(entry).enabled()) << entry;
    newDesign();
    for (const char* entry : {"mnuFileSave", "SaveProject", "mnuFileSaveAs"})
        EXPECT_TRUE(main.control(entry).enabled()) << entry;
}

class ZoneQuestion : public ProjectTest {
 protected:
    ZoneQuestion() {
        saveLinkedProject();
        loads().unsaved = true;
        loads().savePath = folder / "zones/renamed.zon";
        main.activate(design());
        before = bytesOf(folder / "work files/school.vht");
        change(design(), [&](BoreholeProject& of) { of.information.city = "Stillwater"; });
    }
    bool projectSaved() { return bytesOf(folder / "work files/school.vht") != before; }
    std::string before;
};

TEST_F(ZoneQuestion, IsNotAskedWithoutUnsavedChanges) {
    loads().unsaved = false;
    main.click("mnuFileSave");
    EXPECT_TRUE(platform.questions.empty());
    EXPECT_TRUE(projectSaved());
}

TEST_F(ZoneQuestion, CancelLeavesTheProjectUnsavedAndTheWindowOpen) {
    answer(Answer::cancel);
    main.click("mnuFileSave");
    ASSERT_EQ(platform.questions.size(), 1u);
    EXPECT_EQ(platform.questions[0].title, "[1205]");
    EXPECT_EQ(platform.questions[0].text, "[1206]");
    EXPECT_EQ(lastMessage(), "[1207]");
    EXPECT_EQ(platform.messages.back().icon, MessageIcon::exclamation);
    EXPECT_TRUE(main.saveCancelled);
    EXPECT_FALSE(projectSaved());
    EXPECT_TRUE(loads().hasUnsavedChanges());
    EXPECT_TRUE(main.isOpen(&design()));
}

TEST_F(ZoneQuestion, NoSavesTheProjectWithoutTheZones) {
    answer(Answer::no);
    main.click("mnuFileSave");
    EXPECT_TRUE(projectSaved());
    EXPECT_TRUE(loads().hasUnsavedChanges());
    EXPECT_EQ(messages(), 0u);
}

TEST_F(ZoneQuestion, YesSavesTheZonesFirstAndTakesTheirName) {
    answer(Answer::yes);
    main.click("mnuFileSave");
    EXPECT_FALSE(loads().hasUnsavedChanges());
    EXPECT_EQ(design().loads().file.name, "renamed.zon");
    EXPECT_EQ(design().loads().file.folder, folder / "zones");
    EXPECT_TRUE(design().loads().file.exists);
    EXPECT_NE(bytesOf(folder / "work files/school.vht").find("\r\nrenamed.zon\r\n"),
              std::string::npos);
}

TEST_F(ZoneQuestion, IsNotNeededToNameTheFileThatTheZonesWereSavedInSince) {
    loads().LOSaveCommand_Click();
    main.click("mnuFileSave");
    EXPECT_TRUE(platform.questions.empty());
    EXPECT_EQ(design().loads().file.name, "renamed.zon");
    EXPECT_NE(bytesOf(folder / "work files/school.vht").find("\r\nrenamed.zon\r\n"),
              std::string::npos);
}

TEST_F(ZoneQuestion, YesWithAZoneSaveThatIsCancelledLeavesTheProjectUnsaved) {
    loads().refuseSave = true;
    answer(Answer::yes);
    main.click("mnuFileSave");
    EXPECT_EQ(lastMessage(), "[1207]");
    EXPECT_TRUE(main.saveCancelled);
    EXPECT_TRUE(design().zoneSaveCancelled);
    EXPECT_TRUE(loads().zoneSaveCancelled);
    EXPECT_FALSE(projectSaved());
    // The next save that succeeds leaves nothing of it.
    loads().refuseSave = false;
    answer(Answer::yes);
    main.click("mnuFileSave");
    EXPECT_FALSE(main.saveCancelled);
    EXPECT_FALSE(design().zoneSaveCancelled);
    EXPECT_FALSE(loads().zoneSaveCancelled);
    EXPECT_TRUE(projectSaved());
}

TEST_F(ZoneQuestion, StandsBeforeTheDialogOfSaveAs) {
    answer(Answer::cancel);
    main.click("mnuFileSaveAs");
    EXPECT_EQ(platform.dialogs.size(), 1u);  // of the first save
    answer(Answer::no);
    pick("work files/copy.vht");
    main.click("mnuFileSaveAs");
    EXPECT_EQ(design().FileName, "copy.vht");
    // The loads' title follows the project's name.
    EXPECT_TRUE(design().link()->isNamed());
}

}  // namespace
}  // namespace varnholt
