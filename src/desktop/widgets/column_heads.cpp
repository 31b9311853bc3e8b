// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/column_heads.h"
#include "desktop/widgets/text_label.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QLabel>
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

/// Over its column, or as far beyond it as its text takes.
QRect ColumnHeads::wantedPlace(const Head& head) const {
    const QSize size = head.label->sizeHint();
    const double from = columnAt(head.first), to = columnAt(head.last);
    const double left = std::max(0.0, head.left ? from : (from + to - size.width()) / 2);
    return {{static_cast<int>(left), head.line * size.height()}, size};
}

/// Longer captions give way to their neighbours, half each.
void ColumnHeads::place() {
    std::vector<QRect> places;
    for (const Head& head : heads_) places.push_back(wantedPlace(head));
    for (QRect& one : places)
        for (QRect& next : places) {
            const bool meet = one.y() == next.y() && one.x() < next.x() && one.right() >= next.x();
            if (!meet) continue;
            constexpr int apart = 3;
            const int middle = (next.x() + one.right()) / 2;
            one.setRight(middle - apart);
            next.setLeft(middle + apart);
        }
    for (std::size_t i = 0; i < heads_.size(); ++i) {
        heads_[i].label->setGeometry(places[i]);
        const bool cut = places[i].width() < heads_[i].label->sizeHint().width();
        const auto* text = qobject_cast<const QLabel*>(heads_[i].label);
        heads_[i].label->setToolTip(cut && text != nullptr ? text->text() : QString());
    }
}

}  // namespace varnholt
