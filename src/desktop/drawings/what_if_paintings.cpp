// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/what_if_paintings.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <QPolygonF>
#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <utility>

#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers/pictures.h"
#include "forms/text_numbers/what_if_window.h"

namespace varnholt {
namespace {

using Kind = LegendSign::Kind;

constexpr double dotRadius = 3.2;

QString whole(double value) { return QString::number(value, 'f', 0); }

double placeOf(const Plot& plot, const PlotScale& across, double value) {
    const double share = (value - across.least) / (across.most - across.least);
    return plot.area.left() + std::clamp(share, 0.0, 1.0) * plot.area.width();
}

/// Figures below a plot, at the steps of its level scale, the last with what they count. One that
/// would run into the last is left out.
void drawAcross(const Canvas& canvas, const Plot& plot, const PlotScale& across,
                const QString& unit) {
    const int figures = static_cast<int>(std::round((across.most - across.least) / across.step));
    const QString last = whole(across.most) + u' ' + unit;
    const double lastLeft = std::min(plot.area.right() - canvas.textWidth(last) / 2,
                                     canvas.area.right() - canvas.textWidth(last));
    drawBelow(canvas, plot, plot.area.right(), last);
    for (int i = 0; i < figures; ++i) {
        const double value = across.least + i * across.step;
        const double x = placeOf(plot, across, value);
        if (x + canvas.textWidth(whole(value)) / 2 + gridStep / 2.0 < lastLeft)
            drawBelow(canvas, plot, x, whole(value));
    }
}

/// Which of the points are seen: of those that fall on each other the first.
std::vector<bool> uncovered(const std::vector<QPointF>& points) {
    constexpr double apart = 2;
    std::vector<bool> seen(points.size());
    std::set<std::pair<int, int>> taken;
    for (std::size_t i = 0; i < points.size(); ++i)
        seen[i] =
            taken.insert({qRound(points[i].x() / apart), qRound(points[i].y() / apart)}).second;
    return seen;
}

// The tornado.

struct TornadoFrame {
    double names = 0, shares = 0;  ///< widths of the columns beside the bars
    double row = 0;                ///< height
    QRectF bars;
    PlotScale across;

