// SPDX-License-Identifier: GPL-3.0-or-later
// The window of the building as one block.
#include <QTabWidget>

#include "desktop/views/loads_pieces.h"
#include "desktop/views/view_pieces.h"
#include "desktop/views/views.h"

namespace varnholt {

QWidget* makeAverageBlockView(Binder& bind) {
    return roomy(
        column(loadsBar(bind), noticeBar(bind),
               grow(bind.tabs(
                   "tabLoads",
                   {page(row_(zoneList(bind), grow(new ScrollPage(column(zonePanel(bind)))))),
                    page(heatPumpPage(bind))}))),
        {1220, 700});
}

}  // namespace varnholt
