// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "catalogue/sample_models.h"
#include "loads/ModLoadsIO.h"

namespace varnholt {
namespace {

const std::string files = VARNHOLT_SOURCE_DIR "/tests/files/";
const ZoneFileContext context{"Zone", "MakerFirst Series"};
const std::vector<const char*> versions{"1.0", "1.1", "2.0", "2.1", "3.0"};

/// What a window holds before it opens a file.
LoadsData earlierData() {
    LoadsData data;
    data.zones = std::vector<Zone>(1);
    data.zones.edit(0).title = "earlier";
    data.conditions = {1, {2, 3}, {4, 5}, {6, 7}};
    data.activeSeries = "earlier";
    return data;
}

LoadsData readFile(const std::string& name) {
    LoadsData data = earlierData();
    readZoneFile(files + name, context, data);
    return data;
}

LoadsData readBytes(const std::string& bytes) {
    LoadsData data;
    readZones(bytes, context, data);
    return data;
}

std::string replaced(std::string text, const std::string& what, const std::string& by) {
    const std::size_t place = text.find(what);
    EXPECT_NE(place, std::string::npos) << what;
    return text.replace(place, what.size(), by);
}

/// The two zones that all the files of old versions hold, as they were typed into them.
std::vector<Zone> zonesOfTheFiles() {
    Zone office;
    office.name = "Zone 1";
    office.gains = {{{11, 21}, {12, 22}, {13, 23}, {14, 24.5}}};
    office.hours = {1000, 1500};
    office.days = 5;
    office.title = "Café, south";
    MiniPump& pump = office.pump;
    pump.mfgName = "Northfield Heat Pumps";
    pump.seriesName = "Meadow Single Stage";
    pump.name = "ML030";
    pump.customPump = 0;
    pump.efficiency = {4.5, 3.75};
    pump.watts = {2.4, 1.9};
    pump.capacity = {30.2, 25.1};
    pump.flowRate = {7, 6.5};
    pump.plf = {0.93, 0.8};
    pump.elt = {67, 70};
    pump.nominalFlow = 1000;
    pump.elf = {950, 0};
    Zone store;
    store.name = "Zone 2";
    store.gains[2][cooling] = 5;
    store.gains[3][heating] = 8;
    store.hours = {0, 32767};
    store.pump.name = "Custom Pump";
    store.pump.number = 3;
    store.pump.efficiency = {5, 4};
    store.pump.watts = {6.6, 6};
    store.pump.capacity = {90, 82.5};
    store.pump.flowRate = {21, 20};
    store.pump.plf = {0.055, 0.097};
    store.pump.elt = {67, 70};
    return {office, store};
}

TEST(ZoneFile, OfVersionOneOpensWithoutLoadFlowAtTheConditionsOfItsTime) {
    std::vector<Zone> zones = zonesOfTheFiles();
    zones[0].pump.nominalFlow = 0;
    zones[0].pump.elf = {0, 0};
    const LoadsData data = readFile("zones_1.0.zon");
    EXPECT_EQ(data.zones, zones);
    EXPECT_EQ(data.conditions.flowRate, 3);
    EXPECT_EQ(data.conditions.inletTemp, (ByMode<double>{85, 50}));
    EXPECT_EQ(data.activeSeries, "MakerFirst Series");
    EXPECT_EQ(data.conditions.inletLoadAirTemp, (ByMode<double>{67, 70}));
    EXPECT_EQ(data.conditions.inletLoadWaterTemp, (ByMode<double>{55, 100}));
}

TEST(ZoneFile, OfVersionOnePointOneKeepsItsLoadFlow) {
    const LoadsData data = readFile("zones_1.1.zon");
    EXPECT_EQ(data.zones, zonesOfTheFiles());
    EXPECT_EQ(data.conditions, DesignConditions{});
    EXPECT_EQ(data.activeSeries, "MakerFirst Series");
}

TEST(ZoneFile, OfVersionTwoKeepsFlowAndTemperaturesAndGetsTheFirstSeries) {
    const LoadsData data = readFile("zones_2.0.zon");
    EXPECT_EQ(data.zones, zonesOfTheFiles());
    EXPECT_EQ(data.conditions, (DesignConditions{2.75, {88, 41.5}, {67, 70}, {55, 100}}));
    EXPECT_EQ(data.activeSeries, "MakerFirst Series");
}

TEST(ZoneFile, FromVersionTwoPointOneOnHoldsEverything) {
    for (const char* name : {"zones_2.1.zon", "zones_3.0.zon"}) {
        const LoadsData data = readFile(name);
        EXPECT_EQ(data.zones, zonesOfTheFiles()) << name;
        EXPECT_EQ(data.conditions, (DesignConditions{2.75, {88, 41.5}, {66, 71}, {54, 105}}));
        EXPECT_EQ(data.activeSeries, "Alder CreekMillrace Water to Water");
    }
}

TEST(ZoneFile, IsWrittenInTheNewestVersionWithAllBlocks) {
    EXPECT_EQ(zonesText(readFile("zones_3.0.zon")), readWholeFile(files + "zones_3.0.zon"));
    EXPECT_EQ(zonesText(readFile("zones_2.1.zon")), readWholeFile(files + "zones_3.0.zon"));
}

TEST(ZoneFile, OfEveryVersionIsTheSameDataAfterSaving) {
    for (const char* version : versions) {
        const LoadsData data = readFile(std::string("zones_") + version + ".zon");
        EXPECT_EQ(readBytes(zonesText(data)), data) << version;
    }
}

TEST(ZoneFile, KeepsAnEmptyTitleAsALine) {
    LoadsData data;
    data.zones = std::vector<Zone>(2);
    data.zones.edit(1).title = "second";
    const LoadsData read = readBytes(zonesText(data));
    EXPECT_EQ(read.zones.at(0).title, "");
    EXPECT_EQ(read.zones.at(1).title, "second");
}

TEST(ZoneFile, KeepsTheTypedValuesOfACustomPump) {
    const MiniPump pump = readFile("zones_3.0.zon").zones.at(1).pump;
    EXPECT_EQ(pump.customPump, 1);
    EXPECT_EQ(pump.number, 3);
    EXPECT_EQ(pump.capacity, (ByMode<double>{90, 82.5}));
    EXPECT_EQ(pump.plf, (ByMode<double>{0.055, 0.097}));
}

TEST(ZoneFile, NumbersTheZonesByTheirPositionAndStoresNoName) {
    LoadsData data;
    data.zones = std::vector<Zone>(2);
    data.zones.edit(0).name = "Zone 7";
    data.zones.edit(1).name = "Zone 3";
    const std::string text = zonesText(data);
    EXPECT_EQ(text.find("Zone 7"), std::string::npos);
    const LoadsData read = readBytes(text);
    EXPECT_EQ(read.zones.at(0).name, "Zone 1");
    EXPECT_EQ(read.zones.at(1).name, "Zone 2");
}

TEST(ZoneFile, WithoutZonesHasItsHeadAndTheConditions) {
    LoadsData data;
    data.activeSeries = "AB";
    EXPECT_EQ(
        zonesText(data),
        "Zone Data File Version 3.0\r\n0\r\n3\r\n85\r\n50\r\nAB\r\n67\r\n55\r\n70\r\n100\r\n");
    EXPECT_EQ(readBytes(zonesText(data)), data);
}

TEST(ZoneFile, RoundsANominalFlowIntoSixteenBits) {
    const std::string text = zonesText(readFile("zones_3.0.zon"));
    EXPECT_EQ(
        readBytes(replaced(text, "\r\n1000\r\n950", "\r\n2.5\r\n950")).zones[0].pump.nominalFlow,
        2);
    EXPECT_EQ(errorOf([&] { readBytes(replaced(text, "\r\n1000\r\n950", "\r\n40000\r\n950")); }),
              6);
}

TEST(ZoneFile, KeepsNumbersThatTheFieldsWouldRefuse) {
    const std::string text = zonesText(readFile("zones_3.0.zon"));
    const LoadsData data = readBytes(replaced(text, "\r\n11\r\n", "\r\n-1e12\r\n"));
    EXPECT_EQ(data.zones[0].gains[0][cooling], -1e12);
    EXPECT_EQ(readBytes(replaced(text, "\r\n11\r\n", "\r\neleven\r\n")).zones[0].gains[0][cooling],
              0);
    EXPECT_EQ(errorOf([&] { readBytes(replaced(text, "\r\n32767\r\n", "\r\n32768\r\n")); }), 6);
}

TEST(ZoneFile, WithAFalseCountKeepsTheZonesItHolds) {
    const std::string text = zonesText(readFile("zones_3.0.zon"));
    for (const char* count : {"3", "30000", "4000000000", "1e300"}) {
        LoadsData data = earlierData();
        const std::string bytes = replaced(text, "3.0\r\n2", std::string("3.0\r\n") + count);
        EXPECT_EQ(errorOf([&] { readZones(bytes, context, data); }), 62) << count;
        EXPECT_EQ(data.zones.size(), 2U) << count;
        EXPECT_EQ(data.conditions, earlierData().conditions) << count;
    }
    for (const char* count : {"-1", "0", "none"})
        EXPECT_TRUE(
            readBytes(replaced(text, "3.0\r\n2", std::string("3.0\r\n") + count)).zones.empty());
}

TEST(ZoneFile, ThatCannotBeReadLeavesEverythingAsItWas) {
    LoadsData data = earlierData();
    EXPECT_EQ(errorOf([&] { readZoneFile(files + "no_such.zon", context, data); }), 53);
    EXPECT_EQ(errorOf([&] { readZoneFile(files + "no_folder/a.zon", context, data); }), 76);
    EXPECT_EQ(errorOf([&] { readZones("", context, data); }), 62);
    EXPECT_EQ(errorOf([&] { readZones("Zone Data File Version 3.0\r\n", context, data); }), 62);
    EXPECT_EQ(data, earlierData());
}

TEST(ZoneFile, CutAtAnyByteIsAnErrorOrAShorterReadAndKeepsWholeZones) {
    for (const char* version : versions) {
        const std::string text = readWholeFile(files + "zones_" + version + ".zon");
        const LoadsData whole = readFile(std::string("zones_") + version + ".zon");
        const std::size_t lastLine = text.rfind("\r\n", text.size() - 3) + 2;
        for (std::size_t length = 0; length < text.size(); ++length) {
            LoadsData data = earlierData();
            const std::string_view cut = std::string_view(text).substr(0, length);
            const int error = errorOf([&] { readZones(cut, context, data); });
            // Without its last line end a file is still whole, but for its last number.
            EXPECT_EQ(error, length > lastLine ? 0 : 62) << version << " " << length;
            if (data == earlierData()) continue;
            ASSERT_LE(data.zones.size(), whole.zones.size()) << length;
            for (std::size_t i = 0; i < data.zones.size(); ++i)
                EXPECT_EQ(data.zones[i].gains, whole.zones[i].gains) << length;
        }
    }
}

TEST(ZoneFile, ReadsBothLineEndsAndBothEncodings) {
    const std::string text = zonesText(readFile("zones_3.0.zon"));
    std::string unixText;
    for (const char c : text)
        if (c != '\r') unixText += c;
    EXPECT_EQ(readBytes(unixText), readBytes(text));
    EXPECT_EQ(readBytes(replaced(text, "Café", "Caf\xE9")), readBytes(text));
}

TEST(ZoneFile, ReplacesTheOldFile) {
    const TemporaryFolder folder;
    const LoadsData data = readFile("zones_2.1.zon");
    saveZoneFile(folder.path() + "/a.zon", {});
    saveZoneFile(folder.path() + "/a.zon", data);
    LoadsData read;
    readZoneFile(folder.path() + "/a.zon", context, read);
    EXPECT_EQ(read, data);
    EXPECT_EQ(errorOf([&] { saveZoneFile(folder.path() + "/none/a.zon", data); }), 76);
}

TEST(ZoneFile, TellsHowManyOfItsZonesWereRead) {
    LoadsData data;
    data.zones = std::vector<Zone>(40);
    const std::string whole = zonesText(data);
    // Title and number of zones, and 30 lines each: four and a half zones.
    std::size_t end = 0;
    for (int line = 0; line < 2 + 4 * 30 + 15; ++line) end = whole.find('\n', end) + 1;
    LoadsData read;
    ReadingReport report;
    EXPECT_THROW(readZones(whole.substr(0, end), context, read, &report), RunTimeError);
    EXPECT_EQ(report.error, 62);
    EXPECT_EQ(report.line, 2U + 4 * 30 + 15);
    EXPECT_EQ(report.found, 4U);
    EXPECT_EQ(report.stated, 40U);
    EXPECT_EQ(read.zones.size(), 4U);
}

TEST(ZoneFile, LeavesOutTheZonesThatTheProgramDoesNotCount) {
    LoadsData data;
    data.zones = std::vector<Zone>(3);
    data.conditions.flowRate = 2.5;
    // The same text for 32,767 zones and two more.
    constexpr std::size_t many = 32767 + 2;
    LoadsData large = data;
    large.zones = std::vector<Zone>(many);
    LoadsData read;
    ReadingReport report;
    readZones(zonesText(large), context, read, &report);
    EXPECT_EQ(read.zones.size(), 32767U);
    EXPECT_EQ(report.leftOut, 2U);
    EXPECT_EQ(report.error, 0);
    // What stands behind the zones left out is found all the same.
    EXPECT_EQ(read.conditions.flowRate, 2.5);
    EXPECT_FALSE(report.leftover);
    EXPECT_FALSE(report.isWhole());
}

TEST(ZoneFile, TellsOfALastLineThatNothingEnds) {
    LoadsData data, read;
    data.zones = std::vector<Zone>(2);
    const std::string whole = zonesText(data);
    const auto lines = static_cast<std::size_t>(std::count(whole.begin(), whole.end(), '\n'));
    ReadingReport report;
    readZones(whole.substr(0, whole.size() - 2), context, read, &report);
    EXPECT_EQ(report.openLine, lines);
    EXPECT_TRUE(report.isWhole());
    // A carriage return ends a line too.
    readZones(whole.substr(0, whole.size() - 1), context, read, &report);
    EXPECT_EQ(report.openLine, 0U);
    readZones(whole, context, read, &report);
    EXPECT_EQ(report.openLine, 0U);
}

TEST(ZoneFile, TellsOfALabelOfManyMegabytes) {
    LoadsData data, read;
    Zone zone;
    zone.title = std::string(std::size_t{20} << 20, 'x');
    data.zones = std::vector<Zone>{zone, {}};
    ReadingReport report;
    readZones(zonesText(data), context, read, &report);
    EXPECT_EQ(read.zones.size(), 2U);
    EXPECT_EQ(read.zones[0].title, std::string(255, 'x'));
    // The title, the count, and 23 lines of gains, losses, hours, pump and days stand before it.
    EXPECT_EQ(report.shortenedLine, 26U);
    EXPECT_EQ(report.error, 0);
    EXPECT_FALSE(report.isWhole());
}

TEST(ZoneFile, TellsOfLinesThatBelongToNothing) {
    LoadsData data, read;
    data.zones = std::vector<Zone>(2);
    const std::string whole = zonesText(data);
    ReadingReport report;
    readZones(whole + "\r\n", context, read, &report);
    EXPECT_TRUE(report.isWhole());
    readZones(whole + "7\r\n", context, read, &report);
    EXPECT_TRUE(report.leftover);
    EXPECT_EQ(report.line,
              static_cast<std::size_t>(std::count(whole.begin(), whole.end(), '\n')) + 1);
}

}  // namespace
}  // namespace varnholt
