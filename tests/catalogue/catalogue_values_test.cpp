// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/catalogue_values.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "catalogue/sample_models.h"
#include "forms/fake_platform.h"

namespace varnholt {
namespace {

/// Two makers; the first one's series "Fine" is active. Its models carry numbers that tell where
/// they stand: 100000 times the table, and its indices as decimal digits.
class CatalogueValues : public testing::Test {
 protected:
    CatalogueValues() {
        std::filesystem::create_directory(pumps());
        WritePumpSeries(pumps(), series());
        WritePumpList(pumps(), {{series().mfgInfo,
                                 {series().seriesInfo, {"Coarse", "coarse", {2024, 2, 29}}}},
                                {{"Other", "o1", "o2", "o3", "o4"}, {}}});
        catalogue_.InitializeHeatPumpLists();
        addCatalogueValues(values_, catalogue_);
    }

    std::string pumps() const { return folder_.path("pumps"); }
    static PumpSeries series() {
        PumpSeries series{{"Fine", "fine", {2025, 1, 2}}, {"Maker", "m1", "m2", "m3", "m4"}, {}};
        series.models = {plainModel("F-1", 10, 10), numberedModel()};
        return series;
    }
    static double numbered(int table, int a, int b) { return 100000 * table + 10 * a + b; }
    static double numbered(int table, int a, int b, int c) {
        return 100000 * table + 100 * a + 10 * b + c;
    }
    static pump numberedModel() {
        pump model;
        model.name = "F-2";
        model.pumpType = 1;
        model.nominalFlow = 7.5;
        coefficients& curves = model.coefficients;
        for (int m = 0; m < 2; ++m) {
            const auto mode = static_cast<std::size_t>(m);
            for (int k = 0; k < 4; ++k) {
                const auto term = static_cast<std::size_t>(k);
                if (k < 3) {
                    curves.watts[term][mode] = numbered(1, k, m);
                    curves.capacity[term][mode] = numbered(2, k, m);
                }
                curves.wattsCorrection[term][mode] = numbered(3, k, m);
                curves.capacityCorrection[term][mode] = numbered(4, k, m);
                curves.wattsFlowCorrection[term][mode] = numbered(5, k, m);
                curves.capacityFlowCorrection[term][mode] = numbered(6, k, m);
            }
            for (int a = 0; a < 5; ++a) {
                const auto row = static_cast<std::size_t>(a);
                model.eat[row].temperature[mode] = numbered(7, a, m);
                model.eat[row].capacityCorrection[mode] = numbered(8, a, m);
                model.eat[row].wattsCorrection[mode] = numbered(9, a, m);
                model.elf[row].percent[mode] = numbered(10, a, m);
                model.elf[row].capacityCorrection[mode] = numbered(11, a, m);
                model.elf[row].wattsCorrection[mode] = numbered(12, a, m);
            }
            for (int q = 0; q < 2; ++q)
                model.flowCf[static_cast<std::size_t>(q)][mode] = numbered(13, q, m);
        }
        for (int e = 0; e < 6; ++e) {
            ewt& row = model.ewt[static_cast<std::size_t>(e)];
            row.temperature = numbered(14, e, 0);
            for (int f = 0; f < 3; ++f) {
                flowRate& flow = row.flowRate[static_cast<std::size_t>(f)];
                flow.flowRate = numbered(15, e, f);
                for (int m = 0; m < 2; ++m) {
                    HeatMode& point = flow.HeatMode[static_cast<std::size_t>(m)];
                    point.watts = numbered(16, e, f, m);
                    point.capacity = numbered(17, e, f, m);
                }
            }
        }
        return model;
    }

    double number(const std::string& name) const { return std::get<double>(values_.read(name)); }
    std::string text(const std::string& name) const {
        return std::get<std::string>(values_.read(name));
    }

