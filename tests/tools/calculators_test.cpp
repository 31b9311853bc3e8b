// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string>

#include "forms/fake_platform.h"
#include "frame/varnmain.h"
#include "tools/frmEqvHoursCalc.h"
#include "tools/full_load_hours.h"
#include "tools/install.h"
#include "tools/pump_power.h"
#include "tools/soil_diffusivity.h"

namespace varnholt {
namespace {

class Calculators : public testing::Test {
 protected:
    Calculators() {
        main.start();
        installTools(main);
    }
    ChildWindow& open(const char* command, const char* form) {
        main.click(command);
        return *main.find(form);
    }
    ChildWindow& diffusivity() { return open("mnuDiffCalc", "frmDiffusivityCalc"); }
    ChildWindow& pumpPower() { return open("mnuPumpPowerCalc", "frmPumpPowerCalc"); }
    frmEqvHoursCalc& hours() {
        return dynamic_cast<frmEqvHoursCalc&>(open("mnuEqvHours", "frmEqvHoursCalc"));
    }
    static std::string shown(const Form& form, const std::string& field) {
        return form.control(field).text();
    }
    static double value(const Form& form, const char* name) {
        return std::get<double>(form.values().read(name));
    }
    static void typeAndLeave(Form& form, const std::string& field, const std::string& text) {
        form.type(field, text);
        form.leave(field);
    }

