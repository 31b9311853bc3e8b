// SPDX-License-Identifier: GPL-3.0-or-later
// The window of a horizontal design: results with the cooling tower, and six pages of inputs.
#include <QLabel>
#include <QLayout>
#include <QTabWidget>

#include "design/frmHZDesign.h"
#include "desktop/drawings/drawings.h"
#include "desktop/views/design_pages.h"
#include "desktop/views/view_pieces.h"
#include "desktop/views/views.h"
#include "desktop/widgets/text_label.h"

namespace varnholt {
namespace {

/// What a drawing asks the design for; nothing once the design is gone.
template <class Model>
std::function<Model()> sourceOf(Binder& bind, Model (frmHZDesign::*model)() const) {
    return [&bind, model] {
        const auto* design = static_cast<const frmHZDesign*>(bind.form());
        return design == nullptr ? Model() : (design->*model)();
    };
}

QWidget* trenchResultsPage(Binder& bind) {
    const std::vector<FieldRows> parts{
        {bind.results("CATotalPipeLengthLabel"), bind.results("CATotalLengthLabel"),
         bind.results("CATrenchLengthLabel"), bind.results("CATrenchNumberLabel"),
         bind.results("CAPipeLengthPerTrenchLabel")},
        unitTemperatures(bind),
        systemPerformance(bind),
        {bind.results("CAFlowRateLabel"), bind.results("CASoilTempChangeLabel")}};
    Drawing* plan =
        newTrenchPlanDrawing(sourceOf(bind, &frmHZDesign::trenchPlan), bind.form()->texts());
    return resultsPageOf(bind, parts, {grow(smallPlan(bind, plan)), grow(towerPanel(bind))});
}

QWidget* trenchSoilPage(Binder& bind) {
    Drawing* chart =
        newGroundTempChart(sourceOf(bind, &frmHZDesign::groundTempCurves), bind.form()->texts());
    QWidget* fields =
        column(groundTempPanel(bind), soilPropertiesPanel(bind), groundSwingPanel(bind));
    return column(group(bind.frame("SOSoilFrame"),
                        grow(reflow(fields, grow(bind.drawing("imgGroundTemp", chart))))));
}

QWidget* trenchPipePage(Binder& bind) {
    return column(group(bind.frame("PIPipeFrame"), pipePanel(bind)));
}

QWidget* trenchFields(Binder& bind) {
    FieldRow number = bind.row("PASeparationText(3)");
    number.unit = bind.widget("PAConfigurationUpDown(0)");
    return group(bind.frame("PATrenchFrame"),
                 grid(number, bind.row("PASeparationText(0)"), bind.row("PASeparationText(1)"),
                      bind.row("PASeparationText(2)")));
}

/// Straight pipes beside slinkies.
QWidget* arrangements(Binder& bind) {
    return row_(closeTogether(column(bind.widget("PAConfigurationOption(0)"),
                                     bind.widget("PAConfigurationOption(1)"),
                                     bind.widget("PAConfigurationOption(2)"))),
                gap(),
                closeTogether(column(bind.widget("PAConfigurationOption(3)"),
                                     bind.widget("PAConfigurationOption(4)"))));
}

/// The number of pipes, with its figures below those of the fields.
QWidget* pipeCount(Binder& bind) {
    constexpr int edgeOfField = gridStep + 2;
    auto* count = static_cast<QLabel*>(bind.widget("PAInTrenchConfigurationLabel(3)"));
    count->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    asFigures(count);
    count->setContentsMargins(0, 0, edgeOfField, 0);
    return count;
}

/// The number of pipes stands in the place where a slinky has its pitch.
FieldRow pitchOrPipes(Binder& bind) {
    FieldRow row = bind.row("PAInTrenchConfigurationText(0)");
    row.fields = {row_(row.fields.front(), grow(pipeCount(bind)))};
    mute(row.unit);
    row.unit = centredRow(row.unit, bind.widget("PAConfigurationUpDown(1)"));
    return row;
}

QWidget* trenchPipeFields(Binder& bind) {
    return group(bind.frame("PAInTrenchFrame"), arrangements(bind),
                 grid(pitchOrPipes(bind), bind.row("PAInTrenchConfigurationText(1)"),
                      bind.row("PAInTrenchConfigurationText(2)")),
                 bind.widget("PAOffsetCheck"));
}

/// The pictures of all arrangements; the form shows the one of the chosen.
QWidget* pictures(Binder& bind) {
    const Texts& texts = bind.form()->texts();
    std::vector<Piece> pieces;
    for (const std::size_t i : {0U, 1U, 2U})
        pieces.push_back(
            grow(bind.drawing(elementName("PADiagramPicture", i),
                              newTrenchDrawing(sourceOf(bind, &frmHZDesign::trenchDrawing), texts)),
                 3));
    for (const std::size_t i : {0U, 1U, 2U, 3U, 4U})
        pieces.push_back(grow(
            bind.drawing(elementName("imgConfiguration", i),
                         newTrenchPlanDrawing(sourceOf(bind, &frmHZDesign::trenchPlan), texts)),
            2));
    return columnOf(pieces);
}

QWidget* configurationPage(Binder& bind) {
    return column(group(bind.frame("PAFieldFrame"),
                        grow(reflow(closeTogether(column(trenchFields(bind), trenchPipeFields(bind),
                                                         group(bind.frame("PATimeFrame"),
                                                               grid(bind.row("PATimeText"))))),
                                    grow(pictures(bind))))));
}

}  // namespace

QWidget* makeHorizontalView(Binder& bind) {
    QWidget* pages = bind.tabs("HZTabs", {[&bind] { return page(trenchResultsPage(bind)); },
                                          [&bind] { return page(fluidPage(bind)); },
                                          [&bind] { return page(trenchSoilPage(bind)); },
                                          [&bind] { return page(trenchPipePage(bind)); },
                                          [&bind] { return page(configurationPage(bind)); },
                                          [&bind] { return page(extraPowerPage(bind)); },
                                          [&bind] { return page(informationPage(bind)); }});
    return designWindow(bind, pages);
}

}  // namespace varnholt
