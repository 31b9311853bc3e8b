// SPDX-License-Identifier: GPL-3.0-or-later
// The second opinion's inputs in a project's file.
#include <algorithm>

#include "persistence/project_fixture.h"

namespace varnholt {
namespace {

/// Every input differs from its default and from every other.
SecondOpinionInputs unusualOpinion() {
    SecondOpinionInputs inputs;
    inputs.buriedDepth = 6.5;
    inputs.pulseHours = 5.25;
    inputs.yearsShown = 33;
    inputs.shape = typedYear;
    inputs.southern = true;
    inputs.cylinder = true;
    for (std::size_t month = 0; month < 12; ++month)
        for (const Mode mode : modes) {
            const double number = static_cast<double>(2 * month + mode);
            inputs.monthEnergy[month][mode] = 100 + number;
            inputs.monthTop[month][mode] = 200 + number;
        }
    inputs.depthChoice = depthAsTyped;
    inputs.typedDepth = 312.5;
    return inputs;
}

BoreholeProject projectWithOpinion(const SecondOpinionInputs& inputs) {
    BoreholeProject project;
    project.secondOpinion = inputs;
    return project;
}

std::string opinionBlock(const SecondOpinionInputs& inputs) {
    const std::string without = projectText(BoreholeProject{});
    const std::string with = projectText(projectWithOpinion(inputs));
    EXPECT_TRUE(with.starts_with(without));
    return with.substr(without.size());
}

TEST(SecondOpinionBlock, IsNotWrittenWhileEveryInputIsItsDefault) {
    EXPECT_EQ(opinionBlock({}), "");
    EXPECT_EQ(projectText(projectWithOpinion({})).find("Second Opinion"), std::string::npos);
}

TEST(SecondOpinionBlock, HasALineForEachInputInTheOrderOfTheWindow) {
    std::string lines = "Second Opinion 1.0\r\n6.5\r\n5.25\r\n33\r\n2\r\n1\r\n1\r\n";
    for (const int from : {100, 101, 200, 201})
        for (int month = 0; month < 12; ++month) lines += std::to_string(from + 2 * month) + "\r\n";
    EXPECT_EQ(opinionBlock(unusualOpinion()), lines + "2\r\n312.5\r\n");
}

TEST(SecondOpinionBlock, IsWrittenAsSoonAsOneInputDiffers) {
    SecondOpinionInputs inputs;
    inputs.monthTop[11][heating] = 0.1;
    const std::string block = opinionBlock(inputs);
    EXPECT_TRUE(block.starts_with("Second Opinion 1.0\r\n4\r\n0\r\n20\r\n0\r\n0\r\n0\r\n"));
    EXPECT_EQ(std::count(block.begin(), block.end(), '\n'), 1 + 6 + 48 + 2);
}

TEST(SecondOpinionBlock, IsReadAsItWasWritten) {
    BoreholeProject read;
    readProjectText(projectText(projectWithOpinion(unusualOpinion())), read);
    EXPECT_EQ(read.secondOpinion, unusualOpinion());
}

TEST(SecondOpinionBlock, LeavesTheDefaultsToAProjectWithoutIt) {
    BoreholeProject read = projectWithOpinion(unusualOpinion());
    readProjectText(projectText(BoreholeProject{}), read);
    EXPECT_EQ(read.secondOpinion, SecondOpinionInputs{});
}

class SecondOpinionFile : public ProjectTest {
 protected:
    SecondOpinionFile() {
        texts.known.insert({{1236, "Not all of %1 could be read."},
                            {1244, "More from line %1 on."},
                            {1249, "Saving asks for a name."},
                            {1260, "Part %1 from line %2."}});
    }

