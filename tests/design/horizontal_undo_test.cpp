// SPDX-License-Identifier: GPL-3.0-or-later
// Every kind of change in a horizontal design is undone and redone.
#include <string>

#include "design/one_step.h"
#include "horizontal_window.h"

namespace varnholt {
namespace {

/// Two columns of pipes under the sample building, undone and redone by the main window's menu.
class UndoInTrenches : public HorizontalWindow {
 public:
    UndoInTrenches() {
        texts.known.insert({{1081, "Undo"}, {1082, "Redo"}});
        takeSample();
        choose(1);
        setPipes(6);
        typeAndLeave("PASeparationText(2)", "60");
        // Before a first run the figures are those of the design, and the unit switch shows them.
        design->switchUnits(UnitSystem::metric);
        design->switchUnits(UnitSystem::english);
    }

 protected:
    void expectOneStep(const std::string& name, const std::function<void()>& action) {
        expectOneStepIn(main, *design, name, action);
    }
    void undo() { main.click("mnuUndo"); }
};

TEST_F(UndoInTrenches, OfEachFieldIsOneStepAVisit) {
    const std::vector<FieldStep> cases{
        {"FLInletTempText(0)", "90", "[2202], [2203]"},
        {"FLFlowRateText", "2.5", "[2208]"},
        {"SOGroundTempText", "55", "[2303]"},
        {"SOThermalConductivityText", "1.5", "[2445]"},
        {"SOThermalDiffusivityText", "0.9", "[2307]"},
        {"SOAirTempSwingText", "18", "[3312]"},
        {"SODayText(0)", "210", "[3313], [3314]"},
        {"SODayText(1)", "30", "[3313], [3315]"},
        {"PIPipeDiameterText(0)", "1.4", "[2440]"},
        {"PIPipeResistanceText", "0.11", "[2408]"},
        {"PASeparationText(0)", "18", "[5006]"},
        {"PASeparationText(1)", "8", "[5007]"},
        {"PASeparationText(2)", "70", "[5008]"},
        {"PASeparationText(3)", "4", "[5005]"},
        {"PAInTrenchConfigurationText(1)", "14", "[5016] [Y]"},
        {"PAInTrenchConfigurationText(2)", "18", "[5034] [X]"},
        {"PATimeText", "15", "[2510]"},
        {"EKWPumpPowerText(2)", "15", "[2604]"},
        {"EKWPumpPowerText(4)", "1", "[2608], [2623]"},
        {"INProjectNameText", "School", "[2701]"},
    };
    calculate();
    expectOneStepEach(main, *design, cases);
}

TEST_F(UndoInTrenches, OfWhateverElseAPersonChanges) {
    calculate();
    expectOneStep("[5026]", [this] { design->click("PAOffsetCheck"); });
    expectOneStep("[5019]", [this] { setPipes(8); });
    expectOneStep("[5005]", [this] { setTrenches(7); });
    expectOneStep("[5025]", [this] { choose(4); });
    expectOneStep("[5017] [P]", [this] { typeAndLeave("PAInTrenchConfigurationText(0)", "30"); });
    expectOneStep("[5018] [D]", [this] { typeAndLeave("PAInTrenchConfigurationText(1)", "30"); });
    expectOneStep("[5024]", [this] { choose(3); });
    expectOneStep("[2436]", [this] { design->choose("PIPipeDiameterCombo", 2); });
    expectOneStep("[2212]", [this] { design->choose("FLFluidTypeCombo", 1); });
}

TEST_F(UndoInTrenches, OfALimitThatBitesBringsTheTrenchBackWithTheField) {
    expectOneStep("[5034] [X]", [this] { typeAndLeave("PAInTrenchConfigurationText(2)", "90"); });
    EXPECT_EQ(textOf("PASeparationText(2)"), "90.0");
    undo();
    EXPECT_EQ(textOf("PASeparationText(2)"), "60.0");
}

TEST_F(UndoInTrenches, OfACoilsRunBringsThePipesResistanceBack) {
    choose(3);
    expectOneStep("[2130]", [this] { calculate(); });
    EXPECT_EQ(textOf("PIPipeResistanceText"), "0.158");
    undo();
    EXPECT_EQ(textOf("PIPipeResistanceText"), "0.075");
    EXPECT_EQ(captionOf("CATotalPipeLengthLabel(0)"), "0.0");
    EXPECT_TRUE(design->isStale());
}

TEST_F(UndoInTrenches, OfATowersShareIsOneStep) {
    typeAndLeave("SOGroundTempText", "75");
    calculate();
    expectOneStep("[2141]", [this] { design->slide("CAHybridSlider", 30); });
}

}  // namespace
}  // namespace varnholt
