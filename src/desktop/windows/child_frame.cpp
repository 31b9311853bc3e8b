// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/child_frame.h"

#include <QCloseEvent>

namespace varnholt {

ChildFrame::ChildFrame() { setAttribute(Qt::WA_DeleteOnClose, false); }

void ChildFrame::setContent(FormWindow* content) {
    content_ = content;
    setWidget(content);
    setWindowIcon(content->windowIcon());
}

void ChildFrame::setOwnPlace(const QRect& place) {
    ownPlace_ = place;
    setGeometry(place);
}

void ChildFrame::notePlace() {
    if (!isMaximized() && !isMinimized()) ownPlace_ = geometry();
}

void ChildFrame::moveEvent(QMoveEvent* event) {
    QMdiSubWindow::moveEvent(event);
    notePlace();
}

void ChildFrame::resizeEvent(QResizeEvent* event) {
    QMdiSubWindow::resizeEvent(event);
    notePlace();
}

void ChildFrame::closeEvent(QCloseEvent* event) {
    // The main window takes the frame away, after the form's question.
    event->ignore();
    if (onCloseBox) onCloseBox();
}

}  // namespace varnholt