    frmBHDesign& openText(const std::string& text) {
        replaceWholeFile(folder / "work files/opinion.vht", text);
        return open("work files/opinion.vht");
    }
    std::string notice() { return design().control("NoticeLabel").caption(); }
    std::string bytes(const std::string& name) { return readWholeFile(folder / name); }
    const std::string whole = projectText(projectWithOpinion(unusualOpinion()));
    const std::string plain = projectText(BoreholeProject{});
};

TEST_F(SecondOpinionFile, IsOpenedWithoutAWord) {
    EXPECT_EQ(openText(whole).project().secondOpinion, unusualOpinion());
    EXPECT_EQ(notice(), "");
    EXPECT_FALSE(design().isChanged());
    EXPECT_FALSE(design().isStale());
    EXPECT_EQ(messages(), 0U);
}

TEST_F(SecondOpinionFile, ComesBackByteForByte) {
    openText(whole);
    main.click("mnuFileSave");
    EXPECT_EQ(bytes("work files/opinion.vht"), whole);
}

TEST_F(SecondOpinionFile, IsAnOrdinaryProjectAgainOnceTheInputsAreTheDefaults) {
    frmBHDesign& opened = openText(whole);
    opened.secondOpinionInputs() = {};
    main.click("mnuFileSave");
    EXPECT_EQ(bytes("work files/opinion.vht"), plain);
}

/// Wherever the block is cut, it is whole or all of it is the defaults; and what is not whole is
/// told.
TEST_F(SecondOpinionFile, TakesTheDefaultsWhereverItIsCut) {
    frmBHDesign& into = newDesign();
    for (std::size_t length = plain.size(); length < whole.size(); ++length) {
        SCOPED_TRACE(length);
        // Nothing of the block, and a return without its feed, which ends a line as well.
        const bool without = length == plain.size();
        const bool complete = length + 1 == whole.size();
        ReadingReport report;
        readProjectText(whole.substr(0, length), into, &report);
        EXPECT_EQ(into.project().secondOpinion,
                  complete ? unusualOpinion() : SecondOpinionInputs{});
        EXPECT_EQ(report.isWhole(), without || complete);
        const std::size_t lines =
            static_cast<std::size_t>(std::count(plain.begin(), plain.end(), '\n'));
        const std::vector<UnreadPart> cut{{"Second Opinion", lines + 1}};
        EXPECT_EQ(report.unread, without || complete ? std::vector<UnreadPart>{} : cut);
        EXPECT_EQ(into.project().arrangement, BoreholeProject{}.arrangement);
    }
}

TEST_F(SecondOpinionFile, TellsWhereItIsCutAndStaysAsItIsOnTheDisk) {
    for (const std::size_t cut : {std::size_t{3}, std::size_t{17}, std::size_t{60}}) {
        const std::string text = whole.substr(0, whole.size() - cut);
        const frmBHDesign& opened = openText(text);
        EXPECT_NE(notice().find("Part Second Opinion"), std::string::npos) << notice();
        EXPECT_TRUE(opened.savesUnderNewName());
        EXPECT_EQ(messages(), 0U);
        closeAll();
    }
}

TEST_F(SecondOpinionFile, TellsADamagedOrANewerBlockAndSavesItUnderAnotherName) {
    const std::string_view title = "Second Opinion 1.0";
    const auto changed = [&](const std::string& from, const std::string& to) {
        std::string text = whole;
        return text.replace(text.find(from, plain.size()), from.size(), to);
    };
    const auto line = std::count(plain.begin(), plain.end(), '\n') + 1;
    for (const std::string& text :
         {changed(std::string(title), "Second Opinion 1.1"),
          changed(std::string(title), "Second Opinion 2.0"), changed("\r\n6.5\r\n", "\r\nabc\r\n"),
          changed("\r\n6.5\r\n", "\r\n6.5x\r\n"), changed("\r\n6.5\r\n", "\r\n\r\n"),
          changed("\r\n33\r\n2\r\n", "\r\n33\r\n3\r\n"),
          changed("\r\n33\r\n2\r\n", "\r\n33\r\n1.5\r\n"), changed("\r\n312.5", "\r\n1e999"),
          changed("\r\n2\r\n312.5", "\r\n-1\r\n312.5")}) {
        SCOPED_TRACE(text.substr(plain.size(), 60));
        const frmBHDesign& opened = openText(text);
        EXPECT_EQ(opened.project().secondOpinion, SecondOpinionInputs{});
        EXPECT_NE(notice().find("Part Second Opinion from line " + std::to_string(line) + "."),
                  std::string::npos)
            << notice();
        pick("work files/other.vht");
        main.click("mnuFileSave");
        EXPECT_EQ(bytes("work files/opinion.vht"), text);
        EXPECT_EQ(bytes("work files/other.vht"), plain);
        EXPECT_EQ(notice(), "");
        EXPECT_EQ(messages(), 0U);
        closeAll();
        std::filesystem::remove(folder / "work files/other.vht");
    }
}

/// What a designer asks of a length stands behind it, under a title of its own.
TEST_F(SecondOpinionFile, LeavesTheBlockBehindItUnharmedWhereItIsDamaged) {
    const std::string behind = "What If 1.0\r\ncostFoot 15\r\nEnd\r\n";
    std::string text = whole + behind;
    text.replace(text.find("\r\n6.5\r\n", plain.size()), 7, "\r\nabc\r\n");
    frmBHDesign& opened = openText(text);
    EXPECT_EQ(opened.project().secondOpinion, SecondOpinionInputs{});
    EXPECT_EQ(opened.project().whatIf.prices.costFoot, 15);
    const auto line = std::count(plain.begin(), plain.end(), '\n') + 1;
    EXPECT_NE(notice().find("Part Second Opinion from line " + std::to_string(line) + "."),
              std::string::npos)
        << notice();
    EXPECT_EQ(notice().find("What If"), std::string::npos) << notice();
    EXPECT_EQ(notice().find("More from line"), std::string::npos) << notice();
    EXPECT_TRUE(opened.savesUnderNewName());
    pick("work files/other.vht");
    main.click("mnuFileSave");
    EXPECT_EQ(bytes("work files/opinion.vht"), text);
    EXPECT_EQ(bytes("work files/other.vht"), plain + behind);
    EXPECT_EQ(messages(), 0U);
}

TEST_F(SecondOpinionFile, TellsEachBlockThatIsDamaged) {
    openText(plain + "Second Opinion 2.0\r\nclay\r\nWhat If 1.0\r\ncostFoot\r\nEnd\r\nmore\r\n");
    const auto line = std::count(plain.begin(), plain.end(), '\n') + 1;
    EXPECT_NE(notice().find("Part Second Opinion from line " + std::to_string(line) + "."),
              std::string::npos)
        << notice();
    EXPECT_NE(notice().find("Part What If from line " + std::to_string(line + 2) + "."),
              std::string::npos)
        << notice();
    EXPECT_EQ(notice().find("More from line"), std::string::npos) << notice();
}

TEST_F(SecondOpinionFile, TellsLinesBehindTheBlocksBesideADamagedOne) {
    openText(plain + "Second Opinion 2.0\r\nWhat If 1.0\r\ncostFoot 15\r\nEnd\r\nmore\r\n");
    const auto line = std::count(plain.begin(), plain.end(), '\n') + 1;
    EXPECT_NE(notice().find("Part Second Opinion"), std::string::npos) << notice();
    EXPECT_NE(notice().find("More from line " + std::to_string(line + 4) + " on."),
              std::string::npos)
        << notice();
}

TEST_F(SecondOpinionFile, TellsLinesBehindItAsBehindAnyBody) {
    EXPECT_EQ(openText(whole + "more\r\n").project().secondOpinion, unusualOpinion());
    EXPECT_NE(notice().find("More from line"), std::string::npos) << notice();
}

TEST_F(SecondOpinionFile, IsSavedFromTheWindowThatIsInFront) {
    frmBHDesign& opened = openText(plain);
    opened.click("CASecondOpinionCommand");
    ChildWindow& window = *main.activeWindow();
    ASSERT_EQ(window.formName(), "frmSecondOpinion");
    EXPECT_EQ(window.caption(), "[2630] - opinion.vht");
    window.type("SEBuriedDepthText", "6");
    EXPECT_TRUE(opened.isChanged());
    main.click("mnuFileSave");
    EXPECT_FALSE(opened.isChanged());
    EXPECT_NE(bytes("work files/opinion.vht").find("Second Opinion 1.0\r\n6\r\n"),
              std::string::npos);
    pick("work files/renamed.vht");
    main.click("mnuFileSaveAs");
    EXPECT_EQ(window.caption(), "[2630] - renamed.vht");
}

TEST_F(SecondOpinionFile, IsNoDefaultOfANewDesign) {
    openText(whole);
    main.click("mnuFileSave");
    closeAll();
    EXPECT_EQ(newDesign().project().secondOpinion, SecondOpinionInputs{});
}

}  // namespace
}  // namespace varnholt
