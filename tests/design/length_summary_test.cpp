// SPDX-License-Identifier: GPL-3.0-or-later
// What a design comes to. The runs are those of docs/hand-check.md and of the second routes of the
// other kinds.
#include "design/length_summary.h"

#include "borehole_window.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/lengths.h"
#include "horizontal_window.h"
#include "surface_water_window.h"

namespace varnholt {
namespace {

using State = LengthSummary::State;

const std::map<int, std::string>& words() {
    static const std::map<int, std::string> known{
        {Text::lengthUnitsEnglish, "ft"},
        {Text::lengthUnitsMetric, "m"},
        {Text::coolingGovernsBores, "Cooling governs: %1 a bore, %2"},
        {Text::heatingGovernsBores, "Heating governs: %1 a bore, %2"},
        {Text::heatingGovernsTrenches, "Heating governs: %1 a trench, %2"},
        {Text::coolingGovernsLoops, "Cooling governs: %1 of pipe, %2"},
        {Text::heatingWouldNeed, "%1; heating would need %2."},
        {Text::coolingWouldNeed, "%1; cooling would need %2."},
        {Text::governsAlone, "%1."},
        {Text::manyBores, "%1 bores"},
        {Text::oneBore, "1 bore"},
        {Text::manyTrenches, "%1 trenches"},
        {Text::manyLoops, "%1 loops"},
        {Text::longTermPart, "Long-term heat"},
        {Text::penaltyPart, "Temperature penalty"}};
    return known;
}

/// The parts of a mode together, ft.
double sumOfParts(const LengthSummary& lengths, Mode mode) {
    double sum = 0;
    for (const LengthSegment& part : lengths.parts) sum += part.feet[mode];
    return sum;
}

class BoreholeLengthSummary : public BoreholeWindow {
 protected:
    BoreholeLengthSummary() { texts.known.insert(words().begin(), words().end()); }
    void enterHandCheck() {
        takeZones(handCheckZones());
        typeAndLeave("PAPatternRowsText(0)", "3");
        typeAndLeave("PAPatternRowsText(1)", "2");
        typeAndLeave("EKWPumpPowerText(1)", "2");
        typeAndLeave("EKWPumpPowerText(2)", "0.5");
    }
};

TEST_F(BoreholeLengthSummary, AreNoneBeforeARun) {
    const LengthSummary lengths = design->lengthSummary();
    EXPECT_EQ(lengths.state, State::none);
    EXPECT_FALSE(lengths.found());
    EXPECT_TRUE(lengths.parts.empty());
    EXPECT_EQ(lengths.sentence, "");
}

TEST_F(BoreholeLengthSummary, SayWhatGoverns) {
    enterHandCheck();
    calculate();
    const LengthSummary lengths = design->lengthSummary();
    EXPECT_EQ(lengths.state, State::fresh);
    EXPECT_EQ(lengths.governing, cooling);
    EXPECT_EQ(lengths.length, (ByMode<std::string>{"1910.5 ft", "1010.0 ft"}));
    EXPECT_EQ(lengths.each, (ByMode<std::string>{"318.4 ft", "168.3 ft"}));
    EXPECT_EQ(lengths.sentence,
              "Cooling governs: 318 ft a bore, 6 bores; heating would need 168 ft.");
    inMetric();
    // 1910.475 ft * 0.3048 = 582.3 m, 97.05 m in each of six bores; 168.334 ft = 51.3 m
    EXPECT_EQ(design->lengthSummary().length[cooling], "582.3 m");
    EXPECT_EQ(design->lengthSummary().sentence,
              "Cooling governs: 97 m a bore, 6 bores; heating would need 51 m.");
}

TEST_F(BoreholeLengthSummary, SayOneBore) {
    enterHandCheck();
    typeAndLeave("PAPatternRowsText(0)", "1");
    typeAndLeave("PAPatternRowsText(1)", "1");
    calculate();
    const std::string sentence = design->lengthSummary().sentence;
    EXPECT_NE(sentence.find(" ft a bore, 1 bore; heating"), std::string::npos) << sentence;
}

TEST_F(BoreholeLengthSummary, ComeFromTheTermsOfTheRun) {
    enterHandCheck();
    calculate();
    const std::vector<LengthSegment> parts = design->lengthSummary().parts;
    ASSERT_EQ(parts.size(), 5U);
    EXPECT_EQ(parts.front().name, "Long-term heat");
    EXPECT_EQ(parts.back().name, "Temperature penalty");
    // Over 62 - 89.96304 = -27.96304 degF, with 94.40584 MBtu/hr at the peak:
    EXPECT_NEAR(parts[0].feet[cooling], 96.70604, 1e-3);   // 9474.228*0.2854264
    EXPECT_NEAR(parts[1].feet[cooling], 381.71819, 1e-3);  // 94405.84*0.4786967*0.2361935
    EXPECT_NEAR(parts[2].feet[cooling], 685.49608, 1e-3);  // 94405.84*0.1990629*1.02
    EXPECT_NEAR(parts[3].feet[cooling], 661.71434, 1e-3);  // 94405.84*0.196
    // 51050.29/27.96304 = 1825.63465; 1910.475 less that
    EXPECT_NEAR(parts[4].feet[cooling], 84.84035, 1e-2);
    // The heat of the summers relieves heating: 17537.17/15.01612 = 1167.89 ft become 1010.
    EXPECT_LT(parts[0].feet[heating], 0);
    EXPECT_NEAR(parts[4].feet[heating], 1010.005 - 1167.890, 1e-2);
    for (const Mode mode : modes)
        EXPECT_NEAR(sumOfParts(design->lengthSummary(), mode), design->GetL(mode), 1e-9);
}

TEST_F(BoreholeLengthSummary, BesideATowerComeFromWhatItLeaves) {
    enterHandCheck();
    calculate();
    slide(25);
    const LengthSummary lengths = design->lengthSummary();
    EXPECT_NEAR(lengths.feet[cooling], 1501.105, 1e-2);
    EXPECT_NEAR(sumOfParts(lengths, cooling), lengths.feet[cooling], 1e-9);
    // 57 of 76 MBtu/hr are left for the ground, with 18.40584 of the pumps' power, which stays:
    // 75405.84*0.196/27.96304
    EXPECT_NEAR(lengths.parts[3].feet[cooling], 528.54, 0.01);
}

TEST_F(BoreholeLengthSummary, AreStaleOnceAnInputHasChanged) {
    enterHandCheck();
    calculate();
    const LengthSummary before = design->lengthSummary();
    typeAndLeave("SOGroundTempText", "58");
    typeAndLeave("PAPatternRowsText(0)", "4");
    LengthSummary now = design->lengthSummary();
    EXPECT_EQ(now.state, State::stale);
    // They are still those of the run, with its six bores.
    now.state = State::fresh;
    EXPECT_EQ(now, before);
    calculate();
    EXPECT_EQ(design->lengthSummary().state, State::fresh);
}

TEST_F(BoreholeLengthSummary, OfAFileDoNotClaimToAnswerItsInputs) {
    enterHandCheck();
    change(*design, [](BoreholeProject& of) {
        of.results.edit().lengths.boreLength = {1910.475, 1010.005};
    });
    design->loadsFound(false);
    const LengthSummary kept = design->lengthSummary();
    EXPECT_EQ(kept.state, State::kept);
    EXPECT_TRUE(kept.parts.empty());
    EXPECT_EQ(kept.length, (ByMode<std::string>{"1910.5 ft", "1010.0 ft"}));
    typeAndLeave("SOGroundTempText", "58");
    EXPECT_EQ(design->lengthSummary().state, State::stale);
    calculate();
    EXPECT_EQ(design->lengthSummary().state, State::fresh);
    EXPECT_FALSE(design->lengthSummary().parts.empty());
}

TEST(LengthSummaries, OfARunThatFindsNoLengthAreNoneOfAFile) {
    LengthSummary none;
    none.state = State::fresh;
    EXPECT_EQ(withParts(none, {}).state, State::fresh);
    none.feet = {0, 12};
    EXPECT_EQ(withParts(none, {}).state, State::kept);
    EXPECT_EQ(withParts(none, {{"", {0, 12}, {"", ""}}}).state, State::fresh);
    none.state = State::stale;
    EXPECT_EQ(withParts(none, {}).state, State::stale);
}

class TrenchLengthSummary : public HorizontalWindow {
 protected:
    TrenchLengthSummary() { texts.known.insert(words().begin(), words().end()); }
};

TEST_F(TrenchLengthSummary, SayWhatGoverns) {
    takeSample();
    setPipes(4);
    typeAndLeave("PAInTrenchConfigurationText(1)", "9");
    setTrenches(3);
    typeAndLeave("PASeparationText(0)", "8");
    EXPECT_FALSE(design->lengthSummary().found());
    calculate();
    const LengthSummary lengths = design->lengthSummary();
    EXPECT_EQ(lengths.length, (ByMode<std::string>{"1440.9 ft", "2838.5 ft"}));
    EXPECT_EQ(lengths.each, (ByMode<std::string>{"480.3 ft", "946.2 ft"}));
    EXPECT_EQ(lengths.sentence,
              "Heating governs: 946 ft a trench, 3 trenches; cooling would need 480 ft.");
    for (const Mode mode : modes) EXPECT_NEAR(sumOfParts(lengths, mode), lengths.feet[mode], 1e-9);
}

TEST_F(TrenchLengthSummary, OfCoilsAddUpToTheTrenches) {
    takeSample();
    choose(3);
    calculate();
    const LengthSummary lengths = design->lengthSummary();
    ASSERT_EQ(lengths.parts.size(), 5U);
    for (const Mode mode : modes) {
        EXPECT_GT(lengths.feet[mode], 0);
        EXPECT_NEAR(sumOfParts(lengths, mode), lengths.feet[mode], 1e-9);
    }
}

class LoopLengthSummary : public SurfaceWaterWindow {
 protected:
    LoopLengthSummary() { texts.known.insert(words().begin(), words().end()); }
};

TEST_F(LoopLengthSummary, ComeFromTheTableAndTheFlow) {
    take(coilPond());
    EXPECT_FALSE(design->lengthSummary().found());
    calculate();
    const LengthSummary lengths = design->lengthSummary();
    ASSERT_EQ(lengths.parts.size(), 2U);
    // 8 tons at 284.039656 ft, 7 at 278.112360, of 2359.476 and 2019.502 ft
    EXPECT_NEAR(lengths.parts[0].feet[cooling], 2272.317, 1e-2);
    EXPECT_NEAR(lengths.parts[0].feet[heating], 1946.787, 1e-2);
    EXPECT_NEAR(lengths.parts[1].feet[cooling], 87.159, 1e-2);
    EXPECT_NEAR(lengths.parts[1].feet[heating], 72.715, 1e-2);
    // The four loops of heating are longer each, 505 ft against 262, and shorter in all.
    EXPECT_EQ(lengths.sentence,
              "Cooling governs: 2359 ft of pipe, 9 loops; heating would need 2020 ft.");
}

}  // namespace
}  // namespace varnholt
