// SPDX-License-Identifier: GPL-3.0-or-later
// Entering, changing and deleting manufacturers and series.
#include <gtest/gtest.h>

#include "catalogue/editor/editor_fixture.h"

namespace varnholt {
namespace {

class EditorInformation : public EditorTest {
 protected:
    /// The panel for a new manufacturer.
    frmHPEdit& entering(const std::string& target = "[4108] ") {
        frmHPEdit& window = editor();
        choose(window, "MfgCombo", "[4102] ");
        choose(window, "SelectMfgCombo", target);
        return window;
    }
    static void typeNames(frmHPEdit& window, const std::string& maker, const std::string& series,
                          const std::string& file) {
        if (!window.control("ManufacturerAddressText(0)").locked())
            window.type("ManufacturerAddressText(0)", maker);
        window.type("SeriesInfoText(0)", series);
        typeAndLeave(window, "SeriesInfoText(1)", file);
    }
};

TEST_F(EditorInformation, RevealsTheFieldsForAChoice) {
    frmHPEdit& window = editor();
    choose(window, "MfgCombo", "[4102] ");
    EXPECT_TRUE(visible(window, "PumpInfoPicture"));
    EXPECT_FALSE(visible(window, "NoInfoPicture"));
    EXPECT_TRUE(enabled(window, "SelectMfgCombo"));
    EXPECT_EQ(control(window, "SelectMfgCombo").index(), 0);
    EXPECT_FALSE(visible(window, "InsidePumpInfoPicture"));
    choose(window, "SelectMfgCombo", "[4108] ");
    EXPECT_TRUE(visible(window, "InsidePumpInfoPicture"));
    EXPECT_EQ(window.pumpInfoFrameMode, "newMfg");
    EXPECT_EQ(control(window, "ProceedCommand").caption(), "[4119]");
    EXPECT_EQ(control(window, "SeriesInfoDTPicker").date(), platform.day);
    choose(window, "SelectMfgCombo", "[4107] ");
    EXPECT_FALSE(visible(window, "InsidePumpInfoPicture"));
}

TEST_F(EditorInformation, CopiesTheAddressOfAManufacturerAndLocksIt) {
    frmHPEdit& window = entering("Dale ");
    EXPECT_EQ(window.pumpInfoFrameMode, "newSeries");
    const char* lines[] = {"Dale", "1 Street", "Town", "USA", "555"};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(window.element("ManufacturerAddressText", i).text(), lines[i]);
        EXPECT_TRUE(window.element("ManufacturerAddressText", i).locked());
    }
    EXPECT_EQ(shown(window, "SeriesInfoText(0)"), "");
    choose(window, "SelectMfgCombo", "[4108] ");
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(window.element("ManufacturerAddressText", i).text(), "");
        EXPECT_FALSE(window.element("ManufacturerAddressText", i).locked());
    }
}

TEST_F(EditorInformation, EntersAManufacturerWithItsFirstSeries) {
    frmHPEdit& window = entering();
    typeNames(window, "Creek", "Small", "f_small.hpd");
    EXPECT_EQ(shown(window, "SeriesInfoText(1)"), "f_small");
    window.type("ManufacturerAddressText(4)", "555-0101");
    window.pickDate("SeriesInfoDTPicker", {2026, 11, 3});
    window.click("ProceedCommand");
    EXPECT_TRUE(platform.messages.empty());
    const auto read = indexOnDisk();
    ASSERT_EQ(read.size(), 3u);
    EXPECT_EQ(read[1].mfgInfo, (PumpManufacturerInfo{"Creek", "", "", "", "555-0101"}));
    EXPECT_EQ(read[1].seriesInfo[0], (PumpSeriesInfo{"Small", "f_small", {2026, 11, 3}}));
    EXPECT_EQ(onDisk("f_small").seriesInfo.seriesName, "Small");
    EXPECT_TRUE(onDisk("f_small").models.empty());
    EXPECT_EQ(shown(window, "MfgCombo"), "Creek ");
    EXPECT_EQ(shown(window, "SeriesCombo"), "Small ");
    EXPECT_TRUE(visible(window, "PumpDataPicture"));
    for (const char* command :
         {"SaveCommand", "CopyCommand", "RemoveCommand", "ReorderCommand", "ClearCommand"})
        EXPECT_FALSE(enabled(window, command)) << command;
    EXPECT_TRUE(enabled(window, "NewCommand"));
    EXPECT_EQ(written, 1);
    EXPECT_FALSE(window.history().canUndo());
}