    double placeOf(double length) const {
        const double share = (length - across.least) / (across.most - across.least);
        return bars.left() + std::clamp(share, 0.0, 1.0) * bars.width();
    }
};

TornadoFrame frameOf(const Canvas& canvas, const TornadoPicture& picture, double head) {
    TornadoFrame frame;
    double least = picture.base, most = picture.base;
    const QFontMetricsF words(canvas.words);
    for (const TornadoPicture::Bar& bar : picture.bars) {
        frame.names = std::max(frame.names, words.horizontalAdvance(qt(bar.name)) + 2);
        frame.shares = std::max(frame.shares, canvas.textWidth(qt(bar.share)));
        for (const double end : {bar.low, bar.high}) {
            if (!(end > 0)) continue;
            least = std::min(least, end);
            most = std::max(most, end);
        }
    }
    frame.names = std::min(frame.names, canvas.area.width() * 0.5);
    const double foot = canvas.textHeight() + gridStep / 2.0;
    // A gap of one row stands between what is in doubt and what is chosen.
    frame.row = (canvas.area.height() - head - foot) / static_cast<double>(picture.bars.size() + 1);
    frame.bars =
        canvas.area.adjusted(frame.names + gridStep, head,
                             -(frame.shares + gridStep + canvas.textWidth("00000")), -foot);
    frame.across = scaleAround(least, most, usualFigures);
    return frame;
}

// What comes of the low end is lighter.
constexpr double lowTone = 0.35, highTone = 0.75;

/// What tells the ends of the bars apart, in the colours of both kinds of them.
LegendSign endSign(const Look& look, double tone, const QString& word) {
    return {Kind::pair, between(look.surface, look.accent, tone),
            between(look.surface, look.muted, tone), word};
}

void drawBar(const Canvas& canvas, const TornadoFrame& frame, const TornadoPicture& picture,
             const TornadoPicture::Bar& bar, const QRectF& row) {
    QPainter& painter = canvas.painter;
    painter.setFont(canvas.words);
    painter.setPen(canvas.look.ink);
    painter.drawText(
        QRectF(canvas.area.left(), row.top(), frame.names, row.height()),
        Qt::AlignRight | Qt::AlignVCenter,
        QFontMetricsF(canvas.words).elidedText(qt(bar.name), Qt::ElideRight, frame.names));
    painter.setFont(canvas.figures);
    painter.setPen(canvas.look.muted);
    painter.drawText(
        QRectF(canvas.area.right() - frame.shares, row.top(), frame.shares, row.height()),
        Qt::AlignRight | Qt::AlignVCenter, qt(bar.share));
    const double base = frame.placeOf(picture.base);
    const QColor& colour = bar.lever ? canvas.look.muted : canvas.look.accent;
    const double height = std::min(row.height() * 0.64, 2.0 * gridStep);
    const double top = row.center().y() - height / 2;
    for (const double end : {bar.low, bar.high}) {
        if (!(end > 0)) continue;
        const double x = frame.placeOf(end);
        const QRectF half(QPointF(std::min(x, base), top),
                          QPointF(std::max(x, base), top + height));
        const double tone = end == bar.low ? lowTone : highTone;
        painter.fillRect(half, between(canvas.look.surface, colour, tone));
    }
}

// The curve of cases.

PlotScale depthsOf(const SurePicture& picture) {
    double least = picture.drawn, most = picture.drawn;
    for (const auto* curve : {&picture.curve, &picture.other})
        for (const SurePicture::Place& place : *curve) {
            least = std::min(least, place.depth);
            most = std::max(most, place.depth);
        }
    return scaleAround(least, most, usualFigures);
}

QPolygonF curveOf(const Plot& plot, const PlotScale& across,
                  const std::vector<SurePicture::Place>& places) {
    QPolygonF curve;
    for (const SurePicture::Place& place : places)
        curve << QPointF(placeOf(plot, across, place.depth), plot.heightOf(100 * place.share));
    return curve;
}

// The land.

/// Lengths on the land as places in the picture, y downwards as the rows are counted.
struct LandFrame {
    QPointF origin;
    double scale = 1;

