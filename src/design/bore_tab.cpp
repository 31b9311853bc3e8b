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
        const std::string name = elementName("PIConfigurationOption", static_cast<std::size_t>(i));
        add(name, ControlKind::option, "PIConfigurationFrame",
            configurationCaptions[static_cast<std::size_t>(i)])
            .grouped("PIConfigurationOption");
        onClick(name, [this, i] { PIConfigurationOption_Click(i); });
    }
}

void BoreTab::addPlacement() {
    addFrame("PIPlacementFrame", 2432, "PIPipeFrame");
    for (int i = 0; i < placements; ++i) {
        const std::string name = elementName("PIPlacementOption", static_cast<std::size_t>(i));
        add(name, ControlKind::option, "PIPlacementFrame",
            placementCaptions[static_cast<std::size_t>(i)])
            .grouped("PIPlacementOption");
        onClick(name, [this, i] { PIPlacementOption_Click(i); });
    }
}

void BoreTab::addBore() {
    addFrame("PIBoreholeDiameterFrame", 2423, "PIPipeFrame");
    addField({.control = "PIBoreholeDiameterText",
              .stored = &bore_.boreDiameter,
              .quantity = &quantities::diameter,
              .fallback = BoreValues().boreDiameter,
              .format = "###0.00",
              .beside = {.frame = "PIBoreholeDiameterFrame",
                         .label = "PIBoreholeDiameterLabel",
                         .caption = {2424, 2424},
                         .unitLabel = "PIBoreholeDiameterUnitsLabel",
                         .unit = {2449, 2448},
                         .help = "borehole#piping"},
              .left = [this] { PIBoreholeDiameterText_Leave(); }});
}

void BoreTab::addGrout() {
    addFrame("PIGroutFrame", 2422, "PIPipeFrame");
    addField({.control = "PIGroutConductivityText",
              .stored = &bore_.groutConductivity,
              .quantity = &quantities::conductivity,
              .fallback = BoreValues().groutConductivity,
              .format = "###0.00",
              .beside = {.frame = "PIGroutFrame",
                         .label = "PIGroutConductivityLabel",
                         .caption = {2426, 2426},
                         .unitLabel = "PIGroutThermalConductivityUnitsLabel",
                         .unit = {2447, 2446},
                         .help = "borehole#piping"},
              .changed = [this] { calculateResistance(); }});
}

void BoreTab::addResistance() {
    addFrame("PIThermalResistanceFrame", 2402, "PIPipeFrame");
    addField({.control = "PIThermalResistanceText",
              .stored = &bore_.boreResistance,
              .quantity = &quantities::resistance,
              .fallback = BoreValues().boreResistance,
              .format = "###0.000",
              .beside = {.frame = "PIThermalResistanceFrame",
                         .label = "PIThermalResistanceLabel",
                         .caption = {2403, 2403},
                         .unitLabel = "PIThermalResistanceUnitsLabel",
                         .unit = {2405, 2404},
                         .help = "borehole#resistance"}});
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
        control(elementName("PIConfigurationOption", static_cast<std::size_t>(i)))
            .setChecked(bore_.uTubeConfig == i);
    for (int i = 0; i < placements; ++i)
        control(elementName("PIPlacementOption", static_cast<std::size_t>(i)))
            .setChecked(bore_.pipePlacement == i);
}

}  // namespace varnholt