TEST_F(EditorInformation, EntersASeriesOfAManufacturer) {
    frmHPEdit& window = entering("Brook ");
    typeNames(window, "", "Brine", "f_brine");
    window.click("ProceedCommand");
    const auto read = indexOnDisk();
    ASSERT_EQ(read[0].seriesInfo.size(), 3u);
    EXPECT_EQ(read[0].seriesInfo[1].seriesName, "Brine");
    EXPECT_EQ(shown(window, "SeriesCombo"), "Brine ");
}

TEST_F(EditorInformation, TellsTheFirstThingThatIsWrong) {
    struct Case {
        const char *target, *maker, *series, *file, *message;
    };
    const Case cases[] = {
        {"[4108] ", "", "S", "f", "[4513]"},      {"[4108] ", "M", "", "f", "[4513]"},
        {"[4108] ", "M", "S", "", "[4513]"},      {"[4108] ", "M", "S", ".hpd", "[4513]"},
        {"[4108] ", " ", "S", "f", "[4513]"},     {"[4108] ", "Brook", "S", "f_air", "[4514]"},
        {"Brook ", "", "Air", "f_air", "[4515]"}, {"Brook ", "", "S", "f_one", "[4516]"},
        {"[4108] ", "M", "S", "f_one", "[4516]"}, {"[4108] ", "M", "S", "../f", "[4513]"},
        {"[4108] ", "M", "S", "a/b", "[4527]"},   {"[4108] ", "M", "S", "CON", "[4527]"}};
    for (const Case& each : cases) {
        SCOPED_TRACE(std::string(each.message) + " " + each.file);
        frmHPEdit& window = entering(each.target);
        typeNames(window, each.maker, each.series, each.file);
        platform.messages.clear();
        window.click("ProceedCommand");
        EXPECT_EQ(lastMessage().substr(0, 6), each.message);
        EXPECT_EQ(platform.messages.front().icon, MessageIcon::exclamation);
        EXPECT_TRUE(visible(window, "PumpInfoPicture"));
        window.click("CancelCommand");
    }
    EXPECT_EQ(indexOnDisk(), index);
    EXPECT_EQ(written, 0);
    // Nothing but the four files of before.
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(pumps()),
                            std::filesystem::directory_iterator()),
              4);
}

TEST_F(EditorInformation, TellsUpperFromLowerCase) {
    frmHPEdit& window = entering();
    typeNames(window, "brook", "air", "F_AIR");
    window.click("ProceedCommand");
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(indexOnDisk()[1].mfgInfo.mfgName, "brook");
}

TEST_F(EditorInformation, RefusesAFileNameThatIsTooLong) {
    frmHPEdit& window = entering();
    typeNames(window, "M", "S", std::string(300, 'a'));
    window.click("ProceedCommand");
    EXPECT_EQ(lastMessage().substr(0, 6), "[4527]");
}

TEST_F(EditorInformation, RefusesAThirtySeventhSeries) {
    for (int i = 1; i < 36; ++i)
        addSeries("Dale", "S" + std::to_string(i), "g" + std::to_string(i), {}, 0);
    frmHPEdit& window = entering("Dale ");
    typeNames(window, "", "S99", "g99");
    window.click("ProceedCommand");
    EXPECT_EQ(lastMessage(), "[4528]");
    EXPECT_EQ(indexOnDisk(), index);
    EXPECT_FALSE(fileExists(seriesFile("g99")));
}

