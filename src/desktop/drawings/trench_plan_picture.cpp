// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/trench_plan_picture.h"

#include <algorithm>

#include "design/picture_sentences.h"
#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

constexpr double planSideRoom = 18;
constexpr double pitchRoom = 60;          // at the right, for the coil's pitch
constexpr double planDimensionRoom = 32;  // above the trenches
constexpr double largestScale = 40;  // pixels a foot: a single trench does not fill the picture
constexpr double mostLoops = 400;

/// The field on the screen.
struct Field {
    QRectF room;
    double perFoot;
    double first;  ///< middle line of the first trench
    double pitch;  ///< from trench to trench

    double middle(int trench) const { return first + trench * pitch; }
};

double contentWidth(const TrenchPlan& plan) {
    const double pipes = plan.isCoil() ? plan.coilDiameter : (plan.columns - 1) * plan.columnStep;
    return std::max({plan.width, plan.standing ? 0.0 : pipes, 0.1});
}

Field fieldIn(const Canvas& canvas, const TrenchPlan& plan) {
    const double note = plan.drawn < plan.trenches ? canvas.textHeight() + gridStep : 0;
    const double right = plan.isCoil() ? pitchRoom : planSideRoom;
    const QRectF room =
        canvas.area.adjusted(planSideRoom, planDimensionRoom, -right, -gridStep - note);
    const double feet = (plan.drawn - 1) * std::max(0.0, plan.separation) + contentWidth(plan);
    const double perFoot = std::min(largestScale, std::max(8.0, room.width()) / feet);
    const double pitch = std::max(0.0, plan.separation) * perFoot;
    return {room, perFoot, room.center().x() - (plan.drawn - 1) * pitch / 2, pitch};
}

void drawStrip(const Canvas& canvas, const Field& field, const TrenchPlan& plan, double middle) {
    const double half = plan.width / 2 * field.perFoot;
    canvas.painter.setPen(QPen(canvas.look.muted, 1));
    canvas.painter.setBrush(between(canvas.look.surface, canvas.look.grout, 0.7));
    canvas.painter.drawRect(QRectF(QPointF(middle - half, field.room.top()),
                                   QPointF(middle + half, field.room.bottom())));
}

void drawColumns(const Canvas& canvas, const Field& field, const TrenchPlan& plan, double middle) {
    canvas.painter.setPen(QPen(canvas.look.pipe, 2));
    for (int column = 0; column < plan.columns; ++column) {
        const double off = (column - (plan.columns - 1) / 2.0) * plan.columnStep * field.perFoot;
        canvas.painter.drawLine(QPointF(middle + off, field.room.top()),
                                QPointF(middle + off, field.room.bottom()));
    }
}

/// Loops from the upper end of the picture to its lower one.
int loopsIn(const Field& field, const TrenchPlan& plan) {
    const double pitch = plan.pitch * field.perFoot;
    const double length = field.room.height() - plan.coilDiameter * field.perFoot;
    if (!(pitch > 0) || length < 0) return 1;
    return 1 + static_cast<int>(std::min(mostLoops, length / pitch));
}

void drawLyingCoil(const Canvas& canvas, const Field& field, const TrenchPlan& plan,
                   double middle) {
    const double radius = plan.coilDiameter / 2 * field.perFoot;
    canvas.painter.setPen(QPen(canvas.look.pipe, 1.4));
    canvas.painter.setBrush(Qt::NoBrush);
    for (int loop = 0; loop < loopsIn(field, plan); ++loop)
        canvas.painter.drawEllipse(
            QPointF(middle, field.room.top() + radius + loop * plan.pitch * field.perFoot), radius,
            radius);
}

void drawStandingCoil(const Canvas& canvas, const Field& field, const TrenchPlan& plan,
                      double middle) {
    const double radius = plan.coilDiameter / 2 * field.perFoot;
    canvas.painter.setPen(QPen(canvas.look.pipe, 2));
    canvas.painter.drawLine(QPointF(middle, field.room.top()),
                            QPointF(middle, field.room.bottom()));
    for (int loop = 0; loop < loopsIn(field, plan); ++loop) {
        const double y = field.room.top() + radius + loop * plan.pitch * field.perFoot;
        canvas.painter.drawLine(QPointF(middle - 4, y), QPointF(middle + 4, y));
    }
}

void drawTrenchAt(const Canvas& canvas, const Field& field, const TrenchPlan& plan, double middle) {
    drawStrip(canvas, field, plan, middle);
    canvas.painter.save();
    canvas.painter.setClipRect(field.room, Qt::IntersectClip);
    if (!plan.isCoil())
        drawColumns(canvas, field, plan, middle);
    else if (plan.standing)
        drawStandingCoil(canvas, field, plan, middle);
    else
        drawLyingCoil(canvas, field, plan, middle);
    canvas.painter.restore();
}

void drawDimensions(const Canvas& canvas, const Field& field, const TrenchPlan& plan) {
    const double top = field.room.top();
    if (plan.drawn > 1)
        drawLevelDimension(canvas, {field.middle(0), top}, {field.middle(1), top},
                           top - planDimensionRoom / 2, qt(plan.separationLabel));
    if (!plan.isCoil() || loopsIn(field, plan) < 2) return;
    const double last = field.middle(plan.drawn - 1);
    const double radius = plan.coilDiameter / 2 * field.perFoot;
    const double first = top + radius;
    drawUprightDimension(canvas, {last, first}, {last, first + plan.pitch * field.perFoot},
                         last + (plan.standing ? 8 : radius) + 24,
                         QStringLiteral("[P] ") + qt(plan.pitchLabel));
}

}  // namespace

void paintTrenches(const Canvas& canvas, const TrenchPlan& plan, const Texts& texts) {
    if (plan.empty()) return;
    const Field field = fieldIn(canvas, plan);
    QPainter& painter = canvas.painter;
    painter.fillRect(canvas.area.adjusted(0, planDimensionRoom - gridStep, 0, 0),
                     between(canvas.look.surface, canvas.look.ground, 0.55));
    for (int trench = 0; trench < plan.drawn; ++trench)
        drawTrenchAt(canvas, field, plan, field.middle(trench));
    drawDimensions(canvas, field, plan);
    if (plan.drawn >= plan.trenches) return;
    painter.setFont(canvas.words);
    painter.setPen(canvas.look.ink);
    painter.drawText(canvas.area, Qt::AlignHCenter | Qt::AlignBottom,
                     canvas.shown(qt(trenchesCutNote(plan, texts))));
}

}  // namespace varnholt
