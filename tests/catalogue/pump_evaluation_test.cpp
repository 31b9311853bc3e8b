// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/pump_evaluation.h"

#include <gtest/gtest.h>

#include "basis/file_system.h"
#include "catalogue/ModPumpsIO.h"
#include "catalogue/sample_models.h"

namespace varnholt {
namespace {

constexpr double close = 1e-12;

/// Capacity in cooling 47 - 0.2 x, in heating 14 + 0.2 x; power 0.8 + 0.02 x and 1.5 + 0.01 x.
/// At the entering water of 85 and 50 degF: 30 and 24 MBtu/hr, 2.5 and 2 kW. The load-side
/// corrections are 1 at 67 and 70 degF. From 6 to 9 gpm the capacity changes by the factors 1.02
/// and 1.05, the power by 0.97 and 1.03.
pump slopedModel() {
    pump model = plainModel("S030", 0, 0);
    auto& c = model.coefficients;
    c.capacity = {{{47, 14}, {-0.2, 0.2}}};
    c.watts = {{{0.8, 1.5}, {0.02, 0.01}}};
    c.capacityCorrection = {{{0.33, 1.7}, {0.01, -0.01}}};
    c.wattsCorrection = {{{0.33, 1.7}, {0.01, -0.01}}};
    model.flowCf = {{{1.02, 1.05}, {0.97, 1.03}}};
    return model;
}

MiniPump evaluate(const pump& model, int units, const Gains& gains,
                  const EvaluationConditions& conditions = {}, const MiniPump& current = {}) {
    return evaluatePump(model, static_cast<std::int16_t>(units), gains, current, conditions);
}

TEST(PumpEvaluation, AgreesWithAHandCalculationInBothModes) {
    // Cooling, peak 28: 28 / 30 is below 1.2, so the flow follows the load: 28 / 12 x 3 = 7 gpm,
    // 1 above the first catalogue flow. Slope (1.02 x 30 - 30) / 3 = 0.2, capacity 30.2; power
    // slope (0.97 x 2.5 - 2.5) / 3 = -0.025, power 2.475.
    // Heating, peak 20: 20 / 12 x 3 = 5 gpm, 1 below. Slope (1.05 x 24 - 24) / 3 = 0.4, capacity
    // 23.6; power slope (1.03 x 2 - 2) / 3 = 0.02, power 1.98.
    const MiniPump placed = evaluate(slopedModel(), 1, peaks(28, 20));
    EXPECT_NEAR(placed.capacity[cooling], 30.2, close);
    EXPECT_NEAR(placed.watts[cooling], 2.475, close);
    EXPECT_NEAR(placed.flowRate[cooling], 7, close);
    EXPECT_NEAR(placed.efficiency[cooling], 30.2 / (2.475 * 3.412), close);
    EXPECT_NEAR(placed.plf[cooling], 28 / 30.2, close);
    EXPECT_NEAR(placed.capacity[heating], 23.6, close);
    EXPECT_NEAR(placed.watts[heating], 1.98, close);
    EXPECT_NEAR(placed.flowRate[heating], 5, close);
    EXPECT_NEAR(placed.efficiency[heating], 23.6 / (1.98 * 3.412), close);
    EXPECT_NEAR(placed.plf[heating], 20 / 23.6, close);
}

TEST(PumpEvaluation, GivesTheTotalsOfAllUnits) {
    // Two units share 56: each as in the hand calculation with 28.
    const MiniPump placed = evaluate(slopedModel(), 2, peaks(56, 40));
    EXPECT_EQ(placed.number, 2);
    EXPECT_NEAR(placed.capacity[cooling], 60.4, close);
    EXPECT_NEAR(placed.watts[cooling], 4.95, close);
    EXPECT_NEAR(placed.flowRate[cooling], 14, close);
    EXPECT_NEAR(placed.plf[cooling], 56 / 60.4, close);
    EXPECT_NEAR(placed.capacity[heating], 47.2, close);
}

TEST(PumpEvaluation, CopiesTheIdentityOfTheModel) {
    pump model = slopedModel();
    model.pumpType = 1;
    MiniPump current;
    current.name = "old";
    const MiniPump placed = evaluate(model, 3, peaks(28, 20), {}, current);
    EXPECT_EQ(placed.mfgName, "Maker");
    EXPECT_EQ(placed.seriesName, "Series");
    EXPECT_EQ(placed.name, "S030");
    EXPECT_EQ(placed.pumpType, 1);
    EXPECT_EQ(placed.number, 3);
    EXPECT_EQ(placed.customPump, 0);
}

TEST(PumpEvaluation, OfAZoneWithoutLoadHasNoFlowAndAPartLoadFactorOfZero) {
    // delta = 0 - 6; capacity 30 + 0.2 x -6 = 28.8 and 24 + 0.4 x -6 = 21.6.
    const MiniPump placed = evaluate(slopedModel(), 1, Gains{});
    EXPECT_NEAR(placed.capacity[cooling], 28.8, close);
    EXPECT_NEAR(placed.capacity[heating], 21.6, close);
    EXPECT_NEAR(placed.watts[cooling], 2.5 + 0.025 * 6, close);
    EXPECT_EQ(placed.flowRate, (ByMode<double>{0, 0}));
    EXPECT_EQ(placed.plf, (ByMode<double>{0, 0}));
}

TEST(PumpEvaluation, TakesThePeakFromZeroSoThatNegativeLoadsCountAsNone) {
    EXPECT_EQ(evaluate(slopedModel(), 1, peaks(-5, -5)).plf, (ByMode<double>{0, 0}));
    EXPECT_EQ(peakLoad(peaks(-5, -5), cooling), 0);
    EXPECT_EQ(peakLoad(peaks(7, -5), cooling), 7);
    EXPECT_EQ(peakLoad(peaks(7, -5), heating, 1), 1);
}

TEST(PumpEvaluation, WithoutNominalFlowKeepsLoadFlowZeroAndTakesNoFlowCorrection) {
    pump model = plainModel("A", 30, 24);
    model.coefficients.capacityFlowCorrection[0] = {7, 7};  // would show
    const MiniPump placed = evaluate(model, 1, peaks(20, 20));
    EXPECT_EQ(placed.elf, (ByMode<double>{0, 0}));
    EXPECT_NEAR(placed.capacity[cooling], 30, close);
    EXPECT_EQ(placed.nominalFlow, 0);
}

TEST(PumpEvaluation, WithoutNominalFlowIgnoresALoadFlowOfTheZone) {
    pump model = plainModel("A", 30, 24);
    model.coefficients.capacityFlowCorrection[0] = {7, 7};
    MiniPump current;
    current.elf = {500, 500};
    const MiniPump placed = evaluate(model, 1, peaks(20, 20), {}, current);
    EXPECT_EQ(placed.elf, (ByMode<double>{500, 500}));
    EXPECT_NEAR(placed.capacity[cooling], 30, close);
}

TEST(PumpEvaluation, WithAFirstCatalogueFlowOfZeroHasNoEfficiencyFlowOrPartLoadFactor) {
    pump model = slopedModel();
    model.ewt[3].flowRate[0].flowRate = 0;
    const MiniPump placed = evaluate(model, 1, peaks(28, 20));
    EXPECT_NEAR(placed.capacity[cooling], 30, close);
    EXPECT_NEAR(placed.watts[heating], 2, close);
    EXPECT_EQ(placed.efficiency, (ByMode<double>{0, 0}));
    EXPECT_EQ(placed.flowRate, (ByMode<double>{0, 0}));
    EXPECT_EQ(placed.plf, (ByMode<double>{0, 0}));
}

TEST(PumpEvaluation, TakesTheCapacityBranchAtExactlyTheOverloadRatio) {
    // 36 / 30 is 1.2: the flow follows the capacity, 30 / 12 x 3 = 7.5, not the load (9).
    pump model = plainModel("A", 30, 24);
    model.flowCf[0] = {1.02, 1.02};
    MiniPump placed = evaluate(model, 1, peaks(36, 20));
    EXPECT_NEAR(placed.flowRate[cooling], 7.5, close);
    EXPECT_EQ(placed.capacity[cooling], 30);
    // A hair less and the load leads: 3 gpm above the first flow add 0.2 each.
    placed = evaluate(model, 1, peaks(35.999999, 20));
    EXPECT_NEAR(placed.flowRate[cooling], 9, 1e-5);
    EXPECT_NEAR(placed.capacity[cooling], 30.6, 1e-5);
}

TEST(PumpEvaluation, CorrectsTheHeatingPowerWithTheCoolingDeltaWhenHeatingIsOverloaded) {
    // Cooling as in the hand calculation: delta 1. Heating, peak 30: 30 / 24 = 1.25, so the flow
    // is 24 / 12 x 3 = 6 and the capacity 24, while the power is 2 + 0.02 x 1.
    const MiniPump placed = evaluate(slopedModel(), 1, peaks(28, 30));
    EXPECT_NEAR(placed.capacity[heating], 24, close);
    EXPECT_NEAR(placed.flowRate[heating], 6, close);
    EXPECT_NEAR(placed.watts[heating], 2.02, close);
    EXPECT_NEAR(placed.plf[heating], 1.25, close);
}

TEST(PumpEvaluation, LeavesTheDeltaAtZeroWhenBothModesAreOverloaded) {
    const MiniPump placed = evaluate(slopedModel(), 1, peaks(40, 30));
    EXPECT_NEAR(placed.watts[cooling], 2.5, close);
    EXPECT_NEAR(placed.watts[heating], 2, close);
}

TEST(PumpEvaluation, WithoutHeatingCapacityCarriesFlowAndCorrectionOverFromCooling) {
    // Heating capacity -15 + 0.2 x 50 = -5: the correction 0.2 and the flow 7 of cooling stay.
    pump model = slopedModel();
    model.coefficients.capacity[0][heating] = -15;
    const MiniPump placed = evaluate(model, 1, peaks(28, 20));
    EXPECT_NEAR(placed.capacity[heating], -4.8, close);
    EXPECT_NEAR(placed.flowRate[heating], 7, close);
    EXPECT_NEAR(placed.plf[heating], 20 / -4.8, close);
}

TEST(PumpEvaluation, ShowsANominalFlowAsAWholeNumberButFormsThePercentFromTheCatalogue) {
    // 2.5 is rounded to the even 2; the flow itself and the percent (100) come from 2.5.
    pump model = plainModel("W", 30, 24);
    model.nominalFlow = 2.5;
    model.coefficients.capacityFlowCorrection = {{{0, 0}, {0.01, 0.01}}};
    const MiniPump placed = evaluate(model, 1, peaks(20, 20));
    EXPECT_EQ(placed.nominalFlow, 2);
    EXPECT_EQ(placed.elf, (ByMode<double>{2.5, 2.5}));
    EXPECT_NEAR(placed.capacity[cooling], 30, close);
}

TEST(PumpEvaluation, RoundsANominalFlowHalfToEvenAndRefusesOneBeyond16Bits) {
    pump model = plainModel("W", 30, 24);
    model.nominalFlow = 3.5;
    EXPECT_EQ(evaluate(model, 1, peaks(20, 20)).nominalFlow, 4);
    model.nominalFlow = 40000;
    EXPECT_EQ(errorOf([&] { evaluate(model, 1, peaks(20, 20)); }), 6);
}

TEST(PumpEvaluation, CorrectsCapacityAndPowerByAllTermsOfTheLoadFlow) {
    // Flow 800 of 1000: p = 80. Capacity 1 - 0.001 p + 0.0001 p^2 - 0.000001 p^3 =
    // 1 - 0.08 + 0.64 - 0.512 = 1.048; power 0.5 + 0.005 p = 0.9.
    pump model = plainModel("A", 30, 24);
    model.nominalFlow = 1000;
    model.coefficients.capacityFlowCorrection = {
        {{1, 1}, {-0.001, -0.001}, {0.0001, 0.0001}, {-0.000001, -0.000001}}};
    model.coefficients.wattsFlowCorrection = {{{0.5, 0.5}, {0.005, 0.005}}};
    MiniPump current;
    current.elf = {800, 800};
    const MiniPump placed = evaluate(model, 1, peaks(20, 20), {}, current);
    EXPECT_NEAR(placed.capacity[cooling], 30 * 1.048, close);
    EXPECT_NEAR(placed.watts[heating], 2 * 0.9, close);
}

TEST(PumpEvaluation, TakesTheLoadTemperaturesOfTheDesignByTheTypeOfThePump) {
    pump model = plainModel("A", 30, 24);
    EXPECT_EQ(evaluate(model, 1, peaks(20, 20)).elt, (ByMode<double>{67, 70}));
    model.pumpType = 1;
    EXPECT_EQ(evaluate(model, 1, peaks(20, 20)).elt, (ByMode<double>{55, 100}));
    model.pumpType = 2;
    EXPECT_EQ(evaluate(model, 1, peaks(20, 20)).elt, (ByMode<double>{55, 100}));
}

TEST(PumpEvaluation, CarriesTheTemporaryLoadSideWhileAnyOfTheThreeFlagsStands) {
    pump model = plainModel("A", 30, 24);
    model.nominalFlow = 900;
    MiniPump current;
    current.elf = {800, 700};
    for (bool EvaluationConditions::*flag :
         {&EvaluationConditions::updating, &EvaluationConditions::selectingPump,
          &EvaluationConditions::returningFromDetails}) {
        EvaluationConditions conditions;
        conditions.temporaryInletTemp = {60, 80};
        conditions.temporaryInletFlow = {500, 0};
        conditions.*flag = true;
        MiniPump placed = evaluate(model, 1, peaks(20, 20), conditions, current);
        EXPECT_EQ(placed.elt, (ByMode<double>{60, 80}));
        EXPECT_EQ(placed.elf, (ByMode<double>{900, 900}));  // another model: nominal
        conditions.samePumpUpdated = true;
        placed = evaluate(model, 1, peaks(20, 20), conditions, current);
        EXPECT_EQ(placed.elf, (ByMode<double>{500, 900}));
    }
    const MiniPump placed = evaluate(model, 1, peaks(20, 20), {}, current);
    EXPECT_EQ(placed.elf, (ByMode<double>{800, 700}));  // no flag: as it stands
}

TEST(PumpEvaluation, EndsWithDivisionByZeroWhereTheArithmeticHasNoGuard) {
    pump equalFlows = slopedModel();
    equalFlows.ewt[3].flowRate[1].flowRate = 6;
    EXPECT_EQ(errorOf([&] { evaluate(equalFlows, 1, peaks(28, 20)); }), 11);
    pump noPower = plainModel("A", 30, 24);
    noPower.coefficients.watts[0] = {0, 0};
    EXPECT_EQ(errorOf([&] { evaluate(noPower, 1, peaks(28, 20)); }), 11);
    EXPECT_EQ(errorOf([&] { evaluate(plainModel("A", 0, 24), 1, peaks(28, 20)); }), 11);
}

TEST(PumpEvaluation, EndsWithOverflowWhereAResultIsBeyondADouble) {
    pump model = plainModel("A", 1e308, 24);
    model.coefficients.capacityCorrection[0] = {100, 1};
    EXPECT_EQ(errorOf([&] { evaluate(model, 1, peaks(28, 20)); }), 6);
}

TEST(PumpEvaluation, OmittingTheLoadFlowKeepsTheZonesLoadFlow) {
    pump model = plainModel("A", 30, 24);
    model.nominalFlow = 900;
    model.coefficients.capacityFlowCorrection[0] = {7, 7};
    const MiniPump placed =
        evaluatePump(model, 1, peaks(20, 20), {}, {}, LoadFlowCorrection::omitted);
    EXPECT_EQ(placed.elf, (ByMode<double>{0, 0}));
    EXPECT_NEAR(placed.capacity[cooling], 30, close);
}

TEST(PumpEvaluation, OfAShippedModelAgreesWithTheEvaluationThatAccompaniesItsData) {
    // The demonstration data were made with their own evaluation: ML036 at 9 gpm and 1200 cfm
    // gives 36.07 MBtu/hr, 2.321 kW, EER 15.5 at 85 / 67 degF, and 38.14, 2.543, COP 4.40 at
    // 50 / 70 degF. A peak of 36 at 3 gpm per ton makes 9 gpm.
    PumpSeries series;
    readPumpSeries(readWholeFile(VARNHOLT_SOURCE_DIR "/resources/pumps/nf_meadow.hpd"), series);
    const pump& model = series.models.at(6);
    ASSERT_EQ(model.name, "ML036");
    const MiniPump placed = evaluate(model, 1, peaks(36, 36));
    EXPECT_NEAR(placed.capacity[cooling], 36.07, 0.005);
    EXPECT_NEAR(placed.watts[cooling], 2.321, 0.0005);
    EXPECT_NEAR(placed.efficiency[cooling] * 3.412, 15.5, 0.05);
    EXPECT_NEAR(placed.capacity[heating], 38.14, 0.005);
    EXPECT_NEAR(placed.watts[heating], 2.543, 0.0005);
    EXPECT_NEAR(placed.efficiency[heating], 4.40, 0.005);
    EXPECT_EQ(placed.elf, (ByMode<double>{1200, 1200}));
}

}  // namespace
}  // namespace varnholt
