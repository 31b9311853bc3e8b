// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/loads_fixture.h"

namespace varnholt {
namespace {

class LoadsFieldsTest : public LoadsTest {
 protected:
    LoadsFieldsTest() { window.click("LONewCommand"); }
    const Zone& zone() const { return window.ZoneList()[0]; }
    void inMetric() { window.click("MetricCheck"); }

    frmZoneManage& window = manager();
};

TEST_F(LoadsFieldsTest, ANegativeGainBecomesZeroAtOnce) {
    window.type("LOGainsText(2)", "12");
    window.type("LOGainsText(2)", "-3");
    EXPECT_EQ(zone().gains[2][cooling], 0);
    EXPECT_EQ(shown(window, "LOGainsText(2)"), "0.0");
}

TEST_F(LoadsFieldsTest, GainsAndLossesByBlock) {
    for (int i = 0; i < 8; ++i)
        window.type("LOGainsText(" + std::to_string(i) + ")", std::to_string(i + 1));
    for (std::size_t block = 0; block < timeBlocks; ++block) {
        EXPECT_EQ(zone().gains[block][cooling], static_cast<double>(block + 1));
        EXPECT_EQ(zone().gains[block][heating], static_cast<double>(block + 5));
    }
}

TEST_F(LoadsFieldsTest, TakeTheNumberThatATextBeginsWith) {
    window.type("LOGainsText(0)", "12abc");
    EXPECT_EQ(zone().gains[0][cooling], 12);
    window.type("LOGainsText(0)", "abc");
    EXPECT_EQ(zone().gains[0][cooling], 0);
    EXPECT_EQ(shown(window, "LOGainsText(0)"), "abc");
    window.leave("LOGainsText(0)");
    EXPECT_EQ(shown(window, "LOGainsText(0)"), "0.0");
}

TEST_F(LoadsFieldsTest, LoadsAreTypedInKilowattsInMetric) {
    inMetric();
    window.type("LOGainsText(4)", "2.931");
    EXPECT_NEAR(zone().gains[0][heating], 10, 1e-12);  // 2.931 / 0.2931
    inMetric();
    EXPECT_EQ(shown(window, "LOGainsText(4)"), "10.0");
}

TEST_F(LoadsFieldsTest, ALoadThatOverflowsLeavesTheOneBefore) {
    window.type("LOGainsText(0)", "5");
    window.type("LOGainsText(0)", "1e400");
    EXPECT_EQ(zone().gains[0][cooling], 5);
    inMetric();
    window.type("LOGainsText(0)", "1e308");  // 1e308 / 0.2931 MBtu/hr is more than a double holds
    EXPECT_EQ(zone().gains[0][cooling], 5);
    window.leave("LOGainsText(0)");
    EXPECT_EQ(shown(window, "LOGainsText(0)"), "1.5");  // 5 x 0.2931 = 1.4655 kW
    window.type("LOGainsText(0)", "-1e400");
    EXPECT_EQ(zone().gains[0][cooling], 0);  // below 0 whatever its size
    window.type("HPLoadInletText(0)", "1e400");
    EXPECT_EQ(window.conditions().inletLoadAirTemp[cooling], 67);  // out of its range
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(LoadsFieldsTest, HoursAreWholeNumbersOfSixteenBits) {
    window.type("LOHoursText(0)", "1200.5");
    EXPECT_EQ(zone().hours[cooling], 1200);  // half to even
    window.type("LOHoursText(0)", "-4");
    EXPECT_EQ(zone().hours[cooling], 0);
    EXPECT_EQ(shown(window, "LOHoursText(0)"), "0");
    window.type("LOHoursText(1)", "900");
    window.type("LOHoursText(1)", "99999");  // an overflow passes silently
    EXPECT_EQ(zone().hours[heating], 900);
    window.leave("LOHoursText(1)");
    EXPECT_EQ(shown(window, "LOHoursText(1)"), "900");
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(LoadsFieldsTest, SevenAndAHalfDaysAreSeven) {
    window.type("LODaysperWeekText", "7.5");
    EXPECT_EQ(zone().days, 7);
    EXPECT_EQ(shown(window, "LODaysperWeekText"), "7.0");
    window.type("LODaysperWeekText", "5.5");
    EXPECT_EQ(zone().days, 5.5);
    window.type("LODaysperWeekText", "-1");
    EXPECT_EQ(zone().days, 7);
}

TEST_F(LoadsFieldsTest, DaysThatAreNoNumberAreSevenAfterLeaving) {
    window.type("LODaysperWeekText", "x");
    EXPECT_EQ(zone().days, -1);
    window.leave("LODaysperWeekText");
    EXPECT_EQ(zone().days, 7);
    EXPECT_EQ(shown(window, "LODaysperWeekText"), "7.0");
}

TEST_F(LoadsFieldsTest, UnitsBelowOneAreOne) {
    window.type("LONumberOfUnitsText(1)", "3");
    EXPECT_EQ(zone().pump.number, 3);
    EXPECT_EQ(shown(window, "LONumberOfUnitsText(0)"), "3");
    window.type("LONumberOfUnitsText(1)", "0");
    EXPECT_EQ(zone().pump.number, 1);
    window.type("LONumberOfUnitsText(1)", "none");
    EXPECT_EQ(zone().pump.number, 1);
    EXPECT_EQ(shown(window, "LONumberOfUnitsText(1)"), "1");
}

TEST_F(LoadsFieldsTest, FiguresOfACustomPumpAreTyped) {
    window.click("LOCustomPumpCheck");
    EXPECT_FALSE(window.control("LOCapacityText(0)").locked());
    window.type("LOPumpNameText", "Old chiller");
    window.type("LOCapacityText(0)", "30");
    window.type("LOPowerText(1)", "2.25");
    window.type("LOCOPText(0)", "17.06");
    window.type("LOCOPText(1)", "4");
    window.type("LOFlowRateText(0)", "7.5");
    window.type("LOPLFText(0)", "0.8");
    const MiniPump& pump = zone().pump;
    EXPECT_EQ(pump.name, "Old chiller");
    EXPECT_EQ(pump.capacity[cooling], 30);
    EXPECT_EQ(pump.watts[heating], 2.25);
    EXPECT_NEAR(pump.efficiency[cooling], 5, 1e-12);  // an EER: 17.06 / 3.412
    EXPECT_EQ(pump.efficiency[heating], 4);
    EXPECT_EQ(pump.flowRate[cooling], 7.5);
    EXPECT_EQ(pump.plf[cooling], 0.8);
    EXPECT_EQ(pump.customPump, 1);
    inMetric();
    EXPECT_EQ(shown(window, "LOCapacityText(0)"), "8.8");  // 30 x 0.2931
    EXPECT_EQ(shown(window, "LOPowerText(1)"), "2.25");
    EXPECT_EQ(shown(window, "LOCOPText(0)"), "5.0");
    EXPECT_EQ(shown(window, "LOFlowRateText(0)"), "28.4");  // 7.5 x 3.785412
    window.type("LOCOPText(0)", "4.5");
    EXPECT_EQ(zone().pump.efficiency[cooling], 4.5);
    window.type("LOFlowRateText(0)", "3.785412");
    EXPECT_NEAR(zone().pump.flowRate[cooling], 1, 1e-12);
}

TEST_F(LoadsFieldsTest, FiguresHaveTheirLimits) {
    window.click("LOCustomPumpCheck");
    for (const char* field : {"LOCapacityText(0)", "LOPowerText(0)", "LOCOPText(0)",
                              "LOFlowRateText(0)", "LOPLFText(0)"}) {
        window.type(field, "0.5");
        window.type(field, "-1");
        EXPECT_EQ(leadingNumber(shown(window, field)), 0) << field;
    }
    EXPECT_EQ(zone().pump.capacity[cooling], 0);
    window.type("LOPLFText(1)", "1.2");
    EXPECT_EQ(zone().pump.plf[heating], 1);
    EXPECT_EQ(shown(window, "LOPLFText(1)"), "1.00");
}

TEST_F(LoadsFieldsTest, FiguresOfACataloguePumpAreLockedUntilItBecomesACustomOne) {
    addZone(window, 15, 10);
    window.click("LOAutoSelectCommand");
    EXPECT_FALSE(window.control("LOCustomPumpCheck").checked());
    EXPECT_TRUE(window.control("LOCapacityText(1)").locked());
    EXPECT_EQ(shown(window, "LODetailsTextLabel(2)"), "[2865]");
    window.click("LOCustomPumpCheck");
    EXPECT_FALSE(window.control("LOCapacityText(1)").locked());
    const MiniPump& pump = window.ZoneList()[1].pump;
    EXPECT_EQ(pump.customPump, 1);
    EXPECT_EQ(pump.mfgName, "");
    EXPECT_EQ(pump.seriesName, "");
    EXPECT_EQ(pump.capacity[cooling], 20);
    EXPECT_EQ(shown(window, "LODetailsTextLabel(2)"), "[2864]");
    window.choose("LOZoneList", 0);
    EXPECT_FALSE(window.control("LOCustomPumpCheck").checked());
    window.choose("LOZoneList", 1);
    EXPECT_TRUE(window.control("LOCustomPumpCheck").checked());
}

TEST_F(LoadsFieldsTest, FiguresAreLockedUntilCustomPumpIsSet) {
    const char* figures[] = {"LOCapacityText(0)", "LOPowerText(1)", "LOCOPText(0)",
                             "LOFlowRateText(1)", "LOPLFText(0)"};
    for (const char* figure : figures) EXPECT_TRUE(window.control(figure).locked()) << figure;
    window.click("LOCustomPumpCheck");
    for (const char* figure : figures) EXPECT_FALSE(window.control(figure).locked()) << figure;
    window.click("LOCustomPumpCheck");
    for (const char* figure : figures) EXPECT_TRUE(window.control(figure).locked()) << figure;
}

TEST_F(LoadsFieldsTest, ACustomPumpStaysOneBeforeItsFiguresAreTyped) {
    window.click("LOCustomPumpCheck");
    inMetric();
    EXPECT_TRUE(window.control("LOCustomPumpCheck").checked());
    EXPECT_FALSE(window.control("LOCapacityText(0)").locked());
    window.click("LOClearPumpsCommand");
    EXPECT_FALSE(window.control("LOCustomPumpCheck").checked());
    EXPECT_TRUE(window.control("LOCapacityText(0)").locked());
}

TEST_F(LoadsFieldsTest, LoadSideConditionsHaveLimitsAndDefaults) {
    window.type("LOInletLoadsTempText(0)", "63");
    EXPECT_EQ(zone().pump.elt[cooling], 63);
    window.type("LOInletLoadsTempText(0)", "213");
    EXPECT_EQ(zone().pump.elt[cooling], 67);
    window.type("LOInletLoadsTempText(1)", "-1");
    EXPECT_EQ(zone().pump.elt[heating], 70);
    window.type("LOInletLoadsTempText(2)", "213");
    EXPECT_EQ(zone().pump.elt[cooling], 55);
    window.type("LOInletLoadsTempText(3)", "213");
    EXPECT_EQ(zone().pump.elt[heating], 100);
    window.type("LOInletLoadsFlowText(0)", "1000000");
    EXPECT_EQ(zone().pump.elf[cooling], 1000000);
    window.type("LOInletLoadsFlowText(0)", "1000001");
    EXPECT_EQ(zone().pump.elf[cooling], 0);
}

TEST_F(LoadsFieldsTest, LoadFlowsAreInLitresASecondOfAirAndInLitresAMinuteOfWater) {
    window.change([](LoadsDocument& of) {
        of.data.zones.edit(0).pump.elf = {1000, 10};
        of.data.zones.edit(0).pump.nominalFlow = 1200;
    });
    inMetric();
    EXPECT_EQ(shown(window, "LOInletLoadsFlowText(0)"), "472");   // 1000 x 0.4719474
    EXPECT_EQ(shown(window, "LOInletLoadsFlowText(3)"), "37.9");  // 10 x 3.785412
    EXPECT_EQ(shown(window, "LONominalFlowText"), "566");         // 1200 x 0.4719474
    EXPECT_EQ(shown(window, "LONominalFlowUnitLabel"), "[2873]");
    EXPECT_TRUE(window.control("LONominalFlowText").locked());
    window.type("LOInletLoadsFlowText(0)", "4.719474");
    EXPECT_NEAR(zone().pump.elf[cooling], 10, 1e-12);
    window.change([](LoadsDocument& of) {
        of.data.zones.edit(0).pump.pumpType = 1;
        of.data.zones.edit(0).pump.nominalFlow = 4;
    });
    window.choose("LOZoneList", 0);
    EXPECT_EQ(shown(window, "LONominalFlowText"), "15.1");  // 4 x 3.785412
    EXPECT_EQ(shown(window, "LONominalFlowUnitLabel"), "[2877]");
    EXPECT_FALSE(window.control("LOInletAirFrame").visible());
    EXPECT_TRUE(window.control("LOInletWaterFrame").visible());
}

TEST_F(LoadsFieldsTest, DesignTemperaturesOutOfRangeGoBackToTheirDefaults) {
    window.type("LOInletTempText(0)", "90");
    EXPECT_EQ(window.conditions().inletTemp[cooling], 90);
    window.type("LOInletTempText(0)", "212.1");
    window.type("LOInletTempText(1)", "-0.1");
    EXPECT_EQ(window.conditions().inletTemp, (ByMode<double>{85, 50}));
    for (int i = 0; i < 4; ++i) window.type("HPLoadInletText(" + std::to_string(i) + ")", "300");
    EXPECT_EQ(window.conditions().inletLoadAirTemp, (ByMode<double>{67, 70}));
    EXPECT_EQ(window.conditions().inletLoadWaterTemp, (ByMode<double>{55, 100}));
}

TEST_F(LoadsFieldsTest, LoadInletFieldsFollowTheModeCoolingFirst) {
    const char* values[] = {"60", "61", "62", "63"};
    for (int i = 0; i < 4; ++i)
        window.type("HPLoadInletText(" + std::to_string(i) + ")", values[i]);
    EXPECT_EQ(window.conditions().inletLoadAirTemp, (ByMode<double>{60, 61}));
    EXPECT_EQ(window.conditions().inletLoadWaterTemp, (ByMode<double>{62, 63}));
    EXPECT_EQ(shown(window, "HPLoadInletLabel(0)"), "[2888]");  // Cooling (WB):
    EXPECT_EQ(shown(window, "HPLoadInletLabel(1)"), "[2887]");  // Heating (DB):
}

TEST_F(LoadsFieldsTest, AFlowMustBePositiveAndNotAbove212) {
    window.type("FLFlowRateText", "212");
    EXPECT_EQ(window.conditions().flowRate, 212);
    for (const char* refused : {"0", "-2", "212.5"}) {
        window.type("FLFlowRateText", refused);
        EXPECT_EQ(window.conditions().flowRate, 3) << refused;
    }
    inMetric();
    window.type("FLFlowRateText", "7.570824");
    EXPECT_NEAR(window.conditions().flowRate, 2, 1e-12);
    EXPECT_EQ(shown(window, "FLFlowRateUnitLabel"), "[2872]");
}

TEST_F(LoadsFieldsTest, ZeroDegreesCelsiusCanBeTyped) {
    inMetric();
    window.type("LOInletTempText(1)", "0");
    window.leave("LOInletTempText(1)");
    EXPECT_EQ(window.conditions().inletTemp[heating], 32);
    EXPECT_EQ(shown(window, "LOInletTempText(1)"), "0.0");
}

TEST_F(LoadsFieldsTest, AZeroInEnglishIsTheFreezingPointOnceTheFieldIsLeft) {
    window.type("LOInletTempText(1)", "0");
    EXPECT_EQ(window.conditions().inletTemp[heating], 0);
    window.key("LOInletTempText(1)", "Enter");
    EXPECT_EQ(window.conditions().inletTemp[heating], 32);
    EXPECT_EQ(shown(window, "LOInletTempText(1)"), "32.0");
}

TEST_F(LoadsFieldsTest, MinusSeventeenPointEightCelsiusStaysZeroFahrenheit) {
    window.change([](LoadsDocument& of) { of.data.conditions.inletTemp[heating] = 0; });
    inMetric();
    window.leave("LOInletTempText(1)");
    EXPECT_EQ(window.conditions().inletTemp[heating], 0);
    EXPECT_EQ(shown(window, "LOInletTempText(1)"), "-17.8");
}

TEST_F(LoadsFieldsTest, AnEmptyTemperatureTakesItsDefaultOnLeaving) {
    window.type("LOInletTempText(0)", "");
    EXPECT_EQ(window.conditions().inletTemp[cooling], 0);
    window.leave("LOInletTempText(0)");
    EXPECT_EQ(window.conditions().inletTemp[cooling], 85);
}

TEST_F(LoadsFieldsTest, ATemperatureCanBePasted) {
    platform.clipboardText = "77";
    window.key("LOInletTempText(0)", "Ctrl+V");
    EXPECT_EQ(window.conditions().inletTemp[cooling], 77);
}

TEST_F(LoadsFieldsTest, EveryFieldMarksTheChangesUnsaved) {
    const std::pair<const char*, const char*> typed[] = {
        {"LOZoneReferenceText", "South"}, {"LOGainsText(0)", "5"},
        {"LOHoursText(1)", "5"},          {"LODaysperWeekText", "5"},
        {"LOPumpNameText", "P"},          {"LOCapacityText(0)", "5"},
        {"LONumberOfUnitsText(1)", "2"},  {"LOInletLoadsTempText(0)", "5"},
        {"FLFlowRateText", "2"},          {"LOInletLoadsFlowText(0)", "5"},
        {"LOInletTempText(0)", "80"},     {"HPLoadInletText(0)", "60"},
    };
    for (const auto& [field, value] : typed) {
        setSaved(window, "a.zon");
        ASSERT_FALSE(window.hasUnsavedChanges());
        window.leave(field);
        EXPECT_FALSE(window.hasUnsavedChanges()) << field << " was only visited";
        window.type(field, value);
        EXPECT_TRUE(window.hasUnsavedChanges()) << field;
    }
}

TEST_F(LoadsFieldsTest, WhileCodeWritesTheyChangeNothing) {
    window.type("LOGainsText(0)", "5");
    window.type("LOZoneReferenceText", "South");
    setSaved(window, "a.zon");
    window.settingUnits = true;
    window.type("LOGainsText(0)", "6");
    window.type("LOZoneReferenceText", "North");
    EXPECT_EQ(zone().gains[0][cooling], 5);
    EXPECT_EQ(zone().title, "South");
    EXPECT_FALSE(window.hasUnsavedChanges());
}

TEST_F(LoadsFieldsTest, CaptionsFollowTheUnits) {
    EXPECT_EQ(shown(window, "LOCapacityLabel"), "[2842]");
    EXPECT_EQ(shown(window, "LOInletTempLabel"), "[2870]");
    inMetric();
    EXPECT_EQ(shown(window, "LOCapacityLabel"), "[2841]");
    EXPECT_EQ(shown(window, "LOInletTempLabel"), "[2869]");
    EXPECT_EQ(shown(window, "LOFlowRateLabel"), "[2846]");
    EXPECT_EQ(shown(window, "LOCOPLabel"), "[2844]");
    EXPECT_EQ(shown(window, "LOInletLoadsFlowUnitLabel(2)"), "[2877]");
}

TEST_F(LoadsFieldsTest, WithoutAZoneTheyKeepNothing) {
    platform.answers = {Answer::no};
    window.click("LOClearCommand");
    window.type("LOGainsText(0)", "5");
    window.leave("LOGainsText(0)");
    window.type("LOCapacityText(0)", "5");
    window.type("LOPumpNameText", "P");
    window.click("LOCustomPumpCheck");
    window.click("LOClearPumpsCommand");
    window.click("LODetailsCommand");
    window.click("LOReturnCommand");
    window.click("LOSelectCommand");
    window.click("LOSelectPumpCommand");
    window.click("LOAutoSelectCommand");
    EXPECT_TRUE(window.ZoneList().empty());
    EXPECT_TRUE(platform.messages.empty());
}

}  // namespace
}  // namespace varnholt
