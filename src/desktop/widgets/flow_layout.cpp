// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/flow_layout.h"

#include <QStyle>
#include <QWidget>
#include <algorithm>

#include "desktop/widgets/look.h"

namespace varnholt {

FlowLayout::FlowLayout(QWidget* parent) : QLayout(parent) {
    setContentsMargins(0, 0, 0, 0);
    setSpacing(gridStep);
}

FlowLayout::~FlowLayout() {
    for (QLayoutItem* item : items_) delete item;
}

void FlowLayout::addItem(QLayoutItem* item) { items_.push_back(item); }

QLayoutItem* FlowLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)] : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
    QLayoutItem* item = itemAt(index);
    if (item != nullptr) items_.erase(items_.begin() + index);
    return item;
}

int FlowLayout::heightForWidth(int width) const { return place({0, 0, width, 0}, false); }

QSize FlowLayout::sizeHint() const {
    int width = 0, height = 0;
    for (const QLayoutItem* item : items_) {
        if (item->isEmpty()) continue;
        width += item->sizeHint().width() + (width > 0 ? spacing() : 0);
        height = std::max(height, item->sizeHint().height());
    }
    return {width, height};
}

QSize FlowLayout::minimumSize() const {
    QSize size;
    for (const QLayoutItem* item : items_)
        if (!item->isEmpty()) size = size.expandedTo(item->minimumSize());
    return size;
}

void FlowLayout::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    place(rect, true);
}

/// Lines begin where the language begins to read.
int FlowLayout::place(const QRect& rect, bool move) const {
    int y = rect.y(), lineHeight = 0;
    const Qt::LayoutDirection way = parentWidget()->layoutDirection();
    for (const Line& line : linesFor(rect.width())) {
        if (lineHeight > 0) y += lineHeight + spacing();
        lineHeight = line.height;
        int x = rect.x();
        for (QLayoutItem* item : line.items) {
            const QSize size = item->sizeHint();
            const QRect place(QPoint(x, y + (lineHeight - size.height()) / 2), size);
            if (move) item->setGeometry(QStyle::visualRect(way, rect, place));
            x += size.width() + spacing();
        }
    }
    return y + lineHeight - rect.y();
}

std::vector<FlowLayout::Line> FlowLayout::linesFor(int width) const {
    std::vector<Line> lines;
    int taken = 0;
    for (QLayoutItem* item : items_) {
        if (item->isEmpty()) continue;
        const QSize size = item->sizeHint();
        const bool fits = !lines.empty() && taken + spacing() + size.width() <= width;
        taken = fits ? taken + spacing() + size.width() : size.width();
        if (!fits) lines.emplace_back();
        lines.back().items.push_back(item);
        lines.back().height = std::max(lines.back().height, size.height());
    }
    return lines;
}

}  // namespace varnholt