    TemporaryFolder folder_;
    FakeTexts texts_;
    std::string activeSeries_;
    PumpCatalogue catalogue_{folder_.path(), texts_, activeSeries_, [](const std::string&) {}};
    Values values_;
};

TEST_F(CatalogueValues, TellTheIndexOfTheCatalogue) {
    EXPECT_EQ(number("vhtMfgCount"), 2);
    EXPECT_EQ(number("vhtTotalSeriesCount"), 2);
    EXPECT_EQ(text("activeSeries"), "MakerFine");
    EXPECT_EQ(text("vhtPumpNames(0).mfgInfo.mfgName"), "Maker");
    EXPECT_EQ(text("vhtPumpNames(1).mfgInfo.addressLine1"), "o1");
    EXPECT_EQ(text("vhtPumpNames(1).mfgInfo.addressLine2"), "o2");
    EXPECT_EQ(text("vhtPumpNames(1).mfgInfo.country"), "o3");
    EXPECT_EQ(text("vhtPumpNames(1).mfgInfo.phone"), "o4");
    EXPECT_EQ(number("vhtPumpNames(0).seriesCount"), 2);
    EXPECT_EQ(number("vhtPumpNames(1).seriesCount"), 0);
    EXPECT_EQ(text("vhtPumpNames(0).seriesInfo(1).seriesName"), "Coarse");
    EXPECT_EQ(text("vhtPumpNames(0).seriesInfo(1).FileName"), "coarse");
    EXPECT_EQ(values_.read("vhtPumpNames(0).seriesInfo(1).currentDate"),
              PublicValue(Date{2024, 2, 29}));
}

TEST_F(CatalogueValues, TellWhatAModelIs) {
    EXPECT_EQ(number("size(0)"), 2);
    EXPECT_EQ(number("size(1)"), 0);
    EXPECT_EQ(text("PumpList(0,0).name"), "F-1");
    EXPECT_EQ(text("PumpList(0,1).name"), "F-2");
    EXPECT_EQ(number("PumpList(0,1).pumpType"), 1);
    EXPECT_EQ(number("PumpList(0,1).nominalFlow"), 7.5);
    EXPECT_EQ(text("PumpList(0,1).mfgInfo.mfgName"), "Maker");
    EXPECT_EQ(text("PumpList(0,1).mfgInfo.addressLine1"), "m1");
    EXPECT_EQ(text("PumpList(0,1).mfgInfo.addressLine2"), "m2");
    EXPECT_EQ(text("PumpList(0,1).mfgInfo.country"), "m3");
    EXPECT_EQ(text("PumpList(0,1).mfgInfo.phone"), "m4");
    EXPECT_EQ(text("PumpList(0,1).seriesInfo.seriesName"), "Fine");
    EXPECT_EQ(text("PumpList(0,1).seriesInfo.FileName"), "fine");
    EXPECT_EQ(values_.read("PumpList(0,1).seriesInfo.currentDate"), PublicValue(Date{2025, 1, 2}));
}

TEST_F(CatalogueValues, TellTheTablesOfAModelByTheirIndices) {
    EXPECT_EQ(number("PumpList(0,1).coefficients.watts(2,1)"), 100021);
    EXPECT_EQ(number("PumpList(0,1).coefficients.capacity(1,0)"), 200010);
    EXPECT_EQ(number("PumpList(0,1).coefficients.wattsCorrection(3,1)"), 300031);
    EXPECT_EQ(number("PumpList(0,1).coefficients.capacityCorrection(3,0)"), 400030);
    EXPECT_EQ(number("PumpList(0,1).coefficients.wattsFlowCorrection(2,1)"), 500021);
    EXPECT_EQ(number("PumpList(0,1).coefficients.capacityFlowCorrection(0,1)"), 600001);
    EXPECT_EQ(number("PumpList(0,1).eat(4).temperature(1)"), 700041);
    EXPECT_EQ(number("PumpList(0,1).eat(3).capacityCorrection(0)"), 800030);
    EXPECT_EQ(number("PumpList(0,1).eat(2).wattsCorrection(1)"), 900021);
    EXPECT_EQ(number("PumpList(0,1).elf(4).percent(0)"), 1000040);
    EXPECT_EQ(number("PumpList(0,1).elf(1).capacityCorrection(1)"), 1100011);
    EXPECT_EQ(number("PumpList(0,1).elf(0).wattsCorrection(1)"), 1200001);
    EXPECT_EQ(number("PumpList(0,1).flowCf(1,0)"), 1300010);
    EXPECT_EQ(number("PumpList(0,1).ewt(5).temperature"), 1400050);
    EXPECT_EQ(number("PumpList(0,1).ewt(5).flowRate(2).flowRate"), 1500052);
    EXPECT_EQ(number("PumpList(0,1).ewt(4).flowRate(1).HeatMode(1).watts"), 1600411);
    EXPECT_EQ(number("PumpList(0,1).ewt(3).flowRate(2).HeatMode(0).capacity"), 1700320);
}

TEST_F(CatalogueValues, EndInError9BeyondTheCatalogue) {
    for (const char* name :
         {"size(2)", "PumpList(0,2).name", "PumpList(1,0).name", "PumpList(2,0).name",
          "PumpList(0,1).coefficients.watts(4,0)", "PumpList(0,1).coefficients.watts(0,2)",
          "PumpList(0,1).eat(5).temperature(0)", "PumpList(0,1).flowCf(2,0)",
          "PumpList(0,1).ewt(6).temperature", "PumpList(0,1).ewt(0).flowRate(3).flowRate",
          "PumpList(0,1).ewt(0).flowRate(0).HeatMode(2).watts", "vhtPumpNames(2).mfgInfo.phone",
          "vhtPumpNames(2).seriesCount", "vhtPumpNames(1).seriesInfo(0).FileName"}) {
        EXPECT_TRUE(values_.has(name)) << name;
        EXPECT_EQ(errorOf([&] { values_.read(name); }), 9) << name;
    }
}

TEST_F(CatalogueValues, FollowTheCatalogueAsItIsReadAgain) {
    PumpSeries longer = series();
    longer.models.push_back(plainModel("F-3", 30, 30));
    WritePumpSeries(pumps(), longer);
    catalogue_.InitializeHeatPumpLists();
    EXPECT_EQ(number("size(0)"), 3);
    EXPECT_EQ(text("PumpList(0,2).name"), "F-3");
}

}  // namespace
}  // namespace varnholt
