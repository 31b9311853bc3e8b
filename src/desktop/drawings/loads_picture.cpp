// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/loads_picture.h"

#include <QFontMetricsF>
#include <algorithm>

#include "basis/number_text.h"
#include "desktop/drawings/plot.h"
#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers/pictures.h"

namespace varnholt {
namespace {

constexpr double widestBar = 22;
constexpr double barGap = 3;  // between the two bars of a block

QString loadFigure(double load) { return qt(formatNumber(load, "##0.0")); }

double largestOf(const ByMode<double>& figures) {
    return std::max(figures[cooling], figures[heating]);
}

void setBarStyle(const Canvas& canvas, Mode mode) {
    const Look& look = canvas.look;
    // Cooling is solid and heating framed, so that the two differ without their colours too.
    canvas.painter.setPen(QPen(mode == cooling ? look.cooling : look.heating, 1.4));
    canvas.painter.setBrush(mode == cooling ? look.cooling : look.heatingWash);
}

/// The words for the two kinds of bars, and the unit, over the bars.
double drawHead(const Canvas& canvas, const LoadsCaptions& captions, const Texts& texts) {
    constexpr double sample = 9;
    const double height = canvas.textHeight() + gridStep / 2.0;
    const QRectF line(canvas.area.topLeft(), QSizeF(canvas.area.width(), height));
    const double middle = line.center().y();
    double x = line.left();
    for (const Mode mode : modes) {
        setBarStyle(canvas, mode);
        canvas.painter.drawRect(
            QRectF(canvas.crisp(x), canvas.crisp(middle - sample / 2), sample, sample));
        const QString word = chartWord(mode, texts);
        canvas.painter.setFont(canvas.words);
        canvas.painter.setPen(canvas.look.ink);
        canvas.painter.drawText(line.adjusted(x - line.left() + sample + 6, 0, 0, 0),
                                Qt::AlignLeft | Qt::AlignVCenter, word);
        x += sample + 6 + QFontMetricsF(canvas.words).horizontalAdvance(word) + 2 * gridStep;
    }
    const QString unit = qt(captions.unit);
    canvas.painter.setPen(canvas.look.muted);
    // The columns of figures beside the picture name the unit too.
    if (x + QFontMetricsF(canvas.words).horizontalAdvance(unit) <= line.right())
        canvas.painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, unit);
    return height + gridStep / 2.0;
}

void drawBlockNames(const Canvas& canvas, const QRectF& foot, const LoadsCaptions& captions) {
    const double width = foot.width() / timeBlocks;
    canvas.painter.setFont(canvas.figures);
    canvas.painter.setPen(canvas.look.muted);
    for (std::size_t block = 0; block < timeBlocks; ++block)
        canvas.painter.drawText(QRectF(foot.left() + width * static_cast<double>(block), foot.top(),
                                       width, foot.height()),
                                Qt::AlignCenter, qt(captions.blocks[block]));
}

/// Whether the pump's capacity finds its place beside the loads: one that is many times larger
/// would leave nothing to be seen of them.
bool showsCapacity(const LoadsChart& loads, Mode mode) {
    constexpr double mostTimes = 2;
    return loads.capacity[mode] && loads.largest[mode] > 0 &&
           *loads.capacity[mode] <= mostTimes * largestOf(loads.largest);
}

/// What the height of the picture stands for.
double scaleOf(const LoadsChart& loads) {
    double scale = largestOf(loads.largest);
    for (const Mode mode : modes)
        if (showsCapacity(loads, mode)) scale = std::max(scale, *loads.capacity[mode]);
    return scale;
}

bool exceeds(const LoadsChart& loads, Mode mode, double load) {
    return loads.capacity[mode] && load > *loads.capacity[mode];
}

void drawBar(const Canvas& canvas, Mode mode, const QRectF& bar, bool exceeded) {
    setBarStyle(canvas, mode);
    if (exceeded) canvas.painter.setPen(QPen(canvas.look.alarm, 2.4));
    const QRectF place(QPointF(canvas.crisp(bar.left()), canvas.crisp(bar.top())),
                       QPointF(canvas.crisp(bar.right()), canvas.crisp(bar.bottom())));
    canvas.painter.drawRect(place);
}

/// The place of a load's bar.
QRectF barOf(const QRectF& plot, double textHeight, const LoadsChart& loads, Mode mode,
             std::size_t block) {
    const double largest = scaleOf(loads);
    const double group = plot.width() / timeBlocks;
    const double width = std::min(widestBar, (group - barGap) / 2 - 4);
    const double middle = plot.left() + group * (static_cast<double>(block) + 0.5);
    const double left = mode == cooling ? middle - barGap / 2 - width : middle + barGap / 2;
    const double height = loads.loads[mode][block] / largest * (plot.height() - textHeight - 2);
    return {left, plot.bottom() - height, width, height};
}

/// The figure of a mode's largest load, over its bar, on a patch that parts it from other bars.
void drawFigure(const Canvas& canvas, Mode mode, const QRectF& bar, double load) {
    const QString text = loadFigure(load);
    const double width = canvas.textWidth(text) + 2;
    // Cooling's figure ends over its bar's right edge and heating's begins over its left one.
    const double left = mode == cooling ? std::max(bar.right() - width, canvas.area.left())
                                        : std::min(bar.left(), canvas.area.right() - width);
    const double height = canvas.textHeight();
    const QRectF place(left, bar.top() - height - 1, width, height);
    canvas.painter.fillRect(place, canvas.look.surface);
    canvas.painter.setFont(canvas.figures);
    canvas.painter.setPen(mode == cooling ? canvas.look.cooling : canvas.look.heating);
    canvas.painter.drawText(place, Qt::AlignCenter, canvas.shown(text));
}

/// The pump's capacity as a line across: solid for cooling and dashed for heating, in the colour of
/// the alarm where a load is more.
void drawCapacity(const Canvas& canvas, const QRectF& plot, const LoadsChart& loads, Mode mode) {
    if (!showsCapacity(loads, mode)) return;
    const double height =
        *loads.capacity[mode] / scaleOf(loads) * (plot.height() - canvas.textHeight() - 2);
    const double y = canvas.crisp(plot.bottom() - height);
    const bool exceeded = exceeds(loads, mode, loads.largest[mode]);
    const QColor own = mode == cooling ? canvas.look.cooling : canvas.look.heating;
    QPen pen(exceeded ? canvas.look.alarm : own, exceeded ? 2 : 1.2);
    if (mode == heating) pen.setDashPattern({5, 3});
    canvas.painter.setPen(pen);
    canvas.painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
}

void drawBars(const Canvas& canvas, const QRectF& plot, const LoadsChart& loads) {
    const double textHeight = canvas.textHeight();
    for (std::size_t block = 0; block < timeBlocks; ++block)
        for (const Mode mode : modes)
            if (loads.loads[mode][block] > 0)
                drawBar(canvas, mode, barOf(plot, textHeight, loads, mode, block),
                        exceeds(loads, mode, loads.loads[mode][block]));
    for (const Mode mode : modes) drawCapacity(canvas, plot, loads, mode);
    for (const Mode mode : modes)
        if (const auto peak = loads.peakBlock[mode])
            drawFigure(canvas, mode, barOf(plot, textHeight, loads, mode, *peak),
                       loads.loads[mode][*peak]);
}

}  // namespace

void paintLoads(const Canvas& canvas, const LoadsChart& loads, const LoadsCaptions& captions,
                const Texts& texts) {
    QPainter& painter = canvas.painter;
    const double head = drawHead(canvas, captions, texts);
    const double footHeight = canvas.textHeight() + gridStep / 2.0;
    const QRectF plot = canvas.area.adjusted(0, head, 0, -footHeight);
    drawBlockNames(canvas, {plot.left(), plot.bottom(), plot.width(), footHeight}, captions);
    if (loads.empty()) {
        painter.setFont(canvas.words);
        painter.setPen(canvas.look.muted);
        painter.drawText(plot, Qt::AlignCenter | Qt::TextWordWrap,
                         qt(texts.text(Text::dayChartEmpty)));
    } else {
        drawBars(canvas, plot, loads);
    }
    painter.setPen(QPen(canvas.look.line, 1));
    const double base = canvas.crisp(plot.bottom());
    painter.drawLine(QPointF(plot.left(), base), QPointF(plot.right(), base));
}

}  // namespace varnholt
