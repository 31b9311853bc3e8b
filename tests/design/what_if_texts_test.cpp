// SPDX-License-Identifier: GPL-3.0-or-later
// What If in words: frequencies, figures rounded outward, sentences and descriptions.
#include "design/what_if_texts.h"

#include <gtest/gtest.h>

#include "design/what_if_pictures.h"
#include "forms/fake_platform.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/what_if.h"
#include "forms/text_numbers/what_if_window.h"

namespace varnholt {
namespace {

class WhatIfTexts : public testing::Test {
 protected:
    WhatIfTexts() {
        texts.known.insert({{Text::lengthUnitsEnglish, "ft"},
                            {Text::lengthUnitsMetric, "m"},
                            {Text::whatIfFewerThanOne, "fewer than 1"},
                            {Text::whatIfMoreThan99, "more than 99"},
                            {Text::whatIfTestSaves, "%1 for %2 in %3: %4, %5"},
                            {Text::whatIfSampling, "%1 +- %2 %3"},
                            {Text::whatIfNotCounted, "Not counted."},
                            {Text::whatIfNotCountedBut, "Not counted; %1."},
                            {Text::whatIfOpinionMore, "opinion %1 more"},
                            {Text::whatIfClassicalLess, "classical %1 less"},
                            {Text::whatIfSpreadsBuiltIn, "Spreads not yours."},
                            {Text::whatIfPricesBuiltIn, "Prices not yours, %1."},
                            {Text::whatIfSomeSpreadsBuiltIn, "Some spreads not yours."},
                            {Text::whatIfSomePricesBuiltIn, "Some prices not yours."},
                            {Text::whatIfPricesIn, "Prices in %1."},
                            {Text::whatIfPricesOf, "Prices in %1 of %2."},
                            {Text::layoutTooDeep, "%1 by %2, %3 apart: %4 of %5"}});
    }
    WhatIf found() const {
        WhatIf what;
        what.needGoverning = 8'297;
        what.otherNeed = 9'762;
        what.bores = 30;
        what.drawnDepth = 300;
        what.confidentDepth = 342.5;
        what.testDepth = 324.9;
        what.testSaves = 528;
        what.needP90 = 10'276;
        what.needError = 12;
        what.sampleCount = 16'384;
        return what;
    }

    /// The note where the other method has no length to compare with.
    std::string noteAlone(const WhatIfInputs& inputs) const {
        WhatIf alone = found();
        alone.otherNeed = 0;
        return whatIfNote(teller, alone, inputs);
    }

