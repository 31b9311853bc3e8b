// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/length_picture.h"

#include <QFontMetricsF>
#include <algorithm>
#include <optional>
#include <vector>

#include "design/picture_sentences.h"
#include "desktop/drawings/plot.h"
#include "desktop/widgets/figure_text.h"
#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

constexpr double highestBar = 30;
constexpr double lowestBar = 12;
constexpr double swatchWidth = 12;
constexpr double swatchHeight = 11;

/// How the parts of a bar differ, colours aside: full tones, hatching, a hollow frame.
struct PartStyle {
    double tone;  ///< of the fill, 0 the surface to 1 the mode's colour
    bool hatched, framed;
};

PartStyle styleOf(std::size_t part, std::size_t parts) {
    constexpr PartStyle last{0, false, true};
    constexpr PartStyle styles[] = {
        {1, false, false}, {0.62, false, false}, {0.3, false, false}, {0.12, true, false}};
    return part + 1 == parts ? last : styles[std::min<std::size_t>(part, std::size(styles) - 1)];
}

QColor fillOf(const Look& look, Mode mode, const PartStyle& style) {
    return between(look.surface, colourOf(look, mode), style.tone);
}

void drawHatch(QPainter& painter, const QRectF& place) {
    constexpr double step = 6;
    painter.save();
    painter.setClipRect(place);
    for (double x = place.left() - place.height(); x < place.right(); x += step)
        painter.drawLine(QPointF(x, place.bottom()), QPointF(x + place.height(), place.top()));
    painter.restore();
}

void drawPart(const Canvas& canvas, Mode mode, const PartStyle& style, const QRectF& place) {
    QPainter& painter = canvas.painter;
    const QColor colour = colourOf(canvas.look, mode);
    painter.fillRect(place, fillOf(canvas.look, mode, style));
    painter.setBrush(Qt::NoBrush);
    if (style.hatched) {
        painter.setPen(QPen(between(canvas.look.surface, colour, 0.6), 1));
        drawHatch(painter, place);
    }
    painter.setPen(QPen(colour, 1, style.framed ? Qt::DashLine : Qt::SolidLine));
    painter.drawRect(place);
}

/// What the bars need of the picture's width, and their scale.
struct LengthScale {
    double zero = 0;     ///< where they begin
    double perFoot = 0;  ///< pixels

    double at(double feet) const { return zero + feet * perFoot; }
};

/// What the parts of a mode reach, shorter and longer than 0.
std::pair<double, double> reachOf(const LengthSummary& lengths, Mode mode) {
    double shorter = 0;
    double longer = 0;
    for (const LengthSegment& part : lengths.parts)
        (part.feet[mode] < 0 ? shorter : longer) += part.feet[mode];
    return {shorter, longer};
}

LengthScale scaleIn(const LengthSummary& lengths, const QRectF& plot) {
    double lowest = 0;
    double highest = 0;
    for (const Mode mode : modes) {
        const auto [shorter, longer] = reachOf(lengths, mode);
        lowest = std::min(lowest, shorter);
        highest = std::max(highest, longer);
    }
    const double span = highest - lowest;
    const double perFoot = span > 0 ? plot.width() / span : 0;
    return {plot.left() - lowest * perFoot, perFoot};
}

/// Where the words stand within their part of the bar: in its middle, or beside the mark of the
/// whole length where that goes through the part. Nothing where there is no room.
std::optional<double> leftOfFigure(double width, const QRectF& part, double mark) {
    constexpr double margin = 4;
    const auto middleOf = [&](double from, double to) -> std::optional<double> {
        if (to - from < width + 2 * margin) return std::nullopt;
        return (from + to - width) / 2;
    };
    if (mark <= part.left() || mark >= part.right()) return middleOf(part.left(), part.right());
    const bool leftIsWider = mark - part.left() > part.right() - mark;
    return leftIsWider ? middleOf(part.left(), mark) : middleOf(mark, part.right());
}

/// The part's own length where its bar has room for it.
void drawFigure(const Canvas& canvas, const QString& text, const QRectF& place, const QColor& fill,
                double mark) {
    const FigureText figure(text, canvas.words);
    const std::optional<double> left = leftOfFigure(figure.size().width(), place, mark);
    if (!left || figure.size().height() > place.height()) return;
    const Look& look = canvas.look;
    const bool inkReads = contrast(look.ink, fill) >= contrast(look.surface, fill);
    canvas.painter.setPen(inkReads ? look.ink : look.surface);
    figure.draw(canvas.painter, {*left, place.center().y() - figure.size().height() / 2});
}

/// A line through the bar where the whole length ends.
void drawLengthMark(const Canvas& canvas, double mark, const QRectF& row) {
    constexpr double beyond = 3;
    canvas.painter.setPen(QPen(canvas.look.ink, 2, Qt::SolidLine, Qt::FlatCap));
    canvas.painter.drawLine(QPointF(mark, row.top() - beyond),
                            QPointF(mark, row.bottom() + beyond));
}

void drawBar(const Canvas& canvas, const LengthSummary& lengths, Mode mode,
             const LengthScale& scale, const QRectF& row) {
    constexpr double dimmed = 0.5;
    const bool stale = lengths.state == LengthSummary::State::stale;
    const bool hasMark = lengths.feet[mode] > 0;
    const double mark = canvas.crisp(scale.at(hasMark ? lengths.feet[mode] : 0));
    double shorter = 0;
    double longer = 0;
    for (std::size_t i = 0; i < lengths.parts.size(); ++i) {
        const LengthSegment& part = lengths.parts[i];
        const double feet = part.feet[mode];
        if (feet == 0) continue;
        double& end = feet < 0 ? shorter : longer;
        const double from = canvas.crisp(scale.at(end));
        const double to = canvas.crisp(scale.at(end += feet));
        const QRectF place(std::min(from, to), canvas.crisp(row.top()), std::abs(to - from),
                           row.height());
        const PartStyle style = styleOf(i, lengths.parts.size());
        canvas.painter.setOpacity(stale ? dimmed : 1);
        drawPart(canvas, mode, style, place);
        canvas.painter.setOpacity(1);
        if (!style.hatched)
            drawFigure(canvas, qt(part.length[mode]), place, fillOf(canvas.look, mode, style),
                       mark);
    }
    if (hasMark) drawLengthMark(canvas, mark, row);
}

