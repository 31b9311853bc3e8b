// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/form.h"

#include <gtest/gtest.h>

#include "basis/run_time_error.h"
#include "forms/fake_platform.h"

namespace varnholt {
namespace {

/// A window with a field of each manner.
class TestForm : public Form {
 public:
    TestForm(Platform& platform, const Texts& texts) : Form("frmTest", platform, texts) {
        for (const char* field :
             {"Temperature", "Count", "Days", "Flow", "Efficiency", "Pulse", "Name"})
            add(std::string(field) + "Text", ControlKind::text);
        add("TemperatureUnit", ControlKind::label).setCaption("( deg F )");
        control("TemperatureText").unitsIn("TemperatureUnit");
        add("Frame", ControlKind::frame);
        add("Go", ControlKind::button, 2001).in("Frame");
        add("Broken", ControlKind::button);
        add("One", ControlKind::option).grouped("g").setChecked(true);
        add("Two", ControlKind::option).grouped("g");
        add("Metric", ControlKind::check);
        add("Combo", ControlKind::combo).setItems({"a", "b"});
        add("List", ControlKind::list).multipleRows().setItems({"x", "y", "z"});
        add("Slider", ControlKind::slider).setRange(0, 100);
        add("Day", ControlKind::date);
        add("Notes", ControlKind::richText);
        addFields();
        const auto counting = [this] { ++clicks; };
        onClick("Broken", [] { throw RunTimeError(11); });
        onSlide("Slider", counting);
        for (const char* clicked : {"Go", "One", "Two", "Metric", "Combo", "List", "Day"})
            onClick(clicked, counting);
        onChange("NameText", [this] { name = control("NameText").text(); });
        publicValues().addArray("pair", &pair);
        publicValues().add("temperature", &temperature);
    }

    bool guard = false;
    int changes = 0, clicks = 0, chained = 0;
    double temperature = 85, flow = 3, days = 7, efficiency = 85, pulse = 0;
    std::int16_t count = 4;
    std::string name;
    std::array<double, 2> pair{1.5, 2.5};

