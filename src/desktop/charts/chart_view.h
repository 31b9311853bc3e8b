// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCharts/QAbstractAxis>
#include <QtCharts/QChart>
#include <QtCharts/QChartView>
#include <vector>

#include "desktop/charts/plotted_series.h"
#include "desktop/drawings/chart_module.h"

namespace varnholt {

/// One chart of the chart engine. It is only looked at: no hand moves it.
class ChartView : public QChartView, public Chart {
 public:
    explicit ChartView(QWidget* parent);

    QWidget* widget() override { return this; }
    void draw(const ChartPicture& picture) override;
    void dress(const Look& look, const QFont& figures) override;

 private:
    bool hasPartsOf(const ChartPicture& picture) const;
    void build(const ChartPicture& picture);
    void partThousands(bool part);
    void dressAll();
    void fitTitles();

    ChartPicture picture_;
    QAbstractAxis *across_ = nullptr, *up_ = nullptr;
    std::vector<PlottedSeries> series_;
    /// Of the two that the program has, which outlive every widget.
    const Look* look_ = nullptr;
    QFont figures_;
};

}  // namespace varnholt
