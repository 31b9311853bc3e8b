// SPDX-License-Identifier: GPL-3.0-or-later
// The working file of the zone reports: what is written comes back, and no fault of the file keeps
// a report away.
#include "reports/report_database.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include "forms/fake_platform.h"
#include "persistence/temporary_folder.h"

namespace varnholt {
namespace {

namespace fs = std::filesystem;

class Database : public testing::Test {
 protected:
    std::vector<ZoneRow> rowsOf(std::size_t count, const std::string& title = "Office") {
        std::vector<Zone> zones(count);
        std::vector<std::string> names;
        for (std::size_t i = 0; i < count; ++i) {
            zones[i].title = title;
            zones[i].gains[0][cooling] = static_cast<double>(i);
            names.push_back("Zone " + std::to_string(i + 1));
        }
        return zoneRows(zones, names, false, texts);
    }
    int count(const std::string& table) {
        SQLite::Database reader(file, SQLite::OPEN_READONLY);
        return reader.execAndGet("SELECT COUNT(*) FROM \"" + table + "\"").getInt();
    }

    FakeTexts texts;
    TemporaryFolder folder;
    std::string file = folder / "Data/vht.db";
};

TEST_F(Database, GivesBackTheHierarchyThatWasWritten) {
    ReportDatabase database(file);
    const std::vector<ZoneRow> rows = rowsOf(3);
    EXPECT_EQ(database.refill(rows), rows);
    EXPECT_TRUE(database.usedFile());
    EXPECT_EQ(count("Project Table"), 1);
    EXPECT_EQ(count("Zone Table"), 3);
    EXPECT_EQ(count("Pump Table"), 3);
}

TEST_F(Database, HoldsTheFieldsUnderTheirNames) {
    ReportDatabase database(file);
    database.refill(rowsOf(2));
    SQLite::Database reader(file, SQLite::OPEN_READONLY);
    SQLite::Statement zone(reader,
                           "SELECT \"Project ID\", \"Title\", \"Cooling Hours\", \"Days per Week\" "
                           "FROM \"Zone Table\" WHERE \"Zone ID\" = 2");
    ASSERT_TRUE(zone.executeStep());
    EXPECT_EQ(zone.getColumn(0).getInt(), 1);
    EXPECT_STREQ(zone.getColumn(1).getText(), "Office");
    EXPECT_EQ(zone.getColumn(3).getDouble(), 7);
    SQLite::Statement pump(reader,
                           "SELECT \"Loads 0 Cool\", \"PumpTypeLabel\" FROM \"Pump Table\" "
                           "WHERE \"Zone ID\" = 2");
    ASSERT_TRUE(pump.executeStep());
    EXPECT_STREQ(pump.getColumn(0).getText(), "1.0");
    EXPECT_STREQ(pump.getColumn(1).getText(), "[2864]");
}

TEST_F(Database, LeavesNoRowsOfAnEarlierReport) {
    ReportDatabase database(file);
    database.refill(rowsOf(5));
    EXPECT_EQ(database.refill(rowsOf(2)).size(), 2U);
    EXPECT_EQ(count("Zone Table"), 2);
    EXPECT_EQ(count("Pump Table"), 2);
}

TEST_F(Database, HoldsOneEmptyZoneForAnEmptyList) {
    ReportDatabase database(file);
    const std::vector<ZoneRow> rows = zoneRows({}, {}, false, texts);
    EXPECT_EQ(database.refill(rows), rows);
    EXPECT_EQ(count("Zone Table"), 1);
    EXPECT_EQ(count("Pump Table"), 0);
}

TEST_F(Database, MakesAnEmptyFileWhereItIsMissing) {
    EXPECT_FALSE(fs::exists(file));
    ReportDatabase database(file);
    EXPECT_TRUE(database.OpenReportConnection());
    EXPECT_EQ(database.refill(rowsOf(1)).size(), 1U);
    EXPECT_TRUE(fs::exists(file));
}

TEST_F(Database, MakesANewFileInPlaceOfADamagedOne) {
    fs::create_directories(folder / "Data");
    writeBytes(file, std::string(5000, 'x'));
    ReportDatabase database(file);
    const std::vector<ZoneRow> rows = rowsOf(2);
    EXPECT_EQ(database.refill(rows), rows);
    EXPECT_TRUE(database.usedFile());
}

TEST_F(Database, MakesANewFileInPlaceOfOneThatWasCutOff) {
    ReportDatabase(file).refill(rowsOf(200));
    fs::resize_file(file, 3000);
    ReportDatabase database(file);
    const std::vector<ZoneRow> rows = rowsOf(2);
    EXPECT_EQ(database.refill(rows), rows);
    EXPECT_TRUE(database.usedFile());
}

TEST_F(Database, MakesANewFileInPlaceOfOneWithOtherTables) {
    fs::create_directories(folder / "Data");
    SQLite::Database(file, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
        .exec("CREATE TABLE \"Zone Table\" (\"Something Else\" TEXT)");
    ReportDatabase database(file);
    const std::vector<ZoneRow> rows = rowsOf(2);
    EXPECT_EQ(database.refill(rows), rows);
    EXPECT_TRUE(database.usedFile());
}

TEST_F(Database, WaitsForNoLockAndGivesTheRowsFromMemory) {
    ReportDatabase database(file);
    database.refill(rowsOf(3));
    SQLite::Database other(file, SQLite::OPEN_READWRITE);
    other.exec("BEGIN EXCLUSIVE");
    const std::vector<ZoneRow> rows = rowsOf(2, "Hall");
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(database.refill(rows), rows);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1));
    EXPECT_FALSE(database.usedFile());
    other.exec("ROLLBACK");
    EXPECT_EQ(count("Zone Table"), 3);
}

TEST_F(Database, IsOfUseWhereItsFolderCannotBe) {
    // A file stands where the folder should.
    writeBytes(folder / "Data", "no folder");
    ReportDatabase database(file);
    EXPECT_FALSE(database.OpenReportConnection());
    const std::vector<ZoneRow> rows = rowsOf(2);
    EXPECT_EQ(database.refill(rows), rows);
    EXPECT_FALSE(database.usedFile());
}

TEST_F(Database, IsOfUseWhereAFolderHasItsName) {
    fs::create_directories(file);
    const std::vector<ZoneRow> rows = rowsOf(2);
    EXPECT_EQ(ReportDatabase(file).refill(rows), rows);
}

TEST_F(Database, KeepsTheReportsOfTwoInstancesApart) {
    ReportDatabase one(file), two(file);
    const std::vector<ZoneRow> ours = rowsOf(4, "Ours"), theirs = rowsOf(2, "Theirs");
    EXPECT_EQ(one.refill(ours), ours);
    EXPECT_EQ(two.refill(theirs), theirs);
    EXPECT_EQ(one.refill(ours), ours);
    EXPECT_EQ(count("Zone Table"), 4);
}

TEST_F(Database, TakesAnyTextAsAText) {
    ReportDatabase database(file);
    for (const std::string& title :
         {std::string("'); DROP TABLE \"Zone Table\"; --"), std::string("\"quoted\" `and` 'more'"),
          std::string(10000, 'x'), std::string("\x01\x02\n\t"), std::string("Östra Vånga 東京")}) {
        const std::vector<ZoneRow> rows = rowsOf(1, title);
        EXPECT_EQ(database.refill(rows), rows) << title;
        EXPECT_TRUE(database.usedFile());
    }
}

TEST_F(Database, TakesTenThousandZones) {
    ReportDatabase database(file);
    const std::vector<ZoneRow> rows = rowsOf(10000);
    EXPECT_EQ(database.refill(rows), rows);
    EXPECT_TRUE(database.usedFile());
}

}  // namespace
}  // namespace varnholt
