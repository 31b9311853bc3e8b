// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/zone_warnings.h"

#include "loads/loads_fixture.h"

namespace varnholt {
namespace {

using Concern = ZoneWarning::Concern;

Zone zoneWith(double coolingLoad, double heatingLoad, double coolingCapacity,
              double heatingCapacity) {
    Zone zone;
    zone.gains[1][cooling] = coolingLoad;
    zone.gains[3][heating] = heatingLoad;
    zone.pump.capacity = {coolingCapacity, heatingCapacity};
    return zone;
}

/// Points at 30, 50 and 70 degF in heating, at 50, 70 and 90 in cooling.
pump modelOf() {
    pump model;
    for (std::size_t row = 0; row < 3; ++row) {
        model.ewt[row].temperature = 30 + 20.0 * static_cast<double>(row);
        model.ewt[row + 3].temperature = 50 + 20.0 * static_cast<double>(row);
    }
    return model;
}

constexpr ByMode<double> usualInlet{85, 50};

std::vector<ZoneWarning> warningsOf(const Zone& zone) {
    return varnholt::warningsOf(zone, usualInlet, nullptr);
}

TEST(ZoneWarnings, AreNoneForAPumpThatMeetsItsLoads) {
    EXPECT_TRUE(warningsOf(zoneWith(20, 15, 20, 15)).empty());
    EXPECT_TRUE(warningsOf(zoneWith(0, 0, 0, 0)).empty());
}

TEST(ZoneWarnings, TellOfALoadThatIsMoreThanTheCapacity) {
    const std::vector<ZoneWarning> warnings = warningsOf(zoneWith(20.1, 15, 20, 14));
    ASSERT_EQ(warnings.size(), 2U);
    EXPECT_EQ(warnings[0], (ZoneWarning{Concern::capacity, cooling, 20.1, 0, 20}));
    EXPECT_EQ(warnings[1], (ZoneWarning{Concern::capacity, heating, 15, 0, 14}));
}

TEST(ZoneWarnings, TellOfAPumpThatDoesNothingInAModeWithALoad) {
    const std::vector<ZoneWarning> warnings = warningsOf(zoneWith(20, 15, 25, 0));
    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_EQ(warnings[0].mode, heating);
}

TEST(ZoneWarnings, TellOfLoadsWithoutAPumpOnce) {
    const std::vector<ZoneWarning> warnings = warningsOf(zoneWith(20, 15, 0, 0));
    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_EQ(warnings[0].concern, Concern::missingPump);
}

TEST(ZoneWarnings, TellOfWaterBeyondThePumpsPointsAndNotOfItsEnds) {
    const pump model = modelOf();
    const Zone zone = zoneWith(20, 15, 25, 20);
    EXPECT_TRUE(varnholt::warningsOf(zone, {90, 30}, &model).empty());
    const auto warnings = varnholt::warningsOf(zone, {90.1, 29.9}, &model);
    ASSERT_EQ(warnings.size(), 2U);
    EXPECT_EQ(warnings[0], (ZoneWarning{Concern::inlet, cooling, 90.1, 50, 90}));
    EXPECT_EQ(warnings[1], (ZoneWarning{Concern::inlet, heating, 29.9, 30, 70}));
}

TEST(ZoneWarnings, SayNothingOfWaterInAModeWithoutALoadOrFromAnEmptyTable) {
    const pump model = modelOf();
    EXPECT_TRUE(varnholt::warningsOf(zoneWith(20, 0, 25, 20), {85, 0}, &model).empty());
    const pump empty;
    EXPECT_TRUE(varnholt::warningsOf(zoneWith(20, 15, 25, 20), {200, 0}, &empty).empty());
}

class WarnedZones : public LoadsTest {};

TEST_F(WarnedZones, AreToldOfInTheUnitsThatAreShown) {
    texts.known[2361] = "%1|%2|%3|%4|%5";
    texts.known[2315] = "kW";
    texts.known[2316] = "MBtu/hr";
    frmZoneManage& window = manager();
    addZone(window, 20, 0);
    window.click("LOCustomPumpCheck");
    window.type("LOCapacityText(0)", "17.06");
    EXPECT_EQ(window.warningsOfZone(0),
              std::vector<std::string>{"Zone 1|20.0|" + texts.text(2839) + "|17.1|MBtu/hr"});
    window.click("MetricCheck");
    // 20 and 17.06 MBtu/hr over 3.412
    EXPECT_EQ(window.warningsOfZone(0),
              std::vector<std::string>{"Zone 1|5.9|" + texts.text(2839) + "|5.0|kW"});
}

TEST_F(WarnedZones, AreToldOfByTheirOwnPumpsWhicheverSeriesIsActive) {
    texts.known[2363] = "%1|%2|%3|%4|%5";
    for (const char* name : {"Cool", "Warm"}) {
        pump model = modelOf();
        model.name = name;
        // The points of one series end at 80 degF, below the 85 of the conditions.
        if (model.name == "Cool") model.ewt[5].temperature = 80;
        write({{name, std::string("f_") + name, {2025, 1, 2}}, {"Third", "", "", "", ""}, {model}});
    }
    frmZoneManage& window = manager();
    for (const char* name : {"Cool", "Warm", "Gone"}) {
        addZone(window, 20, 0);
        window.change([name](LoadsDocument& document) {
            MiniPump& own = document.data.zones.edit(document.data.zones.size() - 1).pump;
            own.customPump = 0;
            own.mfgName = "Third";
            own.seriesName = own.name = name;
            own.capacity = {25, 20};
        });
    }
    EXPECT_EQ(window.conditions().inletTemp[cooling], 85);
    EXPECT_EQ(window.catalogue.activeSeries(), "FirstAir");
    EXPECT_EQ(window.warningsOfZone(0),
              std::vector<std::string>{"Zone 1|85.0|" + texts.text(2839) + "|50.0|80.0"});
    EXPECT_TRUE(window.warningsOfZone(1).empty());
    // Of a pump that the catalogue does not have nothing is known.
    EXPECT_TRUE(window.warningsOfZone(2).empty());
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(WarnedZones, ShowTheirCapacityBesideTheLoads) {
    frmZoneManage& window = manager();
    addZone(window, 20, 10);
    EXPECT_FALSE(window.loadsChart().capacity[cooling]);
    window.click("LOCustomPumpCheck");
    window.type("LOCapacityText(0)", "25");
    EXPECT_EQ(window.loadsChart().capacity[cooling], 25);
    EXPECT_FALSE(window.loadsChart().capacity[heating]);
}

}  // namespace
}  // namespace varnholt
