// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/pump_curves.h"

#include <algorithm>
#include <utility>

#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers/pictures.h"
#include "loads/modLoads/chart_sentences.h"

namespace varnholt {
namespace {

QList<QPointF> pointsOf(const std::vector<PumpChartPoint>& from) {
    QList<QPointF> points;
    for (const PumpChartPoint& point : from) points << QPointF(point.enteringWater, point.value);
    return points;
}

/// What the axes of a chart have to hold.
struct PumpExtent {
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

PumpCurves::PumpCurves(Source picture, const Texts& texts, ChartModuleFinder charts)
    : ChartDrawing(texts, std::move(charts)), source_(std::move(picture)) {}

QString PumpCurves::description() const { return qt(describe(picture_, texts())); }

bool PumpCurves::take() {
    const PumpPicture before = std::exchange(picture_, source_());
    return picture_ != before;
}

std::vector<ChartPicture> PumpCurves::pictures() const {
    return {chartOf(picture_.pump.capacity,
                    titleWithUnit(texts().text(Text::pumpCurvesCapacity), picture_.capacityUnit)),
            chartOf(picture_.pump.power,
                    titleWithUnit(texts().text(Text::pumpCurvesPower), picture_.powerUnit))};
}

ChartPicture PumpCurves::chartOf(const ByMode<PumpCurve>& curves, const QString& title) const {
    PumpExtent extent;
    ChartPicture chart;
    for (const Mode mode : modes) {
        extent.take(curves[mode].curve);
        extent.take(curves[mode].points);
        const double water = picture_.designWater[mode];
        const auto value = valueAt(curves[mode], water);
        chart.series.push_back({ChartSeries::Sign::line, mode, pointsOf(curves[mode].curve)});
        chart.series.push_back({ChartSeries::Sign::measured, mode, pointsOf(curves[mode].points)});
        chart.series.push_back({ChartSeries::Sign::design, mode,
                                value ? QList<QPointF>{{water, *value}} : QList<QPointF>()});
    }
    chart.across = axisAround(extent.coldest, extent.warmest);
    chart.across.title =
        titleWithUnit(texts().text(Text::pumpCurvesEnteringWater), picture_.temperatureUnit);
    chart.up = axisFromZero(extent.highest);
    chart.up.title = title;
    return chart;
}

std::vector<LegendRow::Entry> PumpCurves::legend() const {
    return {{LegendRow::Sign::coolingLine, qt(texts().text(Text::chartCooling))},
            {LegendRow::Sign::heatingLine, qt(texts().text(Text::chartHeating))},
            {LegendRow::Sign::measured, qt(texts().text(Text::pumpCurvesCatalogue))},
            {LegendRow::Sign::design, qt(texts().text(Text::pumpCurvesDesign))}};
}

QString PumpCurves::emptyHint() const {
    return picture_.pump.name.empty() ? qt(texts().text(Text::pumpCurvesEmpty)) : QString();
}

}  // namespace varnholt
