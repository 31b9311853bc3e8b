// SPDX-License-Identifier: GPL-3.0-or-later
// The window of a borehole design: results with the cooling tower, and six pages of inputs.
#include <QTabWidget>

#include "design/frmBHDesign.h"
#include "desktop/drawings/drawings.h"
#include "desktop/views/view_pieces.h"
#include "desktop/views/views.h"

namespace varnholt {
namespace {

constexpr int noLoadsText = 2160;

const frmBHDesign* designOf(const Binder& bind) {
    return static_cast<const frmBHDesign*>(bind.form());
}

QWidget* results(Binder& bind) {
    return group(
        bind.frame("CACalculationFrame"),
        grid(bind.heads("CATopLabel(0)", "CATopLabel(1)"), bind.results("CATotalLengthLabel"),
             bind.results("CABoreholeNumberLabel"), bind.results("CABoreholeLengthLabel"),
             bind.wide(rule()), bind.results("CAUnitInletLabel"), bind.results("CAUnitOutletLabel"),
             bind.wide(rule()), bind.results("CATotalCapacityLabel"),
             bind.results("CAPeakLoadLabel"), bind.results("CAPeakDemandLabel"),
             bind.results("CAPumpCOPLabel"), bind.results("CASystemCOPLabel"), bind.wide(rule()),
             bind.results("CAFlowRateLabel"), bind.results("CASoilTempChangeLabel")),
        buttons(bind.primary("CACalculateCommand")), hint(bind, noLoadsText, [&bind] {
            const frmBHDesign* design = designOf(bind);
            return design != nullptr && design->zoneNumber == 0;
        }));
}

FieldRow loadBalance(Binder& bind) {
    FieldRow row;
    row.caption = bind.widget("CAPercentHybridLabel(1)");
    row.fields = {bind.widget("CAHybridSlider")};
    row.more = {bind.widget("CAPercentHybridLabel(0)")};
    return row;
}

QWidget* tower(Binder& bind) {
    return group(
        bind.frame("CAHybridFrame"), grid(loadBalance(bind)),
        grid(bind.figure("CACondenserCapacityLabel(1)", "CACondenserCapacityLabel(0)",
                         {bind.widget("CACondenserCapacityUpDown")}),
             bind.figure("CACoolingTowerFlowRateLabel(1)", "CACoolingTowerFlowRateLabel(0)",
                         {bind.widget("CACoolingTowerFlowRateUpDown")}),
             bind.figure("CACoolingTowerRangeLabel(1)", "CACoolingTowerRangeLabel(0)",
                         {bind.widget("CACoolingRangeUpDown")}),
             bind.figure("CACoolingTowerHoursLabel(1)", "CACoolingTowerHoursLabel(0)")));
}

QWidget* resultsPage(Binder& bind) { return row_(grow(results(bind)), grow(tower(bind))); }

/// The name of the fluid, and behind it how much of it is in the water.
FieldRow fluidType(Binder& bind) {
    const FieldRow percent = bind.row("FLPercentAntifreezeText");
    return bind.row("FLFluidTypeCombo", {percent.fields.front(), percent.caption});
}

FieldRow density(Binder& bind) {
    FieldRow row = bind.row("FLFluidDensityText");
    row.unit = bind.widget("FLDensityUnitsLabel");
    return row;
}

QWidget* fluidPage(Binder& bind) {
    bind.mark("FLInletTempText(0)", cooling).mark("FLInletTempText(1)", heating);
    return column(group(bind.frame("FLFluidFrame"),
                        group(bind.frame("FLInletTempFrame"),
                              grid(bind.row("FLInletTempText(0)"), bind.row("FLInletTempText(1)"))),
                        group(bind.frame("FLFlowRateFrame"), grid(bind.row("FLFlowRateText"))),
                        group(bind.frame("FLSolutionFrame"),
                              grid(fluidType(bind), bind.row("FLSpecificHeatText"), density(bind)),
                              buttons(bind.widget("FLTablesButton")))));
}

QWidget* soilPage(Binder& bind) {
    return column(group(
        bind.frame("SOSoilFrame"),
        group(bind.frame("SOGroundTempFrame"), grid(bind.row("SOGroundTempText"))),
        group(bind.frame("SOPropertiesFrame"),
              grid(bind.row("SOThermalConductivityText"), bind.row("SOThermalDiffusivityText")),
              buttons(bind.widget("SOSoilCommand(0)"), bind.widget("SOSoilCommand(1)")))));
}

FieldRow groutConductivity(Binder& bind) {
    FieldRow row = bind.row("PIGroutConductivityText");
    row.unit = bind.widget("PIGroutThermalConductivityUnitsLabel");
    return row;
}

QWidget* pipeFields(Binder& bind) {
    return column(
        group(bind.frame("PIParametersFrame"),
              grid(bind.row("PIPipeDiameterCombo"), bind.row("PIPipeResistanceCombo(0)"),
                   bind.row("PIPipeResistanceCombo(1)"), bind.row("PIPipeDiameterText(0)"),
                   bind.row("PIPipeDiameterText(1)"), bind.row("PIPipeResistanceText")),
              buttons(bind.widget("PIPipeTablesCommand"))),
        group(bind.frame("PIConfigurationFrame"), buttons(bind.widget("PIConfigurationOption(0)"),
                                                          bind.widget("PIConfigurationOption(1)"))),
        group(bind.frame("PIPlacementFrame"),
              buttons(bind.widget("PIPlacementOption(0)"), bind.widget("PIPlacementOption(1)"),
                      bind.widget("PIPlacementOption(2)"))));
}

QWidget* boreFields(Binder& bind) {
    return column(
        grow(bind.drawing("imgBore", newBoreDrawing(
                                         [&bind] {
                                             const frmBHDesign* design = designOf(bind);
                                             return design == nullptr ? BoreDrawing()
                                                                      : design->boreDrawing();
                                         },
                                         bind.form()->texts()))),
        group(bind.frame("PIBoreholeDiameterFrame"), grid(bind.row("PIBoreholeDiameterText"))),
        group(bind.frame("PIGroutFrame"), grid(groutConductivity(bind))),
        group(bind.frame("PIThermalResistanceFrame"), grid(bind.row("PIThermalResistanceText"))));
}

QWidget* pipePage(Binder& bind) {
    return column(group(bind.frame("PIPipeFrame"),
                        grow(row_(grow(pipeFields(bind)), gap(), grow(boreFields(bind))))));
}

QWidget* arrangementFields(Binder& bind) {
    return column(group(bind.frame("PAPatternFrame"),
                        grid(bind.row("PAPatternRowsText(0)"), bind.row("PAPatternRowsText(1)"))),
                  group(bind.frame("PASeparationFrame"), grid(bind.row("PASeparationText"))),
                  group(bind.frame("PABoresPerParallelLoopFrame"),
                        grid(bind.row("PABoresPerParallelLoopText"))),
                  group(bind.frame("PATimeFrame"), grid(bind.row("PATimeText"))));
}

QWidget* arrangementPage(Binder& bind) {
    Drawing* plan = newFieldDrawing(
        [&bind] {
            const frmBHDesign* design = designOf(bind);
            return design == nullptr ? FieldPlan() : design->fieldPlan();
        },
        bind.form()->texts());
    return column(
        group(bind.frame("PAFieldFrame"),
              grow(row_(arrangementFields(bind), gap(), grow(bind.drawing("imgField", plan))))));
}

/// A pump or fan: shaft power and motor efficiency, and the power that these need.
QWidget* motor(Binder& bind, int shaft, int efficiency, int input) {
    return grid(bind.row("EKWPumpPowerText(" + std::to_string(shaft) + ")"),
                bind.row("EKWPumpEfficiencyText(" + std::to_string(efficiency) + ")"),
                bind.row("EKWPumpPowerText(" + std::to_string(input) + ")"));
}

QWidget* extraPowerPage(Binder& bind) {
    return column(group(bind.frame("EKWCirculationFrame"), motor(bind, 1, 0, 0),
                        buttons(bind.widget("EKWPumpPowerCommand"))),
                  group(bind.frame("EKWAdditionalFrame"), grid(bind.row("EKWPumpPowerText(2)"))),
                  group(bind.frame("EKWCoolingTowerFrame"),
                        group(bind.frame("EKWTowerFanFrame"), motor(bind, 4, 1, 3)),
                        group(bind.frame("EKWTowerPumpFrame"), motor(bind, 6, 2, 5))));
}

QWidget* informationPage(Binder& bind) {
    return column(group(
        bind.frame("INProjectFrame"),
        grow(row_(grow(column(grid(bind.row("INProjectNameText"), bind.row("INDesignerNameText"),
                                   bind.row("INClientNameText"), bind.row("INAddressLine1Text"),
                                   bind.row("INAddressLine2Text"), bind.row("INCityText"),
                                   bind.row("INStateText"), bind.row("INZipText"),
                                   bind.row("INPhoneText"), bind.row("INFaxText"),
                                   bind.row("INEmailText")))),
                  grow(column(grid(bind.row("INDateDTPicker"), bind.row("INStartDateDTPicker")),
                              bind.widget("INCommentsLabel"),
                              grow(bind.widget("INCommentsRichTextBox"))))))));
}

}  // namespace

QWidget* makeBoreholeView(Binder& bind) {
    QWidget* pages =
        bind.tabs("BHTabs", {page(resultsPage(bind)), page(fluidPage(bind)), page(soilPage(bind)),
                             page(pipePage(bind)), page(arrangementPage(bind)),
                             page(extraPowerPage(bind)), page(informationPage(bind))});
    // The results take more room than the zeros that they begin with.
    return roomy(
        column(bar(row_(bind.widget("MetricCheck"), stretch(), linkLights(bind))), grow(pages)),
        {980, 640});
}

}  // namespace varnholt