 private:
    void addFields() {
        fields().setManner({[this] { return guard; },
                            [this] {
                                return control("Metric").checked() ? UnitSystem::metric
                                                                   : UnitSystem::english;
                            },
                            [this] { ++changes; }});
        fields().add({.control = "TemperatureText",
                      .stored = &temperature,
                      .quantity = &quantities::temperature,
                      .lowest = 0,
                      .highest = 212,
                      .fallback = 85,
                      .changed = [this] { ++chained; }});
        fields().add({.control = "CountText",
                      .stored = &count,
                      .lowest = 0,
                      .fallback = 1,
                      .format = "###0"});
        fields().add({.control = "DaysText",
                      .stored = &days,
                      .lowest = 0,
                      .highest = 7,
                      .fallback = 7,
                      .unparsable = -1});
        fields().add({.control = "FlowText",
                      .stored = &flow,
                      .quantity = &quantities::waterFlow,
                      .highest = 212,
                      .fallback = 3,
                      .lowestIsRefused = true});
        fields().add({.control = "EfficiencyText",
                      .stored = &efficiency,
                      .highest = 100,
                      .fallback = 100,
                      .whileEmpty = 100});
        fields().add({.control = "PulseText",
                      .stored = &pulse,
                      .highest = 24,
                      .fallback = 0,
                      .leastBesideZero = 1});
    }
};

class FormTest : public testing::Test {
 protected:
    FakePlatform platform;
    FakeTexts texts;
    TestForm form{platform, texts};
};

TEST_F(FormTest, AChangedFieldStoresTheConvertedValueAndTellsTheForm) {
    form.click("Metric");
    form.type("TemperatureText", "30");
    EXPECT_DOUBLE_EQ(form.temperature, 86);  // 30 x 9/5 + 32
    EXPECT_EQ(form.changes, 1);
    EXPECT_EQ(form.chained, 1);
    EXPECT_EQ(form.control("TemperatureText").text(), "30");
}

TEST_F(FormTest, ARefusedValueFallsBackAtOnceAndIsMarked) {
    form.type("TemperatureText", "213");
    EXPECT_EQ(form.temperature, 85);
    EXPECT_EQ(form.control("TemperatureText").text(), "85.0");
    EXPECT_TRUE(form.control("TemperatureText").refused());
    form.type("TemperatureText", "70");
    EXPECT_FALSE(form.control("TemperatureText").refused());
}

TEST_F(FormTest, ARefusedValueIsToldInTheUnitInWhichItWasTyped) {
    texts.known[1237] = "%2 is outside %3 to %4%6; %5 stands.";
    form.type("TemperatureText", "213");
    EXPECT_EQ(form.unitOf("TemperatureText"), "deg F");
    // What the field shows later is another matter: the limits told are those of that moment.
    form.control("TemperatureUnit").setCaption("deg C");
    EXPECT_EQ(form.whyRefused(*form.fields().refused()),
              "213 is outside 0.0 to 212.0 deg F; 85.0 stands.");
}

TEST_F(FormTest, ARefusedValueOfAFieldWithoutAUnitIsToldWithoutOne) {
    texts.known[1237] = "%2 is outside %3 to %4%6; %5 stands.";
    form.type("DaysText", "8");
    EXPECT_EQ(form.unitOf("DaysText"), "");
    EXPECT_EQ(form.whyRefused(*form.fields().refused()), "8 is outside 0.0 to 7.0; 7.0 stands.");
}

TEST_F(FormTest, AValueBetweenZeroAndTheLeastBesideItIsToldBoth) {
    texts.known[2442] = "%2 is neither %3 nor within %7 to %4%6; %5 stands.";
    form.type("PulseText", "0.5");
    EXPECT_EQ(form.whyRefused(*form.fields().refused()),
              "0.5 is neither 0.0 nor within 1.0 to 24.0; 0.0 stands.");
}

TEST_F(FormTest, APartlyTypedMinusInMetricIsZeroDegreesAndNotRefused) {
    form.click("Metric");
    form.type("TemperatureText", "-");
    EXPECT_DOUBLE_EQ(form.temperature, 32);
    EXPECT_EQ(form.control("TemperatureText").text(), "-");
}

TEST_F(FormTest, AFieldLeftEmptyReturnsToItsFallback) {
    form.temperature = 60;
    form.type("TemperatureText", "");
    EXPECT_EQ(form.temperature, 0);
    form.leave("TemperatureText");
    EXPECT_EQ(form.temperature, 85);
    EXPECT_EQ(form.control("TemperatureText").text(), "85.0");
}

TEST_F(FormTest, AFieldCanHoldAFixedValueWhileItStandsEmpty) {
    form.type("EfficiencyText", "");
    EXPECT_EQ(form.efficiency, 100);
    EXPECT_EQ(form.control("EfficiencyText").text(), "");
    form.leave("EfficiencyText");
    EXPECT_EQ(form.control("EfficiencyText").text(), "100.0");
    form.type("EfficiencyText", "x");
    EXPECT_EQ(form.efficiency, 0);
}

TEST_F(FormTest, AMetricFieldLeftEmptyReturnsToItsFallbackToo) {
    form.click("Metric");
    form.type("TemperatureText", "");
    EXPECT_EQ(form.temperature, 32);
    form.leave("TemperatureText");
    EXPECT_EQ(form.temperature, 85);
    EXPECT_EQ(form.control("TemperatureText").text(), "29.4");  // (85 - 32) x 5/9
}

TEST_F(FormTest, LeavingAFieldReformatsIt) {
    form.type("TemperatureText", "70.26 or so");
    form.leave("TemperatureText");
    EXPECT_EQ(form.control("TemperatureText").text(), "70.3");
}

TEST_F(FormTest, TextWrittenByCodeIsNoChange) {
    form.guard = true;
    form.type("TemperatureText", "70");
    EXPECT_EQ(form.temperature, 85);
    EXPECT_EQ(form.changes, 0);
}

TEST_F(FormTest, AnErrorInsideTheHandlerStoresZeroWithoutAWord) {
    form.type("CountText", "40000");
    EXPECT_EQ(form.count, 0);
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(FormTest, AWholeNumberIsRoundedHalfToEven) {
    form.type("CountText", "2.5");
    EXPECT_EQ(form.count, 2);
    form.leave("CountText");
    EXPECT_EQ(form.control("CountText").text(), "2");
}

TEST_F(FormTest, TextThatIsNoNumberIsHeldUntilTheFieldIsLeft) {
    form.type("DaysText", "x");
    EXPECT_EQ(form.days, -1);
    EXPECT_EQ(form.control("DaysText").text(), "x");
    form.leave("DaysText");
    EXPECT_EQ(form.days, 7);
    EXPECT_EQ(form.control("DaysText").text(), "7.0");
}

TEST_F(FormTest, ANumberThatLooksLikeTheHeldValueIsRefusedAtOnce) {
    form.type("DaysText", "-1");
    EXPECT_EQ(form.days, 7);
    EXPECT_EQ(form.control("DaysText").text(), "7.0");
}

TEST_F(FormTest, ALowestValueThatIsItselfRefusedFallsBack) {
    form.type("FlowText", "0");
    EXPECT_EQ(form.flow, 3);
}

TEST_F(FormTest, ARunTimeErrorThatNoHandlerDealsWithIsShownAndEndsTheAction) {
    form.click("Broken");
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::exclamation);
    EXPECT_EQ(platform.messages[0].text, "11 - Division by zero");
    EXPECT_FALSE(form.isHandling());
    form.click("Go");
    EXPECT_EQ(form.clicks, 1);
}

TEST_F(FormTest, OptionsOfAGroupExcludeEachOtherAndAChosenOneStaysSilent) {
    form.click("Two");
    EXPECT_FALSE(form.control("One").checked());
    EXPECT_TRUE(form.control("Two").checked());
    EXPECT_EQ(form.clicks, 1);
    form.click("Two");
    EXPECT_EQ(form.clicks, 1);
}

TEST_F(FormTest, ChoosingAnEntryMakesItTheText) {
    form.choose("Combo", 1);
    EXPECT_EQ(form.control("Combo").text(), "b");
    EXPECT_EQ(form.control("Combo").index(), 1);
}

TEST_F(FormTest, SelectedRowsAreKeptInOrder) {
    form.select("List", {2, 0});
    EXPECT_EQ(form.control("List").selected(), (std::vector<int>{0, 2}));
    EXPECT_EQ(form.control("List").index(), 0);
}

TEST_F(FormTest, ASliderStaysInItsRangeAndIsSilentWithoutAMove) {
    form.slide("Slider", 150);
    EXPECT_EQ(form.control("Slider").value(), 100);
    form.slide("Slider", 100);
    EXPECT_EQ(form.clicks, 1);
}

TEST_F(FormTest, PastingReplacesTheText) {
    platform.clipboardText = "Riverside";
    form.key("NameText", "Ctrl+V");
    EXPECT_EQ(form.name, "Riverside");
}

TEST_F(FormTest, TheLinesOfARichTextEndInCrLf) {
    for (const char* typed : {"one\ntwo\n", "one\r\ntwo\r\n", "one\rtwo\r"}) {
        form.type("Notes", typed);
        EXPECT_EQ(form.control("Notes").text(), "one\r\ntwo\r\n");
    }
}

TEST_F(FormTest, AFieldOfOneLineTakesItsTextInOneLine) {
    for (const char* typed : {"Mill Creek", "Mill Creek\r\n", "Mill\r\nCreek\n", "Mill\nCreek\r"}) {
        form.type("NameText", typed);
        EXPECT_EQ(form.name, "Mill Creek");
    }
    form.type("NameText", "\r\n");
    EXPECT_EQ(form.name, "");
}

TEST_F(FormTest, AComboTakesItsTypedTextInOneLine) {
    form.control("Combo").editableText();
    platform.clipboardText = "Glycol\r\n30 %\r\n";
    form.key("Combo", "Ctrl+V");
    EXPECT_EQ(form.control("Combo").text(), "Glycol 30 %");
}

TEST_F(FormTest, PastingLeavesALockedFieldAlone) {
    platform.clipboardText = "Riverside";
    form.control("NameText").setLocked(true);
    form.key("NameText", "Ctrl+V");
    EXPECT_EQ(form.control("NameText").text(), "");
}

TEST_F(FormTest, AControlInAHiddenFrameIsNotShown) {
    EXPECT_TRUE(form.isShown(form.control("Go")));
    form.control("Frame").setVisible(false);
    EXPECT_FALSE(form.isShown(form.control("Go")));
    EXPECT_TRUE(form.control("Go").visible());
}

TEST_F(FormTest, PublicValuesAreReadByTheirNames) {
    EXPECT_EQ(std::get<double>(form.values().read("pair(1)")), 2.5);
    EXPECT_EQ(std::get<double>(form.values().read("temperature")), 85);
    EXPECT_FALSE(form.values().has("pair"));
    EXPECT_THROW(form.values().read("pair(2)"), RunTimeError);
    EXPECT_THROW(form.values().read("unknown"), std::out_of_range);
}

TEST(ValuePaths, AreTakenApartIntoNameAndIndices) {
    const ValuePath path = parseValuePath("ZoneList(2).pump.plf(0)");
    EXPECT_EQ(path.name, "ZoneList.pump.plf");
    EXPECT_EQ(path.indices, (std::vector<int>{2, 0}));
    EXPECT_EQ(parseValuePath("gains(2,0)").indices, (std::vector<int>{2, 0}));
    EXPECT_EQ(parseValuePath("GetGroundTemp()").name, "GetGroundTemp");
    EXPECT_TRUE(parseValuePath("GetGroundTemp()").indices.empty());
    EXPECT_THROW(parseValuePath("gains(2"), std::invalid_argument);
    EXPECT_THROW(parseValuePath("gains("), std::invalid_argument);
    EXPECT_THROW(parseValuePath("gains(x)"), std::invalid_argument);
}

class CountingObserver : public FormObserver {
 public:
    void propertyChanged(Control&, Property) override { ++properties; }
    void captionChanged(Form&) override { ++captions; }
    void settled(Form&) override { ++settlings; }
    int properties = 0, captions = 0, settlings = 0;
};

TEST_F(FormTest, ObserversHearOfRealChangesOnlyAndOfTheEndOfEveryAction) {
    CountingObserver observer;
    form.addObserver(&observer);
    form.control("Go").setCaption("Go!");
    form.control("Go").setCaption("Go!");
    EXPECT_EQ(observer.properties, 1);
    EXPECT_EQ(observer.settlings, 0);
    form.click("Go");
    EXPECT_EQ(observer.settlings, 1);
    form.setCaption("Window");
    EXPECT_EQ(observer.captions, 1);
    form.removeObserver(&observer);
}

struct QuantityCase {
    const Quantity* quantity;
    double stored, metric;
};

TEST(Quantities, ConvertByTheFixedFactorsAndBack) {
    const QuantityCase cases[] = {
        {&quantities::temperature, 212, 100},    {&quantities::temperatureDifference, 9, 5},
        {&quantities::load, 100, 29.31},         {&quantities::waterFlow, 3, 11.356236},
        {&quantities::airFlow, 1000, 471.9474},  {&quantities::length, 20, 6.096},
        {&quantities::diameter, 5, 127},         {&quantities::density, 62.4, 999.551904},
        {&quantities::specificHeat, 1, 4.186},   {&quantities::conductivity, 0.5777892, 1},
        {&quantities::resistance, 1, 0.5777892}, {&quantities::diffusivity, 10.7639104, 1},
        {&quantities::shaftPower, 2, 2},
    };
    for (const QuantityCase& c : cases) {
        SCOPED_TRACE(c.metric);
        EXPECT_NEAR(c.quantity->shown(c.stored, UnitSystem::metric), c.metric, 1e-12 * c.metric);
        EXPECT_NEAR(c.quantity->stored(c.metric, UnitSystem::metric), c.stored, 1e-12 * c.stored);
    }
    EXPECT_NEAR(quantities::shaftPower.shown(0.74571, UnitSystem::english), 1, 1e-12);
    EXPECT_NEAR(quantities::shaftPower.stored(2, UnitSystem::english), 1.49142, 1e-12);
}

}  // namespace
}  // namespace varnholt
