// SPDX-License-Identifier: GPL-3.0-or-later
// The rows that the zone reports are bound to.
#include "reports/report_tables.h"

#include <gtest/gtest.h>

#include "forms/fake_platform.h"

namespace varnholt {
namespace {

Zone officeZone() {
    Zone zone;
    for (std::size_t block = 0; block < timeBlocks; ++block) {
        zone.gains[block][cooling] = 10.0 * static_cast<double>(block + 1);
        zone.gains[block][heating] = 5.0 * static_cast<double>(block + 1);
    }
    zone.hours = {1000, 800};
    zone.days = 5.5;
    zone.title = "Office";
    MiniPump& pump = zone.pump;
    pump.customPump = 0;
    pump.number = 3;
    pump.nominalFlow = 1200;
    pump.name = "AB-036";
    pump.mfgName = "Maker";
    pump.seriesName = "Quiet";
    pump.efficiency = {4.5, 3.25};
    pump.watts = {2.345, 2};
    pump.capacity = {36, 30.55};
    pump.flowRate = {9, 8};
    pump.plf = {0.955, 1};
    pump.elt = {67, 70};
    pump.elf = {1100, 0};
    return zone;
}

class Rows : public testing::Test {
 protected:
    std::string zoneText(const Zone& zone, const char* name, bool metric = false) {
        const ZoneRow row = zoneRows({zone}, {"Zone 1"}, metric, texts).front();
        return printedText(at(zoneFields, row.zone, name));
    }
    std::string pumpText(const Zone& zone, const char* name, bool metric = false) {
        const ZoneRow row = zoneRows({zone}, {"Zone 1"}, metric, texts).front();
        return printedText(at(pumpFields, row.pumps.front(), name));
    }
    template <class Fields>
    static const FieldValue& at(const Fields& fields, const FieldValues& row,
                                std::string_view name) {
        for (std::size_t i = 0; i < fields.size(); ++i)
            if (fields[i].name == name) return row.at(i);
        throw std::logic_error("no field " + std::string(name));
    }

