// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/editor/catalogue_index.h"

#include <gtest/gtest.h>

#include "catalogue/ModPumpsIO.h"

namespace varnholt {
namespace {

PumpManufacturerInfo maker(const std::string& name) { return {name, "", "", "", ""}; }
PumpSeriesInfo series(const std::string& name) { return {name, "file " + name, {2026, 1, 2}}; }

std::vector<std::string> makersOf(const CatalogueIndex& index) {
    std::vector<std::string> names;
    for (const PumpList& each : index) names.push_back(each.mfgInfo.mfgName);
    return names;
}

std::vector<std::string> seriesOf(const PumpList& manufacturer) {
    std::vector<std::string> names;
    for (const PumpSeriesInfo& each : manufacturer.seriesInfo) names.push_back(each.seriesName);
    return names;
}

CatalogueIndex sample() {
    return {{maker("Brook"), {series("Air"), series("Water")}}, {maker("dale"), {series("One")}}};
}

using Names = std::vector<std::string>;

TEST(CatalogueIndex, TakesAManufacturerWhereTheAlphabetPutsIt) {
    CatalogueIndex index = sample();
    EXPECT_EQ(insertManufacturer(index, maker("Creek"), series("S")), (SeriesPlace{1, 0}));
    EXPECT_EQ(insertManufacturer(index, maker("alder"), series("S")), (SeriesPlace{0, 0}));
    EXPECT_EQ(insertManufacturer(index, maker("Zinc"), series("S")), (SeriesPlace{4, 0}));
    // A name that differs in its case alone goes behind.
    EXPECT_EQ(insertManufacturer(index, maker("DALE"), series("S")), (SeriesPlace{4, 0}));
    EXPECT_EQ(makersOf(index), (Names{"alder", "Brook", "Creek", "dale", "DALE", "Zinc"}));
    EXPECT_EQ(seriesOf(index[2]), Names{"S"});
}

TEST(CatalogueIndex, TakesASeriesWhereTheAlphabetPutsIt) {
    CatalogueIndex index = sample();
    EXPECT_EQ(insertSeries(index, 0, series("Brine")), (SeriesPlace{0, 1}));
    EXPECT_EQ(insertSeries(index, 0, series("zeolite")), (SeriesPlace{0, 3}));
    EXPECT_EQ(seriesOf(index[0]), (Names{"Air", "Brine", "Water", "zeolite"}));
}

TEST(CatalogueIndex, LosesAManufacturerWithItsLastSeries) {
    CatalogueIndex index = sample();
    removeSeries(index, {0, 0});
    EXPECT_EQ(seriesOf(index[0]), Names{"Water"});
    removeSeries(index, {0, 0});
    EXPECT_EQ(makersOf(index), Names{"dale"});
    removeSeries(index, {0, 0});
    EXPECT_TRUE(index.empty());
}

TEST(CatalogueIndex, FindsTheFirstOfANameExactly) {
    CatalogueIndex index = sample();
    index.push_back(index[0]);
    EXPECT_EQ(findManufacturer(index, "Brook"), 0u);
    EXPECT_FALSE(findManufacturer(index, "brook"));
    EXPECT_EQ(findSeries(index[0], "Water"), 1u);
    EXPECT_FALSE(findSeries(index[0], "water"));
}

TEST(CatalogueIndex, TellsNamesThatAreTakenElsewhere) {
    const CatalogueIndex index = sample();
    EXPECT_TRUE(isManufacturerTaken(index, "dale"));
    EXPECT_FALSE(isManufacturerTaken(index, "Dale"));
    EXPECT_FALSE(isManufacturerTaken(index, "dale", 1));
    EXPECT_TRUE(isManufacturerTaken(index, "Brook", 1));
    EXPECT_TRUE(isSeriesTaken(index[0], "Air"));
    EXPECT_FALSE(isSeriesTaken(index[0], "Air", 0));
    EXPECT_FALSE(isSeriesTaken(index[1], "Air"));
    // File names are those of all manufacturers.
    EXPECT_TRUE(isFileTaken(index, "file One"));
    EXPECT_FALSE(isFileTaken(index, "File One"));
    EXPECT_FALSE(isFileTaken(index, "file One", SeriesPlace{1, 0}));
    EXPECT_TRUE(isFileTaken(index, "file One", SeriesPlace{0, 0}));
}

TEST(FileName, LosesItsExtensionFromTheFirstFullStopOn) {
    EXPECT_EQ(withoutExtension("brook.hpd"), "brook");
    EXPECT_EQ(withoutExtension("brook.2026.hpd"), "brook");
    EXPECT_EQ(withoutExtension("brook"), "brook");
    EXPECT_EQ(withoutExtension(".."), "");
}

TEST(FileName, IsUsableWhereEverySystemCanMakeTheFile) {
    for (const char* name :
         {"brook", "Brook 2-stage", "wärmepumpe", "com", "com10", "console", "a_b(1)+c"})
        EXPECT_TRUE(isUsableFileName(name)) << name;
    EXPECT_TRUE(isUsableFileName(std::string(200, 'a')));
}

TEST(FileName, OfAnIndexMayLeadOutOfTheFolder) {
    EXPECT_TRUE(staysInFolder("a.b"));
    for (const char* name : {"../a", "/etc/a", "a\\b"}) EXPECT_FALSE(staysInFolder(name)) << name;
}

TEST(FileName, IsRefusedWhereSomeSystemCannotMakeTheFile) {
    for (const char* name :
         {"",     "a/b",  "../b", "..", "a\\b", "c:",  "a*",  "a?",  "a\"b", "<a>",  "a|b",  "a\nb",
          "a\tb", "\x7f", " a",   "a ", "con",  "CON", "Nul", "aux", "prn",  "com1", "LPT9", "a.b"})
        EXPECT_FALSE(isUsableFileName(name)) << name;
    EXPECT_FALSE(isUsableFileName(std::string(201, 'a')));
}

}  // namespace
}  // namespace varnholt
