// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/chart_drawing.h"

#include <QEvent>
#include <QGraphicsLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QtCharts/QAbstractAxis>
#include <QtCharts/QLegend>
#include <QtCharts/QValueAxis>
#include <cmath>

namespace varnholt {

namespace {

constexpr int mostSteps = 4;

/// The smallest of 1, 2, 2.5, 5 times a power of ten that is not below the number.
double roundStep(double atLeast) {
    const double power = std::pow(10, std::floor(std::log10(atLeast)));
    for (const double round : {1.0, 2.0, 2.5, 5.0})
        if (round * power >= atLeast * 0.999) return round * power;
    return 10 * power;
}

/// As many decimals as the steps have.
QString labelFormat(double step) {
    int decimals = 0;
    for (double left = step; decimals < 6; left *= 10, ++decimals)
        if (std::abs(left - std::round(left)) < 1e-6 * left) break;
    return QStringLiteral("%.%1f").arg(decimals);
}

void dressAxis(QAbstractAxis& axis, const Look& look, const QFont& font) {
    axis.setLabelsFont(font);
    axis.setTitleFont(font);
    axis.setLabelsBrush(look.muted);
    axis.setTitleBrush(look.muted);
    axis.setGridLinePen(QPen(look.hairline, 1));
    axis.setLinePen(QPen(look.line, 1));
}

}  // namespace

ChartDrawing::ChartDrawing(QWidget* parent)
    : Drawing(parent),
      legend_(new LegendRow(this)),
      hint_(new QLabel(this)),
      plots_(new QWidget(this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gridStep / 2);
    layout->addWidget(legend_);
    layout->addWidget(plots_, 1);
    layout->addWidget(hint_, 1);
    hint_->setAlignment(Qt::AlignCenter);
    hint_->setWordWrap(true);
    hint_->setTextFormat(Qt::PlainText);
    auto* row = new QHBoxLayout(plots_);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(gridStep);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ChartDrawing::refresh() {
    if (!created_) {
        created_ = true;
        create();
        dressAll();
    }
    take();
    const QString hint = emptyHint();
    hint_->setText(hint);
    hint_->setVisible(!hint.isEmpty());
    plots_->setVisible(hint.isEmpty());
    legend_->setVisible(hint.isEmpty());
}

void ChartDrawing::showEvent(QShowEvent* event) {
    refresh();
    setAccessibleDescription(description());
    Drawing::showEvent(event);
}

void ChartDrawing::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) dressAll();
    Drawing::changeEvent(event);
}

QChart* ChartDrawing::newChart() {
    auto* chart = new QChart;
    chart->setAnimationOptions(QChart::NoAnimation);
    chart->setBackgroundRoundness(0);
    chart->setBackgroundVisible(false);
    chart->setMargins({0, 0, 0, 0});
    chart->layout()->setContentsMargins(0, 0, 0, 0);
    chart->legend()->hide();
    auto* view = new QChartView(chart, plots_);
    view->setRenderHint(QPainter::Antialiasing);
    view->setFrameShape(QFrame::NoFrame);
    view->setBackgroundBrush(Qt::NoBrush);
    view->viewport()->setAutoFillBackground(false);
    view->setFocusPolicy(Qt::NoFocus);
    // The chart is only looked at: the wheel belongs to the page.
    view->setInteractive(false);
    view->setAttribute(Qt::WA_TransparentForMouseEvents);
    static_cast<QHBoxLayout*>(plots_->layout())->addWidget(view, 1);
    charts_.push_back(chart);
    return chart;
}

void ChartDrawing::fitFromZero(QValueAxis& axis, double highest) {
    if (!(highest > 0)) highest = 1;
    const double step = roundStep(highest / mostSteps);
    const double steps = std::ceil(highest / step - 1e-9);
    axis.setRange(0, steps * step);
    axis.setTickCount(static_cast<int>(steps) + 1);
    axis.setLabelFormat(labelFormat(step));
}

void ChartDrawing::fitAround(QValueAxis& axis, double lowest, double highest) {
    if (!(highest > lowest)) highest = lowest + 1;
    const double room = (highest - lowest) * 0.04;
    const double step = roundStep((highest - lowest) / mostSteps);
    axis.setTickType(QValueAxis::TicksDynamic);
    axis.setTickAnchor(0);
    axis.setTickInterval(step);
    axis.setRange(lowest - room, highest + room);
    axis.setLabelFormat(labelFormat(step));
}

void ChartDrawing::dressAll() {
    if (!created_) return;
    const Look& look = lookOf(palette());
    QPalette muted = palette();
    muted.setColor(QPalette::WindowText, look.muted);
    hint_->setPalette(muted);
    for (QChart* chart : charts_)
        for (QAbstractAxis* axis : chart->axes()) dressAxis(*axis, look, figureFont(font()));
    dress(look);
}

}  // namespace varnholt
