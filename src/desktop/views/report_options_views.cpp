// SPDX-License-Identifier: GPL-3.0-or-later
// The questions which report of a loads window and which form of a design's report to print.
#include "desktop/views/view_pieces.h"
#include "desktop/views/views.h"

namespace varnholt {

QWidget* makeZoneReportOptionsView(Binder& bind) {
    return page(
        column(group(bind.frame("ZoneReportSelectionFrame"), bind.widget("LOPrintOption(0)"),
                     bind.widget("LOPrintOption(1)"), bind.widget("LOPrintOption(2)"),
                     bind.widget("LOPrintOption(3)"), bind.widget("LOPrintOption(4)")),
               row_(stretch(), bind.primary("cmdOK"), bind.widget("cmdCancel"))));
}

QWidget* makeProjectReportOptionsView(Binder& bind) {
    return page(column(group(bind.frame("ProjectReportSelectionFrame"),
                             bind.widget("PrintOption(0)"), bind.widget("PrintOption(1)")),
                       row_(stretch(), bind.primary("cmdOK"), bind.widget("cmdCancel"))));
}

}  // namespace varnholt
