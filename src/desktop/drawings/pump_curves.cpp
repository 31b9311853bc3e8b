// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/pump_curves.h"

#include <QtCharts/QLineSeries>
#include <QtCharts/QScatterSeries>
#include <QtCharts/QValueAxis>
#include <algorithm>
#include <utility>

#include "basis/number_text.h"
#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

QList<QPointF> pointsOf(const std::vector<PumpChartPoint>& from) {
    QList<QPointF> points;
    for (const PumpChartPoint& point : from) points << QPointF(point.enteringWater, point.value);
    return points;
}

/// What the axes of a chart have to hold.
struct Extent {
    double coldest = 0, warmest = 0, highest = 0;
    bool any = false;

    void take(const std::vector<PumpChartPoint>& points) {
        for (const PumpChartPoint& point : points) {
            coldest = any ? std::min(coldest, point.enteringWater) : point.enteringWater;
            warmest = any ? std::max(warmest, point.enteringWater) : point.enteringWater;
            highest = std::max(highest, point.value);
            any = true;
        }
    }
};

}  // namespace

std::optional<double> valueAt(const PumpCurve& curve, double enteringWater) {
    for (std::size_t i = 1; i < curve.curve.size(); ++i) {
        const PumpChartPoint &a = curve.curve[i - 1], &b = curve.curve[i];
        if (enteringWater < a.enteringWater || enteringWater > b.enteringWater) continue;
        if (b.enteringWater == a.enteringWater) return a.value;
        const double share =
            (enteringWater - a.enteringWater) / (b.enteringWater - a.enteringWater);
        return a.value + share * (b.value - a.value);
    }
    return std::nullopt;
}

PumpCurves::PumpCurves(Source picture, const Texts& texts)
    : source_(std::move(picture)), texts_(texts) {}

QString PumpCurves::description() const {
    if (picture_.pump.name.empty()) return qt(texts_.text(2990));
    QString shown = qt(texts_.text(2991)).arg(qt(picture_.pump.name));
    for (const Mode mode : modes) {
        const auto capacity = valueAt(picture_.pump.capacity[mode], picture_.designWater[mode]);
        const auto power = valueAt(picture_.pump.power[mode], picture_.designWater[mode]);
        if (!capacity || !power) continue;
        const auto figure = [](double value) { return qt(formatNumber(value, "##0.0")); };
        shown += u' ' + qt(texts_.text(2992))
                            .arg(qt(mode == cooling ? texts_.text(2983) : texts_.text(2984)),
                                 figure(picture_.designWater[mode]), qt(picture_.temperatureUnit),
                                 figure(*capacity), qt(picture_.capacityUnit), figure(*power),
                                 qt(picture_.powerUnit));
    }
    return shown;
}

void PumpCurves::create() {
    createPlot(capacity_);
    createPlot(power_);
    legend().setEntries({{LegendRow::Sign::coolingLine, qt(texts_.text(2983))},
                         {LegendRow::Sign::heatingLine, qt(texts_.text(2984))},
                         {LegendRow::Sign::measured, qt(texts_.text(2996))},
                         {LegendRow::Sign::design, qt(texts_.text(2997))}});
}

void PumpCurves::createPlot(Plot& plot) {
    plot.chart = newChart();
    plot.water = new QValueAxis;
    plot.value = new QValueAxis;
    plot.chart->addAxis(plot.water, Qt::AlignBottom);
    plot.chart->addAxis(plot.value, Qt::AlignLeft);
    const auto adopt = [&](QXYSeries* series) {
        plot.chart->addSeries(series);
        series->attachAxis(plot.water);
        series->attachAxis(plot.value);
    };
    for (const Mode mode : modes) {
        adopt(plot.curves[mode] = new QLineSeries);
        adopt(plot.points[mode] = new QScatterSeries);
        adopt(plot.design[mode] = new QScatterSeries);
        plot.points[mode]->setMarkerShape(mode == cooling ? QScatterSeries::MarkerShapeCircle
                                                          : QScatterSeries::MarkerShapeRectangle);
        plot.design[mode]->setMarkerShape(QScatterSeries::MarkerShapeRotatedRectangle);
        plot.points[mode]->setMarkerSize(7);
        plot.design[mode]->setMarkerSize(12);
    }
}

void PumpCurves::dress(const Look& look) {
    for (const Plot* plot : {&capacity_, &power_})
        for (const Mode mode : modes) {
            const QColor colour = mode == cooling ? look.cooling : look.heating;
            plot->curves[mode]->setPen(
                QPen(colour, 2, mode == cooling ? Qt::SolidLine : Qt::DashLine));
            plot->points[mode]->setBrush(look.surface);
            plot->points[mode]->setPen(QPen(colour, 1.4));
            plot->design[mode]->setBrush(colour);
            plot->design[mode]->setPen(QPen(look.surface, 1.4));
        }
}

void PumpCurves::take() {
    const PumpPicture before = std::exchange(picture_, source_());
    if (picture_ == before) return;
    // A design temperature that is being typed moves its points alone.
    PumpPicture moved = before;
    moved.designWater = picture_.designWater;
    if (picture_ != moved) {
        showCaptions();
        showCurves(capacity_, picture_.pump.capacity);
        showCurves(power_, picture_.pump.power);
    }
    showDesign(capacity_, picture_.pump.capacity);
    showDesign(power_, picture_.pump.power);
}

void PumpCurves::showCaptions() {
    const auto title = [](const std::string& name, const std::string& unit) {
        return qt(name) + (unit.empty() ? QString() : QStringLiteral(" (%1)").arg(qt(unit)));
    };
    capacity_.value->setTitleText(title(texts_.text(2993), picture_.capacityUnit));
    power_.value->setTitleText(title(texts_.text(2994), picture_.powerUnit));
    for (const Plot* plot : {&capacity_, &power_})
        plot->water->setTitleText(title(texts_.text(2995), picture_.temperatureUnit));
}

void PumpCurves::showCurves(Plot& plot, const ByMode<PumpCurve>& curves) {
    Extent extent;
    for (const Mode mode : modes) {
        extent.take(curves[mode].curve);
        extent.take(curves[mode].points);
        plot.curves[mode]->replace(pointsOf(curves[mode].curve));
        plot.points[mode]->replace(pointsOf(curves[mode].points));
    }
    fitAround(*plot.water, extent.coldest, extent.warmest);
    fitFromZero(*plot.value, extent.highest);
}

void PumpCurves::showDesign(Plot& plot, const ByMode<PumpCurve>& curves) {
    for (const Mode mode : modes) {
        const auto value = valueAt(curves[mode], picture_.designWater[mode]);
        plot.design[mode]->replace(value ? QList<QPointF>{{picture_.designWater[mode], *value}}
                                         : QList<QPointF>());
    }
}

QString PumpCurves::emptyHint() const {
    return picture_.pump.name.empty() ? qt(texts_.text(2990)) : QString();
}

}  // namespace varnholt
