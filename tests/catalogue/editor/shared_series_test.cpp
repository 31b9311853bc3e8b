// SPDX-License-Identifier: GPL-3.0-or-later
// Series that two programs want to edit.
#include "basis/other_program.h"
#include "catalogue/editor/editor_fixture.h"
#include "forms/text_numbers/files.h"

namespace varnholt {
namespace {

class SharedSeries : public EditorTest {
 protected:
    SharedSeries() {
        main.guardsFiles = true;
        texts.known.insert({{Text::openElsewhere, "%1 by %4"}});
        before = readWholeFile(seriesFile("f_air"));
    }

    /// Marks beside the series, whoever's.
    std::size_t marks() const {
        std::size_t found = 0;
        for (const auto& entry : std::filesystem::directory_iterator(pumps()))
            if (entry.path().filename().string().starts_with(".varnholt-lock")) ++found;
        return found;
    }
    bool isMarked(const std::string& file) const {
        bool marked = false;
        const pid_t child = ::fork();
        if (child == 0) {
            // A mark of its own goes before the process does.
            const bool held = lockFile(seriesFile(file)).holder.has_value();
            ::_exit(held ? 1 : 0);
        }
        int status = 0;
        if (::waitpid(child, &status, 0) == child) marked = WEXITSTATUS(status) == 1;
        return marked;
    }
    static void enter(frmHPEdit& window, const std::string& name, const std::string& file) {
        window.type("SeriesInfoText(0)", name);
        typeAndLeave(window, "SeriesInfoText(1)", file);
        window.click("ProceedCommand");
    }
    static std::string notice(frmHPEdit& window) {
        return control(window, "NoticeLabel").caption();
    }

