// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/pump_catalogue.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "basis/file_system.h"
#include "catalogue/makers.h"
#include "catalogue/sample_models.h"
#include "forms/fake_platform.h"

namespace varnholt {
namespace {

class PumpCatalogueTest : public testing::Test {
 protected:
    PumpCatalogueTest() { std::filesystem::create_directory(pumps()); }

    std::string pumps() const { return folder_.path() + "/pumps"; }
    PumpCatalogue catalogue() {
        return {folder_.path(), texts_, activeSeries_,
                [this](const std::string& text) { shown_ += text; }};
    }
    /// A series of as many models, "S-1", "S-2", ...
    void write(const std::string& mfgName, const std::string& seriesName, int models) {
        PumpSeries series{
            {seriesName, "f_" + seriesName, {2025, 1, 2}}, {mfgName, "", "", "", ""}, {}};
        for (int i = 1; i <= models; ++i)
            series.models.push_back(
                plainModel(seriesName + "-" + std::to_string(i), 10 * i, 10 * i));
        WritePumpSeries(pumps(), series);
        if (index_.empty() || index_.back().mfgInfo != series.mfgInfo)
            index_.push_back({series.mfgInfo, {}});
        index_.back().seriesInfo.push_back(series.seriesInfo);
        WritePumpList(pumps(), index_);
    }
    void writeTwoMakers() {
        write("First", "Small", 2);
        write("First", "Large", 5);
        write("WaterFurnace", "Other Series", 1);
        write("WaterFurnace", "Premier P Series", 3);
    }

