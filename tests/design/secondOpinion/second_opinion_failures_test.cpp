// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "design/secondOpinion/opinion_cases.h"

namespace varnholt {
namespace {

/// Nothing is told for a depth.
void expectNothingShown(const SecondOpinion& opinion) {
    EXPECT_EQ(opinion.shownDepth, 0);
    EXPECT_EQ(opinion.groupCount, 0u);
    EXPECT_TRUE(opinion.water.empty());
    EXPECT_TRUE(opinion.gFunction.g.empty());
    for (const double g : opinion.gValue) EXPECT_EQ(g, 0);
    for (const OpinionYearLine& line : opinion.years) EXPECT_EQ(line, OpinionYearLine{});
}

void expectNoLength(const SecondOpinion& opinion, Mode mode) {
    EXPECT_FALSE(opinion.hasLength(mode));
    EXPECT_EQ(opinion.soLength[mode], 0);
    EXPECT_EQ(opinion.soDepth[mode], 0);
    EXPECT_EQ(opinion.soMonth[mode], 0);
    EXPECT_FALSE(opinion.lengthPart[mode]);
    EXPECT_FALSE(opinion.difference(mode));
}

struct SiteFailure {
    OpinionFailure failure;
    std::function<void(SecondOpinionCase&)> change;
};

TEST(OpinionFailures, OfTheSiteConcernBothModes) {
    using F = OpinionFailure;
    const double infinity = std::numeric_limits<double>::infinity();
    const std::vector<SiteFailure> failures{
        {F::noLoads, [](auto& c) { c.design.loads.zones = {}; }},
        {F::noLoads,
         [](auto& c) {
             c.design.loads.zones = {zoneWithoutPower({0, 0}, {9, 9})};
         }},
        {F::noConductivity, [](auto& c) { c.design.soil.conductivity = 0; }},
        {F::noDiffusivity, [](auto& c) { c.design.soil.diffusivity = 0; }},
        {F::noBoreDiameter, [](auto& c) { c.design.bore.boreDiameter = 0; }},
        {F::noRows,
         [](auto& c) {
             c.design.arrangement.patternRows = {0, 4};
         }},
        {F::noRows,
         [](auto& c) {
             c.design.arrangement.patternRows = {4, 0.5};
         }},
        {F::noPredictionTime, [](auto& c) { c.design.arrangement.predictionTime = 0; }},
        {F::boresTooClose, [](auto& c) { c.design.arrangement.boreSeparation = 5.0 / 12; }},
        {F::boresTooClose, [](auto& c) { c.design.arrangement.boreSeparation = 0; }},
        {F::tooManyBores,
         [](auto& c) {
             c.design.arrangement.patternRows = {61, 41};
         }},
        {F::tooManyBores,
         [](auto& c) {
             c.design.arrangement.patternRows = {1e300, 1e300};
         }},
        {F::notComputable, [=](auto& c) { c.design.soil.groundTemp = infinity; }},
        {F::notComputable, [=](auto& c) { c.design.soil.conductivity = infinity; }},
        {F::notComputable, [](auto& c) { c.design.bore.boreResistance = std::nan(""); }},
        {F::notComputable, [](auto& c) { c.design.arrangement.predictionTime = 1e7; }},
        {F::notComputable, [](auto& c) { c.window.buriedDepth = -1; }},
        // The heat of so much water overflows.
        {F::notComputable,
         [](auto& c) {
             c.design.loads.fluid = {std::numeric_limits<double>::denorm_min(), 1e-300};
         }},
    };
    for (std::size_t i = 0; i < failures.size(); ++i) {
        SCOPED_TRACE(i);
        SecondOpinionCase theCase = sampleCase();
        failures[i].change(theCase);
        const SecondOpinion opinion = opinionOn(theCase);
        EXPECT_EQ(opinion.reason.failure, failures[i].failure);
        for (Mode mode : modes) expectNoLength(opinion, mode);
        expectNothingShown(opinion);
        EXPECT_FALSE(opinion.governing());
    }
}

TEST(OpinionFailures, LeaveFieldsThatAreJustPossible) {
    SecondOpinionCase theCase = sampleCase();
    theCase.design.arrangement.patternRows = {1, 1};
    theCase.design.arrangement.boreSeparation = 0;
    EXPECT_FALSE(opinionOn(theCase).reason.holds()) << "one bore keeps no distance";
    theCase.design.arrangement.patternRows = {6.9, 4.2};
    theCase.design.arrangement.boreSeparation = 20;
    SecondOpinionCase whole = sampleCase();
    EXPECT_EQ(opinionOn(theCase).soLength, opinionOn(whole).soLength) << "bores are whole";
}

TEST(OpinionFailures, OfAModeWithoutLoadLeaveTheOther) {
    for (Mode mode : modes) {
        const Mode other = mode == cooling ? heating : cooling;
        SecondOpinionCase theCase = sampleCase();
        ByMode<double> peak{};
        peak[mode] = 100;
        theCase.design.loads.zones = std::vector<Zone>{zoneWithoutPower(peak, {900, 900})};
        const SecondOpinion opinion = opinionOn(theCase);
        EXPECT_EQ(opinion.reasonOfMode[other].failure, OpinionFailure::noLoadOfMode);
        expectNoLength(opinion, other);
        EXPECT_GT(opinion.soLength[mode], 0);
        EXPECT_EQ(opinion.governing(), mode);
        // The classical run ends in a division by zero there, so nothing can be compared.
        EXPECT_EQ(opinion.classicalLength, (ByMode<double>{}));
        EXPECT_FALSE(opinion.lengthPart[mode]);
        EXPECT_FALSE(opinion.difference(mode));
        // The year's table has what the mode has.
        EXPECT_EQ(opinion.years[0].high.has_value(), mode == cooling);
        EXPECT_EQ(opinion.years[0].low.has_value(), mode == heating);
        EXPECT_FALSE(opinion.reasonOfShown.holds());
        theCase.window.depthChoice = depthOfDesign;
        const SecondOpinion ofDesign = opinionOn(theCase);
        EXPECT_EQ(ofDesign.reasonOfShown.failure, OpinionFailure::noDesignLength);
        EXPECT_EQ(ofDesign.soLength, opinion.soLength);
        expectNothingShown(ofDesign);
    }
}

TEST(OpinionFailures, OfTypedPeaksThatAreAllZeroAreThoseOfAModeWithoutLoad) {
    SecondOpinionCase theCase = sampleCase();
    theCase.window.shape = typedYear;
    for (auto& month : theCase.window.monthEnergy) month = {1, 1};
    for (auto& month : theCase.window.monthTop) month = {0, 1};
    const SecondOpinion opinion = opinionOn(theCase);
    EXPECT_EQ(opinion.reasonOfMode[cooling].failure, OpinionFailure::noLoadOfMode);
    EXPECT_TRUE(opinion.hasLength(heating));
}

TEST(OpinionFailures, OfALimitOnTheWrongSideOfTheGroundLeaveTheOtherMode) {
    SecondOpinionCase theCase = sampleCase();
    theCase.design.loads.inletTemp[cooling] = 50;
    SecondOpinion opinion = opinionOn(theCase);
    EXPECT_EQ(opinion.reasonOfMode[cooling].failure, OpinionFailure::limitNotAboveGround);
    expectNoLength(opinion, cooling);
    EXPECT_TRUE(opinion.hasLength(heating));
    theCase.design.loads.inletTemp = {85, 80};
    opinion = opinionOn(theCase);
    EXPECT_EQ(opinion.reasonOfMode[heating].failure, OpinionFailure::limitNotBelowGround);
    EXPECT_TRUE(opinion.hasLength(cooling));
    // Exactly the ground's temperature is no limit either.
    theCase.design.loads.flowRate = 0;
    theCase.design.loads.inletTemp = {62, 62};
    opinion = opinionOn(theCase);
    EXPECT_EQ(opinion.reasonOfMode[cooling].failure, OpinionFailure::limitNotAboveGround);
    EXPECT_EQ(opinion.reasonOfMode[heating].failure, OpinionFailure::limitNotBelowGround);
    EXPECT_EQ(opinion.reasonOfShown.failure, OpinionFailure::limitNotAboveGround);
    expectNothingShown(opinion);
    // At a typed depth the fluid has a temperature all the same.
    theCase.window.depthChoice = depthAsTyped;
    opinion = opinionOn(theCase);
    EXPECT_FALSE(opinion.reasonOfShown.holds());
    EXPECT_GT(*opinion.years[0].high, 62);
}

TEST(OpinionFailures, OfADepthThatIsNotEnoughTellTheWater) {
    SecondOpinionCase theCase = sampleCase();
    theCase.design.arrangement.patternRows = {1, 1};
    theCase.design.loads.inletTemp = {66, 58};
    theCase.design.loads.flowRate = 30;
    const SecondOpinion opinion = opinionOn(theCase);
    for (Mode mode : modes)
        EXPECT_EQ(opinion.reasonOfMode[mode].failure, OpinionFailure::noDepthHoldsLimit);
    EXPECT_GT(opinion.reasonOfMode[cooling].waterAtGreatest, 66);
    EXPECT_LT(opinion.reasonOfMode[heating].waterAtGreatest, 58);
    // At that depth the prediction time's worst water is the one told.
    theCase.window.depthChoice = depthAsTyped;
    theCase.window.typedDepth = 2000;
    const SecondOpinion shown = opinionOn(theCase);
    double worst = 0;
    for (std::size_t n = 0; n < 120; ++n)
        worst = std::max(worst, shown.water[n].entering[cooling].value_or(0));
    EXPECT_NEAR(opinion.reasonOfMode[cooling].waterAtGreatest, worst, 1e-6);
}

TEST(OpinionFailures, OfATypedDepthOfNothingShowNothing) {
    SecondOpinionCase theCase = sampleCase();
    theCase.window.depthChoice = depthAsTyped;
    theCase.window.typedDepth = 0;
    const SecondOpinion opinion = opinionOn(theCase);
    EXPECT_EQ(opinion.reasonOfShown.failure, OpinionFailure::noShownDepth);
    EXPECT_TRUE(opinion.hasLength(cooling));
    expectNothingShown(opinion);
    // Half-typed depths have the g-function of ten feet.
    theCase.window.typedDepth = 2;
    const SecondOpinion two = opinionOn(theCase);
    EXPECT_EQ(two.shownDepth, 2);
    theCase.window.typedDepth = 10;
    EXPECT_EQ(opinionOn(theCase).gValue, two.gValue);
}

TEST(OpinionFailures, OfAPulseThatIsNoneTakeTheDesigns) {
    SecondOpinionCase theCase = sampleCase();
    for (const double hours : {0.0, -3.0, 0.5, 25.0, std::nan("")}) {
        theCase.window.pulseHours = hours;
        EXPECT_EQ(opinionOn(theCase).pulseHours, 12) << hours;
    }
}

TEST(OpinionLength, OfAModeThatTheOtherServesIsNothing) {
    // All of the year's heat is taken out, so that the little cooling finds ground that is cold.
    SecondOpinionCase theCase = sampleCase();
    theCase.design.loads.zones = std::vector<Zone>{zoneWithoutPower({0.5, 100}, {1, 4000})};
    theCase.design.bore.boreResistance = 0;
    theCase.window.shape = typedYear;
    theCase.window.monthEnergy =
        monthsOf({0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0}, {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1});
    theCase.window.monthTop = theCase.window.monthEnergy;
    const SecondOpinion opinion = opinionOn(theCase);
    EXPECT_TRUE(opinion.hasLength(cooling));
    EXPECT_EQ(opinion.soLength[cooling], 0);
    EXPECT_EQ(opinion.governing(), heating);
}

}  // namespace
}  // namespace varnholt