    std::string before;
};

TEST_F(SharedSeries, AreMarkedAsLongAsTheyAreOpenInTheEditor) {
    frmHPEdit& window = opened();
    EXPECT_EQ(marks(), 1U);
    EXPECT_TRUE(isMarked("f_air"));
    window.type("PumpModelText", "A1x");
    window.click("SaveCommand");
    EXPECT_TRUE(isMarked("f_air"));
    // The same series once more: this program's own mark is nobody else's.
    choose(window, "SeriesCombo", "Air ");
    EXPECT_TRUE(isMarked("f_air"));
    choose(window, "SeriesCombo", "Water ");
    EXPECT_FALSE(isMarked("f_air"));
    EXPECT_TRUE(isMarked("f_water"));
    choose(window, "SeriesCombo", "[4104] ");
    EXPECT_EQ(marks(), 0U);
    choose(window, "SeriesCombo", "Water ");
    EXPECT_EQ(marks(), 1U);
    window.click("ExitCommand");
    EXPECT_EQ(marks(), 0U);
    EXPECT_TRUE(platform.questions.empty());
}

TEST_F(SharedSeries, AreNeitherMarkedNorAskedAboutWhereFilesAreNotGuarded) {
    main.guardsFiles = false;
    const OtherProgram other(seriesFile("f_air"));
    frmHPEdit& window = opened();
    window.type("PumpModelText", "A1x");
    window.click("SaveCommand");
    choose(window, "SeriesCombo", "Water ");
    EXPECT_EQ(onDisk("f_air").models[0].name, "A1x");
    EXPECT_EQ(marks(), 1U);
    EXPECT_TRUE(platform.questions.empty());
}

TEST_F(SharedSeries, StayClosedWhenTheQuestionIsCancelled) {
    const OtherProgram other(seriesFile("f_air"));
    platform.answers = {Answer::cancel};
    frmHPEdit& window = opened();
    ASSERT_EQ(platform.questions.size(), 1U);
    EXPECT_EQ(platform.questions[0].title, "[8547]");
    EXPECT_EQ(platform.questions[0].text, "f_air.hpd by " + std::to_string(other.process()));
    EXPECT_EQ(names(window), Names{});
    EXPECT_EQ(shown(window, "SeriesCombo"), "[4104] ");
    EXPECT_TRUE(visible(window, "NoInfoPicture"));
    EXPECT_FALSE(enabled(window, "NewCommand"));
}

TEST_F(SharedSeries, OpenToBeReadAndAreSavedAsSeriesOfTheirOwn) {
    const OtherProgram other(seriesFile("f_air"));
    platform.answers = {Answer::no};
    frmHPEdit& window = opened();
    EXPECT_EQ(names(window), (Names{"A1", "A2", "A3"}));
    EXPECT_TRUE(visible(window, "PumpDataPicture"));
    EXPECT_EQ(notice(window), "[8556]");
    window.type("PumpModelText", "A1x");
    window.click("SaveCommand");
    EXPECT_TRUE(visible(window, "PumpInfoPicture"));
    EXPECT_EQ(shown(window, "ManufacturerAddressText(0)"), "Brook");
    EXPECT_EQ(shown(window, "SeriesInfoText(1)"), "");
    EXPECT_EQ(readWholeFile(seriesFile("f_air")), before);
    enter(window, "Air Mine", "f_mine");
    EXPECT_EQ(readWholeFile(seriesFile("f_air")), before);
    ASSERT_EQ(onDisk("f_mine").models.size(), 3U);
    EXPECT_EQ(onDisk("f_mine").models[0].name, "A1x");
    EXPECT_EQ(onDisk("f_mine").seriesInfo.seriesName, "Air Mine");
    // "Air" < "Air Mine" < "Water"
    EXPECT_EQ(indexOnDisk()[0].seriesInfo[1].FileName, "f_mine");
    EXPECT_EQ(names(window), (Names{"A1x", "A2", "A3"}));
    EXPECT_EQ(shown(window, "SeriesCombo"), "Air Mine ");
    EXPECT_FALSE(enabled(window, "SaveCommand"));
    EXPECT_EQ(notice(window), "");
    EXPECT_TRUE(isMarked("f_mine"));
    window.type("PumpModelText", "A1y");
    window.click("SaveCommand");
    EXPECT_EQ(onDisk("f_mine").models[0].name, "A1y");
    EXPECT_EQ(platform.questions.size(), 1U);
}

TEST_F(SharedSeries, OpenAsCopiesThatAreNamedAtOnce) {
    const OtherProgram other(seriesFile("f_air"));
    platform.answers = {Answer::yes};
    frmHPEdit& window = opened();
    EXPECT_TRUE(visible(window, "PumpInfoPicture"));
    EXPECT_EQ(shown(window, "SelectMfgCombo"), "Brook ");
    enter(window, "Air Copy", "f_copy");
    EXPECT_EQ(names(window), (Names{"A1", "A2", "A3"}));
    EXPECT_EQ(onDisk("f_copy").models.size(), 3U);
    EXPECT_EQ(readWholeFile(seriesFile("f_air")), before);
}

TEST_F(SharedSeries, KeepTheirPumpsWhenNoNameIsGiven) {
    const OtherProgram other(seriesFile("f_air"));
    platform.answers = {Answer::yes};
    frmHPEdit& window = opened();
    window.click("CancelCommand");
    EXPECT_TRUE(visible(window, "PumpDataPicture"));
    EXPECT_EQ(notice(window), "[8556]");
    window.type("PumpModelText", "A1x");
    platform.answers = {Answer::yes};
    // Saving needs a name first, so the window stays.
    window.click("ExitCommand");
    EXPECT_TRUE(main.isOpen(&window));
    EXPECT_TRUE(visible(window, "PumpInfoPicture"));
    window.click("CancelCommand");
    EXPECT_EQ(names(window), (Names{"A1x", "A2", "A3"}));
    EXPECT_TRUE(enabled(window, "SaveCommand"));
    EXPECT_EQ(readWholeFile(seriesFile("f_air")), before);
}

TEST_F(SharedSeries, NeverTakeTheNameOfAFileThatIsThere) {
    overwrite(seriesFile("f_stray"), "another's");
    const OtherProgram other(seriesFile("f_air"));
    platform.answers = {Answer::yes};
    frmHPEdit& window = opened();
    enter(window, "Air Copy", "f_stray");
    EXPECT_EQ(lastMessage(), "[4516]");
    EXPECT_EQ(readWholeFile(seriesFile("f_stray")), "another's");
    // A file of the catalogue has its name too.
    enter(window, "Air Copy", "f_air");
    EXPECT_EQ(lastMessage(), "[4516]");
    enter(window, "Air Copy", "f_free");
    EXPECT_EQ(onDisk("f_free").models.size(), 3U);
}

TEST_F(SharedSeries, LeaveNoCopyWhereTheListOfTheCatalogueStays) {
    const OtherProgram other(seriesFile("f_air"));
    platform.answers = {Answer::yes};
    frmHPEdit& window = opened();
    overwrite(pumpIndexPath(pumps()), readWholeFile(pumpIndexPath(pumps())) + "\r\n");
    platform.answers = {Answer::no, Answer::yes};
    enter(window, "Air Copy", "f_copy");
    EXPECT_FALSE(fileExists(seriesFile("f_copy")));
    EXPECT_EQ(marks(), 1U);
    window.click("ProceedCommand");
    EXPECT_EQ(onDisk("f_copy").models.size(), 3U);
}

TEST_F(SharedSeries, OfAProgramThatWasKilledOpenWithoutAQuestion) {
    { const OtherProgram other(seriesFile("f_air")); }
    EXPECT_EQ(marks(), 1U);
    frmHPEdit& window = opened();
    EXPECT_TRUE(platform.questions.empty());
    EXPECT_EQ(names(window), (Names{"A1", "A2", "A3"}));
    EXPECT_EQ(notice(window), "");
    EXPECT_TRUE(isMarked("f_air"));
}

TEST_F(SharedSeries, ComeBackAfterACrashToBeReadWhereTheyAreOpenElsewhere) {
    frmHPEdit& crashed = opened();
    const std::optional<KnownFile> known = crashed.knownFile();
    const std::string bytes = crashed.seriesText()();
    main.close(crashed);
    const OtherProgram other(seriesFile("f_air"));
    frmHPEdit& window = editor();
    ASSERT_TRUE(window.takeRecovered(bytes, seriesFile("f_air"), known));
    EXPECT_TRUE(platform.questions.empty());
    EXPECT_EQ(notice(window), "[8556]");
    window.click("SaveCommand");
    EXPECT_TRUE(visible(window, "PumpInfoPicture"));
    EXPECT_EQ(readWholeFile(seriesFile("f_air")), before);
}

TEST_F(SharedSeries, ThatGetAnotherFileAreMarkedThere) {
    frmHPEdit& window = opened();
    window.click("EditSeriesCommand");
    typeAndLeave(window, "SeriesInfoText(1)", "f_other");
    window.click("ProceedCommand");
    EXPECT_FALSE(isMarked("f_air"));
    EXPECT_TRUE(isMarked("f_other"));
    EXPECT_EQ(marks(), 1U);
}

}  // namespace
}  // namespace varnholt