    QPointF at(const Point& point) const {
        return origin + QPointF(point.x * scale, point.y * scale);
    }
    QPolygonF at(const Polygon& polygon) const {
        QPolygonF places;
        for (const Point& corner : polygon) places << at(corner);
        return places;
    }
};

LandFrame landFrameOf(const QRectF& area, const Polygon& outline) {
    const Extent extent = extentOf(outline);
    const double width = extent.greatest.x - extent.least.x;
    const double height = extent.greatest.y - extent.least.y;
    LandFrame frame;
    frame.scale = std::min(area.width() / width, area.height() / height);
    frame.origin = area.center() - QPointF((extent.least.x + width / 2) * frame.scale,
                                           (extent.least.y + height / 2) * frame.scale);
    return frame;
}

QPainterPath closed(const QPolygonF& polygon) {
    QPainterPath path;
    path.addPolygon(polygon);
    path.closeSubpath();
    return path;
}

/// All that is nearer to the sides of a polygon than a clearance, on both sides of them.
QPainterPath bandAround(const QPainterPath& polygon, double clearance) {
    if (!(clearance > 0)) return {};
    QPainterPathStroker stroker;
    stroker.setWidth(2 * clearance);
    stroker.setJoinStyle(Qt::RoundJoin);
    return stroker.createStroke(polygon);
}

void hatch(const Canvas& canvas, const QPainterPath& path) {
    canvas.painter.setPen(Qt::NoPen);
    canvas.painter.setBrush(QBrush(canvas.look.line, Qt::BDiagPattern));
    canvas.painter.drawPath(path);
}

}  // namespace

std::vector<QRectF> paintTornado(const Canvas& canvas, const TornadoPicture& picture,
                                 const Texts& texts) {
    if (!picture.empty.empty() || picture.bars.empty()) {
        drawEmpty(canvas, qt(picture.empty));
        return {};
    }
    const Look& look = canvas.look;
    const double head =
        drawSigns(canvas, {{Kind::area, look.accent, between(look.surface, look.accent, 0.5),
                            qt(texts.text(Text::whatIfInDoubt))},
                           {Kind::area, look.muted, between(look.surface, look.muted, 0.5),
                            qt(texts.text(Text::whatIfChosen))},
                           endSign(look, lowTone, qt(texts.text(Text::pictureLowEnd))),
                           endSign(look, highTone, qt(texts.text(Text::pictureHighEnd))),
                           {Kind::thinLine, look.ink, {}, qt(texts.text(Text::whatIfBase))}});
    const TornadoFrame frame = frameOf(canvas, picture, head);
    const Plot plot{frame.bars, {}};
    const int figures =
        static_cast<int>(std::round((frame.across.most - frame.across.least) / frame.across.step));
    for (int i = 0; i <= figures; ++i) {
        const double value = frame.across.least + i * frame.across.step;
        drawUpright(canvas, plot, frame.placeOf(value), look.hairline, Qt::SolidLine);
    }
    drawAcross(canvas, plot, frame.across, qt(picture.unit));
    std::vector<QRectF> rows;
    double top = frame.bars.top();
    bool levers = false;
    for (const TornadoPicture::Bar& bar : picture.bars) {
        if (bar.lever && !std::exchange(levers, true)) top += frame.row;
        const QRectF row(canvas.area.left(), top, canvas.area.width(), frame.row);
        drawBar(canvas, frame, picture, bar, row);
        rows.push_back(row);
        top += frame.row;
    }
    drawUpright(canvas, plot, frame.placeOf(picture.base), look.ink, Qt::SolidLine);
    return rows;
}

void paintSure(const Canvas& canvas, const SurePicture& picture, const Texts& texts) {
    if (!picture.empty.empty() || picture.curve.empty())
        return drawEmpty(canvas, qt(picture.empty));
    const Look& look = canvas.look;
    const double head =
        drawSigns(canvas, {{Kind::line, look.accent, {}, qt(picture.method)},
                           {Kind::thinLine, look.muted, {}, qt(picture.otherMethod)},
                           {Kind::thinLine, look.ink, {}, qt(texts.text(Text::whatIfDrawnDepth))},
                           {Kind::dashes, look.ink, {}, qt(texts.text(Text::whatIfAskedCases))}});
    const Plot plot = drawPlot(canvas, {0, 100, 20}, head);
    const PlotScale across = depthsOf(picture);
    drawAcross(canvas, plot, across, qt(picture.unit));
    QPainter& painter = canvas.painter;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(look.muted, thinPen));
    painter.drawPolyline(curveOf(plot, across, picture.other));
    painter.setPen(QPen(look.ink, thinPen, Qt::DashLine));
    const double asked = canvas.crisp(plot.heightOf(100 * picture.confidence));
    painter.drawLine(QPointF(plot.area.left(), asked), QPointF(plot.area.right(), asked));
    drawUpright(canvas, plot, placeOf(plot, across, picture.drawn), look.ink, Qt::SolidLine);
    painter.setPen(QPen(look.accent, strongPen));
    painter.drawPolyline(curveOf(plot, across, picture.curve));
    painter.setPen(QPen(look.surface, 1));
    for (const QPointF& dot : curveOf(plot, across, picture.dots)) {
        // A dot is filled where the drawn depth serves its case.
        const bool held = dot.x() <= placeOf(plot, across, picture.drawn) + 1e-6;
        painter.setPen(QPen(look.accent, thinPen));
        painter.setBrush(held ? look.accent : look.surface);
        painter.drawEllipse(dot, dotRadius, dotRadius);
    }
}