TEST_F(EditorInformation, FindsThePumpsOfAFileThatIsThereAlready) {
    frmHPEdit& window = opened("Dale", "One");
    platform.answers = {Answer::yes};
    window.click("DeleteSeriesCommand");
    EXPECT_EQ(platform.questions.back().title, "[4518]");
    EXPECT_EQ(platform.questions.back().text, "[4517]");
    ASSERT_EQ(indexOnDisk().size(), 1u);
    EXPECT_TRUE(fileExists(seriesFile("f_one")));
    EXPECT_TRUE(visible(window, "NoInfoPicture"));
    EXPECT_EQ(names(window), Names{});
    EXPECT_EQ(control(window, "MfgCombo").items(), (Names{"[4101] ", "[4102] ", "Brook "}));
    choose(window, "MfgCombo", "[4102] ");
    choose(window, "SelectMfgCombo", "[4108] ");
    typeNames(window, "Elm", "New", "f_one");
    window.click("ProceedCommand");
    EXPECT_EQ(window.pumpInfoFrameMode, "Return");
    EXPECT_EQ(names(window), Names{"D1"});
    EXPECT_TRUE(visible(window, "PumpDataPicture"));
    // Its heading still names Dale.
    EXPECT_TRUE(enabled(window, "SaveCommand"));
    window.click("SaveCommand");
    EXPECT_EQ(onDisk("f_one").mfgInfo.mfgName, "Elm");
    choose(window, "MfgCombo", "[4102] ");
    window.click("CancelCommand");
    EXPECT_TRUE(visible(window, "NoInfoPicture"));
    EXPECT_EQ(control(window, "MfgCombo").index(), 0);
}

TEST_F(EditorInformation, KeepsTheOtherSeriesOfAManufacturer) {
    frmHPEdit& window = opened("Brook", "Air");
    platform.answers = {Answer::no, Answer::yes};
    window.click("DeleteSeriesCommand");
    EXPECT_EQ(indexOnDisk(), index);
    window.click("DeleteSeriesCommand");
    ASSERT_EQ(indexOnDisk().size(), 2u);
    EXPECT_EQ(indexOnDisk()[0].seriesInfo.front().seriesName, "Water");
    EXPECT_EQ(written, 1);
}

TEST_F(EditorInformation, ReturnsFromThePanelToTheSeries) {
    frmHPEdit& window = opened();
    choose(window, "MfgCombo", "[4102] ");
    choose(window, "SelectMfgCombo", "[4108] ");
    window.click("CancelCommand");
    EXPECT_TRUE(visible(window, "PumpDataPicture"));
    EXPECT_EQ(shown(window, "MfgCombo"), "Brook ");
    EXPECT_EQ(shown(window, "SeriesCombo"), "Air ");
    EXPECT_EQ(names(window), (Names{"A1", "A2", "A3"}));
}

TEST_F(EditorInformation, CancelledWithoutASeriesShowsNothing) {
    frmHPEdit& window = entering();
    window.click("CancelCommand");
    EXPECT_TRUE(visible(window, "NoInfoPicture"));
    EXPECT_EQ(control(window, "MfgCombo").index(), 0);
}

TEST_F(EditorInformation, BringsNoChangesBackThatWereDropped) {
    frmHPEdit& window = opened();
    window.type("PumpModelText", "A1x");
    platform.answers = {Answer::no};
    choose(window, "MfgCombo", "[4102] ");
    window.click("CancelCommand");
    EXPECT_EQ(names(window), (Names{"A1", "A2", "A3"}));
    EXPECT_FALSE(enabled(window, "SaveCommand"));
}

