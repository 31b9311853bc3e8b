// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/miniatures.h"

#include <QPainterPath>
#include <algorithm>

namespace varnholt {
namespace {

constexpr double frameMargin = 4;

void fillGround(const Canvas& canvas) {
    canvas.painter.setPen(Qt::NoPen);
    canvas.painter.setBrush(between(canvas.look.surface, canvas.look.ground, 0.8));
    canvas.painter.drawRoundedRect(canvas.area, 4, 4);
}

void drawDots(const Canvas& canvas, const QRectF& bores, const FieldPlan& field, double pitch) {
    constexpr double largestDot = 7;
    const double dot = std::min(largestDot, 0.62 * pitch);
    for (int row = 0; row < field.rowsDrawn; ++row)
        for (int column = 0; column < field.columnsDrawn; ++column)
            canvas.painter.drawEllipse(
                QPointF(bores.left() + (column + 0.5) * pitch, bores.top() + (row + 0.5) * pitch),
                dot / 2, dot / 2);
}

/// Rings of a slinky along a trench.
void drawRings(const Canvas& canvas, const QRectF& trench) {
    const double ring = trench.width();
    canvas.painter.setBrush(Qt::NoBrush);
    for (double y = trench.top(); y + ring <= trench.bottom() + 0.01; y += ring * 0.45)
        canvas.painter.drawEllipse(QRectF(trench.left(), y, ring, ring));
}

void drawLines(const Canvas& canvas, const QRectF& trench, int count) {
    for (int line = 0; line < count; ++line) {
        const double x = trench.left() + (line + 0.5) * trench.width() / count;
        canvas.painter.drawLine(QPointF(x, trench.top()), QPointF(x, trench.bottom()));
    }
}

/// The water, which falls from the shore.
QPainterPath waterPath(const QRectF& area, double shore) {
    QPainterPath ground;
    ground.addRoundedRect(area, 4, 4);
    QPainterPath water(QPointF(shore, area.top()));
    water.cubicTo({shore + 6, area.top() + 8}, {shore + 2, area.bottom()},
                  {shore + 14, area.bottom()});
    water.lineTo(area.bottomRight());
    water.lineTo(area.topRight());
    return water.intersected(ground);
}

}  // namespace

void paintMiniature(const Canvas& canvas, const FieldPlan& field) {
    fillGround(canvas);
    if (field.columnsDrawn < 1 || field.rowsDrawn < 1) return;
    const QRectF room = canvas.area.adjusted(frameMargin, frameMargin, -frameMargin, -frameMargin);
    constexpr double widestPitch = 14, narrowestPitch = 2;
    const double pitch =
        std::min({widestPitch, room.width() / field.columnsDrawn, room.height() / field.rowsDrawn});
    QRectF bores(0, 0, pitch * field.columnsDrawn, pitch * field.rowsDrawn);
    bores.moveCenter(room.center());
    canvas.painter.setPen(Qt::NoPen);
    canvas.painter.setBrush(canvas.look.accent);
    if (pitch < narrowestPitch)
        canvas.painter.drawRect(bores);
    else
        drawDots(canvas, bores, field, pitch);
}

void paintMiniature(const Canvas& canvas, const TrenchPlan& plan) {
    fillGround(canvas);
    const QRectF room = canvas.area.adjusted(frameMargin, frameMargin, -frameMargin, -frameMargin);
    for (int i = 0; i < plan.drawn; ++i) {
        const double share = room.width() / plan.drawn;
        const double width = std::min(10.0, 0.7 * share);
        QRectF trench(0, room.top(), width, room.height());
        trench.moveLeft(room.left() + (i + 0.5) * share - width / 2);
        canvas.painter.setPen(Qt::NoPen);
        canvas.painter.setBrush(between(canvas.look.surface, canvas.look.grout, 0.9));
        canvas.painter.drawRect(trench);
        canvas.painter.setPen(QPen(canvas.look.pipe, 1.2));
        if (plan.isCoil() && !plan.standing)
            drawRings(canvas, trench);
        else
            drawLines(canvas, trench, std::max(1, plan.columns));
    }
}

void paintMiniature(const Canvas& canvas, const CircuitPlan& plan) {
    fillGround(canvas);
    const QRectF& area = canvas.area;
    QPainter& painter = canvas.painter;
    painter.setBrush(between(canvas.look.surface, canvas.look.cooling, 0.3));
    painter.drawPath(waterPath(area, area.left() + 0.3 * area.width()));
    constexpr int loops = 3;
    const double trunk = area.left() + 0.14 * area.width();
    const double branch = area.left() + 0.45 * area.width();
    const double step = area.height() / (loops + 1);
    painter.setPen(QPen(canvas.look.pipe, 1.4));
    painter.setBrush(Qt::NoBrush);
    painter.drawLine(QPointF(trunk, area.center().y()), QPointF(branch, area.center().y()));
    painter.drawLine(QPointF(branch, area.top() + step),
                     QPointF(branch, area.top() + loops * step));
    const QSizeF ring = plan.slinky ? QSizeF(7, 6) : QSizeF(14, 7);
    for (int loop = 1; loop <= loops; ++loop) {
        const double y = area.top() + loop * step;
        const double start = branch + 5;
        painter.drawLine(QPointF(branch, y), QPointF(start, y));
        for (int i = 0; i < 3; ++i)
            painter.drawEllipse(QRectF(
                QPointF(start + i * (plan.slinky ? 4.5 : 1.6), y - ring.height() / 2), ring));
    }
}

}  // namespace varnholt
