// SPDX-License-Identifier: GPL-3.0-or-later
// Fitting and trying a pump. Figures are those of tests/independent/curve_fit.py.
#include <gtest/gtest.h>

#include "catalogue/editor/editor_fixture.h"

namespace varnholt {
namespace {

class EditorCurves : public EditorTest {
 protected:
    std::string notice(frmHPEdit& window) { return control(window, "NoticeLabel").caption(); }
};

TEST_F(EditorCurves, AreShownInTheirFormats) {
    frmHPEdit& window = opened();
    EXPECT_EQ(shown(window, "CoolingCoefficientsCapacityText(0)"), "26.91250");
    EXPECT_EQ(shown(window, "CoolingCoefficientsCapacityText(1)"), "0.23000");
    EXPECT_EQ(shown(window, "CoolingCoefficientsCapacityText(2)"), "-0.00250");
    EXPECT_EQ(shown(window, "HeatingCoefficientsPowerText(2)"), "0.00003");
    EXPECT_EQ(shown(window, "CoolingCorrectionsCapacityCoefficientsText(0)"), "-4.49059");
    EXPECT_EQ(shown(window, "CoolingCorrectionsCapacityCoefficientsText(1)"), "0.21730");
    EXPECT_EQ(shown(window, "CoolingCorrectionsCapacityCoefficientsText(2)"), "-0.003054");
    EXPECT_EQ(shown(window, "CoolingCorrectionsCapacityCoefficientsText(3)"), "0.0000154");
    EXPECT_EQ(shown(window, "HeatingCorrectionsPowerCoefficientsText(7)"), "-0.0000002");
    EXPECT_EQ(shown(window, "CoolingFlowFactorText(0)"), "1.03");
    EXPECT_EQ(shown(window, "CoolingFlowFactorText(1)"), "0.95");
    EXPECT_EQ(number(window, "PumpList(0).flowCf(0,0)"), 1.0319805393697175);
    EXPECT_TRUE(control(window, "CoolingCoefficientsCapacityText(0)").locked());
}

TEST_F(EditorCurves, AreShownForCelsiusWithoutAChangeOfWhatIsStored) {
    frmHPEdit& window = opened();
    typeAndLeave(window, "CoolingEWTText(0)", "75");
    window.click("MetricCheck");
    EXPECT_EQ(shown(window, "CoolingCoefficientsCapacityText(0)"), "9.29573");
    EXPECT_EQ(shown(window, "CoolingCoefficientsCapacityText(1)"), "0.03706");
    EXPECT_EQ(shown(window, "CoolingCorrectionsPowerCoefficientsText(1)"), "0.03913");
    EXPECT_EQ(shown(window, "CoolingCorrectionsCapacityCoefficientsText(4)"), "0.71000");
    EXPECT_EQ(number(window, "PumpList(0).coefficients.capacity(0,0)"), 26.912500000124552);
    // The red of a button outlives the switch.
    EXPECT_TRUE(isRed(window, "CalculateCoefficientsCommand(0)"));
    EXPECT_FALSE(isRed(window, "CalculateCoefficientsCommand(1)"));
    window.click("MetricCheck");
    EXPECT_EQ(shown(window, "CoolingCoefficientsCapacityText(0)"), "26.91250");
    EXPECT_TRUE(isRed(window, "CalculateCoefficientsCommand(0)"));
}

TEST_F(EditorCurves, AreFittedByTheirButtons) {
    frmHPEdit& window = opened();
    typeAndLeave(window, "CoolingFR1CapacityText(0)", "31");
    const double before = number(window, "PumpList(0).coefficients.capacity(1,0)");
    EXPECT_EQ(number(window, "PumpList(0).coefficients.capacity(0,0)"), 26.912500000124552);
    window.click("SaveCommand");
    window.click("CalculateCoefficientsCommand(0)");
    EXPECT_NE(number(window, "PumpList(0).coefficients.capacity(1,0)"), before);
    EXPECT_FALSE(isRed(window, "CalculateCoefficientsCommand(0)"));
    EXPECT_FALSE(window.recalculationNeeded);
    EXPECT_TRUE(enabled(window, "SaveCommand"));
    // 31/31 + 29.3/28.4 + 27.1/26.2 over 3.
    EXPECT_NEAR(number(window, "PumpList(0).flowCf(0,0)"), 1.02201376, 1e-8);
}

TEST_F(EditorCurves, StayAsTheyWereWhereTheyCannotBeFitted) {
    frmHPEdit& window = opened();
    for (const char* field : {"CoolingEWTText(0)", "CoolingEWTText(1)", "CoolingEWTText(2)"})
        typeAndLeave(window, field, "50");
    window.click("SaveCommand");
    window.click("CalculateCoefficientsCommand(0)");
    EXPECT_EQ(platform.messages.back().icon, MessageIcon::exclamation);
    EXPECT_EQ(lastMessage(), RunTimeError(9).message());
    EXPECT_EQ(number(window, "PumpList(0).coefficients.capacity(0,0)"), 26.912500000124552);
    EXPECT_TRUE(isRed(window, "CalculateCoefficientsCommand(0)"));
    EXPECT_FALSE(enabled(window, "SaveCommand"));
    typeAndLeave(window, "HeatingFR1PowerText(0)", "0");
    window.click("CalculateCoefficientsCommand(1)");
    EXPECT_EQ(lastMessage(), RunTimeError(11).message());
    EXPECT_TRUE(isRed(window, "CalculateCoefficientsCommand(1)"));
    EXPECT_EQ(number(window, "PumpList(0).coefficients.watts(0,1)"), 1.391666666666687);
}

TEST_F(EditorCurves, OfCorrectionsNeedFourRowsFromTheTop) {
    frmHPEdit& window = opened();
    window.click("cmdZeroZap(0)");
    window.click("SaveCommand");
    window.click("CoefficientsCalculateCommand(0)");
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_TRUE(isRed(window, "CoefficientsCalculateCommand(0)"));
    EXPECT_TRUE(enabled(window, "SaveCommand"));
    EXPECT_FALSE(window.recalculationNeeded);
    EXPECT_EQ(number(window, "PumpList(0).coefficients.capacityCorrection(0,0)"),
              -4.49059407929948);
    // A missing place in row 0, told once although two tables lack it.
    typeAndLeave(window, "CoolingELTText(0)", "0");
    window.click("CoefficientsCalculateCommand(0)");
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].title, "[4511]");
    EXPECT_EQ(platform.messages[0].text, "[4510]");
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::exclamation);
    // Each press tells it once more.
    window.click("CoefficientsCalculateCommand(0)");
    EXPECT_EQ(platform.messages.size(), 2u);
}

