// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/pipe_tab.h"

#include "basis/run_time_error.h"
#include "design/ground_design.h"
#include "design/modCalculations/bore_resistance.h"
#include "design/modCalculations/pipe_resistance.h"
#include "forms/text_numbers/borehole.h"

namespace varnholt {
namespace {

constexpr int outside = 0;
constexpr int inside = 1;
constexpr int sizes = 4;
constexpr int walls = 5;
constexpr int flowTypes = 3;

}  // namespace

PipeTab::PipeTab(GroundDesign& design, PipeValues& pipe) : DesignTab(design), pipe_(pipe) {}

void PipeTab::addPipeControls(const std::string& frame) {
    addFrame("PIParametersFrame", Text::pipeParameters, frame);
    addCombo("PIPipeDiameterCombo", "PIParametersFrame", "PIPipeDiameterLabel", Text::pipeSize,
             Text::threeQuarterInchPipe, Text::oneAndAHalfInchPipe);
    onClick("PIPipeDiameterCombo", [this] { PIPipeDiameterCombo_Click(); });
    addCombo("PIPipeResistanceCombo(0)", "PIParametersFrame", "PIPipeResistanceLabel(0)",
             Text::pipeType, Text::sdr9, Text::schedule80);
    onClick("PIPipeResistanceCombo(0)", [this] { PIPipeResistanceCombo_Click(0); });
    addCombo("PIPipeResistanceCombo(1)", "PIParametersFrame", "PIPipeResistanceLabel(1)",
             Text::flowType, Text::turbulentFlow, Text::laminarFlow);
    onClick("PIPipeResistanceCombo(1)", [this] { PIPipeResistanceCombo_Click(1); });
    addDiameter(outside, Text::outerDiameter);
    addDiameter(inside, Text::innerDiameter);
    addField({.control = "PIPipeResistanceText",
              .stored = &pipe_.pipeResistance,
              .quantity = &quantities::resistance,
              .fallback = PipeValues().pipeResistance,
              .format = "###0.000",
              .beside = {.frame = "PIParametersFrame",
                         .label = "PIPipeResistanceLabel",
                         .caption = {Text::pipeResistance, Text::pipeResistance},
                         .unitLabel = "PIPipeResistanceUnitsLabel",
                         .unit = {Text::thermalResistanceUnitsEnglish,
                                  Text::thermalResistanceUnitsMetric},
                         .help = "borehole#piping"},
              .changed = [this] { calculateResistance(); }});
    addMenuButton("PIPipeTablesCommand", "PIParametersFrame", Text::pipeTablesButton,
                  "PipeProperties");
}

void PipeTab::addDiameter(int side, int caption) {
    const auto index = static_cast<std::size_t>(side);
    std::function<void()> left;
    // Told once the diameter has been typed to its end, not at every digit on the way.
    if (side == outside) left = [this] { checkPipeFit(); };
    addField({.control = elementName("PIPipeDiameterText", index),
              .stored = &pipe_.pipeDiameter[index],
              .quantity = &quantities::diameter,
              .highest = 1000.0,
              .format = "###0.000",
              .metricFormat = "###0.00",
              .beside = {.frame = "PIParametersFrame",
                         .label = elementName("PIPipeDiameterLabel", index),
                         .caption = {caption, caption},
                         .unitLabel = elementName("PIPipeDiameterUnitLabel", index),
                         .unit = {Text::diameterUnitsEnglish, Text::diameterUnitsMetric},
                         .help = "borehole#piping"},
              .fallbackNow = [this, side] { return tableDiameter(side); },
              .changed = [this] { PIPipeDiameterText_Change(); },
              .left = left});
}

void PipeTab::setUnitLabels() {
    DesignTab::setUnitLabels();
    showPipe();
}

void PipeTab::PIPipeDiameterCombo_Click() {
    const PipeValues before = pipe_;
    pipe_.pipeSizeIndex = control("PIPipeDiameterCombo").index();
    takeDiametersFromTable();
    if (!checkPipeFit()) {
        pipe_ = before;
        showPipe();
        return;
    }
    showDiameters();
    if (!design().settingUnits) recompute();
}

void PipeTab::PIPipeResistanceCombo_Click(int combo) {
    const int chosen =
        control(combo == 0 ? "PIPipeResistanceCombo(0)" : "PIPipeResistanceCombo(1)").index();
    if (combo == 0) {
        pipe_.pipeSdrIndex = chosen;
        takeDiametersFromTable();
        showDiameters();
    } else {
        pipe_.flowTypeIndex = static_cast<std::int16_t>(chosen);
    }
    if (!design().settingUnits) recompute();
}

void PipeTab::PIPipeDiameterText_Change() {
    const double outer = pipe_.pipeDiameter[outside];
    const double inner = pipe_.pipeDiameter[inside];
    if (outer == 0 || inner == 0 || inner >= outer || !pipesFit()) return;
    updatePipeResistance();
    calculateResistance();
}

void PipeTab::updatePipeResistance() {
    if (design().main().openCall) return;
    try {
        pipe_.pipeResistance = modCalculations::pipeResistanceOf(
            configuration(), pipe_.flowTypeIndex, pipe_.pipeDiameter[outside],
            pipe_.pipeDiameter[inside]);
    } catch (const RunTimeError&) {
        pipe_.pipeResistance = 0;
    }
    design().fields().show("PIPipeResistanceText");
}

void PipeTab::recompute() {
    updatePipeResistance();
    calculateResistance();
    design().calculationNeeded();
}

double PipeTab::tableDiameter(int side) const {
    const int size = entryOf(pipe_.pipeSizeIndex, sizes);
    const int wall = entryOf(pipe_.pipeSdrIndex, walls);
    if (size < 0 || wall < 0) return PipeValues().pipeDiameter[static_cast<std::size_t>(side)];
    const modCalculations::PipeDiameters& pipe = modCalculations::pipeTable(size, wall);
    return side == outside ? pipe.outside : pipe.inside;
}

void PipeTab::takeDiametersFromTable() {
    pipe_.pipeDiameter = {tableDiameter(outside), tableDiameter(inside)};
}

void PipeTab::showPipe() {
    control("PIPipeDiameterCombo").setIndex(entryOf(pipe_.pipeSizeIndex, sizes));
    control("PIPipeResistanceCombo(0)").setIndex(entryOf(pipe_.pipeSdrIndex, walls));
    control("PIPipeResistanceCombo(1)").setIndex(entryOf(pipe_.flowTypeIndex, flowTypes));
    showDiameters();
}

void PipeTab::showDiameters() {
    design().fields().show("PIPipeDiameterText(0)");
    design().fields().show("PIPipeDiameterText(1)");
}

}  // namespace varnholt
