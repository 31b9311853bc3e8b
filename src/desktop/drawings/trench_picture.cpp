// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/trench_picture.h"

#include <algorithm>

#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers/horizontal.h"

namespace varnholt {
namespace {

constexpr double trenchSideRoom = 92;       // for upright dimensions and the ground
constexpr double trenchDimensionRoom = 26;  // of a level dimension
constexpr double groundBeside = 20;

/// The drawing's coordinates on the screen: the trench's middle line at the surface.
struct TrenchScale {
    QPointF surface;
    double perInch;

    QPointF at(double x, double y) const { return surface + QPointF(x, -y) * perInch; }
};

double widest(const TrenchDrawing& trench) {
    return std::max(trench.width, trench.coil && !trench.standing ? trench.coilDiameter : 0.0);
}

QString lettered(const char* letter, const std::string& label) {
    return QString::fromLatin1(letter) + u' ' + qt(label);
}

/// Level dimensions below the trench, from the drawing outwards.
int levelDimensions(const TrenchDrawing& trench) {
    return 1 + (trench.besideFirst > 0) + (trench.coil && !trench.standing);
}

TrenchScale scaleFor(const Canvas& canvas, const TrenchDrawing& trench) {
    const double above = canvas.textHeight() + gridStep;
    const double warning = trench.fits ? 0 : canvas.textHeight() + gridStep / 2.0;
    const double below = levelDimensions(trench) * trenchDimensionRoom + groundBeside + warning;
    const QRectF room = canvas.area.adjusted(trenchSideRoom, above, -trenchSideRoom, -below);
    const double across = std::max(8.0, room.width()) / widest(trench);
    const double down = std::max(8.0, room.height()) / trench.bottom;
    return {{room.center().x(), room.top()}, std::min(across, down)};
}

void drawGround(const Canvas& canvas, const TrenchScale& scale, const TrenchDrawing& trench,
                const Texts& texts) {
    QPainter& painter = canvas.painter;
    const double half = widest(trench) / 2;
    const QRectF ground(
        QPointF(canvas.area.left(), scale.surface.y()),
        QPointF(canvas.area.right(), scale.at(0, -trench.bottom).y() + groundBeside));
    painter.fillRect(ground, between(canvas.look.surface, canvas.look.ground, 0.55));
    painter.setPen(QPen(canvas.look.muted, 1.6));
    const double level = canvas.crisp(scale.surface.y());
    painter.drawLine(QPointF(ground.left(), level), QPointF(ground.right(), level));
    painter.setFont(canvas.words);
    painter.setPen(canvas.look.muted);
    painter.drawText(QRectF(canvas.area.left(), level - canvas.textHeight() - 2,
                            scale.at(-half, 0).x() - canvas.area.left() + half * scale.perInch,
                            canvas.textHeight()),
                     Qt::AlignLeft | Qt::AlignVCenter, qt(texts.text(Text::groundSurfacePicture)));
}

/// The trench filled up again, with its walls.
void drawTrench(const Canvas& canvas, const TrenchScale& scale, const TrenchDrawing& trench) {
    QPainter& painter = canvas.painter;
    const QRectF dug(scale.at(-trench.width / 2, 0), scale.at(trench.width / 2, -trench.bottom));
    painter.fillRect(dug, between(canvas.look.surface, canvas.look.grout, 0.7));
    painter.setPen(trench.fits ? QPen(canvas.look.muted, 1.4)
                               : QPen(canvas.look.alarm, 2, Qt::DashLine));
    painter.drawLine(dug.topLeft(), dug.bottomLeft());
    painter.drawLine(dug.bottomLeft(), dug.bottomRight());
    painter.drawLine(dug.bottomRight(), dug.topRight());
}

void drawPipes(const Canvas& canvas, const TrenchScale& scale, const TrenchDrawing& trench) {
    QPainter& painter = canvas.painter;
    for (const PipeCircle& pipe : trench.pipes) {
        const QPointF middle = scale.at(pipe.x, pipe.y);
        const double outer = std::max(2.0, pipe.outside / 2 * scale.perInch);
        const double inner = std::clamp(pipe.inside / 2 * scale.perInch, 0.0, outer);
        painter.setPen(Qt::NoPen);
        painter.setBrush(canvas.look.pipe);
        painter.drawEllipse(middle, outer, outer);
        painter.setBrush(between(canvas.look.field, canvas.look.accent, 0.14));
        if (inner > 1.5) painter.drawEllipse(middle, inner, inner);
    }
}

/// From its side a coil is as long as its diameter and as thick as its pipe.
void drawCoil(const Canvas& canvas, const TrenchScale& scale, const TrenchDrawing& trench) {
    const double half = trench.coilDiameter / 2;
    const double x = trench.standing ? 0 : half;
    const double y = trench.standing ? half : 0;
    canvas.painter.setPen(QPen(canvas.look.pipe, 4, Qt::SolidLine, Qt::RoundCap));
    canvas.painter.drawLine(scale.at(-x, -trench.coilMiddle + y),
                            scale.at(x, -trench.coilMiddle - y));
}

void drawLevels(const Canvas& canvas, const TrenchScale& scale, const TrenchDrawing& trench) {
    double level = scale.at(0, -trench.bottom).y() + trenchDimensionRoom * 0.8;
    const double bottom = -trench.bottom;
    const double half = trench.width / 2;
    if (trench.besideFirst > 0) {
        const PipeCircle& first = trench.pipes.front();
        const PipeCircle& beside = trench.pipes[trench.besideFirst];
        drawLevelDimension(canvas, scale.at(first.x, first.y), scale.at(beside.x, beside.y), level,
                           lettered("[X]", trench.columnStepLabel));
        level += trenchDimensionRoom;
    }
    if (trench.coil && !trench.standing) {
        drawLevelDimension(canvas, scale.at(-trench.coilDiameter / 2, -trench.coilMiddle),
                           scale.at(trench.coilDiameter / 2, -trench.coilMiddle), level,
                           lettered("[D]", trench.coilLabel));
        level += trenchDimensionRoom;
    }
    drawLevelDimension(canvas, scale.at(-half, bottom), scale.at(half, bottom), level,
                       qt(trench.widthLabel));
}

void drawUprights(const Canvas& canvas, const TrenchScale& scale, const TrenchDrawing& trench) {
    const double half = widest(trench) / 2;
    const double left = scale.at(-half, 0).x() - 26;
    const double right = scale.at(half, 0).x() + 26;
    drawUprightDimension(canvas, scale.at(-trench.width / 2, 0),
                         scale.at(-trench.width / 2, -trench.depth), left, qt(trench.depthLabel));
    if (trench.showsRows && trench.pipes.size() > 1) {
        const PipeCircle& lower = trench.pipes[0];
        const PipeCircle& upper = trench.pipes[1];
        drawUprightDimension(canvas, scale.at(upper.x, upper.y), scale.at(lower.x, lower.y), right,
                             lettered("[Y]", trench.rowStepLabel));
    }
    if (trench.standing)
        drawUprightDimension(canvas, scale.at(0, -trench.depth), scale.at(0, -trench.bottom), right,
                             lettered("[D]", trench.coilLabel));
}

/// In the middle of the place that the drawing leaves at the foot.
void drawNote(const Canvas& canvas, const QString& text) {
    const double height = canvas.textHeight();
    canvas.painter.setFont(canvas.words);
    canvas.painter.setPen(canvas.look.alarm);
    canvas.painter.drawText(
        QRectF(canvas.area.left(), canvas.area.bottom() - height, canvas.area.width(), height),
        Qt::AlignCenter, text);
}

}  // namespace

void paintTrench(const Canvas& canvas, const TrenchDrawing& trench, const Texts& texts) {
    if (trench.empty()) {
        canvas.painter.setPen(canvas.look.muted);
        canvas.painter.setFont(canvas.words);
        canvas.painter.drawText(canvas.area, Qt::AlignCenter | Qt::TextWordWrap,
                                qt(texts.text(Text::trenchPictureEmpty)));
        return;
    }
    const TrenchScale scale = scaleFor(canvas, trench);
    drawGround(canvas, scale, trench, texts);
    drawTrench(canvas, scale, trench);
    drawPipes(canvas, scale, trench);
    if (trench.coil) drawCoil(canvas, scale, trench);
    drawLevels(canvas, scale, trench);
    drawUprights(canvas, scale, trench);
    if (!trench.fits) drawNote(canvas, qt(texts.text(Text::slinkyTooWidePicture)));
}

}  // namespace varnholt
