// SPDX-License-Identifier: GPL-3.0-or-later
// The fluid of the loop, its temperatures and its flow.
#include "desktop/views/design_pages.h"
#include "desktop/views/view_pieces.h"

namespace varnholt {
namespace {

/// The name of the fluid, and behind it how much of it is in the water.
FieldRow fluidType(Binder& bind) {
    const FieldRow percent = bind.row("FLPercentAntifreezeText");
    return bind.row("FLFluidTypeCombo", {percent.fields.front(), percent.caption});
}

/// The least flow of a loop, where the kind has loops that share the flow.
QWidget* minimumFlow(Binder& bind) {
    if (!bind.has("FLMinFlowFrame")) return nullptr;
    bind.mark("FLMinFlowText(0)", cooling).mark("FLMinFlowText(1)", heating);
    return group(bind.frame("FLMinFlowFrame"),
                 grid(bind.row("FLMinFlowText(0)"), bind.row("FLMinFlowText(1)")));
}

}  // namespace

QWidget* fluidPage(Binder& bind) {
    bind.mark("FLInletTempText(0)", cooling).mark("FLInletTempText(1)", heating);
    QWidget* temperaturesAndFlow =
        column(group(bind.frame("FLInletTempFrame"),
                     grid(bind.row("FLInletTempText(0)"), bind.row("FLInletTempText(1)"))),
               group(bind.frame("FLFlowRateFrame"), grid(bind.row("FLFlowRateText"))));
    QWidget* solution =
        group(bind.frame("FLSolutionFrame"),
              grid(fluidType(bind), bind.row("FLSpecificHeatText"), bind.row("FLFluidDensityText")),
              buttons(bind.widget("FLTablesButton")));
    return column(
        group(bind.frame("FLFluidFrame"),
              reflow(grow(temperaturesAndFlow), grow(column(solution, minimumFlow(bind))))));
}

}  // namespace varnholt
