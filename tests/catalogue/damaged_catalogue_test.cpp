// SPDX-License-Identifier: GPL-3.0-or-later
// The catalogue's files, cut at every byte and with every byte changed.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "catalogue/ModPumpsIO.h"

namespace varnholt {
namespace {

std::string indexBytes() {
    return readWholeFile(pumpIndexPath(VARNHOLT_SOURCE_DIR "/resources/pumps"));
}
std::string seriesBytes() {
    return readWholeFile(VARNHOLT_SOURCE_DIR "/tests/files/old_brook.hpd");
}

std::ptrdiff_t linesOf(const std::string& text) {
    return std::count(text.begin(), text.end(), '\n') +
           (text.empty() || text.ends_with('\n') ? 0 : 1);
}

template <class Content>
struct Read {
    Content content;
    ReadingReport report;
};

Read<std::vector<PumpList>> readIndex(const std::string& bytes) {
    Read<std::vector<PumpList>> read;
    try {
        readPumpIndex(bytes, read.content, &read.report);
    } catch (const RunTimeError& error) {
        EXPECT_EQ(read.report.error, error.number());
    }
    return read;
}

Read<PumpSeries> readSeries(const std::string& bytes) {
    Read<PumpSeries> read;
    try {
        readPumpSeries(bytes, read.content, &read.report);
    } catch (const RunTimeError& error) {
        EXPECT_EQ(read.report.error, error.number());
    }
    return read;
}

/// As many other values of a byte as the environment wants; without its word those with one bit
/// that is wrong.
std::vector<char> otherValues(char present) {
    const char* wanted = std::getenv("VARNHOLT_DAMAGE");
    std::vector<char> values;
    if (wanted != nullptr && std::atoi(wanted) > 8) {
        for (int value = 0; value < 256; ++value)
            if (static_cast<char>(value) != present) values.push_back(static_cast<char>(value));
    } else {
        for (int bit = 0; bit < 8; ++bit) values.push_back(static_cast<char>(present ^ (1 << bit)));
    }
    return values;
}

template <class Try>
void changeEveryByte(const std::string& whole, const Try& attempt) {
    for (std::size_t at = 0; at < whole.size(); ++at) {
        std::string changed = whole;
        for (const char value : otherValues(whole[at])) {
            changed[at] = value;
            SCOPED_TRACE("byte " + std::to_string(at) + " is " +
                         std::to_string(static_cast<unsigned char>(value)));
            attempt(changed);
        }
    }
}

TEST(DamagedCatalogue, TellsOfEveryCutOfTheIndex) {
    const std::string whole = indexBytes();
    ASSERT_TRUE(readIndex(whole).report.isWhole());
    for (std::size_t end = 0; end < whole.size(); ++end) {
        SCOPED_TRACE(end);
        const std::string cut = whole.substr(0, end);
        const auto read = readIndex(cut);
        // One that has lost a line says so; one that has lost the end of a text has an open line.
        EXPECT_EQ(read.report.isWhole(), linesOf(cut) == linesOf(whole));
        EXPECT_EQ(read.report.openLine != 0, read.report.isWhole() && end < whole.size() - 1);
        if (read.report.isWhole()) continue;
        EXPECT_EQ(read.report.error, 62);
        EXPECT_EQ(static_cast<std::ptrdiff_t>(read.report.line), linesOf(cut));
        EXPECT_EQ(read.report.entries, Entries::manufacturers);
        EXPECT_LT(read.report.found, 2U);
        if (linesOf(cut) >= 2) {
            EXPECT_EQ(read.report.stated, 2U);
        }
    }
}

TEST(DamagedCatalogue, TellsOfEveryCutOfASeries) {
    const std::string whole = seriesBytes();
    ASSERT_TRUE(readSeries(whole).report.isWhole());
    for (std::size_t end = 0; end < whole.size(); ++end) {
        SCOPED_TRACE(end);
        const std::string cut = whole.substr(0, end);
        const auto read = readSeries(cut);
        EXPECT_EQ(read.report.isWhole(), linesOf(cut) == linesOf(whole));
        if (read.report.isWhole()) continue;
        EXPECT_EQ(read.report.error, 62);
        EXPECT_EQ(static_cast<std::ptrdiff_t>(read.report.line), linesOf(cut));
        EXPECT_EQ(read.report.entries, Entries::pumps);
        EXPECT_EQ(read.report.found, read.content.models.size());
    }
}

TEST(DamagedCatalogue, ReadsAnIndexWithAnyByteChangedOrFails) {
    changeEveryByte(indexBytes(), [](const std::string& bytes) {
        const auto read = readIndex(bytes);
        // What could be read is written and read again without another change.
        const auto again = readIndex(pumpIndexText(read.content));
        EXPECT_TRUE(again.report.isWhole());
        EXPECT_EQ(again.content, read.content);
    });
}

TEST(DamagedCatalogue, ReadsASeriesWithAnyByteChangedOrFails) {
    changeEveryByte(seriesBytes(), [](const std::string& bytes) {
        const auto read = readSeries(bytes);
        const auto again = readSeries(pumpSeriesText(read.content));
        EXPECT_TRUE(again.report.isWhole());
        // The models' own copies of the head are those of the file.
        EXPECT_EQ(again.content, read.content);
    });
}

TEST(DamagedCatalogue, TakesNoMoreMemoryForAFalseCount) {
    for (const char* count : {"32767", "32768", "999999999", "1e15", "-1", "nan"}) {
        SCOPED_TRACE(count);
        const auto series = readSeries("M S List Version 3.0\r\n" + std::string(count) + "\r\n");
        EXPECT_LE(series.content.models.capacity(), 1U);
        const auto index =
            readIndex("Pump List File Version 3.0\r\n" + std::string(count) + "\r\n");
        EXPECT_LE(index.content.capacity(), 1U);
    }
}

}  // namespace
}  // namespace varnholt
