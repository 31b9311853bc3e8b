// SPDX-License-Identifier: GPL-3.0-or-later
// What the loads windows tell to scripts and reports by name.
#include "loads/loads_fixture.h"

namespace varnholt {
namespace {

class PublicLoads : public LoadsTest {
 protected:
    double number(const std::string& path) const {
        return std::get<double>(window.values().read(path));
    }
    std::string words(const std::string& path) const {
        return std::get<std::string>(window.values().read(path));
    }

    frmZoneManage& window = manager();
};

TEST_F(PublicLoads, HoldTheModelsOfBothSlots) {
    EXPECT_EQ(number("size(0)"), 3);
    EXPECT_EQ(words("PumpList(0,1).name"), "Air-20");
    EXPECT_EQ(words("PumpList(0,1).mfgInfo.mfgName"), "First");
    EXPECT_EQ(words("PumpList(0,1).seriesInfo.seriesName"), "Air");
    EXPECT_EQ(number("PumpList(0,2).coefficients.capacity(0,0)"), 40);
    EXPECT_EQ(number("PumpList(0,2).coefficients.capacity(0,1)"), 36);  // nine tenths
    EXPECT_EQ(number("PumpList(0,0).coefficients.watts(0,0)"), 2.5);
    EXPECT_EQ(number("PumpList(0,0).coefficients.wattsCorrection(0,1)"), 1);
    EXPECT_EQ(number("PumpList(0,0).ewt(3).flowRate(1).flowRate"), 9);
    EXPECT_EQ(number("PumpList(0,0).flowCf(1,1)"), 1);
    addZone(window, 15, 10);
    window.click("LOSelectCommand");
    window.choose("LOSeriesCombo", 1);
    EXPECT_EQ(number("size(1)"), 2);
    EXPECT_EQ(words("PumpList(1,0).name"), "Water-15");
    EXPECT_EQ(number("PumpList(1,0).pumpType"), 1);
    EXPECT_EQ(number("size(0)"), 3);
    EXPECT_EQ(words("activeSeries"), "FirstAir");
}

TEST_F(PublicLoads, HoldTheIndexOfTheCatalogue) {
    EXPECT_EQ(number("vhtMfgCount"), 2);
    EXPECT_EQ(number("vhtTotalSeriesCount"), 3);
    EXPECT_EQ(words("vhtPumpNames(0).mfgInfo.mfgName"), "First");
    EXPECT_EQ(number("vhtPumpNames(0).seriesCount"), 2);
    EXPECT_EQ(words("vhtPumpNames(0).seriesInfo(1).seriesName"), "Water");
    EXPECT_EQ(words("vhtPumpNames(1).seriesInfo(0).FileName"), "f_Other");
    EXPECT_EQ(std::get<Date>(window.values().read("vhtPumpNames(1).seriesInfo(0).currentDate")),
              (Date{2025, 1, 2}));
}

TEST_F(PublicLoads, OutsideAListAreASubscriptOutOfRange) {
    for (const char* path :
         {"size(2)", "PumpList(0,3).name", "PumpList(2,0).name", "vhtPumpNames(2).mfgInfo.mfgName",
          "vhtPumpNames(0).seriesInfo(2).seriesName", "ZoneList(0).days", "zoneTemp.hours(2)",
          "zoneTemp.gains(4,0)"}) {
        SCOPED_TRACE(path);
        EXPECT_TRUE(window.values().has(path));
        EXPECT_EQ(errorOf([&] { window.values().read(path); }), 9);
    }
}

TEST_F(PublicLoads, HoldTheZonesAndTheOneThatWasChosen) {
    addZone(window, 15, 10);
    window.type("LOHoursText(1)", "900");
    window.type("LOZoneReferenceText", "South");
    window.click("LOAutoSelectCommand");
    window.choose("LOZoneList", 0);
    window.type("LOGainsText(1)", "16");
    EXPECT_EQ(number("ZoneList(0).gains(1,0)"), 16);
    EXPECT_EQ(number("zoneTemp.gains(1,0)"), 15);
    EXPECT_EQ(number("zoneTemp.gains(3,1)"), 10);
    EXPECT_EQ(number("zoneTemp.hours(1)"), 900);
    EXPECT_EQ(number("zoneTemp.days"), 7);
    EXPECT_EQ(words("zoneTemp.name"), "Zone 1");
    EXPECT_EQ(words("zoneTemp.title"), "South");
    EXPECT_EQ(words("zoneTemp.pump.name"), "Air-20");
    EXPECT_EQ(number("zoneTemp.pump.capacity(1)"), 18);
    EXPECT_EQ(number("zoneTemp.pump.customPump"), 0);
}

TEST_F(PublicLoads, AreThereByTheNamesThatReportsAndScriptsUse) {
    const char* names[] = {"designLinkID",
                           "settingUnits",
                           "LOPrintOption",
                           "inletTemp(0)",
                           "minflowRate(1)",
                           "flowRate",
                           "zoneCount",
                           "style",
                           "zoneNumber",
                           "workingFileCheck",
                           "workingZoneFile",
                           "workingZoneDirectory",
                           "zoneSaveCancelled",
                           "settingItems",
                           "beenHere",
                           "insideChange",
                           "updating",
                           "samePumpUpdated",
                           "returningFromDetails",
                           "selectingPump",
                           "temporaryInletTemp(0)",
                           "temporaryInletFlow(1)",
                           "inletLoadAirTemp(0)",
                           "inletLoadWaterTemp(1)",
                           "projectName",
                           "designerName",
                           "clientName",
                           "addressLine1",
                           "addressLine2",
                           "city",
                           "state",
                           "zip",
                           "country",
                           "phone",
                           "fax",
                           "email",
                           "comments",
                           "currentDate",
                           "projectStartDate",
                           "counter",
                           "FileName",
                           "directoryName",
                           "currentFileCheck"};
    for (const char* name : names) {
        SCOPED_TRACE(name);
        EXPECT_NO_THROW(window.values().read(name));
        EXPECT_NO_THROW(block().values().read(name));
    }
}

}  // namespace
}  // namespace varnholt
