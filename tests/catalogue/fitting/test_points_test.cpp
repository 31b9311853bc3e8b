// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/fitting/test_points.h"

#include <gtest/gtest.h>

#include "catalogue/fitting/measured_pump.h"
#include "catalogue/sample_models.h"

namespace varnholt {
namespace {

const TestInputs place{{88.5, 41}, {6.5, 7}, {66, 71.5}, {850, 950}};

// With the digits of tests/independent/curve_fit.py.
TEST(TestPoints, HaveTheDigitsOfASecondImplementation) {
    const TestResults results = EvaluateTestPoints(fittedPump(), place);
    EXPECT_EQ(results.capacity, (ByMode<double>{27.338762082420573, 22.512888530465023}));
    EXPECT_EQ(results.power, (ByMode<double>{1.9543540981866783, 1.765586531962346}));
    EXPECT_EQ(results.COP, (ByMode<double>{4.100071309386676, 3.737300613040711}));
}

TEST(TestPoints, AtARatingPointGiveTheMeasuredValues) {
    pump model = fittedPump();
    // 67 and 70 degF and nominal flow have factors of 1 but for the fit; 5 gpm is the first flow.
    const TestResults results = EvaluateTestPoints(model, {{85, 50}, {5, 5}, {67, 70}, {900, 900}});
    EXPECT_NEAR(results.capacity[cooling], 28.4, 0.01);
    EXPECT_NEAR(results.power[heating], 1.8, 0.01);
}

TEST(TestPoints, LieOnAStraightLineThroughBothSourceFlowsWithoutLimit) {
    pump model = plainModel("Plain", 24, 30);  // 6 and 9 gpm
    model.flowCf[0][cooling] = 1.1;
    const auto capacity = [&](double flow) {
        return EvaluateTestPoints(model, {{85, 50}, {flow, flow}, {67, 70}, {}}).capacity[cooling];
    };
    EXPECT_DOUBLE_EQ(capacity(6), 24);
    EXPECT_DOUBLE_EQ(capacity(9), 26.4);
    EXPECT_DOUBLE_EQ(capacity(15), 31.2);  // 24 + 9 x 0.8
    EXPECT_DOUBLE_EQ(capacity(0), 19.2);   // 24 - 6 x 0.8
}

TEST(TestPoints, TakeTheFlowPairOfTheFourthRowInBothModes) {
    pump model = plainModel("Plain", 24, 30);
    model.flowCf[0] = {1.1, 1.2};
    model.ewt[0].flowRate[0].flowRate = 100;
    const TestResults results = EvaluateTestPoints(model, {{85, 50}, {9, 9}, {67, 70}, {}});
    EXPECT_DOUBLE_EQ(results.capacity[heating], 36);
}

TEST(TestPoints, WithoutAFirstFlowLeaveTheSourceFlowOut) {
    pump model = plainModel("Plain", 24, 30);
    model.flowCf[0] = {1.1, 1.1};
    model.ewt[3].flowRate[0].flowRate = 0;
    EXPECT_DOUBLE_EQ(EvaluateTestPoints(model, {{85, 50}, {9, 9}, {}, {}}).capacity[cooling], 24);
}

TEST(TestPoints, WithEqualSourceFlowsAreADivisionByZero) {
    pump model = plainModel("Plain", 24, 30);
    model.ewt[3].flowRate[1].flowRate = 6;
    EXPECT_EQ(errorOf([&] { EvaluateTestPoints(model, place); }), 11);
    // Also where the factor is 1 and the line would be level.
    EXPECT_EQ(model.flowCf[0][cooling], 1);
}

TEST(TestPoints, CorrectByLoadFlowOnlyWithANominalFlowAndAFlow) {
    pump model = plainModel("Plain", 24, 30);
    model.coefficients.capacityFlowCorrection = {{{0, 0}, {0.01, 0.01}}};  // percent over 100
    const auto capacity = [&](double loadFlow) {
        return EvaluateTestPoints(model, {{85, 50}, {6, 6}, {67, 70}, {loadFlow, loadFlow}})
            .capacity[cooling];
    };
    EXPECT_DOUBLE_EQ(capacity(800), 24);
    model.nominalFlow = 1000;
    EXPECT_DOUBLE_EQ(capacity(800), 19.2);
    EXPECT_DOUBLE_EQ(capacity(0), 24);
}

TEST(TestPoints, HaveNoCopWithoutPower) {
    pump model = plainModel("Plain", 24, 30);
    model.coefficients.watts[0] = {0, 2};
    const TestResults results = EvaluateTestPoints(model, {{85, 50}, {6, 6}, {67, 70}, {}});
    EXPECT_EQ(results.COP[cooling], 0);
    EXPECT_DOUBLE_EQ(results.COP[heating], 0.2931 * 30 / 2);
}

TEST(TestPoints, OverflowAsAnError) {
    pump model = plainModel("Plain", 1e300, 30);
    model.coefficients.capacityCorrection[0] = {1e300, 1};
    EXPECT_EQ(errorOf([&] { EvaluateTestPoints(model, place); }), 6);
}

TEST(TestPoints, BeginAtTheUsualLoadTemperaturesOfTheType) {
    EXPECT_EQ(firstLoadTemperatures(0), (ByMode<double>{67, 70}));
    EXPECT_EQ(firstLoadTemperatures(1), (ByMode<double>{55, 100}));
    EXPECT_EQ(TestInputs{}.sourceTemperature, (ByMode<double>{55, 55}));
    EXPECT_EQ(TestInputs{}.sourceFlow, (ByMode<double>{0, 0}));
}

}  // namespace
}  // namespace varnholt
