// SPDX-License-Identifier: GPL-3.0-or-later
// The window of the building as one block.
#include <QTabWidget>

#include "desktop/views/loads_pieces.h"
#include "desktop/views/view_pieces.h"
#include "desktop/views/views.h"
#include "forms/text_numbers/feedback.h"

namespace varnholt {
namespace {

QWidget* blockPage(Binder& bind) {
    return row_(zoneList(bind),
                grow(new ScrollPage(column(firstZone(bind, Text::noBlockYet), zonePanel(bind)))));
}

}  // namespace

QWidget* makeAverageBlockView(Binder& bind) {
    return loadsWindow(bind, bind.tabs("tabLoads", {[&bind] { return page(blockPage(bind)); },
                                                    [&bind] { return page(heatPumpPage(bind)); }}));
}

}  // namespace varnholt
