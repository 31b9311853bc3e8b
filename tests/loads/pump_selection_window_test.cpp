// SPDX-License-Identifier: GPL-3.0-or-later
// Pumps that the Zone Manager selects and updates by itself.
#include "forms/text_numbers/feedback.h"
#include "loads/pump_choice_fixture.h"

namespace varnholt {
namespace {

class PumpSelectionTest : public PumpChoiceTest {};

TEST_F(PumpSelectionTest, AutoSelectFillsTheZoneFromTheCatalogue) {
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

TEST_F(PumpSelectionTest, AutoSelectTakesTheFewestUnits) {
    addZone(window, 100, 50);  // two of the largest are 80, three are 120 and 108
    window.click("LOAutoSelectCommand");
    EXPECT_EQ(pumpOf(0).name, "Air-40");
    EXPECT_EQ(pumpOf(0).number, 3);
    EXPECT_EQ(shown(window, "LONumberOfUnitsText(0)"), "3");
    EXPECT_EQ(shown(window, "LONumberOfUnitsText(1)"), "3");
}

TEST_F(PumpSelectionTest, ATieGoesToTheEarlierModelOfTheFile) {
    makeActive("Tie", {plainModel("Early", 30, 30), plainModel("Late", 30, 30)});
    addZone(window, 20, 20);
    window.click("LOAutoSelectCommand");
    EXPECT_EQ(pumpOf(0).name, "Early");
}

TEST_F(PumpSelectionTest, OneModelMustMeetBothPeaks) {
    makeActive("Both", {plainModel("M1", 10, 5), plainModel("M2", 20, 10), plainModel("M3", 30, 15),
                        plainModel("M4", 40, 20), plainModel("M5", 50, 25)});
    addZone(window, 25, 22);  // cooling is met by M3, heating only by M5
    window.click("LOAutoSelectCommand");
    EXPECT_EQ(pumpOf(0).name, "M5");
    EXPECT_EQ(pumpOf(0).number, 1);
}

TEST_F(PumpSelectionTest, AnExcessOfExactlyZeroDoesNotQualify) {
    addZone(window, 20, 10);
    window.click("LOAutoSelectCommand");
    EXPECT_EQ(pumpOf(0).name, "Air-40");
}

TEST_F(PumpSelectionTest, WithoutAFittingPumpTheZoneStaysAsItWas) {
    addZone(window, 15, 10);
    window.click("LOAutoSelectCommand");
    window.type("LOGainsText(1)", "4000");  // a hundred of the largest are exactly that
    const Zone before = window.ZoneList()[0];
    window.click("LOAutoSelectCommand");
    EXPECT_EQ(platform.messages.back().icon, MessageIcon::exclamation);
    EXPECT_EQ(lastMessage(), "[2940]\n\nZone 1");
    EXPECT_EQ(window.ZoneList()[0], before);
}

TEST_F(PumpSelectionTest, AnEmptySeriesFitsNoZone) {
    makeActive("Empty", std::vector<pump>{});
    addZone(window, 15, 10);
    const Zone before = window.ZoneList()[0];
    window.click("LOAutoSelectCommand");
    EXPECT_EQ(lastMessage(), "[2940]\n\nZone 1");
    EXPECT_EQ(window.ZoneList()[0], before);
}

TEST_F(PumpSelectionTest, ASeriesOfMoreThan101ModelsCannotBeSearched) {
    makeActive("Long", std::vector<pump>(102, plainModel("Same", 30, 30)));
    addZone(window, 15, 10);
    const Zone before = window.ZoneList()[0];
    window.click("LOAutoSelectCommand");
    EXPECT_EQ(lastMessage(), RunTimeError(9).message());
    window.click("LOAutoSelectAllCommand");
    EXPECT_EQ(platform.messages.size(), 2U);
    EXPECT_EQ(window.ZoneList()[0], before);
}

TEST_F(PumpSelectionTest, EqualCatalogueFlowsEndWithDivisionByZero) {
    pump model = plainModel("Equal", 30, 30);
    model.ewt[3].flowRate[1].flowRate = 6;
    makeActive("Flows", {model});
    addZone(window, 15, 10);
    const Zone before = window.ZoneList()[0];
    window.click("LOAutoSelectCommand");
    EXPECT_EQ(lastMessage(), "11 - Division by zero");
    EXPECT_EQ(window.ZoneList()[0], before);
    window.click("LOSelectCommand");
    window.click("LOSelectPumpCommand");
    EXPECT_EQ(lastMessage(), "11 - Division by zero");
    EXPECT_EQ(window.ZoneList()[0], before);
    EXPECT_EQ(shown(window, "LOPumpNameText"), "No Pump");
    EXPECT_FALSE(window.selectingPump);
    EXPECT_EQ(window.catalogue.PumpList(browsedSlot, 0).name, "Equal");
    window.click("LOSelectCommand");
    choose("LOMfgCombo", "Second");
    window.type("LONumberOfUnitsText(0)", "40000");
    window.click("LOSelectPumpCommand");  // an overflow, and the panel is left all the same
    EXPECT_EQ(window.catalogue.PumpList(browsedSlot, 0).name, "Equal");
}

TEST_F(PumpSelectionTest, AutoSelectAllServesEveryZoneAndKeepsTheSelection) {
    addZone(window, 5, 4);
    addZone(window, 15, 10);
    addZone(window, 30, 10);
    window.choose("LOZoneList", 1);
    window.click("LOCustomPumpCheck");
    setSaved(window, "a.zon");
    platform.told.clear();
    texts.known[Text::pumpsSelected] = "Pumps for %1 zones.";
    window.click("LOAutoSelectAllCommand");
    EXPECT_EQ(pumpOf(0).name, "Air-10");
    EXPECT_EQ(pumpOf(1).name, "Air-20");
    EXPECT_EQ(pumpOf(2).name, "Air-40");
    EXPECT_EQ(pumpOf(1).customPump, 0);  // custom pumps are overwritten
    EXPECT_EQ(window.selectedZone(), 1);
    EXPECT_EQ(shown(window, "LOPumpNameText"), "Air-20");
    EXPECT_TRUE(window.hasUnsavedChanges());
    EXPECT_EQ(platform.progressSteps, (std::vector<std::size_t>{1, 2, 3}));
    EXPECT_EQ(platform.told, std::vector<std::string>{"Pumps for 3 zones."});
}

TEST_F(PumpSelectionTest, AutoSelectAllNamesTheZonesWithoutAPumpInOneMessage) {
    for (const double load : {5.0, 5000.0, 15.0, 9000.0}) addZone(window, load, 4);
    window.click("LOAutoSelectAllCommand");
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(lastMessage(), "[2941]\n\nZone 2, Zone 4");
    EXPECT_TRUE(platform.told.empty());
    EXPECT_EQ(pumpOf(1).name, "No Pump");
    EXPECT_EQ(pumpOf(2).name, "Air-20");
    EXPECT_EQ(platform.progressSteps.back(), 4U);
}

TEST_F(PumpSelectionTest, AutoSelectionSearchesTheActiveSeriesAtTheNominalLoadFlow) {
    makeActive("First", "Water");
    addZone(window, 20, 10);
    window.change([&](LoadsDocument& of) { of.data.zones.edit(0).pump.elf = {500, 500}; });
    window.click("LOAutoSelectCommand");
    EXPECT_EQ(pumpOf(0).name, "Water-30");
    EXPECT_EQ(pumpOf(0).pumpType, 1);
    EXPECT_EQ(pumpOf(0).elt, (ByMode<double>{55, 100}));
    EXPECT_EQ(pumpOf(0).elf, (ByMode<double>{0, 0}));  // the models have no nominal flow
    EXPECT_EQ(shown(window, "LODetailsTextLabel(2)"), "[2866]");
}

TEST_F(PumpSelectionTest, AnUpdateSelectsAgainUnderTheNewConditions) {
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

TEST_F(PumpSelectionTest, AnUpdateKeepsEachZonesSeriesAndLoadTemperatures) {
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
    EXPECT_EQ(window.activeSeries(), "SecondOther");
    EXPECT_EQ(window.catalogue.PumpList(activeSlot, 0).name, "Other-50");
    EXPECT_EQ(window.selectedZone(), 0);
}

TEST_F(PumpSelectionTest, AnUpdatedPumpKeepsItsLoadFlowAndAnotherOneGoesBackToNominal) {
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

TEST_F(PumpSelectionTest, AnUpdateSkipsCustomPumps) {
    addZone(window, 15, 10);
    window.click("LOCustomPumpCheck");
    window.type("LOCapacityText(0)", "33");
    setSaved(window, "a.zon");
    const SharedZones before = window.ZoneList();
    window.click("LOUpdatePumpsCommand");
    EXPECT_EQ(window.ZoneList(), before);
    EXPECT_FALSE(window.hasUnsavedChanges());
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(PumpSelectionTest, AnUpdateTellsOfASeriesThatTheCatalogueLost) {
    addZone(window, 15, 10);
    addZone(window, 15, 10);
    window.click("LOAutoSelectAllCommand");
    window.change([&](LoadsDocument& of) { of.data.zones.edit(0).pump.seriesName = "Gone"; });
    const Zone before = window.ZoneList()[0];
    window.type("LOGainsText(1)", "25");
    window.click("LOUpdatePumpsCommand");
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(lastMessage(), "Zone 1 [2875]");
    EXPECT_EQ(window.ZoneList()[0], before);
    EXPECT_EQ(pumpOf(1).name, "Air-40");
}

TEST_F(PumpSelectionTest, AnUpdateWithoutASeriesFileLeavesTheZone) {
    makeActive("Second", "Other");
    addZone(window, 15, 10);
    window.click("LOAutoSelectCommand");
    makeActive("First", "Air");
    std::filesystem::remove(pumps() + "/f_Other.hpd");
    const Zone before = window.ZoneList()[0];
    window.click("LOUpdatePumpsCommand");
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(lastMessage(), "[2455]\r\r" + pumps() + "/f_Other.hpd");
    EXPECT_EQ(window.ZoneList()[0], before);
}

TEST_F(PumpSelectionTest, AnUpdateWithoutAFittingPumpLeavesTheZone) {
    addZone(window, 15, 10);
    window.click("LOAutoSelectCommand");
    window.type("LOGainsText(1)", "9000");
    const Zone before = window.ZoneList()[0];
    window.click("LOUpdatePumpsCommand");
    EXPECT_EQ(lastMessage(), "[2941]\n\nZone 1");
    EXPECT_EQ(window.ZoneList()[0], before);
}

}  // namespace
}  // namespace varnholt
