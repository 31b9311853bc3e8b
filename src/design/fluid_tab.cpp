// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/fluid_tab.h"

#include <algorithm>

#include "basis/number_text.h"
#include "design/ground_design.h"

namespace varnholt {
namespace {

constexpr int water = 0;  // first of the list

}  // namespace

FluidTab::FluidTab(GroundDesign& design, FluidValues& fluid) : DesignTab(design), fluid_(fluid) {
    addFrame("FLFluidFrame", 2201);
    addTemperatures();
    addFlow();
    addSolution();
    addProperties();
}

void FluidTab::addTemperatures() {
    addFrame("FLInletTempFrame", 2202, "FLFluidFrame");
    const auto temperature = [this](Mode mode, const char* name, double fallback) {
        NumericFieldRow row{name,    &design().inletTemp[mode], &quantities::temperature, 0, 212,
                            fallback};
        row.changed = [this, mode] { design().passTemperature(mode); };
        row.left = [this] { design().refreshLoadsPumps(); };
        return row;
    };
    addField(temperature(cooling, "FLInletTempText(0)", 85),
             {"FLInletTempFrame", 2203, 2205, 2206});
    addField(temperature(heating, "FLInletTempText(1)", 55),
             {"FLInletTempFrame", 2204, 2205, 2206});
}

void FluidTab::addFlow() {
    addFrame("FLFlowRateFrame", 2207, "FLFluidFrame");
    NumericFieldRow row{"FLFlowRateText", &design().flowRate, &quantities::waterFlow, 0, 212, 3};
    row.changed = [this] { design().passFlow(); };
    row.left = [this] { design().refreshLoadsPumps(); };
    addField(row, {"FLFlowRateFrame", 2208, 2209, 2210, "FLFlowRateUnitsLabel"});
}

void FluidTab::addSolution() {
    addFrame("FLSolutionFrame", 2211, "FLFluidFrame");
    addCombo("FLFluidTypeCombo", "FLSolutionFrame", "FLFluidTypeLabel", 2212, 2224, 2230)
        .editableText();
    onClick("FLFluidTypeCombo", [this] { FLFluidTypeCombo_Change(); });
    onChange("FLFluidTypeCombo", [this] { FLFluidTypeCombo_Change(); });
    onLeave("FLFluidTypeCombo", [this] { FLFluidTypeCombo_Leave(); });
    NumericFieldRow percent{"FLPercentAntifreezeText",
                            &fluid_.percentAntifreeze,
                            &quantities::plain,
                            0,
                            100,
                            0,
                            "###0"};
    percent.changed = [this] { showPercent(); };
    addField(percent, {"FLSolutionFrame", 2213});
    add("FLPercentAntifreezeUpDown", ControlKind::upDown, "FLSolutionFrame").setRange(0, 100);
    onSlide("FLPercentAntifreezeUpDown", [this] { FLPercentAntifreezeUpDown_Change(); });
}

void FluidTab::addProperties() {
    NumericFieldRow heat{"FLSpecificHeatText",
                         &fluid_.specificHeat,
                         &quantities::specificHeat,
                         0,
                         10000,
                         1,
                         "###0.00",
                         "###0.000"};
    addField(heat, {"FLSolutionFrame", 2216, 2217, 2218, "FLSpecificHeatUnitsLabel"});
    NumericFieldRow density{
        "FLFluidDensityText", &fluid_.density, &quantities::density, 0, 10000, 62.4};
    addField(density, {"FLSolutionFrame", 2219, 2220, 2221, "FLDensityUnitsLabel"});
    addMenuButton("FLTablesButton", "FLSolutionFrame", 2222, "FluidProperties");
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
    if (fluid_.fluidTypeIndex == water) takeWater();
    setUnitLabels();
    design().calculationNeeded();
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
    design().settingItems = true;
    combo.setIndex(entry);
    if (entry < 0) combo.setText(fluid_.fluidName);
    design().settingItems = false;
    control("FLPercentAntifreezeText").setLocked(entry == water);
    control("FLPercentAntifreezeUpDown").setEnabled(entry != water);
    showPercent();
}

void FluidTab::showPercent() {
    control("FLPercentAntifreezeUpDown").setValue(fluid_.percentAntifreeze);
}

}  // namespace varnholt
