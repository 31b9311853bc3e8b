// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/day_chart.h"

#include <QtCharts/QAreaSeries>
#include <QtCharts/QCategoryAxis>
#include <QtCharts/QLineSeries>
#include <QtCharts/QValueAxis>
#include <algorithm>
#include <utility>

#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

constexpr double wholeDay = 24;

/// The loads as steps: each block's load from its first hour to its last.
QList<QPointF> stepsOf(const std::array<double, timeBlocks>& loads) {
    QList<QPointF> points;
    double hour = 0;
    for (std::size_t block = 0; block < timeBlocks; ++block) {
        points << QPointF(hour, loads[block]);
        hour += blockHours[block];
        points << QPointF(hour, loads[block]);
    }
    return points;
}

}  // namespace

DayChart::DayChart(Source loads, Captions captions, const Texts& texts)
    : source_(std::move(loads)), captionSource_(std::move(captions)), texts_(texts) {}

QString DayChart::description() const { return describeLoads(loads_, captions_, texts_); }

void DayChart::create() {
    QChart* chart = newChart();
    day_ = new QCategoryAxis;
    day_->setRange(0, wholeDay);
    day_->setStartValue(0);
    load_ = new QValueAxis;
    chart->addAxis(day_, Qt::AlignBottom);
    chart->addAxis(load_, Qt::AlignLeft);
    for (const Mode mode : modes) {
        auto* edge = new QLineSeries(this);
        lines_[mode] = new QLineSeries;
        areas_[mode] = new QAreaSeries(edge);
        for (QAbstractSeries* series : {static_cast<QAbstractSeries*>(areas_[mode]),
                                        static_cast<QAbstractSeries*>(lines_[mode])}) {
            chart->addSeries(series);
            series->attachAxis(day_);
            series->attachAxis(load_);
        }
    }
    legend().setEntries({{LegendRow::Sign::coolingLine, qt(texts_.text(2983))},
                         {LegendRow::Sign::heatingLine, qt(texts_.text(2984))}});
    showLoads();
}

void DayChart::dress(const Look& look) {
    for (const Mode mode : modes) {
        const QColor colour = mode == cooling ? look.cooling : look.heating;
        QColor wash = colour;
        wash.setAlphaF(look.dark ? 0.22F : 0.14F);
        areas_[mode]->setPen(Qt::NoPen);
        areas_[mode]->setBrush(wash);
        // Heating is dashed, so that the lines differ without their colours too.
        lines_[mode]->setPen(QPen(colour, 2, mode == cooling ? Qt::SolidLine : Qt::DashLine,
                                  Qt::FlatCap, Qt::MiterJoin));
    }
}

void DayChart::take() {
    const LoadsChart loads = source_();
    const LoadsCaptions captions = captionSource_();
    if (loads == loads_ && captions == captions_) return;
    loads_ = loads;
    if (captions != captions_) {
        captions_ = captions;
        for (const QString& old : day_->categoriesLabels()) day_->remove(old);
        double hour = 0;
        for (std::size_t block = 0; block < timeBlocks; ++block)
            day_->append(qt(captions.blocks[block]), hour += blockHours[block]);
        load_->setTitleText(qt(captions.unit));
    }
    showLoads();
}

void DayChart::showLoads() {
    fitFromZero(*load_, std::max(loads_.largest[cooling], loads_.largest[heating]));
    for (const Mode mode : modes) {
        const QList<QPointF> steps = stepsOf(loads_.loads[mode]);
        areas_[mode]->upperSeries()->replace(steps);
        lines_[mode]->replace(steps);
    }
}

QString DayChart::emptyHint() const { return loads_.empty() ? qt(texts_.text(2985)) : QString(); }

}  // namespace varnholt