    TemporaryFolder folder_;
    FakeTexts texts_;
    std::string activeSeries_;
    std::string shown_;
    std::vector<varnholt::PumpList> index_;
};

TEST_F(PumpCatalogueTest, StartsWithTheFirstSeriesOfTheFirstManufacturer) {
    writeTwoMakers();
    PumpCatalogue catalogue = this->catalogue();
    catalogue.InitializeHeatPumpLists();
    EXPECT_EQ(catalogue.vhtMfgCount(), 2);
    EXPECT_EQ(catalogue.vhtTotalSeriesCount(), 4);
    EXPECT_EQ(activeSeries_, "FirstSmall");
    EXPECT_EQ(catalogue.size(activeSlot), 2U);
    EXPECT_EQ(catalogue.PumpList(activeSlot, 1).name, "Small-2");
    EXPECT_EQ(catalogue.PumpList(activeSlot, 1).mfgInfo.mfgName, "First");
    EXPECT_EQ(shown_, "");
}

TEST_F(PumpCatalogueTest, StartsWithThePreferredSeriesOfTheEditionsMaker) {
    writeTwoMakers();
    for (const Maker& maker : makers) {
        texts_.known[108] = maker.webAddress;
        activeSeries_.clear();
        PumpCatalogue catalogue = this->catalogue();
        catalogue.InitializeHeatPumpLists();
        const bool listed = std::string(maker.mfgName) == "WaterFurnace";
        EXPECT_EQ(activeSeries_, listed ? "WaterFurnacePremier P Series" : "FirstSmall");
    }
}

TEST_F(PumpCatalogueTest, KeepsAnActiveSeriesThatWasSetAndCountsTheSeriesAfresh) {
    writeTwoMakers();
    PumpCatalogue catalogue = this->catalogue();
    activeSeries_ = "FirstLarge";
    catalogue.InitializeHeatPumpLists();
    catalogue.InitializeHeatPumpLists();
    EXPECT_EQ(activeSeries_, "FirstLarge");
    EXPECT_EQ(catalogue.size(activeSlot), 5U);
    EXPECT_EQ(catalogue.vhtTotalSeriesCount(), 4);
}

TEST_F(PumpCatalogueTest, ReadsTheFirstSeriesForOneThatIsNotListed) {
    writeTwoMakers();
    PumpCatalogue catalogue = this->catalogue();
    activeSeries_ = "GoneSeries";
    catalogue.InitializeHeatPumpLists();
    EXPECT_EQ(activeSeries_, "FirstSmall");
    EXPECT_EQ(catalogue.size(activeSlot), 2U);
}

TEST_F(PumpCatalogueTest, SkipsAManufacturerWithoutSeriesWhenItLooksForTheFirst) {
    index_.push_back({{"Empty", "", "", "", ""}, {}});
    writeTwoMakers();
    PumpCatalogue catalogue = this->catalogue();
    catalogue.InitializeHeatPumpLists();
    EXPECT_EQ(catalogue.vhtMfgCount(), 3);
    EXPECT_EQ(activeSeries_, "FirstSmall");
}

TEST_F(PumpCatalogueTest, ReadingOneSlotLeavesTheOtherIntact) {
    writeTwoMakers();
    PumpCatalogue catalogue = this->catalogue();
    catalogue.InitializeHeatPumpLists();
    catalogue.readPumps("f_Large", browsedSlot);
    EXPECT_EQ(catalogue.size(browsedSlot), 5U);
    EXPECT_EQ(catalogue.size(activeSlot), 2U);
    EXPECT_EQ(catalogue.PumpList(activeSlot, 0).name, "Small-1");
    EXPECT_TRUE(catalogue.holds(activeSlot, "First", "Small"));
    EXPECT_TRUE(catalogue.holds(browsedSlot, "First", "Large"));
    EXPECT_FALSE(catalogue.holds(browsedSlot, "First", "Small"));
}

TEST_F(PumpCatalogueTest, AShorterSeriesLeavesHigherModelsInPlaceButDoesNotCountThem) {
    writeTwoMakers();
    PumpCatalogue catalogue = this->catalogue();
    catalogue.readPumps("f_Large", browsedSlot);
    catalogue.readPumps("f_Small", browsedSlot);
    EXPECT_EQ(catalogue.size(browsedSlot), 2U);
    EXPECT_EQ(catalogue.models(browsedSlot).size(), 2U);
    EXPECT_EQ(catalogue.PumpList(browsedSlot, 1).name, "Small-2");
    EXPECT_EQ(catalogue.PumpList(browsedSlot, 4).name, "Large-5");
    EXPECT_EQ(errorOf([&] { catalogue.PumpList(browsedSlot, 5); }), 9);
    EXPECT_EQ(errorOf([&] { catalogue.PumpList(activeSlot, 10000); }), 9);
}

TEST_F(PumpCatalogueTest, AnEmptySeriesStillTellsWhoMadeIt) {
    write("First", "None", 0);
    PumpCatalogue catalogue = this->catalogue();
    catalogue.InitializeHeatPumpLists();
    EXPECT_EQ(catalogue.size(activeSlot), 0U);
    EXPECT_EQ(catalogue.PumpList(activeSlot, 0).seriesInfo.seriesName, "None");
    EXPECT_EQ(shown_, "");
}

TEST_F(PumpCatalogueTest, FindsASeriesByItsNamesApartOrJoined) {
    writeTwoMakers();
    PumpCatalogue catalogue = this->catalogue();
    catalogue.InitializeHeatPumpLists();
    EXPECT_EQ(catalogue.find("First", "Large")->FileName, "f_Large");
    EXPECT_EQ(catalogue.find("First", "Premier P Series"), nullptr);
    EXPECT_EQ(catalogue.findJoined("FirstLarge")->FileName, "f_Large");
    EXPECT_EQ(catalogue.findJoined("First"), nullptr);
    catalogue.activate(catalogue.vhtPumpNames()[0].mfgInfo.mfgName,
                       catalogue.vhtPumpNames()[0].seriesInfo[1]);
    EXPECT_EQ(activeSeries_, "FirstLarge");
    EXPECT_EQ(catalogue.size(activeSlot), 5U);
}

TEST_F(PumpCatalogueTest, ShowsAMissingIndexByItsPathAndStaysEmpty) {
    PumpCatalogue catalogue = this->catalogue();
    catalogue.InitializeHeatPumpLists();
    EXPECT_EQ(shown_, "[2455]\r\r" + pumps() + "/PumpList.vht");
    EXPECT_EQ(catalogue.vhtMfgCount(), 0);
    EXPECT_EQ(activeSeries_, "");
    EXPECT_EQ(catalogue.size(activeSlot), 0U);
}

TEST_F(PumpCatalogueTest, ShowsAMissingFolderInTheSameWay) {
    std::filesystem::remove_all(pumps());
    catalogue().InitializeHeatPumpLists();
    EXPECT_EQ(shown_, "[2455]\r\r" + pumps() + "/PumpList.vht");
}

TEST_F(PumpCatalogueTest, ShowsAMissingSeriesFileByItsPathAndLeavesTheSlotAsItStood) {
    writeTwoMakers();
    PumpCatalogue catalogue = this->catalogue();
    catalogue.InitializeHeatPumpLists();
    catalogue.readPumps("gone", activeSlot);
    EXPECT_EQ(shown_, "[2455]\r\r" + pumps() + "/gone.hpd");
    EXPECT_EQ(catalogue.size(activeSlot), 2U);
    EXPECT_EQ(catalogue.PumpList(activeSlot, 0).name, "Small-1");
}

TEST_F(PumpCatalogueTest, ShowsACutSeriesFileAsPastItsEndAndKeepsTheModelsRead) {
    writeTwoMakers();
    const std::string path = pumps() + "/f_Large.hpd";
    std::string text = readWholeFile(path);
    replaceWholeFile(path, text.substr(0, text.find("Large-4")));
    PumpCatalogue catalogue = this->catalogue();
    catalogue.InitializeHeatPumpLists();
    catalogue.readPumps("f_Large", browsedSlot);
    EXPECT_EQ(shown_, "62 - Input past end of file");
    EXPECT_EQ(catalogue.size(browsedSlot), 3U);
}

TEST_F(PumpCatalogueTest, ShowsAnEmptySeriesFileAsPastItsEndAndLeavesTheSlotAsItStood) {
    writeTwoMakers();
    PumpCatalogue catalogue = this->catalogue();
    catalogue.InitializeHeatPumpLists();
    replaceWholeFile(pumps() + "/f_Small.hpd", "");
    catalogue.readPumps("f_Small", activeSlot);
    EXPECT_EQ(shown_, "62 - Input past end of file");
    EXPECT_EQ(catalogue.size(activeSlot), 2U);
}

TEST_F(PumpCatalogueTest, ShowsACutIndexAndKeepsTheManufacturersRead) {
    writeTwoMakers();
    const std::string path = pumps() + "/PumpList.vht";
    const std::string text = readWholeFile(path);
    replaceWholeFile(path, text.substr(0, text.find("Premier")));
    PumpCatalogue catalogue = this->catalogue();
    catalogue.InitializeHeatPumpLists();
    EXPECT_EQ(shown_, "62 - Input past end of file");
    EXPECT_EQ(catalogue.vhtMfgCount(), 2);
    EXPECT_EQ(catalogue.vhtTotalSeriesCount(), 3);
    EXPECT_EQ(catalogue.size(activeSlot), 2U);
}

TEST_F(PumpCatalogueTest, EndsSilentlyAtA37thSeriesAndKeepsThirtySix) {
    for (int i = 1; i <= 37; ++i) write("First", "S" + std::to_string(i), 1);
    PumpCatalogue catalogue = this->catalogue();
    catalogue.InitializeHeatPumpLists();
    EXPECT_EQ(shown_, "");
    EXPECT_EQ(catalogue.vhtTotalSeriesCount(), 36);
    EXPECT_EQ(activeSeries_, "FirstS1");
}

}  // namespace
}  // namespace varnholt
