// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QPointF>
#include <QString>
#include <string>
#include <vector>

#include "basis/mode.h"
#include "design/curve.h"

namespace varnholt {

/// One axis of a chart and what stands at it.
struct ChartAxis {
    /// A part of the axis with a name of its own, from the part before it to its end.
    struct Part {
        QString name;
        double end;

        friend bool operator==(const Part&, const Part&) = default;
    };

    QString title;
    /// Stands alone where the title would be cut; empty where there is none.
    QString unit;
    double lowest = 0, highest = 1;
    /// Figures stand at the multiples of the step...
    double step = 1;
    /// ...or so many of them at even distances from the lowest to the highest; 0 for the former.
    int figures = 0;
    /// Names in place of figures.
    std::vector<Part> parts;

    friend bool operator==(const ChartAxis&, const ChartAxis&) = default;
};

/// Points of one mode, and the sign by which they are shown.
struct ChartSeries {
    enum class Sign {
        line,            ///< solid for cooling, dashed for heating
        steps,           ///< a line with square corners
        area,            ///< what lies below the points, in a wash of the mode's colour
        measured,        ///< hollow marks, round for cooling and square for heating
        design,          ///< diamonds
        staleLine,       ///< dotted in grey: fitted from other data than are shown
        thinLine,        ///< a line that goes with the main one
        secondMeasured,  ///< hollow triangles, of another series of measurements
        neutral,         ///< a muted line that belongs to no mode
    };

    Sign sign;
    Mode mode;
    QList<QPointF> points;

    friend bool operator==(const ChartSeries&, const ChartSeries&) = default;
};

/// A chart as plain data: whoever draws it knows nothing of what it tells.
struct ChartPicture {
    ChartAxis across, up;
    std::vector<ChartSeries> series;

    friend bool operator==(const ChartPicture&, const ChartPicture&) = default;
};

constexpr int usualChartSteps = 4;

/// From zero to the next round number at or beyond the highest value.
/// @param steps  at most, between the figures
ChartAxis axisFromZero(double highest, int steps = usualChartSteps);

/// A curve's points as a series takes them.
QList<QPointF> pointsOf(const Curve& curve);

/// What an axis is of, with the unit in brackets where there is one.
QString titleWithUnit(const std::string& name, const std::string& unit);

/// With a little room at both ends of the values, and figures at round numbers.
ChartAxis axisAround(double lowest, double highest);

}  // namespace varnholt
