// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

namespace varnholt {

/// What the lines of a list of names carry beside their text.
enum NameLineRole {
    placeRole = Qt::UserRole,  ///< where the thing is
    keysRole,                  ///< its shortcut
    thingRole                  ///< its place among the things found; none in the head of a group
};

/// Draws heads of groups, and below them a name, where it is, and at the end of the line its keys.
class NameLines : public QStyledItemDelegate {
 public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace varnholt
