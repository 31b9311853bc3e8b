// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/bore_picture.h"

#include <QPainterPath>
#include <QRadialGradient>
#include <algorithm>
#include <cmath>

#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers/pictures.h"

namespace varnholt {
namespace {

constexpr double boreDimensionRoom = 30;  // above and below the bore
constexpr double groundRoom = 12;         // of ground around the bore
constexpr double hatchStep = 7;

/// The drawing's coordinates on the screen.
struct BoreScale {
    QPointF middle;
    double perInch;

    QPointF at(double x, double y) const { return middle + QPointF(x, -y) * perInch; }
};

/// Radius of the circle around the bore's middle that holds bore and pipes, in.
double reachOf(const BoreDrawing& bore) {
    double reach = bore.boreDiameter / 2;
    for (const PipeCircle& pipe : bore.pipes)
        reach = std::max(reach, std::hypot(pipe.x, pipe.y) + pipe.outside / 2);
    return reach;
}

BoreScale scaleFor(const Canvas& canvas, const BoreDrawing& bore, double warningRoom) {
    const QRectF room = canvas.area.adjusted(groundRoom, boreDimensionRoom, -groundRoom,
                                             -boreDimensionRoom - warningRoom);
    const double radius = std::max(8.0, std::min(room.width(), room.height()) / 2);
    return {room.center(), radius / reachOf(bore)};
}

void drawGround(const Canvas& canvas, const BoreScale& scale, double radius) {
    const double far = radius + groundRoom;
    QRadialGradient ground(scale.middle, far);
    QColor clear = canvas.look.ground;
    clear.setAlpha(0);
    ground.setColorAt(0, canvas.look.ground);
    ground.setColorAt(radius / far, canvas.look.ground);
    ground.setColorAt(1, clear);
    canvas.painter.setPen(Qt::NoPen);
    canvas.painter.setBrush(ground);
    canvas.painter.drawEllipse(scale.middle, far, far);
}

void drawHatch(const Canvas& canvas, const QPointF& middle, double radius) {
    QPainter& painter = canvas.painter;
    const QColor tone =
        canvas.look.dark ? canvas.look.grout.lighter(130) : canvas.look.grout.darker(114);
    painter.setPen(QPen(tone, 1));
    const int lines = static_cast<int>(std::ceil(radius / hatchStep));
    // A line of the hatch lies so far from the middle and is as long as the circle leaves it.
    for (int line = -lines; line < lines; ++line) {
        const double off = (line + 0.5) * hatchStep;
        const double half = std::sqrt(std::max(0.0, radius * radius - off * off));
        const QPointF along(half * M_SQRT1_2, -half * M_SQRT1_2);
        const QPointF foot = middle + QPointF(off * M_SQRT1_2, off * M_SQRT1_2);
        painter.drawLine(foot - along, foot + along);
    }
}

void drawGrout(const Canvas& canvas, const BoreScale& scale, const BoreDrawing& bore) {
    const double radius = bore.boreDiameter / 2 * scale.perInch;
    QPainter& painter = canvas.painter;
    painter.setPen(Qt::NoPen);
    painter.setBrush(canvas.look.grout);
    painter.drawEllipse(scale.middle, radius, radius);
    drawHatch(canvas, scale.middle, radius);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(bore.fits ? QPen(canvas.look.muted, 1.6)
                             : QPen(canvas.look.alarm, 2, Qt::DashLine));
    painter.drawEllipse(scale.middle, radius, radius);
}

void drawCentreLines(const Canvas& canvas, const BoreScale& scale, double radius) {
    const double reach = radius + groundRoom / 2;
    QPen pen(canvas.look.muted, 1, Qt::CustomDashLine, Qt::FlatCap);
    pen.setDashPattern({10, 3, 2, 3});
    canvas.painter.setPen(pen);
    const double x = canvas.crisp(scale.middle.x());
    const double y = canvas.crisp(scale.middle.y());
    canvas.painter.drawLine(QPointF(x - reach, y), QPointF(x + reach, y));
    canvas.painter.drawLine(QPointF(x, y - reach), QPointF(x, y + reach));
}

/// The draughtsman's signs of a current: a cross leaves the onlooker, a dot comes towards him.
void drawFlow(const Canvas& canvas, const QPointF& middle, double radius, bool down) {
    const double size = std::min(5.0, radius * 0.4);
    if (radius < 5) return;
    QPainter& painter = canvas.painter;
    painter.setPen(QPen(canvas.look.muted, 1.4, Qt::SolidLine, Qt::RoundCap));
    if (down) {
        painter.drawLine(middle + QPointF(-size, -size) * 0.8, middle + QPointF(size, size) * 0.8);
        painter.drawLine(middle + QPointF(-size, size) * 0.8, middle + QPointF(size, -size) * 0.8);
    } else {
        painter.setBrush(canvas.look.muted);
        painter.drawEllipse(middle, size * 0.35, size * 0.35);
    }
}

void drawPipe(const Canvas& canvas, const BoreScale& scale, const PipeCircle& pipe, bool down) {
    const QPointF middle = scale.at(pipe.x, pipe.y);
    const double outer = pipe.outside / 2 * scale.perInch;
    const double inner = pipe.inside / 2 * scale.perInch;
    QPainter& painter = canvas.painter;
    // A rim of grout keeps two walls apart that touch.
    painter.setPen(QPen(canvas.look.grout, 1));
    painter.setBrush(canvas.look.pipe);
    painter.drawEllipse(middle, outer, outer);
    painter.setPen(Qt::NoPen);
    painter.setBrush(between(canvas.look.field, canvas.look.accent, 0.14));
    painter.drawEllipse(middle, inner, inner);
    drawFlow(canvas, middle, inner, down);
}

void drawWarning(const Canvas& canvas, const QString& text) {
    QPainter& painter = canvas.painter;
    const double height = canvas.textHeight();
    QRectF line(canvas.area.left(), canvas.area.bottom() - height, canvas.area.width(), height);
    painter.setFont(canvas.words);
    painter.setPen(canvas.look.alarm);
    painter.drawText(line, Qt::AlignCenter, text);
}

void drawDiameters(const Canvas& canvas, const BoreScale& scale, const BoreDrawing& bore) {
    const double reach = reachOf(bore) * scale.perInch;
    const double half = bore.boreDiameter / 2;
    const double below = scale.middle.y() + reach + groundRoom + canvas.textHeight() / 2;
    drawLevelDimension(canvas, scale.at(-half, 0), scale.at(half, 0), below, qt(bore.boreLabel));
    if (bore.pipes.empty()) return;
    const PipeCircle& pipe = bore.pipes.front();
    const double edge = pipe.outside / 2;
    const double above = scale.middle.y() - reach - groundRoom - canvas.textHeight() / 2;
    drawLevelDimension(canvas, scale.at(pipe.x - edge, pipe.y), scale.at(pipe.x + edge, pipe.y),
                       above, qt(bore.pipeLabel));
}

}  // namespace

void paintBore(const Canvas& canvas, const BoreDrawing& bore, const Texts& texts) {
    if (reachOf(bore) <= 0) return;
    const double warningRoom = bore.fits ? 0 : canvas.textHeight() + gridStep / 2.0;
    const BoreScale scale = scaleFor(canvas, bore, warningRoom);
    const double reach = reachOf(bore) * scale.perInch;
    drawGround(canvas, scale, reach);
    drawGrout(canvas, scale, bore);
    drawCentreLines(canvas, scale, reach);
    std::size_t leg = 0;
    // Of opposite legs, which make one U-tube, the first leads down and the second up.
    for (const PipeCircle& pipe : bore.pipes)
        drawPipe(canvas, scale, pipe, leg++ < bore.pipes.size() / 2);
    drawDiameters(canvas, scale, bore);
    if (!bore.fits) drawWarning(canvas, qt(texts.text(Text::pipesDoNotFitPicture)));
}

}  // namespace varnholt
