// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/charts/chart_view.h"

#include <QFontMetricsF>
#include <QGraphicsLayout>
#include <QLocale>
#include <QtCharts/QCategoryAxis>
#include <QtCharts/QLegend>
#include <QtCharts/QValueAxis>
#include <cmath>
#include <utility>

namespace varnholt {
namespace {

/// As many decimals as the steps have.
int decimalsOf(double step) {
    int decimals = 0;
    for (double left = step; decimals < 6; left *= 10, ++decimals)
        if (std::abs(left - std::round(left)) < 1e-6 * left) break;
    return decimals;
}

QString labelFormat(double step) { return QStringLiteral("%.%1f").arg(decimalsOf(step)); }

bool hasWholeFigures(const ChartAxis& axis) {
    return !axis.parts.empty() || decimalsOf(axis.step) == 0;
}

/// The engine parts thousands only as a locale does, of a whole chart at once. This one does it by
/// the thin space that parts them in all figures here; its sign for decimals would be a comma.
QLocale localeOfWholeFigures() { return {QLocale::French, QLocale::France}; }

QAbstractAxis* newAxis(const ChartAxis& axis) {
    if (axis.parts.empty()) return new QValueAxis;
    return new QCategoryAxis;
}

void nameParts(QCategoryAxis& engine, const ChartAxis& axis) {
    for (const QString& old : engine.categoriesLabels()) engine.remove(old);
    engine.setStartValue(axis.lowest);
    for (const ChartAxis::Part& part : axis.parts) engine.append(part.name, part.end);
}

void figure(QValueAxis& engine, const ChartAxis& axis) {
    engine.setLabelFormat(labelFormat(axis.step));
    if (axis.figures > 0) {
        engine.setTickType(QValueAxis::TicksFixed);
        engine.setTickCount(axis.figures);
        return;
    }
    engine.setTickInterval(axis.step);
    engine.setTickAnchor(0);
    engine.setTickType(QValueAxis::TicksDynamic);
}

/// The engine lays the figures out with every change, so a long range must never meet the steps of
/// a short one: there would be no end of figures.
void setScale(QValueAxis& engine, const ChartAxis& axis) {
    const bool stepsFirst = axis.figures > 0 || axis.step >= engine.tickInterval();
    if (stepsFirst) figure(engine, axis);
    engine.setRange(axis.lowest, axis.highest);
    if (!stepsFirst) figure(engine, axis);
}

void drawAxis(QAbstractAxis& engine, const ChartAxis& axis) {
    if (axis.parts.empty()) return setScale(static_cast<QValueAxis&>(engine), axis);
    engine.setRange(axis.lowest, axis.highest);
    nameParts(static_cast<QCategoryAxis&>(engine), axis);
}

/// The engine would end a title that is too long in dots, and with it the unit.
void fitTitle(QAbstractAxis& engine, const ChartAxis& axis, double room) {
    constexpr double edges = 4;
    const double needed = QFontMetricsF(engine.titleFont()).horizontalAdvance(axis.title) + edges;
    const bool cut = room > 0 && needed > room && !axis.unit.isEmpty();
    const QString& title = cut ? axis.unit : axis.title;
    if (engine.titleText() != title) engine.setTitleText(title);
}

void dressAxis(QAbstractAxis& engine, const Look& look, const QFont& font) {
    engine.setLabelsFont(font);
    engine.setTitleFont(font);
    engine.setLabelsBrush(look.muted);
    engine.setTitleBrush(look.muted);
    engine.setGridLinePen(QPen(look.hairline, 1));
    engine.setLinePen(QPen(look.line, 1));
}

QChart* newPlainChart() {
    auto* chart = new QChart;
    chart->setAnimationOptions(QChart::NoAnimation);
    chart->setBackgroundRoundness(0);
    chart->setBackgroundVisible(false);
    chart->setMargins({0, 0, 0, 0});
    chart->layout()->setContentsMargins(0, 0, 0, 0);
    chart->legend()->hide();
    chart->setLocale(localeOfWholeFigures());
    return chart;
}

}  // namespace

ChartView::ChartView(QWidget* parent) : QChartView(newPlainChart(), parent) {
    setRenderHint(QPainter::Antialiasing);
    setFrameShape(QFrame::NoFrame);
    setBackgroundBrush(Qt::NoBrush);
    viewport()->setAutoFillBackground(false);
    setFocusPolicy(Qt::NoFocus);
    // The wheel belongs to the page.
    setInteractive(false);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(chart(), &QChart::plotAreaChanged, this, [this] { fitTitles(); });
}

bool ChartView::hasPartsOf(const ChartPicture& picture) const {
    if (across_ == nullptr || picture.series.size() != picture_.series.size()) return false;
    if (picture.across.parts.empty() != picture_.across.parts.empty()) return false;
    if (picture.up.parts.empty() != picture_.up.parts.empty()) return false;
    for (std::size_t i = 0; i < picture.series.size(); ++i)
        if (picture.series[i].sign != picture_.series[i].sign ||
            picture.series[i].mode != picture_.series[i].mode)
            return false;
    return true;
}

void ChartView::build(const ChartPicture& picture) {
    chart()->removeAllSeries();
    series_.clear();
    delete std::exchange(across_, newAxis(picture.across));
    delete std::exchange(up_, newAxis(picture.up));
    chart()->addAxis(across_, Qt::AlignBottom);
    chart()->addAxis(up_, Qt::AlignLeft);
    for (const ChartSeries& series : picture.series) {
        QAbstractSeries* engine = series_.emplace_back(series.sign, series.mode).engine();
        chart()->addSeries(engine);
        engine->attachAxis(across_);
        engine->attachAxis(up_);
    }
}

void ChartView::draw(const ChartPicture& picture) {
    const bool built = hasPartsOf(picture);
    if (!built) build(picture);
    partThousands(hasWholeFigures(picture.across) && hasWholeFigures(picture.up));
    if (!built || picture.across != picture_.across) drawAxis(*across_, picture.across);
    if (!built || picture.up != picture_.up) drawAxis(*up_, picture.up);
    for (std::size_t i = 0; i < series_.size(); ++i)
        if (!built || picture.series[i].points != picture_.series[i].points)
            series_[i].draw(picture.series[i].points);
    picture_ = picture;
    if (!built) dressAll();
    fitTitles();
}

/// The engine lays the chart out anew whenever it is told.
void ChartView::partThousands(bool part) {
    if (chart()->localizeNumbers() != part) chart()->setLocalizeNumbers(part);
}

void ChartView::dress(const Look& look, const QFont& figures) {
    look_ = &look;
    figures_ = figures;
    dressAll();
}

void ChartView::dressAll() {
    if (look_ == nullptr || across_ == nullptr) return;
    for (QAbstractAxis* axis : {across_, up_}) dressAxis(*axis, *look_, figures_);
    for (PlottedSeries& series : series_) series.dress(*look_);
    fitTitles();
}

void ChartView::fitTitles() {
    if (across_ == nullptr) return;
    const QSizeF room = chart()->plotArea().size();
    fitTitle(*across_, picture_.across, room.width());
    fitTitle(*up_, picture_.up, room.height());
}

}  // namespace varnholt
