// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/ModPumpsIO.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "basis/file_system.h"
#include "catalogue/pump_evaluation.h"
#include "catalogue/sample_models.h"

namespace varnholt {
namespace {

const std::string shipped = VARNHOLT_SOURCE_DIR "/resources/pumps";
const std::string oldSeries = VARNHOLT_SOURCE_DIR "/tests/files/old_brook.hpd";

std::string replaced(std::string text, const std::string& what, const std::string& by) {
    const std::size_t place = text.find(what);
    EXPECT_NE(place, std::string::npos) << what;
    return text.replace(place, what.size(), by);
}

PumpSeries read(const std::string& bytes) {
    PumpSeries series;
    readPumpSeries(bytes, series);
    return series;
}

/// Every number of the two models has its own value, so that no two lines can be exchanged.
PumpSeries numberedSeries() {
    double next = 1;
    const auto fill = [&](ByMode<double>& pair) { pair = {next, next + 0.5}, next += 1; };
    PumpSeries series;
    series.mfgInfo = {"Works", "1 Street", "Town", "Country", "555"};
    series.seriesInfo = {"Brook", "works_brook", {2024, 2, 29}};
    for (const char* name : {"first", "second"}) {
        pump model;
        model.name = name;
        model.pumpType = static_cast<std::int16_t>(series.models.size());
        model.mfgInfo = series.mfgInfo;
        model.seriesInfo = series.seriesInfo;
        model.nominalFlow = next++;
        for (ewt& row : model.ewt) {
            row.temperature = next++;
            for (flowRate& flow : row.flowRate) {
                flow.flowRate = next++;
                for (HeatMode& point : flow.HeatMode) point = {next, next + 0.5}, next += 1;
            }
        }
        for (eat& row : model.eat)
            fill(row.temperature), fill(row.capacityCorrection), fill(row.wattsCorrection);
        for (elf& row : model.elf)
            fill(row.percent), fill(row.capacityCorrection), fill(row.wattsCorrection);
        auto& c = model.coefficients;
        for (std::size_t k = 0; k < 3; ++k) fill(c.capacity[k]), fill(c.watts[k]);
        for (std::size_t k = 0; k < 4; ++k) {
            fill(c.capacityCorrection[k]), fill(c.wattsCorrection[k]);
            fill(c.capacityFlowCorrection[k]), fill(c.wattsFlowCorrection[k]);
        }
        fill(model.flowCf[0]), fill(model.flowCf[1]);
        series.models.push_back(model);
    }
    return series;
}

/// Lines of a text, from 1.
std::string lineOf(const std::string& text, int number) {
    std::size_t start = 0;
    for (int i = 1; i < number; ++i) start = text.find("\r\n", start) + 2;
    return text.substr(start, text.find("\r\n", start) - start);
}

TEST(PumpSeriesFile, KeepsEveryNumberOfEveryModel) {
    const PumpSeries series = numberedSeries();
    EXPECT_EQ(read(pumpSeriesText(series)), series);
}

TEST(PumpSeriesFile, HasEveryItemOnItsLine) {
    // The head has 13 lines, a model 2 + 96 + 24 + 30 + 2 = 154, the additions begin with two
    // lines and take 55 for each model.
    const PumpSeries series = numberedSeries();
    const pump& first = series.models[0];
    const std::string text = pumpSeriesText(series);
    const auto number = [&](int line) { return std::stod(lineOf(text, line)); };
    EXPECT_EQ(lineOf(text, 1), "Works Brook List Version 3.0");
    EXPECT_EQ(lineOf(text, 2), "2");
    EXPECT_EQ(lineOf(text, 3), "");
    EXPECT_EQ(lineOf(text, 4), "Brook");
    EXPECT_EQ(lineOf(text, 5), "works_brook");
    EXPECT_EQ(lineOf(text, 6), "#2024-02-29#");
    EXPECT_EQ(lineOf(text, 8), "Works");
    EXPECT_EQ(lineOf(text, 12), "555");
    EXPECT_EQ(lineOf(text, 13), "");
    EXPECT_EQ(lineOf(text, 14), "first");
    EXPECT_EQ(lineOf(text, 15), "0");
    EXPECT_EQ(number(16), first.ewt[0].temperature);
    EXPECT_EQ(number(17), first.ewt[0].flowRate[0].flowRate);
    EXPECT_EQ(number(18), first.ewt[0].flowRate[0].HeatMode[cooling].capacity);
    EXPECT_EQ(number(19), first.ewt[0].flowRate[0].HeatMode[cooling].watts);
    EXPECT_EQ(number(20), first.ewt[0].flowRate[0].HeatMode[heating].capacity);
    EXPECT_EQ(number(111), first.ewt[5].flowRate[2].HeatMode[heating].watts);
    EXPECT_EQ(number(112), first.coefficients.capacity[0][cooling]);
    EXPECT_EQ(number(113), first.coefficients.watts[0][cooling]);
    EXPECT_EQ(number(114), first.coefficients.capacityCorrection[0][cooling]);
    EXPECT_EQ(number(135), first.coefficients.wattsCorrection[2][heating]);
    EXPECT_EQ(number(136), first.eat[0].temperature[cooling]);
    EXPECT_EQ(number(165), first.eat[4].wattsCorrection[heating]);
    EXPECT_EQ(number(166), first.flowCf[0][cooling]);
    EXPECT_EQ(lineOf(text, 168), "second");
    EXPECT_EQ(lineOf(text, 322), "");
    EXPECT_EQ(lineOf(text, 323), "Version 1.2 Additions");
    EXPECT_EQ(lineOf(text, 324), "");
    EXPECT_EQ(lineOf(text, 325), "first");
    EXPECT_EQ(number(326), first.flowCf[1][cooling]);
    EXPECT_EQ(number(328), first.nominalFlow);
    EXPECT_EQ(number(329), first.elf[0].percent[cooling]);
    EXPECT_EQ(number(358), first.elf[4].wattsCorrection[heating]);
    EXPECT_EQ(number(359), first.coefficients.capacityFlowCorrection[0][cooling]);
    EXPECT_EQ(number(371), first.coefficients.capacityFlowCorrection[3][cooling]);
    EXPECT_EQ(number(373), first.coefficients.capacityCorrection[3][cooling]);
    EXPECT_EQ(number(378), first.coefficients.wattsCorrection[3][heating]);
    EXPECT_EQ(lineOf(text, 379), "");
    EXPECT_EQ(lineOf(text, 380), "second");
}

TEST(PumpSeriesFile, ShippedOnesAreAsTheProgramWritesThem) {
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(shipped)) {
        if (entry.path().extension() != ".hpd") continue;
        SCOPED_TRACE(entry.path().string());
        const std::string bytes = readWholeFile(entry.path().string());
        const PumpSeries series = read(bytes);
        EXPECT_EQ(entry.path().stem(), series.seriesInfo.FileName);
        EXPECT_EQ(pumpSeriesText(series), bytes);
        ++files;
    }
    EXPECT_EQ(files, 4);
}

TEST(PumpIndexFile, ShippedOneIsAsTheProgramWritesItAndNamesEverySeriesFile) {
    const std::string bytes = readWholeFile(pumpIndexPath(shipped));
    std::vector<PumpList> manufacturers;
    readPumpIndex(bytes, manufacturers);
    EXPECT_EQ(pumpIndexText(manufacturers), bytes);
    for (const PumpList& manufacturer : manufacturers)
        for (const PumpSeriesInfo& info : manufacturer.seriesInfo) {
            const PumpSeries series = read(readWholeFile(pumpSeriesPath(shipped, info.FileName)));
            EXPECT_EQ(series.seriesInfo, info);
            EXPECT_EQ(series.mfgInfo, manufacturer.mfgInfo);
        }
}

TEST(PumpSeriesFile, OfVersionOneHasNoAdditionsAndEvaluatesWithoutNominalFlow) {
    const PumpSeries series = read(readWholeFile(oldSeries));
    ASSERT_EQ(series.models.size(), 2U);
    const pump& model = series.models[0];
    EXPECT_EQ(model.nominalFlow, 0);
    EXPECT_EQ(model.flowCf[0], (ByMode<double>{1.02, 1.05}));
    EXPECT_EQ(model.flowCf[1], (ByMode<double>{1, 1}));
    for (std::size_t a = 0; a < 5; ++a) {
        const double percent = 80 + 10 * static_cast<double>(a);
        EXPECT_EQ(model.elf[a], (elf{{1, 1}, {1, 1}, {percent, percent}}));
    }
    EXPECT_EQ(model.coefficients.capacityFlowCorrection, (Polynomial{{{1, 1}}}));
    EXPECT_EQ(model.coefficients.wattsFlowCorrection, Polynomial{});
    EXPECT_EQ(model.coefficients.capacityCorrection[3], (ByMode<double>{0, 0}));
    EXPECT_EQ(model.seriesInfo.currentDate, (Date{1998, 4, 17}));
    EXPECT_EQ(series.models[1].mfgInfo.mfgName, "Old Works");
    // 30 MBtu/hr at 85 degF, flow 28 / 12 x 3 = 7: 1 above 6, slope 30 x 0.02 / 3 = 0.2. The
    // power does not change with the flow.
    const MiniPump placed = evaluatePump(model, 1, peaks(28, 20), {}, {});
    EXPECT_NEAR(placed.capacity[cooling], 30.2, 1e-12);
    EXPECT_NEAR(placed.watts[cooling], 2.5, 1e-12);
    EXPECT_EQ(placed.elf, (ByMode<double>{0, 0}));
}

TEST(PumpSeriesFile, WrittenAgainFromAnOldOneHasTheAdditionsAndTheSameModels) {
    const PumpSeries series = read(readWholeFile(oldSeries));
    const std::string text = pumpSeriesText(series);
    EXPECT_NE(text.find("Version 1.2 Additions"), std::string::npos);
    EXPECT_EQ(read(text), series);
}

TEST(PumpSeriesFile, IsReadWithAdditionsFromVersionOnePointOneOn) {
    const std::string text = pumpSeriesText(numberedSeries());
    const double flow = numberedSeries().models[1].nominalFlow;
    for (const char* version : {"1.1", "1.2", "2.1", "3.0"})
        EXPECT_EQ(read(replaced(text, "3.0", version)).models[1].nominalFlow, flow) << version;
    EXPECT_EQ(read(replaced(text, "3.0", "1.0")).models[1].nominalFlow, 0);
}

TEST(PumpSeriesFile, WithAShortOrWordyFirstLineIsVersionZero) {
    const std::string text = pumpSeriesText(numberedSeries());
    for (const char* title : {"", "9", "30", "no version"}) {
        const PumpSeries series = read(replaced(text, "Works Brook List Version 3.0", title));
        ASSERT_EQ(series.models.size(), 2U) << title;
        EXPECT_EQ(series.models[1].nominalFlow, 0) << title;
    }
}

TEST(PumpSeriesFile, MatchesAdditionsByPositionWhateverTheNamesSay) {
    std::string text = pumpSeriesText(numberedSeries());
    const std::size_t second = text.rfind("second");
    text.replace(second, 6, "nobody");
    EXPECT_EQ(read(text), numberedSeries());
}

TEST(PumpSeriesFile, WithoutModelsHasItsHead) {
    PumpSeries series = numberedSeries();
    series.models.clear();
    EXPECT_EQ(read(pumpSeriesText(series)), series);
}

TEST(PumpSeriesFile, ReadsNumbersByTheirPrefixAndWordsAsZero) {
    const std::string text = pumpSeriesText(numberedSeries());
    const PumpSeries series = read(replaced(text, "first\r\n0\r\n2\r\n", "first\r\nx\r\n9 F\r\n"));
    EXPECT_EQ(series.models[0].pumpType, 0);
    EXPECT_EQ(series.models[0].ewt[0].temperature, 9);
    EXPECT_EQ(errorOf([&] { read(replaced(text, "first\r\n0\r\n", "first\r\n40000\r\n")); }), 6);
}

TEST(PumpSeriesFile, WithAWrongCountKeepsWhatItHolds) {
    const std::string text = pumpSeriesText(numberedSeries());
    EXPECT_EQ(read(replaced(text, "3.0\r\n2\r\n", "3.0\r\n-5\r\n")).models.size(), 0U);
    EXPECT_EQ(read(replaced(text, "3.0\r\n2\r\n", "3.0\r\n1\r\n")).models.size(), 1U);
    for (const char* count : {"3", "101", "30000", "999999999999", "1e300"}) {
        PumpSeries series;
        const std::string bytes =
            replaced(text, "3.0\r\n2\r\n", std::string("3.0\r\n") + count + "\r\n");
        EXPECT_EQ(errorOf([&] { readPumpSeries(bytes, series); }), 62) << count;
        EXPECT_EQ(series.models.size(), 2U) << count;
        EXPECT_EQ(series.models[1].ewt, numberedSeries().models[1].ewt);
    }
}

TEST(PumpSeriesFile, CutAtAnyByteIsAnErrorOrAShorterReadAndKeepsWholeModels) {
    const std::string text = pumpSeriesText(numberedSeries());
    std::size_t models = 0;
    for (std::size_t length = 0; length < text.size(); ++length) {
        PumpSeries series;
        const int error =
            errorOf([&] { readPumpSeries(std::string_view(text).substr(0, length), series); });
        // Without its last line end the file is still whole; the last number may be shorter.
        const bool inLastLine = length > text.rfind("\r\n", text.size() - 3) + 2;
        EXPECT_EQ(error, inLastLine ? 0 : 62) << length;
        EXPECT_GE(series.models.size(), models) << length;
        models = series.models.size();
        for (const pump& model : series.models) ASSERT_FALSE(model.name.empty());
    }
    EXPECT_EQ(models, 2U);
}

TEST(PumpSeriesFile, CutInItsAdditionsEvaluatesLikeAnOldOne) {
    const std::string text = pumpSeriesText(numberedSeries());
    PumpSeries series;
    const std::string cut = text.substr(0, text.find("Version 1.2"));
    EXPECT_EQ(errorOf([&] { readPumpSeries(cut, series); }), 62);
    ASSERT_EQ(series.models.size(), 2U);
    EXPECT_EQ(series.models[1].flowCf[1], (ByMode<double>{1, 1}));
    EXPECT_EQ(series.models[1].nominalFlow, 0);
}

TEST(PumpIndexFile, WithAManufacturerWithoutSeriesGoesOnWithTheNext) {
    const std::vector<PumpList> written{{{"A", "", "", "", ""}, {}},
                                        {{"B", "s", "t", "c", "p"}, {{"S", "s", {2025, 1, 2}}}}};
    const std::string text = pumpIndexText(written);
    EXPECT_EQ(text,
              "Pump List File Version 3.0\r\n2\r\n\r\nA\r\n\r\n\r\n\r\n\r\n0\r\n\r\nB\r\ns\r\nt\r\n"
              "c\r\np\r\n1\r\nS\r\ns\r\n#2025-01-02#\r\n");
    std::vector<PumpList> manufacturers;
    readPumpIndex(text, manufacturers);
    EXPECT_EQ(manufacturers, written);
}

TEST(PumpIndexFile, WithA37thSeriesIsAnIndexErrorAndKeepsThirtySix) {
    PumpList many{{"A", "", "", "", ""}, {}};
    for (int i = 0; i < 36; ++i) many.seriesInfo.push_back({"S" + std::to_string(i), "f", {}});
    std::vector<PumpList> manufacturers;
    readPumpIndex(pumpIndexText({many, many}), manufacturers);
    EXPECT_EQ(manufacturers.size(), 2U);
    PumpList tooMany = many;
    tooMany.seriesInfo.push_back({"S36", "f", {}});
    EXPECT_EQ(errorOf([&] {
                  readPumpIndex(pumpIndexText({many, tooMany, many}), manufacturers);
              }),
              9);
    ASSERT_EQ(manufacturers.size(), 2U);
    EXPECT_EQ(manufacturers[1].seriesCount(), 36);
}

TEST(PumpIndexFile, CutAtAnyByteIsAnErrorOrAShorterRead) {
    const std::string text = readWholeFile(pumpIndexPath(shipped));
    for (std::size_t length = 0; length < text.size(); ++length) {
        std::vector<PumpList> manufacturers;
        const int error = errorOf(
            [&] { readPumpIndex(std::string_view(text).substr(0, length), manufacturers); });
        const bool inLastLine = length > text.rfind("\r\n", text.size() - 3) + 2;
        EXPECT_EQ(error, inLastLine ? 0 : 62) << length;
        for (const PumpList& manufacturer : manufacturers)
            ASSERT_FALSE(manufacturer.mfgInfo.mfgName.empty()) << length;
    }
}

TEST(PumpIndexFile, WithAWrongCountKeepsWhatItHolds) {
    const std::string text = readWholeFile(pumpIndexPath(shipped));
    for (const char* count : {"-1", "0", "many"}) {
        std::vector<PumpList> manufacturers;
        readPumpIndex(replaced(text, "3.0\r\n2", std::string("3.0\r\n") + count), manufacturers);
        EXPECT_TRUE(manufacturers.empty());
    }
    std::vector<PumpList> manufacturers;
    const std::string huge = replaced(text, "3.0\r\n2", "3.0\r\n2000000000");
    EXPECT_EQ(errorOf([&] { readPumpIndex(huge, manufacturers); }), 62);
    EXPECT_EQ(manufacturers.size(), 2U);
}

TEST(PumpFiles, AreWrittenUnderTheirNames) {
    const TemporaryFolder folder;
    WritePumpList(folder.path(), {});
    WritePumpSeries(folder.path(), numberedSeries());
    EXPECT_EQ(read(readWholeFile(folder.path() + "/works_brook.hpd")), numberedSeries());
    EXPECT_EQ(readWholeFile(folder.path() + "/PumpList.vht"),
              "Pump List File Version 3.0\r\n0\r\n");
}

}  // namespace
}  // namespace varnholt
