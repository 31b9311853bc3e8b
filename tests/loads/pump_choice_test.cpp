// SPDX-License-Identifier: GPL-3.0-or-later
// Pumps of the Zone Manager: selected automatically and by hand, updated, cleared.
#include <array>

#include "loads/loads_fixture.h"

namespace varnholt {
namespace {

class PumpChoiceTest : public LoadsTest {
 protected:
    const MiniPump& pumpOf(std::size_t zone) const { return window.ZoneList.at(zone).pump; }
    /// Makes another series the active one.
    void makeActive(const std::string& maker, const std::string& series) {
        window.InitializeHeatPumpLists();
        choose("HPManufacturerCombo", maker);
        choose("HPSeriesCombo", series);
    }
    void choose(const std::string& combo, const std::string& entry) {
        const auto& items = window.control(combo).items();
        const auto found = std::find(items.begin(), items.end(), entry);
        ASSERT_NE(found, items.end()) << entry;
        window.choose(combo, static_cast<int>(found - items.begin()));
    }
    PumpSeries seriesOf(const std::string& name, const std::vector<pump>& models) {
        return {{name, "f_" + name, {2025, 1, 2}}, {"Third", "", "", "", ""}, models};
    }
    void makeActive(const std::string& name, const std::vector<pump>& models) {
        write(seriesOf(name, models));
        makeActive("Third", name);
    }

