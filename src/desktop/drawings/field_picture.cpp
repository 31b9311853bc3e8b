// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/field_picture.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPixmap>
#include <QPolygonF>
#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "design/picture_sentences.h"
#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers/pictures.h"

namespace varnholt {
namespace {

constexpr double fieldDimensionRoom = 34;  // at each side that has a dimension line
constexpr double widestPitch = 64;         // a few bores do not fly apart
constexpr double narrowestPitch = 6;       // below it marks run into each other
constexpr double largestMark = 11;

/// How the marks of a class look: dark with many neighbours, hollow with few.
struct Tone {
    QColor fill, edge;
};

Tone toneOf(const Look& look, int neighbours) {
    constexpr std::array<double, 5> strength{0, 0, 0, 0.42, 1};
    return {between(look.field, look.accent, strength[static_cast<std::size_t>(neighbours)]),
            look.accent};
}

QPolygonF markShape(int neighbours, double half) {
    const double h = half;
    switch (neighbours) {
        case 1:
            return {{0, -h}, {h, h * 0.8}, {-h, h * 0.8}};
        case 2:
            return {{-h * 0.85, -h * 0.85},
                    {h * 0.85, -h * 0.85},
                    {h * 0.85, h * 0.85},
                    {-h * 0.85, h * 0.85}};
        default:
            return {{0, -h * 1.15}, {h * 1.15, 0}, {0, h * 1.15}, {-h * 1.15, 0}};
    }
}

void drawMark(QPainter& painter, const Look& look, const QPointF& middle, int neighbours,
              double size) {
    const Tone tone = toneOf(look, neighbours);
    painter.setBrush(tone.fill);
    painter.setPen(
        QPen(tone.edge, size < 7 ? 1 : 1.4, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    if (neighbours == 0 || neighbours == 4)
        painter.drawEllipse(middle, size / 2, size / 2);
    else
        painter.drawPolygon(markShape(neighbours, size / 2).translated(middle));
}

/// Draws the legend at the foot of the area, in as many lines as it needs.
/// @return the room above it
QRectF drawLegend(const Canvas& canvas, const std::vector<FieldClass>& entries) {
    constexpr double markRoom = 18, gap = 16;
    const double lineHeight = canvas.textHeight() + 4;
    const QFontMetricsF metrics(canvas.words);
    std::vector<std::pair<QPointF, const FieldClass*>> placed;
    double x = 0, y = 0;
    for (const FieldClass& entry : entries) {
        const double width = markRoom + metrics.horizontalAdvance(canvas.shown(qt(entry.words)));
        if (x > 0 && x + width > canvas.area.width()) {
            x = 0;
            y += lineHeight;
        }
        placed.push_back({{x, y}, &entry});
        x += width + gap;
    }
    const double height = placed.empty() ? 0 : y + lineHeight;
    const QPointF origin(canvas.area.left(), canvas.area.bottom() - height);
    for (const auto& [offset, entry] : placed) {
        const QPointF start = origin + offset;
        drawMark(canvas.painter, canvas.look, start + QPointF(6, lineHeight / 2), entry->neighbours,
                 10);
        canvas.painter.setFont(canvas.words);
        canvas.painter.setPen(canvas.look.ink);
        canvas.painter.drawText(
            QRectF(start + QPointF(markRoom, 0), QSizeF(canvas.area.width(), lineHeight)),
            Qt::AlignLeft | Qt::AlignVCenter, canvas.shown(qt(entry->words)));
    }
    return canvas.area.adjusted(0, 0, 0, -height - gridStep / 2.0);
}

/// Where the bores lie on the screen.
struct Grid {
    double columns, rows;
    double pitch;
    QRectF bores;  ///< from the first bore's middle to the last one's

    QPointF at(double column, double row) const {
        return bores.topLeft() + QPointF(column, row) * pitch;
    }
    double margin() const { return std::clamp(pitch / 2, 8.0, 16.0); }
    QRectF plot() const { return bores.adjusted(-margin(), -margin(), margin(), margin()); }
};

constexpr double groundAround = 16;

/// @param inner  room for the bores' middles
Grid gridIn(const Canvas& canvas, const QRectF& inner, const FieldPlan& field) {
    const double ratio = canvas.painter.device()->devicePixelRatioF();
    Grid grid{std::floor(field.across), std::floor(field.down), widestPitch, {}};
    if (grid.columns > 1) grid.pitch = std::min(grid.pitch, inner.width() / (grid.columns - 1));
    if (grid.rows > 1) grid.pitch = std::min(grid.pitch, inner.height() / (grid.rows - 1));
    // Whole pixels of the device from mark to mark, so that all marks look the same.
    const bool told = grid.pitch >= narrowestPitch;
    grid.pitch = told ? std::floor(grid.pitch * ratio) / ratio : std::max(grid.pitch, 0.0);
    const QSizeF size(grid.pitch * (grid.columns - 1), grid.pitch * (grid.rows - 1));
    const QPointF corner = inner.center() - QPointF(size.width(), size.height()) / 2;
    grid.bores = QRectF(QPointF(canvas.crisp(corner.x()), canvas.crisp(corner.y())), size);
    return grid;
}

void drawGround(const Canvas& canvas, const Grid& grid) {
    canvas.painter.setPen(Qt::NoPen);
    canvas.painter.setBrush(between(canvas.look.surface, canvas.look.ground, 0.6));
    canvas.painter.drawRoundedRect(grid.plot(), 4, 4);
}

int neighboursAt(const Grid& grid, double column, double row) {
    return (column > 0) + (column + 1 < grid.columns) + (row > 0) + (row + 1 < grid.rows);
}

/// The mark of a class once, to be stamped onto the plan: a thousand outlines would take too long
/// for a picture that follows typing.
QPixmap stampOf(const Canvas& canvas, int neighbours, double size) {
    const double ratio = canvas.painter.device()->devicePixelRatioF();
    const int side = static_cast<int>(std::ceil((size * 1.2 + 2) * ratio)) | 1;
    QPixmap stamp(side, side);
    stamp.setDevicePixelRatio(ratio);
    stamp.fill(Qt::transparent);
    QPainter painter(&stamp);
    painter.setRenderHint(QPainter::Antialiasing);
    const double middle = side / ratio / 2;
    drawMark(painter, canvas.look, {middle, middle}, neighbours, size);
    return stamp;
}

/// A file for printers takes outlines, which stay sharp at any size.
bool takesOutlines(const QPainter& painter) {
    return painter.paintEngine() != nullptr && painter.paintEngine()->type() == QPaintEngine::Pdf;
}

void drawBores(const Canvas& canvas, const Grid& grid) {
    const double size = std::min(largestMark, grid.pitch * 0.62);
    if (takesOutlines(canvas.painter)) {
        for (int row = 0; row < grid.rows; ++row)
            for (int column = 0; column < grid.columns; ++column)
                drawMark(canvas.painter, canvas.look, grid.at(column, row),
                         neighboursAt(grid, column, row), size);
        return;
    }
    std::array<QPixmap, 5> stamps;
    for (int neighbours = 0; neighbours < 5; ++neighbours)
        stamps[static_cast<std::size_t>(neighbours)] = stampOf(canvas, neighbours, size);
    const double half = stamps[0].deviceIndependentSize().width() / 2;
    for (int row = 0; row < grid.rows; ++row)
        for (int column = 0; column < grid.columns; ++column) {
            const auto neighbours = static_cast<std::size_t>(neighboursAt(grid, column, row));
            canvas.painter.drawPixmap(grid.at(column, row) - QPointF(half, half),
                                      stamps[neighbours]);
        }
}

/// Bores that cannot be told apart: the inside, the edges and the corners as areas.
void drawClasses(const Canvas& canvas, const Grid& grid) {
    constexpr double band = narrowestPitch;
    QPainter& painter = canvas.painter;
    const QRectF outer = grid.bores.adjusted(-band / 2, -band / 2, band / 2, band / 2);
    const bool line = grid.rows < 2 || grid.columns < 2;
    const Tone edge = toneOf(canvas.look, line ? 2 : 3);
    painter.setPen(QPen(edge.edge, 1));
    painter.setBrush(edge.fill);
    painter.drawRect(outer);
    if (grid.rows > 2 && grid.columns > 2) {
        const Tone inside = toneOf(canvas.look, 4);
        painter.setPen(Qt::NoPen);
        painter.setBrush(inside.fill);
        painter.drawRect(outer.adjusted(band, band, -band, -band));
    }
    const int corner = line ? 1 : 2;
    for (const double column : {0.0, grid.columns - 1})
        for (const double row : {0.0, grid.rows - 1})
            drawMark(painter, canvas.look, grid.at(column, row), corner, largestMark);
}

void drawDimensions(const Canvas& canvas, const Grid& grid, const FieldPlan& field) {
    const QRectF plot = grid.plot();
    const double away = 18;
    const QPointF first = grid.at(0, 0);
    const QPointF last = grid.at(grid.columns - 1, grid.rows - 1);
    if (grid.columns > 1) {
        drawLevelDimension(canvas, {first.x(), plot.top()}, {grid.at(1, 0).x(), plot.top()},
                           plot.top() - away, qt(field.separationLabel));
        drawLevelDimension(canvas, {first.x(), plot.bottom()}, {last.x(), plot.bottom()},
                           plot.bottom() + away, qt(field.acrossLabel));
    }
    if (grid.rows < 2) return;
    drawUprightDimension(canvas, {plot.left(), first.y()}, {plot.left(), last.y()},
                         plot.left() - away, qt(field.downLabel));
    if (grid.columns < 2)
        drawUprightDimension(canvas, {plot.right(), first.y()}, {plot.right(), grid.at(0, 1).y()},
                             plot.right() + away, qt(field.separationLabel));
}

bool isNone(const FieldPlan& field) { return field.across < 1 || field.down < 1; }

void drawNone(const Canvas& canvas, const Texts& texts) {
    canvas.painter.setPen(canvas.look.muted);
    canvas.painter.setFont(canvas.words);
    canvas.painter.drawText(canvas.area, Qt::AlignCenter | Qt::TextWordWrap,
                            qt(texts.text(Text::fieldPictureEmpty)));
}

void drawPlan(const Canvas& canvas, const Grid& grid) {
    drawGround(canvas, grid);
    const double lines = std::max(grid.columns, grid.rows);
    if (lines > 1 && grid.pitch < narrowestPitch)
        drawClasses(canvas, grid);
    else
        drawBores(canvas, grid);
}

}  // namespace

void paintField(const Canvas& canvas, const FieldPlan& field, const Texts& texts) {
    if (isNone(field)) return drawNone(canvas, texts);
    const QRectF room = drawLegend(canvas, fieldClasses(field, texts));
    constexpr double around = fieldDimensionRoom + groundAround;
    const Grid grid = gridIn(canvas, room.adjusted(around, around, -groundAround, -around), field);
    drawPlan(canvas, grid);
    drawDimensions(canvas, grid, field);
}

void paintSmallField(const Canvas& canvas, const FieldPlan& field, const Texts& texts) {
    if (isNone(field)) return drawNone(canvas, texts);
    const QString measures = canvas.shown(qt(fieldMeasures(field, texts)));
    // As many lines as the words take.
    constexpr int inLines = Qt::AlignHCenter | Qt::AlignBottom | Qt::TextWordWrap;
    const double lines =
        QFontMetricsF(canvas.words).boundingRect(canvas.area, inLines, measures).height();
    const QRectF room = canvas.area.adjusted(groundAround, groundAround, -groundAround,
                                             -groundAround - lines - gridStep / 2.0);
    drawPlan(canvas, gridIn(canvas, room, field));
    canvas.painter.setPen(canvas.look.muted);
    canvas.painter.setFont(canvas.words);
    canvas.painter.drawText(canvas.area, inLines, measures);
}

}  // namespace varnholt
