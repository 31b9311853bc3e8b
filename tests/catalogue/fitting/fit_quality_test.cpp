// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/fitting/fit_quality.h"

#include <gtest/gtest.h>

#include <cmath>

#include "catalogue/fitting/measured_pump.h"
#include "catalogue/sample_models.h"

namespace varnholt {
namespace {

FitPoints pointsAt(std::initializer_list<std::pair<double, double>> given) {
    FitPoints points;
    for (const auto& [x, y] : given) {
        points.x[points.count] = x;
        points.y[points.count++] = y;
    }
    return points;
}

TEST(FitDeviation, IsTheGreatestInPercentOfThePoint) {
    const Polynomial curve{{{10, 0}, {1, 0}}};  // 10 + x
    const auto found = greatestDeviation(curve, cooling, pointsAt({{0, 10}, {10, 19}, {20, 30.3}}));
    ASSERT_TRUE(found);
    EXPECT_DOUBLE_EQ(found->percent, 100.0 / 19);  // 20 for 19
    EXPECT_EQ(found->x, 10);
}

TEST(FitDeviation, PassesOverPointsWithoutAValue) {
    EXPECT_FALSE(greatestDeviation({}, cooling, pointsAt({{0, 0}, {10, 0}})));
    EXPECT_FALSE(greatestDeviation({}, cooling, {}));
}

TEST(FitDeviation, OfFourRowsIsNoMoreThanRounding) {
    pump model = measuredPump();
    model.eat[4].capacityCorrection[cooling] = 0;
    fitCorrections(model, byTemperature, [](FitFault) {});
    const FitPoints rows = usedRows(model, byTemperature, cooling, fittedCapacity);
    EXPECT_EQ(rows.count, 4u);
    EXPECT_LT(greatestDeviation(model.coefficients.capacityCorrection, cooling, rows)->percent,
              1e-7);
}

// 1 - (x - 60)^2 / 100 has its top at 60.
TEST(TurningPoint, IsFoundInsideTheRangeOfThePoints) {
    const Polynomial hump{{{1 - 36.0, 0}, {1.2, 0}, {-0.01, 0}}};
    const auto turn = turningPoint(hump, cooling, pointsAt({{50, 1}, {60, 1}, {80, 1}}));
    ASSERT_TRUE(turn);
    EXPECT_NEAR(*turn, 60, 1e-9);
    EXPECT_FALSE(turningPoint(hump, cooling, pointsAt({{60, 1}, {70, 1}, {80, 1}})));
    EXPECT_FALSE(turningPoint(hump, cooling, pointsAt({{62, 1}, {70, 1}, {80, 1}})));
}

// x^3 - 3 x turns at -1 and at 1.
TEST(TurningPoint, OfACubicIsTheFirstOfTwo) {
    const Polynomial cubicCurve{{{0, 0}, {-3, 0}, {0, 0}, {1, 0}}};
    EXPECT_NEAR(*turningPoint(cubicCurve, cooling, pointsAt({{-3, 1}, {3, 1}})), -1, 1e-9);
    EXPECT_NEAR(*turningPoint(cubicCurve, cooling, pointsAt({{0, 1}, {3, 1}})), 1, 1e-9);
    EXPECT_FALSE(turningPoint(cubicCurve, cooling, pointsAt({{1.5, 1}, {3, 1}})));
}

TEST(TurningPoint, OfWhatRoundingMakesOfALevelLineIsNone) {
    const Polynomial level{{{1, 0}, {-2e-12, 0}, {1e-14, 0}}};
    EXPECT_FALSE(turningPoint(level, cooling, pointsAt({{60, 1}, {160, 1}})));
    EXPECT_FALSE(turningPoint({{{1, 0}}}, cooling, pointsAt({{60, 1}, {160, 1}})));
}

TEST(StaleCurves, AreNoneAfterAFit) { EXPECT_EQ(staleCurves(fittedPump()), StaleCurves{}); }

TEST(StaleCurves, AreThoseWhoseDataHaveChanged) {
    pump model = fittedPump();
    model.ewt[4].flowRate[0].HeatMode[cooling].capacity = 28.5;
    StaleCurves expected;
    expected.rating[cooling] = true;
    EXPECT_EQ(staleCurves(model), expected);
    model = fittedPump();
    model.eat[2].wattsCorrection[heating] = 1.001;
    expected = {};
    expected.correction[byTemperature] = true;
    EXPECT_EQ(staleCurves(model), expected);
    model = fittedPump();
    model.elf[0].capacityCorrection[cooling] = 0.94;
    expected = {};
    expected.correction[byFlow] = true;
    EXPECT_EQ(staleCurves(model), expected);
    EXPECT_TRUE(staleCurves(model).any());
}

TEST(StaleCurves, AreThoseWhoseFlowFactorsAreOlderThanTheSecondFlow) {
    pump model = fittedPump();
    model.ewt[4].flowRate[1].HeatMode[cooling].capacity = 29.4;
    StaleCurves expected;
    expected.rating[cooling] = true;
    EXPECT_EQ(staleCurves(model), expected);
    EXPECT_FALSE(isRatingStale(model, cooling, fittedCapacity));
    EXPECT_TRUE(isFlowFactorStale(model, cooling, fittedCapacity));
    EXPECT_FALSE(isFlowFactorStale(model, cooling, fittedPower));
    // Without a value at one of the points the factor is 1.
    model = fittedPump();
    model.ewt[1].flowRate[1].HeatMode[heating].watts = 0;
    EXPECT_TRUE(isFlowFactorStale(model, heating, fittedPower));
    model.flowCf[fittedPower][heating] = 1;
    EXPECT_FALSE(staleCurves(model).any());
}

TEST(StaleCurves, OfFlowFactorsThatNothingReadsAreNone) {
    pump model = fittedPump();
    model.flowCf = {};
    EXPECT_TRUE(staleCurves(model).any());
    for (ewt& row : model.ewt) row.flowRate[0].flowRate = 0;
    EXPECT_FALSE(staleCurves(model).any());
}

TEST(StaleCurves, OfDataThatCannotBeFittedAreNone) {
    pump model = fittedPump();
    for (std::size_t i = 3; i < 6; ++i) model.ewt[i].temperature = 50;
    model.ewt[0].flowRate[0].HeatMode[heating] = {};
    for (std::size_t i = 0; i < 3; ++i) model.ewt[i].temperature = 50;
    model.eat[1].capacityCorrection = {0, 0};
    model.eat[1].wattsCorrection = {0, 0};
    EXPECT_FALSE(staleCurves(model).any());
}

// Files of version 1.0 have a flow correction of power that is zero throughout; with a nominal flow
// of 0 nothing reads it.
TEST(StaleCurves, OfCorrectionsThatNothingReadsAreNone) {
    pump model = fittedPump();
    model.coefficients.wattsFlowCorrection = {};
    EXPECT_TRUE(staleCurves(model).correction[byFlow]);
    model.nominalFlow = 0;
    EXPECT_FALSE(staleCurves(model).any());
}

// 0.2931 x 24 / 2 = 3.5172.
TEST(MeasuredCop, IsThatOfThePoint) {
    EXPECT_DOUBLE_EQ(*coefficientOfPerformance({2, 24}), 3.5172);
    EXPECT_FALSE(coefficientOfPerformance({0, 24}));
    EXPECT_FALSE(coefficientOfPerformance({2, 0}));
}

TEST(MeasuredCop, IsLikelyFromOneToTwelve) {
    EXPECT_TRUE(isLikely(1));
    EXPECT_TRUE(isLikely(12));
    EXPECT_FALSE(isLikely(0.99));
    EXPECT_FALSE(isLikely(12.01));
}

}  // namespace
}  // namespace varnholt