    frmZoneManage& window = manager();
};

TEST_F(PumpChoiceTest, AutoSelectFillsTheZoneFromTheCatalogue) {
    addZone(window, 15, 10);
    window.click("LOAutoSelectCommand");
    const MiniPump& pump = pumpOf(0);
    EXPECT_EQ(pump.name, "Air-20");
    EXPECT_EQ(pump.number, 1);
    EXPECT_EQ(pump.customPump, 0);
    EXPECT_EQ(pump.capacity, (ByMode<double>{20, 18}));
    EXPECT_EQ(pump.watts, (ByMode<double>{2.5, 2}));
    EXPECT_DOUBLE_EQ(pump.efficiency[cooling], 20 / (2.5 * 3.412));
    EXPECT_DOUBLE_EQ(pump.flowRate[cooling], 15.0 / 12 * 3);
    EXPECT_DOUBLE_EQ(pump.plf[heating], 10.0 / 18);
    EXPECT_EQ(shown(window, "LOPumpNameText"), "Air-20");
    EXPECT_EQ(shown(window, "LOCapacityText(0)"), "20.0");
    EXPECT_EQ(shown(window, "LOPowerText(0)"), "2.50");
    EXPECT_EQ(shown(window, "LOCOPText(0)"), "8.0");  // an EER: 20 / 2.5
    EXPECT_EQ(shown(window, "LOCOPText(1)"), "2.6");  // 18 / (2 x 3.412) = 2.638
    EXPECT_EQ(shown(window, "LOPLFText(0)"), "0.75");
    EXPECT_EQ(shown(window, "LODetailsTextLabel(0)"), "First");
    EXPECT_EQ(shown(window, "LODetailsTextLabel(1)"), "Air");
    EXPECT_TRUE(window.hasUnsavedChanges());
}

TEST_F(PumpChoiceTest, AutoSelectTakesTheFewestUnits) {
    addZone(window, 100, 50);  // two of the largest are 80, three are 120 and 108
    window.click("LOAutoSelectCommand");
    EXPECT_EQ(pumpOf(0).name, "Air-40");
    EXPECT_EQ(pumpOf(0).number, 3);
    EXPECT_EQ(shown(window, "LONumberOfUnitsText(0)"), "3");
    EXPECT_EQ(shown(window, "LONumberOfUnitsText(1)"), "3");
}

TEST_F(PumpChoiceTest, ATieGoesToTheEarlierModelOfTheFile) {
    makeActive("Tie", {plainModel("Early", 30, 30), plainModel("Late", 30, 30)});
    addZone(window, 20, 20);
    window.click("LOAutoSelectCommand");
    EXPECT_EQ(pumpOf(0).name, "Early");
}

TEST_F(PumpChoiceTest, OneModelMustMeetBothPeaks) {
    makeActive("Both", {plainModel("M1", 10, 5), plainModel("M2", 20, 10), plainModel("M3", 30, 15),
                        plainModel("M4", 40, 20), plainModel("M5", 50, 25)});
    addZone(window, 25, 22);  // cooling is met by M3, heating only by M5
    window.click("LOAutoSelectCommand");
    EXPECT_EQ(pumpOf(0).name, "M5");
    EXPECT_EQ(pumpOf(0).number, 1);
}

TEST_F(PumpChoiceTest, AnExcessOfExactlyZeroDoesNotQualify) {
    addZone(window, 20, 10);
    window.click("LOAutoSelectCommand");
    EXPECT_EQ(pumpOf(0).name, "Air-40");
}

TEST_F(PumpChoiceTest, WithoutAFittingPumpTheZoneStaysAsItWas) {
    addZone(window, 15, 10);
    window.click("LOAutoSelectCommand");
    window.type("LOGainsText(1)", "4000");  // a hundred of the largest are exactly that
    const Zone before = window.ZoneList[0];
    window.click("LOAutoSelectCommand");
    EXPECT_EQ(platform.messages.back().icon, MessageIcon::exclamation);
    EXPECT_EQ(lastMessage(), "[2940]\n\nZone 1");
    EXPECT_EQ(window.ZoneList[0], before);
}

TEST_F(PumpChoiceTest, AnEmptySeriesFitsNoZone) {
    makeActive("Empty", std::vector<pump>{});
    addZone(window, 15, 10);
    const Zone before = window.ZoneList[0];
    window.click("LOAutoSelectCommand");
    EXPECT_EQ(lastMessage(), "[2940]\n\nZone 1");
    EXPECT_EQ(window.ZoneList[0], before);
}

TEST_F(PumpChoiceTest, ASeriesOfMoreThan101ModelsCannotBeSearched) {
    makeActive("Long", std::vector<pump>(102, plainModel("Same", 30, 30)));
    addZone(window, 15, 10);
    const Zone before = window.ZoneList[0];
    window.click("LOAutoSelectCommand");
    EXPECT_EQ(lastMessage(), RunTimeError(9).message());
    window.click("LOAutoSelectAllCommand");
    EXPECT_EQ(platform.messages.size(), 2U);
    EXPECT_EQ(window.ZoneList[0], before);
}

TEST_F(PumpChoiceTest, EqualCatalogueFlowsEndWithDivisionByZero) {
    pump model = plainModel("Equal", 30, 30);
    model.ewt[3].flowRate[1].flowRate = 6;
    makeActive("Flows", {model});
    addZone(window, 15, 10);
    const Zone before = window.ZoneList[0];
    window.click("LOAutoSelectCommand");
    EXPECT_EQ(lastMessage(), "11 - Division by zero");
    EXPECT_EQ(window.ZoneList[0], before);
    window.click("LOSelectCommand");
    window.click("LOSelectPumpCommand");
    EXPECT_EQ(lastMessage(), "11 - Division by zero");
    EXPECT_EQ(window.ZoneList[0], before);
    EXPECT_EQ(shown(window, "LOPumpNameText"), "No Pump");
    EXPECT_FALSE(window.selectingPump);
}

TEST_F(PumpChoiceTest, AutoSelectAllServesEveryZoneAndKeepsTheSelection) {
    addZone(window, 5, 4);
    addZone(window, 15, 10);
    addZone(window, 30, 10);
    window.choose("LOZoneList", 1);
    window.click("LOCustomPumpCheck");
    setSaved(window, "a.zon");
    window.click("LOAutoSelectAllCommand");
    EXPECT_EQ(pumpOf(0).name, "Air-10");
    EXPECT_EQ(pumpOf(1).name, "Air-20");
    EXPECT_EQ(pumpOf(2).name, "Air-40");
    EXPECT_EQ(pumpOf(1).customPump, 0);  // custom pumps are overwritten
    EXPECT_EQ(window.selectedZone(), 1);
    EXPECT_EQ(shown(window, "LOPumpNameText"), "Air-20");
    EXPECT_TRUE(window.hasUnsavedChanges());
    EXPECT_EQ(platform.progressSteps, (std::vector<std::size_t>{1, 2, 3}));
}

TEST_F(PumpChoiceTest, AutoSelectAllNamesTheZonesWithoutAPumpInOneMessage) {
    for (const double load : {5.0, 5000.0, 15.0, 9000.0}) addZone(window, load, 4);
    window.click("LOAutoSelectAllCommand");
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(lastMessage(), "[2941]\n\nZone 2, Zone 4");
    EXPECT_EQ(pumpOf(1).name, "No Pump");
    EXPECT_EQ(pumpOf(2).name, "Air-20");
    EXPECT_EQ(platform.progressSteps.back(), 4U);
}

TEST_F(PumpChoiceTest, AutoSelectionSearchesTheActiveSeriesAtTheNominalLoadFlow) {
    makeActive("First", "Water");
    addZone(window, 20, 10);
    window.ZoneList[0].pump.elf = {500, 500};
    window.click("LOAutoSelectCommand");
    EXPECT_EQ(pumpOf(0).name, "Water-30");
    EXPECT_EQ(pumpOf(0).pumpType, 1);
    EXPECT_EQ(pumpOf(0).elt, (ByMode<double>{55, 100}));
    EXPECT_EQ(pumpOf(0).elf, (ByMode<double>{0, 0}));  // the models have no nominal flow
    EXPECT_EQ(shown(window, "LODetailsTextLabel(2)"), "[2866]");
}

TEST_F(PumpChoiceTest, BrowsingChangesTheActiveSeriesAndNoZone) {
    addZone(window, 15, 10);
    setSaved(window, "a.zon");
    const std::vector<Zone> before = window.ZoneList;
    using Strings = std::vector<std::string>;
    EXPECT_EQ(window.control("HPManufacturerCombo").items(), (Strings{"First", "Second"}));
    EXPECT_EQ(window.control("HPSeriesCombo").items(), (Strings{"Air", "Water"}));
    EXPECT_EQ(window.control("HPPumpList").items(), (Strings{"Air-10", "Air-20", "Air-40"}));
    window.choose("HPManufacturerCombo", 1);
    EXPECT_EQ(window.activeSeries, "SecondOther");
    EXPECT_EQ(window.control("HPPumpList").items(), (Strings{"Other-50"}));
    EXPECT_EQ(window.catalogue.size(activeSlot), 1U);
    EXPECT_EQ(window.ZoneList, before);
    EXPECT_TRUE(window.hasUnsavedChanges());
}

TEST_F(PumpChoiceTest, ASeriesThatCannotBeReadDoesNotBecomeActive) {
    std::filesystem::remove(pumps() + "/f_Water.hpd");
    window.choose("HPSeriesCombo", 1);
    EXPECT_EQ(lastMessage(), "[2455]\r\r" + pumps() + "/f_Water.hpd");
    EXPECT_EQ(window.activeSeries, "FirstAir");
    EXPECT_EQ(shown(window, "HPSeriesCombo"), "Air");
    EXPECT_FALSE(window.hasUnsavedChanges());
}

TEST_F(PumpChoiceTest, TheSelectionPanelStartsWithTheActiveSeries) {
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
    EXPECT_EQ(window.activeSeries, "FirstAir");
    EXPECT_EQ(pumpOf(0).name, "No Pump");
    window.click("LOCancelCommand");
    EXPECT_FALSE(window.pumpsAreBeingSelected());
    EXPECT_FALSE(window.beenHere);
    EXPECT_EQ(window.catalogue.PumpList(browsedSlot, 0).name, "Air-10");
    EXPECT_EQ(pumpOf(0).name, "No Pump");
}

TEST_F(PumpChoiceTest, APumpIsSelectedByHand) {
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

TEST_F(PumpChoiceTest, APumpOfTheSameTypeKeepsTheLoadTemperaturesOfTheZone) {
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

TEST_F(PumpChoiceTest, AfterAFirstSelectionThePanelStartsWithTheZonesOwnSeries) {
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

TEST_F(PumpChoiceTest, UnitsToSelectAreAtLeastOneAndFitIntoSixteenBits) {
    addZone(window, 15, 10);
    window.click("LOSelectCommand");
    window.type("LONumberOfUnitsText(0)", "0");
    window.leave("LONumberOfUnitsText(0)");
    EXPECT_EQ(shown(window, "LONumberOfUnitsText(0)"), "1");
    window.type("LONumberOfUnitsText(0)", "-2");
    window.click("LOSelectPumpCommand");
    EXPECT_EQ(pumpOf(0).number, 1);
    const Zone before = window.ZoneList[0];
    window.click("LOSelectCommand");
    window.type("LONumberOfUnitsText(0)", "40000");
    window.click("LOSelectPumpCommand");
    EXPECT_EQ(lastMessage(), "6 - Overflow");
    EXPECT_EQ(window.ZoneList[0], before);
}

TEST_F(PumpChoiceTest, ASeriesThatIsGoneOffersNoModels) {
    addZone(window, 15, 10);
    window.click("LOSelectCommand");
    std::filesystem::remove(pumps() + "/f_Water.hpd");
    choose("LOSeriesCombo", "Water");
    EXPECT_EQ(lastMessage(), "[2455]\r\r" + pumps() + "/f_Water.hpd");
    EXPECT_TRUE(window.control("LOPumpNameCombo").items().empty());
    window.click("LOSelectPumpCommand");
    EXPECT_EQ(pumpOf(0).name, "No Pump");
}

TEST_F(PumpChoiceTest, LoadConditionsTypedInTheDetailsEnterTheEvaluationOnReturn) {
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

TEST_F(PumpChoiceTest, DetailsKeepTheUnitsThatAutoSelectFound) {
    addZone(window, 100, 50);
    window.click("LOAutoSelectCommand");
    window.click("LODetailsCommand");
    window.click("LOReturnCommand");
    EXPECT_EQ(pumpOf(0).number, 3);
    EXPECT_EQ(pumpOf(0).capacity[cooling], 120);
}

TEST_F(PumpChoiceTest, TheLoadSideOfACustomPumpCannotBeTyped) {
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

TEST_F(PumpChoiceTest, ClearTakesThePumpOutOfTheZone) {
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
    EXPECT_EQ(window.ZoneList[0].gains[1][cooling], 15);
}

TEST_F(PumpChoiceTest, AnUpdateSelectsAgainUnderTheNewConditions) {
    addZone(window, 15, 10);
    window.click("LOAutoSelectAllCommand");
    window.type("LOGainsText(1)", "25");
    window.type("FLFlowRateText", "2");
    setSaved(window, "a.zon");
    window.click("LOUpdatePumpsCommand");
    EXPECT_EQ(pumpOf(0).name, "Air-40");
    EXPECT_DOUBLE_EQ(pumpOf(0).flowRate[cooling], 25.0 / 12 * 2);
    EXPECT_EQ(shown(window, "LOPumpNameText"), "Air-40");
    EXPECT_FALSE(window.updating);
    EXPECT_TRUE(window.hasUnsavedChanges());
}

TEST_F(PumpChoiceTest, AnUpdateKeepsEachZonesSeriesAndLoadTemperatures) {
    addZone(window, 15, 10);
    window.click("LOAutoSelectCommand");
    window.type("LOInletLoadsTempText(0)", "64");
    makeActive("Second", "Other");
    addZone(window, 15, 10);
    window.click("LOAutoSelectCommand");
    window.choose("LOZoneList", 0);
    window.click("LOUpdatePumpsCommand");
    EXPECT_EQ(pumpOf(0).name, "Air-20");
    EXPECT_EQ(pumpOf(0).elt, (ByMode<double>{64, 70}));
    EXPECT_EQ(pumpOf(1).name, "Other-50");
    EXPECT_EQ(window.activeSeries, "SecondOther");
    EXPECT_EQ(window.catalogue.PumpList(activeSlot, 0).name, "Other-50");
    EXPECT_EQ(window.selectedZone(), 0);
}

TEST_F(PumpChoiceTest, AnUpdatedPumpKeepsItsLoadFlowAndAnotherOneGoesBackToNominal) {
    pump small = plainModel("Small", 20, 20), large = plainModel("Large", 40, 40);
    small.nominalFlow = 800;
    large.nominalFlow = 1600;
    makeActive("Flow", {small, large});
    addZone(window, 15, 10);
    window.click("LOAutoSelectCommand");
    window.type("LOInletLoadsFlowText(0)", "700");
    window.click("LOUpdatePumpsCommand");
    EXPECT_EQ(pumpOf(0).elf, (ByMode<double>{700, 800}));
    window.type("LOGainsText(1)", "30");
    window.click("LOUpdatePumpsCommand");
    EXPECT_EQ(pumpOf(0).name, "Large");
    EXPECT_EQ(pumpOf(0).elf, (ByMode<double>{1600, 1600}));
}

TEST_F(PumpChoiceTest, AnUpdateSkipsCustomPumps) {
    addZone(window, 15, 10);
    window.click("LOCustomPumpCheck");
    window.type("LOCapacityText(0)", "33");
    setSaved(window, "a.zon");
    const std::vector<Zone> before = window.ZoneList;
    window.click("LOUpdatePumpsCommand");
    EXPECT_EQ(window.ZoneList, before);
    EXPECT_FALSE(window.hasUnsavedChanges());
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(PumpChoiceTest, AnUpdateTellsOfASeriesThatTheCatalogueLost) {
    addZone(window, 15, 10);
    addZone(window, 15, 10);
    window.click("LOAutoSelectAllCommand");
    window.ZoneList[0].pump.seriesName = "Gone";
    const Zone before = window.ZoneList[0];
    window.type("LOGainsText(1)", "25");
    window.click("LOUpdatePumpsCommand");
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(lastMessage(), "Zone 1 [2875]");
    EXPECT_EQ(window.ZoneList[0], before);
    EXPECT_EQ(pumpOf(1).name, "Air-40");
}

TEST_F(PumpChoiceTest, AnUpdateWithoutASeriesFileLeavesTheZone) {
    makeActive("Second", "Other");
    addZone(window, 15, 10);
    window.click("LOAutoSelectCommand");
    makeActive("First", "Air");
    std::filesystem::remove(pumps() + "/f_Other.hpd");
    const Zone before = window.ZoneList[0];
    window.click("LOUpdatePumpsCommand");
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(lastMessage(), "[2455]\r\r" + pumps() + "/f_Other.hpd");
    EXPECT_EQ(window.ZoneList[0], before);
}

TEST_F(PumpChoiceTest, AnUpdateWithoutAFittingPumpLeavesTheZone) {
    addZone(window, 15, 10);
    window.click("LOAutoSelectCommand");
    window.type("LOGainsText(1)", "9000");
    const Zone before = window.ZoneList[0];
    window.click("LOUpdatePumpsCommand");
    EXPECT_EQ(lastMessage(), "[2941]\n\nZone 1");
    EXPECT_EQ(window.ZoneList[0], before);
}

TEST_F(PumpChoiceTest, TheDetailsAndTheSelectionAreNotOpenTogether) {
    addZone(window, 15, 10);
    window.click("LODetailsCommand");
    window.click("LOSelectCommand");
    EXPECT_FALSE(window.control("LODetailsFrame").visible());
    window.click("LODetailsCommand");
    EXPECT_FALSE(window.control("LOSelectFrame").visible());
}

TEST_F(PumpChoiceTest, TheChartShowsTheCurvesOfTheChosenModelOverItsPoints) {
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

TEST_F(PumpChoiceTest, TheChartIsEmptyWithoutAModel) {
    makeActive("Empty", std::vector<pump>{});
    EXPECT_EQ(window.pumpChart(), PumpChart{});
}

}  // namespace
}  // namespace varnholt
