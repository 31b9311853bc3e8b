// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <vector>

#include "desktop/widgets/field_row.h"
#include "desktop/widgets/house_widgets.h"
#include "desktop/widgets/look.h"

namespace varnholt {

/// Marks the widget behind a field that tells its unit.
constexpr const char* unitProperty = "unit";

/// A piece of a layout: a widget, or a stretch that takes the place left over. A null widget is
/// passed over, so that what a form does not have leaves no gap.
struct Piece {
    Piece(QWidget* piece, int share = 0)  // NOLINT(google-explicit-constructor)
        : widget(piece), stretch(share) {}

    QWidget* widget;
    int stretch;
};

/// Takes the place left over.
Piece stretch(int share = 1);
/// A piece that grows with the window.
Piece grow(QWidget* widget, int share = 1);

QWidget* columnOf(const std::vector<Piece>& pieces);
QWidget* rowOf(const std::vector<Piece>& pieces);
QWidget* reflowOf(const std::vector<Piece>& pieces);
QWidget* centredRowOf(const std::vector<Piece>& pieces);
QWidget* gridOf(const std::vector<FieldRow>& rows);

/// Pieces below one another, in the order of reading. The captions of the grids in it, those in
/// groups too, take the same width, so that the fields stand below one another.
template <class... P>
QWidget* column(P... pieces) {
    return columnOf({Piece(pieces)...});
}

/// Pieces beside one another, aligned at their tops.
template <class... P>
QWidget* row_(P... pieces) {
    return rowOf({Piece(pieces)...});
}

/// Pieces beside one another where the window is wide enough for them, else below one another.
/// Those that grow share the width; the height that is left over is filled.
template <class... P>
QWidget* reflow(P... pieces) {
    return reflowOf({Piece(pieces)...});
}

/// Pieces beside one another in one line, each in the middle of its height.
template <class... P>
QWidget* centredRow(P... pieces) {
    return centredRowOf({Piece(pieces)...});
}

/// Rows of captions, fields and units: captions at the left, figures at the right of their column,
/// units muted in a column of their own.
template <class... R>
QWidget* grid(R... rows) {
    return gridOf({rows...});
}

/// Heads with a group's title in their line, where the captions of the rows below begin.
FieldRow titled(GroupBox* frame, FieldRow heads);

/// A group box around pieces below one another.
QWidget* groupOf(GroupBox* frame, const std::vector<Piece>& pieces);
template <class... P>
QWidget* group(GroupBox* frame, P... pieces) {
    return groupOf(frame, {Piece(pieces)...});
}

/// Buttons in one line, which breaks when the window is narrow.
QWidget* buttonsOf(const std::vector<QWidget*>& buttons);
template <class... B>
QWidget* buttons(B... widgets) {
    return buttonsOf({widgets...});
}

/// A label that may take several lines.
QWidget* wrapped(QWidget* label);
/// The same of sentences about results, in which no name stands whose commas are its own.
QWidget* sentences(QWidget* label);

/// A label that takes no place in its column while it says nothing.
QWidget* passing(QWidget* label);

/// A column whose pieces stand without gaps.
QWidget* closeTogether(QWidget* column);

/// Makes Tab go through the widgets in the order of reading: pieces in the order in which the
/// layouts hold them, rows from left to right. Called once a view is complete.
void setReadingOrder(QWidget* view);

}  // namespace varnholt
