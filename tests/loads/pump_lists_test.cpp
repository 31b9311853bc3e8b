// SPDX-License-Identifier: GPL-3.0-or-later
// The loads windows after the catalogue's files have been written.
#include <gtest/gtest.h>

#include "basis/file_system.h"
#include "loads/loads_fixture.h"

namespace varnholt {
namespace {

class PumpLists : public LoadsTest {};

TEST_F(PumpLists, OfferASeriesThatHasComeAndKeepTheActiveOne) {
    frmZoneManage& window = manager();
    window.choose("HPManufacturerCombo", 0);
    window.choose("HPSeriesCombo", 1);
    window.choose("HPPumpList", 1);
    ASSERT_EQ(window.activeSeries(), "FirstWater");
    writeSeries("Second", "New", 0, {60});
    refreshPumpLists(main);
    EXPECT_EQ(window.activeSeries(), "FirstWater");
    EXPECT_EQ(window.control("HPSeriesCombo").text(), "Water");
    EXPECT_EQ(window.control("HPPumpList").index(), 1);
    EXPECT_EQ(window.catalogue.vhtTotalSeriesCount(), 4);
    window.choose("HPManufacturerCombo", 1);
    EXPECT_EQ(window.control("HPSeriesCombo").items(), (std::vector<std::string>{"Other", "New"}));
}

TEST_F(PumpLists, TakeTheFirstSeriesWhereTheActiveOneIsGone) {
    frmZoneManage& window = manager();
    window.choose("HPManufacturerCombo", 1);
    ASSERT_EQ(window.activeSeries(), "SecondOther");
    index.pop_back();
    writeFile(pumpIndexPath(pumps()), pumpIndexText(index));
    refreshPumpLists(main);
    EXPECT_EQ(window.activeSeries(), "FirstAir");
    EXPECT_EQ(window.control("HPManufacturerCombo").items(), std::vector<std::string>{"First"});
}

TEST_F(PumpLists, ShowTheNewPumpsOfASeriesAndLeaveTheZonesAlone) {
    frmZoneManage& window = manager();
    addZone(window, 15, 5);
    window.click("LOAutoSelectCommand");
    ASSERT_EQ(window.ZoneList()[0].pump.name, "Air-20");
    setSaved(window, "a.zon");
    PumpSeries series;
    readPumpSeries(readWholeFile(pumpSeriesPath(pumps(), "f_Air")), series);
    series.models[1].name = "Air-20 new";
    writeFile(pumpSeriesPath(pumps(), "f_Air"), pumpSeriesText(series));
    refreshPumpLists(main);
    EXPECT_EQ(window.control("HPPumpList").items()[1], "Air-20 new");
    EXPECT_EQ(window.ZoneList()[0].pump.name, "Air-20");
    EXPECT_FALSE(window.hasUnsavedChanges());
    window.click("LOAutoSelectCommand");
    EXPECT_EQ(window.ZoneList()[0].pump.name, "Air-20 new");
}

TEST_F(PumpLists, KeepWhatIsBeingSelected) {
    frmZoneManage& window = manager();
    addZone(window, 15, 5);
    window.click("LOSelectCommand");
    window.choose("LOSeriesCombo", 1);
    window.choose("LOPumpNameCombo", 1);
    writeSeries("Second", "New", 0, {60});
    refreshPumpLists(main);
    EXPECT_TRUE(window.pumpsAreBeingSelected());
    EXPECT_EQ(window.control("LOMfgCombo").text(), "First");
    EXPECT_EQ(window.control("LOSeriesCombo").text(), "Water");
    EXPECT_EQ(window.control("LOPumpNameCombo").text(), "Water-30");
    EXPECT_TRUE(window.catalogue.holds(browsedSlot, "First", "Water"));
    window.click("LOSelectPumpCommand");
    EXPECT_EQ(window.ZoneList()[0].pump.name, "Water-30");
}

TEST_F(PumpLists, AreThoseOfBothLoadsWindows) {
    frmZoneManage& zones = manager();
    frmAvgBlock& one = block();
    writeSeries("Third", "New", 0, {60});
    refreshPumpLists(main);
    for (ZoneWindow* window : std::initializer_list<ZoneWindow*>{&zones, &one})
        EXPECT_EQ(window->control("HPManufacturerCombo").items().size(), 3u);
}

}  // namespace
}  // namespace varnholt
