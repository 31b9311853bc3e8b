// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/extra_power_tab.h"

#include <string>

#include "basis/number_text.h"
#include "design/ground_design.h"

namespace varnholt {
namespace {

std::string powerField(std::size_t index) { return elementName("EKWPumpPowerText", index); }
std::string powerLabel(std::size_t index) { return elementName("EKWPumpPowerLabel", index); }
std::string powerUnits(std::size_t index) { return elementName("EKWPumpPowerUnitsLabel", index); }

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
    const auto follow = [this, motor] { updateInput(motor); };
    addField({.control = powerField(motor.shaft),
              .stored = &power_.extraPower[motor.shaft],
              .quantity = &quantities::shaftPower,
              .highest = 10000,
              .beside = {.frame = frame,
                         .label = powerLabel(motor.shaft),
                         .caption = {motor.powerCaption, motor.powerCaption},
                         .unitLabel = powerUnits(motor.shaft),
                         .unit = {2612, 2611},
                         .help = "borehole#power"},
              .changed = follow});
    addField({.control = elementName("EKWPumpEfficiencyText", motor.efficiency),
              .stored = &power_.motorEfficiency[motor.efficiency],
              .highest = 100,
              .fallback = 100,
              .format = "###0.00",
              .beside = {.frame = frame,
                         .label = elementName("EKWPumpEfficiencyLabel", motor.efficiency),
                         .caption = {motor.efficiencyCaption, motor.efficiencyCaption},
                         .unitLabel = elementName("EKWPumpEfficiencyUnitLabel", motor.efficiency),
                         .unit = {2613, 2613},
                         .help = "borehole#power"},
              .whileEmpty = 100,
              .changed = follow});

    const std::string input = powerField(motor.input);
    add(powerLabel(motor.input), ControlKind::label, frame, 2607);
    add(input, ControlKind::text, frame)
        .captionedBy(powerLabel(motor.input))
        .unitsIn(powerUnits(motor.input))
        .helpedBy("borehole#power")
        .setLocked(true);
    addUnitLabel(powerUnits(motor.input), frame, {2611, 2611});
}

void ExtraPowerTab::addAdditional() {
    addFrame("EKWAdditionalFrame", 2602);
    addField({.control = powerField(additionalPower),
              .stored = &power_.extraPower[additionalPower],
              .highest = 10000,
              .beside = {.frame = "EKWAdditionalFrame",
                         .label = powerLabel(additionalPower),
                         .caption = {2604, 2604},
                         .unitLabel = powerUnits(additionalPower),
                         .unit = {2611, 2611},
                         .help = "borehole#power"}});
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
