// SPDX-License-Identifier: GPL-3.0-or-later
// What stands above and below the pages of every design.
#include <QLayout>

#include "desktop/views/design_pages.h"
#include "desktop/views/length_pieces.h"
#include "desktop/views/view_pieces.h"

namespace varnholt {

QWidget* designWindow(Binder& bind, QWidget* pages) {
    // The results take more room than the zeros that they begin with.
    QWidget* window = column(
        bar(centredRow(bind.widget("MetricCheck"), grow(noticeBar(bind)), linkLights(bind))),
        grow(pages), foot(centredRow(grow(lengthStrip(bind)), bind.primary("CACalculateCommand"))));
    // A screen is low: the tabs follow the line above them, and the foot the page.
    window->layout()->setSpacing(0);
    return roomy(window, {1180, 700});
}

}  // namespace varnholt