TEST_F(EditorCurves, OfFourRowsLeaveNoButtonRed) {
    frmHPEdit& window = opened();
    for (const char* zero : {"cmdZeroZap(1)", "cmdZeroZap(3)"}) window.click(zero);
    window.click("CoefficientsCalculateCommand(0)");
    EXPECT_FALSE(isRed(window, "CoefficientsCalculateCommand(0)"));
    EXPECT_EQ(number(window, "PumpList(0).coefficients.capacityCorrection(0,0)"),
              -1.9248399890515617);
}

TEST_F(EditorCurves, TellHowWellTheyMeetTheirPoints) {
    texts.known[4284] = "%1 at %2";
    texts.known[4285] = "turns at %1";
    texts.known[2880] = "F";
    texts.known[2879] = "C";
    texts.known[4287] = "%";
    frmHPEdit& window = opened();
    EXPECT_EQ(shown(window, "CoolingCoefficientsCapacityFitLabel").substr(0, 8), "0.00 at ");
    typeAndLeave(window, "CoolingFR1CapacityText(1)", "40");
    // The curve stays at 28.4 for 40: 29 percent at 85 degF.
    EXPECT_EQ(shown(window, "CoolingCoefficientsCapacityFitLabel"), "29.00 at 85.0 F");
    EXPECT_FALSE(visible(window, "CoolingCoefficientsCapacityTurnLabel"));
    window.click("CalculateCoefficientsCommand(0)");
    // Through 30.1, 40, 26.2: -0.11850 x^2 + 19.95 x + ..., level at 84.18 degF.
    EXPECT_TRUE(visible(window, "CoolingCoefficientsCapacityTurnLabel"));
    EXPECT_EQ(shown(window, "CoolingCoefficientsCapacityTurnLabel"), "turns at 84.2 F");
    window.click("MetricCheck");
    EXPECT_EQ(shown(window, "CoolingCoefficientsCapacityTurnLabel"), "turns at 29.0 C");
    EXPECT_TRUE(shown(window, "HeatingCorrectionsPowerCoefficientsFitLabel(1)").ends_with(" %"));
}

