// SPDX-License-Identifier: GPL-3.0-or-later
// The pipe that the loop is made of.
#include "desktop/views/design_pages.h"
#include "desktop/views/view_pieces.h"

namespace varnholt {

QWidget* pipePanel(Binder& bind) {
    return group(bind.frame("PIParametersFrame"),
                 grid(bind.row("PIPipeDiameterCombo"), bind.row("PIPipeResistanceCombo(0)"),
                      bind.row("PIPipeResistanceCombo(1)"), bind.row("PIPipeDiameterText(0)"),
                      bind.row("PIPipeDiameterText(1)"), bind.row("PIPipeResistanceText")),
                 buttons(bind.widget("PIPipeTablesCommand")));
}

}  // namespace varnholt
