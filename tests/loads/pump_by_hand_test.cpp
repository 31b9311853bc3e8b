// SPDX-License-Identifier: GPL-3.0-or-later
// Pumps of the Zone Manager that are selected by hand, browsed, detailed and cleared.
#include <array>

#include "loads/pump_choice_fixture.h"

namespace varnholt {
namespace {

class PumpByHandTest : public PumpChoiceTest {};

TEST_F(PumpByHandTest, BrowsingChangesTheActiveSeriesAndNoZone) {
    addZone(window, 15, 10);
    setSaved(window, "a.zon");
    const SharedZones before = window.ZoneList();
    using Strings = std::vector<std::string>;
    EXPECT_EQ(window.control("HPManufacturerCombo").items(), (Strings{"First", "Second"}));
    EXPECT_EQ(window.control("HPSeriesCombo").items(), (Strings{"Air", "Water"}));
    EXPECT_EQ(window.control("HPPumpList").items(), (Strings{"Air-10", "Air-20", "Air-40"}));
    window.choose("HPManufacturerCombo", 1);
    EXPECT_EQ(window.activeSeries(), "SecondOther");
    EXPECT_EQ(window.control("HPPumpList").items(), (Strings{"Other-50"}));
    EXPECT_EQ(window.catalogue.size(activeSlot), 1U);
    EXPECT_EQ(window.ZoneList(), before);
    EXPECT_TRUE(window.hasUnsavedChanges());
}

TEST_F(PumpByHandTest, ASeriesThatCannotBeReadDoesNotBecomeActive) {
    std::filesystem::remove(pumps() + "/f_Water.hpd");
    window.choose("HPSeriesCombo", 1);
    EXPECT_EQ(lastMessage(), "[2455]\r\r" + pumps() + "/f_Water.hpd");
    EXPECT_EQ(window.activeSeries(), "FirstAir");
    EXPECT_EQ(shown(window, "HPSeriesCombo"), "Air");
    EXPECT_FALSE(window.hasUnsavedChanges());
}

TEST_F(PumpByHandTest, TheSelectionPanelStartsWithTheActiveSeries) {
    addZone(window, 15, 10);
    EXPECT_FALSE(window.pumpsAreBeingSelected());
    window.click("LOSelectCommand");
    EXPECT_TRUE(window.pumpsAreBeingSelected());
    EXPECT_EQ(shown(window, "LOMfgCombo"), "First");
    EXPECT_EQ(shown(window, "LOSeriesCombo"), "Air");
    EXPECT_EQ(shown(window, "LOPumpNameCombo"), "Air-10");
    choose("LOSeriesCombo", "Water");
    EXPECT_EQ(shown(window, "LOPumpNameCombo"), "Water-15");
    choose("LOMfgCombo", "Second");
    EXPECT_EQ(shown(window, "LOSeriesCombo"), "Other");
    EXPECT_EQ(shown(window, "LOPumpNameCombo"), "Other-50");
    EXPECT_EQ(window.activeSeries(), "FirstAir");
    EXPECT_EQ(pumpOf(0).name, "No Pump");
    window.click("LOCancelCommand");
    EXPECT_FALSE(window.pumpsAreBeingSelected());
    EXPECT_FALSE(window.beenHere);
    EXPECT_EQ(window.catalogue.PumpList(browsedSlot, 0).name, "Air-10");
    EXPECT_EQ(pumpOf(0).name, "No Pump");
}

TEST_F(PumpByHandTest, APumpIsSelectedByHand) {
    addZone(window, 15, 10);
    window.click("LOSelectCommand");
    choose("LOPumpNameCombo", "Air-20");
    window.type("LONumberOfUnitsText(0)", "2");
    window.click("LOSelectPumpCommand");
    EXPECT_FALSE(window.pumpsAreBeingSelected());
    EXPECT_TRUE(window.beenHere);
    EXPECT_EQ(pumpOf(0).name, "Air-20");
    EXPECT_EQ(pumpOf(0).number, 2);
    EXPECT_EQ(pumpOf(0).capacity[cooling], 40);
    EXPECT_EQ(shown(window, "LONumberOfUnitsText(1)"), "2");
    EXPECT_EQ(shown(window, "LOPumpNameText"), "Air-20");
}

TEST_F(PumpByHandTest, APumpOfTheSameTypeKeepsTheLoadTemperaturesOfTheZone) {
    addZone(window, 15, 10);
    window.type("LOInletLoadsTempText(0)", "63");
    window.click("LOSelectCommand");
    window.click("LOSelectPumpCommand");
    EXPECT_EQ(pumpOf(0).elt, (ByMode<double>{63, 70}));
    window.click("LOSelectCommand");
    choose("LOSeriesCombo", "Water");
    window.click("LOSelectPumpCommand");
    EXPECT_EQ(pumpOf(0).pumpType, 1);
    EXPECT_EQ(pumpOf(0).elt, (ByMode<double>{55, 100}));
}

TEST_F(PumpByHandTest, AfterAFirstSelectionThePanelStartsWithTheZonesOwnSeries) {
    addZone(window, 15, 10);
    window.click("LOSelectCommand");
    choose("LOMfgCombo", "Second");
    window.click("LOSelectPumpCommand");
    addZone(window, 15, 10);
    window.click("LOSelectCommand");  // it has no pump yet
    EXPECT_EQ(shown(window, "LOMfgCombo"), "First");
    window.choose("LOZoneList", 0);
    window.click("LOSelectCommand");
    EXPECT_EQ(shown(window, "LOMfgCombo"), "Second");
    EXPECT_EQ(shown(window, "LOPumpNameCombo"), "Other-50");
}

TEST_F(PumpByHandTest, UnitsToSelectAreAtLeastOneAndFitIntoSixteenBits) {
    addZone(window, 15, 10);
    window.click("LOSelectCommand");
    window.type("LONumberOfUnitsText(0)", "0");
    window.leave("LONumberOfUnitsText(0)");
    EXPECT_EQ(shown(window, "LONumberOfUnitsText(0)"), "1");
    window.type("LONumberOfUnitsText(0)", "-2");
    window.click("LOSelectPumpCommand");
    EXPECT_EQ(pumpOf(0).number, 1);
    const Zone before = window.ZoneList()[0];
    window.click("LOSelectCommand");
    window.type("LONumberOfUnitsText(0)", "40000");
    window.click("LOSelectPumpCommand");
    EXPECT_EQ(lastMessage(), "6 - Overflow");
    EXPECT_EQ(window.ZoneList()[0], before);
}

TEST_F(PumpByHandTest, AManufacturerThatIsListedTwiceStandsInTheListsOnce) {
    writeSeries("First", "More", 0, {60});  // behind "Second": the index has "First" again
    window.InitializeHeatPumpLists();
    using Strings = std::vector<std::string>;
    EXPECT_EQ(window.control("HPManufacturerCombo").items(), (Strings{"First", "Second"}));
    EXPECT_EQ(window.control("HPSeriesCombo").items(), (Strings{"Air", "Water", "More"}));
    choose("HPSeriesCombo", "More");
    EXPECT_EQ(window.activeSeries(), "FirstMore");
    window.InitializeHeatPumpLists();
    EXPECT_EQ(shown(window, "HPManufacturerCombo"), "First");
    EXPECT_EQ(shown(window, "HPSeriesCombo"), "More");
    addZone(window, 15, 10);
    window.click("LOSelectCommand");
    EXPECT_EQ(window.control("LOMfgCombo").items(), (Strings{"First", "Second"}));
    EXPECT_EQ(shown(window, "LOSeriesCombo"), "More");
    EXPECT_EQ(shown(window, "LOPumpNameCombo"), "More-60");
    window.click("LOSelectPumpCommand");
    EXPECT_EQ(pumpOf(0).name, "More-60");
}

TEST_F(PumpByHandTest, APumpChosenInThePanelGoesIntoAZoneThatWasAddedMeanwhile) {
    addZone(window, 15, 10);
    window.click("LOSelectCommand");
    choose("LOMfgCombo", "Second");
    window.click("LONewCommand");  // it reads the active series
    window.click("LOSelectPumpCommand");
    EXPECT_EQ(pumpOf(1).name, "Other-50");
    EXPECT_EQ(pumpOf(0).name, "No Pump");
}

TEST_F(PumpByHandTest, ASeriesThatIsGoneOffersNoModels) {
    addZone(window, 15, 10);
    window.click("LOSelectCommand");
    std::filesystem::remove(pumps() + "/f_Water.hpd");
    choose("LOSeriesCombo", "Water");
    EXPECT_EQ(lastMessage(), "[2455]\r\r" + pumps() + "/f_Water.hpd");
    EXPECT_TRUE(window.control("LOPumpNameCombo").items().empty());
    window.click("LOSelectPumpCommand");
    EXPECT_EQ(pumpOf(0).name, "No Pump");
}

TEST_F(PumpByHandTest, LoadConditionsTypedInTheDetailsEnterTheEvaluationOnReturn) {
    // Cooling capacity 1 + T / 67 times 15: 30 at 67 degF, 36.7 (15 x 164 / 67) at 97.
    pump model = plainModel("Warm", 15, 30);
    model.coefficients.capacityCorrection[1][cooling] = 1.0 / 67;
    model.nominalFlow = 800;
    makeActive("Sloped", {model});
    addZone(window, 20, 10);
    window.click("LOAutoSelectCommand");
    EXPECT_NEAR(pumpOf(0).capacity[cooling], 30, 1e-12);
    EXPECT_EQ(pumpOf(0).elf, (ByMode<double>{800, 800}));
    window.click("LODetailsCommand");
    EXPECT_TRUE(window.control("LODetailsFrame").visible());
    EXPECT_TRUE(enabled(window, "LOInletLoadsTempText(0)"));
    window.type("LOInletLoadsTempText(0)", "97");
    window.type("LOInletLoadsFlowText(1)", "600");
    EXPECT_NEAR(pumpOf(0).capacity[cooling], 30, 1e-12);
    window.click("LOReturnCommand");
    EXPECT_FALSE(window.control("LODetailsFrame").visible());
    EXPECT_NEAR(pumpOf(0).capacity[cooling], 15 * 164.0 / 67, 1e-12);
    EXPECT_EQ(pumpOf(0).elt, (ByMode<double>{97, 70}));
    EXPECT_EQ(pumpOf(0).elf, (ByMode<double>{800, 600}));
    EXPECT_FALSE(window.returningFromDetails);
    EXPECT_FALSE(window.samePumpUpdated);
}

TEST_F(PumpByHandTest, DetailsKeepTheUnitsThatAutoSelectFound) {
    addZone(window, 100, 50);
    window.click("LOAutoSelectCommand");
    window.click("LODetailsCommand");
    window.click("LOReturnCommand");
    EXPECT_EQ(pumpOf(0).number, 3);
    EXPECT_EQ(pumpOf(0).capacity[cooling], 120);
}

TEST_F(PumpByHandTest, AReturnFromTheDetailsOfAModelThatTheCatalogueLostChangesNothing) {
    addZone(window, 15, 10);
    window.click("LOAutoSelectCommand");
    for (std::string MiniPump::*lost : {&MiniPump::name, &MiniPump::seriesName}) {
        window.change([&](LoadsDocument& of) { of.data.zones.edit(0).pump.*lost = "Gone"; });
        window.choose("LOZoneList", 0);
        setSaved(window, "a.zon");
        window.click("LODetailsCommand");
        const Zone before = window.ZoneList()[0];
        window.click("LOReturnCommand");
        EXPECT_EQ(window.ZoneList()[0], before);
        EXPECT_FALSE(window.hasUnsavedChanges());
    }
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(window.catalogue.PumpList(browsedSlot, 0).name, "Air-10");
}

TEST_F(PumpByHandTest, TheLoadSideOfACustomPumpCannotBeTyped) {
    addZone(window, 15, 10);
    window.click("LOCustomPumpCheck");
    window.type("LOCapacityText(0)", "30");
    window.click("LODetailsCommand");
    for (int i = 0; i < 4; ++i) {
        EXPECT_FALSE(enabled(window, "LOInletLoadsTempText(" + std::to_string(i) + ")"));
        EXPECT_FALSE(enabled(window, "LOInletLoadsFlowText(" + std::to_string(i) + ")"));
    }
    window.click("LOReturnCommand");
    EXPECT_TRUE(enabled(window, "LOInletLoadsTempText(3)"));
    EXPECT_EQ(pumpOf(0).capacity[cooling], 30);
}

TEST_F(PumpByHandTest, TheOpenDetailsFollowTheZoneOnDisplay) {
    addZone(window, 15, 10);
    window.click("LOAutoSelectCommand");
    addZone(window, 15, 10);  // without a pump
    window.click("LODetailsCommand");
    EXPECT_FALSE(enabled(window, "LOInletLoadsTempText(0)"));
    window.choose("LOZoneList", 0);
    EXPECT_TRUE(enabled(window, "LOInletLoadsTempText(0)"));
    window.click("LOClearPumpsCommand");
    EXPECT_FALSE(enabled(window, "LOInletLoadsFlowText(1)"));
    window.click("LOAutoSelectCommand");
    EXPECT_TRUE(enabled(window, "LOInletLoadsFlowText(1)"));
    window.click("LOCustomPumpCheck");
    EXPECT_FALSE(enabled(window, "LOInletLoadsFlowText(1)"));
}

TEST_F(PumpByHandTest, TheLastZoneTakesTheOpenPanelsWithIt) {
    addZone(window, 15, 10);
    window.click("LOSelectCommand");
    window.click("LORemoveCommand");
    EXPECT_FALSE(window.pumpsAreBeingSelected());
    addZone(window, 15, 10);
    window.click("LODetailsCommand");
    platform.answers = {Answer::no};
    window.click("LOClearCommand");
    window.click("LONewCommand");
    EXPECT_FALSE(window.isShown(window.control("LODetailsFrame")));
}

TEST_F(PumpByHandTest, ClearTakesThePumpOutOfTheZone) {
    addZone(window, 15, 10);
    window.click("LOAutoSelectCommand");
    setSaved(window, "a.zon");
    window.click("LOClearPumpsCommand");
    MiniPump cleared;
    cleared.elt = {67, 70};
    EXPECT_EQ(pumpOf(0), cleared);
    EXPECT_EQ(shown(window, "LOPumpNameText"), "");
    EXPECT_EQ(shown(window, "LONumberOfUnitsText(0)"), "1");
    EXPECT_EQ(shown(window, "LONumberOfUnitsText(1)"), "1");
    for (const char* field : {"LOCapacityText(0)", "LOCOPText(1)", "LOFlowRateText(0)"})
        EXPECT_EQ(shown(window, field), "0.0") << field;
    for (const char* field : {"LOPowerText(0)", "LOPLFText(1)"})
        EXPECT_EQ(shown(window, field), "0.00") << field;
    EXPECT_FALSE(window.control("LOCustomPumpCheck").checked());
    EXPECT_TRUE(window.hasUnsavedChanges());
    EXPECT_EQ(window.ZoneList()[0].gains[1][cooling], 15);
}

TEST_F(PumpByHandTest, TheDetailsAndTheSelectionAreNotOpenTogether) {
    addZone(window, 15, 10);
    window.click("LODetailsCommand");
    window.click("LOSelectCommand");
    EXPECT_FALSE(window.control("LODetailsFrame").visible());
    window.click("LODetailsCommand");
    EXPECT_FALSE(window.control("LOSelectFrame").visible());
}

TEST_F(PumpByHandTest, TheChartShowsTheCurvesOfTheChosenModelOverItsPoints) {
    pump model = plainModel("Curved", 40, 20);
    model.coefficients.capacity[1] = {-0.2, 0.1};
    const std::array<double, 6> temperatures{32, 50, 68, 70, 85, 100};
    for (std::size_t row = 0; row < 6; ++row) {
        model.ewt[row].temperature = temperatures[row];
        model.ewt[row].flowRate[0].HeatMode[cooling] = {2.6, 24};
        model.ewt[row].flowRate[0].HeatMode[heating] = {2.1, 25};
    }
    makeActive("Chart", {plainModel("Flat", 10, 10), model});
    EXPECT_TRUE(window.pumpChart().capacity[cooling].curve.empty());  // it has no temperatures
    window.choose("HPPumpList", 1);
    const PumpChart chart = window.pumpChart();
    EXPECT_EQ(chart.name, "Curved");
    const auto& curve = chart.capacity[cooling].curve;
    EXPECT_EQ(curve.front(), (PumpChartPoint{70, 26}));  // 40 - 0.2 x 70
    EXPECT_EQ(curve.back(), (PumpChartPoint{100, 20}));
    ASSERT_EQ(chart.capacity[cooling].points.size(), 3U);
    EXPECT_EQ(chart.capacity[cooling].points[1], (PumpChartPoint{85, 24}));
    EXPECT_EQ(chart.power[heating].points[0], (PumpChartPoint{32, 2.1}));
    EXPECT_EQ(chart.capacity[heating].curve.front().enteringWater, 32);
    EXPECT_EQ(chart.power[cooling].curve.front().value, 2.5);
    window.click("MetricCheck");
    const PumpChart metric = window.pumpChart();
    EXPECT_EQ(metric.capacity[heating].curve.front().enteringWater, 0);
    EXPECT_DOUBLE_EQ(metric.capacity[cooling].points[1].value, 24 * 0.2931);
    EXPECT_EQ(metric.power[cooling].points[1].value, 2.6);
}

TEST_F(PumpByHandTest, TheChartIsEmptyWithoutAModel) {
    makeActive("Empty", std::vector<pump>{});
    EXPECT_EQ(window.pumpChart(), PumpChart{});
}

}  // namespace
}  // namespace varnholt
