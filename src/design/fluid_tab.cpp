// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/fluid_tab.h"

#include <algorithm>

#include "basis/number_text.h"
#include "basis/raised_flag.h"
#include "design/ground_design.h"
#include "forms/text_numbers/borehole.h"

namespace varnholt {
namespace {

constexpr int waterEntry = 0;  // first of the list

}  // namespace

FluidTab::FluidTab(GroundDesign& design, FluidValues& fluid, ProjectConditions& conditions)
    : DesignTab(design), fluid_(fluid), conditions_(conditions) {
    addFrame("FLFluidFrame", Text::fluidTemperaturesAndFlow);
    addTemperatures();
    addFlow();
    addSolution();
    addProperties();
}

void FluidTab::addTemperatures() {
    addFrame("FLInletTempFrame", Text::designInletTemperatures, "FLFluidFrame");
    const ByMode<double> fallbacks{85, 55};
    const ByMode<int> captions{Text::inletTemperatureCooling, Text::inletTemperatureHeating};
    for (const Mode mode : modes)
        addField({.control = elementName("FLInletTempText", mode),
                  .stored = &conditions_.inletTemp[mode],
                  .quantity = &quantities::temperature,
                  .highest = 212,
                  .fallback = fallbacks[mode],
                  .beside = {.frame = "FLInletTempFrame",
                             .label = elementName("FLInletTempLabel", mode),
                             .caption = {captions[mode], captions[mode]},
                             .unitLabel = elementName("FLInletTempUnitLabel", mode),
                             .unit = {Text::inletTemperatureUnitsEnglish,
                                      Text::inletTemperatureUnitsMetric},
                             .help = "borehole#fluid",
                             .accessible = Text::designInletTemperatures,
                             .distinction = captions[mode]},
                  .changed = [this, mode] { design().passTemperature(mode); },
                  .left = [this] { design().refreshLoadsPumps(); }});
}

void FluidTab::addFlow() {
    addFrame("FLFlowRateFrame", Text::designSystemFlowRate, "FLFluidFrame");
    addField(
        {.control = "FLFlowRateText",
         .stored = &conditions_.flowRate,
         .quantity = &quantities::waterFlow,
         .highest = 212,
         .fallback = 3,
         .beside = {.frame = "FLFlowRateFrame",
                    .label = "FLFlowRateLabel",
                    .caption = {Text::designFlowRate, Text::designFlowRate},
                    .unitLabel = "FLFlowRateUnitsLabel",
                    .unit = {Text::designFlowRateUnitsEnglish, Text::designFlowRateUnitsMetric},
                    .help = "borehole#fluid"},
         .changed = [this] { design().passFlow(); },
         .left = [this] { design().refreshLoadsPumps(); }});
}

void FluidTab::addSolution() {
    addFrame("FLSolutionFrame", Text::solutionProperties, "FLFluidFrame");
    addCombo("FLFluidTypeCombo", "FLSolutionFrame", "FLFluidTypeLabel", Text::fluidType,
             Text::water, Text::calciumChloride)
        .editableText();
    onClick("FLFluidTypeCombo", [this] { FLFluidTypeCombo_Click(); });
    onChange("FLFluidTypeCombo", [this] { FLFluidTypeCombo_Change(); });
    onLeave("FLFluidTypeCombo", [this] { FLFluidTypeCombo_Leave(); });
    addField({.control = "FLPercentAntifreezeText",
              .stored = &fluid_.percentAntifreeze,
              .highest = 100,
              .format = "###0",
              .beside = {.frame = "FLSolutionFrame",
                         .label = "FLPercentAntifreezeLabel",
                         .caption = {Text::percentAntifreeze, Text::percentAntifreeze},
                         .help = "borehole#fluid",
                         .accessible = Text::solutionProperties,
                         .distinction = Text::percentAntifreeze},
              .changed = [this] { showPercent(); }})
        .steppedBy("FLPercentAntifreezeUpDown");
    add("FLPercentAntifreezeUpDown", ControlKind::upDown, "FLSolutionFrame")
        .captionedBy("FLPercentAntifreezeLabel")
        .setRange(0, 100);
    onSlide("FLPercentAntifreezeUpDown", [this] { FLPercentAntifreezeUpDown_Change(); });
}

void FluidTab::addProperties() {
    addField({.control = "FLSpecificHeatText",
              .stored = &fluid_.specificHeat,
              .quantity = &quantities::specificHeat,
              .highest = 10000,
              .fallback = 1,
              .format = "###0.00",
              .metricFormat = "###0.000",
              .beside = {.frame = "FLSolutionFrame",
                         .label = "FLSpecificHeatLabel",
                         .caption = {Text::specificHeat, Text::specificHeat},
                         .unitLabel = "FLSpecificHeatUnitsLabel",
                         .unit = {Text::specificHeatUnitsEnglish, Text::specificHeatUnitsMetric},
                         .help = "borehole#fluid"}});
    addField({.control = "FLFluidDensityText",
              .stored = &fluid_.density,
              .quantity = &quantities::density,
              .highest = 10000,
              .fallback = 62.4,
              .beside = {.frame = "FLSolutionFrame",
                         .label = "FLFluidDensityLabel",
                         .caption = {Text::density, Text::density},
                         .unitLabel = "FLDensityUnitsLabel",
                         .unit = {Text::densityUnitsEnglish, Text::densityUnitsMetric},
                         .help = "borehole#fluid"}});
    addMenuButton("FLTablesButton", "FLSolutionFrame", Text::fluidTablesButton, "FluidProperties");
}

void FluidTab::setUnitLabels() {
    DesignTab::setUnitLabels();
    showFluid();
}

void FluidTab::FLFluidTypeCombo_Change() {
    if (design().settingItems) return;
    const Control& combo = control("FLFluidTypeCombo");
    const auto& names = combo.items();
    const auto named = std::find(names.begin(), names.end(), combo.text());
    const bool listed = named != names.end();
    fluid_.fluidTypeIndex =
        listed ? static_cast<std::int16_t>(named - names.begin()) : FluidValues::typedFluid;
    if (!listed) fluid_.fluidName = combo.text();
    if (fluid_.fluidTypeIndex == waterEntry) takeWater();
    setUnitLabels();
    design().calculationNeeded();
}

/// A listed fluid needs no name, while one that is being typed may yet become another.
void FluidTab::FLFluidTypeCombo_Click() {
    FLFluidTypeCombo_Change();
    if (fluid_.fluidTypeIndex != FluidValues::typedFluid) fluid_.fluidName.clear();
}

void FluidTab::takeWater() {
    fluid_.percentAntifreeze = 100;
    fluid_.specificHeat = 1.0;
    fluid_.density = 62.4;
}

void FluidTab::FLFluidTypeCombo_Leave() {
    const bool typed = fluid_.fluidTypeIndex == FluidValues::typedFluid;
    fluid_.fluidName = typed ? control("FLFluidTypeCombo").text() : std::string();
}

void FluidTab::FLPercentAntifreezeUpDown_Change() {
    const double percent = control("FLPercentAntifreezeUpDown").value();
    design().type("FLPercentAntifreezeText", formatNumber(percent, "###0"));
}

void FluidTab::showFluid() {
    Control& combo = control("FLFluidTypeCombo");
    const int entry = entryOf(fluid_.fluidTypeIndex, static_cast<int>(combo.items().size()));
    {
        const RaisedFlag refilling(design().settingItems);
        combo.setIndex(entry);
        if (entry < 0) combo.setText(fluid_.fluidName);
    }
    control("FLPercentAntifreezeText").setLocked(entry == waterEntry);
    control("FLPercentAntifreezeUpDown").setEnabled(entry != waterEntry);
    showPercent();
}

void FluidTab::showPercent() {
    control("FLPercentAntifreezeUpDown").setValue(fluid_.percentAntifreeze);
}

}  // namespace varnholt
