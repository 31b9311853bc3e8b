// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "basis/date.h"
#include "basis/file_system.h"
#include "basis/line_file.h"
#include "basis/run_time_error.h"
#include "basis/text_encoding.h"

namespace varnholt {
namespace {

TEST(Paths, AreTakenApartAtTheLastSlash) {
    EXPECT_EQ(fileNameOf("a/b/school.zon"), "school.zon");
    EXPECT_EQ(folderOf("a/b/school.zon"), "a/b");
    EXPECT_EQ(baseNameOf("a.b/school.one.zon"), "school.one");
    EXPECT_EQ(folderOf("school.zon"), "");
    EXPECT_EQ(folderOf("/school.zon"), "/");
    EXPECT_EQ(joinPath("a/", "b"), "a/b");
}

TEST(TextEncoding, WhatIsNotUtf8IsReadAsWindows1252) {
    EXPECT_EQ(decodeText("caf\xE9 \x80"), "caf\xC3\xA9 \xE2\x82\xAC");
    EXPECT_EQ(decodeText("caf\xC3\xA9"), "caf\xC3\xA9");
    EXPECT_EQ(decodeText("\xEF\xBB\xBFplain"), "plain");
    EXPECT_EQ(utf8Text("\xEF\xBB\xBF\xE2\x80\xA8"), "\xEF\xBB\xBF\xE2\x80\xA8");
    EXPECT_FALSE(isValidUtf8("\xC0\x80"));
    EXPECT_FALSE(isValidUtf8("\xED\xA0\x80"));
    EXPECT_FALSE(isValidUtf8("\xE2\x82"));
}

TEST(Dates, AreReadWithAndWithoutNumberSigns) {
    EXPECT_EQ(readDate("#2026-01-15#"), (Date{2026, 1, 15}));
    EXPECT_EQ(readDate("2024-02-29"), (Date{2024, 2, 29}));
    EXPECT_FALSE(readDate("2026-02-29"));
    EXPECT_FALSE(readDate("#yesterday#"));
    EXPECT_FALSE(readDate(""));
    EXPECT_EQ(isoText(Date{2026, 1, 5}), "2026-01-05");
}

TEST(Dates, AreDaysOfTheGregorianCalendarFromTheYear1To9999) {
    // 1900 and 100 are no leap years, 2000 and 400 are; the calendar knows no gap in 1582 or 1752.
    for (const char* day :
         {"0001-01-01", "0400-02-29", "1582-10-10", "1752-09-03", "2000-02-29", "9999-12-31"}) {
        EXPECT_EQ(isoText(readIsoDate(day).value()), day);
        EXPECT_EQ(isoText(readDate(day).value()), day);
    }
    for (const char* none : {"0000-01-01", "0000-12-31", "0100-02-29", "1900-02-29", "2026-00-10",
                             "2026-01-00", "2026-13-01", "2026-04-31", "10000-01-01"}) {
        EXPECT_FALSE(readIsoDate(none)) << none;
        EXPECT_FALSE(readDate(none)) << none;
    }
}

TEST(Dates, OfPeopleAreReadInOneFormAlone) {
    for (const char* other : {"#2026-01-15#", " 2026-01-15", "2026-01-15 ", "2026-1-15", "26-01-15",
                              "2026-001-15", "02026-01-15", "2026/01/15", "+026-01-15", ""})
        EXPECT_FALSE(readIsoDate(other)) << other;
}

TEST(LineFile, IsReadWithEitherLineEnd) {
    LineFileReader file("one\ntwo\r\n3abc\r\rlast");
    EXPECT_EQ(file.line(), "one");
    EXPECT_EQ(file.line(), "two");
    double number = 0;
    file.number(number);
    EXPECT_EQ(number, 3);
    EXPECT_EQ(file.line(), "");
    EXPECT_EQ(file.line(), "last");
    EXPECT_THROW(file.line(), RunTimeError);
}

TEST(LineFile, TakesItsVersionFromTheLastThreeCharactersOfTheTitle) {
    const auto versionOf = [](std::string_view text) {
        LineFileReader file(text);
        file.title("");
        return file.version();
    };
    EXPECT_EQ(versionOf("Zone Data File Version 2.1\r\n"), 2.1);
    EXPECT_EQ(versionOf("Version 3.00\r\n"), 0.0);
    EXPECT_EQ(versionOf("3.\r\n"), 0.0);
    EXPECT_EQ(versionOf("no number\r\n"), 0.0);
}

TEST(LineFile, BoundsACountByTheLinesThatFollow) {
    LineFileReader file("32000\r\na\r\nb\r\nc\r\nd\r\n");
    EXPECT_EQ(file.count(0, 2), 3U);  // two whole items, and one that meets the end
    LineFileReader negative("-5\r\na\r\n");
    EXPECT_EQ(negative.count(0, 1), 0U);
}

TEST(LineFile, WritesWhatItReads) {
    LineFileWriter writer;
    writer.title("Test Version ");
    writer.number(1.0 / 3);
    writer.integer(-7);
    writer.date(Date{2026, 1, 15});
    writer.text("two\r\nlines");
    EXPECT_EQ(writer.bytes(),
              "Test Version 3.0\r\n0.3333333333333333\r\n-7\r\n#2026-01-15#\r\ntwo  lines\r\n");
}

TEST(LineFile, RefusesANumberBeyondADouble) {
    for (const char* text : {"1e999", "-1e999"}) {
        LineFileReader file(text);
        double value = 7;
        try {
            file.number(value);
            FAIL() << text;
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number(), 6);
        }
        EXPECT_EQ(value, 7);
    }
}

}  // namespace
}  // namespace varnholt
