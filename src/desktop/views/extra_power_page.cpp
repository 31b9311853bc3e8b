// SPDX-License-Identifier: GPL-3.0-or-later
// Pumps and fans beside the heat pumps.
#include "desktop/views/design_pages.h"
#include "desktop/views/view_pieces.h"

namespace varnholt {
namespace {

/// A pump or fan: shaft power and motor efficiency, and the power that these need.
QWidget* motor(Binder& bind, std::size_t shaft, std::size_t efficiency, std::size_t input) {
    return grid(bind.row(elementName("EKWPumpPowerText", shaft)),
                bind.row(elementName("EKWPumpEfficiencyText", efficiency)),
                bind.row(elementName("EKWPumpPowerText", input)));
}

QWidget* pumpPowerFields(Binder& bind) {
    return column(group(bind.frame("EKWCirculationFrame"), motor(bind, 1, 0, 0),
                        buttons(bind.widget("EKWPumpPowerCommand"))),
                  group(bind.frame("EKWAdditionalFrame"), grid(bind.row("EKWPumpPowerText(2)"))));
}

QWidget* towerPower(Binder& bind) {
    return group(bind.frame("EKWCoolingTowerFrame"),
                 group(bind.frame("EKWTowerFanFrame"), motor(bind, 4, 1, 3)),
                 group(bind.frame("EKWTowerPumpFrame"), motor(bind, 6, 2, 5)));
}

}  // namespace

/// The tower stands beside the pumps, so that the whole page is in sight on a small screen.
QWidget* extraPowerPage(Binder& bind) {
    QWidget* pumps = pumpPowerFields(bind);
    if (!bind.has("EKWCoolingTowerFrame")) return pumps;
    return column(reflow(grow(pumps), grow(towerPower(bind))));
}

}  // namespace varnholt