TEST_F(EditorCurves, OlderThanTheirDataAreToldOfAndCanBeFitted) {
    texts.known[4530] = "older: %1";
    frmHPEdit& window = opened();
    EXPECT_FALSE(control(window, "NoticeLabel").visible());
    typeAndLeave(window, "CoolingFR1CapacityText(0)", "31");
    typeAndLeave(window, "HeatingCorrectionsPowerFactorText(0)", "0.9");
    EXPECT_EQ(notice(window), "older: [2839], [4251]");
    // Also after another pump was looked at, which turns the buttons back.
    window.choose("PumpNamesList", 1);
    EXPECT_EQ(notice(window), "");
    window.choose("PumpNamesList", 0);
    EXPECT_FALSE(isRed(window, "CalculateCoefficientsCommand(0)"));
    EXPECT_EQ(notice(window), "older: [2839], [4251]");
    EXPECT_EQ(control(window, "NoticeCommand").caption(), "[4531]");
    window.click("NoticeCommand");
    EXPECT_EQ(notice(window), "");
    window.undo();
    EXPECT_EQ(notice(window), "older: [2839], [4251]");
}

TEST_F(EditorCurves, WithOlderFlowFactorsAreToldOfToo) {
    texts.known[4530] = "older: %1";
    frmHPEdit& window = opened();
    typeAndLeave(window, "HeatingFR2PowerText(1)", "1.9");
    window.choose("PumpNamesList", 1);
    window.choose("PumpNamesList", 0);
    EXPECT_EQ(notice(window), "older: [2840]");
    window.click("NoticeCommand");
    EXPECT_EQ(notice(window), "");
}

TEST_F(EditorCurves, OlderThanTheirDataAreToldOfOnceMoreWhenSaved) {
    texts.known[4532] = "saved: %1";
    frmHPEdit& window = opened();
    typeAndLeave(window, "CoolingFR1CapacityText(0)", "31");
    window.choose("PumpNamesList", 2);
    typeAndLeave(window, "CoolingFR1CapacityText(0)", "31");
    window.choose("PumpNamesList", 1);
    window.click("SaveCommand");
    EXPECT_EQ(notice(window), "saved: A1, A3");
    typeAndLeave(window, "NominalFlowText", "950");
    EXPECT_EQ(notice(window), "");
}

TEST_F(EditorCurves, AreTriedWhereTheUserSays) {
    frmHPEdit& window = opened();
    const std::pair<const char*, const char*> inputs[] = {
        {"TestSourceEWTText(0)", "88.5"}, {"TestSourceEWTText(1)", "41"},
        {"TestSourceFlowText(0)", "6.5"}, {"TestSourceFlowText(1)", "7"},
        {"TestLoadELTText(0)", "66"},     {"TestLoadELTText(1)", "71.5"},
        {"TestLoadFlowText(0)", "850"},   {"TestLoadFlowText(1)", "950"}};
    for (const auto& [field, text] : inputs) window.type(field, text);
    EXPECT_NE(number(window, "testCapacity(0)"), 27.338762082420573);
    window.click("TestCommand");
    EXPECT_EQ(number(window, "testCapacity(0)"), 27.338762082420573);
    EXPECT_EQ(number(window, "testPower(1)"), 1.765586531962346);
    EXPECT_EQ(number(window, "testCOP(0)"), 4.100071309386676);
    EXPECT_EQ(shown(window, "TestCapacityLabel(0)"), "27.3");
    EXPECT_EQ(shown(window, "TestCapacityLabel(1)"), "22.5");
    EXPECT_EQ(shown(window, "TestPowerLabel(0)"), "1.95");
    EXPECT_EQ(shown(window, "TestPowerLabel(1)"), "1.77");
    EXPECT_EQ(shown(window, "TestCOPLabel(0)"), "14.0");  // an EER of 13.989
    EXPECT_EQ(shown(window, "TestCOPLabel(1)"), "3.7");
    EXPECT_FALSE(enabled(window, "SaveCommand"));
    window.click("MetricCheck");
    EXPECT_EQ(shown(window, "TestCapacityLabel(0)"), "8.0");
    EXPECT_EQ(shown(window, "TestCOPLabel(0)"), "4.1");
    EXPECT_EQ(shown(window, "TestCOPLabel(1)"), "3.7");
}

TEST_F(EditorCurves, AreTriedWhenATestFieldIsLeft) {
    frmHPEdit& window = opened();
    const double before = number(window, "testCapacity(0)");
    window.type("TestSourceEWTText(0)", "95");
    EXPECT_EQ(number(window, "testCapacity(0)"), before);
    window.leave("TestSourceEWTText(0)");
    EXPECT_NE(number(window, "testCapacity(0)"), before);
}

