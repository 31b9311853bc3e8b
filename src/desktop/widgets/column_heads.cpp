// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/column_heads.h"
#include "desktop/widgets/text_label.h"

#include <QEvent>
#include <QFontMetricsF>
#include <algorithm>
#include <utility>

namespace varnholt {
namespace {

/// What the list draws before an entry's first character: its frame and its paddings.
constexpr double entryInset = 10;
/// Captions are smaller than the list's figures, whose columns are narrow.
constexpr double headScale = 0.88;

}  // namespace

ColumnHeads::ColumnHeads(QWidget* list, std::vector<Head> heads)
    : list_(list), heads_(std::move(heads)) {
    for (const Head& head : heads_) {
        head.label->setParent(this);
        mute(head.label);
        QFont small = head.label->font();
        small.setPointSizeF(small.pointSizeF() * headScale);
        head.label->setFont(small);
        head.label->show();
        head.label->installEventFilter(this);
    }
    list_->installEventFilter(this);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

double ColumnHeads::columnAt(int character) const {
    return entryInset + character * QFontMetricsF(list_->font()).horizontalAdvance(u'0');
}

QSize ColumnHeads::sizeHint() const {
    int width = 0, lines = 0, height = 0;
    for (const Head& head : heads_) {
        width = std::max(width, static_cast<int>(columnAt(head.last)));
        lines = std::max(lines, head.line + 1);
        height = std::max(height, head.label->sizeHint().height());
    }
    return {width, lines * height};
}

void ColumnHeads::resizeEvent(QResizeEvent*) { place(); }

bool ColumnHeads::event(QEvent* event) {
    // A caption has changed.
    if (event->type() == QEvent::LayoutRequest) place();
    return QWidget::event(event);
}

bool ColumnHeads::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FontChange || event->type() == QEvent::Polish) {
        updateGeometry();
        place();
    }
    return QWidget::eventFilter(watched, event);
}

void ColumnHeads::place() {
    for (const Head& head : heads_) {
        const QSize size = head.label->sizeHint();
        const double from = columnAt(head.first), to = columnAt(head.last);
        const double left = std::max(0.0, head.left ? from : (from + to - size.width()) / 2);
        head.label->setGeometry(static_cast<int>(left), head.line * size.height(), size.width(),
                                size.height());
    }
}

}  // namespace varnholt
