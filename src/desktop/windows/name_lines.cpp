// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/name_lines.h"

#include <QPainter>
#include <algorithm>

#include "desktop/widgets/look.h"

namespace varnholt {
namespace {

constexpr int lineEdge = gridStep;
constexpr int keysEdge = 6;  // around the keys in their frame

QFont heavyFont(const QFont& around) {
    QFont font = around;
    font.setWeight(QFont::DemiBold);
    return font;
}

void drawGroupHead(QPainter& painter, const QStyleOptionViewItem& option, const QString& word) {
    const Look& look = lookOf(option.palette);
    const QFont font = heavyFont(option.font);
    const QRect room = option.rect.adjusted(lineEdge, 0, -lineEdge, 0);
    painter.setFont(font);
    painter.setPen(look.muted);
    painter.drawText(room,
                     static_cast<int>(Qt::AlignVCenter |
                                      QStyle::visualAlignment(option.direction, Qt::AlignLeft)),
                     word);
    const int taken = QFontMetrics(font).horizontalAdvance(word) + gridStep;
    const QRect line = QRect(room.left() + taken, room.center().y(), room.width() - taken, 1);
    painter.fillRect(QStyle::visualRect(option.direction, room, line), look.hairline);
}

/// @return  the room that the keys leave
QRect drawKeys(QPainter& painter, const QStyleOptionViewItem& option, const QRect& room,
               const QString& keys, const QColor& ink, const QColor& edge) {
    if (keys.isEmpty()) return room;
    const int width = option.fontMetrics.horizontalAdvance(keys) + 2 * keysEdge;
    const int height = option.fontMetrics.height() + 2;
    const QRect place(room.right() - width + 1, room.center().y() - height / 2 + 1, width, height);
    const QRect shown = QStyle::visualRect(option.direction, option.rect, place);
    painter.setPen(edge);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(shown).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    painter.setPen(ink);
    painter.setFont(option.font);
    painter.drawText(shown, Qt::AlignCenter, keys);
    return room.adjusted(0, 0, -width - gridStep, 0);
}

/// The name from the beginning of the room, and where it is in what is left of it.
void drawNameAndPlace(QPainter& painter, const QStyleOptionViewItem& option, const QRect& room,
                      const QString& name, const QString& place, const QColor& ink,
                      const QColor& muted) {
    const auto alignment = static_cast<int>(
        Qt::AlignVCenter | QStyle::visualAlignment(option.direction, Qt::AlignLeft));
    painter.setFont(option.font);
    painter.setPen(ink);
    painter.drawText(QStyle::visualRect(option.direction, option.rect, room), alignment,
                     option.fontMetrics.elidedText(name, Qt::ElideRight, room.width()));
    const int taken = option.fontMetrics.horizontalAdvance(name) + 2 * gridStep;
    if (place.isEmpty() || room.width() <= taken) return;
    const QRect rest = room.adjusted(taken, 0, 0, 0);
    painter.setPen(muted);
    painter.drawText(QStyle::visualRect(option.direction, option.rect, rest), alignment,
                     option.fontMetrics.elidedText(place, Qt::ElideRight, rest.width()));
}

}  // namespace

void NameLines::paint(QPainter* painter, const QStyleOptionViewItem& option,
                      const QModelIndex& index) const {
    const QString name = index.data(Qt::DisplayRole).toString();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (!index.data(thingRole).isValid()) {
        drawGroupHead(*painter, option, name);
        painter->restore();
        return;
    }
    const Look& look = lookOf(option.palette);
    const bool chosen = (option.state & QStyle::State_Selected) != 0;
    const bool usable = (index.flags() & Qt::ItemIsEnabled) != 0;
    const QColor ink = chosen ? look.onAccent : usable ? look.ink : look.disabled;
    const QColor muted = chosen ? look.onAccent : usable ? look.muted : look.disabled;
    if (chosen) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(look.accent);
        painter->drawRoundedRect(option.rect, 4, 4);
    }
    QRect room = option.rect.adjusted(2 * lineEdge, 0, -lineEdge, 0);
    room = drawKeys(*painter, option, room, index.data(keysRole).toString(), muted,
                    chosen ? look.onAccent : look.line);
    drawNameAndPlace(*painter, option, room, name, index.data(placeRole).toString(), ink, muted);
    painter->restore();
}

QSize NameLines::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QSize usual = QStyledItemDelegate::sizeHint(option, index);
    return {usual.width(), std::max(usual.height(), option.fontMetrics.height() + gridStep + 2)};
}

}  // namespace varnholt
