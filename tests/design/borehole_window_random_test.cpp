// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "basis/run_time_error.h"
#include "borehole_window.h"

namespace varnholt {
namespace {

/// A user without a plan: works whatever control can be worked, types whatever comes to mind.
class AnyUser : public BoreholeWindow {
 protected:
    std::size_t below(std::size_t n) {
        return std::uniform_int_distribution<std::size_t>(0, n - 1)(random_);
    }

    std::string anyText() {
        static const std::vector<std::string> typed{
            "",     "0",      "-",      "1",     "2.5",   "-3",    "12abc",
            "abc",  "1e300",  "-1e300", "100",   "1000",  "5",     "0.001",
            "9999", "1e-300", ".",      "Water", "3,5",   "70000", "1.9",
            "85",   "50",     "212.1",  "32",    "Metha", " 7 ",   "99999999999999999999"};
        return typed[below(typed.size())];
    }

    void work(Control& control) {
        const std::string& name = control.name();
        switch (control.kind()) {
            case ControlKind::text:
            case ControlKind::richText:
                if (!control.locked()) design->type(name, anyText());
                if (below(2) == 0) design->leave(name);
                break;
            case ControlKind::combo:
                if (control.editable() && below(2) == 0)
                    design->type(name, anyText());
                else
                    design->choose(name, static_cast<int>(below(control.items().size())));
                design->leave(name);
                break;
            case ControlKind::slider:
            case ControlKind::upDown:
                design->slide(name, control.max() * static_cast<double>(below(11)) / 10);
                break;
            case ControlKind::button:
            case ControlKind::option:
            case ControlKind::check:
                design->click(name);
                break;
            default:
                break;
        }
    }

    /// What a design may tell: no loads, pipes that do not fit, no lengths, a division by zero.
    static bool isKnown(const std::string& message) {
        return message == "[2814]" || message.starts_with("[2453]") ||
               message.starts_with("Calculation Failed!!") || message == RunTimeError(11).message();
    }

    std::mt19937 random_{20260115};
};

TEST_F(AnyUser, NeverBreaksTheWindow) {
    takeZones(handCheckZones());
    for (int action = 0; action < 20000; ++action) {
        Control& control = *design->controls()[below(design->controls().size())];
        if (!control.enabled()) continue;
        SCOPED_TRACE(control.name() + " at action " + std::to_string(action));
        ASSERT_NO_THROW(work(control));
        ASSERT_NO_THROW(design->boreDrawing());
        ASSERT_NO_THROW(design->fieldPlan());
        ASSERT_FALSE(design->settingUnits);
        ASSERT_FALSE(design->hybridOn);
        for (const FakePlatform::Message& message : platform.messages)
            ASSERT_TRUE(isKnown(message.text)) << message.text;
        platform.messages.clear();
    }
    // Whatever was done, a design with sound inputs computes.
    design->switchUnits(UnitSystem::english);
    const std::pair<const char*, const char*> sound[] = {{"FLInletTempText(0)", "85"},
                                                         {"FLInletTempText(1)", "50"},
                                                         {"FLFlowRateText", "3"},
                                                         {"SOGroundTempText", "62"},
                                                         {"SOThermalConductivityText", ""},
                                                         {"SOThermalDiffusivityText", ""},
                                                         {"PATimeText", ""},
                                                         {"PASeparationText", ""},
                                                         {"PAPatternRowsText(0)", "3"},
                                                         {"PAPatternRowsText(1)", "2"},
                                                         {"PIThermalResistanceText", ""},
                                                         {"PABoresPerParallelLoopText", "2"},
                                                         {"PIPipeDiameterText(0)", ""},
                                                         {"PIPipeDiameterText(1)", ""},
                                                         {"PIBoreholeDiameterText", "5"},
                                                         {"PIThermalResistanceText", ""}};
    design->choose("FLFluidTypeCombo", 0);
    design->click("PIConfigurationOption(0)");
    for (const auto& [field, text] : sound) typeAndLeave(field, text);
    typeAndLeave("PIThermalResistanceText", "0.196");
    calculate();
    EXPECT_NEAR(value("boreLength(0)"), 1910.475, 1e-2);
    EXPECT_NEAR(value("boreLength(1)"), 1010.005, 1e-2);
}

}  // namespace
}  // namespace varnholt
