// SPDX-License-Identifier: GPL-3.0-or-later
// Every kind of change in a borehole design is undone and redone. The figures are those of
// docs/hand-check.md.
#include <algorithm>

#include "basis/run_time_error.h"
#include "design/design_undo.h"
#include "forms/named_controls.h"

namespace varnholt {
namespace {

class UndoInADesign : public DesignUndo {};

TEST_F(BoreholeWindow, HasNothingToUndoWhenItIsNew) {
    EXPECT_FALSE(main.control("mnuUndo").enabled());
    EXPECT_FALSE(main.control("mnuRedo").enabled());
    EXPECT_FALSE(design->isChanged());
}

TEST_F(BoreholeWindow, HasANameForWhateverAPersonChanges) {
    texts.known[1101] = "";
    EXPECT_EQ(namelessControls(*design), "NoticeCommand\n");  // named while there is work for it
}

TEST_F(UndoInADesign, OfEachFieldIsOneStepAVisit) {
    const std::vector<FieldStep> cases{
        {"FLInletTempText(0)", "90", "[2202], [2203]"},
        {"FLFlowRateText", "2.5", "[2208]"},
        {"FLSpecificHeatText", "0.95", "[2216]"},
        {"FLFluidDensityText", "64", "[2219]"},
        {"SOGroundTempText", "58", "[2303]"},
        {"SOThermalConductivityText", "1.5", "[2445]"},
        {"SOThermalDiffusivityText", "0.9", "[2307]"},
        {"PIBoreholeDiameterText", "6", "[2424]"},
        {"PIGroutConductivityText", "0.9", "[2426]"},
        {"PIThermalResistanceText", "0.2", "[2403]"},
        {"PIPipeDiameterText(0)", "1.4", "[2440]"},
        {"PIPipeResistanceText", "0.11", "[2408]"},
        {"PAPatternRowsText(0)", "4", "[2503]"},
        {"PASeparationText", "18", "[2506]"},
        {"PABoresPerParallelLoopText", "3", "[2507]"},
        {"PATimeText", "15", "[2510]"},
        {"EKWPumpPowerText(1)", "12", "[2605]"},
        {"EKWPumpEfficiencyText(0)", "80", "[2606]"},
        {"EKWPumpPowerText(2)", "15", "[2604]"},
        {"EKWPumpPowerText(4)", "1", "[2608], [2623]"},
        {"INProjectNameText", "School", "[2701]"},
        {"INCommentsRichTextBox", "School", "[2714]"},
    };
    calculate();
    expectOneStepEach(main, *design, cases);
}

TEST_F(UndoInADesign, OfWhateverElseAPersonChanges) {
    calculate();
    expectOneStep("[2212]", [this] { design->choose("FLFluidTypeCombo", 1); });
    expectOneStep("[2212]", [this] {
        type("FLFluidTypeCombo", "Own");
        typeAndLeave("FLFluidTypeCombo", "Own mixture");
    });
    expectOneStep("[2211], [2213]", [this] { typeAndLeave("FLPercentAntifreezeText", "30"); });
    expectOneStep("[2436]", [this] { design->choose("PIPipeDiameterCombo", 0); });
    expectOneStep("[2439]", [this] { design->choose("PIPipeResistanceCombo(0)", 0); });
    expectOneStep("[2437]", [this] { design->choose("PIPipeResistanceCombo(1)", 2); });
    expectOneStep("[2433]", [this] { design->click("PIPlacementOption(0)"); });
    expectOneStep("[2712]", [this] { design->pickDate("INDateDTPicker", Date{2026, 3, 1}); });
    typeAndLeave("PIBoreholeDiameterText", "8");
    expectOneStep("[2431]", [this] { design->click("PIConfigurationOption(1)"); });
}

TEST_F(UndoInADesign, OfAnUpDownIsNamedLikeItsField) {
    design->choose("FLFluidTypeCombo", 1);
    expectOneStep("[2213]", [this] { design->slide("FLPercentAntifreezeUpDown", 25); });
}

TEST_F(UndoInADesign, ToTheBeginningShowsWhatANewDesignShowed) {
    for (int i = 0; i < 4; ++i) undo();
    ASSERT_FALSE(canUndo());
    const ShownControls beginning = shownBy(*design);
    const BoreholeProject project = design->project();
    for (int i = 0; i < 4; ++i) redo();
    calculate();
    design->slide("CACoolingRangeUpDown", 10);
    slide(25);
    calculate();
    while (canUndo()) undo();
    EXPECT_TRUE(design->project() == project);
    EXPECT_EQ(differences(beginning, shownBy(*design)), "");
}

TEST_F(UndoInADesign, OfCalculateBringsBackTheResultsAndTheStaleMark) {
    EXPECT_TRUE(design->isStale());
    expectOneStep("[2130]", [this] { calculate(); });
    EXPECT_EQ(captionOf("CATotalLengthLabel(0)"), "1910.5");
    EXPECT_FALSE(design->isStale());
    undo();
    EXPECT_EQ(captionOf("CATotalLengthLabel(0)"), "0.0");
    EXPECT_EQ(value("boreLength(0)"), 0);
    EXPECT_TRUE(design->isStale());
    redo();
    EXPECT_NEAR(value("boreLength(0)"), 1910.475, 1e-2);
}

TEST_F(UndoInADesign, OfASecondCalculateBringsBackTheFirst) {
    calculate();
    const std::vector<std::string> first = resultCaptions();
    typeAndLeave("SOGroundTempText", "58");
    const ShownControls stale = shownBy(*design);
    calculate();
    const std::vector<std::string> second = resultCaptions();
    EXPECT_NE(second, first);
    undo();
    EXPECT_EQ(resultCaptions(), first);
    EXPECT_EQ(differences(stale, shownBy(*design)), "");
    EXPECT_TRUE(design->isStale());
    EXPECT_EQ(textOf("SOGroundTempText"), "58.0");
    undo();
    EXPECT_FALSE(design->isStale());
    EXPECT_EQ(textOf("SOGroundTempText"), "62.0");
    redo();
    redo();
    EXPECT_EQ(resultCaptions(), second);
}

TEST_F(UndoInADesign, OfACalculateThatFindsTheSameIsNoStep) {
    calculate();
    const std::string before = undoCaption();
    calculate();
    EXPECT_EQ(undoCaption(), before);
}

TEST_F(UndoInADesign, OfAnInputTypedBackIsOnlyTheStaleMark) {
    calculate();
    type("SOGroundTempText", "58");
    type("SOGroundTempText", "62");
    EXPECT_TRUE(design->isStale());  // the button's colour tells of any change
    undo();
    EXPECT_FALSE(design->isStale());
    EXPECT_EQ(undoCaption(), "Undo [2130]");
}

TEST_F(UndoInADesign, OfTheSlider) {
    calculate();
    design->slide("CACoolingRangeUpDown", 10);
    expectOneStep("[2141]", [this] { slide(25); });
    EXPECT_EQ(captionOf("CATotalLengthLabel(0)"), "1501.1");
    EXPECT_EQ(captionOf("CAPercentHybridLabel(0)"), "25 %");
    undo();
    EXPECT_EQ(design->control("CAHybridSlider").value(), 0);
    EXPECT_EQ(captionOf("CATotalLengthLabel(0)"), "1910.5");
    EXPECT_EQ(captionOf("CACondenserCapacityLabel(0)"), "0.0");
}

TEST_F(UndoInADesign, OfADragIsOneStepAndOfTheNextAnother) {
    calculate();
    design->slide("CACoolingRangeUpDown", 10);
    for (const double end : {25.0, 40.0}) {
        design->beginGesture("CAHybridSlider");
        for (const double moved : {end - 8, end - 3, end}) slide(moved);
        design->endGesture();
    }
    undo();
    EXPECT_EQ(captionOf("CAPercentHybridLabel(0)"), "25 %");
    EXPECT_EQ(captionOf("CATotalLengthLabel(0)"), "1501.1");
    undo();
    EXPECT_EQ(captionOf("CAPercentHybridLabel(0)"), "0 %");
}

TEST_F(UndoInADesign, OfTheTowersFigures) {
    calculate();
    design->slide("CACoolingRangeUpDown", 10);
    slide(25);
    expectOneStep("[2144]", [this] { design->slide("CACondenserCapacityUpDown", 20); });
    expectOneStep("[2146]", [this] { design->slide("CACoolingTowerFlowRateUpDown", 6); });
    expectOneStep("[2148]", [this] { design->slide("CACoolingRangeUpDown", 12); });
}

TEST_F(UndoInADesign, OfACalculateThatDropsTheTowerBringsItBack) {
    calculate();
    design->slide("CACoolingRangeUpDown", 10);
    slide(25);
    expectOneStep("[2130]", [this] { calculate(); });
    undo();
    EXPECT_EQ(captionOf("CATotalLengthLabel(0)"), "1501.1");
    EXPECT_EQ(captionOf("CACondenserCapacityLabel(0)"), "23.6");
}

TEST_F(UndoInADesign, BringsBackATowerThatHasMadeTheHeatingGovern) {
    // Nine tenths to the tower make the ground colder: heating governs, and the slider stays.
    calculate();
    design->slide("CACoolingRangeUpDown", 10);
    slide(90);
    ASSERT_GT(value("boreLength(1)"), value("boreLength(0)"));
    ASSERT_TRUE(design->control("CAHybridSlider").enabled());
    const ShownControls withTower = shownBy(*design);
    std::vector<Zone> zones = handCheckZones();
    for (Zone& zone : zones)
        for (auto& block : zone.gains) block[heating] *= 3;
    takeZones(zones);
    calculate();
    ASSERT_FALSE(design->control("CAHybridSlider").enabled());
    undo();
    EXPECT_TRUE(design->control("CAHybridSlider").enabled());
    EXPECT_EQ(design->control("CAHybridSlider").value(), 90);
    EXPECT_EQ(design->control("CAHybridFrame").forecolor(), 0);
}

TEST_F(UndoInADesign, HasNoStepForUnitsOrForBrowsing) {
    calculate();
    const std::string before = undoCaption();
    inMetric();
    inEnglish();
    design->click("MetricCheck");
    design->choose("BHTabs", 3);
    EXPECT_EQ(undoCaption(), before);
}

TEST_F(UndoInADesign, ShowsTheUnitsOfNow) {
    calculate();
    inMetric();
    undo();
    redo();
    EXPECT_EQ(captionOf("CATotalLengthLabel(0)"), "582.3");
    EXPECT_EQ(captionOf("CATotalLengthLabel(2)"), "[2104]");
    EXPECT_EQ(textOf("SOGroundTempText"), "16.7");
}

TEST_F(UndoInADesign, OfWhatWasChangedUntilItWasSavedMakesItUnchanged) {
    design->noteSaved();
    EXPECT_FALSE(design->isChanged());
    typeAndLeave("SOGroundTempText", "58");
    EXPECT_TRUE(design->isChanged());
    undo();
    EXPECT_FALSE(design->isChanged());
    redo();
    EXPECT_TRUE(design->isChanged());
    undo();
    undo();
    EXPECT_TRUE(design->isChanged());
}

TEST_F(UndoInADesign, OfAFieldThatIsStillBeingTypedInBringsBackItsStart) {
    type("SOGroundTempText", "5");
    type("SOGroundTempText", "58");
    undo();
    EXPECT_EQ(textOf("SOGroundTempText"), "62.0");
    EXPECT_EQ(design->GetGroundTemp(), 62);
    design->leave("SOGroundTempText");
    EXPECT_EQ(design->GetGroundTemp(), 62);
}

TEST_F(UndoInADesign, OfAHundredStepsAndBackIsExact) {
    const BoreholeProject first = design->project();
    for (int i = 1; i <= 100; ++i) {
        typeAndLeave("PASeparationText", std::to_string(20 + i % 7));
        calculate();
    }
    const BoreholeProject last = design->project();
    const ShownControls shownLast = shownBy(*design);
    int steps = 0;
    while (!(design->project() == first) && canUndo()) {
        undo();
        ++steps;
    }
    // Each of the hundred changes the separation and calculates: two steps.
    EXPECT_EQ(steps, 200);
    while (main.control("mnuRedo").enabled()) redo();
    EXPECT_TRUE(design->project() == last);
    EXPECT_EQ(differences(shownLast, shownBy(*design)), "");
}

}  // namespace
}  // namespace varnholt
