// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/canvas.h"

#include <QFontMetricsF>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

#include "desktop/widgets/figure_text.h"

namespace varnholt {
namespace {

constexpr double arrowLength = 7;
constexpr double arrowHalfWidth = 2.4;
constexpr double overshoot = 4;  // of the hairlines beyond the dimension line
constexpr double standoff = 3;   // of the hairlines from the drawing
constexpr double labelMargin = 5;

QPen hairline(const QColor& colour) { return {colour, 1, Qt::SolidLine, Qt::FlatCap}; }

/// An arrow head with its tip at the origin, pointing to the left; `way` -1 turns it round.
void drawArrow(QPainter& painter, const QPointF& tip, double way) {
    painter.drawPolygon(QPolygonF{tip, tip + QPointF(way * arrowLength, -arrowHalfWidth),
                                  tip + QPointF(way * arrowLength, arrowHalfWidth)});
}

/// The dimension line itself from 0 to `length` on the level y = 0 of the painter's coordinates.
/// @param before, behind  what the picture has before the line and behind its end
void drawDimensionLine(const Canvas& canvas, double length, double before, double behind,
                       const QString& label) {
    QPainter& painter = canvas.painter;
    painter.setPen(hairline(canvas.look.muted));
    painter.setBrush(canvas.look.muted);
    const double labelWidth = canvas.textWidth(label) + 2 * labelMargin;
    const bool arrowsInside = length >= 3 * arrowLength;
    const double reach = arrowsInside ? 0 : 2 * arrowLength;
    painter.drawLine(QPointF(-reach, 0), QPointF(length + reach, 0));
    painter.setPen(Qt::NoPen);
    drawArrow(painter, {0, 0}, arrowsInside ? 1 : -1);
    drawArrow(painter, {length, 0}, arrowsInside ? -1 : 1);
    const bool labelInside = length >= labelWidth + 2 * arrowLength;
    const bool labelBehind = reach + labelWidth <= behind;
    // A label that fits on neither side covers a part of the line: the picture's edge would cut it.
    const double beside = labelBehind ? length + reach + labelWidth / 2
                                      : std::max(-reach - labelWidth / 2, labelWidth / 2 - before);
    canvas.label({labelInside ? length / 2 : beside, 0}, label, canvas.look.ink);
}

}  // namespace

double Canvas::crisp(double place) const {
    const double ratio = painter.device()->devicePixelRatioF();
    return (std::floor(place * ratio) + 0.5) / ratio;
}

QString Canvas::shown(const QString& text) const {
    return partsThousands ? groupedThousands(text) : text;
}

double Canvas::textWidth(const QString& text) const {
    return QFontMetricsF(figures).horizontalAdvance(shown(text));
}

double Canvas::textHeight() const { return QFontMetricsF(figures).height(); }

void Canvas::label(const QPointF& centre, const QString& text, const QColor& colour) const {
    const QSizeF size(textWidth(text) + labelMargin, textHeight());
    const QRectF place(centre - QPointF(size.width() / 2, size.height() / 2), size);
    painter.fillRect(place, look.surface);
    painter.setFont(figures);
    painter.setPen(colour);
    painter.drawText(place, Qt::AlignCenter, shown(text));
}

Canvas canvasFor(QPainter& painter, const QRectF& area, const QPalette& palette,
                 const QFont& font) {
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    // Pictures are not mirrored where the language reads from the right: nor are their labels.
    painter.setLayoutDirection(Qt::LeftToRight);
    return {painter, area, lookOf(palette), font, figureFont(font), true};
}

QColor between(const QColor& from, const QColor& to, double share) {
    const auto mixed = [share](int a, int b) { return static_cast<int>(a + share * (b - a)); };
    return {mixed(from.red(), to.red()), mixed(from.green(), to.green()),
            mixed(from.blue(), to.blue())};
}

void drawLevelDimension(const Canvas& canvas, const QPointF& from, const QPointF& to, double level,
                        const QString& label) {
    QPainter& painter = canvas.painter;
    const double line = canvas.crisp(level);
    painter.setPen(hairline(between(canvas.look.line, canvas.look.muted, 0.4)));
    for (const QPointF& end : {from, to}) {
        const double way = line < end.y() ? -1 : 1;
        const double x = canvas.crisp(end.x());
        painter.drawLine(QPointF(x, end.y() + way * standoff), QPointF(x, line + way * overshoot));
    }
    painter.save();
    painter.translate(canvas.crisp(from.x()), line);
    drawDimensionLine(canvas, canvas.crisp(to.x()) - canvas.crisp(from.x()),
                      from.x() - canvas.area.left(), canvas.area.right() - to.x(), label);
    painter.restore();
}

void drawUprightDimension(const Canvas& canvas, const QPointF& from, const QPointF& to,
                          double upright, const QString& label) {
    QPainter& painter = canvas.painter;
    const double line = canvas.crisp(upright);
    painter.setPen(hairline(between(canvas.look.line, canvas.look.muted, 0.4)));
    for (const QPointF& end : {from, to}) {
        const double way = line < end.x() ? -1 : 1;
        const double y = canvas.crisp(end.y());
        painter.drawLine(QPointF(end.x() + way * standoff, y), QPointF(line + way * overshoot, y));
    }
    painter.save();
    painter.translate(line, canvas.crisp(to.y()));
    painter.rotate(-90);
    drawDimensionLine(canvas, canvas.crisp(to.y()) - canvas.crisp(from.y()),
                      canvas.area.bottom() - to.y(), from.y() - canvas.area.top(), label);
    painter.restore();
}

}  // namespace varnholt
