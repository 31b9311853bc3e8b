// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCharts/QChart>
#include <QtCharts/QChartView>
#include <vector>

#include "desktop/drawings/drawing.h"
#include "desktop/drawings/legend_row.h"
#include "desktop/widgets/look.h"

class QLabel;
class QValueAxis;

namespace varnholt {

/// A drawing made of charts. The chart engine is created when the drawing is shown for the first
/// time, and follows the colours and the font of its window.
class ChartDrawing : public Drawing {
 public:
    explicit ChartDrawing(QWidget* parent = nullptr);

    void refresh() final;
    QSize minimumSizeHint() const override { return {240, 160}; }

 protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

    /// Creates the charts, by newChart.
    virtual void create() = 0;
    /// Takes what is to be drawn from the form again.
    virtual void take() = 0;
    /// What stands in place of the charts while there is nothing to draw; else empty.
    virtual QString emptyHint() const = 0;
    /// Puts the colours of the look on what create has made.
    virtual void dress(const Look& look) = 0;

    /// One more chart beside the others.
    QChart* newChart();
    LegendRow& legend() { return *legend_; }
    /// An axis from zero to the next round number beyond the highest value.
    static void fitFromZero(QValueAxis& axis, double highest);
    /// An axis that has a little room at both ends of the values, with ticks at round numbers.
    static void fitAround(QValueAxis& axis, double lowest, double highest);

 private:
    void dressAll();

    LegendRow* legend_;
    QLabel* hint_;
    QWidget* plots_;
    std::vector<QChart*> charts_;
    bool created_ = false;
};

}  // namespace varnholt
