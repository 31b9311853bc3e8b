// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/fit_curves.h"

#include <algorithm>
#include <utility>

#include "catalogue/editor/curve_sentences.h"
#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers/heat_pump_editor.h"
#include "forms/text_numbers/loads.h"
#include "forms/text_numbers/pictures.h"

namespace varnholt {
namespace {

QList<QPointF> pointsOf(const std::vector<FitPoint>& from) {
    QList<QPointF> points;
    for (const FitPoint& point : from) points << QPointF(point.x, point.y);
    return points;
}

/// What the axes of a chart have to hold.
struct FitExtent {
    QPointF least, most;
    bool any = false;

    void take(const QList<QPointF>& points) {
        for (const QPointF& point : points) {
            least = any ? QPointF(std::min(least.x(), point.x()), std::min(least.y(), point.y()))
                        : point;
            most =
                any ? QPointF(std::max(most.x(), point.x()), std::max(most.y(), point.y())) : point;
            any = true;
        }
    }
};

/// The values' axis; factors that are all alike still need some room.
ChartAxis axisOfValues(const FitExtent& extent, bool fromZero) {
    if (fromZero && extent.least.y() >= 0) return axisFromZero(extent.most.y());
    const double room = std::max(0.0, 0.02 - (extent.most.y() - extent.least.y())) / 2;
    return axisAround(extent.least.y() - room, extent.most.y() + room);
}

ChartPicture chartOf(const ByMode<CurvePicture>& curves, const QString& across, const QString& up,
                     bool fromZero) {
    using Sign = ChartSeries::Sign;
    ChartPicture chart;
    FitExtent extent;
    const auto draw = [&](Sign sign, Mode mode, const QList<QPointF>& points) {
        extent.take(points);
        chart.series.push_back({sign, mode, points});
    };
    for (const Mode mode : modes) {
        const CurvePicture& curve = curves[mode];
        const QList<QPointF> none, line = pointsOf(curve.line), second = pointsOf(curve.secondLine);
        draw(Sign::thinLine, mode, curve.isOlder() ? none : second);
        draw(Sign::line, mode, curve.stale ? none : line);
        draw(Sign::staleLine, mode, curve.stale ? line : curve.secondStale ? second : none);
        draw(Sign::secondMeasured, mode, pointsOf(curve.secondMeasured));
        draw(Sign::measured, mode, pointsOf(curve.measured));
        draw(Sign::design, mode,
             curve.operating ? QList<QPointF>{{curve.operating->x, curve.operating->y}} : none);
    }
    chart.across = axisAround(extent.least.x(), extent.most.x());
    chart.across.title = across;
    chart.up = axisOfValues(extent, fromZero);
    chart.up.title = up;
    return chart;
}

}  // namespace

FitCurves::FitCurves(Source picture, const Texts& texts, ChartModuleFinder charts)
    : ChartDrawing(texts, std::move(charts), QBoxLayout::TopToBottom),
      source_(std::move(picture)) {}

bool FitCurves::take() {
    const FitCurvesPicture before = std::exchange(picture_, source_());
    return picture_ != before;
}

std::vector<ChartPicture> FitCurves::pictures() const {
    const FitPicture& curves = picture_.curves;
    const QString across = qt(picture_.across);
    return {chartOf(curves.capacity, across, qt(picture_.capacity), curves.fromZero),
            chartOf(curves.power, across, qt(picture_.power), curves.fromZero)};
}

std::vector<LegendRow::Entry> FitCurves::legend() const {
    const FitPicture& curves = picture_.curves;
    const auto any = [&](const auto& has) {
        for (const ByMode<CurvePicture>* pictures : {&curves.capacity, &curves.power})
            for (const CurvePicture& curve : *pictures)
                if (has(curve)) return true;
        return false;
    };
    const auto drawn = [&](Mode mode) {
        return !curves.capacity[mode].line.empty() || !curves.power[mode].line.empty();
    };
    std::vector<LegendRow::Entry> entries;
    if (drawn(cooling))
        entries.push_back({LegendRow::Sign::coolingLine, qt(texts().text(Text::cooling))});
    if (drawn(heating))
        entries.push_back({LegendRow::Sign::heatingLine, qt(texts().text(Text::heating))});
    if (any([](const CurvePicture& curve) { return !curve.measured.empty(); }))
        entries.push_back({LegendRow::Sign::measured, qt(texts().text(Text::pumpCurvesCatalogue))});
    if (any([](const CurvePicture& curve) { return !curve.secondMeasured.empty(); }))
        entries.push_back({LegendRow::Sign::second, qt(texts().text(Text::secondFlowLegend))});
    if (any([](const CurvePicture& curve) { return curve.operating.has_value(); }))
        entries.push_back({LegendRow::Sign::design, qt(texts().text(Text::testedLegend))});
    if (any([](const CurvePicture& curve) { return curve.isOlder(); }))
        entries.push_back({LegendRow::Sign::staleLine, qt(texts().text(Text::staleLegend))});
    return entries;
}

QString FitCurves::emptyHint() const {
    return picture_.curves.empty() ? qt(texts().text(picture_.emptyText)) : QString();
}

QString FitCurves::description() const { return qt(describe(picture_, texts())); }

}  // namespace varnholt
