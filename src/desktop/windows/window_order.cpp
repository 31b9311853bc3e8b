// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/window_order.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <algorithm>

namespace varnholt {
namespace {

constexpr QSize leastSize(320, 200);

/// From the one at the bottom to the one in front.
QList<QMdiSubWindow*> openWindows(const QMdiArea& area) {
    QList<QMdiSubWindow*> open;
    for (QMdiSubWindow* window : area.subWindowList(QMdiArea::StackingOrder))
        if (window->isVisible() && !window->isMinimized()) open << window;
    return open;
}

void restore(QMdiSubWindow& window) {
    if (window.isMaximized() || window.isMinimized()) window.showNormal();
}

/// Height of the title, below which the window's content begins.
int titleHeight(const QMdiSubWindow& window) {
    return window.widget() == nullptr ? 0 : window.widget()->y();
}

}  // namespace

void cascade(QMdiArea& area) {
    const QList<QMdiSubWindow*> open = openWindows(area);
    if (open.isEmpty()) return;
    for (QMdiSubWindow* window : open) restore(*window);
    int step = 0;
    for (const QMdiSubWindow* window : open) step = std::max(step, titleHeight(*window));
    const QSize room = area.viewport()->size();
    // Where there are too many for one flight of stairs the next one begins at the top again.
    const int most = std::max(1, (room.height() - leastSize.height()) / std::max(1, step) + 1);
    const int last = std::min<int>(most, static_cast<int>(open.size())) - 1;
    const int across = static_cast<int>(open.size()) - 1;
    const QSize size =
        (room - QSize(across * step, last * step)).expandedTo(leastSize).boundedTo(room);
    int place = 0;
    for (QMdiSubWindow* window : open) {
        window->setGeometry(QRect(QPoint(place * step, place % most * step), size));
        ++place;
    }
}

void setSideBySide(QMdiArea& area, QMdiSubWindow& left, QMdiSubWindow& right) {
    restore(left);
    restore(right);
    const QSize room = area.viewport()->size();
    const int half = room.width() / 2;
    left.setGeometry(0, 0, half, room.height());
    right.setGeometry(half, 0, room.width() - half, room.height());
    right.raise();
    left.raise();
}

}  // namespace varnholt
