// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/chart_picture.h"

#include <cmath>

#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

/// The smallest of 1, 2, 2.5, 5 times a power of ten that is not below the number.
double roundStep(double atLeast) {
    const double power = std::pow(10, std::floor(std::log10(atLeast)));
    for (const double round : {1.0, 2.0, 2.5, 5.0})
        if (round * power >= atLeast * 0.999) return round * power;
    return 10 * power;
}

}  // namespace

ChartAxis axisFromZero(double highest, int steps) {
    if (!(highest > 0)) highest = 1;
    ChartAxis axis;
    axis.step = roundStep(highest / steps);
    const double taken = std::ceil(highest / axis.step - 1e-9);
    axis.highest = taken * axis.step;
    axis.figures = static_cast<int>(taken) + 1;
    return axis;
}

QList<QPointF> pointsOf(const Curve& curve) {
    QList<QPointF> points;
    for (const CurvePoint& point : curve) points << QPointF(point.across, point.up);
    return points;
}

QString titleWithUnit(const std::string& name, const std::string& unit) {
    return qt(name) + (unit.empty() ? QString() : QStringLiteral(" (%1)").arg(qt(unit)));
}

ChartAxis axisAround(double lowest, double highest) {
    if (!(highest > lowest)) highest = lowest + 1;
    const double room = (highest - lowest) * 0.04;
    ChartAxis axis;
    axis.step = roundStep((highest - lowest) / usualChartSteps);
    axis.lowest = lowest - room;
    axis.highest = highest + room;
    return axis;
}

}  // namespace varnholt
