// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/circuit_picture.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <algorithm>

#include "design/picture_sentences.h"
#include "desktop/drawings/circuit_tree.h"
#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

constexpr double leastDistance = 15;  // between two loops
constexpr double largestLoop = 22;
constexpr double houseSize = 34;
constexpr double captionLines = 5;
constexpr double leastHeightToTell = 230;  // below it the pipes take the captions' room

/// The parts of the picture.
struct Scene {
    QRectF section, captions;
    double surface = 0;   ///< height of the ground and of the water
    double shore = 0;     ///< where the water begins
    int columns = 0;      ///< heat pumps, headers, branches where there are any, loops
    double distance = 0;  ///< between two loops

    double columnWidth() const { return section.width() / columns; }
    double columnStart(int column) const { return section.left() + columnWidth() * column; }
};

Scene sceneIn(const Canvas& canvas, const CircuitPlan& plan) {
    Scene scene;
    const bool told = canvas.area.height() >= leastHeightToTell;
    const double captionHeight = told ? captionLines * canvas.textHeight() + gridStep : 0;
    scene.captions = QRectF(canvas.area.left(), canvas.area.bottom() - captionHeight,
                            canvas.area.width(), captionHeight);
    scene.section = canvas.area.adjusted(0, 0, 0, told ? -captionHeight - gridStep : 0);
    scene.columns = plan.branch.count > 0 ? 4 : 3;
    scene.surface = scene.section.top() + houseSize + gridStep;
    const int shoreColumn = plan.shoreAtBranches ? 2 : 1;
    scene.shore = scene.columnStart(shoreColumn) + 0.45 * scene.columnWidth();
    return scene;
}

void drawGround(const Canvas& canvas, const Scene& scene) {
    const QRectF ground(QPointF(scene.section.left(), scene.surface), scene.section.bottomRight());
    QPainterPath clip;
    clip.addRoundedRect(ground, 4, 4);
    QPainter& painter = canvas.painter;
    painter.save();
    painter.setClipPath(clip);
    painter.fillRect(ground, between(canvas.look.surface, canvas.look.ground, 0.7));
    // The bed falls from the shore to the middle of the water.
    const double bed = scene.section.bottom() - gridStep;
    QPainterPath water(QPointF(scene.shore - 14, scene.surface));
    water.cubicTo({scene.shore + 8, scene.surface + 10}, {scene.shore + 4, bed},
                  {scene.shore + 40, bed});
    water.lineTo(scene.section.right(), bed);
    water.lineTo(scene.section.right(), scene.surface);
    painter.setPen(Qt::NoPen);
    painter.setBrush(between(canvas.look.surface, canvas.look.cooling, 0.18));
    painter.drawPath(water);
    painter.restore();
    painter.setPen(QPen(canvas.look.line, 1));
    const double level = canvas.crisp(scene.surface);
    painter.drawLine(QPointF(scene.section.left(), level), QPointF(scene.section.right(), level));
}

