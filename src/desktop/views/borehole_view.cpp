// SPDX-License-Identifier: GPL-3.0-or-later
// The window of a borehole design: results with the cooling tower, and six pages of inputs.
#include <QTabWidget>

#include "design/frmBHDesign.h"
#include "desktop/drawings/drawings.h"
#include "desktop/views/design_pages.h"
#include "desktop/views/view_pieces.h"
#include "desktop/views/views.h"
#include "desktop/widgets/text_label.h"

namespace varnholt {
namespace {

const frmBHDesign* designOf(const Binder& bind) {
    return static_cast<const frmBHDesign*>(bind.form());
}

/// What the plans of the field ask the design for.
std::function<FieldPlan()> fieldOf(const Binder& bind) {
    return [&bind] {
        const frmBHDesign* design = designOf(bind);
        return design == nullptr ? FieldPlan() : design->fieldPlan();
    };
}

QWidget* boreResultsPage(Binder& bind) {
    QWidget* stands = bind.widget("CASecondStandsLabel");
    mute(stands);
    const std::vector<FieldRows> parts{
        {bind.results("CATotalLengthLabel"), bind.results("CABoreholeNumberLabel"),
         bind.results("CABoreholeLengthLabel")},
        {bind.results("CASecondLengthLabel"), bind.results("CASecondDepthLabel"),
         bind.wide(row_(stands, stretch(), bind.widget("CASecondOpinionCommand"),
                        bind.widget("CAWhatIfCommand")))},
        unitTemperatures(bind),
        systemPerformance(bind),
        {bind.results("CAFlowRateLabel"), bind.results("CASoilTempChangeLabel")}};
    Drawing* plan = newSmallFieldDrawing(fieldOf(bind), bind.form()->texts());
    return resultsPageOf(bind, parts, {grow(smallPlan(bind, plan)), grow(towerPanel(bind))});
}

QWidget* borePipeFields(Binder& bind) {
    return column(
        pipePanel(bind),
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
        group(bind.frame("PIGroutFrame"), grid(bind.row("PIGroutConductivityText"))),
        group(bind.frame("PIThermalResistanceFrame"), grid(bind.row("PIThermalResistanceText"))));
}

QWidget* pipePage(Binder& bind) {
    return column(group(bind.frame("PIPipeFrame"),
                        grow(reflow(grow(borePipeFields(bind)), grow(boreFields(bind))))));
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
    Drawing* plan = newFieldDrawing(fieldOf(bind), bind.form()->texts());
    return column(
        group(bind.frame("PAFieldFrame"),
              grow(reflow(arrangementFields(bind), grow(bind.drawing("imgField", plan))))));
}

}  // namespace

QWidget* makeBoreholeView(Binder& bind) {
    QWidget* pages = bind.tabs(
        "BHTabs",
        {[&bind] { return page(boreResultsPage(bind)); }, [&bind] { return page(fluidPage(bind)); },
         [&bind] { return page(soilPage(bind)); }, [&bind] { return page(pipePage(bind)); },
         [&bind] { return page(arrangementPage(bind)); },
         [&bind] { return page(extraPowerPage(bind)); },
         [&bind] { return page(informationPage(bind)); }});
    return designWindow(bind, pages);
}

}  // namespace varnholt
