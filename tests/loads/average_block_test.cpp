// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/ModLoadsIO.h"
#include "loads/loads_fixture.h"
#include "loads/rounding_of_fit.h"

namespace varnholt {
namespace {

/// The catalogue's models have a ratio of cooling to heating capacity of 1 / 0.9.
class AverageBlockTest : public LoadsTest {
 protected:
    const MiniPump& fitted() const { return window.ZoneList().at(0).pump; }
    /// Selects the active series' model of that index by hand.
    void selectPump(int model) {
        window.click("LOSelectCommand");
        window.choose("LOPumpNameCombo", model);
        window.click("LOSelectPumpCommand");
    }

    frmAvgBlock& window = block();
};

TEST_F(AverageBlockTest, DiffersFromTheZoneManagerInItsCommands) {
    for (const char* absent :
         {"LOCopyCommand", "LORemoveCommand", "LORenumberCommand", "LOSummaryCommand",
          "LOAutoSelectCommand", "LOAutoSelectAllCommand", "LOSummaryPicture"})
        EXPECT_FALSE(window.has(absent)) << absent;
    for (const char* present :
         {"LOImportCommand", "LONewCommand", "LOClearCommand", "LOOpenCommand", "LOSaveCommand",
          "LOPrintCommand", "LOUpdatePumpsCommand", "LOSelectCommand"})
        EXPECT_TRUE(window.has(present)) << present;
    EXPECT_EQ(window.caption(), "[2932]");
    EXPECT_EQ(shown(window, "LOPumpNameLabel"), "[2933]");
    EXPECT_EQ(shown(window, "LOLoadsLabel(1)"), "[2934]");
    EXPECT_EQ(shown(window, "LONumberOfUnitsText(0)"), "1.0");
    EXPECT_TRUE(main.frmAvgBlockWindowExists);
    window.setLight(true);
    EXPECT_TRUE(window.control("imgLinkLight(8)").visible());
    EXPECT_FALSE(window.control("imgLinkLight(0)").visible());
}

TEST_F(AverageBlockTest, HasOneZone) {
    window.click("LONewCommand");
    EXPECT_FALSE(enabled(window, "LONewCommand"));
    EXPECT_EQ(window.ZoneList().size(), 1U);
    EXPECT_EQ(window.zoneNumber(), 1);
    EXPECT_EQ(window.control("LOZoneFrame").caption(), "[2932]");
    EXPECT_FALSE(window.control("LOZoneList").visible());
    platform.answers = {Answer::no};
    window.click("LOClearCommand");
    EXPECT_TRUE(enabled(window, "LONewCommand"));
    EXPECT_TRUE(window.ZoneList().empty());
}

TEST_F(AverageBlockTest, APumpIsSizedToTheHeatingLoadWhereThatDecides) {
    // 90 x 0.9 = 81 is below 100: heating decides, at the entry factor 0 which counts as 1.
    addZone(window, 90, 100);
    selectPump(1);
    EXPECT_EQ(fitted().name, "Air-20");
    EXPECT_EQ(fitted().plf[heating], 1);
    EXPECT_NEAR(fitted().capacity[heating], 100, roundingOfFit);
    EXPECT_NEAR(fitted().capacity[cooling], 100 / 0.9, roundingOfFit);
    EXPECT_NEAR(fitted().flowRate[heating], 25, roundingOfFit);  // 100 x 3 / 12
    EXPECT_NEAR(fitted().flowRate[cooling], 25 / 0.9, roundingOfFit);
    EXPECT_NEAR(fitted().plf[cooling], 0.81, roundingOfFit);  // 90 / (100 / 0.9)
    // The COPs are the unit's own: 20 / 2.5 and 18 / 2 kBtu/hr a W.
    EXPECT_NEAR(fitted().watts[heating], 100 / 9.0, roundingOfFit);
    EXPECT_NEAR(fitted().watts[cooling], 100 / 0.9 / 8, roundingOfFit);
    EXPECT_EQ(fitted().customPump, 0);
}

TEST_F(AverageBlockTest, APumpIsSizedToTheCoolingLoadWhereThatDecides) {
    addZone(window, 200, 100);  // 200 x 0.9 = 180
    selectPump(1);
    EXPECT_NEAR(fitted().capacity[cooling], 200, roundingOfFit);
    EXPECT_NEAR(fitted().capacity[heating], 180, roundingOfFit);
    EXPECT_NEAR(fitted().flowRate[heating], 45, roundingOfFit);
    EXPECT_NEAR(fitted().plf[heating], 100.0 / 180, roundingOfFit);
}

TEST_F(AverageBlockTest, TheTypedPartLoadFactorIsTheOneOfTheFit) {
    addZone(window, 200, 100);
    window.click("LOCustomPumpCheck");
    window.type("LOPLFText(0)", "0.8");
    selectPump(1);
    EXPECT_EQ(fitted().plf[cooling], 0.8);
    EXPECT_NEAR(fitted().capacity[cooling], 250, roundingOfFit);  // 200 / 0.8
    EXPECT_NEAR(fitted().capacity[heating], 225, roundingOfFit);
}

TEST_F(AverageBlockTest, TheNumberOfUnitsHasNoInfluence) {
    addZone(window, 200, 100);
    selectPump(1);
    const MiniPump one = fitted();
    window.click("LOSelectCommand");
    window.choose("LOPumpNameCombo", 1);
    window.type("LONumberOfUnitsText(0)", "4");
    window.click("LOSelectPumpCommand");
    EXPECT_EQ(fitted().number, 4);
    for (const Mode m : modes) {
        EXPECT_NEAR(fitted().capacity[m], one.capacity[m], roundingOfFit);
        EXPECT_NEAR(fitted().watts[m], one.watts[m], roundingOfFit);
        EXPECT_NEAR(fitted().plf[m], one.plf[m], roundingOfFit);
    }
}

TEST_F(AverageBlockTest, AnUpdateFitsTheSameModelAgain) {
    addZone(window, 200, 100);
    selectPump(1);
    window.type("LOInletLoadsTempText(0)", "64");
    window.type("LOGainsText(1)", "400");
    window.type("FLFlowRateText", "2");
    window.click("LOUpdatePumpsCommand");
    EXPECT_EQ(fitted().name, "Air-20");
    EXPECT_EQ(fitted().number, 1);
    EXPECT_EQ(fitted().elt, (ByMode<double>{64, 70}));
    EXPECT_NEAR(fitted().capacity[cooling], 400, roundingOfFit);
    EXPECT_NEAR(fitted().flowRate[cooling], 400 * 2 / 12.0, roundingOfFit);
    EXPECT_EQ(shown(window, "LOCapacityText(0)"), "400.0");
    EXPECT_FALSE(window.updating);
    EXPECT_FALSE(window.samePumpUpdated);
}

TEST_F(AverageBlockTest, AnUpdateReadsTheZonesOwnSeries) {
    addZone(window, 200, 100);
    selectPump(1);
    window.choose("HPManufacturerCombo", 1);
    window.type("LOGainsText(1)", "400");
    window.click("LOUpdatePumpsCommand");
    EXPECT_NEAR(fitted().capacity[cooling], 400, roundingOfFit);
    EXPECT_EQ(fitted().seriesName, "Air");
    EXPECT_EQ(window.catalogue.PumpList(activeSlot, 0).name, "Other-50");
}

TEST_F(AverageBlockTest, AnUpdateTellsOfASeriesOrAModelThatTheCatalogueLost) {
    addZone(window, 200, 100);
    selectPump(1);
    window.change([&](LoadsDocument& of) { of.data.zones.edit(0).pump.name = "Gone"; });
    Zone before = window.ZoneList()[0];
    window.click("LOUpdatePumpsCommand");
    EXPECT_EQ(lastMessage(), "Zone 1 [2875]");
    EXPECT_EQ(window.ZoneList()[0], before);
    window.change([&](LoadsDocument& of) { of.data.zones.edit(0).pump.seriesName = "Gone"; });
    before = window.ZoneList()[0];
    window.click("LOUpdatePumpsCommand");
    EXPECT_EQ(platform.messages.size(), 2U);
    EXPECT_EQ(window.ZoneList()[0], before);
}

TEST_F(AverageBlockTest, AnUpdateLeavesACustomPump) {
    addZone(window, 200, 100);
    window.click("LOCustomPumpCheck");
    window.type("LOCapacityText(0)", "33");
    const Zone before = window.ZoneList()[0];
    window.click("LOUpdatePumpsCommand");
    EXPECT_EQ(window.ZoneList()[0], before);
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(AverageBlockTest, AFailedFitLeavesTheZone) {
    pump model = plainModel("Powerless", 20, 18);
    model.coefficients.watts[0] = {0, 0};
    write({{"Broken", "f_Broken", {2025, 1, 2}}, {"Third", "", "", "", ""}, {model}});
    window.InitializeHeatPumpLists();
    window.choose("HPManufacturerCombo", 2);
    addZone(window, 200, 100);
    const Zone before = window.ZoneList()[0];
    selectPump(0);
    EXPECT_EQ(lastMessage(), "11 - Division by zero");
    EXPECT_EQ(window.ZoneList()[0], before);
}

TEST_F(AverageBlockTest, LoadConditionsTypedInTheDetailsEnterTheFit) {
    addZone(window, 200, 100);
    selectPump(1);
    window.click("LODetailsCommand");
    window.type("LOInletLoadsFlowText(1)", "500");
    window.type("LOGainsText(1)", "300");
    window.click("LOReturnCommand");
    EXPECT_EQ(fitted().elf, (ByMode<double>{0, 500}));
    EXPECT_NEAR(fitted().capacity[cooling], 300, roundingOfFit);
}

TEST_F(AverageBlockTest, AFileWithSeveralZonesShowsItsFirstAndKeepsTheOthers) {
    LoadsData data;
    data.zones = std::vector<Zone>(2);
    data.zones.edit(0).title = "First";
    data.activeSeries = "FirstAir";
    writeFile(zoneFile("two.zon"), zonesText(data));
    ASSERT_TRUE(window.LOOpenZoneFile(zoneFile("two.zon")));
    EXPECT_EQ(shown(window, "LOZoneReferenceText"), "First");
    EXPECT_EQ(window.zoneNumber(), 2);
    EXPECT_TRUE(window.control("LOZoneList").visible());
    EXPECT_FALSE(enabled(window, "LONewCommand"));
    setSaved(window, "again.zon");
    LoadsData again;
    readZoneFile(zoneFile("again.zon"), {"Zone", ""}, again);
    EXPECT_EQ(again.zones.size(), 2U);
}

TEST_F(AverageBlockTest, IsSavedAndOpenedLikeAnyZones) {
    addZone(window, 200, 100);
    selectPump(1);
    setSaved(window, "block.zon");
    const SharedZones zones = window.ZoneList();
    window.click("LOClearCommand");
    ASSERT_TRUE(window.LOOpenZoneFile(zoneFile("block.zon")));
    EXPECT_EQ(window.ZoneList(), zones);
    EXPECT_FALSE(enabled(window, "LONewCommand"));
}

}  // namespace
}  // namespace varnholt
