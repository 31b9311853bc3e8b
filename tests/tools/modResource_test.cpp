// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/modResource.h"

#include <gtest/gtest.h>

#include "tools/scratch_folder.h"

namespace varnholt {
namespace {

TEST(Satellite, IsNamedByTheLocaleNumberInHexadecimalWithoutLeadingZeros) {
    EXPECT_EQ(satelliteName(0x0409), "vhtSat409");
    EXPECT_EQ(satelliteName(0x0C07), "vhtSatC07");
    EXPECT_EQ(satelliteName(0x1004), "vhtSat1004");
    EXPECT_EQ(satelliteName(0), "vhtSat0");
}

TEST(LanguageResource, WithoutASatelliteEveryTextIsTheLiteral) {
    const LanguageResource language;
    for (int number : {0, 1, 108, 1001, 1101, 2814, -5})
        EXPECT_EQ(language.GetResourceText(number), "Error : No Local Data");
}

TEST(LanguageResource, ALocaleWithoutASatelliteIsToldByFalseAndNothingElse) {
    const ScratchFolder folder;
    LanguageResource language;
    EXPECT_FALSE(language.LoadSatellite(folder.path(), 0x409));
    EXPECT_EQ(language.text(1001), "Error : No Local Data");
    EXPECT_FALSE(language.LoadSatellite(folder.path("none such"), 0x409));
}

TEST(LanguageResource, ALocaleWithoutASatelliteDropsTheEarlierOne) {
    const ScratchFolder folder;
    folder.write("vhtSat409.txt", "table own\n");
    folder.write("own/a.txt", "1001 Varnholt\n");
    LanguageResource language;
    ASSERT_TRUE(language.LoadSatellite(folder.path(), 0x409));
    EXPECT_EQ(language.text(1001), "Varnholt");
    EXPECT_FALSE(language.LoadSatellite(folder.path(), 0x407));
    EXPECT_EQ(language.text(1001), "Error : No Local Data");
}

TEST(LanguageResource, JoinsTheFilesOfTheTableAndReplacesSingleTexts) {
    const ScratchFolder folder;
    folder.write("vhtSatC07.txt", "# Austria\r\n\r\ntable own\r\n1101\tSans Serif\r\n3 drei\r\n");
    folder.write("own/a.txt", "1 one\n1101\n");
    folder.write("own/b.txt", "2\ttwo\n3\tthree\n");
    folder.write("own/notes", "4 not a text file of the table\n");
    LanguageResource language;
    ASSERT_TRUE(language.LoadSatellite(folder.path(), 0xC07));
    EXPECT_EQ(language.text(1), "one");
    EXPECT_EQ(language.text(2), "two");
    EXPECT_EQ(language.text(3), "drei");
    EXPECT_EQ(language.text(1101), "Sans Serif");
    EXPECT_EQ(language.text(4), "");
}

TEST(LanguageResource, ANumberThatTheSatelliteLacksIsEmpty) {
    const ScratchFolder folder;
    folder.write("vhtSat409.txt", "table own\n");
    folder.write("own/a.txt", "1 one\n");
    LanguageResource language;
    ASSERT_TRUE(language.LoadSatellite(folder.path(), 0x409));
    EXPECT_EQ(language.text(2), "");
    EXPECT_EQ(language.picture(32001), "");
}

TEST(LanguageResource, PicturesAreFilesBesideTheSatellites) {
    const ScratchFolder folder;
    folder.write("vhtSat409.txt", "table own\n32003 pictures/maker.svg\n");
    folder.write("own/a.txt", "");
    LanguageResource language;
    ASSERT_TRUE(language.LoadSatellite(folder.path(), 0x409));
    EXPECT_EQ(language.GetResourceImage(32003), folder.path("pictures/maker.svg"));
}

TEST(LanguageResource, WithoutASatelliteThePicturesAreTheDefaultOnes) {
    const ScratchFolder folder;
    LanguageResource language;
    ASSERT_FALSE(language.LoadSatellite(folder.path(), 0x409));
    EXPECT_EQ(language.GetResourceImage(32001), folder.path("pictures/32001.svg"));
}

TEST(LanguageResource, AFaultySatelliteOrTableIsNoSatellite) {
    const struct {
        const char *satellite, *table;
    } cases[] = {
        {"", "1 one\n"},                      // names no table
        {"1 one\n", "1 one\n"},               // texts before the table's name
        {"table other\n", "1 one\n"},         // a table that is not there
        {"table own\nx\n", "1 one\n"},        // no number
        {"table own\n", "one\n"},             // no number in the table
        {"table own\n", "1 one\n1 again\n"},  // a number twice in one file
    };
    for (const auto& [satellite, table] : cases) {
        SCOPED_TRACE(satellite);
        const ScratchFolder folder;
        folder.write("vhtSat409.txt", satellite);
        folder.write("own/a.txt", table);
        LanguageResource language;
        EXPECT_FALSE(language.LoadSatellite(folder.path(), 0x409));
    }
}

TEST(TextTable, ReadsEscapesAndKeepsBlanksInsideATextAsTheyAre) {
    TextTable table;
    table.read("1\tfirst\\nsecond\\tthird\\r\\\\n\n2   a  b \n3\n4\t\n# 5 no\n\n6 #6\\", "t");
    EXPECT_EQ(table.text(1), "first\nsecond\tthird\r\\n");
    EXPECT_EQ(table.text(2), "a  b ");
    EXPECT_EQ(table.text(3), "");
    EXPECT_TRUE(table.has(4));
    EXPECT_FALSE(table.has(5));
    EXPECT_EQ(table.text(6), "#6\\");
}

TEST(TextTable, NamesTheFileAndTheLineOfAFault) {
    TextTable table;
    try {
        table.read("1 one\n12x\n", "own.txt");
        FAIL() << "a line without a number was taken";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "own.txt:2: a text begins with its number");
    }
}

}  // namespace
}  // namespace varnholt
