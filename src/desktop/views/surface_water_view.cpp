// SPDX-License-Identifier: GPL-3.0-or-later
// The window of a surface water design: results with the circuit, and six pages of inputs.
#include <QTabWidget>

#include "design/frmSWDesign.h"
#include "desktop/drawings/drawings.h"
#include "desktop/views/design_pages.h"
#include "desktop/views/view_pieces.h"
#include "desktop/views/views.h"

namespace varnholt {
namespace {

/// What a drawing asks the design for; nothing once the design is gone.
template <class Model>
std::function<Model()> sourceOf(Binder& bind, Model (frmSWDesign::*model)() const) {
    return [&bind, model] {
        const auto* design = static_cast<const frmSWDesign*>(bind.form());
        return design == nullptr ? Model() : (design->*model)();
    };
}

Drawing* circuit(Binder& bind, const QSize& usual) {
    return newCircuitDrawing(sourceOf(bind, &frmSWDesign::circuitPlan), bind.form()->texts(),
                             usual);
}

QWidget* waterResultsPage(Binder& bind) {
    const std::vector<FieldRows> parts{
        {bind.results("CALoopLengthLabel"), bind.results("CALoopNumberLabel"),
         bind.results("CAMaxParallelLoopNumberLabel"), bind.results("CAApproachTempLabel")},
        {bind.results("CACircuitFlowRateLabel"), bind.results("CAPrimaryHeaderFlowRateLabel"),
         bind.results("CABranchHeaderFlowRateLabel")},
        {bind.results("CALoopLossLabel"), bind.results("CAHeaderLossLabel"),
         bind.results("CATotalLossLabel")},
        unitTemperatures(bind),
        systemPerformance(bind),
        {bind.results("CAFlowRateLabel")}};
    return resultsPageOf(
        bind, parts,
        {grow(group(bind.frame("CACircuitFrame"),
                    grow(bind.drawing("imgCircuit", circuit(bind, {440, 168})))))});
}

QWidget* headersInSoil(Binder& bind) {
    return group(bind.frame("SOHeaderFrame"),
                 grid(bind.row("SOSoilTypeCombo"), bind.row("SOHeaderDepthText")));
}

QWidget* waterSoilPage(Binder& bind) {
    Drawing* chart =
        newGroundTempChart(sourceOf(bind, &frmSWDesign::groundTempCurves), bind.form()->texts());
    QWidget* fields = column(groundTempPanel(bind), headersInSoil(bind),
                             groundSwingPanel(bind, {bind.pair("SOCorrectedTempText")}));
    return column(group(bind.frame("SOSoilFrame"),
                        grow(reflow(fields, grow(bind.drawing("imgGroundTemp", chart))))));
}

FieldRow loopStyle(Binder& bind) {
    FieldRow row;
    row.caption = bind.widget("PILoopStyleLabel");
    row.fields = {row_(bind.widget("PICoilOption"), bind.widget("PISlinkyOption"))};
    return row;
}

QWidget* loopFields(Binder& bind) {
    for (const Mode mode : modes) {
        bind.mark(elementName("PIParallelLoopsText", mode), mode);
        bind.mark(elementName("PILoopHeadLossText", mode), mode);
    }
    Drawing* chart = newLoopChart(sourceOf(bind, &frmSWDesign::loopCurves), bind.form()->texts());
    return group(
        bind.frame("PILoopPipeFrame"),
        grid(loopStyle(bind), bind.row("PILoopPipeSizeCombo"), bind.row("PIExtraEqvLengthText"),
             bind.wide(bind.widget("PIParallelLoopsLabel")), bind.row("PIParallelLoopsText(0)"),
             bind.row("PIParallelLoopsText(1)")),
        group(bind.frame("PIHeadLossFrame"),
              grid(bind.row("PILoopHeadLossText(0)"), bind.row("PILoopHeadLossText(1)"))),
        grow(bind.drawing("imgLoopCurves", chart)));
}

/// @param kind  0 main headers, 1 branches on each of them
QWidget* headerFields(Binder& bind, const char* frame, std::size_t kind) {
    return group(bind.frame(frame),
                 grid(bind.row(elementName("PIHeaderNumberText", kind)),
                      bind.row(elementName("PIHeaderPipeSizeCombo", kind)),
                      bind.wide(bind.widget(elementName("PIHeaderLengthTitleLabel", kind))),
                      bind.row(elementName("PIHeaderLengthText", 2 * kind)),
                      bind.row(elementName("PIHeaderLengthText", 2 * kind + 1))));
}

QWidget* headerLosses(Binder& bind, std::size_t kind) {
    FieldRows rows;
    for (const Mode mode : modes) {
        const std::string field = elementName("PIHeaderHeadLossText", 2 * kind + mode);
        bind.mark(field, mode);
        rows.push_back(bind.row(field));
    }
    return column(gridOf(rows));
}

QWidget* headersPanel(Binder& bind) {
    return group(bind.frame("PIHeaderParametersFrame"),
                 reflow(grow(headerFields(bind, "PIPrimaryHeaderFrame", 0)),
                        grow(headerFields(bind, "PIBranchHeaderFrame", 1))),
                 group(bind.frame("PIHeaderHeadLossFrame"),
                       reflow(grow(headerLosses(bind, 0)), grow(headerLosses(bind, 1)))));
}

QWidget* pipingPage(Binder& bind) {
    return column(
        group(bind.frame("PIPipeParametersSSTab"),
              grow(reflow(grow(loopFields(bind), 2),
                          grow(column(headersPanel(bind),
                                      grow(row_(bind.widget("PIPipeTablesCommand"),
                                                grow(bind.drawing(circuit(bind, {320, 100})))))),
                               3)))));
}

QWidget* temperatures(Binder& bind, const char* frame, const char* array, std::size_t first) {
    const std::string coolingField = elementName(array, first);
    const std::string heatingField = elementName(array, first + 1);
    bind.mark(coolingField, cooling).mark(heatingField, heating);
    return group(bind.frame(frame), grid(bind.row(coolingField), bind.row(heatingField)));
}

QWidget* waterPage(Binder& bind) {
    QWidget* details = group(bind.frame("WADetailsFrame"),
                             grid(bind.row("WASurfaceWaterTypeCombo"),
                                  bind.row("WASurfaceAreaText"), bind.row("WALoopPipeDepthText")));
    return column(group(
        bind.frame("WAPropertiesFrame"),
        reflow(grow(column(temperatures(bind, "WALoopTempFrame", "WALoopTempText", 0),
                           temperatures(bind, "WAPrimaryHeaderFrame", "WAHeaderTempText", 0))),
               grow(column(temperatures(bind, "WABranchHeaderFrame", "WAHeaderTempText", 2),
                           details)))));
}

}  // namespace

QWidget* makeSurfaceWaterView(Binder& bind) {
    QWidget* pages = bind.tabs(
        "SWTabs",
        {[&bind] { return page(waterResultsPage(bind)); },
         [&bind] { return page(fluidPage(bind)); }, [&bind] { return page(waterSoilPage(bind)); },
         [&bind] { return page(pipingPage(bind)); }, [&bind] { return page(waterPage(bind)); },
         [&bind] { return page(extraPowerPage(bind)); },
         [&bind] { return page(informationPage(bind)); }});
    return designWindow(bind, pages);
}

}  // namespace varnholt