void paintLand(const Canvas& canvas, const LandPicture& picture, const Texts&) {
    if (!picture.empty.empty() || picture.outline.empty())
        return drawEmpty(canvas, qt(picture.empty));
    QPainter& painter = canvas.painter;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const LandFrame frame = landFrameOf(
        canvas.area.adjusted(gridStep, gridStep, -gridStep, -gridStep), picture.outline);
    const QPainterPath outline = closed(frame.at(picture.outline));
    hatch(canvas,
          bandAround(outline, picture.boundaryClearance * frame.scale).intersected(outline));
    for (const Polygon& area : picture.noGo) {
        const QPainterPath noGo = closed(frame.at(area));
        hatch(canvas, bandAround(noGo, picture.noGoClearance * frame.scale)
                          .united(noGo)
                          .intersected(outline));
        painter.setPen(QPen(canvas.look.alarm, thinPen));
        painter.setBrush(between(canvas.look.surface, canvas.look.muted, 0.4));
        painter.drawPath(noGo);
    }
    painter.setPen(QPen(canvas.look.ink, strongPen));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(outline);
    painter.setPen(Qt::NoPen);
    painter.setBrush(canvas.look.accent);
    for (const Point& bore : picture.bores)
        painter.drawEllipse(frame.at(bore), dotRadius * 0.8, dotRadius * 0.8);
    painter.restore();
}

std::vector<QPointF> paintFields(const Canvas& canvas, const FieldsPicture& picture,
                                 const Texts& texts) {
    if (!picture.empty.empty() || picture.fields.empty()) {
        drawEmpty(canvas, qt(picture.empty));
        return {};
    }
    const Look& look = canvas.look;
    const QString cheap = qt(texts.text(Text::whatIfCheap)) + u' ' + qt(picture.cheapest);
    const QString dear = qt(texts.text(Text::whatIfDear)) + u' ' + qt(picture.dearest);
    const QColor pale = between(look.surface, look.accent, 0.2);
    const double head = drawSigns(canvas, {{Kind::area, look.accent, look.accent, cheap},
                                           {Kind::area, look.accent, pale, dear}});
    const auto byDepth = [](const auto& a, const auto& b) { return a.depth < b.depth; };
    const auto byBores = [](const auto& a, const auto& b) { return a.bores < b.bores; };
    const auto [shallow, deep] =
        std::minmax_element(picture.fields.begin(), picture.fields.end(), byDepth);
    const auto [few, many] =
        std::minmax_element(picture.fields.begin(), picture.fields.end(), byBores);
    const Plot plot = drawPlot(canvas, scaleAround(shallow->depth, deep->depth, usualFigures), head,
                               qt(picture.unit));
    const PlotScale across = scaleAround(few->bores, many->bores, usualFigures);
    drawAcross(canvas, plot, across, qt(captionWords(texts.text(Text::whatIfRowBores))));
    const double least = picture.fields.front().cost, most = picture.fields.back().cost;
    std::vector<QPointF> places;
    for (const FieldsPicture::Place& field : picture.fields)
        places.emplace_back(placeOf(plot, across, field.bores), plot.heightOf(field.depth));
    QPainter& painter = canvas.painter;
    // The cheapest last, so that none covers it.
    const std::vector<bool> seen = uncovered(places);
    for (std::size_t i = places.size(); i-- > 0;) {
        if (!seen[i]) continue;
        const double share = most > least ? (picture.fields[i].cost - least) / (most - least) : 0.0;
        painter.setPen(QPen(look.accent, 1));
        painter.setBrush(between(look.accent, pale, share));
        painter.drawEllipse(places[i], dotRadius, dotRadius);
    }
    if (picture.chosen && *picture.chosen < places.size()) {
        painter.setPen(QPen(look.ink, strongPen));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(places[*picture.chosen], 2 * dotRadius, 2 * dotRadius);
    }
    return places;
}

}  // namespace varnholt