TEST_F(EditorInformation, AsksBeforeAnotherTargetDropsWhatWasTyped) {
    frmHPEdit& window = entering();
    window.type("ManufacturerAddressText(4)", "555-0101");
    platform.answers = {Answer::no, Answer::yes};
    choose(window, "SelectMfgCombo", "Dale ");
    EXPECT_EQ(platform.questions.back().title, "[4110]");
    EXPECT_EQ(platform.questions.back().text, "[4534]");
    EXPECT_EQ(shown(window, "SelectMfgCombo"), "[4108] ");
    EXPECT_EQ(shown(window, "ManufacturerAddressText(4)"), "555-0101");
    EXPECT_EQ(window.pumpInfoFrameMode, "newMfg");
    choose(window, "SelectMfgCombo", "Dale ");
    EXPECT_EQ(shown(window, "ManufacturerAddressText(4)"), "555");
    EXPECT_EQ(window.pumpInfoFrameMode, "newSeries");
    // The address of a manufacturer has not been typed.
    choose(window, "SelectMfgCombo", "[4108] ");
    EXPECT_EQ(platform.questions.size(), 2u);
    window.pickDate("SeriesInfoDTPicker", {2026, 11, 3});
    platform.answers = {Answer::yes};
    choose(window, "SelectMfgCombo", "[4107] ");
    EXPECT_FALSE(visible(window, "InsidePumpInfoPicture"));
    choose(window, "SelectMfgCombo", "Dale ");
    EXPECT_EQ(platform.questions.size(), 3u);
}

TEST_F(EditorInformation, AsksBeforeTheListsOrTheWindowsEndDropWhatWasTyped) {
    frmHPEdit& window = opened();
    window.click("EditSeriesCommand");
    window.type("SeriesInfoText(0)", "Air 2");
    platform.answers = {Answer::no, Answer::no, Answer::no};
    choose(window, "MfgCombo", "Dale ");
    choose(window, "SeriesCombo", "Water ");
    window.click("ExitCommand");
    EXPECT_EQ(platform.questions.size(), 3u);
    EXPECT_EQ(main.find("frmHPEdit"), &window);
    EXPECT_EQ(shown(window, "MfgCombo"), "Brook ");
    EXPECT_EQ(shown(window, "SeriesCombo"), "Air ");
    EXPECT_TRUE(visible(window, "PumpInfoPicture"));
    EXPECT_EQ(shown(window, "SeriesInfoText(0)"), "Air 2");
    platform.answers = {Answer::yes};
    choose(window, "SeriesCombo", "Water ");
    EXPECT_EQ(names(window), Names{"W1"});
    // Nothing has been typed any more.
    window.click("EditSeriesCommand");
    window.click("ExitCommand");
    EXPECT_EQ(platform.questions.size(), 4u);
    EXPECT_EQ(main.find("frmHPEdit"), nullptr);
}

TEST_F(EditorInformation, AsksForTheChangesOfThePumpsOnceTheTypedNamesMayGo) {
    frmHPEdit& window = opened();
    window.type("PumpModelText", "A1x");
    window.click("EditSeriesCommand");
    window.type("SeriesInfoText(0)", "Air 2");
    platform.answers = {Answer::yes, Answer::cancel};
    choose(window, "MfgCombo", "Dale ");
    EXPECT_EQ(platform.questions.back().text, "[4523]");
    EXPECT_EQ(shown(window, "SeriesInfoText(0)"), "Air 2");
    EXPECT_TRUE(enabled(window, "SaveCommand"));
}

TEST_F(EditorInformation, WithLinesOfASpreadsheetStaysOnOneLineOfTheFiles) {
    frmHPEdit& window = entering();
    platform.clipboardText = "Mill\r\nCreek\r\n";
    window.key("ManufacturerAddressText(0)", "Ctrl+V");
    window.type("SeriesInfoText(0)", "S");
    window.type("SeriesInfoText(1)", "f_new");
    window.click("ProceedCommand");
    window.click("NewCommand");
    window.key("PumpModelText", "Ctrl+V");
    window.click("SaveCommand");
    EXPECT_EQ(indexOnDisk()[2].mfgInfo.mfgName, "Mill Creek");
    ASSERT_EQ(onDisk("f_new").models.size(), 1u);
    EXPECT_EQ(onDisk("f_new").models[0].name, "Mill Creek");
}

