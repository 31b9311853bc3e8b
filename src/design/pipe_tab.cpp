// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/pipe_tab.h"

#include "basis/run_time_error.h"
#include "design/ground_design.h"
#include "design/modCalculations/bore_resistance.h"
#include "design/modCalculations/pipe_resistance.h"

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
    addFrame("PIParametersFrame", 2406, frame);
    addCombo("PIPipeDiameterCombo", "PIParametersFrame", "PIPipeDiameterLabel", 2436, 2418, 2421);
    onClick("PIPipeDiameterCombo", [this] { PIPipeDiameterCombo_Click(); });
    addCombo("PIPipeResistanceCombo(0)", "PIParametersFrame", "PIPipeResistanceLabel(0)", 2439,
             2409, 2413);
    onClick("PIPipeResistanceCombo(0)", [this] { PIPipeResistanceCombo_Click(0); });
    addCombo("PIPipeResistanceCombo(1)", "PIParametersFrame", "PIPipeResistanceLabel(1)", 2437,
             2414, 2416);
    onClick("PIPipeResistanceCombo(1)", [this] { PIPipeResistanceCombo_Click(1); });
    addDiameter(outside, 2440);
    addDiameter(inside, 2441);
    NumericFieldRow resistance{"PIPipeResistanceText", &pipe_.pipeResistance};
    resistance.quantity = &quantities::resistance;
    resistance.fallback = PipeValues().pipeResistance;
    resistance.format = "###0.000";
    resistance.changed = [this] { calculateResistance(); };
    addField(resistance, {"PIParametersFrame", 2408, 2404, 2405, "PIPipeResistanceUnitsLabel"});
    addMenuButton("PIPipeTablesCommand", "PIParametersFrame", 2417, "PipeProperties");
}

void PipeTab::addDiameter(int element, int caption) {
    const std::string name = "PIPipeDiameterText(" + std::to_string(element) + ")";
    NumericFieldRow row{name, &pipe_.pipeDiameter[static_cast<std::size_t>(element)]};
    row.quantity = &quantities::diameter;
    row.highest = 1000.0;
    row.fallbackNow = [this, element] { return tableDiameter(element); };
    row.format = "###0.000";
    row.metricFormat = "###0.00";
    row.changed = [this] { PIPipeDiameterText_Change(); };
    // Told once the diameter has been typed to its end, not at every digit on the way.
    if (element == outside) row.left = [this] { checkPipeFit(); };
    addField(row, {"PIParametersFrame", caption, 2448, 2449});
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

void PipeTab::PIPipeResistanceCombo_Click(int element) {
    const int chosen =
        control(element == 0 ? "PIPipeResistanceCombo(0)" : "PIPipeResistanceCombo(1)").index();
    if (element == 0) {
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

double PipeTab::tableDiameter(int element) const {
    const int size = entryOf(pipe_.pipeSizeIndex, sizes);
    const int wall = entryOf(pipe_.pipeSdrIndex, walls);
    if (size < 0 || wall < 0) return PipeValues().pipeDiameter[static_cast<std::size_t>(element)];
    const modCalculations::PipeDiameters& pipe = modCalculations::pipeTable(size, wall);
    return element == outside ? pipe.outside : pipe.inside;
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
