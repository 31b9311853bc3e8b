// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/bore_tab.h"

#include <array>

#include "basis/number_text.h"
#include "basis/run_time_error.h"
#include "design/ground_design.h"
#include "design/modCalculations/bore_resistance.h"
#include "forms/text_numbers/borehole.h"

namespace varnholt {
namespace {

constexpr int configurations = 2;
constexpr int placements = 3;
constexpr std::array<int, configurations> configurationCaptions{Text::singleUTube,
                                                                Text::doubleUTube};
constexpr std::array<int, placements> placementCaptions{
    Text::placementAlongOuterWall, Text::placementAverage, Text::placementCloseTogether};
constexpr int single = 0;
constexpr int average = 1;

}  // namespace

BoreTab::BoreTab(GroundDesign& design, PipeValues& pipe, BoreValues& bore)
    : PipeTab(design, pipe), bore_(bore) {
    addFrame("PIPipeFrame", Text::pipeSizeAndResistance);
    addPipeControls("PIPipeFrame");
    addConfiguration();
    addPlacement();
    addBore();
    addGrout();
    addResistance();
    add("imgBore", ControlKind::image, "PIPipeFrame");
}

void BoreTab::addConfiguration() {
    addFrame("PIConfigurationFrame", Text::uTubeConfiguration, "PIPipeFrame");
    for (int i = 0; i < configurations; ++i) {
        const std::string name = elementName("PIConfigurationOption", static_cast<std::size_t>(i));
        add(name, ControlKind::option, "PIConfigurationFrame",
            configurationCaptions[static_cast<std::size_t>(i)])
            .grouped("PIConfigurationOption");
        onClick(name, [this, i] { PIConfigurationOption_Click(i); });
    }
}

void BoreTab::addPlacement() {
    addFrame("PIPlacementFrame", Text::pipeRadialPlacement, "PIPipeFrame");
    for (int i = 0; i < placements; ++i) {
        const std::string name = elementName("PIPlacementOption", static_cast<std::size_t>(i));
        add(name, ControlKind::option, "PIPlacementFrame",
            placementCaptions[static_cast<std::size_t>(i)])
            .grouped("PIPlacementOption");
        onClick(name, [this, i] { PIPlacementOption_Click(i); });
    }
}

void BoreTab::addBore() {
    addFrame("PIBoreholeDiameterFrame", Text::boreholeDiameterHeading, "PIPipeFrame");
    addField({.control = "PIBoreholeDiameterText",
              .stored = &bore_.boreDiameter,
              .quantity = &quantities::diameter,
              .fallback = BoreValues().boreDiameter,
              .format = "###0.00",
              .beside = {.frame = "PIBoreholeDiameterFrame",
                         .label = "PIBoreholeDiameterLabel",
                         .caption = {Text::boreholeDiameter, Text::boreholeDiameter},
                         .unitLabel = "PIBoreholeDiameterUnitsLabel",
                         .unit = {Text::diameterUnitsEnglish, Text::diameterUnitsMetric},
                         .help = "borehole#piping"},
              .left = [this] { PIBoreholeDiameterText_Leave(); }});
}

void BoreTab::addGrout() {
    addFrame("PIGroutFrame", Text::groutInformation, "PIPipeFrame");
    addField({.control = "PIGroutConductivityText",
              .stored = &bore_.groutConductivity,
              .quantity = &quantities::conductivity,
              .fallback = BoreValues().groutConductivity,
              .format = "###0.00",
              .beside = {.frame = "PIGroutFrame",
                         .label = "PIGroutConductivityLabel",
                         .caption = {Text::groutConductivity, Text::groutConductivity},
                         .unitLabel = "PIGroutThermalConductivityUnitsLabel",
                         .unit = {Text::thermalConductivityUnitsEnglish,
                                  Text::thermalConductivityUnitsMetric},
                         .help = "borehole#piping"},
              .changed = [this] { calculateResistance(); }});
}

void BoreTab::addResistance() {
    addFrame("PIThermalResistanceFrame", Text::boreholeEquivalentResistance, "PIPipeFrame");
    addField({.control = "PIThermalResistanceText",
              .stored = &bore_.boreResistance,
              .quantity = &quantities::resistance,
              .fallback = BoreValues().boreResistance,
              .format = "###0.000",
              .beside = {
                  .frame = "PIThermalResistanceFrame",
                  .label = "PIThermalResistanceLabel",
                  .caption = {Text::boreholeResistance, Text::boreholeResistance},
                  .unitLabel = "PIThermalResistanceUnitsLabel",
                  .unit = {Text::thermalResistanceUnitsEnglish, Text::thermalResistanceUnitsMetric},
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
               text(metric() ? Text::diameterUnitsMetric : Text::diameterUnitsEnglish);
    };
    const double span = modCalculations::pipeSpan(outsideDiameter(), configuration());
    return text(Text::pipesDoNotFit) + "\n\n" + text(Text::boreholeDiameterHeading) + ": " +
           shown(bore_.boreDiameter) + "\n" + text(Text::widthOfPipes) + ": " + shown(span);
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
