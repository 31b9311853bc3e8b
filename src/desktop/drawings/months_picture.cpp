// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/months_picture.h"

#include <QFontMetricsF>
#include <algorithm>

#include "basis/number_text.h"
#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers/import.h"

namespace varnholt {
namespace {

constexpr double widestColumn = 26;
constexpr double markHeight = 3;
constexpr double strongMark = 5;
constexpr double sampleSize = 9;

QString monthFigure(double value) { return qt(formatNumber(value, "###0.0")); }

const QColor& colourOf(const Canvas& canvas, Mode mode) {
    return mode == cooling ? canvas.look.cooling : canvas.look.heating;
}
const QColor& washOf(const Canvas& canvas, Mode mode) {
    return mode == cooling ? canvas.look.coolingWash : canvas.look.heatingWash;
}

double largestOf(const Months& values) {
    return std::max(0.0, *std::max_element(values.begin(), values.end()));
}

/// A word of the legend behind its sign; returns where the next one may begin.
double drawWord(const Canvas& canvas, double x, double middle, const QString& word) {
    const double start = x + sampleSize + 6;
    const double height = canvas.textHeight();
    canvas.painter.setFont(canvas.words);
    canvas.painter.setPen(canvas.look.ink);
    canvas.painter.drawText(QRectF(start, middle - height / 2, canvas.area.width(), height),
                            Qt::AlignLeft | Qt::AlignVCenter, word);
    return start + QFontMetricsF(canvas.words).horizontalAdvance(word) + 2 * gridStep;
}

/// The two signs with their words and units, over the picture; returns the room they take.
double drawLegend(const Canvas& canvas, const MonthsChart& year, const Texts& texts) {
    const double height = canvas.textHeight() + gridStep / 2.0;
    const double middle = canvas.area.top() + height / 2;
    double x = canvas.area.left();
    QPainter& painter = canvas.painter;
    painter.setPen(QPen(colourOf(canvas, year.mode), 1.2));
    painter.setBrush(washOf(canvas, year.mode));
    painter.drawRect(
        QRectF(canvas.crisp(x), canvas.crisp(middle - sampleSize / 2), sampleSize, sampleSize));
    x = drawWord(canvas, x, middle,
                 qt(texts.text(Text::monthsPictureEnergy)) + u' ' + qt(year.energyUnit));
    painter.fillRect(QRectF(x, middle - markHeight / 2, sampleSize, markHeight),
                     colourOf(canvas, year.mode));
    drawWord(canvas, x, middle, qt(texts.text(Text::monthsPicturePeak)) + u' ' + qt(year.peakUnit));
    return height + gridStep;
}

/// Where one month's column and mark stand.
struct Place {
    double left, width, base, top;

    double heightOf(double value, double largest) const {
        return largest > 0 ? std::max(0.0, value) / largest * (base - top) : 0;
    }
};

Place placeOf(const Canvas& canvas, const QRectF& plot, std::size_t month) {
    const double share = plot.width() / monthsOfYear;
    const double width = std::min(widestColumn, share - 4);
    const double left = plot.left() + share * static_cast<double>(month) + (share - width) / 2;
    return {canvas.crisp(left), width, canvas.crisp(plot.bottom()),
            plot.top() + canvas.textHeight() + 2};
}

void drawColumn(const Canvas& canvas, const MonthsChart& year, std::size_t month,
                const Place& place) {
    const bool strong = year.peakMonth == month;
    const double height = place.heightOf(year.energies[month], largestOf(year.energies));
    if (!(height > 0)) return;
    QPainter& painter = canvas.painter;
    painter.setPen(QPen(colourOf(canvas, year.mode), 1.2));
    painter.setBrush(strong ? between(washOf(canvas, year.mode), colourOf(canvas, year.mode), 0.6)
                            : washOf(canvas, year.mode));
    painter.drawRect(QRectF(place.left, place.base - height, place.width, height));
}

void drawMark(const Canvas& canvas, const MonthsChart& year, std::size_t month,
              const Place& place) {
    const bool strong = year.peakMonth == month;
    const double height = place.heightOf(year.peaks[month], largestOf(year.peaks));
    if (!(height > 0)) return;
    const double thickness = strong ? strongMark : markHeight;
    const double reach = strong ? 4 : 2;
    const QRectF mark(place.left - reach, place.base - height - thickness / 2,
                      place.width + 2 * reach, thickness);
    // A rim parts the mark from a column of its own colour.
    canvas.painter.fillRect(mark.adjusted(-1, -1, 1, 1), canvas.look.surface);
    canvas.painter.fillRect(mark, colourOf(canvas, year.mode));
    if (!strong) return;
    const QString text = monthFigure(year.peaks[month]);
    const double width = canvas.textWidth(text) + 6;
    const double x =
        std::clamp(mark.center().x(), canvas.area.left() + width / 2,
                   std::max(canvas.area.left() + width / 2, canvas.area.right() - width / 2));
    canvas.label({x, mark.top() - canvas.textHeight() / 2 - 1}, text, colourOf(canvas, year.mode));
}

void drawNames(const Canvas& canvas, const MonthsChart& year, const QRectF& foot) {
    constexpr int letters = 3;
    const double share = foot.width() / monthsOfYear;
    canvas.painter.setFont(canvas.figures);
    for (std::size_t month = 0; month < monthsOfYear; ++month) {
        const bool strong = year.peakMonth == month;
        canvas.painter.setPen(strong ? canvas.look.ink : canvas.look.muted);
        const QRectF place(foot.left() + share * static_cast<double>(month), foot.top(), share,
                           foot.height());
        canvas.painter.drawText(place, Qt::AlignCenter, qt(year.names[month]).left(letters));
    }
}

}  // namespace

void paintMonths(const Canvas& canvas, const MonthsChart& year, const Texts& texts) {
    const double head = drawLegend(canvas, year, texts);
    const double footHeight = canvas.textHeight() + gridStep / 2.0;
    const QRectF plot = canvas.area.adjusted(0, head, 0, -footHeight);
    drawNames(canvas, year, {plot.left(), plot.bottom(), plot.width(), footHeight});
    canvas.painter.setPen(QPen(canvas.look.line, 1));
    const double base = canvas.crisp(plot.bottom());
    canvas.painter.drawLine(QPointF(plot.left(), base), QPointF(plot.right(), base));
    if (year.empty()) {
        canvas.painter.setFont(canvas.words);
        canvas.painter.setPen(canvas.look.muted);
        canvas.painter.drawText(plot, Qt::AlignCenter | Qt::TextWordWrap,
                                qt(texts.text(Text::monthsPictureEmpty)));
        return;
    }
    for (std::size_t month = 0; month < monthsOfYear; ++month)
        drawColumn(canvas, year, month, placeOf(canvas, plot, month));
    for (std::size_t month = 0; month < monthsOfYear; ++month)
        drawMark(canvas, year, month, placeOf(canvas, plot, month));
}

}  // namespace varnholt
