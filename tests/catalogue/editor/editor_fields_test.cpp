// SPDX-License-Identifier: GPL-3.0-or-later
// What a field takes, repairs and makes stale.
#include <gtest/gtest.h>

#include "catalogue/editor/editor_fixture.h"

namespace varnholt {
namespace {

class EditorFields : public EditorTest {};

struct Repair {
    const char *field, *typed, *left, *value;
    double stored;
};

TEST_F(EditorFields, RepairWhatIsOutOfRangeWhenTheyAreLeft) {
    const Repair repairs[] = {
        {"CoolingEWTText(0)", "213", "90.0", "PumpList(0).ewt(3).temperature", 90},
        {"HeatingEWTText(2)", "-1", "90.0", "PumpList(0).ewt(2).temperature", 90},
        {"CoolingEWTText(1)", "212", "212.0", "PumpList(0).ewt(4).temperature", 212},
        {"HeatingEWTText(1)", "0", "0.0", "PumpList(0).ewt(1).temperature", 0},
        {"CoolingELTText(0)", "213", "0.0", "PumpList(0).eat(0).temperature(0)", 0},
        {"HeatingELTText(4)", "-0.5", "0.0", "PumpList(0).eat(4).temperature(1)", 0},
        {"CoolingFR1CapacityText(2)", "-1", "0.0",
         "PumpList(0).ewt(5).flowRate(0).HeatMode(0).capacity", 0},
        {"HeatingFR2CapacityText(0)", "-1", "0.0",
         "PumpList(0).ewt(0).flowRate(1).HeatMode(1).capacity", 0},
        {"CoolingFR2PowerText(0)", "-1", "0.00", "PumpList(0).ewt(3).flowRate(1).HeatMode(0).watts",
         0},
        {"HeatingFR1PowerText(1)", "3.456", "3.46",
         "PumpList(0).ewt(1).flowRate(0).HeatMode(1).watts", 3.456},
        {"CoolingCorrectionsCapacityFactorText(2)", "-1", "0.000",
         "PumpList(0).eat(2).capacityCorrection(0)", 0},
        {"HeatingCorrectionsPowerFactorText(7)", "-0.1", "0.000",
         "PumpList(0).elf(2).wattsCorrection(1)", 0},
        {"CoolingCorrectionsPowerFactorText(9)", "1.2345", "1.235",
         "PumpList(0).elf(4).wattsCorrection(0)", 1.2345},
        {"CoolingPercentNominalText(1)", "10001", "100", "PumpList(0).elf(1).percent(0)", 100},
        {"HeatingPercentNominalText(1)", "-1", "100", "PumpList(0).elf(1).percent(1)", 100},
        {"CoolingPercentNominalText(2)", "10000", "10000", "PumpList(0).elf(2).percent(0)", 10000},
        {"NominalFlowText", "1000001", "0", "PumpList(0).nominalFlow", 0},
        {"NominalFlowText", "-1", "0", "PumpList(0).nominalFlow", 0},
        {"NominalFlowText", "1000000", "1000000", "PumpList(0).nominalFlow", 1000000},
        {"CoolingFlowRateText(0)", "-1", "0.0", "PumpList(0).ewt(3).flowRate(0).flowRate", 0},
        {"HeatingFlowRateText(1)", "-2", "-2.0", "PumpList(0).ewt(3).flowRate(1).flowRate", -2},
        {"TestSourceEWTText(0)", "213", "55.0", "testSourceTemperature(0)", 55},
        {"TestSourceEWTText(1)", "-1", "55.0", "testSourceTemperature(1)", 55},
        {"TestSourceFlowText(0)", "-1", "0.0", "testSourceFlow(0)", 0},
        {"TestLoadELTText(0)", "-1", "68.0", "testLoadTemperature(0)", 68},
        {"TestLoadELTText(1)", "213", "68.0", "testLoadTemperature(1)", 68},
        {"TestLoadFlowText(1)", "-1", "0", "testLoadFlow(1)", 0},
    };
    for (const Repair& repair : repairs) {
        SCOPED_TRACE(std::string(repair.field) + " " + repair.typed);
        frmHPEdit& window = opened();
        window.type(repair.field, repair.typed);
        // Until it is left the field holds what was typed.
        EXPECT_EQ(number(window, repair.value), std::stod(repair.typed));
        EXPECT_EQ(shown(window, repair.field), repair.typed);
        platform.messages.clear();
        window.leave(repair.field);
        EXPECT_EQ(number(window, repair.value), repair.stored);
        EXPECT_EQ(shown(window, repair.field), repair.left);
        platform.answers = {Answer::no};
        main.close(window);
        platform.answers.clear();
    }
}

TEST_F(EditorFields, LeaveTheStoredValueWhereTheTextIsNoNumber) {
    frmHPEdit& window = opened();
    for (const char* text : {"", "-", "abc", "30x", "30,1", "1e999", "nan"}) {
        window.type("CoolingFR1CapacityText(0)", text);
        EXPECT_EQ(number(window, "PumpList(0).ewt(3).flowRate(0).HeatMode(0).capacity"), 30.1);
        EXPECT_FALSE(enabled(window, "SaveCommand"));
        EXPECT_FALSE(isRed(window, "CalculateCoefficientsCommand(0)"));
        window.leave("CoolingFR1CapacityText(0)");
        EXPECT_EQ(shown(window, "CoolingFR1CapacityText(0)"), "30.1");
    }
    window.type("CoolingFR1CapacityText(0)", " 31.5 ");
    EXPECT_EQ(number(window, "PumpList(0).ewt(3).flowRate(0).HeatMode(0).capacity"), 31.5);
}

TEST_F(EditorFields, SayWhatTheyHaveRefused) {
    texts.known[1237] = "%2 is not in %3 to %4: %5";
    texts.known[1241] = "%2 is not taken: %5";
    frmHPEdit& window = opened();
    typeAndLeave(window, "CoolingEWTText(0)", "213");
    EXPECT_TRUE(control(window, "CoolingEWTText(0)").refused());
    EXPECT_NE(control(window, "NoticeLabel").caption().find("213 is not in 0.0 to 212.0: 90.0"),
              std::string::npos);
    window.type("CoolingEWTText(0)", "80");
    EXPECT_FALSE(control(window, "CoolingEWTText(0)").refused());
    typeAndLeave(window, "CoolingFlowRateText(0)", "-1");
    EXPECT_NE(control(window, "NoticeLabel").caption().find("-1 is not taken: 0.0"),
              std::string::npos);
    window.choose("PumpNamesList", 1);
    EXPECT_FALSE(control(window, "CoolingFlowRateText(0)").refused());
}

TEST_F(EditorFields, AreReadAndShownInMetricUnits) {
    frmHPEdit& window = opened();
    window.click("MetricCheck");
    EXPECT_EQ(shown(window, "CoolingEWTText(1)"), "29.4");         // 85 degF
    EXPECT_EQ(shown(window, "CoolingFR1CapacityText(0)"), "8.8");  // 30.1 x 0.2931
    EXPECT_EQ(shown(window, "CoolingFR1PowerText(0)"), "1.71");
    EXPECT_EQ(shown(window, "HeatingFlowRateText(0)"), "18.9");  // 5 x 3.785412
    EXPECT_EQ(shown(window, "CoolingELTText(2)"), "19.4");       // 67 degF
    EXPECT_EQ(shown(window, "CoolingCorrectionsCapacityFactorText(0)"), "0.903");
    EXPECT_EQ(shown(window, "CoolingPercentNominalText(0)"), "80");
    EXPECT_EQ(shown(window, "NominalFlowText"), "424.8");  // 900 x 0.4719474
    EXPECT_EQ(shown(window, "TestSourceEWTText(0)"), "12.8");
    typeAndLeave(window, "CoolingEWTText(0)", "20");
    EXPECT_EQ(number(window, "PumpList(0).ewt(3).temperature"), 68);
    typeAndLeave(window, "CoolingFR1CapacityText(0)", "2.931");
    EXPECT_DOUBLE_EQ(number(window, "PumpList(0).ewt(3).flowRate(0).HeatMode(0).capacity"), 10);
    typeAndLeave(window, "HeatingFlowRateText(0)", "37.85412");
    EXPECT_DOUBLE_EQ(number(window, "PumpList(0).ewt(3).flowRate(0).flowRate"), 10);
    typeAndLeave(window, "NominalFlowText", "471.9474");
    EXPECT_DOUBLE_EQ(number(window, "PumpList(0).nominalFlow"), 1000);
    typeAndLeave(window, "TestLoadFlowText(0)", "471.9474");
    EXPECT_DOUBLE_EQ(number(window, "testLoadFlow(0)"), 1000);
    EXPECT_EQ(shown(window, "TestLoadFlowText(0)"), "471.9");
    typeAndLeave(window, "TestSourceFlowText(0)", "3.785412");
    EXPECT_DOUBLE_EQ(number(window, "testSourceFlow(0)"), 1);
    // -20 degC is -4 degF.
    typeAndLeave(window, "CoolingEWTText(0)", "-20");
    EXPECT_EQ(number(window, "PumpList(0).ewt(3).temperature"), 90);
    EXPECT_EQ(shown(window, "CoolingEWTText(0)"), "32.2");
}

TEST_F(EditorFields, OfRatingsMakeTheCurvesOfTheirModeStale) {
    frmHPEdit& window = opened();
    window.type("HeatingFR2PowerText(0)", "1.7");
    EXPECT_TRUE(isRed(window, "CalculateCoefficientsCommand(1)"));
    EXPECT_FALSE(isRed(window, "CalculateCoefficientsCommand(0)"));
    EXPECT_TRUE(window.recalculationNeeded);
    window.type("PumpModelText", "other");
    EXPECT_FALSE(window.recalculationNeeded);
    window.choose("PumpNamesList", 1);
    EXPECT_FALSE(isRed(window, "CalculateCoefficientsCommand(1)"));
    window.type("CoolingEWTText(0)", "76");
    EXPECT_TRUE(isRed(window, "CalculateCoefficientsCommand(0)"));
    EXPECT_FALSE(isRed(window, "CoefficientsCalculateCommand(0)"));
}

TEST_F(EditorFields, OfCorrectionsMakeTheCurvesOfTheirKindStale) {
    frmHPEdit& window = opened();
    window.type("HeatingELTText(0)", "61");
    EXPECT_TRUE(isRed(window, "CoefficientsCalculateCommand(0)"));
    EXPECT_FALSE(isRed(window, "CoefficientsCalculateCommand(1)"));
    window.type("CoolingCorrectionsPowerFactorText(5)", "0.9");
    EXPECT_TRUE(isRed(window, "CoefficientsCalculateCommand(1)"));
    window.choose("PumpNamesList", 1);
    typeAndLeave(window, "NominalFlowText", "1000");
    EXPECT_FALSE(isRed(window, "CoefficientsCalculateCommand(1)"));
    EXPECT_TRUE(enabled(window, "SaveCommand"));
}

TEST_F(EditorFields, OfTheFlowsAreOnePairInBothModes) {
    frmHPEdit& window = opened();
    window.type("CoolingFlowRateText(0)", "6");
    EXPECT_EQ(shown(window, "HeatingFlowRateText(0)"), "6.0");
    for (int row = 0; row < 6; ++row)
        EXPECT_EQ(
            number(window, "PumpList(0).ewt(" + std::to_string(row) + ").flowRate(0).flowRate"), 6);
    EXPECT_TRUE(isRed(window, "CalculateCoefficientsCommand(0)"));
    EXPECT_TRUE(isRed(window, "CalculateCoefficientsCommand(1)"));
    // The mean of 6 and 8, in the heating test alone.
    EXPECT_EQ(shown(window, "TestSourceFlowText(1)"), "7.0");
    EXPECT_EQ(shown(window, "TestSourceFlowText(0)"), "0.0");
    window.type("HeatingFlowRateText(1)", "9");
    EXPECT_EQ(shown(window, "CoolingFlowRateText(1)"), "9.0");
    EXPECT_EQ(number(window, "testSourceFlow(1)"), 7.5);
}

TEST_F(EditorFields, OfTheFlowsWhoseMeanOverflowsLeaveTheTestAsItWas) {
    frmHPEdit& window = opened();
    window.type("CoolingFlowRateText(0)", "1e308");
    const double before = number(window, "testSourceFlow(1)");
    window.type("CoolingFlowRateText(1)", "1e308");
    EXPECT_EQ(lastMessage().substr(0, 1), "6");
    EXPECT_EQ(number(window, "testSourceFlow(1)"), before);
    EXPECT_EQ(number(window, "PumpList(0).ewt(3).flowRate(1).flowRate"), 1e308);
    EXPECT_TRUE(enabled(window, "SaveCommand"));
}

TEST_F(EditorFields, OfTheFlowsTurnNoButtonRedWithoutASecondFlow) {
    frmHPEdit& window = opened();
    typeAndLeave(window, "CoolingFlowRateText(1)", "0");
    window.choose("PumpNamesList", 1);
    typeAndLeave(window, "CoolingFlowRateText(1)", "0");
    EXPECT_FALSE(isRed(window, "CalculateCoefficientsCommand(0)"));
    typeAndLeave(window, "HeatingFlowRateText(0)", "6");
    EXPECT_FALSE(isRed(window, "CalculateCoefficientsCommand(1)"));
    EXPECT_EQ(shown(window, "TestSourceFlowText(1)"), "6.0");
    EXPECT_TRUE(enabled(window, "SaveCommand"));
}

TEST_F(EditorFields, AreEmptiedByTheirZeroButton) {
    struct Zero {
        std::size_t index;
        const char *place, *factor, *stored, *capacity, *button;
    };
    const Zero zeros[] = {
        {0, "CoolingELTText(3)", "CoolingCorrectionsCapacityFactorText(3)",
         "PumpList(0).eat(3).temperature(0)", "PumpList(0).eat(3).capacityCorrection(0)", "(0)"},
        {1, "CoolingELTText(4)", "CoolingCorrectionsPowerFactorText(4)",
         "PumpList(0).eat(4).temperature(0)", "PumpList(0).eat(4).wattsCorrection(0)", "(0)"},
        {2, "HeatingELTText(3)", "HeatingCorrectionsCapacityFactorText(3)",
         "PumpList(0).eat(3).temperature(1)", "PumpList(0).eat(3).capacityCorrection(1)", "(0)"},
        {3, "HeatingELTText(4)", "HeatingCorrectionsPowerFactorText(4)",
         "PumpList(0).eat(4).temperature(1)", "PumpList(0).eat(4).wattsCorrection(1)", "(0)"},
        {4, "CoolingPercentNominalText(3)", "CoolingCorrectionsCapacityFactorText(8)",
         "PumpList(0).elf(3).percent(0)", "PumpList(0).elf(3).capacityCorrection(0)", "(1)"},
        {5, "CoolingPercentNominalText(4)", "CoolingCorrectionsPowerFactorText(9)",
         "PumpList(0).elf(4).percent(0)", "PumpList(0).elf(4).wattsCorrection(0)", "(1)"},
        {6, "HeatingPercentNominalText(3)", "HeatingCorrectionsCapacityFactorText(8)",
         "PumpList(0).elf(3).percent(1)", "PumpList(0).elf(3).capacityCorrection(1)", "(1)"},
        {7, "HeatingPercentNominalText(4)", "HeatingCorrectionsPowerFactorText(9)",
         "PumpList(0).elf(4).percent(1)", "PumpList(0).elf(4).wattsCorrection(1)", "(1)"},
    };
    for (const bool metric : {false, true})
        for (const Zero& zero : zeros) {
            SCOPED_TRACE(zero.index);
            frmHPEdit& window = opened();
            if (metric) window.click("MetricCheck");
            window.click(elementName("cmdZeroZap", zero.index));
            EXPECT_EQ(shown(window, zero.place), "0.0");
            EXPECT_EQ(shown(window, zero.factor), "0.000");
            EXPECT_EQ(number(window, zero.stored), 0);
            EXPECT_EQ(number(window, zero.capacity), 0);
            EXPECT_TRUE(isRed(window, std::string("CoefficientsCalculateCommand") + zero.button));
            EXPECT_TRUE(enabled(window, "SaveCommand"));
            platform.answers = {Answer::no};
            main.close(window);
        }
}

TEST_F(EditorFields, ShowTheCopOrEerOfEachPoint) {
    frmHPEdit& window = opened();
    // 0.2931 x 30.1 / 1.71 = 5.16, an EER of 17.6; 0.2931 x 19.8 / 1.66 = 3.5.
    EXPECT_EQ(shown(window, "CoolingFR1COPLabel(0)"), "17.6");
    EXPECT_EQ(shown(window, "HeatingFR1COPLabel(0)"), "3.5");
    EXPECT_EQ(shown(window, "CoolingFR1COPHeadLabel"), "[4238]");
    EXPECT_EQ(shown(window, "HeatingFR1COPHeadLabel"), "[4237]");
    window.type("HeatingFR1PowerText(0)", "1660");
    EXPECT_EQ(shown(window, "HeatingFR1COPLabel(0)"), "[4290] 0.0");
    EXPECT_EQ(control(window, "HeatingFR1COPLabel(0)").forecolor(), 255);
    EXPECT_EQ(control(window, "HeatingFR1COPLabel(0)").tooltip(), "[4291]");
    window.type("HeatingFR1PowerText(0)", "0");
    EXPECT_EQ(shown(window, "HeatingFR1COPLabel(0)"), "");
    EXPECT_EQ(control(window, "HeatingFR1COPLabel(0)").forecolor(), 0);
    window.click("MetricCheck");
    EXPECT_EQ(shown(window, "CoolingFR1COPLabel(0)"), "5.2");
    EXPECT_EQ(shown(window, "CoolingFR1COPHeadLabel"), "[4237]");
}

TEST_F(EditorFields, TakeASpreadsheetsCellsFromThemOn) {
    frmHPEdit& window = opened();
    platform.clipboardText = "80\t29\t1.8\r\n\tabc\t1.9\r\n90\t27\t2.0\t28\t1.95\t99\r\n1\t2\r\n";
    window.key("CoolingEWTText(0)", "Ctrl+V");
    const char* expected[][5] = {{"80.0", "29.0", "1.80", "31.0", "1.62"},
                                 {"85.0", "28.4", "1.90", "29.3", "1.83"},
                                 {"90.0", "27.0", "2.00", "28.0", "1.95"}};
    const char* columns[] = {"CoolingEWTText", "CoolingFR1CapacityText", "CoolingFR1PowerText",
                             "CoolingFR2CapacityText", "CoolingFR2PowerText"};
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 5; ++column)
            EXPECT_EQ(shown(window, elementName(columns[column], row)), expected[row][column]);
    EXPECT_TRUE(isRed(window, "CalculateCoefficientsCommand(0)"));
    window.undo();
    EXPECT_EQ(shown(window, "CoolingFR1PowerText(2)"), "2.20");
    EXPECT_EQ(shown(window, "CoolingEWTText(0)"), "75.0");
}

TEST_F(EditorFields, RepairPastedCellsAsTypedOnesInTheUnitsShown) {
    frmHPEdit& window = opened();
    window.click("MetricCheck");
    platform.clipboardText = "20\t1.05\n300\t-1";
    window.key("HeatingELTText(3)", "Ctrl+V");
    EXPECT_EQ(number(window, "PumpList(0).eat(3).temperature(1)"), 68);
    EXPECT_EQ(number(window, "PumpList(0).eat(3).capacityCorrection(1)"), 1.05);
    EXPECT_EQ(number(window, "PumpList(0).eat(4).temperature(1)"), 0);
    EXPECT_EQ(number(window, "PumpList(0).eat(4).capacityCorrection(1)"), 0);
}

TEST_F(EditorFields, TakeOneCellAsTyped) {
    frmHPEdit& window = opened();
    platform.clipboardText = "29.5\r\n";
    window.key("CoolingFR1CapacityText(0)", "Ctrl+V");
    EXPECT_EQ(shown(window, "CoolingFR1CapacityText(0)"), "29.5");
    window.key("CoolingFR1CapacityText(0)", "Enter");
    EXPECT_EQ(shown(window, "CoolingFR1CapacityText(0)"), "29.5");
}

TEST_F(EditorFields, GiveTheirTableToASpreadsheet) {
    frmHPEdit& window = opened();
    window.click("CopyTableCommand(1)");
    EXPECT_EQ(platform.clipboardText,
              "75.0\t30.1\t1.71\t31.0\t1.62\r\n85.0\t28.4\t1.93\t29.3\t1.83\r\n"
              "95.0\t26.2\t2.20\t27.1\t2.09\r\n");
    window.click("CopyTableCommand(4)");
    EXPECT_EQ(platform.clipboardText.substr(0, 35), "80\t0.950\t0.980\t80\t0.950\t0.980\r\n90\t0");
    // What was copied can be pasted.
    window.choose("PumpNamesList", 1);
    window.key("CoolingPercentNominalText(0)", "Ctrl+V");
    window.click("CopyTableCommand(4)");
    EXPECT_EQ(platform.clipboardText.substr(0, 35), "80\t0.950\t0.980\t80\t0.950\t0.980\r\n90\t0");
}

}  // namespace
}  // namespace varnholt
