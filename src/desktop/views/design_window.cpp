// SPDX-License-Identifier: GPL-3.0-or-later
// What stands above the pages of every design.
#include "desktop/views/design_pages.h"
#include "desktop/views/view_pieces.h"

namespace varnholt {

QWidget* designWindow(Binder& bind, QWidget* pages) {
    // The results take more room than the zeros that they begin with.
    return roomy(
        column(bar(centredRow(bind.widget("MetricCheck"), grow(noticeBar(bind)), linkLights(bind))),
               grow(pages)),
        {980, 640});
}

}  // namespace varnholt
