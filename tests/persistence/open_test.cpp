// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/text_numbers/commands.h"
#include "forms/text_numbers/files.h"
#include "persistence/project_fixture.h"

namespace varnholt {
namespace {

using NewDesign = ProjectTest;

TEST_F(NewDesign, HasTheNextNumberInItsCaption) {
    EXPECT_EQ(newDesign().caption(), "Borehole Design Project #1");
    EXPECT_EQ(newDesign().caption(), "Borehole Design Project #2");
    EXPECT_FALSE(design().currentFileCheck);
    EXPECT_EQ(design().FileName, "");
}

TEST_F(NewDesign, CountsFromOneAgainWhenNoDesignIsOpen) {
    newDesign();
    newDesign();
    for (int i = 0; i < 2; ++i) {
        answer(Answer::no);
        main.close(design());
    }
    EXPECT_EQ(newDesign().caption(), "Borehole Design Project #1");
}

TEST_F(NewDesign, FreesTheSlotsOfClosedOnes) {
    frmBHDesign& first = newDesign();
    saveAs(first, "work files/first.vht");
    frmBHDesign& second = newDesign();
    saveAs(second, "work files/second.vht");
    answer(Answer::no);
    main.close(first);
    newDesign();
    EXPECT_EQ(second.counter, 1);
    EXPECT_EQ(design().counter, 2);
    EXPECT_EQ(main.openWindowFiles(DesignKind::borehole, 1), folder / "work files/second.vht");
    EXPECT_EQ(main.openWindowFiles(DesignKind::borehole, 2), "");
}

TEST_F(NewDesign, BeyondTheFiftiethSaysSo) {
    for (int i = 0; i < 50; ++i) newDesign();
    main.click("NewBorehole");
    EXPECT_EQ(lastMessage(), "[1208]");
    EXPECT_EQ(main.windows().size(), 50u);
}

using Opening = ProjectTest;

TEST_F(Opening, ShowsTheProjectWithItsResultsAsCurrent) {
    std::filesystem::copy_file(sampleProject("version_1.2.vht"), folder / "work files/old.vht");
    const frmBHDesign& d = open("work files/old.vht");
    EXPECT_EQ(d.caption(), "Borehole Design Project - old.vht");
    EXPECT_EQ(d.FileName, "old.vht");
    EXPECT_EQ(d.directoryName, folder / "work files");
    EXPECT_TRUE(d.currentFileCheck);
    EXPECT_TRUE(d.loads().file.exists);
    EXPECT_FALSE(d.isStale());
    EXPECT_EQ(d.information().projectName, "Müller School");
    EXPECT_EQ(d.control("INProjectNameText").text(), "Müller School");
    EXPECT_EQ(d.control("CATotalLengthLabel(0)").caption(), "4321.5");
    EXPECT_EQ(main.openWindowFiles(DesignKind::borehole, 1), folder / "work files/old.vht");
    EXPECT_EQ(main.TempDirectory, folder / "work files");
    EXPECT_FALSE(main.openCall);
    EXPECT_EQ(main.activeWindow(), &d);
}

TEST_F(Opening, StartsInTheFolderOfWorkFiles) {
    pick(std::nullopt);
    main.click("mnuFileOpen");
    ASSERT_EQ(platform.dialogs.size(), 1u);
    EXPECT_FALSE(platform.dialogs[0].saving);
    EXPECT_EQ(platform.dialogs[0].folder, folder / "work files");
    EXPECT_EQ(platform.dialogs[0].proposedName, "");
    EXPECT_EQ(platform.dialogs[0].filter, "[1220]");
    EXPECT_EQ(platform.dialogs[0].filterIndex, 3);
}

TEST_F(Opening, StartsInTheActiveDesignsFolderWithItsName) {
    std::filesystem::create_directory(folder / "elsewhere");
    saveAs(newDesign(), "elsewhere/school.vht");
    pick(std::nullopt);
    main.click("OpenProject");
    EXPECT_EQ(platform.dialogs.back().folder, folder / "elsewhere");
    EXPECT_EQ(platform.dialogs.back().proposedName, "school.vht");
}

TEST_F(Opening, CancelledEndsInSilence) {
    pick(std::nullopt);
    main.click("mnuFileOpen");
    EXPECT_TRUE(main.windows().empty());
    EXPECT_EQ(messages(), 0u);
    EXPECT_EQ(main.windowCounter, 0);
}

TEST_F(Opening, TheSameFileTwiceIsRefusedAndTheOpenWindowLeftAsItIs) {
    saveAs(newDesign(), "work files/school.vht");
    frmBHDesign& d = design();
    d.type("SOGroundTempText", "51");
    std::filesystem::create_symlink(folder / "work files/school.vht", folder / "link.vht");
    for (const char* name :
         {"work files/school.vht", "work files/../work files/school.vht", "link.vht"}) {
        SCOPED_TRACE(name);
        open(name);
        EXPECT_EQ(lastMessage(), "[1201]");
        EXPECT_EQ(platform.messages.back().icon, MessageIcon::exclamation);
        EXPECT_EQ(main.windows().size(), 1u);
        EXPECT_EQ(d.project().soil.groundTemp, 51);
    }
    EXPECT_EQ(messages(), 3u);
}

TEST_F(Opening, ACopyOfAnOpenFileIsAnotherFile) {
    saveAs(newDesign(), "work files/school.vht");
    std::filesystem::copy_file(folder / "work files/school.vht", folder / "work files/copy.vht");
    EXPECT_EQ(open("work files/copy.vht").caption(), "Borehole Design Project - copy.vht");
    EXPECT_EQ(main.windows().size(), 2u);
}

TEST_F(Opening, AFileThatIsNotThereOpensNoWindow) {
    texts.known.insert({{Text::noticeFileNotFound, "Not there: %1"}, {1236, "Damaged: %1"}});
    pick("work files/none.vht");
    main.click("mnuFileOpen");
    EXPECT_EQ(lastMessage(), "Varnholt - File not found");
    EXPECT_TRUE(main.windows().empty());
    // The box has fixed words; which file, and what can be done, stands above the windows.
    EXPECT_EQ(main.control("NoticeLabel").caption(),
              "Not there: " + folder / "work files/none.vht");
    pick("work files");
    main.click("mnuFileOpen");
    EXPECT_TRUE(main.control("NoticeLabel").caption().starts_with("Damaged: work files"));
    saveAs(newDesign(), "work files/school.vht");
    EXPECT_EQ(main.control("NoticeLabel").caption(), "");
}

TEST_F(Opening, AFileWithoutASecondLineOpensNoWindow) {
    texts.known[Text::noticeEndsAtOnce] = "%1 is no project.";
    for (const char* bytes : {"", "Varnholt Data File Version 3.0\r\n"}) {
        writeBytes(folder / "short.vht", bytes);
        pick("short.vht");
        main.click("mnuFileOpen");
        EXPECT_EQ(lastMessage(), "Varnholt - Input past end of file");
        EXPECT_EQ(main.control("NoticeLabel").caption(), "short.vht is no project.");
    }
    EXPECT_TRUE(main.windows().empty());
    EXPECT_FALSE(main.openCall);
}

TEST_F(Opening, AFolderOpensNoWindow) {
    pick("work files");
    main.click("mnuFileOpen");
    EXPECT_EQ(messages(), 1u);
    EXPECT_TRUE(main.windows().empty());
}

TEST_F(Opening, AFileOfNoKnownKindOpensAsAHorizontalDesign) {
    for (const char* kind : {"Horizontal Design", "anything else"}) {
        writeBytes(folder / "other.vht",
                   std::string("Varnholt Data File Version 3.0\r\n") + kind + "\r\nMill\r\n");
        pick("other.vht");
        main.click("mnuFileOpen");
        EXPECT_EQ(lastMessage(), "Varnholt - Input past end of file");
        ASSERT_EQ(main.windows().size(), 1u);
        EXPECT_EQ(main.windows().front()->formName(), "frmHZDesign");
        closeAll();
    }
}

TEST_F(Opening, ACutFileShowsWhatCouldBeReadAndTheError) {
    const std::string whole = bytesOf(sampleProject("version_1.2.vht"));
    writeBytes(folder / "cut.vht", whole.substr(0, whole.find("58.5")));
    const frmBHDesign& d = open("cut.vht");
    ASSERT_EQ(messages(), 1u);
    EXPECT_EQ(platform.messages[0].title, "Varnholt");
    EXPECT_EQ(lastMessage(), "Varnholt - Input past end of file");
    EXPECT_EQ(d.project().fluid.density, 61.5);
    EXPECT_EQ(d.project().soil.groundTemp, 62);
    EXPECT_EQ(d.FileName, "cut.vht");
}

TEST_F(Opening, ManyDamagedFilesNeverEndsInACrash) {
    for (const char* sample : {"version_2.1.vht", "horizontal_1.1.vht"}) {
        const std::string whole = bytesOf(sampleProject(sample));
        // Every seventh byte, so that each line is met.
        for (std::size_t at = 0; at < whole.size(); at += 7)
            for (const char byte : {'9', '-', '\n', 'e'}) {
                std::string changed = whole;
                changed[at] = byte;
                writeBytes(folder / "damaged.vht", changed);
                pick("damaged.vht");
                main.click("mnuFileOpen");
                while (!main.windows().empty()) {
                    // Damage to the second line makes it a horizontal one.
                    auto& d = dynamic_cast<GroundDesign&>(*main.windows().back());
                    d.click("MetricCheck");
                    d.CACalculateCommand_Click();
                    answer(Answer::no);
                    ASSERT_TRUE(main.close(d));
                }
            }
    }
}

TEST_F(Opening, ByPathNeedsNoDialog) {
    saveAs(newDesign(), "work files/school.vht");
    answer(Answer::no);
    main.close(design());
    openFile(main, folder / "work files/school.vht");
    EXPECT_EQ(design().FileName, "school.vht");
    EXPECT_EQ(platform.dialogs.size(), 1u);
}

TEST_F(Opening, AZoneFileByPathGoesToTheZoneManager) {
    writeZones(folder / "zones/school.ZON", 4);
    openFile(main, "zones/school.ZON");
    EXPECT_EQ(loads().zoneNumber(), 4);
    EXPECT_EQ(main.activeWindow(), &loads());
    // The window's own question stands before its zones are replaced.
    loads().checkForSave = false;
    writeZones(folder / "zones/other.zon", 2);
    openFile(main, "zones/other.zon");
    EXPECT_EQ(loads().zoneNumber(), 4);
}

TEST_F(Opening, TellsWhoeverKeepsTheRecentFiles) {
    std::vector<std::string> used;
    main.fileUsed = [&](const std::string& path) { used.push_back(path); };
    saveAs(newDesign(), "work files/school.vht");
    answer(Answer::no);
    main.close(design());
    open("work files/school.vht");
    EXPECT_EQ(used, (std::vector<std::string>{folder / "work files/school.vht",
                                              folder / "work files/school.vht"}));
}

}  // namespace
}  // namespace varnholt
