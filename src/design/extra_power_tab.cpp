// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/extra_power_tab.h"

#include <string>

#include "basis/number_text.h"
#include "design/ground_design.h"

namespace varnholt {
namespace {

std::string powerField(std::size_t element) {
    return "EKWPumpPowerText(" + std::to_string(element) + ")";
}
std::string powerUnits(std::size_t element) {
    return "EKWPumpPowerUnitsLabel(" + std::to_string(element) + ")";
}

}  // namespace

using namespace modCalculations;

const ExtraPowerTab::Motor ExtraPowerTab::motors[3] = {
    {circulationPumpInput, circulationPumpShaft, 0, "EKWCirculationFrame", 2605, 2606},
    {towerFanInput, towerFanShaft, 1, "EKWTowerFanFrame", 2608, 2609},
    {towerPumpInput, towerPumpShaft, 2, "EKWTowerPumpFrame", 2605, 2609},
};

ExtraPowerTab::ExtraPowerTab(GroundDesign& design, ExtraPowerValues& power)
    : DesignTab(design), power_(power) {
    addFrame("EKWCirculationFrame", 2601);
    addMotor(motors[0]);
    addMenuButton("EKWPumpPowerCommand", "EKWCirculationFrame", 2614, "mnuPumpPowerCalc");
    addAdditional();
    addFrame("EKWCoolingTowerFrame", 2603);
    addFrame("EKWTowerFanFrame", 2623, "EKWCoolingTowerFrame");
    addMotor(motors[1]);
    addFrame("EKWTowerPumpFrame", 2622, "EKWCoolingTowerFrame");
    addMotor(motors[2]);
}

void ExtraPowerTab::addMotor(const Motor& motor) {
    const std::string frame = motor.frame;
    NumericFieldRow shaft{powerField(motor.shaft), &power_.extraPower[motor.shaft],
                          &quantities::shaftPower};
    shaft.highest = 10000;
    shaft.changed = [this, motor] { updateInput(motor); };
    addField(shaft, {frame, motor.powerCaption, 2611, 2612, powerUnits(motor.shaft)});

    NumericFieldRow efficiency{"EKWPumpEfficiencyText(" + std::to_string(motor.efficiency) + ")",
                               &power_.motorEfficiency[motor.efficiency]};
    efficiency.highest = 100;
    efficiency.fallback = 100;
    efficiency.whileEmpty = 100;
    efficiency.format = "###0.00";
    efficiency.changed = shaft.changed;
    addField(efficiency, {frame, motor.efficiencyCaption, 2613, 2613});

    const std::string input = powerField(motor.input);
    add(withSuffix(input, "Label"), ControlKind::label, frame, 2607);
    add(input, ControlKind::text, frame).setLocked(true);
    addUnitLabel(powerUnits(motor.input), frame, 2611, 2611);
}

void ExtraPowerTab::addAdditional() {
    addFrame("EKWAdditionalFrame", 2602);
    NumericFieldRow row{powerField(additionalPower), &power_.extraPower[additionalPower]};
    row.highest = 10000;
    addField(row, {"EKWAdditionalFrame", 2604, 2611, 2611, powerUnits(additionalPower)});
}

void ExtraPowerTab::setUnitLabels() {
    DesignTab::setUnitLabels();
    for (const Motor& motor : motors) showInput(motor);
}

void ExtraPowerTab::updateInput(const Motor& motor) {
    power_.extraPower[motor.input] =
        inputPower(power_.extraPower[motor.shaft], power_.motorEfficiency[motor.efficiency]);
    showInput(motor);
}

void ExtraPowerTab::showInput(const Motor& motor) {
    control(powerField(motor.input))
        .setText(formatNumber(power_.extraPower[motor.input], "###0.0"));
}

}  // namespace varnholt