/// @return where the trunk leaves the house
QPointF drawHouse(const Canvas& canvas, const Scene& scene) {
    const double middle = scene.columnStart(0) + scene.columnWidth() / 2;
    const double half = houseSize / 2;
    const double eaves = scene.surface - houseSize * 0.55;
    QPainter& painter = canvas.painter;
    painter.setPen(QPen(canvas.look.muted, 1.4, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(canvas.look.field);
    painter.drawPolygon(QPolygonF{{middle - half, scene.surface},
                                  {middle - half, eaves},
                                  {middle, scene.surface - houseSize},
                                  {middle + half, eaves},
                                  {middle + half, scene.surface}});
    return {middle, scene.surface - houseSize * 0.25};
}

/// A header is a pair of pipes, there and back.
struct Pipe {
    QPainterPath path;
    double width;
};

/// Walls first and water after them, so that the pipes run into one another.
void strokePipes(const Canvas& canvas, const std::vector<Pipe>& pipes) {
    constexpr double walls = 2.4;
    for (const Pipe& pipe : pipes)
        canvas.painter.strokePath(pipe.path, QPen(canvas.look.pipe, pipe.width, Qt::SolidLine,
                                                  Qt::FlatCap, Qt::RoundJoin));
    for (const Pipe& pipe : pipes)
        canvas.painter.strokePath(pipe.path, QPen(canvas.look.field, pipe.width - walls,
                                                  Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
}

/// @param reach  width and height at most
void drawLoop(const Canvas& canvas, const QPointF& start, const QSizeF& reach, bool slinky) {
    QPainter& painter = canvas.painter;
    painter.setPen(QPen(canvas.look.pipe, 1.2));
    painter.setBrush(Qt::NoBrush);
    const double height = std::min(reach.height(), largestLoop);
    const double ring = slinky ? height * 1.2 : height * 2.2;
    const int rings = slinky ? 6 : 4;
    // A slinky's rings lie out along the bed, a coil's lie on one another.
    const double step =
        slinky ? std::min(ring * 0.6, (reach.width() - ring) / (rings - 1)) : height * 0.18;
    for (int i = 0; i < rings; ++i)
        painter.drawEllipse(QRectF(start.x() + i * step, start.y() - height / 2, ring, height));
}

/// Collects the pipes that go out from the end of one, each column a kind, and draws the loops.
void layPipes(const Canvas& canvas, const Scene& scene, const CircuitPipe& pipe, int column,
              const CircuitPlan& plan, std::vector<Pipe>& pipes) {
    constexpr double tail = 14;
    const double x = scene.columnStart(column);
    const double end = scene.columnStart(column + 1);
    const bool loops = column + 1 == scene.columns;
    for (const CircuitPipe& next : pipe.next) {
        if (!loops) layPipes(canvas, scene, next, column + 1, plan, pipes);
        QPainterPath path(QPointF(x, pipe.level));
        path.lineTo(x, next.level);
        path.lineTo(loops ? x + tail : end, next.level);
        pipes.push_back({path, loops ? 3.6 : 5.2});
        if (loops)
            drawLoop(canvas, {x + tail, next.level},
                     {end - x - tail - gridStep, scene.distance * 0.7}, plan.slinky);
    }
}

Pipe trunkOf(const Scene& scene, const QPointF& house, double level) {
    QPainterPath path(house);
    path.lineTo(house.x(), level);
    path.lineTo(scene.columnStart(1), level);
    return {path, 6};
}

void drawCaption(const Canvas& canvas, const QRectF& column, const CircuitCaption& caption) {
    QPainter& painter = canvas.painter;
    const double line = canvas.textHeight();
    double y = column.top();
    const auto write = [&](const std::string& text, const QColor& colour, const QFont& font) {
        if (text.empty()) return;
        painter.setFont(font);
        painter.setPen(colour);
        painter.drawText(
            QRectF(column.left(), y, column.width(), line), Qt::AlignHCenter | Qt::AlignVCenter,
            QFontMetricsF(font).elidedText(canvas.shown(qt(text)), Qt::ElideRight, column.width()));
        y += line;
    };
    QFont heavy = canvas.words;
    heavy.setWeight(QFont::DemiBold);
    write(caption.name, canvas.look.ink, heavy);
    write(caption.flows[cooling], canvas.look.cooling, canvas.figures);
    write(caption.flows[heating], canvas.look.heating, canvas.figures);
    write(caption.inSoil, canvas.look.muted, canvas.words);
    write(caption.inWater, canvas.look.muted, canvas.words);
}

}  // namespace

void paintCircuit(const Canvas& canvas, const CircuitPlan& plan, const Texts& texts) {
    Scene scene = sceneIn(canvas, plan);
    drawGround(canvas, scene);
    const QPointF house = drawHouse(canvas, scene);
    const double margin = leastDistance + gridStep / 2.0;
    const CircuitTree tree =
        treeOf(plan, scene.surface + margin, scene.section.bottom() - margin, leastDistance);
    scene.distance = tree.distance;
    std::vector<Pipe> pipes{trunkOf(scene, house, tree.trunk.level)};
    layPipes(canvas, scene, tree.trunk, 1, plan, pipes);
    strokePipes(canvas, pipes);
    if (scene.captions.isEmpty()) return;
    int column = 0;
    for (const CircuitCaption& caption : circuitCaptions(plan, texts)) {
        const QRectF place(scene.columnStart(column++), scene.captions.top(), scene.columnWidth(),
                           scene.captions.height());
        drawCaption(canvas, place.adjusted(2, 0, -2, 0), caption);
    }
}

}  // namespace varnholt
