// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmPumpPowerCalc.h"

#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/calculators.h"
#include "forms/text_numbers/main.h"
#include "forms/text_numbers/surface_water.h"
#include "tools/pump_power.h"

namespace varnholt {
namespace {

constexpr const char* powerField = "txtPumpPowerCalc(0)";

constexpr double largest = 10000;  // hp, ft, gpm

double same(double x) { return x; }

/// Stored in hp. The power is divided by the factor on its way to kW and multiplied on its way
/// back, though a horsepower is 0.74571 kW: this direction is kept.
const Quantity pumpPower{{same, [](double hp) { return hp / kilowattsPerHorsepower; }},
                         {same, [](double kw) { return kw * kilowattsPerHorsepower; }}};

}  // namespace

frmPumpPowerCalc::frmPumpPowerCalc(Varnmain& main)
    : Calculator("frmPumpPowerCalc", &Varnmain::frmPumpPowerCalcExists, Text::pumpPowerTool, main),
      requiredPower_(pumpPowerOf(flow_, head_, efficiency_)) {
    add("fraPumpPower", ControlKind::frame, Text::pumpPowerFrame);
    addFields();
    addClose();
    Values& values = publicValues();
    values.add("requiredPower", &requiredPower_);
    values.add("head", &head_);
    values.add("flow", &flow_);
    values.add("efficiency", &efficiency_);
}

void frmPumpPowerCalc::addFields() {
    const auto beside = [](const char* index, int caption, UnitTexts unit) {
        return FieldCompanions{.frame = "fraPumpPower",
                               .label = std::string("txtPumpPowerCalcLabel") + index,
                               .caption = {caption, caption},
                               .unitLabel = std::string("txtPumpPowerCalcUnitLabel") + index,
                               .unit = unit,
                               .help = "calculators#pump-power"};
    };
    const auto changed = [this] { calculate(); };
    addField({.control = powerField,
              .stored = &requiredPower_,
              .quantity = &pumpPower,
              .highest = largest,
              .beside = beside("(0)", Text::requiredPumpPower,
                               {Text::powerUnitsEnglish, Text::powerUnitsMetric}),
              .ifBelow = 0,
              .ifAbove = 0,
              .lowestIsRefused = true,
              .fallbackNow = [this] { return pumpPowerOf(flow_, head_, efficiency_); }});
    addField({.control = "txtPumpPowerCalc(1)",
              .stored = &head_,
              .quantity = &quantities::length,
              .highest = largest,
              .fallback = 50,
              .beside = beside("(1)", Text::pumpHead, {Text::lengthUnitsEnglish, Text::headMetric}),
              .lowestIsRefused = true,
              .changed = changed});
    addField({.control = "txtPumpPowerCalc(2)",
              .stored = &flow_,
              .quantity = &quantities::waterFlow,
              .highest = largest,
              .fallback = 0.2,
              .beside = beside("(2)", Text::flowRateCaption,
                               {Text::loopFlowUnitsEnglish, Text::loopFlowUnitsMetric}),
              .lowestIsRefused = true,
              .whenEmpty = 100,
              .changed = changed});
    addField({.control = "txtPumpPowerCalc(3)",
              .stored = &efficiency_,
              .highest = 100,
              .fallback = 81.0,
              .beside = beside("(3)", Text::pumpEfficiency,
                               {Text::motorEfficiencyUnits, Text::motorEfficiencyUnits}),
              .lowestIsRefused = true,
              // So that nothing is divided by 0.
              .whileEmpty = 81.0,
              .changed = changed});
}

void frmPumpPowerCalc::calculate() {
    requiredPower_ = pumpPowerOf(flow_, head_, efficiency_);
    fields().show(powerField);
}

}  // namespace varnholt