QFont strong(QFont font, bool governs) {
    font.setWeight(governs ? QFont::DemiBold : QFont::Normal);
    return font;
}

/// The mode's word before its bar and its length behind it.
void drawWords(const Canvas& canvas, const LengthSummary& lengths, Mode mode, const QRectF& line,
               double end, const Texts& texts) {
    const bool governs = mode == lengths.governing;
    QPainter& painter = canvas.painter;
    const bool strongly = governs && lengths.state != LengthSummary::State::stale;
    painter.setPen(strongly ? colourOf(canvas.look, mode) : canvas.look.muted);
    painter.setFont(strong(canvas.words, governs));
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, chartWord(mode, texts));
    const FigureText figure(qt(lengths.length[mode]), strong(canvas.words, governs));
    painter.setPen(strongly ? canvas.look.ink : canvas.look.muted);
    figure.draw(painter, {end, line.center().y() - figure.size().height() / 2});
}

struct LegendEntry {
    QRectF place;
    std::size_t part;
};

/// The names of the parts in as many lines as they need, from the foot of the area upwards.
std::vector<LegendEntry> legendOf(const Canvas& canvas, const LengthSummary& lengths) {
    constexpr double gap = 18;
    const double height = canvas.textHeight() + 4;
    const QFontMetricsF metrics(canvas.words);
    std::vector<LegendEntry> entries;
    QPointF corner(canvas.area.left(), 0);
    for (std::size_t i = 0; i < lengths.parts.size(); ++i) {
        const double width =
            2 * swatchWidth + gridStep + metrics.horizontalAdvance(qt(lengths.parts[i].name));
        if (corner.x() > canvas.area.left() && corner.x() + width > canvas.area.right())
            corner = {canvas.area.left(), corner.y() + height};
        entries.push_back({{corner, QSizeF(width, height)}, i});
        corner.rx() += width + gap;
    }
    const double down = canvas.area.bottom() - corner.y() - height;
    for (LegendEntry& entry : entries) entry.place.translate(0, down);
    return entries;
}

void drawLegend(const Canvas& canvas, const LengthSummary& lengths,
                const std::vector<LegendEntry>& entries) {
    for (const auto& [place, part] : entries) {
        const PartStyle style = styleOf(part, lengths.parts.size());
        const double top = canvas.crisp(place.center().y() - swatchHeight / 2);
        for (const Mode mode : modes)
            drawPart(canvas, mode, style,
                     {canvas.crisp(place.left() + (mode == heating ? swatchWidth : 0)), top,
                      swatchWidth, swatchHeight});
        canvas.painter.setPen(canvas.look.ink);
        canvas.painter.setFont(canvas.words);
        canvas.painter.drawText(place.adjusted(2 * swatchWidth + gridStep - 1, 0, 4, 0),
                                Qt::AlignLeft | Qt::AlignVCenter, qt(lengths.parts[part].name));
    }
}

void drawEmpty(const Canvas& canvas, const LengthSummary& lengths, const Texts& texts) {
    canvas.painter.setPen(canvas.look.muted);
    canvas.painter.setFont(canvas.words);
    canvas.painter.drawText(canvas.area, Qt::AlignCenter | Qt::TextWordWrap,
                            qt(wordsWithoutParts(lengths, texts)));
}

}  // namespace

void paintLengths(const Canvas& canvas, const LengthSummary& lengths, const Texts& texts) {
    if (lengths.parts.empty()) return drawEmpty(canvas, lengths, texts);
    const QFontMetricsF heavy(strong(canvas.words, true));
    double before = 0;
    double behind = 0;
    for (const Mode mode : modes) {
        before = std::max(before, heavy.horizontalAdvance(chartWord(mode, texts)));
        behind = std::max(
            behind,
            FigureText(qt(lengths.length[mode]), strong(canvas.words, true)).size().width());
    }
    const std::vector<LegendEntry> legend = legendOf(canvas, lengths);
    const double room = legend.front().place.top() - gridStep - canvas.area.top();
    const QRectF plot(canvas.area.left() + before + gridStep, canvas.area.top(),
                      canvas.area.width() - before - behind - 2 * gridStep, room);
    const LengthScale scale = scaleIn(lengths, plot);
    const double height = std::clamp(room / 2 - gridStep, lowestBar, highestBar);
    for (const Mode mode : modes) {
        const double middle = plot.top() + room * (mode == cooling ? 0.25 : 0.75);
        const QRectF row(plot.left(), middle - height / 2, plot.width(), height);
        drawBar(canvas, lengths, mode, scale, row);
        drawWords(canvas, lengths, mode,
                  {canvas.area.left(), row.top(), canvas.area.width(), height},
                  scale.at(reachOf(lengths, mode).second) + gridStep, texts);
    }
    const double zero = canvas.crisp(scale.zero);
    canvas.painter.setPen(QPen(canvas.look.line, 1));
    canvas.painter.drawLine(QPointF(zero, plot.top()), QPointF(zero, plot.bottom()));
    drawLegend(canvas, lengths, legend);
}

}  // namespace varnholt
