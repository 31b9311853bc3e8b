// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "borehole_window.h"

namespace varnholt {
namespace {

/// A field as a designer meets it: what a new design shows, and what happens beyond its limits.
struct FieldLimits {
    const char* field;
    const char* value;
    const char* english;     ///< text of the built-in value
    const char* metric;      ///< the same in metric units
    double lowest, highest;  ///< still accepted, as stored; highest 0 for none
    double fallback;
};

// The metric texts: 85 degF is 29.44 degC, 3 gpm 11.356 L/min, 62.4 lb/ft^3 999.55 kg/m^3,
// 1.3/0.5777892 = 2.24995, 0.75/10.7639104 = 0.06968, 20 ft 6.096 m, 1.9 in 48.26 mm, 1.55 in
// 39.37 mm, 5 in 127 mm, 0.85/0.5777892 = 1.4711, 0.075*0.5777892 = 0.0433, 0.196*0.5777892 =
// 0.1132.
// clang-format off
const FieldLimits fieldLimits[] = {
    {"FLInletTempText(0)",         "inletTemp(0)",       "85.0",  "29.4",  0, 212,   85},
    {"FLInletTempText(1)",         "inletTemp(1)",       "50.0",  "10.0",  0, 212,   55},
    {"FLFlowRateText",             "flowRate",           "3.0",   "11.4",  0, 212,   3},
    {"FLFluidDensityText",         "fluidDensity",       "62.4",  "999.6", 0, 10000, 62.4},
    {"FLSpecificHeatText",         "specificHeat",       "1.00",  "4.186", 0, 10000, 1},
    {"FLPercentAntifreezeText",    "percentAntifreeze",  "100",   "100",   0, 100,   0},
    {"SOGroundTempText",           "groundTemp",         "62.0",  "16.7",  0, 212,   62},
    {"SOThermalConductivityText",  "soilConductivity",   "1.30",  "2.25",  0, 1000,  1.3},
    {"SOThermalDiffusivityText",   "soilDiffusivity",    "0.75",  "0.070", 0, 1000,  0.75},
    {"PAPatternRowsText(0)",       "patternRows(0)",     "6",     "6",     0, 0,     1},
    {"PAPatternRowsText(1)",       "patternRows(1)",     "4",     "4",     0, 0,     1},
    {"PASeparationText",           "boreSeparation",     "20.0",  "6.1",   0, 100,   20},
    {"PABoresPerParallelLoopText", "boresPerCircuit",    "2",     "2",     0, 3,     1},
    {"PATimeText",                 "predictionTime",     "10.0",  "10.0",  0, 100,   10},
    {"EKWPumpEfficiencyText(0)",   "motorEfficiency(0)", "85.00", "85.00", 0, 100,   100},
    {"EKWPumpEfficiencyText(1)",   "motorEfficiency(1)", "85.00", "85.00", 0, 100,   100},
    {"EKWPumpEfficiencyText(2)",   "motorEfficiency(2)", "85.00", "85.00", 0, 100,   100},
    {"EKWPumpPowerText(1)",        "extraPower(1)",      "0.0",   "0.0",   0, 10000, 0},
    {"EKWPumpPowerText(2)",        "extraPower(2)",      "0.0",   "0.0",   0, 10000, 0},
    {"EKWPumpPowerText(4)",        "extraPower(4)",      "0.0",   "0.0",   0, 10000, 0},
    {"EKWPumpPowerText(6)",        "extraPower(6)",      "0.0",   "0.0",   0, 10000, 0},
    {"PIPipeDiameterText(0)",      "pipeDiameter(0)",    "1.900", "48.26", 0, 1000,  1.9},
    {"PIPipeDiameterText(1)",      "pipeDiameter(1)",    "1.550", "39.37", 0, 1000,  1.55},
    {"PIBoreholeDiameterText",     "boreDiameter",       "5.00",  "127.00", 0, 0,    5},
    {"PIGroutConductivityText",    "groutConductivity",  "0.85",  "1.47",  0, 0,     0.85},
    {"PIPipeResistanceText",       "pipeResistance",     "0.075", "0.043", 0, 0,     0.075},
    {"PIThermalResistanceText",    "boreResistance",     "0.196", "0.113", 0, 0,     0.196},
};
// clang-format on

class BoreholeFields : public BoreholeWindow {
 protected:
    /// The text of a stored value in English units; shaft power is typed in horsepower.
    static std::string typedFor(const FieldLimits& c, double stored) {
        const std::string field = c.field;
        const bool shaft = field == "EKWPumpPowerText(1)" || field == "EKWPumpPowerText(4)" ||
                           field == "EKWPumpPowerText(6)";
        return std::to_string(shaft ? stored / 0.74571 : stored);
    }
};

TEST_F(BoreholeFields, ShowTheBuiltInValuesInBothUnitSystems) {
    for (const FieldLimits& c : fieldLimits) EXPECT_EQ(textOf(c.field), c.english) << c.field;
    inMetric();
    for (const FieldLimits& c : fieldLimits) EXPECT_EQ(textOf(c.field), c.metric) << c.field;
}

TEST_F(BoreholeFields, FallBackBelowTheirLowestValue) {
    for (const FieldLimits& c : fieldLimits) {
        SCOPED_TRACE(c.field);
        type(c.field, typedFor(c, c.lowest - 0.6));
        EXPECT_DOUBLE_EQ(value(c.value), c.fallback);
        EXPECT_TRUE(design->control(c.field).refused());
    }
}

TEST_F(BoreholeFields, FallBackAboveTheirHighestValue) {
    for (const FieldLimits& c : fieldLimits) {
        SCOPED_TRACE(c.field);
        if (c.highest == 0) continue;
        type(c.field, typedFor(c, c.highest + 0.6));
        EXPECT_DOUBLE_EQ(value(c.value), c.fallback);
    }
}

TEST_F(BoreholeFields, AcceptTheirLimits) {
    for (const FieldLimits& c : fieldLimits) {
        SCOPED_TRACE(c.field);
        type(c.field, typedFor(c, c.lowest));
        EXPECT_DOUBLE_EQ(value(c.value), c.lowest);
        if (c.highest == 0) continue;
        type(c.field, typedFor(c, c.highest));
        EXPECT_NEAR(value(c.value), c.highest, 1e-3);
    }
}

TEST_F(BoreholeFields, LeftEmptyReturnToTheirFallback) {
    for (const FieldLimits& c : fieldLimits) {
        SCOPED_TRACE(c.field);
        type(c.field, "");
        // A motor's efficiency falls back at once, since its input power is shown with it.
        const bool efficiency = std::string(c.field).starts_with("EKWPumpEfficiency");
        EXPECT_EQ(value(c.value), efficiency ? 100 : 0);
        EXPECT_EQ(textOf(c.field), "");
        design->leave(c.field);
        EXPECT_DOUBLE_EQ(value(c.value), c.fallback);
    }
}

TEST_F(BoreholeFields, MarkTheResultsStale) {
    for (const FieldLimits& c : fieldLimits) {
        design->calculationDone();
        type(c.field, "1");
        EXPECT_EQ(design->control("CACalculateCommand").backcolor(), 14281207) << c.field;
    }
}

TEST_F(BoreholeFields, ReadTheLeadingNumber) {
    type("SOGroundTempText", "58.5 or so");
    EXPECT_DOUBLE_EQ(value("groundTemp"), 58.5);
    type("SOGroundTempText", "about 58");
    EXPECT_EQ(value("groundTemp"), 0);
}

TEST_F(BoreholeFields, AreReformattedWhenTheyAreLeft) {
    typeAndLeave("FLInletTempText(0)", "90.26");
    EXPECT_EQ(textOf("FLInletTempText(0)"), "90.3");
    EXPECT_DOUBLE_EQ(value("inletTemp(0)"), 90.26);
}

TEST_F(BoreholeFields, ConvertEachKeystrokeOfAMetricTemperature) {
    inMetric();
    type("FLInletTempText(0)", "3");
    EXPECT_DOUBLE_EQ(value("inletTemp(0)"), 37.4);
    type("FLInletTempText(0)", "30");
    EXPECT_DOUBLE_EQ(value("inletTemp(0)"), 86);
}

TEST_F(BoreholeFields, TakeAPartialMinusForZeroDegreesCelsius) {
    inMetric();
    type("FLInletTempText(0)", "-");
    EXPECT_DOUBLE_EQ(value("inletTemp(0)"), 32);
    EXPECT_EQ(textOf("FLInletTempText(0)"), "-");
    EXPECT_FALSE(design->control("FLInletTempText(0)").refused());
}

TEST_F(BoreholeFields, TreatAnEmptyMetricTemperatureAsNeutral) {
    inMetric();
    typeAndLeave("FLInletTempText(1)", "");
    EXPECT_DOUBLE_EQ(value("inletTemp(1)"), 55);
    EXPECT_EQ(textOf("FLInletTempText(1)"), "12.8");
}

TEST_F(BoreholeFields, StoreZeroForACountBeyondSixteenBits) {
    type("PABoresPerParallelLoopText", "70000");
    EXPECT_EQ(value("boresPerCircuit"), 0);
}

TEST_F(BoreholeFields, KeepTheTextOfAnAcceptedZero) {
    type("FLInletTempText(0)", "0");
    EXPECT_EQ(textOf("FLInletTempText(0)"), "0");
    EXPECT_EQ(value("inletTemp(0)"), 0);
}

TEST_F(BoreholeFields, TakeShaftPowerInHorsepowerOrKilowatts) {
    type("EKWPumpPowerText(1)", "2");
    EXPECT_DOUBLE_EQ(value("extraPower(1)"), 2 * 0.74571);
    EXPECT_EQ(captionOf("EKWPumpPowerUnitsLabel(1)"), "[2612]");
    inMetric();
    EXPECT_EQ(textOf("EKWPumpPowerText(1)"), "1.5");
    EXPECT_EQ(captionOf("EKWPumpPowerUnitsLabel(1)"), "[2611]");
    type("EKWPumpPowerText(1)", "2");
    EXPECT_DOUBLE_EQ(value("extraPower(1)"), 2);
}

TEST_F(BoreholeFields, ComputeTheInputPowerOfEachMotor) {
    inMetric();
    type("EKWPumpPowerText(1)", "1.7");
    EXPECT_DOUBLE_EQ(value("extraPower(0)"), 2);  // 1.7 / 0.85
    EXPECT_EQ(textOf("EKWPumpPowerText(0)"), "2.0");
    type("EKWPumpPowerText(4)", "3");
    type("EKWPumpEfficiencyText(1)", "60");
    EXPECT_DOUBLE_EQ(value("extraPower(3)"), 5);
    EXPECT_EQ(textOf("EKWPumpPowerText(3)"), "5.0");
    type("EKWPumpPowerText(6)", "4");
    type("EKWPumpEfficiencyText(2)", "0");
    EXPECT_EQ(value("extraPower(5)"), 0);
    type("EKWPumpEfficiencyText(2)", "");
    EXPECT_DOUBLE_EQ(value("extraPower(5)"), 4);
    EXPECT_EQ(textOf("EKWPumpPowerText(5)"), "4.0");
    design->leave("EKWPumpEfficiencyText(2)");
    EXPECT_EQ(textOf("EKWPumpEfficiencyText(2)"), "100.00");
    EXPECT_DOUBLE_EQ(value("extraPower(5)"), 4);
}

TEST_F(BoreholeFields, OfInputPowerCannotBeTyped) {
    for (const char* field : {"EKWPumpPowerText(0)", "EKWPumpPowerText(3)", "EKWPumpPowerText(5)"})
        EXPECT_TRUE(design->control(field).locked()) << field;
}

TEST_F(BoreholeFields, CarryTheUnitsOfTheActiveSystem) {
    EXPECT_EQ(captionOf("FLFlowRateUnitsLabel"), "[2210]");
    EXPECT_EQ(captionOf("SOGroundTempUnitsLabel"), "[2305]");
    inMetric();
    EXPECT_EQ(captionOf("FLFlowRateUnitsLabel"), "[2209]");
    EXPECT_EQ(captionOf("SOGroundTempUnitsLabel"), "[2304]");
    EXPECT_EQ(captionOf("PATimeUnitsLabel"), "[2513]");
}

TEST_F(BoreholeFields, OfTheProjectAreKeptAsTyped) {
    type("INProjectNameText", " School, phase 2 ");
    EXPECT_EQ(std::get<std::string>(design->values().read("projectName")), " School, phase 2 ");
    type("INCommentsRichTextBox", "first\nsecond");
    EXPECT_EQ(design->information().comments, "first\r\nsecond");
    design->pickDate("INStartDateDTPicker", {2026, 3, 1});
    EXPECT_EQ(design->information().projectStartDate, (Date{2026, 3, 1}));
    EXPECT_EQ(design->control("INDateDTPicker").date(), (Date{2026, 1, 15}));
}

}  // namespace
}  // namespace varnholt