    FakePlatform platform;
    FakeTexts texts;
    Varnmain main{platform, texts, "/program"};
};

TEST_F(Calculators, StandOnceEach) {
    diffusivity();
    EXPECT_TRUE(main.frmDiffusivityCalcExists);
    diffusivity();
    pumpPower();
    hours();
    EXPECT_EQ(main.windows().size(), 3u);
    main.find("frmDiffusivityCalc")->click("cmdClose");
    EXPECT_FALSE(main.frmDiffusivityCalcExists);
    EXPECT_TRUE(main.frmPumpPowerCalcExists);
    EXPECT_TRUE(main.frmEqvHoursCalcExists);
    EXPECT_EQ(main.windows().size(), 2u);
}

TEST_F(Calculators, FollowTheUnitsMenu) {
    main.click("Metric");
    ChildWindow& form = pumpPower();
    EXPECT_TRUE(form.control("MetricCheck").checked());
    main.click("English");
    EXPECT_FALSE(form.control("MetricCheck").checked());
    form.click("MetricCheck");
    EXPECT_TRUE(main.control("Metric").checked());
}

// Diffusivity.

TEST(Diffusivity, IsConductivityOverTheHeatThatSoilAndWaterHold) {
    // C = (20 + 80 * 0.2)/100 = 0.36; R = (20 * 62.4 + 80 * 100)/100 = 92.48;
    // 1.3 * 24/(0.36 * 92.48) = 31.2/33.2928
    EXPECT_NEAR(diffusivityOf({20, 100, 0.2, 1.3}), 0.93714, 5e-6);
}

TEST(Diffusivity, OfWaterIsTheSameWhateverTheDrySubstance) {
    // 31.2/62.4
    EXPECT_DOUBLE_EQ(diffusivityOf({100, 165, 0.2, 1.3}), 0.5);
    EXPECT_DOUBLE_EQ(diffusivityOf({100, 0, 7, 1.3}), 0.5);
}

TEST(Diffusivity, IsZeroWhereNothingConductsOrHoldsHeat) {
    EXPECT_EQ(diffusivityOf({20, 100, 0.2, 0}), 0);
    EXPECT_EQ(diffusivityOf({0, 100, 0, 1.3}), 0);
    EXPECT_EQ(diffusivityOf({0, 0, 0.2, 1.3}), 0);
}

TEST(Diffusivity, IsANumberHoweverLittleHeatIsHeld) {
    // 1e-320 times 1e-300 is less than the least double: nothing over nothing, and
    // something over nothing.
    EXPECT_EQ(diffusivityOf({0, 1e-300, 1e-320, 0}), 0);
    EXPECT_EQ(diffusivityOf({0, 1e-300, 1e-320, 1.3}), 0);
    // 31.2/1e-310 is beyond a double.
    EXPECT_EQ(diffusivityOf({0, 1, 1e-310, 1.3}), 0);
}

TEST_F(Calculators, DiffusivityStartsWithItsUsualValues) {
    ChildWindow& form = diffusivity();
    const char* expected[] = {"0.0", "100.0", "0.20", "1.30", "0.00"};
    for (int i = 0; i < 5; ++i) EXPECT_EQ(form.element("txtDiffCalc", i).text(), expected[i]) << i;
}

TEST_F(Calculators, DiffusivityIsShownWithEveryChange) {
    ChildWindow& form = diffusivity();
    form.type("txtDiffCalc(0)", "20");
    EXPECT_EQ(shown(form, "txtDiffCalc(4)"), "0.94");
    EXPECT_NEAR(value(form, "diffusivity"), 0.93714, 5e-6);
    form.type("txtDiffCalc(3)", "0");
    EXPECT_EQ(shown(form, "txtDiffCalc(4)"), "0.00");
}

TEST_F(Calculators, DiffusivityThatIsTypedStaysUntilAnInputChanges) {
    ChildWindow& form = diffusivity();
    form.type("txtDiffCalc(4)", "0.6");
    EXPECT_EQ(value(form, "diffusivity"), 0.6);
    EXPECT_EQ(value(form, "conductivity"), 1.3);
    form.type("txtDiffCalc(4)", "1001");
    EXPECT_EQ(shown(form, "txtDiffCalc(4)"), "0.75");
    typeAndLeave(form, "txtDiffCalc(4)", "");
    EXPECT_EQ(shown(form, "txtDiffCalc(4)"), "0.00");
    form.type("txtDiffCalc(0)", "100");
    EXPECT_DOUBLE_EQ(value(form, "diffusivity"), 0.5);
}

TEST_F(Calculators, DiffusivityReplacesWhatIsOutOfRange) {
    struct Case {
        const char *field, *typed, *shown;
    };
    ChildWindow& form = diffusivity();
    for (const Case& c :
         {Case{"txtDiffCalc(0)", "101", "0.0"}, Case{"txtDiffCalc(0)", "-1", "0.0"},
          Case{"txtDiffCalc(1)", "10001", "165.0"}, Case{"txtDiffCalc(1)", "-1", "165.0"},
          Case{"txtDiffCalc(2)", "10001", "0.20"}, Case{"txtDiffCalc(2)", "-1", "0.20"},
          Case{"txtDiffCalc(3)", "1001", "1.30"}, Case{"txtDiffCalc(3)", "-1", "1.30"},
          Case{"txtDiffCalc(4)", "-1", "0.75"}}) {
        form.type(c.field, "1");
        form.type(c.field, c.typed);
        EXPECT_EQ(shown(form, c.field), c.shown) << c.field << " " << c.typed;
    }
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(Calculators, DiffusivityFillsAFieldThatIsLeftEmpty) {
    ChildWindow& form = diffusivity();
    const char* filled[] = {"0.0", "100.0", "0.20", "1.30"};
    for (int i = 0; i < 4; ++i) {
        const std::string field = elementName("txtDiffCalc", static_cast<std::size_t>(i));
        form.type(field, "7");
        typeAndLeave(form, field, "");
        EXPECT_EQ(shown(form, field), filled[i]);
    }
}

TEST_F(Calculators, DiffusivityConvertsAtItsFields) {
    ChildWindow& form = diffusivity();
    form.type("txtDiffCalc(0)", "20");
    form.type("txtDiffCalc(2)", "1");
    form.click("MetricCheck");
    // 100 * 16.01846, 1 * 4.184, 1.3/0.5777892 = 2.2500; with the specific heat of water C is 1 and
    // the diffusivity 31.2/92.48 = 0.33737 ft^2/day, over 10.7639104 = 0.031343
    EXPECT_EQ(shown(form, "txtDiffCalc(0)"), "20.0");
    EXPECT_EQ(shown(form, "txtDiffCalc(1)"), "1601.8");
    EXPECT_EQ(shown(form, "txtDiffCalc(2)"), "4.184");
    EXPECT_EQ(shown(form, "txtDiffCalc(3)"), "2.25");
    EXPECT_EQ(shown(form, "txtDiffCalc(4)"), "0.031");
}

TEST_F(Calculators, SpecificHeatKeepsItsTwoFactors) {
    ChildWindow& form = diffusivity();
    form.type("txtDiffCalc(2)", "1");
    form.click("MetricCheck");
    EXPECT_EQ(shown(form, "txtDiffCalc(2)"), "4.184");
    form.leave("txtDiffCalc(2)");
    EXPECT_EQ(shown(form, "txtDiffCalc(2)"), "4.186");
    form.type("txtDiffCalc(2)", "8.372");
    // 8.372/4.186
    EXPECT_DOUBLE_EQ(value(form, "specificHeat"), 2);
}

TEST_F(Calculators, TheSoilTablesWakeTheirButton) {
    ChildWindow& form = diffusivity();
    EXPECT_FALSE(form.control("cmdSoilTables").enabled());
    int opened = 0;
    main.setCommand("SoilProperties", CommandNeeds::nothing, [&] { ++opened; });
    pumpPower();
    diffusivity();
    form.click("cmdSoilTables");
    EXPECT_EQ(opened, 1);
}

// Pump power.

TEST(PumpPower, IsThatOfTheLiftedWaterOverTheEfficiency) {
    // 200 gpm * 80 ft/(0.5 * 3960) = 16000/1980
    EXPECT_NEAR(pumpPowerOf(200, 80, 50), 8.0808, 5e-5);
}

TEST_F(Calculators, PumpPowerStartsWithItsUsualValuesAndTheirPower) {
    ChildWindow& form = pumpPower();
    // 100 * 50/(0.81 * 3960) = 5000/3207.6 = 1.5588
    const char* expected[] = {"1.6", "50.0", "100.0", "81.0"};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(form.element("txtPumpPowerCalc", i).text(), expected[i]) << i;
    EXPECT_NEAR(value(form, "requiredPower"), 1.5588, 5e-5);
}

TEST_F(Calculators, PumpPowerFollowsEveryChange) {
    ChildWindow& form = pumpPower();
    form.type("txtPumpPowerCalc(1)", "80");
    form.type("txtPumpPowerCalc(2)", "200");
    form.type("txtPumpPowerCalc(3)", "50");
    EXPECT_EQ(shown(form, "txtPumpPowerCalc(0)"), "8.1");
}

TEST_F(Calculators, PumpPowerIsDividedGoingToKilowattsAndMultipliedComingBack) {
    ChildWindow& form = pumpPower();
    form.type("txtPumpPowerCalc(0)", "10");
    form.click("MetricCheck");
    // 10/0.74571 = 13.4101; head 50 * 0.3048 = 15.24, flow 100 * 3.785412 = 378.5
    EXPECT_EQ(shown(form, "txtPumpPowerCalc(0)"), "13.4");
    EXPECT_EQ(shown(form, "txtPumpPowerCalc(1)"), "15.2");
    EXPECT_EQ(shown(form, "txtPumpPowerCalc(2)"), "378.5");
    EXPECT_EQ(shown(form, "txtPumpPowerCalc(3)"), "81.0");
    form.type("txtPumpPowerCalc(0)", "10");
    EXPECT_DOUBLE_EQ(value(form, "requiredPower"), 7.4571);
}

TEST_F(Calculators, PumpPowerReplacesWhatIsOutOfRange) {
    struct Case {
        const char *field, *typed, *shown;
    };
    ChildWindow& form = pumpPower();
    for (const Case& c :
         {Case{"txtPumpPowerCalc(0)", "10001", "0.0"}, Case{"txtPumpPowerCalc(0)", "0", "0.0"},
          Case{"txtPumpPowerCalc(0)", "-1", "0.0"}, Case{"txtPumpPowerCalc(1)", "10001", "50.0"},
          Case{"txtPumpPowerCalc(1)", "0", "50.0"}, Case{"txtPumpPowerCalc(1)", "-1", "50.0"},
          Case{"txtPumpPowerCalc(2)", "10001", "0.2"}, Case{"txtPumpPowerCalc(2)", "0", "0.2"},
          Case{"txtPumpPowerCalc(2)", "-1", "0.2"}, Case{"txtPumpPowerCalc(3)", "0", "81.0"},
          Case{"txtPumpPowerCalc(3)", "-1", "81.0"},
          Case{"txtPumpPowerCalc(3)", "100.1", "81.0"}}) {
        form.type(c.field, "1");
        form.type(c.field, c.typed);
        EXPECT_EQ(shown(form, c.field), c.shown) << c.field << " " << c.typed;
    }
    form.leave("txtPumpPowerCalc(0)");
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(Calculators, PumpPowerThatWasRefusedStaysZeroWhenItIsLeft) {
    ChildWindow& form = pumpPower();
    typeAndLeave(form, "txtPumpPowerCalc(0)", "0");
    EXPECT_EQ(shown(form, "txtPumpPowerCalc(0)"), "0.0");
}

TEST_F(Calculators, PumpPowerFillsAFieldThatIsLeftEmpty) {
    ChildWindow& form = pumpPower();
    for (const auto& [field, filled] :
         {std::pair{"txtPumpPowerCalc(1)", "50.0"}, std::pair{"txtPumpPowerCalc(2)", "100.0"},
          std::pair{"txtPumpPowerCalc(3)", "81.0"}, std::pair{"txtPumpPowerCalc(0)", "1.6"}}) {
        form.type(field, "7");
        typeAndLeave(form, field, "");
        EXPECT_EQ(shown(form, field), filled);
    }
    EXPECT_NEAR(value(form, "requiredPower"), 1.5588, 5e-5);
}

TEST_F(Calculators, AnEfficiencyThatIsBeingTypedDividesByNothing) {
    ChildWindow& form = pumpPower();
    form.type("txtPumpPowerCalc(3)", "");
    EXPECT_NEAR(value(form, "requiredPower"), 1.5588, 5e-5);
    EXPECT_EQ(shown(form, "txtPumpPowerCalc(3)"), "");
}

// Equivalent full-load hours.

TEST(FullLoadHours, AreTheEnergyOverThePeak) {
    Months energy{};
    energy.fill(1000);
    // 12 * 1000/50
    EXPECT_DOUBLE_EQ(fullLoadHoursOf(energy, 50), 240);
    EXPECT_EQ(fullLoadHoursOf(energy, 0), 0);
    EXPECT_EQ(fullLoadHoursOf(energy, -5), 0);
}

TEST(FullLoadHours, HaveTheFirstOfEqualMonthsForPeakMonth) {
    Months energy{};
    energy.fill(1000);
    EXPECT_EQ(greatestMonth(energy), 0u);
    energy[7] = energy[3] = 1001;
    EXPECT_EQ(greatestMonth(energy), 3u);
    EXPECT_EQ(greatestMonth({-5, -4, -6, -9, -9, -9, -9, -9, -9, -9, -9, -9}), 1u);
}

TEST(LoadFactor, IsTheMonthsMeanOverItsPeak) {
    // February has 28 days: 1000/(50 * 24 * 28) = 1000/33600
    EXPECT_NEAR(loadFactorOf(1000, 50, 1), 0.0297619, 5e-8);
}

TEST_F(Calculators, HoursFromTheMenuAskNothingAndKeepTheFactor) {
    frmEqvHoursCalc& form = hours();
    form.type("txtEqvHours(0)", "50");
    for (int i = 1; i <= 12; ++i)
        form.type(elementName("txtEqvHours", static_cast<std::size_t>(i)), "1000");
    form.click("cmdCalculate");
    EXPECT_EQ(shown(form, "txtEqvHours(13)"), "240");
    EXPECT_EQ(value(form, "monthlyLoads(12)"), 1000);
    // All months are equal, so January is the peak month: 1000/(50 * 24 * 31) = 1000/37200
    EXPECT_NEAR(main.transferPLFm[cooling], 0.0268817, 5e-8);
    EXPECT_EQ(main.transferPLFm[heating], 0);
}

TEST_F(Calculators, HoursWithoutAPeakAreZero) {
    frmEqvHoursCalc& form = hours();
    main.transferPLFm[cooling] = 0.5;
    form.type("txtEqvHours(1)", "1000");
    form.click("cmdCalculate");
    EXPECT_EQ(shown(form, "txtEqvHours(13)"), "0");
    EXPECT_EQ(main.transferPLFm[cooling], 0);
}

TEST_F(Calculators, HoursAreTypedInKilowattsAndKilowattHoursToo) {
    frmEqvHoursCalc& form = hours();
    form.click("MetricCheck");
    form.type("txtEqvHours(0)", "29.31");
    form.type("txtEqvHours(2)", "2931");
    EXPECT_DOUBLE_EQ(value(form, "fullLoad"), 100);
    EXPECT_DOUBLE_EQ(value(form, "monthlyLoads(2)"), 10000);
    form.click("cmdCalculate");
    EXPECT_EQ(shown(form, "txtEqvHours(13)"), "100");
    form.click("MetricCheck");
    EXPECT_EQ(shown(form, "txtEqvHours(0)"), "100.0");
    EXPECT_EQ(shown(form, "txtEqvHours(2)"), "10000.0");
}

TEST_F(Calculators, ClearEmptiesInputsAndResults) {
    frmEqvHoursCalc& form = hours();
    form.type("txtEqvHours(0)", "50");
    form.type("txtEqvHours(5)", "1000");
    form.click("cmdCalculate");
    form.click("cmdClear");
    for (int i = 0; i <= 12; ++i) EXPECT_EQ(form.element("txtEqvHours", i).text(), "0.0") << i;
    EXPECT_EQ(shown(form, "txtEqvHours(13)"), "");
    EXPECT_EQ(value(form, "eqvHours"), 0);
}

TEST_F(Calculators, AClearedResultStaysEmptyUntilHoursAreFoundAgain) {
    frmEqvHoursCalc& form = hours();
    form.click("cmdClear");
    form.click("MetricCheck");
    EXPECT_EQ(shown(form, "txtEqvHours(13)"), "");
    main.click("English");
    EXPECT_EQ(shown(form, "txtEqvHours(13)"), "");
    form.leave("txtEqvHours(13)");
    EXPECT_EQ(shown(form, "txtEqvHours(13)"), "");
    // Without a peak the hours are 0, which is a result.
    form.click("cmdCalculate");
    EXPECT_EQ(shown(form, "txtEqvHours(13)"), "0");
    form.click("MetricCheck");
    EXPECT_EQ(shown(form, "txtEqvHours(13)"), "0");
    form.click("cmdClear");
    form.startFrom(1355);
    EXPECT_EQ(shown(form, "txtEqvHours(13)"), "1355");
}

/// Hears which control is asked to take the keyboard.
class FocusWatch : public FormObserver {
 public:
    void captionChanged(Form&) override {}
    void settled(Form&) override {}
    void propertyChanged(Control& control, Property property) override {
        if (property == Property::focus) taken = control.name();
    }
    std::string taken;
};

TEST_F(Calculators, EnterGoesDownTheFieldsAndOnToCalculate) {
    frmEqvHoursCalc& form = hours();
    FocusWatch focus;
    form.addObserver(&focus);
    form.type("txtEqvHours(0)", "7");
    form.key("txtEqvHours(0)", "Enter");
    EXPECT_EQ(focus.taken, "txtEqvHours(1)");
    EXPECT_EQ(shown(form, "txtEqvHours(0)"), "7.0");
    form.key("txtEqvHours(11)", "Enter");
    EXPECT_EQ(focus.taken, "txtEqvHours(12)");
    form.key("txtEqvHours(12)", "Enter");
    EXPECT_EQ(focus.taken, "cmdCalculate");
}

TEST_F(Calculators, APasteFillsTheFieldsFromTheOneAtWork) {
    frmEqvHoursCalc& form = hours();
    platform.clipboardText = "10\r20\r30";
    form.key("txtEqvHours(4)", "Ctrl+V");
    EXPECT_EQ(value(form, "monthlyLoads(4)"), 10);
    EXPECT_EQ(value(form, "monthlyLoads(5)"), 20);
    EXPECT_EQ(value(form, "monthlyLoads(6)"), 30);
    EXPECT_EQ(shown(form, "txtEqvHours(6)"), "30.0");
    EXPECT_EQ(value(form, "monthlyLoads(7)"), 0);
}

TEST_F(Calculators, APasteFillsTwelveFieldsAndDropsWhatIsBeyondDecember) {
    frmEqvHoursCalc& form = hours();
    platform.clipboardText.clear();
    for (int i = 1; i <= 20; ++i) platform.clipboardText += std::to_string(i) + "\r\n";
    form.key("txtEqvHours(0)", "Ctrl+V");
    EXPECT_EQ(value(form, "fullLoad"), 1);
    EXPECT_EQ(value(form, "monthlyLoads(11)"), 12);
    EXPECT_EQ(value(form, "monthlyLoads(12)"), 0);
    form.key("txtEqvHours(11)", "Ctrl+V");
    EXPECT_EQ(value(form, "monthlyLoads(11)"), 1);
    EXPECT_EQ(value(form, "monthlyLoads(12)"), 2);
}

TEST_F(Calculators, APasteIsInTheUnitsShownAndAnEmptyClipboardChangesNothing) {
    frmEqvHoursCalc& form = hours();
    form.click("MetricCheck");
    platform.clipboardText = "293.1";
    form.key("txtEqvHours(1)", "Ctrl+V");
    EXPECT_DOUBLE_EQ(value(form, "monthlyLoads(1)"), 1000);
    platform.clipboardText.clear();
    form.key("txtEqvHours(1)", "Ctrl+V");
    EXPECT_DOUBLE_EQ(value(form, "monthlyLoads(1)"), 1000);
}

TEST_F(Calculators, DaysOfTheMonthsKnowNoLeapYear) {
    frmEqvHoursCalc& form = hours();
    EXPECT_EQ(value(form, "daysInMonth(1)"), 28);
    EXPECT_EQ(value(form, "daysInMonth(11)"), 31);
}

}  // namespace
}  // namespace varnholt
