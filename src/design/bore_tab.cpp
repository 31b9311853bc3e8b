// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/bore_tab.h"

#include <array>

#include "basis/number_text.h"
#include "basis/run_time_error.h"
#include "design/ground_design.h"
#include "design/modCalculations/bore_resistance.h"

namespace varnholt {
namespace {

constexpr int configurations = 2;
constexpr int placements = 3;
constexpr std::array<int, configurations> configurationCaptions{2430, 2431};
constexpr std::array<int, placements> placementCaptions{2433, 2434, 2435};
constexpr int single = 0;
constexpr int average = 1;

std::string option(const char* name, int element) {
    return std::string(name) + "(" + std::to_string(element) + ")";
}

}  // namespace

BoreTab::BoreTab(GroundDesign& design, PipeValues& pipe, BoreValues& bore)
    : PipeTab(design, pipe), bore_(bore) {
    addFrame("PIPipeFrame", 2401);
    addPipeControls("PIPipeFrame");
    addConfiguration();
    addPlacement();
    addBore();
    addGrout();
    addResistance();
    add("imgBore", ControlKind::image, "PIPipeFrame");
}

void BoreTab::addConfiguration() {
    addFrame("PIConfigurationFrame", 2429, "PIPipeFrame");
    for (int i = 0; i < configurations; ++i) {
        const std::string name = option("PIConfigurationOption", i);
        add(name, ControlKind::option, "PIConfigurationFrame",
            configurationCaptions[static_cast<std::size_t>(i)])
            .grouped("PIConfigurationOption");
        onClick(name, [this, i] { PIConfigurationOption_Click(i); });
    }
}

void BoreTab::addPlacement() {
    addFrame("PIPlacementFrame", 2432, "PIPipeFrame");
    for (int i = 0; i < placements; ++i) {
        const std::string name = option("PIPlacementOption", i);
        add(name, ControlKind::option, "PIPlacementFrame",
            placementCaptions[static_cast<std::size_t>(i)])
            .grouped("PIPlacementOption");
        onClick(name, [this, i] { PIPlacementOption_Click(i); });
    }
}

void BoreTab::addBore() {
    addFrame("PIBoreholeDiameterFrame", 2423, "PIPipeFrame");
    NumericFieldRow row{"PIBoreholeDiameterText", &bore_.boreDiameter, &quantities::diameter};
    row.fallback = BoreValues().boreDiameter;
    row.format = "###0.00";
    row.left = [this] { PIBoreholeDiameterText_Leave(); };
    addField(row, {"PIBoreholeDiameterFrame", 2424, 2448, 2449, "PIBoreholeDiameterUnitsLabel"});
}

void BoreTab::addGrout() {
    addFrame("PIGroutFrame", 2422, "PIPipeFrame");
    NumericFieldRow row{"PIGroutConductivityText", &bore_.groutConductivity,
                        &quantities::conductivity};
    row.fallback = BoreValues().groutConductivity;
    row.format = "###0.00";
    row.changed = [this] { calculateResistance(); };
    addField(row, {"PIGroutFrame", 2426, 2446, 2447, "PIGroutThermalConductivityUnitsLabel"});
}

void BoreTab::addResistance() {
    addFrame("PIThermalResistanceFrame", 2402, "PIPipeFrame");
    NumericFieldRow row{"PIThermalResistanceText", &bore_.boreResistance, &quantities::resistance};
    row.fallback = BoreValues().boreResistance;
    row.format = "###0.000";
    addField(row, {"PIThermalResistanceFrame", 2403, 2404, 2405, "PIThermalResistanceUnitsLabel"});
}

void BoreTab::setUnitLabels() {
    PipeTab::setUnitLabels();
    showOptions();
}

int BoreTab::configuration() const { return entryOf(bore_.uTubeConfig, configurations); }

bool BoreTab::pipesFit() const {
    return modCalculations::pipesFit(outsideDiameter(), configuration(), bore_.boreDiameter);
}

bool BoreTab::checkPipeFit() {
    if (pipesFit()) return true;
    tell(MessageIcon::exclamation, misfitMessage());
    return false;
}

std::string BoreTab::misfitMessage() const {
    const auto shown = [this](double inches) {
        return formatNumber(quantities::diameter.shown(inches, design().units()), "###0.00") + " " +
               text(metric() ? 2448 : 2449);
    };
    const double span = modCalculations::pipeSpan(outsideDiameter(), configuration());
    return text(2453) + "\n\n" + text(2423) + ": " + shown(bore_.boreDiameter) + "\n" + text(2454) +
           ": " + shown(span);
}

void BoreTab::calculateResistance() {
    if (design().main().openCall) return;
    const int placement = entryOf(bore_.pipePlacement, placements);
    try {
        bore_.boreResistance = modCalculations::boreResistanceOf(
            {bore_.boreDiameter, bore_.groutConductivity}, outsideDiameter(), configuration(),
            modCalculations::shapeFit(placement < 0 ? average : placement), pipe_.pipeResistance);
    } catch (const RunTimeError&) {
        bore_.boreResistance = 0;
    }
    design().fields().show("PIThermalResistanceText");
}

void BoreTab::PIConfigurationOption_Click(int element) {
    bore_.uTubeConfig = element;
    if (!checkPipeFit() && element != single) {
        bore_.uTubeConfig = single;
        showOptions();
        return;
    }
    recompute();
}

void BoreTab::PIPlacementOption_Click(int element) {
    bore_.pipePlacement = element;
    recompute();
}

void BoreTab::PIBoreholeDiameterText_Leave() {
    const BoreValues before = bore_;
    if (!checkPipeFit()) {
        bore_.boreDiameter = modCalculations::boreDiameterFor(outsideDiameter(), configuration());
        design().fields().show("PIBoreholeDiameterText");
    }
    calculateResistance();
    if (!(bore_ == before)) design().calculationNeeded();
}

void BoreTab::showOptions() {
    for (int i = 0; i < configurations; ++i)
        control(option("PIConfigurationOption", i)).setChecked(bore_.uTubeConfig == i);
    for (int i = 0; i < placements; ++i)
        control(option("PIPlacementOption", i)).setChecked(bore_.pipePlacement == i);
}

}  // namespace varnholt