TEST_F(EditorInformation, ChangesASeriesInItsPlace) {
    frmHPEdit& window = opened();
    window.type("PumpModelText", "A1x");
    window.click("EditSeriesCommand");
    EXPECT_TRUE(window.editingSeriesInfo);
    EXPECT_EQ(window.pumpInfoFrameMode, "");
    EXPECT_EQ(shown(window, "SelectMfgCombo"), "Brook ");
    EXPECT_FALSE(enabled(window, "SelectMfgCombo"));
    EXPECT_FALSE(control(window, "ManufacturerAddressText(0)").locked());
    EXPECT_EQ(shown(window, "ManufacturerAddressText(2)"), "Town");
    EXPECT_EQ(shown(window, "SeriesInfoText(0)"), "Air");
    EXPECT_EQ(shown(window, "SeriesInfoText(1)"), "f_air");
    EXPECT_EQ(control(window, "SeriesInfoDTPicker").date(), (Date{2025, 3, 4}));
    EXPECT_FALSE(enabled(window, "NewCommand"));
    window.type("ManufacturerAddressText(0)", "Zeder");
    window.type("SeriesInfoText(0)", "Air 2");
    window.click("ProceedCommand");
    EXPECT_FALSE(window.editingSeriesInfo);
    ASSERT_EQ(indexOnDisk().size(), 2u);
    EXPECT_EQ(indexOnDisk()[0].mfgInfo.mfgName, "Zeder");
    EXPECT_EQ(indexOnDisk()[0].seriesInfo[0].seriesName, "Air 2");
    EXPECT_TRUE(visible(window, "PumpDataPicture"));
    // What was typed stays, and is still to be saved; the heading takes the new names then.
    EXPECT_EQ(names(window), (Names{"A1x", "A2", "A3"}));
    EXPECT_TRUE(enabled(window, "SaveCommand"));
    EXPECT_EQ(word(window, "PumpList(2).mfgInfo.mfgName"), "Zeder");
    EXPECT_EQ(word(window, "PumpList(2).seriesInfo.seriesName"), "Air 2");
    EXPECT_EQ(onDisk("f_air").mfgInfo.mfgName, "Brook");
    window.click("SaveCommand");
    EXPECT_EQ(onDisk("f_air").mfgInfo.mfgName, "Zeder");
}

TEST_F(EditorInformation, LetsASeriesKeepItsNames) {
    frmHPEdit& window = opened();
    window.click("EditSeriesCommand");
    window.type("ManufacturerAddressText(4)", "556");
    window.click("ProceedCommand");
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(indexOnDisk()[0].mfgInfo.phone, "556");
}

TEST_F(EditorInformation, RefusesNamesOfOthersForAChangedSeries) {
    struct Case {
        const char *maker, *series, *file, *message;
    };
    const Case cases[] = {{"Dale", "Air", "f_air", "[4514]"},
                          {"Brook", "Water", "f_air", "[4515]"},
                          {"Brook", "Air", "f_one", "[4516]"},
                          {"Brook", "Air", "a/b", "[4527]"}};
    frmHPEdit& window = opened();
    window.click("EditSeriesCommand");
    for (const Case& each : cases) {
        typeNames(window, each.maker, each.series, each.file);
        window.click("ProceedCommand");
        EXPECT_EQ(lastMessage().substr(0, 6), each.message);
    }
    EXPECT_EQ(indexOnDisk(), index);
}

