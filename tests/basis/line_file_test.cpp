// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/line_file.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>

#include "basis/run_time_error.h"

namespace varnholt {
namespace {

TEST(LineFile, KeepsEveryItemOnALineOfItsOwn) {
    LineFileWriter file;
    file.title("Two\r\nlines List Version ");
    file.text("first\nsecond");
    file.fixed("one\r\n");
    EXPECT_EQ(file.bytes(), "Two  lines List Version 3.0\r\nfirst second\r\none  \r\n");
}

TEST(LineFile, ReadsSeveralLinesAsOneText) {
    LineFileReader file("one\n\r\nthree\rnext\r\n");
    SharedText text("before");
    file.lines(3, text);
    EXPECT_EQ(text, "one\r\n\r\nthree");
    EXPECT_EQ(file.lineNumber(), 3U);
    EXPECT_EQ(file.line(), "next");
}

TEST(LineFile, KeepsTheLinesThatThereAreWhereMoreAreStated) {
    LineFileReader file("one\r\ntwo");
    SharedText text;
    EXPECT_THROW(file.lines(3, text), RunTimeError);
    EXPECT_EQ(text, "one\r\ntwo");
    EXPECT_TRUE(file.atEnd());
    EXPECT_FALSE(file.isLineEnded());
}

TEST(LineFile, ReadsSeveralLinesInTheEncodingOfTheWholeFile) {
    // E9 and 80 are U+00E9 and U+20AC in Windows-1252: two and three bytes of UTF-8.
    LineFileReader file("\xE9\n\x80\n");
    SharedText text;
    file.lines(2, text);
    EXPECT_EQ(text, "\xC3\xA9\r\n\xE2\x82\xAC");
}

TEST(LineFile, WritesTheLinesOfATextEachAsAnItem) {
    LineFileWriter file;
    file.lines(4, "one\r\n\ntwo\rhalf\nlast\xE9");
    // A carriage return in the midst of a line becomes a blank, and E9 alone is carried as U+EFE9.
    EXPECT_EQ(file.bytes(), "one\r\n\r\ntwo half\r\nlast\xEE\xBF\xA9\r\n");
    LineFileReader again(file.bytes());
    SharedText text;
    again.lines(3, text);
    EXPECT_EQ(text, "one\r\n\r\ntwo half");
}

TEST(LineFile, KeepsALongTextWhole) {
    const std::string longText(3'000'000, 'n');
    LineFileWriter file;
    file.text("short");
    file.text(longText);
    file.text("behind");
    LineFileReader again(std::move(file).bytes());
    SharedText first, second, third;
    again.text(first);
    again.text(second);
    again.text(third);
    EXPECT_EQ(first, "short");
    EXPECT_TRUE(second == longText);
    EXPECT_EQ(third, "behind");
}

/// The names of a file: one that takes all the room that there is for them, and the next.
std::pair<std::string, std::string> namesBesideAll(const std::string& next) {
    LineFileReader file(std::string(roomForNames, 'x') + "\r\n" + next + "\r\n7\r\n");
    std::string all, behind;
    file.text(all);
    EXPECT_EQ(file.shortenedLine(), 0U);
    file.text(behind);
    EXPECT_EQ(file.shortenedLine(), behind == next ? 0U : 2U);
    double number = 0;
    file.number(number);
    EXPECT_EQ(number, 7) << "what follows is found all the same";
    return {all, behind};
}

TEST(LineFileNames, AreKeptWholeWhileThereIsRoomForThem) {
    const auto [all, none] = namesBesideAll("");
    EXPECT_EQ(all.size(), 16U * 1024 * 1024);
    EXPECT_EQ(none, "");
}

TEST(LineFileNames, BeyondTheRoomForThemKeepTheirBeginning) {
    EXPECT_EQ(namesBesideAll(std::string(300, 'y')).second, std::string(255, 'y'));
    EXPECT_EQ(namesBesideAll("short").second, "short") << "a short one is its own beginning";
}

// 127 letters of two bytes are 254; the 128th would be cut by the 255th byte.
TEST(LineFileNames, AreCutBetweenTwoCharacters) {
    std::string letters, kept;
    for (int i = 0; i < 200; ++i) letters += "\u00E9";
    for (int i = 0; i < 127; ++i) kept += "\u00E9";
    EXPECT_EQ(namesBesideAll(letters).second, kept);
}

// The euro sign, one byte in Windows-1252, is three in the text that is kept.
TEST(LineFileNames, TakeTheRoomOfTheTextThatTheyBecome) {
    const std::string euros(roomForNames / 3 + 1, '\x80');
    LineFileReader file(euros + "\r\nnext\r\n");
    std::string name;
    file.text(name);
    EXPECT_EQ(file.shortenedLine(), 1U);
    EXPECT_EQ(name.size(), 3U * 255);
    file.text(name);
    EXPECT_EQ(name, "next");
}

// 45 MB of euro signs, one byte each in Windows-1252, would be 135 of text, and 128 are kept: the
// largest number of whole signs is a third of them.
TEST(LineFile, KeepsOfATextThatBecomesTooLongWhatThereIsRoomFor) {
    const std::string euros(std::size_t{45} << 20, '\x80');
    const std::size_t kept = (std::size_t{128} << 20) / 3 * 3;
    LineFileReader file(euros + "\r\n" + euros + "\r\nbehind\r\nnext\r\n");
    SharedText text;
    file.text(text);
    EXPECT_EQ(text.string().size(), kept);
    EXPECT_EQ(file.shortenedLine(), 1U);
    file.lines(2, text);
    // Its two bytes of line end too, and nothing of what stands behind.
    EXPECT_EQ(text.string().size(), kept + 2);
    file.text(text);
    EXPECT_EQ(text, "next");
}

TEST(SharedTexts, AreHeldOnceHoweverManyCopiesThereAre) {
    const SharedText text = std::string(100, 't');
    SharedText copy = text;
    EXPECT_TRUE(copy.isSameAs(text));
    EXPECT_EQ(&copy.string(), &text.string());
    copy = "another";
    EXPECT_EQ(text, std::string(100, 't'));
    EXPECT_FALSE(copy == text);
    EXPECT_EQ(SharedText(std::string("another")), copy);
    EXPECT_EQ(SharedText(), SharedText(""));
    EXPECT_EQ(SharedText().string(), "");
}

TEST(LineFileRow, PutsItsNumbersOnOneLine) {
    LineFileWriter file;
    file.row(20.5, std::int16_t{-3}, 0.0);
    file.row(7.0);
    EXPECT_EQ(file.bytes(), "20.5,-3,0\r\n7\r\n");
}

TEST(LineFileRow, IsReadAsItWasWritten) {
    LineFileReader file("20.5,-3,0\r\nnext\r\n");
    double first = 0, last = 1;
    std::int16_t second = 0;
    file.row(first, second, last);
    EXPECT_EQ(first, 20.5);
    EXPECT_EQ(second, -3);
    EXPECT_EQ(last, 0);
    EXPECT_EQ(file.line(), "next");
}

TEST(LineFileRow, IsReadWhereverTheLinesEndBetweenItsNumbers) {
    LineFileReader file("1\r\n2,3\r\n");
    double first = 0, second = 0, third = 0;
    file.row(first, second);
    file.row(third);
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 2);
    EXPECT_EQ(third, 3);
}

TEST(LineFileRow, LeavesTheRestOfItsLineToAWholeLineRead) {
    LineFileReader file("1,rest of it\r\nnext\r\n");
    double first = 0;
    file.row(first);
    EXPECT_EQ(file.line(), "rest of it");
    EXPECT_EQ(file.line(), "next");
}

TEST(LineFileRow, BeyondTheFilesEndIsAnError) {
    LineFileReader file("1\r\n");
    double first = 0, second = 5;
    try {
        file.row(first, second);
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number(), 62);
    }
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 5);
}

}  // namespace
}  // namespace varnholt
