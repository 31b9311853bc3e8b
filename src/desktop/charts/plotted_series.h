// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCharts/QAbstractSeries>

#include "desktop/drawings/chart_picture.h"
#include "desktop/widgets/look.h"

namespace varnholt {

/// A series of points with what the chart engine shows it by.
class PlottedSeries {
 public:
    PlottedSeries(ChartSeries::Sign sign, Mode mode);

    /// The engine's own series, which its chart takes over.
    QAbstractSeries* engine() const { return engine_; }
    void draw(const QList<QPointF>& points);
    void dress(const Look& look);

 private:
    ChartSeries::Sign sign_;
    Mode mode_;
    QAbstractSeries* engine_;
};

}  // namespace varnholt
