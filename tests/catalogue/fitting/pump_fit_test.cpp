// SPDX-License-Identifier: GPL-3.0-or-later
// Figures with all their digits are those of tests/independent/curve_fit.py.
#include "catalogue/fitting/pump_fit.h"

#include <gtest/gtest.h>

#include <vector>

#include "catalogue/fitting/measured_pump.h"
#include "catalogue/sample_models.h"

namespace varnholt {
namespace {

TEST(RatingFit, TakesThePointsOfItsModeAtTheFirstFlow) {
    pump model = measuredPump();
    fitRating(model, cooling);
    const coefficients& curves = model.coefficients;
    EXPECT_EQ(curves.capacity[0][cooling], 26.912500000124552);
    EXPECT_EQ(curves.capacity[1][cooling], 0.22999999999704773);
    EXPECT_EQ(curves.capacity[2][cooling], -0.0024999999999826667);
    EXPECT_EQ(curves.watts[0][cooling], 1.6537500000075236);
    EXPECT_EQ(curves.watts[1][cooling], -0.018000000000178606);
    EXPECT_EQ(curves.watts[2][cooling], 0.0002500000000010502);
    for (std::size_t k = 0; k < 3; ++k) EXPECT_EQ(curves.capacity[k][heating], 0);
    fitRating(model, heating);
    EXPECT_EQ(curves.capacity[0][heating], 7.9000000000001345);
    EXPECT_EQ(curves.capacity[1][heating], 0.3399999999999953);
    EXPECT_EQ(curves.capacity[2][heating], 3.862871222187765e-17);
    EXPECT_EQ(curves.watts[0][heating], 1.391666666666687);
    EXPECT_EQ(curves.watts[1][heating], 0.006499999999999209);
    EXPECT_EQ(curves.watts[2][heating], 3.3333333333340484e-05);
}

TEST(RatingFit, LeavesCorrectionsAndTheFourthTermAlone) {
    pump model = measuredPump();
    model.coefficients.capacity[3] = {7, 8};
    model.coefficients.capacityCorrection[0] = {9, 9};
    fitRating(model, cooling);
    EXPECT_EQ(model.coefficients.capacity[3], (ByMode<double>{7, 8}));
    EXPECT_EQ(model.coefficients.capacityCorrection[0], (ByMode<double>{9, 9}));
}

TEST(RatingFit, OfEqualTemperaturesLeavesTheModelAsItWas) {
    pump model = measuredPump();
    for (std::size_t i = 3; i < 6; ++i) model.ewt[i].temperature = 50;
    const pump before = model;
    EXPECT_EQ(errorOf([&] { fitRating(model, cooling); }), 9);
    EXPECT_EQ(model, before);
    EXPECT_EQ(errorOf([&] { fitRating(model, heating); }), 0);
}

TEST(FlowFactor, IsTheMeanOfThreeRatios) {
    pump model = measuredPump();
    ComputeCoolingFlowFactors(model);
    ComputeHeatingFlowFactors(model);
    // 31/30.1 + 29.3/28.4 + 27.1/26.2 over 3, and so on.
    EXPECT_EQ(model.flowCf[fittedCapacity][cooling], 1.0319805393697175);
    EXPECT_EQ(model.flowCf[fittedPower][cooling], 0.9485183165166803);
    EXPECT_EQ(model.flowCf[fittedCapacity][heating], 1.0360314533474047);
    EXPECT_EQ(model.flowCf[fittedPower][heating], 1.0162051189833963);
}

TEST(FlowFactor, IsOneUnlessAllThreePointsHaveTheSecondFlow) {
    for (std::size_t i = 3; i < 6; ++i) {
        pump model = measuredPump();
        model.ewt[i].flowRate[1].HeatMode[cooling].capacity = 0;
        EXPECT_EQ(flowFactor(model, cooling, fittedCapacity), 1);
        // Power is judged by itself.
        EXPECT_EQ(flowFactor(model, cooling, fittedPower), 0.9485183165166803);
    }
}

TEST(FlowFactor, OfAZeroAtTheFirstFlowIsADivisionByZero) {
    pump model = measuredPump();
    model.ewt[4].flowRate[0].HeatMode[cooling].capacity = 0;
    const pump before = model;
    EXPECT_EQ(errorOf([&] { flowFactor(model, cooling, fittedCapacity); }), 11);
    EXPECT_EQ(errorOf([&] { fitRating(model, cooling); }), 11);
    EXPECT_EQ(model, before);
}

/// The faults that are told while the corrections are fitted, and whether all were.
struct Told {
    std::vector<FitFault> faults;
    bool all;
};

Told fitted(pump& model, CorrectionKind kind) {
    Told told;
    told.all = fitCorrections(model, kind, [&](FitFault fault) { told.faults.push_back(fault); });
    return told;
}

TEST(CorrectionFit, FitsFourCubicsOfOneKind) {
    pump model = measuredPump();
    EXPECT_TRUE(fitted(model, byTemperature).all);
    const coefficients& curves = model.coefficients;
    EXPECT_EQ(curves.capacityCorrection[0],
              (ByMode<double>{-4.49059407929948, 1.5951714289091068}));
    EXPECT_EQ(curves.capacityCorrection[3],
              (ByMode<double>{1.5432099018941498e-05, -1.333333334329914e-06}));
    EXPECT_EQ(curves.wattsCorrection[1],
              (ByMode<double>{0.08015344102237461, 0.06229999999856033}));
    EXPECT_EQ(curves.wattsCorrection[2],
              (ByMode<double>{-0.0012089947369455193, -0.000805714285692326}));
    EXPECT_EQ(curves.capacityFlowCorrection[0], (ByMode<double>{0, 0}));
    EXPECT_TRUE(fitted(model, byFlow).all);
    EXPECT_EQ(curves.capacityFlowCorrection[0],
              (ByMode<double>{0.7099999998822306, 0.7099999998822306}));
    EXPECT_EQ(curves.wattsFlowCorrection[3],
              (ByMode<double>{-1.6666666649775603e-07, -1.6666666649775603e-07}));
}

TEST(CorrectionFit, OfFourRowsGoesThroughThem) {
    pump model = measuredPump();
    model.eat[4].capacityCorrection[cooling] = 0;
    EXPECT_TRUE(fitted(model, byTemperature).all);
    EXPECT_EQ(model.coefficients.capacityCorrection[0][cooling], -1.9248399890515617);
    EXPECT_EQ(model.coefficients.capacityCorrection[3][cooling], 6.172841232000291e-06);
    for (std::size_t r = 0; r < 4; ++r)
        EXPECT_NEAR(cubic(model.coefficients.capacityCorrection, cooling,
                          model.eat[r].temperature[cooling]),
                    model.eat[r].capacityCorrection[cooling], 1e-9);
}

TEST(CorrectionFit, OfANegativeFifthFactorTakesFourWithoutAWord) {
    pump model = measuredPump();
    model.eat[4].wattsCorrection[heating] = -1;
    const Told told = fitted(model, byTemperature);
    EXPECT_TRUE(told.all);
    EXPECT_TRUE(told.faults.empty());
}

TEST(CorrectionFit, OfThreeRowsKeepsItsTermsWithoutAWord) {
    pump model = measuredPump();
    model.eat[3].capacityCorrection[cooling] = 0;
    model.coefficients.capacityCorrection[0][cooling] = 42;
    const Told told = fitted(model, byTemperature);
    EXPECT_FALSE(told.all);
    EXPECT_TRUE(told.faults.empty());
    EXPECT_EQ(model.coefficients.capacityCorrection[0][cooling], 42);
    // The other three stand by themselves.
    EXPECT_EQ(model.coefficients.capacityCorrection[0][heating], 1.5951714289091068);
    EXPECT_EQ(model.coefficients.wattsCorrection[0][cooling], -0.799836373129869);
}

TEST(CorrectionFit, TellsAFaultOnceForAllFourTables) {
    pump model = measuredPump();
    for (const Mode mode : modes) {
        model.eat[1].capacityCorrection[mode] = 0;
        model.eat[1].wattsCorrection[mode] = 0;
    }
    const Told told = fitted(model, byTemperature);
    EXPECT_FALSE(told.all);
    EXPECT_EQ(told.faults, std::vector<FitFault>{FitFault::badRow});
}

TEST(CorrectionFit, TellsTheFirstOfTwoKindsOfFaults) {
    pump model = measuredPump();
    model.eat[0].temperature[cooling] = 0.3;
    model.eat[0].capacityCorrection[cooling] = 0;
    model.eat[2].wattsCorrection[heating] = -1;
    EXPECT_EQ(fitted(model, byTemperature).faults, std::vector<FitFault>{FitFault::noPlace});
}

TEST(CorrectionFit, OfEqualPlacesLeavesTheModelAsItWas) {
    pump model = measuredPump();
    for (elf& row : model.elf) row.percent[heating] = 100;
    const pump before = model;
    EXPECT_EQ(errorOf([&] { fitted(model, byFlow); }), 9);
    EXPECT_EQ(model, before);
}

}  // namespace
}  // namespace varnholt
