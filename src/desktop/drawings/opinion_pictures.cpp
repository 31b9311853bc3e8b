// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/opinion_pictures.h"

#include <QPolygonF>
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers/loads.h"
#include "forms/text_numbers/second_opinion.h"

namespace varnholt {
namespace {

constexpr double degreesAround = 1;   // degrees beyond the water and its limits
constexpr double peakMarkHeight = 3;  // of a month's peak
constexpr int shortName = 3;          // letters of a month

QString wordOf(const Texts& texts, Mode mode) {
    return qt(texts.text(mode == cooling ? Text::cooling : Text::heating));
}

// The history.

PlotScale scaleOf(const HistoryPicture& history) {
    double least = std::min(history.limits[cooling], history.limits[heating]);
    double most = std::max(history.limits[cooling], history.limits[heating]);
    for (const auto& year : history.years) {
        if (!year) continue;
        least = std::min(least, year->low);
        most = std::max(most, year->high);
    }
    return scaleAround(least - degreesAround, most + degreesAround, usualFigures);
}

double historyLegend(const Canvas& canvas, const HistoryPicture& history, const Texts& texts) {
    using Kind = LegendSign::Kind;
    const Look& look = canvas.look;
    const QString limit = qt(texts.text(Text::opinionLimit)) + QStringLiteral(", ");
    return drawSigns(canvas, {{Kind::area, look.muted, look.hairline,
                               qt(history.depth) + QStringLiteral(", ") + qt(history.unit)},
                              {Kind::dashes, look.cooling, {}, limit + wordOf(texts, cooling)},
                              {Kind::dashes, look.heating, {}, limit + wordOf(texts, heating)}});
}

void drawLimits(const Canvas& canvas, const Plot& plot, const HistoryPicture& history) {
    for (const Mode mode : modes) {
        canvas.painter.setPen(QPen(colourOf(canvas.look, mode), thinPen, Qt::DashLine));
        const double y = canvas.crisp(plot.heightOf(history.limits[mode]));
        canvas.painter.drawLine(QPointF(plot.area.left(), y), QPointF(plot.area.right(), y));
    }
}

/// One year of the band: its area, its warm edge in blue as cooling's and its cold one in red.
void drawYearOfBand(const Canvas& canvas, const QRectF& band) {
    QPainter& painter = canvas.painter;
    painter.fillRect(band, canvas.look.hairline);
    painter.setPen(QPen(canvas.look.cooling, strongPen, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(band.topLeft(), band.topRight());
    painter.setPen(QPen(canvas.look.heating, strongPen, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(band.bottomLeft(), band.bottomRight());
}

/// Years 1, 5, 10, ... or each one where there are few.
bool isNamed(std::size_t year, std::size_t years) {
    constexpr std::size_t few = 12;
    const std::size_t every = years <= few ? 1 : years <= 2 * few ? 5 : 10;
    return year == 1 || year % every == 0;
}

void drawBand(const Canvas& canvas, const Plot& plot, const HistoryPicture& history) {
    const double share = plot.area.width() / static_cast<double>(history.years.size());
    for (std::size_t i = 0; i < history.years.size(); ++i) {
        const double left = plot.area.left() + share * static_cast<double>(i);
        if (isNamed(i + 1, history.years.size()))
            drawBelow(canvas, plot, left + share / 2, QString::number(i + 1));
        if (!history.years[i]) continue;
        const HistoryPicture::Range& water = *history.years[i];
        drawYearOfBand(canvas, QRectF(QPointF(left, plot.heightOf(water.high)),
                                      QPointF(left + share, plot.heightOf(water.low))));
    }
}

void drawMonthsOfYear(const Canvas& canvas, const Plot& plot, const HistoryPicture& history) {
    constexpr double radius = 3.2;
    const double share = plot.area.width() / opinionMonthsOfYear;
    const auto across = [&](std::size_t month) {
        return plot.area.left() + share * (static_cast<double>(month) + 0.5);
    };
    for (std::size_t month = 0; month < opinionMonthsOfYear; ++month)
        drawBelow(canvas, plot, across(month), qt(history.names[month]).left(shortName));
    for (const Mode mode : modes) {
        const QColor& colour = colourOf(canvas.look, mode);
        std::optional<QPointF> before;
        for (std::size_t month = 0; month < opinionMonthsOfYear; ++month) {
            const std::optional<double>& water = history.months[month][mode];
            const std::optional<QPointF> at =
                water ? std::optional(QPointF(across(month), plot.heightOf(*water))) : std::nullopt;
            canvas.painter.setPen(QPen(colour, thinPen));
            if (before && at) canvas.painter.drawLine(*before, *at);
            canvas.painter.setBrush(mode == cooling ? colour : canvas.look.surface);
            if (at) canvas.painter.drawEllipse(*at, radius, radius);
            before = at;
        }
    }
}

// The year.

/// Both modes have one scale, so that their energies can be compared, and so have their peaks.
double largestOf(const ByMode<std::array<double, opinionMonthsOfYear>>& values) {
    double largest = 0;
    for (const Mode mode : modes)
        for (const double value : values[mode]) largest = std::max(largest, value);
    return largest;
}

double yearLegend(const Canvas& canvas, const YearPicture& year, const Texts& texts) {
    using Kind = LegendSign::Kind;
    const Look& look = canvas.look;
    const QString energy = qt(texts.text(Text::opinionEnergies)) + u' ' + qt(year.energyUnit);
    const QString peak = qt(texts.text(Text::opinionPeaks)) + u' ' + qt(year.peakUnit);
    return drawSigns(canvas, {{Kind::area, look.cooling, look.coolingWash, wordOf(texts, cooling)},
                              {Kind::area, look.heating, look.heatingWash, wordOf(texts, heating)},
                              {Kind::area, look.muted, look.hairline, energy},
                              {Kind::mark, look.muted, {}, peak}});
}

/// A column of one month and mode, and the mark of its peak on a scale that ends where the
/// energies' does.
void drawMonth(const Canvas& canvas, const Plot& plot, const YearPicture& year, std::size_t month,
               Mode mode, const QRectF& place) {
    const QColor& colour = colourOf(canvas.look, mode);
    QPainter& painter = canvas.painter;
    if (const double energy = year.energies[mode][month]; energy > 0) {
        painter.setPen(QPen(colour, thinPen));
        painter.setBrush(washOf(canvas.look, mode));
        painter.drawRect(QRectF(QPointF(place.left(), plot.heightOf(energy)), place.bottomRight()));
    }
    const double largest = largestOf(year.peaks);
    const double peak = year.peaks[mode][month];
    if (!(peak > 0)) return;
    const double top = place.bottom() - peak / largest * place.height();
    const QRectF mark(place.left() - 1, top - peakMarkHeight / 2, place.width() + 2,
                      peakMarkHeight);
    painter.fillRect(mark.adjusted(-1, -1, 1, 1), canvas.look.surface);
    painter.fillRect(mark, colour);
}

// The g-functions.

QPolygonF curveOf(const Plot& plot, const std::vector<double>& hours,
                  const std::vector<double>& values) {
    const double first = std::log(hours.front()), last = std::log(hours.back());
    QPolygonF curve;
    for (std::size_t i = 0; i < std::min(hours.size(), values.size()); ++i)
        curve << QPointF(
            plot.area.left() + plot.area.width() * (std::log(hours[i]) - first) / (last - first),
            plot.heightOf(values[i]));
    return curve;
}

/// The hairlines of the times, with their names as far as none runs into the next: the last one
/// keeps its own.
void drawTimes(const Canvas& canvas, const Plot& plot, const GFunctionPicture& picture) {
    const std::vector<double>& hours = picture.curves.hours;
    const double first = std::log(hours.front()), last = std::log(hours.back());
    double free = std::numeric_limits<double>::max();
    for (auto time = picture.times.rbegin(); time != picture.times.rend(); ++time) {
        const double share = (std::log(time->hours) - first) / (last - first);
        if (share < -1e-9 || share > 1 + 1e-9) continue;
        const double x = plot.area.left() + share * plot.area.width();
        drawUpright(canvas, plot, x, canvas.look.hairline, Qt::SolidLine);
        const QString name = qt(time->name);
        const double width = canvas.textWidth(name);
        const double left = std::min(x - width / 2, canvas.area.right() - width);
        if (left + width + gridStep / 2.0 > free) continue;
        drawBelow(canvas, plot, x, name);
        free = left;
    }
}

}  // namespace

QRectF paintHistory(const Canvas& canvas, const HistoryPicture& history, const Texts& texts) {
    if (!history.empty.empty() || history.years.empty()) {
        drawEmpty(canvas, qt(history.empty));
        return {};
    }
    const double head = historyLegend(canvas, history, texts);
    const Plot plot = drawPlot(canvas, scaleOf(history), head);
    if (history.year)
        drawMonthsOfYear(canvas, plot, history);
    else
        drawBand(canvas, plot, history);
    drawLimits(canvas, plot, history);
    return plot.area;
}

void paintYear(const Canvas& canvas, const YearPicture& year, const Texts& texts) {
    if (!year.empty.empty()) return drawEmpty(canvas, qt(year.empty));
    const double head = yearLegend(canvas, year, texts);
    const Plot plot =
        drawPlot(canvas, scaleAround(0, largestOf(year.energies), usualFigures), head);
    const double share = plot.area.width() / opinionMonthsOfYear;
    const double width = share * 0.38;
    for (std::size_t month = 0; month < opinionMonthsOfYear; ++month) {
        const double middle = plot.area.left() + share * (static_cast<double>(month) + 0.5);
        drawBelow(canvas, plot, middle, qt(year.names[month]).left(share < 24 ? 1 : shortName));
        const double base = plot.area.bottom();
        const QRectF left(middle - width - 1, plot.area.top(), width, base - plot.area.top());
        drawMonth(canvas, plot, year, month, cooling, left);
        drawMonth(canvas, plot, year, month, heating, left.translated(width + 2, 0));
    }
}

void paintGFunction(const Canvas& canvas, const GFunctionPicture& picture, const Texts& texts) {
    const ShownGFunction& curves = picture.curves;
    if (!picture.empty.empty() || curves.hours.size() < 2)
        return drawEmpty(canvas, qt(picture.empty));
    using Kind = LegendSign::Kind;
    const Look& look = canvas.look;
    const double head = drawSigns(
        canvas, {{Kind::line, look.cooling, {}, qt(texts.text(Text::opinionField))},
                 {Kind::thinLine, look.heating, {}, qt(texts.text(Text::opinionOneBore))}});
    const double most = *std::max_element(curves.g.begin(), curves.g.end());
    const Plot plot = drawPlot(canvas, scaleAround(0, most, usualFigures), head);
    drawTimes(canvas, plot, picture);
    canvas.painter.setBrush(Qt::NoBrush);
    canvas.painter.setPen(QPen(look.heating, thinPen));
    canvas.painter.drawPolyline(curveOf(plot, curves.hours, curves.ofOneBore));
    canvas.painter.setPen(QPen(look.cooling, strongPen));
    canvas.painter.drawPolyline(curveOf(plot, curves.hours, curves.g));
}

std::optional<std::size_t> yearAt(const HistoryPicture& history, const QRectF& plot,
                                  const QPointF& place) {
    if (history.year || history.years.empty() || plot.isEmpty()) return std::nullopt;
    const double share = (place.x() - plot.left()) / plot.width();
    if (share < 0 || share >= 1) return std::nullopt;
    return static_cast<std::size_t>(share * static_cast<double>(history.years.size()));
}

}  // namespace varnholt
