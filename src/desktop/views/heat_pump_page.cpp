// SPDX-License-Identifier: GPL-3.0-or-later
// Design conditions, and the catalogue with the curves of its pumps.
#include "desktop/drawings/drawings.h"
#include "desktop/views/loads_pieces.h"
#include "desktop/views/view_pieces.h"
#include "loads/modLoads/zone_window.h"

namespace varnholt {
namespace {

QWidget* conditions(Binder& bind) {
    bind.mark("HPLoadInletText(0)", cooling).mark("HPLoadInletText(1)", heating);
    bind.mark("HPLoadInletText(2)", cooling).mark("HPLoadInletText(3)", heating);
    return group(bind.frame("HPDesignFrame"),
                 grid(headRow(bind, nullptr, "HPCoolingLabel", "HPHeatingLabel"),
                      bind.pair("LOInletTempText"), bind.row("FLFlowRateText")),
                 group(bind.frame("HPInletAirFrame"),
                       grid(bind.row("HPLoadInletText(0)"), bind.row("HPLoadInletText(1)"))),
                 group(bind.frame("HPInletWaterFrame"),
                       grid(bind.row("HPLoadInletText(2)"), bind.row("HPLoadInletText(3)"))));
}

PumpPicture pumpPicture(const Binder& bind) {
    const ZoneWindow* window = zoneWindowOf(bind);
    return window == nullptr ? PumpPicture() : window->pumpPicture();
}

QWidget* catalogue(Binder& bind) {
    Drawing* curves = newPumpCurves([&bind] { return pumpPicture(bind); }, bind.form()->texts());
    return group(
        bind.frame("HPCatalogueFrame"),
        grid(bind.row("HPManufacturerCombo"), bind.row("HPSeriesCombo")),
        bind.widget("HPPumpListLabel"),
        grow(reflow(bind.widget("HPPumpList"), grow(bind.drawing("LOPumpChart", curves)))));
}

}  // namespace

QWidget* heatPumpPage(Binder& bind) { return reflow(conditions(bind), grow(catalogue(bind))); }

}  // namespace varnholt
