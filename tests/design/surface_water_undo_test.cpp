// SPDX-License-Identifier: GPL-3.0-or-later
// Every kind of change in a surface water design is undone and redone.
#include <string>

#include "design/one_step.h"
#include "forms/named_controls.h"
#include "surface_water_window.h"

namespace varnholt {
namespace {

/// The pond with coils, whose steps are undone and redone by the main window's menu.
class UndoInAPond : public SurfaceWaterWindow {
 public:
    UndoInAPond() {
        texts.known.insert({{1081, "Undo"}, {1082, "Redo"}});
        take(coilPond());
        typeAndLeave("INProjectNameText", "Mill pond");
        // Before a first run the figures are those of the design, and the unit switch shows them.
        design->switchUnits(UnitSystem::metric);
        design->switchUnits(UnitSystem::english);
    }

 protected:
    void expectOneStep(const std::string& name, const std::function<void()>& action) {
        expectOneStepIn(main, *design, name, action);
    }
    void undo() { main.click("mnuUndo"); }
    void redo() { main.click("mnuRedo"); }
    bool canUndo() const { return main.control("mnuUndo").enabled(); }
};

TEST_F(SurfaceWaterWindow, HasANameForWhateverAPersonChanges) {
    texts.known[1101] = "";
    EXPECT_EQ(namelessControls(*design), "NoticeCommand\n");  // named while there is work for it
}

TEST_F(UndoInAPond, OfEachFieldIsOneStepAVisit) {
    const std::vector<FieldStep> cases{
        {"FLInletTempText(0)", "90", "[2202], [2203]"},
        {"FLFlowRateText", "2.5", "[2208]"},
        {"FLSpecificHeatText", "0.9", "[2216]"},
        {"FLFluidDensityText", "64", "[2219]"},
        {"FLMinFlowText(0)", "2.5", "[3212], [2203]"},
        {"FLMinFlowText(1)", "4", "[3212], [2204]"},
        {"SOGroundTempText", "55", "[2303]"},
        {"SOHeaderDepthText", "7", "[3305]"},
        {"SOAirTempSwingText", "20", "[3312]"},
        {"SODayText(0)", "210", "[3313], [3314]"},
        {"SODayText(1)", "30", "[3313], [3315]"},
        {"PIExtraEqvLengthText", "20", "[3412]"},
        {"PIParallelLoopsText(0)", "5", "[3408], [2203]"},
        {"PIParallelLoopsText(1)", "3", "[3408], [2204]"},
        {"PILoopHeadLossText(0)", "3", "[3409], [2203]"},
        {"PILoopHeadLossText(1)", "3", "[3409], [2204]"},
        {"PIHeaderNumberText(0)", "4", "[3415], [3414]"},
        {"PIHeaderNumberText(1)", "2", "[3416], [3414]"},
        {"PIHeaderLengthText(0)", "110", "[3419], [3417]"},
        {"PIHeaderLengthText(3)", "35", "[3419], [3418]"},
        {"PIHeaderHeadLossText(0)", "1.7", "[3420], [3421]"},
        {"PIHeaderHeadLossText(3)", "2.7", "[3420], [3424]"},
        {"WALoopTempText(0)", "76", "[3502], [2203]"},
        {"WALoopTempText(1)", "44", "[3502], [2204]"},
        {"WAHeaderTempText(0)", "75", "[3503], [2203]"},
        {"WAHeaderTempText(3)", "42", "[3504], [2204]"},
        {"WASurfaceAreaText", "1000", "[3513]"},
        {"WALoopPipeDepthText", "10", "[3516]"},
        {"EKWPumpPowerText(1)", "12", "[2605]"},
        {"EKWPumpEfficiencyText(0)", "80", "[2606]"},
        {"EKWPumpPowerText(2)", "15", "[2604]"},
        {"INProjectNameText", "School", "[2701]"},
        {"INCommentsRichTextBox", "School", "[2714]"},
    };
    calculate();
    expectOneStepEach(main, *design, cases);
}

TEST_F(UndoInAPond, OfWhateverElseAPersonChanges) {
    calculate();
    expectOneStep("[3407]", [this] { design->click("PISlinkyOption"); });
    expectOneStep("[3403]", [this] { choose("PILoopPipeSizeCombo", 0); });
    expectOneStep("[3425]", [this] { choose("PIHeaderPipeSizeCombo(0)", 6); });
    expectOneStep("[3425]", [this] { choose("PIHeaderPipeSizeCombo(1)", 2); });
    expectOneStep("[3308]", [this] { choose("SOSoilTypeCombo", 0); });
    expectOneStep("[3507]", [this] { choose("WASurfaceWaterTypeCombo", 3); });
    expectOneStep("[2212]", [this] { choose("FLFluidTypeCombo", 1); });
    expectOneStep("[2213]", [this] { design->slide("FLPercentAntifreezeUpDown", 25); });
    expectOneStep("[2712]", [this] { design->pickDate("INDateDTPicker", Date{2026, 3, 1}); });
}

TEST_F(UndoInAPond, OfTheLastBranchBringsItsLossesAndLengthBack) {
    expectOneStep("[3416], [3414]", [this] { typeAndLeave("PIHeaderNumberText(1)", "0"); });
    EXPECT_EQ(textOf("PIHeaderLengthText(2)"), "0.0");
    undo();
    EXPECT_EQ(textOf("PIHeaderLengthText(2)"), "60.0");
    EXPECT_EQ(textOf("PIHeaderHeadLossText(3)"), "2.9");
    EXPECT_TRUE(isEnabled("PIHeaderLengthText(2)"));
}

TEST_F(UndoInAPond, OfCalculateBringsBackTheResultsTheLoopsAndTheStaleMark) {
    EXPECT_TRUE(design->isStale());
    expectOneStep("[2130]", [this] { calculate(); });
    // The flow of cooling keeps nine loops: 27.2 gpm over 2.8, rounded down.
    EXPECT_EQ(textOf("PIParallelLoopsText(0)"), "9");
    const std::string length = captionOf("CALoopLengthLabel(0)");
    undo();
    EXPECT_EQ(textOf("PIParallelLoopsText(0)"), "12");
    EXPECT_EQ(captionOf("CALoopLengthLabel(0)"), "0.0");
    EXPECT_TRUE(design->isStale());
    redo();
    EXPECT_EQ(captionOf("CALoopLengthLabel(0)"), length);
    EXPECT_EQ(textOf("PIParallelLoopsText(0)"), "9");
    EXPECT_FALSE(design->isStale());
}

TEST_F(UndoInAPond, OfASecondCalculateBringsBackTheFirst) {
    calculate();
    const ShownControls first = shownBy(*design);
    typeAndLeave("WALoopTempText(0)", "70");
    const ShownControls stale = shownBy(*design);
    calculate();
    undo();
    EXPECT_EQ(differences(stale, shownBy(*design)), "");
    undo();
    EXPECT_EQ(differences(first, shownBy(*design)), "");
}

TEST_F(UndoInAPond, OfAnApproachThatDidNotSettleTakesItsColourAway) {
    calculate();
    EXPECT_EQ(colourOf("CAApproachTempLabel(0)"), colours::black);
    // Headers so long in water so cold that the fluid's temperature swings from pass to pass.
    typeAndLeave("PIHeaderLengthText(0)", "9000");
    typeAndLeave("WAHeaderTempText(0)", "40");
    calculate();
    EXPECT_NE(colourOf("CAApproachTempLabel(0)"), colours::black);
    undo();
    EXPECT_EQ(colourOf("CAApproachTempLabel(0)"), colours::black);
    redo();
    EXPECT_NE(colourOf("CAApproachTempLabel(0)"), colours::black);
}

TEST_F(UndoInAPond, ToTheBeginningAndBackFindsTheSame) {
    const ShownControls beginning = shownBy(*design);
    typeAndLeave("SOHeaderDepthText", "9");
    calculate();
    design->click("PISlinkyOption");
    choose("PIHeaderPipeSizeCombo(0)", 2);
    calculate();
    const ShownControls end = shownBy(*design);
    int steps = 0;
    for (; steps < 5 && canUndo(); ++steps) undo();
    EXPECT_EQ(steps, 5);
    EXPECT_EQ(differences(beginning, shownBy(*design)), "");
    for (int i = 0; i < steps; ++i) redo();
    EXPECT_EQ(differences(end, shownBy(*design)), "");
}

}  // namespace
}  // namespace varnholt