    FakeTexts texts;
};

TEST_F(Rows, OfAZoneCarryWhatItsListAndItselfSay) {
    const Zone zone = officeZone();
    EXPECT_EQ(zoneText(zone, "Project ID"), "1");
    EXPECT_EQ(zoneText(zone, "Zone ID"), "1");
    EXPECT_EQ(zoneText(zone, "Title"), "Office");
    EXPECT_EQ(zoneText(zone, "Name"), "Zone 1");
    EXPECT_EQ(zoneText(zone, "Cooling Hours"), "1000");
    EXPECT_EQ(zoneText(zone, "Heating Hours"), "800");
    EXPECT_EQ(zoneText(zone, "Days per Week"), "5.5");
}

TEST_F(Rows, CountZonesByTheirPlaceAndNotByTheirName) {
    const std::vector<ZoneRow> rows =
        zoneRows({officeZone(), officeZone()}, {"Zone 1", "Zone 7"}, false, texts);
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(printedText(at(zoneFields, rows[1].zone, "Zone ID")), "2");
    EXPECT_EQ(printedText(at(zoneFields, rows[1].zone, "Name")), "Zone 7");
    EXPECT_EQ(printedText(at(pumpFields, rows[1].pumps.front(), "Pump ID")), "2");
}

TEST_F(Rows, OfAPumpStandInEnglishUnitsAsTheScreenShowsThem) {
    const Zone zone = officeZone();
    const std::pair<const char*, const char*> expected[] = {
        {"Name", "AB-036"},
        {"Manufacturer", "Maker"},
        {"Series", "Quiet"},
        {"PumpType", "[2862]"},
        {"PumpTypeLabel", "[2862]"},
        {"UnitNumber", "3"},
        // 2.345 rounds half away from zero.
        {"Watts Cool", "2.35"},
        {"Watts Heat", "2.00"},
        {"PLF Cool", "0.96"},
        {"PLF Heat", "1.00"},
        // 4.5 x 3.412 = 15.354; heating never has the factor.
        {"COP Cool", "15.4"},
        {"COP Heat", "3.3"},
        {"Loads 0 Cool", "10.0"},
        {"Loads 3 Cool", "40.0"},
        {"Loads 0 Heat", "5.0"},
        {"Loads 3 Heat", "20.0"},
        {"Capacity Cool", "36.0"},
        {"Capacity Heat", "30.6"},
        {"FlowRate Cool", "9.0"},
        {"FlowRate Heat", "8.0"},
        {"LoadTemp Cool", "67.0"},
        {"LoadTemp Heat", "70.0"},
        {"NominalFlow", "1200"},
        {"LoadFlow Cool", "1100"},
        {"LoadFlow Heat", "0"}};
    for (const auto& [field, text] : expected) EXPECT_EQ(pumpText(zone, field), text) << field;
}

TEST_F(Rows, OfAPumpStandInMetricUnits) {
    const Zone zone = officeZone();
    const std::pair<const char*, const char*> expected[] = {
        {"COP Cool", "4.5"},       {"COP Heat", "3.3"},
        {"Loads 1 Cool", "5.9"},    // 20 x 0.2931 = 5.862
        {"Loads 3 Heat", "5.9"},    // 20 x 0.2931
        {"Capacity Cool", "10.6"},  // 36 x 0.2931 = 10.5516
        {"FlowRate Cool", "34.1"},  // 9 x 3.785412 = 34.069
        {"LoadTemp Cool", "19.4"},  // (67 - 32) x 5 / 9 = 19.44
        {"LoadTemp Heat", "21.1"},  // (70 - 32) x 5 / 9 = 21.11
        {"NominalFlow", "566"},     // 1200 x 0.4719474 = 566.3
        {"LoadFlow Cool", "519"},   // 1100 x 0.4719474 = 519.1
        {"Watts Cool", "2.35"}};
    for (const auto& [field, text] : expected)
        EXPECT_EQ(pumpText(zone, field, true), text) << field;
}

TEST_F(Rows, OfAWaterToWaterPumpMeasureItsLoadSideInWater) {
    Zone zone = officeZone();
    zone.pump.pumpType = 1;
    zone.pump.nominalFlow = 9;
    zone.pump.elf = {8.25, 10};
    EXPECT_EQ(pumpText(zone, "PumpType"), "[2863]");
    EXPECT_EQ(pumpText(zone, "NominalFlow"), "9");
    EXPECT_EQ(pumpText(zone, "LoadFlow Cool"), "8.3");
    EXPECT_EQ(pumpText(zone, "NominalFlow", true), "34");      // 9 x 3.785412 = 34.07
    EXPECT_EQ(pumpText(zone, "LoadFlow Heat", true), "37.9");  // 10 x 3.785412
}

TEST_F(Rows, OfACustomPumpHaveNoMakerAndSaySo) {
    Zone zone = officeZone();
    zone.pump.customPump = 1;
    EXPECT_EQ(pumpText(zone, "Manufacturer"), " ");
    EXPECT_EQ(pumpText(zone, "Series"), " ");
    EXPECT_EQ(pumpText(zone, "PumpType"), "[2862]");
    EXPECT_EQ(pumpText(zone, "PumpTypeLabel"), "[2864]");
}

TEST_F(Rows, WriteOneBlankForAnEmptyText) {
    Zone zone = officeZone();
    zone.title.clear();
    zone.pump.name.clear();
    zone.pump.mfgName.clear();
    zone.pump.seriesName.clear();
    EXPECT_EQ(zoneText(zone, "Title"), " ");
    for (const char* field : {"Name", "Manufacturer", "Series"})
        EXPECT_EQ(pumpText(zone, field), " ") << field;
}

TEST_F(Rows, OfAnEmptyListAreOneEmptyZone) {
    const std::vector<ZoneRow> rows = zoneRows({}, {}, false, texts);
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_TRUE(rows.front().pumps.empty());
    for (const char* field : {"Zone ID", "Title", "Name", "Cooling Hours", "Days per Week"})
        EXPECT_EQ(printedText(at(zoneFields, rows.front().zone, field)), "") << field;
}

}  // namespace
}  // namespace varnholt
