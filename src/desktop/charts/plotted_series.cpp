// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/charts/plotted_series.h"

#include <QPen>
#include <QtCharts/QAreaSeries>
#include <QtCharts/QLineSeries>
#include <QtCharts/QScatterSeries>

namespace varnholt {
namespace {

using Sign = ChartSeries::Sign;

QAbstractSeries* newArea() {
    auto* area = new QAreaSeries;
    area->setUpperSeries(new QLineSeries(area));
    return area;
}

QAbstractSeries* newMarks(QScatterSeries::MarkerShape shape, double size) {
    auto* marks = new QScatterSeries;
    marks->setMarkerShape(shape);
    marks->setMarkerSize(size);
    return marks;
}

QAbstractSeries* newSeries(Sign sign, Mode mode) {
    switch (sign) {
        case Sign::area:
            return newArea();
        case Sign::measured:
            return newMarks(mode == cooling ? QScatterSeries::MarkerShapeCircle
                                            : QScatterSeries::MarkerShapeRectangle,
                            7);
        case Sign::design:
            return newMarks(QScatterSeries::MarkerShapeRotatedRectangle, 12);
        case Sign::secondMeasured:
            return newMarks(QScatterSeries::MarkerShapeTriangle, 8);
        case Sign::line:
        case Sign::steps:
        case Sign::staleLine:
        case Sign::thinLine:
        case Sign::neutral:
            break;
    }
    return new QLineSeries;
}

QColor washOf(QColor colour, const Look& look) {
    colour.setAlphaF(look.dark ? 0.22F : 0.14F);
    return colour;
}

}  // namespace

PlottedSeries::PlottedSeries(Sign sign, Mode mode)
    : sign_(sign), mode_(mode), engine_(newSeries(sign, mode)) {}

void PlottedSeries::draw(const QList<QPointF>& points) {
    if (sign_ == Sign::area)
        static_cast<QAreaSeries*>(engine_)->upperSeries()->replace(points);
    else
        static_cast<QXYSeries*>(engine_)->replace(points);
}

void PlottedSeries::dress(const Look& look) {
    const QColor colour = mode_ == cooling ? look.cooling : look.heating;
    // Heating is dashed, so that the lines differ without their colours too.
    const Qt::PenStyle style = mode_ == cooling ? Qt::SolidLine : Qt::DashLine;
    if (sign_ == Sign::area) {
        auto* area = static_cast<QAreaSeries*>(engine_);
        area->setPen(Qt::NoPen);
        area->setBrush(washOf(colour, look));
        return;
    }
    auto* points = static_cast<QXYSeries*>(engine_);
    switch (sign_) {
        case Sign::line:
            points->setPen(QPen(colour, 2, style));
            break;
        case Sign::steps:
            points->setPen(QPen(colour, 2, style, Qt::FlatCap, Qt::MiterJoin));
            break;
        case Sign::staleLine:
            points->setPen(QPen(look.muted, 2, Qt::DotLine));
            break;
        case Sign::thinLine:
            points->setPen(QPen(colour, 1, style));
            break;
        case Sign::neutral:
            points->setPen(QPen(look.muted, 2));
            break;
        case Sign::measured:
        case Sign::secondMeasured:
            points->setBrush(look.surface);
            points->setPen(QPen(colour, 1.4));
            break;
        case Sign::design:
        case Sign::area:
            points->setBrush(colour);
            points->setPen(QPen(look.surface, 1.4));
            break;
    }
}

}  // namespace varnholt
