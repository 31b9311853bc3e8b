// SPDX-License-Identifier: GPL-3.0-or-later
// The lists of manufacturers and series, and the question about what is not saved.
#include <gtest/gtest.h>

#include "catalogue/editor/editor_fixture.h"
#include "forms/text_numbers/editor_messages.h"

namespace varnholt {
namespace {

TEST_F(EditorTest, OpensOnceWithItsLists) {
    frmHPEdit& window = editor();
    EXPECT_EQ(&editor(), &window);
    EXPECT_EQ(window.caption(), "[4100]");
    EXPECT_TRUE(main.HPEditWindowExists);
    EXPECT_EQ(control(window, "MfgCombo").items(),
              (Names{"[4101] ", "[4102] ", "Brook ", "Dale "}));
    EXPECT_EQ(control(window, "SelectMfgCombo").items(),
              (Names{"[4107] ", "[4108] ", "Brook ", "Dale "}));
    EXPECT_EQ(control(window, "SeriesCombo").items(), Names{"[4103] "});
    EXPECT_TRUE(visible(window, "NoInfoPicture"));
    EXPECT_FALSE(visible(window, "PumpInfoPicture"));
    EXPECT_FALSE(visible(window, "PumpDataPicture"));
    for (const char* command :
         {"NewCommand", "CopyCommand", "RemoveCommand", "ReorderCommand", "ClearCommand",
          "SummaryCommand", "SaveCommand", "EditSeriesCommand", "DeleteSeriesCommand"})
        EXPECT_FALSE(enabled(window, command)) << command;
    EXPECT_TRUE(enabled(window, "ExitCommand"));
    EXPECT_EQ(number(window, "vhtMfgCount"), 2);
    EXPECT_EQ(word(window, "vhtPumpNames(0).seriesInfo(1).FileName"), "f_water");
    window.click("ExitCommand");
    EXPECT_FALSE(main.HPEditWindowExists);
}

TEST_F(EditorTest, StartsInTheUnitsOfTheMainWindow) {
    main.click("Metric");
    frmHPEdit& window = editor();
    EXPECT_TRUE(control(window, "MetricCheck").checked());
}

TEST_F(EditorTest, ShowsTheSeriesOfAManufacturer) {
    frmHPEdit& window = editor();
    choose(window, "MfgCombo", "Brook ");
    EXPECT_EQ(control(window, "SeriesCombo").items(), (Names{"[4104] ", "Air ", "Water "}));
    EXPECT_EQ(control(window, "SeriesCombo").index(), 0);
    EXPECT_TRUE(visible(window, "NoInfoPicture"));
    choose(window, "SeriesCombo", "Water ");
    EXPECT_TRUE(visible(window, "PumpDataPicture"));
    EXPECT_FALSE(visible(window, "NoInfoPicture"));
    EXPECT_EQ(names(window), Names{"W1"});
    EXPECT_FALSE(enabled(window, "SaveCommand"));
    EXPECT_TRUE(enabled(window, "CopyCommand"));
    choose(window, "SeriesCombo", "[4104] ");
    EXPECT_TRUE(visible(window, "NoInfoPicture"));
    EXPECT_FALSE(enabled(window, "CopyCommand"));
}

TEST_F(EditorTest, LoadsTheOnlySeriesOfAManufacturerAtOnce) {
    frmHPEdit& window = editor();
    choose(window, "MfgCombo", "Dale ");
    EXPECT_EQ(shown(window, "SeriesCombo"), "One ");
    EXPECT_EQ(names(window), Names{"D1"});
    EXPECT_EQ(shown(window, "PumpModelText"), "D1");
    choose(window, "MfgCombo", "[4101] ");
    EXPECT_TRUE(visible(window, "NoInfoPicture"));
    EXPECT_EQ(control(window, "SeriesCombo").items(), Names{"[4103] "});
    EXPECT_EQ(names(window), Names{});
}

TEST_F(EditorTest, TakesTheFirstOfTwoManufacturersOfOneName) {
    addSeries("Brook", "Second", "f_second", {"S1"}, 0);
    frmHPEdit& window = editor();
    window.choose("MfgCombo", 4);
    EXPECT_EQ(control(window, "SeriesCombo").items(), (Names{"[4104] ", "Air ", "Water "}));
}

TEST_F(EditorTest, AsksBeforeAnotherSeriesTakesThePlaceOfChanges) {
    frmHPEdit& window = opened();
    window.type("PumpModelText", "A1x");
    platform.answers = {Answer::cancel};
    choose(window, "SeriesCombo", "Water ");
    EXPECT_EQ(platform.questions.back().title, "[1205]");
    EXPECT_EQ(platform.questions.back().text, "[4523]");
    EXPECT_EQ(shown(window, "SeriesCombo"), "Air ");
    EXPECT_EQ(names(window), (Names{"A1x", "A2", "A3"}));
    EXPECT_TRUE(enabled(window, "SaveCommand"));
    platform.answers = {Answer::no};
    choose(window, "SeriesCombo", "Water ");
    EXPECT_EQ(names(window), Names{"W1"});
    EXPECT_EQ(onDisk("f_air").models[0].name, "A1");
    choose(window, "SeriesCombo", "Air ");
    window.type("PumpModelText", "A1y");
    platform.answers = {Answer::yes};
    choose(window, "SeriesCombo", "Water ");
    EXPECT_EQ(names(window), Names{"W1"});
    EXPECT_EQ(onDisk("f_air").models[0].name, "A1y");
}

TEST_F(EditorTest, AsksOnceWhenAManufacturerBringsItsOnlySeries) {
    frmHPEdit& window = opened();
    window.type("PumpModelText", "A1x");
    platform.answers = {Answer::no};
    choose(window, "MfgCombo", "Dale ");
    EXPECT_EQ(platform.questions.size(), 1u);
    EXPECT_EQ(names(window), Names{"D1"});
    choose(window, "MfgCombo", "Brook ");
    EXPECT_TRUE(visible(window, "NoInfoPicture"));
    EXPECT_EQ(platform.questions.size(), 1u);
}

TEST_F(EditorTest, StaysWithTheManufacturerWhenTheQuestionIsCancelled) {
    frmHPEdit& window = opened("Dale", "One");
    window.type("PumpModelText", "D1x");
    platform.answers = {Answer::cancel};
    choose(window, "MfgCombo", "Brook ");
    EXPECT_EQ(shown(window, "MfgCombo"), "Dale ");
    EXPECT_EQ(shown(window, "SeriesCombo"), "One ");
    EXPECT_EQ(names(window), Names{"D1x"});
}

TEST_F(EditorTest, AsksWhenItIsClosed) {
    frmHPEdit& window = opened();
    window.type("PumpModelText", "A1x");
    platform.answers = {Answer::cancel};
    window.click("ExitCommand");
    EXPECT_TRUE(main.isOpen(&window));
    platform.answers = {Answer::yes};
    window.click("ExitCommand");
    EXPECT_FALSE(main.HPEditWindowExists);
    EXPECT_EQ(onDisk("f_air").models[0].name, "A1x");
}

TEST_F(EditorTest, ClosesWithoutAQuestionWhenNothingHasChanged) {
    frmHPEdit& window = opened();
    typeAndLeave(window, "TestSourceEWTText(0)", "80");
    EXPECT_TRUE(main.close(window));
    EXPECT_TRUE(platform.questions.empty());
}

TEST_F(EditorTest, ShowsNothingOfASeriesWithoutPumpsUntilOneIsAdded) {
    addSeries("Dale", "Empty", "f_empty", {}, 0);
    frmHPEdit& window = editor();
    choose(window, "MfgCombo", "Dale ");
    choose(window, "SeriesCombo", "Empty ");
    EXPECT_TRUE(visible(window, "NoInfoPicture"));
    EXPECT_FALSE(enabled(window, "SaveCommand"));
    EXPECT_TRUE(enabled(window, "NewCommand"));
    window.click("NewCommand");
    EXPECT_TRUE(visible(window, "PumpDataPicture"));
    EXPECT_EQ(names(window), Names{"1 [4246]"});
}

TEST_F(EditorTest, TellsThatAFileIsMissing) {
    std::filesystem::remove(seriesFile("f_one"));
    frmHPEdit& window = editor();
    choose(window, "MfgCombo", "Dale ");
    EXPECT_EQ(lastMessage(), "[2455]\r\r" + seriesFile("f_one"));
    EXPECT_TRUE(visible(window, "NoInfoPicture"));
}

TEST_F(EditorTest, TellsThatTheIndexIsMissingAndLetsOneBegin) {
    std::filesystem::remove(pumpIndexPath(pumps()));
    frmHPEdit& window = editor();
    EXPECT_EQ(lastMessage(), "[2455]\r\r" + pumpIndexPath(pumps()));
    EXPECT_EQ(control(window, "MfgCombo").items().size(), 2u);
    EXPECT_EQ(number(window, "vhtMfgCount"), 0);
}

TEST_F(EditorTest, ReplacesADamagedFileOnlyWhenTheUserSaysSo) {
    const std::string whole = readWholeFile(seriesFile("f_air"));
    // After the first of three pumps.
    overwrite(seriesFile("f_air"), whole.substr(0, whole.size() / 2));
    frmHPEdit& window = opened();
    EXPECT_EQ(lastMessage(), RunTimeError(62).message());
    EXPECT_NE(control(window, "NoticeLabel").caption().find("[1236]"), std::string::npos);
    window.type("PumpModelText", "A1x");
    platform.answers = {Answer::no};
    window.click("SaveCommand");
    EXPECT_NE(platform.questions.back().text.find("[4525]"), std::string::npos);
    EXPECT_TRUE(enabled(window, "SaveCommand"));
    EXPECT_EQ(readWholeFile(seriesFile("f_air")), whole.substr(0, whole.size() / 2));
    platform.answers = {Answer::yes};
    window.click("SaveCommand");
    EXPECT_FALSE(enabled(window, "SaveCommand"));
    EXPECT_EQ(onDisk("f_air").models[0].name, "A1x");
}

TEST_F(EditorTest, ShowsBothTimesBeforeItReplacesAFileThatAnotherProgramHasChanged) {
    texts.known.insert({{Text::seriesFileChanged, "%2 | %3"}});
    const std::string path = seriesFile("f_air");
    const auto timeOnDisk = [&] { return platform.timeText(DiskFiles().stamp(path)->modified); };
    frmHPEdit& window = opened();
    const std::string before = timeOnDisk();
    const std::string others = readWholeFile(path) + "another's";
    overwrite(path, others);
    std::filesystem::last_write_time(
        path, std::filesystem::last_write_time(path) + std::chrono::hours(2));
    ASSERT_NE(timeOnDisk(), before);
    window.type("PumpModelText", "A1x");
    platform.answers = {Answer::no};
    window.click("SaveCommand");
    EXPECT_EQ(platform.questions.back().text, before + " | " + timeOnDisk());
    EXPECT_EQ(readWholeFile(path), others);
    // Once it has been replaced the file is known again.
    platform.answers = {Answer::yes};
    window.click("SaveCommand");
    const std::size_t asked = platform.questions.size();
    window.type("PumpModelText", "A1y");
    window.click("SaveCommand");
    EXPECT_EQ(platform.questions.size(), asked);
    EXPECT_EQ(onDisk("f_air").models[0].name, "A1y");
}

TEST_F(EditorTest, AsksAboutAFileThatHasChangedBetweenACrashAndTheNextStart) {
    frmHPEdit& crashed = opened();
    const std::optional<KnownFile> known = crashed.knownFile();
    const std::string bytes = crashed.seriesText()();
    main.close(crashed);
    std::string others = bytes;
    others.replace(others.find("A2"), 2, "Z2");
    overwrite(seriesFile("f_air"), others);
    frmHPEdit& window = editor();
    ASSERT_TRUE(window.takeRecovered(bytes, seriesFile("f_air"), known));
    platform.answers = {Answer::no};
    window.click("SaveCommand");
    ASSERT_FALSE(platform.questions.empty());
    EXPECT_TRUE(platform.questions.back().text.starts_with("[4524]"));
}

TEST_F(EditorTest, TellsAfterACrashWhatItToldBefore) {
    texts.known[4530] = "older: %1";
    frmHPEdit& crashed = opened();
    crashed.type("CoolingFR1CapacityText(0)", "31");
    const std::string told = control(crashed, "NoticeLabel").caption();
    EXPECT_TRUE(told.starts_with("older: "));
    const std::string bytes = crashed.seriesText()();
    const std::optional<KnownFile> known = crashed.knownFile();
    platform.answers = {Answer::no};
    main.close(crashed);
    frmHPEdit& window = editor();
    ASSERT_TRUE(window.takeRecovered(bytes, seriesFile("f_air"), known));
    EXPECT_EQ(control(window, "NoticeLabel").caption(), told);
}

TEST_F(EditorTest, ReadsAnIndexOfTenThousandLines) {
    index.clear();
    for (int m = 0; m < 1100; ++m)
        index.push_back({{"Maker " + std::to_string(m), "", "", "", ""},
                         {{"Series", "f" + std::to_string(m), {2025, 1, 1}}}});
    WritePumpList(pumps(), index);
    frmHPEdit& window = editor();
    EXPECT_EQ(control(window, "MfgCombo").items().size(), 1102u);
    EXPECT_TRUE(platform.messages.empty());
}

}  // namespace
}  // namespace varnholt
