// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QPainter>
#include <QRectF>
#include <QString>

#include "desktop/widgets/look.h"

namespace varnholt {

/// What every painting takes along: where to paint, in which colours, in which type. Lengths are
/// device-independent pixels.
struct Canvas {
    QPainter& painter;
    QRectF area;
    const Look& look;
    QFont words;    ///< of captions
    QFont figures;  ///< of numbers, with digits of one width
    /// Thousands are parted by thin spaces, as everywhere on the screen; not so on the pages of a
    /// report, whose tables tell the same figures.
    bool partsThousands = false;

    /// The nearest place whose hairline fills whole pixels of the device.
    double crisp(double place) const;
    /// A text with figures in it as it is drawn here.
    QString shown(const QString& text) const;
    /// Width of such a text in the type of figures, as it is drawn here.
    double textWidth(const QString& text) const;
    double textHeight() const;
    /// Draws a text over a patch of the surface, centred about a point.
    void label(const QPointF& centre, const QString& text, const QColor& colour) const;
};

/// A canvas for a widget's picture in the widget's colours and font.
Canvas canvasFor(QPainter& painter, const QRectF& area, const QPalette& palette, const QFont& font);

/// The colour that lies so far (0 to 1) from one colour to another.
QColor between(const QColor& from, const QColor& to, double share);

/// A dimension line between two points of a level line: hairlines from the drawing to the line,
/// arrows, and the label over the line's middle, or beside it where the line is too short.
/// @param from, to   the measured points, from left to right
/// @param level      height of the dimension line
void drawLevelDimension(const Canvas& canvas, const QPointF& from, const QPointF& to, double level,
                        const QString& label);

/// The same between two points of an upright line, from top to bottom. The label reads upwards.
/// @param upright   distance of the dimension line from the left
void drawUprightDimension(const Canvas& canvas, const QPointF& from, const QPointF& to,
                          double upright, const QString& label);

}  // namespace varnholt
