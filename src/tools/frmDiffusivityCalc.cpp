// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmDiffusivityCalc.h"

#include "basis/number_text.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/calculators.h"

namespace varnholt {
namespace {

// Where the fields stand in `txtDiffCalc`.
constexpr const char* moistureField = "txtDiffCalc(0)";
constexpr const char* densityField = "txtDiffCalc(1)";
constexpr const char* specificHeatField = "txtDiffCalc(2)";
constexpr const char* conductivityField = "txtDiffCalc(3)";
constexpr const char* diffusivityField = "txtDiffCalc(4)";

constexpr const char* metricFormat = "###0.000";

/// kJ/(degK*kg) per Btu/(lb degF) when the units are switched. A field that is left is converted by
/// 4.186, the program's factor everywhere else; the difference is kept.
constexpr double specificHeatWhenSwitched = 4.184;

constexpr double mostMoisture = 100;          // percent
constexpr double mostDensityAndHeat = 10000;  // lb/ft^3, Btu/(lb degF)
constexpr double mostConductivity = 1000.0;   // Btu/(hr ft degF), and ft^2/day

}  // namespace

frmDiffusivityCalc::frmDiffusivityCalc(Varnmain& main)
    : Calculator("frmDiffusivityCalc", &Varnmain::frmDiffusivityCalcExists,
                 Text::diffusivityCalculatorTitle, main) {
    add("fraDiffCalc", ControlKind::frame, Text::soilThermalProperties);
    addFields();
    add("cmdSoilTables", ControlKind::button, Text::showSoilTables);
    addClose();
    onClick("cmdSoilTables", [this] { this->main().click("SoilProperties"); });
    Values& values = publicValues();
    values.add("moisture", &soil_.moisture);
    values.add("dryDensity", &soil_.dryDensity);
    values.add("specificHeat", &soil_.specificHeat);
    values.add("conductivity", &soil_.conductivity);
    values.add("diffusivity", &diffusivity_);
}

void frmDiffusivityCalc::addFields() {
    const auto beside = [](const char* index, int caption, UnitTexts unit) {
        return FieldCompanions{.frame = "fraDiffCalc",
                               .label = std::string("txtDiffCalcLabel") + index,
                               .caption = {caption, caption},
                               .unitLabel = std::string("txtDiffCalcUnitLabel") + index,
                               .unit = unit,
                               .help = "calculators#diffusivity"};
    };
    const auto changed = [this] { calculate(); };
    addField({.control = moistureField,
              .stored = &soil_.moisture,
              .highest = mostMoisture,
              .beside = beside("(0)", Text::moisture,
                               {Text::motorEfficiencyUnits, Text::motorEfficiencyUnits}),
              .changed = changed});
    addField({.control = densityField,
              .stored = &soil_.dryDensity,
              .quantity = &quantities::density,
              .highest = mostDensityAndHeat,
              .fallback = 165,
              .beside = beside("(1)", Text::dryDensity,
                               {Text::densityUnitsEnglish, Text::densityUnitsMetric}),
              .whenEmpty = 100,
              .changed = changed});
    addField({.control = specificHeatField,
              .stored = &soil_.specificHeat,
              .quantity = &quantities::specificHeat,
              .highest = mostDensityAndHeat,
              .fallback = 0.2,
              .format = "###0.00",
              .metricFormat = metricFormat,
              .beside = beside("(2)", Text::drySpecificHeat,
                               {Text::specificHeatUnitsEnglish, Text::specificHeatUnitsMetric}),
              .changed = changed});
    addField({.control = conductivityField,
              .stored = &soil_.conductivity,
              .quantity = &quantities::conductivity,
              .highest = mostConductivity,
              .fallback = 1.3,
              .format = "###0.00",
              .beside = beside(
                  "(3)", Text::soilThermalConductivity,
                  {Text::thermalConductivityUnitsEnglish, Text::thermalConductivityUnitsMetric}),
              .changed = changed});
    addField({.control = diffusivityField,
              .stored = &diffusivity_,
              .quantity = &quantities::diffusivity,
              .highest = mostConductivity,
              .fallback = 0.75,
              .format = "###0.00",
              .metricFormat = metricFormat,
              .beside = beside(
                  "(4)", Text::soilThermalDiffusivity,
                  {Text::thermalDiffusivityUnitsEnglish, Text::thermalDiffusivityUnitsMetric}),
              .whenEmpty = 0});
}

void frmDiffusivityCalc::calculate() {
    diffusivity_ = diffusivityOf(soil_);
    fields().show(diffusivityField);
}

void frmDiffusivityCalc::showValues() {
    Calculator::showValues();
    if (units() == UnitSystem::metric)
        control(specificHeatField)
            .setText(formatNumber(soil_.specificHeat * specificHeatWhenSwitched, metricFormat));
}

/// The tables are another part of the program.
void frmDiffusivityCalc::windowsChanged() {
    control("cmdSoilTables").setEnabled(main().hasCommand("SoilProperties"));
}

}  // namespace varnholt
