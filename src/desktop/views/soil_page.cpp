// SPDX-License-Identifier: GPL-3.0-or-later
// The ground around the loop.
#include "desktop/views/design_pages.h"
#include "desktop/views/view_pieces.h"

namespace varnholt {

QWidget* soilPage(Binder& bind) {
    return column(group(bind.frame("SOSoilFrame"),
                        reflow(grow(groundTempPanel(bind)), grow(soilPropertiesPanel(bind)))));
}

QWidget* groundTempPanel(Binder& bind) {
    return group(bind.frame("SOGroundTempFrame"), grid(bind.row("SOGroundTempText")));
}

QWidget* soilPropertiesPanel(Binder& bind) {
    return group(bind.frame("SOPropertiesFrame"),
                 grid(bind.row("SOThermalConductivityText"), bind.row("SOThermalDiffusivityText")),
                 buttons(bind.widget("SOSoilCommand(0)"), bind.widget("SOSoilCommand(1)")));
}

QWidget* groundSwingPanel(Binder& bind, const FieldRows& results) {
    FieldRow swing = bind.row("SOAirTempSwingText");
    swing.unit = bind.widget("SOSwingdegCLabel");
    FieldRow days = bind.pair("SODayText");
    days.caption = bind.widget("SODayLabel");  // their own labels are the heads above them
    return group(bind.frame("SOCorrectionFrame"), grid(swing),
                 grid(bind.heads("SOSeasonLabel(0)", "SOSeasonLabel(1)"), days),
                 buttons(bind.widget("SOSwingTableCommand")),
                 results.empty() ? nullptr : gridOf(results));
}

}  // namespace varnholt