    FakeTexts texts;
    WhatIfTeller teller{texts, UnitSystem::english};
};

TEST_F(WhatIfTexts, TellFrequenciesInWholeNumbersThatAreNever0Or100) {
    EXPECT_EQ(frequencyText(texts, 0.678), "68");
    EXPECT_EQ(frequencyText(texts, 0.5), "50");
    EXPECT_EQ(frequencyText(texts, 0), "fewer than 1");
    EXPECT_EQ(frequencyText(texts, 0.004), "fewer than 1");
    EXPECT_EQ(frequencyText(texts, 0.006), "1");
    EXPECT_EQ(frequencyText(texts, 0.994), "99");
    EXPECT_EQ(frequencyText(texts, 0.996), "more than 99");
    EXPECT_EQ(frequencyText(texts, 1), "more than 99");
}

TEST_F(WhatIfTexts, RoundDepthsUp) {
    EXPECT_EQ(teller.depthAtLeast(342.01), "343 ft");
    EXPECT_EQ(teller.depthAtLeast(342), "342 ft");
    EXPECT_EQ(teller.depthAtLeast(0), "-");
    // A sampling error of 12 ft bears no single feet.
    EXPECT_EQ(teller.depthAtLeast(342.01, 12), "350 ft");
}

TEST_F(WhatIfTexts, GroupDigitsAndPutTheCurrencyBefore) {
    EXPECT_EQ(groupedNumber(999), "999");
    EXPECT_EQ(groupedNumber(1'000), "1,000");
    EXPECT_EQ(groupedNumber(-1'234'567), "-1,234,567");
    EXPECT_EQ(teller.money(151'700), "$151,700");
    teller.currency = "EUR";
    EXPECT_EQ(teller.money(151'700), "EUR 151,700");
}

/// 528 ft at $14: 30 x (342.5 - 324.9) x 14 = $7,392, of which two figures count.
TEST_F(WhatIfTexts, TellWhatATestWouldSave) {
    EXPECT_EQ(testSentence(teller, found(), {}), "325 for 343 ft in 90: 528 ft, $7,400");
    WhatIf nothing = found();
    nothing.testSaves = 0;
    EXPECT_EQ(testSentence(teller, nothing, {}), "");
}

/// 10276/30 = 342.53 ft, 12/30 = 0.4 ft.
TEST_F(WhatIfTexts, TellTheErrorOfTheSamplingRoundedOutward) {
    EXPECT_EQ(samplingSentence(teller, found()), "343 +- 1 ft");
}

/// 9762/8297 = 1.1766.
TEST_F(WhatIfTexts, SayWhatIsNotInTheFigureAndWhoseFiguresTheyAre) {
    WhatIfInputs inputs;
    inputs.measure = classicalMethod;
    EXPECT_EQ(whatIfNote(teller, found(), inputs),
              "Not counted; opinion 18 more. Spreads not yours. Prices not yours, $.");
    inputs.measure = byGFunctions;
    inputs.spreads.low[coolingLoads] = 25;
    inputs.prices.costFoot = 20;
    WhatIf turned = found();
    std::swap(turned.needGoverning, turned.otherNeed);
    // 8297/9762 = 0.8499.
    EXPECT_EQ(whatIfNote(teller, turned, inputs),
              "Not counted; classical 15 less. Some spreads not yours. Prices in $. "
              "Some prices not yours.");
    inputs.pricesOf = "2027";
    turned.otherNeed = 0;
    EXPECT_EQ(whatIfNote(teller, turned, inputs),
              "Not counted. Some spreads not yours. Prices in $ of 2027. Some prices not yours.");
}

TEST_F(WhatIfTexts, CallTheSpreadsOfTheGroundsKnowledgeTheProgramsOwn) {
    WhatIfInputs inputs;
    inputs.knowledge = responseTest;
    inputs.spreads = withKnowledge({}, responseTest);
    EXPECT_EQ(noteAlone(inputs), "Not counted. Spreads not yours. Prices not yours, $.");
}

TEST_F(WhatIfTexts, CallNothingTheProgramsOwnOnceAllIsTyped) {
    WhatIfInputs inputs;
    inputs.knowledge = knownAsTyped;
    for (std::size_t j = 0; j < method; ++j) ++inputs.spreads.low[j];
    Prices& prices = inputs.prices;
    for (double* sum : {&prices.costFixed, &prices.costBore, &prices.costFoot, &prices.costDeep,
                        &prices.costTrench, &prices.costTower, &prices.costCare, &prices.costGround,
                        &prices.costPipe, &prices.costEnergy})
        ++*sum;
    EXPECT_EQ(noteAlone(inputs), "Not counted. Prices in $.");
}

TEST_F(WhatIfTexts, TellAReasonInTheUnitsShown) {
    const Reason reason{Text::layoutTooDeep,
                        {{FigureKind::count, 4},
                         {FigureKind::count, 3},
                         {FigureKind::feet, 15},
                         {FigureKind::feet, 726.8},
                         {FigureKind::feet, 400}}};
    EXPECT_EQ(teller.reason(reason), "4 by 3, 15 ft apart: 727 ft of 400 ft");
    const WhatIfTeller metric{texts, UnitSystem::metric};
    // 15 ft x 0.3048 = 4.572 m; 726.8 ft = 221.5 m; 400 ft = 121.9 m.
    EXPECT_EQ(metric.reason(reason), "4 by 3, 4.6 m apart: 222 m of 122 m");
    EXPECT_EQ(teller.reason({}), "");
}

TEST_F(WhatIfTexts, DescribeAnEmptyPictureByItsReason) {
    WhatIf none;
    none.reason = {Text::whatIfNoLoads, {}};
    const std::string reason = texts.text(Text::whatIfNoLoads);
    EXPECT_EQ(describe(tornadoPicture(teller, none), texts), reason);
    EXPECT_EQ(describe(surePicture(teller, none, {}), texts), reason);
    EXPECT_EQ(describe(costPicture(teller, none), texts), reason);
    EXPECT_EQ(describe(towerPicture(teller, none, true), texts), reason);
}

/// The need is known before all else, and what is drawn beside it comes later.
TEST_F(WhatIfTexts, SayThatFiguresAreStillBeingFoundInPlaceOfAPictureWithoutAny) {
    teller.working = true;
    const WhatIf what = found();
    const std::string working = texts.text(Text::whatIfWorking);
    EXPECT_EQ(describe(tornadoPicture(teller, what), texts), working);
    EXPECT_EQ(describe(surePicture(teller, what, {}), texts), working);
    EXPECT_EQ(describe(costPicture(teller, what), texts), working);
    EXPECT_EQ(describe(towerPicture(teller, what, true), texts), working);
    EXPECT_EQ(describe(tornadoPicture(teller, {}), texts), working);
    teller.working = false;
    EXPECT_EQ(describe(costPicture(teller, what), texts), texts.text(Text::whatIfNoNeed));
}

TEST_F(WhatIfTexts, DescribeAPictureOfNothingByNothing) {
    // A window that has gone has nothing to show, and its pictures may still be asked.
    EXPECT_EQ(describe(FieldsPicture(), texts), "");
    EXPECT_EQ(describe(TornadoPicture(), texts), "");
    EXPECT_EQ(describe(SurePicture(), texts), "");
    EXPECT_EQ(describe(TowerPicture(), texts), "");
}

/// The dots stand in the middle of their twentieths: the first at 1/40 of the cases.
TEST_F(WhatIfTexts, PutADotOnTheCurveForOneCaseInTwenty) {
    WhatIf what = found();
    for (int i = 1; i <= 40; ++i) what.needs.push_back(300.0 * i);
    const SurePicture picture = surePicture(teller, what, {});
    ASSERT_EQ(picture.dots.size(), 20U);
    EXPECT_DOUBLE_EQ(picture.dots[0].share, 0.025);
    EXPECT_DOUBLE_EQ(picture.dots[0].depth, 10);  // 300 ft over 30 bores
    EXPECT_DOUBLE_EQ(picture.dots[19].share, 0.975);
    EXPECT_DOUBLE_EQ(picture.dots[19].depth, 390);
}

}  // namespace
}  // namespace varnholt
