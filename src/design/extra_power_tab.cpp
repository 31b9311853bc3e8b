// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/extra_power_tab.h"

#include <string>

#include "basis/number_text.h"
#include "design/ground_design.h"
#include "forms/text_numbers/borehole.h"

namespace varnholt {
namespace {

std::string powerField(std::size_t index) { return elementName("EKWPumpPowerText", index); }
std::string powerLabel(std::size_t index) { return elementName("EKWPumpPowerLabel", index); }
std::string powerUnits(std::size_t index) { return elementName("EKWPumpPowerUnitsLabel", index); }

}  // namespace

using namespace modCalculations;

const ExtraPowerTab::Motor ExtraPowerTab::motors[3] = {
    {circulationPumpInput, circulationPumpShaft, 0, "EKWCirculationFrame", Text::pumpShaftPower,
     Text::circulationMotorEfficiency, 0},
    {towerFanInput, towerFanShaft, 1, "EKWTowerFanFrame", Text::fanShaftPower,
     Text::towerMotorEfficiency, Text::coolingTowerFan},
    {towerPumpInput, towerPumpShaft, 2, "EKWTowerPumpFrame", Text::pumpShaftPower,
     Text::towerMotorEfficiency, Text::coolingTowerPump},
};

ExtraPowerTab::ExtraPowerTab(GroundDesign& design, ExtraPowerValues& power, Motors which)
    : DesignTab(design), power_(power), which_(which) {
    addFrame("EKWCirculationFrame", Text::circulationPumps);
    addMotor(motors[0]);
    addMenuButton("EKWPumpPowerCommand", "EKWCirculationFrame", Text::pumpPowerButton,
                  "mnuPumpPowerCalc");
    addAdditional();
    if (which == Motors::circulation) return;
    addFrame("EKWCoolingTowerFrame", Text::coolingTowerPower);
    addFrame("EKWTowerFanFrame", Text::coolingTowerFan, "EKWCoolingTowerFrame");
    addMotor(motors[1]);
    addFrame("EKWTowerPumpFrame", Text::coolingTowerPump, "EKWCoolingTowerFrame");
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
                         .unit = {Text::powerUnitsEnglish, Text::powerUnitsMetric},
                         .help = "borehole#power",
                         .distinction = motor.distinction},
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
                         .unit = {Text::motorEfficiencyUnits, Text::motorEfficiencyUnits},
                         .help = "borehole#power",
                         .distinction = motor.distinction},
              .whileEmpty = 100,
              .changed = follow});

    const std::string input = powerField(motor.input);
    add(powerLabel(motor.input), ControlKind::label, frame, Text::requiredInputPower);
    add(input, ControlKind::text, frame)
        .captionedBy(powerLabel(motor.input))
        .unitsIn(powerUnits(motor.input))
        .helpedBy("borehole#power")
        .setLocked(true);
    if (motor.distinction != 0)
        control(input).setAccessibleName(text(Text::requiredInputPower) + ", " +
                                         text(motor.distinction));
    addUnitLabel(powerUnits(motor.input), frame, {Text::powerUnitsMetric, Text::powerUnitsMetric});
}

void ExtraPowerTab::addAdditional() {
    addFrame("EKWAdditionalFrame", Text::additionalPowerRequirements);
    addField({.control = powerField(additionalPower),
              .stored = &power_.extraPower[additionalPower],
              .highest = 10000,
              .beside = {.frame = "EKWAdditionalFrame",
                         .label = powerLabel(additionalPower),
                         .caption = {Text::additionalPower, Text::additionalPower},
                         .unitLabel = powerUnits(additionalPower),
                         .unit = {Text::powerUnitsMetric, Text::powerUnitsMetric},
                         .help = "borehole#power"}});
}

void ExtraPowerTab::setUnitLabels() {
    DesignTab::setUnitLabels();
    for (std::size_t i = 0; i < motorCount(); ++i) showInput(motors[i]);
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
