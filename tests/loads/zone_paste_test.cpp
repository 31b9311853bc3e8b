// SPDX-License-Identifier: GPL-3.0-or-later
// Zones from a table on the clipboard, blocks over the load fields, several zones at once.
#include "loads/loads_fixture.h"

namespace varnholt {
namespace {

class ZoneTable : public LoadsTest {
 protected:
    frmZoneManage& paste(const std::string& text) {
        frmZoneManage& window = manager();
        platform.setClipboard(text);
        window.key("LOZoneList", "Ctrl+V");
        return window;
    }
    static const Zone& zone(const ZoneWindow& window, std::size_t position) {
        return window.ZoneList()[position];
    }
};

TEST_F(ZoneTable, MakesAZoneOfEachLine) {
    const frmZoneManage& window = paste(
        "Foyer\t10\t12.5\t8\t2\t5\t4\t3\t9\t1200\t800\t5\r\n"
        "Hall\t20\t22\t18\t4\t11\t9\t7\t15\t1500\t900\t6\r\n");
    ASSERT_EQ(window.zoneNumber(), 2);
    EXPECT_EQ(zone(window, 0).title, "Foyer");
    EXPECT_EQ(zone(window, 0).name, "Zone 1");
    EXPECT_EQ(zone(window, 0).gains[1][cooling], 12.5);
    EXPECT_EQ(zone(window, 0).gains[3][heating], 9);
    EXPECT_EQ(zone(window, 0).hours, (ByMode<std::int16_t>{1200, 800}));
    EXPECT_EQ(zone(window, 0).days, 5);
    EXPECT_EQ(zone(window, 1).name, "Zone 2");
    EXPECT_EQ(zone(window, 1).hours, (ByMode<std::int16_t>{1500, 900}));
    EXPECT_EQ(zone(window, 1).days, 6);
    EXPECT_EQ(window.selectedZone(), 1);
    EXPECT_TRUE(window.hasUnsavedChanges());
    EXPECT_EQ(zone(window, 1).pump.name, "No Pump");
}

TEST_F(ZoneTable, TakesOneFigureOfHoursForBothModesAndNoneForNone) {
    const frmZoneManage& window = paste(
        "A\t1\t2\t3\t4\t5\t6\t7\t8\t1000\t5\n"
        "B\t1\t2\t3\t4\t5\t6\t7\t8\n");
    EXPECT_EQ(zone(window, 0).hours, (ByMode<std::int16_t>{1000, 1000}));
    EXPECT_EQ(zone(window, 0).days, 5);
    EXPECT_EQ(zone(window, 1).hours, (ByMode<std::int16_t>{0, 0}));
    EXPECT_EQ(zone(window, 1).days, 7);
}

TEST_F(ZoneTable, PassesOverHeadsAndEmptyLines) {
    const frmZoneManage& window = paste(
        "Name\t8-12\tnoon-4\t4-8\t8-8\t8-12\tnoon-4\t4-8\t8-8\tHours\tDays\n\n"
        "A\t1\t2\t3\t4\t5\t6\t7\t8\t1000\t5\n");
    EXPECT_EQ(window.zoneNumber(), 1);
    EXPECT_EQ(zone(window, 0).title, "A");
}

TEST_F(ZoneTable, GoesByTheRangesOfTheFieldsAndCountsWhatTheyRefuse) {
    // A negative load is nought, eight days are seven, 40000 hours are more than can be kept.
    const frmZoneManage& window = paste("A\t-1\t2\t3\t4\t5\t6\t7\t8\t40000\t900\t8\n");
    EXPECT_EQ(zone(window, 0).gains[0][cooling], 0);
    EXPECT_EQ(zone(window, 0).hours, (ByMode<std::int16_t>{0, 900}));
    EXPECT_EQ(zone(window, 0).days, 7);
    ASSERT_FALSE(platform.told.empty());
    EXPECT_EQ(platform.told.back(), "[2335] [2336]");
}

TEST_F(ZoneTable, IsInTheUnitsThatAreShown) {
    manager().click("MetricCheck");
    const frmZoneManage& window = paste("A\t10\t0\t0\t0\t0\t0\t0\t0\n");
    EXPECT_NEAR(zone(window, 0).gains[0][cooling], 10 * 3.412, 0.01);  // kW to MBtu/hr
}

TEST_F(ZoneTable, IsOneStepToUndo) {
    frmZoneManage& window = paste("A\t1\t2\t3\t4\t5\t6\t7\t8\nB\t1\t2\t3\t4\t5\t6\t7\t8\n");
    ASSERT_EQ(window.zoneNumber(), 2);
    window.undo();
    EXPECT_EQ(window.zoneNumber(), 0);
    window.redo();
    EXPECT_EQ(window.zoneNumber(), 2);
}

TEST_F(ZoneTable, SaysSoWhereThereIsNone) {
    EXPECT_EQ(paste("nothing of the kind").zoneNumber(), 0);
    EXPECT_EQ(platform.told, std::vector<std::string>{"[2338]"});
}

TEST_F(ZoneTable, OfMoreZonesThanCanBeCountedChangesNothing) {
    std::string table;
    for (int i = 0; i < 32768; ++i) table += "A\t1\t2\t3\t4\t5\t6\t7\t8\n";
    EXPECT_EQ(paste(table).zoneNumber(), 0);
    EXPECT_EQ(lastMessage(), "6 - Overflow");
}

TEST_F(ZoneTable, RestsWhileTheSummaryIsOpen) {
    frmZoneManage& window = manager();
    addZone(window, 10, 5);
    window.click("LOSummaryCommand");
    paste("A\t1\t2\t3\t4\t5\t6\t7\t8\n");
    EXPECT_EQ(window.zoneNumber(), 1);
}

TEST_F(ZoneTable, AsABlockOverTheLoadFieldsIsTypedFieldByField) {
    frmZoneManage& window = manager();
    window.click("LONewCommand");
    const Form::FilledCells filled = window.fill({{"LOGainsText(0)", "10"},
                                                  {"LOGainsText(4)", "5"},
                                                  {"LOGainsText(1)", "-3"},
                                                  {"LOGainsText(5)", ""},
                                                  {"LOGainsText(2)", "n/a"}});
    EXPECT_EQ(filled.typed, 4);
    EXPECT_EQ(filled.refused, 2);
    EXPECT_EQ(zone(window, 0).gains[0], (ByMode<double>{10, 5}));
    EXPECT_EQ(zone(window, 0).gains[1][cooling], 0);
    EXPECT_EQ(shown(window, "LOGainsText(0)"), "10.0");
    EXPECT_FALSE(window.control("LOGainsText(0)").refused());
    EXPECT_TRUE(window.control("LOGainsText(1)").refused());
    EXPECT_TRUE(window.control("LOGainsText(2)").refused());
    window.undo();
    EXPECT_EQ(zone(window, 0).gains[0], (ByMode<double>{0, 0}));
}

TEST_F(ZoneTable, EditsSeveralZonesAsOneStep) {
    frmZoneManage& window = manager();
    for (int i = 0; i < 3; ++i) addZone(window, 10, 5);
    ZoneWindow::ZoneEdits edits;
    edits.hours = {"1200", std::nullopt};
    edits.label = "Office";
    edits.numbered = true;
    EXPECT_EQ(window.editZones({0, 2}, edits), 2);
    EXPECT_EQ(zone(window, 0).title, "Office 1");
    EXPECT_EQ(zone(window, 1).title, "");
    EXPECT_EQ(zone(window, 2).title, "Office 2");
    EXPECT_EQ(zone(window, 2).hours, (ByMode<std::int16_t>{1200, 0}));
    EXPECT_EQ(shown(window, "LOZoneReferenceText"), "Office 2");
    window.undo();
    EXPECT_EQ(zone(window, 0).title, "");
    EXPECT_EQ(zone(window, 2).hours, (ByMode<std::int16_t>{0, 0}));
}

TEST_F(ZoneTable, OfTheSummaryHasACellForEachFigureOfItsLine) {
    frmZoneManage& window = manager();
    addZone(window, 10, 5);
    window.type("LOZoneReferenceText", "Foyer");
    const std::vector<std::string> cells = window.summaryTableCells(1);
    ASSERT_EQ(cells.size(), window.summaryTableHeads().size());
    EXPECT_EQ(cells[0], "1");
    EXPECT_EQ(cells[1], "Foyer");
    EXPECT_EQ(cells[8], "5.0");  // the heating load of the last block
}

}  // namespace
}  // namespace varnholt
