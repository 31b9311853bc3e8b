// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/flow_layout.h"

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

int FlowLayout::place(const QRect& rect, bool move) const {
    int x = rect.x(), y = rect.y(), lineHeight = 0;
    for (QLayoutItem* item : items_) {
        if (item->isEmpty()) continue;
        const QSize size = item->sizeHint();
        if (x > rect.x() && x + size.width() > rect.x() + rect.width()) {
            x = rect.x();
            y += lineHeight + spacing();
            lineHeight = 0;
        }
        if (move) item->setGeometry({QPoint(x, y), size});
        x += size.width() + spacing();
        lineHeight = std::max(lineHeight, size.height());
    }
    return y + lineHeight - rect.y();
}

}  // namespace varnholt