TEST_F(EditorCurves, WithEqualSourceFlowsEndATestInAnError) {
    frmHPEdit& window = opened();
    const std::string before = shown(window, "TestCapacityLabel(0)");
    typeAndLeave(window, "CoolingFlowRateText(1)", "5");
    EXPECT_TRUE(platform.messages.empty());
    window.click("TestCommand");
    EXPECT_EQ(lastMessage(), RunTimeError(11).message());
    EXPECT_EQ(platform.messages.back().icon, MessageIcon::exclamation);
    EXPECT_EQ(shown(window, "TestCapacityLabel(0)"), before);
    typeAndLeave(window, "TestSourceEWTText(0)", "80");
    EXPECT_EQ(platform.messages.size(), 2u);
    // Another pump, which can be tried, has results of its own; this one then has none.
    window.choose("PumpNamesList", 1);
    EXPECT_NE(shown(window, "TestCapacityLabel(0)"), "");
    window.choose("PumpNamesList", 0);
    EXPECT_EQ(shown(window, "TestCapacityLabel(0)"), "");
    EXPECT_EQ(platform.messages.size(), 2u);
}

TEST_F(EditorCurves, HavePicturesOfPointsAndLines) {
    frmHPEdit& window = opened();
    FitPicture picture = window.chart("CoolingRatingChart").curves;
    EXPECT_EQ(picture.capacity[cooling].measured.size(), 3u);
    EXPECT_EQ(picture.capacity[cooling].measured[1], (FitPoint{85, 28.4}));
    EXPECT_EQ(picture.capacity[cooling].secondMeasured[1], (FitPoint{85, 29.3}));
    EXPECT_EQ(picture.capacity[cooling].line.size(), 25u);
    EXPECT_NEAR(picture.capacity[cooling].line.back().y, 26.2, 1e-9);
    EXPECT_NEAR(picture.capacity[cooling].secondLine.back().y, 26.2 * 1.0319805393697175, 1e-9);
    EXPECT_TRUE(picture.capacity[heating].line.empty());
    EXPECT_FALSE(picture.capacity[cooling].stale);
    // Points follow the typing, the line waits for the fit.
    window.type("CoolingFR1CapacityText(1)", "29");
    picture = window.chart("CoolingRatingChart").curves;
    EXPECT_EQ(picture.capacity[cooling].measured[1].y, 29);
    EXPECT_TRUE(picture.capacity[cooling].stale);
    EXPECT_FALSE(picture.power[cooling].stale);
    EXPECT_FALSE(picture.power[cooling].secondStale);
    window.type("CoolingFR2PowerText(1)", "1.9");
    EXPECT_FALSE(window.chart("CoolingRatingChart").curves.power[cooling].stale);
    EXPECT_TRUE(window.chart("CoolingRatingChart").curves.power[cooling].secondStale);
    window.click("MetricCheck");
    EXPECT_DOUBLE_EQ(window.chart("CoolingRatingChart").curves.capacity[cooling].measured[1].y,
                     29 * 0.2931);
    EXPECT_EQ(window.chart("CorrectionsChart(0)").curves.power[heating].measured.size(), 5u);
    EXPECT_FALSE(window.chart("CorrectionsChart(1)").curves.fromZero);
    EXPECT_EQ(window.chart("PumpChart").curves.power[heating].measured.size(), 3u);
}

TEST_F(EditorCurves, LeaveOutOfTheirPicturesWhatNoChartCanHold) {
    frmHPEdit& window = opened();
    window.type("CoolingFR1CapacityText(1)", "1e300");
    EXPECT_EQ(window.chart("CoolingRatingChart").curves.capacity[cooling].measured.size(), 2u);
    window.type("CoolingEWTText(1)", "1e300");
    const FitPicture picture = window.chart("CoolingRatingChart").curves;
    for (const FitPoint& point : picture.power[cooling].line) EXPECT_LE(point.x, 1e9);
}

TEST_F(EditorCurves, CarryThePointOfTheTest) {
    frmHPEdit& window = opened();
    typeAndLeave(window, "TestSourceEWTText(0)", "88.5");
    const FitPicture picture = window.chart("TestChart").curves;
    ASSERT_TRUE(picture.capacity[cooling].operating);
    EXPECT_EQ(picture.capacity[cooling].operating->x, 88.5);
    EXPECT_EQ(picture.capacity[cooling].operating->y, number(window, "testCapacity(0)"));
    EXPECT_TRUE(picture.power[heating].operating);
    typeAndLeave(window, "CoolingFlowRateText(1)", "5");
    EXPECT_TRUE(window.chart("TestChart").curves.empty());
}

}  // namespace
}  // namespace varnholt
