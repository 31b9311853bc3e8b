// SPDX-License-Identifier: GPL-3.0-or-later
// Files that others have changed, damaged or mistaken for projects.
#include <algorithm>
#include <filesystem>

#include "persistence/project_fixture.h"

namespace varnholt {
namespace {

class OtherHands : public ProjectTest {
 protected:
    OtherHands() {
        texts.known.insert({{1236, "Not all of %1 could be read."},
                            {1242, "Ends at %1."},
                            {1244, "More from line %1."},
                            {1248, "Doubted."},
                            {1249, "Asks."},
                            {1250, "%1 is %2."},
                            {1252, "a zone file"},
                            {1256, "UTF-16"},
                            {1257, "no text"},
                            {8544, "%1 changed: %2, %3"},
                            {8562, "%1: line %2 is open."}});
        saveAs(newDesign(), "work files/school.vht");
        school = folder / "work files/school.vht";
        whole = bytesOf(school);
    }
    /// What another program has made of the file.
    void changeElsewhere() { writeBytes(school, whole + "\r\n"); }
    std::string notice() { return main.activeWindow()->control("NoticeLabel").caption(); }
    std::string mainNotice() const { return main.control("NoticeLabel").caption(); }
    void click(const char* entry) { main.click(entry); }

    std::string school, whole;
};

TEST_F(OtherHands, OverwriteNothingThatAnotherProgramHasWrittenWithoutAQuestion) {
    design().type("INProjectNameText", "Mine");
    changeElsewhere();
    answer(Answer::cancel);
    click("mnuFileSave");
    ASSERT_EQ(platform.questions.size(), 1U);
    EXPECT_TRUE(platform.questions[0].text.starts_with("school.vht changed: "));
    EXPECT_EQ(bytesOf(school), whole + "\r\n");
    EXPECT_TRUE(design().isChanged());
}

TEST_F(OtherHands, GiveWayWhenThePersonSaysSo) {
    design().type("INProjectNameText", "Mine");
    changeElsewhere();
    answer(Answer::yes);
    click("mnuFileSave");
    EXPECT_NE(bytesOf(school).find("Mine"), std::string::npos);
    // From now on the file is known again.
    click("mnuFileSave");
    EXPECT_EQ(platform.questions.size(), 1U);
}

TEST_F(OtherHands, LeadToAnotherNameWhenThePersonSaysSo) {
    design().type("INProjectNameText", "Mine");
    changeElsewhere();
    answer(Answer::no);
    pick("work files/mine.vht");
    click("mnuFileSave");
    EXPECT_EQ(bytesOf(school), whole + "\r\n");
    EXPECT_EQ(design().FileName, "mine.vht");
    EXPECT_FALSE(design().isChanged());
}

TEST_F(OtherHands, AreNotSeenInTheProgramsOwnSaves) {
    for (const char* name : {"One", "Two", "Three"}) {
        design().type("INProjectNameText", name);
        click("mnuFileSave");
    }
    EXPECT_TRUE(platform.questions.empty());
    EXPECT_NE(bytesOf(school).find("Three"), std::string::npos);
}

TEST_F(OtherHands, AreToldOfAFileForAsLongAsItsWindowIsOpen) {
    const auto marks = [this] {
        const std::filesystem::directory_iterator entries(folder / "work files");
        return std::count_if(begin(entries), end(entries), [](const auto& entry) {
            return entry.path().filename().string().starts_with(".varnholt-lock");
        });
    };
    closeAll();
    main.guardsFiles = true;
    open("work files/school.vht");
    EXPECT_EQ(marks(), 1);
    closeAll();
    EXPECT_EQ(marks(), 0);
}

TEST_F(OtherHands, TakeNoFileAwayThatCouldNotBeReadWhole) {
    closeAll();
    platform.questions.clear();
    writeBytes(school, whole.substr(0, whole.size() / 2));
    const std::string damaged = bytesOf(school);
    open("work files/school.vht");
    EXPECT_TRUE(notice().starts_with("Not all of school.vht could be read. Ends at "));
    EXPECT_TRUE(notice().ends_with("Doubted. Asks."));
    pick("work files/rest.vht");
    click("mnuFileSave");
    EXPECT_EQ(platform.dialogs.back().proposedName, "school.vht");
    EXPECT_EQ(bytesOf(school), damaged);
    EXPECT_EQ(design().FileName, "rest.vht");
    EXPECT_EQ(notice(), "");
    click("mnuFileSave");
    EXPECT_TRUE(platform.questions.empty());
}

TEST_F(OtherHands, AreToldOfByLinesThatBelongToNothing) {
    closeAll();
    const auto lines = std::count(whole.begin(), whole.end(), '\n');
    writeBytes(school, whole + "more\r\n");
    open("work files/school.vht");
    EXPECT_EQ(messages(), 0U);
    EXPECT_EQ(notice(), "Not all of school.vht could be read. More from line " +
                            std::to_string(lines + 1) + ". Doubted. Asks.");
    // Empty lines at the end are nobody's loss.
    closeAll();
    writeBytes(school, whole + "\r\n\r\n");
    open("work files/school.vht");
    EXPECT_EQ(notice(), "");
}

TEST_F(OtherHands, AreToldOfByALastLineThatMayHaveLostItsEnd) {
    closeAll();
    const auto lines = std::to_string(std::count(whole.begin(), whole.end(), '\n'));
    writeBytes(school, whole.substr(0, whole.size() - 2));
    open("work files/school.vht");
    EXPECT_EQ(notice(), "school.vht: line " + lines + " is open. Doubted.");
    // Nothing more is in the file that saving could take away.
    click("mnuFileSave");
    EXPECT_TRUE(bytesOf(school).ends_with("\r\n"));
    EXPECT_EQ(notice(), "");
}

TEST_F(OtherHands, AreNotTakenOverFromAFileOfAnotherKind) {
    closeAll();
    struct Case {
        std::string bytes, told;
    };
    for (const Case& each :
         {Case{"Zone Data File Version 3.0\r\n0\r\n", "other.vht is a zone file."},
          Case{"\xFF\xFEV", "other.vht is UTF-16."},
          Case{whole + std::string(1, '\0'), "other.vht is no text."}}) {
        writeBytes(folder / "work files/other.vht", each.bytes);
        pick("work files/other.vht");
        click("mnuFileOpen");
        EXPECT_TRUE(main.windows().empty());
        EXPECT_EQ(mainNotice(), each.told);
        EXPECT_TRUE(main.control("NoticeLabel").visible());
    }
    EXPECT_EQ(messages(), 0U);
    click("NewBorehole");
    EXPECT_EQ(mainNotice(), "");
    EXPECT_FALSE(main.control("NoticeLabel").visible());
}

TEST_F(OtherHands, MayHoldAProjectWithAnUnknownTitle) {
    closeAll();
    writeBytes(folder / "work files/odd.vht", "X" + whole);
    open("work files/odd.vht");
    EXPECT_EQ(design().FileName, "odd.vht");
    EXPECT_EQ(notice(), "");
}

TEST_F(OtherHands, NeverMakeATrapOfAProjectThatIsCutAnywhere) {
    closeAll();
    const auto linesOf = [](const std::string& text) {
        return std::count(text.begin(), text.end(), '\n') + (text.ends_with('\n') ? 0 : 1);
    };
    for (std::size_t end = 0; end < whole.size(); ++end) {
        SCOPED_TRACE(end);
        writeBytes(school, whole.substr(0, end));
        pick("work files/school.vht");
        click("mnuFileOpen");
        if (main.windows().empty()) {
            // Not even a second line: a box has told.
            EXPECT_LT(linesOf(whole.substr(0, end)), 3);
            continue;
        }
        // So does one that has lost the end of its last line; nothing is lost with a line feed
        // alone.
        if (end < whole.size() - 1) {
            EXPECT_NE(notice(), "");
        }
        // A file that has lost a line is not overwritten by a click.
        if (linesOf(whole.substr(0, end)) < linesOf(whole)) {
            EXPECT_NE(notice(), "");
            pick(std::nullopt);
            click("mnuFileSave");
            EXPECT_EQ(bytesOf(school), whole.substr(0, end));
        }
        closeAll();
    }
}

TEST_F(OtherHands, NeverMakeATrapOfAProjectWithAnyByteChanged) {
    closeAll();
    for (std::size_t at = 0; at < whole.size(); ++at)
        for (const char flip : {'\x01', '\x10', '\x40', '\x80'}) {
            SCOPED_TRACE(at);
            std::string changed = whole;
            changed[at] = static_cast<char>(changed[at] ^ flip);
            writeBytes(school, changed);
            pick("work files/school.vht");
            EXPECT_NO_THROW(click("mnuFileOpen"));
            closeAll();
        }
}

}  // namespace
}  // namespace varnholt
