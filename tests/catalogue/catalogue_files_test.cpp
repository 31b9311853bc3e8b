// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/catalogue_files.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include "basis/system/files.h"
#include "catalogue/pump_catalogue.h"
#include "catalogue/sample_models.h"
#include "forms/fake_platform.h"

namespace varnholt {
namespace {

namespace fs = std::filesystem;

/// The disk, and how often it was read.
class CountedFiles : public FileSource {
 public:
    explicit CountedFiles(int& reads) : reads_(reads) {}
    std::optional<FileStamp> stamp(const std::string& path) const override {
        return disk_.stamp(path);
    }
    Content read(const std::string& path) const override {
        ++reads_;
        return disk_.read(path);
    }

 private:
    DiskFiles disk_;
    int& reads_;
};

/// A catalogue of one maker with the series "Small" and "Large", written some time ago.
class CatalogueFilesTest : public testing::Test {
 protected:
    CatalogueFilesTest() {
        fs::create_directory(pumps());
        write("Small", 2);
        write("Large", 5);
        WritePumpList(pumps(), {{{"Maker", "", "", "", ""}, infos_}});
        age("PumpList.vht");
    }

    std::string pumps() const { return folder_.path("pumps"); }
    void age(const std::string& name) const {
        const fs::path file = pumps() + "/" + name;
        fs::last_write_time(file, fs::file_time_type::clock::now() - std::chrono::hours(1));
    }
    void write(const std::string& seriesName, int models) {
        PumpSeries series{{seriesName, seriesName, {2025, 1, 2}}, {"Maker", "", "", "", ""}, {}};
        for (int i = 1; i <= models; ++i)
            series.models.push_back(
                plainModel(seriesName + "-" + std::to_string(i), 10 * i, 10 * i));
        WritePumpSeries(pumps(), series);
        age(seriesName + ".hpd");
        infos_.push_back(series.seriesInfo);
    }
    void cut(const std::string& name, const std::string& from) const {
        const std::string path = pumps() + "/" + name;
        const std::string text = readWholeFile(path);
        replaceWholeFile(path, text.substr(0, text.find(from)));
        age(name);
    }
    PumpCatalogue window() {
        return {folder_.path(), texts_, activeSeries_,
                [this](const std::string& text) { shown_ += text + "\n"; }, files_};
    }

    TemporaryFolder folder_;
    FakeTexts texts_;
    std::string shown_, activeSeries_;
    std::vector<PumpSeriesInfo> infos_;
    int reads_ = 0;
    std::shared_ptr<CatalogueFiles> files_ =
        std::make_shared<CatalogueFiles>(std::make_unique<CountedFiles>(reads_));
};

TEST_F(CatalogueFilesTest, AreReadOnceHoweverOftenAWindowReadsThem) {
    PumpCatalogue catalogue = window();
    catalogue.InitializeHeatPumpLists();
    EXPECT_EQ(reads_, 2);  // the index and the active series
    for (int zone = 0; zone < 10; ++zone) catalogue.readActiveSeries(browsedSlot);
    catalogue.InitializeHeatPumpLists();
    EXPECT_EQ(reads_, 2);
    catalogue.readPumps("Large", browsedSlot);
    catalogue.readPumps("Small", browsedSlot);
    EXPECT_EQ(reads_, 3);
    EXPECT_EQ(catalogue.size(browsedSlot), 2U);
    EXPECT_EQ(catalogue.PumpList(browsedSlot, 4).name, "Large-5");
}

TEST_F(CatalogueFilesTest, AreReadOnceForAllWindowsAndSharedBetweenThem) {
    PumpCatalogue first = window(), second = window();
    first.InitializeHeatPumpLists();
    second.InitializeHeatPumpLists();
    second.readActiveSeries(browsedSlot);
    EXPECT_EQ(reads_, 2);
    EXPECT_EQ(&first.PumpList(activeSlot, 1), &second.PumpList(activeSlot, 1));
    EXPECT_EQ(&second.PumpList(activeSlot, 1), &second.PumpList(browsedSlot, 1));
    EXPECT_EQ(&first.vhtPumpNames(), &second.vhtPumpNames());
}

TEST_F(CatalogueFilesTest, AreReadAgainOnceTheyHaveChanged) {
    PumpCatalogue first = window(), second = window();
    first.InitializeHeatPumpLists();
    write("Small", 3);
    second.InitializeHeatPumpLists();
    EXPECT_EQ(reads_, 3);  // the index had not changed
    EXPECT_EQ(second.size(activeSlot), 3U);
    EXPECT_EQ(first.size(activeSlot), 2U);  // what a window has loaded stays
}

TEST_F(CatalogueFilesTest, AreReadAgainAsLongAsAChangeMightNotShow) {
    WritePumpList(pumps(), {{{"Other", "", "", "", ""}, {}}});
    PumpCatalogue catalogue = window();
    catalogue.readPumpNames();
    catalogue.readPumpNames();
    EXPECT_EQ(reads_, 2);
    age("PumpList.vht");
    catalogue.readPumpNames();
    catalogue.readPumpNames();
    EXPECT_EQ(reads_, 3);
}

TEST_F(CatalogueFilesTest, ThatAreCutAreToldEachTimeThoughReadOnce) {
    cut("Large.hpd", "Large-4");
    cut("PumpList.vht", "Large");
    PumpCatalogue catalogue = window();
    for (int i = 0; i < 3; ++i) catalogue.readPumps("Large", browsedSlot);
    EXPECT_EQ(shown_,
              "62 - Input past end of file\n62 - Input past end of file\n"
              "62 - Input past end of file\n");
    EXPECT_EQ(catalogue.size(browsedSlot), 3U);
    EXPECT_EQ(reads_, 1);
    shown_.clear();
    for (int i = 0; i < 2; ++i) catalogue.readPumpNames();
    EXPECT_EQ(shown_, "62 - Input past end of file\n62 - Input past end of file\n");
    EXPECT_EQ(catalogue.vhtTotalSeriesCount(), 1);
    EXPECT_EQ(reads_, 2);
}

TEST_F(CatalogueFilesTest, ThatAreGoneAreToldThoughTheyWereRead) {
    PumpCatalogue catalogue = window();
    catalogue.InitializeHeatPumpLists();
    fs::remove(pumps() + "/Small.hpd");
    fs::remove(pumps() + "/PumpList.vht");
    EXPECT_FALSE(catalogue.readActiveSeries(browsedSlot));
    catalogue.readPumpNames();
    EXPECT_EQ(shown_,
              "[2455]\r\r" + pumps() + "/Small.hpd\n[2455]\r\r" + pumps() + "/PumpList.vht\n");
    EXPECT_EQ(catalogue.vhtMfgCount(), 0);
    EXPECT_EQ(catalogue.size(activeSlot), 2U);
}

TEST_F(CatalogueFilesTest, OfSixteenSeriesAreRememberedAndTheOneUsedLongestAgoIsForgotten) {
    for (int i = 1; i <= 17; ++i) write("S" + std::to_string(i), 1);
    PumpCatalogue catalogue = window();
    for (int i = 1; i <= 16; ++i) catalogue.readPumps("S" + std::to_string(i), browsedSlot);
    catalogue.readPumps("S1", browsedSlot);
    EXPECT_EQ(reads_, 16);
    catalogue.readPumps("S17", browsedSlot);  // S2 is forgotten
    catalogue.readPumps("S1", browsedSlot);
    EXPECT_EQ(reads_, 17);
    catalogue.readPumps("S2", browsedSlot);
    EXPECT_EQ(reads_, 18);
}

}  // namespace
}  // namespace varnholt