TEST_F(EditorInformation, KeepsThePumpsUnderANewFileName) {
    frmHPEdit& window = opened();
    window.click("EditSeriesCommand");
    window.type("SeriesInfoText(1)", "f_other");
    window.click("ProceedCommand");
    EXPECT_EQ(names(window).size(), 3u);
    EXPECT_TRUE(enabled(window, "SaveCommand"));
    EXPECT_FALSE(fileExists(seriesFile("f_other")));
    window.click("SaveCommand");
    EXPECT_EQ(onDisk("f_other").models.size(), 3u);
    EXPECT_TRUE(fileExists(seriesFile("f_air")));
}

TEST_F(EditorInformation, OfASeriesWithoutPumpsIsToBeSavedUnderANewFileName) {
    frmHPEdit& window = entering();
    typeNames(window, "Creek", "Small", "f_small");
    window.click("ProceedCommand");
    window.click("EditSeriesCommand");
    window.type("SeriesInfoText(0)", "Smaller");
    window.click("ProceedCommand");
    EXPECT_FALSE(enabled(window, "SaveCommand"));
    window.click("EditSeriesCommand");
    window.type("SeriesInfoText(1)", "f_smaller");
    window.click("ProceedCommand");
    EXPECT_TRUE(enabled(window, "SaveCommand"));
    window.click("SaveCommand");
    EXPECT_TRUE(onDisk("f_smaller").models.empty());
}

TEST_F(EditorInformation, AsksBeforeANewFileNameTakesAnotherFile) {
    overwrite(seriesFile("stray"), "not a series");
    frmHPEdit& window = opened();
    window.click("EditSeriesCommand");
    window.type("SeriesInfoText(1)", "stray");
    window.click("ProceedCommand");
    platform.answers = {Answer::no};
    window.click("SaveCommand");
    EXPECT_NE(platform.questions.back().text.find("[4524]"), std::string::npos);
    EXPECT_EQ(readWholeFile(seriesFile("stray")), "not a series");
}

TEST_F(EditorInformation, LeavesEverythingAsItWasWhenTheIndexCannotBeWritten) {
    frmHPEdit& window = entering();
    typeNames(window, "M", "S", "f_new");
    // A folder in the place of the index cannot be replaced, whoever tries.
    std::filesystem::remove(pumpIndexPath(pumps()));
    std::filesystem::create_directory(pumpIndexPath(pumps()));
    window.click("ProceedCommand");
    EXPECT_EQ(lastMessage().substr(0, 6), "[4526]");
    EXPECT_TRUE(visible(window, "PumpInfoPicture"));
    EXPECT_EQ(number(window, "vhtMfgCount"), 2);
    EXPECT_EQ(written, 0);
}

TEST_F(EditorInformation, LeavesTheIndexAsItWasWhenTheSeriesFileCannotBeWritten) {
    frmHPEdit& window = entering();
    typeNames(window, "M", "S", "f_new");
    std::filesystem::remove_all(pumps());
    window.click("ProceedCommand");
    EXPECT_EQ(lastMessage().substr(0, 6), "[4526]");
    EXPECT_EQ(number(window, "vhtMfgCount"), 2);
}

TEST_F(EditorInformation, AsksBeforeADamagedIndexLosesItsRest) {
    const std::string whole = readWholeFile(pumpIndexPath(pumps()));
    overwrite(pumpIndexPath(pumps()), whole.substr(0, whole.find("Dale") + 6));
    frmHPEdit& window = entering();
    typeNames(window, "M", "S", "f_new");
    platform.answers = {Answer::no};
    window.click("ProceedCommand");
    EXPECT_NE(platform.questions.back().text.find("[4525]"), std::string::npos);
    EXPECT_EQ(readWholeFile(pumpIndexPath(pumps())), whole.substr(0, whole.find("Dale") + 6));
    EXPECT_TRUE(visible(window, "PumpInfoPicture"));
}

}  // namespace
}  // namespace varnholt
